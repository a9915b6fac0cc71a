#include "editor/stripscale.h"

#include <algorithm>
#include <cmath>

namespace vorlane::editor {

namespace {

constexpr double kNarrowest = 1;

}  // namespace

StripScale ScaleOf(const SheetSight& sight) {
    const double left = std::max(sight.left, 0.0);
    const double each = sight.sideways ? sight.pitch : (sight.width - 2 * left) / std::max(sight.cells, 1);
    return {sight.first, static_cast<int>(std::lround(left)), std::max(each, kNarrowest), sight.sideways};
}

int ItemAt(double x, const StripScale& scale, int count) {
    const double slides = std::floor((x - scale.left) / scale.slideWidth);
    const double item = std::clamp(scale.startPoint + slides, 0.0, std::max(count - 1.0, 0.0));
    return count == 0 ? -1 : static_cast<int>(item);
}

int SlidesOf(int seconds, int exposition) {
    const int each = std::max(exposition, 1);
    return std::max(1, (seconds + each - 1) / each);
}

}  // namespace vorlane::editor
