#include "editor/soundchannel.h"

#include "widgets/retiredplayer.h"

#include <utility>

#include <QAudioOutput>
#include <QMediaPlayer>
#include <QUrl>

namespace vorlane::editor {

void MediaChannel::play(const QString& path, qint64 from, bool repeats) {
    stop();
    path_ = path;
    from_ = from;
    repeats_ = repeats;
    Begin();
}

void MediaChannel::Begin() {
    output_ = new QAudioOutput(this);
    player_ = new QMediaPlayer(this);
    player_->setAudioOutput(output_);
    output_->setVolume(volume_);
    connect(player_, &QMediaPlayer::seekableChanged, this, &MediaChannel::Seek);
    connect(player_, &QMediaPlayer::mediaStatusChanged, this, [this](QMediaPlayer::MediaStatus status) {
        if (status == QMediaPlayer::EndOfMedia) End();
    });
    connect(player_, &QMediaPlayer::errorOccurred, this, [this](QMediaPlayer::Error, const QString& why) {
        Q_EMIT failed(path_, why);
        End();
    });
    player_->setLoops(repeats_ ? QMediaPlayer::Infinite : QMediaPlayer::Once);
    player_->setSource(QUrl::fromLocalFile(path_));
    if (player_ != nullptr && !paused_) player_->play();
}

// Behind its end there is nothing to be heard of a sound that doesn't repeat.
void MediaChannel::Seek() {
    if (from_ <= 0 || !player_->isSeekable() || player_->duration() <= 0) return;
    const qint64 from = std::exchange(from_, 0);
    if (!repeats_ && from >= player_->duration()) return End();
    player_->setPosition(from % player_->duration());
}

void MediaChannel::stop() {
    if (player_ != nullptr) RetirePlayer(std::exchange(player_, nullptr), std::exchange(output_, nullptr));
}

void MediaChannel::End() {
    if (player_ == nullptr) return;
    stop();
    Q_EMIT finished();
}

void MediaChannel::setPaused(bool paused) {
    if (std::exchange(paused_, paused) == paused || player_ == nullptr) return;
    paused ? player_->pause() : player_->play();
}

void MediaChannel::setVolume(int volume) {
    volume_ = static_cast<float>(volume) / 100;
    if (output_ != nullptr) output_->setVolume(volume_);
}

}  // namespace vorlane::editor
