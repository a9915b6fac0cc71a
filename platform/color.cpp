#include "platform/color.h"

#include "platform/failure.h"

#include <algorithm>

namespace vorlane {

OLE_COLOR RGB(int32_t red, int32_t green, int32_t blue) {
    if (red < 0 || green < 0 || blue < 0) throw failures::InvalidCall();
    const auto part = [](int32_t value) { return static_cast<uint32_t>(std::min(value, 255)); };
    return part(red) | part(green) << 8 | part(blue) << 16;
}

}  // namespace vorlane
