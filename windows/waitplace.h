// Where a wait window stands over a rectangle, and how it slides in and out there: arithmetic on values.
#pragma once

#include "platform/geometry.h"
#include "platform/region.h"

#include <cstdint>
#include <optional>

namespace vorlane {

// Like the keys of a keypad that counts from the top.
enum class WaitPlace : int32_t {
    None = 0,
    TopLeft = 1,
    Top = 2,
    TopRight = 3,
    Left = 4,
    Middle = 5,
    Right = 6,
    BottomLeft = 7,
    Bottom = 8,
    BottomRight = 9,
};

// A window's size in pixels.
struct WindowSize {
    int32_t Width = 0;
    int32_t Height = 0;
};

// A place in pixels, possibly between two of them.
struct WindowPlace {
    double Left = 0;
    double Top = 0;
    bool operator==(const WindowPlace&) const = default;
};

// One way of sliding in.
struct SlideIn {
    Point Step;        // of one pass, in pixels
    int32_t Passes;    // one a pixel
    bool RegionFirst;  // a pass uncovers before it moves
    bool Sleeps;       // a pass sleeps
};

// Where a window of that size stands in the end; nothing for a number that is no place.
std::optional<WindowPlace> StandingPlace(WaitPlace place, const WinRect& target, WindowSize size);

// How it comes there; no passes where it just appears.
SlideIn SlideInOf(WaitPlace place, WindowSize size);

// The part of the window that there is while it slides, shown pixels of it being uncovered.
Region UncoveredPart(WaitPlace place, WindowSize size, int32_t shown, int32_t corner);

}  // namespace vorlane
