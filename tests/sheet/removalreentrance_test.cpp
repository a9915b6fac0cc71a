// What a host's handlers may do to the sheet while items go.
#include "tests/sheet/removalfixture.h"
#include "tests/sheet/vectorlistbox.h"

namespace vorlane {
namespace {

// --- Remove: handlers that work on the sheet ---

TEST_F(RemovalTest, SortInRemovedKeepsTheItemInTheList) {
    Start();
    for (int32_t n = 0; n < 20; ++n) sheet->Add(File(n), std::to_string(100 - n), 1000 + n);
    sheet->StartLecture();
    onRemoved = Once([this] { sheet->Sort(); });
    sheet->Remove(2);
    EXPECT_EQ(sheet->Count(), 20);
    EXPECT_THAT(Heard(), testing::EndsWith("host Sorted\n")) << "nothing has gone, so no TLRefresh";
    ExpectSlidesAgreeWithList();
    ExpectNoError();
}

TEST_F(RemovalTest, ClearInRemovedLeavesAnEmptySheet) {
    Show(20);
    onRemoved = Once([this] { sheet->Clear(); });
    sheet->Remove(2);
    EXPECT_EQ(Heard(), "host Removed 2 key 1002\nhost TLClear\n");
    EXPECT_EQ(Slides(), "(.)");
}

TEST_F(RemovalTest, ClearInRemovedOfAHostsListLetsTheItemGoAndLeavesAnEmptySheet) {
    Start();
    VectorListBox list(500);
    for (int32_t n = 0; n < 20; ++n) list.AddItem("\t" + File(n));
    sheet->InitListe(ListeModeType::lmList, &list);
    sheet->StartLecture();
    onRemoved = Once([this] { sheet->Clear(); });
    sheet->Remove(2);
    EXPECT_EQ(list.ListCount(), 19);
    EXPECT_EQ(Slides(), "(.)");
    ExpectNoError();
}

TEST_F(RemovalTest, AnotherListInRemovedLosesNothing) {
    Show(20);
    MemoryListBox other(900);
    for (int32_t n = 0; n < 20; ++n) other.AddItem("\t" + File(n));
    onRemoved = Once([&] { sheet->InitListe(ListeModeType::lmList, &other); });
    sheet->Remove(2);
    EXPECT_EQ(other.ListCount(), 20);
    EXPECT_EQ(sheet->LstInterne.ListCount(), 20);
    ExpectNoError();
}

TEST_F(RemovalTest, AScrollInRemovedIsKeptAndTheItemGoes) {
    Show(40);
    onRemoved = Once([this] { sheet->VScroll.SetValue(20); });
    sheet->Remove(2);
    EXPECT_EQ(sheet->LstInterne.FindItemData(1002), -1);
    EXPECT_EQ(Slides(), "20 21 22 23 24 25 26 27 28");
    EXPECT_EQ(Shown(), "21 22 23 24 25 26 27 28 29");
    ExpectBarAtSlideZero();
    ExpectSlidesAgreeWithList();
    ExpectNoError();
}

TEST_F(RemovalTest, AFillFromTheSamePlaceInRemovedChangesNothing) {
    Show(40);
    onRemoved = Once([this] { sheet->StartLecture(); });
    sheet->Remove(2);
    EXPECT_EQ(Shown(), "0 1 3 4 5 6 7 8 10");
    ExpectSlidesAgreeWithList();
}

TEST_F(RemovalTest, ARemovalInRemovedOfTheSameSlideLetsTheItemGoOnce) {
    Show(40);
    onRemoved = Once([this] { sheet->Remove(2); });
    sheet->Remove(2);
    EXPECT_EQ(sheet->Count(), 39);
    EXPECT_EQ(sheet->LstInterne.FindItemData(1002), -1);
    ExpectSlidesAgreeWithList();
    ExpectNoError();
}

TEST_F(RemovalTest, AThrowInRemovedIsAFailureAndTheItemStays) {
    Show(4);
    onRemoved = [](int32_t&) { throw failures::TypeMismatch(); };
    sheet->Remove(2);
    EXPECT_EQ(Heard(), "host Removed 2 key 1002\nhost Error 13 Vorlane Remove DpCnt=4 - 2\n");
    EXPECT_EQ(Order(), "0 1 2 3");
}

// --- Remove: what arrives at a yield ---

class YieldTest : public RemovalTest {
protected:
    // Shows 40 items from 12 on and removes slide 2, with an action inside the n-th yield.
    void RemoveWith(int32_t n, std::function<void()> action) {
        Show(40);
        ScrollTo(12);
        desktop.clock.AtYield(n, std::move(action));
        sheet->Remove(2);
        EXPECT_THAT(desktop.trace.Text({"host"}), testing::EndsWith("host TLRefresh\n"));
        EXPECT_EQ(sheet->LstInterne.FindItemData(1014), -1);
        ExpectSlidesAgreeWithList();
        ExpectNoError();
    }
};

TEST_F(YieldTest, TheSlidesAgreeWithTheListAtEachYield) {
    for (int32_t n = 1; n <= 6; ++n) {
        SCOPED_TRACE(n);
        RemoveWith(n, [this] { ExpectSlidesAgreeWithList(); });
        EXPECT_EQ(Shown(), "12 13 15 16 17 18 19 20 22");
        sheet->Clear();
        desktop.clock.Advance(1);
    }
}

TEST_F(YieldTest, ARowForwardIsKept) {
    for (const int32_t n : {1, 3, 6}) {
        SCOPED_TRACE(n);
        RemoveWith(n, [this] { sheet->VScroll.SetValue(15); });
        EXPECT_EQ(Slides(), "15 16 17 18 19 20 21 22 23");
        ExpectBarAtSlideZero();
        sheet->Clear();
    }
}

TEST_F(YieldTest, ARowBackIsKept) {
    for (const int32_t n : {1, 3, 6}) {
        SCOPED_TRACE(n);
        RemoveWith(n, [this] { sheet->VScroll.SetValue(9); });
        EXPECT_EQ(Slides(), "9 10 11 12 13 14 15 16 17");
        ExpectBarAtSlideZero();
        sheet->Clear();
    }
}

TEST_F(YieldTest, AJumpIsKept) {
    RemoveWith(3, [this] { sheet->VScroll.SetValue(30); });
    EXPECT_EQ(Slides(), "30 31 32 33 34 35 36 37 38");
    ExpectBarAtSlideZero();
}

TEST_F(YieldTest, AFillFromTheTopIsKept) {
    RemoveWith(3, [this] { sheet->StartLecture(); });
    EXPECT_EQ(Slides(), "0 1 2 3 4 5 6 7 8");
    ExpectBarAtSlideZero();
}

TEST_F(YieldTest, AClearLeavesAnEmptySheet) {
    RemoveWith(3, [this] { sheet->Clear(); });
    EXPECT_EQ(Slides(), "(.)");
    EXPECT_EQ(sheet->Count(), 0);
}

TEST_F(YieldTest, AnotherRemovalInFrontTakesTheItemThatItsSlideShows) {
    RemoveWith(3, [this] { sheet->Remove(0); });
    EXPECT_EQ(sheet->Count(), 38);
    EXPECT_EQ(sheet->LstInterne.FindItemData(1012), -1);
    EXPECT_EQ(Shown(), "13 15 16 17 18 19 20 21 22");
}

TEST_F(YieldTest, AnotherRemovalBehindTakesTheItemThatItsSlideShows) {
    RemoveWith(1, [this] { sheet->Remove(6); });
    EXPECT_EQ(sheet->Count(), 38);
    EXPECT_EQ(sheet->LstInterne.FindItemData(1018), -1);
}

TEST_F(YieldTest, AnotherRemovalOfAnySlideTakesTheItemThatItShows) {
    for (int32_t n = 1; n <= 6; ++n) {
        for (int16_t slot = 0; slot < 9; ++slot) {
            SCOPED_TRACE(std::to_string(n) + ", slide " + std::to_string(slot));
            std::string gone;
            RemoveWith(n, [&] {
                gone = sheet->ImageFullPath(sheet->Diapo.Item(slot)->Value());
                sheet->Remove(slot);
            });
            EXPECT_EQ(sheet->Count(), 38);
            for (int32_t i = 0; i < sheet->Count(); ++i) EXPECT_NE(sheet->ImageFullPath(i), gone);
            sheet->Clear();
        }
    }
}

TEST_F(YieldTest, ASlideThatBecomesCurrentIsTheOnlyOneWithTheMark) {
    for (int32_t n = 1; n <= 6; ++n) {
        for (int16_t slot = 0; slot < 8; ++slot) {
            SCOPED_TRACE(std::to_string(n) + ", slide " + std::to_string(slot));
            int32_t current = -1;
            RemoveWith(n, [&] {
                current = sheet->Diapo.Item(slot)->Value();
                sheet->SetSelected(slot, true);
            });
            for (int32_t k = 0; k < sheet->Diapo.Count(); ++k) {
                const auto slide = sheet->Diapo.Item(k);
                const bool marked = slide->Selected() && slide->BackColor() == sheet->BackColorCurrent();
                EXPECT_EQ(marked, slide->Value() == current) << "slide " << k;
            }
            sheet->Clear();
        }
    }
}

TEST_F(YieldTest, ASortIsKept) {
    RemoveWith(3, [this] { sheet->Sort(); });
    EXPECT_EQ(Slides(), "0 1 2 3 4 5 6 7 8");
}

TEST_F(YieldTest, AResizeIsKept) {
    RemoveWith(3, [this] {
        window.Resize(450, 180);
        desktop.clock.Sleep(5);
    });
    desktop.clock.Advance(5);
    EXPECT_EQ(sheet->Diapo.Count(), 12);
    ExpectSlidesAgreeWithList();
}

TEST_F(YieldTest, UnloadedSlidesAreFilledAnew) {
    RemoveWith(3, [this] {
        for (int32_t k = 8; k >= 4; --k) sheet->Diapo.Unload(k);
    });
    EXPECT_EQ(Slides(), "12 13 14 15 16 17 18 19 20");
}

TEST_F(RemovalTest, AnotherRemovalAtAYieldMayTakeTheLastItem) {
    Show(2);
    desktop.clock.AtYield(1, [this] { sheet->Remove(0); });
    sheet->Remove(0);
    EXPECT_EQ(sheet->Count(), 0);
    EXPECT_EQ(Slides(), "(.)");
    ExpectNoError();
}

TEST_F(RemovalTest, AnEndedSheetAtAYieldIsAFailure) {
    Show(40);
    desktop.clock.AtYield(2, [this] { sheet->Terminate(); });
    sheet->Remove(2);
    EXPECT_THAT(Heard(), testing::EndsWith("host Error 91 Vorlane Remove DpCnt=9 - 2\n"));
}

// --- RemoveAllSelected: handlers that work on the sheet ---

TEST_F(RemovalTest, AScrollInRemovedOfASelectionIsKept) {
    Show(40);
    Select({2, 4});
    onRemoved = Once([this] { sheet->VScroll.SetValue(20); });
    sheet->RemoveAllSelected();
    EXPECT_EQ(sheet->Count(), 38);
    EXPECT_EQ(Shown(), "20 21 22 23 24 25 26 27 28");
    ExpectBarAtSlideZero();
    ExpectSlidesAgreeWithList();
}

TEST_F(RemovalTest, ARemovalOfTheSelectionInTheMiddleOfAFillKeepsTheWayOfTheBar) {
    for (const int32_t way : {9, 30}) {
        SCOPED_TRACE(way);
        Show(40);
        ScrollTo(12);
        Select({14, 16});
        onDisplayStart = [this, done = false]() mutable {
            if (!std::exchange(done, true)) sheet->RemoveAllSelected();
        };
        sheet->VScroll.SetValue(way);
        onDisplayStart = {};
        EXPECT_EQ(sheet->Count(), 38);
        const int32_t top = way == 30 ? 28 : 9;  // where the same item stands now
        EXPECT_EQ(sheet->Diapo.Item(0)->Value(), top) << Slides();
        EXPECT_EQ(sheet->Diapo.Item(8)->Value(), top + 8) << Slides();
        ExpectBarAtSlideZero();
        ExpectSlidesAgreeWithList();
        ExpectNoError();
        sheet->Clear();
    }
}

TEST_F(RemovalTest, AFillInFeedBackShowsTheListAsItIsThen) {
    Show(40);
    Select({2, 4});
    onFeedBack = [this](int32_t) { sheet->StartLecture(); };
    sheet->RemoveAllSelected();
    EXPECT_EQ(sheet->Count(), 38);
    EXPECT_EQ(Shown(), "0 1 3 5 6 7 8 9 10");
    ExpectSlidesAgreeWithList();
}

TEST_F(RemovalTest, ASortInFeedBackEndsTheRemoval) {
    Start();
    for (int32_t n = 0; n < 20; ++n) sheet->Add(File(n), std::to_string(100 - n), 1000 + n);
    sheet->StartLecture();
    Select({2, 4, 7});
    bool sorted = false;
    onFeedBack = [&](int32_t) {
        if (!std::exchange(sorted, true)) sheet->Sort();
    };
    sheet->RemoveAllSelected();
    EXPECT_EQ(sheet->Count(), 19);
    EXPECT_EQ(sheet->LstInterne.FindItemData(1007), -1);
    EXPECT_EQ(sheet->CountSelected(), 2) << "the others are still there and still selected";
    ExpectSlidesAgreeWithList();
    ExpectNoError();
}

TEST_F(RemovalTest, ClearInFeedBackLeavesAnEmptySheet) {
    Show(40);
    Select({2, 4});
    onFeedBack = [this](int32_t) { sheet->Clear(); };
    sheet->RemoveAllSelected();
    EXPECT_EQ(Slides(), "(.)");
    EXPECT_EQ(Heard(), "host Removed -1 key 1004\nhost TraitementFeedBack 1/2\nhost TLClear\nhost TLRefresh\n");
}

TEST_F(RemovalTest, AHandlerThatDropsTheSelectionDoesNotSpareItsItems) {
    Show(40);
    Select({2, 4, 6});
    onRemoved = Once([this] { sheet->LstInterne.ClearSelection(); });
    sheet->RemoveAllSelected();
    EXPECT_EQ(sheet->Count(), 37);
    ExpectSlidesAgreeWithList();
}

TEST_F(RemovalTest, AThrowInRemovedOfASelectionLeavesTheListAsItIsThen) {
    Show(40);
    Select({2, 4});
    onRemoved = [](int32_t& key) {
        if (key == 1002) throw failures::TypeMismatch();
    };
    sheet->RemoveAllSelected();
    EXPECT_EQ(sheet->Count(), 39);
    const std::string heard = Heard();
    EXPECT_THAT(heard, testing::HasSubstr("host Removed -1 key 1002\nhost DisplayStart\n"));
    EXPECT_THAT(heard, testing::EndsWith("host DisplayEnd\nhost Error 13 Vorlane RemoveAllSelected DpCnt=9\n"));
    EXPECT_EQ(Shown(), "0 1 2 3 5 6 7 8 9");
    ExpectSlidesAgreeWithList();
}

TEST_F(RemovalTest, AThrowBehindTheItemOfSlideZeroLeavesTheSheetWhereTheBarStands) {
    Show(40);
    ScrollTo(12);
    Select({12, 14});
    onFeedBack = [](int32_t done) {
        if (done == 2) throw failures::TypeMismatch();
    };
    sheet->RemoveAllSelected();
    EXPECT_EQ(Shown(), "13 15 16 17 18 19 20 21 22");
    ExpectBarAtSlideZero();
    ExpectSlidesAgreeWithList();
}

TEST_F(RemovalTest, TheSlidesAgreeWithTheListAfterEachItemOfASelection) {
    Show(40);
    Select({0, 2, 4, 6, 20});
    int32_t asked = 0;
    const auto look = [&] {
        ++asked;
        ExpectSlidesAgreeWithList();
    };
    onRemoved = [&](int32_t&) { look(); };
    onFeedBack = [&](int32_t) { look(); };
    sheet->RemoveAllSelected();
    EXPECT_EQ(asked, 10);
    EXPECT_EQ(Shown(), "1 3 5 7 8 9 10 11 12");
}

TEST_F(RemovalTest, ARemovalInFeedBackTakesTheItemThatItsSlideShows) {
    Show(40);
    Select({2, 4, 6});
    onFeedBack = [this](int32_t done) {
        if (done == 1) sheet->Remove(7);
    };
    sheet->RemoveAllSelected();
    EXPECT_EQ(sheet->Count(), 36);
    EXPECT_EQ(Shown(), "0 1 3 5 8 9 10 11 12");
    ExpectSlidesAgreeWithList();
    ExpectNoError();
}

TEST_F(RemovalTest, ARemovalInFeedBackOfASlideWhoseItemHasGoneTakesNothing) {
    Show(40);
    Select({2, 4, 6});
    onFeedBack = [this](int32_t done) {
        if (done == 1) sheet->Remove(6);
    };
    sheet->RemoveAllSelected();
    EXPECT_EQ(sheet->Count(), 37);
    EXPECT_THAT(Heard(), testing::HasSubstr("Vorlane Remove DpCnt=9 - 6\n"));
    ExpectSlidesAgreeWithList();
}

TEST_F(RemovalTest, TheSheetMayEndDuringARemoval) {
    Show(40);
    Select({2, 4});
    onFeedBack = [this](int32_t) { sheet->Terminate(); };
    sheet->RemoveAllSelected();
    EXPECT_THAT(Heard(), testing::EndsWith("host Error 91 Vorlane RemoveAllSelected DpCnt=9\n"));
    EXPECT_EQ(sheet->LstInterne.ListCount(), 39);
}

}  // namespace
}  // namespace vorlane
