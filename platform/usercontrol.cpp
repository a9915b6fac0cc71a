#include "platform/usercontrol.h"

#include <algorithm>

namespace vorlane {

UserControl::UserControl(const vorlane::Desktop& desktop, const vorlane::Ambient& ambient, UserControl* container)
    : Control(container, Layer::Windowless), desktop_(desktop), ambient_(ambient) {
    surface_.SetBackColor(ambient.BackColor);
    surface_.SetFont(ambient.Font);
    surface_.Changed.connect([this] { Invalidate(); });
}

UserControl::~UserControl() {
    for (Control* child : children_) child->container_ = nullptr;
}

void UserControl::Start() {
    InitProperties();
    Resized();
    Show();
}

void UserControl::Start(const PropertyBag& saved) {
    ReadProperties(saved);
    Resized();
    Show();
}

float UserControl::ScaleWidth() const {
    return Width() - (borderStyle_ == 0 ? 0.0F : 2.0F);
}

float UserControl::ScaleHeight() const {
    return Height() - (borderStyle_ == 0 ? 0.0F : 2.0F);
}

float UserControl::ToContainer(double pixels) const {
    return Rescale(pixels, ScaleMode::Pixels, ambient_.ContainerScale);
}

void UserControl::SetBorderStyle(int32_t style) {
    if (style == borderStyle_) return;
    borderStyle_ = style;
    Invalidate();
    OnResize();
}

void UserControl::OnResize() {
    for (Control* child : std::vector<Control*>(children_)) PlaceAligned(*child);
    Resized();
}

void UserControl::AddChild(Control& child) {
    const auto behind = std::find_if(children_.begin(), children_.end(), [&](const Control* other) {
        return other->StackingLayer() < child.StackingLayer();
    });
    children_.insert(behind, &child);
}

void UserControl::RemoveChild(Control& child) {
    if (child.Visible()) ChildChanged(child.Bounds());
    std::erase(children_, &child);
}

void UserControl::Restack(Control& child, ZOrderPosition position) {
    std::erase(children_, &child);
    const bool front = position == ZOrderPosition::Front;
    const auto place = std::find_if(children_.begin(), children_.end(), [&](const Control* other) {
        return front ? other->StackingLayer() <= child.StackingLayer() : other->StackingLayer() < child.StackingLayer();
    });
    children_.insert(place, &child);
}

void UserControl::PlaceAligned(Control& child) {
    const float width = ScaleWidth();
    const float height = ScaleHeight();
    switch (child.Align()) {
        case Align::None:
            return;
        case Align::Top:
            return child.Move(0, 0, width, child.Height());
        case Align::Bottom:
            return child.Move(0, height - child.Height(), width, child.Height());
        case Align::Left:
            return child.Move(0, 0, child.Width(), height);
        case Align::Right:
            return child.Move(width - child.Width(), 0, child.Width(), height);
    }
}

void UserControl::ChildChanged(const Box& part) {
    if (!Visible() && Container() != nullptr) return;
    const float frame = borderStyle_ == 0 ? 0.0F : 1.0F;
    Box outer = part;
    outer.Left += frame;
    outer.Top += frame;
    if (Container() == nullptr) return Damaged(outer);
    outer.Left += Left();
    outer.Top += Top();
    Container()->ChildChanged(outer);
}

}  // namespace vorlane
