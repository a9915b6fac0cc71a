#include "widgets/soundchannel.h"

#include "platform/qt/playingsound.h"

#include <utility>

namespace vorlane {

SoundChannel::~SoundChannel() = default;

void SoundChannel::play(const QString& path, qint64 from, bool repeats) {
    SoundChannel::stop();
    sound_ = new PlayingSound(path, {volume_, from, repeats, paused_}, this);
    connect(sound_, &PlayingSound::Troubled, this, [this, path](SoundTrouble trouble) {
        Q_EMIT troubled(path, static_cast<ui::SoundTrouble>(trouble), SoundTroubleText(trouble, path));
    });
    connect(sound_, &PlayingSound::Ended, this, [this] {
        SoundChannel::stop();
        Q_EMIT finished();
    });
}

// It may be stopped by what it tells, so it goes later.
void SoundChannel::stop() {
    if (sound_ == nullptr) return;
    sound_->Stop();
    std::exchange(sound_, nullptr)->deleteLater();
}

void SoundChannel::setPaused(bool paused) {
    if (std::exchange(paused_, paused) != paused && sound_ != nullptr) sound_->SetPaused(paused);
}

void SoundChannel::setVolume(int volume) {
    volume_ = volume;
    if (sound_ != nullptr) sound_->SetVolume(volume);
}

}  // namespace vorlane
