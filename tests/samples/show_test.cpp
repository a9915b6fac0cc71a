#include "samples/show.h"

#include "samples/picture.h"

#include <atomic>
#include <gtest/gtest.h>
#include <stdexcept>

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QImageReader>
#include <QSet>
#include <QTemporaryDir>

namespace {

using samples::File;

QByteArray ContentOf(const QString& name) {
    for (const File& file : samples::Show()) {
        if (file.Name == name) return file.Content();
    }
    ADD_FAILURE() << name.toStdString() << " is not in the show";
    return {};
}

QByteArray Read(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

std::vector<samples::Picture> AllPictures() {
    using namespace samples;
    std::vector<Picture> all;
    for (const auto& topic : {Mountains, Woods, Waters, Skies, Towns, Shapes, StillLifes}) {
        for (const Picture& picture : topic()) all.push_back(picture);
    }
    return all;
}

TEST(SampleShow, TwoRunsGiveTheSameBytes) {
    for (const char* name : {"Cubes.png", "Cercles d'encre.webp", "Lac sans nom", "Ressac.wav"}) {
        const QByteArray first = ContentOf(name);
        EXPECT_FALSE(first.isEmpty()) << name;
        EXPECT_EQ(first, ContentOf(name)) << name;
    }
}

TEST(SampleShow, HasSixtyPicturesOfOneToTwelveMegapixelsUnderNamesOfTheirOwn) {
    const auto pictures = AllPictures();
    EXPECT_NEAR(static_cast<double>(pictures.size()), 60, 3);
    for (const auto& picture : pictures) {
        const double megapixels = picture.Size.width() * picture.Size.height() / 1e6;
        EXPECT_GE(megapixels, 0.9) << picture.Name;
        EXPECT_LE(megapixels, 12.1) << picture.Name;
    }
    QSet<QString> names;
    for (const File& file : samples::Show()) {
        EXPECT_EQ(file.Name, file.Name.normalized(QString::NormalizationForm_C));
        EXPECT_FALSE(names.contains(file.Name)) << file.Name.toStdString();
        names.insert(file.Name);
    }
}

TEST(SampleShow, APictureIsOfTheFormatOfItsNameAndOfItsSize) {
    QByteArray bytes = ContentOf("Cercles d'encre.webp");
    QBuffer buffer(&bytes);
    EXPECT_EQ(QImageReader(&buffer).format(), "webp");
    EXPECT_EQ(QImage::fromData(bytes).size(), QSize(1200, 800));
    EXPECT_EQ(QImage::fromData(ContentOf("Lac sans nom"), "jpg").size(), QSize(1500, 1000));
}

TEST(SampleShow, OnePictureIsStoredLyingAndCarriesTheMarkThatTurnsItUpright) {
    QByteArray bytes = ContentOf("Voilier au large.jpg");
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer);
    EXPECT_EQ(reader.size(), QSize(2000, 1333));
    EXPECT_EQ(reader.transformation(), QImageIOHandler::TransformationRotate90);
    reader.setAutoTransform(true);
    EXPECT_EQ(reader.read().size(), QSize(1333, 2000));
}

TEST(SampleShow, BadFilesAreBad) {
    EXPECT_TRUE(ContentOf("Photo vide.jpg").isEmpty());
    EXPECT_TRUE(ContentOf("Photo abîmée.jpg").startsWith("\xFF\xD8"));
    EXPECT_TRUE(QImage::fromData(ContentOf("Photo abîmée.jpg")).isNull());
}

TEST(SampleShow, SoundsAreWavesOfAFewSeconds) {
    for (const char* name : {"Carillon.wav", "Ressac.wav", "Petite mélodie.wav"}) {
        const QByteArray bytes = ContentOf(name);
        EXPECT_TRUE(bytes.startsWith("RIFF")) << name;
        EXPECT_EQ(bytes.mid(8, 8), "WAVEfmt ") << name;
        const double seconds = static_cast<double>(bytes.size() - 44) / (22050 * 2);
        EXPECT_GE(seconds, 3) << name;
        EXPECT_LE(seconds, 10) << name;
        EXPECT_NE(bytes.mid(44).count('\0'), bytes.size() - 44) << name << " is silent";
    }
}

class SampleFolder : public testing::Test {
protected:
    File Counted(const QString& name, const QByteArray& bytes) {
        return {name, 0, [this, bytes] {
                    ++painted_;
                    return bytes;
                }};
    }

    QTemporaryDir base_;
    QString folder_ = base_.filePath("show");
    std::atomic<int> painted_ = 0;
};

TEST_F(SampleFolder, IsWrittenOnceAVersion) {
    const std::vector<File> files{Counted("a b.jpg", "one"), Counted("é", "two")};
    EXPECT_TRUE(samples::Refresh(files, "1", folder_));
    EXPECT_EQ(Read(folder_ + "/a b.jpg"), "one");
    EXPECT_EQ(Read(folder_ + "/é"), "two");
    EXPECT_FALSE(samples::Refresh(files, "1", folder_));
    EXPECT_FALSE(samples::Refresh(files, "1", folder_ + '/'));
    EXPECT_EQ(painted_, 2);
    EXPECT_TRUE(samples::Refresh(files, "2", folder_));
    EXPECT_EQ(painted_, 4);
}

TEST_F(SampleFolder, IsWrittenAgainWhenItIsGone) {
    const std::vector<File> files{Counted("a", "one")};
    samples::Refresh(files, "1", folder_);
    QDir(folder_).removeRecursively();
    EXPECT_TRUE(samples::Refresh(files, "1", folder_));
    EXPECT_EQ(Read(folder_ + "/a"), "one");
}

TEST_F(SampleFolder, LosesTheFilesOfAnOlderVersionAndNoOthers) {
    samples::Refresh({Counted("old", "one"), Counted("kept", "two")}, "1", folder_);
    QFile own(folder_ + "/own");
    ASSERT_TRUE(own.open(QIODevice::WriteOnly));
    samples::Refresh({Counted("kept", "three")}, "2", folder_);
    EXPECT_EQ(QDir(folder_).entryList(QDir::Files, QDir::Name), QStringList({"kept", "own"}));
    EXPECT_EQ(Read(folder_ + "/kept"), "three");
}

TEST_F(SampleFolder, IsTakenForUnfinishedAfterAFailure) {
    const File failing{"b", 0, []() -> QByteArray { throw std::runtime_error("no paint"); }};
    EXPECT_THROW(samples::Refresh({failing}, "1", folder_), std::runtime_error);
    EXPECT_TRUE(samples::Refresh({Counted("b", "one")}, "1", folder_));
}

TEST(SampleWrite, FailsWhereNoFolderCanBe) {
    EXPECT_THROW(samples::Write({}, "/dev/null/show"), std::runtime_error);
}

}  // namespace
