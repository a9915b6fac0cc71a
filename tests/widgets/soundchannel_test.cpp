// A host's own channel of sound: real files, in real time, with or without a device to hear them on.
#include "widgets/soundchannel.h"

#include "platform/qt/qtsounds.h"
#include "tests/platform/qt/soundfiles.h"

#include <functional>
#include <gtest/gtest.h>
#include <utility>
#include <vector>

#include <QAudioOutput>
#include <QFile>
#include <QMediaPlayer>
#include <QTest>

namespace vorlane {
namespace {

constexpr int kLimit = 30000;        // milliseconds that nothing here takes
constexpr qint64 kFar = 2 * kLimit;  // behind what is reached by then in real time

class SoundChannelTest : public testing::Test {
protected:
    SoundChannelTest() {
        QObject::connect(&channel, &SoundChannel::finished, &channel, [this] {
            ++finished;
            if (onFinished) std::exchange(onFinished, nullptr)();
        });
        QObject::connect(&channel, &SoundChannel::troubled, &channel,
                         [this](const QString& path, ui::SoundTrouble trouble, const QString& text) {
                             if (trouble == ui::SoundTrouble::NoDevice) return;
                             told.push_back(trouble);
                             texts.push_back(text);
                             EXPECT_EQ(path, played);
                         });
    }

    void Play(const QString& path, qint64 from = 0, bool repeats = false) {
        played = path;
        channel.play(path, from, repeats);
    }
    static bool Until(const std::function<bool()>& done) { return QTest::qWaitFor(done, kLimit); }
    const QMediaPlayer* Player() const { return channel.findChild<QMediaPlayer*>(); }
    qint64 Position() const { return Player() == nullptr ? -1 : Player()->position(); }
    float Loudness() const { return channel.findChild<QAudioOutput*>()->volume(); }

    test::SoundFiles files;
    SoundChannel channel;
    QString played;
    int finished = 0;
    std::function<void()> onFinished;
    std::vector<ui::SoundTrouble> told;  // but for missing devices
    QStringList texts;
};

TEST_F(SoundChannelTest, ASoundComesToItsEnd) {
    Play(files.WriteWave("a.wav", 1));
    EXPECT_EQ(finished, 0);
    EXPECT_TRUE(Until([this] { return finished == 1; }));
    EXPECT_TRUE(told.empty());
}

TEST_F(SoundChannelTest, ASoundIsTakenUpWhereItWouldBe) {
    Play(files.WriteWave("long.wav", 300), kFar);
    EXPECT_TRUE(Until([this] { return Position() >= kFar; }));
}

TEST_F(SoundChannelTest, ASoundThatRepeatsCountsRoundAndRound) {
    Play(files.WriteWave("long.wav", 100), 200000 + kFar, true);
    EXPECT_TRUE(Until([this] { return Position() >= kFar; }));
    EXPECT_LT(Position(), 100000);
    EXPECT_EQ(finished, 0);
}

TEST_F(SoundChannelTest, ASoundThatIsOverByThenEndsAtOnce) {
    Play(files.WriteWave("long.wav", 100), 200000);
    EXPECT_TRUE(Until([this] { return finished == 1; }));
}

TEST_F(SoundChannelTest, IsAsLoudAsASlideIsAtTheSameVolume) {
    const QString file = files.WriteWave("long.wav", 60);
    QtSounds slides;
    for (const int volume : {0, 25, 50, 100}) {
        slides.Play(file.toStdString(), 1, volume);
        channel.setVolume(volume);
        Play(file);
        EXPECT_EQ(Loudness(), slides.findChildren<QAudioOutput*>().back()->volume()) << volume;
    }
    channel.setVolume(25);
    EXPECT_EQ(Loudness(), slides.findChildren<QAudioOutput*>().at(1)->volume());
}

TEST_F(SoundChannelTest, HoldsWhatPlaysAndWhatComes) {
    channel.setPaused(true);
    Play(files.WriteWave("long.wav", 300), kFar);
    EXPECT_TRUE(Until([this] { return Player()->playbackState() == QMediaPlayer::PausedState; }));
    channel.setPaused(false);
    EXPECT_TRUE(Until([this] { return Position() > kFar; }));
    channel.setPaused(true);
    EXPECT_EQ(Player()->playbackState(), QMediaPlayer::PausedState);
}

TEST_F(SoundChannelTest, TellsOfWhatCannotBePlayedInWordsForTheUser) {
    Play(files.Path("none.wav"));
    EXPECT_TRUE(told.empty());
    EXPECT_TRUE(Until([this] { return finished == 1; }));
    Play(files.Write("text.ogg", "This is no sound."));
    EXPECT_TRUE(Until([this] { return finished == 2; }));
    EXPECT_EQ(told, (std::vector{ui::SoundTrouble::Missing, ui::SoundTrouble::Unplayable}));
    EXPECT_EQ(texts, QStringList({"Le son « none.wav » est introuvable",
                                  "Le fichier « text.ogg » est abîmé ou n'est pas un son"}));
}

TEST_F(SoundChannelTest, TellsOfAFileThatGoesWhileItPlays) {
    Play(files.WriteWave("long.wav", 60));
    ASSERT_TRUE(QFile::remove(played));
    EXPECT_TRUE(Until([this] { return !told.empty(); }));
    EXPECT_EQ(told, std::vector{ui::SoundTrouble::Gone});
}

TEST_F(SoundChannelTest, WhatGivesWayTellsNothingMore) {
    Play(files.Path("none.wav"));
    Play(files.Path("other.wav"));
    EXPECT_TRUE(Until([this] { return finished == 1; }));
    EXPECT_EQ(texts, QStringList("Le son « other.wav » est introuvable"));
    channel.stop();
    channel.stop();
}

TEST_F(SoundChannelTest, TheNextSoundMayBePlayedWhenOneHasEnded) {
    const QString next = files.WriteWave("next.wav", 60);
    onFinished = [&] { Play(next); };
    Play(files.Write("text.ogg", "This is no sound."));
    EXPECT_TRUE(Until([this] { return Position() > 0; }));
    EXPECT_EQ(finished, 1);
}

}  // namespace
}  // namespace vorlane
