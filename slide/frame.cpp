// The slide's frames and shadow on its surface.
#include "slide/ediapolight.h"

namespace vorlane {

// Returns how many lines thick the frame is.
uint8_t eDiapoLight::DrawFrame(DiapoBorderStyle style, const FrameBox& box, OLE_COLOR color, bool withShadow) {
    uint8_t thickness = 1;
    switch (style) {
        case DiapoBorderStyle::BorderNone:
            thickness = 0;
            break;
        case DiapoBorderStyle::FlatBackColor:
            Surface().LineBox(box.X1, box.Y1, box.X2 - 1, box.Y2 - 1, color);
            break;
        case DiapoBorderStyle::BorderSunken:
        case DiapoBorderStyle::BorderRaised:
        case DiapoBorderStyle::BorderSunkenDouble:
        case DiapoBorderStyle::BorderRaisedDouble:
            DrawLines(style, box);
            thickness = FrameThickness(style);
            break;
    }
    if (withShadow) DrawShadow(box, style == DiapoBorderStyle::BorderNone);
    return thickness;
}

void eDiapoLight::DrawLines(DiapoBorderStyle style, const FrameBox& box) {
    const bool raised = style == DiapoBorderStyle::BorderRaised || style == DiapoBorderStyle::BorderRaisedDouble;
    const FrameColors colors = ColorsOf(raised);
    const auto line = [this](double x1, double y1, double x2, double y2, SystemColor color) {
        Surface().Line(x1, y1, x2, y2, FromSystem(color));
    };
    const auto [x1, y1, x2, y2] = box;
    line(x1, y1, x2, y1, colors.OuterTopLeft);
    line(x1, y1, x1, y2, colors.OuterTopLeft);
    line(x2 - 1, y1, x2 - 1, y2, colors.OuterBottomRight);
    line(x1, y2 - 1, x2 - 1, y2 - 1, colors.OuterBottomRight);
    if (FrameThickness(style) < 2) return;
    line(x1 + 1, y1 + 1, x2 - 2, y1 + 1, colors.InnerTopLeft);
    line(x1 + 1, y1 + 1, x1 + 1, y2 - 2, colors.InnerTopLeft);
    line(x2 - 2, y1 + 1, x2 - 2, y2 - 1, colors.InnerBottomRight);
    line(x1 + 1, y2 - 2, x2 - 2, y2 - 2, colors.InnerBottomRight);
}

// The shadow lies outside the frame and fades into the ground, one pixel further down and right with each line.
void eDiapoLight::DrawShadow(const FrameBox& box, bool frameless) {
    const uint8_t lines = ShadowLines(box, settings_.ShadowWidth);
    const OLE_COLOR background = settings_.Selected ? settings_.BackColorSelected : ground_.Normal;
    ShadowFade fade(utilities_.ColorToRgb(settings_.ShadowColor), utilities_.ColorToRgb(background), lines);
    const int32_t inset = frameless ? 0 : 1;
    for (int32_t i = 0; i < lines; ++i) {
        const OLE_COLOR color = fade.Color();
        Surface().LineBox(box.X2 + i, box.Y1 + i + inset, box.X2 + i, box.Y2 + i, color);
        Surface().LineBox(box.X1 + i + inset, box.Y2 + i, box.X2 + i, box.Y2 + i, color);
        fade.Advance();
    }
}

}  // namespace vorlane
