#include "platform/qt/controlpainter.h"

#include "platform/failure.h"
#include "platform/qt/qtpicturedata.h"
#include "tests/platform/qt/board.h"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QPainter>
#include <QPalette>

namespace vorlane {
namespace {

constexpr QRgb kWhite = 0xFFFFFFFF;
constexpr QRgb kRed = 0xFFFF0000;
constexpr QRgb kBlue = 0xFF0000C8;

class ControlPainterTest : public testing::Test {
protected:
    ControlPainterTest() { board.Move(0, 0, 80, 60); }

    QImage Paint(double scale = 1) {
        QImage image(QSize(80, 60) * scale, QImage::Format_RGB32);
        image.fill(Qt::green);
        PaintOn(image, image.rect(), scale);
        return image;
    }

    void PaintOn(QImage& image, const QRect& damaged, double scale = 1) {
        QPainter painter(&image);
        painter.setClipRect(damaged);
        ControlPainter(painter, desktop.Tools(), scale).Paint(board, damaged);
    }

    static QImage Plain(int width, int height, QRgb color = kRed) {
        QImage image(width, height, QImage::Format_RGB32);
        image.fill(color);
        return image;
    }

    // The smallest rectangle around what differs from the ground.
    static QRect Ink(const QImage& image, QRgb ground = kWhite) {
        QRect ink;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixel(x, y) != ground) ink |= QRect(x, y, 1, 1);
            }
        }
        return ink;
    }

    QtDesktop desktop;
    test::Board board{desktop.Roles()};
};

TEST_F(ControlPainterTest, TheGroundFillsTheControl) {
    EXPECT_EQ(Ink(Paint()), QRect());
}

TEST_F(ControlPainterTest, OnlyTheDamagedPartIsPainted) {
    QImage image = Plain(80, 60, kBlue);
    PaintOn(image, QRect(10, 10, 5, 5));
    EXPECT_EQ(Ink(image, kBlue), QRect(10, 10, 5, 5));
}

TEST_F(ControlPainterTest, APictureIsStretchedToItsBox) {
    board.image.SetPicture(PictureFromImage(Plain(7, 3)));
    board.image.Move(10, 20, 30, 15);
    board.image.SetVisible(true);
    EXPECT_EQ(Ink(Paint()), QRect(10, 20, 30, 15));
    EXPECT_EQ(Ink(Paint(2)), QRect(20, 40, 60, 30));
    EXPECT_EQ(Ink(Paint(1.25)), QRect(13, 25, 37, 19));
}

TEST_F(ControlPainterTest, APictureOfNegativeSizePaintsNothing) {
    board.image.SetPicture(PictureFromImage(Plain(7, 3)));
    board.image.Move(10, 20, -30, 15);
    board.image.SetVisible(true);
    EXPECT_EQ(Ink(Paint()), QRect());
}

TEST_F(ControlPainterTest, APictureIsScaledOnceForOneSize) {
    board.image.SetPicture(PictureFromImage(Plain(70, 30)));
    board.image.Move(10, 20, 30, 15);
    board.image.SetVisible(true);
    Paint();
    const int64_t before = desktop.scaled.Renders();
    board.image.Move(11, 21);
    Paint();
    EXPECT_EQ(desktop.scaled.Renders(), before);
    board.image.SetPicture(PictureFromImage(Plain(70, 30, kBlue)));
    EXPECT_EQ(Paint().pixel(20, 25), kBlue);
    EXPECT_EQ(desktop.scaled.Renders(), before + 1);
}

TEST_F(ControlPainterTest, OneImageGivenTwiceIsScaledOnce) {
    const QImage image = Plain(70, 30);
    board.image.SetPicture(PictureFromImage(image));
    board.image.Move(10, 20, 30, 15);
    board.image.SetVisible(true);
    Paint();
    const int64_t before = desktop.scaled.Renders();
    board.image.SetPicture(PictureFromImage(image));
    Paint();
    EXPECT_EQ(desktop.scaled.Renders(), before);
}

TEST_F(ControlPainterTest, ADensePictureIsAsSharpAsTheScreen) {
    QImage stripes(40, 20, QImage::Format_RGB32);
    for (int y = 0; y < 20; ++y) {
        for (int x = 0; x < 40; ++x) stripes.setPixel(x, y, (x & 1) != 0 ? kRed : kBlue);
    }
    stripes.setDevicePixelRatio(2);
    board.image.SetPicture(PictureFromImage(stripes));
    board.image.Move(10, 10, 20, 10);
    board.image.SetVisible(true);
    const QImage image = Paint(2);
    EXPECT_EQ(image.pixel(20, 20), kBlue);
    EXPECT_EQ(image.pixel(21, 20), kRed);
}

TEST_F(ControlPainterTest, WhatIsDeclaredFirstStandsInFront) {
    board.image.SetPicture(PictureFromImage(Plain(5, 5)));
    board.back.SetPicture(PictureFromImage(Plain(5, 5, kBlue)));
    for (Image* image : {&board.image, &board.back}) {
        image->Move(0, 0, 20, 20);
        image->SetVisible(true);
    }
    EXPECT_EQ(Paint().pixel(5, 5), kRed);
    board.back.ZOrder();
    EXPECT_EQ(Paint().pixel(5, 5), kBlue);
}

TEST_F(ControlPainterTest, AnInnerControlCutsWhatIsDrawnOutsideOfIt) {
    board.tile.Move(10, 10, 20, 20);
    board.tile.Surface().LineFilledBox(-50, 5, 100, 5, 0);
    board.tile.SetVisible(true);
    EXPECT_EQ(Ink(Paint()), QRect(10, 10, 20, 20));
    EXPECT_EQ(Paint().pixel(10, 15), 0xFF000000);
}

TEST_F(ControlPainterTest, AFrameTakesOnePixelOnEachSideAndMovesWhatIsInside) {
    board.SetBorderStyle(1);
    board.image.SetPicture(PictureFromImage(Plain(5, 5)));
    board.image.Move(0, 0, 5, 5);
    board.image.SetVisible(true);
    const QImage image = Paint();
    EXPECT_NE(image.pixel(0, 30), kWhite);
    EXPECT_EQ(image.pixel(1, 30), kWhite);
    EXPECT_EQ(image.pixel(78, 58), kWhite);
    EXPECT_NE(image.pixel(79, 58), kWhite);
    EXPECT_EQ(image.pixel(1, 1), kRed);
}

TEST_F(ControlPainterTest, ASurfaceIsReplayedWhenItHasChangedAndNoSooner) {
    board.Surface().Line(0, 0, 79, 0, RGB(255, 0, 0));
    EXPECT_EQ(Ink(Paint()), QRect(0, 0, 80, 1));
    const auto image = board.Surface().Image();
    ASSERT_NE(image, nullptr);
    Paint();
    EXPECT_EQ(board.Surface().Image(), image);
    board.Surface().Line(0, 1, 79, 1, RGB(255, 0, 0));
    EXPECT_EQ(Ink(Paint()), QRect(0, 0, 80, 2));
    board.Surface().Cls();
    EXPECT_EQ(Ink(Paint()), QRect());
}

TEST_F(ControlPainterTest, ASurfaceFollowsTheTheme) {
    board.Surface().SetBackColor(FromSystem(SystemColor::ButtonFace));
    board.Surface().Line(0, 0, 79, 0, FromSystem(SystemColor::ButtonShadow));
    const QImage light = Paint();
    const QPalette before = QGuiApplication::palette();
    QPalette dark(QColor(40, 40, 40));
    QGuiApplication::setPalette(dark);
    const QImage image = Paint();
    QGuiApplication::setPalette(before);
    EXPECT_EQ(image.pixel(5, 5), dark.color(QPalette::Window).rgb());
    EXPECT_EQ(image.pixel(5, 0), dark.color(QPalette::Dark).rgb());
    EXPECT_NE(light.pixel(5, 0), image.pixel(5, 0));
}

TEST_F(ControlPainterTest, ARubberBandIsAnOutline) {
    board.shape.Move(10, 10, 20, 10);
    board.shape.SetBorderColor(RGB(255, 0, 0));
    board.shape.SetVisible(true);
    const QImage image = Paint();
    EXPECT_EQ(Ink(image), QRect(10, 10, 20, 10));
    EXPECT_EQ(image.pixel(29, 19), kRed);
    EXPECT_EQ(image.pixel(11, 11), kWhite);
    EXPECT_EQ(Paint(2).pixel(21, 21), kRed);
    EXPECT_EQ(Paint(2).pixel(22, 22), kWhite);
}

// --- Texts ---

class LabelTest : public ControlPainterTest {
protected:
    LabelTest() {
        board.label.Move(0, 0, 80, 16);
        board.label.SetVisible(true);
    }
    int LineHeight() { return static_cast<int>(desktop.metrics.TextHeight(board.label.Font(), "Wq")); }
};

TEST_F(LabelTest, ATextStandsWhereItsAlignmentSays) {
    board.label.SetCaption("Il");
    board.label.SetAlignment(TextAlignment::Left);
    const QRect left = Ink(Paint());
    board.label.SetAlignment(TextAlignment::Right);
    const QRect right = Ink(Paint());
    board.label.SetAlignment(TextAlignment::Center);
    const QRect middle = Ink(Paint());
    EXPECT_LT(left.left(), 4);
    EXPECT_GT(right.right(), 75);
    EXPECT_NEAR(middle.center().x(), 40, 3);
    EXPECT_EQ(left.size(), right.size());
}

TEST_F(LabelTest, ATextTakesItsColour) {
    board.label.SetCaption("MMMM");
    board.label.SetForeColor(RGB(255, 0, 0));
    const QImage image = Paint();
    const QRect ink = Ink(image);
    bool red = false;
    for (int x = ink.left(); x <= ink.right(); ++x) red = red || qGreen(image.pixel(x, ink.center().y())) < 80;
    EXPECT_TRUE(red);
}

TEST_F(LabelTest, ALongTextEndsInAnEllipsisInsideOfItsBox) {
    board.label.SetAlignment(TextAlignment::Left);
    board.label.Move(0, 0, 40, 16);
    board.label.SetCaption("MMMMMMMMMMMMMMMMMMMM");
    const QRect ink = Ink(Paint());
    EXPECT_LE(ink.right(), 40);
    EXPECT_GT(ink.right(), 25);
}

TEST_F(LabelTest, ATextOfSeveralLinesWrapsAndStaysInItsBox) {
    board.label.SetWordWrap(true);
    board.label.Move(0, 0, 50, 2 * LineHeight());
    board.label.SetCaption("MMM MMM MMM MMM MMM MMM MMM MMM");
    const QRect ink = Ink(Paint());
    EXPECT_GT(ink.bottom(), LineHeight());
    EXPECT_LE(ink.bottom(), 2 * LineHeight());
}

TEST_F(LabelTest, AShortTextOfAWrappingLabelStandsOnItsFirstLine) {
    board.label.SetWordWrap(true);
    board.label.Move(0, 0, 50, 2 * LineHeight());
    board.label.SetCaption("MM");
    EXPECT_LE(Ink(Paint()).bottom(), LineHeight());
}

TEST_F(LabelTest, ATextIsSharpAtTwiceTheDensity) {
    board.label.SetCaption("Wq");
    const QRect once = Ink(Paint());
    const QRect twice = Ink(Paint(2));
    EXPECT_NEAR(twice.width(), 2 * once.width(), 4);
    EXPECT_NEAR(twice.height(), 2 * once.height(), 4);
}

TEST_F(LabelTest, AnOddTextDoesNoHarm) {
    board.label.SetWordWrap(true);
    for (const char* text : {"\xFF\xFE", "\n\n\n", " ", "a\tb", "\xE2\x80\x8F\xD7\x90"}) {
        board.label.SetCaption(text);
        board.label.Move(0, 0, 5, 3);
        Paint();
        board.label.Move(0, 0, -5, 3);
        EXPECT_EQ(Ink(Paint()), QRect());
    }
}

// --- Panels ---

TEST_F(ControlPainterTest, TheGaugeFillsUpAndKeepsWithinItsBox) {
    board.gauge.Move(10, 10, 60, 15);
    board.gauge.SetVisible(true);
    const auto coloured = [&] {
        const QImage image = Paint();
        const QRgb accent = QGuiApplication::palette().color(QPalette::Highlight).rgb();
        int count = 0;
        for (int x = 0; x < 80; ++x) count += image.pixel(x, 17) == accent ? 1 : 0;
        EXPECT_TRUE(QRect(10, 10, 60, 15).contains(Ink(image)));
        return count;
    };
    EXPECT_EQ(coloured(), 0);
    board.gauge.SetValue(50);
    EXPECT_NEAR(coloured(), 27, 2);
    board.gauge.SetValue(500);
    EXPECT_NEAR(coloured(), 54, 2);
    board.gauge.SetValue(-3);
    EXPECT_EQ(coloured(), 0);
    board.gauge.SetMin(7);
    board.gauge.SetMax(7);
    board.gauge.SetValue(7);
    EXPECT_NEAR(coloured(), 54, 2);
}

TEST_F(ControlPainterTest, TheSliderShowsItsValueFromTheTop) {
    board.slider.Move(10, 10, 9, 40);
    board.slider.SetVisible(true);
    const auto knob = [&](int32_t value) {
        board.slider.SetValue(value);
        const QImage image = Paint();
        const QRgb accent = QGuiApplication::palette().color(QPalette::Highlight).rgb();
        int lowest = 0;
        for (int y = 0; y < 60; ++y) lowest = image.pixel(14, y) == accent ? y : lowest;
        EXPECT_TRUE(QRect(10, 10, 9, 40).contains(Ink(image)));
        return lowest;
    };
    EXPECT_LT(knob(0), 17);
    EXPECT_NEAR(knob(50), 32, 2);
    EXPECT_GT(knob(100), 46);
    EXPECT_GT(knob(1000), 46);
}

TEST_F(ControlPainterTest, TheGradientPanelRunsFromTopToBottomBehindItsText) {
    board.panel.Move(0, 0, 40, 40);
    board.panel.SetColorStart(RGB(255, 0, 0));
    board.panel.SetColorEnd(RGB(0, 0, 255));
    board.panel.SetVisible(true);
    const QImage plain = Paint();
    EXPECT_GT(qRed(plain.pixel(20, 0)), 240);
    EXPECT_GT(qBlue(plain.pixel(20, 39)), 240);
    board.panel.SetCaption("12");
    EXPECT_NE(Paint(), plain);
}

}  // namespace
}  // namespace vorlane
