#include "platform/trelmic6.h"

#include <algorithm>
#include <charconv>

namespace vorlane {

Point Trelmic6::CursorPos(int32_t x, int32_t y) const {
    if (x != -99 || y != -99) desktop_.screen.SetCursorPos({x, y});
    return desktop_.screen.CursorPos();
}

Rgb Trelmic6::ColorToRgb(OLE_COLOR color) const {
    return Parts(IsSystemColor(color) ? SysColor(SystemColorNumber(color)) : color);
}

OLE_COLOR Trelmic6::ColorShift(OLE_COLOR color, int32_t red, int32_t green, int32_t blue) const {
    const auto shifted = [](uint8_t part, int32_t amount) {
        return static_cast<int32_t>(std::clamp<int64_t>(int64_t{part} + amount, 0, 255));
    };
    const Rgb rgb = ColorToRgb(color);
    return RGB(shifted(rgb.Red, red), shifted(rgb.Green, green), shifted(rgb.Blue, blue));
}

std::string Trelmic6::ResText(std::string_view number) const {
    return desktop_.texts.Text(number).value_or(ResMissing());
}

int32_t Trelmic6::FindListItem(const ListBox& list, std::string_view keyText, std::string_view) {
    int32_t key = 0;
    const char* const end = keyText.data() + keyText.size();
    const auto [stop, error] = std::from_chars(keyText.data(), end, key);
    return error == std::errc() && stop == end ? list.FindItemData(key) : -1;
}

}  // namespace vorlane
