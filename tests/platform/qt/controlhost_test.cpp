#include "platform/qt/controlhost.h"

#include "platform/failure.h"
#include "platform/qt/qtpicturedata.h"
#include "platform/qt/textboxpeer.h"
#include "tests/platform/qt/board.h"

#include <gtest/gtest.h>
#include <memory>
#include <set>
#include <stdexcept>
#include <utility>

#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QToolTip>
#include <QWheelEvent>

namespace vorlane {
namespace {

class ControlHostTest : public testing::Test {
protected:
    ControlHostTest() { host.resize(200, 100); }

    void Show() {
        host.show();
        QCoreApplication::processEvents();
    }

    void Mouse(QEvent::Type type, QPointF place, Qt::MouseButton button, Qt::MouseButtons held,
               Qt::KeyboardModifiers modifiers = {}, QWidget* target = nullptr) {
        QWidget* widget = target == nullptr ? &host : target;
        QMouseEvent event(type, place, widget->mapToGlobal(place), button, held, modifiers);
        QCoreApplication::sendEvent(widget, &event);
    }

    void Click(QPointF place) {
        Mouse(QEvent::MouseButtonPress, place, Qt::LeftButton, Qt::LeftButton);
        Mouse(QEvent::MouseButtonRelease, place, Qt::LeftButton, Qt::NoButton);
    }

    static bool Key(QWidget& widget, QEvent::Type type, int key, const QString& text = {},
                    Qt::KeyboardModifiers modifiers = {}) {
        QKeyEvent event(type, key, modifiers, text);
        QCoreApplication::sendEvent(&widget, &event);
        return event.isAccepted();
    }

    QtDesktop desktop;
    test::BoardHost host{desktop};
    test::Board& board = host.board;
};

// --- Life cycle ---

TEST_F(ControlHostTest, AControlIsInitialisedThenSizedThenShown) {
    board.log.clear();
    Show();
    EXPECT_EQ(board.log, "200x100 show ");
    host.resize(150, 80);
    EXPECT_EQ(board.log, "200x100 show 150x80 ");
    host.hide();
    host.show();
    EXPECT_EQ(board.log, "200x100 show 150x80 ");
}

TEST_F(ControlHostTest, TheControlKnowsItsWindow) {
    EXPECT_NE(board.Hwnd(), 0);
    EXPECT_EQ(desktop.windows.WidgetOf(board.Hwnd()), &host);
}

// --- Mouse ---

TEST_F(ControlHostTest, APressReachesTheControlUnderIt) {
    Show();
    board.image.Move(10, 20, 30, 30);
    board.image.SetVisible(true);
    std::string heard;
    board.image.Input.MouseDown.connect([&](int16_t button, int16_t shift, float x, float y) {
        heard = std::to_string(button) + " " + std::to_string(shift) + " " + std::to_string(static_cast<int>(x)) + "," +
                std::to_string(static_cast<int>(y));
    });
    Mouse(QEvent::MouseButtonPress, {12, 25}, Qt::RightButton, Qt::RightButton, Qt::ControlModifier);
    EXPECT_EQ(heard, "2 2 30,75");
    Mouse(QEvent::MouseButtonRelease, {12, 25}, Qt::RightButton, Qt::NoButton);
}

TEST_F(ControlHostTest, ADoubleClickOfQtIsOneOfTheRouter) {
    Show();
    std::string heard;
    board.Input.MouseDown.connect([&](int16_t, int16_t, float, float) { heard += "down "; });
    board.Input.Click.connect([&] { heard += "click "; });
    board.Input.DblClick.connect([&] { heard += "double "; });
    Click({50, 50});
    Mouse(QEvent::MouseButtonDblClick, {50, 50}, Qt::LeftButton, Qt::LeftButton);
    Mouse(QEvent::MouseButtonRelease, {50, 50}, Qt::LeftButton, Qt::NoButton);
    EXPECT_EQ(heard, "down click double ");
}

TEST_F(ControlHostTest, ThePointerIsThatOfTheInnermostControlThatHasOne) {
    Show();
    board.SetMousePointer(2);
    board.image.Move(10, 10, 20, 20);
    board.image.SetVisible(true);
    Mouse(QEvent::MouseMove, {15, 15}, Qt::NoButton, Qt::NoButton);
    EXPECT_EQ(host.cursor().shape(), Qt::CrossCursor);
    board.image.SetMousePointer(3);
    Mouse(QEvent::MouseMove, {16, 15}, Qt::NoButton, Qt::NoButton);
    EXPECT_EQ(host.cursor().shape(), Qt::IBeamCursor);
    board.SetMousePointer(0);
    Mouse(QEvent::MouseMove, {100, 50}, Qt::NoButton, Qt::NoButton);
    EXPECT_EQ(host.cursor().shape(), Qt::ArrowCursor);
}

TEST_F(ControlHostTest, APointerOfTheHostsOwnIsItsPicture) {
    Show();
    QImage icon(16, 16, QImage::Format_RGB32);
    icon.fill(Qt::red);
    board.SetMousePointer(99);
    Mouse(QEvent::MouseMove, {15, 15}, Qt::NoButton, Qt::NoButton);
    EXPECT_EQ(host.cursor().shape(), Qt::ArrowCursor);
    board.SetMouseIcon(PictureFromImage(icon));
    Mouse(QEvent::MouseMove, {16, 15}, Qt::NoButton, Qt::NoButton);
    EXPECT_EQ(host.cursor().shape(), Qt::BitmapCursor);
}

TEST_F(ControlHostTest, ATooltipComesFromTheControlUnderThePointerOrItsContainer) {
    Show();
    board.image.Move(10, 10, 20, 20);
    board.image.SetVisible(true);
    board.image.SetToolTipText("Tom & Lea < Max");
    QHelpEvent over(QEvent::ToolTip, {15, 15}, host.mapToGlobal(QPoint(15, 15)));
    QCoreApplication::sendEvent(&host, &over);
    EXPECT_EQ(QToolTip::text(), "Tom & Lea < Max");
    QHelpEvent beside(QEvent::ToolTip, {100, 50}, host.mapToGlobal(QPoint(100, 50)));
    QCoreApplication::sendEvent(&host, &beside);
    board.SetToolTipText("<b>board</b>");
    QCoreApplication::sendEvent(&host, &beside);
    EXPECT_EQ(QToolTip::text(), "<p>&lt;b&gt;board&lt;/b&gt;</p>");
    QToolTip::hideText();
}

// --- Keys ---

TEST_F(ControlHostTest, AKeyIsToldAsCodeThenAsCharacter) {
    Show();
    std::string heard;
    board.Input.KeyDown.connect([&](int16_t& code, int16_t shift) {
        heard += "down " + std::to_string(code) + " " + std::to_string(shift) + ";";
    });
    board.Input.KeyPress.connect([&](int16_t& character) { heard += "press " + std::to_string(character) + ";"; });
    board.Input.KeyUp.connect([&](int16_t& code, int16_t) { heard += "up " + std::to_string(code) + ";"; });
    EXPECT_FALSE(Key(host, QEvent::KeyPress, Qt::Key_A, "A", Qt::ShiftModifier));
    EXPECT_TRUE(desktop.keyboard.KeyIsDown(65));
    Key(host, QEvent::KeyRelease, Qt::Key_A);
    EXPECT_FALSE(desktop.keyboard.KeyIsDown(65));
    EXPECT_EQ(heard, "down 65 1;press 65;up 65;");
}

TEST_F(ControlHostTest, ASwallowedKeyMakesNoCharacterAndGoesNoFurther) {
    Show();
    int characters = 0;
    board.Input.KeyDown.connect([](int16_t& code, int16_t) { code = 0; });
    board.Input.KeyPress.connect([&](int16_t&) { ++characters; });
    EXPECT_TRUE(Key(host, QEvent::KeyPress, Qt::Key_A, "a"));
    EXPECT_EQ(characters, 0);
}

TEST_F(ControlHostTest, AHandlerThatThrowsEndsInTheHost) {
    Show();
    board.Input.MouseDown.connect([](int16_t, int16_t, float, float) { throw std::runtime_error("press"); });
    board.Input.KeyDown.connect([](int16_t&, int16_t) { throw std::runtime_error("key"); });
    Click({50, 50});
    Key(host, QEvent::KeyPress, Qt::Key_A, "a");
    SUCCEED();
}

// --- Painting ---

TEST_F(ControlHostTest, AControlWhoseWidgetGoesAwayInTheMiddleOfAKeyEndsBehindIt) {
    auto other = std::make_unique<test::BoardHost>(desktop);
    auto held = std::make_shared<int>();
    const std::weak_ptr<int> life = held;
    other->board.Changed.connect([held = std::move(held)] {});
    bool lived = false;
    other->board.Input.KeyDown.connect([&](int16_t&, int16_t) { other.reset(); });
    other->board.Input.KeyDown.connect([&](int16_t&, int16_t) { lived = !life.expired(); });
    Key(*other, QEvent::KeyPress, Qt::Key_A, "a");
    EXPECT_TRUE(lived);
    EXPECT_TRUE(life.expired());
}

TEST_F(ControlHostTest, TheWidgetShowsTheControl) {
    Show();
    board.tile.Move(10, 10, 20, 20);
    board.tile.SetVisible(true);
    const QImage image = host.grab().toImage();
    EXPECT_EQ(image.pixel(15, 15), qRgb(0, 0, 200));
    EXPECT_EQ(image.pixel(35, 15), qRgb(255, 255, 255));
    EXPECT_EQ(image.pixel(199, 99), qRgb(255, 255, 255));
}

TEST_F(ControlHostTest, TheWidgetIsSharpAtEveryDensity) {
    Show();
    board.tile.Move(10, 10, 20, 20);
    board.tile.Surface().LineBox(0, 0, 19, 19, RGB(255, 0, 0));
    board.tile.SetVisible(true);
    for (const double scale : {1.0, 1.25, 1.5, 2.0}) {
        QImage image(QSize(200, 100) * scale, QImage::Format_RGB32);
        image.fill(Qt::green);
        image.setDevicePixelRatio(scale);
        host.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
        std::set<QRgb> colors;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) colors.insert(image.pixel(x, y));
        }
        EXPECT_EQ(colors, (std::set<QRgb>{qRgb(255, 255, 255), qRgb(255, 0, 0), qRgb(0, 0, 200)})) << scale;
    }
}

TEST_F(ControlHostTest, AWidgetInsideOfAnotherIsSharpThereToo) {
    QWidget outer;
    outer.resize(400, 300);
    host.setParent(&outer);
    host.move(7, 3);
    outer.show();
    board.tile.Move(10, 10, 20, 20);
    board.tile.Surface().LineBox(0, 0, 19, 19, RGB(255, 0, 0));
    board.tile.SetVisible(true);
    for (const double scale : {1.25, 2.0}) {
        QImage image(QSize(400, 300) * scale, QImage::Format_RGB32);
        image.setDevicePixelRatio(scale);
        image.fill(Qt::white);
        outer.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
        std::set<QRgb> colors;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) colors.insert(image.pixel(x, y));
        }
        EXPECT_EQ(colors, (std::set<QRgb>{qRgb(255, 255, 255), qRgb(255, 0, 0), qRgb(0, 0, 200)})) << scale;
    }
    host.setParent(nullptr);
}

TEST_F(ControlHostTest, ARedrawAtOncePaintsWhatHasChangedOnceAFrame) {
    Show();
    board.tile.Move(10, 10, 20, 20);
    board.tile.SetVisible(true);
    const auto redraw = [&] { desktop.windows.RedrawWindow(board.Hwnd(), {0, 0, 200, 100}, 0x101); };
    desktop.clock.Sleep(10);
    redraw();
    EXPECT_EQ(desktop.looks.Drawn(), 1);
    board.tile.Surface().Line(0, 0, 5, 5, 0);
    desktop.clock.Sleep(10);
    redraw();
    EXPECT_EQ(desktop.looks.Drawn(), 2);
    const int64_t before = desktop.clock.Now();
    board.tile.Surface().Line(0, 0, 5, 6, 0);
    redraw();
    const int64_t drawn = desktop.looks.Drawn();
    EXPECT_TRUE(drawn == 2 || desktop.clock.Now() - before >= 8);
    QCoreApplication::processEvents();
    EXPECT_EQ(desktop.looks.Drawn(), 3);
}

TEST_F(ControlHostTest, ARedrawPutOffIsPaintedByTheEventLoop) {
    Show();
    desktop.clock.Sleep(10);
    QCoreApplication::processEvents();
    board.tile.Move(10, 10, 20, 20);
    board.tile.SetVisible(true);
    desktop.windows.RedrawWindow(board.Hwnd(), {0, 0, 200, 100}, 0x101);
    QCoreApplication::processEvents();
    EXPECT_EQ(desktop.looks.Drawn(), 1);
}

TEST_F(ControlHostTest, AControlThatChangesManyTimesIsPaintedOnce) {
    Show();
    test::PaintCounter painted(host);
    for (int i = 0; i < 50; ++i) {
        board.tile.Move(i, i, 20, 20);
        board.tile.SetVisible(true);
        board.tile.Surface().Line(0, 0, i, i, 0);
    }
    QCoreApplication::processEvents();
    EXPECT_EQ(painted.Count(), 1);
    EXPECT_EQ(host.grab().toImage().pixel(60, 68), qRgb(0, 0, 200));
    EXPECT_EQ(host.grab().toImage().pixel(30, 30), qRgb(255, 255, 255));
}

TEST_F(ControlHostTest, AChangeWhileTheWidgetIsHiddenShowsLater) {
    Show();
    host.hide();
    board.tile.Move(10, 10, 20, 20);
    board.tile.SetVisible(true);
    QCoreApplication::processEvents();
    test::PaintCounter painted(host);
    Show();
    board.tile.SetVisible(false);
    QCoreApplication::processEvents();
    EXPECT_EQ(painted.Count(), 2);
}

// --- Peers ---

class TextBoxPeerTest : public ControlHostTest {
protected:
    TextBoxPeerTest() {
        board.box.Move(10, 10, 100, 24);
        board.box.SetVisible(true);
        Show();
        host.activateWindow();
    }

    TextBoxPeer& Peer() { return *host.findChild<TextBoxPeer*>(); }
};

TEST_F(TextBoxPeerTest, FollowsTextAndSelectionInCharacters) {
    board.box.SetText(
        "a\xF0\x9F\x8E\xB5"
        "bc");  // a note between a and b
    board.box.SetSelStart(1);
    board.box.SetSelLength(2);
    EXPECT_EQ(Peer().geometry(), QRect(10, 10, 100, 24));
    EXPECT_EQ(Peer().text().toStdString(),
              "a\xF0\x9F\x8E\xB5"
              "bc");
    EXPECT_EQ(Peer().selectedText().toStdString(),
              "\xF0\x9F\x8E\xB5"
              "b");
}

TEST_F(TextBoxPeerTest, TypingReachesTheModel) {
    board.box.SetText("ab");
    board.box.SetSelStart(1);
    board.box.SetFocus();
    Key(Peer(), QEvent::KeyPress, Qt::Key_X, "x");
    EXPECT_EQ(board.box.Text(), "axb");
    EXPECT_EQ(board.box.SelStart(), 2);
    EXPECT_EQ(board.box.SelLength(), 0);
    Peer().selectAll();
    EXPECT_EQ(board.box.SelStart(), 0);
    EXPECT_EQ(board.box.SelLength(), 3);
}

TEST_F(TextBoxPeerTest, ASwallowedCharacterIsNotTyped) {
    board.box.SetText("ab");
    Peer().setFocus();
    host.Router().SetFocus(&board.box);
    board.box.Input.KeyPress.connect([](int16_t& character) {
        if (character == '/') character = 0;
    });
    Key(Peer(), QEvent::KeyPress, Qt::Key_Slash, "/");
    EXPECT_EQ(board.box.Text(), "ab");
    Key(Peer(), QEvent::KeyPress, Qt::Key_X, "x");
    EXPECT_EQ(board.box.Text(), "xab");
}

}  // namespace
}  // namespace vorlane
