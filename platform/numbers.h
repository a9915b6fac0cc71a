// The library's number rules: conversions between real numbers and the fixed integer widths of the public surface.
// A conversion rounds to the nearest value, halves to the even neighbour; a value outside the target's range is an
// overflow failure. Nothing else in the library casts a real number to an integer.
#pragma once

#include <concepts>
#include <cstdint>
#include <type_traits>

namespace vorlane {

// Nearest whole number, halves to the even neighbour. A value that is not finite comes back as it is.
double Round(double value);

// Largest whole number that is not above value.
double Int(double value);

// Round(value) in the target's width. Fails with Overflow() when it does not fit or value is not finite.
int16_t ToInt16(double value);
int32_t ToInt32(double value);
uint8_t ToByte(double value);

// The same for whole numbers; from 2^53 on they lose digits, but never their way out of range.
template <std::integral Number>
int16_t ToInt16(Number value) {
    return ToInt16(static_cast<double>(value));
}
template <std::integral Number>
int32_t ToInt32(Number value) {
    return ToInt32(static_cast<double>(value));
}
template <std::integral Number>
uint8_t ToByte(Number value) {
    return ToByte(static_cast<double>(value));
}

// The smaller and the larger of two numbers of any numeric types, in their common type; signed and unsigned operands
// of up to 32 bits meet in a 64-bit integer, so that no sign is lost.
template <class A, class B>
using CommonNumber =
    std::conditional_t<std::is_floating_point_v<A> || std::is_floating_point_v<B>, std::common_type_t<A, B>, int64_t>;

template <class A, class B>
constexpr CommonNumber<A, B> Min(A a, B b) {
    using N = CommonNumber<A, B>;
    return static_cast<N>(b) < static_cast<N>(a) ? static_cast<N>(b) : static_cast<N>(a);
}

template <class A, class B>
constexpr CommonNumber<A, B> Max(A a, B b) {
    using N = CommonNumber<A, B>;
    return static_cast<N>(a) < static_cast<N>(b) ? static_cast<N>(b) : static_cast<N>(a);
}

// A flag as the 16-bit number that reports and property bags show: -1 for true, 0 for false.
constexpr int16_t FlagNumber(bool flag) {
    return flag ? int16_t{-1} : int16_t{0};
}

}  // namespace vorlane
