// QtMenus: popup menus as real menus of the desktop.
#pragma once

#include "platform/menus.h"

#include <map>
#include <memory>

class QMenu;

namespace vorlane {

class QtWindows;

class QtMenus final : public Menus {
public:
    explicit QtMenus(const QtWindows& windows) : windows_(windows) {}
    ~QtMenus() override;

    Hmenu CreatePopupMenu() override;
    void AppendMenuA(Hmenu menu, uint32_t flags, int32_t item, std::string_view text) override;
    void DrawMenuBar(Hwnd) override {}
    int32_t TrackPopupMenuEx(Hmenu menu, uint32_t flags, Point place, Hwnd parent,
                             const TPMPARAMS& parameters) override;
    void DestroyMenu(Hmenu menu) override;

private:
    // nullptr for a menu that is not there.
    std::shared_ptr<QMenu> Find(Hmenu menu) const;

    const QtWindows& windows_;
    Hmenu last_ = 0;
    std::map<Hmenu, std::shared_ptr<QMenu>> menus_;
};

}  // namespace vorlane
