// A sheet whose properties are read once more in the middle of the user's gestures.
#include "tests/interaction/dragfixture.h"

namespace vorlane {
namespace {

class RestartTest : public DragTest {
protected:
    // With smaller frames, and all else as it is.
    void Restart() {
        PropertyBag bag;
        sheet->WriteDesign(bag);
        bag.SetValue("BorderSize", int64_t{2});
        sheet->Restart(bag);
        desktop.clock.Advance(200);
    }
    void ExpectAtRest(const std::string& order) {
        EXPECT_EQ(Order(), order);
        EXPECT_EQ(Slides(), "0 1 2 3 4 5 6 7 8");
        EXPECT_EQ(Lefts(0, 5), "5 111 217 5 111 217");
        EXPECT_EQ(Mark(), "hidden");
        EXPECT_EQ(sheet->Diapo.Item(8)->BorderSize(), 2);
        EXPECT_EQ(desktop.clock.RunningTimers(), 0);
        EXPECT_EQ(desktop.forms.ShownForms(), 0);
        ExpectSlidesAgreeWithList();
    }
};

TEST_F(RestartTest, InADragTheItemsAreMovedAllTheSame) {
    ShowDraggable(9);
    DragSlide(5, [&](UserDrag& drag) {
        Over(drag, 1, 0.2F);
        Restart();
        EXPECT_EQ(Lefts(0, 2), "5 111 217") << "the row is closed";
        DropOn(drag, 1, 0.2F);
    });
    ExpectAtRest("0 5 1 2 3 4 6 7 8");
}

TEST_F(RestartTest, InADragThatIsGivenUpNothingMoves) {
    ShowDraggable(9);
    DragSlide(5, [&](UserDrag& drag) {
        Over(drag, 1, 0.2F);
        Restart();
        Over(drag, 7, 0.8F);
        drag.Escape();
    });
    ExpectAtRest("0 1 2 3 4 5 6 7 8");
}

TEST_F(RestartTest, UnderTheRubberBandTheSweptItemsStaySelected) {
    ShowDraggable(9);
    window.Press(kGroundX, kGroundY);
    window.MouseTo(150, 60);
    ASSERT_EQ(SelectedItems(), "0 1");
    Restart();
    EXPECT_EQ(SelectedItems(), "0 1");
    ExpectSlidesAgreeWithList();
    window.MouseTo(250, 60);
    window.Release(250, 60);
    EXPECT_EQ(SelectedItems(), "0 1 2");
    ExpectAtRest("0 1 2 3 4 5 6 7 8");
}

TEST_F(RestartTest, BetweenAPressAndItsReleaseTheSlideStaysSelected) {
    ShowDraggable(9);
    Press(4);
    Restart();
    Release(4);
    EXPECT_EQ(States(), "....C....");
    ExpectAtRest("0 1 2 3 4 5 6 7 8");
}

}  // namespace
}  // namespace vorlane
