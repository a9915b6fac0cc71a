#include "editor/soundtrack.h"

#include <gtest/gtest.h>

#include <QStringList>

using namespace vorlane::editor;
using vorlane::SoundChannel;

namespace {

// Writes down what it is told, under the letter of its kind: "m" and "c".
class FakeChannel final : public SoundChannel {
public:
    FakeChannel(QString name, QStringList& trace) : name_(std::move(name)), trace_(trace) {}

    void play(const QString& path, qint64 from, bool repeats) override {
        Tell(QStringLiteral("play %1 %2%3").arg(path).arg(from).arg(repeats ? " round" : ""));
    }
    void stop() override { Tell("stop"); }
    void setPaused(bool paused) override { Tell(paused ? "paused" : "resumed"); }
    void setVolume(int volume) override { Tell(QString::number(volume) + "%"); }

private:
    void Tell(const QString& what) { trace_.push_back(name_ + ": " + what); }

    QString name_;
    QStringList& trace_;
};

class SoundtrackTest : public testing::Test {
protected:
    SoundtrackTest() {
        track_.setSounds({{SoundKind::Music, 0, "song", true, true, 90, 20, 100},
                          {SoundKind::Music, 4, "tune", false, true, 80, 10, 100},
                          {SoundKind::Comment, 1, "voice", false, true, 100, 25, 70}},
                         5);
        trace_.clear();
    }
    std::string Trace() { return std::exchange(trace_, {}).join(", ").toStdString(); }

    QStringList trace_;
    std::vector<FakeChannel*> channels_;
    Soundtrack track_{[this] {
        auto channel = std::make_unique<FakeChannel>(channels_.empty() ? "m" : "c", trace_);
        channels_.push_back(channel.get());
        return channel;
    }};
};

}  // namespace

TEST_F(SoundtrackTest, SoundsBeginWithTheirSlides) {
    track_.begin(0, false);
    EXPECT_EQ(Trace(), "m: 90%, m: play song 0 round, c: stop, m: 90%");
    track_.begin(1, true);
    EXPECT_EQ(Trace(), "m: 20%, c: 70%, c: play voice 0, m: 20%, c: 70%");
    track_.begin(2, true);
    EXPECT_EQ(Trace(), "m: 20%, c: 70%");
    track_.begin(4, true);
    EXPECT_EQ(Trace(), "m: 10%, c: 70%, m: play tune 0, m: 10%, c: 70%");
}

TEST_F(SoundtrackTest, TheMusicComesBackWhenTheCommentEnds) {
    track_.begin(0, false);
    track_.begin(1, true);
    Trace();
    Q_EMIT channels_[1]->finished();
    EXPECT_EQ(Trace(), "m: 90%");
}

TEST_F(SoundtrackTest, WhoGoesToASlideHearsWhatWouldSoundByThen) {
    track_.begin(3, false);
    EXPECT_EQ(Trace(), "m: 90%, m: play song 15000 round, m: 20%, c: 70%, c: play voice 10000, m: 20%, c: 70%");
    track_.begin(0, false);
    EXPECT_EQ(Trace(), "m: 20%, c: 70%, m: play song 0 round, c: stop, m: 90%");
}

TEST_F(SoundtrackTest, PausesAndStopsBoth) {
    track_.begin(0, false);
    Trace();
    track_.setPaused(true);
    track_.setPaused(false);
    track_.stop();
    EXPECT_EQ(Trace(), "m: paused, c: paused, m: resumed, c: resumed, m: stop, c: stop");
}

TEST_F(SoundtrackTest, TroubleIsPassedOn) {
    QStringList told;
    QObject::connect(&track_, &Soundtrack::troubled, [&](const QString& text) { told.push_back(text); });
    Q_EMIT channels_[0]->troubled("song", vorlane::ui::SoundTrouble::Gone, "the song has gone");
    EXPECT_EQ(told, QStringList("the song has gone"));
}
