#include "platform/headless/faketooltips.h"

namespace vorlane::headless {

namespace {

std::string Spelled(const TOOLINFO& tool) {
    std::string text = tool.lpszText;
    for (size_t at = text.find('\n'); at != std::string::npos; at = text.find('\n')) text.replace(at, 1, "\\n");
    return "{size=" + std::to_string(tool.cbSize) + " flags=" + std::to_string(tool.uFlags) +
           " window=" + std::to_string(tool.hwnd) + " id=" + std::to_string(tool.uId) +
           " rect=" + std::to_string(tool.rect.Left) + "," + std::to_string(tool.rect.Top) + "," +
           std::to_string(tool.rect.Right) + "," + std::to_string(tool.rect.Bottom) + " text=[" + text + "]}";
}

std::string Spelled(const TooltipParameter& parameter) {
    if (const auto* number = std::get_if<int32_t>(&parameter)) return std::to_string(*number);
    if (const auto* text = std::get_if<std::string>(&parameter)) return "[" + *text + "]";
    return Spelled(std::get<TOOLINFO>(parameter));
}

OLE_COLOR AsColor(int32_t number) {
    return static_cast<OLE_COLOR>(number);
}

}  // namespace

const FakeTooltips::State* FakeTooltips::Find(Hwnd tooltip) const {
    const auto found = tooltips_.find(tooltip);
    return found == tooltips_.end() ? nullptr : &found->second;
}

Hwnd FakeTooltips::CreateTooltip(int32_t style, Hwnd parent) {
    const Hwnd tooltip = failCreating_ ? 0 : windows_.Open({});
    trace_.Add("tooltip " + std::to_string(tooltip) + " create style=" + std::to_string(style) + " over " +
               std::to_string(parent));
    if (tooltip != 0) tooltips_[tooltip].Style = style;
    return tooltip;
}

void FakeTooltips::BringToTop(Hwnd tooltip) {
    trace_.Add("tooltip " + std::to_string(tooltip) + " top");
}

int32_t FakeTooltips::SendMessageA(Hwnd tooltip, TooltipMessage message, int32_t wParam,
                                   const TooltipParameter& lParam) {
    trace_.Add("tooltip " + std::to_string(tooltip) + " " + std::to_string(message) + " " + std::to_string(wParam) +
               " " + Spelled(lParam));
    const auto found = tooltips_.find(tooltip);
    return found != tooltips_.end() && Apply(found->second, message, wParam, lParam) ? 1 : 0;
}

bool FakeTooltips::Apply(State& state, TooltipMessage message, int32_t wParam, const TooltipParameter& lParam) {
    switch (message) {
        case TTM_ACTIVATE:
            state.Active = wParam != 0;
            return true;
        case TTM_SETDELAYTIME:
            (wParam == 3 ? state.InitialDelay : state.AutoPopDelay) = std::get<int32_t>(lParam);
            return true;
        case TTM_ADDTOOLA:
        case TTM_UPDATETIPTEXTA:
            state.Tool = std::get<TOOLINFO>(lParam);
            return true;
        case TTM_DELTOOLA:
            state.Tool.reset();
            return true;
        case TTM_TRACKACTIVATE:
            state.Tracking = wParam != 0;
            return true;
        case TTM_TRACKPOSITION:
            state.TrackPosition = std::get<int32_t>(lParam);
            return true;
        case TTM_SETTIPBKCOLOR:
            state.BackColor = AsColor(wParam);
            return true;
        case TTM_SETTIPTEXTCOLOR:
            state.TextColor = AsColor(wParam);
            return true;
        case TTM_SETTITLEA:
            state.Icon = wParam;
            state.Title = std::get<std::string>(lParam);
            return true;
    }
    return false;
}

void FakeTooltips::DestroyTooltip(Hwnd tooltip) {
    trace_.Add("tooltip " + std::to_string(tooltip) + " destroy");
    if (tooltips_.erase(tooltip) != 0) windows_.Close(tooltip);
}

}  // namespace vorlane::headless
