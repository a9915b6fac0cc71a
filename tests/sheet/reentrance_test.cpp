// What a host's handlers may do while the sheet calls them.
#include "tests/sheet/sheetfixture.h"
#include "tests/sheet/vectorlistbox.h"

namespace vorlane {
namespace {

class ReentranceTest : public SheetTest {
protected:
    // Runs action the first time only.
    static std::function<void()> Once(std::function<void()> action) {
        return [action, done = std::make_shared<bool>(false)] {
            if (!std::exchange(*done, true)) action();
        };
    }
    // Runs action once, at slide index.
    static std::function<void(int16_t)> OnceAt(int16_t index, std::function<void()> action) {
        return [index, once = Once(std::move(action))](int16_t slot) {
            if (slot == index) once();
        };
    }
    void ExpectAtRest() {
        EXPECT_EQ(desktop.screen.MousePointer(), 0);
        EXPECT_THAT(desktop.trace.Text({"host"}), testing::Not(testing::HasSubstr("Error")));
    }
};

// --- Clear ---

TEST_F(ReentranceTest, ClearInAddedStopsTheFill) {
    Start();
    AddItems(0, 39);
    onAdded = OnceAt(4, [this] { sheet->Clear(); });
    sheet->StartLecture();
    EXPECT_EQ(Slides(), "(.)");
    EXPECT_THAT(desktop.trace.Text({"host"}),
                testing::EndsWith("host Added 4 004.jpg\nhost TLClear\nhost DisplayEnd\n"));
    ExpectAtRest();
}

TEST_F(ReentranceTest, ClearInAddedOfSlideZeroStopsTheFill) {
    Show(40);
    onAdded = OnceAt(0, [this] { sheet->Clear(); });
    sheet->StartLecture();
    EXPECT_EQ(Heard(), "host DisplayStart\nhost Added 0 000.jpg\nhost TLClear\nhost DisplayEnd\n");
    EXPECT_EQ(sheet->Diapo.Count(), 1);
    EXPECT_FALSE(sheet->Diapo.Item(0)->Visible());
    ExpectAtRest();
}

TEST_F(ReentranceTest, ClearInBeforeSetPictureOfANewSlideStopsTheFill) {
    Start();
    AddItems(0, 39);
    onBeforeSetPicture = [clear = OnceAt(3, [this] { sheet->Clear(); })](int16_t index, Picture&) { clear(index); };
    sheet->StartLecture();
    EXPECT_EQ(Slides(), "(.)");
    EXPECT_THAT(desktop.trace.Text({"host"}),
                testing::EndsWith("host BeforeSetPicture 3 003.jpg\nhost TLClear\nhost DisplayEnd\n"));
    EXPECT_FALSE(sheet->Diapo.Item(0)->NoResize());
    ExpectAtRest();
}

TEST_F(ReentranceTest, ClearInBeforeSetPictureOfABoundSlideStopsTheFill) {
    Show(40);
    onBeforeSetPicture = [clear = OnceAt(3, [this] { sheet->Clear(); })](int16_t index, Picture&) { clear(index); };
    sheet->StartLecture("", 1010);
    EXPECT_THAT(desktop.trace.Text({"host"}),
                testing::EndsWith("host BeforeSetPicture 3 013.jpg\nhost TLClear\nhost DisplayEnd\n"
                                  "host Scroll 10 from -1\n"));
    EXPECT_EQ(sheet->Diapo.Count(), 1);
    ExpectAtRest();
}

TEST_F(ReentranceTest, ClearInInvalidPictureStopsTheFill) {
    Start();
    AddItems(0, 2);
    sheet->Add("/p/broken.jpg", "");
    AddItems(4, 8);
    sheet->Events.InvalidPicture.connect([this](int16_t, const std::string&) { sheet->Clear(); });
    sheet->StartLecture();
    EXPECT_EQ(Slides(), "(.)");
    EXPECT_THAT(desktop.trace.Text({"host"}), testing::EndsWith("host TLClear\nhost DisplayEnd\n"));
    ExpectAtRest();
}

TEST_F(ReentranceTest, ClearInBeforeAddStopsTheFillAndNoSlideIsMade) {
    Start();
    AddItems(0, 39);
    VectorListBox list(500);
    for (int32_t n = 0; n < 40; ++n) list.AddItem("\t" + File(n));
    sheet->InitListe(ListeModeType::lmList, &list);
    onBeforeAdd = [clear = Once([this] { sheet->Clear(); })](std::string& name, bool&) {
        if (name == "/p/004.jpg") clear();
    };
    sheet->StartLecture();
    EXPECT_THAT(desktop.trace.Text({"host"}), testing::EndsWith("host TLClear\nhost DisplayEnd\n"));
    EXPECT_EQ(Slides(), "(.)");
    ExpectAtRest();
}

TEST_F(ReentranceTest, ClearOfTheSheetsOwnListInBeforeAddLeavesAnEmptySheet) {
    Start();
    AddItems(0, 39);
    onBeforeAdd = [clear = Once([this] { sheet->Clear(); })](std::string& name, bool&) {
        if (name == "/p/004.jpg") clear();
    };
    sheet->StartLecture();
    EXPECT_THAT(desktop.trace.Text({"host"}), testing::EndsWith("host TLClear\nhost DisplayEnd\n"));
    EXPECT_EQ(Slides(), "(.)");
}

TEST_F(ReentranceTest, ClearInDisplayStartStopsTheFillAtItsFirstSlide) {
    Show(40);
    onDisplayStart = Once([this] { sheet->Clear(); });
    sheet->StartLecture();
    EXPECT_EQ(Heard(), "host DisplayStart\nhost TLClear\nhost DisplayEnd\n");
    ExpectAtRest();
}

TEST_F(ReentranceTest, ClearInDisplayEndLeavesAnEmptySheet) {
    Start();
    AddItems(0, 39);
    onDisplayEnd = Once([this] { sheet->Clear(); });
    sheet->StartLecture();
    EXPECT_EQ(Slides(), "(.)");
    ExpectAtRest();
}

// --- A second fill ---

TEST_F(ReentranceTest, ANestedFillFromElsewhereStopsTheOlderOne) {
    Show(40);
    onAdded = OnceAt(2, [this] { sheet->VScroll.SetValue(20); });
    sheet->StartLecture();
    EXPECT_EQ(Slides(), "20 21 22 23 24 25 26 27 28");
    ExpectSlidesAgreeWithList();
    EXPECT_THAT(desktop.trace.Text({"host"}),
                testing::EndsWith("host Added 8 028.jpg\nhost DisplayEnd\nhost Scroll 20 from 0\nhost DisplayEnd\n"));
    ExpectAtRest();
}

TEST_F(ReentranceTest, TwoNestedFillsFromTheSameStartBothRun) {
    Show(40);
    onAdded = OnceAt(2, [this] { sheet->StartLecture(); });
    sheet->StartLecture();
    const std::string heard = Heard();
    size_t added = 0;
    for (size_t at = heard.find("Added"); at != std::string::npos; at = heard.find("Added", at + 1)) ++added;
    EXPECT_EQ(added, 18U) << "each slide is filled twice";
    EXPECT_EQ(Slides(), "0 1 2 3 4 5 6 7 8");
    ExpectSlidesAgreeWithList();
    ExpectAtRest();
}

TEST_F(ReentranceTest, AStartInBeforeSetPictureOfTheVeryFirstSlideFillsTheSheet) {
    Start();
    AddItems(0, 39);
    onBeforeSetPicture = [start = OnceAt(0, [this] { sheet->StartLecture(); })](int16_t index, Picture&) {
        start(index);
    };
    sheet->StartLecture();
    EXPECT_EQ(Slides(), "0 1 2 3 4 5 6 7 8");
    EXPECT_EQ(Place(0), "5,5");
    EXPECT_EQ(Place(8), "217,167");
    ExpectSlidesAgreeWithList();
    ExpectAtRest();
}

TEST_F(ReentranceTest, AStartInBeforeAddOfTheVeryFirstSlideFillsTheSheet) {
    Start();
    AddItems(0, 39);
    onBeforeAdd = [start = Once([this] { sheet->StartLecture(); })](std::string&, bool&) { start(); };
    sheet->StartLecture();
    EXPECT_EQ(Slides(), "0 1 2 3 4 5 6 7 8");
    EXPECT_EQ(Place(0), "5,5");
    EXPECT_EQ(Place(8), "217,167");
    ExpectSlidesAgreeWithList();
    ExpectAtRest();
}

TEST_F(ReentranceTest, AStartInBeforeAddOfAShortListShowsEachItemOnce) {
    Start();
    AddItems(0, 2);
    onBeforeAdd = [start = Once([this] { sheet->StartLecture(); })](std::string&, bool&) { start(); };
    sheet->StartLecture();
    const std::string heard = Heard();
    EXPECT_EQ(heard.find("Added 3"), std::string::npos) << "no slide is made behind the last item";
    EXPECT_EQ(Slides(), "0 1 2");
    ExpectSlidesAgreeWithList();
    ExpectAtRest();
}

TEST_F(ReentranceTest, AStartElsewhereInBeforeAddStopsTheOlderFill) {
    Start();
    AddItems(0, 11);
    onBeforeAdd = [this, start = Once([this] { sheet->StartLecture("", 1006); })](std::string& name, bool&) {
        if (name == File(1)) start();
    };
    sheet->StartLecture();
    EXPECT_EQ(Slides(), "6 7 8 9 10 11");
    ExpectSlidesAgreeWithList();
    ExpectAtRest();
}

TEST_F(ReentranceTest, AFailureWhileASlideIsMadeLetsSlideZeroLayItselfOutAgain) {
    Start();
    AddItems(0, 8);
    onBeforeSetPicture = [](int16_t index, Picture&) {
        if (index == 1) throw failures::TypeMismatch();
    };
    sheet->StartLecture();
    EXPECT_FALSE(sheet->Diapo.Item(0)->NoResize());
}

TEST_F(ReentranceTest, AStartElsewhereInBeforeSetPictureStopsTheOlderFillBehindItsSlide) {
    Show(40);
    onBeforeSetPicture = [start = OnceAt(2, [this] { sheet->StartLecture("", 1005); })](int16_t index, Picture&) {
        start(index);
    };
    sheet->StartLecture("", 1020);
    EXPECT_EQ(sheet->Diapo.Item(0)->Value(), 5);
    EXPECT_EQ(Slides(), "5 6 7 8 9 10 11 12 13");
    ExpectSlidesAgreeWithList();
    ExpectAtRest();
}

TEST_F(ReentranceTest, AStartInDisplayStartStopsTheOlderFillBeforeItsFirstSlide) {
    Show(40);
    onDisplayStart = Once([this] { sheet->StartLecture("", 1005); });
    sheet->StartLecture();
    EXPECT_EQ(Slides(), "5 6 7 8 9 10 11 12 13");
    EXPECT_THAT(Heard(),
                testing::EndsWith("host Added 8 013.jpg\nhost DisplayEnd\nhost Scroll 5 from 0\nhost DisplayEnd\n"));
}

TEST_F(ReentranceTest, RefreshInDisplayEndShowsAHostsListAnew) {
    Show(40);
    onDisplayEnd = Once([this] { sheet->StartLecture("", 1003); });
    sheet->StartLecture();
    EXPECT_EQ(Slides(), "3 4 5 6 7 8 9 10 11");
    ExpectAtRest();
}

// --- A resize ---

TEST_F(ReentranceTest, AResizeInAddedStopsTheFillAndLaysOutLater) {
    Show(40);
    onAdded = OnceAt(2, [this] { window.Resize(450, 180); });
    sheet->StartLecture();
    EXPECT_THAT(Heard(), testing::EndsWith("host Added 2 002.jpg\nhost DisplayEnd\n"));
    EXPECT_EQ(sheet->CountDiapo(), 12);
    ExpectAtRest();
    desktop.clock.Advance(1);
    EXPECT_EQ(Slides(), "0 1 2 3 4 5 6 7 8 9 10 11");
    ExpectSlidesAgreeWithList();
}

TEST_F(ReentranceTest, AResizeBackWithinTheSameHandlerDoesNotStopTheFill) {
    Show(40);
    onAdded = OnceAt(2, [this] {
        window.Resize(450, 180);
        window.Resize(kWidth, kHeight);
    });
    sheet->StartLecture("", 1009);
    EXPECT_EQ(Slides(), "9 10 11 12 13 14 15 16 17");
    ExpectAtRest();
}

TEST_F(ReentranceTest, ATimerThatLaysOutDuringAFillDoesNotStopIt) {
    Start();
    AddItems(0, 39);
    sheet->TimerResize.SetEnabled(true);
    onAdded = OnceAt(3, [this] {
        desktop.clock.Sleep(5);
        desktop.clock.DoEvents();
    });
    sheet->StartLecture();
    EXPECT_EQ(Slides(), "0 1 2 3 4 5 6 7 8");
    ExpectSlidesAgreeWithList();
    ExpectAtRest();
}

// --- Handlers that throw ---

TEST_F(ReentranceTest, AThrowInAddedEndsTheFillWithAnErrorAndNoDisplayEnd) {
    Show(40);
    onAdded = OnceAt(2, [] { throw std::runtime_error("no"); });
    sheet->StartLecture();
    EXPECT_EQ(Heard(),
              "host DisplayStart\nhost Added 0 000.jpg\nhost Added 1 001.jpg\nhost Added 2 002.jpg\n"
              "host Error 51 Vorlane Lect DpCnt=9 - 0 - -1 - -1\n");
    EXPECT_EQ(desktop.screen.MousePointer(), 0);
}

TEST_F(ReentranceTest, AThrowInAddedOfANewSlideCostsThatSlideItsPlaceInTheCount) {
    Start();
    AddItems(0, 2);
    onAdded = OnceAt(1, [] { throw std::runtime_error("no"); });
    sheet->StartLecture();
    EXPECT_EQ(Heard(),
              "host DisplayStart\n"
              "host BeforeAdd 000.jpg jpg\nhost BeforeSetPicture 0 000.jpg\nhost Added 0 000.jpg\n"
              "host BeforeAdd 001.jpg jpg\nhost BeforeSetPicture 1 001.jpg\nhost Added 1 001.jpg\n"
              "host Error 51 Vorlane AddInterne DpCnt=2 - /p/001.jpg - 1 - 0\n"
              "host BeforeSetPicture 1 002.jpg\nhost Added 1 002.jpg\nhost DisplayEnd\n");
    EXPECT_EQ(Slides(), "0 2");
}

TEST_F(ReentranceTest, AThrowInBeforeAddIsReportedForEachItemAndNoneIsShown) {
    Start();
    AddItems(0, 1);
    onBeforeAdd = [](std::string&, bool&) { throw std::runtime_error("no"); };
    sheet->StartLecture();
    EXPECT_EQ(Heard(),
              "host DisplayStart\n"
              "host BeforeAdd 000.jpg jpg\nhost Error 51 Vorlane AddInterne DpCnt=1 - /p/000.jpg - 0 - 0\n"
              "host BeforeAdd 001.jpg jpg\nhost Error 51 Vorlane AddInterne DpCnt=1 - /p/001.jpg - 1 - 0\n"
              "host DisplayEnd\n");
    EXPECT_EQ(Slides(), "(.)");
}

TEST_F(ReentranceTest, AThrowInDisplayStartOrDisplayEndIsAFailureOfTheFill) {
    Show(9);
    onDisplayStart = Once([] { throw failures::TypeMismatch(); });
    sheet->StartLecture();
    EXPECT_EQ(Heard(), "host DisplayStart\nhost Error 13 Vorlane Lect DpCnt=9 - 0 - 0 - -1\n");
    onDisplayEnd = Once([] { throw failures::TypeMismatch(); });
    sheet->StartLecture();
    EXPECT_THAT(Heard(), testing::EndsWith("host DisplayEnd\nhost Error 13 Vorlane Lect DpCnt=9 - 0 - 0 - -1\n"));
    EXPECT_EQ(desktop.screen.MousePointer(), 0);
}

TEST_F(ReentranceTest, AThrowInErrorEndsThere) {
    Show(9);
    sheet->Events.Error.connect([](int32_t, const std::string&, const std::string&, int32_t, const std::string&) {
        throw std::runtime_error("no");
    });
    onDisplayStart = Once([] { throw failures::TypeMismatch(); });
    sheet->StartLecture();
    sheet->StartLecture();
    EXPECT_THAT(Heard(), testing::EndsWith("host DisplayEnd\n"));
}

TEST_F(ReentranceTest, AThrowInScrollLeavesTheOldPlace) {
    Show(40);
    onScroll = [](int32_t&) { throw failures::TypeMismatch(); };
    sheet->VScroll.SetValue(20);
    EXPECT_THAT(Heard(),
                testing::EndsWith("host Scroll 20 from 0\nhost Error 13 Vorlane VScroll_Change DpCnt=9 - 20\n"));
    onScroll = {};
    sheet->VScroll.SetValue(9);
    EXPECT_THAT(Heard(), testing::EndsWith("host Scroll 9 from 0\n"));
}

TEST_F(ReentranceTest, AScrollThatFailedIsTakenBackByTheBar) {
    Show(40);
    onAdded = OnceAt(2, [] { throw failures::TypeMismatch(); });
    sheet->VScroll.SetValue(20);
    EXPECT_EQ(Slides(), "20 21 22 3 4 5 6 7 8");
    sheet->VScroll.SetValue(0);
    EXPECT_EQ(Slides(), "0 1 2 3 4 5 6 7 8");
    EXPECT_THAT(Heard(), testing::EndsWith("host DisplayEnd\nhost Scroll 0 from 0\n"));
    ExpectSlidesAgreeWithList();
}

TEST_F(ReentranceTest, AScrollWhoseEventFailedIsTakenBackByTheBar) {
    Show(40);
    onScroll = [](int32_t&) { throw failures::TypeMismatch(); };
    sheet->VScroll.SetValue(20);
    onScroll = {};
    sheet->VScroll.SetValue(0);
    EXPECT_EQ(Slides(), "0 1 2 3 4 5 6 7 8");
    ExpectSlidesAgreeWithList();
}

TEST_F(ReentranceTest, AFillThatFailedIsNoGroundForAStep) {
    Show(40);
    onAdded = OnceAt(2, [] { throw failures::TypeMismatch(); });
    sheet->StartLecture("", 1020);
    sheet->VScroll.SetValue(23);
    EXPECT_EQ(Slides(), "23 24 25 26 27 28 29 30 31");
    ExpectSlidesAgreeWithList();
}

// --- What hosts do to the slides ---

TEST_F(ReentranceTest, ASlideThatAHandlerUnloadsStopsTheFillWithoutAnError) {
    Show(40);
    onAdded = OnceAt(5, [this] {
        for (int32_t k = 8; k >= 5; --k) sheet->Diapo.Unload(k);
    });
    sheet->StartLecture("", 1010);
    EXPECT_THAT(desktop.trace.Text({"host"}),
                testing::EndsWith("host Added 5 015.jpg\nhost DisplayEnd\nhost Scroll 10 from 0\n"));
    EXPECT_EQ(Slides(), "10 11 12 13 14");
    ExpectAtRest();
}

TEST_F(ReentranceTest, TheListMayLoseItsItemsDuringAFill) {
    Show(40);
    onAdded = OnceAt(2, [this] { sheet->LstInterne.Clear(); });
    sheet->StartLecture("", 1010);
    EXPECT_EQ(Slides(), "10 11 12");
    ExpectAtRest();
}

TEST_F(ReentranceTest, AnotherListMayBeBoundDuringAFill) {
    Show(40);
    MemoryListBox other(900);
    other.AddItem("\t" + File(30));
    onAdded = OnceAt(2, [&] { sheet->InitListe(ListeModeType::lmList, &other); });
    sheet->StartLecture();
    EXPECT_THAT(Heard(), testing::EndsWith("host TLClear\nhost DisplayEnd\n"));
    sheet->StartLecture();
    EXPECT_EQ(Slides(), "0");
    EXPECT_EQ(sheet->Diapo.Item(0)->ImageFullPath(), File(30));
    ExpectAtRest();
}

TEST_F(ReentranceTest, TheSheetMayBeEndedDuringAFill) {
    Show(40);
    onAdded = OnceAt(2, [this] { sheet->Terminate(); });
    sheet->StartLecture();
    EXPECT_THAT(Heard(), testing::EndsWith("host Added 2 002.jpg\nhost Error 91 Vorlane Lect DpCnt=9 - 0 - -1 - -1\n"));
    EXPECT_EQ(desktop.screen.MousePointer(), 0);
}

}  // namespace
}  // namespace vorlane
