// Where the mouse is, when a press may become a drag, and the keyboard.
#include "tests/interaction/gesturefixture.h"
#include "windows/frmdrag.h"

namespace vorlane {
namespace {

using headless::kCtrl;

class MouseTest : public GestureTest {
protected:
    // Presses slide 4 and moves by that many pixels.
    void PressAndMove(float dx, float dy, int16_t keys = kNoKeys) {
        dragStarts_ = sheet->Events.OLEStartDrag.connect([this](DataObject&, int32_t&) {
            const FrmDrag& ghost = SharedFrmDrag(desktop.Roles());
            hotX = ghost.HotX;
            hotY = ghost.HotY;
            startRightPart = ghost.StartRightPart;
            ++drags;
        });
        Press(4, keys);
        const Point place = InSlide(4);
        window.MouseTo(static_cast<float>(place.X) + dx, static_cast<float>(place.Y) + dy, keys);
    }
    bool Dragged() const { return drags > 0; }

    int32_t drags = 0;
    int32_t hotX = 0;  // as the ghost had it when the drag started
    int32_t hotY = 0;
    bool startRightPart = true;

private:
    ScopedConnection dragStarts_;
};

TEST_F(MouseTest, EnteringAndLeavingSlidesIsTold) {
    Show(40);
    window.MouseTo(50, 50);
    window.MouseTo(51, 50);
    window.MouseTo(160, 50);
    window.MouseTo(108, 50);
    window.MouseTo(108, 51);
    EXPECT_EQ(Heard(),
              "host MouseEnter 0\n"
              "host MouseMove 0 at 50,50\n"
              "host MouseMove 0 at 51,50\n"
              "host MouseExit 0\n"
              "host MouseEnter 1\n"
              "host MouseMove 0 at 160,50\n"
              "host MouseExit 1\n"
              "host MouseMove 0 at 108,50\n"
              "host MouseMove 0 at 108,51\n");
}

// --- Drags ---

TEST_F(MouseTest, AMoveOfMoreThanFiftyTwipsStartsADrag) {
    Show(40);
    sheet->SetOLEDragMode(1);
    PressAndMove(2, 1);
    EXPECT_FALSE(Dragged()) << "45 twips on both axes together";
    Release(4);
    PressAndMove(2, 2);
    EXPECT_TRUE(Dragged()) << "60 twips";
    EXPECT_EQ(hotX, 52);
    EXPECT_EQ(hotY, 12);
    EXPECT_FALSE(startRightPart);
    Release(4);
}

TEST_F(MouseTest, WithOLEDragModeNotOneAPressNeverArmsADrag) {
    Show(40);
    PressAndMove(20, 0);
    Release(4);
    Click(4);
    PressAndMove(20, 0);
    EXPECT_FALSE(Dragged());
    Release(4);
}

TEST_F(MouseTest, ExactlyFiftyTwipsStartNoDrag) {
    Show(40);
    sheet->SetOLEDragMode(1);
    PressAndMove(0, 0);
    const auto slide = sheet->Diapo.Item(4);
    const Point place = InSlide(4);
    const float x = (static_cast<float>(place.X) - slide->Left()) * 15;
    const float y = (static_cast<float>(place.Y) - slide->Top()) * 15;
    slide->Events.MouseMove(1, 0, x + 30, y - 20);
    EXPECT_FALSE(Dragged());
    slide->Events.MouseMove(1, 0, x + 31, y - 20);
    EXPECT_TRUE(Dragged());
    Release(4);
}

TEST_F(MouseTest, ADragToTheLeftStartsWithTheMarkOnTheRight) {
    Show(40);
    sheet->SetOLEDragMode(1);
    PressAndMove(-4, 0);
    EXPECT_TRUE(Dragged());
    EXPECT_TRUE(startRightPart);
    Release(4);
}

TEST_F(MouseTest, WithCtrlOrShiftNoDragStarts) {
    Show(40);
    sheet->SetOLEDragMode(1);
    PressAndMove(20, 0, kCtrl);
    EXPECT_FALSE(Dragged());
    Release(4, kCtrl);
    PressAndMove(20, 0, headless::kShift);
    EXPECT_FALSE(Dragged());
    Release(4, headless::kShift);
}

// A press whose release comes in at its yield: the left button goes down next on a part of the slide that does not tell
// the sheet of presses.
class LetGoTest : public MouseTest {
protected:
    LetGoTest() {
        Show(40);
        sheet->SetOLEDragMode(1);
        sheet->SetShowInfo(true);
        sheet->SetShowZoom(true);
        desktop.films.Add(File(1), 60, 40);
    }
    void PullFrom(const Control& part) {
        const Box box = part.BoundsInRoot();
        const float x = box.Left + box.Width / 2;
        const float y = box.Top + box.Height / 2;
        desktop.clock.Advance(1000);
        window.Press(x, y);
        window.MouseTo(x + 10, y);
        window.Release(x + 10, y);
    }
    std::string Drags() { return desktop.trace.Take({"drag"}); }
};

TEST_F(LetGoTest, InsideItsPressASlideIsNotDraggedByItsInfoButton) {
    desktop.clock.AtYield(1, [this] { Release(1); });
    Press(1);
    PullFrom(sheet->Diapo.Item(1)->ImgInfo);
    EXPECT_EQ(Drags(), "");
}

TEST_F(LetGoTest, InsideItsPressASlideIsNotDraggedByItsCorner) {
    Click(4);
    desktop.clock.AtYield(1, [this] { Release(1); });  // while the selection is cleared: the drag is armed behind that
    Press(1);
    PullFrom(sheet->Diapo.Item(1)->CornerResize);
    EXPECT_EQ(Drags(), "");
}

TEST_F(LetGoTest, OnASlideThatHasGoneItLeavesNoDragBehind) {
    const Point place = InSlide(8);
    Press(8);
    sheet->Diapo.Unload(8);
    window.Release(static_cast<float>(place.X), static_cast<float>(place.Y));
    window.MouseTo(150, 20);
    PullFrom(sheet->Diapo.Item(1)->CornerResize);
    EXPECT_EQ(Drags(), "");
}

// --- Keys ---

TEST_F(MouseTest, AKeyThatIsLetGoOverADisabledSheetSwallowsNoOther) {
    Show(40);
    sheet->Events.KeyDown.connect([this](int16_t& code, int16_t) {
        if (code == 46) sheet->SetEnabled(false);
    });
    window.HoldKey(46);
    window.ReleaseKey(46);
    sheet->SetEnabled(true);
    Heard();
    window.HoldKey(37);
    EXPECT_EQ(Heard(), "host KeyDown 37\n");
    window.ReleaseKey(37);
}

TEST_F(MouseTest, PageDownScrollsByAPageAndTellsTheHostBehindIt) {
    Show(40);
    window.HoldKey(34);
    EXPECT_EQ(sheet->VScroll.Value(), 6);
    EXPECT_THAT(Heard(), testing::EndsWith("host Scroll 6 from 0\nhost KeyDown 34\n"));
    window.ReleaseKey(34);
    EXPECT_EQ(Heard(), "host KeyUp 34\n");
}

TEST_F(MouseTest, HoldingPageDownScrollsOnePageOnly) {
    Show(40);
    window.HoldKey(34);
    window.HoldKey(34);
    window.HoldKey(34);
    EXPECT_EQ(sheet->VScroll.Value(), 6);
    window.ReleaseKey(34);
    window.HoldKey(34);
    EXPECT_EQ(sheet->VScroll.Value(), 12);
    window.ReleaseKey(34);
}

TEST_F(MouseTest, PagesEndAtTheBarsEnds) {
    Show(12);
    window.Key(34);
    EXPECT_EQ(sheet->VScroll.Value(), sheet->VScroll.Max());
    window.Key(33);
    window.Key(33);
    EXPECT_EQ(sheet->VScroll.Value(), 0);
}

TEST_F(MouseTest, TheCharactersOfTheRowsScroll) {
    Show(40);
    window.Key(57, '(');
    EXPECT_EQ(sheet->VScroll.Value(), 3);
    EXPECT_THAT(Heard(), testing::HasSubstr("host Scroll 3 from 0\nhost KeyPress 40\nhost KeyUp 57\n"));
    window.Key(49, '!');
    EXPECT_EQ(sheet->VScroll.Value(), 0);
    window.Key(49, '!');
    EXPECT_EQ(sheet->VScroll.Value(), 0);
}

TEST_F(MouseTest, TheArrowKeysAreTheHosts) {
    Show(40);
    window.Key(40);
    window.Key(38);
    EXPECT_EQ(sheet->VScroll.Value(), 0);
    EXPECT_EQ(Heard(), "host KeyDown 40\nhost KeyUp 40\nhost KeyDown 38\nhost KeyUp 38\n");
}

TEST_F(MouseTest, AHostMaySwallowAKey) {
    Show(40);
    sheet->Events.KeyDown.connect([](int16_t& code, int16_t) { code = 0; });
    int16_t code = 65;
    window.Router().KeyDown(code, 0);
    EXPECT_EQ(code, 0);
}

TEST_F(MouseTest, APressWhoseItemGoesAtItsYieldSelectsNothing) {
    Show(9);
    for (const int32_t item : {3, 4}) sheet->LstInterne.SetSelected(item, true);
    sheet->StartLecture();
    desktop.clock.AtYield(1, [this] { sheet->Clear(); });
    Click(0);
    EXPECT_EQ(States(), "-");
    EXPECT_EQ(sheet->CountSelected(), 0);
}

}  // namespace
}  // namespace vorlane
