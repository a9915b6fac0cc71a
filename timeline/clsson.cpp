#include "timeline/clsson.h"

#include "platform/failure.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace vorlane {

namespace {

std::string KeyText(int32_t diapoKey) {
    return std::to_string(diapoKey) + "k";
}

// Of a slide's sound with that file name in small letters; -1 for none.
int32_t IndexOf(const SonCollection& sounds, int32_t diapoKey, const std::string& lowerName) {
    for (int32_t i = 1; i <= sounds.Count(); ++i) {
        const tSon& son = sounds.Item(i);
        if (son.DiapoKey == diapoKey && Trelmic6::LowerCase(son.Nom) == lowerName) return i;
    }
    return -1;
}

}  // namespace

// --- What the owner answers ---

int32_t ClsSon::NumDiapo(int32_t key) {
    if (answer_) numDiapo_ = answer_(key);
    Events.csGetNumDiapo(key, numDiapo_);
    return numDiapo_;
}

void ClsSon::AnswerNumDiapo(const void* owner, std::function<int32_t(int32_t key)> answer,
                            std::function<uint64_t()> state) {
    owner_ = owner;
    answer_ = std::move(answer);
    state_ = std::move(state);
    known_ = {};
}

void ClsSon::LeaveUnanswered(const void* owner) {
    if (owner == owner_) AnswerNumDiapo(nullptr, {});
}

std::shared_ptr<const SoundPlaces> ClsSon::KnownPlaces(const void* owner) {
    if (owner != owner_) return nullptr;
    const uint64_t state = answer_ && state_ ? state_() : 0;
    if (state == 0) return nullptr;
    const bool good = known_.State == state && known_.Revision == sounds_->Revision();
    if (good) return known_.Places;
    Known known{state, sounds_->Revision(), std::make_shared<SoundPlaces>()};
    for (int32_t i = 1; i <= Count(); ++i) {
        const tSon& son = sounds_->Item(i);
        known.Places->Insert(known.Places->Count(), answer_(son.DiapoKey), son.Durée);
    }
    known_ = std::move(known);
    return known_.Places;
}

// A sound has come to a place of a list whose numbers were known.
void ClsSon::KeepKnown(const tSon& son, size_t place) {
    known_.Places->Insert(place, answer_(son.DiapoKey), son.Durée);
    known_.Revision = sounds_->Revision();
}

// Leaves the list to its holders.
void ClsSon::Begin() {
    sounds_ = std::make_shared<SonCollection>();
    known_ = {};
}

void ClsSon::FollowDisplay() {
    Events.csGetRedraw(redraw_);
    if (redraw_) Events.csRepaint();
}

// --- Adding and sorting ---

void ClsSon::Add(const std::string& soundFileName, int32_t diapoKey, int32_t diapoValue, bool repetition, bool rehausse,
                 uint8_t volNormal, uint8_t volPendantComment, uint8_t volComment) {
    if (Trelmic6::PathExists(soundFileName, PathKind::File)) {
        tSon son;
        son.Nom = soundFileName;
        son.Durée = utilities_.SoundSeconds(soundFileName);
        son.DiapoKey = diapoKey;
        son.Repetition = repetition;
        son.Rehausse = rehausse;
        son.VolNormal = volNormal;
        son.VolPendantComment = volPendantComment;
        son.VolComment = volComment;
        son.TypeSon = typeSon_;
        Place(son, diapoValue);
    }
    FollowDisplay();
}

void ClsSon::Place(const tSon& son, int32_t diapoValue) {
    const bool known = OnlyOwnerAnswers() && KnownPlaces(owner_) != nullptr;
    const std::optional<int32_t> before =
        known ? FirstKnownBehind(son.DiapoKey, diapoValue) : FirstBehind(son.DiapoKey, diapoValue);
    if (before) {
        sounds_->Add(son, KeyText(son.DiapoKey), *before);
    } else {
        sounds_->Add(son, KeyText(son.DiapoKey));
    }
    if (known) KeepKnown(son, static_cast<size_t>(before.value_or(Count())) - 1);
}

// The same as FirstBehind without a question for each sound.
std::optional<int32_t> ClsSon::FirstKnownBehind(int32_t diapoKey, int32_t diapoValue) const {
    const int32_t wanted = diapoValue == -1 ? answer_(diapoKey) : diapoValue;
    if (wanted == -1) return std::nullopt;
    const SoundPlaces& places = *known_.Places;
    const std::vector<int32_t>& numbers = places.Numbers();
    const auto stop = places.InOrder() ? numbers.begin() + static_cast<std::ptrdiff_t>(places.FirstBehind(wanted))
                                       : std::find_if(numbers.begin(), numbers.end(),
                                                      [&](int32_t number) { return number == -1 || number > wanted; });
    if (stop == numbers.end() || *stop == -1) return std::nullopt;
    return static_cast<int32_t>(stop - numbers.begin()) + 1;
}

// Index of the first sound on a later slide than the wanted one; nothing when a slide without a number comes first.
// The wanted number is asked for at each step unless the caller knows it.
std::optional<int32_t> ClsSon::FirstBehind(int32_t diapoKey, int32_t diapoValue) {
    for (int32_t i = 1; i <= Count(); ++i) {
        const int32_t wanted = diapoValue == -1 ? NumDiapo(diapoKey) : diapoValue;
        if (wanted == -1) return std::nullopt;
        const int32_t present = NumDiapo(sounds_->Item(i).DiapoKey);
        if (present == -1) return std::nullopt;
        if (present > wanted) return i;
    }
    return std::nullopt;
}

void ClsSon::Sort() {
    const auto old = sounds_;
    Begin();
    OnlyOwnerAnswers() ? SortByAnswers(*old) : SortByEvents(*old);
}

void ClsSon::SortByEvents(const SonCollection& old) {
    for (int32_t i = 1; i <= old.Count(); ++i) {
        // NOLINTNEXTLINE(performance-unnecessary-copy-initialization): a handler may change the list
        const tSon son = old.Item(i);
        const int32_t number = NumDiapo(son.DiapoKey);
        if (number >= 0) Place(son, number);
    }
}

// The same order and the same end at a failure: each sound goes behind those whose numbers are not above its own.
void ClsSon::SortByAnswers(const SonCollection& old) {
    std::vector<int32_t> numbers;
    for (int32_t i = 1; i <= old.Count(); ++i) {
        const tSon& son = old.Item(i);
        const int32_t number = NumDiapo(son.DiapoKey);
        if (number < 0) continue;
        const auto behind = std::upper_bound(numbers.begin(), numbers.end(), number);
        if (behind == numbers.end()) {
            sounds_->Add(son, KeyText(son.DiapoKey));
        } else {
            sounds_->Add(son, KeyText(son.DiapoKey), static_cast<int32_t>(behind - numbers.begin()) + 1);
        }
        numbers.insert(behind, number);
    }
}

// --- Single sounds ---

std::optional<tSon> ClsSon::Item(int32_t key) const {
    const int32_t index = sounds_->FindDiapoKey(key);
    return index == -1 ? std::nullopt : std::optional(sounds_->Item(index));
}

// The comparison with the new count is one short, and stays so: hosts know the order that it gives.
void ClsSon::SetItem(int32_t key, const tSon& son) {
    const int32_t index = sounds_->FindDiapoKey(key);
    if (index != -1) {
        sounds_->Remove(index);
        if (index < Count()) {
            sounds_->Add(son, KeyText(key), index);
        } else {
            sounds_->Add(son, KeyText(key));
        }
    }
    FollowDisplay();
}

bool ClsSon::Remove(int32_t key) {
    const int32_t index = sounds_->FindDiapoKey(key);
    if (index == -1) return false;
    return Attempt([&] {
        sounds_->Remove(index);
        FollowDisplay();
    });
}

void ClsSon::RemoveFromName(const std::string& fileName) {
    if (fileName.empty()) return;
    const std::string name = Trelmic6::LowerCase(fileName);
    int16_t diapoIndex = 0;
    for (int32_t index = sounds_->FindLowerName(name); index != -1; index = sounds_->FindLowerName(name)) {
        const int32_t diapoKey = sounds_->Item(index).DiapoKey;
        Events.csGetDiapoIndex(diapoKey, diapoIndex);
        if (diapoIndex > -1) Events.csRemoveSound(diapoKey, diapoIndex);
        // A handler may have taken the sound out itself, put another one in its place, or moved it by a sort.
        const int32_t now = IndexOf(*sounds_, diapoKey, name);
        if (now != -1) sounds_->Remove(now);
    }
    FollowDisplay();
}

void ClsSon::Clear() {
    Begin();
    FollowDisplay();
}

}  // namespace vorlane
