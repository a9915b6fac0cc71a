#include "sheet/log.h"

#include "platform/numbers.h"

#include <array>
#include <charconv>

namespace vorlane {

std::string LogArgument(std::string_view text) {
    return std::string(text);
}

std::string LogArgument(bool flag) {
    return std::to_string(FlagNumber(flag));
}

std::string LogArgument(double number) {
    std::array<char, 32> digits{};
    const auto written = std::to_chars(digits.data(), digits.data() + digits.size(), static_cast<float>(number));
    return {digits.data(), written.ptr};
}

}  // namespace vorlane
