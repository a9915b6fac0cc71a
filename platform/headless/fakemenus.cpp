#include "platform/headless/fakemenus.h"

#include <string>

namespace vorlane::headless {

namespace {

std::string Name(Hmenu menu) {
    return "menu " + std::to_string(menu);
}

std::string Hex(uint32_t value) {
    std::string text;
    for (; value != 0; value >>= 4) text.insert(text.begin(), "0123456789ABCDEF"[value & 0xFU]);
    return text.empty() ? "0" : text;
}

// A text on one line: its tabs as "\t".
std::string OneLine(std::string_view text) {
    std::string line;
    for (const char unit : text) line += unit == '\t' ? std::string("\\t") : std::string(1, unit);
    return line;
}

std::string Spelled(const WinRect& rect) {
    return std::to_string(rect.Left) + "," + std::to_string(rect.Top) + "," + std::to_string(rect.Right) + "," +
           std::to_string(rect.Bottom);
}

}  // namespace

Hmenu FakeMenus::CreatePopupMenu() {
    const Hmenu menu = failCreating_ ? 0 : ++last_;
    trace_.Add(Name(menu) + " create");
    if (menu != 0) menus_.insert(menu);
    return menu;
}

void FakeMenus::AppendMenuA(Hmenu menu, uint32_t flags, int32_t item, std::string_view text) {
    const bool separator = (flags & MF_SEPARATOR) != 0;
    trace_.Add(Name(menu) + (separator ? " ----" : " " + std::to_string(item) + " [" + OneLine(text) + "]"));
}

void FakeMenus::DrawMenuBar(Hwnd window) {
    trace_.Add("menu bar of " + std::to_string(window));
}

int32_t FakeMenus::TrackPopupMenuEx(Hmenu menu, uint32_t flags, Point place, Hwnd parent, const TPMPARAMS& parameters) {
    trace_.Add(Name(menu) + " track flags=" + Hex(flags) + " at " + std::to_string(place.X) + "," +
               std::to_string(place.Y) + " over " + std::to_string(parent) +
               " size=" + std::to_string(parameters.cbSize) + " exclude=" + Spelled(parameters.rcExclude));
    if (menus_.count(menu) == 0) return 0;
    if (OnTrack) OnTrack();
    if (choices_.empty()) return 0;
    const int32_t choice = choices_.front();
    choices_.pop_front();
    return choice;
}

void FakeMenus::DestroyMenu(Hmenu menu) {
    trace_.Add(Name(menu) + " destroy");
    menus_.erase(menu);
}

}  // namespace vorlane::headless
