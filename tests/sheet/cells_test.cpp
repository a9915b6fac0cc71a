// The grid of a live sheet: its areas, its slides under a point, the size of its slides.
#include "tests/sheet/sheetfixture.h"

namespace vorlane {
namespace {

class CellsTest : public SheetTest {
protected:
    // "slide x,y" and the half, of a point.
    std::string At(float x, float y) {
        bool right = false;
        const int16_t index = sheet->GetDiapoFromCol(x, y, right);
        return std::to_string(index) + " " + std::to_string(static_cast<int>(x)) + "," +
               std::to_string(static_cast<int>(y)) + (right ? " right" : " left");
    }
};

// The visible size is 345 - 0 by 180 + 75 while the bar is hidden: cells of 115 x 85.
TEST_F(CellsTest, APointGivesTheSlideOfItsCellAndItsPlaceOnThatSlide) {
    Show(9);
    ASSERT_TRUE(sheet->VScroll.Visible());
    EXPECT_EQ(At(10, 10), "0 5,5 left");
    EXPECT_EQ(At(56, 10), "0 51,5 right");
    EXPECT_EQ(At(55, 10), "0 50,5 left") << "the middle belongs to the left half";
    EXPECT_EQ(At(230, 100), "5 13,14 left") << "right of the first two cells of 329 / 3";
}

TEST_F(CellsTest, APointBeyondTheLastSlideGivesTheLastOne) {
    Show(5);
    EXPECT_EQ(At(300, 160), "4 189,74 right");
}

TEST_F(CellsTest, ABlankSheetGivesSlideZeroAndLeavesTheHalfAlone) {
    Start();
    float x = 300;
    float y = 100;
    bool right = true;
    EXPECT_EQ(sheet->GetDiapoFromCol(x, y, right), 0);
    EXPECT_TRUE(right);
    EXPECT_EQ(x, 300) << "slide 0 stands at the very corner";
}

TEST_F(CellsTest, APointOutsideIsReportedAndAnswersZero) {
    Show(9);
    EXPECT_EQ(At(-10, 10), "0 -10,10 left");
    EXPECT_EQ(Heard(), "host Error 340 Vorlane GetDiapoFromCol DpCnt=9 - -10 - 10 - 0\n");
}

TEST_F(CellsTest, ASheetWithoutAGridReportsIt) {
    EXPECT_EQ(At(10, 10), "0 10,10 left");
    EXPECT_EQ(Heard(), "host Error 11 Vorlane GetDiapoFromCol DpCnt=1 - 10 - 10 - 0\n");
}

TEST_F(CellsTest, ASheetNarrowerThanOneSlideHasOneColumnOfLeastGaps) {
    window.Resize(60, 180);
    Start();
    AddItems(0, 5);
    sheet->StartLecture();
    EXPECT_EQ(sheet->CountDiapoX(), 1);
    EXPECT_EQ(sheet->DiapoWidth(true), 105);
    EXPECT_EQ(Place(0), "5,86") << "each new slide begins a row, the first one too";
    EXPECT_EQ(Place(1), "5,167");
    window.Resize(61, 180);
    EXPECT_EQ(Place(0), "5,5") << "a layout puts them right";
    EXPECT_EQ(Place(1), "5,86");
}

TEST_F(CellsTest, ASidewaysSheetHasOneRowWhateverItsHeight) {
    PropertyBag bag;
    bag.SetValue("ScrollDirection", int64_t{1});
    Start(bag);
    EXPECT_EQ(sheet->CountDiapoY(), 1);
    EXPECT_EQ(sheet->CountDiapoX(), 4) << "three that show and one more";
    window.Resize(kWidth, 900);
    EXPECT_EQ(sheet->CountDiapoY(), 1);
}

TEST_F(CellsTest, TheBarOfASidewaysSheetLiesBelow) {
    PropertyBag bag;
    bag.SetValue("ScrollDirection", int64_t{1});
    Start(bag);
    EXPECT_EQ(sheet->VScroll.Bounds(), (Box{0, kHeight - 16, kWidth, 16}));
    EXPECT_EQ(sheet->VScroll.Orientation(), Orientation::Horizontal);
    sheet->SetScrollDirection(ScrollDirectionType::sdVertical);
    EXPECT_EQ(sheet->VScroll.Orientation(), Orientation::Vertical);
    EXPECT_EQ(sheet->VScroll.Bounds(), (Box{kWidth - 16, 0, 16, kHeight}));
    EXPECT_EQ(sheet->CountDiapoY(), 3);
    EXPECT_THAT(Heard(), testing::EndsWith("host PropertyChanged ScrollDirection\n"));
}

TEST_F(CellsTest, MarginsMoveNothingUntilTheNextResize) {
    Show(9);
    sheet->SetMarges(20);
    sheet->SetMargeDiapoMin(1);
    sheet->SetMargeDiapoAutoAdjust(false);
    EXPECT_EQ(Place(4), "111,86");
    EXPECT_EQ(sheet->CountDiapo(), 9);
    sheet->SetMargeDiapoAutoAdjust(true);
    window.Resize(kWidth + 1, kHeight);
    desktop.clock.Advance(1);
    EXPECT_EQ(sheet->CountDiapo(), 4);
    EXPECT_EQ(Place(0), "30,21");
}

}  // namespace
}  // namespace vorlane
