// Drops of the sheet's own slides: moves that keep keys and selection.
#include "tests/interaction/dragfixture.h"

#include <stdexcept>

namespace vorlane {
namespace {

using testing::HasSubstr;

TEST_F(DragTest, ADropInsideTheSheetMovesTheSlideToTheMark) {
    ShowDraggable(7);
    DragSlide(1, [&](UserDrag& drag) { DropOn(drag, 4, 0.2F); });
    EXPECT_EQ(Order(), "0 2 3 1 4 5 6");
    EXPECT_EQ(Told(),
              "ole BeforeStartDrag 1\n"
              "ole StartDrag 3\n"
              "drag start 3 1\n"
              "ole BeforeDropStart 1\n"
              "ole SortChanged\n"
              "ole DragDrop 2 131,123\n"
              "drag end 2\n"
              "ole CompleteDrag 2\n");
    ExpectSlidesAgreeWithList();
}

TEST_F(DragTest, OnTheRightHalfItGoesBehindTheSlide) {
    ShowDraggable(7);
    DragSlide(1, [&](UserDrag& drag) {
        Over(drag, 4, 0.2F);
        drag.Drop(window, sheet->Diapo.Item(4)->Left() + 80, 120);
    });
    EXPECT_EQ(Order(), "0 2 3 4 1 5 6");
}

TEST_F(DragTest, AMovedItemKeepsItsKeyAndStaysSelectedAlone) {
    ShowDraggable(7);
    DragSlide(5, [&](UserDrag& drag) { DropOn(drag, 1, 0.2F); });
    EXPECT_EQ(Order(), "0 5 1 2 3 4 6");
    EXPECT_EQ(SelectedItems(), "1");
    EXPECT_EQ(sheet->Key(1), 1005);
    EXPECT_EQ(sheet->CurrentDiapo(), -1);
    EXPECT_EQ(States(), ".s.....");
}

TEST_F(DragTest, AMovedItemKeepsTheSortDataThatItsHostGave) {
    ShowDraggable(3);
    sheet->Add(File(3), "neuf\v1", 1003);
    sheet->StartLecture();
    DragSlide(3, [&](UserDrag& drag) { DropOn(drag, 0, 0.2F); });
    EXPECT_EQ(Order(), "3 0 1 2");
    EXPECT_EQ(sheet->Liste()->List(0), "neuf\v1\t" + File(3));
}

TEST_F(DragTest, AnEntryThatTheHostHasReplacedComesWithSortDataOfItsOwn) {
    ShowDraggable(3);
    const std::string other = RealFile("x.jpg");
    onStart = [&](DataObject& data, int32_t&) { data.SetFiles({other + "|2000"}); };
    DragSlide(2, [&](UserDrag& drag) { DropOn(drag, 0, 0.2F); });
    EXPECT_EQ(Names(), "x 000 001");
    EXPECT_EQ(sheet->Key(0), 2000);
    EXPECT_THAT(sheet->Liste()->List(0), testing::StartsWith("x.jpg\v"));
}

TEST_F(DragTest, AMultipleSelectionClosesUpAtTheTargetInTheOrderOfTheList) {
    ShowDraggable(9);
    Click(0);
    Click(5, headless::kCtrl);
    Click(3, headless::kCtrl);
    DragSlide(5, [&](UserDrag& drag) { DropOn(drag, 4, 0.2F); });
    EXPECT_EQ(Order(), "1 2 0 3 5 4 6 7 8");
    EXPECT_EQ(SelectedItems(), "2 3 4");
    ExpectSlidesAgreeWithList();
}

TEST_F(DragTest, ADropBehindTheLastSlideOfTheListAppends) {
    ShowDraggable(5);
    DragSlide(0, [&](UserDrag& drag) {
        Over(drag, 4, 0.2F);
        drag.Drop(window, sheet->Diapo.Item(4)->Left() + 90, 120);
    });
    EXPECT_EQ(Order(), "1 2 3 4 0");
}

TEST_F(DragTest, ADropOnTheGroundGoesToTheNearestSlide) {
    ShowDraggable(7);
    DragSlide(5, [&](UserDrag& drag) { drag.Drop(window, kGroundX, 40); });
    EXPECT_EQ(Order(), "5 0 1 2 3 4 6");
}

TEST_F(DragTest, ADropOnTheMarkGoesWhereItStands) {
    ShowDraggable(7);
    DragSlide(5, [&](UserDrag& drag) {
        Over(drag, 1, 0.2F);
        const float x = sheet->ImgDrag.Left() + 9;
        drag.Over(window, x, 40);
        EXPECT_EQ(drag.Effect(), 2);
        drag.Drop();
    });
    EXPECT_EQ(Order(), "0 5 1 2 3 4 6");
}

TEST_F(DragTest, ADropOnASlideAfterAWayOverTheGroundGoesWhereTheMarkStands) {
    ShowDraggable(7);
    DragSlide(5, [&](UserDrag& drag) {
        drag.Over(window, 325, 40);
        Over(drag, 1, 0.2F);
        drag.Drop();
    });
    EXPECT_EQ(Order(), "0 5 1 2 3 4 6");
}

TEST_F(DragTest, ADropOfASlideOnItselfChangesNothing) {
    ShowDraggable(7);
    DragSlide(2, [&](UserDrag& drag) { DropOn(drag, 2, 0.2F); });
    EXPECT_EQ(Order(), "0 1 2 3 4 5 6");
    EXPECT_EQ(SelectedItems(), "2");
}

TEST_F(DragTest, AMoveKeepsItemsWhoseFilesAreGoneOrFitNoPattern) {
    ShowDraggable(7);
    sheet->SetPattern("*.png");
    DragSlide(1, [&](UserDrag& drag) { DropOn(drag, 4, 0.2F); });
    EXPECT_EQ(Order(), "0 2 3 1 4 5 6");
}

TEST_F(DragTest, APathThatHoldsABarKeepsItWhenItIsMoved) {
    ShowDraggable(3);
    desktop.pictures.Add("/p/a|7", 60, 40);
    sheet->Add("/p/a|7", "", 2000);
    sheet->StartLecture();
    DragSlide(3, [&](UserDrag& drag) { DropOn(drag, 0, 0.2F); });
    EXPECT_EQ(sheet->ImageFullPath(0), "/p/a|7");
    EXPECT_EQ(sheet->Key(0), 2000);
}

TEST_F(DragTest, ItemsThatGoFromAboveLeaveTheSlidesStanding) {
    ShowDraggable(30);
    sheet->Liste()->SetSelected(0, true);
    sheet->Liste()->SetSelected(1, true);
    sheet->VScroll.SetValue(6);
    Click(4, headless::kCtrl);
    ASSERT_EQ(SelectedItems(), "0 1 10");
    DragSlide(4, [&](UserDrag& drag) { DropOn(drag, 1, 0.2F); });
    EXPECT_EQ(sheet->VScroll.Value(), 4);
    EXPECT_EQ(sheet->Diapo.Item(0)->Value(), 4);
    EXPECT_EQ(sheet->Key(4), 1006);
    EXPECT_EQ(SelectedItems(), "5 6 7");
    EXPECT_EQ(sheet->VScroll.Max(), 24);
    ExpectSlidesAgreeWithList();
}

TEST_F(DragTest, ACancelBeforeTheDropChangesNothing) {
    ShowDraggable(7);
    onBeforeDrop = [](bool& cancel) { cancel = true; };
    DragSlide(1, [&](UserDrag& drag) { DropOn(drag, 4, 0.2F); });
    EXPECT_EQ(Order(), "0 1 2 3 4 5 6");
    EXPECT_EQ(Lefts(0, 5), "5 111 217 5 111 217");
    EXPECT_FALSE(sheet->TimerDrag.Enabled());
    EXPECT_EQ(sheet->CountSelected(), 0);
}

TEST_F(DragTest, AHostThatFailsInTheMiddleOfAMoveLosesNoItem) {
    ShowDraggable(7);
    Click(0);
    Click(2, headless::kCtrl);
    onSortChanged = [] { throw std::runtime_error("host"); };
    DragSlide(2, [&](UserDrag& drag) { DropOn(drag, 5, 0.2F); });
    EXPECT_EQ(Order(), "1 3 4 0 2 5 6");
    EXPECT_THAT(Told(), HasSubstr("ole Error 51 Vorlane Diapo_OLEDragDrop DpCnt=7"));
    ExpectSlidesAgreeWithList();
}

TEST_F(DragTest, AHostThatClearsTheListInTheMiddleOfAMoveLosesNoMovedItem) {
    ShowDraggable(7);
    Click(0);
    Click(2, headless::kCtrl);
    bool clears = true;
    onSortChanged = [&] {
        if (std::exchange(clears, false)) sheet->Clear();
    };
    DragSlide(2, [&](UserDrag& drag) { DropOn(drag, 5, 0.2F); });
    EXPECT_EQ(Order(), "0 2");
    EXPECT_EQ(SelectedItems(), "0 1");
    EXPECT_THAT(Told(), testing::Not(HasSubstr("Error")));
    ExpectSlidesAgreeWithList();
}

TEST_F(DragTest, AHostThatRemovesTheMovedItemsBehindTheDropIsToldOfThemAndShownTheRest) {
    ShowDraggable(7);
    sheet->Events.OLEDragDrop.connect(
        [this](DataObject&, int32_t&, int16_t, int16_t, float, float) { sheet->RemoveAllSelected(); });
    std::vector<int32_t> removed;
    sheet->Events.Removed.connect([&](int16_t, int32_t& key) { removed.push_back(key); });
    DragSlide(1, [&](UserDrag& drag) { DropOn(drag, 4, 0.2F); });
    EXPECT_EQ(Order(), "0 2 3 4 5 6");
    EXPECT_THAT(removed, testing::ElementsAre(1001));
    EXPECT_EQ(Slides(), "0 1 2 3 4 5");
    ExpectSlidesAgreeWithList();
}

TEST_F(DragTest, TwoSheetsGiveSlidesToEachOtherWithTheirKeys) {
    ShowDraggable(3);
    headless::Window other{desktop, {900, 0, 1245, 180}};
    Vorlane second(desktop.Roles(), other.Ambient());
    other.Host(second, PropertyBag{});
    second.SetOLEDropMode(2);
    second.SetSortedSens(SortSensType::ssNone);
    const std::string path = RealFile("x.jpg");
    sheet->Add(path, "", 77);
    sheet->StartLecture();
    DragSlide(3, [&](UserDrag& drag) { drag.Drop(other, 50, 50); });
    ASSERT_EQ(second.Count(), 1);
    EXPECT_EQ(second.ImageFullPath(0), path);
    EXPECT_EQ(second.Key(0), 77);
    EXPECT_EQ(second.Diapo.Item(0)->Value(), 0);
    EXPECT_EQ(sheet->Count(), 4);
    EXPECT_FALSE(sheet->TimerDrag.Enabled());
}

TEST_F(DragTest, ASheetThatTakesNoDropsDragsAllTheSame) {
    ShowDraggable(7);
    sheet->SetOLEDropMode(0);
    DragSlide(1, [&](UserDrag& drag) {
        Over(drag, 4, 0.2F);
        EXPECT_EQ(drag.Effect(), 0);
    });
    EXPECT_THAT(Told(), HasSubstr("drag start 3 1\n"));
}

}  // namespace
}  // namespace vorlane
