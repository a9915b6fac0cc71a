// Popup menus under a real X server.
#include "platform/qt/qtdesktop.h"
#include "tests/xvfb/user.h"

#include <functional>

#include <QApplication>
#include <QMenu>
#include <QTimer>
#include <QWidget>

namespace vorlane {
namespace {

using test::User;

class MenuUnderX : public testing::Test {
protected:
    MenuUnderX() {
        window.setGeometry(100, 100, 400, 300);
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
        menu = desktop.menus.CreatePopupMenu();
        for (int item = 1; item <= 3; ++item) desktop.menus.AppendMenuA(menu, MF_STRING, item, "Choix");
    }
    // Shows the menu; the user acts when it is there.
    int32_t Track(const std::function<void()>& act) {
        QTimer::singleShot(0, [act] {
            if (User::Until([] { return QApplication::activePopupWidget() != nullptr; })) act();
        });
        return desktop.menus.TrackPopupMenuEx(menu, TPM_RETURNCMD, {150, 150}, desktop.windows.HandleOf(&window), {});
    }
    static QPoint PlaceOf(int index) {
        auto* popup = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        return popup->mapToGlobal(popup->actionGeometry(popup->actions().at(index)).center());
    }

    QtDesktop desktop;
    QWidget window;
    Hmenu menu = 0;
};

TEST_F(MenuUnderX, AClickChooses) {
    EXPECT_EQ(Track([] {
                  User::PointAt(PlaceOf(1));
                  User::Click();
              }),
              2);
}

TEST_F(MenuUnderX, TheKeysChoose) {
    EXPECT_EQ(Track([] {
                  User::Key("Down");
                  User::Key("Down");
                  User::Key("Down");
                  User::Key("Return");
              }),
              3);
}

TEST_F(MenuUnderX, EscapeChoosesNothing) {
    EXPECT_EQ(Track([] { User::Key("Escape"); }), 0);
}

TEST_F(MenuUnderX, AClickElsewhereChoosesNothing) {
    EXPECT_EQ(Track([] {
                  User::PointAt({600, 600});
                  User::Click();
              }),
              0);
}

}  // namespace
}  // namespace vorlane
