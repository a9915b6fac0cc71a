#include "platform/qt/surfacereplay.h"

#include "platform/qt/qtdesktop.h"
#include "platform/qt/surfacepainter.h"

#include <cmath>
#include <gtest/gtest.h>
#include <random>

#include <QPainter>

namespace vorlane {
namespace {

constexpr int kWidth = 60;
constexpr int kHeight = 40;
constexpr const char* kTexts[] = {"1:2", "WWW@", "Été ", "fj"};
constexpr double kScales[] = {1, 1.25, 1.5, 1.75, 2, 3};

class SurfaceReplayTest : public testing::Test {
protected:
    const QImage& Shown(const Surface& surface, double scale = 1) {
        return SurfaceReplay::Of(surface, (QSizeF(kWidth, kHeight) * scale).toSize(), scale, desktop.Tools());
    }
    // As a surface that has never been shown would be.
    QImage Fresh(const Surface& surface, double scale = 1) {
        const auto kept = surface.Image();
        surface.KeepImage(nullptr);
        QImage image = Shown(surface, scale);
        surface.KeepImage(kept);
        return image;
    }
    int Below(int end) { return static_cast<int>(dice() % static_cast<unsigned>(end)); }
    int X() { return Below(kWidth + 20) - 10; }
    int Y() { return Below(kHeight + 20) - 10; }
    OLE_COLOR Color() { return static_cast<OLE_COLOR>(dice() & 0xFFFFFF); }

    // Draws something of any kind.
    void Draw(Surface& surface) {
        surface.SetForeColor(Color());
        surface.SetFillColor(Color());
        surface.SetFillStyle(static_cast<int16_t>(Below(2)));
        switch (Below(9)) {
            case 0:
                return surface.Line(X(), Y(), X(), Y(), Color());
            case 1:
                return surface.LineBox(X(), Y(), X(), Y(), Color());
            case 2:
                return surface.LineFilledBox(X(), Y(), X(), Y(), Color());
            case 3:
                return surface.TextOutA(X(), Y(), kTexts[Below(4)] + std::to_string(Below(10)));
            case 4:
                return surface.GradientFill({{X(), Y(), 0xFF00, 0x4000, 0, 0}, {X(), Y(), 0, 0x8000, 0xC000, 0}},
                                            {{0, 1}}, static_cast<uint32_t>(Below(2)));
            case 5:
                return surface.DrawEdge({X(), Y(), X(), Y()}, static_cast<uint32_t>(Below(16)), 0xF);
            case 6:
                return surface.Polygon({{X(), Y()}, {X(), Y()}, {X(), Y()}});
            case 7:
                return surface.RoundRect({X(), Y(), X(), Y()}, Below(9), Below(9));
            default:
                return surface.SetPixel(X(), Y(), Color());
        }
    }

    std::mt19937 dice{11};  // NOLINT(cert-msc51-cpp): the same on every run
    QtDesktop desktop;
};

TEST_F(SurfaceReplayTest, PartsThatChangeAreDrawnAsTheWholeWouldBe) {
    for (int round = 0; round < 300; ++round) {
        const double scale = kScales[Below(6)];
        const auto scene = static_cast<unsigned>(dice());
        Surface surface;
        // The same scene with two commands of its own somewhere inside.
        const auto record = [&](unsigned own) {
            surface.Cls();
            dice.seed(scene);
            for (int i = 0; i < 12; ++i) Draw(surface);
            dice.seed(own);
            for (int i = Below(3); i > 0; --i) Draw(surface);
            dice.seed(scene + 1);
            for (int i = 0; i < 12; ++i) Draw(surface);
        };
        record(1000U + static_cast<unsigned>(round));
        Shown(surface, scale);
        record(2000U + static_cast<unsigned>(round));
        ASSERT_EQ(Shown(surface, scale), Fresh(surface, scale)) << round << " at " << scale << "\n" << surface.dump();
        Draw(surface);
        ASSERT_EQ(Shown(surface, scale), Fresh(surface, scale)) << "added " << round << " at " << scale;
        dice.seed(static_cast<unsigned>(round));
    }
}

TEST_F(SurfaceReplayTest, OnlyWhatLiesUnderTheChangesIsDrawnAnew) {
    Surface surface;
    const auto record = [&](int x) {
        surface.Cls();
        surface.LineFilledBox(0, 0, kWidth, kHeight, 0xFFFFFF);
        surface.SetFillStyle(0);
        surface.Polygon({{x - 5, 0}, {x, 5}, {x + 5, 0}});
        surface.Line(0, 30, kWidth, 30, 0x0000FF);
    };
    record(20);
    auto& image = const_cast<QImage&>(Shown(surface));
    for (const QPoint mark : {QPoint(20, 20), QPoint(50, 2), QPoint(25, 2)}) image.setPixel(mark, qRgb(1, 2, 3));
    record(30);
    EXPECT_EQ(Shown(surface).pixel(20, 20), qRgb(1, 2, 3));
    EXPECT_EQ(Shown(surface).pixel(50, 2), qRgb(1, 2, 3));
    EXPECT_EQ(Shown(surface).pixel(25, 2), qRgb(255, 255, 255));
    EXPECT_EQ(Shown(surface).pixel(30, 2), qRgb(0, 0, 0));
}

TEST_F(SurfaceReplayTest, AnotherGroundOrSizeOrDensityDrawsAllAnew) {
    Surface surface;
    surface.SetPixel(5, 5, 0x0000FF);
    Shown(surface);
    surface.SetBackColor(0x00FF00);
    EXPECT_EQ(Shown(surface).pixel(20, 20), qRgb(0, 255, 0));
    EXPECT_EQ(Shown(surface).pixel(5, 5), qRgb(255, 0, 0));
    EXPECT_EQ(Shown(surface, 2).pixel(10, 10), qRgb(255, 0, 0));
    EXPECT_EQ(Shown(surface).size(), QSize(kWidth, kHeight));
}

TEST_F(SurfaceReplayTest, WhatIsFilledByRowsLooksAsPaintersMakeIt) {
    for (int round = 0; round < 100; ++round) {
        const double scale = kScales[Below(6)];
        Surface surface;
        for (int i = 0; i < 10; ++i) Draw(surface);
        const QSize size = (QSizeF(kWidth, kHeight) * scale).toSize();
        QImage byRows(size, QImage::Format_RGB32);
        QImage byPainter(size, QImage::Format_ARGB32);
        for (QImage* image : {&byRows, &byPainter}) {
            image->fill(Qt::white);
            QPainter painter(image);
            SurfacePainter(painter, desktop.Tools(), scale).Replay(surface);
        }
        ASSERT_EQ(byRows, byPainter.convertToFormat(QImage::Format_RGB32)) << scale << "\n" << surface.dump();
    }
}

TEST_F(SurfaceReplayTest, AClipHoldsForRowsToo) {
    Surface surface;
    surface.LineFilledBox(0, 0, 50, 30, 0x0000FF);
    surface.GradientFill({{0, 10, 0xFF00, 0, 0, 0}, {50, 20, 0xFF00, 0, 0, 0}}, {{0, 1}}, 0);
    QImage image(kWidth, kHeight, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setClipRect(10, 5, 20, 10);
    SurfacePainter(painter, desktop.Tools(), 1).Replay(surface);
    for (int y = 0; y < kHeight; ++y) {
        for (int x = 0; x < kWidth; ++x) {
            const bool inside = QRect(10, 5, 20, 10).contains(x, y);
            ASSERT_EQ(image.pixel(x, y), inside ? qRgb(255, 0, 0) : qRgb(255, 255, 255)) << x << "," << y;
        }
    }
}

// --- Texts ---

TEST_F(SurfaceReplayTest, TextsAreSharpAtEveryDensity) {
    Surface surface;
    surface.SetBackColor(0xFFFFFF);
    surface.SetFont(Font{"DejaVu Sans", 9});
    surface.TextOutA(4, 6, "0:45");
    const QImage plain = Shown(surface);
    for (const double scale : kScales) {
        const QImage& dense = Shown(surface, scale);
        if (scale > 1) {
            EXPECT_NE(dense, plain.scaled(dense.size(), Qt::IgnoreAspectRatio, Qt::FastTransformation)) << scale;
            EXPECT_NE(dense, plain.scaled(dense.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation)) << scale;
        }
        // The strokes of letters are black in their middle, and what they pass through is white.
        int black = 0;
        int gray = 0;
        for (int y = 0; y < dense.height(); ++y) {
            for (int x = 0; x < dense.width(); ++x) {
                const int value = qGray(dense.pixel(x, y));
                black += value < 64;
                gray += value >= 64 && value < 255;
            }
        }
        EXPECT_GT(black, 12 * scale) << scale;
        if (scale < 2) continue;
        EXPECT_GT(black, gray / 3) << scale;
    }
}

TEST_F(SurfaceReplayTest, RememberedGlyphsPaintWhatTheTextWould) {
    const char* texts[] = {"0:45", "Été – 12 s", "AVATAR fi", "\xD7\xA9\xD7\x9C\xD7\x95\xD7\x9D 12", "a\tb", ""};
    for (const bool underline : {false, true}) {
        const Font font{"DejaVu Sans", 9, false, false, underline, false};
        const QtTextMetrics::Resolved& resolved = desktop.metrics.Resolve(font);
        for (const char* text : texts) {
            for (const double scale : kScales) {
                const QSize size = (QSizeF(kWidth, kHeight) * scale).toSize();
                QImage expected(size, QImage::Format_RGB32);
                expected.fill(Qt::white);
                QPainter painter(&expected);
                painter.translate(std::floor(4 * scale + 0.5), std::floor(6 * scale + 0.5));
                painter.scale(scale, scale);
                painter.setFont(resolved.qfont);
                painter.drawText(QPointF(0, resolved.metrics.ascent()), QString::fromUtf8(text));
                painter.end();
                Surface surface;
                surface.SetBackColor(0xFFFFFF);
                surface.SetFont(font);
                surface.TextOutA(4, 6, text);
                for (int time = 0; time < 2; ++time) {
                    surface.KeepImage(nullptr);
                    ASSERT_EQ(Shown(surface, scale), expected) << text << " at " << scale;
                }
            }
        }
    }
}

}  // namespace
}  // namespace vorlane
