// The text form of a property bag, for hosts that keep a control's properties in a file: a JSON object with a member a
// key, in the order of the keys, a line each. Flags, numbers and texts are JSON's own; a number with a point or an
// exponent is a real one. A font is {"font": {...}} with its name, its size and what it has of bold, italic, underline
// and strikethrough. A picture is {"picture": "..."}, a text that the host makes and understands.
#pragma once

#include "platform/propertybag.h"

#include <functional>
#include <string>
#include <string_view>

namespace vorlane {

// What stands for a picture in a text, and back. Without a text, or with one that is not understood, the key is left
// out, so that it reads as its default.
struct PictureTexts {
    std::function<std::string(const Picture&)> ToText;          // "" for none
    std::function<Picture(const std::string& text)> ToPicture;  // the empty picture for none
};

// UTF-8. A real number that is none (not a number, infinite) is written as the text that spells it.
std::string BagToText(const PropertyBag& bag, const PictureTexts& pictures = {});

// Fails with InvalidFormat(), which names the line and the column, on anything but such a text: what is no JSON, has
// values that no bag holds (lists, null, other objects) or a key twice, or goes on behind the object.
PropertyBag BagFromText(std::string_view text, const PictureTexts& pictures = {});

}  // namespace vorlane
