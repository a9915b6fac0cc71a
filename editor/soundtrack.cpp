#include "editor/soundtrack.h"

#include <utility>

namespace vorlane::editor {

namespace {

constexpr SoundKind kKinds[] = {SoundKind::Music, SoundKind::Comment};

}  // namespace

Soundtrack::Soundtrack(const MakeChannel& makeChannel, QObject* parent) : QObject(parent) {
    for (Voice& voice : voices_) {
        voice.channel = makeChannel ? makeChannel() : std::make_unique<SoundChannel>();
        connect(voice.channel.get(), &SoundChannel::troubled, this,
                [this](const QString&, ui::SoundTrouble, const QString& text) { Q_EMIT troubled(text); });
        connect(voice.channel.get(), &SoundChannel::finished, this, [this, &voice] {
            voice.sounds = false;
            SetVolumes();
        });
    }
}

void Soundtrack::setSounds(std::vector<SavedSound> sounds, int exposure) {
    stop();
    sounds_ = std::move(sounds);
    exposure_ = exposure;
}

void Soundtrack::begin(int slide, bool inTurn) {
    for (const SoundKind kind : kKinds) {
        const SavedSound* sound = LastUpTo(kind, slide);
        if (sound != nullptr && (!inTurn || sound->picture == slide)) {
            Play(*sound, slide);
        } else if (!inTurn) {
            Silence(VoiceOf(kind));
        }
    }
    SetVolumes();
}

const SavedSound* Soundtrack::LastUpTo(SoundKind kind, int slide) const {
    const SavedSound* last = nullptr;
    for (const SavedSound& sound : sounds_) {
        if (sound.kind != kind || sound.picture > slide) continue;
        if (last == nullptr || sound.picture > last->picture) last = &sound;
    }
    return last;
}

void Soundtrack::Play(const SavedSound& sound, int slide) {
    Voice& voice = VoiceOf(sound.kind);
    voice.sound = sound;
    voice.sounds = true;
    SetVolumes();
    voice.channel->play(sound.path, qint64{slide - sound.picture} * exposure_ * 1000, sound.repeats);
}

void Soundtrack::Silence(Voice& voice) {
    voice.sounds = false;
    voice.channel->stop();
}

void Soundtrack::SetVolumes() {
    const Voice& comment = VoiceOf(SoundKind::Comment);
    const Voice& music = VoiceOf(SoundKind::Music);
    if (music.sounds) music.channel->setVolume(comment.sounds ? music.sound.volumeUnderComment : music.sound.volume);
    if (comment.sounds) comment.channel->setVolume(comment.sound.volumeOfComment);
}

void Soundtrack::setPaused(bool paused) {
    for (const Voice& voice : voices_) voice.channel->setPaused(paused);
}

void Soundtrack::stop() {
    for (Voice& voice : voices_) Silence(voice);
}

}  // namespace vorlane::editor
