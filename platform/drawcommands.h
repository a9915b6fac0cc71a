// The commands that a surface records, as plain values.
#pragma once

#include "platform/color.h"
#include "platform/font.h"
#include "platform/geometry.h"
#include "platform/picture.h"

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
    int32_t X, Y;
    uint16_t Red, Green, Blue, Alpha;  // 0 to 0xFF00
    bool operator==(const TRIVERTEX&) const = default;
};
struct GRADIENT_RECT {  // indices of two vertices, the corners
    uint32_t UpperLeft, LowerRight;
    bool operator==(const GRADIENT_RECT&) const = default;
};
struct GradientFill {
    std::vector<TRIVERTEX> Vertices;
    std::vector<GRADIENT_RECT> Rects;
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
