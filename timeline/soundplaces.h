// SoundPlaces: where the slides stand that the sounds of a list start on, in the order of the list, and how far the
// sounds reach. Those that a strip may show are found without a walk over all of them.
//
// Seconds are those of a show whose slides last exposition seconds, at least 1.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace vorlane {

class SoundPlaces {
public:
    // In front of the sound of an index, or behind the last one. number: of the slide, -1 for none; length: seconds.
    void Insert(size_t index, int32_t number, int32_t length);

    size_t Count() const { return numbers_.size(); }
    const std::vector<int32_t>& Numbers() const { return numbers_; }
    // Whether all slides have a number and none stands behind a later one.
    bool InOrder() const { return inOrder_; }

    // --- Of a list in order ---
    // The first sound on a later slide than that one; Count() for none.
    size_t FirstBehind(int32_t number) const;
    // The first sound that starts at a second or later; Count() for none.
    size_t FirstStarting(int32_t second, int16_t exposition) const;
    // The last sound in front of an index whose end is at a second or later.
    std::optional<size_t> LastReaching(size_t before, double second, int16_t exposition) const;

private:
    void MeasureEnds(int16_t exposition) const;

    std::vector<int32_t> numbers_;
    std::vector<int32_t> lengths_;
    bool inOrder_ = true;
    // A tree of the latest ends: node n stands above nodes 2n and 2n + 1, the sounds' own are the second half.
    mutable std::vector<double> ends_;
    mutable int16_t endsExposition_ = 0;
};

}  // namespace vorlane
