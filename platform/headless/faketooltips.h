// The tooltips of the headless desktop. Each call stands in the trace as "tooltip <window> ...", a message by its
// number, and the windows keep what a user would see. One that is still there at the end counts as an open window.
#pragma once

#include "platform/headless/roles.h"
#include "platform/tooltips.h"

#include <map>
#include <string>

namespace vorlane::headless {

class FakeTooltips final : public vorlane::Tooltips {
public:
    struct State {
        int32_t Style = 0;
        bool Active = true;
        bool Tracking = false;
        int32_t TrackPosition = 0;
        int32_t Icon = 0;
        std::string Title;
        std::optional<TOOLINFO> Tool;
        OLE_COLOR TextColor = 0;
        OLE_COLOR BackColor = 0;
        int32_t InitialDelay = 0;
        int32_t AutoPopDelay = 0;
    };

    // windows names the tooltips among the other windows.
    FakeTooltips(Trace& trace, FakeWindows& windows) : trace_(trace), windows_(windows) {}

    // nullptr for a window that is not there.
    const State* Find(Hwnd tooltip) const;
    // From now on no window can be made, or it can again.
    void FailCreating(bool fail) { failCreating_ = fail; }

    void InitCommonControls() override { trace_.Add("tooltip init"); }
    Hwnd CreateTooltip(int32_t style, Hwnd parent) override;
    void BringToTop(Hwnd tooltip) override;
    int32_t SendMessageA(Hwnd tooltip, TooltipMessage message, int32_t wParam, const TooltipParameter& lParam) override;
    void DestroyTooltip(Hwnd tooltip) override;

private:
    static bool Apply(State& state, TooltipMessage message, int32_t wParam, const TooltipParameter& lParam);

    Trace& trace_;
    FakeWindows& windows_;
    std::map<Hwnd, State> tooltips_;
    bool failCreating_ = false;
};

}  // namespace vorlane::headless
