// The menus of the headless desktop. Each call stands in the trace as "menu <number> ...". A menu that is tracked is
// answered at once with what a test scripted; one that is still there at the end is a leak.
#pragma once

#include "platform/headless/trace.h"
#include "platform/menus.h"

#include <deque>
#include <functional>
#include <set>

namespace vorlane::headless {

class FakeMenus final : public vorlane::Menus {
public:
    explicit FakeMenus(Trace& trace) : trace_(trace) {}

    // The coming menus are answered with these items in turn, and with 0 when none is left.
    void Choose(int32_t item) { choices_.push_back(item); }
    // Runs while a menu is open, before its answer.
    std::function<void()> OnTrack;
    // From now on no menu can be made, or it can again.
    void FailCreating(bool fail) { failCreating_ = fail; }
    int32_t OpenMenus() const { return static_cast<int32_t>(menus_.size()); }

    Hmenu CreatePopupMenu() override;
    void AppendMenuA(Hmenu menu, uint32_t flags, int32_t item, std::string_view text) override;
    void DrawMenuBar(Hwnd window) override;
    int32_t TrackPopupMenuEx(Hmenu menu, uint32_t flags, Point place, Hwnd parent,
                             const TPMPARAMS& parameters) override;
    void DestroyMenu(Hmenu menu) override;

private:
    Trace& trace_;
    Hmenu last_ = 0;
    std::set<Hmenu> menus_;
    std::deque<int32_t> choices_;
    bool failCreating_ = false;
};

}  // namespace vorlane::headless
