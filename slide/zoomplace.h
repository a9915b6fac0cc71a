// Where a zoom window stands: arithmetic on values, in screen pixels.
#pragma once

#include "platform/geometry.h"

namespace vorlane {

// The slide's rectangle, grown on the sides towards which the pointer has moved; it never shrinks. Fails with
// Overflow().
WinRect GrownTowards(const WinRect& slide, Point start, Point pointer);

}  // namespace vorlane
