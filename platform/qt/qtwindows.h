// QtWindows: numbers for the widgets that hold controls. A widget that is gone has no number any more.
#pragma once

#include "platform/desktop.h"

#include <map>

#include <QPointer>
#include <QWidget>

namespace vorlane {

class QtWindows final : public Windows {
public:
    // The widget's number; the same one however often it is asked for. nullptr gives 0.
    Hwnd HandleOf(QWidget* widget);
    // nullptr for a number that is not, or no longer, a widget's.
    QWidget* WidgetOf(Hwnd window) const;

    WinRect GetWindowRect(Hwnd window) const override;
    WinRect GetClientRect(Hwnd window) const override;
    Point ClientToScreen(Hwnd window, Point place) const override;
    // The widget's own pixels, as dense as the screen's.
    Picture Grab(Hwnd window, const WinRect& part) override;
    // At once: all that has changed in the widget's window, wherever it is.
    void RedrawWindow(Hwnd window, const WinRect& part, int32_t flags) override;
    void SetWindowRgn(Hwnd window, const Region& region, bool redraw) override;

private:
    void Forget();

    Hwnd last_ = 0;
    std::map<Hwnd, QPointer<QWidget>> widgets_;
};

}  // namespace vorlane
