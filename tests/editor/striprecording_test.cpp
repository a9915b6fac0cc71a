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
        window_->soundMenu().setMicrophone([this] {
            auto microphone = std::make_unique<test::FakeMicrophone>();
            microphone_ = microphone.get();
            return microphone;
        });
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

}  // namespace
}  // namespace vorlane::editor
