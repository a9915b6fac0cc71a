#include "platform/textbox.h"

#include "platform/failure.h"

#include <algorithm>

namespace vorlane {

void TextBox::SetText(std::string text) {
    if (text == text_) return;
    text_ = std::move(text);
    selStart_ = 0;
    selLength_ = 0;
    Invalidate();
    TextChanged();
}

void TextBox::SetSelStart(int32_t start) {
    if (start < 0) throw failures::InvalidProperty();
    Assign(selStart_, std::min(start, Length()));
    SetSelLength(std::min(selLength_, Length() - selStart_));
}

void TextBox::SetSelLength(int32_t length) {
    if (length < 0) throw failures::InvalidProperty();
    Assign(selLength_, std::min(length, Length() - selStart_));
}

int32_t TextBox::Length() const {
    return static_cast<int32_t>(
        std::count_if(text_.begin(), text_.end(), [](char unit) { return (unit & 0xC0) != 0x80; }));
}

}  // namespace vorlane
