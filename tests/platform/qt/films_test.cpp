#include "platform/qt/qtdesktop.h"
#include "platform/qt/qtpicturedata.h"

#include <gtest/gtest.h>
#include <string>

#include <QFile>
#include <QImage>
#include <QTemporaryDir>

namespace vorlane {
namespace {

const QByteArray kRed("\x02\x02\x44\x01\x00", 5);
const QByteArray kBlue("\x02\x02\x4C\x01\x00", 5);

// An animated GIF of one pixel, red then blue, each for that many hundredths of a second. rounds: how often it is
// repeated, 0 for ever, below 0: nothing is said of it.
QByteArray RedThenBlue(int rounds, char hundredths) {
    QByteArray gif("GIF89a\x01\0\x01\0\x80\0\0\xFF\0\0\0\0\xFF", 19);
    if (rounds >= 0) {
        gif += QByteArray("\x21\xFF\x0BNETSCAPE2.0\x03\x01", 16);
        gif += QByteArray(1, static_cast<char>(rounds)) + QByteArray(2, '\0');
    }
    for (const QByteArray& pixel : {kRed, kBlue}) {
        gif += QByteArray("\x21\xF9\x04\x04", 4) + QByteArray(1, hundredths) + QByteArray(3, '\0');
        gif += QByteArray("\x2C\0\0\0\0\x01\0\x01\0\0", 10) + pixel;
    }
    return gif + ";";
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
    const auto film = desktop.films.Open(File("moving.gif", RedThenBlue(0, 5)));
    ASSERT_NE(film, nullptr);
    for (int round = 0; round < 3; ++round) {
        EXPECT_EQ(Next(*film), "r50");
        EXPECT_EQ(Next(*film), "b50");
    }
}

TEST_F(QtFilm, AnAnimationEndsWhenItsFileSaysSo) {
    const auto film = desktop.films.Open(File("once.gif", RedThenBlue(-1, 5)));
    ASSERT_NE(film, nullptr);
    EXPECT_EQ(Next(*film), "r50");
    EXPECT_EQ(Next(*film), "b50");
    EXPECT_EQ(Next(*film), "-");
    EXPECT_EQ(Next(*film), "-");
}

TEST_F(QtFilm, AFrameWithoutADelayOfItsOwnHasTheUsualOne) {
    const auto film = desktop.films.Open(File("fast.gif", RedThenBlue(0, 0)));
    ASSERT_NE(film, nullptr);
    EXPECT_EQ(Next(*film), "r100");
}

TEST_F(QtFilm, TheContentTellsTheKindNotTheName) {
    const auto film = desktop.films.Open(File("moving.jpg", RedThenBlue(0, 5)));
    ASSERT_NE(film, nullptr);
    EXPECT_EQ(Next(*film), "r50");
    EXPECT_EQ(Next(*film), "b50");
}

TEST_F(QtFilm, AnAnimationThatIsCutShowsWhatThereIs) {
    const QByteArray whole = RedThenBlue(0, 5);
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
