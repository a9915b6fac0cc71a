// The sound buttons of a sheet that shows nine slides; the host offers "/s/a.mp3", two seconds long.
#include "tests/platform/temporaryfolder.h"
#include "tests/sheet/sheetfixture.h"

namespace vorlane {
namespace {

class SoundTest : public SheetTest {
protected:
    SoundTest() {
        desktop.sounds.Add("/s/a.mp3", 2);
        auto& events = sheet->Events;
        events.BeforeSetPicture.connect([](int16_t, const std::string&, Picture&, bool& music, bool& comment, bool&,
                                           bool&, bool&) { music = comment = true; });
        events.ClickPlay.connect(
            [this](int16_t index, std::string& file, int32_t& button, int32_t canal, bool& play, std::string& alias) {
                Say("ClickPlay " + std::to_string(index) + " button " + std::to_string(button) + " canal " +
                    std::to_string(canal) + " [" + file + alias + "]" + (play ? " play" : ""));
                file = offered;
                play = plays;
                alias = ownAlias;
                if (onClickPlay) onClickPlay();
            });
        events.ClickPlayChangeDiapo.connect([this](int16_t index, int32_t button) {
            Say("ClickPlayChangeDiapo " + std::to_string(index) + " button " + std::to_string(button));
        });
        events.ClickStop.connect([this](int16_t index, int32_t button, int32_t canal) {
            Say("ClickStop " + std::to_string(index) + " button " + std::to_string(button) + " canal " +
                std::to_string(canal));
        });
        events.ClickText.connect([this](int16_t index) { Say("ClickText " + std::to_string(index)); });
        events.SoundEnded.connect([this](int32_t canal) {
            Say("SoundEnded " + std::to_string(canal));
            if (onSoundEnded) std::exchange(onSoundEnded, nullptr)();
        });
        Show(20);
    }

    void Say(const std::string& line) { desktop.trace.Add("sounds " + line); }
    std::string Happened() { return desktop.trace.Take({"sounds", "sound"}); }
    void ClickMusic(int16_t slot) { sheet->Diapo.Item(slot)->BtPlay.Input.Click(); }
    void ClickComment(int16_t slot) { sheet->Diapo.Item(slot)->BtComment.Input.Click(); }
    // A button of a slide on which something runs stops it, so the music is over, and not closed yet, as it begins.
    void PlayCommentBehindMusic(int16_t slot) {
        ClickMusic(slot);
        desktop.sounds.End("son1");
        ClickComment(slot);
        Happened();
    }
    std::string Music(int16_t slot) { return headless::NameOf(sheet->Diapo.Item(slot)->BtPlayPicture()); }
    std::string Comment(int16_t slot) { return headless::NameOf(sheet->Diapo.Item(slot)->BtCommentPicture()); }

    std::string offered = "/s/a.mp3";
    std::string ownAlias;
    bool plays = true;
    std::function<void()> onClickPlay;
    std::function<void()> onSoundEnded;  // the next one
};

TEST_F(SoundTest, AClickPlaysWhatTheHostOffersAndTurnsTheButton) {
    EXPECT_EQ(Music(2), "play");
    ClickMusic(2);
    EXPECT_EQ(Happened(), "sounds ClickPlay 2 button 0 canal 11 []\nsound play /s/a.mp3 on 11 at 100 as son1\n");
    EXPECT_EQ(Music(2), "stop");
    EXPECT_EQ(Music(1), "play");
    EXPECT_EQ(sheet->AliasMusic(), "son1");
    EXPECT_TRUE(sheet->TimerSon.Enabled());
    sheet->StopSound();
}

TEST_F(SoundTest, ACommentHasItsOwnChannelAndButton) {
    EXPECT_EQ(Comment(2), "play-comment");
    ClickComment(2);
    EXPECT_EQ(Happened(), "sounds ClickPlay 2 button 1 canal 12 []\nsound play /s/a.mp3 on 12 at 100 as son1\n");
    EXPECT_EQ(Comment(2), "stop");
    EXPECT_EQ(Music(2), "play");
    EXPECT_EQ(sheet->AliasComment(), "son1");
    sheet->StopSound();
    EXPECT_EQ(Comment(2), "play-comment");
}

TEST_F(SoundTest, ASecondClickStopsTheSoundAndTellsItsEndFirst) {
    ClickMusic(2);
    Happened();
    ClickMusic(2);
    EXPECT_EQ(Happened(), "sound stop son1\nsounds SoundEnded 11\nsounds ClickStop 2 button 0 canal 11\n");
    EXPECT_EQ(Music(2), "play");
    desktop.clock.Advance(1000);
    EXPECT_EQ(Happened(), "");
    EXPECT_FALSE(sheet->TimerSon.Enabled());
}

TEST_F(SoundTest, ASoundThatEndsTurnsItsButtonBackAtTheNextTick) {
    ClickMusic(2);
    Happened();
    desktop.clock.Advance(1999);
    EXPECT_EQ(Happened(), "");
    EXPECT_TRUE(sheet->TimerSon.Enabled());
    desktop.clock.Advance(1);
    EXPECT_EQ(Happened(), "sound stop son1\nsounds SoundEnded 11\n");
    EXPECT_EQ(Music(2), "play");
    EXPECT_FALSE(sheet->TimerSon.Enabled());
}

TEST_F(SoundTest, WithoutAFileNothingChangesButBothChannelsAreSilentOnAnotherSlide) {
    ClickMusic(2);
    offered = "";
    desktop.sounds.End("son1");
    Happened();
    ClickMusic(3);
    EXPECT_EQ(Happened(), "sound stop son1\nsounds ClickPlay 3 button 0 canal 11 []\n");
    EXPECT_EQ(Music(2), "play");
    EXPECT_EQ(Music(3), "play");
    EXPECT_EQ(sheet->AliasMusic(), "son1");
    desktop.clock.Advance(1000);
}

TEST_F(SoundTest, WithoutPlayTheHostsAliasIsKeptAndNoTimerRuns) {
    plays = false;
    ownAlias = "mine";
    ClickMusic(2);
    EXPECT_EQ(Happened(), "sounds ClickPlay 2 button 0 canal 11 []\n");
    EXPECT_EQ(sheet->AliasMusic(), "mine");
    EXPECT_EQ(Music(2), "stop");
    EXPECT_FALSE(sheet->TimerSon.Enabled());
    desktop.clock.Advance(5000);
    EXPECT_EQ(Music(2), "stop");
    sheet->StopSound();
    EXPECT_EQ(Music(2), "play");
}

TEST_F(SoundTest, AStopClickOnAnotherSlideChangesTheSlideAndPlaysThere) {
    ClickMusic(2);
    Happened();
    ClickMusic(3);
    EXPECT_EQ(Happened(),
              "sounds ClickPlayChangeDiapo 3 button 0\nsound stop son1\nsounds ClickPlay 3 button 0 canal 11 []\n"
              "sound play /s/a.mp3 on 11 at 100 as son2\n");
    EXPECT_EQ(Music(2), "play");
    EXPECT_EQ(Music(3), "stop");
    sheet->StopSound();
}

TEST_F(SoundTest, MusicAndCommentOfOneSlidePlayTogether) {
    desktop.sounds.Add("/s/long.mp3", 10);
    ClickMusic(2);
    offered = "/s/long.mp3";
    desktop.sounds.End("son1");
    ClickComment(2);
    Happened();
    desktop.clock.Advance(1000);
    EXPECT_EQ(Happened(), "sound stop son1\nsounds SoundEnded 11\n");
    EXPECT_TRUE(sheet->TimerSon.Enabled());
    desktop.clock.Advance(10000);
    EXPECT_EQ(Happened(), "sound stop son2\nsounds SoundEnded 12\n");
    EXPECT_FALSE(sheet->TimerSon.Enabled());
}

TEST_F(SoundTest, StopSoundOfTheMusicLeavesTheCommentToItsEnd) {
    PlayCommentBehindMusic(2);
    sheet->StopSound(0);
    EXPECT_EQ(Happened(), "sound stop son1\n");
    EXPECT_EQ(Music(2), "play");
    EXPECT_EQ(Comment(2), "stop");
    desktop.clock.Advance(2000);
    EXPECT_EQ(Happened(), "sound stop son2\nsounds SoundEnded 12\n");
    EXPECT_EQ(Comment(2), "play-comment");
    EXPECT_FALSE(sheet->TimerSon.Enabled());
}

TEST_F(SoundTest, WhatIsPlayedWhileAnEndIsToldHasItsOwnEndTold) {
    onSoundEnded = [this] { ClickMusic(3); };
    ClickMusic(2);
    desktop.clock.Advance(2000);
    EXPECT_EQ(Music(3), "stop");
    EXPECT_TRUE(sheet->TimerSon.Enabled());
    Happened();
    desktop.clock.Advance(2000);
    EXPECT_EQ(Happened(), "sound stop son2\nsounds SoundEnded 11\n");
    EXPECT_EQ(Music(3), "play");
    EXPECT_FALSE(sheet->TimerSon.Enabled());
}

TEST_F(SoundTest, WhatCannotBePlayedWhileAnEndIsToldEndsAtTheNextTick) {
    onSoundEnded = [this] {
        desktop.sounds.FailPlaying(true);
        ClickMusic(3);
    };
    ClickMusic(2);
    desktop.clock.Advance(2000);
    EXPECT_EQ(Music(3), "stop");
    Happened();
    desktop.clock.Advance(1000);
    EXPECT_EQ(Happened(), "sounds SoundEnded 11\n");
    EXPECT_EQ(Music(3), "play");
    EXPECT_FALSE(sheet->TimerSon.Enabled());
}

TEST_F(SoundTest, WhatPlaysStopsWithTheSheet) {
    PlayCommentBehindMusic(2);
    sheet.reset();
    EXPECT_EQ(Happened(), "sound stop son1\nsound stop son2\n");
}

TEST_F(SoundTest, StopSoundOfOneChannelLeavesTheTimer) {
    ClickMusic(2);
    sheet->StopSound(0);
    EXPECT_EQ(Music(2), "play");
    EXPECT_TRUE(sheet->TimerSon.Enabled());
    sheet->StopSound(1);
    EXPECT_TRUE(sheet->TimerSon.Enabled());
    sheet->StopSound();
    EXPECT_FALSE(sheet->TimerSon.Enabled());
}

TEST_F(SoundTest, StopSoundOfTheCommentLeavesTheMusic) {
    PlayCommentBehindMusic(2);
    Happened();
    sheet->StopSound(1);
    EXPECT_EQ(Happened(), "sound stop son2\n");
    EXPECT_EQ(Music(2), "stop");
    EXPECT_TRUE(sheet->TimerSon.Enabled());
    sheet->StopSound();
}

TEST_F(SoundTest, TheEndOfASoundWhoseSlideHasScrolledAwayIsToldOnce) {
    desktop.sounds.Add("/s/long.mp3", 10);
    ClickMusic(0);
    offered = "/s/long.mp3";
    desktop.sounds.End("son1");
    ClickComment(0);
    desktop.sounds.Add("/s/a.mp3", 2);
    sheet->VScroll.SetValue(6);
    for (int16_t slot = 0; slot < 3; ++slot) sheet->BtState(slot, 0, true);
    Happened();
    desktop.clock.Advance(3000);
    EXPECT_EQ(Happened(), "sound stop son1\nsounds SoundEnded 11\n");
    for (int16_t slot = 0; slot < 3; ++slot) EXPECT_EQ(Music(slot), "stop") << slot;  // no button is touched
    sheet->StopSound();
}

TEST_F(SoundTest, ASlideThatComesBackIntoSightShowsThatItPlays) {
    desktop.sounds.Add("/s/a.mp3", 60);
    ClickMusic(0);
    sheet->VScroll.SetValue(9);
    EXPECT_EQ(Music(0), "play");
    sheet->VScroll.SetValue(0);
    EXPECT_EQ(Music(0), "stop");
    sheet->StopSound();
    EXPECT_EQ(Music(0), "play");
}

TEST_F(SoundTest, ASlideThatComesBackShowsOnWhichOfItsChannelsItPlays) {
    desktop.sounds.Add("/s/a.mp3", 60);
    PlayCommentBehindMusic(0);
    sheet->VScroll.SetValue(9);
    EXPECT_EQ(Comment(0), "play-comment");
    sheet->VScroll.SetValue(0);
    EXPECT_EQ(Music(0), "play");
    EXPECT_EQ(Comment(0), "stop");
    EXPECT_EQ(Comment(1), "play-comment");
    sheet->StopSound();
}

TEST_F(SoundTest, ASlideThatComesBackBehindTheEndShowsNothingOfIt) {
    ClickMusic(0);
    sheet->VScroll.SetValue(9);
    desktop.clock.Advance(2000);
    sheet->VScroll.SetValue(0);
    EXPECT_EQ(Music(0), "play");
}

TEST_F(SoundTest, AChannelThatIsLeftAloneDoesNotHoldTheTimer) {
    ClickMusic(2);
    desktop.sounds.SetMode("son1", kLeftAlone);
    Happened();
    desktop.clock.Advance(1000);
    EXPECT_EQ(Happened(), "");
    EXPECT_FALSE(sheet->TimerSon.Enabled());
    EXPECT_EQ(Music(2), "stop");
    sheet->StopSound();
}

TEST_F(SoundTest, ASoundThatCannotBePlayedTurnsItsButtonUntilTheNextTick) {
    offered = "/s/none.mp3";
    ClickMusic(2);
    EXPECT_EQ(Music(2), "stop");
    Happened();
    desktop.clock.Advance(1000);
    EXPECT_EQ(Happened(), "sound stop son1\nsounds SoundEnded 11\n");
    EXPECT_EQ(Music(2), "play");
}

TEST_F(SoundTest, APlayerThatFailsIsReportedAndTurnsTheButtonUntilTheNextTick) {
    desktop.sounds.FailPlaying(true);
    ClickMusic(2);
    EXPECT_EQ(Heard(), "host Click 2 002.jpg 002.jpg button 0\nhost Error 5 Vorlane Diapo_ClickPlay DpCnt=9 - 2 - 0\n");
    EXPECT_EQ(Music(2), "stop");
    desktop.clock.Advance(1000);
    EXPECT_EQ(Happened(), "sounds SoundEnded 11\n");
    EXPECT_EQ(Music(2), "play");
    EXPECT_FALSE(sheet->TimerSon.Enabled());
}

TEST_F(SoundTest, APlayerThatCannotStopIsReportedByTheOperation) {
    ClickMusic(2);
    desktop.sounds.FailStopping(true);
    sheet->StopSound(0);
    EXPECT_EQ(Heard(), "host Click 2 002.jpg 002.jpg button 0\nhost Error 5 Vorlane StopSoundInt DpCnt=9 - 0 - -1\n");
    desktop.sounds.FailStopping(false);
    sheet->StopSound();
}

TEST_F(SoundTest, AHandlerThatClearsTheSheetEndsTheClickQuietly) {
    onClickPlay = [this] { sheet->Clear(); };
    ClickMusic(2);
    EXPECT_EQ(Heard({"host"}).find("Error"), std::string::npos);
    sheet->StopSound();
}

TEST_F(SoundTest, BtStateTouchesOnlyAButtonInSightOfAKnownType) {
    sheet->BtState(1, 2, true);
    EXPECT_EQ(Music(1), "play");
    sheet->Diapo.Item(1)->SetBtPlayVisible(false);
    sheet->BtState(1, 0, true);
    EXPECT_EQ(Music(1), "play");
    sheet->BtState(1, 1, true);
    EXPECT_EQ(Comment(1), "stop");
    sheet->BtState(99, 0, true);
    EXPECT_EQ(Heard(), "host Error 340 Vorlane BtState DpCnt=9 - 99 - 0 - -1\n");
}

TEST_F(SoundTest, InAToolsRowTheStoppedMusicTellsWhetherThePictureIsThere) {
    sheet->SetShowDiapoTools(true);
    sheet->BtState(1, 0, false);
    EXPECT_EQ(Music(1), "play-music");
    const TemporaryFolder folder;
    sheet->Liste()->AsListBox()->SetList(1, "\t" + folder.File("here.jpg"));
    sheet->BtState(1, 0, false);
    EXPECT_EQ(Music(1), "play");
    sheet->BtState(2, 0, false);
    EXPECT_EQ(Music(2), "play-music");
    sheet->SetShowDiapoTools(false);
    sheet->BtState(1, 0, false);
    EXPECT_EQ(Music(1), "play");
}

TEST_F(SoundTest, TheTextButtonIsToldAndNothingElse) {
    sheet->Diapo.Item(4)->BtTexte.Input.Click();
    EXPECT_EQ(Happened(), "sounds ClickText 4\n");
}

// It has fallen silent, and the tick that would close it has not come.
TEST_F(SoundTest, WhatIsStillOpenOnTheChannelGivesWayToWhatTheSameItemPlaysNext) {
    ClickMusic(2);
    desktop.sounds.End("son1");
    Happened();
    ClickMusic(2);
    EXPECT_EQ(Happened(),
              "sounds ClickPlay 2 button 0 canal 11 []\nsound stop son1\nsound play /s/a.mp3 on 11 at 100 as son2\n");
    EXPECT_EQ(Music(2), "stop");
    EXPECT_EQ(desktop.sounds.OpenSounds(), 1);
    sheet->StopSound();
}

TEST_F(SoundTest, WhatIsStillOpenOnTheChannelGivesWayToTheHostsOwnSound) {
    ClickMusic(2);
    desktop.sounds.End("son1");
    plays = false;
    ownAlias = "mine";
    ClickMusic(2);
    EXPECT_EQ(desktop.sounds.OpenSounds(), 0);
    EXPECT_EQ(sheet->AliasMusic(), "mine");
    EXPECT_EQ(Music(2), "stop");
    sheet->StopSound();
}

}  // namespace
}  // namespace vorlane
