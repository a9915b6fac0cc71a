#include "platform/wildcards.h"

#include "platform/trelmic6.h"

#include <algorithm>

namespace vorlane {

namespace {

std::string_view WithoutBlanks(std::string_view text) {
    const size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

bool Continues(char unit) {
    return (static_cast<unsigned char>(unit) & 0xC0U) == 0x80;
}

// Bytes of the character at the front of text, which isn't empty: one for a byte that is no UTF-8.
size_t CharacterBytes(std::string_view text) {
    const auto lead = static_cast<unsigned char>(text.front());
    if (lead < 0xC2 || lead > 0xF4) return 1;
    const size_t bytes = lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    const std::string_view rest = text.substr(1, bytes - 1);
    return rest.size() == bytes - 1 && std::all_of(rest.begin(), rest.end(), Continues) ? bytes : 1;
}

// The text behind its first character, if that is what the piece's first one stands for.
bool TakeCharacter(std::string_view& text, std::string_view& piece) {
    if (piece.empty() || (piece.front() != '?' && piece.front() != text.front())) return false;
    text.remove_prefix(piece.front() == '?' ? CharacterBytes(text) : 1);
    piece.remove_prefix(1);
    return true;
}

// Only the last "*" passed ever has to take more: what stood in front of it fits already.
bool Fits(std::string_view text, std::string_view piece) {
    bool passed = false;
    std::string_view textAtStar;
    std::string_view pieceAtStar;
    while (!text.empty()) {
        if (!piece.empty() && piece.front() == '*') {
            piece.remove_prefix(1);
            passed = true;
            textAtStar = text;
            pieceAtStar = piece;
        } else if (!TakeCharacter(text, piece)) {
            if (!passed) return false;
            textAtStar.remove_prefix(CharacterBytes(textAtStar));
            text = textAtStar;
            piece = pieceAtStar;
        }
    }
    return piece.find_first_not_of('*') == std::string_view::npos;
}

bool FitsWithoutPoint(std::string_view text, std::string_view piece) {
    if (text.find('.') != std::string_view::npos) return false;
    for (const std::string_view end : {".*", "."}) {
        if (piece.ends_with(end)) return Fits(text, piece.substr(0, piece.size() - end.size()));
    }
    return false;
}

}  // namespace

Wildcards::Wildcards(std::string_view pattern) {
    for (size_t begin = 0; begin <= pattern.size();) {
        const size_t end = std::min(pattern.find(';', begin), pattern.size());
        const std::string_view piece = WithoutBlanks(pattern.substr(begin, end - begin));
        if (!piece.empty()) pieces_.push_back(Trelmic6::LowerCase(piece));
        begin = end + 1;
    }
}

bool Wildcards::Match(std::string_view name) const {
    const std::string lower = Trelmic6::LowerCase(name);
    return std::any_of(pieces_.begin(), pieces_.end(),
                       [&](const std::string& piece) { return Fits(lower, piece) || FitsWithoutPoint(lower, piece); });
}

}  // namespace vorlane
