#include "sheet/sortkeys.h"

#include "platform/failure.h"
#include "platform/trelmic6.h"
#include "sheet/itemtext.h"
#include "sheet/types.h"

#include <cstdio>

namespace vorlane {

namespace {

std::string ZeroPadded(uint64_t number, size_t digits) {
    const std::string text = std::to_string(number);
    return text.size() < digits ? std::string(digits - text.size(), '0') + text : text;
}

// "2024-03-09 ..." as "20240309"; the year is not padded.
std::string DateDigits(const std::string& dateText) {
    unsigned year = 0;
    unsigned month = 0;
    unsigned day = 0;
    if (std::sscanf(dateText.c_str(), "%u-%u-%u", &year, &month, &day) != 3) throw failures::TypeMismatch();
    return std::to_string(year) + ZeroPadded(month, 2) + ZeroPadded(day, 2);
}

}  // namespace

std::string BuildSortKey(const std::string& fileName, int32_t mask) {
    const std::string name = Trelmic6::LowerCase(Trelmic6::FileName(fileName));
    std::string key = name;
    const auto add = [&](int32_t flag, auto&& criterion) {
        if ((mask & flag) != 0) Attempt([&] { key += kSepSortArg + criterion() + name; });
    };
    add(saDateFirst, [&] { return DateDigits(Trelmic6::FileDateText(fileName, 0)); });
    add(saDateSecond, [&] { return DateDigits(Trelmic6::FileDateText(fileName, 1)); });
    add(saSize, [&] { return ZeroPadded(Trelmic6::FileLength(fileName), 10); });
    add(saExtension, [&] { return Trelmic6::LowerCase(Trelmic6::FilePart(fileName, PathPart::Extension)); });
    return key;
}

}  // namespace vorlane
