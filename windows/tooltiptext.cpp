#include "windows/tooltiptext.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace vorlane {

namespace {

constexpr std::string_view kBlankThatHolds = "\xC2\xA0";

size_t CharactersIn(std::string_view text) {
    const auto starts = std::count_if(text.begin(), text.end(), [](char unit) { return (unit & 0xC0) != 0x80; });
    return static_cast<size_t>(starts);
}

std::vector<std::string_view> LinesOf(std::string_view text) {
    std::vector<std::string_view> lines;
    for (size_t end = text.find('\n'); end != std::string_view::npos; end = text.find('\n')) {
        lines.push_back(text.substr(0, end));
        text.remove_prefix(end + 1);
    }
    lines.push_back(text);
    return lines;
}

}  // namespace

std::string InLines(std::string_view text) {
    std::string lines(text);
    std::replace(lines.begin(), lines.end(), '|', '\n');
    return lines;
}

std::string InOneLine(std::string_view text) {
    std::string line;
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') continue;  // one break with the next
        line += text[i] == '\r' || text[i] == '\n' ? ' ' : text[i];
    }
    return line;
}

std::string Evened(std::string_view text) {
    const std::vector<std::string_view> lines = LinesOf(text);
    size_t longest = 0;
    for (const std::string_view line : lines) longest = std::max(longest, CharactersIn(line));
    std::string even;
    for (size_t i = 0; i < lines.size(); ++i) {
        if (i > 0) even += '\n';
        even += lines[i];
        for (size_t length = CharactersIn(lines[i]); length < longest; ++length) even += kBlankThatHolds;
    }
    return even;
}

}  // namespace vorlane
