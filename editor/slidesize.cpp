#include "editor/slidesize.h"

#include <algorithm>

namespace vorlane::editor::slidesize {

namespace {

constexpr int kTextHeight = 42;

}  // namespace

QSize Of(int width) {
    const int kept = std::clamp(width, kLeast, kMost);
    return {kept, kept * 7 / 10 + kTextHeight};
}

int Percent(int width) {
    return (width * 100 + kUsual / 2) / kUsual;
}

int Larger(int width) {
    return std::min(kMost, (width / kStep + 1) * kStep);
}

int Smaller(int width) {
    return std::max(kLeast, ((width + kStep - 1) / kStep - 1) * kStep);
}

}  // namespace vorlane::editor::slidesize
