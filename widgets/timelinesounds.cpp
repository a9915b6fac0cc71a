#include "widgets/timelinesounds.h"

#include "platform/failure.h"
#include "platform/numbers.h"
#include "timeline/clsson.h"
#include "widgets/conversions.h"

namespace vorlane {

int TimeLineSounds::Count() const {
    return sounds_ ? sounds_->Count() : 0;
}

bool TimeLineSounds::Add(const QString& soundFileName, int diapoKey, int diapoValue, bool repetition, bool rehausse,
                         int volNormal, int volPendantComment, int volComment) {
    if (!sounds_) return false;
    const bool taken = sounds_->Item(diapoKey).has_value();
    Attempt([&] {
        sounds_->Add(ToText(soundFileName), diapoKey, diapoValue, repetition, rehausse, ToByte(volNormal),
                     ToByte(volPendantComment), ToByte(volComment));
    });
    return !taken && sounds_->Item(diapoKey).has_value();
}

std::optional<TimeLineSound> TimeLineSounds::Item(int key) const {
    const auto son = sounds_ ? sounds_->Item(key) : std::nullopt;
    return son ? std::optional(FromSon(*son)) : std::nullopt;
}

bool TimeLineSounds::SetItem(int key, const TimeLineSound& sound) {
    if (!sounds_) return false;
    const bool known = sounds_->Item(key).has_value();
    return Attempt([&] { sounds_->SetItem(key, ToSon(sound)); }) && known;
}

bool TimeLineSounds::Remove(int key) {
    return sounds_ && sounds_->Remove(key);
}

std::optional<TimeLineSound> TimeLineSounds::ItemFromPos(int index) const {
    if (index < 1 || index > Count()) return std::nullopt;
    return FromSon(sounds_->ItemFromPos(index));
}

void TimeLineSounds::RemoveFromName(const QString& fileName) {
    if (sounds_) Attempt([&] { sounds_->RemoveFromName(ToText(fileName)); });
}

void TimeLineSounds::Sort() {
    if (sounds_) Attempt([&] { sounds_->Sort(); });
}

void TimeLineSounds::Clear() {
    if (sounds_) Attempt([&] { sounds_->Clear(); });
}

}  // namespace vorlane
