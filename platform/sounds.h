// Sounds: the desktop's role for what plays and measures sounds. A sound is open, and known by its alias, from Play to
// Stop, also behind its end; several may be open on one channel.
#pragma once

#include <cstdint>
#include <string>

namespace vorlane {

// Names a sound by whichever is given: the alias of Play, the player's own number, or the file.
struct SoundName {
    std::string Alias = {};
    int32_t Handle = -1;
    std::string File = {};
};

// State of a sound that is open; it may have others.
enum SoundMode : int32_t { kUsualMode = 0, kLeftAlone = 1 };

class Sounds {
public:
    virtual ~Sounds() = default;

    // Length of a sound file in seconds; 0 when it can't be read.
    virtual double SoundSeconds(const std::string& path) = 0;

    // The numbers of the two channels, which differ.
    virtual int32_t CanalMusic() const = 0;
    virtual int32_t CanalComment() const = 0;
    // Opens a file and plays it from its start, at a volume of 0 to 100. Gives its alias, which is not empty. A file
    // that can't be played is open all the same, and silent.
    virtual std::string Play(const std::string& path, int32_t canal, int32_t volume) = 0;
    // Harmless on an alias that is not open.
    virtual void Stop(const std::string& alias) = 0;
    virtual bool IsOpen(const std::string& alias) const = 0;
    // A SoundMode or another number: kLeftAlone asks whoever polls to pass the sound over.
    virtual int32_t Mode(const std::string& alias) const = 0;
    virtual bool IsPlaying(const SoundName& sound) const = 0;
    // The open sound that was played last; names nothing when there is none.
    virtual SoundName Current() const = 0;
};

}  // namespace vorlane
