#include "platform/qt/scrollbarpeer.h"

#include "tests/platform/qt/barhand.h"
#include "tests/platform/qt/board.h"

#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <utility>

#include <QPaintEvent>
#include <QScreen>
#include <QWheelEvent>

namespace vorlane {
namespace {

class ScrollBarPeerTest : public testing::Test {
protected:
    ScrollBarPeerTest() {
        host.resize(200, 100);
        board.bar.SetMax(1000);
        board.bar.SetSmallChange(10);
        board.bar.SetLargeChange(100);
        board.bar.SetAlign(Align::Right);
        board.bar.SetVisible(true);
        host.show();
        QCoreApplication::processEvents();
        board.bar.Change.connect([&](int32_t value) { heard += "change " + std::to_string(value) + ";"; });
        board.bar.Scroll.connect([&](int32_t value) { heard += "scroll " + std::to_string(value) + ";"; });
        board.bar.Input.MouseDown.connect(
            [&](int16_t button, int16_t, float, float) { heard += "down " + std::to_string(button) + ";"; });
        board.bar.Input.MouseUp.connect(
            [&](int16_t button, int16_t, float, float) { heard += "up " + std::to_string(button) + ";"; });
    }

    ScrollBarPeer& Peer() { return *host.findChild<ScrollBarPeer*>(); }
    QPoint Middle(QStyle::SubControl part) { return test::PartOf(Peer(), part).center(); }
    QImage Shown() { return host.screen()->grabWindow(host.winId()).toImage(); }
    std::string Heard() { return std::exchange(heard, {}); }

    QtDesktop desktop;
    test::BoardHost host{desktop};
    test::Board& board = host.board;
    test::BarHand hand{Peer()};
    std::string heard;
};

TEST_F(ScrollBarPeerTest, FollowsTheModel) {
    EXPECT_EQ(Peer().geometry(), QRect(184, 0, 16, 100));
    EXPECT_TRUE(Peer().isVisible());
    board.bar.SetValue(300);
    EXPECT_EQ(Peer().value(), 300);
    EXPECT_EQ(Peer().pageStep(), 100);
    board.bar.SetMax(200);
    EXPECT_EQ(Peer().value(), 200);
    board.bar.SetVisible(false);
    EXPECT_FALSE(Peer().isVisible());
    EXPECT_EQ(Heard(), "change 300;change 200;");
}

TEST_F(ScrollBarPeerTest, AnArrowStepsByTheSmallChange) {
    hand.Click(Middle(QStyle::SC_ScrollBarAddLine));
    EXPECT_EQ(board.bar.Value(), 10);
    EXPECT_EQ(Heard(), "down 1;change 10;up 1;");
}

TEST_F(ScrollBarPeerTest, APressBesideTheThumbStepsByTheLargeChange) {
    hand.Click(Middle(QStyle::SC_ScrollBarAddPage));
    EXPECT_EQ(Heard(), "down 1;change 100;up 1;");
    hand.Click(Middle(QStyle::SC_ScrollBarSubPage));
    EXPECT_EQ(Heard(), "down 1;change 0;up 1;");
}

TEST_F(ScrollBarPeerTest, ASecondPressSoonAfterTheFirstIsAPressToo) {
    const QPoint arrow = Middle(QStyle::SC_ScrollBarAddLine);
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonDblClick}) {
        QMouseEvent press(type, arrow, Peer().mapToGlobal(QPointF(arrow)), Qt::LeftButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&Peer(), &press);
        QMouseEvent release(QEvent::MouseButtonRelease, arrow, Peer().mapToGlobal(QPointF(arrow)), Qt::LeftButton, {},
                            {});
        QCoreApplication::sendEvent(&Peer(), &release);
    }
    EXPECT_EQ(Heard(), "down 1;change 10;up 1;down 1;change 20;up 1;");
}

TEST_F(ScrollBarPeerTest, TheWheelOverTheBarGoesToTheControl) {
    QWheelEvent event({5, 50}, Peer().mapToGlobal(QPointF(5, 50)), {}, {0, -120}, Qt::NoButton, {}, Qt::NoScrollPhase,
                      false);
    QCoreApplication::sendEvent(&Peer(), &event);
    EXPECT_EQ(board.bar.Value(), 0);  // this control makes nothing of it
    EXPECT_EQ(Peer().value(), 0);
}

// --- The thumb ---

TEST_F(ScrollBarPeerTest, ADraggedThumbScrollsAndChangesWhenItIsLetGo) {
    hand.PressThumb();
    hand.Move({0, 20});
    EXPECT_EQ(board.bar.Value(), 0);
    EXPECT_EQ(Heard().rfind("down 1;scroll ", 0), 0U);
    hand.Release();
    EXPECT_GT(board.bar.Value(), 0);
    EXPECT_EQ(Heard(), "change " + std::to_string(board.bar.Value()) + ";up 1;");
}

TEST_F(ScrollBarPeerTest, ALyingBarIsDraggedSideways) {
    board.bar.SetAlign(Align::None);
    board.bar.SetOrientation(Orientation::Horizontal);
    board.bar.Move(0, 84, 200, 16);
    EXPECT_EQ(Peer().geometry(), QRect(0, 84, 200, 16));
    EXPECT_EQ(Peer().orientation(), Qt::Horizontal);
    hand.PressThumb();
    hand.Move({0, 10});
    EXPECT_EQ(Heard(), "down 1;");
    hand.Move({60, 0});
    EXPECT_EQ(Heard().rfind("scroll ", 0), 0U);
    hand.Release();
    EXPECT_GT(board.bar.Value(), 200);
    EXPECT_EQ(Heard(), "change " + std::to_string(board.bar.Value()) + ";up 1;");
}

TEST_F(ScrollBarPeerTest, ARangeThatChangesUnderTheUsersThumbLeavesTheThumbWhereItIs) {
    board.bar.SetValue(100);
    hand.PressThumb();
    hand.Move({0, 20});
    const int held = Peer().sliderPosition();
    ASSERT_GT(held, 200);
    Heard();
    board.bar.SetMax(5000);
    EXPECT_EQ(Peer().sliderPosition(), held);
    board.bar.SetMax(200);
    EXPECT_EQ(Peer().sliderPosition(), 200);  // there is nothing beyond
    EXPECT_EQ(Heard(), "");
    hand.Release();
    EXPECT_EQ(Heard(), "change 200;up 1;");
}

TEST_F(ScrollBarPeerTest, AThumbThatIsOnlyHeldFollowsTheModelWhenItIsLetGo) {
    hand.PressThumb();
    board.bar.SetValue(333);
    hand.Release();
    EXPECT_EQ(Peer().value(), 333);
    EXPECT_EQ(Peer().sliderPosition(), 333);
    EXPECT_EQ(Heard(), "down 1;change 333;up 1;");
}

// Where the style has it so, as on most desktops.
TEST_F(ScrollBarPeerTest, APressWithTheMiddleButtonBringsTheThumbThere) {
    ASSERT_NE(Peer().style()->styleHint(QStyle::SH_ScrollBar_MiddleClickAbsolutePosition, nullptr, &Peer()), 0);
    hand.Press({8, 50}, Qt::MiddleButton);
    EXPECT_GT(Peer().sliderPosition(), 300);
    hand.Release(Qt::MiddleButton);
    EXPECT_GT(board.bar.Value(), 300);
    const std::string rest = std::to_string(board.bar.Value());
    EXPECT_EQ(Heard(), "down 4;scroll " + rest + ";change " + rest + ";up 4;");
}

TEST_F(ScrollBarPeerTest, APressWithTheRightButtonIsToldAndMovesNothing) {
    hand.Click({8, 50}, Qt::RightButton);
    EXPECT_EQ(Heard(), "down 2;up 2;");
    EXPECT_EQ(Peer().sliderPosition(), 0);
}

// --- The end of a press ---

TEST_F(ScrollBarPeerTest, ABarThatGoesOutOfSightUnderTheHandIsLetGoAndKeepsItsValue) {
    hand.PressThumb();
    hand.Move({0, 30});
    Heard();
    board.bar.SetVisible(false);
    EXPECT_EQ(Heard(), "up 1;");
    EXPECT_EQ(board.bar.Value(), 0);
    board.bar.SetVisible(true);
    EXPECT_EQ(Peer().sliderPosition(), 0);
    board.bar.SetVisible(false);
    EXPECT_EQ(Heard(), "");
}

TEST_F(ScrollBarPeerTest, TheThumbStaysInTheHandWhenAnotherButtonGoesUp) {
    hand.PressThumb();
    hand.Press(hand.Thumb(), Qt::RightButton);
    hand.Release(Qt::RightButton);
    EXPECT_EQ(Heard(), "down 1;down 2;up 2;");
    hand.Move({0, 30});
    EXPECT_EQ(Heard().rfind("scroll ", 0), 0U);
    board.bar.SetVisible(false);
    EXPECT_EQ(Heard(), "up 1;");
}

TEST_F(ScrollBarPeerTest, AllButtonsThatAreHeldAreLetGoWithTheBar) {
    hand.PressThumb();
    hand.Press(hand.Thumb(), Qt::RightButton);
    Heard();
    board.bar.SetVisible(false);
    EXPECT_EQ(Heard(), "up 1;up 2;");
}

// --- Painting ---

// Hears what a widget paints.
class PaintWatch : public QObject {
public:
    explicit PaintWatch(QWidget& widget) {
        QCoreApplication::processEvents();
        widget.installEventFilter(this);
    }
    QRegion Painted() {
        QCoreApplication::processEvents();
        return std::exchange(painted_, {});
    }

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) painted_ += static_cast<QPaintEvent*>(event)->region();
        return false;
    }

private:
    QRegion painted_;
};

TEST_F(ScrollBarPeerTest, AStepThatDoesNotMoveTheThumbPaintsNothing) {
    board.bar.SetMax(1'000'000);
    board.bar.SetValue(500'000);
    PaintWatch watch(Peer());
    board.bar.SetValue(500'010);
    EXPECT_TRUE(watch.Painted().isEmpty());
    board.bar.SetValue(700'000);
    EXPECT_FALSE(watch.Painted().isEmpty());
}

TEST_F(ScrollBarPeerTest, AStepPaintsAroundTheThumbAlone) {
    host.resize(200, 600);
    board.bar.SetValue(400);
    PaintWatch watch(Peer());
    board.bar.SetValue(410);
    const QRegion painted = watch.Painted();
    EXPECT_TRUE(painted.contains(Middle(QStyle::SC_ScrollBarSlider)));
    EXPECT_FALSE(painted.intersects(test::PartOf(Peer(), QStyle::SC_ScrollBarAddLine)));
    EXPECT_FALSE(painted.intersects(test::PartOf(Peer(), QStyle::SC_ScrollBarSubLine)));
}

// Of two pictures of one size: the largest difference of a colour's part.
int MostApart(const QImage& one, const QImage& other) {
    int most = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QRgb a = one.pixel(x, y);
            const QRgb b = other.pixel(x, y);
            most = std::max(
                {most, std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)), std::abs(qBlue(a) - qBlue(b))});
        }
    }
    return most;
}

// Steps, drags, sizes and ranges in a fixed disorder: what has come to stand in the window is what a whole paint gives,
// but for the shades that a style makes of a line at the edge of what it paints.
TEST_F(ScrollBarPeerTest, ThePaintedPartsMakeTheWholeBar) {
    host.resize(60, 300);
    std::minstd_rand random(7);
    const auto below = [&](unsigned limit) { return static_cast<int32_t>(random() % limit); };
    for (int step = 0; step < 150; ++step) {
        switch (below(8)) {
            case 0:
                board.bar.SetMax(200 + below(3000));
                break;
            case 1:
                host.resize(60, 200 + below(200));
                break;
            case 2:
                hand.PressThumb();
                hand.Move({0, below(60) - 30});
                if (below(2) == 0) QCoreApplication::processEvents();
                hand.Release();
                break;
            default:
                board.bar.SetValue(below(2) == 0 ? below(3000) : board.bar.Value() + 10);
        }
        if (below(3) == 0) continue;
        QCoreApplication::processEvents();
        const QImage shown = Shown();
        Peer().repaint();
        ASSERT_LE(MostApart(shown, Shown()), 8) << "after step " << step;
    }
}

}  // namespace
}  // namespace vorlane
