// QtSounds: plays sound files by Qt Multimedia, as many at once as there are, each by a player of its own. Nothing is
// loaded of Qt Multimedia before the first sound.
//
// No trouble with a sound is a failure of an operation: it is told from the event loop, and the other sounds play on.
#pragma once

#include "platform/qt/soundtrouble.h"
#include "platform/sounds.h"

#include <map>

#include <QObject>

namespace vorlane {

class PlayingSound;

class QtSounds final : public QObject, public Sounds {
    Q_OBJECT

public:
    QtSounds() = default;
    ~QtSounds() override;

    double SoundSeconds(const std::string& path) override;
    int32_t CanalMusic() const override { return 1; }
    int32_t CanalComment() const override { return 2; }
    std::string Play(const std::string& path, int32_t canal, int32_t volume) override;
    void Stop(const std::string& alias) override;
    bool IsOpen(const std::string& alias) const override { return open_.count(alias) != 0; }
    int32_t Mode(const std::string&) const override { return kUsualMode; }
    bool IsPlaying(const SoundName& sound) const override;
    SoundName Current() const override;

Q_SIGNALS:
    // Of a sound that is open. path is as Play was given it.
    void Troubled(const QString& alias, const QString& path, vorlane::SoundTrouble trouble);

private:
    struct Sound {
        int32_t handle;
        std::string file;
        PlayingSound* playing;
    };

    std::map<std::string, Sound> open_;
    int32_t played_ = 0;
};

}  // namespace vorlane
