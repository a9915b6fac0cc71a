#include "editor/soundchannel.h"

#include <utility>

#include <QUrl>

namespace vorlane::editor {

MediaChannel::MediaChannel(QObject* parent) : SoundChannel(parent) {
    player_.setAudioOutput(&output_);
    connect(&player_, &QMediaPlayer::mediaStatusChanged, this, [this](QMediaPlayer::MediaStatus status) {
        if (status == QMediaPlayer::EndOfMedia) End();
    });
    connect(&player_, &QMediaPlayer::seekableChanged, this, &MediaChannel::Seek);
    connect(&player_, &QMediaPlayer::errorOccurred, this, [this](QMediaPlayer::Error, const QString& why) {
        if (path_.isEmpty()) return;
        Q_EMIT failed(path_, why);
        End();
    });
}

void MediaChannel::play(const QString& path, qint64 from, bool repeats) {
    stop();
    path_ = path;
    from_ = from;
    repeats_ = repeats;
    player_.setLoops(repeats ? QMediaPlayer::Infinite : QMediaPlayer::Once);
    player_.setSource(QUrl::fromLocalFile(path));
    if (!paused_) player_.play();
}

// Behind its end there is nothing to be heard of a sound that doesn't repeat.
void MediaChannel::Seek() {
    if (from_ <= 0 || !player_.isSeekable() || player_.duration() <= 0) return;
    const qint64 from = std::exchange(from_, 0);
    if (!repeats_ && from >= player_.duration()) return End();
    player_.setPosition(from % player_.duration());
}

void MediaChannel::stop() {
    path_.clear();
    player_.stop();
}

void MediaChannel::End() {
    if (path_.isEmpty()) return;
    stop();
    Q_EMIT finished();
}

void MediaChannel::setPaused(bool paused) {
    if (std::exchange(paused_, paused) == paused || path_.isEmpty()) return;
    paused ? player_.pause() : player_.play();
}

void MediaChannel::setVolume(int volume) {
    output_.setVolume(static_cast<float>(volume) / 100);
}

}  // namespace vorlane::editor
