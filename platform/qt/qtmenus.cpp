#include "platform/qt/qtmenus.h"

#include "platform/qt/qtwindows.h"

#include <QAction>
#include <QMenu>

namespace vorlane {

QtMenus::~QtMenus() = default;

std::shared_ptr<QMenu> QtMenus::Find(Hmenu menu) const {
    const auto found = menus_.find(menu);
    return found == menus_.end() ? nullptr : found->second;
}

Hmenu QtMenus::CreatePopupMenu() {
    menus_[++last_] = std::make_shared<QMenu>();
    return last_;
}

void QtMenus::AppendMenuA(Hmenu menu, uint32_t flags, int32_t item, std::string_view text) {
    const auto popup = Find(menu);
    if (popup == nullptr) return;
    if ((flags & MF_SEPARATOR) != 0) {
        popup->addSeparator();
        return;
    }
    QString shown = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    popup->addAction(shown.replace(QLatin1Char('&'), QLatin1String("&&")))->setData(item);
}

// The menu belongs to nobody's window, so that it survives a window that closes while it is open; its look comes from
// the window that it opens over.
int32_t QtMenus::TrackPopupMenuEx(Hmenu menu, uint32_t, Point place, Hwnd parent, const TPMPARAMS&) {
    const auto popup = Find(menu);
    if (popup == nullptr) return 0;
    if (const QWidget* window = windows_.WidgetOf(parent)) {
        popup->setPalette(window->palette());
        popup->setFont(window->font());
    }
    const QAction* chosen = popup->exec(QPoint(place.X, place.Y));
    return chosen == nullptr ? 0 : chosen->data().toInt();
}

void QtMenus::DestroyMenu(Hmenu menu) {
    menus_.erase(menu);
}

}  // namespace vorlane
