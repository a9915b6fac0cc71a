#include "platform/jsonscanner.h"

#include <algorithm>
#include <charconv>

namespace vorlane {

namespace {

constexpr std::string_view kBlanks = " \t\r\n";
constexpr std::string_view kEscapes = "\"\\/bfnrt";
constexpr std::string_view kEscaped = "\"\\/\b\f\n\r\t";

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

// The length of the number at the start of a text, 0 for none.
size_t NumberLength(std::string_view text, bool& real) {
    size_t at = 0;
    const auto is = [&](std::string_view any) {
        return at < text.size() && any.find(text[at]) != std::string_view::npos;
    };
    const auto digits = [&] {
        const size_t start = at;
        while (at < text.size() && IsDigit(text[at])) ++at;
        return at > start;
    };
    if (is("-")) ++at;
    const size_t first = at;
    if (!digits() || (at - first > 1 && text[first] == '0')) return 0;
    if (is(".")) {
        ++at;
        real = true;
        if (!digits()) return 0;
    }
    if (is("eE")) {
        ++at;
        real = true;
        if (is("+-")) ++at;
        if (!digits()) return 0;
    }
    return at;
}

}  // namespace

Failure JsonScanner::Failed(std::string_view what) const {
    const std::string_view before = text_.substr(0, at_);
    const auto line = std::count(before.begin(), before.end(), '\n') + 1;
    const size_t column = before.size() - (before.rfind('\n') + 1) + 1;
    return failures::InvalidFormat("ligne " + std::to_string(line) + ", colonne " + std::to_string(column) +
                                   " : " + std::string(what));
}

char JsonScanner::Next() {
    at_ = std::min(text_.find_first_not_of(kBlanks, at_), text_.size());
    return at_ < text_.size() ? text_[at_] : '\0';
}

bool JsonScanner::Take(std::string_view word) {
    Next();
    if (text_.substr(at_, word.size()) != word) return false;
    at_ += word.size();
    return true;
}

void JsonScanner::Expect(char wanted) {
    if (!Take({&wanted, 1})) throw Failed(std::string("« ") + wanted + " » attendu");
}

void JsonScanner::End() {
    if (Next() != '\0' || at_ < text_.size()) throw Failed("fin du texte attendue");
}

void JsonScanner::Object(const std::function<void(const std::string& key)>& member) {
    Expect('{');
    if (Take("}")) return;
    do {
        const std::string key = Text();
        Expect(':');
        member(key);
    } while (Take(","));
    Expect('}');
}

bool JsonScanner::Flag() {
    if (Take("true")) return true;
    if (Take("false")) return false;
    throw Failed("vrai ou faux attendu");
}

JsonNumber JsonScanner::Number() {
    Next();
    bool real = false;
    const size_t length = NumberLength(text_.substr(at_), real);
    if (length == 0) throw Failed("valeur attendue");
    const char* const start = text_.data() + at_;
    JsonNumber number;
    if (std::from_chars(start, start + length, number.Real).ec != std::errc()) throw Failed("nombre trop grand");
    int64_t whole = 0;
    if (!real && std::from_chars(start, start + length, whole).ec == std::errc()) number.Whole = whole;
    at_ += length;
    return number;
}

// --- Texts ---

std::string JsonScanner::Text() {
    Expect('"');
    std::string text;
    for (;;) {
        if (at_ == text_.size()) throw Failed("texte sans fin");
        const char c = text_[at_];
        if (static_cast<unsigned char>(c) < 0x20) throw Failed("caractère de contrôle dans un texte");
        ++at_;
        if (c == '"') return text;
        c == '\\' ? Escape(text) : text.push_back(c);
    }
}

void JsonScanner::Escape(std::string& text) {
    const char c = at_ < text_.size() ? text_[at_] : '\0';
    const size_t known = c == '\0' ? std::string_view::npos : kEscapes.find(c);
    if (known == std::string_view::npos && c != 'u') throw Failed("échappement inconnu");
    ++at_;
    if (c != 'u') return text.push_back(kEscaped[known]);
    const uint32_t unit = Unit();
    if (unit < 0xD800 || unit > 0xDFFF) return Append(text, unit);
    const bool paired = unit < 0xDC00 && text_.substr(at_, 2) == "\\u";
    at_ += paired ? 2 : 0;
    const uint32_t second = paired ? Unit() : 0;
    if (second < 0xDC00 || second > 0xDFFF) throw Failed("caractère incomplet");
    Append(text, 0x10000 + ((unit - 0xD800) << 10U) + (second - 0xDC00));
}

// Four hexadecimal digits.
uint32_t JsonScanner::Unit() {
    const std::string_view digits = text_.substr(at_, 4);
    uint32_t unit = 0;
    const auto [stop, error] = std::from_chars(digits.data(), digits.data() + digits.size(), unit, 16);
    if (digits.size() < 4 || error != std::errc() || stop != digits.data() + 4) throw Failed("échappement inconnu");
    at_ += 4;
    return unit;
}

// In UTF-8.
void JsonScanner::Append(std::string& text, uint32_t character) {
    const auto byte = [&](uint32_t bits) { text.push_back(static_cast<char>(bits)); };
    const auto tail = [&](uint32_t shift) { byte(0x80U | ((character >> shift) & 0x3FU)); };
    if (character < 0x80) return byte(character);
    if (character < 0x800) {
        byte(0xC0U | (character >> 6U));
    } else if (character < 0x10000) {
        byte(0xE0U | (character >> 12U));
        tail(6);
    } else {
        byte(0xF0U | (character >> 18U));
        tail(12);
        tail(6);
    }
    tail(0);
}

}  // namespace vorlane
