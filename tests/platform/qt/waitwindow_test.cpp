// The wait window as a real window, at each of its places, with its effect and without.
#include "platform/qt/formwidget.h"
#include "platform/qt/qtdesktop.h"
#include "platform/qt/regions.h"
#include "windows/frmwait.h"

#include <cstdlib>
#include <functional>
#include <gtest/gtest.h>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include <QApplication>
#include <QLineEdit>
#include <QStyle>

namespace vorlane {
namespace {

// A clock that lets the message loop run as ever, tells when it has, and sleeps for nobody.
class WatchedClock final : public Clock {
public:
    explicit WatchedClock(Clock& clock) : clock_(clock) {}
    std::function<void()> onYield;

    int64_t Now() const override { return clock_.Now(); }
    TimerId StartTimer(int32_t interval, std::function<void()> tick) override {
        return clock_.StartTimer(interval, std::move(tick));
    }
    void StopTimer(TimerId timer) override { clock_.StopTimer(timer); }
    void DoEvents() override {
        clock_.DoEvents();
        if (onYield) onYield();
    }
    void Sleep(int32_t) override {}

private:
    Clock& clock_;
};

enum class Slides : uint8_t { Not, FromLeft, FromTop, FromRight, FromBottom };

struct Standing {
    WaitPlace Place;
    Qt::Alignment Side;  // of the rectangle
    vorlane::Slides Slides;
};

const Standing kStandings[] = {
    {WaitPlace::TopLeft, Qt::AlignTop | Qt::AlignLeft, Slides::FromLeft},
    {WaitPlace::Top, Qt::AlignTop | Qt::AlignHCenter, Slides::FromTop},
    {WaitPlace::TopRight, Qt::AlignTop | Qt::AlignRight, Slides::FromRight},
    {WaitPlace::Left, Qt::AlignVCenter | Qt::AlignLeft, Slides::FromLeft},
    {WaitPlace::Middle, Qt::AlignVCenter | Qt::AlignHCenter, Slides::Not},
    {WaitPlace::Right, Qt::AlignVCenter | Qt::AlignRight, Slides::FromRight},
    {WaitPlace::BottomLeft, Qt::AlignBottom | Qt::AlignLeft, Slides::FromLeft},
    {WaitPlace::Bottom, Qt::AlignBottom | Qt::AlignHCenter, Slides::FromBottom},
    {WaitPlace::BottomRight, Qt::AlignBottom | Qt::AlignRight, Slides::FromRight},
};

void PrintTo(const Standing& standing, std::ostream* out) {
    *out << "place " << static_cast<int>(standing.Place);
}

constexpr QRect kRect(100, 120, 400, 300);

class QtWaitWindowAt : public testing::TestWithParam<Standing> {
protected:
    QtWaitWindowAt() {
        behind.show();
        behind.activateWindow();
        behind.setFocus();
        clock.onYield = [this] { parts.push_back(PartOnScreen()); };
    }
    ~QtWaitWindowAt() override { form.Unload(); }

    static vorlane::Desktop With(QtDesktop& desktop, Clock& clock) {
        const vorlane::Desktop own = desktop.Roles();
        return {clock,      own.screen, own.keyboard, own.metrics, own.windows,  own.drags, own.dialogs, own.pictures,
                own.sounds, own.texts,  own.forms,    own.films,   own.tooltips, own.menus, own.shared};
    }
    void Open(bool withoutEffect) {
        const WinRect rect{kRect.left(), kRect.top(), kRect.right() + 1, kRect.bottom() + 1};
        form.ShowAnimatedFrom("Tri en cours", GetParam().Place, rect, withoutEffect);
    }
    FormWidget& Widget() { return *desktop.forms.WidgetOf(form.Hwnd()); }
    // What of the window is to be seen, in one rectangle around it.
    QRect PartOnScreen() {
        const QRegion seen = Widget().mask() & Widget().rect();
        return seen.boundingRect().translated(Widget().pos());
    }

    bool SlidesUpright() const {
        return GetParam().Slides == Slides::FromTop || GetParam().Slides == Slides::FromBottom;
    }
    // Where a rectangle starts on the axis on which the window slides, and how far it reaches.
    std::pair<int, int> Along(const QRect& rect) const {
        return SlidesUpright() ? std::pair(rect.top(), rect.height()) : std::pair(rect.left(), rect.width());
    }
    // The same of what is to be seen when so many pixels are uncovered: it keeps to its side of the rectangle. Round
    // regions are a pixel short.
    std::pair<int, int> AlongWith(int shown) const {
        switch (GetParam().Slides) {
            case Slides::FromLeft:
                return {kRect.left(), shown - 1};
            case Slides::FromTop:
                return {kRect.top(), shown - 1};
            case Slides::FromRight:
                return {kRect.right() + 1 - shown, shown - 1};
            default:
                return {kRect.bottom() + 1 - shown, shown - 1};
        }
    }
    // The parts at each yield, while from one pixel more to the other were uncovered.
    void ExpectParts(int first, int last) {
        const int step = first < last ? 1 : -1;
        ASSERT_EQ(static_cast<int>(parts.size()), std::abs(last - first) + 1);
        int shown = first;
        for (const QRect& part : parts) {
            if (shown > 1) {
                EXPECT_EQ(Along(part), AlongWith(shown)) << shown;
                EXPECT_TRUE(kRect.contains(part)) << shown;
            } else {
                EXPECT_TRUE(part.isEmpty()) << shown;
            }
            shown += step;
        }
    }
    QRect Target() { return QStyle::alignedRect(Qt::LeftToRight, GetParam().Side, Widget().size(), kRect); }
    void ExpectStandsThere() {
        const FormWidget& widget = Widget();
        EXPECT_TRUE(widget.isVisible());
        EXPECT_LE((widget.geometry().topLeft() - Target().topLeft()).manhattanLength(), 1);
        const int corner = form.Fond().CornerSize();
        EXPECT_EQ(widget.mask(),
                  ToQRegion(Region::CreateRoundRectRgn(0, 0, widget.width(), widget.height(), corner, corner)));
        EXPECT_TRUE(widget.windowFlags().testFlag(Qt::FramelessWindowHint));
        EXPECT_NEAR(widget.windowOpacity(), 165 / 255.0, 0.01);
    }
    // Beside the text the panel's gradient in its frame, wherever there is something of the window.
    void ExpectOpaque() {
        const QImage image = Widget().grab().toImage();
        for (const int x : {7, image.width() - 9}) {
            for (int y = 0; y < image.height() - 1; ++y) {
                const QColor pixel = image.pixelColor(x, y);
                EXPECT_EQ(pixel.alpha(), 255);
                EXPECT_GT(pixel.lightness(), 150) << x << "," << y;
            }
        }
    }
    void ExpectKeyboardStays() {
        EXPECT_EQ(QApplication::activeWindow(), &behind);
        EXPECT_EQ(QApplication::focusWidget(), &behind);
    }

    QtDesktop desktop;
    WatchedClock clock{desktop.clock};
    FrmWait form{With(desktop, clock)};
    QLineEdit behind;
    std::vector<QRect> parts;  // at each yield
};

TEST_P(QtWaitWindowAt, AppearsAtOnceWithoutItsEffect) {
    Open(true);
    ExpectStandsThere();
    ExpectOpaque();
    ExpectKeyboardStays();
    EXPECT_EQ(parts.size(), 1U);
    EXPECT_EQ(parts.front(), PartOnScreen());
    form.CloseWindow(true);
    EXPECT_FALSE(form.Loaded());
    ExpectKeyboardStays();
}

TEST_P(QtWaitWindowAt, SlidesInAndOutInsideItsRectangleByAPixelAPass) {
    Open(false);
    ExpectStandsThere();
    ExpectOpaque();
    ExpectKeyboardStays();
    if (GetParam().Slides == Slides::Not) {
        EXPECT_EQ(parts.size(), 1U);
        return form.CloseWindow(false);
    }
    const int whole = SlidesUpright() ? Widget().height() : Widget().width();
    ExpectParts(1, whole);
    parts.clear();
    form.CloseWindow(false);
    ExpectParts(whole - 1, 0);
    EXPECT_FALSE(form.Loaded());
    ExpectKeyboardStays();
}

INSTANTIATE_TEST_SUITE_P(Places, QtWaitWindowAt, testing::ValuesIn(kStandings),
                         [](const auto& row) { return "At" + std::to_string(static_cast<int>(row.param.Place)); });

}  // namespace
}  // namespace vorlane
