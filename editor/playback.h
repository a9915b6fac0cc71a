// Playback: where a show that plays stands in time. It knows neither pictures nor sounds: it counts, and tells when a
// slide or a second begins.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

namespace vorlane::editor {

class Playback : public QObject {
    Q_OBJECT

public:
    explicit Playback(QObject* parent = nullptr);

    // Plays slides from first on; each lasts exposure seconds, from 1 on. Nothing for a first slide that isn't there.
    void start(int first, int count, int exposure);
    void pause();
    void resume();
    void toggle() { playing_ ? pause() : resume(); }
    // Ends it at once.
    void stop();
    // So many slides on, or back, to the start of the slide; not over the show's ends.
    void step(int slides);
    // Lets time pass while it plays.
    void advance(qint64 milliseconds);

    // Playing or paused.
    bool isActive() const { return slide_ >= 0; }
    bool isPlaying() const { return playing_; }
    // -1 when it isn't active.
    int slide() const { return slide_; }
    // Whole seconds since the start of the show.
    qint64 second() const;

Q_SIGNALS:
    // inTurn: the one before has lasted its time; otherwise the show began there, or the user went there.
    void slideBegan(int slide, bool inTurn);
    void secondBegan(qint64 second);
    void playingChanged(bool playing);
    // After its last slide, or stopped there. slide: where it was.
    void ended(int slide);

private:
    void SetPlaying(bool playing);
    void Begin(int slide, bool inTurn);
    void TellSecond();

    QTimer tick_{this};
    QElapsedTimer sinceTick_;
    int count_ = 0;
    int exposure_ = 1;
    int slide_ = -1;
    qint64 within_ = 0;  // milliseconds since the slide began
    qint64 told_ = -1;   // the last second that was told
    bool playing_ = false;
};

}  // namespace vorlane::editor
