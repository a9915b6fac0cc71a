#include "platform/qt/colors.h"
#include "platform/qt/keys.h"
#include "platform/qt/qtdesktop.h"
#include "platform/timer.h"

#include <gtest/gtest.h>
#include <stdexcept>

#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTimer>
#include <QtEndian>

namespace vorlane {
namespace {

// --- Clock ---

// Lets events run until done, two seconds at most.
template <class Done>
bool WaitFor(QtClock& clock, Done done) {
    const int64_t limit = clock.Now() + 2000;
    while (!done() && clock.Now() < limit) clock.DoEvents();
    return done();
}

TEST(QtClock, TicksUntilItIsStopped) {
    QtClock clock;
    int ticks = 0;
    const auto timer = clock.StartTimer(1, [&] { ++ticks; });
    EXPECT_NE(timer, 0);
    EXPECT_TRUE(WaitFor(clock, [&] { return ticks >= 3; }));
    clock.StopTimer(timer);
    const int before = ticks;
    clock.Sleep(5);
    clock.DoEvents();
    EXPECT_EQ(ticks, before);
    EXPECT_EQ(clock.RunningTimers(), 0);
}

TEST(QtClock, ATimerMayStopItselfInItsTick) {
    QtClock clock;
    int ticks = 0;
    Clock::TimerId timer = 0;
    timer = clock.StartTimer(1, [&] {
        ++ticks;
        clock.StopTimer(timer);
    });
    EXPECT_TRUE(WaitFor(clock, [&] { return ticks == 1; }));
    clock.Sleep(5);
    clock.DoEvents();
    EXPECT_EQ(ticks, 1);
}

TEST(QtClock, StoppingTwiceStopsNoOtherTimer) {
    QtClock clock;
    const auto first = clock.StartTimer(1000, [] {});
    clock.StopTimer(first);
    const auto second = clock.StartTimer(1000, [] {});
    clock.StopTimer(first);
    EXPECT_EQ(clock.RunningTimers(), 1);
    clock.StopTimer(second);
}

TEST(QtClock, ATickThatThrowsEndsInTheClock) {
    QtClock clock;
    int ticks = 0;
    const auto timer = clock.StartTimer(1, [&] {
        ++ticks;
        throw std::runtime_error("tick");
    });
    EXPECT_TRUE(WaitFor(clock, [&] { return ticks >= 2; }));
    clock.StopTimer(timer);
}

TEST(QtClock, ATickMayYield) {
    QtClock clock;
    int inner = 0;
    bool yielded = false;
    const auto fast = clock.StartTimer(1, [&] { ++inner; });
    const auto slow = clock.StartTimer(1, [&] {
        if (yielded) return;
        yielded = true;
        const int before = inner;
        EXPECT_TRUE(WaitFor(clock, [&] { return inner > before; }));
    });
    EXPECT_TRUE(WaitFor(clock, [&] { return yielded; }));
    clock.StopTimer(fast);
    clock.StopTimer(slow);
}

TEST(QtClock, YieldingRunsWhatWaits) {
    QtClock clock;
    bool ran = false;
    QTimer::singleShot(0, [&] { ran = true; });
    clock.DoEvents();
    EXPECT_TRUE(ran);
}

TEST(QtClock, TimeNeverGoesBackAndSleepTakesIt) {
    QtClock clock;
    const int64_t before = clock.Now();
    clock.Sleep(20);
    EXPECT_GE(clock.Now() - before, 20);
}

TEST(QtClock, TimersEndWithTheClock) {
    int ticks = 0;
    {
        QtClock clock;
        clock.StartTimer(1, [&] { ++ticks; });
    }
    QtClock other;
    other.Sleep(5);
    other.DoEvents();
    EXPECT_EQ(ticks, 0);
}

// --- Screen ---

class QtScreenTest : public testing::Test {
protected:
    QtWindows windows_;
    QtScreen screen_{windows_};
};

TEST_F(QtScreenTest, TheHourglassIsPutOnAndTakenOffOnce) {
    screen_.SetMousePointer(11);
    screen_.SetMousePointer(11);
    ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    EXPECT_EQ(screen_.MousePointer(), 11);
    screen_.SetMousePointer(2);
    EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::CrossCursor);
    screen_.SetMousePointer(0);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    screen_.SetMousePointer(0);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(QtScreenTest, AnOverrideCursorOfTheProgramStaysBelow) {
    QGuiApplication::setOverrideCursor(Qt::IBeamCursor);
    screen_.SetMousePointer(11);
    screen_.SetMousePointer(0);
    ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::IBeamCursor);
    QGuiApplication::restoreOverrideCursor();
}

TEST_F(QtScreenTest, SystemColoursFollowTheTheme) {
    const QPalette before = QGuiApplication::palette();
    QPalette dark = before;
    dark.setColor(QPalette::Window, QColor(30, 40, 50));
    dark.setColor(QPalette::Base, QColor(10, 11, 12));
    dark.setColor(QPalette::Text, QColor(240, 241, 242));
    dark.setColor(QPalette::Dark, QColor(1, 2, 3));
    QGuiApplication::setPalette(dark);
    EXPECT_EQ(screen_.SysColor(15), RGB(30, 40, 50));
    EXPECT_EQ(screen_.SysColor(5), RGB(10, 11, 12));
    EXPECT_EQ(screen_.SysColor(8), RGB(240, 241, 242));
    EXPECT_EQ(screen_.SysColor(16), RGB(1, 2, 3));
    QGuiApplication::setPalette(before);
}

TEST_F(QtScreenTest, AnUnknownSystemColourIsBlack) {
    EXPECT_EQ(screen_.SysColor(99), 0U);
    EXPECT_EQ(screen_.SysColor(-1), 0U);
    EXPECT_EQ(screen_.SysColor(256 + 15), 0U);
}

TEST_F(QtScreenTest, TheCaptureBelongsToOneWindow) {
    QWidget first;
    QWidget second;
    first.show();
    second.show();
    screen_.SetCapture(windows_.HandleOf(&first));
    EXPECT_EQ(QWidget::mouseGrabber(), &first);
    screen_.SetCapture(windows_.HandleOf(&second));
    EXPECT_EQ(QWidget::mouseGrabber(), &second);
    EXPECT_EQ(screen_.Captured(), windows_.HandleOf(&second));
    screen_.ReleaseCapture();
    EXPECT_EQ(QWidget::mouseGrabber(), nullptr);
    EXPECT_EQ(screen_.Captured(), 0);
    screen_.SetCapture(12345);
    EXPECT_EQ(screen_.Captured(), 0);
}

// --- Windows ---

TEST(QtWindows, AWidgetHasOneNumberAsLongAsItLives) {
    QtWindows windows;
    Hwnd gone = 0;
    {
        QWidget widget;
        widget.setGeometry(30, 40, 200, 100);
        gone = windows.HandleOf(&widget);
        EXPECT_NE(gone, 0);
        EXPECT_EQ(windows.HandleOf(&widget), gone);
        EXPECT_EQ(windows.GetClientRect(gone), (WinRect{0, 0, 200, 100}));
        EXPECT_EQ(windows.GetWindowRect(gone), (WinRect{30, 40, 230, 140}));
        EXPECT_EQ(windows.ClientToScreen(gone, {5, 6}), (Point{35, 46}));
    }
    EXPECT_EQ(windows.WidgetOf(gone), nullptr);
    EXPECT_EQ(windows.GetWindowRect(gone), WinRect{});
    EXPECT_EQ(windows.HandleOf(nullptr), 0);
    QWidget other;
    EXPECT_NE(windows.HandleOf(&other), gone);
}

// --- Keyboard ---

TEST(QtKeyboard, KnowsTheKeysThatTheHostsTold) {
    QtKeyboard keyboard;
    EXPECT_FALSE(keyboard.KeyIsDown(27));
    keyboard.Press(27);
    EXPECT_TRUE(keyboard.KeyIsDown(27));
    keyboard.Release(27);
    EXPECT_FALSE(keyboard.KeyIsDown(27));
    keyboard.Press(65);
    keyboard.ReleaseAll();
    EXPECT_FALSE(keyboard.KeyIsDown(65));
    EXPECT_FALSE(keyboard.KeyIsDown(1));
}

TEST(Keys, HaveTheirVirtualCodes) {
    EXPECT_EQ(VirtualKeyOf(Qt::Key_Escape), 27);
    EXPECT_EQ(VirtualKeyOf(Qt::Key_A), 65);
    EXPECT_EQ(VirtualKeyOf(Qt::Key_9), 57);
    EXPECT_EQ(VirtualKeyOf(Qt::Key_F2), 113);
    EXPECT_EQ(VirtualKeyOf(Qt::Key_Down), 40);
    EXPECT_EQ(VirtualKeyOf(Qt::Key_Delete), 46);
    EXPECT_EQ(VirtualKeyOf(Qt::Key_unknown), 0);
    EXPECT_EQ(ShiftOf(Qt::ShiftModifier | Qt::AltModifier), 5);
    EXPECT_EQ(ShiftOf(Qt::ControlModifier | Qt::KeypadModifier), 2);
    EXPECT_EQ(ButtonOf(Qt::MiddleButton), 4);
    EXPECT_EQ(ButtonOf(Qt::BackButton), 0);
}

// --- Texts and fonts ---

TEST(QtTextMetrics, MeasuresWhatItsFontDraws) {
    const QtTextMetrics metrics;
    const Font font;
    const QFontMetricsF expected(ToQFont(font));
    EXPECT_FLOAT_EQ(metrics.TextWidth(font, "Wq"), static_cast<float>(expected.horizontalAdvance("Wq")));
    EXPECT_GE(metrics.TextHeight(font, "Wq"), expected.height());
    EXPECT_LT(metrics.TextHeight(font, "Wq"), expected.height() + 1);
    EXPECT_EQ(metrics.TextWidth(font, ""), 0);
    EXPECT_EQ(metrics.TextWidth(font, "a\nlonger"), metrics.TextWidth(font, "longer"));
    EXPECT_EQ(metrics.TextHeight(font, "a\nb"), 2 * metrics.TextHeight(font, "a"));
}

TEST(QtTextMetrics, KeepsMoreFontsApartThanItRemembers) {
    const QtTextMetrics metrics;
    float last = 0;
    for (int size = 4; size < 60; ++size) {
        Font font;
        font.Size = static_cast<float>(size);
        const float width = metrics.TextWidth(font, "MMMMMMMMMM");
        EXPECT_GT(width, last);
        last = width;
    }
}

TEST(Fonts, SurviveTheWayToQtAndBack) {
    const Font font{"DejaVu Sans", 11.5F, true, true, false, true};
    EXPECT_EQ(FromQFont(ToQFont(font)), font);
}

TEST(QtTexts, GivesTheLibrarysOwnTexts) {
    const QtTexts texts;
    const FrenchTexts french;
    EXPECT_EQ(texts.Text("2017"), french.Text("2017"));
    EXPECT_EQ(texts.Text("no number"), std::nullopt);
}

// --- Dialogs ---

TEST(QtDialogs, AMessageWaitsForItsAnswer) {
    QtDialogs dialogs;
    QString seen;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QTimer::singleShot(0, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        seen = box->windowTitle() + "|" + box->text();
        icon = box->icon();
        box->button(QMessageBox::Ok)->click();
    });
    dialogs.MsgBox("Le fichier <b> n'existe pas", 48, "Vorlane");
    EXPECT_EQ(seen, "Vorlane|Le fichier <b> n'existe pas");
    EXPECT_EQ(icon, QMessageBox::Warning);
}

// --- The desktop ---

TEST(QtDesktop, AProgramHasOne) {
    QtDesktop& desktop = QtDesktop::Of(*qApp);
    EXPECT_EQ(&QtDesktop::Of(*qApp), &desktop);
    EXPECT_EQ(desktop.parent(), qApp);
    EXPECT_EQ(&desktop.Roles().clock, &desktop.clock);
    delete &desktop;
}

}  // namespace
}  // namespace vorlane
