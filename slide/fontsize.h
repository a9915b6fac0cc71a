// The fonts that a slide takes.
#pragma once

#include "platform/failure.h"
#include "platform/font.h"

namespace vorlane {

inline constexpr float kLargestFont = 2160;  // points

// Gives the font back. Fails with InvalidProperty() for one of no size, and for one larger than the largest.
inline const Font& WithUsableSize(const Font& font) {
    if (font.Size > 0 && font.Size <= kLargestFont) return font;
    throw failures::InvalidProperty();
}

}  // namespace vorlane
