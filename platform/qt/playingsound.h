// PlayingSound: a file that is played by a player of its own. It follows the system's present device, and looks after
// its file while it plays.
#pragma once

#include "platform/qt/soundtrouble.h"

#include <set>

#include <QFileSystemWatcher>
#include <QObject>
#include <QString>

class QAudioOutput;
class QMediaPlayer;

namespace vorlane {

// How a sound is to be played.
struct SoundManner {
    int volume = 100;      // 0 to 100, as the ear measures it
    qint64 from = 0;       // milliseconds behind its start; behind its end there is nothing to be heard
    bool repeats = false;  // without end; from counts round and round
    bool paused = false;   // until SetPaused
};

class PlayingSound : public QObject {
    Q_OBJECT

public:
    // Plays at once.
    PlayingSound(const QString& path, const SoundManner& manner, QObject* parent);
    ~PlayingSound() override;

    // Neither behind the end of the file, nor when nothing (more) of it can be played. True while it is paused.
    bool IsPlaying() const { return playing_; }
    void SetVolume(int volume);
    void SetPaused(bool paused);
    // Nothing more is heard; it may be called from one of its signals.
    void Stop();

Q_SIGNALS:
    // Each kind of trouble once, always from the event loop, and never behind Stop.
    void Troubled(vorlane::SoundTrouble trouble);
    // The same for its end: of the file, or since it can't be played (on).
    void Ended();

private:
    void Start(const SoundManner& manner);
    void Seek();
    void Silence();
    void FollowDevice();
    void CheckFile();
    void Tell(SoundTrouble trouble);
    void End();
    void EndBy(SoundTrouble trouble);
    void EndByError();

    QString path_;                    // absolute
    QAudioOutput* output_ = nullptr;  // as long as something may be heard
    QMediaPlayer* player_ = nullptr;
    QFileSystemWatcher files_;
    qint64 from_ = 0;  // where it has still to be taken to
    bool repeats_ = false;
    bool heard_ = false;  // there was a device, at the start or later
    bool playing_ = true;
    bool stopped_ = false;
    std::set<SoundTrouble> told_;
};

}  // namespace vorlane
