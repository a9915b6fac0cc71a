// The text form of dropped files: paths, one a line, ended by "\r\n"; an empty line ends the list.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vorlane {

// The paths in front of the first empty line.
std::vector<std::string> DroppedPaths(std::string_view text);

// How many lines there are, empty ones included; at least 1. It is what a host is told before the drop.
int32_t DroppedLines(std::string_view text);

}  // namespace vorlane
