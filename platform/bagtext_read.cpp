#include "platform/bagtext.h"
#include "platform/failure.h"
#include "platform/jsonscanner.h"

#include <cmath>
#include <limits>
#include <utility>

namespace vorlane {

namespace {

// Infinite beyond what a float holds.
float Single(double number) {
    using Limits = std::numeric_limits<float>;
    if (std::abs(number) <= Limits::max()) return static_cast<float>(number);
    return number < 0 ? -Limits::infinity() : Limits::infinity();
}

class BagReader {
public:
    BagReader(std::string_view text, const PictureTexts& pictures) : scanner_(text), pictures_(pictures) {}

    PropertyBag Read() {
        scanner_.Object([this](const std::string& key) { ReadMember(key); });
        scanner_.End();
        return std::move(bag_);
    }

private:
    void ReadMember(const std::string& key) {
        if (bag_.Contains(key)) throw scanner_.Failed("clé en double");
        switch (scanner_.Next()) {
            case '{':
                return ReadObject(key);
            case '"':
                return bag_.SetValue(key, scanner_.Text());
            case 't':
            case 'f':
                return bag_.SetValue(key, scanner_.Flag());
            default:
                return bag_.SetValue(key, ReadNumber());
        }
    }

    BagValue ReadNumber() {
        const JsonNumber number = scanner_.Number();
        if (number.Whole) return *number.Whole;
        return number.Real;
    }

    // A font or a picture: an object of one member that says which.
    void ReadObject(const std::string& key) {
        int members = 0;
        scanner_.Object([&](const std::string& kind) {
            if (++members > 1 || (kind != "font" && kind != "picture")) throw scanner_.Failed("valeur inconnue");
            kind == "font" ? bag_.SetValue(key, ReadFont()) : ReadPicture(key);
        });
        if (members == 0) throw scanner_.Failed("valeur inconnue");
    }

    void ReadPicture(const std::string& key) {
        const std::string text = scanner_.Text();
        const Picture picture = pictures_.ToPicture ? pictures_.ToPicture(text) : Picture();
        if (picture.Handle() != 0) bag_.SetValue(key, picture);
    }

    Font ReadFont() {
        Font font;
        scanner_.Object([&](const std::string& part) {
            if (part == "name") {
                font.Name = scanner_.Text();
            } else if (part == "size") {
                font.Size = Single(scanner_.Number().Real);
            } else {
                StyleOf(font, part) = scanner_.Flag();
            }
        });
        return font;
    }

    bool& StyleOf(Font& font, const std::string& part) {
        if (part == "bold") return font.Bold;
        if (part == "italic") return font.Italic;
        if (part == "underline") return font.Underline;
        if (part == "strikethrough") return font.Strikethrough;
        throw scanner_.Failed("valeur inconnue");
    }

    JsonScanner scanner_;
    const PictureTexts& pictures_;
    PropertyBag bag_;
};

}  // namespace

PropertyBag BagFromText(std::string_view text, const PictureTexts& pictures) {
    return BagReader(text, pictures).Read();
}

}  // namespace vorlane
