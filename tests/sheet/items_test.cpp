// Items: adding, clearing, binding lists, reading folders, keys.
#include "tests/platform/temporaryfolder.h"
#include "tests/sheet/sheetfixture.h"
#include "tests/sheet/vectorlistbox.h"

namespace vorlane {
namespace {

class ItemsTest : public SheetTest {
protected:
    void SetUp() override { Start(); }

    // The file names of the bound list, without folder.
    std::string Names() const {
        std::string text;
        for (int32_t i = 0; i < sheet->Liste()->ListCount(); ++i) {
            const std::string item = sheet->Liste()->List(i);
            text += (i == 0 ? "" : " ") + item.substr(item.find_last_of("/\t") + 1);
        }
        return text;
    }
};

// --- Add ---

TEST_F(ItemsTest, AddStoresSortDataSeparatorAndName) {
    EXPECT_EQ(sheet->Add("/p/a.jpg", "x\x0By"), 0);
    EXPECT_EQ(sheet->LstInterne.List(0), "x\x0By\t/p/a.jpg");
    EXPECT_EQ(sheet->ImageFullPath(0), "/p/a.jpg");
}

TEST_F(ItemsTest, AddTouchesNoSlideAndRaisesNothing) {
    sheet->Add("/p/a.jpg", "");
    EXPECT_EQ(Heard(), "");
    EXPECT_EQ(Slides(), "(.)");
    EXPECT_FALSE(sheet->VScroll.Visible());
}

TEST_F(ItemsTest, AddOfAnEmptyNameAddsNothing) {
    EXPECT_EQ(sheet->Add("", "x"), 0);
    EXPECT_EQ(sheet->LstInterne.ListCount(), 0);
}

TEST_F(ItemsTest, AMissingKeyBecomesTheIndexOfTheMomentAndStaysSo) {
    sheet->Add("/p/a.jpg", "");
    EXPECT_EQ(sheet->Add("/p/b.jpg", ""), 1);
    EXPECT_EQ(sheet->Add("/p/c.jpg", "", 50, 0), 0);
    EXPECT_EQ(Names(), "c.jpg a.jpg b.jpg");
    EXPECT_EQ(sheet->Key(0), 50);
    EXPECT_EQ(sheet->Key(1), 0);
    EXPECT_EQ(sheet->Key(2), 1);
}

TEST_F(ItemsTest, AddAtAPlaceOutsideTheListIsReportedAndAnswersZero) {
    sheet->Add("/p/a.jpg", "s", 3, 9);
    EXPECT_EQ(Heard(), "host Error 9 Vorlane Add /p/a.jpg - s - 3 - 9\n");
    EXPECT_EQ(sheet->LstInterne.ListCount(), 0);
}

TEST_F(ItemsTest, AddToAFileListIsRefusedWithAMessage) {
    sheet->InitListe(ListeModeType::lmFileList);
    desktop.trace.Clear();
    EXPECT_EQ(sheet->Add("/p/a.jpg", ""), 0);
    EXPECT_EQ(Heard({"msgbox", "host"}),
              "msgbox 48 [Vorlane] Impossible d'ajouter un élément lorsque le controle est lié a une FileListBox.\n");
}

// --- Clear and Refresh ---

TEST_F(ItemsTest, ClearUnloadsTheSlidesAndEmptiesTheSheetsOwnList) {
    AddItems(0, 39);
    sheet->StartLecture("", 1012);
    sheet->ImgDrag.SetVisible(true);
    desktop.trace.Clear();
    sheet->Clear();
    EXPECT_EQ(Heard(), "host TLClear\n");
    EXPECT_EQ(Slides(), "(.)");
    EXPECT_EQ(sheet->Count(), 0);
    EXPECT_EQ(sheet->VScroll.Value(), 0);
    EXPECT_EQ(sheet->VScroll.Max(), 0);
    EXPECT_FALSE(sheet->VScroll.Visible());
    EXPECT_FALSE(sheet->ImgDrag.Visible());
}

TEST_F(ItemsTest, ClearForgetsTheCurrentItem) {
    AddItems(0, 8);
    sheet->StartLecture();
    sheet->SetSelected(4, true);
    sheet->Clear();
    AddItems(0, 8);
    sheet->StartLecture();
    EXPECT_EQ(sheet->CurrentDiapo(), -1);
    EXPECT_EQ(sheet->Diapo.Item(4)->BackColorSelected(), 7321083U);
}

TEST_F(ItemsTest, ClearLeavesAHostsListItsItems) {
    VectorListBox list(500);
    list.AddItem("\t" + File(3));
    sheet->InitListe(ListeModeType::lmList, &list);
    sheet->StartLecture();
    sheet->Clear();
    EXPECT_EQ(list.ListCount(), 1);
    EXPECT_EQ(Slides(), "(.)");
}

TEST_F(ItemsTest, ClearLeavesNothingSelectedInAHostsListAndTellsItsProgress) {
    VectorListBox list(500);
    for (int32_t n = 0; n < 3; ++n) list.AddItem("\t" + File(n));
    sheet->InitListe(ListeModeType::lmList, &list);
    sheet->StartLecture();
    list.SetSelected(0, true);
    list.SetSelected(2, true);
    desktop.trace.Clear();
    sheet->Clear();
    EXPECT_EQ(Heard({"host", "yield"}),
              "yield\nhost TraitementFeedBack 1/2\nhost TraitementFeedBack 2/2\nhost TLClear\n");
    EXPECT_EQ(list.SelCount(), 0);
    list.SetSelected(1, true);
    sheet->InitListe(ListeModeType::lmList, &list);
    EXPECT_EQ(list.SelCount(), 0) << "binding clears too";
}

TEST_F(ItemsTest, AFileListKeepsItsFilesWhenTheSheetIsCleared) {
    const TemporaryFolder folder;
    folder.File("a.jpg");
    sheet->InitListe(ListeModeType::lmFileList, nullptr, folder.WithSeparator());
    sheet->StartLecture();
    sheet->FileInterne.SetSelected(0, true);
    sheet->Clear();
    EXPECT_EQ(sheet->Count(), 1);
    EXPECT_EQ(sheet->CountSelected(), 0);
    EXPECT_EQ(Slides(), "(.)");
}

TEST_F(ItemsTest, WhatIsShownAtTheYieldOfClearStays) {
    VectorListBox list(500);
    for (int32_t n = 0; n < 40; ++n) list.AddItem("\t" + File(n));
    sheet->InitListe(ListeModeType::lmList, &list);
    sheet->StartLecture();
    desktop.clock.AtYield(1, [this] { sheet->StartLecture(File(12)); });
    sheet->Clear();
    EXPECT_EQ(Slides(), "12 13 14 15 16 17 18 19 20");
    EXPECT_EQ(sheet->VScroll.Value(), 12);
    ExpectSlidesAgreeWithList();
}

TEST_F(ItemsTest, RefreshShowsAHostsListAgainAndEmptiesTheSheetOtherwise) {
    VectorListBox list(500);
    list.AddItem("\t" + File(3));
    sheet->InitListe(ListeModeType::lmList, &list);
    sheet->Refresh();
    EXPECT_EQ(Slides(), "0");
    sheet->InitListe(ListeModeType::lmList);
    AddItems(0, 3);
    sheet->Refresh();
    EXPECT_EQ(Slides(), "(.)");
    EXPECT_EQ(sheet->Count(), 0);
}

TEST_F(ItemsTest, APendingErrorOfNumberOneKeepsClearFromItsWork) {
    AddItems(0, 3);
    onDisplayEnd = [] { throw Failure(1, "one", "host", 7); };
    sheet->StartLecture();
    onDisplayEnd = {};
    desktop.trace.Clear();
    sheet->Clear();
    EXPECT_EQ(Heard(), "host Error 1 Vorlane Clear DpCnt=4\n");
    EXPECT_EQ(Slides(), "0 1 2 3");
    sheet->StartLecture();
    sheet->Clear();
    EXPECT_EQ(Slides(), "(.)") << "the next operation has taken the error away";
}

TEST_F(ItemsTest, AnotherPendingErrorDoesNotKeepClearFromItsWork) {
    AddItems(0, 3);
    onDisplayEnd = [] { throw Failure(2, "two", "host"); };
    sheet->StartLecture();
    sheet->Clear();
    EXPECT_EQ(Slides(), "(.)");
}

// --- Keys ---

TEST_F(ItemsTest, AKeyGivesItsItemAndItsSlide) {
    AddItems(0, 39);
    sheet->StartLecture("", 1012);
    EXPECT_EQ(sheet->GetListIndexFromItemData(1014), 14);
    EXPECT_EQ(sheet->GetIndexFromKey(1014), 2);
    EXPECT_EQ(sheet->GetListIndexFromItemData(1002), 2);
    EXPECT_EQ(sheet->GetIndexFromKey(1002), -1) << "no slide shows it";
    EXPECT_EQ(sheet->GetListIndexFromItemData(7), -1);
}

TEST_F(ItemsTest, BlankSlidesHaveNoKey) {
    sheet->Add("/p/a.jpg", "");
    EXPECT_EQ(sheet->GetIndexFromKey(0), -1);
}

TEST_F(ItemsTest, AFileListHasNoKeysAndNoPublicPath) {
    const TemporaryFolder folder;
    folder.File("a.jpg");
    sheet->InitListe(ListeModeType::lmFileList, nullptr, folder.WithSeparator());
    sheet->StartLecture();
    EXPECT_EQ(sheet->Count(), 1);
    EXPECT_EQ(sheet->Diapo.Item(0)->ImageFullPath(), folder.WithSeparator() + "a.jpg");
    EXPECT_EQ(sheet->Key(0), 0);
    EXPECT_EQ(sheet->ImageFullPath(0), "");
    EXPECT_EQ(sheet->GetListIndexFromItemData(0), -1);
    EXPECT_EQ(sheet->GetIndexFromKey(0), -1);
    EXPECT_EQ(sheet->Diapo.Item(0)->Key(), -1);
}

TEST_F(ItemsTest, ASlideKnowsItsKeyAndForgetsItWhenItIsSet) {
    AddItems(0, 3);
    sheet->StartLecture();
    EXPECT_EQ(sheet->Diapo.Item(2)->Key(), 1002);
    sheet->Diapo.Item(2)->SetKey(55);
    EXPECT_EQ(sheet->Key(2), -1);
    EXPECT_EQ(sheet->Diapo.Item(2)->Key(), -1);
}

TEST_F(ItemsTest, ABlankSlidesKeyIsNone) {
    EXPECT_EQ(sheet->Diapo.Item(0)->Key(), -1);
    sheet->Diapo.Item(0)->SetKey(5);
    EXPECT_EQ(Heard(), "");
}

TEST_F(ItemsTest, AListOfFortyThousandItemsOverflowsItsCount) {
    VectorListBox list(500);
    for (int32_t n = 0; n < 40000; ++n) list.AddItem("\t/p/x.jpg");
    sheet->InitListe(ListeModeType::lmList, &list);
    EXPECT_THROW(sheet->Count(), Failure);
    list.RemoveItem(0);
    while (list.ListCount() > 32767) list.RemoveItem(list.ListCount() - 1);
    EXPECT_EQ(sheet->Count(), 32767);
}

// --- InitListe ---

TEST_F(ItemsTest, InitListeBindsTheHostsList) {
    VectorListBox list(500);
    sheet->InitListe(ListeModeType::lmList, &list);
    EXPECT_EQ(sheet->Liste(), &list);
    EXPECT_EQ(Heard(), "host TLClear\n");
}

TEST_F(ItemsTest, InitListeWithTheListThatIsBoundClearsAndKeepsIt) {
    VectorListBox list(500);
    list.AddItem("\t" + File(3));
    sheet->InitListe(ListeModeType::lmList, &list);
    sheet->StartLecture();
    desktop.trace.Clear();
    sheet->InitListe(ListeModeType::lmList, &list);
    EXPECT_EQ(Heard(), "host TLClear\n");
    EXPECT_EQ(sheet->Liste(), &list);
    EXPECT_EQ(list.ListCount(), 1);
    EXPECT_EQ(Slides(), "(.)");
}

TEST_F(ItemsTest, InitListeWithoutAListBindsOneOfTheSheetsOwn) {
    sheet->InitListe(ListeModeType::lmFileList);
    EXPECT_EQ(sheet->Liste(), &sheet->FileInterne);
    sheet->InitListe(ListeModeType::lmList);
    EXPECT_EQ(sheet->Liste(), &sheet->LstInterne);
    sheet->InitListe(static_cast<ListeModeType>(0));
    sheet->InitListe(static_cast<ListeModeType>(9));
    EXPECT_EQ(sheet->Liste(), &sheet->LstInterne) << "any other number acts as lmList";
}

TEST_F(ItemsTest, AListWithoutMultiSelectIsBoundWithAMessageAndTheOldSlidesStay) {
    AddItems(0, 2);
    sheet->StartLecture();
    desktop.trace.Clear();
    VectorListBox list(500, 0);
    sheet->InitListe(ListeModeType::lmList, &list, "/somewhere");
    EXPECT_EQ(Heard({"msgbox", "host"}),
              "msgbox 48 [Vorlane] La proprété Multiselect de la liste n'est pas activée.\n");
    EXPECT_EQ(sheet->Liste(), &list);
    EXPECT_EQ(Slides(), "0 1 2");
    EXPECT_EQ(sheet->Path(), "");
}

TEST_F(ItemsTest, BehindInitListeAPathIsReadAgainAlsoAfterARefusedList) {
    const TemporaryFolder folder;
    folder.File("a.jpg");
    VectorListBox list(500, 0);
    sheet->InitListe(ListeModeType::lmList, &list);
    sheet->InitListe(ListeModeType::lmList);
    sheet->SetPath(folder.WithSeparator());
    EXPECT_EQ(Names(), "a.jpg");
}

TEST_F(ItemsTest, InitListeWithoutSortFlagsKeepsTheLastOnes) {
    const TemporaryFolder folder;
    folder.Sparse("b.jpg", 12);
    sheet->InitListe(ListeModeType::lmList, nullptr, "", "", saExtension);
    sheet->InitListe(ListeModeType::lmList, nullptr, folder.WithSeparator());
    EXPECT_EQ(sheet->LstInterne.List(0), "b.jpg\x0Bjpgb.jpg\t" + folder.WithSeparator() + "b.jpg");
}

TEST_F(ItemsTest, InitListeReadsAFolderIntoTheSheetsOwnList) {
    const TemporaryFolder folder;
    folder.Sparse("B.jpg", 12);
    folder.File("a.png");
    sheet->InitListe(ListeModeType::lmList, nullptr, folder.WithSeparator(), "*.*", saSize | saExtension);
    EXPECT_EQ(Names(), "a.png B.jpg");
    EXPECT_EQ(sheet->LstInterne.List(1),
              "b.jpg\x0B"
              "0000000012b.jpg\x0Bjpgb.jpg\t" +
                  folder.WithSeparator() + "B.jpg");
    EXPECT_EQ(sheet->Key(1), 0) << "items of a folder have no key";
    EXPECT_EQ(Heard(), "host TLClear\nhost TraitementFeedBack 1/2\nhost TraitementFeedBack 2/2\n");
}

TEST_F(ItemsTest, WithoutSortingTheItemsOfAFolderHaveNoSortData) {
    const TemporaryFolder folder;
    folder.File("B.jpg");
    sheet->SetSorted(false);
    sheet->InitListe(ListeModeType::lmList, nullptr, folder.WithSeparator());
    EXPECT_EQ(sheet->LstInterne.List(0), "\t" + folder.WithSeparator() + "B.jpg");
}

TEST_F(ItemsTest, InitListeInsideItselfReturnsAtOnce) {
    const TemporaryFolder folder;
    folder.File("a.jpg");
    sheet->Events.TLClear.connect([&] { sheet->InitListe(ListeModeType::lmFileList); });
    onFeedBack = [&](int32_t) { sheet->InitListe(ListeModeType::lmFileList); };
    sheet->InitListe(ListeModeType::lmList, nullptr, folder.WithSeparator());
    EXPECT_EQ(sheet->Liste(), &sheet->LstInterne);
    EXPECT_EQ(Names(), "a.jpg");
    sheet->InitListe(ListeModeType::lmFileList);
    EXPECT_EQ(sheet->Liste(), &sheet->FileInterne);
}

TEST_F(ItemsTest, AThrowInsideInitListeIsReportedAndDoesNotBlockTheNext) {
    VectorListBox list(500);
    const Connection thrower = sheet->Events.TLClear.connect([] { throw failures::TypeMismatch(); });
    sheet->InitListe(ListeModeType::lmList, &list, "", "*.png", 6);
    EXPECT_EQ(Heard(), "host TLClear\nhost Error 13 Vorlane InitListe 1 - 500 -  - *.png - 6\n");
    Connection(thrower).disconnect();
    sheet->InitListe(ListeModeType::lmList);
    EXPECT_EQ(sheet->Liste(), &sheet->LstInterne);
}

// --- Path and Pattern ---

TEST_F(ItemsTest, SettingThePathReadsTheFolderIntoTheSheetsOwnList) {
    const TemporaryFolder folder;
    folder.File("a.jpg");
    folder.File("b.png");
    sheet->SetPath(folder.WithSeparator() + "/");
    EXPECT_EQ(sheet->Path(), folder.WithSeparator());
    EXPECT_EQ(Names(), "a.jpg b.png");
    sheet->SetPattern("*.png");
    EXPECT_EQ(Names(), "b.png");
    EXPECT_EQ(Heard(), "host TraitementFeedBack 1/2\nhost TraitementFeedBack 2/2\nhost TraitementFeedBack 1/1\n");
}

TEST_F(ItemsTest, ThePathThatStandsIsNotReadAgain) {
    const TemporaryFolder folder;
    folder.File("a.jpg");
    sheet->SetPath(folder.WithSeparator());
    sheet->LstInterne.Clear();
    sheet->SetPath(folder.WithSeparator());
    EXPECT_EQ(sheet->Count(), 0);
}

TEST_F(ItemsTest, FromInitKeepsThePathFromReading) {
    const TemporaryFolder folder;
    folder.File("a.jpg");
    sheet->SetFromInit(true);
    sheet->SetPath(folder.WithSeparator());
    EXPECT_EQ(sheet->Count(), 0);
    sheet->SetFromInit(false);
    sheet->SetPattern("*.jpg");
    EXPECT_EQ(Names(), "a.jpg");
}

TEST_F(ItemsTest, WithoutListAutoFillOrAPatternNoFolderIsRead) {
    const TemporaryFolder folder;
    folder.File("a.jpg");
    sheet->SetListAutoFill(false);
    sheet->SetPath(folder.WithSeparator());
    EXPECT_EQ(sheet->Count(), 0);
    sheet->SetListAutoFill(true);
    sheet->SetPattern("");
    EXPECT_EQ(sheet->Count(), 0);
    sheet->SetPattern("*.jpg");
    EXPECT_EQ(Names(), "a.jpg");
}

TEST_F(ItemsTest, ADesignerReadsNoFolder) {
    const TemporaryFolder folder;
    folder.File("a.jpg");
    Ambient ambient = window.Ambient();
    ambient.UserMode = false;
    Make(ambient);
    Start();
    sheet->SetPath(folder.WithSeparator());
    EXPECT_EQ(sheet->Count(), 0);
}

TEST_F(ItemsTest, AFileListFollowsPathAndPattern) {
    const TemporaryFolder folder;
    folder.File("a.jpg");
    folder.File("b.png");
    sheet->InitListe(ListeModeType::lmFileList);
    sheet->SetPath(folder.WithSeparator());
    EXPECT_EQ(Names(), "a.jpg b.png");
    sheet->SetPattern("*.png");
    EXPECT_EQ(Names(), "b.png");
    EXPECT_EQ(sheet->LstInterne.ListCount(), 0);
}

TEST_F(ItemsTest, AFileListThatStandsInTheFolderAlreadyIsNotReadAgain) {
    const TemporaryFolder folder;
    folder.File("a.jpg");
    sheet->InitListe(ListeModeType::lmFileList);
    sheet->FileInterne.Read(folder.Path(), "*.*");
    folder.File("b.jpg");
    sheet->SetPath(folder.WithSeparator());
    EXPECT_EQ(Names(), "a.jpg");
}

TEST_F(ItemsTest, AHostsListIsNotFilledFromThePath) {
    const TemporaryFolder folder;
    folder.File("a.jpg");
    VectorListBox list(500);
    sheet->InitListe(ListeModeType::lmList, &list);
    sheet->SetPath(folder.WithSeparator());
    EXPECT_EQ(list.ListCount(), 0);
}

TEST_F(ItemsTest, AFolderThatIsNotThereGivesAnEmptyList) {
    AddItems(0, 2);
    sheet->SetPath("/nowhere/at/all");
    EXPECT_EQ(sheet->Count(), 0);
    EXPECT_EQ(Heard(), "");
}

TEST_F(ItemsTest, AFolderThatVanishesWhileItIsReadKeepsItsNamesWithoutDates) {
    auto folder = std::make_unique<TemporaryFolder>();
    folder->File("a.jpg");
    folder->File("b.jpg");
    const std::string path = folder->WithSeparator();
    onFeedBack = [&](int32_t) { folder.reset(); };
    sheet->InitListe(ListeModeType::lmList, nullptr, path, "", saSize);
    EXPECT_EQ(Names(), "a.jpg b.jpg");
    EXPECT_EQ(sheet->LstInterne.List(1), "b.jpg\t" + path + "b.jpg");
    EXPECT_THAT(Heard(), testing::Not(testing::HasSubstr("Error")));
    sheet->StartLecture();
    EXPECT_THAT(Heard(), testing::HasSubstr("host InvalidPicture 1 b.jpg\n"));
}

TEST_F(ItemsTest, AnotherPathSetWhileAFolderIsReadEndsTheOlderReading) {
    const TemporaryFolder first;
    for (const char* name : {"a.jpg", "b.jpg", "c.jpg"}) first.File(name);
    const TemporaryFolder second;
    second.File("x.jpg");
    onFeedBack = [&, done = false](int32_t) mutable {
        if (!std::exchange(done, true)) sheet->SetPath(second.WithSeparator());
    };
    sheet->SetPath(first.WithSeparator());
    EXPECT_EQ(Names(), "x.jpg");
    EXPECT_THAT(Heard(),
                testing::EndsWith("host Error 9 Vorlane LstCopy DpCnt=1 - " + first.WithSeparator() + " - 30\n"));
}

TEST_F(ItemsTest, AFailureWhileAFolderIsReadLeavesTheListAsItIs) {
    const TemporaryFolder folder;
    folder.File("a.jpg");
    folder.File("b.jpg");
    onFeedBack = [](int32_t) { throw failures::TypeMismatch(); };
    sheet->SetPath(folder.WithSeparator());
    EXPECT_EQ(Names(), "a.jpg");
    EXPECT_EQ(Heard(), "host TraitementFeedBack 1/2\nhost Error 13 Vorlane LstCopy DpCnt=1 - " +
                           folder.WithSeparator() + " - 30\n");
}

}  // namespace
}  // namespace vorlane
