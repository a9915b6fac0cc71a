#include "interaction/autoscroll.h"

#include "platform/numbers.h"

namespace vorlane {

namespace {

struct Extent {
    int32_t From;
    int32_t Length;
};

Extent Between(int32_t start, float end) {
    const double way = static_cast<double>(end) - start;
    if (way >= 0) return {start, ToInt32(way)};
    const int32_t from = ToInt32(end);
    return {from, start - from};
}

}  // namespace

Box BandBetween(int32_t startX, int32_t startY, float x, float y) {
    const Extent level = Between(startX, x);
    const Extent upright = Between(startY, y);
    return {static_cast<float>(level.From), static_cast<float>(upright.From), static_cast<float>(level.Length),
            static_cast<float>(upright.Length)};
}

BandSide SideUnder(const BandZone& zone, Point pointer) {
    const int32_t place = zone.Vertical ? pointer.Y : pointer.X;
    const int32_t from = zone.Vertical ? zone.Sheet.Top : zone.Sheet.Left;
    const int32_t to = zone.Vertical ? zone.Sheet.Bottom : zone.Sheet.Right;
    if (place < from + zone.Margin && zone.MayScrollBack) return zone.Vertical ? BandSide::Top : BandSide::Left;
    if (place > to - zone.Margin && zone.MayScrollOn) return zone.Vertical ? BandSide::Bottom : BandSide::Right;
    return BandSide::None;
}

}  // namespace vorlane
