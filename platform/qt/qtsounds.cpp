#include "platform/qt/qtsounds.h"

#include "platform/qt/playingsound.h"
#include "platform/qt/soundlength.h"

#include <algorithm>

namespace vorlane {

QtSounds::~QtSounds() = default;

double QtSounds::SoundSeconds(const std::string& path) {
    return SoundLength(QString::fromStdString(path));
}

std::string QtSounds::Play(const std::string& path, int32_t, int32_t volume) {
    std::string alias = "son" + std::to_string(++played_);
    auto* playing = new PlayingSound(QString::fromStdString(path), {.volume = volume}, this);
    open_[alias] = {played_, path, playing};
    connect(playing, &PlayingSound::Troubled, this, [this, alias](SoundTrouble trouble) {
        const auto found = open_.find(alias);
        if (found == open_.end()) return;
        Q_EMIT Troubled(QString::fromStdString(alias), QString::fromStdString(found->second.file), trouble);
    });
    return alias;
}

// A player may be stopped by what it tells, so it goes later.
void QtSounds::Stop(const std::string& alias) {
    const auto found = open_.find(alias);
    if (found == open_.end()) return;
    PlayingSound* playing = found->second.playing;
    open_.erase(found);
    playing->Stop();
    playing->deleteLater();
}

bool QtSounds::IsPlaying(const SoundName& sound) const {
    return std::any_of(open_.begin(), open_.end(), [&](const auto& entry) {
        const auto& [alias, open] = entry;
        const bool named = (!sound.Alias.empty() && alias == sound.Alias) ||
                           (sound.Handle != -1 && open.handle == sound.Handle) ||
                           (!sound.File.empty() && open.file == sound.File);
        return named && open.playing->IsPlaying();
    });
}

SoundName QtSounds::Current() const {
    const auto youngest = std::max_element(
        open_.begin(), open_.end(), [](const auto& a, const auto& b) { return a.second.handle < b.second.handle; });
    if (youngest == open_.end()) return {};
    return {youngest->first, youngest->second.handle, youngest->second.file};
}

}  // namespace vorlane
