// The arithmetic of a drag over the sheet: rows and the halves of a slide, the row that opens, the hovered slide that
// gives way, the place of the insertion mark, where the edges scroll. Pure functions on values; lengths are pixels.
#pragma once

#include "platform/geometry.h"
#include "sheet/types.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace vorlane::droprow {

inline constexpr int16_t kNoRow = 0;

// Rows count from 1. columns is 1 or more.
int16_t RowOf(int32_t slide, int16_t columns);

// The slides of a row of which there are so many in all; none (Last below First) for a row that is not there.
struct Range {
    int32_t First;
    int32_t Last;
    bool operator==(const Range&) const = default;
};
Range SlidesOf(int16_t row, int16_t columns, int32_t slides);

// The free room of a row, at most 35; negative where the slides need more than there is.
int16_t Gap(float areaWidth, float slideWidth, int16_t columns);

// Whether a place in a slide is in its right half; the middle is in the left one.
constexpr bool InRightHalf(float x, float slideWidth) {
    return x > slideWidth / 2;
}

// A slide on its row: where it stands, and where its home is.
struct Standing {
    float Left = 0;
    float Width = 0;
    float Col = 0;
};

// One step of a row that opens: the first count slides go to the left, the others to the right, two pixels each, none
// beyond the row's ends (0 and end) nor over its neighbour, and none the other way.
void StepApart(std::vector<Standing>& row, size_t count, float end);
// One step of a row that closes: each slide goes two pixels towards its home.
void StepHome(std::vector<Standing>& row);

// Whether the row is open somewhere else than beside the slide at index: one before it has gone to the right, or one
// behind it to the left.
bool OpenElsewhere(const std::vector<Standing>& row, size_t index);

// The places through which a slide gives way to the pointer over its left or its right half, four pixels apart, the
// one where it stands included. None where it has given way already.
std::vector<float> GiveWayRight(const Standing& slide, float gap);
std::vector<float> GiveWayLeft(const Standing& slide, float gap, float markWidth);

// Left of the mark: in the middle of the free room between two neighbours of a row, before its first slide (from 0)
// or behind its last one (up to areaWidth). Without any neighbour at 0.
float MarkLeft(const std::optional<Standing>& before, const std::optional<Standing>& after, float markWidth,
               float areaWidth);

// Which way a sheet scrolls with the pointer there: -1 back, 1 on, 0 not at all. sheet and pointer are on the screen.
// Scrolling begins beyond the margin inside the sheet, and ends half a slide outside of it at the left and the top, a
// whole slide at the right and the bottom.
int EdgeScroll(const WinRect& sheet, Point pointer, int16_t margin, float slideWidth, float slideHeight,
               ScrollDirectionType direction);

}  // namespace vorlane::droprow
