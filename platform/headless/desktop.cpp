#include "platform/headless/desktop.h"

#include <cstdio>
#include <cstdlib>

namespace vorlane::headless {

namespace {

[[noreturn]] void Abort(const std::string& leaks) {
    std::fprintf(stderr, "The headless desktop ends with leaks:\n%s", leaks.c_str());
    std::abort();
}

}  // namespace

Desktop::Desktop() : OnLeak(Abort) {}

Desktop::~Desktop() {
    std::string leaks = Leaks();
    shared.Clear();
    if (forms.OpenForms() > 0) leaks += "open forms: " + std::to_string(forms.OpenForms()) + "\n";
    if (!leaks.empty()) OnLeak(leaks);
}

std::string Desktop::Leaks() const {
    std::string leaks;
    if (clock.RunningTimers() > 0) leaks += "running timers: " + std::to_string(clock.RunningTimers()) + "\n";
    if (clock.PendingActions() > 0)
        leaks += "actions without a yield: " + std::to_string(clock.PendingActions()) + "\n";
    const int32_t attached = windows.AttachedMessages();
    if (attached > 0) leaks += "attached window messages: " + std::to_string(attached) + "\n";
    const int32_t others = windows.OpenWindows() - forms.OpenForms();
    if (others > 0) leaks += "open windows: " + std::to_string(others) + "\n";
    if (forms.ShownForms() > 0) leaks += "shown forms: " + std::to_string(forms.ShownForms()) + "\n";
    if (menus.OpenMenus() > 0) leaks += "open menus: " + std::to_string(menus.OpenMenus()) + "\n";
    if (screen.Captured() != 0) leaks += "captured by window " + std::to_string(screen.Captured()) + "\n";
    return leaks;
}

}  // namespace vorlane::headless
