#include "platform/usercontrol.h"

#include <algorithm>

namespace vorlane {

UserControl::UserControl(const vorlane::Desktop& desktop, const vorlane::Ambient& ambient, UserControl* container)
    : Control(container, Layer::Windowless), desktop_(desktop), ambient_(ambient) {
    surface_.SetBackColor(ambient.BackColor);
    surface_.SetFont(ambient.Font);
    surface_.Changed.connect([this] { SurfaceChanged(); });
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

void UserControl::Restart(const PropertyBag& saved) {
    ReadProperties(saved);
    Resized();
}

float UserControl::FrameWidth() const {
    return borderStyle_ == 0 ? 0.0F : 1.0F;
}

float UserControl::ScaleWidth() const {
    return Width() - 2 * FrameWidth();
}

float UserControl::ScaleHeight() const {
    return Height() - 2 * FrameWidth();
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
    // What a child tells of its move may end others.
    for (size_t i = 0; i < children_.size(); ++i) {  // NOLINT(modernize-loop-convert)
        Control& child = *children_[i];
        if (child.Align() != Align::None) child.Move(child.Left(), child.Top());
    }
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

bool UserControl::Restack(Control& child, ZOrderPosition position) {
    const std::vector<Control*> before = children_;
    std::erase(children_, &child);
    const bool front = position == ZOrderPosition::Front;
    const auto place = std::find_if(children_.begin(), children_.end(), [&](const Control* other) {
        return front ? other->StackingLayer() <= child.StackingLayer() : other->StackingLayer() < child.StackingLayer();
    });
    children_.insert(place, &child);
    return children_ != before;
}

Box UserControl::Aligned(vorlane::Align align, const Box& box) const {
    const float width = ScaleWidth();
    const float height = ScaleHeight();
    switch (align) {
        case Align::None:
            return box;
        case Align::Top:
            return {0, 0, width, box.Height};
        case Align::Bottom:
            return {0, height - box.Height, width, box.Height};
        case Align::Left:
            return {0, 0, box.Width, height};
        case Align::Right:
            return {width - box.Width, 0, box.Width, height};
    }
    return box;
}

void UserControl::SurfaceChanged() {
    const auto& redrawn = surface_.LastRedraw();
    if (!redrawn) return Invalidate();
    const draw::Extent& where = redrawn->Changes.Where;
    const float left = std::max(where.Left, 0.0F);
    const float top = std::max(where.Top, 0.0F);
    const Box part{left, top, std::min(where.Right, ScaleWidth()) - left, std::min(where.Bottom, ScaleHeight()) - top};
    if (Visible() && !part.Empty()) ChildChanged(part);
    Changed();
}

void UserControl::ChildChanged(const Box& part) {
    if (!Visible() && Container() != nullptr) return;
    Box outer = part;
    outer.Left += FrameWidth();
    outer.Top += FrameWidth();
    if (Container() == nullptr) return Damaged(outer);
    outer.Left += Left();
    outer.Top += Top();
    Container()->ChildChanged(outer);
}

}  // namespace vorlane
