#include "platform/qt/qtsounds.h"

#include "platform/qt/playingsound.h"
#include "platform/qt/soundlength.h"

#include <algorithm>

#include <QFileSystemWatcher>
#include <QMediaDevices>

namespace vorlane {

QtSounds::~QtSounds() = default;

double QtSounds::SoundSeconds(const std::string& path) {
    return SoundLength(QString::fromStdString(path));
}

// --- Playing ---

std::string QtSounds::Play(const std::string& path, int32_t, int32_t volume) {
    if (files_ == nullptr) Watch();
    std::string alias = "son" + std::to_string(++played_);
    auto* playing = new PlayingSound(QString::fromStdString(path), volume, this);
    open_[alias] = {played_, path, playing};
    connect(playing, &PlayingSound::Troubled, this, [this, alias](SoundTrouble trouble) {
        const auto found = open_.find(alias);
        if (found == open_.end()) return;
        Q_EMIT Troubled(QString::fromStdString(alias), QString::fromStdString(found->second.file), trouble);
    });
    if (playing->IsPlaying()) files_->addPath(playing->Path());
    return alias;
}

// A player may be stopped by what it tells, so it goes later.
void QtSounds::Stop(const std::string& alias) {
    const auto found = open_.find(alias);
    if (found == open_.end()) return;
    PlayingSound* playing = found->second.playing;
    open_.erase(found);
    const auto samePath = [&](const auto& entry) { return entry.second.playing->Path() == playing->Path(); };
    if (std::none_of(open_.begin(), open_.end(), samePath)) files_->removePath(playing->Path());
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

// --- What happens around ---

void QtSounds::Watch() {
    files_ = new QFileSystemWatcher(this);
    connect(files_, &QFileSystemWatcher::fileChanged, this, &QtSounds::FileChanged);
    connect(new QMediaDevices(this), &QMediaDevices::audioOutputsChanged, this, [this] {
        for (const auto& [alias, sound] : open_) sound.playing->FollowDevice();
    });
}

// A file that was replaced is another one, to be watched anew.
void QtSounds::FileChanged(const QString& path) {
    for (const auto& [alias, sound] : open_) {
        if (sound.playing->Path() == path) sound.playing->CheckFile();
    }
    files_->removePath(path);
    files_->addPath(path);
}

}  // namespace vorlane
