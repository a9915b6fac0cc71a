// Tooltips: the desktop's role for native tooltip windows, driven by messages as the common controls take them.
#pragma once

#include "platform/desktop.h"
#include "platform/geometry.h"

#include <cstdint>
#include <string>
#include <variant>

namespace vorlane {

// A tool: the part of a window that a tooltip speaks of, and what it says.
struct TOOLINFO {
    int32_t cbSize = 0;  // 44
    int32_t uFlags = 0;  // sum of 2 centred, 16 finds the mouse by itself
    Hwnd hwnd = 0;       // the window that the tool is in
    int32_t uId = 0;     // the tool's number in it
    WinRect rect;        // its place there, pixels
    std::string lpszText;
    bool operator==(const TOOLINFO&) const = default;
};

// Number, text or tool, as the message asks.
using TooltipParameter = std::variant<int32_t, std::string, TOOLINFO>;

// What a tooltip window understands, with its parameters.
enum TooltipMessage : int32_t {
    TTM_ACTIVATE = 1025,         // whether the tooltip works
    TTM_SETDELAYTIME = 1027,     // TooltipDelay; milliseconds
    TTM_ADDTOOLA = 1028,         // 0; tool
    TTM_DELTOOLA = 1029,         // 0; tool
    TTM_UPDATETIPTEXTA = 1036,   // 0; tool
    TTM_TRACKACTIVATE = 1041,    // whether it shows now, where it is told to; tool
    TTM_TRACKPOSITION = 1042,    // 0; x in the low, y in the high 16 bits, screen pixels
    TTM_SETTIPBKCOLOR = 1043,    // colour
    TTM_SETTIPTEXTCOLOR = 1044,  // colour
    TTM_SETTITLEA = 1056,        // icon: 0 none, 1 information, 2 warning, 3 error; text
};

// Which delay TTM_SETDELAYTIME sets.
enum TooltipDelay : int32_t {
    TTDT_AUTOPOP = 2,  // how long it stays
    TTDT_INITIAL = 3,  // how long until it shows
};

// Sum of the ways a tooltip window can look.
enum TooltipStyle : int32_t {
    TTS_ALWAYSTIP = 1,  // works in an inactive window too
    TTS_NOPREFIX = 2,   // leaves "&" in the text
    TTS_BALLOON = 64,
};

class Tooltips {
public:
    virtual ~Tooltips() = default;

    // Makes the window class ready; more than once is harmless.
    virtual void InitCommonControls() = 0;
    // A hidden tooltip window over parent, without tools. 0 when it can't be made.
    virtual Hwnd CreateTooltip(int32_t style, Hwnd parent) = 0;
    // Puts the window in front of all others, where it is and inactive.
    virtual void BringToTop(Hwnd tooltip) = 0;
    // What a window that is not there gets is lost; the answer is 0.
    virtual int32_t SendMessageA(Hwnd tooltip, TooltipMessage message, int32_t wParam,
                                 const TooltipParameter& lParam) = 0;
    virtual void DestroyTooltip(Hwnd tooltip) = 0;
};

}  // namespace vorlane
