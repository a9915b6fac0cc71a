// PropertyBag: the persisted properties of a control, values by key. A value equal to its default is not stored; a
// missing key reads as its default; a value of another kind converts where that loses nothing, else the read fails
// with TypeMismatch() or Overflow():
//   - a flag is the number -1 or 0; the numbers -1 and 1 are true, 0 is false, others are no flag;
//   - a real number without a fraction is a whole one; a real number is rounded to a Single;
//   - a text that spells a number and nothing else is that number, and a number is the text that spells it;
//   - a negative 32-bit number is the colour of the same bits;
//   - fonts and pictures are only themselves.
#pragma once

#include "platform/font.h"
#include "platform/picture.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace vorlane {

// A stored value: a flag, a whole number, a real number, a text, a font or a picture.
using BagValue = std::variant<bool, int64_t, double, std::string, Font, Picture>;

class PropertyBag {
public:
    bool Empty() const { return values_.empty(); }
    bool Contains(std::string_view key) const { return values_.find(key) != values_.end(); }
    // Nothing for a missing key.
    std::optional<BagValue> Value(std::string_view key) const;
    void SetValue(std::string_view key, BagValue value);
    const std::map<std::string, BagValue, std::less<>>& Values() const { return values_; }

    bool ReadFlag(std::string_view key, bool otherwise) const;
    uint8_t ReadByte(std::string_view key, uint8_t otherwise) const;
    int16_t ReadInt16(std::string_view key, int16_t otherwise) const;
    int32_t ReadInt32(std::string_view key, int32_t otherwise) const;
    uint32_t ReadColor(std::string_view key, uint32_t otherwise) const;
    float ReadSingle(std::string_view key, float otherwise) const;
    std::string ReadText(std::string_view key, std::string_view otherwise) const;
    Font ReadFont(std::string_view key, const Font& otherwise) const;
    Picture ReadPicture(std::string_view key) const;

    // Stores value under key, or forgets the key when value equals otherwise.
    void Write(std::string_view key, BagValue value, const BagValue& otherwise);

private:
    std::map<std::string, BagValue, std::less<>> values_;
};

}  // namespace vorlane
