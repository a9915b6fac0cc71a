// QtWindows: numbers for the widgets that hold controls. A widget that is gone has no number any more.
// The system tells no dragging of a window's edge or title apart: each step of it comes as WM_SIZE or WM_MOVE.
#pragma once

#include "platform/desktop.h"
#include "platform/subclass.h"

#include <map>

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QWidget>

namespace vorlane {

class QtWindows final : public Windows {
public:
    QtWindows();
    ~QtWindows() override;
    QtWindows(const QtWindows&) = delete;
    QtWindows& operator=(const QtWindows&) = delete;

    // The widget's number; the same one however often it is asked for. nullptr gives 0.
    Hwnd HandleOf(QWidget* widget);
    // nullptr for a number that is not, or no longer, a widget's.
    QWidget* WidgetOf(Hwnd window) const;

    WinRect GetWindowRect(Hwnd window) const override;
    WinRect GetClientRect(Hwnd window) const override;
    Point ClientToScreen(Hwnd window, Point place) const override;
    // The widget's own pixels, as dense as the screen's.
    Picture Grab(Hwnd window, const WinRect& part) override;
    // At once: all that has changed in the widget's window, wherever it is, if the user has waited for longer than a
    // frame of the screen. Sooner it would only delay what is under way: the event loop paints behind that.
    void RedrawWindow(Hwnd window, const WinRect& part, int32_t flags) override;
    void SetWindowRgn(Hwnd window, const Region& region, bool redraw) override;

    void AttachMessage(ISubclass& client, Hwnd window, int32_t message) override;
    void DetachMessage(ISubclass& client, Hwnd window, int32_t message) override;
    // The widget has got a message.
    void Tell(const QWidget* widget, int32_t message) const;

private:
    void Forget();

    Hwnd last_ = 0;
    std::map<Hwnd, QPointer<QWidget>> widgets_;
    MessageClients clients_;
    QElapsedTimer shown_;  // since the event loop has run, or a window was painted at once
    QMetaObject::Connection eventLoop_;
};

}  // namespace vorlane
