// Colours as the public surface carries them: an OLE_COLOR holds blue, green, red from the high byte down, or, with
// its top bit set, the number of a system colour that the desktop's theme resolves when it is drawn.
#pragma once

#include <cstdint>

namespace vorlane {

using OLE_COLOR = uint32_t;

// The system colours that the library names.
enum class SystemColor : uint8_t {
    ScrollBar = 0,
    Window = 5,
    WindowFrame = 6,
    WindowText = 8,
    ActiveBorder = 10,
    Highlight = 13,
    HighlightText = 14,
    ButtonFace = 15,
    ButtonShadow = 16,
    GrayText = 17,
    ButtonText = 18,
    ButtonHighlight = 20,
    DarkShadow = 21,
    Light = 22,
    InfoText = 23,
    InfoBackground = 24,
    GradientInactiveCaption = 28,
};

constexpr OLE_COLOR FromSystem(SystemColor color) {
    return 0x80000000U | static_cast<uint32_t>(color);
}
constexpr bool IsSystemColor(OLE_COLOR color) {
    return (color & 0x80000000U) != 0;
}
constexpr int32_t SystemColorNumber(OLE_COLOR color) {
    return static_cast<int32_t>(color & 0xFFU);
}

struct Rgb {
    uint8_t Red = 0;
    uint8_t Green = 0;
    uint8_t Blue = 0;
    bool operator==(const Rgb&) const = default;
};

// The parts of a plain colour; the top byte is ignored.
constexpr Rgb Parts(OLE_COLOR color) {
    return {static_cast<uint8_t>(color), static_cast<uint8_t>(color >> 8), static_cast<uint8_t>(color >> 16)};
}

// A colour from its parts. A part above 255 counts as 255; a negative one fails with InvalidCall().
OLE_COLOR RGB(int32_t red, int32_t green, int32_t blue);

}  // namespace vorlane
