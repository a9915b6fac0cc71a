#include "platform/numbers.h"

#include "platform/failure.h"

#include <cmath>
#include <limits>

namespace vorlane {

namespace {

template <class Integer>
Integer Converted(double value) {
    const double rounded = Round(value);
    if (!(rounded >= std::numeric_limits<Integer>::min() && rounded <= std::numeric_limits<Integer>::max())) {
        throw failures::Overflow();
    }
    return static_cast<Integer>(rounded);
}

}  // namespace

double Round(double value) {
    return std::nearbyint(value) + 0.0;  // a negative zero is none
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
