// The selection of list and slides: what clicks make of it, and the operations on the whole list.
#include "tests/interaction/gesturefixture.h"
#include "tests/sheet/vectorlistbox.h"

#include <stdexcept>

namespace vorlane {
namespace {

using headless::kCtrl;
using headless::kShift;

class SelectionTest : public GestureTest {
protected:
    // A list of the host's, without the library's own short ways.
    VectorListBox hostList{77};

    void ShowHostList(int32_t items) {
        Start();
        for (int32_t n = 0; n < items; ++n) hostList.AddItem("\t" + File(n));
        sheet->InitListe(ListeModeType::lmList, &hostList);
        sheet->StartLecture();
        desktop.trace.Clear();
    }

    // A sheet whose host does not ask for progress.
    void ShowUnwatched(int32_t items) {
        sheet = std::make_unique<Vorlane>(desktop.Roles(), window.Ambient());
        Show(items);
    }
};

// --- Clicks ---

TEST_F(SelectionTest, AClickIsToldInTheOrderDownUpClick) {
    Show(40);
    Click(4);
    EXPECT_EQ(Heard({"host", "yield"}),
              "yield\n"
              "host MouseDown 1 at 161,96\n"
              "host MouseUp 1 at 161,96\n"
              "host Click 4 004.jpg 004.jpg button 1\n");
}

TEST_F(SelectionTest, ADoubleClickIsToldInPlaceOfTheSecondPress) {
    Show(40);
    const Point place = InSlide(4);
    window.DoubleClick(static_cast<float>(place.X), static_cast<float>(place.Y));
    EXPECT_EQ(Heard(),
              "host MouseDown 1 at 161,96\n"
              "host MouseUp 1 at 161,96\n"
              "host Click 4 004.jpg 004.jpg button 1\n"
              "host DblClick 4 004.jpg 004.jpg button 1\n"
              "host MouseUp 1 at 161,96\n");
    EXPECT_EQ(States(), "....C....");
}

TEST_F(SelectionTest, ADoubleClickOnTheOnlyOneLeftKeepsIt) {
    Show(40);
    Click(4);
    Click(6, kCtrl);
    Click(4, kCtrl);
    const Point place = InSlide(6);
    window.DoubleClick(static_cast<float>(place.X), static_cast<float>(place.Y));
    EXPECT_EQ(States(), "......C..");
}

TEST_F(SelectionTest, APlaceOnASlideIsToldInTheContainersScale) {
    Make(window.Ambient(ScaleMode::Twips));
    Show(40);
    Click(4);
    EXPECT_THAT(Heard(), testing::StartsWith("host MouseDown 1 at 2415,1440\n"));
}

TEST_F(SelectionTest, ShiftClickWithAnchorAtItsStartSelectsFromTheFirstItem) {
    Show(40);
    sheet->VScroll.SetValue(12);
    Click(2, kShift);
    EXPECT_EQ(SelectedItems(), "0 1 2 3 4 5 6 7 8 9 10 11 12 13 14");
}

TEST_F(SelectionTest, ARangeReachesBeyondThePool) {
    Show(40);
    Click(1);
    sheet->VScroll.SetValue(21);
    Click(3, kShift);
    EXPECT_EQ(sheet->CountSelected(), 24);
    EXPECT_EQ(States(), "sssC.....");
    sheet->VScroll.SetValue(0);
    EXPECT_EQ(States(), ".ssssssss");
}

TEST_F(SelectionTest, ARangeFromAnAnchorBehindTheListsEndTakesWhatIsThere) {
    Show(12);
    sheet->VScroll.SetValue(3);
    Click(8);
    EXPECT_EQ(SelectedItems(), "11");
    while (sheet->LstInterne.ListCount() > 9) sheet->LstInterne.RemoveItem(9);
    sheet->StartLecture();
    Click(6, kShift);
    EXPECT_EQ(SelectedItems(), "6 7 8");
    EXPECT_EQ(States(), "......Css");
}

TEST_F(SelectionTest, APlainClickDropsASelectionThatIsNotInSight) {
    Show(40);
    Click(4);
    sheet->VScroll.SetValue(30);
    Click(2);
    EXPECT_EQ(SelectedItems(), "32");
    sheet->VScroll.SetValue(0);
    EXPECT_EQ(States(), ".........");
}

TEST_F(SelectionTest, APlainClickDropsTheOneSlideThatABandHasSelected) {
    Show(40);
    sheet->LstInterne.SetSelected(3, true);
    sheet->StartLecture();
    EXPECT_EQ(States(), "...s.....");
    Click(5);
    EXPECT_EQ(States(), ".....C...");
}

TEST_F(SelectionTest, TheCurrentSlideKeepsItsMarkWhenItScrollsOutAndBack) {
    Show(40);
    Click(4);
    Click(5, kCtrl);
    sheet->VScroll.SetValue(30);
    sheet->VScroll.SetValue(3);
    EXPECT_EQ(States(), ".sC......");
    Click(7, kCtrl);
    EXPECT_EQ(States(), ".ss....C.");
}

TEST_F(SelectionTest, APressThatIsHeldOverOneThatYieldsIsTheOnlyOneHandled) {
    Show(40);
    desktop.clock.AtYield(1, [this] {
        Press(6);
        Release(6);
    });
    Click(4);
    EXPECT_EQ(States(), "....C....") << "a press during the yield of another is not handled";
    EXPECT_THAT(Heard(), testing::Not(testing::HasSubstr("MouseDown 1 at 51")));
}

TEST_F(SelectionTest, AMoveDuringAPressIsNotTold) {
    Show(40);
    desktop.clock.AtYield(1, [this] { window.MouseTo(161, 98); });
    Click(4);
    EXPECT_THAT(Heard(), testing::Not(testing::HasSubstr("MouseMove")));
}

TEST_F(SelectionTest, AHostThatThrowsAtAPressIsForgottenAndTheNextPressWorks) {
    Show(40);
    onMouseDown = [] { throw std::runtime_error("host"); };
    Click(4);
    onMouseDown = nullptr;
    Click(6);
    EXPECT_EQ(States(), "......C..");
    EXPECT_THAT(Heard(), testing::Not(testing::HasSubstr("Error")));
}

TEST_F(SelectionTest, AHostThatClearsTheSheetAtAPressLeavesNothingSelected) {
    Show(40);
    onMouseDown = [this] { sheet->Clear(); };
    window.Click(161, 96);
    EXPECT_EQ(sheet->Diapo.Count(), 1);
    EXPECT_FALSE(sheet->Diapo.Item(0)->Selected());
    EXPECT_THAT(Heard(), testing::Not(testing::HasSubstr("Error")));
}

TEST_F(SelectionTest, ASlideWithoutAnItemIsNotSelected) {
    Start();
    sheet->Diapo.Item(0)->SetVisible(true);
    Click(0);
    EXPECT_EQ(States(), "-");
    EXPECT_THAT(Heard(), testing::HasSubstr("host MouseDown 1"));
}

TEST_F(SelectionTest, AHostsListIsKeptInStep) {
    ShowHostList(40);
    Click(4);
    Click(7, kShift);
    Click(5, kCtrl);
    EXPECT_EQ(States(), "....s.ss.");
    EXPECT_EQ(SelectedItems(), "4 6 7");
    Click(2);
    EXPECT_EQ(SelectedItems(), "2");
}

TEST_F(SelectionTest, AListThatCannotTellItsSelectionKeepsIt) {
    ShowHostList(40);
    Click(4);
    hostList.mute = true;
    Click(6);
    EXPECT_TRUE(hostList.Selected(4));
    EXPECT_TRUE(hostList.Selected(6));
    EXPECT_EQ(SelectedItems(), "");
}

// --- The current slide, set ---

TEST_F(SelectionTest, SettingCurrentDiapoPlaysAClickWithoutAClickEvent) {
    Show(40);
    sheet->SetCurrentDiapo(4);
    EXPECT_EQ(States(), "....C....");
    EXPECT_EQ(Heard(), "host MouseDown 1 at 119,92\nhost MouseUp 1 at 119,92\n");
    sheet->SetCurrentDiapo(6);
    EXPECT_EQ(States(), "......C..");
}

TEST_F(SelectionTest, SettingCurrentDiapoToTheCurrentSlideSelectsItAnew) {
    Show(40);
    Click(4);
    Click(6, kCtrl);
    sheet->SetCurrentDiapo(6);
    EXPECT_EQ(States(), "......C..");
}

TEST_F(SelectionTest, SettingCurrentDiapoBeyondTheSlidesDoesNothing) {
    Show(40);
    Click(4);
    Heard();
    sheet->SetCurrentDiapo(9);
    sheet->SetCurrentDiapo(-1);
    EXPECT_EQ(States(), "....C....");
    EXPECT_EQ(Heard(), "");
}

TEST_F(SelectionTest, SettingCurrentDiapoReadsTheKeysThatAreDown) {
    Show(40);
    Click(4);
    desktop.keyboard.Set(16, true);
    sheet->SetCurrentDiapo(6);
    desktop.keyboard.Set(16, false);
    EXPECT_EQ(States(), "....ssC..") << "Shift makes a range of it";
}

TEST_F(SelectionTest, TheKeyboardTellsCtrlAndShiftNotTheEvent) {
    Show(40);
    const auto click = [this](Point place, int16_t told) {
        desktop.clock.Advance(1000);
        window.Router().MouseDown(headless::kLeftButton, told, static_cast<float>(place.X),
                                  static_cast<float>(place.Y));
        window.Router().MouseUp(headless::kLeftButton, told, static_cast<float>(place.X), static_cast<float>(place.Y));
        return SelectedItems();
    };
    const Point ground{2, 2};
    Click(4);
    for (const int32_t key : {16, 17}) {
        desktop.keyboard.Set(key, true);
        EXPECT_EQ(click(ground, kNoKeys), "4") << "on the ground, with the key " << key;
        desktop.keyboard.Set(key, false);
    }
    desktop.keyboard.Set(17, true);
    EXPECT_EQ(click(InSlide(6), kNoKeys), "4 6");
    desktop.keyboard.Set(17, false);
    EXPECT_EQ(click(InSlide(2), kCtrl), "2");
    EXPECT_EQ(click(InSlide(5), kShift), "5");
    EXPECT_EQ(click(ground, kCtrl | kShift), "");
}

TEST_F(SelectionTest, SettingSelectedTakesTheMarkFromAnother) {
    Show(40);
    sheet->SetSelected(2, true);
    sheet->SetSelected(4, true);
    EXPECT_EQ(States(), "..s.C....");
    sheet->SetSelected(2, false);
    EXPECT_EQ(States(), "....s....") << "no slide is current then";
}

TEST_F(SelectionTest, SettingSelectedOfASlideWithoutAnItemFailsAndChangesNothing) {
    Start();
    EXPECT_THROW(sheet->SetSelected(0, true), Failure);
    EXPECT_EQ(States(), "-");
    EXPECT_EQ(sheet->CurrentDiapo(), -1);
}

// --- The whole list ---

TEST_F(SelectionTest, SelectAllTellsItsProgress) {
    Show(3);
    Click(1);
    Heard();
    sheet->SelectAll();
    EXPECT_EQ(Heard({"host", "yield", "pointer"}),
              "yield\n"
              "pointer 11\n"
              "host TraitementFeedBack 1/3\n"
              "host TraitementFeedBack 2/3\n"
              "host TraitementFeedBack 3/3\n"
              "pointer 0\n");
    EXPECT_EQ(States(), "sss");
    EXPECT_EQ(sheet->CurrentDiapo(), -1);
}

TEST_F(SelectionTest, SelectAllReachesItemsWithoutASlide) {
    Show(40);
    sheet->SelectAll();
    EXPECT_EQ(sheet->CountSelected(), 40);
    sheet->VScroll.SetValue(21);
    EXPECT_EQ(States(), "sssssssss");
}

TEST_F(SelectionTest, SelectInvertTurnsEachItem) {
    Show(12);
    Click(1);
    Click(3, kCtrl);
    sheet->SelectInvert();
    EXPECT_EQ(States(), "s.s.sssss");
    EXPECT_EQ(SelectedItems(), "0 2 4 5 6 7 8 9 10 11");
    EXPECT_THAT(Heard(), testing::EndsWith("host TraitementFeedBack 12/12\n"));
}

TEST_F(SelectionTest, SelectedClearTellsItsProgressByTheSelectedItems) {
    Show(12);
    Click(1);
    Click(3, kShift);
    Heard();
    sheet->SelectedClear();
    EXPECT_EQ(Heard({"host", "yield"}),
              "yield\n"
              "host TraitementFeedBack 1/3\n"
              "host TraitementFeedBack 2/3\n"
              "host TraitementFeedBack 3/3\n");
    EXPECT_EQ(States(), ".........");
}

TEST_F(SelectionTest, SelectedClearWithAnExceptedSlideStillLeavesNoneCurrent) {
    Show(40);
    Click(2);
    Click(5, kCtrl);
    sheet->SelectedClear(5);
    EXPECT_EQ(SelectedItems(), "5");
    EXPECT_TRUE(sheet->Selected(5));
    desktop.keyboard.Set(17, false);
    sheet->SetCurrentDiapo(4);
    EXPECT_EQ(States(), "....C....") << "a click";
}

TEST_F(SelectionTest, WithoutAListenerTheSameComesOut) {
    ShowUnwatched(40);
    sheet->SelectAll();
    EXPECT_EQ(sheet->CountSelected(), 40);
    EXPECT_EQ(States(), "sssssssss");
    sheet->SelectedClear(5);
    EXPECT_EQ(SelectedItems(), "5");
    EXPECT_EQ(States(), ".....s...");
    sheet->SelectInvert();
    EXPECT_EQ(sheet->CountSelected(), 39);
    EXPECT_EQ(States(), "sssss.sss");
    sheet->SelectedClear();
    EXPECT_EQ(sheet->CountSelected(), 0);
    EXPECT_EQ(States(), ".........");
}

TEST_F(SelectionTest, AnEmptySheetHasNothingToSelect) {
    Start();
    sheet->SelectAll();
    sheet->SelectInvert();
    EXPECT_FALSE(sheet->Diapo.Item(0)->Selected());
    EXPECT_EQ(SelectedItems(), "");
    EXPECT_EQ(Heard(), "");
}

TEST_F(SelectionTest, AFailureInsideIsReportedWithTheNumberOfSlides) {
    Show(40);
    sheet->Terminate();
    sheet->SelectAll();
    sheet->SelectInvert();
    sheet->SelectedClear();
    sheet->SelectedClear(3);
    EXPECT_EQ(Heard(),
              "host Error 91 Vorlane SelectAll DpCnt=9\n"
              "host Error 91 Vorlane SelectInvert DpCnt=9\n"
              "host Error 91 Vorlane SelectedClear DpCnt=9 - -1\n"
              "host Error 91 Vorlane SelectedClear DpCnt=9 - 3\n");
    EXPECT_EQ(desktop.screen.MousePointer(), 0);
}

TEST_F(SelectionTest, AHostThatThrowsAtProgressEndsTheOperationWithAnError) {
    Show(12);
    onFeedBack = [](int32_t value) {
        if (value == 4) throw std::runtime_error("host");
    };
    sheet->SelectAll();
    EXPECT_EQ(sheet->CountSelected(), 4);
    EXPECT_THAT(Heard(), testing::HasSubstr("Vorlane SelectAll DpCnt=9"));
    EXPECT_EQ(desktop.screen.MousePointer(), 0);
}

}  // namespace
}  // namespace vorlane
