#include "sheet/itemtext.h"

#include "platform/trelmic6.h"

namespace vorlane {

std::string ItemText(std::string_view sortData, std::string_view fullName) {
    std::string text;
    text.reserve(sortData.size() + 1 + fullName.size());
    return text.append(sortData).append(1, kSepSortWithData).append(fullName);
}

std::string_view ItemFileName(std::string_view itemText) {
    const size_t separator = itemText.find(kSepSortWithData);
    return separator == std::string_view::npos ? itemText : itemText.substr(separator + 1);
}

bool MatchesPattern(std::string_view name, std::string_view pattern) {
    const std::string extension = Trelmic6::LowerCase(Trelmic6::FilePart(name, PathPart::Extension));
    if (extension.empty()) return false;
    return pattern.find("*.*") != std::string_view::npos || pattern.find(extension) != std::string_view::npos;
}

}  // namespace vorlane
