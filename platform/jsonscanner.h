// JsonScanner: walks over a JSON text, piece by piece, as its user expects them. What is not there where it is expected
// is a failure that names the line and the column, both from 1; a column counts bytes.
#pragma once

#include "platform/failure.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace vorlane {

struct JsonNumber {
    double Real = 0;
    std::optional<int64_t> Whole;  // when it is spelled without point and exponent, and fits
};

class JsonScanner {
public:
    explicit JsonScanner(std::string_view text) : text_(text) {}

    // The character that the next piece begins with; 0 at the end.
    char Next();
    // An object: member is called behind each key, and has to take the value.
    void Object(const std::function<void(const std::string& key)>& member);
    std::string Text();
    bool Flag();
    JsonNumber Number();
    // Nothing but blanks may follow.
    void End();

    // InvalidFormat() at the present place.
    Failure Failed(std::string_view what) const;

private:
    void Expect(char wanted);
    bool Take(std::string_view word);
    void Escape(std::string& text);
    uint32_t Unit();
    static void Append(std::string& text, uint32_t character);

    std::string_view text_;
    size_t at_ = 0;
};

}  // namespace vorlane
