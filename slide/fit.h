// Sizes of pictures: how large a picture shows in an area, and how large its thumbnail is. Pure arithmetic in pixels;
// results are stored as Singles at every step.
#pragma once

#include <cstdint>

namespace vorlane {

struct PictureSize {
    float Width = 0;
    float Height = 0;
    bool operator==(const PictureSize&) const = default;
};

// A picture area's size; it may be negative.
struct AreaSize {
    int64_t Width = 0;
    int64_t Height = 0;
};

struct FitRules {
    bool FillArea = false;    // enlarge beyond the picture's own size
    bool Substitute = false;  // the picture keeps its own size where it fits, whatever FillArea says
};

// Fits a picture into area with its aspect kept and puts the result, in whole pixels, into fit. Fails with
// DivisionByZero() for a picture without width, and for one without height in an area of negative height; fit then
// holds what was computed so far.
void FitPicture(PictureSize& fit, const PictureSize& picture, const AreaSize& area, const FitRules& rules);

// The size of a thumbnail whose longest side is size; a positive side is at least 1. A negative size gives
// negative sides. Fails with DivisionByZero() for a picture without width, and under a negative size without height.
PictureSize FitThumbnail(const PictureSize& picture, int16_t size);

}  // namespace vorlane
