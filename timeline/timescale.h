// The time scale: how seconds of the show become pixels of the strip, and where its marks stand.
#pragma once

#include <cstdint>
#include <vector>

namespace vorlane {

// The strip as one paint finds it; pixels.
struct Strip {
    float ScaleWidth = 0;
    float ScaleHeight = 0;
    uint8_t BorderPixels = 0;
    int16_t MargeGauche = 0;

    // Nothing starts left of it.
    constexpr int32_t Origin() const { return BorderPixels + MargeGauche; }
};

// What the strip shows of the show.
struct TimeScale {
    float PixelsPerSecond = 0;
    int32_t FirstSecond = 0;  // at the left edge
    int32_t LastSecond = 0;   // at the right edge

    constexpr bool Shows(int32_t second) const { return FirstSecond <= second && second <= LastSecond; }
};

struct TimeMark {
    float x;
    int32_t Second;
    bool operator==(const TimeMark&) const = default;
};

namespace timescale {

// Fails with DivisionByZero().
float PixelsPerSecond(float diapoWidth, int16_t expositionTime);
// The second at which the slide at a place of the sheet starts. Fails with Overflow() beyond 32 bits.
int32_t Start(int32_t position, int16_t expositionTime);
// Fails with DivisionByZero() and Overflow().
int32_t LastSecond(float scaleWidth, float pixelsPerSecond, int32_t firstSecond);
// Where a second lands.
float X(const Strip& strip, const TimeScale& scale, int32_t second);

// The least whole number of seconds that is as wide as a label; 1 where seconds have no width.
double SecondsPerLabel(float labelWidth, float pixelsPerSecond);
// The marks from left to the right edge. Each is a step of pixels and seconds behind the one before; a step that leads
// nowhere leaves the first one alone. The sum of seconds is rounded; one that no 32 bits hold leaves them as they were.
std::vector<TimeMark> Marks(float left, float scaleWidth, int32_t firstSecond, double stepPixels, double stepSeconds);

}  // namespace timescale

}  // namespace vorlane
