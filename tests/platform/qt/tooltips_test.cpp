#include "platform/qt/qtdesktop.h"
#include "platform/qt/tooltipwindow.h"
#include "windows/clstooltip.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCursor>
#include <QElapsedTimer>
#include <QMouseEvent>

namespace vorlane {
namespace {

constexpr QRect kScreen(0, 0, 800, 600);
constexpr int32_t kBalloon = 65;
constexpr int32_t kPlain = 1;

void RunFor(int milliseconds) {
    QElapsedTimer waited;
    waited.start();
    while (waited.elapsed() < milliseconds) QApplication::processEvents(QEventLoop::AllEvents, 5);
}

// --- Where a balloon stands ---

TEST(BalloonPlace, IsBelowAndToTheRightOfWhatItPointsAt) {
    const BalloonPlace place = PlaceBalloon({100, 100}, {200, 50}, kScreen);
    EXPECT_TRUE(place.below);
    EXPECT_EQ(place.body, QRect(82, 110, 200, 50));
    EXPECT_EQ(place.stem, 18);
}

TEST(BalloonPlace, KeepsToTheScreenAndBendsItsStem) {
    const BalloonPlace right = PlaceBalloon({700, 100}, {200, 50}, kScreen);
    EXPECT_EQ(right.body, QRect(600, 110, 200, 50));
    EXPECT_EQ(right.stem, 100);
    const BalloonPlace corner = PlaceBalloon({799, 100}, {200, 50}, kScreen);
    EXPECT_EQ(corner.stem, 182);
    EXPECT_EQ(PlaceBalloon({-50, 100}, {200, 50}, kScreen).body.left(), 0);
    EXPECT_EQ(PlaceBalloon({100, 100}, {1000, 50}, kScreen).body.left(), 0);
}

TEST(BalloonPlace, IsAboveWhereThereIsNoRoomBelow) {
    EXPECT_TRUE(PlaceBalloon({100, 540}, {200, 50}, kScreen).below);
    const BalloonPlace place = PlaceBalloon({100, 541}, {200, 50}, kScreen);
    EXPECT_FALSE(place.below);
    EXPECT_EQ(place.body, QRect(82, 481, 200, 50));
    EXPECT_TRUE(PlaceBalloon({100, 300}, {200, 550}, kScreen).below);
}

// --- The window ---

class QtToolTip : public testing::Test {
protected:
    QtToolTip() {
        widget.setGeometry(100, 100, 300, 200);
        widget.show();
        parent = desktop.windows.HandleOf(&widget);
        QCursor::setPos(700, 500);
        RunFor(20);
    }

    Balloon& Create(int32_t style = kBalloon, int32_t icon = 1, int32_t delay = 0, int32_t time = 30000) {
        window = tip.Create(parent, "un|deux", style, false, false, icon, "Titre", 0x101010, 0xE1FFFF, delay, time);
        return Shown();
    }
    Balloon& Shown() { return desktop.tooltips.Find(window)->Shown(); }

    void PointerTo(QPoint place) {
        QCursor::setPos(widget.mapToGlobal(place));
        QMouseEvent move(QEvent::MouseMove, QPointF(place), QPointF(QCursor::pos()), Qt::NoButton, Qt::NoButton,
                         Qt::NoModifier);
        QApplication::sendEvent(&widget, &move);
    }
    void Press() {
        QMouseEvent press(QEvent::MouseButtonPress, QPointF(5, 5), QPointF(QCursor::pos()), Qt::LeftButton,
                          Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&widget, &press);
    }

    QtDesktop desktop;
    QWidget widget;
    Hwnd parent = 0;
    clsToolTip tip{desktop.Roles()};
    Hwnd window = 0;
};

TEST_F(QtToolTip, HasItsTextTitleIconAndColours) {
    const Balloon& balloon = Create();
    EXPECT_EQ(balloon.Text(), QString::fromUtf8("un\u00A0\u00A0\ndeux"));
    EXPECT_EQ(balloon.Title().text, "Titre");
    EXPECT_EQ(balloon.Title().icon, 1);
    EXPECT_EQ(balloon.InkColor(), QColor(0x10, 0x10, 0x10));
    EXPECT_EQ(balloon.GroundColor(), QColor(255, 255, 225));
    tip.SetText("autre");
    tip.SetTitle("second");
    EXPECT_EQ(balloon.Text(), "autre");
    EXPECT_EQ(balloon.Title().text, "second");
}

TEST_F(QtToolTip, TakesNeitherFocusNorInput) {
    const Qt::WindowFlags flags = Create().windowFlags();
    EXPECT_TRUE(flags.testFlag(Qt::WindowTransparentForInput));
    EXPECT_TRUE(flags.testFlag(Qt::WindowDoesNotAcceptFocus));
    EXPECT_TRUE(flags.testFlag(Qt::WindowStaysOnTopHint));
}

TEST_F(QtToolTip, TextThatCouldNotBeReadIsBlackOrWhite) {
    Balloon& balloon = Create();
    balloon.SetTextColor(QColor(250, 250, 250));
    EXPECT_EQ(balloon.InkColor(), QColor(Qt::black));
    balloon.SetGroundColor(QColor(20, 20, 20));
    EXPECT_EQ(balloon.InkColor(), QColor(250, 250, 250));
    balloon.SetTextColor(QColor(40, 40, 40));
    EXPECT_EQ(balloon.InkColor(), QColor(Qt::white));
}

TEST_F(QtToolTip, ShowsAtOnceWhenThePointerIsThereAlready) {
    PointerTo({50, 50});
    Create();
    tip.Activate(true);
    RunFor(40);
    EXPECT_TRUE(Shown().isVisible());
    EXPECT_EQ(Shown().geometry().top(), 150 + 18);
    tip.Activate(false);
    EXPECT_FALSE(Shown().isVisible());
}

TEST_F(QtToolTip, ShowsWhenThePointerHasRestedAndGoesWhenItLeaves) {
    Create(kBalloon, 1, 150);
    RunFor(20);
    EXPECT_FALSE(Shown().isVisible());
    PointerTo({50, 50});
    EXPECT_FALSE(Shown().isVisible());
    RunFor(300);
    EXPECT_TRUE(Shown().isVisible());
    PointerTo({-10, -10});
    EXPECT_FALSE(Shown().isVisible());
}

TEST_F(QtToolTip, GoesWhenItsTimeIsOverUntilThePointerComesAgain) {
    Create(kBalloon, 1, 0, 60);
    PointerTo({50, 50});
    RunFor(20);
    EXPECT_TRUE(Shown().isVisible());
    RunFor(150);
    EXPECT_FALSE(Shown().isVisible());
    PointerTo({60, 60});
    RunFor(30);
    EXPECT_FALSE(Shown().isVisible());
    PointerTo({-10, -10});
    PointerTo({60, 60});
    RunFor(30);
    EXPECT_TRUE(Shown().isVisible());
}

TEST_F(QtToolTip, GoesWhenAButtonGoesDown) {
    Create();
    PointerTo({50, 50});
    RunFor(30);
    EXPECT_TRUE(Shown().isVisible());
    Press();
    EXPECT_FALSE(Shown().isVisible());
}

TEST_F(QtToolTip, ShowsNothingWhileItIsNotActive) {
    Create();
    tip.Activate(false);
    PointerTo({50, 50});
    RunFor(30);
    EXPECT_FALSE(Shown().isVisible());
}

TEST_F(QtToolTip, WhileItTracksItStandsWhereItIsTold) {
    Create();
    tip.SetTrackPosition(200, 250);
    tip.SetTracking(true);
    EXPECT_TRUE(Shown().isVisible());
    EXPECT_EQ(Shown().geometry().topLeft(), QPoint(182, 250));
    tip.SetTrackPosition(300, 250);
    EXPECT_EQ(Shown().geometry().topLeft(), QPoint(282, 250));
    PointerTo({-10, -10});
    EXPECT_TRUE(Shown().isVisible());
    tip.SetTracking(false);
    EXPECT_FALSE(Shown().isVisible());
}

TEST_F(QtToolTip, ACentredOneStandsUnderTheMiddle) {
    window = tip.Create(parent, "texte", kPlain, false, true, 0, "", 0, 0xFFFFFF, 0, 30000);
    PointerTo({10, 10});
    RunFor(30);
    EXPECT_TRUE(Shown().isVisible());
    EXPECT_NEAR(Shown().geometry().center().x(), 249, 1);
    EXPECT_EQ(Shown().geometry().top(), 310);
}

TEST_F(QtToolTip, ABalloonHasAStemAndAPlainOneIsABox) {
    const QSize balloon = Create(kBalloon).size();
    const QSize plain = Create(kPlain).size();
    EXPECT_EQ(balloon, plain + QSize(0, 10));
}

TEST_F(QtToolTip, GrowsWithItsText) {
    Balloon& balloon = Create();
    const QSize before = balloon.size();
    balloon.SetText("a much longer line of text than there was\nand\nmore lines");
    EXPECT_GT(balloon.width(), before.width());
    EXPECT_GT(balloon.height(), before.height());
}

TEST_F(QtToolTip, OutlivesItsWidget) {
    auto* gone = new QWidget;
    gone->setGeometry(0, 0, 50, 50);
    gone->show();
    window = tip.Create(desktop.windows.HandleOf(gone), "texte", kBalloon, false, false, 0, "", 0, 1, 0, 0);
    delete gone;
    tip.Activate(true);
    RunFor(20);
    EXPECT_FALSE(Shown().isVisible());
}

TEST_F(QtToolTip, WhatIsSentToNoWindowIsLost) {
    EXPECT_EQ(desktop.tooltips.SendMessageA(0, TTM_ACTIVATE, -1, 0), 0);
    desktop.tooltips.BringToTop(99);
    desktop.tooltips.DestroyTooltip(99);
    Create();
    EXPECT_EQ(desktop.tooltips.SendMessageA(window, TTM_ACTIVATE, -1, 0), 1);
}

}  // namespace
}  // namespace vorlane
