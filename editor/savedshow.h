// SavedShow: what a show file holds, and its text, which is JSON. A file names its pictures and sounds by their places
// as seen from its own folder, so that a show that moves together with them stays whole.
#pragma once

#include "editor/preferences.h"

#include <optional>
#include <vector>

#include <QByteArray>
#include <QDir>
#include <QString>
#include <QStringList>

namespace vorlane::editor {

enum class SoundKind { Music = 0, Comment = 1 };

// A sound file that starts with a picture. At most one of each kind starts with the same one.
struct SavedSound {
    SoundKind kind = SoundKind::Music;
    int picture = 0;  // its index in the show
    QString path{};
    bool repeats = false;         // until the next one of its kind
    bool boosted = true;          // kept for other players; this one plays it as it is
    int volume = 100;             // percent
    int volumeUnderComment = 25;  // of music while a comment plays
    int volumeOfComment = 100;
    bool operator==(const SavedSound&) const = default;
};

struct SavedShow {
    QStringList pictures{};  // in their order; absolute paths, each as often as the show has it
    SortOrder order{SortBy::Hand, false};
    int exposure = 5;  // seconds that a picture is shown, 1 to kLongestExposition
    std::vector<SavedSound> sounds{};
    QString origin{};  // of a show kept for recovery: its file, empty when it never had one
    bool operator==(const SavedShow&) const = default;
};

// The version of the text that is written; one of a later version is not read.
inline constexpr int kShowVersion = 1;

// base: the folder of the file.
QByteArray ShowText(const SavedShow& show, const QDir& base);

// Either a show, or a sentence for the user on why there is none: damaged text, another kind of file, a later version,
// an entry of another kind than it must be (told by its place). Unknown members are passed over, missing ones are as
// they are at first.
struct ShowReading {
    std::optional<SavedShow> show{};
    QString failure{};
};
ShowReading ReadShow(const QByteArray& text, const QDir& base);

}  // namespace vorlane::editor
