// The wait window over the grid, and how it follows the sheet's window.
#include "tests/interaction/dragfixture.h"
#include "tests/sheet/sheetfixture.h"
#include "windows/frmwait.h"

namespace vorlane {
namespace {

class WaitWindowTest : public SheetTest {
protected:
    ~WaitWindowTest() override { sheet.reset(); }
    FrmWait& Form() { return SharedFrmWait(desktop.Roles()); }
    // The form's rectangle on the screen.
    WinRect Stands() { return desktop.windows.GetWindowRect(Form().Hwnd()); }
};

TEST_F(WaitWindowTest, ItStandsOverTheGridBesideTheBar) {
    Show(40);
    sheet->WaitShow("wait", WaitPlace::BottomRight, true);
    EXPECT_TRUE(sheet->IsWaitOpen());
    EXPECT_TRUE(Form().Visible());
    EXPECT_EQ(Stands().Right, 100 + kWidth - 16);
    EXPECT_EQ(Stands().Bottom, 200 + kHeight);
    sheet->SetWaitCaption("more");
    EXPECT_EQ(Form().Fond().Caption(), "more");
    sheet->WaitClose(true);
    EXPECT_FALSE(sheet->IsWaitOpen());
    EXPECT_FALSE(Form().Loaded());
}

TEST_F(WaitWindowTest, OfASidewaysSheetItStandsAboveTheBar) {
    PropertyBag bag;
    bag.SetValue("ScrollDirection", int64_t{1});
    Start(bag);
    AddItems(0, 39);
    sheet->StartLecture();
    sheet->WaitShow("wait", WaitPlace::BottomRight, true);
    EXPECT_EQ(Stands().Right, 100 + kWidth);
    EXPECT_EQ(Stands().Bottom, 200 + kHeight - 16);
    sheet->WaitClose(true);
}

TEST_F(WaitWindowTest, WithoutABarItHasAllOfTheSheet) {
    Show(3);
    sheet->WaitShow("wait", WaitPlace::TopRight, true);
    EXPECT_EQ(Stands().Right, 100 + kWidth);
    sheet->WaitClose(true);
}

TEST_F(WaitWindowTest, ACloseOfAWindowThatAnotherOpenedClosesItAllTheSame) {
    Show(3);
    Form().ShowAnimatedFrom("other", WaitPlace::Middle, {0, 0, 400, 300}, true);
    ASSERT_FALSE(sheet->IsWaitOpen());
    sheet->WaitClose(true);
    EXPECT_FALSE(Form().Visible());
    EXPECT_FALSE(sheet->IsWaitOpen());
}

TEST_F(WaitWindowTest, ACloseBehindThatOfAnotherEndsTheSheetsOwnToo) {
    Show(3);
    sheet->WaitShow("wait", WaitPlace::Middle, true);
    Form().CloseWindow(true);
    ASSERT_TRUE(sheet->IsWaitOpen());
    sheet->WaitClose(true);
    EXPECT_FALSE(sheet->IsWaitOpen());
    EXPECT_EQ(Heard({"host"}), "");
}

TEST_F(WaitWindowTest, AWindowThatIsShownAgainWhileItClosesIsOpen) {
    Show(3);
    sheet->WaitShow("wait", WaitPlace::TopLeft, true);
    desktop.clock.AtYield(2, [&] { sheet->WaitShow("again", WaitPlace::TopLeft, true); });
    sheet->WaitClose(false);
    EXPECT_TRUE(Form().Visible());
    EXPECT_TRUE(sheet->IsWaitOpen());
    sheet->WaitClose(true);
    EXPECT_FALSE(sheet->IsWaitOpen());
}

// --- Following the window ---

TEST_F(WaitWindowTest, TheFourMessagesAreAttachedAtRunTimeAndDetachedAtTheEndOnce) {
    window.Host(*sheet, {});
    EXPECT_EQ(Heard({"subclass"}),
              "subclass 1 attach 5\nsubclass 1 attach 532\nsubclass 1 attach 3\nsubclass 1 attach 534\n");
    sheet->ReadProperties({});
    EXPECT_EQ(Heard({"subclass"}), "") << "they are there already";
    sheet->Terminate();
    EXPECT_EQ(Heard({"subclass"}),
              "subclass 1 detach 5\nsubclass 1 detach 532\nsubclass 1 detach 3\nsubclass 1 detach 534\n");
    sheet->Terminate();
    sheet.reset();
    EXPECT_EQ(Heard({"subclass"}), "");
}

TEST_F(WaitWindowTest, ASheetPlacedNewFollowsItsWindowToo) {
    window.Host(*sheet);
    EXPECT_EQ(desktop.windows.AttachedMessages(), 4);
}

TEST_F(WaitWindowTest, ADesignerAttachesNothing) {
    Ambient ambient = window.Ambient();
    ambient.UserMode = false;
    Make(ambient);
    Start();
    EXPECT_EQ(desktop.windows.AttachedMessages(), 0);
}

TEST_F(WaitWindowTest, TheWaitWindowFollowsASheetThatIsMovedOrResized) {
    Show(40);
    sheet->WaitShow("wait", WaitPlace::BottomRight, true);
    window.MoveTo(0, 50);
    EXPECT_EQ(Stands().Right, kWidth - 16);
    EXPECT_EQ(Stands().Bottom, 50 + kHeight);
    window.Resize(400, 300);
    EXPECT_EQ(Stands().Right, 400 - 16);
    EXPECT_EQ(Stands().Bottom, 50 + 300);
    for (const int32_t message : {WM_SIZING, WM_MOVING}) {
        desktop.windows.Place(window.Handle(), {10, 20, 210, 220});
        desktop.windows.Send(window.Handle(), message);
        EXPECT_EQ(Stands().Right, 210 - 16);
        window.MoveTo(0, 50);
    }
    desktop.clock.Advance(200);
    sheet->WaitClose(true);
}

TEST_F(WaitWindowTest, AMoveWithTheWaitWindowClosedIsPassedOnWithoutWork) {
    Show(40);
    window.MoveTo(0, 50);
    EXPECT_FALSE(Form().Loaded());
    EXPECT_EQ(Heard({"form"}), "");
}

// Drags a slide while the wait window stands.
class DraggedWaitTest : public DragTest {
protected:
    ~DraggedWaitTest() override { sheet.reset(); }
    WinRect Stands() { return desktop.windows.GetWindowRect(SharedFrmWait(desktop.Roles()).Hwnd()); }
};

TEST_F(DraggedWaitTest, AMoveDuringADragOfItsOwnSlidesIsPassedOnWithoutWork) {
    ShowDraggable(7);
    sheet->WaitShow("wait", WaitPlace::BottomRight, true);
    const WinRect before = Stands();
    bool dragged = false;
    DragSlide(1, [&](UserDrag& drag) {
        dragged = true;
        desktop.windows.Place(window.Handle(), {10, 20, 210, 220});
        desktop.windows.Send(window.Handle(), WM_MOVE);
        EXPECT_EQ(Stands(), before);
        drag.Escape();
    });
    EXPECT_TRUE(dragged);
    desktop.windows.Send(window.Handle(), WM_MOVE);
    EXPECT_EQ(Stands().Bottom, 220) << "the drag is over";
    sheet->WaitClose(true);
}

TEST_F(WaitWindowTest, AnotherMessageIsPassedOnWithoutWork) {
    Show(40);
    sheet->WaitShow("wait", WaitPlace::BottomRight, true);
    desktop.windows.Place(window.Handle(), {0, 0, 300, 300});
    constexpr int32_t kPaint = 15;
    EXPECT_EQ(sheet->WindowProc(window.Handle(), kPaint, 0, 0), 0);
    EXPECT_EQ(Stands().Bottom, 200 + kHeight);
    EXPECT_EQ(sheet->WindowProc(window.Handle(), WM_MOVE, 0, 0), 0);
    EXPECT_EQ(Stands().Bottom, 300);
    sheet->WaitClose(true);
}

TEST_F(WaitWindowTest, TheMessagesGoToTheWindowFirst) {
    EXPECT_EQ(sheet->MsgResponse(), 2);
    sheet->SetMsgResponse(1);
    EXPECT_EQ(sheet->MsgResponse(), 2);
}

}  // namespace
}  // namespace vorlane
