#include "sheet/wordsort.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>
#include <tuple>

namespace vorlane {
namespace {

using Values = std::vector<std::tuple<uint64_t, uint32_t, int32_t>>;

Values ValuesOf(const std::vector<WordEntry>& entries) {
    Values values;
    for (const WordEntry& entry : entries) values.emplace_back(entry.Word, entry.Place, entry.Row);
    return values;
}

TEST(WordSort, OrdersByWordThenByRowAtAnySize) {
    std::mt19937_64 random(1);
    WordSort sort;
    for (const uint64_t mask : {uint64_t{0}, uint64_t{3}, 0xFF00000000000000U, 0x0100FF0000030001U, ~uint64_t{0}}) {
        for (const size_t count : {0U, 1U, 2U, 63U, 64U, 65U, 1000U, 64U, 3000U}) {
            std::vector<WordEntry> entries;
            for (size_t i = 0; i < count; ++i) {
                entries.push_back({random() & mask, static_cast<uint32_t>(random()), static_cast<int32_t>(i)});
            }
            auto expected = entries;
            std::stable_sort(expected.begin(), expected.end(),
                             [](const WordEntry& a, const WordEntry& b) { return a.Word < b.Word; });
            sort.Sort(entries);
            ASSERT_EQ(ValuesOf(entries), ValuesOf(expected)) << count << " entries, mask " << mask;
        }
    }
}

}  // namespace
}  // namespace vorlane
