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
    const std::string leaks = Leaks();
    if (!leaks.empty()) OnLeak(leaks);
}

std::string Desktop::Leaks() const {
    std::string leaks;
    if (clock.RunningTimers() > 0) leaks += "running timers: " + std::to_string(clock.RunningTimers()) + "\n";
    if (windows.OpenWindows() > 0) leaks += "open windows: " + std::to_string(windows.OpenWindows()) + "\n";
    if (screen.Captured() != 0) leaks += "captured by window " + std::to_string(screen.Captured()) + "\n";
    return leaks;
}

}  // namespace vorlane::headless
