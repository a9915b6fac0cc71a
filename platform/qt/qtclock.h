// QtClock: time, timers and yielding over Qt's event loop. Its timers end with it. A tick that fails ends in the clock:
// no exception reaches the event loop.
#pragma once

#include "platform/desktop.h"

#include <map>

#include <QElapsedTimer>
#include <QObject>

namespace vorlane {

class QtClock final : public QObject, public Clock {
    Q_OBJECT

public:
    explicit QtClock(QObject* parent = nullptr);

    int64_t Now() const override;
    TimerId StartTimer(int32_t interval, std::function<void()> tick) override;
    void StopTimer(TimerId timer) override;
    void DoEvents() override;
    void Sleep(int32_t milliseconds) override;

    int RunningTimers() const { return static_cast<int>(timers_.size()); }

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    struct Running {
        int system;  // Qt's own number, used again once it is free, so never given away
        std::function<void()> tick;
    };

    QElapsedTimer started_;
    TimerId last_ = 0;
    std::map<TimerId, Running> timers_;
};

}  // namespace vorlane
