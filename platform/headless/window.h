// Window: a window of the headless desktop that hosts one root control, and the scripted user in front of it. Places
// are pixels inside the window. Modifier keys that the user holds are down on the keyboard too, and the pointer is
// where the mouse is.
#pragma once

#include "platform/headless/desktop.h"
#include "platform/inputrouter.h"

#include <memory>

namespace vorlane::headless {

enum : int16_t { kLeftButton = 1, kRightButton = 2, kMiddleButton = 4 };
enum : int16_t { kShift = 1, kCtrl = 2, kAlt = 4 };

class Window {
public:
    // place: screen pixels.
    Window(Desktop& desktop, const WinRect& place);
    ~Window();
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    // What a control hosted here is constructed with. containerScale: the unit of its events to the host.
    vorlane::Ambient Ambient(ScaleMode containerScale = ScaleMode::Pixels) const;
    Hwnd Handle() const { return handle_; }

    // Gives control the window's size and starts it, as a new one or from a bag. The window does not own the control.
    void Host(UserControl& control);
    void Host(UserControl& control, const PropertyBag& saved);

    // The window's new inner size.
    void Resize(int32_t width, int32_t height);
    // The window's new place on the screen, its size kept.
    void MoveTo(int32_t left, int32_t top);

    void Press(float x, float y, int16_t button = kLeftButton, int16_t shift = 0);
    void MouseTo(float x, float y, int16_t shift = 0);
    void Release(float x, float y, int16_t button = kLeftButton, int16_t shift = 0);
    // A press and a release; earlier clicks are too long ago to make it a double click.
    void Click(float x, float y, int16_t button = kLeftButton, int16_t shift = 0);
    void DoubleClick(float x, float y, int16_t button = kLeftButton, int16_t shift = 0);
    // Notches, positive away from the user.
    void Wheel(double notches, float x, float y);
    // Key down, its character when it has one (0: none), key up.
    void Key(int16_t keyCode, int16_t character = 0, int16_t shift = 0);
    void HoldKey(int16_t keyCode, int16_t shift = 0);
    void ReleaseKey(int16_t keyCode, int16_t shift = 0);

    // Puts the pointer to a place, with these modifier keys held. Whether the place is inside the window.
    bool PointAt(float x, float y, int16_t shift);

    InputRouter& Router() { return *router_; }

private:
    void Attach(UserControl& control);

    Desktop& desktop_;
    Hwnd handle_;
    UserControl* control_ = nullptr;
    std::unique_ptr<InputRouter> router_;
    ScopedConnection dragEnded_;
};

}  // namespace vorlane::headless
