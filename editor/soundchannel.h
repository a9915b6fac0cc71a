// SoundChannel: plays one sound file at a time. Soundtrack has one for each kind of sound; MediaChannel plays them for
// real.
#pragma once

#include <memory>

#include <QAudioOutput>
#include <QMediaPlayer>
#include <QObject>
#include <QString>

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
    explicit MediaChannel(QObject* parent = nullptr);

    void play(const QString& path, qint64 from, bool repeats) override;
    void stop() override;
    void setPaused(bool paused) override;
    void setVolume(int volume) override;

private:
    void Seek();
    void End();

    QAudioOutput output_;
    QMediaPlayer player_;
    QString path_;  // empty: nothing plays
    qint64 from_ = 0;
    bool repeats_ = false;
    bool paused_ = false;
};

}  // namespace vorlane::editor
