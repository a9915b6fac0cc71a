// The enumerations of the contact sheet. Their numbers are fixed: property bags and hosts store them. A value that is
// not listed may come in by way of a property bag; each use says what it then means.
#pragma once

#include <cstdint>

namespace vorlane {

// Which way the sheet scrolls. Whatever is not sdVertical scrolls sideways; whatever is not sdHorizontal has rows.
enum class ScrollDirectionType : int32_t {
    sdHorizontal = 1,  // one row, the bar at the bottom
    sdVertical = 2,    // rows, the bar at the right
};

enum class SortSensType : int32_t { ssNone = 0, ssAscending = 1, ssDescending = 2 };

// Which of the sheet's own lists is bound when the host gives none. Any other value acts as lmList.
enum class ListeModeType : int32_t { lmFileList = 0, lmList = 1 };

// What a sort key holds besides the name: a sum of these.
enum SortArgsType : int32_t { saDateFirst = 2, saDateSecond = 4, saSize = 8, saExtension = 16 };

// Of OLEDragMode: the sheet drags by itself. Every other mode leaves drags to the host.
inline constexpr int16_t kAutomaticDrag = 1;
// Of OLEDropMode: 1 takes what the sheet itself drags, 2 takes all; what is not taken goes to the host.
inline constexpr int16_t kManualDrop = 1;
inline constexpr int16_t kAutomaticDrop = 2;

// Where the window that follows the thumb stands.
enum class ScrollWindowPosType : int32_t {
    swpOutside = 0,  // beyond the sheet's edge
    swpInside = 1,   // within it, beside the bar
};

}  // namespace vorlane
