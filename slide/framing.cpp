#include "slide/framing.h"

#include "platform/numbers.h"

#include <algorithm>

namespace vorlane {

uint8_t FrameThickness(DiapoBorderStyle style) {
    switch (style) {
        case DiapoBorderStyle::BorderSunken:
        case DiapoBorderStyle::BorderRaised:
        case DiapoBorderStyle::FlatBackColor:
            return 1;
        case DiapoBorderStyle::BorderSunkenDouble:
        case DiapoBorderStyle::BorderRaisedDouble:
            return 2;
        case DiapoBorderStyle::BorderNone:
            break;
    }
    return 0;
}

DiapoBorderStyle InvertedStyle(DiapoBorderStyle style) {
    switch (style) {
        case DiapoBorderStyle::BorderSunken:
            return DiapoBorderStyle::BorderRaised;
        case DiapoBorderStyle::BorderRaised:
            return DiapoBorderStyle::BorderSunken;
        case DiapoBorderStyle::BorderSunkenDouble:
            return DiapoBorderStyle::BorderRaisedDouble;
        case DiapoBorderStyle::BorderRaisedDouble:
            return DiapoBorderStyle::BorderSunkenDouble;
        case DiapoBorderStyle::BorderNone:
        case DiapoBorderStyle::FlatBackColor:
            break;
    }
    return style;
}

FrameColors ColorsOf(bool raised) {
    const FrameColors sunken{SystemColor::ButtonShadow, SystemColor::ButtonHighlight, SystemColor::DarkShadow,
                             SystemColor::Light};
    if (!raised) return sunken;
    return {sunken.OuterBottomRight, sunken.OuterTopLeft, sunken.InnerBottomRight, sunken.InnerTopLeft};
}

uint8_t ShadowLines(const FrameBox& box, uint8_t shadowWidth) {
    const uint8_t tenth = ToByte(Min(0.1 * (box.X2 - box.X1), 0.1 * (box.Y2 - box.Y1)));
    return std::max<uint8_t>(1, std::min(tenth, shadowWidth));
}

ShadowFade::ShadowFade(const Rgb& shadow, const Rgb& background, uint8_t lines)
    : red_(shadow.Red), green_(shadow.Green), blue_(shadow.Blue) {
    const auto step = [lines](uint8_t from, uint8_t to) { return ToInt16(static_cast<double>(to - from) / lines); };
    redStep_ = step(shadow.Red, background.Red);
    greenStep_ = step(shadow.Green, background.Green);
    blueStep_ = step(shadow.Blue, background.Blue);
}

void ShadowFade::Advance() {
    red_ += redStep_;
    green_ += greenStep_;
    blue_ += blueStep_;
}

}  // namespace vorlane
