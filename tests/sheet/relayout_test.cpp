// Laying the slides out again.
#include "tests/sheet/sheetfixture.h"

namespace vorlane {
namespace {

class RelayoutTest : public SheetTest {};

// --- Resizing ---

TEST_F(RelayoutTest, AResizeThatChangesOnlyTheGapsIsDoneAtOnce) {
    Show(9);
    window.Resize(kWidth + 30, kHeight);
    EXPECT_EQ(Place(0), "12,5");
    EXPECT_EQ(Place(1), "128,5");
    EXPECT_EQ(desktop.clock.RunningTimers(), 0);
    EXPECT_THAT(Heard(), testing::StartsWith("host DisplayStart\nhost Added 0 000.jpg\n"));
    ExpectSlidesAgreeWithList();
}

TEST_F(RelayoutTest, WithoutSpreadingAResizeThatKeepsTheCountsMovesNothing) {
    Show(9);
    sheet->SetMargeDiapoAutoAdjust(false);
    desktop.trace.Clear();
    window.Resize(kWidth + 30, kHeight);
    EXPECT_EQ(Place(1), "111,5");
    EXPECT_EQ(Heard(), "");
}

TEST_F(RelayoutTest, AResizeThatChangesThePoolWaitsForTheTimer) {
    Show(40);
    window.Resize(450, kHeight);
    EXPECT_EQ(sheet->CountDiapo(), 12);
    EXPECT_EQ(sheet->Diapo.Count(), 9);
    EXPECT_EQ(Heard(), "");
    desktop.clock.Advance(1);
    EXPECT_EQ(Slides(), "0 1 2 3 4 5 6 7 8 9 10 11");
    EXPECT_EQ(Place(4), "5,86");
    EXPECT_FALSE(sheet->TimerResize.Enabled());
    EXPECT_TRUE(sheet->TimerUnload.Enabled());
    desktop.clock.Advance(100);
    EXPECT_FALSE(sheet->TimerUnload.Enabled());
    ExpectSlidesAgreeWithList();
}

TEST_F(RelayoutTest, NewSlidesAreReadOneByOneWithoutBeforeAdd) {
    Show(40);
    window.Resize(450, kHeight);
    desktop.clock.Advance(1);
    EXPECT_THAT(Heard({"host", "load", "redraw"}),
                testing::HasSubstr("host Added 8 008.jpg\nredraw 1 5,167,100,75 320\n"
                                   "host BeforeSetPicture 9 009.jpg\nload /p/009.jpg\nhost Added 9 009.jpg\n"
                                   "redraw 1 111,167,100,75 320\n"));
}

TEST_F(RelayoutTest, APoolThatShrinksHidesItsSurplusFirstAndUnloadsItLater) {
    Show(40);
    window.Resize(240, kHeight);
    desktop.clock.Advance(1);
    EXPECT_EQ(sheet->CountDiapo(), 6);
    EXPECT_EQ(Slides(), "0 1 2 3 4 5 (6) (7) (8)");
    desktop.clock.Advance(99);
    EXPECT_EQ(sheet->Diapo.Count(), 9);
    desktop.clock.Advance(1);
    EXPECT_EQ(Slides(), "0 1 2 3 4 5");
    ExpectSlidesAgreeWithList();
}

TEST_F(RelayoutTest, ManyResizesMakeOneLayout) {
    Show(40);
    for (int32_t width = 350; width <= 450; width += 10) window.Resize(width, kHeight);
    desktop.trace.Clear();
    desktop.clock.Advance(50);
    const std::string heard = Heard();
    EXPECT_EQ(heard.find("DisplayStart"), heard.rfind("DisplayStart"));
    EXPECT_EQ(Slides(), "0 1 2 3 4 5 6 7 8 9 10 11");
}

TEST_F(RelayoutTest, AnEmptySheetTakesAResizeWithoutATimer) {
    Start();
    window.Resize(450, kHeight);
    EXPECT_EQ(sheet->CountDiapo(), 12);
    EXPECT_EQ(desktop.clock.RunningTimers(), 0);
    EXPECT_EQ(Heard(), "");
}

TEST_F(RelayoutTest, BeforeTheSheetComesToTheScreenAResizeOnlyCounts) {
    sheet->ReadProperties({});
    sheet->Move(0, 0, kWidth, kHeight);
    AddItems(0, 39);
    sheet->StartLecture();
    sheet->Move(0, 0, 450, kHeight);
    EXPECT_EQ(sheet->CountDiapo(), 12);
    EXPECT_FALSE(sheet->TimerResize.Enabled());
    sheet->Show();
    sheet->Move(0, 0, kWidth, kHeight);
    EXPECT_TRUE(sheet->TimerResize.Enabled());
    desktop.clock.Advance(200);
}

TEST_F(RelayoutTest, TheListFollowsTheSheetsWidth) {
    Start();
    EXPECT_EQ(sheet->LstInterne.Width(), kWidth);
    window.Resize(450, kHeight);
    EXPECT_EQ(sheet->LstInterne.Width(), 450);
}

TEST_F(RelayoutTest, AtTheListsEndTheBarGoesBackWhenAWholeColumnIsFree) {
    Show(40);
    sheet->VScroll.SetValue(34);
    ASSERT_EQ(sheet->Diapo.Count(), 6);
    window.Resize(450, kHeight);
    desktop.clock.Advance(1);
    EXPECT_THAT(Heard(), testing::Not(testing::HasSubstr("Error")));
    desktop.clock.Advance(200);
    EXPECT_EQ(desktop.clock.RunningTimers(), 0);
    EXPECT_EQ(sheet->VScroll.Value(), 31);
    EXPECT_EQ(Slides(), "31 32 33 34 35 36 37 38 39");
    ExpectSlidesAgreeWithList();
}

TEST_F(RelayoutTest, APoolThatGrowsBeyondTheListShowsAllOfIt) {
    Show(12);
    sheet->VScroll.SetValue(3);
    window.Resize(450, 260);
    desktop.clock.Advance(200);
    ASSERT_GT(sheet->CountDiapo(), 12);
    EXPECT_EQ(Slides(), "0 1 2 3 4 5 6 7 8 9 10 11");
    EXPECT_EQ(desktop.clock.RunningTimers(), 0);
    ExpectSlidesAgreeWithList();
}

// A slide takes 20 ms, and the edge moves by some pixels behind each one.
TEST_F(RelayoutTest, AnEdgeDraggedForTwoSecondsUnderAFillWaitsForOneSlideAtMostAndLeavesTheRightGrid) {
    Start();
    AddItems(0, 399);
    int32_t slides = 0;
    int32_t behind = -1;  // slides shown for a grid that is no more; -1: the grid is right
    int32_t most = 0;
    int32_t moves = 0;
    const auto moveEdge = [&] {
        ++moves;
        window.Resize(345 + 40 * (moves % 9), 180 + 2 * (moves % 100));
    };
    onDisplayStart = [&] { behind = -1; };
    onAdded = [&](int16_t) {
        if (behind >= 0) most = std::max(most, ++behind);
        if (++slides > 100) return;
        desktop.clock.Sleep(20);
        const int16_t shown = sheet->CountDiapo();
        moveEdge();
        if (sheet->CountDiapo() != shown && behind < 0) behind = 0;
        if (slides % 3 == 0) desktop.clock.DoEvents();
    };
    sheet->StartLecture();
    for (int32_t pause = 0; slides <= 100 && pause < 100; ++pause) {
        desktop.clock.Advance(10);
        moveEdge();
    }
    desktop.clock.Advance(500);
    ASSERT_GT(slides, 100);
    EXPECT_LE(most, 1);
    EXPECT_EQ(sheet->Diapo.Count(), sheet->CountDiapo());
    EXPECT_EQ(sheet->Diapo.Item(0)->Value(), 0);
    EXPECT_EQ(sheet->Diapo.Item(sheet->CountDiapo() - 1)->Value(), sheet->CountDiapo() - 1);
    EXPECT_EQ(desktop.clock.RunningTimers(), 0);
    ExpectSlidesAgreeWithList();
}

TEST_F(RelayoutTest, ALayoutAtTheListsEndLeavesTheBarWhereLessThanAColumnOfPlacesIsFree) {
    Show(14);
    sheet->VScroll.SetValue(3);
    window.Resize(450, kHeight);
    desktop.clock.Advance(200);
    ASSERT_EQ(sheet->CountDiapo(), 12);
    EXPECT_EQ(sheet->VScroll.Value(), 3);
    EXPECT_EQ(Slides(), "3 4 5 6 7 8 9 10 11 12 13");
}

TEST_F(RelayoutTest, ANewSlideOfTheCurrentItemBearsItsColour) {
    Show(40);
    sheet->VScroll.SetValue(3);
    sheet->SetCurrentDiapo(8);
    sheet->VScroll.SetValue(0);
    ASSERT_EQ(sheet->CurrentDiapo(), -1);
    window.Resize(450, kHeight);
    desktop.clock.Advance(200);
    ASSERT_EQ(sheet->Diapo.Item(11)->Value(), 11);
    EXPECT_EQ(sheet->CurrentDiapo(), 11);
    ExpectSlidesAgreeWithList();
}

TEST_F(RelayoutTest, AResizeAtTheVeryEndOfALayoutHasALayoutOfItsOwn) {
    Show(40);
    sheet->Events.DisplayEnd.connect([this, done = false]() mutable {
        if (!std::exchange(done, true)) window.Resize(560, kHeight);
    });
    window.Resize(450, kHeight);
    desktop.clock.Advance(200);
    EXPECT_EQ(sheet->CountDiapo(), 15);
    EXPECT_EQ(Slides(), "0 1 2 3 4 5 6 7 8 9 10 11 12 13 14");
    EXPECT_EQ(desktop.clock.RunningTimers(), 0);
}

TEST_F(RelayoutTest, AResizeOfASheetThatHasEndedDoesNothing) {
    Show(40);
    sheet->Terminate();
    window.Resize(450, kHeight);
    EXPECT_EQ(desktop.clock.RunningTimers(), 0);
    EXPECT_EQ(Heard(), "");
}

TEST_F(RelayoutTest, AStoppedLayoutLeavesSlideZeroFreeToLayItselfOut) {
    Show(40);
    onAdded = [this](int16_t index) {
        if (index == 9) window.Resize(560, kHeight);
    };
    window.Resize(450, kHeight);
    desktop.clock.Advance(1);
    ASSERT_TRUE(sheet->TimerResize.Enabled());
    EXPECT_FALSE(sheet->Diapo.Item(0)->NoResize());
    onAdded = nullptr;
    desktop.clock.Advance(200);
}

TEST_F(RelayoutTest, ALayoutThatIsStoppedStartsAgainAtTheNextTick) {
    Show(40);
    window.Resize(450, kHeight);
    onAdded = [this, done = false](int16_t index) mutable {
        if (index == 5 && !std::exchange(done, true)) window.Resize(560, kHeight);
    };
    desktop.clock.Advance(1);
    EXPECT_THAT(Heard(), testing::EndsWith("host Added 5 005.jpg\n")) << "a stopped layout tells no end";
    EXPECT_TRUE(sheet->TimerResize.Enabled());
    desktop.clock.Advance(1);
    EXPECT_EQ(Slides(), "0 1 2 3 4 5 6 7 8 9 10 11 12 13 14");
    EXPECT_FALSE(sheet->TimerResize.Enabled());
    ExpectSlidesAgreeWithList();
}

TEST_F(RelayoutTest, AFillInsideALayoutStopsTheLayout) {
    Show(40);
    onAdded = [this, done = false](int16_t index) mutable {
        if (index == 3 && !std::exchange(done, true)) sheet->StartLecture("", 1020);
    };
    window.Resize(kWidth + 30, kHeight);
    EXPECT_EQ(sheet->Diapo.Item(0)->Value(), 20);
    EXPECT_EQ(sheet->Diapo.Item(8)->Value(), 28);
    ExpectSlidesAgreeWithList();
}

TEST_F(RelayoutTest, WhatAStoppedLayoutHasLeftIsLaidOutByTheTimer) {
    Show(40);
    onAdded = [this, done = false](int16_t index) mutable {
        if (index == 3 && !std::exchange(done, true)) sheet->StartLecture("", 1020);
    };
    window.Resize(kWidth + 30, kHeight);
    EXPECT_EQ(Place(4), "111,86");
    desktop.clock.Advance(1);
    EXPECT_EQ(Place(4), "128,86");
    desktop.clock.Advance(200);
    EXPECT_EQ(desktop.clock.RunningTimers(), 0);
}

TEST_F(RelayoutTest, ALayoutInsideALayoutLeavesNothingToTheTimer) {
    Show(40);
    onAdded = [this, done = false](int16_t index) mutable {
        if (index == 3 && !std::exchange(done, true)) window.Resize(kWidth + 50, kHeight);
    };
    window.Resize(kWidth + 30, kHeight);
    EXPECT_FALSE(sheet->TimerResize.Enabled());
    const std::string nested = Place(1) + " " + Place(8);
    window.Resize(kWidth + 30, kHeight);
    window.Resize(kWidth + 50, kHeight);
    EXPECT_EQ(nested, Place(1) + " " + Place(8)) << "the newer one's";
}

TEST_F(RelayoutTest, ASheetThatEndsInsideALayoutLeavesNoTimer) {
    Show(40);
    onAdded = [this](int16_t index) {
        if (index == 3) sheet->Terminate();
    };
    window.Resize(kWidth + 30, kHeight);
    EXPECT_EQ(desktop.clock.RunningTimers(), 0);
}

TEST_F(RelayoutTest, AThrowInsideALayoutThatIsDoneAtOnceEndsItSilently) {
    Show(40);
    onAdded = [](int16_t) { throw std::runtime_error("no"); };
    window.Resize(kWidth + 30, kHeight);
    EXPECT_EQ(Heard(), "host DisplayStart\nhost Added 0 000.jpg\n");
    EXPECT_EQ(desktop.clock.RunningTimers(), 0);
}

TEST_F(RelayoutTest, ClearInsideALayoutEndsItSilently) {
    Show(40);
    onAdded = [this](int16_t index) {
        if (index == 3) sheet->Clear();
    };
    window.Resize(kWidth + 30, kHeight);
    EXPECT_THAT(Heard(), testing::EndsWith("host Added 3 003.jpg\nhost TLClear\n"));
    EXPECT_EQ(Slides(), "(.)");
}

TEST_F(RelayoutTest, AClearWhileSlideZeroIsBoundLeavesNothingToLayOut) {
    Show(40);
    sheet->Clear();
    AddItems(0, 39);
    onBeforeSetPicture = [this](int16_t index, Picture&) {
        if (index == 0) sheet->Clear();
    };
    sheet->StartLecture();
    EXPECT_EQ(Slides(), "(.)");
    EXPECT_EQ(sheet->Diapo.Item(0)->Picture().Handle(), 0U);
    window.Resize(450, kHeight);
    desktop.clock.Advance(50);
    EXPECT_FALSE(sheet->TimerResize.Enabled());
    EXPECT_EQ(Slides(), "(.)");
}

TEST_F(RelayoutTest, ASheetThatIsClearedBeforeItsLayoutStaysEmpty) {
    Show(40);
    window.Resize(450, kHeight);
    sheet->Clear();
    AddItems(0, 39);
    desktop.trace.Clear();
    desktop.clock.Advance(1);
    EXPECT_EQ(Heard(), "");
    EXPECT_EQ(Slides(), "(.)");
    desktop.clock.Advance(200);
    EXPECT_EQ(desktop.clock.RunningTimers(), 0);
}

TEST_F(RelayoutTest, AThrowInsideALayoutEndsItSilentlyAndTheTimerTriesAgain) {
    Show(40);
    window.Resize(450, kHeight);
    onAdded = [done = false](int16_t index) mutable {
        if (index == 3 && !std::exchange(done, true)) throw std::runtime_error("no");
    };
    desktop.clock.Advance(1);
    EXPECT_THAT(Heard(), testing::EndsWith("host Added 3 003.jpg\n"));
    desktop.clock.Advance(1);
    EXPECT_EQ(sheet->Diapo.Count(), 12);
}

// A tick of the timer while slide 2 is told to have been laid out, in the middle of a change of the slides' size.
class TickTest : public RelayoutTest {
protected:
    void ChangeSizeWithTick(std::function<void()> before) {
        Show(40);
        sheet->TimerResize.SetEnabled(true);
        onAdded = [this, before = std::move(before), done = false](int16_t index) mutable {
            if (index != 2 || std::exchange(done, true)) return;
            before();
            desktop.clock.Sleep(5);
            desktop.clock.DoEvents();
            EXPECT_TRUE(sheet->TimerResize.Enabled()) << "the timer stays on";
        };
        sheet->SetDiapoHeight(70);
        EXPECT_TRUE(sheet->TimerResize.Enabled());
    }
};

TEST_F(TickTest, ATickInsideAResizeLetsALayoutForTheSameGridRun) {
    ChangeSizeWithTick([] {});
    EXPECT_THAT(Heard(),
                testing::EndsWith("host Added 8 008.jpg\nhost DisplayEnd\nhost PropertyChanged DiapoHeight\n"));
    ExpectSlidesAgreeWithList();
}

TEST_F(TickTest, ATickInsideAResizeStopsALayoutWhoseGridNoLongerFits) {
    ChangeSizeWithTick([this] { sheet->SetMargeDiapoMin(40); });
    EXPECT_THAT(Heard(), testing::EndsWith("host Added 2 002.jpg\nhost PropertyChanged MargeDiapoMin\n"
                                           "host PropertyChanged DiapoHeight\n"));
    desktop.clock.Advance(1);
    EXPECT_THAT(Heard(), testing::EndsWith("host Added 8 008.jpg\nhost DisplayEnd\n")) << "the next tick goes on";
    EXPECT_FALSE(sheet->TimerResize.Enabled());
    EXPECT_EQ(Slides(), "0 1 2 3 4 5 6 7 8");
    ExpectSlidesAgreeWithList();
}

TEST_F(TickTest, ATickInsideAResizeTakesBackAStopOnceTheGridFitsAgain) {
    ChangeSizeWithTick([this] {
        sheet->SetMargeDiapoMin(40);
        desktop.clock.Sleep(5);
        desktop.clock.DoEvents();
        sheet->SetMargeDiapoMin(5);
    });
    EXPECT_THAT(Heard(),
                testing::EndsWith("host Added 8 008.jpg\nhost DisplayEnd\nhost PropertyChanged DiapoHeight\n"));
}

// --- The size of the slides ---

TEST_F(RelayoutTest, TheHeightFollowsTheWidth) {
    Show(9);
    sheet->SetDiapoWidth(60);
    EXPECT_EQ(sheet->DiapoWidth(), 60);
    EXPECT_EQ(sheet->DiapoHeight(), 46);
    EXPECT_EQ(sheet->Diapo.Item(8)->Height(), 46);
    EXPECT_THAT(Heard(), testing::EndsWith("host PropertyChanged DiapoWidth\n"));
    ExpectSlidesAgreeWithList();
}

TEST_F(RelayoutTest, TheWidthDoesNotFollowTheHeight) {
    Show(9);
    sheet->SetDiapoHeight(90);
    EXPECT_EQ(sheet->DiapoWidth(), 100);
    EXPECT_EQ(sheet->Diapo.Item(3)->Height(), 90);
    EXPECT_THAT(Heard(), testing::EndsWith("host PropertyChanged DiapoHeight\n"));
}

TEST_F(RelayoutTest, TheSizeThatStandsChangesNothing) {
    Show(9);
    sheet->SetDiapoWidth(100);
    sheet->SetDiapoHeight(75);
    EXPECT_EQ(Heard(), "");
}

TEST_F(RelayoutTest, SmallerSlidesFillALargerPool) {
    Show(40);
    sheet->SetDiapoWidth(60);
    EXPECT_EQ(sheet->CountDiapoX(), 4);
    EXPECT_EQ(sheet->CountDiapoY(), 4) << "the extra row still has the old height";
    EXPECT_EQ(sheet->Diapo.Count(), 16);
    ExpectSlidesAgreeWithList();
    desktop.clock.Advance(100);
    EXPECT_EQ(desktop.clock.RunningTimers(), 0);
}

TEST_F(RelayoutTest, LargerSlidesHideTheSurplusAndUnloadItLater) {
    Show(40);
    sheet->SetDiapoWidth(150);
    EXPECT_EQ(sheet->CountDiapo(), 4);
    EXPECT_EQ(Slides(), "0 1 2 3 (4) (5) (6) (7) (8)");
    desktop.clock.Advance(100);
    EXPECT_EQ(Slides(), "0 1 2 3");
}

TEST_F(RelayoutTest, AnEmptySheetOnlyMovesSlideZeroAndCountsAnew) {
    Start();
    sheet->DiapoSizeChange(true, 60, 40);
    EXPECT_EQ(sheet->DiapoWidth(), 60);
    EXPECT_EQ(sheet->CountDiapoX(), 4);
    EXPECT_EQ(Heard(), "");
}

TEST_F(RelayoutTest, WithoutDimAllOnlySlideZeroIsMoved) {
    Show(9);
    sheet->DiapoSizeChange(false, 98, 74);
    EXPECT_EQ(sheet->Diapo.Item(0)->Width(), 98);
    EXPECT_EQ(sheet->CountDiapo(), 9);
    EXPECT_EQ(sheet->Diapo.Item(5)->Width(), 98) << "the resize that follows lays all of them out";
}

TEST_F(RelayoutTest, AFailingSizeChangeIsReported) {
    Show(9);
    sheet->Terminate();
    sheet->SetMargeDiapoMin(-60);
    sheet->DiapoSizeChange(true, 60, 40);
    EXPECT_THAT(Heard(), testing::HasSubstr("host Error 11 Vorlane DiapoSizeChange DpCnt=9 - -1 - 60 - 40\n"));
}

TEST_F(RelayoutTest, ASizeThatMakesNoGridIsAFailureAndChangesNothing) {
    Show(9);
    const std::string places = Place(0) + " " + Place(4);
    sheet->SetDiapoWidth(-5);
    sheet->SetDiapoHeight(-5);
    EXPECT_EQ(Heard(),
              "host Error 11 Vorlane DiapoSizeChange DpCnt=9 - -1 - -5 - -4\n"
              "host Error 11 Vorlane DiapoSizeChange DpCnt=9 - -1 - 100 - -5\n");
    sheet->SetMargeDiapoMin(0);
    Heard();
    sheet->SetDiapoWidth(1);
    EXPECT_EQ(Heard(), "host Error 6 Vorlane DiapoSizeChange DpCnt=9 - -1 - 1 - 1\n");
    EXPECT_EQ(sheet->DiapoWidth(), 100);
    EXPECT_EQ(sheet->DiapoHeight(), 75);
    EXPECT_EQ(Place(0) + " " + Place(4), places);
    EXPECT_EQ(Slides(), "0 1 2 3 4 5 6 7 8");
}

TEST_F(RelayoutTest, ASizeThatMakesNoGridChangesNothingOfAnEmptySheet) {
    Start();
    sheet->SetDiapoWidth(-5);
    EXPECT_EQ(Heard(), "host Error 11 Vorlane DiapoSizeChange DpCnt=1 - -1 - -5 - -4\n");
    EXPECT_EQ(sheet->DiapoWidth(), 100);
    EXPECT_EQ(sheet->CountDiapo(), 9);
}

// --- In a designer ---

TEST_F(RelayoutTest, ADesignerShowsSampleSlides) {
    Ambient ambient = window.Ambient();
    ambient.UserMode = false;
    Make(ambient);
    window.Host(*sheet);
    desktop.trace.Clear();
    desktop.clock.Advance(1);
    EXPECT_EQ(sheet->Diapo.Count(), 9);
    EXPECT_THAT(Heard(), testing::StartsWith("host DisplayStart\nhost Added 0 \nhost BeforeAdd  \nhost Added 1 \n"));
    EXPECT_TRUE(sheet->Diapo.Item(8)->Visible());
    desktop.clock.Advance(100);
    EXPECT_EQ(desktop.clock.RunningTimers(), 0);
}

TEST_F(RelayoutTest, TheHostMayRefuseFurtherSampleSlides) {
    Ambient ambient = window.Ambient();
    ambient.UserMode = false;
    Make(ambient);
    onBeforeAdd = [this](std::string&, bool& cancel) { cancel = sheet->Diapo.Count() >= 3; };
    window.Host(*sheet);
    desktop.clock.Advance(1);
    EXPECT_EQ(sheet->Diapo.Count(), 3);
}

}  // namespace
}  // namespace vorlane
