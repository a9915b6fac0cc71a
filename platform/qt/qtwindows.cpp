#include "platform/qt/qtwindows.h"

#include "platform/qt/qtpicturedata.h"
#include "platform/qt/regions.h"

#include <QCoreApplication>
#include <QEvent>

namespace vorlane {

namespace {

constexpr int32_t kInvalidate = 1;
constexpr int32_t kUpdateNow = 0x100;

WinRect FromQRect(const QRect& rect) {
    return {rect.left(), rect.top(), rect.left() + rect.width(), rect.top() + rect.height()};
}

}  // namespace

Hwnd QtWindows::HandleOf(QWidget* widget) {
    if (widget == nullptr) return 0;
    Forget();
    for (const auto& [handle, known] : widgets_) {
        if (known == widget) return handle;
    }
    widgets_[++last_] = widget;
    return last_;
}

QWidget* QtWindows::WidgetOf(Hwnd window) const {
    const auto found = widgets_.find(window);
    return found == widgets_.end() ? nullptr : found->second.data();
}

WinRect QtWindows::GetWindowRect(Hwnd window) const {
    const QWidget* widget = WidgetOf(window);
    if (widget == nullptr) return {};
    return FromQRect({widget->mapToGlobal(QPoint(0, 0)), widget->size()});
}

WinRect QtWindows::GetClientRect(Hwnd window) const {
    const QWidget* widget = WidgetOf(window);
    return widget == nullptr ? WinRect{} : FromQRect(widget->rect());
}

Point QtWindows::ClientToScreen(Hwnd window, Point place) const {
    const QWidget* widget = WidgetOf(window);
    if (widget == nullptr) return place;
    const QPoint global = widget->mapToGlobal(QPoint(place.X, place.Y));
    return {global.x(), global.y()};
}

Picture QtWindows::Grab(Hwnd window, const WinRect& part) {
    QWidget* widget = WidgetOf(window);
    if (widget == nullptr) return {};
    const QRect rect(part.Left, part.Top, part.Right - part.Left, part.Bottom - part.Top);
    return PictureFromImage(widget->grab(rect).toImage());
}

void QtWindows::RedrawWindow(Hwnd window, const WinRect& part, int32_t flags) {
    QWidget* widget = WidgetOf(window);
    if (widget == nullptr) return;
    const bool now = (flags & kUpdateNow) != 0;
    // Controls tell all that changes, so what is painted at once is what has changed, and no more.
    if (now) return QCoreApplication::sendPostedEvents(widget->window(), QEvent::UpdateRequest);
    if ((flags & kInvalidate) != 0)
        widget->update(QRect(part.Left, part.Top, part.Right - part.Left, part.Bottom - part.Top));
}

void QtWindows::SetWindowRgn(Hwnd window, const Region& region, bool redraw) {
    QWidget* widget = WidgetOf(window);
    if (widget == nullptr) return;
    const QRegion shape = ToQRegion(region);
    if (shape == QRegion(widget->rect())) {
        if (!widget->mask().isEmpty()) widget->clearMask();
    } else if (shape != widget->mask()) {
        // An empty mask would mean the whole window.
        widget->setMask(shape.isEmpty() ? QRegion(-1, -1, 1, 1) : shape);
    }
    if (redraw) widget->update();
}

void QtWindows::Forget() {
    std::erase_if(widgets_, [](const auto& entry) { return entry.second.isNull(); });
}

}  // namespace vorlane
