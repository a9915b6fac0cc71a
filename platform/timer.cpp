#include "platform/timer.h"

#include <utility>

namespace vorlane {

void Timer::SetEnabled(bool enabled) {
    if (enabled == Enabled()) return;
    if (enabled) {
        running_ = clock_.StartTimer(interval_, [this] { RaiseTick(); });
    } else {
        clock_.StopTimer(std::exchange(running_, 0));
    }
}

// A handler may let the message loop run, and the loop bring the next tick; or it may end the timer.
void Timer::RaiseTick() {
    if (*ticking_) return;
    struct Ticking {
        std::shared_ptr<bool> flag;
        ~Ticking() { *flag = false; }
    } const ticking{ticking_};
    *ticking_ = true;
    Tick();
}

}  // namespace vorlane
