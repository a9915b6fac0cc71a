// Playing a show: through the player's own window, and from the editor's.
#include "editor/navigator.h"
#include "editor/show.h"
#include "editor/showfile.h"
#include "editor/showplayer.h"
#include "editor/strip.h"
#include "editor/stripmenu.h"
#include "editor/stripsounds.h"
#include "tests/editor/fakemicrophone.h"
#include "tests/editor/windowfixture.h"
#include "timeline/etimeline.h"

namespace vorlane::editor {
namespace {

class SilentChannel final : public SoundChannel {
public:
    explicit SilentChannel(QStringList& played) : played_(played) {}
    void play(const QString& path, qint64, bool) override { played_.push_back(QFileInfo(path).fileName()); }
    void stop() override {}
    void setPaused(bool) override {}
    void setVolume(int) override {}

private:
    QStringList& played_;
};

class PlayerTest : public WindowFixture {
protected:
    PlayerTest() {
        window_->setSoundChannels([this] { return std::make_unique<SilentChannel>(played_); });
    }
    ShowPlayer& Player() { return *window_->player(); }
    // Whether the player comes to show a picture of that colour, all of it.
    bool Shows(QColor color) {
        return test::WaitFor([&] {
            PlayerWindow& player = Player().window();
            if (player.picture().isNull() || player.fade() < 1) return false;
            const QColor seen = player.grab().toImage().pixelColor(player.rect().center());
            return std::abs(seen.red() - color.red()) < 6 && std::abs(seen.blue() - color.blue()) < 6;
        });
    }
    QStringList Texts() { return Player().window().texts(); }
    void PressInPlayer(int key) { QTest::keyClick(&Player().window(), static_cast<Qt::Key>(key)); }
    bool OpenColors() {
        pictures_.WritePicture("a.jpg", Qt::red);
        pictures_.WritePicture("b.jpg", Qt::blue);
        pictures_.WritePicture("c.jpg", Qt::red);
        return Open(Folder());
    }

    QStringList played_;
};

TEST_F(PlayerTest, PlaysOnTheWholeScreenFromTheCurrentSlideOn) {
    ASSERT_TRUE(OpenColors());
    window_->navigator().setCurrent(1);
    window_->play();
    EXPECT_TRUE(Player().window().isFullScreen());
    EXPECT_EQ(Player().playback().slide(), 1);
    EXPECT_TRUE(Shows(Qt::blue));
    Player().playback().advance(5000);
    EXPECT_EQ(Player().playback().slide(), 2);
    EXPECT_TRUE(Shows(Qt::red));
}

TEST_F(PlayerTest, OnePictureFadesIntoTheNext) {
    ASSERT_TRUE(OpenColors());
    window_->playFromStart();
    ASSERT_TRUE(Shows(Qt::red));
    bool between = false;
    QObject::connect(Player().window().findChild<QVariantAnimation*>(), &QVariantAnimation::valueChanged, window_.get(),
                     [&] { between = between || (Player().window().fade() > 0 && Player().window().fade() < 1); });
    PressInPlayer(Qt::Key_Right);
    EXPECT_TRUE(Shows(Qt::blue));
    EXPECT_TRUE(between);
}

TEST_F(PlayerTest, KeysStepPauseAndEnd) {
    ASSERT_TRUE(OpenColors());
    window_->playFromStart();
    PressInPlayer(Qt::Key_Right);
    EXPECT_EQ(Player().playback().slide(), 1);
    PressInPlayer(Qt::Key_Left);
    EXPECT_EQ(Player().playback().slide(), 0);
    PressInPlayer(Qt::Key_Space);
    EXPECT_FALSE(Player().playback().isPlaying());
    PressInPlayer(Qt::Key_Space);
    EXPECT_TRUE(Player().playback().isPlaying());
    QTest::mouseClick(&Player().window(), Qt::LeftButton);
    EXPECT_EQ(Player().playback().slide(), 1);
    PressInPlayer(Qt::Key_Escape);
    EXPECT_FALSE(Player().playback().isActive());
    EXPECT_FALSE(Player().window().isVisible());
    EXPECT_EQ(window_->navigator().current(), 1);
}

TEST_F(PlayerTest, EndsByItselfAfterTheLastPicture) {
    ASSERT_TRUE(OpenColors());
    window_->navigator().setCurrent(2);
    window_->play();
    Player().playback().advance(5000);
    EXPECT_FALSE(Player().window().isVisible());
    EXPECT_EQ(window_->navigator().current(), 2);
}

TEST_F(PlayerTest, APictureThatCannotBeShownIsNamedWithTheReasonAndThePlayGoesOn) {
    ASSERT_TRUE(OpenColors());
    pictures_.Write("b.jpg", "This is no picture.");
    ASSERT_TRUE(QFile::remove(pictures_.Path("c.jpg")));
    window_->playFromStart();
    ASSERT_TRUE(Shows(Qt::red));
    EXPECT_TRUE(Texts().isEmpty());
    PressInPlayer(Qt::Key_Right);
    EXPECT_TRUE(test::WaitFor([this] { return Texts() == QStringList("Image abîmée : b.jpg"); }));
    PressInPlayer(Qt::Key_Right);
    EXPECT_TRUE(test::WaitFor([this] { return Texts() == QStringList("Image introuvable : c.jpg"); }));
    EXPECT_TRUE(Player().window().picture().isNull());
    PressInPlayer(Qt::Key_Left);
    PressInPlayer(Qt::Key_Left);
    EXPECT_TRUE(Shows(Qt::red));
    EXPECT_TRUE(Texts().isEmpty());
}

TEST_F(PlayerTest, APlayEndsARecordingFirst) {
    ASSERT_TRUE(OpenColors());
    test::FakeMicrophone* microphone = nullptr;
    window_->soundMenu().setMicrophone(test::FakesOf(microphone));
    QAction& record = Action("Enregistrer un commentaire");
    record.trigger();
    ASSERT_TRUE(record.isChecked());
    EXPECT_TRUE(microphone->Hear(2));
    window_->playFromStart();
    EXPECT_FALSE(record.isChecked());
    EXPECT_EQ(QDir(Folder()).entryList({"*.wav"}).size(), 1);
}

TEST_F(PlayerTest, ARecordingEndsAPlayFirstAndIsForThePictureThatItShowed) {
    ASSERT_TRUE(OpenColors());
    test::FakeMicrophone* microphone = nullptr;
    window_->soundMenu().setMicrophone(test::FakesOf(microphone));
    window_->playFromStart();
    PressInPlayer(Qt::Key_Right);
    QAction& record = Action("Enregistrer un commentaire");
    record.trigger();
    EXPECT_FALSE(Player().playback().isActive());
    EXPECT_FALSE(Player().window().isVisible());
    ASSERT_TRUE(record.isChecked());
    EXPECT_TRUE(microphone->Hear(2));
    record.trigger();
    EXPECT_TRUE(window_->sounds().find(SoundKind::Comment, window_->sheet().Key(1)));
}

TEST_F(PlayerTest, TextsStandOneBelowTheOther) {
    ASSERT_TRUE(OpenColors());
    ASSERT_TRUE(QFile::remove(pictures_.Path("a.jpg")));
    const auto lit = [this] {  // rows in which something is written
        const QImage image = Player().window().grab().toImage();
        int rows = 0;
        for (int y = 0; y < image.height(); ++y) {
            bool any = false;
            for (int x = 0; x < image.width(); ++x) any = any || qGray(image.pixel(x, y)) > 60;
            rows += any ? 1 : 0;
        }
        return rows;
    };
    window_->playFromStart();
    ASSERT_TRUE(test::WaitFor([this] { return Texts().size() == 1; }));
    const int missing = lit();
    EXPECT_GT(missing, 0);
    PressInPlayer(Qt::Key_Space);
    ASSERT_EQ(Texts().size(), 2);
    const int both = lit();
    Player().window().tell("Pause");
    EXPECT_EQ(lit() - both, both - missing);
    EXPECT_GT(both, missing);
}

TEST_F(PlayerTest, TroubleWithASoundStandsOverThePicture) {
    ASSERT_TRUE(OpenColors());
    std::vector<SilentChannel*> channels;
    window_->setSoundChannels([&] {
        auto channel = std::make_unique<SilentChannel>(played_);
        channels.push_back(channel.get());
        return channel;
    });
    window_->playFromStart();
    Q_EMIT channels.at(0)->troubled("song.ogg", ui::SoundTrouble::Missing, "no song");
    EXPECT_EQ(Texts(), QStringList("no song"));
    EXPECT_EQ(Status(), "no song");
}

TEST_F(PlayerTest, TheSoundsOfTheShowArePlayed) {
    SavedShow show;
    for (const char* name : {"a.jpg", "b.jpg"}) show.pictures.push_back(pictures_.WritePicture(name));
    show.sounds = {{SoundKind::Music, 0, pictures_.Path("song.wav")},
                   {SoundKind::Comment, 1, pictures_.Path("one.wav")}};
    const QString path = pictures_.Path("s.vorlane");
    ASSERT_EQ(SaveShow(path, show), "");
    ASSERT_TRUE(window_->openShow(path) && Settle());
    window_->playFromStart();
    EXPECT_EQ(played_, QStringList("song.wav"));
    Player().playback().advance(5000);
    EXPECT_EQ(played_, QStringList({"song.wav", "one.wav"}));
}

TEST_F(PlayerTest, TheStripFollows) {
    ASSERT_TRUE(OpenColors());
    window_->navigator().setCurrent(1);
    const auto triangles = [this] {
        const std::string drawn = window_->strip().timeline().Surface().dump();
        return QString::fromStdString(drawn).count("Polygon");
    };
    const auto before = triangles();
    window_->play();
    EXPECT_GT(triangles(), before);
    Player().playback().advance(2000);
    EXPECT_EQ(Player().playback().second(), 7);
    EXPECT_GT(triangles(), before);
    PressInPlayer(Qt::Key_Escape);
    EXPECT_EQ(triangles(), before);
}

TEST_F(PlayerTest, TheStripFollowsOnSlidesBeyondThoseThatAPlaybackMayBeginOn) {
    constexpr int kFar = 33000;
    SavedShow show;
    for (int i = 0; i <= kFar; ++i) show.pictures.push_back(pictures_.Path(QStringLiteral("%1.jpg").arg(i)));
    const QString path = pictures_.Path("s.vorlane");
    ASSERT_EQ(SaveShow(path, show), "");
    ASSERT_TRUE(window_->openShow(path) && Settle());
    window_->navigator().setCurrent(kFar);
    ASSERT_TRUE(Settle());
    window_->play();
    EXPECT_EQ(Player().playback().slide(), kFar);
    EXPECT_NE(window_->strip().timeline().Surface().dump().find("Polygon"), std::string::npos);
}

TEST_F(PlayerTest, NothingToPlayIsTold) {
    window_->play();
    EXPECT_EQ(window_->player(), nullptr);
    EXPECT_EQ(Status(), QString::fromUtf8("Il n'y a aucune image à lire"));
}

}  // namespace
}  // namespace vorlane::editor
