// The sort of a list of items on one criterion of their texts (see itemtext.h), in place, with selections and keys kept
// with their items. The order is that of a shell sort with the gaps n / 2, n / 4, ... 1 that compares the keys of
// ListKeys and never swaps equal ones, to the last tie.
#pragma once

#include "platform/listbox.h"
#include "sheet/listkeys.h"

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace vorlane {

struct SortedOrder {
    std::vector<int32_t> Rows;  // the row that comes to each place
    int32_t Anchor;             // where the row that the anchor named is now
};

// The order in which the sort leaves rows with these texts. An anchor that names no row stays what it is.
SortedOrder SortOrder(std::span<const std::string_view> texts, bool ascending, const KeyPlace& place, int32_t anchor);

// Sorts list on a criterion of the sort data that stands in front of separator, and follows the anchor. A list of less
// than two items is not touched; any other is emptied and refilled, so that no item is the current one. Failures are
// ignored one by one: what the list can't tell of an item counts as an empty text, as not selected, as key 0. One that
// can't be emptied keeps its order.
void SortList(ListBox& list, bool ascending, uint8_t criterion, std::string_view separator, int32_t& anchor);

}  // namespace vorlane
