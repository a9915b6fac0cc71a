#include "editor/wavefile.h"

#include "tests/editor/fulldisk.h"

#include <cerrno>
#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <QtEndian>

using namespace vorlane::editor;
namespace test = vorlane::test;

namespace {

class WaveFileTest : public testing::Test {
protected:
    WaveFileTest() {
        format_.setSampleRate(8000);
        format_.setChannelCount(2);
        format_.setSampleFormat(QAudioFormat::Int16);
    }
    QByteArray BytesOf(const QString& path) {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }
    static quint32 Number(const QByteArray& bytes, int at) {
        return qFromLittleEndian<quint32>(bytes.constData() + at);
    }
    static quint16 Short(const QByteArray& bytes, int at) { return qFromLittleEndian<quint16>(bytes.constData() + at); }

    QTemporaryDir folder_;
    QString path_ = folder_.filePath("a.wav");
    QAudioFormat format_;
};

}  // namespace

TEST_F(WaveFileTest, ItsHeadTellsTheFormatAndTheLengths) {
    {
        WaveFile file(path_, format_);
        ASSERT_TRUE(file.begin());
        file.write(QByteArray(100, 'x'));
        EXPECT_TRUE(file.finish());
        EXPECT_FALSE(file.finish());
    }
    const QByteArray bytes = BytesOf(path_);
    ASSERT_EQ(bytes.size(), 144);
    EXPECT_EQ(bytes.left(4) + bytes.mid(8, 8) + bytes.mid(36, 4), "RIFFWAVEfmt data");
    EXPECT_EQ(Number(bytes, 4), 136U);
    EXPECT_EQ(Number(bytes, 16), 16U);
    EXPECT_EQ(Short(bytes, 20), 1);
    EXPECT_EQ(Short(bytes, 22), 2);
    EXPECT_EQ(Number(bytes, 24), 8000U);
    EXPECT_EQ(Number(bytes, 28), 32000U);
    EXPECT_EQ(Short(bytes, 32), 4);
    EXPECT_EQ(Short(bytes, 34), 16);
    EXPECT_EQ(Number(bytes, 40), 100U);
    EXPECT_EQ(bytes.mid(44), QByteArray(100, 'x'));
}

TEST_F(WaveFileTest, SamplesWithAPointAreToldAsSuch) {
    format_.setSampleFormat(QAudioFormat::Float);
    WaveFile file(path_, format_);
    ASSERT_TRUE(file.begin());
    ASSERT_TRUE(file.finish());
    EXPECT_EQ(Short(BytesOf(path_), 20), 3);
    EXPECT_EQ(Short(BytesOf(path_), 34), 32);
}

TEST_F(WaveFileTest, AFileThatIsThereIsLeftAlone) {
    QFile there(path_);
    ASSERT_TRUE(there.open(QIODevice::WriteOnly));
    there.write("mine");
    there.close();
    WaveFile file(path_, format_);
    EXPECT_FALSE(file.begin());
    EXPECT_EQ(file.failure(), qt_error_string(EEXIST));
    EXPECT_FALSE(file.finish());
    EXPECT_EQ(BytesOf(path_), "mine");
}

TEST_F(WaveFileTest, TheReasonOfAFailureIsKept) {
    WaveFile file(path_, format_);
    ASSERT_TRUE(file.begin());
    EXPECT_FALSE(file.hasSound());
    {
        const test::FullDisk full(100);
        EXPECT_EQ(file.write(QByteArray(50, 'x')), 50);
        EXPECT_EQ(file.failure(), "");
        EXPECT_EQ(file.write(QByteArray(50, 'x')), 6);
        EXPECT_EQ(file.write(QByteArray(50, 'x')), -1);
    }
    EXPECT_EQ(file.failure(), qt_error_string(EFBIG));
    EXPECT_TRUE(file.hasSound());
    EXPECT_FALSE(file.finish());
    EXPECT_EQ(Number(BytesOf(path_), 40), 56U);
}
