// QtSounds: lengths and aliases of sound files. It reads the header of a wave file; of any other kind it knows nothing.
// What it plays is open and silent.
#pragma once

#include "platform/sounds.h"

#include <map>

namespace vorlane {

class QtSounds final : public Sounds {
public:
    double SoundSeconds(const std::string& path) override;
    int32_t CanalMusic() const override { return 1; }
    int32_t CanalComment() const override { return 2; }
    std::string Play(const std::string& path, int32_t canal, int32_t volume) override;
    void Stop(const std::string& alias) override { open_.erase(alias); }
    bool IsOpen(const std::string& alias) const override { return open_.count(alias) != 0; }
    int32_t Mode(const std::string&) const override { return kUsualMode; }
    bool IsPlaying(const SoundName&) const override { return false; }
    SoundName Current() const override;

private:
    struct Sound {
        int32_t handle;
        std::string file;
    };

    std::map<std::string, Sound> open_;
    int32_t played_ = 0;
};

}  // namespace vorlane
