#include "platform/headless/window.h"

#include "platform/numbers.h"

namespace vorlane::headless {

namespace {

constexpr int32_t kShiftKey = 16;
constexpr int32_t kCtrlKey = 17;
constexpr int32_t kAltKey = 18;

}  // namespace

Window::Window(Desktop& desktop, const WinRect& place) : desktop_(desktop), handle_(desktop.windows.Open(place)) {
    dragEnded_ = desktop.drags.Ended.connect([this] {
        if (router_) router_->ForgetButtons();
    });
}

Window::~Window() {
    desktop_.windows.Close(handle_);
}

vorlane::Ambient Window::Ambient(ScaleMode containerScale) const {
    vorlane::Ambient ambient;
    ambient.ContainerScale = containerScale;
    ambient.Window = handle_;
    return ambient;
}

void Window::Attach(UserControl& control) {
    control_ = &control;
    router_ = std::make_unique<InputRouter>(control);
    const WinRect inside = desktop_.windows.GetClientRect(handle_);
    control.Move(0, 0, inside.Right, inside.Bottom);
}

void Window::Host(UserControl& control) {
    Attach(control);
    control.Start();
}

void Window::Host(UserControl& control, const PropertyBag& saved) {
    Attach(control);
    control.Start(saved);
}

void Window::Resize(int32_t width, int32_t height) {
    WinRect place = desktop_.windows.GetWindowRect(handle_);
    place.Right = place.Left + width;
    place.Bottom = place.Top + height;
    desktop_.windows.Place(handle_, place);
    if (control_ != nullptr) control_->Move(0, 0, width, height);
}

void Window::MoveTo(int32_t left, int32_t top) {
    const WinRect inside = desktop_.windows.GetClientRect(handle_);
    desktop_.windows.Place(handle_, {left, top, left + inside.Right, top + inside.Bottom});
}

bool Window::PointAt(float x, float y, int16_t shift) {
    desktop_.screen.SetCursorPos(desktop_.windows.ClientToScreen(handle_, {ToInt32(x), ToInt32(y)}));
    desktop_.keyboard.Set(kShiftKey, (shift & kShift) != 0);
    desktop_.keyboard.Set(kCtrlKey, (shift & kCtrl) != 0);
    desktop_.keyboard.Set(kAltKey, (shift & kAlt) != 0);
    const WinRect inside = desktop_.windows.GetClientRect(handle_);
    return x >= 0 && y >= 0 && x < static_cast<float>(inside.Right) && y < static_cast<float>(inside.Bottom);
}

void Window::Press(float x, float y, int16_t button, int16_t shift) {
    PointAt(x, y, shift);
    desktop_.keyboard.Set(button, true);  // a button's virtual code is its number
    router_->MouseDown(button, shift, x, y);
}

void Window::MouseTo(float x, float y, int16_t shift) {
    PointAt(x, y, shift);
    router_->MouseMove(shift, x, y);
}

void Window::Release(float x, float y, int16_t button, int16_t shift) {
    PointAt(x, y, shift);
    desktop_.keyboard.Set(button, false);
    router_->MouseUp(button, shift, x, y);
}

void Window::Click(float x, float y, int16_t button, int16_t shift) {
    desktop_.clock.Advance(router_->DoubleClickTime + 1);
    Press(x, y, button, shift);
    Release(x, y, button, shift);
}

void Window::DoubleClick(float x, float y, int16_t button, int16_t shift) {
    Click(x, y, button, shift);
    Press(x, y, button, shift);
    Release(x, y, button, shift);
}

void Window::Wheel(double notches, float x, float y) {
    PointAt(x, y, 0);
    router_->Wheel(notches, x, y);
}

void Window::HoldKey(int16_t keyCode, int16_t shift) {
    desktop_.keyboard.Set(keyCode, true);
    router_->KeyDown(keyCode, shift);
}

void Window::ReleaseKey(int16_t keyCode, int16_t shift) {
    desktop_.keyboard.Set(keyCode, false);
    router_->KeyUp(keyCode, shift);
}

void Window::Key(int16_t keyCode, int16_t character, int16_t shift) {
    HoldKey(keyCode, shift);
    if (character != 0) router_->KeyPress(character);
    ReleaseKey(keyCode, shift);
}

}  // namespace vorlane::headless
