// The time line's widget under a real X server.
#include "tests/widgets/timelinewidgettest.h"
#include "tests/xvfb/user.h"

#include <functional>

#include <QApplication>
#include <QMenu>
#include <QTimer>
#include <QToolTip>

namespace vorlane {
namespace {

using test::User;

class TimeLineUnderX : public test::TimeLineWidgetTest {
protected:
    TimeLineUnderX() {
        sheet->move(100, 100);
        strip->move(100, 600);
        EXPECT_TRUE(QTest::qWaitForWindowExposed(sheet.get()));
        EXPECT_TRUE(QTest::qWaitForWindowExposed(strip.get()));
        EXPECT_TRUE(User::Until([this] { return strip->pos() == QPoint(100, 600); }));
        Music(4, 10);
        Comment(6, 3);
    }
    ~TimeLineUnderX() override { User::PointAt({2, 2}); }

    // Has the user act on the popup once it is open.
    void OnPopup(const std::function<void(QMenu&)>& act) {
        auto* watch = new QTimer(strip.get());
        QObject::connect(watch, &QTimer::timeout, strip.get(), [this, watch, act] {
            auto* popup = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            if (popup == nullptr || !popup->isVisible()) return;
            watch->deleteLater();
            shown_ = true;
            QTimer::singleShot(User::kPatience, popup, &QWidget::close);  // or a failure would never end
            act(*popup);
        });
        watch->start(10);
    }
    void RightClick(QPoint place) {
        User::PointAt(strip->mapToGlobal(place));
        User::Click(3);
    }
    void GiveKeyboard() {
        strip->activateWindow();
        strip->setFocus();
        EXPECT_TRUE(User::Until([this] { return strip->hasFocus(); }));
    }
    bool PopupClosed() {
        return User::Until([this] { return shown_ && QApplication::activePopupWidget() == nullptr; });
    }
    int CurrentItem() { return sheet->Value(sheet->CurrentDiapo()); }

    bool shown_ = false;
};

TEST_F(TimeLineUnderX, AClickInThePopupOfTheRightButtonLeadsToASound) {
    OnPopup([](QMenu& menu) {
        QAction* music = menu.actions().at(6);
        User::PointAt(menu.mapToGlobal(menu.actionGeometry(music).center()));
        User::Click();
    });
    RightClick({200, 30});
    EXPECT_TRUE(PopupClosed());
    EXPECT_TRUE(User::Until([this] { return CurrentItem() == 4; }));
}

TEST_F(TimeLineUnderX, ThePopupIsLedByKeys) {
    OnPopup([](QMenu&) {
        User::Key("Up");
        User::Key("Return");
    });
    GiveKeyboard();
    RightClick({200, 30});
    EXPECT_TRUE(PopupClosed());
    EXPECT_TRUE(User::Until([this] { return CurrentItem() == 6; }));
}

TEST_F(TimeLineUnderX, WithControlHeldOnARowThePopupListsItsSoundsAlone) {
    int entries = 0;
    OnPopup([&entries](QMenu& menu) {
        for (const QAction* action : menu.actions()) entries += action->text().contains(".wav") ? 1 : 0;
        User::LetKeyGo("ctrl");
        User::Key("Escape");
    });
    GiveKeyboard();
    User::HoldKey("ctrl");
    RightClick({200, 7});
    EXPECT_TRUE(PopupClosed());
    User::LetKeyGo("ctrl");
    EXPECT_EQ(entries, 1);
}

TEST_F(TimeLineUnderX, AClickElsewhereDismissesThePopup) {
    sheet->SetCurrentDiapo(1);
    OnPopup([](QMenu&) {
        User::PointAt({1200, 900});
        User::Click();
    });
    RightClick({200, 30});
    EXPECT_TRUE(PopupClosed());
    EXPECT_EQ(CurrentItem(), 1);
}

TEST_F(TimeLineUnderX, TheTooltipComesByItself) {
    GiveKeyboard();
    strip->SetStartPoint(4);
    User::PointAt(strip->mapToGlobal(QPoint(100, 30)));
    User::PointAt(strip->mapToGlobal(QPoint(100, 7)));
    EXPECT_TRUE(User::Until([this] { return QToolTip::text() == folder.filePath("m4.wav") + " 10 s"; }));
}

}  // namespace
}  // namespace vorlane
