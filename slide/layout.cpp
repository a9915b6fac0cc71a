// The layout: it computes the whole slide from its outer size and draws it. A statement that fails leaves the value
// that it would have set as it was, and the next one runs.
#include "platform/numbers.h"
#include "platform/scale.h"
#include "slide/ediapolight.h"

namespace vorlane {

namespace {

// A picture shown smaller by more than this many pixels counts as reduced.
constexpr float kReduced = 10;

FrameBox BoxOf(const Box& box) {
    return {box.Left, box.Top, double{box.Left} + box.Width, double{box.Top} + box.Height};
}

FrameBox BoxOf(const WinRect& rect) {
    return {double(rect.Left), double(rect.Top), double(rect.Right), double(rect.Bottom)};
}

FrameBox Grown(const FrameBox& box, double by) {
    return {box.X1 - by, box.Y1 - by, box.X2 + by, box.Y2 + by};
}

}  // namespace

struct eDiapoLight::Measures {
    uint8_t Border = 0;     // thickness of the picture frame
    uint8_t BorderExt = 0;  // thickness of the outer frame
    uint8_t Gap = 0;        // from the picture frame to the picture, in a double frame
    int32_t Shadow = 0;     // room for the shadow
};

void eDiapoLight::Layout() {
    if ((settings_.NoResize && Ambient().UserMode) || !life_.Ready) return;
    Measures measures;
    MeasureTexts();
    ComputeArea(measures);
    Attempt([&] { Surface().Cls(); });
    PlaceChildren(measures);
    PlacePicture(measures);
    PlacePlayButton();
    if (settings_.BorderStyleExt == DiapoBorderStyle::BorderNone && !settings_.ShowShadow) {
        Attempt([&] {
            if (!settings_.Selected) return;
            Surface().LineFilledBox(0, 0, ScaleWidth(), ScaleHeight(), settings_.BackColorSelected);
        });
        return;
    }
    DrawFrames(measures);
    ShowZoomCorner();
    ShowGauge(measures);
}

// Without a name line, the caption is measured in the name's font.
void eDiapoLight::MeasureTexts() {
    const auto lineHeight = [&] { return Desktop().metrics.TextHeight(Surface().Font(), "Wq"); };
    Surface().SetFont(LblTop.Font());
    if (settings_.ShowFileName) {
        Attempt([&] { LblTop.SetHeight(lineHeight()); });
        Surface().SetFont(LblBottom.Font());
    } else {
        Attempt([&] { LblTop.SetHeight(0); });
    }
    Attempt([&] { LblBottom.SetHeight(lineHeight() * settings_.CaptionBottomNbLig); });
    if (!settings_.ShowDiapoTools) return;
    Attempt([&] { LblBottom.SetHeight(LblBottom.Height() + BtPlay.Height() + 1); });
}

// The outer frame counts at the left and not at the top, the shadow twice in the width and once in the height; the
// margin joins in when the picture is placed.
void eDiapoLight::ComputeArea(Measures& measures) {
    const Settings& set = settings_;
    measures.Border = FrameThickness(set.BorderStyle);
    measures.BorderExt = FrameThickness(set.BorderStyleExt);
    if (set.BorderStyle != DiapoBorderStyle::BorderNone && set.BorderDouble) {
        Attempt([&] { measures.Gap = ToByte(set.BorderSize + measures.Border); });
    }
    measures.Shadow = set.ShowShadow ? set.ShadowWidth : 0;

    const int32_t margins = set.ImageMarge + (set.ShowShadow ? 0 : set.ImageMarge);
    const int32_t outer = 2 * measures.BorderExt;
    const int32_t inner = measures.Border + measures.Gap;
    const float width = ScaleWidth() - static_cast<float>(outer + margins);
    const float height =
        ScaleHeight() - static_cast<float>(outer) - LblBottom.Height() - LblTop.Height() - ImgInfo.Height();
    Attempt([&] { ImgInfo.SetHeight(set.ShowInfo || set.ShowZoom ? kCornerSize : 0); });

    WinRect& area = image_.Area;
    Attempt([&] { area.Top = ToInt32(ImgInfo.Height() + static_cast<float>(inner)); });
    Attempt([&] { area.Left = measures.BorderExt + inner; });
    Attempt([&] { area.Right = ToInt32(width - static_cast<float>(2 * measures.Shadow + inner)); });
    Attempt([&] { area.Bottom = ToInt32(height + ImgInfo.Height() - static_cast<float>(measures.Shadow + inner)); });
}

void eDiapoLight::PlaceChildren(const Measures& measures) {
    const float frame = measures.BorderExt;
    const float textWidth = Max(0.0F, ScaleWidth() - 2 * frame);
    Attempt([&] { CornerResize.SetVisible(settings_.ShowZoom); });
    Attempt([&] { CornerResize.Move(0, 0); });
    Attempt([&] { ImgInfo.SetVisible(settings_.ShowInfo); });
    Attempt([&] { ImgInfo.Move(ScaleWidth() - ImgInfo.Width(), 0); });
    Attempt([&] { PlaceButtons(); });
    Attempt([&] {
        LblBottom.Move(frame, Max(0.0F, ScaleHeight() - frame - LblBottom.Height()), textWidth, LblBottom.Height());
    });
    Attempt([&] { LblTop.Move(frame, LblBottom.Top() - LblTop.Height(), textWidth, LblTop.Height()); });
}

// The row is centred without its gaps and always stands on the height of BtPlay.
void eDiapoLight::PlaceButtons() {
    if (!settings_.ShowDiapoTools) return;
    int32_t count = 0;
    for (const Image* button : {&BtPlay, &BtComment, &BtTexte}) count += button->Visible() ? 1 : 0;
    const float top = ScaleHeight() - (BtPlay.Height() + 1);
    float x = (ScaleWidth() - static_cast<float>(count) * BtPlay.Width()) / 2;
    for (Image* button : {&BtPlay, &BtComment, &BtTexte}) {
        if (!button->Visible()) continue;
        button->Move(x, top);
        x = button->Left() + button->Width() + 1;
    }
}

void eDiapoLight::PlacePicture(const Measures& measures) {
    if (Img.Picture().Type() <= 0) return;
    const WinRect& area = image_.Area;
    Attempt([&] { FitImage(Img.Picture()); });
    Attempt([&] { Img.SetWidth(Max(0.0F, image_.Fit.Width)); });
    Attempt([&] { Img.SetHeight(Max(0.0F, image_.Fit.Height)); });
    Attempt([&] {
        const double freeWidth = static_cast<double>(area.Right) - area.Left - Img.Width();
        const double freeHeight = static_cast<double>(area.Bottom) - area.Top - Img.Height();
        Img.Move(measures.Shadow + freeWidth / 2 + area.Left + settings_.ImageMarge, freeHeight / 2 + area.Top);
    });
}

// Without a tools row the play button stands in the picture's bottom right corner.
void eDiapoLight::PlacePlayButton() {
    if (!BtPlay.Visible() || settings_.ShowDiapoTools) return;
    Attempt([&] {
        BtPlay.Move(Img.Left() + Img.Width() - BtPlay.Width(), Img.Top() + Img.Height() - (BtPlay.Height() + 1));
    });
}

// Around the picture the outer of the two frames is one pixel less high and the inner one is not inverted, unlike
// around the area.
void eDiapoLight::DrawFrames(Measures& measures) {
    const Settings& set = settings_;
    Attempt([&] { DrawFrame(set.BorderStyleExt, {0, 0, ScaleWidth(), ScaleHeight()}, set.BorderColorExt, false); });

    const bool followsPicture = Img.Picture().Type() != 0 && set.AutoAdjust;
    const FrameBox inside = followsPicture ? BoxOf(Img.Bounds()) : BoxOf(image_.Area);
    FrameBox outside = Grown(inside, measures.Border + measures.Gap);
    if (followsPicture) outside.Y2 -= 1;
    Attempt([&] { measures.Border = DrawFrame(set.BorderStyle, outside, set.BorderColor, set.ShowShadow); });
    if (!set.BorderDouble) return;
    const DiapoBorderStyle style = followsPicture ? set.BorderStyle : InvertedStyle(set.BorderStyle);
    Attempt([&] { DrawFrame(style, Grown(inside, measures.Border), set.BorderColor, false); });
}

bool eDiapoLight::Reduced() const {
    const PictureSize native = NativeSize();
    return native.Width - Img.Width() > kReduced || native.Height - Img.Height() > kReduced;
}

PictureSize eDiapoLight::NativeSize() const {
    const auto pixels = [](double himetric) {
        return Rescale(ToInt32(himetric), ScaleMode::HiMetric, ScaleMode::Pixels);
    };
    return {pixels(Img.Picture().Width()), pixels(Img.Picture().Height())};
}

void eDiapoLight::ShowZoomCorner() {
    if (!settings_.ShowZoom || !settings_.AutoCornerResize) return;
    Attempt([&] { CornerResize.SetVisible(Reduced()); });
}

void eDiapoLight::ShowGauge(const Measures& measures) {
    if (!settings_.ShowJauge) {
        Attempt([&] { Slider.SetVisible(false); });
        return;
    }
    const float top = CornerResize.Visible() ? CornerResize.Height() : 0;
    Attempt([&] { Slider.Move(-1, top, Slider.Width(), LblTop.Top() - top - static_cast<float>(measures.Shadow)); });
    Attempt([&] {
        const double full = Max(1, Round(NativeSize().Width - kReduced));
        Slider.SetValue(ToInt32(100 - Round(Img.Width() * 100.0 / full)));
    });
    Attempt([&] { Slider.SetVisible(Reduced()); });
}

}  // namespace vorlane
