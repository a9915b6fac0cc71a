#include "platform/qt/looks.h"

#include "platform/compositecontrol.h"
#include "platform/qt/controlpainter.h"
#include "platform/qt/lookkey.h"
#include "platform/qt/qtpicturedata.h"
#include "tests/platform/qt/board.h"

#include <functional>
#include <gtest/gtest.h>
#include <set>
#include <string>
#include <vector>

#include <QGuiApplication>
#include <QPainter>
#include <QPalette>

namespace vorlane {
namespace {

QImage Plain(QSize size, QRgb color) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

QPixmap Dot() {
    QPixmap pixmap(10, 10);
    pixmap.fill(Qt::red);
    return pixmap;
}

TEST(LooksTest, ALookIsDrawnOnce) {
    Looks looks(1 << 20);
    EXPECT_EQ(looks.Get("a", Dot).size(), QSize(10, 10));
    EXPECT_EQ(looks.Get(std::string("a"), Dot).size(), QSize(10, 10));
    EXPECT_EQ(looks.Drawn(), 1);
    looks.Get("b", Dot);
    EXPECT_EQ(looks.Drawn(), 2);
}

TEST(LooksTest, TheOnesShownLastAreKept) {
    Looks looks(3 * 402);
    for (const char* key : {"a", "b", "c"}) looks.Get(key, Dot);
    EXPECT_GT(looks.Bytes(), 1200);
    looks.Get("a", Dot);
    looks.Get("d", Dot);
    EXPECT_LE(looks.Bytes(), 3 * 402);
    looks.Get("a", Dot);
    EXPECT_EQ(looks.Drawn(), 4);
    looks.Get("b", Dot);
    EXPECT_EQ(looks.Drawn(), 5);
}

TEST(LooksTest, ALookBeyondTheBudgetIsShownAllTheSame) {
    Looks looks(100);
    EXPECT_EQ(looks.Get("a", Dot).size(), QSize(10, 10));
    EXPECT_EQ(looks.Bytes(), 0);
}

// --- What a look depends on ---

class LookKeyTest : public testing::Test {
protected:
    LookKeyTest() {
        board.Move(0, 0, 80, 60);
        for (Control* child : std::initializer_list<Control*>{&board.gauge, &board.slider, &board.panel, &board.shape,
                                                              &board.image, &board.back, &board.label, &board.tile}) {
            child->Move(5, 5, 30, 20);
            child->SetVisible(true);
        }
        board.image.SetPicture(PictureFromImage(Plain({4, 4}, qRgb(255, 0, 0))));
        board.label.SetCaption("a");
    }
    std::string Key() const { return LookKey::Of(board, {80, 60}, 1); }

    QtDesktop desktop;
    test::Board board{desktop.Roles()};
};

TEST_F(LookKeyTest, EverythingThatShowsIsPartOfIt) {
    Surface& surface = board.Surface();
    const vorlane::Picture blue = PictureFromImage(Plain({4, 4}, qRgb(0, 0, 255)));
    Font bold;
    bold.Bold = true;
    const std::vector<std::function<void()>> changes = {
        [&] { surface.SetBackColor(1); },
        [&] { surface.Line(1, 2, 3, 4, 5); },
        [&] { surface.Line(1, 2, 3, 4, 6); },
        [&] { surface.LineBox(1, 2, 3, 4, 5); },
        [&] { surface.LineFilledBox(1, 2, 3, 4, 5); },
        [&] { surface.TextOutA(1, 2, "text"); },
        [&] { surface.TextOutA(1, 2, "texts"); },
        [&] { surface.SetFont(bold), surface.TextOutA(1, 2, "text"); },
        [&] {
            surface.GradientFill({{0, 0, 0, 0, 0, 0}, {9, 9, 0, 0, 0xFF00, 0}}, {{0, 1}}, 0);
        },
        [&] {
            surface.GradientFill({{0, 0, 0, 0, 0, 0}, {9, 9, 0, 0, 0xFE00, 0}}, {{0, 1}}, 0);
        },
        [&] {
            surface.GradientFill({{0, 0, 0, 0, 0, 0}, {9, 9, 0, 0, 0xFE00, 0}}, {{0, 1}}, 1);
        },
        [&] {
            surface.DrawEdge({1, 2, 3, 4}, 5, 15);
        },
        [&] {
            surface.Polygon({{0, 0}, {5, 0}, {0, 5}});
        },
        [&] {
            surface.SetFillStyle(0), surface.Polygon({{0, 0}, {5, 0}, {0, 5}});
        },
        [&] {
            surface.RoundRect({0, 0, 9, 9}, 3, 4);
        },
        [&] { surface.SetPixel(3, 4, 5); },
        [&] { surface.BitBlt(0, 0, 4, 4, blue, 0, 0); },
        [&] { surface.BitBlt(0, 0, 4, 4, blue, 1, 0); },
        [&] { board.SetBorderStyle(1); },
        [&] { board.image.SetPicture(blue); },
        [&] { board.image.Move(6, 5); },
        [&] { board.image.SetWidth(31); },
        [&] { board.back.SetPicture(blue); },
        [&] { board.back.ZOrder(); },
        [&] { board.label.SetCaption("b"); },
        [&] { board.label.SetFont(bold); },
        [&] { board.label.SetForeColor(7); },
        [&] { board.label.SetAlignment(TextAlignment::Right); },
        [&] { board.label.SetWordWrap(true); },
        [&] { board.label.SetEnabled(false); },
        [&] { board.shape.SetBorderColor(7); },
        [&] { board.shape.SetBorderWidth(2); },
        [&] { board.gauge.SetMin(1); },
        [&] { board.gauge.SetMax(99); },
        [&] { board.gauge.SetValue(50); },
        [&] { board.slider.SetValue(50); },
        [&] { board.panel.SetCaption("c"); },
        [&] { board.panel.SetFont(bold); },
        [&] { board.panel.SetForeColor(7); },
        [&] { board.panel.SetColorStart(7); },
        [&] { board.panel.SetColorEnd(7); },
        [&] { board.panel.SetCornerSize(7); },
        [&] { board.tile.Surface().SetPixel(0, 0, 0); },
        [&] { board.tile.SetVisible(false); },
    };
    std::set<std::string> keys{Key()};
    for (size_t i = 0; i < changes.size(); ++i) {
        changes[i]();
        EXPECT_TRUE(keys.insert(Key()).second) << i;
    }
    EXPECT_TRUE(keys.insert(LookKey::Of(board, {81, 60}, 1)).second);
    EXPECT_TRUE(keys.insert(LookKey::Of(board, {80, 60}, 1.25)).second);
}

TEST_F(LookKeyTest, TheThemeIsPartOfIt) {
    const std::string light = Key();
    const QPalette before = QGuiApplication::palette();
    QGuiApplication::setPalette(QPalette(QColor(40, 40, 40)));
    EXPECT_NE(Key(), light);
    QGuiApplication::setPalette(before);
}

TEST_F(LookKeyTest, WhereTheControlStandsIsNot) {
    const std::string here = LookKey::Of(board.tile, {20, 20}, 1);
    board.tile.Move(40, 30);
    board.tile.SetTag("tag");
    board.tile.SetToolTipText("tip");
    EXPECT_EQ(LookKey::Of(board.tile, {20, 20}, 1), here);
}

TEST_F(LookKeyTest, WhatIsHiddenIsNot) {
    board.back.SetVisible(false);
    const std::string before = Key();
    board.back.SetPicture(PictureFromImage(Plain({4, 4}, qRgb(0, 0, 255))));
    EXPECT_EQ(Key(), before);
}

// --- Controls inside of others ---

// Two tiles on a control.
class Pair final : public CompositeControl {
public:
    explicit Pair(const vorlane::Desktop& desktop) : CompositeControl(desktop, {}, nullptr) {
        Surface().SetBackColor(RGB(255, 255, 255));
        Move(0, 0, 80, 60);
        first.Move(5, 5, 20, 20);
        second.Move(45, 5, 20, 20);
    }
    test::Tile first{Desktop(), {}, this};
    test::Tile second{Desktop(), {}, this};

private:
    void Resized() override {}
};

class InnerControlTest : public testing::Test {
protected:
    QImage Paint(double scale = 1) {
        QImage image(QSize(80, 60) * scale, QImage::Format_RGB32);
        QPainter painter(&image);
        ControlPainter(painter, desktop.Tools(), scale).Paint(pair, image.rect());
        return image;
    }
    int64_t Drawn() const { return desktop.looks.Drawn(); }

    QtDesktop desktop;
    Pair pair{desktop.Roles()};
};

TEST_F(InnerControlTest, TwoThatHoldTheSameAreDrawnOnce) {
    const QImage image = Paint();
    EXPECT_EQ(Drawn(), 1);
    EXPECT_EQ(image.pixel(10, 10), qRgb(0, 0, 200));
    EXPECT_EQ(image.pixel(50, 10), qRgb(0, 0, 200));
    Paint();
    EXPECT_EQ(Drawn(), 1);
}

TEST_F(InnerControlTest, OneThatHasMovedIsNotDrawnAgain) {
    Paint();
    pair.second.Move(45, 33);
    EXPECT_EQ(Paint().pixel(50, 50), qRgb(0, 0, 200));
    EXPECT_EQ(Drawn(), 1);
}

TEST_F(InnerControlTest, OneThatTakesOverWhatAnotherHeldIsNotDrawnAgain) {
    pair.first.Surface().Line(0, 0, 19, 19, 0);
    Paint();
    EXPECT_EQ(Drawn(), 2);
    pair.first.Surface().Cls();
    pair.second.Surface().Line(0, 0, 19, 19, 0);
    const QImage image = Paint();
    EXPECT_EQ(Drawn(), 2);
    EXPECT_EQ(image.pixel(50, 10), qRgb(0, 0, 0));
    EXPECT_EQ(image.pixel(10, 10), qRgb(0, 0, 200));
}

TEST_F(InnerControlTest, OneThatHasChangedIsDrawnAgain) {
    Paint();
    pair.first.Surface().SetBackColor(RGB(255, 0, 0));
    const QImage image = Paint();
    EXPECT_EQ(Drawn(), 2);
    EXPECT_EQ(image.pixel(10, 10), qRgb(255, 0, 0));
    EXPECT_EQ(image.pixel(50, 10), qRgb(0, 0, 200));
}

TEST_F(InnerControlTest, OneRecordingIsReplayedOnceForControlsThatDifferOtherwise) {
    for (test::Tile* tile : {&pair.first, &pair.second}) tile->Surface().Line(0, 0, 19, 0, 0);
    Label label(&pair.second);
    label.Move(0, 5, 20, 12);
    label.SetCaption("b");
    Paint();
    EXPECT_EQ(Drawn(), 2);
    EXPECT_EQ(desktop.replays.Drawn(), 1);
}

TEST_F(InnerControlTest, EachDensityHasItsOwnLook) {
    pair.first.Surface().LineBox(0, 0, 19, 19, 0);
    for (const double scale : {1.0, 1.25, 2.0}) {
        const QImage image = Paint(scale);
        EXPECT_EQ(image.pixel(PixelGrid(scale).Edge(5), PixelGrid(scale).Edge(10)), qRgb(0, 0, 0)) << scale;
    }
    EXPECT_EQ(Drawn(), 6);
}

TEST_F(InnerControlTest, OtherFontsOfTheProgramAreAReasonToDrawAgain) {
    Paint();
    Q_EMIT qGuiApp->fontDatabaseChanged();
    EXPECT_EQ(desktop.looks.Bytes(), 0);
    Paint();
    EXPECT_EQ(Drawn(), 2);
}

TEST_F(InnerControlTest, AFrameIsPartOfTheLook) {
    pair.first.SetBorderStyle(1);
    pair.first.Surface().SetPixel(0, 0, RGB(255, 0, 0));
    const QImage image = Paint();
    EXPECT_EQ(image.pixel(6, 6), qRgb(255, 0, 0));
    EXPECT_NE(image.pixel(5, 5), qRgb(0, 0, 200));
    EXPECT_NE(image.pixel(5, 5), qRgb(255, 0, 0));
}

}  // namespace
}  // namespace vorlane
