// How a text breaks into the lines of a label.
#pragma once

#include <QFontMetricsF>
#include <QString>
#include <QStringList>

namespace vorlane {

// One line, its end replaced by an ellipsis when it is wider than width; line breaks count as blanks. Pixels.
QString ElidedLine(const QString& text, const QFontMetricsF& metrics, double width);

// At most count lines of at most that width, broken at words, or inside of a word that is too long for a line. The
// last one ends in an ellipsis when there is more text. Pixels; count 1 or more.
QStringList WrappedLines(const QString& text, const QFont& font, const QFontMetricsF& metrics, double width, int count);

}  // namespace vorlane
