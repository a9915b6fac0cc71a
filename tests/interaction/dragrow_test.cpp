// The row under a drag: it opens, gives way, closes; the mark in its gap.
#include "tests/interaction/dragfixture.h"

namespace vorlane {
namespace {

TEST_F(DragTest, TheRowOfTheSlideOpensAtOnceWithAYieldAStep) {
    ShowDraggable(7);
    const int32_t before = desktop.clock.Yields();
    DragSlide(1, [&](UserDrag&) {
        // The pointer went to the right, so the mark starts on the left.
        EXPECT_EQ(Lefts(0, 2), "0 117 217");
        EXPECT_EQ(Mark(), "100,5");
    });
    EXPECT_GE(desktop.clock.Yields() - before, 10);
}

TEST_F(DragTest, TheRowUnderThePointerOpensAndTheFormerOneCloses) {
    ShowDraggable(7);
    DragSlide(1, [&](UserDrag& drag) {
        Over(drag, 4, 0.2F);
        EXPECT_EQ(Lefts(0, 2), "5 111 217");
        EXPECT_EQ(Lefts(3, 5), "0 117 217");
        EXPECT_EQ(drag.Effect(), 2);
    });
}

TEST_F(DragTest, ASingleSlideRowNeverOpensAndTheMarkStillStands) {
    ShowDraggable(7);
    DragSlide(1, [&](UserDrag& drag) {
        drag.Over(window, 25, 175);
        EXPECT_NE(Mark(), "hidden");
        EXPECT_EQ(Lefts(0, 2), "5 111 217");
    });
    EXPECT_EQ(Lefts(6, 6), "5");
}

TEST_F(DragTest, TheMarkSaysWhatTheHostWants) {
    ShowDraggable(7);
    onBeforeStart = [](std::string& text, bool&) { text = "2 photos"; };
    DragSlide(1, [&](UserDrag&) {
        EXPECT_EQ(sheet->ImgDrag.Caption(), "2 photos");
        EXPECT_EQ(sheet->ImgDrag.Width(), 19);
        EXPECT_EQ(sheet->ImgDrag.Height(), 75);
    });
}

TEST_F(DragTest, TheHoveredSlideGivesWayToThePointersHalf) {
    ShowDraggable(7);
    DragSlide(1, [&](UserDrag& drag) {
        Over(drag, 4, 0.2F);
        const float opened = sheet->Diapo.Item(4)->Left();
        drag.Over(window, opened + 80, 120);
        EXPECT_LT(sheet->Diapo.Item(4)->Left(), 111);
        const float mark = sheet->ImgDrag.Left();
        EXPECT_GE(mark, sheet->Diapo.Item(4)->Left() + 100);
        EXPECT_LE(mark + 19, sheet->Diapo.Item(5)->Left() + 1);
    });
}

TEST_F(DragTest, ARowThatIsOpenElsewhereOpensAnewUnderThePointer) {
    ShowDraggable(9);
    DragSlide(4, [&](UserDrag& drag) {
        Over(drag, 0, 0.2F);
        const std::string first = Lefts(0, 2);
        drag.Over(window, 290, 40);
        EXPECT_NE(Lefts(0, 2), first);
        const float mark = sheet->ImgDrag.Left();
        EXPECT_GE(mark, sheet->Diapo.Item(2)->Left() + 100);
    });
}

TEST_F(DragTest, ThePlaceThatASlideIsToldFollowsItInTheOpenRow) {
    ShowDraggable(7);
    DragSlide(1, [&](UserDrag&) {
        WinRect place;
        std::string text;
        sheet->Diapo.Item(1)->Events.GetWindowsPos(place, text);
        EXPECT_EQ(place, (WinRect{100 + 117, 205, 100 + 217, 280}));
    });
}

TEST_F(DragTest, ADragOutOfTheWindowClosesTheRow) {
    ShowDraggable(7);
    DragSlide(1, [&](UserDrag& drag) {
        Over(drag, 4, 0.2F);
        drag.Over(window, -20, 40);
        EXPECT_EQ(Lefts(0, 5), "5 111 217 5 111 217");
        EXPECT_EQ(Mark(), "hidden");
        Over(drag, 4, 0.2F);
        EXPECT_NE(Mark(), "hidden");
    });
}

TEST_F(DragTest, OverTheBarNoRowOpensAndALeaveClosesTheOneThatIs) {
    ShowDraggable(30);
    DragSlide(1, [&](UserDrag& drag) {
        Over(drag, 4, 0.2F);
        drag.Over(window, kWidth - 5, 40);
        EXPECT_EQ(drag.Effect(), 2);
        EXPECT_EQ(Lefts(0, 5), "5 111 217 0 117 217") << "the row beside the pointer is closed";
        EXPECT_EQ(Mark(), "100,86");
        DataObject none;
        int32_t effect = 0;
        sheet->Input.OLEDragOver(none, effect, 0, 0, kWidth - 5, 40, 1);
        EXPECT_EQ(Lefts(0, 5), "5 111 217 5 111 217");
        EXPECT_EQ(Mark(), "hidden");
    });
}

TEST_F(DragTest, ADragThatEndsWhileARowOpensLeavesItClosed) {
    ShowDraggable(7);
    UserDrag drag(desktop, Files({RealFile("x.jpg")}));
    desktop.clock.AtYield(6, [&] { drag.Drop(); });
    Over(drag, 1, 0.2F);
    drag.Drop();
    EXPECT_EQ(Lefts(0, 2), "5 111 217");
    EXPECT_EQ(Mark(), "hidden");
}

TEST_F(DragTest, ARowThatHasLostASlideIsReportedWhenItCloses) {
    ShowDraggable(7);
    UserDrag drag(desktop, Files({RealFile("x.jpg")}));
    Over(drag, 1, 0.2F);
    ASSERT_NE(Mark(), "hidden");
    sheet->Diapo.Unload(2);
    sheet->OleResetDrag();
    EXPECT_THAT(Heard(), testing::HasSubstr("host Error 340 Vorlane DragRestoreLig DpCnt=6 - 1\n"));
}

TEST_F(DragTest, WhileARowOpensNoOtherOneDoes) {
    ShowDraggable(7);
    DragSlide(1, [&](UserDrag& drag) {
        desktop.clock.AtYield(3, [&] {
            Over(drag, 1, 0.2F);
            EXPECT_EQ(Lefts(0, 2), "5 111 217");
        });
        Over(drag, 4, 0.2F);
        EXPECT_NE(Lefts(3, 5), "5 111 217");
    });
    EXPECT_EQ(Lefts(0, 5), "5 111 217 5 111 217");
}

TEST_F(DragTest, InASheetOfOneRowTheMarkIsAsHighAsTheSheetAllows) {
    ShowDraggable(9);
    sheet->SetScrollDirection(ScrollDirectionType::sdHorizontal);
    desktop.clock.Advance(200);
    DragSlide(1, [&](UserDrag& drag) {
        Over(drag, 0, 0.2F);
        EXPECT_EQ(sheet->ImgDrag.Height(), 120);
        EXPECT_EQ(sheet->ImgDrag.Top(), sheet->Diapo.Item(0)->Top());
    });
}

// --- Scrolling ---

TEST_F(DragTest, BeyondTheMarginTheSheetScrollsARowATick) {
    ShowDraggable(30);
    DragSlide(1, [&](UserDrag& drag) {
        drag.Over(window, 150, kHeight - 3);
        desktop.clock.Advance(10);
        EXPECT_EQ(sheet->VScroll.Value(), 3);
        desktop.clock.Advance(20);
        EXPECT_EQ(sheet->VScroll.Value(), 9);
        drag.Over(window, 150, 2);
        desktop.clock.Advance(10);
        EXPECT_EQ(sheet->VScroll.Value(), 6);
        drag.Over(window, 150, 60);
        desktop.clock.Advance(50);
        EXPECT_EQ(sheet->VScroll.Value(), 6);
        desktop.clock.Advance(0);
    });
}

TEST_F(DragTest, OnASidewaysSheetTheSheetScrollsBeyondTheMarginAtTheRightAndTheLeft) {
    ShowDraggable(60);
    sheet->SetScrollDirection(ScrollDirectionType::sdHorizontal);
    desktop.clock.Advance(200);
    const int32_t step = sheet->VScroll.SmallChange();
    ASSERT_GT(step, 0);
    DragSlide(1, [&](UserDrag& drag) {
        drag.Over(window, kWidth - 3, 60);
        desktop.clock.Advance(10);
        EXPECT_EQ(sheet->VScroll.Value(), step);
        desktop.clock.Advance(20);
        EXPECT_EQ(sheet->VScroll.Value(), 3 * step);
        drag.Over(window, 2, 60);
        desktop.clock.Advance(10);
        EXPECT_EQ(sheet->VScroll.Value(), 2 * step);
        for (const float y : {2.0F, 60.0F, kHeight - 3.0F}) {
            drag.Over(window, 150, y);
            desktop.clock.Advance(50);
            EXPECT_EQ(sheet->VScroll.Value(), 2 * step) << "at " << y;
        }
    });
}

TEST_F(DragTest, OnASidewaysSheetADragFromOutsideScrollsWithEachMove) {
    ShowDraggable(60);
    sheet->SetScrollDirection(ScrollDirectionType::sdHorizontal);
    desktop.clock.Advance(200);
    UserDrag drag(desktop, Files({RealFile("x.jpg")}));
    drag.Over(window, kWidth - 3, 60);
    const int32_t there = sheet->VScroll.Value();
    EXPECT_GT(there, 0);
    drag.Over(window, 2, 60);
    EXPECT_LT(sheet->VScroll.Value(), there);
}

TEST_F(DragTest, ADragFromOutsideScrollsWithEachMove) {
    ShowDraggable(30);
    UserDrag drag(desktop, Files({RealFile("x.jpg")}));
    drag.Over(window, 150, kHeight - 3);
    EXPECT_GT(sheet->VScroll.Value(), 0);
    EXPECT_FALSE(sheet->TimerDrag.Enabled());
}

// --- What happens to the sheet meanwhile ---

TEST_F(DragTest, AnotherGridLeavesNoSlideOfTheOldRowAside) {
    ShowDraggable(30);
    DragSlide(1, [&](UserDrag& drag) {
        Over(drag, 4, 0.2F);
        ASSERT_NE(Lefts(3, 5), "5 111 217");
        window.Resize(240, kHeight);
        desktop.clock.Advance(300);
        drag.Escape();
    });
    for (int32_t k = 0; k < sheet->Diapo.Count(); ++k) {
        EXPECT_EQ(sheet->Diapo.Item(k)->Left(), sheet->Diapo.Item(k)->Col()) << "slide " << k;
    }
    EXPECT_EQ(Mark(), "hidden");
}

TEST_F(DragTest, ASheetThatHasShrunkAwayFromThePointerTakesNoDrop) {
    ShowDraggable(30);
    const int32_t count = sheet->Count();
    UserDrag drag(desktop, Files({RealFile("x.jpg")}));
    Over(drag, 2, 0.8F);
    window.Resize(240, kHeight);
    drag.Drop();
    EXPECT_EQ(sheet->Count(), count);
    EXPECT_EQ(Mark(), "hidden");
    EXPECT_EQ(Lefts(0, 1), "5 111");
}

TEST_F(DragTest, ASlideThatHasGoneMeanwhileEndsItsDragAllTheSame) {
    ShowDraggable(9);
    DragSlide(4, [&](UserDrag& drag) {
        Over(drag, 1, 0.2F);
        sheet->Clear();
        drag.Escape();
    });
    EXPECT_THAT(Told(), testing::HasSubstr("ole CompleteDrag 0\n"));
    EXPECT_FALSE(sheet->TimerDrag.Enabled());
    EXPECT_EQ(desktop.forms.OpenForms(), 0) << "the ghost";
    AddItems(0, 8);
    sheet->StartLecture();
    UserDrag drag(desktop, Files({RealFile("x.jpg")}));
    Over(drag, 1, 0.2F);
    EXPECT_EQ(drag.Effect(), 1) << "a copy: no drag of the sheet's own runs any more";
}

TEST_F(DragTest, AHostThatRemovesTheSelectionDuringADragIsServedAsEver) {
    ShowDraggable(12);
    DragSlide(1, [&](UserDrag& drag) {
        Over(drag, 4, 0.2F);
        desktop.trace.Clear();
        sheet->RemoveAllSelected();
        EXPECT_THAT(Heard(), testing::StartsWith("host Removed -1 key 1001\n"));
        EXPECT_EQ(Slides(), "0 1 2 3 4 5 6 7 8");
        ExpectSlidesAgreeWithList();
        drag.Escape();
    });
    EXPECT_EQ(sheet->Count(), 11);
}

}  // namespace
}  // namespace vorlane
