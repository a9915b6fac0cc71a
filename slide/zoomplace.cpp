#include "slide/zoomplace.h"

#include "platform/numbers.h"

namespace vorlane {

WinRect GrownTowards(const WinRect& slide, Point start, Point pointer) {
    const int64_t dx = int64_t{pointer.X} - start.X;
    const int64_t dy = int64_t{pointer.Y} - start.Y;
    return {ToInt32(slide.Left + Min(dx, 0)), ToInt32(slide.Top + Min(dy, 0)), ToInt32(slide.Right + Max(dx, 0)),
            ToInt32(slide.Bottom + Max(dy, 0))};
}

}  // namespace vorlane
