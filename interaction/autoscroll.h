// The arithmetic of the rubber band: its rectangle, and the side of the sheet at which it scrolls. Pure functions on
// values, in pixels.
#pragma once

#include "platform/geometry.h"

#include <cstdint>

namespace vorlane {

// From an anchor to the mouse, in whole pixels. Fails with Overflow() beyond 32 bits.
Box BandBetween(int32_t startX, int32_t startY, float x, float y);

enum class BandSide : uint8_t { None, Left, Right, Top, Bottom };

// The side in whose zone, margin wide inside the sheet or anywhere beyond it, the pointer is. A sheet scrolls on one
// axis, and to a side only where its bar may still move there.
struct BandZone {
    WinRect Sheet;  // on the screen, like the pointer
    int32_t Margin = 0;
    bool Vertical = true;
    bool MayScrollBack = false;
    bool MayScrollOn = false;
};
BandSide SideUnder(const BandZone& zone, Point pointer);

}  // namespace vorlane
