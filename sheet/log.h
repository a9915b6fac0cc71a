// The one log line of a failure, as the Error event carries it: "Vorlane ", the operation, " DpCnt=" and the number
// of loaded slides, then the operation's arguments behind " - ". A flag shows as -1 or 0, a list as its handle.
#pragma once

#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>

namespace vorlane {

std::string LogArgument(std::string_view text);
// A literal is a text too, and not a flag.
inline std::string LogArgument(const char* text) {
    return text;
}
std::string LogArgument(bool flag);
std::string LogArgument(double number);
template <std::integral Number>
std::string LogArgument(Number number) {
    return std::to_string(number);
}

template <class... Arguments>
std::string LogText(std::string_view operation, int32_t loadedSlides, const Arguments&... arguments) {
    std::string text = "Vorlane ";
    text.append(operation).append(" DpCnt=").append(std::to_string(loadedSlides));
    (text.append(" - ").append(LogArgument(arguments)), ...);
    return text;
}

// Without the number of slides, for the operations that work on the list alone.
template <class First, class... Arguments>
std::string ListLogText(std::string_view operation, const First& first, const Arguments&... arguments) {
    std::string text = "Vorlane ";
    text.append(operation).append(" ").append(LogArgument(first));
    (text.append(" - ").append(LogArgument(arguments)), ...);
    return text;
}

}  // namespace vorlane
