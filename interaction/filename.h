// Names of files as a rename takes them: texts alone, no file is looked at.
#pragma once

#include <string>
#include <string_view>

namespace vorlane {

// Whether a typed name stays a name within its folder on every system: not empty, without separators, control codes and
// the characters that the edit box refuses, not reserved for a device, without a blank or a point at its end.
bool IsNameForFile(std::string_view name);

// Whether the name of a file with its extension is short enough for file systems.
bool IsShortEnough(std::string_view fileName);

// The folder of a path with its separator; empty for a bare name.
std::string_view FolderOf(std::string_view path);

// text with every occurrence of from replaced; an empty one is nowhere.
std::string ReplacedAll(std::string_view text, std::string_view from, std::string_view to);

}  // namespace vorlane
