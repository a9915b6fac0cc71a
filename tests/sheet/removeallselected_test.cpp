// Removing the selected items.
#include "tests/sheet/removalfixture.h"
#include "tests/sheet/vectorlistbox.h"

namespace vorlane {
namespace {

// --- RemoveAllSelected ---

TEST_F(RemovalTest, WithNothingSelectedNoEventIsRaised) {
    Show(20);
    sheet->RemoveAllSelected();
    EXPECT_EQ(Heard(), "");
    EXPECT_EQ(sheet->Count(), 20);
}

TEST_F(RemovalTest, ASelectionInAFileListIsLeft) {
    Start();
    sheet->InitListe(ListeModeType::lmFileList);
    desktop.trace.Clear();
    sheet->RemoveAllSelected();
    EXPECT_EQ(Heard(), "");
}

TEST_F(RemovalTest, TheSelectedItemsGoFromTheLastToTheFirstAndTheSlidesBehindAreFilled) {
    Show(40);
    Select({2, 4});
    sheet->RemoveAllSelected();
    EXPECT_EQ(Heard(),
              "host Removed -1 key 1004\nhost TraitementFeedBack 1/2\n"
              "host Removed -1 key 1002\nhost TraitementFeedBack 2/2\n"
              "host DisplayStart\n"
              "host BeforeSetPicture 2 003.jpg\nhost Added 2 003.jpg\n"
              "host BeforeSetPicture 3 005.jpg\nhost Added 3 005.jpg\n"
              "host BeforeSetPicture 4 006.jpg\nhost Added 4 006.jpg\n"
              "host BeforeSetPicture 5 007.jpg\nhost Added 5 007.jpg\n"
              "host BeforeSetPicture 6 008.jpg\nhost Added 6 008.jpg\n"
              "host BeforeSetPicture 7 009.jpg\nhost Added 7 009.jpg\n"
              "host BeforeSetPicture 8 010.jpg\nhost Added 8 010.jpg\n"
              "host DisplayEnd\nhost TLRefresh\n");
    EXPECT_EQ(Slides(), "0 1 2 3 4 5 6 7 8");
    EXPECT_EQ(sheet->CountSelected(), 0);
    ExpectSlidesAgreeWithList();
}

TEST_F(RemovalTest, AListThatNowFitsIsShownWhole) {
    Show(12);
    ScrollTo(3);
    Select({4, 6, 7, 8, 9});
    sheet->RemoveAllSelected();
    EXPECT_EQ(Shown(), "0 1 2 3 5 10 11");
    ExpectBarAtSlideZero();
    ExpectSlidesAgreeWithList();
}

TEST_F(RemovalTest, FromSlideZeroOnTheSheetIsFilledFromTheFirstItemThatWent) {
    Show(40);
    ScrollTo(12);
    Select({12, 13});
    sheet->RemoveAllSelected();
    EXPECT_EQ(Shown(), "14 15 16 17 18 19 20 21 22");
    EXPECT_EQ(Slides(), "12 13 14 15 16 17 18 19 20");
    ExpectBarAtSlideZero();
    ExpectSlidesAgreeWithList();
}

TEST_F(RemovalTest, FromSlideZeroOnAtTheListsEndTheSheetGoesBackByAPool) {
    Show(40);
    ScrollTo(31);
    Select({31, 32, 33, 34, 35, 36});
    sheet->RemoveAllSelected();
    EXPECT_EQ(Slides(), "25 26 27 28 29 30 31 32 33");
    ExpectBarAtSlideZero();
    ExpectSlidesAgreeWithList();
}

TEST_F(RemovalTest, ASelectionThatNoSlideShowsTakesTheSheetToItsPlace) {
    Show(40);
    Select({20, 30});
    sheet->RemoveAllSelected();
    EXPECT_EQ(Shown(), "21 22 23 24 25 26 27 28 29");
    ExpectBarAtSlideZero();
    ExpectSlidesAgreeWithList();
    sheet->VScroll.SetValue(23);
    EXPECT_EQ(Slides(), "23 24 25 26 27 28 29 30 31");
    ExpectSlidesAgreeWithList();
}

TEST_F(RemovalTest, WhatGoesBeforeTheFirstSlideLetsTheSheetKeepItsItem) {
    Show(40);
    ScrollTo(20);
    Select({3, 5, 23, 30});
    sheet->RemoveAllSelected();
    EXPECT_EQ(Shown(), "20 21 22 24 25 26 27 28 29");
    EXPECT_EQ(Slides(), "18 19 20 21 22 23 24 25 26");
    ExpectBarAtSlideZero();
    ExpectSlidesAgreeWithList();
}

TEST_F(RemovalTest, WhereTheListsEndGoesTheSheetGoesBackByAPool) {
    Show(29);
    ScrollTo(20);
    Select({23, 24, 25, 26, 27, 28});
    sheet->RemoveAllSelected();
    EXPECT_EQ(Slides(), "14 15 16 17 18 19 20 21 22");
    ExpectBarAtSlideZero();
    ExpectSlidesAgreeWithList();
}

TEST_F(RemovalTest, AllItemsMayGo) {
    Show(20);
    sheet->LstInterne.SelectAll();
    sheet->RemoveAllSelected();
    EXPECT_EQ(sheet->Count(), 0);
    EXPECT_EQ(Slides(), "(.)");
    EXPECT_THAT(Heard(), testing::EndsWith("host TraitementFeedBack 20/20\nhost DisplayStart\nhost DisplayEnd\n"
                                           "host TLRefresh\n"));
    EXPECT_FALSE(sheet->VScroll.Visible());
}

TEST_F(RemovalTest, AListThatCannotTellItsSelectionLosesNothingAndIsFilled) {
    Start();
    VectorListBox list(500);
    for (int32_t n = 0; n < 20; ++n) list.AddItem("\t" + File(n));
    sheet->InitListe(ListeModeType::lmList, &list);
    sheet->StartLecture();
    list.SetSelected(4, true);
    list.mute = true;
    desktop.trace.Clear();
    sheet->RemoveAllSelected();
    EXPECT_EQ(list.ListCount(), 20);
    EXPECT_EQ(Slides(), "0 1 2 3 4 5 6 7 8");
    EXPECT_THAT(Heard(), testing::EndsWith("host DisplayEnd\nhost TLRefresh\n"));
}

}  // namespace
}  // namespace vorlane
