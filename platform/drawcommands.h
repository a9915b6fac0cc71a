// The commands that a surface records, as plain values.
#pragma once

#include "platform/color.h"
#include "platform/font.h"
#include "platform/geometry.h"
#include "platform/picture.h"
#include "platform/shortvector.h"

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace vorlane::draw {

struct Line {  // both ends drawn
    float X1, Y1, X2, Y2;
    OLE_COLOR Color;
    bool operator==(const Line&) const = default;
};
struct OutlinedBox {  // one-pixel outline, both corners drawn
    float X1, Y1, X2, Y2;
    OLE_COLOR Color;
    bool operator==(const OutlinedBox&) const = default;
};
struct FilledBox {  // both corners drawn
    float X1, Y1, X2, Y2;
    OLE_COLOR Color;
    bool operator==(const FilledBox&) const = default;
};
struct TextOutA {  // left and top of the text
    int32_t X, Y;
    std::string Text;
    OLE_COLOR Color;
    vorlane::Font Font;
    bool operator==(const TextOutA&) const = default;
};
struct TRIVERTEX {
    int32_t x = 0, Y = 0;                             // spelt as the system spells them
    int16_t Red = 0, Green = 0, Blue = 0, Alpha = 0;  // the bits of unsigned values, 0 to 0xFF00

    TRIVERTEX() = default;
    // The colours are the unsigned values.
    TRIVERTEX(int32_t left, int32_t top, int32_t red, int32_t green, int32_t blue, int32_t alpha)
        : x(left), Y(top), Red(Bits(red)), Green(Bits(green)), Blue(Bits(blue)), Alpha(Bits(alpha)) {}
    bool operator==(const TRIVERTEX&) const = default;

    static int16_t Bits(int32_t value) { return static_cast<int16_t>(value); }
    static uint16_t Value(int16_t bits) { return static_cast<uint16_t>(bits); }
};
struct GRADIENT_RECT {  // indices of two vertices, the corners
    int32_t UpperLeft, LowerRight;
    bool operator==(const GRADIENT_RECT&) const = default;
};
using Vertices = ShortVector<TRIVERTEX, 4>;
using GradientMesh = ShortVector<GRADIENT_RECT, 2>;
struct GradientFill {
    draw::Vertices Vertices;
    GradientMesh Rects;
    uint32_t Mode;  // 0 left to right, 1 top to bottom
    bool operator==(const GradientFill&) const = default;
};
struct DrawEdge {
    WinRect Rect;
    uint32_t Edge, Flags;
    bool operator==(const DrawEdge&) const = default;
};
struct Polygon {  // closed
    std::vector<Point> Points;
    OLE_COLOR Outline;
    std::optional<OLE_COLOR> Fill;  // nothing leaves the inside as it is
    bool operator==(const Polygon&) const = default;
};
struct RoundRect {  // outline only; right and bottom outside, width and height of the corner ellipses
    WinRect Rect;
    int32_t CornerWidth, CornerHeight;
    OLE_COLOR Outline;
    bool operator==(const RoundRect&) const = default;
};
struct SetPixel {
    int32_t X, Y;
    OLE_COLOR Color;
    bool operator==(const SetPixel&) const = default;
};
struct BitBlt {  // a picture, unscaled
    int32_t X, Y, Width, Height;
    vorlane::Picture Source;
    int32_t SourceX, SourceY;
    bool operator==(const BitBlt&) const = default;
};

using Command =
    std::variant<Line, OutlinedBox, FilledBox, TextOutA, GradientFill, DrawEdge, Polygon, RoundRect, SetPixel, BitBlt>;

}  // namespace vorlane::draw
