#include "platform/qt/textlines.h"

#include <QTextLayout>
#include <QTextOption>

namespace vorlane {

QString ElidedLine(const QString& text, const QFontMetricsF& metrics, double width) {
    QString line = text;
    line.replace(QLatin1Char('\n'), QLatin1Char(' '));
    return metrics.elidedText(line, Qt::ElideRight, width);
}

QStringList WrappedLines(const QString& text, const QFont& font, const QFontMetricsF& metrics, double width,
                         int count) {
    if (!text.contains(QLatin1Char('\n')) && metrics.horizontalAdvance(text) <= width) return {text};
    QString paragraphs = text;
    paragraphs.replace(QLatin1Char('\n'), QChar::LineSeparator);
    QTextLayout layout(paragraphs, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    QStringList lines;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        const QString rest = paragraphs.mid(line.textStart());
        const bool last = lines.size() + 1 == count;
        lines << (last ? ElidedLine(rest.simplified(), metrics, width) : rest.left(line.textLength()).trimmed());
        if (last) break;
    }
    layout.endLayout();
    return lines;
}

}  // namespace vorlane
