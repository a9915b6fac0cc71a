// SoundChannel: plays one sound file at a time, for hosts that play a show by themselves. What a click on a slide plays
// is the sheet's affair.
#pragma once

#include "widgets/enums.h"

#include <QObject>
#include <QString>

namespace vorlane {

class PlayingSound;

// The operations are virtual so that a host's tests can put a channel in place that plays nothing.
class SoundChannel : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;
    ~SoundChannel() override;

    // Ends what plays, without a signal, and plays this from so many milliseconds behind its start on; one that repeats
    // has no end, and counts them round and round.
    virtual void play(const QString& path, qint64 from, bool repeats);
    virtual void stop();
    // Holds what plays and what comes.
    virtual void setPaused(bool paused);
    // 0 to 100 as the ear measures it, at once and for what comes.
    virtual void setVolume(int volume);

Q_SIGNALS:
    // The sound has come to its end, or could not be played (on).
    void finished();
    // Something is wrong with the sound; text tells the user. finished() follows unless it plays on.
    void troubled(const QString& path, vorlane::ui::SoundTrouble trouble, const QString& text);

private:
    PlayingSound* sound_ = nullptr;
    int volume_ = 100;
    bool paused_ = false;
};

}  // namespace vorlane
