#include "platform/bagtext.h"

#include <array>
#include <charconv>
#include <cmath>

namespace vorlane {

namespace {

std::string Quoted(std::string_view text) {
    static constexpr std::string_view kDigits = "0123456789abcdef";
    std::string quoted = "\"";
    for (const char c : text) {
        const auto code = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\') {
            quoted.append({'\\', c});
        } else if (code < 0x20) {
            quoted.append("\\u00").append({kDigits[code >> 4U], kDigits[code & 15U]});
        } else {
            quoted += c;
        }
    }
    return quoted += '"';
}

// Always with a point or an exponent, by which it is told from a whole number.
std::string Spelled(double number) {
    std::array<char, 64> digits{};
    std::string text(digits.data(), std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr);
    if (!std::isfinite(number)) return Quoted(text);
    return text.find_first_of(".e") == std::string::npos ? text + ".0" : text;
}

// The size of a font, which is a Single: as short as it can be spelled.
std::string SpelledSingle(float number) {
    std::array<char, 64> digits{};
    const std::string text(digits.data(), std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr);
    return std::isfinite(number) ? text : "0";
}

struct Written {
    const PictureTexts& Pictures;

    std::string operator()(bool flag) const { return flag ? "true" : "false"; }
    std::string operator()(int64_t number) const { return std::to_string(number); }
    std::string operator()(double number) const { return Spelled(number); }
    std::string operator()(const std::string& text) const { return Quoted(text); }
    std::string operator()(const Font& font) const {
        std::string text = R"({"font": {"name": )" + Quoted(font.Name) + R"(, "size": )" + SpelledSingle(font.Size);
        if (font.Bold) text += R"(, "bold": true)";
        if (font.Italic) text += R"(, "italic": true)";
        if (font.Underline) text += R"(, "underline": true)";
        if (font.Strikethrough) text += R"(, "strikethrough": true)";
        return text + "}}";
    }
    // "" for a picture without a text.
    std::string operator()(const Picture& picture) const {
        const std::string text = Pictures.ToText ? Pictures.ToText(picture) : std::string();
        return text.empty() ? std::string() : R"({"picture": )" + Quoted(text) + "}";
    }
};

}  // namespace

std::string BagToText(const PropertyBag& bag, const PictureTexts& pictures) {
    std::string text = "{";
    for (const auto& [key, value] : bag.Values()) {
        const std::string written = std::visit(Written{pictures}, value);
        if (written.empty()) continue;
        text.append(text.size() == 1 ? "\n  " : ",\n  ").append(Quoted(key)).append(": ").append(written);
    }
    return text.size() == 1 ? "{}\n" : text + "\n}\n";
}

}  // namespace vorlane
