#include "platform/qt/qtdesktop.h"
#include "platform/region.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QTimer>
#include <QWidget>

namespace vorlane {
namespace {

constexpr uint32_t kReturnChoice = TPM_RIGHTBUTTON | TPM_NONOTIFY | TPM_RETURNCMD;

// Runs action on the popup as soon as it is open.
template <class Action>
void OnceOpen(Action action) {
    QTimer::singleShot(0, [action] {
        auto* popup = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(popup, nullptr);
        action(*popup);
        popup->close();
    });
}

TEST(QtMenus, GivesTheItemThatTheUserTakesAndNothingWhenDismissed) {
    QtDesktop desktop;
    QtMenus& menus = desktop.menus;
    const Hmenu menu = menus.CreatePopupMenu();
    menus.AppendMenuA(menu, MF_STRING, 7, "Vent & marée\t(F7)");
    menus.AppendMenuA(menu, MF_SEPARATOR, 0, {});
    menus.AppendMenuA(menu, MF_STRING, -3, "Été");
    OnceOpen([](QMenu& popup) {
        const auto actions = popup.actions();
        ASSERT_EQ(actions.size(), 3);
        EXPECT_EQ(actions[0]->text(), QString::fromUtf8("Vent && marée\t(F7)"));
        EXPECT_TRUE(actions[1]->isSeparator());
        popup.setActiveAction(actions[2]);
        QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QApplication::sendEvent(&popup, &enter);
    });
    EXPECT_EQ(menus.TrackPopupMenuEx(menu, kReturnChoice, {10, 10}, 0, {20, {}}), -3);
    OnceOpen([](QMenu&) {});
    EXPECT_EQ(menus.TrackPopupMenuEx(menu, kReturnChoice, {10, 10}, 0, {20, {}}), 0);
    menus.DestroyMenu(menu);
    EXPECT_EQ(menus.TrackPopupMenuEx(menu, kReturnChoice, {10, 10}, 0, {20, {}}), 0);
}

TEST(QtWindows, ARegionShapesAWidgetAndTheWholeOneFreesIt) {
    QtDesktop desktop;
    QWidget widget;
    widget.resize(100, 40);
    const Hwnd window = desktop.windows.HandleOf(&widget);
    desktop.windows.SetWindowRgn(window, Region::CreateRectRgn(10, 0, 100, 40), true);
    EXPECT_EQ(widget.mask(), QRegion(10, 0, 90, 40));
    desktop.windows.SetWindowRgn(window, Region::CreateRoundRectRgn(0, 0, 100, 40, 7, 7), false);
    EXPECT_FALSE(widget.mask().contains(QPoint(0, 0)));
    EXPECT_TRUE(widget.mask().contains(QPoint(50, 0)));
    desktop.windows.SetWindowRgn(window, Region::CreateRectRgn(0, 0, 100, 40), true);
    EXPECT_TRUE(widget.mask().isEmpty());
    desktop.windows.SetWindowRgn(window, Region(), true);
    EXPECT_FALSE(widget.mask().isEmpty()) << "no mask would be the whole widget";
    EXPECT_FALSE(widget.mask().intersects(widget.rect()));
}

}  // namespace
}  // namespace vorlane
