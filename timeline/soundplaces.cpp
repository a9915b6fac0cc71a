#include "timeline/soundplaces.h"

#include <algorithm>
#include <bit>
#include <limits>

namespace vorlane {

void SoundPlaces::Insert(size_t index, int32_t number, int32_t length) {
    const auto at = static_cast<std::ptrdiff_t>(index);
    inOrder_ = inOrder_ && number >= 0 && (index == 0 || numbers_[index - 1] <= number) &&
               (index == Count() || number <= numbers_[index]);
    numbers_.insert(numbers_.begin() + at, number);
    lengths_.insert(lengths_.begin() + at, length);
    ends_.clear();
}

size_t SoundPlaces::FirstBehind(int32_t number) const {
    return static_cast<size_t>(std::upper_bound(numbers_.begin(), numbers_.end(), number) - numbers_.begin());
}

size_t SoundPlaces::FirstStarting(int32_t second, int16_t exposition) const {
    const auto earlier = [=](int32_t number) { return int64_t{number} * exposition < second; };
    return static_cast<size_t>(std::partition_point(numbers_.begin(), numbers_.end(), earlier) - numbers_.begin());
}

std::optional<size_t> SoundPlaces::LastReaching(size_t before, double second, int16_t exposition) const {
    if (ends_.empty() || endsExposition_ != exposition) MeasureEnds(exposition);
    const size_t half = ends_.size() / 2;
    // Up to the first tree on the left that reaches, and down in it to its last sound that does.
    for (size_t node = before + half; node > 1; node /= 2) {
        if (node % 2 == 0 || ends_[node - 1] < second) continue;
        --node;
        while (node < half) node = ends_[2 * node + 1] >= second ? 2 * node + 1 : 2 * node;
        return node - half;
    }
    return std::nullopt;
}

void SoundPlaces::MeasureEnds(int16_t exposition) const {
    const size_t half = std::bit_ceil(Count() + 1);
    ends_.assign(2 * half, std::numeric_limits<double>::lowest());
    endsExposition_ = exposition;
    for (size_t i = 0; i < Count(); ++i) {
        ends_[half + i] = static_cast<double>(int64_t{numbers_[i]} * exposition) + lengths_[i];
    }
    for (size_t node = half - 1; node > 0; --node) ends_[node] = std::max(ends_[2 * node], ends_[2 * node + 1]);
}

}  // namespace vorlane
