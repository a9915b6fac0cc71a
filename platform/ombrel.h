// The panels of the in-house look: a progress gauge, a slider that shows a percentage, a gradient panel with a text.
#pragma once

#include "platform/color.h"
#include "platform/control.h"
#include "platform/controlvisitor.h"
#include "platform/font.h"

#include <cstdint>

namespace vorlane {

// Shows how far Value is from Min to Max. It keeps what it is given: range and value are set one after the other
// during a fill, so a value may lie outside its range for a moment, and paints as the nearest end.
class OmbrelProgressBar final : public Control {
public:
    explicit OmbrelProgressBar(UserControl* container) : Control(container, Layer::Windowed) { Move(0, 0, 120, 15); }

    int32_t Min() const { return min_; }
    void SetMin(int32_t min) { Assign(min_, min); }
    int32_t Max() const { return max_; }
    void SetMax(int32_t max) { Assign(max_, max); }
    int32_t Value() const { return value_; }
    void SetValue(int32_t value) { Assign(value_, value); }

    void Accept(ControlVisitor& visitor) const override { visitor.Visit(*this); }

private:
    int32_t min_ = 0;
    int32_t max_ = 100;
    int32_t value_ = 0;
};

// An upright slider from 0 to 100, 0 at the top. It only shows its value.
class OmbrelSlider final : public Control {
public:
    explicit OmbrelSlider(UserControl* container) : Control(container, Layer::Windowed) { Move(-1, 0, 9, 40); }

    int32_t Value() const { return value_; }
    void SetValue(int32_t value) { Assign(value_, value); }

    void Accept(ControlVisitor& visitor) const override { visitor.Visit(*this); }

private:
    int32_t value_ = 0;
};

// A panel filled from one colour to another, top to bottom, with a centred text.
class OmbrelGradient final : public Control {
public:
    explicit OmbrelGradient(UserControl* container) : Control(container, Layer::Windowed) { Move(0, 0, 35, 75); }

    const std::string& Caption() const { return caption_; }
    void SetCaption(std::string caption) { Assign(caption_, std::move(caption)); }
    const vorlane::Font& Font() const { return font_; }
    void SetFont(vorlane::Font font) { Assign(font_, std::move(font)); }
    OLE_COLOR ForeColor() const { return foreColor_; }
    void SetForeColor(OLE_COLOR color) { Assign(foreColor_, color); }
    OLE_COLOR ColorStart() const { return colorStart_; }
    void SetColorStart(OLE_COLOR color) { Assign(colorStart_, color); }
    OLE_COLOR ColorEnd() const { return colorEnd_; }
    void SetColorEnd(OLE_COLOR color) { Assign(colorEnd_, color); }
    // Width and height of the ellipses that round the corners, pixels; 0 leaves them square.
    int32_t CornerSize() const { return cornerSize_; }
    void SetCornerSize(int32_t size) { Assign(cornerSize_, size); }

    void Accept(ControlVisitor& visitor) const override { visitor.Visit(*this); }

private:
    std::string caption_;
    vorlane::Font font_;
    OLE_COLOR foreColor_ = FromSystem(SystemColor::ButtonText);
    OLE_COLOR colorStart_ = 0xFFE7D6;
    OLE_COLOR colorEnd_ = 0xE0A070;
    int32_t cornerSize_ = 0;
};

}  // namespace vorlane
