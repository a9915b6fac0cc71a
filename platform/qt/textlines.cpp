#include "platform/qt/textlines.h"

#include <utility>

#include <QTextOption>

namespace vorlane {

namespace {

constexpr double kEndless = 1 << 20;

// A line of the layout, which breaks by itself at width.
QTextLine NextLine(QTextLayout& layout, double width) {
    QTextLine line = layout.createLine();
    if (line.isValid()) line.setLineWidth(width);
    return line;
}

}  // namespace

TextLine::TextLine(const QString& text, const QFont& font) : layout_(std::make_unique<QTextLayout>(text, font)) {
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    layout_->setTextOption(option);
    layout_->setCacheEnabled(true);
    layout_->beginLayout();
    NextLine(*layout_, kEndless);
    layout_->endLayout();
}

void TextLine::Paint(QPainter& painter, QPointF start) const {
    layout_->draw(&painter, start - QPointF(0, layout_->lineAt(0).ascent()));
}

TextLine ElidedLine(const QString& text, const QFont& font, const QFontMetricsF& metrics, double width) {
    QString whole = text;
    whole.replace(QLatin1Char('\n'), QLatin1Char(' '));
    TextLine line(whole, font);
    if (line.Width() <= width) return line;
    return {metrics.elidedText(whole, Qt::ElideRight, width), font};
}

std::vector<TextLine> WrappedLines(const QString& text, const QFont& font, const QFontMetricsF& metrics, double width,
                                   int count) {
    std::vector<TextLine> lines;
    if (!text.contains(QLatin1Char('\n'))) {
        TextLine line(text, font);
        if (line.Width() <= width) {
            lines.push_back(std::move(line));
            return lines;
        }
    }
    QString paragraphs = text;
    paragraphs.replace(QLatin1Char('\n'), QChar::LineSeparator);
    QTextLayout layout(paragraphs, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    for (QTextLine line = NextLine(layout, width); line.isValid(); line = NextLine(layout, width)) {
        const QString rest = paragraphs.mid(line.textStart());
        if (static_cast<int>(lines.size()) + 1 == count) {
            lines.push_back(ElidedLine(rest.simplified(), font, metrics, width));
            break;
        }
        lines.emplace_back(rest.left(line.textLength()).trimmed(), font);
    }
    layout.endLayout();
    return lines;
}

}  // namespace vorlane
