#include "sheet/grid.h"

#include "platform/failure.h"

#include <gtest/gtest.h>

namespace vorlane::grid {
namespace {

// 640 x 480 with a bar 16 wide at the right, slides of 100 x 75.
Frame Usual() {
    return {640, 480, 16, 480, true, ScrollDirectionType::sdVertical, 100, 75};
}

Frame Sideways() {
    return {640, 480, 640, 16, true, ScrollDirectionType::sdHorizontal, 100, 75};
}

template <class Operation>
int32_t FailureOf(Operation&& operation) {
    try {
        operation();
    } catch (const Failure& failure) {
        return failure.Number;
    }
    return 0;
}

TEST(Grid, AreaLeavesOutBarAndMarginsAndAddsOneRow) {
    const Area area = ComputeArea(Usual(), 5);
    EXPECT_EQ(area.StartX, 5);
    EXPECT_EQ(area.StartY, 5);
    EXPECT_EQ(area.AreaWidth, 614);
    EXPECT_EQ(area.AreaHeight, 545);
}

TEST(Grid, AreaOfASidewaysSheetAddsOneColumnAndTakesTheBarsWidthOffItsHeight) {
    const Area area = ComputeArea(Sideways(), 5);
    EXPECT_EQ(area.AreaWidth, 640 - 10 + 100);
    EXPECT_EQ(area.AreaHeight, 480 - 640 - 10);
}

TEST(Grid, AreaOfAnUnknownDirectionAddsAColumnAndHasNoBar) {
    Frame frame = Sideways();
    frame.Direction = static_cast<ScrollDirectionType>(7);
    const Area area = ComputeArea(frame, 5);
    EXPECT_EQ(area.AreaWidth, 730);
    EXPECT_EQ(area.AreaHeight, 470);
}

TEST(Grid, UsualSheetHasFiveColumnsAndSixRows) {
    const Area area = ComputeArea(Usual(), 5);
    EXPECT_EQ(CountThatFit(area.AreaWidth, 100, 5), 5);
    EXPECT_EQ(CountThatFit(area.AreaHeight, 75, 5), 6);
    EXPECT_EQ(PoolSize(5, 6), 30);
}

TEST(Grid, ALastSlideFitsWithoutAGapBehindIt) {
    EXPECT_EQ(CountThatFit(309, 100, 5), 2);
    EXPECT_EQ(CountThatFit(310, 100, 5), 3);
    EXPECT_EQ(CountThatFit(315, 100, 5), 3);
}

TEST(Grid, AControlNarrowerThanOneSlideStillHasOneColumn) {
    EXPECT_EQ(CountThatFit(40, 100, 5), 1);
    EXPECT_EQ(CountThatFit(-200, 100, 5), 1);
    const Spread spread = ComputeSpread({5, 5, 40, 300}, 1, 3, 100, 75, 5, true);
    EXPECT_EQ(spread.MargeX, 5);
    EXPECT_EQ(spread.FirstLeft, 5);
}

TEST(Grid, CountFailsWithoutASizeOrBeyondSixteenBits) {
    EXPECT_EQ(FailureOf([] { CountThatFit(100, 0, 0); }), failures::DivisionByZero().Number);
    EXPECT_EQ(FailureOf([] { CountThatFit(40000, 1, 0); }), failures::Overflow().Number);
    EXPECT_EQ(FailureOf([] { PoolSize(200, 200); }), failures::Overflow().Number);
}

TEST(Grid, WithoutSpreadingGapsAreTheLeastAndTheFirstCellStandsAtTheMargin) {
    const Spread spread = ComputeSpread({5, 5, 614, 545}, 5, 6, 100, 75, 7, false);
    EXPECT_EQ(spread.MargeX, 7);
    EXPECT_EQ(spread.MargeY, 7);
    EXPECT_EQ(spread.FirstLeft, 5);
    EXPECT_EQ(spread.FirstTop, 5);
}

TEST(Grid, SpreadingDividesByTheCountForGapsAndByOneMoreForTheFirstCell) {
    const Spread spread = ComputeSpread({5, 5, 614, 545}, 5, 6, 100, 75, 5, true);
    EXPECT_EQ(spread.MargeX, 22);     // 114 / 5
    EXPECT_EQ(spread.FirstLeft, 19);  // 114 / 6
    EXPECT_EQ(spread.MargeY, 15);     // 95 / 6
    EXPECT_EQ(spread.FirstTop, 13);   // 95 / 7
}

TEST(Grid, SpreadingNeverGoesBelowTheLeastGapAndTheMargin) {
    const Spread spread = ComputeSpread({8, 9, 500, 450}, 5, 6, 100, 75, 6, true);
    EXPECT_EQ(spread.MargeX, 6);
    EXPECT_EQ(spread.MargeY, 6);
    EXPECT_EQ(spread.FirstLeft, 8);
    EXPECT_EQ(spread.FirstTop, 9);
}

TEST(Grid, SpreadingOverNoColumnsFails) {
    EXPECT_EQ(FailureOf([] {
                  ComputeSpread({5, 5, 614, 545}, 0, 6, 100, 75, 5, true);
              }),
              failures::DivisionByZero().Number);
}

TEST(Grid, VisibleSizeHoldsTheExtraRowAndLeavesOutAVisibleBar) {
    EXPECT_EQ(VisibleWidth(Usual()), 624);
    EXPECT_EQ(VisibleHeight(Usual()), 555);
    Frame hidden = Usual();
    hidden.BarVisible = false;
    EXPECT_EQ(VisibleWidth(hidden), 640);
    EXPECT_EQ(VisibleWidth(Sideways()), 740);
    EXPECT_EQ(VisibleHeight(Sideways()), 464);
}

TEST(Grid, CellsAreEqualPartsOfTheVisibleSize) {
    // Cells of 124.8 x 92.5.
    EXPECT_EQ(CellAt(Usual(), 5, 6, 0, 0), 0);
    EXPECT_EQ(CellAt(Usual(), 5, 6, 124.7, 92.4), 0);
    EXPECT_EQ(CellAt(Usual(), 5, 6, 124.9, 92.4), 1);
    EXPECT_EQ(CellAt(Usual(), 5, 6, 0, 92.6), 5);
    EXPECT_EQ(CellAt(Usual(), 5, 6, 623, 554), 29);
    EXPECT_EQ(CellAt(Usual(), 5, 6, -1, 0), -1);
}

TEST(Grid, NoCellWithoutVisibleSizeOrRows) {
    Frame flat = Usual();
    flat.ScaleHeight = -75;
    EXPECT_EQ(FailureOf([&] { CellAt(flat, 5, 6, 1, 1); }), failures::DivisionByZero().Number);
    EXPECT_EQ(FailureOf([] { CellAt(Usual(), 5, 0, 1, 1); }), failures::DivisionByZero().Number);
}

TEST(Grid, ABandTouchesASlideWhoseEdgesItCrosses) {
    const Box slide{100, 100, 50, 40};
    EXPECT_TRUE(BandTouches({90, 90, 20, 20}, slide));
    EXPECT_TRUE(BandTouches({150, 140, 10, 10}, slide)) << "bounds count";
    EXPECT_FALSE(BandTouches({151, 90, 20, 20}, slide));
    EXPECT_FALSE(BandTouches({110, 110, 5, 5}, slide)) << "wholly inside";
    EXPECT_FALSE(BandTouches({110, 90, 5, 100}, slide)) << "no upright edge in the band";
}

}  // namespace
}  // namespace vorlane::grid
