// Where a drop would put items, and what the mark says there.
#include "tests/interaction/dragfixture.h"

namespace vorlane {
namespace {

TEST_F(DragTest, TheHostCanAskWhereADropWouldPutItems) {
    ShowDraggable(6);
    UserDrag drag(desktop, Files({RealFile("x.jpg")}));
    Over(drag, 4, 0.2F);
    EXPECT_EQ(sheet->DropPlace(), 4);
    Over(drag, 4, 0.8F);
    EXPECT_EQ(sheet->DropPlace(), 5);
    Over(drag, 5, 0.8F);
    EXPECT_EQ(sheet->DropPlace(), 6);
}

TEST_F(DragTest, AHostThatCancelsADropKnowsItsPlaceYet) {
    ShowDraggable(7);
    int32_t place = -1;
    onBeforeDrop = [&](bool& cancel) {
        cancel = true;
        place = sheet->DropPlace();
    };
    UserDrag drag(desktop, Files({RealFile("x.jpg")}));
    DropOn(drag, 2, 0.8F);
    EXPECT_EQ(place, 3);
    EXPECT_EQ(sheet->Liste()->ListCount(), 7);
}

TEST_F(DragTest, AHostThatScrollsBeforeADropDoesNotMoveItsPlace) {
    ShowDraggable(40);
    onBeforeDrop = [this](bool&) { sheet->VScroll.SetValue(12); };
    const std::string path = RealFile("x.jpg");
    UserDrag drag(desktop, Files({path}));
    DropOn(drag, 1, 0.2F);
    EXPECT_EQ(sheet->ImageFullPath(1), path);
    ExpectSlidesAgreeWithList();
}

TEST_F(DragTest, AHostThatScrollsBeforeAMoveDoesNotMoveItsPlace) {
    ShowDraggable(40);
    onBeforeDrop = [this](bool&) { sheet->VScroll.SetValue(12); };
    DragSlide(5, [&](UserDrag& drag) { DropOn(drag, 1, 0.2F); });
    EXPECT_THAT(Order(), testing::StartsWith("0 5 1 2 3 4 6 "));
    EXPECT_EQ(SelectedItems(), "1");
    ExpectSlidesAgreeWithList();
}

TEST_F(DragTest, InAListThatItsHostShortensBeforeADropThePlaceIsTheEndAtMost) {
    ShowDraggable(6);
    onBeforeDrop = [this](bool&) { sheet->Remove(0); };
    UserDrag drag(desktop, Files({RealFile("x.jpg")}));
    DropOn(drag, 5, 0.8F);
    EXPECT_EQ(Names(), "001 002 003 004 005 x");
    EXPECT_THAT(Told(), testing::Not(testing::HasSubstr("Error")));
    ExpectSlidesAgreeWithList();
}

TEST_F(DragTest, AHostThatBindsAFileListBeforeADropTakesNone) {
    ShowDraggable(3);
    const std::string path = RealFile("x.jpg");
    onBeforeDrop = [this](bool&) {
        sheet->InitListe(ListeModeType::lmFileList, nullptr, folder.WithSeparator(), "*.jpg");
    };
    UserDrag drag(desktop, Files({path}));
    DropOn(drag, 1, 0.2F);
    EXPECT_THAT(Told(), testing::EndsWith("ole BeforeDropStart 1\nole DragError\n"));
    EXPECT_EQ(sheet->LstInterne.ListCount(), 3);
}

TEST_F(DragTest, WhatTheMarkSaidOfOneDragIsNotSaidOfTheNext) {
    ShowDraggable(7);
    onBeforeStart = [](std::string& text, bool&) { text = "3"; };
    DragSlide(1, [&](UserDrag& drag) {
        Over(drag, 4, 0.2F);
        EXPECT_EQ(sheet->ImgDrag.Caption(), "3");
        drag.Over(window, -20, 40);
        Over(drag, 4, 0.2F);
        EXPECT_EQ(sheet->ImgDrag.Caption(), "3");
    });
    {
        UserDrag drag(desktop, Files({RealFile("x.jpg")}));
        Over(drag, 4, 0.2F);
        EXPECT_EQ(sheet->ImgDrag.Caption(), "");
        drag.Over(window, kGroundX, kGroundY);
        Over(drag, 4, 0.2F);
        EXPECT_EQ(sheet->ImgDrag.Caption(), "3");
        drag.Over(window, -20, 40);
    }
    UserDrag drag(desktop, Files({RealFile("x.jpg")}));
    Over(drag, 4, 0.2F);
    EXPECT_EQ(sheet->ImgDrag.Caption(), "");
}

}  // namespace
}  // namespace vorlane
