#include "editor/colors.h"

namespace vorlane::editor {

QColor Mixed(const QColor& color, const QColor& into, int percent) {
    const auto mix = [percent](int a, int b) { return (a * percent + b * (100 - percent)) / 100; };
    return {mix(color.red(), into.red()), mix(color.green(), into.green()), mix(color.blue(), into.blue())};
}

}  // namespace vorlane::editor
