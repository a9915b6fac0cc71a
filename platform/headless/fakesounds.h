// The sounds of the headless desktop. A file that a test has declared plays for its length on the virtual clock; any
// other one opens and is silent. Each call that does something stands in the trace as "sound ...".
#pragma once

#include "platform/headless/roles.h"
#include "platform/sounds.h"

#include <map>
#include <string>

namespace vorlane::headless {

class FakeSounds final : public vorlane::Sounds {
public:
    FakeSounds(Trace& trace, const FakeClock& clock) : trace_(trace), clock_(clock) {}

    void Add(const std::string& path, double seconds) { seconds_[path] = seconds; }
    // An open sound falls silent, is another program's affair, or is closed by someone else.
    void End(const std::string& alias);
    void SetMode(const std::string& alias, int32_t mode);
    void Close(const std::string& alias) { open_.erase(alias); }
    // From now on Play and Stop fail, or they work again.
    void FailPlaying(bool fail) { failPlaying_ = fail; }
    void FailStopping(bool fail) { failStopping_ = fail; }
    int32_t OpenSounds() const { return static_cast<int32_t>(open_.size()); }

    double SoundSeconds(const std::string& path) override;
    int32_t CanalMusic() const override { return 11; }
    int32_t CanalComment() const override { return 12; }
    // The n-th one gets the alias "son<n>".
    std::string Play(const std::string& path, int32_t canal, int32_t volume) override;
    void Stop(const std::string& alias) override;
    bool IsOpen(const std::string& alias) const override { return open_.count(alias) != 0; }
    int32_t Mode(const std::string& alias) const override;
    bool IsPlaying(const SoundName& sound) const override;
    SoundName Current() const override;

private:
    struct Sound {
        int32_t Handle;
        std::string File;
        int64_t End;  // when it falls silent
        int32_t Mode = kUsualMode;
    };

    Trace& trace_;
    const FakeClock& clock_;
    std::map<std::string, double> seconds_;
    std::map<std::string, Sound> open_;
    int32_t played_ = 0;
    bool failPlaying_ = false;
    bool failStopping_ = false;
};

}  // namespace vorlane::headless
