// RandomMarks: the sheet's own random numbers, which mark fills and layouts.
#pragma once

#include <cstdint>

namespace vorlane {

// Singles from 0 up to, not including, 1. No number comes twice in 16 million calls.
class RandomMarks {
public:
    explicit RandomMarks(int64_t seed) : state_(static_cast<uint32_t>(seed) & kMask) {}

    float Next() {
        state_ = (state_ * 4253261U + 7368787U) & kMask;
        return static_cast<float>(state_) / static_cast<float>(kMask + 1);
    }

private:
    static constexpr uint32_t kMask = 0xFFFFFF;  // a Single holds 24 bits

    uint32_t state_;
};

}  // namespace vorlane
