#include "windows/clstooltip.h"

#include "platform/color.h"
#include "platform/numbers.h"
#include "platform/trelmic6.h"
#include "windows/tooltiptext.h"

namespace vorlane {

namespace {

constexpr int32_t kToolSize = 44;
constexpr int32_t kCentred = 2;
constexpr int32_t kFindsTheMouse = 16;
constexpr int32_t kFamilyThatWantsEvenLines = 11;
constexpr int32_t kInformation = 1;

bool IsStyle(int32_t style) {
    return (style & ~(TTS_ALWAYSTIP | TTS_BALLOON)) == 0;
}

bool IsIcon(int32_t icon) {
    return icon >= 0 && icon <= 3;
}

std::string MadeEven(const std::string& text) {
    return Trelmic6::SystemFamily() >= kFamilyThatWantsEvenLines ? Evened(text) : text;
}

}  // namespace

clsToolTip::clsToolTip(const Desktop& desktop) : desktop_(desktop) {
    desktop_.tooltips.InitCommonControls();
}

clsToolTip::~clsToolTip() {
    Destroy();
}

void clsToolTip::Destroy() {
    if (window_ != 0) {
        tool_.cbSize = kToolSize;
        Send(TTM_DELTOOLA, 0, tool_);
        desktop_.tooltips.DestroyTooltip(window_);
        window_ = 0;
    }
    style_ = -1;
}

Hwnd clsToolTip::Create(Hwnd hWnd, const std::string& text, int32_t style, bool tracking, bool centered, int32_t icon,
                        const std::string& title, OLE_COLOR foreColor, OLE_COLOR backColor, int32_t hoverTime,
                        int32_t popupTime) {
    Destroy();
    tool_.hwnd = hWnd;
    if (!IsStyle(style) || !IsIcon(icon)) return 0;
    tool_.cbSize = kToolSize;
    tool_.uFlags = kFindsTheMouse + (centered ? kCentred : 0);
    tool_.rect = desktop_.windows.GetClientRect(hWnd);
    title_ = title;
    if (!initialTitle_) initialTitle_ = title_;
    TakeText(text);
    if (!initialText_) initialText_ = tool_.lpszText;
    TakeColors(foreColor, backColor);
    style_ = style;
    icon_ = icon;
    hoverTime_ = hoverTime;
    popupTime_ = popupTime;
    Open(tracking);
    return window_;
}

void clsToolTip::TakeText(const std::string& text) {
    const std::string lines = InLines(text);
    tool_.lpszText = title_.empty() ? InOneLine(lines) : MadeEven(lines);
}

void clsToolTip::TakeColors(OLE_COLOR foreColor, OLE_COLOR backColor) {
    const auto resolved = [&](OLE_COLOR color) {
        return IsSystemColor(color) ? desktop_.screen.SysColor(static_cast<int32_t>(color & 0x7FFFFFFFU)) : color;
    };
    foreColor_ = resolved(foreColor);
    backColor_ = resolved(backColor);
    if (foreColor_ != backColor_) return;
    foreColor_ = FromSystem(SystemColor::ButtonText);
    backColor_ = FromSystem(SystemColor::InfoBackground);
}

void clsToolTip::Open(bool tracking) {
    window_ = desktop_.tooltips.CreateTooltip(style_ | TTS_NOPREFIX, tool_.hwnd);
    desktop_.tooltips.BringToTop(window_);
    Send(TTM_ADDTOOLA, 0, tool_);
    Send(TTM_SETTITLEA, icon_, title_);
    Send(TTM_SETTIPTEXTCOLOR, static_cast<int32_t>(foreColor_), 0);
    Send(TTM_SETTIPBKCOLOR, static_cast<int32_t>(backColor_), 0);
    Send(TTM_SETDELAYTIME, TTDT_INITIAL, hoverTime_);
    Send(TTM_SETDELAYTIME, TTDT_AUTOPOP, popupTime_);
    if (tracking) Send(TTM_TRACKACTIVATE, FlagNumber(true), tool_);
}

void clsToolTip::Send(TooltipMessage message, int32_t wParam, const TooltipParameter& lParam) {
    desktop_.tooltips.SendMessageA(window_, message, wParam, lParam);
}

// --- The open window ---

void clsToolTip::Activate(bool active) {
    Send(TTM_ACTIVATE, FlagNumber(active), 0);
}

bool clsToolTip::Centered() const {
    return (tool_.uFlags & kCentred) != 0;
}

void clsToolTip::SetText(const std::string& text) {
    tool_.lpszText = MadeEven(InLines(text));
    tool_.cbSize = kToolSize;
    Send(TTM_UPDATETIPTEXTA, 0, tool_);
}

void clsToolTip::SetTitle(const std::string& title) {
    Send(TTM_SETTITLEA, kInformation, InOneLine(title));
}

void clsToolTip::SetTracking(bool tracking) {
    Send(TTM_TRACKACTIVATE, FlagNumber(tracking), tool_);
}

void clsToolTip::SetTrackPosition(int32_t x, int32_t y) {
    const uint32_t packed = (static_cast<uint32_t>(x) & 0xFFFFU) | (static_cast<uint32_t>(y) << 16);
    Send(TTM_TRACKPOSITION, 0, static_cast<int32_t>(packed));
}

}  // namespace vorlane
