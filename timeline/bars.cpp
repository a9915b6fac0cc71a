#include "timeline/bars.h"

#include "platform/failure.h"
#include "platform/numbers.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace vorlane::bars {

double LeftLimit(const Strip& strip, const TimeScale& scale) {
    if (scale.PixelsPerSecond == 0) throw failures::DivisionByZero();
    return scale.FirstSecond - static_cast<double>(strip.MargeGauche) / scale.PixelsPerSecond;
}

bool ReachesIn(const Strip& strip, const TimeScale& scale, int32_t start, int32_t length) {
    const double end = static_cast<double>(start) + length;
    return LeftLimit(strip, scale) <= end || scale.Shows(start);
}

bool CanLookUp(const SoundPlaces& places, const TimeScale& scale, int16_t exposition) {
    return places.InOrder() && exposition >= 1 && scale.PixelsPerSecond > 0 && std::isfinite(scale.PixelsPerSecond);
}

Extent Clip(const Strip& strip, const TimeScale& scale, int32_t start, int32_t length, bool repeats) {
    const double ratio = scale.PixelsPerSecond;
    const bool cut = start < scale.FirstSecond;
    const float x = cut ? strip.BorderPixels : timescale::X(strip, scale, start);
    const double room = static_cast<double>(strip.ScaleWidth) - 2 * strip.BorderPixels - x;
    const double left = static_cast<double>(length) + start - scale.FirstSecond;
    const double width = cut && !repeats ? ratio * left + strip.MargeGauche : ratio * length;
    return {x, static_cast<float>(Max(0, Min(width, room)))};
}

void AddBar(BarList& list, const tSon& son, int32_t start, const Strip& strip, const TimeScale& scale) {
    Extent bar = Clip(strip, scale, start, son.Durée, son.Repetition);
    if (!list.empty() && list.front().x - 1 < bar.W + bar.x) bar.W = Max(0, list.front().x - bar.x - 1);
    if (bar.W != 0) list.push_front({bar.x, bar.W, son});
}

void RepetSon(BarList& list, int32_t& position, const Strip& strip) {
    const auto next = static_cast<size_t>(position);
    const tBarreSon& bar = list.at(next - 1);
    if (!bar.Son.Repetition) return;
    const int32_t limit = ToInt32(next < list.size() ? list[next].x : strip.ScaleWidth - strip.BorderPixels);
    const auto end = static_cast<float>(limit);
    // A width that is lost at the limit would never reach it.
    if (bar.W + bar.x >= end - 1 || bar.W == 0 || end + bar.W == end) return;

    std::vector<tBarreSon> repetitions;
    Extent last{bar.x, bar.W};
    do {
        const float x = last.W + last.x;
        if (x == last.x) break;
        last = {x, Max(0, Min(end - x, last.W))};
        repetitions.push_back({last.x, last.W, bar.Son});
    } while (last.W + last.x < end);
    position += static_cast<int32_t>(repetitions.size());
    list.insert(list.begin() + static_cast<std::ptrdiff_t>(next), std::make_move_iterator(repetitions.begin()),
                std::make_move_iterator(repetitions.end()));
}

const tBarreSon* BarAt(const BarList& list, float x) {
    const auto found =
        std::find_if(list.begin(), list.end(), [=](const tBarreSon& bar) { return bar.x <= x && x <= bar.x + bar.W; });
    return found == list.end() ? nullptr : &*found;
}

bool InRow(float y, float top, uint8_t height) {
    return top <= y && y <= top + static_cast<float>(height);
}

}  // namespace vorlane::bars
