// The sound buttons of slides, with real files and in real time.
#include "editor/show.h"
#include "editor/stripsounds.h"
#include "tests/editor/windowfixture.h"
#include "tests/platform/qt/soundfiles.h"

#include <functional>

namespace vorlane::editor {
namespace {

constexpr int kLimit = 30000;  // milliseconds that nothing here takes
constexpr int kMissing = 6;    // the picture of a button whose file is not there

class SoundButtonsTest : public WindowFixture {
protected:
    SoundButtonsTest() {
        Sheet().Router().DoubleClickTime = -1;
        EXPECT_TRUE(OpenPictures("abc"));
    }
    ~SoundButtonsTest() override { Sheet().StopSound(); }

    VorlaneWidget& Sheet() { return window_->sheet(); }
    static bool Until(const std::function<bool()>& done) { return QTest::qWaitFor(done, kLimit); }
    const Image& Button(int slide, SoundKind kind) {
        return kind == SoundKind::Music ? Slide(slide).BtPlay : Slide(slide).BtComment;
    }
    void Put(int item, SoundKind kind, const QString& file) {
        ASSERT_EQ(window_->sounds().add(kind, {file}, item), 1);
        ASSERT_TRUE(Button(item, kind).Visible());
    }
    void Click(int slide, SoundKind kind) {
        const Box box = Button(slide, kind).BoundsInRoot();
        const QPointF place(box.Left + box.Width / 2, box.Top + box.Height / 2);
        QTest::mouseClick(&Sheet(), Qt::LeftButton, {}, place.toPoint());
    }
    bool Shows(int slide, SoundKind kind, int picture) {
        return Button(slide, kind).Picture().Handle() == Sheet().sheet().ImgLstBtPlay.ListImage(picture).Handle();
    }
    bool Plays(const QString& alias) { return Sheet().Desktop().sounds.IsPlaying({alias.toStdString()}); }

    test::SoundFiles files_;
};

TEST_F(SoundButtonsTest, StandWhereSomethingIsHeard) {
    Put(1, SoundKind::Music, files_.WriteWave("m.wav", 60));
    Put(2, SoundKind::Comment, files_.WriteWave("c.wav", 60));
    EXPECT_FALSE(Slide(0).BtPlayVisible() || Slide(0).BtCommentVisible());
    EXPECT_FALSE(Slide(1).BtCommentVisible());
    EXPECT_FALSE(Slide(2).BtPlayVisible());
    window_->slides().undo();
    EXPECT_FALSE(Slide(2).BtCommentVisible());
    EXPECT_TRUE(Slide(1).BtPlayVisible());
    window_->slides().undo();
    EXPECT_FALSE(Slide(1).BtPlayVisible());
    EXPECT_EQ(Letters(), "abc");
}

TEST_F(SoundButtonsTest, GoWithTheirSlides) {
    Put(2, SoundKind::Comment, files_.WriteWave("c.wav", 60));
    Action("Ordre décroissant").trigger();
    ASSERT_EQ(Letters(), "cba");
    EXPECT_TRUE(Slide(0).BtCommentVisible());
    EXPECT_FALSE(Slide(2).BtCommentVisible());
}

TEST_F(SoundButtonsTest, GoWithTheShow) {
    Put(0, SoundKind::Music, files_.WriteWave("m.wav", 60));
    ASSERT_TRUE(Open(Folder()));
    EXPECT_EQ(Letters(), "abc");
    EXPECT_FALSE(Slide(0).BtPlayVisible());
}

TEST_F(SoundButtonsTest, PlayAndStop) {
    Put(1, SoundKind::Music, files_.WriteWave("m.wav", 60));
    Click(1, SoundKind::Music);
    const QString alias = Sheet().AliasMusic();
    EXPECT_TRUE(Plays(alias));
    Click(1, SoundKind::Music);
    EXPECT_FALSE(Plays(alias));
}

TEST_F(SoundButtonsTest, StopWhenTheItemsMove) {
    Put(0, SoundKind::Music, files_.WriteWave("m.wav", 60));
    Click(0, SoundKind::Music);
    ASSERT_TRUE(Plays(Sheet().AliasMusic()));
    Action("Ordre décroissant").trigger();
    EXPECT_FALSE(Plays(Sheet().AliasMusic()));
}

TEST_F(SoundButtonsTest, StopWhatIsNoLongerHeardAndNothingElse) {
    Put(1, SoundKind::Music, files_.WriteWave("m.wav", 60));
    Click(1, SoundKind::Music);
    ASSERT_TRUE(Plays(Sheet().AliasMusic()));
    Put(2, SoundKind::Comment, files_.WriteWave("c.wav", 60));
    EXPECT_TRUE(Plays(Sheet().AliasMusic()));
    ASSERT_TRUE(window_->sounds().remove(SoundKind::Music, 1));
    EXPECT_FALSE(Plays(Sheet().AliasMusic()));
}

TEST_F(SoundButtonsTest, ShowWhetherTheirFileIsThere) {
    for (const SoundKind kind : {SoundKind::Music, SoundKind::Comment}) {
        const int stopped = kind == SoundKind::Music ? 3 : 4;
        Put(1, kind, files_.Path("gone.wav"));
        EXPECT_TRUE(Shows(1, kind, kMissing));
        Put(1, kind, files_.WriteWave("m.wav", 60));
        EXPECT_TRUE(Shows(1, kind, stopped));
        QFile::remove(files_.Path("m.wav"));
        Put(2, kind, files_.Path("gone.wav"));
        EXPECT_TRUE(Shows(1, kind, kMissing));
        files_.WriteWave("m.wav", 60);
        ASSERT_TRUE(window_->sounds().remove(kind, 2));
        EXPECT_TRUE(Shows(1, kind, stopped));
    }
}

TEST_F(SoundButtonsTest, TellOfAFileThatIsGone) {
    Put(1, SoundKind::Music, files_.WriteWave("m.wav", 60));
    QFile::remove(files_.Path("m.wav"));
    Click(1, SoundKind::Music);
    EXPECT_TRUE(Until([this] { return Shows(1, SoundKind::Music, kMissing); }));
    EXPECT_TRUE(Until([this] { return Status() == "Le son « m.wav » est introuvable"; }));
}

TEST_F(SoundButtonsTest, TellOfAFileThatIsNoSound) {
    Put(1, SoundKind::Comment, files_.Write("text.mp3", "This is no sound."));
    Click(1, SoundKind::Comment);
    const QString told = "Le fichier « text.mp3 » est abîmé ou n'est pas un son";
    EXPECT_TRUE(Until([&] { return Status() == told; }));
}

}  // namespace
}  // namespace vorlane::editor
