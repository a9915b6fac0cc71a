#include "timeline/bars.h"

#include "tests/platform/expectfailure.h"

#include <gtest/gtest.h>
#include <limits>

namespace vorlane::bars {
namespace {

tSon Son(int32_t key, int32_t seconds, bool repeats = false) {
    tSon son;
    son.DiapoKey = key;
    son.Durée = seconds;
    son.Repetition = repeats;
    return son;
}

// "key:left+width", one bar behind the other.
std::string Told(const BarList& list) {
    std::string text;
    for (const tBarreSon& bar : list) {
        text += (text.empty() ? "" : " ") + std::to_string(bar.Son.DiapoKey) + ":" +
                std::to_string(static_cast<int>(bar.x)) + "+" + std::to_string(static_cast<int>(bar.W));
    }
    return text;
}

// 30 pixels a second, seconds 20 to 30.
class BarsTest : public testing::Test {
protected:
    Strip strip{302, 40, 1, 0};
    TimeScale scale{30, 20, 30};
    BarList list;

    void Add(int32_t key, int32_t start, int32_t seconds, bool repeats = false) {
        AddBar(list, Son(key, seconds, repeats), start, strip, scale);
    }
    int32_t Repeat(int32_t position) {
        RepetSon(list, position, strip);
        return position;
    }
};

TEST_F(BarsTest, ASoundReachesInWhenItsEndOrItsStartIsSeen) {
    EXPECT_TRUE(ReachesIn(strip, scale, 10, 10)) << "ends at the left edge";
    EXPECT_FALSE(ReachesIn(strip, scale, 10, 9));
    EXPECT_TRUE(ReachesIn(strip, scale, 30, 0));
    EXPECT_TRUE(ReachesIn(strip, scale, 20, -5)) << "starts at the left edge";
    strip.MargeGauche = 30;
    EXPECT_TRUE(ReachesIn(strip, scale, 10, 9)) << "one second of margin";
    EXPECT_FALSE(ReachesIn(strip, scale, 10, 8));
    EXPECT_TRUE(ReachesIn(strip, scale, 2147483647, 2147483647));
    EXPECT_FAILURE(ReachesIn(strip, {0, 20, 30}, 10, 10), DivisionByZero());
}

TEST_F(BarsTest, ASoundOfTenSecondsOnTheFirstVisibleSlide) {
    EXPECT_EQ(Clip({400, 40, 1, 0}, scale, 20, 10, false), (Extent{1, 300}));
}

TEST_F(BarsTest, ABarEndsTwoBordersBeforeTheRightEdge) {
    EXPECT_EQ(Clip(strip, scale, 25, 10, false), (Extent{151, 302 - 2 - 151}));
    EXPECT_EQ(Clip(strip, scale, 25, 10, true), (Extent{151, 149}));
}

TEST_F(BarsTest, ACutSoundShowsWhatIsLeftOfItAndTheMargin) {
    EXPECT_EQ(Clip({1000, 40, 1, 4}, scale, 15, 20, false), (Extent{1, 15 * 30 + 4}));
    EXPECT_EQ(Clip({1000, 40, 1, 4}, scale, 15, 3, false), (Extent{1, 0})) << "nothing is left of it";
}

TEST_F(BarsTest, ACutRepeatingSoundShowsItsWholeLengthFromTheBorder) {
    EXPECT_EQ(Clip({1000, 40, 1, 4}, scale, -100, 7, true), (Extent{1, 210}));
    EXPECT_EQ(Clip({100, 40, 1, 4}, scale, -100, 7, true), (Extent{1, 97}));
}

TEST_F(BarsTest, ABarIsNeverNarrowerThanNothing) {
    EXPECT_EQ(Clip({10, 40, 2, 0}, scale, 25, 7, false).W, 0.0F);
    EXPECT_EQ(Clip(strip, scale, 25, -7, false).W, 0.0F);
}

TEST_F(BarsTest, ASoundCutByANeighbourEndsOnePixelBeforeIt) {
    Add(2, 25, 5);
    Add(1, 20, 20);
    EXPECT_EQ(Told(list), "1:1+149 2:151+149");
}

TEST_F(BarsTest, ASoundThatEndsBeforeItsNeighbourKeepsItsLength) {
    Add(2, 25, 5);
    Add(1, 20, 4);
    EXPECT_EQ(Told(list), "1:1+120 2:151+149");
}

TEST_F(BarsTest, ABarOfNoWidthIsLeftOut) {
    Add(2, 20, 5);
    Add(1, 20, 5);
    EXPECT_EQ(Told(list), "2:1+150");
    Add(3, 21, 0);
    EXPECT_EQ(Told(list), "2:1+150");
}

TEST_F(BarsTest, RepetitionsFillTheRowRightUpToTheNextSound) {
    Add(2, 28, 2);
    Add(1, 20, 3, true);
    EXPECT_EQ(Repeat(1), 3);
    EXPECT_EQ(Told(list), "1:1+90 1:91+90 1:181+60 2:241+59");
}

TEST_F(BarsTest, TheRightmostRepeatingSoundRunsToTheBorder) {
    Add(1, 20, 4, true);
    EXPECT_EQ(Repeat(1), 3);
    EXPECT_EQ(Told(list), "1:1+120 1:121+120 1:241+60");
    EXPECT_EQ(list.back().x + list.back().W, 301.0F);
}

TEST_F(BarsTest, ARepetitionStandsForTheSameSound) {
    Add(1, 20, 9, true);
    Repeat(1);
    ASSERT_EQ(list.size(), 2U);
    EXPECT_EQ(list[1].Son, list[0].Son);
}

TEST_F(BarsTest, WhatDoesNotRepeatOrHasNoRoomIsLeftAlone) {
    Add(1, 20, 4);
    EXPECT_EQ(Repeat(1), 1);
    list.clear();
    Add(2, 24, 1);
    Add(1, 20, 4, true);
    EXPECT_EQ(Told(list), "1:1+119 2:121+30");
    EXPECT_EQ(Repeat(1), 1) << "ends one pixel before the next one";
    EXPECT_EQ(Told(list), "1:1+119 2:121+30");
}

TEST_F(BarsTest, ARepetitionTooNarrowToLeadAnywhereEndsTheRow) {
    for (const float x : {100.0F, 0.0F, -30000.0F}) {
        list = {{x, 1e-7F, Son(1, 1, true)}};
        EXPECT_EQ(Repeat(1), 1);
        EXPECT_EQ(list.size(), 1U);
    }
}

TEST_F(BarsTest, ALimitThatIsNoNumberIsAFailure) {
    list.push_back({1, 90, Son(1, 3, true)});
    strip.ScaleWidth = 1e20F;
    EXPECT_FAILURE(Repeat(1), Overflow());
}

TEST_F(BarsTest, TheFirstBarOverAPointIsFoundBothEdgesCounted) {
    list.push_back({10, 20, Son(1, 1)});
    list.push_back({30, 20, Son(2, 1)});
    EXPECT_EQ(BarAt(list, 9.5F), nullptr);
    EXPECT_EQ(BarAt(list, 10)->Son.DiapoKey, 1);
    EXPECT_EQ(BarAt(list, 30)->Son.DiapoKey, 1);
    EXPECT_EQ(BarAt(list, 30.5F)->Son.DiapoKey, 2);
    EXPECT_EQ(BarAt(list, 50)->Son.DiapoKey, 2);
    EXPECT_EQ(BarAt(list, 50.5F), nullptr);
    EXPECT_TRUE(InRow(3, 3, 8));
    EXPECT_TRUE(InRow(11, 3, 8));
    EXPECT_FALSE(InRow(2.5F, 3, 8));
    EXPECT_FALSE(InRow(11.5F, 3, 8));
}

// --- Which sounds a paint looks at ---

// A sound of two seconds on each of 10,000 slides of five seconds.
class InSightTest : public testing::Test {
protected:
    static constexpr int32_t kCount = 10000;
    static constexpr int16_t kExposition = 5;
    Strip strip{1500, 40, 0, 0};
    TimeScale scale{30, 25000, 25050};  // ten slides in sight

    SoundPlaces Places(int32_t longOne = -1, int32_t length = 0) {
        SoundPlaces places;
        for (int32_t i = 0; i < kCount; ++i) places.Insert(places.Count(), i, i == longOne ? length : 2);
        return places;
    }
    // What is looked at of places, the left edge having a bar once a sound reaches in; "4999 4998".
    std::string LookedAt(const SoundPlaces& places, bool passedEnds = true) {
        std::string text;
        EachInSight(places, strip, scale, kExposition, [&](size_t i) {
            text += (text.empty() ? "" : " ") + std::to_string(i);
            const auto start = static_cast<int32_t>(i) * kExposition;
            if (start >= scale.FirstSecond) return Left::Any;
            if (places.LastReaching(i + 1, LeftLimit(strip, scale), kExposition) == i) return Left::None;
            return passedEnds ? Left::ThoseThatReachIn : Left::Any;
        });
        return text;
    }
};

TEST_F(InSightTest, OfTenThousandSoundsThoseInSightAndTheOneBeforeAreLookedAt) {
    EXPECT_EQ(LookedAt(Places()), "5009 5008 5007 5006 5005 5004 5003 5002 5001 5000 4999");
}

TEST_F(InSightTest, ASoundThatReachesInFromFarIsFoundWithoutAWalk) {
    const std::string inSight = "5009 5008 5007 5006 5005 5004 5003 5002 5001 5000 4999 ";
    EXPECT_EQ(LookedAt(Places(3, 24985)), inSight + "3");
    EXPECT_EQ(LookedAt(Places(3, 24984)) + " ", inSight) << "it ends a second before";
}

TEST_F(InSightTest, AsLongAsAnySoundMayStillShowNoneIsLeftOut) {
    scale = {30, 100, 105};
    EXPECT_EQ(LookedAt(Places(4, 80), false), "20 19 18 17 16 15 14 13 12 11 10 9 8 7 6 5 4");
    EXPECT_EQ(LookedAt(Places(4, 80), true), "20 19 4");
}

TEST_F(InSightTest, NothingIsLookedUpInAListOutOfOrderOrOnAScaleThatRunsBackwards) {
    SoundPlaces places = Places();
    EXPECT_TRUE(CanLookUp(places, scale, 1));
    EXPECT_FALSE(CanLookUp(places, scale, 0));
    EXPECT_FALSE(CanLookUp(places, {0, 0, 0}, 1));
    EXPECT_FALSE(CanLookUp(places, {-3, 0, 0}, 1));
    EXPECT_FALSE(CanLookUp(places, {std::numeric_limits<float>::infinity(), 0, 0}, 1));
    places.Insert(0, 7, 0);
    EXPECT_FALSE(CanLookUp(places, scale, 1));
}

}  // namespace
}  // namespace vorlane::bars
