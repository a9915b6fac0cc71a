#include "platform/headless/fakesounds.h"

#include "platform/failure.h"
#include "platform/numbers.h"

#include <algorithm>

namespace vorlane::headless {

void FakeSounds::End(const std::string& alias) {
    const auto found = open_.find(alias);
    if (found != open_.end()) found->second.End = clock_.Now();
}

void FakeSounds::SetMode(const std::string& alias, int32_t mode) {
    const auto found = open_.find(alias);
    if (found != open_.end()) found->second.Mode = mode;
}

double FakeSounds::SoundSeconds(const std::string& path) {
    const auto found = seconds_.find(path);
    return found == seconds_.end() ? 0 : found->second;
}

std::string FakeSounds::Play(const std::string& path, int32_t canal, int32_t volume) {
    if (failPlaying_) throw failures::InvalidCall();
    const int64_t end = clock_.Now() + ToInt32(1000 * SoundSeconds(path));
    std::string alias = "son" + std::to_string(++played_);
    open_[alias] = {played_, path, end};
    trace_.Add("sound play " + path + " on " + std::to_string(canal) + " at " + std::to_string(volume) + " as " +
               alias);
    return alias;
}

void FakeSounds::Stop(const std::string& alias) {
    if (failStopping_) throw failures::InvalidCall();
    if (open_.erase(alias) != 0) trace_.Add("sound stop " + alias);
}

int32_t FakeSounds::Mode(const std::string& alias) const {
    const auto found = open_.find(alias);
    return found == open_.end() ? kUsualMode : found->second.Mode;
}

bool FakeSounds::IsPlaying(const SoundName& sound) const {
    return std::any_of(open_.begin(), open_.end(), [&](const auto& entry) {
        const auto& [alias, open] = entry;
        const bool named = (!sound.Alias.empty() && alias == sound.Alias) ||
                           (sound.Handle != -1 && open.Handle == sound.Handle) ||
                           (!sound.File.empty() && open.File == sound.File);
        return named && clock_.Now() < open.End;
    });
}

SoundName FakeSounds::Current() const {
    const auto youngest = std::max_element(
        open_.begin(), open_.end(), [](const auto& a, const auto& b) { return a.second.Handle < b.second.Handle; });
    if (youngest == open_.end()) return {};
    return {youngest->first, youngest->second.Handle, youngest->second.File};
}

}  // namespace vorlane::headless
