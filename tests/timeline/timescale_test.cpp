#include "timeline/timescale.h"

#include "tests/platform/expectfailure.h"

#include <gmock/gmock.h>
#include <limits>

namespace vorlane::timescale {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(TimeScale, PixelsPerSecondIsTheSlidesWidthOverItsTime) {
    EXPECT_EQ(PixelsPerSecond(150, 5), 30.0F);
    EXPECT_EQ(PixelsPerSecond(0, 5), 0.0F);
    EXPECT_FAILURE(PixelsPerSecond(150, 0), DivisionByZero());
}

TEST(TimeScale, AStartIsA32BitProduct) {
    EXPECT_EQ(Start(12, 5), 60);
    EXPECT_EQ(Start(-1, 5), -5);
    EXPECT_EQ(Start(30000, 30000), 900000000);
    EXPECT_FAILURE(Start(1000000000, 3), Overflow());
}

TEST(TimeScale, TheLastSecondIsRoundedToTheEvenNeighbour) {
    EXPECT_EQ(LastSecond(300, 30, 20), 30);
    EXPECT_EQ(LastSecond(105, 30, 0), 4);
    EXPECT_EQ(LastSecond(75, 30, 0), 2);
    EXPECT_FAILURE(LastSecond(300, 0, 0), DivisionByZero());
    EXPECT_FAILURE(LastSecond(1e30F, 1, 0), Overflow());
}

TEST(TimeScale, ASecondLandsBehindBorderAndMargin) {
    const Strip strip{300, 40, 1, 4};
    const TimeScale scale{30, 10, 20};
    EXPECT_EQ(X(strip, scale, 10), 5.0F);
    EXPECT_EQ(X(strip, scale, 12), 65.0F);
    EXPECT_EQ(X(strip, scale, 3), 5.0F) << "nothing starts left of the origin";
    EXPECT_EQ(X({300, 40, 1, 0}, {30, 0, 10}, 10), 301.0F);
}

TEST(TimeScale, LabelsAreAsNearAsWholeSecondsLetThem) {
    EXPECT_EQ(SecondsPerLabel(60, 30), 2.0);
    EXPECT_EQ(SecondsPerLabel(60, 29), 3.0);
    EXPECT_EQ(SecondsPerLabel(60, 100), 1.0);
    EXPECT_EQ(SecondsPerLabel(60, 60), 1.0);
    EXPECT_EQ(SecondsPerLabel(0, 30), 1.0);
}

TEST(TimeScale, LabelsAgreeWithCountingUpOneByOne) {
    for (int width = 1; width < 120; ++width) {
        for (float ratio = 0.05F; ratio < 12; ratio += 0.37F) {
            double counted = 1;
            while (counted * static_cast<double>(ratio) < width) counted += 1;
            EXPECT_EQ(SecondsPerLabel(static_cast<float>(width), ratio), counted) << width << " at " << ratio;
        }
    }
}

TEST(TimeScale, ASearchForALabelSpacingAlwaysEnds) {
    EXPECT_EQ(SecondsPerLabel(60, 0), 1.0);
    EXPECT_EQ(SecondsPerLabel(60, -5), 1.0);
    EXPECT_GE(SecondsPerLabel(60, 1e-30F), 1e30);
}

TEST(TimeScale, MarksWalkToTheRightEdgeIncluded) {
    EXPECT_THAT(Marks(0, 300, 20, 150, 5), ElementsAre(TimeMark{0, 20}, TimeMark{150, 25}, TimeMark{300, 30}));
    EXPECT_THAT(Marks(5, 154, 0, 150, 5), ElementsAre(TimeMark{5, 0}));
    EXPECT_THAT(Marks(301, 300, 0, 150, 5), IsEmpty());
}

TEST(TimeScale, MarksRoundTheirSeconds) {
    EXPECT_THAT(Marks(0, 20, 0, 10, 2.5), ElementsAre(TimeMark{0, 0}, TimeMark{10, 2}, TimeMark{20, 4}));
}

TEST(TimeScale, AStepThatIsNotAboveZeroGivesTheFirstMarkAlone) {
    EXPECT_THAT(Marks(5, 300, 7, 0, 5), ElementsAre(TimeMark{5, 7}));
    EXPECT_THAT(Marks(5, 300, 7, -10, 5), ElementsAre(TimeMark{5, 7}));
    EXPECT_THAT(Marks(100, 300, 7, 1e-9, 5), ElementsAre(TimeMark{100, 7})) << "too small to lead anywhere";
    EXPECT_THAT(Marks(0, 300, 7, 1e-9, 5), ElementsAre(TimeMark{0, 7}));
    EXPECT_THAT(Marks(-30000, 300, 7, 1e-4, 5), ElementsAre(TimeMark{-30000, 7}));
    EXPECT_THAT(Marks(5, 300, 7, std::numeric_limits<double>::quiet_NaN(), 5), ElementsAre(TimeMark{5, 7}));
}

TEST(TimeScale, SecondsThatDoNotFitStayAsTheyWere) {
    constexpr int32_t kMost = std::numeric_limits<int32_t>::max();
    EXPECT_THAT(Marks(0, 10, kMost - 3, 5, 2),
                ElementsAre(TimeMark{0, kMost - 3}, TimeMark{5, kMost - 1}, TimeMark{10, kMost - 1}));
}

}  // namespace
}  // namespace vorlane::timescale
