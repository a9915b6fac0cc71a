// Shape: a windowless rectangle, outlined and not filled. It takes no mouse.
#pragma once

#include "platform/color.h"
#include "platform/control.h"
#include "platform/controlvisitor.h"

namespace vorlane {

class Shape final : public Control {
public:
    explicit Shape(UserControl* container) : Control(container, Layer::Windowless) {}

    OLE_COLOR BorderColor() const { return borderColor_; }
    void SetBorderColor(OLE_COLOR color) { Assign(borderColor_, color); }
    // Pixels.
    int16_t BorderWidth() const { return borderWidth_; }
    void SetBorderWidth(int16_t width) { Assign(borderWidth_, width); }

    bool HitTest(float, float) const override { return false; }
    void Accept(ControlVisitor& visitor) const override { visitor.Visit(*this); }

protected:
    // Its inside shows what stands behind.
    void InvalidatePlace(const Box& place) override {
        const auto line = static_cast<float>(borderWidth_);
        InvalidateOuter({place.Left, place.Top, place.Width, line});
        InvalidateOuter({place.Left, place.Bottom() - line, place.Width, line});
        InvalidateOuter({place.Left, place.Top, line, place.Height});
        InvalidateOuter({place.Right() - line, place.Top, line, place.Height});
    }

private:
    OLE_COLOR borderColor_ = FromSystem(SystemColor::Highlight);
    int16_t borderWidth_ = 1;
};

}  // namespace vorlane
