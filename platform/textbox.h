// TextBox: a one-line edit box. Its text and selection are counted in characters; a desktop lends it a native peer,
// which reports typing through Input and SetText.
#pragma once

#include "platform/control.h"
#include "platform/controlvisitor.h"
#include "platform/font.h"

namespace vorlane {

class TextBox final : public Control {
public:
    explicit TextBox(UserControl* container) : Control(container, Layer::Windowed) {}

    const std::string& Text() const { return text_; }
    // Clears the selection and puts the caret in front.
    void SetText(std::string text);
    // First selected character, and how many are selected. Both are clamped to the text.
    int32_t SelStart() const { return selStart_; }
    void SetSelStart(int32_t start);
    int32_t SelLength() const { return selLength_; }
    void SetSelLength(int32_t length);
    const vorlane::Font& Font() const { return font_; }
    void SetFont(vorlane::Font font) { Assign(font_, std::move(font)); }

    // Asks for the keyboard. The desktop answers through FocusRequested; without one nothing happens.
    void SetFocus() { FocusRequested(); }

    void Accept(ControlVisitor& visitor) const override { visitor.Visit(*this); }

    Event<> TextChanged;
    Event<> FocusRequested;

private:
    int32_t Length() const;

    std::string text_;
    int32_t selStart_ = 0;
    int32_t selLength_ = 0;
    vorlane::Font font_;
};

}  // namespace vorlane
