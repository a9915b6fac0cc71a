#include "timeline/timescale.h"

#include "platform/failure.h"
#include "platform/numbers.h"

#include <cmath>

namespace vorlane::timescale {

namespace {

double Quotient(double dividend, double divisor) {
    if (divisor == 0) throw failures::DivisionByZero();
    return dividend / divisor;
}

}  // namespace

float PixelsPerSecond(float diapoWidth, int16_t expositionTime) {
    return static_cast<float>(Quotient(diapoWidth, expositionTime));
}

int32_t Start(int32_t position, int16_t expositionTime) {
    return ToInt32(int64_t{position} * expositionTime);
}

int32_t LastSecond(float scaleWidth, float pixelsPerSecond, int32_t firstSecond) {
    return ToInt32(Quotient(scaleWidth, pixelsPerSecond) + firstSecond);
}

float X(const Strip& strip, const TimeScale& scale, int32_t second) {
    const double seconds = static_cast<double>(second) - scale.FirstSecond;
    return static_cast<float>(Max(strip.Origin(), scale.PixelsPerSecond * seconds + strip.Origin()));
}

double SecondsPerLabel(float labelWidth, float pixelsPerSecond) {
    if (!(pixelsPerSecond > 0)) return 1;
    const double ratio = pixelsPerSecond;
    double seconds = Max(1.0, std::ceil(labelWidth / ratio));
    // The quotient may be off by its last digit.
    if (seconds > 1 && (seconds - 1) * ratio >= labelWidth) seconds -= 1;
    if (seconds * ratio < labelWidth) seconds += 1;
    return seconds;
}

std::vector<TimeMark> Marks(float left, float scaleWidth, int32_t firstSecond, double stepPixels, double stepSeconds) {
    // A step that is lost at the right edge would never reach it.
    const bool leads = static_cast<float>(scaleWidth + stepPixels) > scaleWidth;
    std::vector<TimeMark> marks;
    TimeMark mark{left, firstSecond};
    while (mark.x <= scaleWidth) {
        marks.push_back(mark);
        const auto next = static_cast<float>(mark.x + stepPixels);
        if (!leads || next <= mark.x) break;
        mark.x = next;
        Attempt([&] { mark.Second = ToInt32(stepSeconds + mark.Second); });
    }
    return marks;
}

}  // namespace vorlane::timescale
