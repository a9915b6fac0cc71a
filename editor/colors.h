// Colours between those of a palette.
#pragma once

#include <QColor>

namespace vorlane::editor {

// So many percent of one colour in another.
QColor Mixed(const QColor& color, const QColor& into, int percent);

}  // namespace vorlane::editor
