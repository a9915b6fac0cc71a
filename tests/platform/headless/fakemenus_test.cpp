#include "platform/headless/desktop.h"

#include <gtest/gtest.h>

namespace vorlane::headless {
namespace {

constexpr uint32_t kReturnChoice = TPM_RIGHTBUTTON | TPM_NONOTIFY | TPM_RETURNCMD;

TEST(FakeMenus, AnswersInTurnWhatWasScriptedThenNothing) {
    Desktop desktop;
    const Hmenu menu = desktop.menus.CreatePopupMenu();
    desktop.menus.AppendMenuA(menu, MF_STRING, 7, "Sept\t(F7)");
    desktop.menus.AppendMenuA(menu, MF_SEPARATOR, 0, "");
    desktop.menus.Choose(7);
    desktop.menus.Choose(-3);
    EXPECT_EQ(desktop.menus.TrackPopupMenuEx(menu, kReturnChoice, {10, 20}, 5, {20, {}}), 7);
    EXPECT_EQ(desktop.menus.TrackPopupMenuEx(menu, kReturnChoice, {0, 0}, 5, {20, {}}), -3);
    EXPECT_EQ(desktop.menus.TrackPopupMenuEx(menu, kReturnChoice, {0, 0}, 5, {20, {}}), 0);
    desktop.menus.DestroyMenu(menu);
    EXPECT_EQ(desktop.trace.Take({"menu"}),
              "menu 1 create\n"
              "menu 1 7 [Sept\\t(F7)]\n"
              "menu 1 ----\n"
              "menu 1 track flags=182 at 10,20 over 5 size=20 exclude=0,0,0,0\n"
              "menu 1 track flags=182 at 0,0 over 5 size=20 exclude=0,0,0,0\n"
              "menu 1 track flags=182 at 0,0 over 5 size=20 exclude=0,0,0,0\n"
              "menu 1 destroy\n");
}

TEST(FakeMenus, AMenuThatStaysOpenIsALeak) {
    Desktop desktop;
    std::string leaks;
    desktop.OnLeak = [&](const std::string& text) { leaks = text; };
    desktop.menus.CreatePopupMenu();
    EXPECT_EQ(desktop.Leaks(), "open menus: 1\n");
    desktop.menus.DestroyMenu(1);
    EXPECT_EQ(desktop.Leaks(), "");
}

}  // namespace
}  // namespace vorlane::headless
