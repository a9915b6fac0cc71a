// Sorting: the order of the list, and where the sheet stands behind it.
#include "tests/sheet/sheetfixture.h"
#include "tests/sheet/vectorlistbox.h"

namespace vorlane {
namespace {

class SortingTest : public SheetTest {
protected:
    static std::string Digits(int32_t n) { return (n < 10 ? "0" : "") + std::to_string(n); }

    // Sort data whose first criterion orders as the numbers do, the second the other way round.
    static std::string TwoKeys(int32_t n) { return "a" + Digits(n) + Vorlane::SepSortArg() + "b" + Digits(99 - n); }
    void AddSortable(int32_t items) {
        for (int32_t n = 0; n < items; ++n) {
            sheet->Add(File(n), TwoKeys(n), 1000 + n);
        }
    }
    void ShowSortable(int32_t items) {
        Start();
        AddSortable(items);
        sheet->StartLecture();
        desktop.trace.Clear();
    }
    // Shows four items in the order 3 1 0 2 of their first criterion.
    void ShowMixed() {
        Start();
        for (const int32_t n : {3, 1, 0, 2}) sheet->Add(File(n), Digits(n), 1000 + n);
        sheet->StartLecture();
        desktop.trace.Clear();
    }
    static std::function<void()> Once(std::function<void()> action) {
        return [action, done = std::make_shared<bool>(false)] {
            if (!std::exchange(*done, true)) action();
        };
    }
};

// --- Which criterion, which way ---

TEST_F(SortingTest, WithoutAnArgumentItSortsOnTheFirstCriterionAndStoresIt) {
    ShowMixed();
    EXPECT_EQ(sheet->SortCurrent(), 0);
    sheet->Sort();
    EXPECT_EQ(Order(), "0 1 2 3");
    EXPECT_EQ(sheet->SortCurrent(), 1);
}

TEST_F(SortingTest, ACriterionIsStoredAndSortedOnAgain) {
    ShowSortable(4);
    sheet->Sort(2);
    EXPECT_EQ(Order(), "3 2 1 0");
    EXPECT_EQ(sheet->SortCurrent(), 2);
    sheet->Add(File(4), TwoKeys(4), 1004);
    sheet->Sort();
    EXPECT_EQ(Order(), "4 3 2 1 0");
    EXPECT_EQ(sheet->SortCurrent(), 2);
}

TEST_F(SortingTest, ItSortsDownWhenSaidSo) {
    ShowMixed();
    sheet->SetSortedSens(SortSensType::ssDescending);
    sheet->Sort(1);
    EXPECT_EQ(Order(), "3 2 1 0");
}

TEST_F(SortingTest, AWayThatNobodyKnowsSortsDown) {
    PropertyBag bag;
    bag.SetValue("SortedSens", int64_t{7});
    Start(bag);
    for (const int32_t n : {3, 1, 0, 2}) sheet->Add(File(n), Digits(n), 1000 + n);
    sheet->StartLecture();
    sheet->Sort();
    EXPECT_EQ(Order(), "3 2 1 0");
}

TEST_F(SortingTest, TheMarkOfTheCurrentItemStaysAtItsPlaceInTheList) {
    ShowSortable(9);
    window.Click(50, 40);  // the first slide
    ASSERT_EQ(sheet->CurrentDiapo(), 0);
    sheet->Sort(2);
    const auto slide = sheet->Diapo.Item(5);
    ASSERT_EQ(slide->Value(), 8);
    ASSERT_TRUE(slide->Selected());
    EXPECT_EQ(slide->BackColor(), 7321083U) << "selected, and not the current one";
    EXPECT_EQ(sheet->CurrentDiapo(), -1);
    sheet->Sort(1);
    EXPECT_EQ(sheet->CurrentDiapo(), 0);
}

TEST_F(SortingTest, ACriterionBeyondTheFieldsLeavesTheOrder) {
    ShowMixed();
    sheet->Sort(200);
    EXPECT_EQ(Order(), "3 1 0 2");
    EXPECT_EQ(sheet->SortCurrent(), 200);
    EXPECT_THAT(Heard(), testing::EndsWith("host Sorted\n"));
}

TEST_F(SortingTest, SelectionsAndKeysMoveWithTheirItems) {
    ShowMixed();
    sheet->LstInterne.SetSelected(0, true);
    sheet->LstInterne.SetSelected(2, true);
    sheet->Sort(1);
    EXPECT_EQ(Order(), "0 1 2 3");
    EXPECT_TRUE(sheet->LstInterne.Selected(0) && sheet->LstInterne.Selected(3));
    EXPECT_EQ(sheet->CountSelected(), 2);
    ExpectSlidesAgreeWithList();
}

TEST_F(SortingTest, AHostsListIsSortedInPlace) {
    Start();
    VectorListBox list(500);
    for (const int32_t n : {2, 0, 1}) {
        list.AddItem(ItemText(Digits(n), File(n)));
        list.SetItemData(list.NewIndex(), 1000 + n);
    }
    sheet->InitListe(ListeModeType::lmList, &list);
    sheet->StartLecture();
    sheet->Sort();
    EXPECT_EQ(Order(), "0 1 2");
    ExpectSlidesAgreeWithList();
}

// --- What the host hears ---

TEST_F(SortingTest, WithNothingSelectedTheSheetStartsFromTheTop) {
    ShowMixed();
    sheet->Sort();
    EXPECT_EQ(Heard(),
              "host DisplayStart\n"
              "host BeforeSetPicture 0 000.jpg\nhost Added 0 000.jpg\n"
              "host Added 1 001.jpg\n"
              "host BeforeSetPicture 2 002.jpg\nhost Added 2 002.jpg\n"
              "host BeforeSetPicture 3 003.jpg\nhost Added 3 003.jpg\n"
              "host DisplayEnd\nhost Sorted\n");
    EXPECT_EQ(Slides(), "0 1 2 3");
    EXPECT_EQ(sheet->LstInterne.ListIndex(), 0);
}

TEST_F(SortingTest, ASheetThatMayNotBeSortedDoesNothing) {
    ShowMixed();
    sheet->SetSorted(false);
    desktop.trace.Clear();
    sheet->Sort(2);
    EXPECT_EQ(Heard(), "");
    EXPECT_EQ(Order(), "3 1 0 2");
    EXPECT_EQ(sheet->SortCurrent(), 0);
}

TEST_F(SortingTest, WithoutAWayNothingIsSortedButTheSheetStartsFromTheTopAndSaysSorted) {
    ShowSortable(40);
    sheet->VScroll.SetValue(20);
    sheet->SetSelected(4, true);
    sheet->SetSortedSens(SortSensType::ssNone);
    desktop.trace.Clear();
    sheet->Sort();
    EXPECT_EQ(sheet->LstInterne.ItemData(39), 1039);
    EXPECT_EQ(sheet->VScroll.Value(), 0);
    EXPECT_EQ(Slides(), "0 1 2 3 4 5 6 7 8");
    EXPECT_THAT(Heard(), testing::EndsWith("host DisplayEnd\nhost Scroll 0 from 20\nhost Sorted\n"));
    ExpectSlidesAgreeWithList();
}

TEST_F(SortingTest, OneItemIsLeftAsItIsAndSortedIsSaid) {
    ShowSortable(1);
    sheet->Sort();
    EXPECT_EQ(Heard(), "host DisplayStart\nhost Added 0 000.jpg\nhost DisplayEnd\nhost Sorted\n");
    EXPECT_EQ(Slides(), "0");
}

TEST_F(SortingTest, AnEmptySheetSaysSorted) {
    ShowSortable(0);
    sheet->Sort();
    EXPECT_EQ(Heard(), "host DisplayStart\nhost DisplayEnd\nhost Sorted\n");
    EXPECT_EQ(Slides(), "(.)");
}

TEST_F(SortingTest, AListThatSortsItselfIsRefusedWithAMessageAndShownFromTheTop) {
    Start();
    VectorListBox list(500);
    for (int32_t n = 39; n >= 0; --n) {
        list.AddItem(ItemText(Digits(n), File(n)));
        list.SetItemData(list.NewIndex(), 1000 + n);
    }
    list.sorted = true;
    sheet->InitListe(ListeModeType::lmList, &list);
    sheet->StartLecture("", 1020);
    sheet->SetSelected(2, true);
    desktop.trace.Clear();
    sheet->Sort();
    EXPECT_EQ(Heard({"msgbox"}), "msgbox 48 [Vorlane] La propriété de la liste ne doit pas être Sorted\n");
    EXPECT_EQ(list.ItemData(0), 1039);
    EXPECT_EQ(Slides(), "0 1 2 3 4 5 6 7 8");
    EXPECT_EQ(sheet->SortCurrent(), 1);
}

TEST_F(SortingTest, AFileListIsNotSortedButShownFromTheTop) {
    Start();
    sheet->InitListe(ListeModeType::lmFileList);
    desktop.trace.Clear();
    sheet->Sort();
    EXPECT_EQ(Heard(), "host DisplayStart\nhost DisplayEnd\nhost Sorted\n");
}

// --- Where the sheet stands behind it ---

TEST_F(SortingTest, TheSelectedItemStaysOnItsSlide) {
    ShowSortable(40);
    sheet->VScroll.SetValue(9);
    sheet->SetSelected(4, true);
    sheet->Sort(2);
    EXPECT_EQ(sheet->LstInterne.ItemData(26), 1013);
    EXPECT_EQ(Slides(), "22 23 24 25 26 27 28 29 30");
    EXPECT_TRUE(sheet->Diapo.Item(4)->Selected());
    EXPECT_EQ(sheet->Diapo.Item(4)->ImageFullPath(), File(13));
    EXPECT_EQ(sheet->VScroll.Value(), 22);
    EXPECT_THAT(Heard(), testing::EndsWith("host DisplayEnd\nhost Scroll 22 from 9\nhost Sorted\n"));
    ExpectSlidesAgreeWithList();
}

TEST_F(SortingTest, NearTheTopTheSheetStandsAtTheTop) {
    ShowSortable(40);
    sheet->VScroll.SetValue(31);
    sheet->SetSelected(6, true);
    sheet->Sort(2);
    EXPECT_EQ(sheet->LstInterne.ItemData(2), 1037);
    EXPECT_EQ(Slides(), "0 1 2 3 4 5 6 7 8");
    EXPECT_TRUE(sheet->Diapo.Item(2)->Selected());
    ExpectSlidesAgreeWithList();
}

TEST_F(SortingTest, NearTheEndTheSheetIsFilledFromWhereTheBarCanGo) {
    ShowSortable(40);
    sheet->SetSelected(0, true);
    sheet->Sort(2);
    EXPECT_EQ(sheet->LstInterne.ItemData(39), 1000);
    EXPECT_EQ(sheet->VScroll.Value(), 34);
    EXPECT_EQ(Slides(), "34 35 36 37 38 39");
    EXPECT_TRUE(sheet->Diapo.Item(5)->Selected());
    ExpectSlidesAgreeWithList();
}

TEST_F(SortingTest, ABarThatStandsAtItsEndAlreadyFillsAllTheSame) {
    ShowSortable(40);
    sheet->VScroll.SetValue(34);
    sheet->SetSelected(0, true);
    sheet->LstInterne.SetList(34, ItemText("a99", File(34)));
    desktop.trace.Clear();
    sheet->Sort(1);
    EXPECT_EQ(sheet->LstInterne.ItemData(39), 1034);
    EXPECT_EQ(sheet->VScroll.Value(), 34);
    EXPECT_EQ(Slides(), "34 35 36 37 38 39");
    EXPECT_EQ(Heard().find("Scroll"), std::string::npos) << "the bar has not moved";
    ExpectSlidesAgreeWithList();
}

TEST_F(SortingTest, WithinARowOfTheOldPlaceNoOldLookIsCopied) {
    ShowSortable(20);
    sheet->VScroll.SetValue(5);
    sheet->SetSelected(4, true);
    sheet->Sort(2);
    EXPECT_EQ(sheet->VScroll.Value(), 6) << "one item further, so within a step of the bar";
    EXPECT_EQ(Slides(), "6 7 8 9 10 11 12 13 14");
    EXPECT_TRUE(sheet->Diapo.Item(4)->Selected());
    ExpectSlidesAgreeWithList();
}

TEST_F(SortingTest, WhereTheBarStandsRightAlreadyTheSheetIsFilledAgain) {
    ShowSortable(19);
    sheet->VScroll.SetValue(5);
    sheet->SetSelected(4, true);
    desktop.trace.Clear();
    sheet->Sort(2);
    EXPECT_EQ(sheet->VScroll.Value(), 5);
    EXPECT_EQ(Slides(), "5 6 7 8 9 10 11 12 13");
    EXPECT_EQ(Heard().find("Scroll"), std::string::npos);
    ExpectSlidesAgreeWithList();
    sheet->VScroll.SetValue(8);
    EXPECT_EQ(Slides(), "8 9 10 11 12 13 14 15 16");
    ExpectSlidesAgreeWithList();
}

TEST_F(SortingTest, ItemsAddedUnseenCountForTheBar) {
    ShowSortable(4);
    sheet->SetSelected(2, true);
    for (int32_t n = 4; n < 40; ++n) sheet->Add(File(n), TwoKeys(n), 1000 + n);
    sheet->Sort(2);
    EXPECT_EQ(sheet->VScroll.Value(), 34) << "item 2 is at 37 now; the sheet can't go further than 34";
    EXPECT_EQ(Slides(), "34 35 36 37 38 39");
    ExpectSlidesAgreeWithList();
}

TEST_F(SortingTest, UpwardsTheLastSelectedSlideIsTheAnchor) {
    ShowSortable(40);
    sheet->Sort(2);
    sheet->VScroll.SetValue(12);
    sheet->SetSelected(2, true);
    sheet->SetSelected(7, true);
    sheet->Sort(1);
    EXPECT_EQ(sheet->Diapo.Item(7)->ImageFullPath(), File(39 - 19));
    EXPECT_EQ(sheet->VScroll.Value(), 20 - 7);
}

TEST_F(SortingTest, DownwardsTheFirstSelectedSlideIsTheAnchor) {
    ShowSortable(40);
    sheet->VScroll.SetValue(12);
    sheet->SetSelected(2, true);
    sheet->SetSelected(7, true);
    sheet->SetSortedSens(SortSensType::ssDescending);
    sheet->Sort(1);
    EXPECT_EQ(sheet->Diapo.Item(2)->ImageFullPath(), File(14));
    EXPECT_EQ(sheet->VScroll.Value(), 39 - 14 - 2);
}

TEST_F(SortingTest, ASelectionThatNoSlideShowsIsNoAnchor) {
    ShowSortable(40);
    sheet->VScroll.SetValue(9);
    sheet->LstInterne.SetSelected(30, true);
    sheet->Sort(2);
    EXPECT_EQ(Slides(), "0 1 2 3 4 5 6 7 8");
    EXPECT_TRUE(sheet->LstInterne.Selected(9));
}

TEST_F(SortingTest, SidewaysTheSelectedItemStaysOnItsSlideToo) {
    PropertyBag bag;
    bag.SetValue("ScrollDirection", int64_t{1});
    Start(bag);
    AddSortable(40);
    sheet->StartLecture("", 1010);
    sheet->SetSelected(2, true);
    sheet->Sort(2);
    EXPECT_EQ(sheet->VScroll.Value(), 39 - 12 - 2);
    EXPECT_EQ(sheet->Diapo.Item(2)->ImageFullPath(), File(12));
    ExpectSlidesAgreeWithList();
}

// --- Failures ---

TEST_F(SortingTest, AListThatCannotTellWhetherItSortsIsAFailureOfSortIntAndTheSheetIsFilled) {
    Start();
    VectorListBox list(500);
    list.AddItem(ItemText("1", File(0)));
    sheet->InitListe(ListeModeType::lmList, &list);
    list.dead = true;
    desktop.trace.Clear();
    sheet->Sort();
    EXPECT_THAT(Heard(), testing::StartsWith("host Error 91 Vorlane SortInt DpCnt=1 - 1 - -1\nhost DisplayStart\n"));
    EXPECT_EQ(Slides(), "0");
}

TEST_F(SortingTest, AThrowInSortedIsAFailureOfSort) {
    ShowSortable(9);
    onSorted = [] { throw failures::TypeMismatch(); };
    sheet->Sort(2);
    EXPECT_THAT(Heard(), testing::EndsWith("host Sorted\nhost Error 13 Vorlane Sort DpCnt=9 - 2\n"));
}

TEST_F(SortingTest, AnEndedSheetReportsThatItHasNoList) {
    ShowSortable(3);
    sheet->Terminate();
    sheet->Sort();
    EXPECT_THAT(Heard(), testing::StartsWith("host Error 91 Vorlane SortInt DpCnt=3 - 1 - -1\n"));
}

// --- Handlers that work on the sheet ---

TEST_F(SortingTest, ClearInSortedLeavesAnEmptySheet) {
    ShowSortable(40);
    onSorted = [this] { sheet->Clear(); };
    sheet->Sort(2);
    EXPECT_EQ(Slides(), "(.)");
    EXPECT_EQ(sheet->Count(), 0);
    EXPECT_THAT(Heard(), testing::EndsWith("host Sorted\nhost TLClear\n"));
}

TEST_F(SortingTest, AScrollInSortedTakesTheSortedListOn) {
    ShowSortable(40);
    onSorted = [this] { sheet->VScroll.SetValue(3); };
    sheet->Sort(2);
    EXPECT_EQ(Slides(), "3 4 5 6 7 8 9 10 11");
    EXPECT_EQ(sheet->Diapo.Item(0)->ImageFullPath(), File(36));
    ExpectSlidesAgreeWithList();
}

TEST_F(SortingTest, AStartInSortedShowsTheWantedItem) {
    ShowSortable(40);
    onSorted = [this] { sheet->StartLecture("", 1020); };
    sheet->Sort(2);
    EXPECT_EQ(sheet->Diapo.Item(0)->ImageFullPath(), File(20));
    ExpectSlidesAgreeWithList();
}

TEST_F(SortingTest, ASortInSortedIsTheOneThatCounts) {
    ShowSortable(40);
    onSorted = Once([this] { sheet->Sort(1); });
    sheet->Sort(2);
    EXPECT_EQ(sheet->LstInterne.ItemData(0), 1000);
    EXPECT_EQ(sheet->Diapo.Item(0)->ImageFullPath(), File(0));
    const std::string heard = Heard();
    EXPECT_EQ(heard.find("host Sorted"), heard.rfind("host Sorted\nhost DisplayStart\n"));
    EXPECT_THAT(heard, testing::EndsWith("host DisplayEnd\nhost Sorted\n"));
    ExpectSlidesAgreeWithList();
}

TEST_F(SortingTest, ASortInAddedBindsAllSlidesToTheNewOrder) {
    ShowSortable(40);
    onAdded = [sort = Once([this] { sheet->Sort(1); })](int16_t slot) {
        if (slot == 4) sort();
    };
    sheet->Sort(2);
    EXPECT_EQ(sheet->Diapo.Item(0)->ImageFullPath(), File(0));
    EXPECT_EQ(Slides(), "0 1 2 3 4 5 6 7 8");
    ExpectSlidesAgreeWithList();
}

TEST_F(SortingTest, ClearInAddedStopsTheFillAndSortedIsSaid) {
    ShowSortable(40);
    sheet->SetSelected(1, true);
    onAdded = [clear = Once([this] { sheet->Clear(); })](int16_t slot) {
        if (slot == 4) clear();
    };
    sheet->Sort(2);
    EXPECT_EQ(Slides(), "(.)");
    EXPECT_THAT(Heard(), testing::EndsWith("host TLClear\nhost DisplayEnd\nhost Scroll 34 from -1\nhost Sorted\n"));
}

}  // namespace
}  // namespace vorlane
