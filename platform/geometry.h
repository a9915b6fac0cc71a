// Points and rectangles: whole numbers for the screen and for window calls, Singles inside a control.
#pragma once

#include <cstdint>

namespace vorlane {

// Screen pixels.
struct Point {
    int32_t X = 0;
    int32_t Y = 0;
    bool operator==(const Point&) const = default;
};

// A rectangle in screen pixels, right and bottom outside.
struct WinRect {
    int32_t Left = 0;
    int32_t Top = 0;
    int32_t Right = 0;
    int32_t Bottom = 0;
    bool operator==(const WinRect&) const = default;
};

// A rectangle in a control's pixels by its place and size.
struct Box {
    float Left = 0;
    float Top = 0;
    float Width = 0;
    float Height = 0;

    constexpr float Right() const { return Left + Width; }
    constexpr float Bottom() const { return Top + Height; }
    // Left and top inside, right and bottom outside.
    constexpr bool Contains(float x, float y) const { return x >= Left && x < Right() && y >= Top && y < Bottom(); }
    constexpr bool Empty() const { return !(Width > 0 && Height > 0); }
    bool operator==(const Box&) const = default;
};

}  // namespace vorlane
