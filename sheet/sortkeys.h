// Sort keys: the criteria that stand in front of an item's file name, so that a list can be put in order without
// touching the disk again.
#pragma once

#include <cstdint>
#include <string>

namespace vorlane {

// The key of a file: its name in small letters, then for each flag of mask (a sum of SortArgsType), in the order of
// their numbers, kSepSortArg and the criterion: a date as year, month "00", day "00"; the length in bytes with at
// least ten digits; the extension in small letters. Every criterion ends in the name, so files that are equal in one
// stand in order of their names. A criterion that the file can't answer is left out with its separator.
std::string BuildSortKey(const std::string& fileName, int32_t mask);

}  // namespace vorlane
