#include "editor/stripsounds.h"

#include "editor/show.h"
#include "widgets/vorlanewidget.h"

#include <utility>

#include <QFileInfo>
#include <QUndoCommand>

namespace vorlane::editor {

namespace {

TimeLineSound Made(const SavedSound& sound, int key, int seconds) {
    return {static_cast<int>(sound.kind),
            key,
            sound.path,
            sound.repeats,
            seconds,
            sound.volumeUnderComment,
            sound.volume,
            sound.volumeOfComment,
            sound.boosted};
}

// The same to the ear; the length is the file's.
bool Same(const TimeLineSound& a, const TimeLineSound& b) {
    return a.Nom == b.Nom && a.Repetition == b.Repetition && a.Rehausse == b.Rehausse && a.VolNormal == b.VolNormal &&
           a.VolPendantComment == b.VolPendantComment && a.VolComment == b.VolComment;
}

}  // namespace

class StripSounds::Command : public QUndoCommand {
public:
    Command(StripSounds& sounds, std::vector<Change> changes, const QString& name)
        : QUndoCommand(name), sounds_(sounds), changes_(std::move(changes)) {}

    void redo() override { Apply(&Change::after); }
    void undo() override { Apply(&Change::before); }

private:
    void Apply(std::optional<TimeLineSound> Change::*side) {
        for (const Change& change : changes_) sounds_.Set(change.kind, change.key, change.*side);
        sounds_.follow();
    }

    StripSounds& sounds_;
    std::vector<Change> changes_;
};

StripSounds::StripSounds(Strip& strip, VorlaneWidget& sheet, Show& show, QObject* parent)
    : QObject(parent), strip_(strip), sheet_(sheet), show_(show) {
    connect(&sheet, &VorlaneWidget::OnTLClear, this, &StripSounds::clear);
    connect(&show, &Show::changed, this, &StripSounds::follow);
}

TimeLineSounds StripSounds::Shown(SoundKind kind) const {
    return kind == SoundKind::Music ? strip_.Musiques() : strip_.Comments();
}

std::optional<TimeLineSound> StripSounds::find(SoundKind kind, int key) const {
    const auto found = Of(kind).find(key);
    return found == Of(kind).end() ? std::nullopt : std::optional(found->second);
}

std::vector<TimeLineSound> StripSounds::all(SoundKind kind) const {
    std::map<int, TimeLineSound> placed;
    for (const auto& [key, sound] : Of(kind)) {
        const int place = sheet_.GetListIndexFromItemData(key);
        if (place >= 0) placed.emplace(place, sound);
    }
    std::vector<TimeLineSound> sounds;
    for (auto& [place, sound] : placed) sounds.push_back(std::move(sound));
    return sounds;
}

std::vector<SavedSound> StripSounds::saved() const {
    std::vector<SavedSound> saved;
    for (const SoundKind kind : {SoundKind::Music, SoundKind::Comment}) {
        for (const TimeLineSound& sound : all(kind)) {
            saved.push_back({kind, sheet_.GetListIndexFromItemData(sound.DiapoKey), sound.Nom, sound.Repetition,
                             sound.Rehausse, sound.VolNormal, sound.VolPendantComment, sound.VolComment});
        }
    }
    return saved;
}

int StripSounds::missing() const {
    int missing = 0;
    for (const SoundKind kind : {SoundKind::Music, SoundKind::Comment}) {
        for (const TimeLineSound& sound : all(kind)) missing += QFileInfo::exists(sound.Nom) ? 0 : 1;
    }
    return missing;
}

void StripSounds::Set(SoundKind kind, int key, const std::optional<TimeLineSound>& sound) {
    if (sound) {
        Of(kind).insert_or_assign(key, *sound);
    } else {
        Of(kind).erase(key);
    }
}

// --- Without a way back ---

void StripSounds::clear() {
    sounds_ = {};
    follow();
}

void StripSounds::begin(const std::vector<SavedSound>& sounds) {
    sounds_ = {};
    for (const SavedSound& sound : sounds) {
        Set(sound.kind, sound.picture, Made(sound, sound.picture, 0));
    }
    follow();
}

// --- With a way back ---

StripSounds::Change StripSounds::ChangeOf(SoundKind kind, int key, std::optional<TimeLineSound> after) const {
    return {kind, key, find(kind, key), std::move(after)};
}

void StripSounds::Push(std::vector<Change> changes, const QString& name) {
    show_.push(new Command(*this, std::move(changes), name));
}

bool StripSounds::isBusy() const {
    return show_.isBusy();
}

int StripSounds::add(SoundKind kind, const QStringList& files, int listIndex) {
    if (isBusy() || listIndex < 0) return 0;
    std::vector<Change> changes;
    int place = listIndex;
    for (const QString& file : files) {
        if (place >= show_.count()) break;
        const int key = sheet_.Key(place);
        const int seconds = strip_.SoundSeconds(file);
        changes.push_back(ChangeOf(kind, key, Made({kind, place, file}, key, seconds)));
        place += SlidesOf(seconds, strip_.ExpositionTime());
    }
    const auto added = static_cast<int>(changes.size());
    if (added > 0) Push(std::move(changes), tr("l'ajout de sons"));
    return added;
}

bool StripSounds::remove(SoundKind kind, int listIndex) {
    const int key = sheet_.Key(listIndex);
    if (isBusy() || listIndex < 0 || !find(kind, key)) return false;
    Push({ChangeOf(kind, key, std::nullopt)}, tr("le retrait d'un son"));
    return true;
}

bool StripSounds::setRepeated(SoundKind kind, int listIndex, bool repeated) {
    const int key = sheet_.Key(listIndex);
    auto sound = listIndex < 0 ? std::nullopt : find(kind, key);
    if (isBusy() || !sound || sound->Repetition == repeated) return false;
    sound->Repetition = repeated;
    Push({ChangeOf(kind, key, sound)}, repeated ? tr("la répétition") : tr("la fin de la répétition"));
    return true;
}

bool StripSounds::setVolumes(int key, std::optional<MusicVolumes> music, std::optional<int> comment) {
    if (isBusy() || sheet_.GetListIndexFromItemData(key) < 0) return false;
    std::vector<Change> changes;
    const auto change = [&](SoundKind kind, auto&& set) {
        const auto before = find(kind, key);
        auto after = before;
        if (after) set(*after);
        if (after != before) changes.push_back({kind, key, before, after});
    };
    if (music) {
        change(SoundKind::Music, [&](TimeLineSound& sound) {
            sound.VolNormal = music->usual;
            sound.VolPendantComment = music->underComment;
        });
    }
    if (comment) change(SoundKind::Comment, [&](TimeLineSound& sound) { sound.VolComment = *comment; });
    if (changes.empty()) return false;
    Push(std::move(changes), tr("le volume"));
    return true;
}

// --- The strip's collections ---

// Painted once.
void StripSounds::follow() {
    strip_.SetRedraw(false);
    Bring(SoundKind::Music);
    Bring(SoundKind::Comment);
    strip_.SetRedraw(true);
    Q_EMIT changed();
}

void StripSounds::Bring(SoundKind kind) {
    TimeLineSounds shown = Shown(kind);
    for (int i = shown.Count(); i >= 1; --i) {
        const TimeLineSound sound = *shown.ItemFromPos(i);
        const auto wanted = find(kind, sound.DiapoKey);
        if (!wanted || !Same(*wanted, sound)) shown.Remove(sound.DiapoKey);
    }
    shown.Sort();
    for (auto& [key, sound] : Of(kind)) {
        const int place = sheet_.GetListIndexFromItemData(key);
        if (place < 0 || shown.Item(key)) continue;
        shown.Add(sound.Nom, key, place, sound.Repetition, sound.Rehausse, sound.VolNormal, sound.VolPendantComment,
                  sound.VolComment);
        if (const auto added = shown.Item(key)) sound.Duree = added->Duree;
    }
}

}  // namespace vorlane::editor
