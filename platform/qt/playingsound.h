// PlayingSound: a file that is played once, from its start to its end, by a player of its own.
#pragma once

#include "platform/qt/soundtrouble.h"

#include <set>

#include <QObject>
#include <QString>

class QAudioOutput;
class QMediaPlayer;

namespace vorlane {

class PlayingSound : public QObject {
    Q_OBJECT

public:
    // Plays at once, at a volume of 0 to 100 as the ear measures it.
    PlayingSound(const QString& path, int volume, QObject* parent);
    ~PlayingSound() override;

    QString Path() const { return path_; }
    // Neither behind the end of the file, nor when nothing (more) of it can be played.
    bool IsPlaying() const { return playing_; }
    void Stop();

    // What plays goes over to the system's present device.
    void FollowDevice();
    void CheckFile();

Q_SIGNALS:
    // Each kind of trouble once, always from the event loop.
    void Troubled(vorlane::SoundTrouble trouble);

private:
    void Start(int volume);
    void Tell(SoundTrouble trouble);
    void EndBy(SoundTrouble trouble);
    void EndByError();

    QString path_;                    // absolute
    QAudioOutput* output_ = nullptr;  // none for a file that is not there
    QMediaPlayer* player_ = nullptr;
    bool heard_ = false;  // there was a device at the start
    bool playing_ = true;
    std::set<SoundTrouble> told_;
};

}  // namespace vorlane
