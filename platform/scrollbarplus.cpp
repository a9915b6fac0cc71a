#include "platform/scrollbarplus.h"

#include <algorithm>

namespace vorlane {

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
    if (changed) Invalidate();
    SetValue(value_);
}

void ScrollbarPlus::SetValue(int32_t value) {
    if (Assign(value_, std::clamp(value, min_, max_))) Change(value_);
}

void ScrollbarPlus::SetSmallChange(int32_t step) {
    Assign(smallChange_, std::max(step, 1));
}

void ScrollbarPlus::SetLargeChange(int32_t step) {
    Assign(largeChange_, std::max(step, 1));
}

void ScrollbarPlus::SetOrientation(vorlane::Orientation orientation) {
    if (!Assign(orientation_, orientation)) return;
    Move(Left(), Top(), Height(), Width());
}

void ScrollbarPlus::DragThumb(int32_t value) {
    Scroll(std::clamp(value, min_, max_));
}

}  // namespace vorlane
