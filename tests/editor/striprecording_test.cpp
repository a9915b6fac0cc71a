// Comments that are spoken into the microphone.
#include "tests/editor/fakemicrophone.h"
#include "tests/editor/fulldisk.h"
#include "tests/editor/stripfixture.h"

#include <cerrno>

#include <QDir>

namespace vorlane::editor {
namespace {

class StripRecordingTest : public StripFixture {
protected:
    QAction& StartRecording() {
        window_->soundMenu().setMicrophone(test::FakesOf(microphone_));
        QAction& record = Beginning("Enregistrer un commentaire");
        record.trigger();
        return record;
    }

    test::FakeMicrophone* microphone_ = nullptr;  // of the last recording
};

TEST_F(StripRecordingTest, WithoutAMicrophoneRecordingSaysSo) {
    ASSERT_TRUE(OpenPictures("ab"));
    window_->soundMenu().setMicrophone([] { return nullptr; });
    QAction& record = Beginning("Enregistrer un commentaire");
    record.trigger();
    EXPECT_EQ(Status(), "Aucun microphone n'est branché");
    EXPECT_TRUE(QDir(Folder()).entryList({"*.wav"}).isEmpty());
    EXPECT_FALSE(record.isChecked());
}

TEST_F(StripRecordingTest, ARecordingMakesAComment) {
    ASSERT_TRUE(OpenPictures("ab"));
    window_->navigator().setCurrent(1);
    QAction& record = StartRecording();
    EXPECT_TRUE(record.isChecked());
    EXPECT_TRUE(microphone_->Hear(2));
    record.trigger();
    EXPECT_EQ(Told(SoundKind::Comment), "b:Commentaire 1");
    EXPECT_EQ(Status(), "1 commentaire ajouté");
    EXPECT_FALSE(record.isChecked());
}

TEST_F(StripRecordingTest, ARecordingThatFailsTellsTheReason) {
    ASSERT_TRUE(OpenPictures("ab"));
    window_->navigator().setCurrent(0);
    QAction& record = StartRecording();
    {
        const test::FullDisk full(144);
        EXPECT_FALSE(microphone_->Hear(2));
        record.trigger();
    }
    EXPECT_EQ(Told(SoundKind::Comment), "a:Commentaire 1");
    EXPECT_TRUE(Status().endsWith(qt_error_string(EFBIG))) << Status().toStdString();
}

TEST_F(StripRecordingTest, ARecordingOfNothingLeavesTheCommentThatTheSlideHas) {
    ASSERT_TRUE(OpenPictures("ab"));
    window_->navigator().setCurrent(1);
    Sounds().add(SoundKind::Comment, {Sound("c.wav", 2)}, 1);
    QAction& record = StartRecording();
    record.trigger();
    EXPECT_EQ(Told(SoundKind::Comment), "b:c");
    EXPECT_TRUE(QDir(Folder()).entryList({"Commentaire*"}).isEmpty());
    EXPECT_TRUE(Status().endsWith("aucun son n'a été capté")) << Status().toStdString();
    EXPECT_FALSE(record.isChecked());
}

TEST_F(StripRecordingTest, ACommentGoesToItsSlideWhereverThatIsByThen) {
    ASSERT_TRUE(OpenPictures("abcd"));
    window_->navigator().setCurrent(1);
    QAction& record = StartRecording();
    EXPECT_TRUE(microphone_->Hear(2));
    window_->slides().moveSelected(4);
    ASSERT_EQ(Letters(), "acdb");
    window_->navigator().setCurrent(0);
    record.trigger();
    EXPECT_EQ(Told(SoundKind::Comment), "b:Commentaire 1");
}

TEST_F(StripRecordingTest, ACommentThatCannotBePutOnItsSlideIsNamed) {
    ASSERT_TRUE(OpenPictures("ab"));
    window_->navigator().setCurrent(0);
    const QString file = QDir(Folder()).filePath("Commentaire 1.wav");
    QAction* record = &StartRecording();
    EXPECT_TRUE(microphone_->Hear(2));
    ASSERT_TRUE(window_->slides().beginMove());
    record->trigger();
    EXPECT_EQ(Told(SoundKind::Comment), "");
    EXPECT_EQ(Status(),
              QStringLiteral("La planche est occupée\u00A0; le commentaire est dans «\u00A0%1\u00A0»").arg(file));
    window_->slides().endMove();
    EXPECT_TRUE(QFileInfo::exists(file));

    record = &StartRecording();
    EXPECT_TRUE(microphone_->Hear(2));
    window_->removeSelected();
    record->trigger();
    EXPECT_EQ(Told(SoundKind::Comment), "");
    EXPECT_EQ(Status(), QStringLiteral("La diapositive n'est plus là\u00A0; le commentaire est dans «\u00A0%1\u00A0»")
                            .arg(QDir(Folder()).filePath("Commentaire 2.wav")));
}

}  // namespace
}  // namespace vorlane::editor
