// Sounds that are played from real files, in real time, with or without a device to hear them on.
#include "platform/qt/qtsounds.h"
#include "tests/platform/plainuser.h"
#include "tests/platform/qt/soundfiles.h"

#include <cstdio>
#include <functional>
#include <memory>
#include <vector>

#include <QAudioDevice>
#include <QAudioOutput>
#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileSystemWatcher>
#include <QMediaDevices>
#include <QSignalSpy>
#include <QTest>

namespace vorlane {
namespace {

// A file of tests/sounds, 1.8 seconds long.
QString TonePath(const QString& name) {
    return QStringLiteral(VORLANE_TEST_SOUNDS "/") + name;
}

constexpr int kLimit = 30000;  // milliseconds that nothing here takes

class QtSoundsTest : public testing::Test {
protected:
    QtSoundsTest() {
        QObject::connect(&sounds, &QtSounds::Troubled, &sounds,
                         [this](const QString& alias, const QString& path, SoundTrouble trouble) {
                             if (trouble == SoundTrouble::NoDevice) return without.push_back(alias);
                             told.push_back(trouble);
                             EXPECT_TRUE(sounds.IsOpen(alias.toStdString()));
                             toldOf.push_back(path);
                             if (onTrouble) onTrouble(alias.toStdString());
                         });
    }

    std::string Play(const QString& path, int volume = 0) { return sounds.Play(path.toStdString(), 1, volume); }
    bool Plays(const std::string& alias) const { return sounds.IsPlaying({alias}); }
    bool WaitForTrouble() {
        return QTest::qWaitFor([this] { return !told.empty(); }, kLimit);
    }

    test::SoundFiles files;
    QtSounds sounds;
    std::vector<SoundTrouble> told;  // but for missing devices
    QStringList toldOf;
    QStringList without;  // aliases that have no device
    std::function<void(const std::string&)> onTrouble;
};

TEST_F(QtSoundsTest, PlaysEveryKindOfFileToItsEndAllAtOnce) {
    QElapsedTimer time;
    time.start();
    std::vector<std::string> aliases;
    for (const char* tone : {"tone.mp3", "tone.ogg", "tone.flac"}) aliases.push_back(Play(TonePath(tone)));
    aliases.push_back(Play(files.WriteWave("tone.wav", 2)));
    for (const std::string& alias : aliases) EXPECT_TRUE(Plays(alias)) << alias;
    for (const std::string& alias : aliases) {
        EXPECT_TRUE(QTest::qWaitFor([&] { return !Plays(alias); }, kLimit)) << alias;
        EXPECT_GE(time.elapsed(), 1500) << alias;  // not before it has been heard
        EXPECT_TRUE(sounds.IsOpen(alias)) << alias;
        sounds.Stop(alias);
        EXPECT_FALSE(sounds.IsOpen(alias)) << alias;
    }
    EXPECT_TRUE(told.empty());
}

TEST_F(QtSoundsTest, PlaysOneFileTwiceAndStopsOneOfThem) {
    const QString file = files.WriteWave("long.wav", 60);
    const std::string first = Play(file);
    const std::string second = Play(file);
    EXPECT_NE(first, second);
    EXPECT_FALSE(first.empty());
    sounds.Stop(first);
    EXPECT_FALSE(sounds.IsOpen(first));
    EXPECT_FALSE(Plays(first));
    EXPECT_TRUE(Plays(second));
    EXPECT_TRUE(sounds.IsPlaying({"", -1, file.toStdString()}));
    sounds.Stop(second);
    EXPECT_FALSE(sounds.IsPlaying({"", -1, file.toStdString()}));
    sounds.Stop(second);
    sounds.Stop("never heard of");
}

TEST_F(QtSoundsTest, TheCurrentSoundIsTheOpenOneThatWasPlayedLast) {
    EXPECT_TRUE(sounds.Current().Alias.empty());
    const std::string file = files.WriteWave("long.wav", 60).toStdString();
    const std::string first = sounds.Play(file, 1, 0);
    const std::string second = Play(TonePath("tone.ogg"));
    EXPECT_EQ(sounds.Current().Alias, second);
    EXPECT_TRUE(sounds.IsPlaying({"", sounds.Current().Handle, ""}));
    sounds.Stop(second);
    EXPECT_EQ(sounds.Current().Alias, first);
    EXPECT_EQ(sounds.Current().File, file);
}

TEST_F(QtSoundsTest, VolumesAreMeasuredAsTheEarDoes) {
    const QString file = files.WriteWave("long.wav", 60);
    std::vector<float> volumes;
    for (const int volume : {0, 50, 100}) {
        const std::string alias = Play(file, volume);
        volumes.push_back(sounds.findChildren<QAudioOutput*>().back()->volume());
        sounds.Stop(alias);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    EXPECT_EQ(volumes[0], 0);
    EXPECT_GT(volumes[1], 0.01F);
    EXPECT_LT(volumes[1], 0.3F);
    EXPECT_EQ(volumes[2], 1);
}

TEST_F(QtSoundsTest, AMissingFileIsToldAfterItsAliasIsKnown) {
    const std::string other = Play(files.WriteWave("long.wav", 60));
    const std::string alias = Play(files.Path("missing.mp3"));
    EXPECT_TRUE(told.empty());
    EXPECT_TRUE(sounds.IsOpen(alias));
    EXPECT_FALSE(Plays(alias));
    EXPECT_TRUE(WaitForTrouble());
    EXPECT_EQ(told, std::vector{SoundTrouble::Missing});
    EXPECT_EQ(toldOf, QStringList{files.Path("missing.mp3")});
    EXPECT_TRUE(Plays(other));
}

TEST_F(QtSoundsTest, WhatIsNoSoundIsToldOnceAndStopsNothingElse) {
    const std::string other = Play(files.WriteWave("long.wav", 60));
    const std::string alias = Play(files.Write("text.mp3", "This is no sound."));
    EXPECT_TRUE(WaitForTrouble());
    EXPECT_FALSE(Plays(alias));
    EXPECT_TRUE(sounds.IsOpen(alias));
    const std::string next = Play(TonePath("tone.ogg"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !Plays(next); }, kLimit));
    EXPECT_EQ(told, std::vector{SoundTrouble::Unplayable});
    EXPECT_TRUE(Plays(other));
}

TEST_F(QtSoundsTest, AFileThatMayNotBeReadIsToldApart) {
    const PlainUser user;
    test::SoundFiles own;
    const QString file = own.WriteWave("closed.wav", 60);
    ASSERT_TRUE(QFile::setPermissions(file, {}));
    const std::string alias = Play(file);
    EXPECT_FALSE(Plays(alias));
    EXPECT_TRUE(WaitForTrouble());
    EXPECT_EQ(told, std::vector{SoundTrouble::Unreadable});
    EXPECT_EQ(SoundTroubleText(told.front(), file), QString::fromUtf8("Le son « closed.wav » est illisible"));
}

TEST_F(QtSoundsTest, AFolderIsNoSound) {
    const std::string alias = Play(QDir::tempPath());
    EXPECT_FALSE(Plays(alias));
    EXPECT_TRUE(WaitForTrouble());
    EXPECT_EQ(told, std::vector{SoundTrouble::Unplayable});
}

TEST_F(QtSoundsTest, ASoundWithoutSamplesEnds) {
    const std::string alias = Play(files.WriteWave("empty.wav", 0));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !Plays(alias); }, kLimit));
}

TEST_F(QtSoundsTest, AFileThatVanishesWhileItPlaysIsTold) {
    const std::string other = Play(files.WriteWave("long.wav", 60));
    const std::string alias = Play(files.WriteWave("vanishing.wav", 60));
    EXPECT_TRUE(QFile::remove(files.Path("vanishing.wav")));
    ASSERT_TRUE(WaitForTrouble());
    EXPECT_EQ(told.front(), SoundTrouble::Gone);
    EXPECT_EQ(toldOf.front(), files.Path("vanishing.wav"));
    EXPECT_TRUE(sounds.IsOpen(alias));
    EXPECT_TRUE(Plays(other));
}

TEST_F(QtSoundsTest, AFileThatWasReplacedIsLookedAfterOn) {
    Play(files.WriteWave("a.wav", 60));
    files.WriteWave("b.wav", 60);
    const QFileSystemWatcher watcher({files.Path("a.wav")});
    QSignalSpy replaced(&watcher, &QFileSystemWatcher::fileChanged);
    ASSERT_EQ(std::rename(files.Path("b.wav").toLocal8Bit(), files.Path("a.wav").toLocal8Bit()), 0);
    ASSERT_TRUE(replaced.wait(kLimit));
    QCoreApplication::processEvents();
    EXPECT_TRUE(told.empty());
    EXPECT_TRUE(QFile::remove(files.Path("a.wav")));
    ASSERT_TRUE(WaitForTrouble());
    EXPECT_EQ(told.front(), SoundTrouble::Gone);
}

TEST_F(QtSoundsTest, AStoppedSoundTellsNothing) {
    sounds.Stop(Play(files.Path("missing.mp3")));
    Play(files.Path("other.mp3"));
    EXPECT_TRUE(WaitForTrouble());
    EXPECT_EQ(toldOf, QStringList{files.Path("other.mp3")});
}

TEST_F(QtSoundsTest, ASoundMayBeStoppedByWhoHearsOfItsTrouble) {
    onTrouble = [this](const std::string& alias) { sounds.Stop(alias); };
    const std::string alias = Play(files.Write("text.ogg", "This is no sound."));
    EXPECT_TRUE(WaitForTrouble());
    EXPECT_FALSE(sounds.IsOpen(alias));
}

TEST_F(QtSoundsTest, AMissingDeviceIsToldAndTheSoundKeepsItsTime) {
    const bool none = QMediaDevices::audioOutputs().isEmpty();
    const std::string alias = Play(TonePath("tone.ogg"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !Plays(alias); }, kLimit));
    EXPECT_EQ(without.size(), none ? 1 : 0);
    EXPECT_TRUE(told.empty());
}

TEST(QtSoundsEnd, TakesWhatPlaysAlong) {
    test::SoundFiles files;
    auto sounds = std::make_unique<QtSounds>();
    sounds->Play(files.WriteWave("long.wav", 60).toStdString(), 1, 0);
    sounds->Stop(sounds->Play(files.Path("long.wav").toStdString(), 1, 0));
    sounds.reset();
    QCoreApplication::processEvents();
}

}  // namespace
}  // namespace vorlane
