// The one paint of the time line, in its fixed order, with its ground, border and marks.
#include "platform/numbers.h"
#include "platform/region.h"
#include "timeline/borders.h"
#include "timeline/etimeline.h"

namespace vorlane {

namespace {

constexpr OLE_COLOR kWhite = 0xFFFFFF;
constexpr int16_t kTransparent = 1;
constexpr float kRepairedDiapoWidth = 50;
constexpr const char* kThreeBlanks = "\u00A0\u00A0\u00A0";  // between the labels of a free scale

}  // namespace

// A step that fails is passed over, and so is a failing statement of one. What a paint repairs shows in the next one.
void eTimeLine::Paint() {
    Attempt([&] { borderPixels_ = DrawBorder(true); });
    if (!life_.ShownOnce || life_.BusyPainting) return;
    life_.BusyPainting = true;
    Attempt([&] { Surface().Redraw([&] { PaintAll(); }); });
    life_.BusyPainting = false;
}

void eTimeLine::PaintAll() {
    Surface().Cls();
    Attempt([&] { PaintBackground(); });
    Attempt([&] { ShapeWindow(); });
    if (!settings_.Round || life_.OldSystem) Attempt([&] { DrawBorder(false); });
    TimeScale scale = MeasureScale();
    if (Ambient().UserMode && settings_.ShowBarres) PaintBars(scale);
    if (indicators_.RecordActive) Attempt([&] { DrawRecordBar(scale); });
    if (indicators_.LectureActive) Attempt([&] { DrawIndicators(scale); });
    Attempt([&] { DrawMarks(scale); });
}

Strip eTimeLine::TheStrip() const {
    return {ScaleWidth(), ScaleHeight(), borderPixels_, settings_.MargeGauche};
}

// --- Ground and border ---

void eTimeLine::PaintBackground() {
    if (settings_.GradientColorStart == settings_.GradientColorEnd) {
        Surface().SetBackColor(settings_.GradientColorStart);
    } else {
        GradientTrace(settings_.GradientColorStart, settings_.GradientColorEnd, settings_.GradientDirection,
                      settings_.GradientColorInverse, 0, 0, ScaleWidth(), ScaleHeight());
    }
}

void eTimeLine::ShapeWindow() {
    const int32_t width = ToInt32(Width());
    const int32_t height = ToInt32(Height());
    const int32_t corner = settings_.RoundBorder;
    const Region region = settings_.Round ? Region::CreateRoundRectRgn(0, 0, width, height, corner, corner)
                                          : Region::CreateRectRgn(0, 0, ToInt32(ScaleWidth()), ToInt32(ScaleHeight()));
    Attempt([&] { Desktop().windows.SetWindowRgn(Hwnd(), region, true); });
    if (!settings_.Round || settings_.BorderStyle == kNoBorder) return;
    Surface().SetForeColor(OutlineHasBorderColor(settings_.BorderStyle) ? settings_.BorderColor : kWhite);
    Surface().RoundRect({0, 0, width - 1, height - 1}, corner, corner);
}

// Gives the border's width.
uint8_t eTimeLine::DrawBorder(bool measureOnly) {
    const WinRect client{0, 0, ToInt32(ScaleWidth()), ToInt32(ScaleHeight())};
    const BorderEdge border = BorderOf(settings_.BorderStyle);
    if (measureOnly) return border.Width;
    if (settings_.BorderStyle == kSolidBorder) {
        Surface().SetFillStyle(kTransparent);
        Surface().LineBox(0, 0, ScaleWidth() - 1, ScaleHeight() - 1, settings_.BorderColor);
    } else if (border.Edge != 0) {
        Surface().DrawEdge(client, border.Edge, border.Flags);
    }
    return border.Width;
}

// --- Time marks ---

TimeScale eTimeLine::MeasureScale() const {
    TimeScale scale;
    Attempt(
        [&] { scale.PixelsPerSecond = timescale::PixelsPerSecond(settings_.DiapoWidth, settings_.ExpositionTime); });
    Attempt([&] { scale.FirstSecond = timescale::Start(settings_.StartPoint, settings_.ExpositionTime); });
    Attempt([&] { scale.LastSecond = timescale::LastSecond(ScaleWidth(), scale.PixelsPerSecond, scale.FirstSecond); });
    return scale;
}

// Repairs a slide without width or time; the properties keep the repair.
void eTimeLine::DrawMarks(TimeScale& scale) {
    if (settings_.DiapoWidth == 0) settings_.DiapoWidth = kRepairedDiapoWidth;
    if (settings_.ExpositionTime < 1) settings_.ExpositionTime = 1;
    Attempt([&] { scale.FirstSecond = timescale::Start(settings_.StartPoint, settings_.ExpositionTime); });
    Attempt(
        [&] { scale.PixelsPerSecond = timescale::PixelsPerSecond(settings_.DiapoWidth, settings_.ExpositionTime); });
    double stepPixels = settings_.DiapoWidth;
    double stepSeconds = settings_.ExpositionTime;
    OLE_COLOR color = settings_.ForeColor;
    if (settings_.Style != etlType::etltFollowDiapo) {
        stepSeconds = LabelSeconds(scale.PixelsPerSecond);
        stepPixels = stepSeconds * scale.PixelsPerSecond;
        if (!Enabled()) color = FromSystem(SystemColor::GrayText);
    }
    Surface().SetForeColor(color);
    const auto left = static_cast<float>(TheStrip().Origin());
    DrawMarkLines(timescale::Marks(left, ScaleWidth(), scale.FirstSecond, stepPixels, stepSeconds));
}

double eTimeLine::LabelSeconds(float pixelsPerSecond) const {
    const std::string label = Trelmic6::TimeOfDayText() + kThreeBlanks;
    return timescale::SecondsPerLabel(Desktop().metrics.TextWidth(Font(), label), pixelsPerSecond);
}

// Ticks have the property's colour, texts that of the surface.
void eTimeLine::DrawMarkLines(const std::vector<TimeMark>& marks) {
    const float floor = ScaleHeight() - static_cast<float>(borderPixels_);
    const uint8_t tick = ToByte(Max(1, Min(5, floor)));
    const float tickTop = floor - static_cast<float>(tick);
    const float textTop = tickTop - 1 - Desktop().metrics.TextHeight(Font(), "qA");
    for (const TimeMark& mark : marks) {
        Attempt([&] { Surface().Line(mark.x, Max(0, floor), mark.x, Max(0, tickTop), settings_.ForeColor); });
        Attempt([&] {
            const std::string text = Trelmic6::SecondsToText(mark.Second, false);
            Surface().TextOutA(ToInt32(mark.x), ToInt32(Max(0, textTop)), text);
        });
    }
}

}  // namespace vorlane
