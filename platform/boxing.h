// Boxing: typed property values into a property bag and back. Booleans, numbers, enumerations, colours, texts, fonts
// and pictures; a read fails as the bag's own does.
#pragma once

#include "platform/color.h"
#include "platform/propertybag.h"

#include <string>
#include <string_view>
#include <type_traits>

namespace vorlane {

inline BagValue Boxed(bool value) {
    return value;
}
inline BagValue Boxed(float value) {
    return static_cast<double>(value);
}
inline BagValue Boxed(const std::string& value) {
    return value;
}
inline BagValue Boxed(const Font& value) {
    return value;
}
inline BagValue Boxed(const Picture& value) {
    return value;
}
template <class Number>
requires std::is_integral_v<Number> || std::is_enum_v<Number> BagValue Boxed(Number value) {
    return static_cast<int64_t>(value);
}

// The bag's value for key in the type of otherwise, which a missing key gives.
inline bool Unboxed(const PropertyBag& bag, std::string_view key, bool otherwise) {
    return bag.ReadFlag(key, otherwise);
}
inline uint8_t Unboxed(const PropertyBag& bag, std::string_view key, uint8_t otherwise) {
    return bag.ReadByte(key, otherwise);
}
inline int16_t Unboxed(const PropertyBag& bag, std::string_view key, int16_t otherwise) {
    return bag.ReadInt16(key, otherwise);
}
inline int32_t Unboxed(const PropertyBag& bag, std::string_view key, int32_t otherwise) {
    return bag.ReadInt32(key, otherwise);
}
inline OLE_COLOR Unboxed(const PropertyBag& bag, std::string_view key, OLE_COLOR otherwise) {
    return bag.ReadColor(key, otherwise);
}
inline float Unboxed(const PropertyBag& bag, std::string_view key, float otherwise) {
    return bag.ReadSingle(key, otherwise);
}
inline std::string Unboxed(const PropertyBag& bag, std::string_view key, const std::string& otherwise) {
    return bag.ReadText(key, otherwise);
}
inline Font Unboxed(const PropertyBag& bag, std::string_view key, const Font& otherwise) {
    return bag.ReadFont(key, otherwise);
}
// A missing key gives the empty picture.
inline Picture Unboxed(const PropertyBag& bag, std::string_view key, const Picture&) {
    return bag.ReadPicture(key);
}
template <class Number>
requires std::is_enum_v<Number> Number Unboxed(const PropertyBag& bag, std::string_view key, Number otherwise) {
    return static_cast<Number>(bag.ReadInt32(key, static_cast<int32_t>(otherwise)));
}

}  // namespace vorlane
