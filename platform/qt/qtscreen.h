// QtScreen: the pointer, the program's override cursor, the mouse capture and the theme's colours. One logical pixel
// counts 15 twips, whatever the screen's density.
#pragma once

#include "platform/desktop.h"

#include <Qt>

namespace vorlane {

class QtWindows;

// The pointer's shape by its number on the public surface: 0 and 1 arrow, 2 cross, 3 text, 5 and 15 move, 6 to 9 the
// four resize arrows, 10 up arrow, 11 hourglass, 12 forbidden, 13 arrow with hourglass, 14 arrow with question mark.
// Any other number is an arrow.
Qt::CursorShape CursorShapeOf(int16_t mousePointer);

class QtScreen final : public Screen {
public:
    explicit QtScreen(QtWindows& windows) : windows_(windows) {}
    ~QtScreen() override;

    float TwipsPerPixelX() const override { return 15; }
    float TwipsPerPixelY() const override { return 15; }
    Point CursorPos() const override;
    void SetCursorPos(Point place) override;
    int16_t MousePointer() const override { return pointer_; }
    void SetMousePointer(int16_t shape) override;
    OLE_COLOR SysColor(int32_t number) const override;
    void SetCapture(Hwnd window) override;
    void ReleaseCapture() override;
    Hwnd Captured() const override { return captured_; }

private:
    QtWindows& windows_;
    int16_t pointer_ = 0;
    Hwnd captured_ = 0;
};

}  // namespace vorlane
