// ShowPlayer: plays a show on the whole screen, with its sounds. It brings together what counts (Playback), what shows
// (PlayerWindow) and what sounds (Soundtrack).
#pragma once

#include "editor/playback.h"
#include "editor/playerwindow.h"
#include "editor/savedshow.h"
#include "editor/soundtrack.h"

namespace vorlane::editor {

class ShowPlayer : public QObject {
    Q_OBJECT

public:
    explicit ShowPlayer(ThumbnailDecoder decoder = DecodeThumbnail, const Soundtrack::MakeChannel& makeChannel = {},
                        QObject* parent = nullptr);

    // Plays the show from a picture on, in a window on the whole of the screen that beside is on.
    void play(SavedShow show, int first, const QWidget* beside);
    void stop() { playback_.stop(); }
    Playback& playback() { return playback_; }
    PlayerWindow& window() { return window_; }

Q_SIGNALS:
    // Whole seconds since the start of the show, as it plays.
    void secondBegan(qint64 second);
    // picture: where it was.
    void ended(int picture);
    // Something is wrong with a sound; for the user.
    void troubled(const QString& text);

private:
    void Begin(int picture, bool inTurn);
    void End(int picture);

    SavedShow show_;
    Playback playback_;
    Soundtrack soundtrack_;
    PlayerWindow window_;
};

}  // namespace vorlane::editor
