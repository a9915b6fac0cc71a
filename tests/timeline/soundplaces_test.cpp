#include "timeline/soundplaces.h"

#include <gtest/gtest.h>
#include <random>

namespace vorlane {
namespace {

SoundPlaces Of(const std::vector<int32_t>& numbers, int32_t length = 0) {
    SoundPlaces places;
    for (const int32_t number : numbers) places.Insert(places.Count(), number, length);
    return places;
}

TEST(SoundPlaces, KnowWhetherTheyAreInOrder) {
    EXPECT_TRUE(Of({}).InOrder());
    EXPECT_TRUE(Of({0, 3, 3, 9}).InOrder());
    EXPECT_FALSE(Of({0, 3, 2}).InOrder());
    EXPECT_FALSE(Of({-1}).InOrder());
    EXPECT_FALSE(Of({0, -1, 3}).InOrder());
    SoundPlaces places = Of({2, 6});
    places.Insert(1, 4, 0);
    places.Insert(0, 0, 0);
    EXPECT_TRUE(places.InOrder());
    EXPECT_EQ(places.Numbers(), (std::vector<int32_t>{0, 2, 4, 6}));
    places.Insert(1, 3, 0);
    EXPECT_FALSE(places.InOrder());
}

TEST(SoundPlaces, FindTheFirstBehindASlideAndTheFirstFromASecondOn) {
    const SoundPlaces places = Of({1, 3, 3, 5});
    EXPECT_EQ(places.FirstBehind(0), 0U);
    EXPECT_EQ(places.FirstBehind(3), 3U);
    EXPECT_EQ(places.FirstBehind(5), 4U);
    EXPECT_EQ(places.FirstStarting(-7, 10), 0U);
    EXPECT_EQ(places.FirstStarting(10, 10), 0U);
    EXPECT_EQ(places.FirstStarting(11, 10), 1U);
    EXPECT_EQ(places.FirstStarting(51, 10), 4U);
    EXPECT_EQ(Of({70000}).FirstStarting(2147483647, 32767), 0U) << "a start that no 32-bit number holds";
}

TEST(SoundPlaces, TheLastThatReachesASecondIsTheOneOfAWalk) {
    std::mt19937 dice(5);  // NOLINT(cert-msc51-cpp): the same on every run
    for (int round = 0; round < 300; ++round) {
        SoundPlaces places;
        std::vector<int32_t> lengths;
        const int count = static_cast<int>(dice() % 40);
        int32_t number = 0;
        for (int i = 0; i < count; ++i) {
            number += static_cast<int32_t>(dice() % 3);
            lengths.push_back(dice() % 8 == 0 ? static_cast<int32_t>(dice() % 300) : static_cast<int32_t>(dice() % 9));
            places.Insert(places.Count(), number, lengths.back());
        }
        for (const auto exposition : {int16_t{1}, int16_t{5}, int16_t{1}}) {
            for (size_t before = 0; before <= places.Count(); ++before) {
                const double second = static_cast<double>(dice() % 200) - 0.5;
                std::optional<size_t> expected;
                for (size_t i = 0; i < before; ++i) {
                    if (places.Numbers()[i] * exposition + lengths[i] >= second) expected = i;
                }
                ASSERT_EQ(places.LastReaching(before, second, exposition), expected) << round << " " << before;
            }
        }
    }
}

TEST(SoundPlaces, EndsFollowWhatIsInserted) {
    SoundPlaces places = Of({0, 4});
    EXPECT_EQ(places.LastReaching(2, 50, 5), std::nullopt);
    places.Insert(1, 2, 60);
    EXPECT_EQ(places.LastReaching(3, 50, 5), 1U);
    EXPECT_EQ(places.LastReaching(1, 50, 5), std::nullopt);
}

}  // namespace
}  // namespace vorlane
