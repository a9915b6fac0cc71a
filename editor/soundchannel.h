// SoundChannel: plays one sound file at a time. Soundtrack has one for each kind of sound; MediaChannel plays them for
// real.
#pragma once

#include <QObject>
#include <QString>

class QAudioOutput;
class QMediaPlayer;

namespace vorlane::editor {

class SoundChannel : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    // Ends what plays, without a signal, and plays this from so many milliseconds after its start on; one that repeats
    // counts them round and round.
    virtual void play(const QString& path, qint64 from, bool repeats) = 0;
    virtual void stop() = 0;
    virtual void setPaused(bool paused) = 0;
    // 0 to 100, at once and for what comes.
    virtual void setVolume(int volume) = 0;

Q_SIGNALS:
    // The sound has come to its end, or never came to sound.
    void finished();
    void failed(const QString& path, const QString& why);
};

class MediaChannel final : public SoundChannel {
    Q_OBJECT

public:
    using SoundChannel::SoundChannel;
    ~MediaChannel() override { stop(); }

    void play(const QString& path, qint64 from, bool repeats) override;
    void stop() override;
    void setPaused(bool paused) override;
    void setVolume(int volume) override;

private:
    void Begin();
    void Seek();
    void End();

    QMediaPlayer* player_ = nullptr;  // of the sound that plays
    QAudioOutput* output_ = nullptr;
    QString path_{};
    float volume_ = 1;
    qint64 from_ = 0;
    bool repeats_ = false;
    bool paused_ = false;
};

}  // namespace vorlane::editor
