#include "sheet/log.h"

#include "platform/numbers.h"
#include "sheet/vorlane.h"

#include <array>
#include <charconv>

namespace vorlane {

namespace {

constexpr std::string_view kCaption = "Vorlane";
constexpr int32_t kWarning = 48;

}  // namespace

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

void Vorlane::Report(const Failure& failure, const std::string& valeur) {
    Events.Error(failure.Number, failure.Description, failure.Source, failure.LastDllError, valeur);
}

void Vorlane::Warn(std::string_view text) const {
    Desktop().dialogs.MsgBox(text, kWarning, kCaption);
}

}  // namespace vorlane
