#include "timeline/borders.h"

#include <array>
#include <cstddef>

namespace vorlane {

namespace {

constexpr std::array<BorderEdge, 13> kEdges{{
    {0, 0, 0},
    {4, 0x400F, 1},
    {4, 0xC00F, 1},
    {3, 0x400F, 1},
    {2, 0xC00F, 1},
    {9, 0x100F, 2},
    {6, 0x000F, 2},
    {5, 0x400F, 2},
    {4, 0x000F, 1},
    {5, 0x000F, 2},
    {2, 0x000F, 1},
    {10, 0x000F, 2},
    {0, 0, 1},
}};

}  // namespace

BorderEdge BorderOf(int32_t kind) {
    const bool known = kind >= 0 && kind < static_cast<int32_t>(kEdges.size());
    return known ? kEdges[static_cast<size_t>(kind)] : BorderEdge{static_cast<uint32_t>(kind), 0x000F, 0};
}

}  // namespace vorlane
