#include "platform/numbers.h"

#include "platform/failure.h"

#include <cmath>
#include <limits>

namespace vorlane {

namespace {

// A sum with it has no room for fractions: it comes out rounded, halves to even.
constexpr double kNoFractions = 0x1.8p52;

// Most numbers of a recording pass here, so it takes no call.
template <class Integer>
Integer Converted(double value) {
    if (!(std::abs(value) < kNoFractions / 2)) throw failures::Overflow();
    const double rounded = (value + kNoFractions) - kNoFractions;
    if (!(rounded >= std::numeric_limits<Integer>::min() && rounded <= std::numeric_limits<Integer>::max())) {
        throw failures::Overflow();
    }
    return static_cast<Integer>(rounded);
}

}  // namespace

double Round(double value) {
    const double below = std::floor(value);
    const double rest = value - below;
    if (rest < 0.5) return below;
    if (rest > 0.5) return below + 1;
    return std::fmod(below, 2) == 0 ? below : below + 1;
}

double Int(double value) {
    return std::floor(value);
}

int16_t ToInt16(double value) {
    return Converted<int16_t>(value);
}

int32_t ToInt32(double value) {
    return Converted<int32_t>(value);
}

uint8_t ToByte(double value) {
    return Converted<uint8_t>(value);
}

}  // namespace vorlane
