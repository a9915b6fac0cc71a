#include "sheet/grid.h"

#include "platform/failure.h"
#include "platform/numbers.h"

namespace vorlane::grid {

namespace {

double Quotient(double dividend, double divisor) {
    if (divisor == 0) throw failures::DivisionByZero();
    return dividend / divisor;
}

bool Within(float value, float start, float length) {
    return value >= start && value <= start + length;
}

}  // namespace

Area ComputeArea(const Frame& frame, int16_t margin) {
    const bool vertical = frame.Direction == ScrollDirectionType::sdVertical;
    const bool horizontal = frame.Direction == ScrollDirectionType::sdHorizontal;
    const auto edge = static_cast<float>(margin);
    return {edge, edge,
            frame.ScaleWidth - ((vertical ? frame.BarWidth : 0) + 2 * edge) + (vertical ? 0 : frame.SlideWidth),
            frame.ScaleHeight - ((horizontal ? frame.BarWidth : 0) + 2 * edge) + (vertical ? frame.SlideHeight : 0)};
}

int16_t CountThatFit(float length, float size, int16_t gap) {
    const double step = static_cast<double>(size) + gap;
    const int16_t count = ToInt16(Max(Int(Quotient(length, step)), 1));
    const double rest = length - step * count;
    return size <= rest ? ToInt16(count + 1) : count;
}

int16_t PoolSize(int16_t columns, int16_t rows) {
    return ToInt16(static_cast<double>(columns) * rows);
}

Spread ComputeSpread(const Area& area, int16_t columns, int16_t rows, double slideWidth, double slideHeight,
                     int16_t minGap, bool autoAdjust) {
    if (!autoAdjust) return {minGap, minGap, ToInt16(area.StartX), ToInt16(area.StartY)};
    const double freeX = area.AreaWidth - columns * slideWidth;
    const double freeY = area.AreaHeight - rows * slideHeight;
    return {ToInt16(Max(Int(Quotient(freeX, columns)), minGap)), ToInt16(Max(Int(Quotient(freeY, rows)), minGap)),
            ToInt16(Max(Int(Quotient(freeX, columns + 1)), area.StartX)),
            ToInt16(Max(Int(Quotient(freeY, rows + 1)), area.StartY))};
}

float BarTakesWidth(const Frame& frame) {
    return frame.Direction == ScrollDirectionType::sdVertical && frame.BarVisible ? frame.BarWidth : 0;
}

float BarTakesHeight(const Frame& frame) {
    return frame.Direction == ScrollDirectionType::sdHorizontal && frame.BarVisible ? frame.BarHeight : 0;
}

float VisibleWidth(const Frame& frame) {
    const float extra = frame.Direction == ScrollDirectionType::sdHorizontal ? frame.SlideWidth : 0;
    return extra + frame.ScaleWidth - BarTakesWidth(frame);
}

float VisibleHeight(const Frame& frame) {
    const float extra = frame.Direction == ScrollDirectionType::sdVertical ? frame.SlideHeight : 0;
    return extra + frame.ScaleHeight - BarTakesHeight(frame);
}

int16_t CellAt(const Frame& frame, int16_t columns, int16_t rows, double x, double y) {
    const double row = Int(Quotient(y, Quotient(VisibleHeight(frame), rows)));
    const double column = Int(Quotient(x, Quotient(VisibleWidth(frame), columns)));
    return ToInt16(row * columns + column);
}

bool BandTouches(const Box& band, const Box& slide) {
    const bool upright = Within(slide.Left, band.Left, band.Width) || Within(slide.Right(), band.Left, band.Width);
    const bool level = Within(slide.Top, band.Top, band.Height) || Within(slide.Bottom(), band.Top, band.Height);
    return upright && level;
}

}  // namespace vorlane::grid
