#include "platform/qt/qtdesktop.h"
#include "platform/qt/qtpicturedata.h"
#include "tests/platform/qt/movinggif.h"

#include <gtest/gtest.h>
#include <string>

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QImageReader>
#include <QTemporaryDir>

namespace vorlane {
namespace {

QByteArray Encoded(Qt::GlobalColor color, const char* format) {
    QImage image(4, 4, QImage::Format_RGB32);
    image.fill(color);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(image.save(&buffer, format, 100));
    return bytes;
}

// A number in the least significant bytes first.
QByteArray Number(int number, int bytes) {
    QByteArray text;
    for (int i = 0; i < bytes; ++i) text += static_cast<char>(number >> 8 * i & 0xFF);
    return text;
}

QByteArray Chunk(const QByteArray& name, const QByteArray& content) {
    return name + Number(static_cast<int>(content.size()), 4) + content + QByteArray(content.size() % 2, '\0');
}

// An animated WebP, red then blue, each for that many milliseconds. rounds: how often it is shown, 0 for ever.
QByteArray RedThenBlueWebP(int rounds, int delay) {
    const QByteArray size = Number(4 - 1, 3) + Number(4 - 1, 3);
    QByteArray content = "WEBP" + Chunk("VP8X", Number(2, 4) + size) + Chunk("ANIM", Number(0, 4) + Number(rounds, 2));
    for (const auto color : {Qt::red, Qt::blue}) {
        const QByteArray picture = Encoded(color, "webp").mid(12);  // behind the header of a file
        content += Chunk("ANMF", Number(0, 6) + size + Number(delay, 3) + Number(0, 1) + picture);
    }
    return Chunk("RIFF", content);
}

class QtFilm : public testing::Test {
protected:
    std::string File(const QString& name, const QByteArray& bytes) {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return file.fileName().toStdString();
    }

    std::string Still() {
        QImage picture(8, 6, QImage::Format_RGB32);
        picture.fill(Qt::red);
        EXPECT_TRUE(picture.save(folder.filePath("still.png")));
        return folder.filePath("still.png").toStdString();
    }

    // The next frame as "r50" or "b100": its colour and delay; "-" for none.
    static std::string Next(Film& film) {
        const auto frame = film.NextFrame();
        if (!frame) return "-";
        const bool red = RenderPicture(frame->Picture, {1, 1}).pixelColor(0, 0) == QColor(Qt::red);
        return (red ? "r" : "b") + std::to_string(frame->Delay);
    }

    QTemporaryDir folder;
    QtDesktop desktop;
};

TEST_F(QtFilm, AStillPictureIsOneFrame) {
    const std::string path = Still();
    EXPECT_TRUE(desktop.films.CanOpen(path));
    const auto film = desktop.films.Open(path);
    ASSERT_NE(film, nullptr);
    EXPECT_EQ(Next(*film), "r0");
    EXPECT_EQ(Next(*film), "-");
}

TEST_F(QtFilm, AnAnimationGoesRoundAndRound) {
    const auto film = desktop.films.Open(File("moving.gif", test::RedThenBlue(0, 5)));
    ASSERT_NE(film, nullptr);
    for (int round = 0; round < 3; ++round) {
        EXPECT_EQ(Next(*film), "r50");
        EXPECT_EQ(Next(*film), "b50");
    }
}

TEST_F(QtFilm, AnAnimationEndsWhenItsFileSaysSo) {
    const auto film = desktop.films.Open(File("once.gif", test::RedThenBlue(-1, 5)));
    ASSERT_NE(film, nullptr);
    EXPECT_EQ(Next(*film), "r50");
    EXPECT_EQ(Next(*film), "b50");
    EXPECT_EQ(Next(*film), "-");
    EXPECT_EQ(Next(*film), "-");
}

TEST_F(QtFilm, AFrameWithoutADelayOfItsOwnHasTheUsualOne) {
    const auto film = desktop.films.Open(File("fast.gif", test::RedThenBlue(0, 0)));
    ASSERT_NE(film, nullptr);
    EXPECT_EQ(Next(*film), "r100");
}

TEST_F(QtFilm, AnAnimationIsRepeatedAsOftenAsItsFileSays) {
    const auto film = desktop.films.Open(File("twice more.gif", test::RedThenBlue(2, 5)));
    ASSERT_NE(film, nullptr);
    std::string heard;
    for (int frame = 0; frame < 8; ++frame) heard += Next(*film) + " ";
    EXPECT_EQ(heard, "r50 b50 r50 b50 r50 b50 - - ");
}

TEST_F(QtFilm, AWebPAnimationMovesToo) {
    if (!QImageReader::supportedImageFormats().contains("webp")) GTEST_SKIP() << "no decoder for it here";
    for (const auto& [rounds, frames] : {std::pair(0, "r70 b70 r70 b70 r70 b70 "), std::pair(1, "r70 b70 - - - - "),
                                         std::pair(2, "r70 b70 r70 b70 - - ")}) {
        const auto film = desktop.films.Open(File("moving.webp", RedThenBlueWebP(rounds, 70)));
        ASSERT_NE(film, nullptr);
        std::string heard;
        for (int frame = 0; frame < 6; ++frame) heard += Next(*film) + " ";
        EXPECT_EQ(heard, frames);
    }
}

TEST_F(QtFilm, AFileWithoutExtensionIsFoundWithAPointBehindItsName) {
    const std::string still = File("still", Encoded(Qt::red, "png"));
    EXPECT_TRUE(desktop.films.CanOpen(still + "."));
    const auto one = desktop.films.Open(still + ".");
    ASSERT_NE(one, nullptr);
    EXPECT_EQ(Next(*one), "r0");

    const auto film = desktop.films.Open(File("moving", test::RedThenBlue(0, 5)) + ".");
    ASSERT_NE(film, nullptr);
    EXPECT_EQ(Next(*film), "r50");
    EXPECT_EQ(Next(*film), "b50");
    EXPECT_FALSE(desktop.films.CanOpen(folder.filePath("missing").toStdString() + "."));
}

TEST_F(QtFilm, TheContentTellsTheKindNotTheName) {
    const auto film = desktop.films.Open(File("moving.jpg", test::RedThenBlue(0, 5)));
    ASSERT_NE(film, nullptr);
    EXPECT_EQ(Next(*film), "r50");
    EXPECT_EQ(Next(*film), "b50");
}

TEST_F(QtFilm, AnAnimationThatIsCutShowsWhatThereIs) {
    const QByteArray whole = test::RedThenBlue(0, 5);
    const auto film = desktop.films.Open(File("cut.gif", whole.left(whole.size() - 8)));
    ASSERT_NE(film, nullptr);
    EXPECT_EQ(Next(*film).front(), 'r');
}

TEST_F(QtFilm, WhatIsNoPictureCantBeOpened) {
    EXPECT_FALSE(desktop.films.CanOpen(""));
    EXPECT_FALSE(desktop.films.CanOpen(folder.path().toStdString()));
    EXPECT_FALSE(desktop.films.CanOpen(folder.filePath("missing.png").toStdString()));
    const std::string text = File("text.png", "no picture");
    EXPECT_FALSE(desktop.films.CanOpen(text));
    EXPECT_EQ(desktop.films.Open(text), nullptr);
    EXPECT_EQ(desktop.films.Open(""), nullptr);
    EXPECT_EQ(desktop.films.Open(File("empty.gif", "")), nullptr);
}

}  // namespace
}  // namespace vorlane
