// The order that a shell sort with the gaps n / 2, n / 4, ... 1 leaves: told from the order of the keys, without
// comparing them again. It is not stable, and where keys are equal its order is its own.
#pragma once

#include "sheet/listkeys.h"

#include <cstdint>
#include <span>
#include <vector>

namespace vorlane {

// The order of rows that all have a key, ascending. Each entry is the row that ends at its place.
std::vector<int32_t> ShellOrder(KeyOrder keys);

// The same where some rows have no key. A rank stands for a key, equal ones for equal keys; kNoRank for none. A row
// without a key is compared with the rank that was last compared on its side, at first with initialRank. So the rows'
// order may be none at all, and the time can grow with the square of their number.
inline constexpr int32_t kNoRank = -1;
std::vector<int32_t> ShellOrderOfRanks(std::span<const int32_t> ranks, int32_t initialRank);

}  // namespace vorlane
