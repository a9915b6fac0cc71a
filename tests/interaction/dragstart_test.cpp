// Drags that start on a slide: their data, the ghost, the opening row, their end.
#include "tests/interaction/dragfixture.h"
#include "windows/frmdrag.h"

#include <stdexcept>

namespace vorlane {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

// --- What is dragged ---

TEST_F(DragTest, ADragCarriesTheSelectedFilesWithTheirKeys) {
    ShowDraggable(7);
    Click(1);
    Click(3, headless::kCtrl);
    std::vector<std::string> files;
    onStart = [&](DataObject& data, int32_t&) { files = data.Files(); };
    desktop.trace.Clear();
    DragSlide(3, {});
    EXPECT_THAT(files, ElementsAre("/p/001.jpg|1001", "/p/003.jpg|1003"));
    EXPECT_EQ(Told(), "ole BeforeStartDrag 2\nole StartDrag 3\ndrag start 3 2\ndrag end 0\nole CompleteDrag 0\n");
}

TEST_F(DragTest, AMoveOf50TwipsStartsNoDragAndOneOfMoreDoes) {
    ShowDraggable(7);
    Press(1);
    const Point from = InSlide(1);
    window.MouseTo(static_cast<float>(from.X + 3), static_cast<float>(from.Y));
    EXPECT_EQ(Told(), "");
    window.MouseTo(static_cast<float>(from.X + 3), static_cast<float>(from.Y + 1));
    EXPECT_THAT(Told(), HasSubstr("drag start 3 1\n"));
}

TEST_F(DragTest, WithNothingSelectedADragAllowsNothingAndShowsNoGhost) {
    ShowDraggable(7);
    sheet->Diapo.Item(2)->OLEDrag();
    EXPECT_EQ(Told(), "ole StartDrag 0\nole CompleteDrag 0\n");
    EXPECT_EQ(desktop.trace.Text({"form"}), "");
}

TEST_F(DragTest, FilesOfAFileListAreDraggedWithoutKeys) {
    ShowDraggable(1);
    RealFile("a.jpg");
    RealFile("b.jpg");
    sheet->InitListe(ListeModeType::lmFileList, nullptr, folder.WithSeparator(), "*.jpg");
    sheet->StartLecture();
    std::vector<std::string> files;
    onStart = [&](DataObject& data, int32_t&) { files = data.Files(); };
    Click(0);
    DragSlide(0, {});
    EXPECT_THAT(files, ElementsAre(folder.WithSeparator() + "a.jpg"));
}

TEST_F(DragTest, AFileOfAFileListWhoseNameEndsLikeAKeyIsDraggedAsItIs) {
    ShowDraggable(1);
    RealFile("scan.jpg|12");
    sheet->InitListe(ListeModeType::lmFileList, nullptr, folder.WithSeparator(), "*");
    sheet->StartLecture();
    DraggedFile file;
    onStart = [&](DataObject& data, int32_t&) { file = ReadDraggedFile(data.Files().at(0)); };
    Click(0);
    DragSlide(0, {});
    EXPECT_EQ(file.Path, folder.WithSeparator() + "scan.jpg|12");
    EXPECT_EQ(file.Key, -1);
}

TEST_F(DragTest, AFailingHostIsReportedWithTheDragsName) {
    ShowDraggable(7);
    onStart = [](DataObject&, int32_t&) { throw std::runtime_error("host"); };
    DragSlide(1, {});
    EXPECT_THAT(Told(), HasSubstr("Vorlane Diapo_OLEStartDrag DpCnt=7"));
}

// --- The host refuses ---

TEST_F(DragTest, ADragThatTheHostCancelsShowsNothingOnTheSheet) {
    ShowDraggable(7);
    onBeforeStart = [](std::string&, bool& cancel) { cancel = true; };
    DragSlide(1, [&](UserDrag& drag) {
        EXPECT_FALSE(sheet->TimerDrag.Enabled());
        Over(drag, 4, 0.2F);
        EXPECT_EQ(drag.Effect(), 0);
        drag.Over(window, kGroundX, kGroundY);
        EXPECT_EQ(drag.Effect(), 0);
        EXPECT_EQ(Mark(), "hidden");
        EXPECT_EQ(Lefts(3, 5), "5 111 217");
    });
    EXPECT_EQ(Told(), "ole BeforeStartDrag 1\ndrag start 3 1\ndrag end 0\nole CompleteDrag 0\n");
    EXPECT_EQ(desktop.trace.Text({"form"}), "");
}

TEST_F(DragTest, ACancelledDragStaysCancelledWhereDropsAreTheHostsToo) {
    ShowDraggable(7);
    sheet->SetOLEDropMode(1);
    int32_t asked = 0;
    onBeforeStart = [&](std::string&, bool& cancel) {
        cancel = true;
        ++asked;
    };
    DragSlide(1, [&](UserDrag& drag) {
        drag.Over(window, kGroundX, kGroundY);
        EXPECT_EQ(drag.Effect(), 0);
        drag.Over(window, -20, 40);
        Over(drag, 4, 0.2F);
        EXPECT_EQ(drag.Effect(), 0) << "it comes back over a slide";
        drag.Over(window, -20, 40);
        drag.Over(window, kGroundX, kGroundY);
        EXPECT_EQ(drag.Effect(), 0) << "it comes back over the ground";
        EXPECT_EQ(Mark(), "hidden");
        drag.Drop(window, -20, 40);
    });
    EXPECT_EQ(asked, 1);
    UserDrag next(desktop, Files({RealFile("x.jpg")}));
    Over(next, 4, 0.2F);
    EXPECT_EQ(next.Effect(), 1);
}

TEST_F(DragTest, WithASortInForceAnOwnDragShowsTheNoDropEffectAndOpensNoRow) {
    ShowDraggable(7);
    sheet->SetSortedSens(SortSensType::ssAscending);
    DragSlide(1, [&](UserDrag& drag) {
        EXPECT_TRUE(sheet->TimerDrag.Enabled());
        EXPECT_EQ(Lefts(0, 2), "5 111 217");
        Over(drag, 4, 0.2F);
        EXPECT_EQ(drag.Effect(), 0);
        EXPECT_EQ(Mark(), "hidden");
        drag.Drop();
    });
    EXPECT_EQ(Told(), "ole BeforeStartDrag 1\nole StartDrag 0\ndrag start 0 1\ndrag end 0\nole CompleteDrag 0\n");
    EXPECT_EQ(Order(), "0 1 2 3 4 5 6");
}

// --- The ghost ---

TEST_F(DragTest, TheGhostIsACopyOfTheSlideRightOverItWithAHoleUnderThePointer) {
    ShowDraggable(7);
    DragSlide(4, [&](UserDrag&) {
        FrmDrag& ghost = SharedFrmDrag(desktop.Roles());
        EXPECT_TRUE(ghost.Visible());
        EXPECT_FALSE(ghost.AlphaMode);
        EXPECT_EQ(ghost.ColorKey, sheet->Diapo.Item(0)->BackColorSelected());
        EXPECT_EQ(desktop.windows.GetWindowRect(ghost.Hwnd()), (WinRect{211, 286, 311, 361}));
        const std::string drawn = ghost.Surface().dump();
        EXPECT_THAT(drawn, HasSubstr("BitBlt 0,0 100x75"));
        EXPECT_THAT(drawn, HasSubstr("SetPixel 55,"));
        EXPECT_EQ(ghost.HotX, 55);
    });
    EXPECT_FALSE(SharedFrmDrag(desktop.Roles()).Loaded());
}

TEST_F(DragTest, APointerOnTheSlidesEdgeHasItsHoleInTheGhostToo) {
    ShowDraggable(7);
    const Box slide = sheet->Diapo.Item(4)->Bounds();
    std::string drawn;
    desktop.drags.Script([&](UserDrag&) { drawn = SharedFrmDrag(desktop.Roles()).Surface().dump(); });
    window.Press(slide.Right() - 10, slide.Bottom() - 10);
    window.MouseTo(slide.Right() - 0.3F, slide.Bottom() - 0.3F);  // between two pixels, as on a dense screen
    EXPECT_THAT(drawn, HasSubstr("SetPixel 99,74 "));
    window.Press(slide.Left + 10, slide.Top + 10);
    window.MouseTo(slide.Left, slide.Top);
    EXPECT_THAT(drawn, HasSubstr("SetPixel 0,0 "));
}

TEST_F(DragTest, TheGhostFollowsThePointer) {
    ShowDraggable(7);
    DragSlide(4, [&](UserDrag& drag) {
        FrmDrag& ghost = SharedFrmDrag(desktop.Roles());
        const WinRect before = desktop.windows.GetWindowRect(ghost.Hwnd());
        const Point from = desktop.screen.CursorPos();
        Over(drag, 1, 0.2F);
        const Point to = desktop.screen.CursorPos();
        desktop.clock.Advance(10);
        const WinRect after = desktop.windows.GetWindowRect(ghost.Hwnd());
        EXPECT_EQ(after.Left - before.Left, to.X - from.X);
        EXPECT_EQ(after.Top - before.Top, to.Y - from.Y);
    });
}

// --- The end ---

TEST_F(DragTest, ACancelledDragEndsWithNothingSelectedAndAllSlidesAtHome) {
    ShowDraggable(7);
    DragSlide(1, [&](UserDrag& drag) {
        Over(drag, 4, 0.2F);
        EXPECT_NE(Lefts(3, 5), "5 111 217");
        drag.Escape();
    });
    EXPECT_EQ(sheet->CountSelected(), 0);
    EXPECT_EQ(Lefts(0, 5), "5 111 217 5 111 217");
    EXPECT_EQ(Mark(), "hidden");
    EXPECT_FALSE(sheet->TimerDrag.Enabled());
    EXPECT_EQ(Order(), "0 1 2 3 4 5 6");
}

TEST_F(DragTest, ADragThatIsTakenElsewhereIsCompletedWithItsEffect) {
    ShowDraggable(7);
    headless::Window other{desktop, {900, 0, 1000, 100}};
    Vorlane second(desktop.Roles(), other.Ambient());
    other.Host(second, PropertyBag{});
    second.SetOLEDropMode(1);
    second.SetSortedSens(SortSensType::ssNone);
    DragSlide(1, [&](UserDrag& drag) { drag.Drop(other, 50, 50); });
    EXPECT_THAT(Told(), HasSubstr("drag end 1\nole CompleteDrag 1\n"));
    EXPECT_EQ(Order(), "0 1 2 3 4 5 6");
}

// --- Drags of the ground ---

TEST_F(DragTest, ADragOfTheSheetItselfIsToldToTheHost) {
    ShowDraggable(7);
    sheet->OLEDrag();
    EXPECT_EQ(Told(), "ole StartDrag 1\nole CompleteDrag 0\n");
    sheet->ImgDrag.OLEDrag();
    EXPECT_EQ(Told(), "ole StartDrag 1\nole CompleteDrag 0\n") << "from the mark, too";
}

TEST_F(DragTest, WithOLEDragModeTwoTheGroundEndsADragAsASlideDoesAndTellsItTwice) {
    ShowDraggable(7);
    Click(1);
    sheet->SetOLEDragMode(2);
    sheet->OLEDrag();
    EXPECT_EQ(Told(), "ole StartDrag 1\nole CompleteDrag 0\nole CompleteDrag 0\n");
    EXPECT_EQ(sheet->CountSelected(), 0);
}

TEST_F(DragTest, FeedbackIsAlwaysToldAndDataAreAskedForOutsideOwnDragsOnly) {
    ShowDraggable(7);
    int32_t feedback = 0;
    int32_t asked = 0;
    sheet->Events.OLEGiveFeedback.connect([&](int32_t&, bool&) { ++feedback; });
    sheet->Events.OLESetData.connect([&](DataObject&, int16_t&) { ++asked; });
    bool cursors = true;
    int32_t effect = 2;
    int16_t format = 15;
    DataObject data;
    const auto tellAll = [&] {
        sheet->Diapo.Item(0)->Events.OLEGiveFeedback(effect, cursors);
        sheet->Input.OLEGiveFeedback(effect, cursors);
        sheet->Diapo.Item(0)->Events.OLESetData(data, format);
        sheet->Input.OLESetData(data, format);
        sheet->ImgDrag.Input.OLESetData(data, format);
    };
    tellAll();
    EXPECT_EQ(feedback, 2);
    EXPECT_EQ(asked, 3);
    DragSlide(1, [&](UserDrag&) {
        feedback = 0;
        asked = 0;
        tellAll();
        sheet->ImgDrag.Input.OLEGiveFeedback(effect, cursors);
        EXPECT_EQ(feedback, 2);
        EXPECT_EQ(asked, 0);
    });
}

TEST_F(DragTest, AnotherDragCanFollow) {
    ShowDraggable(7);
    DragSlide(1, {});
    desktop.trace.Clear();
    DragSlide(2, {});
    EXPECT_THAT(Told(), HasSubstr("drag start 3 1\n"));
}

}  // namespace
}  // namespace vorlane
