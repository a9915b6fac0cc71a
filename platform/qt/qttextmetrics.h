// QtTextMetrics: text sizes of the fonts that the painter draws with. A font is resolved once, then remembered.
#pragma once

#include "platform/desktop.h"

#include <deque>
#include <string>
#include <unordered_map>

#include <QFont>
#include <QFontMetricsF>
#include <QGlyphRun>
#include <QList>

namespace vorlane {

class QtTextMetrics final : public TextMetrics {
public:
    // A font as Qt knows it, with its measures.
    struct Resolved {
        Font font;
        QFont qfont;
        QFontMetricsF metrics;
        mutable std::unordered_map<std::string, QList<QGlyphRun>> glyphs{};
    };

    // The answer stays good until ForgetFonts, or until very many other fonts have been asked for.
    const Resolved& Resolve(const Font& font) const;
    // The glyphs of a line of text in a font of Resolve, from its left end on the baseline; they paint what the text
    // would. nullptr for one that is to be painted as text. Laid out once, then remembered for as long as the font.
    const QList<QGlyphRun>* Glyphs(const Resolved& font, const std::string& text) const;
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
