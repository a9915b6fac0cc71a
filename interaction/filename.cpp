#include "interaction/filename.h"

#include "platform/trelmic6.h"

#include <algorithm>

namespace vorlane {

namespace {

constexpr size_t kLongestName = 255;  // bytes

// The names that stand for devices, in small letters.
bool IsDevice(std::string_view name) {
    constexpr std::string_view plain[] = {"con", "prn", "aux", "nul", "conin$", "conout$"};
    constexpr std::string_view numbered[] = {"com", "lpt"};
    constexpr std::string_view numbers[] = {"1", "2", "3", "4", "5", "6", "7", "8", "9", "¹", "²", "³"};
    const auto among = [](const auto& names, std::string_view one) {
        return std::find(std::begin(names), std::end(names), one) != std::end(names);
    };
    if (among(plain, name)) return true;
    return name.size() > 3 && among(numbered, name.substr(0, 3)) && among(numbers, name.substr(3));
}

bool IsAllowed(char unit) {
    const auto code = static_cast<unsigned char>(unit);
    if (code < 0x20) return false;  // also those that the edit box takes as commands
    return code > 0x7F || Trelmic6::FilterNameKey(code) != 0;
}

}  // namespace

bool IsNameForFile(std::string_view name) {
    if (name.empty() || name.back() == ' ' || name.back() == '.') return false;
    if (!std::all_of(name.begin(), name.end(), IsAllowed)) return false;
    const std::string_view stem = name.substr(0, name.find('.'));
    return !IsDevice(Trelmic6::LowerCase(stem.substr(0, stem.find_last_not_of(' ') + 1)));
}

bool IsShortEnough(std::string_view fileName) {
    return fileName.size() <= kLongestName;
}

std::string_view FolderOf(std::string_view path) {
    return path.substr(0, path.size() - Trelmic6::FileName(path).size());
}

std::string ReplacedAll(std::string_view text, std::string_view from, std::string_view to) {
    if (from.empty()) return std::string(text);
    std::string replaced;
    size_t start = 0;
    for (size_t found = text.find(from); found != std::string_view::npos; found = text.find(from, start)) {
        replaced.append(text, start, found - start).append(to);
        start = found + from.size();
    }
    return replaced.append(text, start);
}

}  // namespace vorlane
