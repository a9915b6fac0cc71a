// ScrollbarPlus: a scroll bar over 32-bit values. Its value always lies between Min and Max: what is written is
// clamped, and a new range pulls the value in. Change follows every change of the value, by code too; Scroll follows
// the thumb while the user drags it, before the value changes.
#pragma once

#include "platform/control.h"
#include "platform/controlvisitor.h"

#include <cstdint>

namespace vorlane {

enum class Orientation : int16_t { Horizontal = 0, Vertical = 1 };

class ScrollbarPlus final : public Control {
public:
    // Pixels across the bar.
    static constexpr float kThickness = 16;

    explicit ScrollbarPlus(UserControl* container);

    int32_t Min() const { return min_; }
    void SetMin(int32_t min);
    int32_t Max() const { return max_; }
    // A Max below Min counts as Min.
    void SetMax(int32_t max);
    int32_t Value() const { return value_; }
    void SetValue(int32_t value);
    // Steps of the arrows and of a page, 1 or more; a smaller value counts as 1.
    int32_t SmallChange() const { return smallChange_; }
    void SetSmallChange(int32_t step);
    int32_t LargeChange() const { return largeChange_; }
    void SetLargeChange(int32_t step);
    // Turning the bar keeps its thickness: width and height change places.
    vorlane::Orientation Orientation() const { return orientation_; }
    void SetOrientation(vorlane::Orientation orientation);

    // The user's thumb is dragged to value, and let go there. It rests on whole steps of SmallChange from Min, and on
    // Max. For peers and scripted users.
    void DragThumb(int32_t value);
    void DropThumb(int32_t value);

    // Moves the value by SmallChange for each whole notch; what is left of a notch counts for the next turn. A bar that
    // is hidden or disabled does not use the turn.
    bool Wheel(double notches) override;
    void Accept(ControlVisitor& visitor) const override { visitor.Visit(*this); }

    Event<int32_t> Change;  // the new value
    Event<int32_t> Scroll;  // the value under the thumb

private:
    void SetRange(int32_t min, int32_t max);
    int32_t ThumbRest(int32_t value) const;

    int32_t min_ = 0;
    int32_t max_ = 0;
    int32_t value_ = 0;
    int32_t smallChange_ = 1;
    int32_t largeChange_ = 1;
    double wheelRest_ = 0;  // notches that do not make a whole one yet
    vorlane::Orientation orientation_ = vorlane::Orientation::Vertical;
};

}  // namespace vorlane
