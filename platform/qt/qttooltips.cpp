#include "platform/qt/qttooltips.h"

#include "platform/qt/colors.h"
#include "platform/qt/qtwindows.h"
#include "platform/qt/tooltipwindow.h"

namespace vorlane {

namespace {

int32_t Number(const TooltipParameter& parameter) {
    const auto* number = std::get_if<int32_t>(&parameter);
    return number == nullptr ? 0 : *number;
}

QString Text(const TooltipParameter& parameter) {
    const auto* text = std::get_if<std::string>(&parameter);
    return text == nullptr ? QString() : QString::fromStdString(*text);
}

TOOLINFO Tool(const TooltipParameter& parameter) {
    const auto* tool = std::get_if<TOOLINFO>(&parameter);
    return tool == nullptr ? TOOLINFO{} : *tool;
}

// The two halves of a number, each with a sign of its own.
QPoint Unpacked(int32_t packed) {
    const auto bits = static_cast<uint32_t>(packed);
    return {static_cast<int16_t>(bits & 0xFFFFU), static_cast<int16_t>(bits >> 16)};
}

}  // namespace

QtTooltips::QtTooltips(QtWindows& windows, const Screen& screen) : windows_(windows), screen_(screen) {}

QtTooltips::~QtTooltips() = default;

TooltipWindow* QtTooltips::Find(Hwnd tooltip) const {
    const auto found = tooltips_.find(tooltip);
    return found == tooltips_.end() ? nullptr : found->second.get();
}

Hwnd QtTooltips::CreateTooltip(int32_t style, Hwnd parent) {
    auto tooltip = std::make_unique<TooltipWindow>(style, windows_.WidgetOf(parent));
    const Hwnd window = windows_.HandleOf(&tooltip->Shown());
    tooltips_[window] = std::move(tooltip);
    return window;
}

void QtTooltips::BringToTop(Hwnd tooltip) {
    if (TooltipWindow* window = Find(tooltip)) window->Shown().raise();
}

int32_t QtTooltips::SendMessageA(Hwnd tooltip, TooltipMessage message, int32_t wParam, const TooltipParameter& lParam) {
    TooltipWindow* window = Find(tooltip);
    if (window == nullptr) return 0;
    switch (message) {
        case TTM_ACTIVATE:
            window->SetActive(wParam != 0);
            return 1;
        case TTM_SETDELAYTIME:
            if (wParam == TTDT_INITIAL) {
                window->SetInitialDelay(Number(lParam));
            } else {
                window->SetShowingTime(Number(lParam));
            }
            return 1;
        case TTM_ADDTOOLA:
            window->SetTool(Tool(lParam));
            return 1;
        case TTM_DELTOOLA:
            window->SetTool(std::nullopt);
            return 1;
        case TTM_UPDATETIPTEXTA:
            window->SetToolText(Tool(lParam));
            return 1;
        case TTM_TRACKACTIVATE:
            window->SetTracking(wParam != 0);
            return 1;
        case TTM_TRACKPOSITION:
            window->SetTrackPosition(Unpacked(Number(lParam)));
            return 1;
        case TTM_SETTIPBKCOLOR:
            window->Shown().SetGroundColor(ToQColor(static_cast<OLE_COLOR>(wParam), screen_));
            return 1;
        case TTM_SETTIPTEXTCOLOR:
            window->Shown().SetTextColor(ToQColor(static_cast<OLE_COLOR>(wParam), screen_));
            return 1;
        case TTM_SETTITLEA:
            window->Shown().SetHeading({wParam, Text(lParam)});
            return 1;
    }
    return 0;
}

void QtTooltips::DestroyTooltip(Hwnd tooltip) {
    tooltips_.erase(tooltip);
}

}  // namespace vorlane
