// Soundtrack: plays the sounds of a show along with its slides. A sound begins with its slide and lasts until its end,
// or until the next one of its kind; one that repeats has no end. While a comment is heard, the music is at the volume
// that it is to have under comments.
#pragma once

#include "editor/savedshow.h"
#include "widgets/soundchannel.h"

#include <array>
#include <functional>
#include <memory>
#include <vector>

namespace vorlane::editor {

class Soundtrack : public QObject {
    Q_OBJECT

public:
    using MakeChannel = std::function<std::unique_ptr<SoundChannel>()>;

    explicit Soundtrack(const MakeChannel& makeChannel = {}, QObject* parent = nullptr);

    // What is played from now on; exposure: seconds that a slide lasts.
    void setSounds(std::vector<SavedSound> sounds, int exposure);
    // A slide begins. In turn, what sounds goes on; otherwise what would sound by now is taken up where it would be.
    void begin(int slide, bool inTurn);
    void setPaused(bool paused);
    void stop();

Q_SIGNALS:
    // Something is wrong with a sound; for the user.
    void troubled(const QString& text);

private:
    struct Voice {
        std::unique_ptr<SoundChannel> channel;
        SavedSound sound{};
        bool sounds = false;
    };

    Voice& VoiceOf(SoundKind kind) { return voices_.at(static_cast<size_t>(kind)); }
    const SavedSound* LastUpTo(SoundKind kind, int slide) const;
    void Play(const SavedSound& sound, int slide);
    void Silence(Voice& voice);
    void SetVolumes();

    std::array<Voice, 2> voices_;  // by their kinds
    std::vector<SavedSound> sounds_;
    int exposure_ = 1;
};

}  // namespace vorlane::editor
