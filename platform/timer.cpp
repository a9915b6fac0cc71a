#include "platform/timer.h"

#include <utility>

namespace vorlane {

void Timer::SetEnabled(bool enabled) {
    if (enabled == Enabled()) return;
    if (enabled) {
        running_ = clock_.StartTimer(interval_, [this] { Tick(); });
    } else {
        clock_.StopTimer(std::exchange(running_, 0));
    }
}

}  // namespace vorlane
