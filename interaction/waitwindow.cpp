// The wait window over the grid: opening it, and following the sheet's window while it is open.
#include "platform/numbers.h"
#include "sheet/vorlane.h"
#include "windows/frmwait.h"

#include <algorithm>
#include <array>

namespace vorlane {

namespace {

constexpr int32_t kBehindWindow = 2;
constexpr std::array<int32_t, 4> kFollowed{WM_SIZE, WM_SIZING, WM_MOVE, WM_MOVING};

}  // namespace

// --- Opening and closing ---

// The sheet's rectangle on the screen, without a bar that shows.
WinRect Vorlane::GridOnScreen() const {
    WinRect rect = Desktop().windows.GetWindowRect(Hwnd());
    const grid::Frame frame = Frame();
    rect.Right = ToInt32(rect.Right - double{grid::BarTakesWidth(frame)});
    rect.Bottom = ToInt32(rect.Bottom - double{grid::BarTakesHeight(frame)});
    return rect;
}

void Vorlane::WaitShow(const std::string& newCaption, WaitPlace fromWhere, bool withoutEffect) {
    const auto show = [&] {
        window_.WaitOpen = true;
        ++window_.WaitShows;
        SharedFrmWait(Desktop()).ShowAnimatedFrom(newCaption, fromWhere, GridOnScreen(), withoutEffect);
    };
    GuardVoid(show, "WaitShow", newCaption, static_cast<int32_t>(fromWhere), withoutEffect);
}

void Vorlane::SetWaitCaption(const std::string& caption) {
    const auto set = [&] {
        FrmWait& form = SharedFrmWait(Desktop());
        form.Fond().SetCaption(caption);
        if (form.Visible()) form.Refresh();
    };
    GuardVoid(set, "WaitCaption", caption);
}

void Vorlane::WaitClose(bool withoutEffect) {
    const auto close = [&] {
        const uint32_t shows = window_.WaitShows;
        SharedFrmWait(Desktop()).CloseWindow(withoutEffect);
        if (window_.WaitShows == shows) window_.WaitOpen = false;  // else it was shown again while it closed
    };
    GuardVoid(close, "WaitClose", withoutEffect);
}

// --- Following the sheet's window ---

void Vorlane::Subclass(bool attach) {
    if (attach == window_.Subclassed) return;
    window_.Subclassed = attach;
    Windows& windows = Desktop().windows;
    for (const int32_t message : kFollowed) {
        attach ? windows.AttachMessage(*this, Hwnd(), message) : windows.DetachMessage(*this, Hwnd(), message);
    }
}

int32_t Vorlane::MsgResponse() const {
    return kBehindWindow;
}

int32_t Vorlane::WindowProc(vorlane::Hwnd, int32_t iMsg, int32_t, int32_t) {
    const bool followed = std::find(kFollowed.begin(), kFollowed.end(), iMsg) != kFollowed.end();
    if (followed && window_.WaitOpen && !internalDrag_) SharedFrmWait(Desktop()).MoveForm(GridOnScreen());
    return 0;
}

}  // namespace vorlane
