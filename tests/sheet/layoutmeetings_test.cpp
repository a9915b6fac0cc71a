// Layouts and fills in odd company: holes, items without files, other fills, timers.
#include "tests/sheet/sheetfixture.h"

namespace vorlane {
namespace {

class LayoutMeetings : public SheetTest {
protected:
    static std::function<void(int16_t)> OnceAt(int16_t index, std::function<void()> action) {
        return [index, action = std::move(action), done = false](int16_t slot) mutable {
            if (slot == index && !std::exchange(done, true)) action();
        };
    }
};

TEST_F(LayoutMeetings, ALayoutTellsAFileWithoutExtensionAsItsItemSpellsIt) {
    Start();
    desktop.pictures.Add("/p/photo", 60, 40);
    sheet->Add("/p/photo", "");
    AddItems(0, 20);
    sheet->StartLecture();
    desktop.trace.Clear();
    window.Resize(kWidth + 30, kHeight);
    EXPECT_THAT(Heard(), testing::HasSubstr("host Added 0 photo\nhost Added 1 000.jpg\n"));
}

TEST_F(LayoutMeetings, ALayoutStopsMakingSlidesAtAnItemWithoutAFileName) {
    Start();
    AddItems(0, 8);
    sheet->Add("/p/", "");
    AddItems(10, 20);
    sheet->StartLecture();
    desktop.trace.Clear();
    window.Resize(450, kHeight);
    desktop.clock.Advance(300);
    EXPECT_EQ(Slides(), "0 1 2 3 4 5 6 7 8") << "the next fill shows the others";
    EXPECT_THAT(Heard(), testing::Not(testing::HasSubstr("Error")));
    EXPECT_EQ(desktop.clock.RunningTimers(), 0);
    sheet->StartLecture();
    EXPECT_EQ(Slides(), "0 1 2 3 4 5 6 7 8 9 10 11");
}

TEST_F(LayoutMeetings, AHoleInThePoolIsNoFailureWhenTheSlidesAreHidden) {
    Show(40);
    sheet->Diapo.Unload(4);
    sheet->SetDiapoWidth(150);
    EXPECT_THAT(Heard(), testing::Not(testing::HasSubstr("Error")));
    EXPECT_EQ(sheet->CountDiapo(), 4);
    for (int32_t k = 0; k <= sheet->Diapo.UpperBound(); ++k) {
        if (sheet->Diapo.Loaded(k)) {
            EXPECT_EQ(sheet->Diapo.Item(k)->Visible(), k < 4) << "slide " << k;
        }
    }
    desktop.clock.Advance(200);
    EXPECT_EQ(Slides(), "0 1 2 3");
}

TEST_F(LayoutMeetings, AScrollInsideALayoutStopsItAndTheNextTickLaysOutWhatShowsThen) {
    Show(40);
    onAdded = OnceAt(3, [this] { sheet->VScroll.SetValue(20); });
    window.Resize(450, kHeight);
    desktop.clock.Advance(1);
    EXPECT_EQ(sheet->Diapo.Item(0)->Value(), 20);
    desktop.clock.Advance(300);
    EXPECT_EQ(Slides(), "20 21 22 23 24 25 26 27 28 29 30 31");
    EXPECT_EQ(Place(11), "323,167");
    EXPECT_EQ(desktop.clock.RunningTimers(), 0);
    ExpectSlidesAgreeWithList();
}

TEST_F(LayoutMeetings, UnloadingTheSurplusYieldsOnceBehindIt) {
    Show(40);
    window.Resize(240, kHeight);
    desktop.clock.Advance(1);
    const int32_t before = desktop.clock.Yields();
    int32_t loaded = 0;
    desktop.clock.AtYield(1, [&] { loaded = sheet->Diapo.Count(); });
    desktop.clock.Advance(300);
    EXPECT_EQ(loaded, 6);
    EXPECT_EQ(desktop.clock.Yields(), before + 1);
}

TEST_F(LayoutMeetings, TheUnloadingWaitsWhileALayoutIsUnderWay) {
    Show(40);
    sheet->TimerUnload.SetEnabled(true);
    onAdded = OnceAt(1, [this] {
        desktop.clock.Sleep(150);
        desktop.clock.DoEvents();
        EXPECT_EQ(sheet->Diapo.Count(), 9);
        EXPECT_TRUE(sheet->TimerUnload.Enabled());
    });
    sheet->SetDiapoWidth(150);
    EXPECT_EQ(sheet->Diapo.Count(), 9);
    desktop.clock.Advance(100);
    EXPECT_EQ(Slides(), "0 1 2 3");
    EXPECT_FALSE(sheet->TimerUnload.Enabled());
}

TEST_F(LayoutMeetings, AStepThatComesBeforeALargerGridIsLaidOutLeavesNoSlideBlank) {
    Show(40);
    window.Resize(450, kHeight);
    sheet->VScroll.SetValue(4);
    EXPECT_EQ(Slides(), "4 5 6 7 8 9 10 11 12 13 14 15");
    desktop.clock.Advance(300);
    EXPECT_EQ(Slides(), "4 5 6 7 8 9 10 11 12 13 14 15");
    EXPECT_EQ(Place(11), "323,167");
    ExpectSlidesAgreeWithList();
}

TEST_F(LayoutMeetings, RowsThatAreMadeAfterAChangeOfTheSlidesSizeMayHaveOtherGapsUntilTheNextLayout) {
    Show(40);
    sheet->SetDiapoWidth(60);
    desktop.clock.Advance(300);
    ASSERT_EQ(sheet->CountDiapoX(), 4);
    const std::string laidOut = Place(4);
    sheet->StartLecture();  // measures the sheet with a row of the new height
    EXPECT_EQ(Place(4), laidOut) << "what stands stays";
    sheet->VScroll.SetValue(sheet->VScroll.Max());
    sheet->VScroll.SetValue(0);
    const auto step = [this](int32_t row) {
        const int32_t columns = sheet->CountDiapoX();
        return sheet->Diapo.Item(columns * row)->Top() - sheet->Diapo.Item(columns * (row - 1))->Top();
    };
    EXPECT_NE(step(1), step(3));
    window.Resize(kWidth + 1, kHeight);
    desktop.clock.Advance(300);
    EXPECT_EQ(step(1), step(2));
}

// --- Fills ---

TEST_F(LayoutMeetings, AFirstFillThatAResizeStopsIsMadeGood) {
    Start();
    AddItems(0, 39);
    onDisplayStart = [this, done = false]() mutable {
        if (!std::exchange(done, true)) window.Resize(450, kHeight);
    };
    sheet->StartLecture("", 1020);
    EXPECT_EQ(Slides(), "(.)");
    desktop.clock.Advance(300);
    EXPECT_EQ(Slides(), "20 21 22 23 24 25 26 27 28 29 30 31");
    EXPECT_EQ(sheet->VScroll.Value(), 20);
    EXPECT_EQ(desktop.clock.RunningTimers(), 0);
}

TEST_F(LayoutMeetings, AFirstFillThatWasStoppedIsForgottenByAClear) {
    Start();
    AddItems(0, 39);
    onDisplayStart = [this] {
        window.Resize(450, kHeight);
        sheet->Clear();
        AddItems(0, 9);
    };
    sheet->StartLecture();
    desktop.clock.Advance(300);
    EXPECT_EQ(Slides(), "(.)");
    EXPECT_EQ(desktop.clock.RunningTimers(), 0);
}

TEST_F(LayoutMeetings, SlideZeroThatFailedToBeMadeIsMadeByTheNextFill) {
    Start();
    AddItems(0, 39);
    onBeforeSetPicture = [](int16_t, Picture&) { throw failures::TypeMismatch(); };
    sheet->StartLecture();
    onBeforeSetPicture = {};
    sheet->StartLecture();
    EXPECT_EQ(Slides(), "0 1 2 3 4 5 6 7 8");
    EXPECT_EQ(Place(8), "217,167");
    ExpectSlidesAgreeWithList();
}

TEST_F(LayoutMeetings, AFillFromTheSameItemOnAnotherSlideStopsTheOlderOne) {
    Show(40);
    onAdded = OnceAt(6, [this] { sheet->StartLecture("", 1009); });
    sheet->VScroll.SetValue(3);  // fills its last row from item 9 on
    EXPECT_EQ(Slides(), "9 10 11 12 13 14 15 16 17");
    ExpectSlidesAgreeWithList();
}

TEST_F(LayoutMeetings, AScrollInTheScrollEventIsTheOneThatCounts) {
    Show(40);
    onScroll = [this, done = false](int32_t&) mutable {
        if (!std::exchange(done, true)) sheet->VScroll.SetValue(20);
    };
    sheet->VScroll.SetValue(10);
    EXPECT_EQ(sheet->Diapo.Item(0)->Value(), 20);
    sheet->VScroll.SetValue(10);
    EXPECT_EQ(Slides(), "10 11 12 13 14 15 16 17 18");
    ExpectSlidesAgreeWithList();
}

TEST_F(LayoutMeetings, SlideZeroIsMadeByTheFirstFillThatTheHostLetsMakeIt) {
    Start();
    AddItems(0, 8);
    onBeforeAdd = [](std::string&, bool& cancel) { cancel = true; };
    sheet->StartLecture();
    EXPECT_EQ(Slides(), "(.)");
    onBeforeAdd = {};
    desktop.trace.Clear();
    sheet->StartLecture();
    EXPECT_THAT(Heard(), testing::StartsWith("host DisplayStart\nhost BeforeAdd 000.jpg jpg\n"
                                             "host BeforeSetPicture 0 000.jpg\nhost Added 0 000.jpg\n"));
    EXPECT_EQ(Slides(), "0 1 2 3 4 5 6 7 8");
    EXPECT_EQ(Place(0), "5,5");
    ExpectSlidesAgreeWithList();
}

TEST_F(LayoutMeetings, ASlideIsBlankedInItsOrder) {
    Show(3);
    const auto slide = sheet->Diapo.Item(0);
    slide->SetCaptionBottom("caption");
    sheet->SetSelected(0, true);
    std::vector<std::string> keys;
    slide->PropertyChanged.connect([&](std::string_view key) { keys.emplace_back(key); });
    sheet->Clear();
    size_t at = 0;
    for (const char* key : {"CaptionBottom", "BackColorSelected", "Selected", "Value"}) {
        const auto found = std::find(keys.begin() + static_cast<std::ptrdiff_t>(at), keys.end(), key);
        ASSERT_NE(found, keys.end()) << key;
        at = static_cast<size_t>(found - keys.begin());
    }
}

// A move of so many items that its distance is 0 in 16 bits must not leave the current mark on the old slide.
TEST_F(LayoutMeetings, AJumpBeyondThePoolLeavesNoSlideCurrent) {
    Start();
    for (int32_t n = 0; n < 100000; ++n) sheet->LstInterne.AddItem("\t" + File(n % 50));
    sheet->StartLecture();
    sheet->VScroll.SetValue(70000);
    sheet->SetSelected(4, true);
    sheet->LstInterne.SetSelected(70000 - 65536 + 5, true);
    sheet->VScroll.SetValue(70000 - 65536);
    ASSERT_TRUE(sheet->Diapo.Item(5)->Selected());
    sheet->Remove(3);
    ASSERT_TRUE(sheet->Diapo.Item(4)->Selected());
    EXPECT_EQ(sheet->Diapo.Item(4)->BackColor(), 7321083U) << "selected, and not the current one";
}

}  // namespace
}  // namespace vorlane
