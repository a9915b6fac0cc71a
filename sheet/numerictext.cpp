#include "sheet/numerictext.h"

#include <algorithm>
#include <limits>

namespace vorlane {

namespace {

constexpr bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

// 0.Whole Fraction x 10 ^ Point, with the digits of Whole and Fraction in a row.
struct Decimal {
    bool Negative = false;
    std::string_view Whole;
    std::string_view Fraction;
    int64_t Point = 0;

    int64_t Count() const { return static_cast<int64_t>(Whole.size() + Fraction.size()); }
    // 0 for the places in front of the digits and behind them.
    int Digit(int64_t place) const {
        if (place < 0 || place >= Count()) return 0;
        const auto at = static_cast<size_t>(place);
        return (at < Whole.size() ? Whole[at] : Fraction[at - Whole.size()]) - '0';
    }
};

// Takes the pieces of a number off the front of a text.
class Reader {
public:
    explicit Reader(std::string_view text) : rest_(text) {}

    bool AtEnd() const { return rest_.empty(); }
    bool Take(char c) {
        if (rest_.empty() || rest_.front() != c) return false;
        rest_.remove_prefix(1);
        return true;
    }
    bool TakeMinus() { return !Take('+') && Take('-'); }
    std::string_view TakeDigits() {
        const auto end = std::find_if_not(rest_.begin(), rest_.end(), IsDigit);
        const auto count = static_cast<size_t>(end - rest_.begin());
        const std::string_view digits = rest_.substr(0, count);
        rest_.remove_prefix(count);
        return digits;
    }

private:
    std::string_view rest_;
};

std::string_view WithoutBlanks(std::string_view text) {
    const size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

// What is far beyond any text's length stays so.
int64_t Exponent(std::string_view digits, bool negative) {
    constexpr int64_t limit = int64_t{1} << 48;
    int64_t value = 0;
    for (const char c : digits) value = std::min(value * 10 + (c - '0'), limit);
    return negative ? -value : value;
}

std::optional<Decimal> Parse(std::string_view text) {
    Reader reader(WithoutBlanks(text));
    Decimal number;
    number.Negative = reader.TakeMinus();
    number.Whole = reader.TakeDigits();
    if (number.Whole.empty()) return std::nullopt;
    if (reader.Take('.')) {
        number.Fraction = reader.TakeDigits();
        if (number.Fraction.empty()) return std::nullopt;
    }
    number.Point = static_cast<int64_t>(number.Whole.size());
    if (reader.Take('e') || reader.Take('E')) {
        const bool negative = reader.TakeMinus();
        const std::string_view digits = reader.TakeDigits();
        if (digits.empty()) return std::nullopt;
        number.Point += Exponent(digits, negative);
    }
    return reader.AtEnd() ? std::optional(number) : std::nullopt;
}

// The digits in front of the point as a number; anything above limit for one that is above it.
int64_t WholePart(const Decimal& number, int64_t limit) {
    const int64_t written = std::min(number.Point, number.Count());
    int64_t value = 0;
    for (int64_t i = 0; i < written && value <= limit; ++i) value = value * 10 + number.Digit(i);
    for (int64_t i = number.Count(); i < number.Point && value > 0 && value <= limit; ++i) value *= 10;
    return value;
}

// Whether what stands behind the point takes a whole part up to its neighbour.
bool RoundsUp(const Decimal& number, bool odd) {
    const int first = number.Digit(number.Point);
    if (first != 5) return first > 5;
    for (int64_t i = number.Point + 1; i < number.Count(); ++i) {
        if (number.Digit(i) != 0) return true;
    }
    return odd;
}

}  // namespace

std::optional<int32_t> NumericValue(std::string_view text) {
    using Limits = std::numeric_limits<int32_t>;
    const auto number = Parse(text);
    if (!number) return std::nullopt;
    int64_t value = WholePart(*number, -int64_t{Limits::min()});
    if (RoundsUp(*number, value % 2 != 0)) ++value;
    if (number->Negative) value = -value;
    if (value < Limits::min() || value > Limits::max()) return std::nullopt;
    return static_cast<int32_t>(value);
}

}  // namespace vorlane
