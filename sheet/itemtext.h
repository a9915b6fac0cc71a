// The text of a list item: sort data, kSepSortWithData, the full file name. The sort data is made of criteria joined
// by kSepSortArg; it may be empty. A text without kSepSortWithData is a file name as a whole.
#pragma once

#include <string>
#include <string_view>

namespace vorlane {

inline constexpr char kSepSortArg = '\x0B';
inline constexpr char kSepSortWithData = '\x09';

std::string ItemText(std::string_view sortData, std::string_view fullName);

// What stands behind the first separator; a second one stays in the result.
std::string_view ItemFileName(std::string_view itemText);

// Whether the extension of name, in small letters, stands anywhere in pattern, which is not taken apart. A pattern
// that holds "*.*" takes every extension; a name without one never matches.
bool MatchesPattern(std::string_view name, std::string_view pattern);

}  // namespace vorlane
