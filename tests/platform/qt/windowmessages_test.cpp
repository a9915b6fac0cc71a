// What a control hears of the size and the place of the window that it fills.
#include "platform/subclass.h"
#include "tests/platform/qt/board.h"

#include <gtest/gtest.h>

#include <QCoreApplication>

namespace vorlane {
namespace {

class WindowMessagesTest : public testing::Test, public ISubclass {
protected:
    WindowMessagesTest() {
        window.resize(400, 300);
        pane.setGeometry(10, 10, 300, 200);
        host.setParent(&pane);
        host.setGeometry(0, 0, 200, 100);
        window.show();
        QCoreApplication::processEvents();
        for (const int32_t message : {WM_SIZE, WM_MOVE}) desktop.windows.AttachMessage(*this, Handle(), message);
    }
    ~WindowMessagesTest() override {
        for (const int32_t message : {WM_SIZE, WM_MOVE}) desktop.windows.DetachMessage(*this, Handle(), message);
        host.setParent(nullptr);
    }

    int32_t MsgResponse() const override { return 2; }
    void SetMsgResponse(int32_t) override {}
    int32_t WindowProc(Hwnd hWnd, int32_t iMsg, int32_t, int32_t) override {
        EXPECT_EQ(hWnd, Handle());
        heard += iMsg == WM_SIZE ? "size " : "move ";
        width = static_cast<int>(host.board.Width());
        place = desktop.windows.GetWindowRect(hWnd);
        return 0;
    }
    Hwnd Handle() const { return host.board.Hwnd(); }

    QtDesktop desktop;
    QWidget window;
    QWidget pane{&window};
    test::BoardHost host{desktop};
    std::string heard;
    int width = 0;
    WinRect place;
};

TEST_F(WindowMessagesTest, ASizeIsToldWhenTheControlHasTakenIt) {
    host.resize(150, 80);
    EXPECT_EQ(heard, "size ");
    EXPECT_EQ(width, 150);
}

TEST_F(WindowMessagesTest, AMoveIsToldWhateverAroundTheControlHasMoved) {
    host.move(5, 5);
    EXPECT_EQ(heard, "move ");
    pane.move(30, 40);
    EXPECT_EQ(heard, "move move ");
    const QPoint corner = window.mapToGlobal(QPoint(35, 45));
    EXPECT_EQ(place, (WinRect{corner.x(), corner.y(), corner.x() + 200, corner.y() + 100}));
    window.move(50, 60);
    QCoreApplication::processEvents();
    EXPECT_EQ(heard, "move move move ");
    EXPECT_EQ(place.Left, window.mapToGlobal(QPoint(35, 45)).x());
}

TEST_F(WindowMessagesTest, AMoveOfWhatIsAroundItNoMoreIsNotTold) {
    QWidget other(&window);
    other.setGeometry(20, 20, 250, 250);
    other.show();
    host.setParent(&other);
    host.show();
    QCoreApplication::processEvents();
    heard.clear();
    pane.move(1, 1);
    EXPECT_EQ(heard, "");
    other.move(60, 60);
    EXPECT_EQ(heard, "move ");
    host.setParent(&pane);
}

TEST_F(WindowMessagesTest, WhoIsDetachedHearsNothing) {
    desktop.windows.DetachMessage(*this, Handle(), WM_SIZE);
    host.resize(150, 80);
    EXPECT_EQ(heard, "");
}

}  // namespace
}  // namespace vorlane
