// How a text breaks into the lines of a label, each of them shaped once for measuring and painting.
#pragma once

#include <memory>
#include <vector>

#include <QFontMetricsF>
#include <QPointF>
#include <QString>
#include <QTextLayout>

class QPainter;

namespace vorlane {

class TextLine {
public:
    TextLine(const QString& text, const QFont& font);

    QString Text() const { return layout_->text(); }
    // Pixels.
    double Width() const { return layout_->lineAt(0).naturalTextWidth(); }
    // In the painter's pen. start: on the base line.
    void Paint(QPainter& painter, QPointF start) const;

private:
    std::unique_ptr<QTextLayout> layout_;
};

// One line, its end replaced by an ellipsis when it is wider than width; line breaks count as blanks. Pixels.
TextLine ElidedLine(const QString& text, const QFont& font, const QFontMetricsF& metrics, double width);

// At most count lines of at most that width, broken at words, or inside of a word that is too long for a line. The
// last one ends in an ellipsis when there is more text. Pixels; count 1 or more.
std::vector<TextLine> WrappedLines(const QString& text, const QFont& font, const QFontMetricsF& metrics, double width,
                                   int count);

}  // namespace vorlane
