#include "platform/qt/playingsound.h"

#include "platform/qt/retiredplayer.h"

#include <utility>

#include <QAudioDevice>
#include <QAudioOutput>
#include <QFileInfo>
#include <QMediaDevices>
#include <QMediaPlayer>
#include <QUrl>

namespace vorlane {

PlayingSound::PlayingSound(const QString& path, int volume, QObject* parent)
    : QObject(parent), path_(QFileInfo(path).absoluteFilePath()) {
    const QFileInfo file(path_);
    if (!file.exists()) {
        EndBy(SoundTrouble::Missing);
    } else if (!file.isFile()) {
        EndBy(SoundTrouble::Unplayable);
    } else {
        Start(volume);
    }
}

// The player works with an output alone, also where there is no device; then it keeps time in silence.
void PlayingSound::Start(int volume) {
    output_ = new QAudioOutput(this);
    player_ = new QMediaPlayer(this);
    output_->setVolume(QAudio::convertVolume(static_cast<float>(volume) / 100, QAudio::LogarithmicVolumeScale,
                                             QAudio::LinearVolumeScale));
    player_->setAudioOutput(output_);
    connect(player_, &QMediaPlayer::errorOccurred, this, &PlayingSound::EndByError);
    connect(player_, &QMediaPlayer::mediaStatusChanged, this, [this](QMediaPlayer::MediaStatus status) {
        if (status == QMediaPlayer::InvalidMedia) EndBy(SoundTrouble::Unplayable);
        if (status == QMediaPlayer::EndOfMedia) playing_ = false;
    });
    heard_ = !QMediaDevices::defaultAudioOutput().isNull();
    if (!heard_) Tell(SoundTrouble::NoDevice);
    player_->setSource(QUrl::fromLocalFile(path_));
    player_->play();
}

PlayingSound::~PlayingSound() {
    Stop();
}

void PlayingSound::Stop() {
    playing_ = false;
    if (player_ != nullptr) RetirePlayer(std::exchange(player_, nullptr), std::exchange(output_, nullptr));
}

void PlayingSound::FollowDevice() {
    if (!playing_) return;
    const QAudioDevice device = QMediaDevices::defaultAudioOutput();
    if (device.isNull()) return Tell(SoundTrouble::NoDevice);
    output_->setDevice(device);
}

void PlayingSound::CheckFile() {
    if (playing_ && !QFileInfo::exists(path_)) Tell(SoundTrouble::Gone);
}

void PlayingSound::EndBy(SoundTrouble trouble) {
    if (!playing_) return;
    playing_ = false;
    Tell(trouble);
}

// The player tells of a device that goes as of a damaged file.
void PlayingSound::EndByError() {
    const bool deviceGone = heard_ && QMediaDevices::defaultAudioOutput().isNull();
    EndBy(deviceGone ? SoundTrouble::NoDevice : SoundTrouble::Unplayable);
}

void PlayingSound::Tell(SoundTrouble trouble) {
    if (!told_.insert(trouble).second) return;
    QMetaObject::invokeMethod(
        this, [this, trouble] { Q_EMIT Troubled(trouble); }, Qt::QueuedConnection);
}

}  // namespace vorlane
