// clsToolTip: one native tooltip window over another window's inside, with a title, lines of text, an icon, colours and
// delays. The window lives from Create to the next Create or the end of the object; without one, what is sent is lost.
//
// In texts "|" starts a new line.
#pragma once

#include "platform/desktop.h"
#include "platform/tooltips.h"

#include <optional>
#include <string>
#include <string_view>

namespace vorlane {

class clsToolTip {
public:
    explicit clsToolTip(const Desktop& desktop);
    ~clsToolTip();
    clsToolTip(const clsToolTip&) = delete;
    clsToolTip& operator=(const clsToolTip&) = delete;

    // Makes the window anew. style: 0, 1, 64 (balloon) or 65; icon: 0 to 3; anything else makes none. Equal colours
    // stand for those of the system's own tooltips. Times are milliseconds. A text without a title is one line. Returns
    // the window, 0 for none.
    Hwnd Create(Hwnd hWnd, const std::string& text, int32_t style, bool tracking, bool centered, int32_t icon,
                const std::string& title, OLE_COLOR foreColor, OLE_COLOR backColor, int32_t hoverTime,
                int32_t popupTime);

    void Activate(bool active);
    OLE_COLOR BackColor() const { return backColor_; }
    bool Centered() const;
    const std::string& Text() const { return tool_.lpszText; }
    void SetText(const std::string& text);
    // The title of Create; SetTitle does not change it.
    const std::string& Title() const { return title_; }
    // In one line. The icon becomes that of information.
    void SetTitle(const std::string& title);
    OLE_COLOR ForeCol() const { return foreColor_; }
    int32_t HoverTime() const { return hoverTime_; }
    int32_t Icon() const { return icon_; }
    int32_t PopupTime() const { return popupTime_; }
    // -1 before Create, and when it was given a style or an icon that makes no window.
    int32_t Style() const { return style_; }
    // Of the first Create of this object.
    std::string InitialText() const { return initialText_.value_or(""); }
    std::string InitialTitle() const { return initialTitle_.value_or(""); }
    void SetTracking(bool tracking);
    // Screen pixels.
    void SetTrackPosition(int32_t x, int32_t y);

private:
    void Destroy();
    void TakeText(const std::string& text);
    void TakeColors(OLE_COLOR foreColor, OLE_COLOR backColor);
    void Open(bool tracking);
    void Send(TooltipMessage message, int32_t wParam, const TooltipParameter& lParam);

    Desktop desktop_;
    Hwnd window_ = 0;
    int32_t style_ = -1;
    int32_t icon_ = 0;
    OLE_COLOR foreColor_ = 0;
    OLE_COLOR backColor_ = 0;
    std::string title_;
    int32_t hoverTime_ = 0;
    int32_t popupTime_ = 0;
    std::optional<std::string> initialText_;
    std::optional<std::string> initialTitle_;
    TOOLINFO tool_;
};

}  // namespace vorlane
