#include "platform/inputrouter.h"

#include "platform/failure.h"

#include <cmath>

namespace vorlane {

namespace {

constexpr int16_t kEnter = 0;
constexpr int16_t kLeave = 1;
constexpr int16_t kOver = 2;

constexpr float kOutside = -1;  // the place of a drag that has left the root

int16_t With(int16_t buttons, int16_t button) {
    return static_cast<int16_t>(buttons | button);
}

int16_t Without(int16_t buttons, int16_t button) {
    return static_cast<int16_t>(buttons & ~button);
}

struct Place {
    float x;
    float y;
};

// A place of the root in the control's own event units.
Place InUnitsOf(const Control& control, float x, float y) {
    const Box box = control.BoundsInRoot();
    const auto* surface = dynamic_cast<const UserControl*>(&control);
    if (surface == nullptr) return {(x - box.Left) * kTwipsPerPixel, (y - box.Top) * kTwipsPerPixel};
    return {x - box.Left - surface->FrameWidth(), y - box.Top - surface->FrameWidth()};
}

Control* Topmost(UserControl& container, float x, float y) {
    const float frame = container.FrameWidth();
    for (Control* child : container.Children()) {
        const float inX = x - frame - child->Left();
        const float inY = y - frame - child->Top();
        if (!child->Visible() || !child->HitTest(inX, inY)) continue;
        auto* inner = dynamic_cast<UserControl*>(child);
        return inner == nullptr ? child : Topmost(*inner, inX, inY);
    }
    return &container;
}

}  // namespace

Control* InputRouter::At(float x, float y) const {
    return root_.HitTest(x, y) ? Topmost(root_, x, y) : nullptr;
}

InputRouter::Target InputRouter::Pin(Control* control) const {
    return control == nullptr ? Target{} : Target{control, control->KeepAlive()};
}

InputRouter::Target InputRouter::Answering(float x, float y) const {
    Control* found = At(x, y);
    for (Control* control = found; control != nullptr; control = control->Container()) {
        if (!control->Enabled()) found = control->Container();
    }
    return Pin(found);
}

InputRouter::Target InputRouter::MouseTarget(float x, float y) const {
    const Hwnd captured = root_.Desktop().screen.Captured();
    if (captured != 0) return captured == root_.Hwnd() ? Target{&root_} : Target{};
    return pressed_ ? pressed_ : Answering(x, y);
}

bool InputRouter::Reachable(const Control& control) const {
    for (const Control* outer = &control; outer != nullptr; outer = outer->Container()) {
        if (!outer->Enabled()) return false;
        if (outer == &root_) return true;
        if (!outer->Visible()) return false;
    }
    return false;
}

InputRouter::Target InputRouter::KeyTarget() {
    if (focus_ && !Reachable(*focus_.control)) focus_ = {};
    if (focus_) return focus_;
    return root_.Enabled() ? Target{&root_} : Target{};
}

void InputRouter::Raise(const Target& target, MouseEvent InputEvents::*event, int16_t button, int16_t shift, float x,
                        float y) {
    const Place place = InUnitsOf(*target.control, x, y);
    Attempt([&] { (target.control->Input.*event)(button, shift, place.x, place.y); });
}

bool InputRouter::IsDoubleClick(const Target& target, int16_t button, float x, float y) const {
    return last_.control == target.control && last_.button == button &&
           root_.Desktop().clock.Now() - last_.time <= DoubleClickTime &&
           std::abs(x - last_.x) <= DoubleClickDistance && std::abs(y - last_.y) <= DoubleClickDistance;
}

void InputRouter::MouseDown(int16_t button, int16_t shift, float x, float y) {
    const Target target = MouseTarget(x, y);
    held_ = With(held_, button);
    if (!target) return;
    if (!pressed_) pressed_ = target;
    const bool doubled = IsDoubleClick(target, button, x, y);
    doubled_ = doubled ? With(doubled_, button) : Without(doubled_, button);
    last_ = doubled ? LastPress{} : LastPress{target.control, button, root_.Desktop().clock.Now(), x, y};
    if (doubled) {
        Attempt([&] { target.control->Input.DblClick(); });
    } else {
        Raise(target, &InputEvents::MouseDown, button, shift, x, y);
    }
}

void InputRouter::MouseUp(int16_t button, int16_t shift, float x, float y) {
    const Target target = MouseTarget(x, y);
    held_ = Without(held_, button);
    const Target pressed = pressed_;
    if (held_ == 0) pressed_ = {};
    if (!target) return;
    const bool clicked =
        (doubled_ & button) == 0 && pressed.control == target.control && Answering(x, y).control == target.control;
    Raise(target, &InputEvents::MouseUp, button, shift, x, y);
    if (clicked) Attempt([&] { target.control->Input.Click(); });
}

void InputRouter::MouseMove(int16_t shift, float x, float y) {
    if (const Target target = MouseTarget(x, y)) Raise(target, &InputEvents::MouseMove, held_, shift, x, y);
}

void InputRouter::Wheel(double notches, float x, float y) {
    const Target target = Answering(x, y);
    for (Control* control = target.control; control != nullptr; control = control->Container()) {
        bool used = false;
        if (!Attempt([&] { used = control->Wheel(notches); }) || used) return;
    }
}

void InputRouter::SetFocus(Control* control) {
    focus_ = Pin(control == &root_ ? nullptr : control);
}

void InputRouter::KeyDown(int16_t& keyCode, int16_t shift) {
    if (const Target target = KeyTarget()) Attempt([&] { target.control->Input.KeyDown(keyCode, shift); });
}

void InputRouter::KeyPress(int16_t& keyAscii) {
    if (const Target target = KeyTarget()) Attempt([&] { target.control->Input.KeyPress(keyAscii); });
}

void InputRouter::KeyUp(int16_t& keyCode, int16_t shift) {
    if (const Target target = KeyTarget()) Attempt([&] { target.control->Input.KeyUp(keyCode, shift); });
}

void InputRouter::DragTo(const Target& target, DataObject& data, int32_t& effect, int16_t button, int16_t shift,
                         float x, float y, int16_t state) {
    const Place place = InUnitsOf(*target.control, x, y);
    Attempt([&] { target.control->Input.OLEDragOver(data, effect, button, shift, place.x, place.y, state); });
}

InputRouter::Target InputRouter::DropTarget(float x, float y) const {
    Control* control = Answering(x, y).control;
    while (control != nullptr && control->OLEDropMode() == 0) control = control->Container();
    return Pin(control);
}

void InputRouter::DragOver(DataObject& data, int32_t& effect, int16_t button, int16_t shift, float x, float y) {
    effect = 0;
    const Target target = DropTarget(x, y);
    const bool entered = target.control != dragged_.control;
    if (entered) LeaveDragged(data);
    dragged_ = target;
    if (!target) return;
    if (entered) DragTo(target, data, effect, button, shift, x, y, kEnter);
    effect = 0;
    DragTo(target, data, effect, button, shift, x, y, kOver);
}

void InputRouter::LeaveDragged(DataObject& data) {
    const Target left = std::exchange(dragged_, {});
    if (!left) return;
    int32_t effect = 0;
    const Box box = left.control->BoundsInRoot();
    DragTo(left, data, effect, 0, 0, box.Left, box.Top, kLeave);
}

void InputRouter::DragLeave(DataObject& data) {
    if (!dragged_) return;
    if (dragged_.control == &root_) {
        dragged_ = {};
    } else {
        LeaveDragged(data);
    }
    int32_t effect = 0;
    if (root_.OLEDropMode() != 0) DragTo({&root_}, data, effect, 0, 0, kOutside, kOutside, kLeave);
}

void InputRouter::DragDrop(DataObject& data, int32_t& effect, int16_t button, int16_t shift, float x, float y) {
    dragged_ = {};
    const Target target = DropTarget(x, y);
    if (!target) {
        effect = 0;
        return;
    }
    const Place place = InUnitsOf(*target.control, x, y);
    Attempt([&] { target.control->Input.OLEDragDrop(data, effect, button, shift, place.x, place.y); });
}

void InputRouter::ForgetButtons() {
    held_ = 0;
    pressed_ = {};
    last_ = {};
}

}  // namespace vorlane
