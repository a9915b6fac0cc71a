#include "windows/waitplace.h"

namespace vorlane {

namespace {

enum class Side : uint8_t { None, Left, Right, Top, Bottom };

bool IsPlace(WaitPlace place) {
    return place >= WaitPlace::TopLeft && place <= WaitPlace::BottomRight;
}

// The side of the rectangle that a window comes from. The corners come from the left and the right.
Side SideOf(WaitPlace place) {
    if (!IsPlace(place) || place == WaitPlace::Middle) return Side::None;
    if (place == WaitPlace::Top) return Side::Top;
    if (place == WaitPlace::Bottom) return Side::Bottom;
    return static_cast<int32_t>(place) % 3 == 1 ? Side::Left : Side::Right;
}

// A length along one axis: at the near side (0), in the middle (1), at the far side (2).
double Along(int32_t which, int32_t near, int32_t far, int32_t size) {
    if (which == 0) return near;
    if (which == 2) return static_cast<double>(far) - size;
    return (static_cast<double>(far) - near - size) / 2 + near;
}

}  // namespace

std::optional<WindowPlace> StandingPlace(WaitPlace place, const WinRect& target, WindowSize size) {
    if (!IsPlace(place)) return std::nullopt;
    const int32_t key = static_cast<int32_t>(place) - 1;
    return WindowPlace{Along(key % 3, target.Left, target.Right, size.Width),
                       Along(key / 3, target.Top, target.Bottom, size.Height)};
}

SlideIn SlideInOf(WaitPlace place, WindowSize size) {
    switch (SideOf(place)) {
        case Side::Left:
            return {{1, 0}, size.Width, false, false};
        case Side::Right:
            return {{-1, 0}, size.Width, false, false};
        case Side::Top:
            return {{0, 1}, size.Height, true, true};
        case Side::Bottom:
            return {{0, -1}, size.Height, false, true};
        case Side::None:
            break;
    }
    return {{0, 0}, 0, false, false};
}

Region UncoveredPart(WaitPlace place, WindowSize size, int32_t shown, int32_t corner) {
    WinRect part{0, 0, size.Width, size.Height};
    switch (SideOf(place)) {
        case Side::Left:
            part.Left = size.Width - shown;
            break;
        case Side::Right:
            part.Right = shown;
            break;
        case Side::Top:
            part.Top = size.Height - shown;
            break;
        case Side::Bottom:
            part.Bottom = shown;
            break;
        case Side::None:
            break;
    }
    return Region::CreateRoundRectRgn(part.Left, part.Top, part.Right, part.Bottom, corner, corner);
}

}  // namespace vorlane
