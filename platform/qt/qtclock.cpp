#include "platform/qt/qtclock.h"

#include "platform/failure.h"

#include <algorithm>

#include <QCoreApplication>
#include <QThread>
#include <QTimerEvent>

namespace vorlane {

QtClock::QtClock(QObject* parent) : QObject(parent) {
    started_.start();
}

int64_t QtClock::Now() const {
    return started_.elapsed();
}

Clock::TimerId QtClock::StartTimer(int32_t interval, std::function<void()> tick) {
    const int system = startTimer(std::max(interval, 1), Qt::PreciseTimer);
    if (system == 0) throw failures::OutOfMemory();
    timers_[++last_] = {system, std::move(tick)};
    return last_;
}

void QtClock::StopTimer(TimerId timer) {
    const auto running = timers_.find(timer);
    if (running == timers_.end()) return;
    killTimer(running->second.system);
    timers_.erase(running);
}

void QtClock::DoEvents() {
    QCoreApplication::processEvents();
}

void QtClock::Sleep(int32_t milliseconds) {
    if (milliseconds > 0) QThread::msleep(static_cast<unsigned long>(milliseconds));
}

void QtClock::timerEvent(QTimerEvent* event) {
    const auto due = std::find_if(timers_.begin(), timers_.end(),
                                  [&](const auto& timer) { return timer.second.system == event->timerId(); });
    if (due == timers_.end()) return;
    const std::function<void()> tick = due->second.tick;  // survives a timer that stops itself
    Attempt(tick);
}

}  // namespace vorlane
