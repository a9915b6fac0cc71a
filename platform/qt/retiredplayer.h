// Ends players of Qt Multimedia. A player that is stopped or destroyed while it is still opening its file can wait for
// ever for its own threads, and the user's thread with it. So it falls silent at once, and goes when its file is open.
#pragma once

class QAudioOutput;
class QMediaPlayer;

namespace vorlane {

// Takes both over; neither tells anything any more. May be called from one of the player's own signals.
void RetirePlayer(QMediaPlayer* player, QAudioOutput* output);

}  // namespace vorlane
