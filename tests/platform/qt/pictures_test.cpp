#include "platform/failure.h"
#include "platform/qt/picturefile.h"
#include "platform/qt/qtpicturedata.h"
#include "platform/qt/qtpictures.h"
#include "platform/qt/scaledpictures.h"

#include <cstdio>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QImageReader>
#include <QImageWriter>
#include <QTemporaryDir>
#include <QtEndian>

namespace vorlane {
namespace {

// Red at the left, blue at the right, white at the top.
QImage Sample(int width, int height) {
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const QRgb color = x < width / 2 ? qRgb(200, 0, 0) : qRgb(0, 0, 200);
            image.setPixel(x, y, y < height / 4 ? qRgb(255, 255, 255) : color);
        }
    }
    return image;
}

QByteArray Encoded(const QImage& image, const char* format) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, format);
    EXPECT_TRUE(writer.write(image)) << format;
    return bytes;
}

// A JPEG with an orientation mark.
QByteArray Oriented(QByteArray jpeg, char orientation) {
    QByteArray exif("Exif\0\0II*\0\x08\0\0\0\x01\0\x12\x01\x03\0\x01\0\0\0", 24);
    exif += QByteArray(1, orientation) + QByteArray(3 + 4, '\0');
    QByteArray segment("\xFF\xE1\0", 3);
    segment += static_cast<char>(exif.size() + 2);
    return jpeg.insert(2, segment + exif);
}

uint32_t Crc(const QByteArray& bytes) {
    uint32_t crc = 0xFFFFFFFF;
    for (const char byte : bytes) {
        crc ^= static_cast<unsigned char>(byte);
        for (int bit = 0; bit < 8; ++bit) crc = (crc & 1) != 0 ? crc >> 1 ^ 0xEDB88320 : crc >> 1;
    }
    return ~crc;
}

// A PNG that declares another size than it has, its check sum right.
QByteArray Declaring(QByteArray png, uint32_t side) {
    qToBigEndian(side, png.data() + 16);
    qToBigEndian(side, png.data() + 20);
    qToBigEndian(Crc(png.mid(12, 17)), png.data() + 29);
    return png;
}

class QtPicturesTest : public testing::Test {
protected:
    std::string Write(const QString& name, const QByteArray& bytes) {
        QFile file(folder_.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return file.fileName().toStdString();
    }

    // Width and height in pixels, or nothing.
    std::optional<QSize> SizeOf(const std::string& path) {
        const auto picture = pictures_.LoadImageFile(path);
        return picture ? std::optional(PixelSizeOf(*picture)) : std::nullopt;
    }

    QTemporaryDir folder_;
    QtPictures pictures_;
};

TEST_F(QtPicturesTest, ReadsTheUsualFormats) {
    for (const char* format : {"png", "jpg", "webp", "bmp", "ppm"}) {
        EXPECT_EQ(SizeOf(Write(QString("a.%1").arg(format), Encoded(Sample(60, 40), format))), QSize(60, 40)) << format;
    }
}

TEST_F(QtPicturesTest, ABitmapIsAPictureOfTypeOne) {
    const auto picture = pictures_.LoadImageFile(Write("a.png", Encoded(Sample(60, 40), "png")));
    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->Type(), 1);
    EXPECT_NE(picture->Handle(), 0U);
}

TEST_F(QtPicturesTest, TheContentDecidesNotTheName) {
    EXPECT_EQ(SizeOf(Write("really-a-png.jpg", Encoded(Sample(60, 40), "png"))), QSize(60, 40));
    EXPECT_EQ(SizeOf(Write("no-extension", Encoded(Sample(60, 40), "jpg"))), QSize(60, 40));
}

TEST_F(QtPicturesTest, APointBehindANameWithoutExtensionFindsTheFile) {
    const std::string path = Write("bare", Encoded(Sample(60, 40), "jpg"));
    EXPECT_EQ(SizeOf(path + "."), QSize(60, 40));
    EXPECT_EQ(SizeOf(path + ".."), std::nullopt);
}

TEST_F(QtPicturesTest, AFileWhoseNameEndsInAPointIsItself) {
    Write("bare", Encoded(Sample(60, 40), "png"));
    EXPECT_EQ(SizeOf(Write("bare.", Encoded(Sample(30, 20), "png"))), QSize(30, 20));
}

TEST_F(QtPicturesTest, ReadsNamesWithAccentsAndBlanks) {
    EXPECT_EQ(SizeOf(Write(QString::fromUtf8("\xC3\xA9t\xC3\xA9 \xC3\xA0 la mer.png"), Encoded(Sample(60, 40), "png"))),
              QSize(60, 40));
}

TEST_F(QtPicturesTest, ReadsANameThatIsNoUtf8) {
    const std::string path = Write("plain.png", Encoded(Sample(60, 40), "png"));
    const std::string odd = folder_.path().toStdString() + "/\xE9t\xE9.png";
    ASSERT_EQ(std::rename(path.c_str(), odd.c_str()), 0);
    EXPECT_EQ(SizeOf(odd), QSize(60, 40));
    std::remove(odd.c_str());
}

TEST_F(QtPicturesTest, TheOrientationMarkTurnsThePictureOnce) {
    // 6: the camera's top is at the picture's right, so it is turned a quarter to the right.
    const auto picture = pictures_.LoadImageFile(Write("turned.jpg", Oriented(Encoded(Sample(80, 40), "jpg"), 6)));
    ASSERT_TRUE(picture);
    EXPECT_EQ(PixelSizeOf(*picture), QSize(40, 80));
    const QImage whole = RenderPicture(*picture, QSize(40, 80));
    EXPECT_GT(qRed(whole.pixel(5, 10)), 150);     // the left, red side came to the top
    EXPECT_GT(qBlue(whole.pixel(5, 70)), 150);    // the right, blue one to the bottom
    EXPECT_GT(qGreen(whole.pixel(36, 40)), 200);  // the white top to the right
    const QImage small = RenderPicture(*picture, QSize(10, 20));
    EXPECT_GT(qRed(small.pixel(1, 3)), 150);
    EXPECT_GT(qBlue(small.pixel(1, 17)), 150);
}

TEST_F(QtPicturesTest, ATurnedPictureThatIsKeptReducedIsUpright) {
    const auto picture = pictures_.LoadImageFile(Write("turned.jpg", Oriented(Encoded(Sample(1600, 800), "jpg"), 6)));
    ASSERT_TRUE(picture);
    EXPECT_EQ(PixelSizeOf(*picture), QSize(800, 1600));
    for (const QSize size : {QSize(80, 160), QSize(800, 1600)}) {
        const QImage image = RenderPicture(*picture, size);
        ASSERT_EQ(image.size(), size);
        EXPECT_GT(qRed(image.pixel(size.width() / 8, size.height() / 8)), 150);
        EXPECT_GT(qBlue(image.pixel(size.width() / 8, size.height() * 7 / 8)), 150);
    }
}

// --- What can't be read ---

TEST_F(QtPicturesTest, AMissingFileIsNoPicture) {
    EXPECT_EQ(SizeOf(folder_.filePath("missing.jpg").toStdString()), std::nullopt);
    EXPECT_EQ(SizeOf(""), std::nullopt);
    EXPECT_EQ(SizeOf("."), std::nullopt);
}

TEST_F(QtPicturesTest, AnEmptyFileIsNoPicture) {
    EXPECT_EQ(SizeOf(Write("empty.jpg", {})), std::nullopt);
    EXPECT_EQ(SizeOf(Write("empty", {})), std::nullopt);
}

TEST_F(QtPicturesTest, ATextIsNoPicture) {
    EXPECT_EQ(SizeOf(Write("text.png", "This is no picture at all.")), std::nullopt);
}

TEST_F(QtPicturesTest, AFolderAndAPipeAreNoPictures) {
    ASSERT_TRUE(QDir(folder_.path()).mkdir("folder.jpg"));
    EXPECT_EQ(SizeOf(folder_.filePath("folder.jpg").toStdString()), std::nullopt);
    const std::string pipe = folder_.filePath("pipe.jpg").toStdString();
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_EQ(SizeOf(pipe), std::nullopt);
}

TEST_F(QtPicturesTest, ACutFileIsNoPicture) {
    QImage noise(200, 150, QImage::Format_RGB32);
    uint32_t seed = 1;
    for (int y = 0; y < noise.height(); ++y) {
        for (int x = 0; x < noise.width(); ++x) noise.setPixel(x, y, seed = seed * 1664525 + 1013904223);
    }
    for (const char* format : {"png", "jpg", "webp", "bmp", "ppm"}) {
        const QByteArray whole = Encoded(noise, format);
        for (const double part : {0.99, 0.7, 0.3, 0.01}) {
            const auto length = static_cast<qsizetype>(static_cast<double>(whole.size()) * part);
            EXPECT_EQ(SizeOf(Write("cut", whole.left(length))), std::nullopt) << format << " " << part;
        }
    }
}

TEST_F(QtPicturesTest, AJpegWithMoreBehindItsEndIsWhole) {
    EXPECT_EQ(SizeOf(Write("more.jpg", Encoded(Sample(60, 40), "jpg") + "trailing bytes")), QSize(60, 40));
}

TEST_F(QtPicturesTest, ACutGifIsWholeOnceItsFirstFrameIs) {
    // 1 x 1, a table of two colours, one frame.
    const QByteArray gif("GIF89a\1\0\1\0\x80\0\0\xFF\0\0\0\0\xFF,\0\0\0\0\1\0\1\0\0\2\2\x44\1\0;", 35);
    EXPECT_EQ(SizeOf(Write("whole.gif", gif)), QSize(1, 1));
    EXPECT_TRUE(picturefile::IsWhole(gif.left(34)));
    for (int length = 6; length < 34; ++length) EXPECT_FALSE(picturefile::IsWhole(gif.left(length))) << length;
}

TEST_F(QtPicturesTest, ACorruptPngIsNoPicture) {
    QByteArray png = Encoded(Sample(200, 150), "png");
    for (qsizetype at = png.size() / 2; at < png.size() / 2 + 20; ++at) png[at] = static_cast<char>(~png.at(at));
    EXPECT_EQ(SizeOf(Write("corrupt.png", png)), std::nullopt);
}

TEST_F(QtPicturesTest, ACorruptHeaderIsNoPicture) {
    for (const char* format : {"png", "jpg", "webp", "bmp"}) {
        QByteArray bytes = Encoded(Sample(60, 40), format);
        for (int at = 0; at < 30; ++at) bytes[at] = static_cast<char>(at * 7);
        EXPECT_EQ(SizeOf(Write("corrupt", bytes)), std::nullopt) << format;
    }
}

TEST_F(QtPicturesTest, ADeclaredSizeOf60000IsRefusedAtOnce) {
    EXPECT_EQ(SizeOf(Write("enormous.png", Declaring(Encoded(Sample(60, 40), "png"), 60000))), std::nullopt);
    QByteArray jpeg = Encoded(Sample(60, 40), "jpg");
    const qsizetype frame = jpeg.indexOf("\xFF\xC0");
    qToBigEndian<quint16>(60000, jpeg.data() + frame + 5);
    qToBigEndian<quint16>(60000, jpeg.data() + frame + 7);
    EXPECT_EQ(SizeOf(Write("enormous.jpg", jpeg)), std::nullopt);
}

TEST_F(QtPicturesTest, TheLimitIsTheSizeOfTheDecodedPicture) {
    EXPECT_GE(QImageReader::allocationLimit(), 512);
    // The check sum of the declared header is right, so that only the size can be what is refused.
    EXPECT_EQ(picturefile::Decode(Declaring(Encoded(Sample(60, 40), "png"), 60), QSize(750, 750)), std::nullopt);
    EXPECT_TRUE(picturefile::Decode(Encoded(Sample(60, 40), "png"), QSize(750, 750)));
}

// --- Sizes ---

TEST_F(QtPicturesTest, ALargePictureIsKeptReducedAndTellsItsOwnSize) {
    const auto decoded = picturefile::Decode(Encoded(Sample(3000, 2000), "jpg"), QSize(kKeptSide, kKeptSide));
    ASSERT_TRUE(decoded);
    EXPECT_EQ(decoded->size, QSize(3000, 2000));
    EXPECT_EQ(decoded->image.size(), QSize(750, 500));
}

TEST_F(QtPicturesTest, AnExtremelyLongPictureKeepsAtLeastOnePixel) {
    const auto decoded = picturefile::Decode(Encoded(Sample(4000, 2), "png"), QSize(kKeptSide, kKeptSide));
    ASSERT_TRUE(decoded);
    EXPECT_EQ(decoded->image.size(), QSize(750, 1));
}

TEST_F(QtPicturesTest, ALargePictureIsSharpWhenItIsPaintedLarge) {
    QImage stripes(1500, 1000, QImage::Format_RGB32);
    for (int y = 0; y < stripes.height(); ++y) {
        for (int x = 0; x < stripes.width(); ++x) stripes.setPixel(x, y, (x & 1) != 0 ? 0xFFFFFFFF : 0xFF000000);
    }
    const auto picture = pictures_.LoadImageFile(Write("stripes.png", Encoded(stripes, "png")));
    ASSERT_TRUE(picture);
    EXPECT_EQ(RenderPicture(*picture, QSize(1500, 1000)), stripes);
}

TEST_F(QtPicturesTest, APictureWhoseFileIsGoneIsPaintedFromWhatIsKept) {
    const std::string path = Write("gone.png", Encoded(Sample(1500, 1000), "png"));
    const auto picture = pictures_.LoadImageFile(path);
    ASSERT_TRUE(picture);
    ASSERT_TRUE(QFile::remove(QString::fromStdString(path)));
    const QImage image = RenderPicture(*picture, QSize(1500, 1000));
    ASSERT_EQ(image.size(), QSize(1500, 1000));
    EXPECT_GT(qRed(image.pixel(300, 700)), 150);
}

TEST_F(QtPicturesTest, AFileThatAHandlerKnowsForBrokenIsNotRead) {
    const std::string path = Write("a.png", Encoded(Sample(60, 40), "png"));
    std::string asked;
    auto connection = pictures_.BeforeLoad.connect([&](const std::string& file, bool& broken) {
        asked = file;
        broken = true;
    });
    EXPECT_FALSE(pictures_.LoadImageFile(path));
    EXPECT_EQ(asked, path);
    connection.disconnect();
    EXPECT_TRUE(pictures_.LoadImageFile(path));
}

TEST_F(QtPicturesTest, AHandlerIsToldTheFileAsItIsFound) {
    std::string asked;
    const ScopedConnection connection =
        pictures_.BeforeLoad.connect([&](const std::string& file, bool&) { asked = file; });
    const std::string bare = Write("photo", Encoded(Sample(60, 40), "png"));
    EXPECT_TRUE(pictures_.LoadImageFile(bare + '.'));
    EXPECT_EQ(asked, bare);
    const std::string pointed = Write("photo.", Encoded(Sample(60, 40), "png"));
    EXPECT_TRUE(pictures_.LoadImageFile(pointed));
    EXPECT_EQ(asked, pointed);
}

TEST_F(QtPicturesTest, ResizingGivesTheSizeThatIsAskedFor) {
    const auto picture = pictures_.LoadImageFile(Write("a.png", Encoded(Sample(300, 200), "png")));
    ASSERT_TRUE(picture);
    for (const QSize size : {QSize(150, 100), QSize(1, 1), QSize(600, 10)}) {
        const Picture resized = pictures_.ResizePicture(*picture, size.width(), size.height());
        EXPECT_EQ(PixelSizeOf(resized), size);
        EXPECT_EQ(resized.Type(), 1);
        EXPECT_NE(resized.Handle(), picture->Handle());
    }
}

TEST_F(QtPicturesTest, ResizingFailsOnNoPictureAndOnNoSize) {
    const auto picture = pictures_.LoadImageFile(Write("a.png", Encoded(Sample(300, 200), "png")));
    ASSERT_TRUE(picture);
    EXPECT_THROW(pictures_.ResizePicture({}, 10, 10), Failure);
    EXPECT_THROW(pictures_.ResizePicture(*picture, 0, 10), Failure);
    EXPECT_THROW(pictures_.ResizePicture(*picture, 10, -1), Failure);
    EXPECT_THROW(pictures_.ResizePicture(*picture, INT32_MAX, INT32_MAX), Failure);
    EXPECT_THROW(pictures_.ResizePicture(Picture(PictureType::Bitmap, 5, 5, nullptr), 10, 10), Failure);
}

TEST_F(QtPicturesTest, AVectorFileIsNoBitmapAndSharpAtAnySize) {
    const auto picture = pictures_.LoadImageFile(Write("a.svg",
                                                       "<svg xmlns='http://www.w3.org/2000/svg' width='10' height='10'>"
                                                       "<rect width='5' height='10' fill='red'/></svg>"));
    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->Type(), 4);
    EXPECT_EQ(PixelSizeOf(*picture), QSize(10, 10));
    const QImage large = RenderPicture(*picture, QSize(400, 400));
    EXPECT_EQ(large.pixel(199, 200), qRgb(255, 0, 0));
    EXPECT_EQ(qAlpha(large.pixel(200, 200)), 0);
}

// --- Images of the host, artwork ---

TEST(PictureFromImage, ADenseImageHasItsLogicalSize) {
    QImage image = Sample(200, 100);
    image.setDevicePixelRatio(2);
    const Picture picture = PictureFromImage(image);
    EXPECT_EQ(PixelSizeOf(picture), QSize(100, 50));
    EXPECT_EQ(RenderPicture(picture, QSize(200, 100)), Sample(200, 100));
}

TEST(PictureFromImage, PicturesOfOneImageShareTheirScaledPixels) {
    const QImage image = Sample(60, 40);
    ScaledPictures scaled(1 << 20);
    scaled.Get(PictureFromImage(image), {30, 20});
    scaled.Get(PictureFromImage(image, 600, 400), {30, 20});
    EXPECT_EQ(scaled.Renders(), 1);
    scaled.Get(PictureFromImage(Sample(60, 40)), {30, 20});
    EXPECT_EQ(scaled.Renders(), 2);
}

TEST(PictureFromImage, ANullImageIsTheEmptyPicture) {
    EXPECT_EQ(PictureFromImage(QImage()).Type(), 0);
}

TEST(QtArtwork, EveryPieceIsThereInItsSizeAndPaintsSomething) {
    QtPictures pictures;
    const auto side = [](Artwork artwork) {
        if (artwork <= Artwork::InfoButton) return 9;
        return artwork <= Artwork::FileOther ? 48 : 16;
    };
    for (int number = 0; number <= static_cast<int>(Artwork::SoundMissing); ++number) {
        const auto artwork = static_cast<Artwork>(number);
        const Picture picture = pictures.Get(artwork);
        EXPECT_EQ(PixelSizeOf(picture), QSize(side(artwork), side(artwork))) << number;
        const QImage image = RenderPicture(picture, QSize(96, 96));
        int solid = 0;
        for (int y = 0; y < 96; ++y) {
            for (int x = 0; x < 96; ++x) solid += qAlpha(image.pixel(x, y)) == 255 ? 1 : 0;
        }
        EXPECT_GT(solid, 96 * 96 / 4) << number;
        EXPECT_EQ(pictures.Get(artwork).Handle(), picture.Handle()) << number;
    }
}

}  // namespace
}  // namespace vorlane
