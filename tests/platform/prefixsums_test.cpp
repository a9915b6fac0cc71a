#include "platform/prefixsums.h"

#include <gtest/gtest.h>
#include <numeric>
#include <random>

namespace vorlane {
namespace {

// Compares all that a sequence can tell with the numbers that it should hold.
void ExpectSame(const PrefixSums& sums, const std::vector<int32_t>& numbers) {
    ASSERT_EQ(sums.Size(), numbers.size());
    int32_t before = 0;
    for (size_t ordinal = 0; ordinal < numbers.size(); ++ordinal) {
        ASSERT_EQ(sums.Before(ordinal), before) << ordinal;
        for (int32_t rest = 0; rest < numbers[ordinal]; ++rest) {
            const auto place = sums.Find(before + rest);
            ASSERT_EQ(place.Ordinal, ordinal);
            ASSERT_EQ(place.Rest, rest);
        }
        before += numbers[ordinal];
    }
    ASSERT_EQ(sums.Before(numbers.size()), before);
    ASSERT_EQ(sums.Find(before).Ordinal, numbers.size());
    ASSERT_EQ(sums.Find(before + 5).Rest, 5);
}

TEST(PrefixSums, OfNothingIsNothing) {
    ExpectSame(PrefixSums(), {});
}

TEST(PrefixSums, PassOverZeroes) {
    PrefixSums sums;
    const std::vector<int32_t> numbers{0, 3, 0, 0, 1, 0};
    for (size_t i = 0; i < numbers.size(); ++i) sums.Insert(i, numbers[i]);
    ExpectSame(sums, numbers);
}

TEST(PrefixSums, FollowInsertionsErasuresAndChangesAnywhere) {
    std::mt19937 random(11);
    const auto below = [&](size_t limit) { return random() % limit; };
    PrefixSums sums;
    std::vector<int32_t> numbers;
    for (int step = 0; step < 4000; ++step) {
        const bool grow = step % 1000 < 500 ? below(3) > 0 : below(3) == 0;
        const auto number = static_cast<int32_t>(below(6));
        if (numbers.empty() || (grow && below(2) == 0)) {
            const size_t at = below(4) == 0 ? numbers.size() : below(numbers.size() + 1);
            sums.Insert(at, number);
            numbers.insert(numbers.begin() + static_cast<std::ptrdiff_t>(at), number);
        } else if (below(2) == 0) {
            const size_t at = below(numbers.size());
            sums.Add(at, number - numbers[at]);
            numbers[at] = number;
        } else {
            const size_t at = below(4) == 0 ? numbers.size() - 1 : below(numbers.size());
            sums.Erase(at);
            numbers.erase(numbers.begin() + static_cast<std::ptrdiff_t>(at));
        }
        if (step % 20 == 0) ExpectSame(sums, numbers);
    }
}

}  // namespace
}  // namespace vorlane
