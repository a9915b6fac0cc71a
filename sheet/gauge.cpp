// The gauge of a fill: in the lower right corner beside the bar, at once or sliding in and out.
#include "platform/numbers.h"
#include "sheet/vorlane.h"

namespace vorlane {

namespace {

constexpr float kSlidingWidth = 200;  // at most
constexpr float kSlidingHeight = 15;
constexpr float kSlidingGap = 2;    // at its right
constexpr int32_t kStepPause = 10;  // milliseconds

WinRect ToWinRect(const Box& box) {
    return {ToInt32(box.Left), ToInt32(box.Top), ToInt32(box.Right()), ToInt32(box.Bottom())};
}

}  // namespace

// --- Repainting at once ---

void Vorlane::Repaint() {
    Desktop().windows.RedrawWindow(Hwnd(), ToWinRect({0, 0, ScaleWidth(), ScaleHeight()}),
                                   RDW_UPDATENOW | RDW_INVALIDATE);
}

// The slide's width and height stand in the places of right and bottom.
void Vorlane::RepaintSlide(const eDiapoLight& slide) {
    const WinRect part{ToInt32(slide.Left()), ToInt32(slide.Top()), ToInt32(slide.Width()), ToInt32(slide.Height())};
    Desktop().windows.RedrawWindow(Hwnd(), part, RDW_UPDATENOW | RDW_NOCHILDREN);
}

// --- The gauge ---

// The corner of what the bar leaves free, as the size from the sheet's own corner.
Box Vorlane::GaugeArea() const {
    const grid::Frame frame = Frame();
    return {0, 0, ScaleWidth() - grid::BarTakesWidth(frame), ScaleHeight() - grid::BarTakesHeight(frame)};
}

void Vorlane::ShowGauge(bool show) {
    if (!gauge_.ShowJauge) return;
    if (gauge_.JaugeAnimation) {
        if (show != Jauge.Visible()) show ? SlideGaugeIn() : SlideGaugeOut();
        return;
    }
    const Box area = GaugeArea();
    if (show) Jauge.Move(area.Right() - Jauge.Width(), area.Bottom() - Jauge.Height());
    Jauge.SetVisible(show);
}

void Vorlane::SlideGaugeIn() {
    const Box area = GaugeArea();
    Jauge.SetMin(0);
    Jauge.SetValue(0);
    const float start = area.Bottom() + 1;
    Jauge.Move(area.Right() - Jauge.Width() - kSlidingGap, start, Min(kSlidingWidth, area.Right()), kSlidingHeight);
    Jauge.SetVisible(true);
    for (float top = start; top >= area.Bottom() - Jauge.Height(); top -= 1) StepGauge(area, top);
}

// A sheet that has grown meanwhile leaves the gauge far up: only the last of its way is shown.
void Vorlane::SlideGaugeOut() {
    const Box area = GaugeArea();
    const float start = Max(Jauge.Top(), area.Bottom() - Jauge.Height());
    for (float top = start; top <= area.Bottom() + 1; top += 1) StepGauge(area, top);
    Jauge.SetVisible(false);
}

void Vorlane::StepGauge(const Box& area, float top) {
    Jauge.Move(area.Right() - Jauge.Width() - kSlidingGap, top);
    Desktop().windows.RedrawWindow(Hwnd(), ToWinRect(Jauge.Bounds()), RDW_UPDATENOW | RDW_NOCHILDREN);
    Desktop().clock.Sleep(kStepPause);
}

}  // namespace vorlane
