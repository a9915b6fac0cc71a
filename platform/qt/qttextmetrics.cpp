#include "platform/qt/qttextmetrics.h"

#include "platform/qt/colors.h"

#include <algorithm>
#include <cmath>

#include <QString>
#include <QStringList>

namespace vorlane {

namespace {

constexpr size_t kRemembered = 32;

}  // namespace

const QtTextMetrics::Resolved& QtTextMetrics::Resolve(const Font& font) const {
    const auto known =
        std::find_if(fonts_.begin(), fonts_.end(), [&](const Resolved& resolved) { return resolved.font == font; });
    if (known != fonts_.end()) return *known;
    if (fonts_.size() == kRemembered) fonts_.pop_front();
    const QFont qfont = ToQFont(font);
    return fonts_.emplace_back(Resolved{font, qfont, QFontMetricsF(qfont)});
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
