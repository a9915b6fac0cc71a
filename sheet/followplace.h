// Where the window stands that follows the thumb of the sheet's bar, and into which corner it closes.
#pragma once

#include "platform/geometry.h"
#include "sheet/types.h"

#include <cstdint>

namespace vorlane {

struct FollowPlace {
    int16_t PlaceCode;  // as FrmScroll takes it
    Box Pixels;         // of the screen
    bool operator==(const FollowPlace&) const = default;
};

// sheet: the sheet's rectangle on the screen. width: that of the window, which is 0.76 of it high. barWidth, barHeight:
// of the sheet's bar.
FollowPlace PlaceFollowWindow(ScrollDirectionType direction, ScrollWindowPosType place, const WinRect& sheet,
                              int16_t width, float barWidth, float barHeight);

}  // namespace vorlane
