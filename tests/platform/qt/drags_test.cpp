// Drags over a hosted control, by sent events.
#include "platform/qt/dragdata.h"
#include "platform/qt/qtpicturedata.h"
#include "tests/platform/qt/board.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>

#include <QCoreApplication>
#include <QDragEnterEvent>
#include <QDragLeaveEvent>
#include <QDragMoveEvent>
#include <QDropEvent>
#include <QMimeData>

namespace vorlane {
namespace {

class DragsTest : public testing::Test {
protected:
    DragsTest() {
        host.resize(200, 100);
        board.SetOLEDropMode(1);
        board.Input.OLEDragOver.connect(
            [this](DataObject& data, int32_t& effect, int16_t button, int16_t shift, float x, float y, int16_t state) {
                log += "over " + std::to_string(data.Files().size()) + " " + std::to_string(button) + " " +
                       std::to_string(shift) + " " + std::to_string(static_cast<int>(x)) + "," +
                       std::to_string(static_cast<int>(y)) + " " + std::to_string(state) + "\n";
                effect = answer;
            });
        board.Input.OLEDragDrop.connect([this](DataObject& data, int32_t& effect, int16_t, int16_t, float, float) {
            log += "drop " + data.Files().front() + " " + std::to_string(effect) + "\n";
            effect = answer;
        });
        mime.setData(QStringLiteral("text/uri-list"), "file:///p/a.jpg");
    }

    struct Answer {
        bool Accepted;
        Qt::DropAction Action;
    };
    template <class Event>
    Answer Send(QPointF place, Qt::DropActions possible = Qt::CopyAction | Qt::MoveAction) {
        Event event(place.toPoint(), possible, &mime, Qt::LeftButton, Qt::ControlModifier);
        QCoreApplication::sendEvent(&host, &event);
        return {event.isAccepted(), event.dropAction()};
    }
    void Leave() {
        QDragLeaveEvent event;
        QCoreApplication::sendEvent(&host, &event);
    }

    QtDesktop desktop;
    test::BoardHost host{desktop};
    test::Board& board = host.board;
    QMimeData mime;
    std::string log;
    int32_t answer = 1;
};

TEST_F(DragsTest, ADragIsHandedToTheControlAndAnsweredByIt) {
    EXPECT_TRUE(Send<QDragEnterEvent>({10, 20}).Accepted);
    const auto over = Send<QDragMoveEvent>({10, 20});
    EXPECT_TRUE(over.Accepted);
    EXPECT_EQ(over.Action, Qt::CopyAction);
    answer = 2;
    EXPECT_EQ(Send<QDragMoveEvent>({11, 20}).Action, Qt::MoveAction);
    answer = 0;
    EXPECT_FALSE(Send<QDragMoveEvent>({12, 20}).Accepted);
    Leave();
    EXPECT_EQ(log,
              "over 1 1 2 10,20 0\nover 1 1 2 10,20 2\nover 1 1 2 11,20 2\nover 1 1 2 12,20 2\nover 1 0 0 -1,-1 1\n");
}

TEST_F(DragsTest, ADropIsDoneAsTheControlSays) {
    Send<QDragEnterEvent>({10, 20});
    Send<QDragMoveEvent>({10, 20});
    log.clear();
    QDropEvent drop({10, 20}, Qt::CopyAction | Qt::MoveAction, &mime, Qt::LeftButton, Qt::NoModifier);
    drop.setDropAction(Qt::CopyAction);
    QCoreApplication::sendEvent(&host, &drop);
    EXPECT_TRUE(drop.isAccepted());
    EXPECT_EQ(drop.dropAction(), Qt::CopyAction);
    EXPECT_EQ(log, "drop /p/a.jpg 1\n");
}

TEST_F(DragsTest, WhatTheSourceDoesNotAllowIsNotDone) {
    Send<QDragEnterEvent>({10, 20}, Qt::MoveAction);
    EXPECT_FALSE(Send<QDragMoveEvent>({10, 20}, Qt::MoveAction).Accepted);
}

TEST_F(DragsTest, AControlThatTakesNoDropsLeavesThemToTheHostsContainer) {
    board.SetOLEDropMode(0);
    EXPECT_FALSE(Send<QDragEnterEvent>({10, 20}).Accepted);
    EXPECT_FALSE(Send<QDragMoveEvent>({10, 20}).Accepted);
    Leave();
    EXPECT_EQ(log, "");
}

TEST_F(DragsTest, AMoveWithoutAnEntryAndADropWithoutEitherAreNotTaken) {
    EXPECT_FALSE(Send<QDragMoveEvent>({10, 20}).Accepted);
    EXPECT_FALSE(Send<QDropEvent>({10, 20}).Accepted);
    EXPECT_EQ(log, "");
}

TEST_F(DragsTest, ADragOutOfAWindowThatIsGoneEndsAtOnce) {
    DataObject data;
    data.SetText("/p/a.jpg");
    EXPECT_EQ(desktop.drags.DoDrag(4711, data, 3, [](int32_t) { return Picture{}; }), 0);
    EXPECT_FALSE(desktop.drags.Running());
}

TEST_F(DragsTest, PartOfAWindowIsGrabbedAsItIsSeen) {
    board.Surface().SetBackColor(RGB(10, 200, 30));
    const Picture seen = desktop.windows.Grab(board.Hwnd(), {5, 5, 25, 15});
    const QImage image = RenderPicture(seen, {20, 10});
    ASSERT_EQ(image.size(), QSize(20, 10));
    EXPECT_EQ(image.pixelColor(3, 3), QColor(10, 200, 30));
    EXPECT_EQ(desktop.windows.Grab(4711, {0, 0, 5, 5}).Type(), 0);
}

}  // namespace
}  // namespace vorlane
