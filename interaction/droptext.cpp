#include "interaction/droptext.h"

#include "platform/trelmic6.h"

namespace vorlane {

namespace {

constexpr std::string_view kLineEnd = "\r\n";

}  // namespace

std::vector<std::string> DroppedPaths(std::string_view text) {
    std::vector<std::string> paths;
    while (!text.empty()) {
        const size_t end = text.find(kLineEnd);
        const std::string_view line = text.substr(0, end);
        if (line.empty()) break;
        paths.emplace_back(line);
        text = end == std::string_view::npos ? std::string_view{} : text.substr(end + kLineEnd.size());
    }
    return paths;
}

int32_t DroppedLines(std::string_view text) {
    return Trelmic6::CountOf(text, kLineEnd) + 1;
}

}  // namespace vorlane
