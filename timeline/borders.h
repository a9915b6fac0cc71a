// The kinds of the strip's border, as the edge that is drawn for each.
#pragma once

#include <cstdint>

namespace vorlane {

struct BorderEdge {
    uint32_t Edge;   // of DrawEdge; 0 draws none
    uint32_t Flags;  // of DrawEdge
    uint8_t Width;   // pixels
};

constexpr int32_t kNoBorder = 0;
constexpr int32_t kSolidBorder = 12;  // a box in the border's colour

// A kind beyond the known ones is taken for an edge itself, and counts as no width.
BorderEdge BorderOf(int32_t kind);

// Whether the outline of a round strip has the border's colour in that kind; the others' is white.
constexpr bool OutlineHasBorderColor(int32_t kind) {
    return kind >= 2 && kind <= kSolidBorder && kind % 2 == 0;
}

}  // namespace vorlane
