// Removing the item of one slide.
#include "tests/sheet/removalfixture.h"

#include <algorithm>
#include <random>

namespace vorlane {
namespace {

// --- Remove: what goes ---

TEST_F(RemovalTest, ASlideIndexBeyondTheLoadedSlidesDoesNothing) {
    Show(4);
    sheet->Remove(4);
    EXPECT_EQ(Heard(), "");
    EXPECT_EQ(Order(), "0 1 2 3");
}

TEST_F(RemovalTest, ASlideIndexBeyondTheListDoesNothing) {
    Show(4);
    sheet->LstInterne.RemoveItem(3);
    sheet->Remove(3);
    EXPECT_EQ(Heard(), "");
    EXPECT_EQ(Order(), "0 1 2");
}

TEST_F(RemovalTest, AFileListLosesNothing) {
    Start();
    sheet->InitListe(ListeModeType::lmFileList);
    desktop.trace.Clear();
    sheet->Remove(0);
    sheet->Remove(-1);
    EXPECT_EQ(Heard(), "");
}

TEST_F(RemovalTest, ANegativeSlideIndexIsAFailureAndChangesNothing) {
    Show(4);
    sheet->Remove(-1);
    EXPECT_EQ(Heard(), "host Error 340 Vorlane Remove DpCnt=4 - -1\n");
    EXPECT_EQ(Order(), "0 1 2 3");
    EXPECT_EQ(Slides(), "0 1 2 3");
}

TEST_F(RemovalTest, ASlideThatShowsNoItemIsAFailureAndChangesNothing) {
    Show(4);
    sheet->Diapo.Item(2)->SetValue(-1);
    sheet->Remove(2);
    EXPECT_EQ(Heard(), "host Error 9 Vorlane Remove DpCnt=4 - 2\n");
    EXPECT_EQ(Order(), "0 1 2 3");
}

TEST_F(RemovalTest, TheItemIsAnnouncedWithItsKeyBeforeItGoes) {
    Show(4);
    int32_t count = 0;
    onRemoved = [&](int32_t& key) {
        count = sheet->Count();
        key = 77;
    };
    sheet->Remove(2);
    EXPECT_EQ(Heard(), "host Removed 2 key 1002\nhost TLRefresh\n");
    EXPECT_EQ(count, 4);
    EXPECT_EQ(Order(), "0 1 3") << "the key that the handler wrote has no part in it";
}

TEST_F(RemovalTest, TheSlideIsMeantAndNotTheListIndex) {
    Show(40);
    ScrollTo(12);
    sheet->Remove(2);
    EXPECT_EQ(sheet->LstInterne.FindItemData(1014), -1);
    EXPECT_EQ(sheet->Count(), 39);
    ExpectSlidesAgreeWithList();
}

// --- Remove: how the slides close up ---

TEST_F(RemovalTest, TheSlidesBehindMoveUpByCopyingAndYieldAfterEach) {
    Show(5);
    sheet->Remove(1);
    EXPECT_EQ(Heard({"host", "load", "yield"}), "host Removed 1 key 1001\nyield\nyield\nyield\nhost TLRefresh\n");
    EXPECT_EQ(Slides(), "0 1 2 3");
    EXPECT_EQ(Shown(), "0 2 3 4");
    ExpectSlidesAgreeWithList();
}

TEST_F(RemovalTest, TheSelectionMovesUpWithTheLooks) {
    Show(5);
    sheet->SetSelected(3, true);
    sheet->Remove(1);
    EXPECT_TRUE(sheet->Diapo.Item(2)->Selected());
    EXPECT_FALSE(sheet->Diapo.Item(3)->Selected());
    ExpectSlidesAgreeWithList();
}

TEST_F(RemovalTest, TheLastSlideOfAFullPoolTakesTheItemBehindTheNextOne) {
    Show(40);
    sheet->Remove(2);
    EXPECT_EQ(Heard({"host", "load", "yield"}),
              "host Removed 2 key 1002\n"
              "yield\nyield\nyield\nyield\nyield\nyield\n"
              "host DisplayStart\nhost BeforeSetPicture 8 010.jpg\nload /p/010.jpg\nhost Added 8 010.jpg\n"
              "host DisplayEnd\nhost TLRefresh\n");
    EXPECT_EQ(Slides(), "0 1 2 3 4 5 6 7 9");
    EXPECT_EQ(Shown(), "0 1 3 4 5 6 7 8 10") << "9 is passed over";
    EXPECT_EQ(sheet->VScroll.Max(), 3 + 39 - 9);
    ExpectSlidesAgreeWithList();
}

TEST_F(RemovalTest, AnItemThatWasPassedOverStaysOutWhileTheSlidesMoveByRows) {
    Show(40);
    sheet->Remove(2);
    ASSERT_EQ(Slides(), "0 1 2 3 4 5 6 7 9");
    sheet->VScroll.SetValue(3);
    EXPECT_EQ(Slides(), "3 4 5 6 7 9 10 11 12");
    sheet->VScroll.SetValue(6);
    EXPECT_EQ(Slides(), "6 7 9 10 11 12 13 14 15");
    ExpectSlidesAgreeWithList();
    sheet->StartLecture("", sheet->Key(6));
    EXPECT_EQ(Slides(), "6 7 8 9 10 11 12 13 14");
}

TEST_F(RemovalTest, AnItemThatWasPassedOverComesBackWhereItStoodAtTheTop) {
    Show(40);
    sheet->Remove(2);
    for (const int32_t value : {3, 6, 9}) sheet->VScroll.SetValue(value);
    EXPECT_EQ(Slides(), "10 11 12 13 14 15 16 17 18");
    sheet->VScroll.SetValue(6);
    EXPECT_EQ(Slides(), "6 7 8 9 10 11 12 13 14");
}

TEST_F(RemovalTest, ALayoutMakesItsSlidesBehindAnItemThatWasPassedOver) {
    Show(40);
    sheet->Remove(2);
    window.Resize(450, kHeight);
    desktop.clock.Advance(300);
    EXPECT_EQ(Slides(), "0 1 2 3 4 5 6 7 9 10 11 12");
    ExpectSlidesAgreeWithList();
}

TEST_F(RemovalTest, EachRemovalPassesAnItemOfItsOwnOver) {
    Show(40);
    sheet->Remove(2);
    sheet->Remove(2);
    EXPECT_EQ(Slides(), "0 1 2 3 4 5 6 8 10");
    EXPECT_EQ(Shown(), "0 1 4 5 6 7 8 10 12");
    ExpectSlidesAgreeWithList();
}

TEST_F(RemovalTest, TheLastSlideItselfIsFilledAnew) {
    Show(40);
    sheet->Remove(8);
    EXPECT_EQ(Heard({"yield"}), "");
    EXPECT_EQ(Shown(), "0 1 2 3 4 5 6 7 10");
    ExpectSlidesAgreeWithList();
}

TEST_F(RemovalTest, WithNothingBehindTheLastSlideItIsUnloadedInTheFullPoolToo) {
    Show(9);
    sheet->Remove(4);
    EXPECT_EQ(Heard(), "host Removed 4 key 1004\nhost TLRefresh\n");
    EXPECT_EQ(Slides(), "0 1 2 3 4 5 6 7");
    ExpectSlidesAgreeWithList();
}

TEST_F(RemovalTest, AListThatNowFitsThePoolIsShownWhole) {
    Show(10);
    sheet->Remove(0);
    EXPECT_EQ(Shown(), "1 2 3 4 5 6 7 8 9");
    sheet->VScroll.SetValue(3);
    EXPECT_EQ(Shown(), "4 5 6 7 8 9");
    ExpectSlidesAgreeWithList();
}

TEST_F(RemovalTest, WithOnlyTheNextItemLeftTheLastSlideTakesThat) {
    Show(13);
    ScrollTo(3);
    sheet->Remove(0);
    EXPECT_EQ(Slides(), "3 4 5 6 7 8 9 10 11");
    EXPECT_EQ(Shown(), "4 5 6 7 8 9 10 11 12");
    sheet->VScroll.SetValue(6);
    EXPECT_EQ(Shown(), "7 8 9 10 11 12");
    ExpectSlidesAgreeWithList();
}

TEST_F(RemovalTest, AtTheEndOfALongListTheLastSlideIsUnloaded) {
    Show(40);
    ScrollTo(31);
    sheet->Remove(8);
    EXPECT_EQ(Slides(), "31 32 33 34 35 36 37 38");
    EXPECT_EQ(Heard(), "host Removed 8 key 1039\nhost TLRefresh\n");
    EXPECT_EQ(sheet->VScroll.Value(), 31);
    ExpectSlidesAgreeWithList();
}

TEST_F(RemovalTest, WhereTheLastRowIsFreeTheRowBeforeComesDown) {
    Show(40);
    ScrollTo(34);
    ASSERT_EQ(Slides(), "34 35 36 37 38 39");
    sheet->Remove(1);
    EXPECT_EQ(Slides(), "31 32 33 34 35 36 37 38");
    EXPECT_EQ(Shown(), "31 32 33 34 36 37 38 39");
    EXPECT_THAT(Heard(), testing::EndsWith("host Added 2 033.jpg\nhost DisplayEnd\nhost TLRefresh\n"));
    ExpectBarAtSlideZero();
    ExpectSlidesAgreeWithList();
}

TEST_F(RemovalTest, BehindARowThatCameDownTheSheetScrollsOnFromThere) {
    Show(40);
    ScrollTo(34);
    sheet->Remove(1);
    sheet->VScroll.SetValue(34);
    EXPECT_EQ(Slides(), "33 34 35 36 37 38");
    ExpectSlidesAgreeWithList();
    sheet->VScroll.SetValue(30);
    EXPECT_EQ(Slides(), "30 31 32 33 34 35 36 37 38");
    ExpectSlidesAgreeWithList();
}

TEST_F(RemovalTest, WhereLessThanARowIsLeftBeforeTheSheetStartsFromTheTop) {
    Show(8);
    ShowFrom(2);
    ASSERT_EQ(Slides(), "2 3 4 5 6 7");
    sheet->Remove(0);
    EXPECT_EQ(Slides(), "0 1 2 3 4 5 6");
    EXPECT_EQ(Shown(), "0 1 3 4 5 6 7");
    ExpectBarAtSlideZero();
    ExpectSlidesAgreeWithList();
}

TEST_F(RemovalTest, ItemsThatWereAddedUnseenComeToShow) {
    Show(5);
    AddItems(5, 14);
    sheet->Remove(0);
    EXPECT_EQ(Shown(), "1 2 3 4 5 6 7 8 9");
    ExpectSlidesAgreeWithList();
}

TEST_F(RemovalTest, WhereTheBarGoesAllItemsAreShown) {
    Show(7);
    ShowFrom(1);
    ASSERT_EQ(Slides(), "1 2 3 4 5 6");
    sheet->Remove(2);
    EXPECT_FALSE(sheet->VScroll.Visible());
    EXPECT_EQ(Shown(), "0 1 2 4 5 6");
    ExpectSlidesAgreeWithList();
}

TEST_F(RemovalTest, OneByOneFromTheFirstSlideNoItemGetsOutOfReach) {
    Show(12);
    for (int32_t left = 11; left >= 0; --left) {
        sheet->Remove(0);
        ASSERT_EQ(sheet->Count(), left);
        EXPECT_EQ(sheet->Diapo.Item(0)->Visible(), left > 0);
        ExpectSlidesAgreeWithList();
        ExpectAllWithinReach();
    }
    ExpectNoError();
}

TEST_F(RemovalTest, OneByOneFromTheListsEndTheSheetNeverGoesBlank) {
    Show(23);
    sheet->VScroll.SetValue(sheet->VScroll.Max());
    for (int32_t left = 22; left > 0; --left) {
        sheet->Remove(static_cast<int16_t>(sheet->Diapo.Count() - 1));
        ASSERT_EQ(sheet->Count(), left);
        EXPECT_TRUE(sheet->Diapo.Item(0)->Visible());
        EXPECT_EQ(sheet->Diapo.Item(sheet->Diapo.Count() - 1)->Value(), left - 1);
        ExpectSlidesAgreeWithList();
    }
    ExpectNoError();
}

TEST_F(RemovalTest, TheLastItemLeavesAnEmptySheet) {
    Show(1);
    sheet->Remove(0);
    EXPECT_EQ(Heard(), "host Removed 0 key 1000\nhost TLRefresh\n");
    EXPECT_EQ(Slides(), "(.)");
    AddItems(5, 6);
    sheet->StartLecture();
    EXPECT_EQ(Shown(), "5 6");
}

TEST_F(RemovalTest, APoolOfOneSlideShowsTheItemBefore) {
    window.Resize(90, 60);
    Show(5);
    ASSERT_EQ(sheet->CountDiapo(), 1);
    sheet->VScroll.SetValue(3);
    sheet->Remove(0);
    EXPECT_EQ(Shown(), "2");
    sheet->Remove(0);
    sheet->Remove(0);
    EXPECT_EQ(Shown(), "0");
    sheet->Remove(0);
    EXPECT_EQ(Shown(), "4");
    sheet->Remove(0);
    EXPECT_EQ(Slides(), "(.)");
    ExpectNoError();
}

TEST_F(RemovalTest, ASidewaysSheetClosesUpToo) {
    ShowSideways(10);
    ASSERT_EQ(Slides(), "0 1 2 3");
    sheet->Remove(1);
    EXPECT_EQ(Shown(), "0 2 3 5");
    ExpectSlidesAgreeWithList();
    sheet->VScroll.SetValue(6);
    ASSERT_EQ(Shown(), "7 8 9");
    sheet->Remove(2);
    EXPECT_EQ(Shown(), "7 8");
    ExpectSlidesAgreeWithList();
    sheet->Remove(0);
    sheet->Remove(0);
    EXPECT_EQ(sheet->Count(), 6);
    EXPECT_TRUE(sheet->Diapo.Item(0)->Visible());
    ExpectSlidesAgreeWithList();
}

TEST_F(RemovalTest, BlankSlidesAtTheEndStayBlank) {
    Show(8);
    ScrollTo(2);
    sheet->VScroll.SetValue(0);
    sheet->Remove(0);
    for (int32_t k = 0; k < sheet->Diapo.Count(); ++k) EXPECT_GE(sheet->Diapo.Item(k)->Value(), -1);
    EXPECT_EQ(sheet->Count(), 7);
    ExpectSlidesAgreeWithList();
    ExpectNoError();
}

// --- Anything at all ---

TEST_F(RemovalTest, WhateverGoesAndScrollsTheSlidesAgreeWithTheListAndTheSheetIsNeverBlank) {
    std::mt19937 random(7);
    const auto below = [&](int32_t limit) {
        return static_cast<int32_t>(random() % static_cast<uint32_t>(std::max(limit, 1)));
    };
    for (const bool sideways : {false, true}) {
        Make(window.Ambient());
        sideways ? ShowSideways(60) : Show(60);
        for (int32_t step = 0; step < 2000; ++step) {
            SCOPED_TRACE(step);
            const int32_t before = sheet->Count();
            const int32_t kind = before == 0 ? 6 : below(9);
            if (kind < 2) {
                for (int32_t n = below(5); n > 0; --n) sheet->LstInterne.SetSelected(below(sheet->Count()), true);
                sheet->StartLecture("", sheet->Key(std::min<int32_t>(sheet->VScroll.Value(), sheet->Count() - 1)));
                sheet->RemoveAllSelected();
            } else if (kind < 6) {
                const auto slot = static_cast<int16_t>(below(sheet->Diapo.Count()));
                if (sheet->Diapo.Item(slot)->Value() >= 0) sheet->Remove(slot);
            } else if (kind == 6 && sheet->Count() < 40) {
                for (int32_t n = below(12); n >= 0; --n) sheet->Add(File(below(90)), "", 1000 * step + n, below(2) - 1);
                sheet->StartLecture("", sheet->Key(below(sheet->Count())));
            } else {
                sheet->VScroll.SetValue(below(sheet->VScroll.Max() + 1));
            }
            ExpectSlidesAgreeWithList();
            EXPECT_EQ(sheet->Diapo.Item(0)->Visible(), sheet->Count() > 0);
            if (sheet->Count() < before) {
                ExpectNoError();
                ExpectAllWithinReach();
            }
            ASSERT_FALSE(HasFailure()) << Slides() << " of " << sheet->Count() << ", kind " << kind;
            desktop.trace.Clear();
        }
    }
}

}  // namespace
}  // namespace vorlane
