// The rubber band. The first column of slides stands from x = 5 on, the second from x = 111; the rows from y = 5, 85
// and 165 on; a slide is 100 x 76.
#include "interaction/autoscroll.h"
#include "platform/failure.h"
#include "tests/interaction/gesturefixture.h"

namespace vorlane {
namespace {

using headless::kCtrl;
using headless::kShift;

class BandTest : public GestureTest {
protected:
    // From the ground at the top left to a point, with the button still down.
    void Sweep(float x, float y, int16_t keys = kNoKeys) {
        window.Press(kGroundX, kGroundY, headless::kLeftButton, keys);
        window.MouseTo(x, y, keys);
    }
    void LetGo(float x, float y) { window.Release(x, y); }
};

TEST_F(BandTest, ABandSelectsTheSlidesWhoseEdgesItCrosses) {
    Show(40);
    Sweep(150, 50);
    EXPECT_EQ(States(), "ss.......");
    LetGo(150, 50);
    EXPECT_EQ(States(), "ss.......");
    EXPECT_FALSE(sheet->SelRect.Visible());
}

TEST_F(BandTest, SlidesThatTheBandLeavesGoBack) {
    Show(40);
    Sweep(150, 150);
    EXPECT_EQ(States(), "ss.ss....");
    window.MouseTo(50, 50);
    EXPECT_EQ(States(), "s........");
    window.MouseTo(3, 3);
    EXPECT_EQ(States(), ".........");
    LetGo(3, 3);
}

TEST_F(BandTest, ABandWithCtrlInverts) {
    Show(40);
    Click(0);
    Click(4, kCtrl);
    Sweep(150, 50, kCtrl);
    EXPECT_EQ(States(), ".s..C....");
    window.MouseTo(3, 3, kCtrl);
    EXPECT_EQ(States(), "s...C....");
    LetGo(3, 3);
}

TEST_F(BandTest, ABandWithShiftKeepsTheEarlierSelection) {
    Show(40);
    Click(8);
    Sweep(150, 50, kShift);
    EXPECT_EQ(States(), "ss......C");
    LetGo(150, 50);
}

TEST_F(BandTest, TheCurrentSlideComesBackFromTheBandWithItsMark) {
    Show(40);
    Click(1);
    Sweep(150, 50, kCtrl);
    EXPECT_EQ(States(), "s........");
    window.MouseTo(50, 50, kCtrl);
    EXPECT_EQ(States(), "sC.......");
    LetGo(50, 50);
}

TEST_F(BandTest, ABandWhoseCornersAllLieInsideOneSlideSelectsNothing) {
    Show(40);
    const Box slide = sheet->Diapo.Item(4)->Bounds();
    EXPECT_FALSE(grid::BandTouches({slide.Left + 10, slide.Top + 10, 30, 30}, slide));
    EXPECT_TRUE(grid::BandTouches({slide.Left + 10, slide.Top + 10, slide.Width, slide.Height}, slide));
    EXPECT_TRUE(grid::BandTouches({slide.Left - 10, slide.Top - 10, 10, 10}, slide)) << "a corner just met";
}

TEST_F(BandTest, ABandWhollyInsideOneSlideSelectsNothingAndOneThatCrossesItsEdgesDoes) {
    Show(40);
    sheet->Diapo.Item(4)->SetVisible(false);  // so that a press at its place is one on the ground
    window.Press(130, 100);
    window.MouseTo(160, 130);
    EXPECT_EQ(sheet->SelRect.Bounds(), (Box{130, 100, 30, 30}));
    EXPECT_EQ(States(), ".........");
    window.MouseTo(214, 164);
    EXPECT_EQ(States(), "....s....");
    LetGo(214, 164);
}

TEST_F(BandTest, ABandIsDrawnInFrontFromItsAnchorInBothDirections) {
    Show(40);
    window.Press(108, 80);
    EXPECT_TRUE(sheet->SelRect.Visible());
    EXPECT_EQ(sheet->SelRect.Bounds(), (Box{108, 80, 1, 1}));
    window.MouseTo(120, 95);
    EXPECT_EQ(sheet->SelRect.Bounds(), (Box{108, 80, 12, 15}));
    window.MouseTo(100, 70);
    EXPECT_EQ(sheet->SelRect.Bounds(), (Box{100, 70, 8, 10}));
    LetGo(100, 70);
}

TEST_F(BandTest, AMoveOfTheBandDamagesItsEdgesAndTheSlidesThatChangeAlone) {
    Show(40);
    Sweep(50, 50);
    std::vector<Box> damaged;
    const ScopedConnection listens = sheet->Damaged.connect([&](const Box& part) { damaged.push_back(part); });
    window.MouseTo(60, 50);
    const std::vector<Box> edges{{2, 2, 48, 1}, {2, 49, 48, 1}, {2, 2, 1, 48}, {49, 2, 1, 48},
                                 {2, 2, 58, 1}, {2, 49, 58, 1}, {2, 2, 1, 48}, {59, 2, 1, 48}};
    EXPECT_EQ(damaged, edges);
    damaged.clear();
    window.MouseTo(150, 50);
    damaged.erase(damaged.begin(), damaged.begin() + 8);
    const Box turned = sheet->Diapo.Item(1)->Bounds();
    EXPECT_FALSE(damaged.empty());
    for (const Box& part : damaged) EXPECT_EQ(part, turned);
    LetGo(150, 50);
}

TEST_F(BandTest, TheGroundsEventsComeInOrder) {
    Show(40);
    Sweep(50, 50);
    LetGo(kGroundX, kGroundY);
    EXPECT_EQ(Heard({"host", "capture", "release-capture", "yield"}),
              "capture 1\n"
              "host MouseDown 1 at 2,2\n"
              "yield\n"
              "host MouseMove 1 at 50,50\n"
              "release-capture\n"
              "host MouseUp 1 at 2,2\n"
              "host BackgroundClick 1\n");
}

TEST_F(BandTest, ADoubleClickOnTheGroundIsToldWithItsButton) {
    Show(40);
    window.DoubleClick(kGroundX, kGroundY, headless::kRightButton);
    EXPECT_THAT(Heard(), testing::HasSubstr("host BackgroundClick 2\nhost BackgroundDblClick 2\nhost MouseUp 2"));
}

TEST_F(BandTest, AGroundPlaceIsToldInTheContainersScale) {
    Make(window.Ambient(ScaleMode::Twips));
    Show(40);
    window.Click(kGroundX, kGroundY);
    EXPECT_THAT(Heard(), testing::StartsWith("host MouseDown 1 at 30,30\n"));
}

TEST_F(BandTest, NoBandRunsWhereOneSlideOnlyMayBeSelected) {
    Show(40);
    sheet->SetSelectionMultiple(false);
    Sweep(150, 50);
    EXPECT_FALSE(sheet->SelRect.Visible());
    EXPECT_EQ(States(), ".........");
    EXPECT_EQ(desktop.screen.Captured(), 0);
    LetGo(150, 50);
}

TEST_F(BandTest, NoBandRunsUnderTheRightButton) {
    Show(40);
    window.Press(kGroundX, kGroundY, headless::kRightButton);
    EXPECT_FALSE(sheet->SelRect.Visible());
    window.Release(kGroundX, kGroundY, headless::kRightButton);
}

TEST_F(BandTest, ABandThatIsLetGoWhileItYieldsSweepsNothingMore) {
    Show(40);
    desktop.clock.AtYield(1, [this] { LetGo(150, 50); });
    Sweep(150, 50);
    EXPECT_EQ(States(), ".........");
    for (int32_t k = 0; k < 9; ++k) EXPECT_FALSE(sheet->Diapo.Item(k)->SelectedTmp());
}

TEST_F(BandTest, APressThatIsLetGoWhileItClearsTheSelectionStartsNoBand) {
    Show(40);
    Click(4);
    Heard();
    desktop.clock.AtYield(1, [this] {
        window.MouseTo(kGroundX + 1, kGroundY);
        LetGo(kGroundX + 1, kGroundY);
    });
    window.Press(kGroundX, kGroundY);
    EXPECT_EQ(Heard(),
              "host TraitementFeedBack 1/1\n"
              "host MouseDown 1 at 2,2\n"
              "host MouseUp 1 at 3,2\n"
              "host BackgroundClick 1\n");
    EXPECT_EQ(desktop.screen.Captured(), 0);
    EXPECT_FALSE(sheet->SelRect.Visible());
    window.MouseTo(150, 50);
    EXPECT_EQ(States(), ".........");
}

TEST_F(BandTest, TheNextPressStartsABandAgainEvenWhenItComesInMeanwhile) {
    Show(40);
    Click(4);
    desktop.clock.AtYield(1, [this] {
        LetGo(kGroundX, kGroundY);
        desktop.clock.Advance(1000);
        window.Press(kGroundX, kGroundY);
    });
    window.Press(kGroundX, kGroundY);
    EXPECT_NE(desktop.screen.Captured(), 0);
    window.MouseTo(150, 50);
    EXPECT_EQ(States(), "ss.......");
    LetGo(150, 50);
    EXPECT_EQ(desktop.screen.Captured(), 0);
}

TEST_F(BandTest, ASheetWhoseFirstSlideIsHiddenHasNoneToSweep) {
    Show(40);
    sheet->Diapo.Item(0)->SetVisible(false);
    Sweep(150, 150);
    EXPECT_EQ(States(), ".........");
    LetGo(150, 150);
}

TEST_F(BandTest, AFailureAtAPressIsReportedWithItsArguments) {
    Show(40);
    sheet->Terminate();
    window.Press(kGroundX, kGroundY);
    window.Release(kGroundX, kGroundY);
    EXPECT_THAT(Heard(), testing::StartsWith("host Error 91 Vorlane UserControl_MouseDown DpCnt=9 - 1 - 0 - 2 - 2\n"));
}

// --- Scrolling ---

TEST_F(BandTest, AtTheBottomTheSheetScrollsOnByARowForEachMove) {
    Show(40);
    Sweep(150, 178);
    EXPECT_EQ(sheet->VScroll.Value(), 3);
    EXPECT_EQ(sheet->SelRect.Top(), kGroundY - 81) << "the anchor goes with the slides";
    window.MouseTo(151, 178);
    EXPECT_EQ(sheet->VScroll.Value(), 6);
    LetGo(151, 178);
}

TEST_F(BandTest, SlidesThatScrollIntoTheBandAreSweptWithTheirItems) {
    Show(40);
    Sweep(150, 150);
    EXPECT_EQ(States(), "ss.ss....");
    window.MouseTo(150, 178);
    EXPECT_EQ(States(), "ss....ss.") << "before the next move";
    window.MouseTo(150, 160);
    EXPECT_EQ(SelectedItems(), "0 1 3 4 6 7");
    LetGo(150, 160);
    EXPECT_EQ(SelectedItems(), "0 1 3 4 6 7");
}

TEST_F(BandTest, AnItemSelectedBeforeThatScrollsIntoTheBandIsSelectedWhenTheBandHasLeft) {
    Show(40);
    sheet->LstInterne.SetSelected(9, true);
    Sweep(150, 178, kCtrl);
    ASSERT_EQ(sheet->VScroll.Value(), 3);
    EXPECT_TRUE(sheet->LstInterne.Selected(9));
    EXPECT_TRUE(sheet->LstInterne.Selected(10));
    window.MouseTo(150, 20, kCtrl);
    EXPECT_TRUE(sheet->LstInterne.Selected(9));
    EXPECT_FALSE(sheet->LstInterne.Selected(10));
    LetGo(150, 20);
    ExpectSlidesAgreeWithList();
}

TEST_F(BandTest, AtTheTopTheSheetScrollsBackByARow) {
    Show(40);
    sheet->VScroll.SetValue(12);
    window.Press(108, 164);
    window.MouseTo(150, 120);
    EXPECT_EQ(States(), "....s....");
    window.MouseTo(150, 3);
    EXPECT_EQ(sheet->VScroll.Value(), 9);
    EXPECT_EQ(sheet->SelRect.Bounds(), (Box{108, 3, 42, 242}));
    window.MouseTo(150, 20);
    EXPECT_EQ(SelectedItems(), "10 13 16") << "what the band spans now";
    LetGo(150, 20);
    ExpectSlidesAgreeWithList();
}

TEST_F(BandTest, AtTheTopBehindAnInsertionMarkTheSelectionBeginsAnew) {
    Show(40);
    sheet->VScroll.SetValue(12);
    sheet->ImgDrag.SetTop(-80);
    sheet->LstInterne.SetSelected(30, true);
    window.Press(108, 160, headless::kLeftButton, kCtrl);
    window.MouseTo(150, 3, kCtrl);
    EXPECT_FALSE(sheet->LstInterne.Selected(30));
    LetGo(150, 3);
    ExpectSlidesAgreeWithList();
}

TEST_F(BandTest, AtTheListsTopNothingScrolls) {
    Show(40);
    window.Press(108, 160);
    window.MouseTo(150, 3);
    EXPECT_EQ(sheet->VScroll.Value(), 0);
    LetGo(150, 3);
}

TEST_F(BandTest, AMoveWhileTheBandScrollsIsToldAndDoesNothing) {
    Show(40);
    window.Press(kGroundX, kGroundY);
    Heard();
    desktop.clock.AtYield(1, [this] { window.MouseTo(150, 178); });
    window.MouseTo(150, 178);
    EXPECT_EQ(sheet->VScroll.Value(), 3) << "one step, not two";
    EXPECT_THAT(Heard(), testing::HasSubstr("MouseMove"));
    LetGo(150, 178);
}

class SidewaysBandTest : public BandTest {
protected:
    void ShowSideways(int32_t items) {
        PropertyBag bag;
        bag.SetValue("ScrollDirection", int64_t{1});
        Start(bag);
        AddItems(0, items - 1);
        sheet->StartLecture();
        desktop.trace.Clear();
    }
};

TEST_F(SidewaysBandTest, AtTheRightTheSheetScrollsOnByASlide) {
    ShowSideways(20);
    window.Press(kGroundX, kGroundY);
    window.MouseTo(343, 50);
    EXPECT_EQ(sheet->VScroll.Value(), 1);
    EXPECT_LT(sheet->SelRect.Left(), kGroundX);
    LetGo(343, 50);
    ExpectSlidesAgreeWithList();
}

TEST_F(SidewaysBandTest, ABandThatIsLetGoWhileItScrollsGoesNoFurther) {
    ShowSideways(20);
    window.Press(kGroundX, kGroundY);
    desktop.clock.AtYield(1, [this] { LetGo(343, 50); });
    window.MouseTo(343, 50);
    EXPECT_EQ(sheet->VScroll.Value(), 0);
    EXPECT_EQ(SelectedItems(), "");
    for (int32_t k = 0; k < sheet->Diapo.Count(); ++k) EXPECT_FALSE(sheet->Diapo.Item(k)->SelectedTmp());
}

TEST_F(SidewaysBandTest, AtTheLeftTheItemBeforeTheFirstSlideIsTakenOrDroppedByTheInsertionMarksPlace) {
    ShowSideways(20);
    sheet->VScroll.SetValue(5);
    window.Press(320, 150);
    window.MouseTo(2, 160);
    EXPECT_EQ(sheet->VScroll.Value(), 4);
    EXPECT_TRUE(sheet->LstInterne.Selected(4));
    sheet->ImgDrag.SetLeft(-40);
    sheet->LstInterne.SetSelected(3, true);
    window.MouseTo(2, 161);
    EXPECT_EQ(sheet->VScroll.Value(), 3);
    EXPECT_FALSE(sheet->LstInterne.Selected(3));
    LetGo(2, 161);
    ExpectSlidesAgreeWithList();
}

// --- The arithmetic ---

TEST(BandArithmeticTest, ABandGrowsFromItsAnchorEitherWay) {
    EXPECT_EQ(BandBetween(10, 20, 30, 25), (Box{10, 20, 20, 5}));
    EXPECT_EQ(BandBetween(10, 20, 4, 2), (Box{4, 2, 6, 18}));
    EXPECT_EQ(BandBetween(10, 20, 10, 20), (Box{10, 20, 0, 0}));
    EXPECT_THROW(BandBetween(0, 0, 1e12F, 0), Failure);
}

TEST(BandArithmeticTest, AZoneIsTheMarginInsideAndAllBeyond) {
    BandZone zone{{100, 200, 500, 600}, 5, true, true, true};
    EXPECT_EQ(SideUnder(zone, {300, 204}), BandSide::Top);
    EXPECT_EQ(SideUnder(zone, {300, 205}), BandSide::None);
    EXPECT_EQ(SideUnder(zone, {300, -50}), BandSide::Top);
    EXPECT_EQ(SideUnder(zone, {300, 595}), BandSide::None);
    EXPECT_EQ(SideUnder(zone, {300, 596}), BandSide::Bottom);
    EXPECT_EQ(SideUnder(zone, {101, 300}), BandSide::None);
    zone.Vertical = false;
    EXPECT_EQ(SideUnder(zone, {101, 300}), BandSide::Left);
    EXPECT_EQ(SideUnder(zone, {499, 300}), BandSide::Right);
    zone.MayScrollBack = false;
    EXPECT_EQ(SideUnder(zone, {101, 300}), BandSide::None);
}

}  // namespace
}  // namespace vorlane
