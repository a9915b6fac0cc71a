#include "editor/commentrecorder.h"

#include "tests/editor/fakemicrophone.h"
#include "tests/editor/fulldisk.h"

#include <cerrno>
#include <gtest/gtest.h>

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

using namespace vorlane::editor;
namespace test = vorlane::test;

namespace {

class CommentRecorderTest : public testing::Test {
protected:
    CommentRecorderTest() {
        recorder_.setMicrophone(test::FakesOf(microphone_));
        QObject::connect(&recorder_, &CommentRecorder::broken, &recorder_, [this] { ++broken_; });
    }
    QString Path() const { return folder_.filePath("a.wav"); }
    QStringList Files() const { return QDir(folder_.path()).entryList(QDir::Files); }

    QTemporaryDir folder_;
    CommentRecorder recorder_;
    test::FakeMicrophone* microphone_ = nullptr;
    int broken_ = 0;
};

}  // namespace

TEST_F(CommentRecorderTest, RecordsWhatIsSpoken) {
    ASSERT_EQ(recorder_.start(Path()), "");
    EXPECT_TRUE(microphone_->Hear(3));
    const Recording recording = recorder_.stop();
    EXPECT_EQ(recording.path, Path());
    EXPECT_EQ(recording.failure, "");
    EXPECT_EQ(QFileInfo(Path()).size(), 344);
    EXPECT_EQ(recorder_.stop().path, "");
}

TEST_F(CommentRecorderTest, WithoutAMicrophoneItSaysSo) {
    recorder_.setMicrophone([] { return nullptr; });
    EXPECT_EQ(recorder_.start(Path()), "Aucun microphone n'est branché");
    EXPECT_FALSE(recorder_.isRunning());
    EXPECT_TRUE(Files().isEmpty());
}

TEST_F(CommentRecorderTest, AFolderThatCannotBeWrittenToIsToldWithTheReason) {
    const QString path = folder_.filePath("none/a.wav");
    const QString failure = recorder_.start(path);
    EXPECT_TRUE(failure.contains(path)) << failure.toStdString();
    EXPECT_TRUE(failure.contains(qt_error_string(ENOENT))) << failure.toStdString();
    EXPECT_FALSE(recorder_.isRunning());
}

TEST_F(CommentRecorderTest, OnADiskThatFillsUpWhatCameIsKeptAndTheReasonTold) {
    ASSERT_EQ(recorder_.start(Path()), "");
    EXPECT_TRUE(microphone_->Hear(2));
    const test::FullDisk full(300);
    EXPECT_FALSE(microphone_->Hear(2));
    EXPECT_TRUE(QTest::qWaitFor([this] { return broken_ == 1; }, 30000));
    const Recording recording = recorder_.stop();
    EXPECT_EQ(recording.path, Path());
    EXPECT_EQ(recording.failure, "Le commentaire est incomplet : " + qt_error_string(EFBIG));
    EXPECT_EQ(QFileInfo(Path()).size(), 300);
}

TEST_F(CommentRecorderTest, OfARecordingWithoutSoundNothingStays) {
    ASSERT_EQ(recorder_.start(Path()), "");
    {
        const test::FullDisk full(44);
        EXPECT_FALSE(microphone_->Hear(1));
        const Recording recording = recorder_.stop();
        EXPECT_EQ(recording.path, "");
        EXPECT_EQ(recording.failure, "Le commentaire n'a pas pu être enregistré : " + qt_error_string(EFBIG));
    }
    EXPECT_TRUE(Files().isEmpty());
    const test::FullDisk full(10);
    EXPECT_TRUE(recorder_.start(Path()).endsWith(qt_error_string(EFBIG)));
    EXPECT_TRUE(Files().isEmpty());
}

TEST_F(CommentRecorderTest, OfAMicrophoneThatGivesNothingNothingStays) {
    ASSERT_EQ(recorder_.start(Path()), "");
    Recording recording = recorder_.stop();
    EXPECT_EQ(recording.path, "");
    EXPECT_EQ(recording.failure, "Le commentaire n'a pas pu être enregistré : aucun son n'a été capté");
    EXPECT_TRUE(Files().isEmpty());
    ASSERT_EQ(recorder_.start(Path()), "");
    microphone_->Break();
    EXPECT_TRUE(QTest::qWaitFor([this] { return broken_ == 1; }, 30000));
    recording = recorder_.stop();
    EXPECT_EQ(recording.path, "");
    EXPECT_EQ(recording.failure, "Le commentaire n'a pas pu être enregistré : le microphone ne répond plus");
    EXPECT_TRUE(Files().isEmpty());
}

TEST_F(CommentRecorderTest, AMicrophoneThatGoesIsTold) {
    ASSERT_EQ(recorder_.start(Path()), "");
    EXPECT_TRUE(microphone_->Hear(1));
    microphone_->Break();
    EXPECT_TRUE(QTest::qWaitFor([this] { return broken_ == 1; }, 30000));
    const Recording recording = recorder_.stop();
    EXPECT_EQ(recording.path, Path());
    EXPECT_EQ(recording.failure, "Le commentaire est incomplet : le microphone ne répond plus");
}

TEST_F(CommentRecorderTest, AMicrophoneThatGoesAsItsRecordingStopsDoesNotBreakTheNextOne) {
    ASSERT_EQ(recorder_.start(Path()), "");
    EXPECT_TRUE(microphone_->Hear(1));
    microphone_->Break();
    EXPECT_EQ(recorder_.stop().failure, "");
    ASSERT_EQ(recorder_.start(folder_.filePath("b.wav")), "");
    QCoreApplication::processEvents();
    EXPECT_EQ(broken_, 0);
    EXPECT_TRUE(microphone_->Hear(1));
    EXPECT_EQ(recorder_.stop().failure, "");
}

TEST_F(CommentRecorderTest, AMicrophoneThatGoesBehindItsRecordingIsNotTold) {
    ASSERT_EQ(recorder_.start(Path()), "");
    microphone_->Break();
    recorder_.stop();
    QCoreApplication::processEvents();
    EXPECT_EQ(broken_, 0);
}

TEST_F(CommentRecorderTest, TheNamesOfCommentsAreCountedOn) {
    const QString first = CommentRecorder::freeName(folder_.path(), "Commentaire");
    EXPECT_EQ(first, folder_.filePath("Commentaire 1.wav"));
    ASSERT_TRUE(QFile::link("nowhere", first));
    EXPECT_EQ(CommentRecorder::freeName(folder_.path(), "Commentaire"), folder_.filePath("Commentaire 2.wav"));
}
