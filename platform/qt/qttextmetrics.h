// QtTextMetrics: text sizes of the fonts that the painter draws with. A font is resolved once, then remembered.
#pragma once

#include "platform/desktop.h"

#include <deque>

#include <QFont>
#include <QFontMetricsF>

namespace vorlane {

class QtTextMetrics final : public TextMetrics {
public:
    // A font as Qt knows it, with its measures.
    struct Resolved {
        Font font;
        QFont qfont;
        QFontMetricsF metrics;
    };

    // The answer stays good until ForgetFonts, or until very many other fonts have been asked for.
    const Resolved& Resolve(const Font& font) const;
    // For when the program's fonts have changed.
    void ForgetFonts() { fonts_.clear(); }

    // The widest line.
    float TextWidth(const Font& font, std::string_view text) const override;
    // Line height, in whole pixels, times the number of lines; of an empty text one line.
    float TextHeight(const Font& font, std::string_view text) const override;

private:
    mutable std::deque<Resolved> fonts_;
};

}  // namespace vorlane
