// A font as a plain value. What the family resolves to is the desktop's business.
#pragma once

#include <string>

namespace vorlane {

struct Font {
    std::string Name = "Sans Serif";
    float Size = 8.25F;  // points
    bool Bold = false;
    bool Italic = false;
    bool Underline = false;
    bool Strikethrough = false;
    bool operator==(const Font&) const = default;
};

}  // namespace vorlane
