// The triangle of a playback and the bar of a recording.
#include "platform/numbers.h"
#include "timeline/etimeline.h"
#include "timeline/gradient.h"

namespace vorlane {

namespace {

// The record bar looks the same whatever the properties of these names hold.
constexpr OLE_COLOR kRecordStart = 0x0101EB;
constexpr OLE_COLOR kRecordEnd = 0x6060FF;
constexpr OLE_COLOR kRecordBorder = 0x0EADFA;

constexpr OLE_COLOR kTriangle = 0xFF0000;
constexpr int16_t kSolid = 0;
constexpr int16_t kTransparent = 1;
constexpr int32_t kHalf = 5;  // of a triangle's side, and its height

}  // namespace

void eTimeLine::Lecture(int32_t nbSeconde, int16_t diapoValue) {
    if (!indicators_.LectureActive) {
        if (diapoValue == -1) return;
        indicators_.LectureActive = true;
        indicators_.IndicDiapo = diapoValue;
        Paint();
    }
    CountSeconds(nbSeconde);
}

void eTimeLine::Record(int32_t nbSeconde, int16_t diapoValue) {
    if (!indicators_.RecordActive) {
        if (diapoValue == -1) return;
        indicators_.RecordActive = true;
        indicators_.LectureActive = true;
        indicators_.IndicDiapo = diapoValue;
        Paint();
    }
    CountSeconds(nbSeconde);
}

void eTimeLine::CountSeconds(int32_t nbSeconde) {
    if (nbSeconde == indicators_.IndicSeconds) return;
    indicators_.IndicSeconds = nbSeconde;
    Paint();
}

// Leaves a recording's bar, which then stands before the show.
void eTimeLine::LectureEnd() {
    indicators_.IndicSeconds = 0;
    indicators_.IndicDiapo = -1;
    indicators_.LectureActive = false;
    Paint();
}

void eTimeLine::RecordEnd() {
    indicators_.IndicSeconds = 0;
    indicators_.RecordActive = false;
    indicators_.LectureActive = false;
    Paint();
}

// The music row stands in the middle until the next paint that sets the rows.
void eTimeLine::DrawRecordBar(const TimeScale& scale) {
    const Strip strip = TheStrip();
    const int32_t start = timescale::Start(indicators_.IndicDiapo, settings_.ExpositionTime);
    if (start >= scale.LastSecond || !bars::ReachesIn(strip, scale, start, indicators_.IndicSeconds)) return;
    const auto height = static_cast<float>(settings_.BarreHeight);
    const float top = (ScaleHeight() - height) / 2;
    musics_.BarTop = top;
    const bars::Extent bar = bars::Clip(strip, scale, start, indicators_.IndicSeconds, false);
    GradientTrace(kRecordStart, kRecordEnd, kLeftToRight, false, bar.x, top, bar.W, height);
    Surface().LineBox(bar.x, top, bar.x + bar.W, top + height, kRecordBorder);
}

void eTimeLine::DrawIndicators(const TimeScale& scale) {
    const int32_t start = timescale::Start(indicators_.IndicDiapo, settings_.ExpositionTime);
    const int32_t second = ToInt32(int64_t{start} + indicators_.IndicSeconds);
    if (!scale.Shows(second)) return;
    const int32_t position = ToInt32(timescale::X(TheStrip(), scale, second));
    const int32_t where = settings_.LectureIndicPos;
    if (where == kIndicTop || where == kIndicBoth) Attempt([&] { DrawIndicator(true, position); });
    if (where == kIndicBottom || where == kIndicBoth) Attempt([&] { DrawIndicator(false, position); });
}

void eTimeLine::DrawIndicator(bool top, int32_t position) {
    const double edge = top ? 0 : ScaleHeight() - 1;
    const double tip = top ? kHalf : ScaleHeight() - 1 - kHalf;
    vorlane::Surface& surface = Surface();
    surface.SetFillColor(kTriangle);
    surface.SetFillStyle(kSolid);
    surface.Polygon({{position - kHalf, ToInt32(edge)}, {position, ToInt32(tip)}, {position + kHalf, ToInt32(edge)}});
    surface.SetFillStyle(kTransparent);
}

}  // namespace vorlane
