// The gauge of a fill.
#include "tests/sheet/sheetfixture.h"

namespace vorlane {
namespace {

class GaugeTest : public SheetTest {
protected:
    std::string Gauge() const {
        return std::to_string(sheet->Jauge.Min()) + " to " + std::to_string(sheet->Jauge.Max()) + ", " +
               std::to_string(sheet->Jauge.Value());
    }
};

TEST_F(GaugeTest, FollowsTheFillInTheLowerRightCorner) {
    Start();
    AddItems(0, 39);
    std::string heard;
    onAdded = [&](int16_t index) {
        EXPECT_TRUE(sheet->Jauge.Visible());
        if (index == 4) heard = Gauge();
    };
    sheet->StartLecture();
    EXPECT_EQ(heard, "0 to 8, 4");
    EXPECT_EQ(Gauge(), "0 to 8, 8");
    EXPECT_FALSE(sheet->Jauge.Visible());
    EXPECT_EQ(sheet->Jauge.Left(), kWidth - 16 - sheet->Jauge.Width()) << "beside the bar";
    EXPECT_EQ(sheet->Jauge.Top(), kHeight - sheet->Jauge.Height());
}

TEST_F(GaugeTest, FollowsALayoutThatMakesSlidesAndNoOther) {
    Show(40);
    std::string heard;
    int32_t shown = 0;
    onAdded = [&](int16_t index) {
        shown += sheet->Jauge.Visible() ? 1 : 0;
        if (index == 10) heard = Gauge();
    };
    window.Resize(450, kHeight);
    desktop.clock.Advance(200);
    EXPECT_EQ(heard, "0 to 13, 10");
    EXPECT_EQ(shown, 12);
    EXPECT_EQ(Gauge(), "0 to 13, 13");
    EXPECT_FALSE(sheet->Jauge.Visible());
    shown = 0;
    window.Resize(240, kHeight);
    desktop.clock.Advance(200);
    EXPECT_EQ(shown, 0);
}

TEST_F(GaugeTest, OfASidewaysSheetStandsAboveTheBar) {
    PropertyBag bag;
    bag.SetValue("ScrollDirection", int64_t{1});
    Start(bag);
    AddItems(0, 39);
    sheet->StartLecture();
    EXPECT_EQ(sheet->Jauge.Left(), kWidth - sheet->Jauge.Width());
    EXPECT_EQ(sheet->Jauge.Top(), kHeight - 16 - sheet->Jauge.Height());
}

TEST_F(GaugeTest, EndsAtTheListsEnd) {
    Start();
    AddItems(0, 3);
    sheet->StartLecture();
    EXPECT_EQ(Gauge(), "0 to 3, 3");
}

TEST_F(GaugeTest, OfARowRunsOverThatRow) {
    Show(40);
    std::string heard;
    onAdded = [&](int16_t) { heard += Gauge() + "; "; };
    sheet->VScroll.SetValue(3);
    EXPECT_EQ(heard, "9 to 11, 9; 9 to 11, 10; 9 to 11, 11; ");
}

TEST_F(GaugeTest, StaysAfterAStoppedFill) {
    Show(40);
    onAdded = [this](int16_t index) {
        if (index == 3) sheet->Clear();
    };
    sheet->StartLecture();
    EXPECT_TRUE(sheet->Jauge.Visible());
}

TEST_F(GaugeTest, StaysAfterAFillThatFails) {
    Show(40);
    onAdded = [](int16_t) { throw failures::TypeMismatch(); };
    sheet->StartLecture();
    EXPECT_TRUE(sheet->Jauge.Visible());
    EXPECT_EQ(desktop.screen.MousePointer(), 0);
}

TEST_F(GaugeTest, NeverShowsWhenItIsNotWanted) {
    Show(40);
    sheet->SetShowJauge(false);
    onAdded = [this](int16_t) { EXPECT_FALSE(sheet->Jauge.Visible()); };
    sheet->StartLecture();
}

TEST_F(GaugeTest, SlidesInStepByStep) {
    Show(3);
    sheet->SetJaugeAnimation(true);
    sheet->Jauge.SetWidth(50);
    desktop.trace.Clear();
    onDisplayStart = [this] {
        const std::string seen = Heard({"redraw", "sleep"});
        EXPECT_THAT(seen, testing::StartsWith("redraw 1 143,181,343,196 320\nsleep 10\n"
                                              "redraw 1 143,180,343,195 320\nsleep 10\n"));
        EXPECT_THAT(seen, testing::EndsWith("redraw 1 143,165,343,180 320\nsleep 10\n"));
        EXPECT_EQ(std::count(seen.begin(), seen.end(), '\n'), 2 * 17);
    };
    sheet->StartLecture();
}

TEST_F(GaugeTest, ThatSlidesInStartsAtZeroWhateverTheLastFillHasLeft) {
    Show(40);
    sheet->VScroll.SetValue(20);
    sheet->SetJaugeAnimation(true);
    ASSERT_EQ(Gauge(), "20 to 28, 28");
    std::string heard;
    onDisplayStart = [&] { heard += Gauge() + "; "; };
    window.Resize(450, kHeight);
    desktop.clock.Advance(300);
    EXPECT_EQ(heard, "0 to 13, 0; ");
}

TEST_F(GaugeTest, SlidesOutStepByStepAndIsHidden) {
    Show(3);
    sheet->SetJaugeAnimation(true);
    desktop.trace.Clear();
    sheet->SetShowJauge(true);
    onAdded = [this](int16_t index) {
        if (index == 2) desktop.trace.Clear();
    };
    sheet->StartLecture();
    const std::string seen = Heard({"redraw", "sleep"});
    EXPECT_THAT(seen, testing::HasSubstr("redraw 1 143,165,343,180 320\nsleep 10\nredraw 1 143,166,343,181 320\n"));
    EXPECT_THAT(seen, testing::EndsWith("redraw 1 143,181,343,196 320\nsleep 10\n"));
    EXPECT_FALSE(sheet->Jauge.Visible());
}

TEST_F(GaugeTest, OfASheetThatHasGrownSlidesOutFromTheBottomOnly) {
    Show(3);
    sheet->SetJaugeAnimation(true);
    onAdded = [this](int16_t index) {
        desktop.trace.Clear();
        if (index == 2) window.Resize(kWidth, kHeight + 5);
    };
    sheet->StartLecture();
    const std::string seen = Heard({"sleep"});
    EXPECT_EQ(std::count(seen.begin(), seen.end(), '\n'), 17);
    EXPECT_FALSE(sheet->Jauge.Visible());
}

TEST_F(GaugeTest, OfANarrowSheetIsAsWideAsTheSheet) {
    window.Resize(120, kHeight);
    Start();
    sheet->SetJaugeAnimation(true);
    AddItems(0, 0);
    sheet->StartLecture();
    EXPECT_EQ(sheet->Jauge.Width(), 120);
}

TEST_F(GaugeTest, ThatStandsAlreadyDoesNotSlideInAgain) {
    Show(40);
    sheet->SetJaugeAnimation(true);
    onAdded = [this](int16_t index) {
        if (index == 3) sheet->Clear();
    };
    sheet->StartLecture();
    ASSERT_TRUE(sheet->Jauge.Visible());
    onAdded = {};
    desktop.trace.Clear();
    onDisplayStart = [this] { EXPECT_EQ(Heard({"sleep"}), ""); };
    sheet->StartLecture();
}

}  // namespace
}  // namespace vorlane
