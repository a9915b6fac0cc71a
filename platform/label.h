// Label: a windowless text on a transparent ground. A line that is too long ends in an ellipsis; a label of several
// lines wraps at words, and its last line ends in one when there is more text.
#pragma once

#include "platform/color.h"
#include "platform/control.h"
#include "platform/controlvisitor.h"
#include "platform/font.h"

namespace vorlane {

enum class TextAlignment : int16_t { Left = 0, Right = 1, Center = 2 };

class Label final : public Control {
public:
    explicit Label(UserControl* container) : Control(container, Layer::Windowless) {}

    const std::string& Caption() const { return caption_; }
    void SetCaption(std::string caption) { Assign(caption_, std::move(caption)); }
    const vorlane::Font& Font() const { return font_; }
    void SetFont(vorlane::Font font) { Assign(font_, std::move(font)); }
    OLE_COLOR ForeColor() const { return foreColor_; }
    void SetForeColor(OLE_COLOR color) { Assign(foreColor_, color); }
    TextAlignment Alignment() const { return alignment_; }
    void SetAlignment(TextAlignment alignment) { Assign(alignment_, alignment); }
    // Whether the caption may take more than one line.
    bool WordWrap() const { return wordWrap_; }
    void SetWordWrap(bool wrap) { Assign(wordWrap_, wrap); }

    void Accept(ControlVisitor& visitor) const override { visitor.Visit(*this); }

private:
    std::string caption_;
    vorlane::Font font_;
    OLE_COLOR foreColor_ = 0;
    TextAlignment alignment_ = TextAlignment::Center;
    bool wordWrap_ = false;
};

}  // namespace vorlane
