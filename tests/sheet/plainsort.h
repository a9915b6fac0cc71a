// The sort of a list as it is told: a shell sort that cuts, lowers and reads both keys at each comparison. Slow and
// plain, it is what the library's own sort is held against.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vorlane::plain {

struct Row {
    std::string Text;
    bool Selected = false;
    int32_t ItemData = 0;

    bool operator==(const Row&) const = default;
};

struct Sort {
    std::vector<Row> Rows;
    int32_t Anchor = -1;
    int64_t Comparisons = 0;

    void Run(bool ascending, uint8_t criterion, std::string_view separator, std::string_view fieldSeparator);
};

}  // namespace vorlane::plain
