// The display pipeline: from items to slides.
#include "tests/sheet/sheetfixture.h"
#include "tests/sheet/vectorlistbox.h"

namespace vorlane {
namespace {

class DisplayTest : public SheetTest {
protected:
    // The picture that slide k shows.
    std::string Shown(int32_t k) const { return headless::NameOf(sheet->Diapo.Item(k)->Picture()); }
};

TEST_F(DisplayTest, NothingReachesTheScreenBeforeTheFirstFill) {
    Start();
    AddItems(0, 3);
    EXPECT_EQ(Heard(), "");
    EXPECT_EQ(Slides(), "(.)");
}

TEST_F(DisplayTest, AFillMakesTheSlidesOneByOne) {
    Start();
    AddItems(0, 1);
    EXPECT_EQ(sheet->StartLecture(), 0);
    EXPECT_EQ(Heard({"host", "pointer", "load", "redraw"}),
              "pointer 11\n"
              "host DisplayStart\n"
              "host BeforeAdd 000.jpg jpg\n"
              "host BeforeSetPicture 0 000.jpg\n"
              "load /p/000.jpg\n"
              "host Added 0 000.jpg\n"
              "redraw 1 0,0,345,180 257\n"
              "host BeforeAdd 001.jpg jpg\n"
              "host BeforeSetPicture 1 001.jpg\n"
              "load /p/001.jpg\n"
              "host Added 1 001.jpg\n"
              "redraw 1 0,0,345,180 257\n"
              "pointer 0\n"
              "host DisplayEnd\n");
    EXPECT_EQ(Slides(), "0 1");
    ExpectSlidesAgreeWithList();
}

TEST_F(DisplayTest, WithoutAGaugeNothingIsRepaintedBetweenSlides) {
    Start();
    sheet->SetShowJauge(false);
    AddItems(0, 1);
    desktop.trace.Clear();
    sheet->StartLecture();
    EXPECT_EQ(Heard({"redraw"}), "");
}

TEST_F(DisplayTest, AFillTakesAsManyItemsAsThePoolHasSlides) {
    Show(40);
    EXPECT_EQ(Slides(), "0 1 2 3 4 5 6 7 8");
    EXPECT_EQ(sheet->CountAffiché(), 9);
}

TEST_F(DisplayTest, ARefillOfUnchangedSlidesReadsNothing) {
    Show(40);
    sheet->StartLecture();
    std::string expected = "host DisplayStart\n";
    for (int32_t k = 0; k < 9; ++k)
        expected += "host Added " + std::to_string(k) + " 00" + std::to_string(k) + ".jpg\n";
    EXPECT_EQ(Heard({"host", "load"}), expected + "host DisplayEnd\n");
}

TEST_F(DisplayTest, APoolLargerThanTheListLosesItsSurplusSlides) {
    Show(9);
    while (sheet->LstInterne.ListCount() > 4) sheet->LstInterne.RemoveItem(4);
    sheet->StartLecture();
    EXPECT_EQ(Slides(), "0 1 2 3");
}

TEST_F(DisplayTest, AnEmptyListBlanksSlideZeroAndUnloadsTheOthers) {
    Show(9);
    sheet->LstInterne.Clear();
    EXPECT_EQ(sheet->StartLecture(), 0);
    EXPECT_EQ(Heard(), "host DisplayStart\nhost DisplayEnd\n");
    EXPECT_EQ(Slides(), "(.)");
}

TEST_F(DisplayTest, AnEmptyListFromTheStartShowsNothing) {
    Start();
    EXPECT_EQ(sheet->StartLecture(), 0);
    EXPECT_EQ(Heard(), "host DisplayStart\nhost DisplayEnd\n");
    EXPECT_EQ(Slides(), "(.)");
    EXPECT_EQ(sheet->LstInterne.ListIndex(), -1);
}

TEST_F(DisplayTest, AStartBeyondTheEndOfTheListEmptiesTheSheet) {
    Show(40);
    while (sheet->LstInterne.ListCount() > 10) sheet->LstInterne.RemoveItem(10);
    sheet->VScroll.SetValue(20);
    EXPECT_EQ(Slides(), "(.)");
    EXPECT_EQ(Heard(), "host DisplayStart\nhost DisplayEnd\nhost Scroll 20 from 0\n");
}

// --- Where a fill starts ---

TEST_F(DisplayTest, AKeyStartsTheFillAtItsItem) {
    Show(40);
    EXPECT_EQ(sheet->StartLecture("", 1012), 0);
    EXPECT_EQ(Slides(), "12 13 14 15 16 17 18 19 20");
    EXPECT_EQ(sheet->VScroll.Value(), 12);
    EXPECT_EQ(sheet->LstInterne.ListIndex(), 12);
    ExpectSlidesAgreeWithList();
}

TEST_F(DisplayTest, ANameStartsTheFillInAnyCaseOfLetters) {
    Show(40);
    EXPECT_EQ(sheet->StartLecture("/P/017.JPG"), 0);
    EXPECT_EQ(Slides(), "17 18 19 20 21 22 23 24 25");
}

TEST_F(DisplayTest, AKeyComesBeforeAName) {
    Show(40);
    sheet->StartLecture("/p/017.jpg", 1003);
    EXPECT_EQ(sheet->Diapo.Item(0)->Value(), 3);
}

TEST_F(DisplayTest, AnItemTooNearTheEndIsShownWhereTheBarStops) {
    Show(40);
    EXPECT_EQ(sheet->VScroll.Max(), 34);
    EXPECT_EQ(sheet->StartLecture("", 1038), 4);
    EXPECT_EQ(Slides(), "34 35 36 37 38 39");
    EXPECT_EQ(sheet->VScroll.Value(), 34);
    EXPECT_EQ(sheet->Diapo.Item(4)->Value(), 38);
}

TEST_F(DisplayTest, AnItemOfAListThatFitsIsFoundWhereTheBarStands) {
    Show(5);
    EXPECT_EQ(sheet->StartLecture("", 1003), 3);
    EXPECT_EQ(Slides(), "0 1 2 3 4");
}

TEST_F(DisplayTest, TheItemThatTheBarShowsAlreadyIsFilledAgain) {
    Show(40);
    sheet->StartLecture("", 1012);
    desktop.trace.Clear();
    EXPECT_EQ(sheet->StartLecture("", 1012), 0);
    EXPECT_EQ(Heard().find("host Scroll"), std::string::npos);
    EXPECT_EQ(Slides(), "12 13 14 15 16 17 18 19 20");
}

TEST_F(DisplayTest, AStartOneRowAwayCopiesNoLooks) {
    Show(40);
    sheet->LstInterne.SetList(4, File(39));
    EXPECT_EQ(sheet->StartLecture("", 1003), 0);
    EXPECT_EQ(Slides(), "3 4 5 6 7 8 9 10 11");
    ExpectSlidesAgreeWithList();
}

TEST_F(DisplayTest, APositionedStartTellsOfTheScroll) {
    Show(40);
    sheet->StartLecture("", 1012);
    EXPECT_THAT(Heard(), testing::EndsWith("host DisplayEnd\nhost Scroll 12 from 0\n"));
}

TEST_F(DisplayTest, AFreshSheetStartsInTheMiddleOfItsList) {
    Start();
    AddItems(0, 39);
    EXPECT_EQ(sheet->StartLecture("", 1020), 0);
    EXPECT_EQ(Slides(), "20 21 22 23 24 25 26 27 28");
    ExpectSlidesAgreeWithList();
}

TEST_F(DisplayTest, ANameThatIsNotInTheListStartsFromTheTop) {
    Show(40);
    sheet->StartLecture("", 1012);
    EXPECT_EQ(sheet->StartLecture("/p/none.jpg"), 0);
    EXPECT_EQ(Slides(), "0 1 2 3 4 5 6 7 8");
    EXPECT_EQ(sheet->VScroll.Value(), 0);
    EXPECT_EQ(sheet->LstInterne.ListIndex(), 0);
}

TEST_F(DisplayTest, AnUnknownKeyStartsFromTheTopAndAnswersZero) {
    Show(40);
    sheet->StartLecture("", 1012);
    EXPECT_EQ(sheet->StartLecture("", 77), 0);
    EXPECT_EQ(Slides(), "0 1 2 3 4 5 6 7 8");
}

TEST_F(DisplayTest, ANegativeKeyWithoutANameDoesNothing) {
    Show(40);
    EXPECT_EQ(sheet->StartLecture("", -5), 0);
    EXPECT_EQ(Heard(), "");
}

TEST_F(DisplayTest, ANegativeKeyWithANameStartsAtTheName) {
    Show(40);
    EXPECT_EQ(sheet->StartLecture("/p/017.jpg", -5), 0);
    EXPECT_EQ(sheet->Diapo.Item(0)->Value(), 17);
}

// --- The slides of a fill ---

TEST_F(DisplayTest, TheCellsAreSpreadOverTheSheet) {
    Show(9);
    EXPECT_EQ(Place(0), "5,5");
    EXPECT_EQ(Place(1), "111,5");
    EXPECT_EQ(Place(2), "217,5");
    EXPECT_EQ(Place(3), "5,86");
    EXPECT_EQ(Place(8), "217,167");
    EXPECT_EQ(sheet->DiapoWidth(true), 106);
    EXPECT_EQ(sheet->DiapoHeight(true), 81);
}

TEST_F(DisplayTest, WithoutSpreadingRowsAfterTheFirstStartAtTheLeftEdge) {
    Start();
    sheet->SetMargeDiapoAutoAdjust(false);
    AddItems(0, 8);
    sheet->StartLecture();
    EXPECT_EQ(Place(0), "5,5");
    EXPECT_EQ(Place(2), "215,5");
    EXPECT_EQ(Place(3), "0,85");
    EXPECT_EQ(Place(8), "210,165");
}

TEST_F(DisplayTest, APoolOfOneSlideFills) {
    Start();
    window.Resize(100, 60);
    sheet->SetScrollDirection(ScrollDirectionType::sdHorizontal);
    sheet->SetDiapoWidth(200);
    window.Resize(150, 60);
    ASSERT_EQ(sheet->CountDiapo(), 1);
    AddItems(0, 3);
    desktop.trace.Clear();
    sheet->StartLecture();
    EXPECT_EQ(Slides(), "0");
    EXPECT_EQ(Heard(),
              "host DisplayStart\nhost BeforeAdd 000.jpg jpg\nhost BeforeSetPicture 0 000.jpg\n"
              "host Added 0 000.jpg\nhost DisplayEnd\n");
}

TEST_F(DisplayTest, ARefusedItemLeavesItsPlaceToTheNext) {
    Start();
    AddItems(0, 39);
    onBeforeAdd = [](std::string& name, bool& cancel) { cancel = name == "/p/001.jpg" || name == "/p/000.jpg"; };
    sheet->StartLecture();
    EXPECT_EQ(Slides(), "2 3 4 5 6 7 8");
    EXPECT_EQ(Place(0), "5,5");
    EXPECT_EQ(Place(1), "111,5");
}

TEST_F(DisplayTest, TheHostIsAskedWithTheExtensionInSmallLetters) {
    Start();
    sheet->Add("/p/A.JPG", "");
    sheet->StartLecture();
    EXPECT_THAT(Heard(), testing::HasSubstr("host BeforeAdd A.JPG jpg\n"));
}

TEST_F(DisplayTest, TheHostMayGiveAnotherFileBeforeASlideIsMade) {
    Start();
    AddItems(0, 0);
    File(7);
    onBeforeAdd = [](std::string& name, bool&) { name = "/p/007.jpg"; };
    sheet->StartLecture();
    EXPECT_EQ(Shown(0), "/p/007.jpg");
    EXPECT_EQ(Heard(),
              "host DisplayStart\nhost BeforeAdd 000.jpg jpg\nhost BeforeSetPicture 0 007.jpg\n"
              "host Added 0 007.jpg\nhost DisplayEnd\n");
}

TEST_F(DisplayTest, AThumbnailOfTheHostsSparesTheDecoding) {
    Start();
    AddItems(0, 1);
    onBeforeSetPicture = [](int16_t index, Picture& picture) {
        if (index == 1) picture = headless::FakePictures::Make("thumb", 30, 20);
    };
    sheet->StartLecture();
    EXPECT_EQ(Heard({"load"}), "load /p/000.jpg\n");
    EXPECT_EQ(Shown(1), "thumb");
}

TEST_F(DisplayTest, TheHostTellsOfSoundsAndTextBeforeThePictureIsSet) {
    Start();
    AddItems(0, 0);
    sheet->Events.BeforeSetPicture.connect([](int16_t, const std::string&, Picture&, bool& sound, bool& comment,
                                              bool& text, bool& badMusic, bool& badComment) {
        sound = comment = text = badComment = true;
        badMusic = false;
    });
    sheet->StartLecture();
    const auto slide = sheet->Diapo.Item(0);
    EXPECT_TRUE(slide->HaveSoundMusic());
    EXPECT_TRUE(slide->HaveSoundComment());
    EXPECT_TRUE(slide->HaveTexte());
    EXPECT_FALSE(slide->HaveInvalidMusic());
    EXPECT_TRUE(slide->HaveInvalidComm());
    EXPECT_EQ(headless::NameOf(slide->BtPlayPicture()), "play");
    EXPECT_EQ(headless::NameOf(slide->BtCommentPicture()), "sound-missing");
    EXPECT_EQ(headless::NameOf(slide->BtTextPicture()), "show-text");
}

TEST_F(DisplayTest, ABadPictureIsReportedAndTheFillGoesOn) {
    Start();
    sheet->Add("/p/broken.jpg", "");
    AddItems(0, 0);
    sheet->StartLecture();
    EXPECT_EQ(Heard(),
              "host DisplayStart\n"
              "host BeforeAdd broken.jpg jpg\nhost BeforeSetPicture 0 broken.jpg\n"
              "host InvalidPicture 0 broken.jpg\nhost Added 0 broken.jpg\n"
              "host BeforeAdd 000.jpg jpg\nhost BeforeSetPicture 1 000.jpg\nhost Added 1 000.jpg\n"
              "host DisplayEnd\n");
    EXPECT_EQ(Shown(0), "file-substitute");
}

TEST_F(DisplayTest, AFileWithoutExtensionIsShown) {
    Start();
    desktop.pictures.Add("/p/photo", 60, 40);
    sheet->Add("/p/photo", "");
    sheet->StartLecture();
    EXPECT_EQ(Slides(), "0");
    EXPECT_EQ(Shown(0), "/p/photo");
}

TEST_F(DisplayTest, AFileWithoutExtensionIsDecodedOnceForTwoFills) {
    Start();
    desktop.pictures.Add("/p/photo", 60, 40);
    sheet->Add("/p/photo", "");
    sheet->StartLecture();
    sheet->StartLecture();
    EXPECT_EQ(desktop.pictures.Loads(), 1);
    EXPECT_EQ(Shown(0), "/p/photo");
}

TEST_F(DisplayTest, OtherKindsOfFilesShowWhatStandsForThem) {
    Start();
    for (const char* name : {"/p/a.mp3", "/p/a.avi", "/p/a.txt", "/p/a.zip"}) sheet->Add(name, "");
    sheet->StartLecture();
    EXPECT_EQ(Shown(0) + " " + Shown(1) + " " + Shown(2) + " " + Shown(3),
              "file-sound file-video file-document file-other");
}

TEST_F(DisplayTest, ASlideTakesTheSelectionOfItsItem) {
    Show(40);
    sheet->LstInterne.SetSelected(13, true);
    sheet->StartLecture("", 1012);
    EXPECT_TRUE(sheet->Diapo.Item(1)->Selected());
    EXPECT_FALSE(sheet->Diapo.Item(0)->Selected());
    EXPECT_EQ(sheet->Diapo.Item(1)->BackColor(), sheet->BackColorSelected());
    ExpectSlidesAgreeWithList();
}

TEST_F(DisplayTest, ANewSlideTakesTheSelectionOfItsItem) {
    Start();
    AddItems(0, 3);
    sheet->LstInterne.SetSelected(2, true);
    sheet->StartLecture();
    EXPECT_TRUE(sheet->Diapo.Item(2)->Selected());
    EXPECT_EQ(sheet->Diapo.Item(2)->BackColor(), 7321083U);
}

TEST_F(DisplayTest, TheVeryFirstSlideTakesTheSelectionOfItsItemToo) {
    Start();
    AddItems(0, 3);
    sheet->LstInterne.SetSelected(0, true);
    sheet->StartLecture();
    EXPECT_TRUE(sheet->Diapo.Item(0)->Selected());
    EXPECT_EQ(sheet->Diapo.Item(0)->BackColor(), 7321083U);
    ExpectSlidesAgreeWithList();
}

TEST_F(DisplayTest, AFirstItemWithoutAFileNameKeepsItsSlide) {
    Start();
    sheet->Add("/p/", "");
    AddItems(1, 4);
    sheet->StartLecture();
    EXPECT_EQ(Slides(), "0 1 2 3 4");
    EXPECT_EQ(Shown(0), "");
    EXPECT_EQ(Shown(1), "/p/001.jpg");
    EXPECT_EQ(Place(1), "111,5");
}

TEST_F(DisplayTest, TheCurrentItemGetsItsColourWhereverItShows) {
    Show(40);
    sheet->SetSelected(4, true);
    sheet->StartLecture("", 1003);
    EXPECT_EQ(sheet->CurrentDiapo(), 1);
    EXPECT_EQ(sheet->Diapo.Item(1)->BackColor(), sheet->BackColorCurrent());
    sheet->StartLecture("", 1020);
    EXPECT_EQ(sheet->CurrentDiapo(), -1);
}

TEST_F(DisplayTest, ASlidesThumbnailSizeIsItsLongerSideOrTheSheetsOwn) {
    Show(1);
    EXPECT_EQ(sheet->Diapo.Item(0)->ThumbnailSizeNormal(), 150);
    sheet->SetThumbnailSizeNormal(40);
    sheet->Clear();
    AddItems(0, 1);
    sheet->StartLecture();
    EXPECT_EQ(sheet->Diapo.Item(1)->ThumbnailSizeNormal(), 100);
}

TEST_F(DisplayTest, AfterClearSlideZeroIsBoundAnewAndNotMade) {
    Show(3);
    sheet->Clear();
    AddItems(0, 1);
    desktop.trace.Clear();
    sheet->StartLecture();
    EXPECT_EQ(Heard(),
              "host DisplayStart\n"
              "host BeforeSetPicture 0 000.jpg\nhost Added 0 000.jpg\n"
              "host BeforeAdd 001.jpg jpg\nhost BeforeSetPicture 1 001.jpg\nhost Added 1 001.jpg\n"
              "host DisplayEnd\n");
    EXPECT_EQ(Slides(), "0 1");
    EXPECT_EQ(Place(0), "5,5");
}

TEST_F(DisplayTest, TheBarShowsOnlyForAListThatDoesNotFit) {
    Show(6);
    EXPECT_FALSE(sheet->VScroll.Visible());
    AddItems(6, 6);
    sheet->StartLecture();
    EXPECT_TRUE(sheet->VScroll.Visible());
}

TEST_F(DisplayTest, ReadsOnlyAsManyItemsAsThePoolHasSlides) {
    Start();
    VectorListBox list(500);
    for (int32_t n = 0; n < 40000; ++n) list.AddItem("\t" + File(n));
    sheet->InitListe(ListeModeType::lmList, &list);
    list.reads = 0;
    sheet->StartLecture();
    EXPECT_EQ(list.reads, 9);
    list.reads = 0;
    sheet->VScroll.SetValue(30000);
    EXPECT_EQ(list.reads, 9);
    EXPECT_EQ(Slides(), "30000 30001 30002 30003 30004 30005 30006 30007 30008");
    sheet->VScroll.SetValue(0);
    EXPECT_EQ(Slides(), "0 1 2 3 4 5 6 7 8");
    EXPECT_THAT(Heard(), testing::Not(testing::HasSubstr("Error")));
}

}  // namespace
}  // namespace vorlane
