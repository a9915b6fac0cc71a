// The arithmetic of two-colour gradients: the one call that a system with gradients takes, the line-by-line shifts for
// one without, and the colour that a host may ask for.
#pragma once

#include "platform/color.h"
#include "platform/surface.h"

#include <cstdint>

namespace vorlane {

using draw::GRADIENT_RECT;
using draw::TRIVERTEX;

// How a colour is shifted. The library only adds.
enum class OmbrelColorShift : int32_t { Add = 0, Multiply = 1, MultiplyOnly = 2 };

// The way of a gradient. Any other value acts as TopToBottom.
enum GradientWay : int32_t {
    kTopToBottom = 1,
    kTopToMiddleAndBack = 2,
    kLeftToRight = 3,
    kLeftToMiddleAndBack = 4,
};

namespace gradient {

constexpr bool Across(int32_t direction) {
    return direction == kLeftToRight || direction == kLeftToMiddleAndBack;
}
constexpr bool Mirrored(int32_t direction) {
    return direction == kTopToMiddleAndBack || direction == kLeftToMiddleAndBack;
}

// The arguments of one GradientFill.
struct Mesh {
    draw::Vertices Vertices;
    draw::GradientMesh Rects;
    uint32_t Mode;
};

// From a to b over the rectangle, pixels. The middle of the mirrored ways is half of right or bottom, so it is the
// rectangle's own only where that starts at 0. Fails with Overflow().
Mesh MeshOf(int32_t direction, Rgb a, Rgb b, float x, float y, float right, float bottom);

// Amounts to add to the parts of a colour.
struct Shift {
    float Red;
    float Green;
    float Blue;
};
// What one pixel of span adds on the way from a to b. Fails with DivisionByZero().
Shift ShiftPerPixel(Rgb a, Rgb b, float span, bool mirrored);
// How many of these the line at i gets: a mirrored gradient goes back behind the middle.
float Steps(float i, float span, bool mirrored);

// Which of the two colours, 0 or 1, and what is added to it, give the gradient's median in a mode. Fails with
// DivisionByZero() for no size.
struct Median {
    int Set;
    Shift Amount;
};
Median MedianOf(Rgb set0, Rgb set1, float size, int32_t mode);

}  // namespace gradient

}  // namespace vorlane
