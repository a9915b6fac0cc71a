// QtTooltips: tooltips as real windows of their own, in the desktop's font and icons.
#pragma once

#include "platform/tooltips.h"

#include <map>
#include <memory>

namespace vorlane {

class QtWindows;
class TooltipWindow;

class QtTooltips final : public Tooltips {
public:
    // windows names the tooltips among the other windows; screen resolves system colours.
    QtTooltips(QtWindows& windows, const Screen& screen);
    ~QtTooltips() override;

    // nullptr for a tooltip that is not there.
    TooltipWindow* Find(Hwnd tooltip) const;

    void InitCommonControls() override {}
    Hwnd CreateTooltip(int32_t style, Hwnd parent) override;
    void BringToTop(Hwnd tooltip) override;
    int32_t SendMessageA(Hwnd tooltip, TooltipMessage message, int32_t wParam, const TooltipParameter& lParam) override;
    void DestroyTooltip(Hwnd tooltip) override;

private:
    QtWindows& windows_;
    const Screen& screen_;
    std::map<Hwnd, std::unique_ptr<TooltipWindow>> tooltips_;
};

}  // namespace vorlane
