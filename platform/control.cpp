#include "platform/control.h"

#include "platform/usercontrol.h"

namespace vorlane {

Control::Control(UserControl* container, Layer layer) : container_(container), layer_(layer) {
    if (container_ != nullptr) container_->AddChild(*this);
}

Control::~Control() {
    if (container_ != nullptr) container_->RemoveChild(*this);
}

void Control::SetLeft(double left) {
    Move(left, box_.Top);
}

void Control::SetTop(double top) {
    Move(box_.Left, top);
}

void Control::SetWidth(double width) {
    Move(box_.Left, box_.Top, width, box_.Height);
}

void Control::SetHeight(double height) {
    Move(box_.Left, box_.Top, box_.Width, height);
}

void Control::Move(double left, double top) {
    Move(left, top, box_.Width, box_.Height);
}

void Control::Move(double left, double top, double width, double height) {
    Box next{static_cast<float>(left), static_cast<float>(top), static_cast<float>(width), static_cast<float>(height)};
    if (container_ != nullptr) next = container_->Aligned(align_, next);
    if (next == box_) return;
    const Box before = box_;
    box_ = next;
    if (visible_) InvalidatePlace(before);
    Invalidate();
    if (before.Width != next.Width || before.Height != next.Height) OnResize();
}

void Control::SetAlign(vorlane::Align align) {
    if (align == align_) return;
    align_ = align;
    Move(box_.Left, box_.Top);
}

void Control::SetVisible(bool visible) {
    if (visible == visible_) return;
    visible_ = visible;
    InvalidatePlace(box_);
    Changed();
    OnVisibleChanged();
}

void Control::SetEnabled(bool enabled) {
    Assign(enabled_, enabled);
}

void Control::SetToolTipText(std::string text) {
    toolTipText_ = std::move(text);
}

void Control::SetMousePointer(int16_t shape) {
    Assign(mousePointer_, shape);
}

void Control::SetMouseIcon(Picture icon) {
    Assign(mouseIcon_, std::move(icon));
}

const Control* Control::WithPointer() const {
    const Control* control = this;
    while (control != nullptr && control->mousePointer_ == 0) control = control->container_;
    return control;
}

void Control::ZOrder(ZOrderPosition position) {
    if (container_ == nullptr) return;
    if (container_->Restack(*this, position)) Invalidate();
}

Control& Control::Root() {
    Control* control = this;
    while (control->container_ != nullptr) control = control->container_;
    return *control;
}

Box Control::BoundsInRoot() const {
    Box box = box_;
    if (container_ == nullptr) return {0, 0, box.Width, box.Height};
    for (const UserControl* outer = container_; outer != nullptr; outer = outer->container_) {
        const bool root = outer->container_ == nullptr;
        box.Left += outer->FrameWidth() + (root ? 0.0F : outer->box_.Left);
        box.Top += outer->FrameWidth() + (root ? 0.0F : outer->box_.Top);
    }
    return box;
}

bool Control::HitTest(float x, float y) const {
    return Box{0, 0, box_.Width, box_.Height}.Contains(x, y);
}

bool Control::Wheel(double) {
    return false;
}

void Control::Invalidate() {
    if (visible_) InvalidatePlace(box_);
    Changed();
}

void Control::InvalidateOuter(const Box& part) {
    if (part.Empty()) return;
    if (container_ != nullptr) {
        container_->ChildChanged(part);
    } else if (auto* root = dynamic_cast<UserControl*>(this)) {
        root->Damaged({0, 0, part.Width, part.Height});
    }
}

std::shared_ptr<const void> Control::KeepAlive() const {
    for (const Control* control = this; control != nullptr; control = control->container_) {
        if (auto element = control->element_.lock()) return element;
    }
    return {};
}

}  // namespace vorlane
