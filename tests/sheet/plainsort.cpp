#include "plainsort.h"

#include "platform/failure.h"
#include "platform/numbers.h"
#include "platform/trelmic6.h"

#include <cstdlib>
#include <utility>
#include <variant>

namespace vorlane::plain {

namespace {

// A number is below any text: the first alternative is below the second.
using Value = std::variant<int32_t, std::string>;

std::string TextOf(const Value& value) {
    if (const auto* number = std::get_if<int32_t>(&value)) return std::to_string(*number);
    return std::get<std::string>(value);
}

// What stands in front of the separator. Fails where it does not stand.
std::string Front(const std::string& text, std::string_view separator) {
    const size_t length = separator.empty() ? std::string::npos : text.find(separator);
    if (length == std::string::npos) throw failures::InvalidCall();
    return text.substr(0, length);
}

bool IsNumeric(const std::string& text) {
    size_t at = 0;
    const auto skip = [&](std::string_view any) {
        const size_t from = at;
        while (at < text.size() && any.find(text[at]) != std::string_view::npos) ++at;
        return at - from;
    };
    const auto one = [&](std::string_view any) {
        const bool found = at < text.size() && any.find(text[at]) != std::string_view::npos;
        if (found) ++at;
        return found;
    };
    constexpr std::string_view digits = "0123456789";
    skip(" ");
    one("+-");
    if (skip(digits) == 0) return false;
    if (one(".") && skip(digits) == 0) return false;
    if (one("eE")) {
        one("+-");
        if (skip(digits) == 0) return false;
    }
    skip(" ");
    return at == text.size();
}

void MakeNumber(Value& value) {
    const std::string text = std::get<std::string>(value);
    if (IsNumeric(text)) value = ToInt32(std::strtod(text.c_str(), nullptr));
}

}  // namespace

void Sort::Run(bool ascending, uint8_t criterion, std::string_view separator, std::string_view fieldSeparator) {
    const auto n = static_cast<int64_t>(Rows.size());
    if (n < 2) return;
    const auto row = [&](int64_t i) -> Row& { return Rows[static_cast<size_t>(i)]; };
    Value a = std::string();
    Value b = std::string();
    for (int64_t gap = n / 2; gap != 0; gap /= 2) {
        for (int64_t i = 0; i <= n - 1 - gap; ++i) {
            int64_t j = i;
            bool swapped = true;
            while (j > -1 && swapped) {
                swapped = false;
                ++Comparisons;
                Attempt([&] { a = Front(row(j).Text, separator); });
                Attempt([&] { b = Front(row(j + gap).Text, separator); });
                a = Trelmic6::LowerCase(Trelmic6::FieldAt(TextOf(a), criterion, fieldSeparator));
                b = Trelmic6::LowerCase(Trelmic6::FieldAt(TextOf(b), criterion, fieldSeparator));
                Attempt([&] { MakeNumber(a); });
                Attempt([&] { MakeNumber(b); });
                if (ascending ? a > b : a < b) {
                    std::swap(row(j), row(j + gap));
                    swapped = true;
                    if (Anchor > -1) {
                        if (Anchor == j) {
                            Anchor = static_cast<int32_t>(j + gap);
                        } else if (Anchor == j + gap) {
                            Anchor = static_cast<int32_t>(j);
                        }
                    }
                    j -= gap;
                }
            }
        }
    }
}

}  // namespace vorlane::plain
