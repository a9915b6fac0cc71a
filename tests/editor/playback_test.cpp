#include "editor/playback.h"

#include <gtest/gtest.h>
#include <utility>

#include <QStringList>

using namespace vorlane::editor;

namespace {

// Trace: "3" a slide that comes in turn, "3!" one that is gone to, "12s" a second.
class PlaybackTest : public testing::Test {
protected:
    PlaybackTest() {
        QObject::connect(&playback_, &Playback::slideBegan, [this](int slide, bool inTurn) {
            trace_.push_back(QString::number(slide) + (inTurn ? "" : "!"));
        });
        QObject::connect(&playback_, &Playback::secondBegan,
                         [this](qint64 second) { trace_.push_back(QString::number(second) + "s"); });
        QObject::connect(&playback_, &Playback::playingChanged,
                         [this](bool playing) { trace_.push_back(playing ? "on" : "off"); });
        QObject::connect(&playback_, &Playback::ended,
                         [this](int slide) { trace_.push_back("end " + QString::number(slide)); });
    }
    std::string Trace() { return std::exchange(trace_, {}).join(' ').toStdString(); }

    Playback playback_;
    QStringList trace_;
};

}  // namespace

TEST_F(PlaybackTest, TellsEachSecondAndEachSlideOnce) {
    playback_.start(1, 3, 2);
    EXPECT_EQ(Trace(), "on 1! 2s");
    for (int i = 0; i < 19; ++i) playback_.advance(100);
    EXPECT_EQ(Trace(), "3s");
    playback_.advance(100);
    EXPECT_EQ(Trace(), "2 4s");
    EXPECT_EQ(playback_.slide(), 2);
    EXPECT_EQ(playback_.second(), 4);
}

TEST_F(PlaybackTest, CountsTheSecondsOfTheLongestShows) {
    playback_.start(700000, 1000000, 3600);
    EXPECT_EQ(Trace(), "on 700000! 2520000000s");
    EXPECT_EQ(playback_.second(), 2520000000);
}

TEST_F(PlaybackTest, EndsAfterTheLastSlide) {
    playback_.start(2, 3, 1);
    Trace();
    playback_.advance(999);
    EXPECT_TRUE(playback_.isActive());
    playback_.advance(1);
    EXPECT_EQ(Trace(), "off end 2");
    EXPECT_FALSE(playback_.isActive());
    EXPECT_EQ(playback_.second(), 0);
}

TEST_F(PlaybackTest, AfterALongSleepNoSlideIsLeftOut) {
    playback_.start(0, 4, 1);
    Trace();
    playback_.advance(2500);
    EXPECT_EQ(Trace(), "1 1s 2 2s");
    playback_.advance(500);
    EXPECT_EQ(Trace(), "3 3s");
}

TEST_F(PlaybackTest, PausedNoTimePasses) {
    playback_.start(0, 2, 1);
    playback_.pause();
    Trace();
    playback_.advance(5000);
    EXPECT_EQ(Trace(), "");
    EXPECT_TRUE(playback_.isActive());
    playback_.toggle();
    playback_.advance(1000);
    EXPECT_EQ(Trace(), "on 1 1s");
}

TEST_F(PlaybackTest, StepsStayWithinTheShow) {
    playback_.start(0, 3, 2);
    playback_.advance(1500);
    Trace();
    playback_.step(1);
    EXPECT_EQ(Trace(), "1! 2s");
    playback_.step(5);
    EXPECT_EQ(Trace(), "2! 4s");
    playback_.step(-9);
    EXPECT_EQ(Trace(), "0! 0s");
    playback_.stop();
    Trace();
    playback_.step(1);
    EXPECT_EQ(Trace(), "");
}

TEST_F(PlaybackTest, NothingPlaysFromASlideThatIsNotThere) {
    playback_.start(3, 3, 2);
    playback_.start(-1, 3, 2);
    playback_.start(0, 0, 2);
    playback_.resume();
    playback_.stop();
    EXPECT_EQ(Trace(), "");
}

TEST_F(PlaybackTest, AnExposureBelowASecondIsASecond) {
    playback_.start(0, 2, 0);
    Trace();
    playback_.advance(1000);
    EXPECT_EQ(Trace(), "1 1s");
}

TEST_F(PlaybackTest, ItCanBeStoppedWhileASlideBegins) {
    QObject::connect(&playback_, &Playback::slideBegan, [this](int slide, bool) {
        if (slide == 1) playback_.stop();
    });
    playback_.start(0, 9, 1);
    Trace();
    playback_.advance(3000);
    EXPECT_EQ(Trace(), "1 off end 1");
}
