#include "platform/scrollbarplus.h"

#include "platform/numbers.h"

#include <algorithm>
#include <cmath>

namespace vorlane {

namespace {

// A native bar paints itself: a change is told, and nothing of what lies around the bar is damaged.
template <class T>
bool Replace(T& field, T value, const Event<>& changed) {
    if (field == value) return false;
    field = value;
    changed();
    return true;
}

}  // namespace

ScrollbarPlus::ScrollbarPlus(UserControl* container) : Control(container, Layer::Windowed) {
    Move(0, 0, kThickness, kThickness);
}

void ScrollbarPlus::SetMin(int32_t min) {
    SetRange(min, std::max(min, max_));
}

void ScrollbarPlus::SetMax(int32_t max) {
    SetRange(min_, std::max(min_, max));
}

void ScrollbarPlus::SetRange(int32_t min, int32_t max) {
    const bool changed = min != min_ || max != max_;
    min_ = min;
    max_ = max;
    if (changed) Changed();
    SetValue(value_);
}

void ScrollbarPlus::SetValue(int32_t value) {
    if (Replace(value_, std::clamp(value, min_, max_), Changed)) Change(value_);
}

void ScrollbarPlus::SetSmallChange(int32_t step) {
    Replace(smallChange_, std::max(step, 1), Changed);
}

void ScrollbarPlus::SetLargeChange(int32_t step) {
    Replace(largeChange_, std::max(step, 1), Changed);
}

void ScrollbarPlus::SetOrientation(vorlane::Orientation orientation) {
    if (!Replace(orientation_, orientation, Changed)) return;
    Move(Left(), Top(), Height(), Width());
}

void ScrollbarPlus::DragThumb(int32_t value) {
    Scroll(ThumbRest(value));
}

void ScrollbarPlus::DropThumb(int32_t value) {
    SetValue(ThumbRest(value));
}

bool ScrollbarPlus::Wheel(double notches) {
    if (!Visible() || !Enabled()) return false;
    double whole = 0;
    wheelRest_ = std::modf(wheelRest_ + notches, &whole);
    const double wanted = value_ - whole * smallChange_;
    SetValue(ToInt32(std::clamp<double>(wanted, min_, max_)));
    return true;
}

// The nearest of the places where the thumb rests, the lower one of two as near.
int32_t ScrollbarPlus::ThumbRest(int32_t value) const {
    const int64_t place = std::clamp(value, min_, max_);
    const int64_t below = place - (place - min_) % smallChange_;
    const int64_t above = std::min<int64_t>(below + smallChange_, max_);
    return static_cast<int32_t>(place - below <= above - place ? below : above);
}

}  // namespace vorlane
