// Frames and shadows as arithmetic: how thick a border style is, which colours its lines take, how a shadow fades.
#pragma once

#include "platform/color.h"
#include "slide/diapotypes.h"

#include <cstdint>

namespace vorlane {

// The box of a frame, in pixels. Its right and bottom lines stand one pixel before X2 and Y2, where its shadow begins.
// Of a sunken or raised frame the top line ends on X2 all the same, and both upright lines on Y2.
struct FrameBox {
    double X1 = 0;
    double Y1 = 0;
    double X2 = 0;
    double Y2 = 0;
};

// Lines of a frame: 0, 1 or 2.
uint8_t FrameThickness(DiapoBorderStyle style);

// Sunken for raised and raised for sunken; other styles stay.
DiapoBorderStyle InvertedStyle(DiapoBorderStyle style);

// The colours of a sunken or raised frame, top left and bottom right of the outer and of the inner line.
struct FrameColors {
    SystemColor OuterTopLeft;
    SystemColor OuterBottomRight;
    SystemColor InnerTopLeft;
    SystemColor InnerBottomRight;
};
FrameColors ColorsOf(bool raised);

// Lines of the shadow of a frame: a tenth of the frame's shorter side, at most shadowWidth, at least 1. Fails with
// Overflow() for a frame turned inside out.
uint8_t ShadowLines(const FrameBox& box, uint8_t shadowWidth);

// A shadow's colours, from its inner edge outwards: each line adds the steps to the colour of the line before.
class ShadowFade {
public:
    ShadowFade(const Rgb& shadow, const Rgb& background, uint8_t lines);

    // Fails with InvalidCall() where the rounded steps have led below 0.
    OLE_COLOR Color() const { return RGB(red_, green_, blue_); }
    void Advance();

private:
    int32_t red_, green_, blue_;
    int16_t redStep_, greenStep_, blueStep_;
};

}  // namespace vorlane
