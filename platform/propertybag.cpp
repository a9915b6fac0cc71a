#include "platform/propertybag.h"

#include "platform/failure.h"
#include "platform/numbers.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <utility>

namespace vorlane {

namespace {

// The number that all of text spells.
template <class Number>
Number Spelled(std::string_view text) {
    Number number{};
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    if (error == std::errc::result_out_of_range) throw failures::Overflow();
    if (error != std::errc() || stop != end) throw failures::TypeMismatch();
    return number;
}

int64_t Whole(double value) {
    constexpr double limit = 9223372036854775808.0;
    if (std::isnan(value)) throw failures::TypeMismatch();
    if (value < -limit || value >= limit) throw failures::Overflow();
    if (Int(value) != value) throw failures::TypeMismatch();
    return std::llrint(value);
}

struct ToWhole {
    int64_t operator()(bool flag) const { return FlagNumber(flag); }
    int64_t operator()(int64_t number) const { return number; }
    int64_t operator()(double number) const { return Whole(number); }
    int64_t operator()(const std::string& text) const { return Spelled<int64_t>(text); }
    int64_t operator()(const Font&) const { throw failures::TypeMismatch(); }
    int64_t operator()(const Picture&) const { throw failures::TypeMismatch(); }
};

struct ToReal {
    double operator()(double number) const { return number; }
    double operator()(const std::string& text) const { return Spelled<double>(text); }
    template <class Other>
    double operator()(const Other& other) const {
        return static_cast<double>(ToWhole{}(other));
    }
};

struct ToText {
    std::string operator()(const std::string& text) const { return text; }
    std::string operator()(double number) const {
        char buffer[64];
        return {buffer, std::to_chars(buffer, buffer + sizeof buffer, number).ptr};
    }
    template <class Other>
    std::string operator()(const Other& other) const {
        return std::to_string(ToWhole{}(other));
    }
};

template <class Kind>
struct Only {
    Kind operator()(const Kind& value) const { return value; }
    template <class Other>
    Kind operator()(const Other&) const {
        throw failures::TypeMismatch();
    }
};

template <class Integer>
Integer Narrowed(int64_t value) {
    if (!std::in_range<Integer>(value)) throw failures::Overflow();
    return static_cast<Integer>(value);
}

bool Flag(int64_t value) {
    if (value < -1 || value > 1) throw failures::TypeMismatch();
    return value != 0;
}

float Single(double value) {
    if (std::isfinite(value) && std::abs(value) > std::numeric_limits<float>::max()) throw failures::Overflow();
    return static_cast<float>(value);
}

}  // namespace

std::optional<BagValue> PropertyBag::Value(std::string_view key) const {
    const auto found = values_.find(key);
    return found == values_.end() ? std::nullopt : std::optional(found->second);
}

void PropertyBag::SetValue(std::string_view key, BagValue value) {
    values_.insert_or_assign(std::string(key), std::move(value));
}

bool PropertyBag::ReadFlag(std::string_view key, bool otherwise) const {
    const auto value = Value(key);
    return value ? Flag(std::visit(ToWhole{}, *value)) : otherwise;
}

uint8_t PropertyBag::ReadByte(std::string_view key, uint8_t otherwise) const {
    const auto value = Value(key);
    return value ? Narrowed<uint8_t>(std::visit(ToWhole{}, *value)) : otherwise;
}

int16_t PropertyBag::ReadInt16(std::string_view key, int16_t otherwise) const {
    const auto value = Value(key);
    return value ? Narrowed<int16_t>(std::visit(ToWhole{}, *value)) : otherwise;
}

int32_t PropertyBag::ReadInt32(std::string_view key, int32_t otherwise) const {
    const auto value = Value(key);
    return value ? Narrowed<int32_t>(std::visit(ToWhole{}, *value)) : otherwise;
}

uint32_t PropertyBag::ReadColor(std::string_view key, uint32_t otherwise) const {
    const auto value = Value(key);
    if (!value) return otherwise;
    const int64_t number = std::visit(ToWhole{}, *value);
    return number < 0 ? static_cast<uint32_t>(Narrowed<int32_t>(number)) : Narrowed<uint32_t>(number);
}

float PropertyBag::ReadSingle(std::string_view key, float otherwise) const {
    const auto value = Value(key);
    return value ? Single(std::visit(ToReal{}, *value)) : otherwise;
}

std::string PropertyBag::ReadText(std::string_view key, std::string_view otherwise) const {
    const auto value = Value(key);
    return value ? std::visit(ToText{}, *value) : std::string(otherwise);
}

Font PropertyBag::ReadFont(std::string_view key, const Font& otherwise) const {
    const auto value = Value(key);
    return value ? std::visit(Only<Font>{}, *value) : otherwise;
}

Picture PropertyBag::ReadPicture(std::string_view key) const {
    const auto value = Value(key);
    return value ? std::visit(Only<Picture>{}, *value) : Picture();
}

void PropertyBag::Write(std::string_view key, BagValue value, const BagValue& otherwise) {
    if (value != otherwise) return SetValue(key, std::move(value));
    const auto found = values_.find(key);
    if (found != values_.end()) values_.erase(found);
}

}  // namespace vorlane
