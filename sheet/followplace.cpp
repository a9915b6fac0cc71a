#include "sheet/followplace.h"

#include "platform/numbers.h"

namespace vorlane {

namespace {

constexpr double kHeightByWidth = 0.76;
constexpr float kGap = 2;  // beside the bar

constexpr int16_t kTopRight = 2;
constexpr int16_t kBottomRight = 3;
constexpr int16_t kBottomLeft = 4;

}  // namespace

FollowPlace PlaceFollowWindow(ScrollDirectionType direction, ScrollWindowPosType place, const WinRect& sheet,
                              int16_t width, float barWidth, float barHeight) {
    const bool inside = place == ScrollWindowPosType::swpInside;
    const auto wide = static_cast<float>(width);
    const auto high = static_cast<float>(ToInt16(width * kHeightByWidth));
    if (direction == ScrollDirectionType::sdVertical) {
        const auto right = static_cast<float>(sheet.Right);
        const float left = inside ? right - barWidth - wide - kGap : right;
        return {inside ? kBottomRight : kBottomLeft, {left, static_cast<float>(sheet.Top), wide, high}};
    }
    const auto bottom = static_cast<float>(sheet.Bottom);
    const float top = inside ? bottom - barHeight - high - kGap : bottom;
    return {inside ? kBottomRight : kTopRight, {static_cast<float>(sheet.Left), top, wide, high}};
}

}  // namespace vorlane
