// StripSounds: the musics and comments of a show, at most one of each kind to a slide, with a way back for all that the
// user does to them. It knows them by the keys of their slides, also while a slide is off the list: a slide that comes
// back by an undo brings its sounds along. What is on the list stands in the strip's collections.
#pragma once

#include "editor/strip.h"
#include "widgets/timelinesound.h"

#include <array>
#include <map>
#include <optional>
#include <vector>

#include <QObject>
#include <QStringList>

namespace vorlane {
class VorlaneWidget;
}

namespace vorlane::editor {

class Show;

struct MusicVolumes {
    int usual;
    int underComment;
};

class StripSounds : public QObject {
    Q_OBJECT

public:
    // All outlive this.
    StripSounds(Strip& strip, VorlaneWidget& sheet, Show& show, QObject* parent = nullptr);

    // Of the slide of that key; nothing when it has none.
    std::optional<TimeLineSound> find(SoundKind kind, int key) const;
    // Those of the slides on the list, in their order.
    std::vector<TimeLineSound> all(SoundKind kind) const;
    // The same of both kinds, by the places of their slides.
    std::vector<SavedSound> saved() const;
    // How many of them have no file.
    int missing() const;

    // --- Without a way back ---
    void clear();
    // A show begins whose slides have their places as keys.
    void begin(const std::vector<SavedSound>& sounds);
    // The list has changed, or come: what stands on it now is in the strip's collections.
    void follow();

    // --- With a way back; not for a show that is at work ---
    bool isBusy() const;
    // Puts files on a slide and those behind it, each where the one before has ended, in place of what is there. How
    // many have found a slide.
    int add(SoundKind kind, const QStringList& files, int listIndex);
    // False when the slide has none.
    bool remove(SoundKind kind, int listIndex);
    bool setRepeated(SoundKind kind, int listIndex, bool repeated);
    // Of the slide of that key, in percent. False for a kind that the slide has no sound of, where nothing changes, and
    // for a slide that is not on the list.
    bool setVolumes(int key, std::optional<MusicVolumes> music, std::optional<int> comment);

Q_SIGNALS:
    void changed();

private:
    struct Change {
        SoundKind kind;
        int key;
        std::optional<TimeLineSound> before;
        std::optional<TimeLineSound> after;
    };
    class Command;
    using Sounds = std::map<int, TimeLineSound>;  // by the key of the slide

    const Sounds& Of(SoundKind kind) const { return sounds_[static_cast<size_t>(kind)]; }
    Sounds& Of(SoundKind kind) { return sounds_[static_cast<size_t>(kind)]; }
    TimeLineSounds Shown(SoundKind kind) const;
    Change ChangeOf(SoundKind kind, int key, std::optional<TimeLineSound> after) const;
    void Push(std::vector<Change> changes, const QString& name);
    void Set(SoundKind kind, int key, const std::optional<TimeLineSound>& sound);
    void Bring(SoundKind kind);

    Strip& strip_;
    VorlaneWidget& sheet_;
    Show& show_;
    std::array<Sounds, 2> sounds_;
};

}  // namespace vorlane::editor
