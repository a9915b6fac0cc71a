// Timer: raises Tick every Interval milliseconds while it is enabled. Created disabled. Not a part of the control
// tree, for there is nothing to see.
#pragma once

#include "platform/desktop.h"
#include "platform/event.h"

#include <cstdint>
#include <memory>

namespace vorlane {

class Timer {
public:
    // interval: milliseconds, 1 or more.
    Timer(Clock& clock, int32_t interval) : clock_(clock), interval_(interval) {}
    ~Timer() { SetEnabled(false); }
    Timer(const Timer&) = delete;
    Timer& operator=(const Timer&) = delete;

    int32_t Interval() const { return interval_; }
    bool Enabled() const { return running_ != 0; }
    // Enabling a timer that runs already does not start its interval anew.
    void SetEnabled(bool enabled);

    Event<> Tick;  // never inside its own raise

private:
    void RaiseTick();

    Clock& clock_;
    int32_t interval_;
    Clock::TimerId running_ = 0;
    std::shared_ptr<bool> ticking_ = std::make_shared<bool>(false);  // a handler of Tick is running
};

}  // namespace vorlane
