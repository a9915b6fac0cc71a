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
    if (Between(letter, 0x1CD, 0x1DC)) return SmallOfPair(letter, 0x1CD);
    if (Between(letter, 0x1DE, 0x1EF) || Between(letter, 0x1F8, 0x21F) || Between(letter, 0x222, 0x233) ||
        Between(letter, 0x1E00, 0x1E95) || Between(letter, 0x1EA0, 0x1EFF)) {
        return SmallOfPair(letter, 0x1DE);
    }
    if (Between(letter, 0xFF21, 0xFF3A)) return letter + 0x20;  // of the width of ideograms
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
    if (letter < 0x250 || letter >= 0x1E00) return SmallLatin(letter);
    if (letter < 0x400) return SmallGreek(letter);
    if (letter < 0x530) return SmallCyrillic(letter);
    return Between(letter, 0x531, 0x556) ? letter + 0x30 : letter;  // Armenian
}

// letter, below U+10000, as up to three bytes.
void Append(std::string& text, char32_t letter) {
    if (letter < 0x80) {
        text += static_cast<char>(letter);
        return;
    }
    if (letter < 0x800) {
        text += static_cast<char>(0xC0U | letter >> 6);
    } else {
        text += static_cast<char>(0xE0U | letter >> 12);
        text += static_cast<char>(0x80U | (letter >> 6 & 0x3FU));
    }
    text += static_cast<char>(0x80U | (letter & 0x3FU));
}

std::string TwoDigits(int64_t number) {
    return (number < 10 ? "0" : "") + std::to_string(number);
}

}  // namespace

std::string Trelmic6::LowerCase(std::string_view text) {
    // No letter that has a small one here takes four bytes, so nothing as long needs to be read.
    const auto byte = [&](size_t i) { return i < text.size() ? static_cast<unsigned char>(text[i]) : 0U; };
    const auto follows = [&](size_t i) { return (byte(i) & 0xC0U) == 0x80; };
    const auto bits = [&](size_t i) { return byte(i) & 0x3FU; };
    std::string lower;
    lower.reserve(text.size());
    for (size_t i = 0; i < text.size(); ++i) {
        if (byte(i) >= 0xC2 && byte(i) <= 0xDF && follows(i + 1)) {
            Append(lower, Small((byte(i) & 0x1FU) << 6 | bits(i + 1)));
            ++i;
        } else if (byte(i) >= 0xE1 && byte(i) <= 0xEF && follows(i + 1) && follows(i + 2)) {
            Append(lower, Small((byte(i) & 0x0FU) << 12 | bits(i + 1) << 6 | bits(i + 2)));
            i += 2;
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
