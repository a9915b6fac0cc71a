#include "editor/playback.h"

#include <algorithm>
#include <utility>

namespace vorlane::editor {

namespace {

constexpr int kTick = 40;  // milliseconds

}  // namespace

Playback::Playback(QObject* parent) : QObject(parent) {
    tick_.setInterval(kTick);
    connect(&tick_, &QTimer::timeout, this, [this] { advance(sinceTick_.restart()); });
}

void Playback::start(int first, int count, int exposure) {
    stop();
    if (first < 0 || first >= count) return;
    count_ = count;
    exposure_ = std::max(exposure, 1);
    told_ = -1;
    SetPlaying(true);
    Begin(first, false);
}

void Playback::pause() {
    SetPlaying(false);
}

void Playback::resume() {
    if (isActive()) SetPlaying(true);
}

void Playback::stop() {
    if (!isActive()) return;
    SetPlaying(false);
    within_ = 0;
    Q_EMIT ended(std::exchange(slide_, -1));
}

void Playback::step(int slides) {
    if (isActive()) Begin(std::clamp(slide_ + slides, 0, count_ - 1), false);
}

void Playback::advance(qint64 milliseconds) {
    if (!playing_) return;
    const qint64 lasts = qint64{exposure_} * 1000;
    within_ += milliseconds;
    while (playing_ && within_ >= lasts) {
        if (slide_ + 1 >= count_) return stop();
        const qint64 over = within_ - lasts;
        Begin(slide_ + 1, true);
        within_ += over;
    }
    if (isActive()) TellSecond();
}

qint64 Playback::second() const {
    return isActive() ? qint64{slide_} * exposure_ + within_ / 1000 : 0;
}

void Playback::SetPlaying(bool playing) {
    if (std::exchange(playing_, playing) == playing) return;
    sinceTick_.start();
    playing ? tick_.start() : tick_.stop();
    Q_EMIT playingChanged(playing);
}

void Playback::Begin(int slide, bool inTurn) {
    slide_ = slide;
    within_ = 0;
    Q_EMIT slideBegan(slide, inTurn);
    if (isActive()) TellSecond();
}

void Playback::TellSecond() {
    const qint64 now = second();
    if (std::exchange(told_, now) != now) Q_EMIT secondBegan(now);
}

}  // namespace vorlane::editor
