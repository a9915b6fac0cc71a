// Scale modes and the one conversion between them. All of it assumes a square logical pixel of 1/96 inch; a desktop
// with denser pixels scales when it paints.
#pragma once

#include <cstdint>

namespace vorlane {

enum class ScaleMode : int16_t {
    Twips = 1,   // 1/1440 inch
    Points = 2,  // 1/72 inch
    Pixels = 3,  // 1/96 inch
    Inches = 5,
    Millimeters = 6,
    Centimeters = 7,
    HiMetric = 8,  // 1/100 millimetre
};

// Twips in one pixel, on both axes.
inline constexpr float kTwipsPerPixel = 15;

// value in another scale, as a Single. Fails with InvalidCall() on a mode that is not listed.
float Rescale(double value, ScaleMode from, ScaleMode to);

}  // namespace vorlane
