// Menus: the desktop's role for popup menus, built item by item and shown until the user has chosen.
#pragma once

#include "platform/desktop.h"
#include "platform/geometry.h"

#include <cstdint>
#include <string_view>

namespace vorlane {

// Names a popup menu, 0 for none.
using Hmenu = int32_t;

enum MenuItemFlag : uint32_t {
    MF_STRING = 0,
    MF_SEPARATOR = 0x800,
};

// How a popup is tracked: a sum.
enum TrackPopupFlag : uint32_t {
    TPM_RIGHTBUTTON = 2,  // both buttons choose
    TPM_NONOTIFY = 0x80,
    TPM_RETURNCMD = 0x100,         // the answer is what was chosen
    TPM_VERNEGANIMATION = 0x1000,  // opens upwards, where the desktop moves menus at all
};

struct TPMPARAMS {
    int32_t cbSize = 0;  // 20
    WinRect rcExclude;   // what the menu should leave free, screen pixels
};

// Everything but CreatePopupMenu is harmless on a menu that is not there.
class Menus {
public:
    virtual ~Menus() = default;

    // An empty popup. 0 when it can't be made.
    virtual Hmenu CreatePopupMenu() = 0;
    // What stands behind a tab in text is shown at the right, as keys are. An "&" is an "&".
    virtual void AppendMenuA(Hmenu menu, uint32_t flags, int32_t item, std::string_view text) = 0;
    virtual void DrawMenuBar(Hwnd window) = 0;
    // Shows the popup at a place of the screen until the user chooses or dismisses it. The number of the item that was
    // chosen, 0 for none.
    virtual int32_t TrackPopupMenuEx(Hmenu menu, uint32_t flags, Point place, Hwnd parent,
                                     const TPMPARAMS& parameters) = 0;
    virtual void DestroyMenu(Hmenu menu) = 0;
};

}  // namespace vorlane
