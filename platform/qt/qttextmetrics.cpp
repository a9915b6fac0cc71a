#include "platform/qt/qttextmetrics.h"

#include "platform/qt/colors.h"

#include <algorithm>
#include <cmath>

#include <QString>
#include <QStringList>
#include <QTextLayout>

namespace vorlane {

namespace {

constexpr size_t kRemembered = 32;         // fonts
constexpr size_t kRememberedTexts = 1024;  // of a font
constexpr double kWidest = 1 << 20;

bool IsPlain(const Font& font, const std::string& text) {
    const auto isControl = [](char unit) { return unit >= 0 && unit < ' '; };
    return !font.Underline && !font.Strikethrough && std::none_of(text.begin(), text.end(), isControl);
}

// From its left end on the baseline.
QList<QGlyphRun> Laid(const QString& text, const QFont& font) {
    QTextLayout layout(text, font);
    layout.setTextOption(QTextOption(Qt::AlignLeft | Qt::AlignAbsolute));
    layout.beginLayout();
    QTextLine line = layout.createLine();
    if (line.isValid()) line.setLineWidth(kWidest);
    layout.endLayout();
    QList<QGlyphRun> runs = layout.glyphRuns();
    const double ascent = line.isValid() ? line.ascent() : 0;
    for (QGlyphRun& run : runs) {
        QList<QPointF> places = run.positions();
        for (QPointF& place : places) place.ry() -= ascent;
        run.setPositions(places);
    }
    return runs;
}

}  // namespace

const QtTextMetrics::Resolved& QtTextMetrics::Resolve(const Font& font) const {
    const auto known =
        std::find_if(fonts_.begin(), fonts_.end(), [&](const Resolved& resolved) { return resolved.font == font; });
    if (known != fonts_.end()) return *known;
    if (fonts_.size() == kRemembered) fonts_.pop_front();
    const QFont qfont = ToQFont(font);
    return fonts_.emplace_back(Resolved{font, qfont, QFontMetricsF(qfont)});
}

const QList<QGlyphRun>* QtTextMetrics::Glyphs(const Resolved& font, const std::string& text) const {
    if (!IsPlain(font.font, text)) return nullptr;
    const auto known = font.glyphs.find(text);
    if (known != font.glyphs.end()) return &known->second;
    if (font.glyphs.size() == kRememberedTexts) font.glyphs.clear();
    return &font.glyphs.emplace(text, Laid(QString::fromStdString(text), font.qfont)).first->second;
}

float QtTextMetrics::TextWidth(const Font& font, std::string_view text) const {
    const QFontMetricsF& metrics = Resolve(font).metrics;
    double widest = 0;
    const QString whole = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    for (const QString& line : whole.split(QLatin1Char('\n')))
        widest = std::max(widest, metrics.horizontalAdvance(line));
    return static_cast<float>(widest);
}

float QtTextMetrics::TextHeight(const Font& font, std::string_view text) const {
    const auto breaks = std::count(text.begin(), text.end(), '\n');
    return static_cast<float>(std::ceil(Resolve(font).metrics.height()) * static_cast<double>(breaks + 1));
}

}  // namespace vorlane
