// The wait window on a real screen without a compositor.
#include "platform/qt/formwidget.h"
#include "platform/qt/qtdesktop.h"
#include "tests/xvfb/user.h"
#include "windows/frmwait.h"

#include <cstdlib>
#include <string>

#include <QApplication>
#include <QImage>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScreen>

namespace vorlane {
namespace {

using test::User;

constexpr QRect kHere(200, 150, 600, 400);
const QColor kGround(255, 0, 255);

// How far a length stands from where it belongs on another one: at its start (0), in its middle (1), at its end (2).
int Along(int which, int from, int length, int otherFrom, int otherLength) {
    return from - otherFrom - (otherLength - length) * which / 2;
}

// A window in one colour with a line to type in, which counts what is pressed on it.
class Typed final : public QWidget {
public:
    Typed() {
        setGeometry(kHere);
        setPalette(kGround);
        line.setGeometry(10, kHere.height() / 4, 200, 30);  // under no place of the window
        show();
    }
    QLineEdit line{this};
    int pressed = 0;

protected:
    void mousePressEvent(QMouseEvent*) override { ++pressed; }
};

class WaitWindowUnderX : public testing::TestWithParam<WaitPlace> {
protected:
    WaitWindowUnderX() {
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&below));
        User::PointAt(below.line.mapToGlobal(QPoint(20, 15)));
        User::Click();
        EXPECT_TRUE(User::Until([this] { return QApplication::focusWidget() == &below.line; }));
    }
    ~WaitWindowUnderX() override { form.Unload(); }

    QWidget& Widget() { return *desktop.forms.WidgetOf(form.Hwnd()); }
    QRect Place() { return Widget().geometry(); }
    static QImage Screen(const QRect& part) {
        QScreen& screen = *QGuiApplication::primaryScreen();
        return screen.grabWindow(0, part.x(), part.y(), part.width(), part.height()).toImage();
    }
    // Whether the screen shows the ground around the window's shape, and nothing of it inside.
    bool StandsCutOutAndOpaque() {
        const QImage seen = Screen(Place());
        const QRegion shape = Widget().mask();
        for (int y = 0; y < seen.height(); ++y) {
            for (int x = 0; x < seen.width(); ++x) {
                const bool ground = seen.pixelColor(x, y) == kGround;
                if (ground == shape.contains(QPoint(x, y))) return false;
            }
        }
        return !shape.isEmpty();
    }

    QtDesktop desktop;
    Typed below;
    FrmWait form{desktop.Roles()};
};

TEST_P(WaitWindowUnderX, StandsRoundAndOpaqueAndLeavesKeysAndMouseToWhatLiesBeneath) {
    User::Key("a");
    const WinRect rect{kHere.left(), kHere.top(), kHere.right() + 1, kHere.bottom() + 1};
    form.ShowAnimatedFrom("Tri en cours", GetParam(), rect, false);
    EXPECT_TRUE(User::Until([this] { return StandsCutOutAndOpaque(); }));
    const int key = static_cast<int>(GetParam()) - 1;  // as on a keypad
    EXPECT_NEAR(Along(key % 3, Place().left(), Place().width(), kHere.left(), kHere.width()), 0, 1);
    EXPECT_NEAR(Along(key / 3, Place().top(), Place().height(), kHere.top(), kHere.height()), 0, 1);
    EXPECT_FALSE(Widget().mask().contains(QPoint(0, 0)));
    // A pixel beside the text is of the panel's colours alone, not mixed with the ground.
    const QColor panel = Screen(Place()).pixelColor(8, Place().height() / 2);
    EXPECT_LE(std::abs(panel.green() - panel.red()), 12);
    User::Key("b");
    EXPECT_TRUE(User::Until([this] { return below.line.text() == "ab"; })) << below.line.text().toStdString();
    EXPECT_EQ(QApplication::activeWindow(), &below);
    EXPECT_EQ(QApplication::focusWidget(), &below.line);
    User::PointAt(Place().center());
    User::Click();
    EXPECT_TRUE(User::Until([this] { return below.pressed == 1; }));
    EXPECT_EQ(QApplication::activeWindow(), &below);
    form.CloseWindow(false);
    EXPECT_TRUE(User::Until([] { return Screen({kHere.center(), QSize(1, 1)}).pixelColor(0, 0) == kGround; }));
    User::Key("c");
    EXPECT_TRUE(User::Until([this] { return below.line.text() == "abc"; }));
}

INSTANTIATE_TEST_SUITE_P(Places, WaitWindowUnderX,
                         testing::Values(WaitPlace::TopLeft, WaitPlace::Top, WaitPlace::TopRight, WaitPlace::Left,
                                         WaitPlace::Middle, WaitPlace::Right, WaitPlace::BottomLeft, WaitPlace::Bottom,
                                         WaitPlace::BottomRight),
                         [](const auto& row) { return "At" + std::to_string(static_cast<int>(row.param)); });

}  // namespace
}  // namespace vorlane
