// The arithmetic of the sound bars: where a bar stands, how it is cut, how a repeating one fills its row, and what lies
// under a point.
#pragma once

#include "timeline/soundplaces.h"
#include "timeline/timescale.h"
#include "timeline/tson.h"

#include <cstdint>
#include <deque>

namespace vorlane {

// One drawn bar: a sound, or one repetition of it. Pixels.
struct tBarreSon {
    float x = 0;
    float W = 0;
    tSon Son;
};

// From left to right, counted from 1 where an index is told.
using BarList = std::deque<tBarreSon>;

namespace bars {

struct Extent {
    float x;
    float W;
    bool operator==(const Extent&) const = default;
};

// The second before which a sound has to end to be out of sight. Fails with DivisionByZero() on a scale of no width.
double LeftLimit(const Strip& strip, const TimeScale& scale);
// Whether a sound of that length, in seconds, reaches into what the strip shows. Fails as LeftLimit does.
bool ReachesIn(const Strip& strip, const TimeScale& scale, int32_t start, int32_t length);

// Whether EachInSight may take the place of a walk over all sounds.
bool CanLookUp(const SoundPlaces& places, const TimeScale& scale, int16_t exposition);
// Hands the sounds that may have a bar to place, from right to left, by their index; place tells which ones farther
// left may still have one.
enum class Left : uint8_t { Any, ThoseThatReachIn, None };
template <class Place>
void EachInSight(const SoundPlaces& places, const Strip& strip, const TimeScale& scale, int16_t exposition,
                 const Place& place) {
    size_t i = places.FirstStarting(scale.LastSecond, exposition);
    const size_t firstInSight = places.FirstStarting(scale.FirstSecond, exposition);
    Left left = Left::Any;
    while (i > firstInSight || (i > 0 && left == Left::Any)) left = place(--i);
    while (left != Left::None) {
        const auto next = places.LastReaching(i, LeftLimit(strip, scale), exposition);
        if (!next) return;
        left = place(i = *next);
    }
}

// The bar of a sound that starts at a second, cut at the strip's edges. One that began before the first second starts
// at the border, without the margin: a repeating one with its whole length, another with what is left of it.
Extent Clip(const Strip& strip, const TimeScale& scale, int32_t start, int32_t length, bool repeats);

// Adds the bar of a sound at the left of its row, one pixel short of its neighbour. A bar of no width is left out.
void AddBar(BarList& list, const tSon& son, int32_t start, const Strip& strip, const TimeScale& scale);

// Repeats the bar at a position up to the next one or to the right edge, and moves the position to the last repetition.
// Fails with Overflow() where that limit is no 32-bit number.
void RepetSon(BarList& list, int32_t& position, const Strip& strip);

// The first bar over x, both edges counted; nullptr for none.
const tBarreSon* BarAt(const BarList& list, float x);
// Whether y lies in the row of that top and height, both edges counted.
bool InRow(float y, float top, uint8_t height);

}  // namespace bars

}  // namespace vorlane
