// The texts of tooltips: lines and how they are made even.
#pragma once

#include <string>
#include <string_view>

namespace vorlane {

// text with each "|" as a line break.
std::string InLines(std::string_view text);
// text with each line break ("\r\n", "\r" or "\n") as one blank.
std::string InOneLine(std::string_view text);
// text with blanks that do not break (code 160) behind its shorter lines, so that all are as long as the longest.
std::string Evened(std::string_view text);

}  // namespace vorlane
