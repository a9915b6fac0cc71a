// Texts that stand for numbers. A text is numeric when it is, with blanks (code 32) around it or not: an optional sign,
// digits, optionally a point with digits behind it, optionally an exponent (e or E, an optional sign, digits). So "12",
// " -3.50 ", "+1e3" are; "", ".5", "5.", "1,5", "1 000", "0x1F", "- 3" are not. The locale has no say in it.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace vorlane {

// The nearest integer to the number that text stands for, halves to the even neighbour, told from its digits and so
// exact at any length. None for a text that is not numeric, and for a number that does not fit.
std::optional<int32_t> NumericValue(std::string_view text);

}  // namespace vorlane
