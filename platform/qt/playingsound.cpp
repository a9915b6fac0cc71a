#include "platform/qt/playingsound.h"

#include "platform/qt/retiredplayer.h"

#include <utility>

#include <QAudioDevice>
#include <QAudioOutput>
#include <QFile>
#include <QFileInfo>
#include <QMediaDevices>
#include <QMediaPlayer>
#include <QUrl>

namespace vorlane {

PlayingSound::PlayingSound(const QString& path, const SoundManner& manner, QObject* parent)
    : QObject(parent), path_(QFileInfo(path).absoluteFilePath()) {
    const QFileInfo file(path_);
    if (!file.exists()) {
        EndBy(SoundTrouble::Missing);
    } else if (!file.isFile()) {
        EndBy(SoundTrouble::Unplayable);
    } else if (!QFile(path_).open(QIODevice::ReadOnly)) {
        EndBy(SoundTrouble::Unreadable);
    } else {
        Start(manner);
    }
}

// The player works with an output alone, also where there is no device; then it keeps time in silence.
void PlayingSound::Start(const SoundManner& manner) {
    from_ = manner.from;
    repeats_ = manner.repeats;
    output_ = new QAudioOutput(this);
    player_ = new QMediaPlayer(this);
    SetVolume(manner.volume);
    player_->setAudioOutput(output_);
    player_->setLoops(repeats_ ? QMediaPlayer::Infinite : QMediaPlayer::Once);
    connect(player_, &QMediaPlayer::errorOccurred, this, &PlayingSound::EndByError);
    connect(player_, &QMediaPlayer::seekableChanged, this, &PlayingSound::Seek);
    connect(player_, &QMediaPlayer::mediaStatusChanged, this, [this](QMediaPlayer::MediaStatus status) {
        if (status == QMediaPlayer::InvalidMedia) EndBy(SoundTrouble::Unplayable);
        if (status == QMediaPlayer::EndOfMedia) End();
    });
    connect(&files_, &QFileSystemWatcher::fileChanged, this, &PlayingSound::CheckFile);
    connect(new QMediaDevices(this), &QMediaDevices::audioOutputsChanged, this, &PlayingSound::FollowDevice);
    files_.addPath(path_);
    heard_ = !QMediaDevices::defaultAudioOutput().isNull();
    if (!heard_) Tell(SoundTrouble::NoDevice);
    player_->setSource(QUrl::fromLocalFile(path_));
    SetPaused(manner.paused);
}

PlayingSound::~PlayingSound() {
    Stop();
}

void PlayingSound::SetVolume(int volume) {
    if (output_ == nullptr) return;
    output_->setVolume(QAudio::convertVolume(static_cast<float>(volume) / 100, QAudio::LogarithmicVolumeScale,
                                             QAudio::LinearVolumeScale));
}

void PlayingSound::SetPaused(bool paused) {
    if (player_ == nullptr || !playing_) return;
    paused ? player_->pause() : player_->play();
}

void PlayingSound::Stop() {
    stopped_ = true;
    playing_ = false;
    Silence();
}

void PlayingSound::Silence() {
    if (player_ != nullptr) RetirePlayer(std::exchange(player_, nullptr), std::exchange(output_, nullptr));
}

// A player can be led to a place only once it knows its file.
void PlayingSound::Seek() {
    if (from_ <= 0 || !player_->isSeekable() || player_->duration() <= 0) return;
    const qint64 from = std::exchange(from_, 0);
    if (!repeats_ && from >= player_->duration()) return End();
    player_->setPosition(from % player_->duration());
}

// --- What happens around ---

void PlayingSound::FollowDevice() {
    if (!playing_) return;
    const QAudioDevice device = QMediaDevices::defaultAudioOutput();
    if (device.isNull()) return Tell(SoundTrouble::NoDevice);
    heard_ = true;
    output_->setDevice(device);
}

// A file that was replaced is another one, to be watched anew.
void PlayingSound::CheckFile() {
    if (playing_ && !QFileInfo::exists(path_)) return Tell(SoundTrouble::Gone);
    files_.removePath(path_);
    files_.addPath(path_);
}

// --- Its end ---

void PlayingSound::End() {
    if (!std::exchange(playing_, false)) return;
    Silence();
    const auto tell = [this] {
        if (!stopped_) Q_EMIT Ended();
    };
    QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
}

void PlayingSound::EndBy(SoundTrouble trouble) {
    if (!playing_) return;
    Tell(trouble);
    End();
}

// The player tells of a device that goes as of a damaged file.
void PlayingSound::EndByError() {
    const bool deviceGone = heard_ && QMediaDevices::defaultAudioOutput().isNull();
    EndBy(deviceGone ? SoundTrouble::NoDevice : SoundTrouble::Unplayable);
}

void PlayingSound::Tell(SoundTrouble trouble) {
    if (!told_.insert(trouble).second) return;
    const auto tell = [this, trouble] {
        if (!stopped_) Q_EMIT Troubled(trouble);
    };
    QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
}

}  // namespace vorlane
