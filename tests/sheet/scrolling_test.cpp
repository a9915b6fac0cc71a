// Scrolling over the pool of slides.
#include "tests/sheet/sheetfixture.h"

namespace vorlane {
namespace {

class ScrollingTest : public SheetTest {
protected:
    void ShowSideways(int32_t items, int32_t width = kWidth) {
        PropertyBag bag;
        bag.SetValue("ScrollDirection", int64_t{1});
        window.Resize(width, kHeight);
        Start(bag);
        AddItems(0, items - 1);
        sheet->StartLecture();
        desktop.trace.Clear();
    }
};

// --- The bar ---

TEST_F(ScrollingTest, TheBarRunsSoFarThatTheListsEndShowsInTheRowsThatFit) {
    Show(40);
    EXPECT_EQ(sheet->VScroll.Min(), 0);
    EXPECT_EQ(sheet->VScroll.Max(), 3 + 40 - 9);
    EXPECT_EQ(sheet->VScroll.SmallChange(), 3);
    EXPECT_EQ(sheet->VScroll.LargeChange(), 6);
}

TEST_F(ScrollingTest, AListThatFitsHidesTheBarAndClampsItsEnd) {
    Show(4);
    EXPECT_FALSE(sheet->VScroll.Visible());
    EXPECT_EQ(sheet->VScroll.Max(), 0);
}

TEST_F(ScrollingTest, ASidewaysBarStepsByItsOneRow) {
    ShowSideways(40);
    EXPECT_EQ(sheet->CountDiapoX(), 4);
    EXPECT_EQ(sheet->VScroll.SmallChange(), 1);
    EXPECT_EQ(sheet->VScroll.LargeChange(), 3);
    EXPECT_EQ(sheet->VScroll.Max(), 1 + 40 - 4);
}

// --- Steps ---

TEST_F(ScrollingTest, AStepForwardCopiesTheLooksAndReadsOnlyTheNewRow) {
    Show(40);
    sheet->VScroll.SetValue(3);
    EXPECT_EQ(Heard({"host", "load", "pointer"}),
              "pointer 11\npointer 0\npointer 11\n"
              "host DisplayStart\n"
              "host BeforeSetPicture 6 009.jpg\nload /p/009.jpg\nhost Added 6 009.jpg\n"
              "host BeforeSetPicture 7 010.jpg\nload /p/010.jpg\nhost Added 7 010.jpg\n"
              "host BeforeSetPicture 8 011.jpg\nload /p/011.jpg\nhost Added 8 011.jpg\n"
              "pointer 0\n"
              "host DisplayEnd\n"
              "host Scroll 3 from 0\n");
    EXPECT_EQ(Slides(), "3 4 5 6 7 8 9 10 11");
    ExpectSlidesAgreeWithList();
}

TEST_F(ScrollingTest, AStepBackCopiesTheLooksAndReadsOnlyTheNewRow) {
    Show(40);
    sheet->VScroll.SetValue(20);
    desktop.trace.Clear();
    sheet->VScroll.SetValue(17);
    EXPECT_EQ(Slides(), "17 18 19 20 21 22 23 24 25");
    EXPECT_EQ(Heard({"load"}), "load /p/017.jpg\nload /p/018.jpg\nload /p/019.jpg\n");
    ExpectSlidesAgreeWithList();
}

TEST_F(ScrollingTest, TheSlidesKeepTheirPlaces) {
    Show(40);
    sheet->VScroll.SetValue(3);
    EXPECT_EQ(Place(0), "5,5");
    EXPECT_EQ(Place(8), "217,167");
}

TEST_F(ScrollingTest, AStepBackAtTheTopDoesNothing) {
    Show(40);
    sheet->VScroll.SetValue(20);
    sheet->StartLecture();
    sheet->VScroll.SetValue(3);
    sheet->Diapo.Item(0)->SetValue(0);
    desktop.trace.Clear();
    sheet->VScroll.SetValue(1);
    EXPECT_EQ(Heard(), "");
}

TEST_F(ScrollingTest, AStepForwardToTheListsEndUnloadsTheLastRow) {
    Show(12);
    sheet->VScroll.SetValue(3);
    desktop.trace.Clear();
    EXPECT_EQ(sheet->VScroll.Max(), 6);
    sheet->VScroll.SetValue(6);
    EXPECT_EQ(Heard({"host", "pointer"}), "pointer 11\npointer 0\nhost Scroll 6 from 3\n");
    EXPECT_EQ(Slides(), "6 7 8 9 10 11");
    ExpectSlidesAgreeWithList();
}

TEST_F(ScrollingTest, AStepBackWithAMissingRowMakesBlankSlidesFirst) {
    Show(12);
    sheet->VScroll.SetValue(3);
    sheet->VScroll.SetValue(6);
    desktop.trace.Clear();
    sheet->VScroll.SetValue(3);
    EXPECT_THAT(Heard(), testing::StartsWith("host BeforeAdd  \nhost BeforeAdd  \nhost BeforeAdd  \n"
                                             "host DisplayStart\n"));
    EXPECT_EQ(Slides(), "3 4 5 6 7 8 9 10 11");
    EXPECT_EQ(Place(8), "217,167");
    ExpectSlidesAgreeWithList();
}

TEST_F(ScrollingTest, AShortLastRowLeavesAHole) {
    Show(11);
    sheet->VScroll.SetValue(3);
    EXPECT_EQ(Slides(), "3 4 5 6 7 8 9 10");
    ExpectSlidesAgreeWithList();
}

TEST_F(ScrollingTest, AShorterLastStepFillsAnew) {
    Show(14);
    ASSERT_EQ(sheet->VScroll.Max(), 8);
    sheet->VScroll.SetValue(3);
    sheet->VScroll.SetValue(6);
    EXPECT_EQ(Slides(), "6 7 8 9 10 11 12 13");
    sheet->VScroll.SetValue(8);
    EXPECT_EQ(Slides(), "8 9 10 11 12 13");
    ExpectSlidesAgreeWithList();
}

TEST_F(ScrollingTest, AStepToTheTopFromAnUnevenPlaceShowsEachItemOnce) {
    Show(40);
    sheet->StartLecture("", 1002);
    sheet->VScroll.SetValue(0);
    EXPECT_EQ(Slides(), "0 1 2 3 4 5 6 7 8");
    ExpectSlidesAgreeWithList();
}

TEST_F(ScrollingTest, OneRowAloneIsFilledAnewWithoutCopies) {
    window.Resize(kWidth, 5);
    Start();
    ASSERT_EQ(sheet->CountDiapoY(), 1);
    AddItems(0, 19);
    sheet->StartLecture();
    desktop.trace.Clear();
    sheet->VScroll.SetValue(3);
    EXPECT_EQ(Slides(), "3 4 5");
    EXPECT_EQ(Heard({"pointer"}), "pointer 11\npointer 0\n") << "that of the fill";
    sheet->VScroll.SetValue(0);
    EXPECT_EQ(Slides(), "0 1 2");
    ExpectSlidesAgreeWithList();
}

TEST_F(ScrollingTest, ASidewaysStepMovesByOneSlide) {
    ShowSideways(40);
    EXPECT_EQ(Slides(), "0 1 2 3");
    sheet->VScroll.SetValue(1);
    EXPECT_EQ(Slides(), "1 2 3 4");
    EXPECT_EQ(Heard({"load"}), "load /p/004.jpg\n");
    sheet->VScroll.SetValue(0);
    EXPECT_EQ(Slides(), "0 1 2 3");
    ExpectSlidesAgreeWithList();
}

TEST_F(ScrollingTest, AStepAfterThePoolHasShrunkFirstUnloadsTheSurplus) {
    Show(40);
    window.Resize(240, kHeight);
    desktop.clock.Advance(1);
    ASSERT_EQ(Slides(), "0 1 2 3 4 5 (6) (7) (8)");
    sheet->VScroll.SetValue(2);
    EXPECT_EQ(Slides(), "2 3 4 5 6 7");
    ExpectSlidesAgreeWithList();
    desktop.clock.Advance(200);
    EXPECT_EQ(Slides(), "2 3 4 5 6 7");
}

TEST_F(ScrollingTest, TheUsersWheelScrollsOverASlideAndOverTheGround) {
    Show(40);
    window.Wheel(-1, 50, 50);
    EXPECT_EQ(Slides(), "3 4 5 6 7 8 9 10 11");
    window.Wheel(-1, 1, 1);
    EXPECT_EQ(Slides(), "6 7 8 9 10 11 12 13 14");
}

// --- Jumps ---

TEST_F(ScrollingTest, MoreThanARowBindsAllSlidesAnew) {
    Show(40);
    sheet->VScroll.SetValue(4);
    EXPECT_EQ(Slides(), "4 5 6 7 8 9 10 11 12");
    EXPECT_THAT(Heard(), testing::EndsWith("host Added 8 012.jpg\nhost DisplayEnd\nhost Scroll 4 from 0\n"));
    ExpectSlidesAgreeWithList();
}

TEST_F(ScrollingTest, AJumpToTheEndLeavesTheExtraRowEmpty) {
    Show(40);
    sheet->VScroll.SetValue(34);
    EXPECT_EQ(Slides(), "34 35 36 37 38 39");
}

TEST_F(ScrollingTest, TheCurrentSlideMovesWithTheList) {
    Show(40);
    sheet->SetSelected(4, true);
    sheet->VScroll.SetValue(3);
    EXPECT_EQ(sheet->CurrentDiapo(), 1);
    sheet->VScroll.SetValue(6);
    EXPECT_EQ(sheet->CurrentDiapo(), -1) << "it has left the sheet";
    sheet->VScroll.SetValue(3);
    EXPECT_EQ(sheet->CurrentDiapo(), 1) << "and comes back";
    sheet->VScroll.SetValue(30);
    sheet->VScroll.SetValue(0);
    EXPECT_EQ(sheet->CurrentDiapo(), 4);
    ExpectSlidesAgreeWithList();
}

// Where a slide was current, another one that becomes so drops the selection first, whatever key is held.
TEST_F(ScrollingTest, WhereNoSlideIsCurrentAWayBackMakesNoneCurrent) {
    Show(40);
    sheet->VScroll.SetValue(6);
    sheet->LstInterne.SetSelected(30, true);
    sheet->VScroll.SetValue(3);
    desktop.keyboard.Set(17, true);  // Ctrl
    sheet->SetCurrentDiapo(4);
    EXPECT_EQ(sheet->CountSelected(), 2);
    ExpectSlidesAgreeWithList();
}

TEST_F(ScrollingTest, SelectedSlidesKeepTheirColourWhenTheyMove) {
    Show(40);
    sheet->LstInterne.SetSelected(5, true);
    sheet->LstInterne.SetSelected(10, true);
    sheet->StartLecture();
    sheet->VScroll.SetValue(3);
    EXPECT_EQ(sheet->Diapo.Item(2)->BackColor(), 7321083U);
    EXPECT_EQ(sheet->Diapo.Item(7)->BackColor(), 7321083U);
    EXPECT_EQ(sheet->Diapo.Item(5)->BackColor(), sheet->BackColorDiapo());
    ExpectSlidesAgreeWithList();
}

TEST_F(ScrollingTest, AStepMovesTheWholeLookOfASlide) {
    Show(40);
    const auto from = sheet->Diapo.Item(4);
    from->SetCaptionBottom("caption");
    from->SetTag("tag");
    from->SetToolTipText("tip");
    from->SetSelectedTmp(true);
    from->SetHaveSoundMusic(true);
    from->SetHaveInvalidMusic(true);
    from->SetHaveSoundComment(true);
    from->SetHaveInvalidComm(true);
    from->SetHaveTexte(true);
    const Picture shown = from->Picture();
    const Picture comment = from->BtCommentPicture();
    const Picture text = from->BtTextPicture();
    const float commentLeft = from->BtComment.Left();
    ASSERT_NE(comment, text);
    sheet->VScroll.SetValue(3);
    const auto to = sheet->Diapo.Item(1);
    EXPECT_EQ(to->CaptionBottom() + to->Tag() + to->ToolTipText(), "captiontagtip");
    EXPECT_TRUE(to->HaveSoundMusic() && to->BtPlayVisible());
    EXPECT_TRUE(to->SelectedTmp());
    EXPECT_TRUE(to->HaveSoundComment() && to->BtCommentVisible());
    EXPECT_TRUE(to->HaveTexte() && to->BtTextVisible());
    EXPECT_EQ(to->BtCommentPicture(), comment);
    EXPECT_EQ(to->BtTextPicture(), text);
    EXPECT_EQ(to->BtComment.Left(), commentLeft) << "the buttons stand beside each other";
    EXPECT_FALSE(to->HaveInvalidMusic() || to->HaveInvalidComm()) << "these marks stay behind";
    EXPECT_EQ(to->Picture(), shown);
    EXPECT_EQ(to->LblTop.Caption(), "004.jpg");
}

TEST_F(ScrollingTest, AStepReducesOnlyTheNewRowsPictures) {
    Start();
    sheet->SetThumbnail(true);
    for (int32_t n = 0; n < 40; ++n) {
        const std::string name = "/large/" + std::to_string(n) + ".jpg";
        desktop.pictures.Add(name, 900, 600);
        sheet->Add(name, "");
    }
    sheet->StartLecture();
    const Picture shown = sheet->Diapo.Item(4)->Picture();
    const float width = sheet->Diapo.Item(4)->ImageWidth();
    desktop.trace.Clear();
    sheet->VScroll.SetValue(3);
    const std::string resized = Heard({"resize"});
    EXPECT_EQ(std::count(resized.begin(), resized.end(), '\n'), 3) << resized;
    EXPECT_EQ(sheet->Diapo.Item(1)->Picture(), shown);
    EXPECT_EQ(sheet->Diapo.Item(1)->ImageWidth(), width) << "of the whole picture";
}

TEST_F(ScrollingTest, ASubstituteStaysOneWhenItMoves) {
    constexpr float kIcon = 32;
    PropertyBag bag;
    bag.SetValue("DiapoHeight", int64_t{110});  // room for more than an icon
    Start(bag);
    for (int32_t n = 0; n < 40; ++n) {
        desktop.pictures.Add("/p/small" + std::to_string(n) + ".jpg", 32, 32);
        sheet->Add(n == 4 ? "/p/sound.mp3" : "/p/small" + std::to_string(n) + ".jpg", "");
    }
    sheet->StartLecture();
    const auto width = [this](int32_t k) { return sheet->Diapo.Item(k)->Img.Width(); };
    ASSERT_EQ(width(4), kIcon) << "an icon is never enlarged";
    ASSERT_GT(width(1), kIcon) << "a picture of its size is";
    sheet->VScroll.SetValue(3);
    EXPECT_EQ(headless::NameOf(sheet->Diapo.Item(1)->Picture()), "file-sound");
    EXPECT_EQ(width(1), kIcon);
    EXPECT_GT(width(4), kIcon) << "its old place shows a picture";
    sheet->VScroll.SetValue(0);
    EXPECT_EQ(width(4), kIcon);
    EXPECT_GT(width(1), kIcon);
}

TEST_F(ScrollingTest, AStepBackWhoseBlankSlidesAreRefusedKeepsTheSlidesThatThereAre) {
    Show(12);
    sheet->VScroll.SetValue(3);
    sheet->VScroll.SetValue(6);
    onBeforeAdd = [](std::string&, bool& cancel) { cancel = true; };
    sheet->VScroll.SetValue(3);
    EXPECT_EQ(Slides(), "3 4 5 6 7 8");
    ExpectSlidesAgreeWithList();
}

// --- The Scroll event ---

TEST_F(ScrollingTest, AfterAStoppedFillTheNextChangeIsMeasuredFromTheOldPlace) {
    Show(40);
    onAdded = [this, done = false](int16_t index) mutable {
        if (index == 2 && !std::exchange(done, true)) window.Resize(450, kHeight);
    };
    sheet->VScroll.SetValue(20);
    EXPECT_THAT(Heard(), testing::EndsWith("host DisplayEnd\nhost Scroll 20 from 0\n"));
    sheet->VScroll.SetValue(21);
    EXPECT_THAT(Heard(), testing::EndsWith("host Scroll 21 from 0\n"));
}

TEST_F(ScrollingTest, TheHostMayWriteTheOldPlaceButAFillThatEndsWritesItsOwn) {
    Show(40);
    onScroll = [](int32_t& asValue) { asValue = 77; };
    sheet->VScroll.SetValue(20);
    desktop.trace.Clear();
    sheet->VScroll.SetValue(10);
    EXPECT_THAT(Heard(), testing::EndsWith("host Scroll 10 from 20\n"));
}

TEST_F(ScrollingTest, TheChangeToThePlaceThatIsShownDoesNothing) {
    Show(40);
    sheet->VScroll.SetValue(20);
    desktop.trace.Clear();
    sheet->VScroll.SetValue(20);
    EXPECT_EQ(Heard(), "");
}

TEST_F(ScrollingTest, AFailureInTheBarsSetUpLeavesItDeadUntilTheNextOne) {
    Show(40);
    sheet->Terminate();
    EXPECT_NO_THROW(sheet->Add("x", ""));
    sheet->DiapoSizeChange(true, 90, 70);
    EXPECT_THAT(Heard(), testing::HasSubstr("host Error 91 Vorlane InitVScroll DpCnt=9 - 0\n"));
    sheet->VScroll.SetValue(20);
    EXPECT_EQ(Heard(), "");
}

TEST_F(ScrollingTest, SlideZeroShowsTheBarsValueAllTheWayUpFromTheEnd) {
    Show(40);
    sheet->VScroll.SetValue(34);
    while (sheet->VScroll.Value() > 0) {
        sheet->Wheel(1);
        ASSERT_EQ(sheet->Diapo.Item(0)->Value(), sheet->VScroll.Value());
    }
    EXPECT_EQ(Slides(), "0 1 2 3 4 5 6 7 8");
    ExpectSlidesAgreeWithList();
}

TEST_F(ScrollingTest, AStepWithoutAListIsReportedByTheScroll) {
    Show(40);
    sheet->Terminate();
    sheet->VScroll.SetValue(3);
    EXPECT_THAT(Heard(), testing::HasSubstr("host Error 91 Vorlane Scroll DpCnt=9 - 0\n"));
}

TEST_F(ScrollingTest, ACopyFromASlideThatIsGoneIsReportedWithBothPlaces) {
    Show(40);
    sheet->Diapo.Unload(4);
    sheet->VScroll.SetValue(3);
    EXPECT_THAT(Heard(), testing::HasSubstr("host Error 340 Vorlane CopyDiapo DpCnt=8 - 4 - 1\n"));
}

TEST_F(ScrollingTest, AStepOnFromASlideThatStandsBehindTheListDoesNothing) {
    Show(40);
    while (sheet->Diapo.Count() > 6) sheet->Diapo.Unload(sheet->Diapo.UpperBound());
    sheet->Diapo.Item(5)->SetValue(40);
    sheet->VScroll.SetValue(3);
    EXPECT_EQ(Heard(), "");
    EXPECT_EQ(Slides(), "0 1 2 3 4 40");
}

TEST_F(ScrollingTest, ASelectedLookThatMovesOntoTheCurrentSlideTakesItsColour) {
    Show(40);
    sheet->LstInterne.SetSelected(7, true);
    sheet->StartLecture();
    sheet->SetSelected(4, true);
    sheet->VScroll.SetValue(3);
    EXPECT_EQ(sheet->Diapo.Item(1)->BackColor(), sheet->BackColorCurrent()) << "the current slide has moved up";
    EXPECT_EQ(sheet->Diapo.Item(4)->BackColor(), 7321083U) << "and left its place to a selected one";
}

TEST_F(ScrollingTest, AVeryLongJumpBackDoesNotOverflowTheCurrentSlide) {
    Start();
    for (int32_t n = 0; n < 100000; ++n) sheet->LstInterne.AddItem("\t" + File(n % 20));
    sheet->StartLecture();
    sheet->VScroll.SetValue(99000);
    sheet->VScroll.SetValue(0);
    EXPECT_EQ(Slides(), "0 1 2 3 4 5 6 7 8");
    EXPECT_THAT(Heard(), testing::Not(testing::HasSubstr("Error")));
}

}  // namespace
}  // namespace vorlane
