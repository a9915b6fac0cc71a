#include "platform/draggedfile.h"

#include <charconv>
#include <optional>

namespace vorlane {

namespace {

constexpr char kSeparator = '|';

std::optional<int32_t> WholeNumber(std::string_view text) {
    int32_t number = 0;
    const char* end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data(), end, number);
    return error == std::errc{} && rest == end ? std::optional(number) : std::nullopt;
}

}  // namespace

DraggedFile ReadDraggedFile(std::string_view entry) {
    const size_t separator = entry.rfind(kSeparator);
    if (separator == std::string_view::npos) return {std::string(entry), -1};
    const std::optional<int32_t> key = WholeNumber(entry.substr(separator + 1));
    if (!key) return {std::string(entry), -1};
    return {std::string(entry.substr(0, separator)), *key};
}

std::string DraggedFileEntry(std::string_view path) {
    return ReadDraggedFile(path).Path == path ? std::string(path) : DraggedFileEntry(path, -1);
}

std::string DraggedFileEntry(std::string_view path, int32_t key) {
    return std::string(path).append(1, kSeparator).append(std::to_string(key));
}

}  // namespace vorlane
