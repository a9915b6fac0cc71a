// The sound buttons: at most one sound a channel, of one item at a time. The host decides what is played; the sheet
// plays it, turns the button and watches the channels until their sounds have ended.
#include "platform/sounds.h"
#include "platform/trelmic6.h"
#include "sheet/slidemember.h"
#include "sheet/vorlane.h"

namespace vorlane {

namespace {

constexpr int32_t kMusicButton = 0;
constexpr int32_t kCommentButton = 1;
constexpr int32_t kBothChannels = -1;
constexpr int32_t kFullVolume = 100;

// Numbers of button pictures.
constexpr int32_t kPlay = 1;
constexpr int32_t kStop = 2;
constexpr int32_t kPlayMusic = 3;
constexpr int32_t kPlayComment = 4;

int32_t ButtonOf(bool comment) {
    return comment ? kCommentButton : kMusicButton;
}

}  // namespace

void Vorlane::ConnectSlideSounds(const sheet::SlideMember& member) {
    const int16_t index = member.Index;
    sheet::Hear(member.Slide.Events.ClickPlay, member, [this, index](bool comment) { SlideClickPlay(index, comment); });
    sheet::Hear(member.Slide.Events.ClickStop, member, [this, index](bool comment) { SlideClickStop(index, comment); });
    sheet::Hear(member.Slide.Events.ClickText, member, [this, index] { Events.ClickText(index); });
}

int32_t Vorlane::CanalOf(bool comment) const {
    return comment ? Desktop().sounds.CanalComment() : Desktop().sounds.CanalMusic();
}

// --- Clicks ---

// A click on another item's button silences both channels, also when the host then plays nothing. What still plays on
// the channel gives way in any case. A sound that can't be played turns the button all the same; the next tick turns it
// back.
void Vorlane::SlideClickPlay(int16_t index, bool comment) {
    const auto click = [&] {
        const int32_t item = Diapo.Item(index)->Value();
        if (item != sound_.PlayingListIndex) {
            StopSoundInt(false, -1);
            StopSoundInt(true, -1);
        }
        std::string file;
        std::string alias;
        bool play = false;
        int32_t button = ButtonOf(comment);
        Events.ClickPlay(index, file, button, CanalOf(comment), play, alias);
        if (file.empty()) return;
        const std::string before = sound_.Of(comment).Alias;
        if (Desktop().sounds.IsOpen(before) && (play || alias != before)) StopSoundInt(comment, -1);
        sound_.PlayingListIndex = item;
        if (play) {
            const auto start = [&] { return Desktop().sounds.Play(file, CanalOf(comment), kFullVolume); };
            alias = Guard(std::string{}, start, "Diapo_ClickPlay", index, comment);
        }
        sound_.Of(comment) = {alias, play && alias.empty()};
        const bool stays = Diapo.Loaded(index) && Diapo.Item(index)->Value() == item;
        const int16_t slot = stays ? index : SlotFromListIndex(item);
        if (slot != -1) BtState(slot, ButtonOf(comment), true);
        if (play) TimerSon.SetEnabled(true);
    };
    GuardVoid(click, "Diapo_ClickPlay", index, comment);
}

void Vorlane::SlideClickStop(int16_t index, bool comment) {
    const auto click = [&] {
        if (Diapo.Item(index)->Value() != sound_.PlayingListIndex) {
            Events.ClickPlayChangeDiapo(index, ButtonOf(comment));
            return SlideClickPlay(index, comment);
        }
        StopSoundInt(comment, -1);
        Events.SoundEnded(CanalOf(comment));
        Events.ClickStop(index, ButtonOf(comment), CanalOf(comment));
    };
    GuardVoid(click, "Diapo_ClickStop", index, comment);
}

// --- Stopping ---

void Vorlane::StopSound(int32_t only) {
    if (only == kMusicButton || only == kBothChannels) StopSoundInt(false, -1);
    if (only == kCommentButton || only == kBothChannels) StopSoundInt(true, -1);
    if (only == kBothChannels) TimerSon.SetEnabled(false);
}

// Restores the button of that slide (-1: of the one that shows the item that plays, if any does).
void Vorlane::StopSoundInt(bool comment, int16_t slot) {
    const auto stop = [&] {
        sound_.Of(comment).Failed = false;
        Desktop().sounds.Stop(sound_.Of(comment).Alias);
        const int16_t shown = slot != -1 ? slot : SlotFromListIndex(sound_.PlayingListIndex);
        if (shown != -1) BtState(shown, ButtonOf(comment), false);
    };
    GuardVoid(stop, "StopSoundInt", comment, slot);
}

// --- Buttons ---

void Vorlane::BtState(int16_t index, int32_t typeBt, bool modePlayed) {
    const auto show = [&] {
        const auto slide = Diapo.Item(index);
        if (typeBt == kMusicButton && slide->BtPlayVisible()) {
            slide->SetBtPlayPicture(ImgLstBtPlay.ListImage(modePlayed ? kStop : StoppedMusicPicture(*slide)));
        }
        if (typeBt == kCommentButton && slide->BtCommentVisible()) {
            slide->SetBtCommentPicture(ImgLstBtPlay.ListImage(modePlayed ? kStop : kPlayComment));
        }
    };
    GuardVoid(show, "BtState", index, typeBt, modePlayed);
}

int32_t Vorlane::StoppedMusicPicture(const eDiapoLight& slide) const {
    if (!First().ShowDiapoTools()) return kPlay;
    const bool exists = slide.Value() >= 0 && Trelmic6::PathExists(ItemFullPath(slide.Value()), PathKind::File);
    return exists ? kPlay : kPlayMusic;
}

// A slide that takes the item that plays shows its stop buttons.
void Vorlane::ShowPlaying(int16_t slot, int32_t listIndex) {
    if (listIndex != sound_.PlayingListIndex) return;
    for (const bool comment : {false, true}) {
        if (Desktop().sounds.IsPlaying({sound_.Of(comment).Alias})) BtState(slot, ButtonOf(comment), true);
    }
}

// --- The poll ---

// What is played while an end is told has its own end told, too.
void Vorlane::SoundTick() {
    const auto tick = [&] {
        const sheet::Sound before = sound_;
        const bool music = StillPlays(false);
        const bool comment = StillPlays(true);
        const auto renewed = [&](bool channel) {
            return sound_.Of(channel).Failed || sound_.Of(channel).Alias != before.Of(channel).Alias;
        };
        if (!music && !comment && !renewed(false) && !renewed(true)) TimerSon.SetEnabled(false);
    };
    GuardVoid(tick, "TimerSon_Timer");
}

// A sound that has ended is closed and told. One that the player wants left alone is passed over.
bool Vorlane::StillPlays(bool comment) {
    const Sounds& player = Desktop().sounds;
    const sheet::Channel channel = sound_.Of(comment);
    if (!channel.Failed) {
        if (!player.IsOpen(channel.Alias) || player.Mode(channel.Alias) == kLeftAlone) return false;
        if (player.IsPlaying({channel.Alias})) return true;
    }
    StopSoundInt(comment, -1);
    Events.SoundEnded(CanalOf(comment));
    return false;
}

}  // namespace vorlane
