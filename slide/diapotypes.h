// The slide's enumerations. Their numbers are fixed: property bags store them, and any 32-bit number may come back.
#pragma once

#include <cstdint>

namespace vorlane {

enum class DiapoBorderStyle : int32_t {
    BorderNone = 0,          // nothing
    BorderSunken = 1,        // one line, dark at the top left, light at the bottom right
    BorderRaised = 2,        // one line, light at the top left, dark at the bottom right
    BorderSunkenDouble = 3,  // as sunken, with a second line inside
    BorderRaisedDouble = 4,  // as raised, with a second line inside
    FlatBackColor = 5,       // one rectangle in the frame's own colour
};

// Which of the two thumbnail sizes applies; every number but 0 counts as high.
enum class DiapoThumbResolution : int32_t { ThumbResolutionNormal = 0, ThumbResolutionHigh = 1 };

// The picture that a slide asks its owner for.
enum class DiapoPictureIndex : int32_t {
    PicSubstitute = 0,  // for a file that can't be shown
    PicFileKind1 = 1,
    PicFileKind2 = 2,
    PicFileKind3 = 3,
    PicFileKind5 = 4,
    PicBtPlay = 5,  // BtPlay of a slide that is given music, and of a picture file shown with the tools row
    PicBtComment = 6,
    PicBtText = 7,
    PicBtPlayPlain = 8,  // BtPlay of any other file when it is shown
};

}  // namespace vorlane
