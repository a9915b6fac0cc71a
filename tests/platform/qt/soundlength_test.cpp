#include "platform/qt/soundlength.h"

#include "tests/platform/qt/soundfiles.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace vorlane {
namespace {

using test::SoundFiles;
// A file of tests/sounds, 1.8 seconds long.
QString TonePath(const QString& name) {
    return QStringLiteral(VORLANE_TEST_SOUNDS "/") + name;
}

TEST(SoundLength, OfAWaveIsThatOfItsSamples) {
    SoundFiles files;
    EXPECT_DOUBLE_EQ(SoundLength(files.Write("a.wav", SoundFiles::Wave(8000, 12000))), 1.5);
    EXPECT_EQ(SoundLength(files.Write("none.wav", SoundFiles::Wave(0, 12000))), 0);
}

TEST(SoundLength, OfAWaveThatWasCutOffIsWhatIsThere) {
    SoundFiles files;
    EXPECT_DOUBLE_EQ(SoundLength(files.Write("cut.wav", SoundFiles::Wave(8000, 12000).chopped(4000))), 1);
}

TEST(SoundLength, IsReadFromCompressedFiles) {
    EXPECT_NEAR(SoundLength(TonePath("tone.ogg")), 1.8, 0.01);
    EXPECT_NEAR(SoundLength(TonePath("tone.flac")), 1.8, 0.01);
    EXPECT_NEAR(SoundLength(TonePath("tone.mp3")), 1.8, 0.25);  // its frames are of one length
}

TEST(SoundLength, IsThatOfTheContentWhateverTheNameSays) {
    SoundFiles files;
    const QString misnamed = files.Path("tone.mp3");
    ASSERT_TRUE(QFile::copy(TonePath("tone.ogg"), misnamed));
    EXPECT_NEAR(SoundLength(misnamed), 1.8, 0.01);
}

TEST(SoundLength, IsNoneForWhatIsNoSound) {
    SoundFiles files;
    for (const char* name : {"a.wav", "a.mp3", "a.ogg", "a.flac", "a"}) {
        EXPECT_EQ(SoundLength(files.Write(name, "no sound")), 0) << name;
        EXPECT_EQ(SoundLength(files.Write(name, {})), 0) << name;
    }
    EXPECT_EQ(SoundLength(files.Path("missing.mp3")), 0);
    EXPECT_EQ(SoundLength(files.Path("")), 0);
}

TEST(SoundLength, DoesNotWaitForAPipe) {
    const SoundFiles files;
    ASSERT_EQ(mkfifo(QFile::encodeName(files.Path("pipe.mp3")).constData(), 0600), 0);
    EXPECT_EQ(SoundLength(files.Path("pipe.mp3")), 0);
}

}  // namespace
}  // namespace vorlane
