// The arithmetic of the grid: how many cells fit, the gaps between them, where the first one stands, which cell lies
// under a point. Pure functions on values; the sheet holds their results. All lengths are pixels.
//
// The grid has one row (or column) more than the control shows, so that scrolling finds a filled row ready.
#pragma once

#include "platform/geometry.h"
#include "sheet/types.h"

#include <cstdint>

namespace vorlane::grid {

// What the grid is computed from.
struct Frame {
    float ScaleWidth = 0;  // inner size of the control
    float ScaleHeight = 0;
    float BarWidth = 0;  // size of the scroll bar
    float BarHeight = 0;
    bool BarVisible = false;
    ScrollDirectionType Direction = ScrollDirectionType::sdVertical;
    float SlideWidth = 0;  // size of slide 0, the reference for all
    float SlideHeight = 0;
};

// Where the cells go, the extra row or column included.
struct Area {
    float StartX = 0;  // left and top of the first cell before spreading
    float StartY = 0;
    float AreaWidth = 0;
    float AreaHeight = 0;
};

// The gaps between the cells and the place of the first one. The gap divides the free room by the count, the first
// place by the count plus one, so that the left edge and the gaps differ.
struct Spread {
    int16_t MargeX = 0;
    int16_t MargeY = 0;
    int16_t FirstLeft = 0;
    int16_t FirstTop = 0;
};

// Takes the bar's width off both axes, also off the height when the bar lies at the bottom.
Area ComputeArea(const Frame& frame, int16_t margin);

// How many slides of that size fit into length with gaps of at least gap, at least 1; the last one needs no gap
// behind it. Fails with DivisionByZero() when size + gap is 0, with Overflow() beyond 16 bits.
int16_t CountThatFit(float length, float size, int16_t gap);

// Columns times rows. Fails with Overflow() beyond 16 bits.
int16_t PoolSize(int16_t columns, int16_t rows);

// Gaps of minGap and the area's start; with autoAdjust the free room is spread. Fails with DivisionByZero() when there
// is no column or no row to spread over, with Overflow() beyond 16 bits.
Spread ComputeSpread(const Area& area, int16_t columns, int16_t rows, double slideWidth, double slideHeight,
                     int16_t minGap, bool autoAdjust);

// What a bar that shows takes off the width, or off the height.
float BarTakesWidth(const Frame& frame);
float BarTakesHeight(const Frame& frame);

// The size of what shows, the extra column or row included.
float VisibleWidth(const Frame& frame);
float VisibleHeight(const Frame& frame);

// The cell under a point; cells are equal parts of the visible size. Points outside give indices outside the grid.
// Fails with DivisionByZero() when a cell has no extent, with Overflow() beyond 16 bits.
int16_t CellAt(const Frame& frame, int16_t columns, int16_t rows, double x, double y);

// Whether one of the slide's upright edges and one of its level edges lie in the band, bounds included. A band that
// lies wholly inside a slide does not touch it.
bool BandTouches(const Box& band, const Box& slide);

}  // namespace vorlane::grid
