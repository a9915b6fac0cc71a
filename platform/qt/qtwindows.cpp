#include "platform/qt/qtwindows.h"

#include "platform/qt/qtpicturedata.h"
#include "platform/qt/regions.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QEvent>

namespace vorlane {

namespace {

constexpr qint64 kFrame = 8;  // milliseconds

WinRect FromQRect(const QRect& rect) {
    return {rect.left(), rect.top(), rect.left() + rect.width(), rect.top() + rect.height()};
}

}  // namespace

QtWindows::QtWindows() {
    shown_.start();
    const auto* eventLoop = QAbstractEventDispatcher::instance();
    if (eventLoop == nullptr) return;
    eventLoop_ = QObject::connect(eventLoop, &QAbstractEventDispatcher::awake, [this] { shown_.restart(); });
}

QtWindows::~QtWindows() {
    QObject::disconnect(eventLoop_);
}

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
    // Controls tell all that changes, so what is painted at once is what has changed, and no more.
    const bool now = (flags & RDW_UPDATENOW) != 0;
    if (!now && (flags & RDW_INVALIDATE) != 0)
        widget->update(QRect(part.Left, part.Top, part.Right - part.Left, part.Bottom - part.Top));
    if (!now || shown_.elapsed() < kFrame) return;
    QCoreApplication::sendPostedEvents(widget->window(), QEvent::UpdateRequest);
    shown_.restart();
}

void QtWindows::SetWindowRgn(Hwnd window, const Region& region, bool redraw) {
    QWidget* widget = WidgetOf(window);
    if (widget == nullptr) return;
    QRegion shape = ToQRegion(region);
    if (shape.isEmpty()) shape = QRegion(-1, -1, 1, 1);  // an empty mask would mean the whole window
    if (shape == QRegion(widget->rect())) shape = QRegion();
    if (shape == widget->mask()) return;  // a strip gives its shape at each paint
    shape.isEmpty() ? widget->clearMask() : widget->setMask(shape);
    if (redraw) widget->update();
}

void QtWindows::AttachMessage(ISubclass& client, Hwnd window, int32_t message) {
    clients_.Attach(client, window, message);
}

void QtWindows::DetachMessage(ISubclass& client, Hwnd window, int32_t message) {
    clients_.Detach(client, window, message);
}

void QtWindows::Tell(const QWidget* widget, int32_t message) const {
    for (const auto& [handle, known] : widgets_) {
        if (known == widget) return clients_.Tell(handle, message);
    }
}

void QtWindows::Forget() {
    std::erase_if(widgets_, [](const auto& entry) { return entry.second.isNull(); });
}

}  // namespace vorlane
