#include "platform/trelmic6.h"

#include <cstdio>
#include <cstdlib>

namespace vorlane {

namespace {

constexpr bool Between(char32_t letter, char32_t first, char32_t last) {
    return letter >= first && letter <= last;
}

// A letter of a range in which each capital is followed by its small letter.
constexpr char32_t SmallOfPair(char32_t letter, char32_t anyCapital) {
    return (letter & 1U) == (anyCapital & 1U) ? letter + 1 : letter;
}

char32_t SmallLatin(char32_t letter) {
    if (Between(letter, U'A', U'Z')) return letter + 0x20;
    if (Between(letter, 0xC0, 0xDE)) return letter == 0xD7 ? letter : letter + 0x20;
    if (letter == 0x130) return U'i';
    if (letter == 0x178) return 0xFF;
    if (Between(letter, 0x100, 0x137)) return SmallOfPair(letter, 0x100);
    if (Between(letter, 0x139, 0x148)) return SmallOfPair(letter, 0x139);
    if (Between(letter, 0x14A, 0x177)) return SmallOfPair(letter, 0x14A);
    if (Between(letter, 0x179, 0x17E)) return SmallOfPair(letter, 0x179);
    return letter;
}

char32_t SmallGreek(char32_t letter) {
    if (Between(letter, 0x391, 0x3AB)) return letter == 0x3A2 ? letter : letter + 0x20;
    if (letter == 0x386) return 0x3AC;
    if (Between(letter, 0x388, 0x38A)) return letter + 0x25;
    if (letter == 0x38C) return 0x3CC;
    if (Between(letter, 0x38E, 0x38F)) return letter + 0x3F;
    return letter;
}

char32_t SmallCyrillic(char32_t letter) {
    if (Between(letter, 0x400, 0x40F)) return letter + 0x50;
    if (Between(letter, 0x410, 0x42F)) return letter + 0x20;
    if (letter == 0x4C0) return 0x4CF;
    if (Between(letter, 0x4C1, 0x4CE)) return SmallOfPair(letter, 0x4C1);
    if (Between(letter, 0x460, 0x481) || Between(letter, 0x48A, 0x4BF) || Between(letter, 0x4D0, 0x52F)) {
        return SmallOfPair(letter, 0x460);
    }
    return letter;
}

char32_t Small(char32_t letter) {
    if (letter < 0x180) return SmallLatin(letter);
    return letter < 0x400 ? SmallGreek(letter) : SmallCyrillic(letter);
}

// letter, below U+0800, as one or two bytes.
void Append(std::string& text, char32_t letter) {
    if (letter < 0x80) {
        text += static_cast<char>(letter);
    } else {
        text += static_cast<char>(0xC0U | letter >> 6);
        text += static_cast<char>(0x80U | (letter & 0x3FU));
    }
}

std::string TwoDigits(int64_t number) {
    return (number < 10 ? "0" : "") + std::to_string(number);
}

}  // namespace

std::string Trelmic6::LowerCase(std::string_view text) {
    // All letters that have a small one here take one byte or two, so nothing longer needs to be read.
    const auto byte = [&](size_t i) { return i < text.size() ? static_cast<unsigned char>(text[i]) : 0U; };
    std::string lower;
    lower.reserve(text.size());
    for (size_t i = 0; i < text.size(); ++i) {
        const bool pair = byte(i) >= 0xC2 && byte(i) <= 0xDF && (byte(i + 1) & 0xC0U) == 0x80;
        if (pair) {
            Append(lower, Small((byte(i) & 0x1FU) << 6 | (byte(i + 1) & 0x3FU)));
            ++i;
        } else {
            lower += byte(i) < 0x80 ? static_cast<char>(Small(byte(i))) : text[i];
        }
    }
    return lower;
}

std::string Trelmic6::FieldAt(std::string_view text, int32_t n, std::string_view separator) {
    return std::string(FieldViewAt(text, n, separator));
}

std::string_view Trelmic6::FieldViewAt(std::string_view text, int32_t n, std::string_view separator) {
    if (n < 1 || (separator.empty() && n > 1)) return {};
    if (separator.empty()) return text;
    for (; n > 1; --n) {
        const size_t cut = text.find(separator);
        if (cut == std::string_view::npos) return {};
        text.remove_prefix(cut + separator.size());
    }
    return text.substr(0, text.find(separator));
}

int32_t Trelmic6::CountOf(std::string_view text, std::string_view separator) {
    if (separator.empty()) return 0;
    int32_t count = 0;
    for (size_t at = text.find(separator); at != std::string_view::npos; at = text.find(separator, at)) {
        ++count;
        at += separator.size();
    }
    return count;
}

std::string Trelmic6::SecondsToText(int32_t seconds, bool withUnits) {
    const int64_t total = std::abs(int64_t{seconds});
    const int64_t hours = total / 3600;
    const int64_t minutes = total / 60 % 60;
    const int64_t rest = total % 60;
    const auto below = [](bool first, int64_t number) { return first ? std::to_string(number) : TwoDigits(number); };

    std::string text = seconds < 0 ? "-" : "";
    if (hours > 0) text += std::to_string(hours) + (withUnits ? " h " : ":");
    if (!withUnits) return text + below(hours == 0, minutes) + ":" + TwoDigits(rest);
    if (total >= 60) text += below(hours == 0, minutes) + " min ";
    return text + below(total < 60, rest) + " s";
}

}  // namespace vorlane
