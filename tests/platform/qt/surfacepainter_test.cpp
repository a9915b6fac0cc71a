#include "tests/platform/qt/pixels.h"

#include <gtest/gtest.h>

namespace vorlane {
namespace {

using test::Letter;
using test::Map;
using test::Replay;

// --- Lines and boxes ---

TEST(SurfacePainter, ALineEndsOnItsSecondPoint) {
    Surface surface;
    surface.Line(1, 1, 4, 1, Letter('a'));
    surface.Line(0, 3, 0, 0, Letter('b'));
    EXPECT_EQ(Map(Replay(surface, 6, 4)),
              "b.....\n"
              "baaaa.\n"
              "b.....\n"
              "b.....\n");
}

TEST(SurfacePainter, ASlantedLineDrawsBothItsEnds) {
    Surface surface;
    surface.Line(0, 0, 3, 3, Letter('a'));
    EXPECT_EQ(Map(Replay(surface, 5, 5)),
              "a....\n"
              ".a...\n"
              "..a..\n"
              "...a.\n"
              ".....\n");
}

TEST(SurfacePainter, AnOutlinedBoxDrawsBothCorners) {
    Surface surface;
    surface.LineBox(1, 0, 4, 2, Letter('a'));
    EXPECT_EQ(Map(Replay(surface, 6, 4)),
              ".aaaa.\n"
              ".a..a.\n"
              ".aaaa.\n"
              "......\n");
}

TEST(SurfacePainter, ABoxWithExchangedCornersIsTheSameBox) {
    Surface straight;
    straight.LineBox(1, 0, 4, 2, Letter('a'));
    Surface exchanged;
    exchanged.LineBox(4, 2, 1, 0, Letter('a'));
    EXPECT_EQ(Map(Replay(exchanged, 6, 4)), Map(Replay(straight, 6, 4)));
}

TEST(SurfacePainter, ABoxWithoutWidthIsALine) {
    Surface surface;
    surface.LineBox(2, 1, 2, 3, Letter('a'));
    EXPECT_EQ(Map(Replay(surface, 4, 4)), "....\n..a.\n..a.\n..a.\n");
}

TEST(SurfacePainter, AFilledBoxCoversBothCorners) {
    Surface surface;
    surface.LineFilledBox(0, 1, 2, 2, Letter('a'));
    EXPECT_EQ(Map(Replay(surface, 4, 4)), "....\naaa.\naaa.\n....\n");
}

TEST(SurfacePainter, AHalfPixelGoesUpOnBothSidesOfAFrame) {
    Surface surface;
    surface.LineBox(0.5, 0.5, 3.5, 2.5, Letter('a'));
    EXPECT_EQ(Map(Replay(surface, 6, 4)),
              "......\n"
              ".aaaa.\n"
              ".a..a.\n"
              ".aaaa.\n");
}

TEST(SurfacePainter, WhatIsDrawnOutsideIsCutOff) {
    Surface surface;
    surface.LineFilledBox(-1e9, -1e9, 1, 1e9, Letter('a'));
    surface.LineBox(-3, 1, 9, 9, Letter('b'));
    EXPECT_EQ(Map(Replay(surface, 4, 3)), "aa..\nbbbb\naa..\n");
}

TEST(SurfacePainter, SetPixelDrawsOnePixel) {
    Surface surface;
    surface.SetPixel(1, 0, Letter('a'));
    EXPECT_EQ(Map(Replay(surface, 3, 2)), ".a.\n...\n");
}

TEST(SurfacePainter, LaterCommandsLieAboveEarlierOnes) {
    Surface surface;
    surface.LineFilledBox(0, 0, 2, 0, Letter('a'));
    surface.SetPixel(1, 0, Letter('b'));
    EXPECT_EQ(Map(Replay(surface, 3, 1)), "aba\n");
}

// --- Density ---

TEST(SurfacePainter, ALogicalPixelIsAWholeBlockAtTwiceTheDensity) {
    Surface surface;
    surface.LineBox(0, 0, 2, 2, Letter('a'));
    EXPECT_EQ(Map(Replay(surface, 7, 7, 2)),
              "aaaaaa.\n"
              "aaaaaa.\n"
              "aa..aa.\n"
              "aa..aa.\n"
              "aaaaaa.\n"
              "aaaaaa.\n"
              ".......\n");
}

TEST(SurfacePainter, NeighbouringLinesLeaveNoGapAtOneAndAQuarter) {
    Surface surface;
    for (int x = 0; x < 8; ++x) surface.Line(x, 0, x, 0, Letter(static_cast<char>('a' + x)));
    EXPECT_EQ(Map(Replay(surface, 11, 1, 1.25)), "abbcdeffgh.\n");
}

TEST(SurfacePainter, TheSidesOfABoxAreOfOneThicknessAtEveryDensity) {
    Surface surface;
    surface.LineBox(0, 0, 3, 3, Letter('a'));
    EXPECT_EQ(Map(Replay(surface, 6, 3, 1.25)), "aaaaa.\na...a.\na...a.\n");
    Surface wider;
    wider.LineBox(0, 0, 5, 5, Letter('a'));
    EXPECT_EQ(Map(Replay(wider, 9, 3, 1.25)), "aaaaaaaa.\naaaaaaaa.\naa....aa.\n");
}

TEST(SurfacePainter, AFrameTouchesWhatItFramesAtEveryDensity) {
    for (const double scale : {1.0, 1.25, 1.5, 1.75, 2.0, 3.0}) {
        for (const float left : {3.0F, 3.25F, 3.5F, 3.75F}) {
            Surface surface;
            surface.Line(left - 1, 0, left - 1, 0, Letter('a'));
            surface.LineFilledBox(left, 0, left + 3, 0, Letter('b'));
            surface.Line(left + 4, 0, left + 4, 0, Letter('c'));
            const std::string row = Map(Replay(surface, 40, 1, scale));
            EXPECT_EQ(row.find('.', row.find('a')), row.rfind('c') + 1) << row << scale << " at " << left;
        }
    }
}

// --- Gradients ---

TEST(SurfacePainter, AGradientBeginsWithItsFirstColourAndFallsAStepShortOfTheSecond) {
    Surface surface;
    surface.GradientFill({{0, 0, 0xFF00, 0, 0x8000, 0}, {4, 2, 0, 0x0400, 0x8000, 0}}, {{0, 1}}, 0);
    const QImage image = Replay(surface, 5, 2);
    // 0xFF00 x (4 - p) / 1024, and 0x0400 x p / 1024, both cut off.
    EXPECT_EQ(image.pixel(0, 0), qRgb(255, 0, 128));
    EXPECT_EQ(image.pixel(1, 0), qRgb(191, 1, 128));
    EXPECT_EQ(image.pixel(2, 1), qRgb(127, 2, 128));
    EXPECT_EQ(image.pixel(3, 1), qRgb(63, 3, 128));
    EXPECT_EQ(image.pixel(4, 0), qRgb('.', 0, 0));
}

TEST(SurfacePainter, AGradientRunsDownwardsInModeOne) {
    Surface surface;
    surface.GradientFill({{0, 0, 0, 0, 0, 0}, {1, 4, 0x0400, 0, 0, 0}}, {{0, 1}}, 1);
    const QImage image = Replay(surface, 1, 4);
    for (int y = 0; y < 4; ++y) EXPECT_EQ(qRed(image.pixel(0, y)), y);
}

TEST(SurfacePainter, ReversedVerticesTakeTheirColoursAlong) {
    Surface surface;
    surface.GradientFill({{4, 1, 0x0400, 0, 0, 0}, {0, 0, 0, 0, 0, 0}}, {{0, 1}}, 0);
    const QImage image = Replay(surface, 4, 1);
    for (int x = 0; x < 4; ++x) EXPECT_EQ(qRed(image.pixel(x, 0)), x);
}

TEST(SurfacePainter, TheLengthOfAGradientIsTakenBeforeItIsCut) {
    Surface surface;
    surface.GradientFill({{-2, 0, 0, 0, 0, 0}, {6, 1, 0x0800, 0, 0, 0}}, {{0, 1}}, 0);
    const QImage image = Replay(surface, 3, 1);
    for (int x = 0; x < 3; ++x) EXPECT_EQ(qRed(image.pixel(x, 0)), x + 2);
}

TEST(SurfacePainter, AnEmptyGradientDrawsNothing) {
    Surface surface;
    surface.GradientFill({{1, 0, 0x4100, 0, 0, 0}, {1, 2, 0x4100, 0, 0, 0}}, {{0, 1}}, 0);
    EXPECT_EQ(Map(Replay(surface, 3, 2)), "...\n...\n");
}

// --- Edges ---

constexpr uint32_t kAllSides = 0xF;

std::string Edge(uint32_t edge, uint32_t flags) {
    Surface surface;
    surface.DrawEdge({0, 0, 6, 5}, edge, flags);
    return Map(Replay(surface, 7, 6));
}

TEST(SurfacePainter, ARaisedEdge) {
    EXPECT_EQ(Edge(1 | 4, kAllSides),
              "llllld.\n"
              "lhhhsd.\n"
              "lh..sd.\n"
              "lssssd.\n"
              "dddddd.\n"
              ".......\n");
}

TEST(SurfacePainter, ASunkenEdge) {
    EXPECT_EQ(Edge(2 | 8, kAllSides),
              "sssssh.\n"
              "sdddlh.\n"
              "sd..lh.\n"
              "sllllh.\n"
              "hhhhhh.\n"
              ".......\n");
}

TEST(SurfacePainter, ASoftRaisedEdge) {
    EXPECT_EQ(Edge(1 | 4, kAllSides | 0x1000),
              "hhhhhd.\n"
              "hlllsd.\n"
              "hl..sd.\n"
              "hssssd.\n"
              "dddddd.\n"
              ".......\n");
}

TEST(SurfacePainter, ASoftSunkenEdge) {
    EXPECT_EQ(Edge(2 | 8, kAllSides | 0x1000),
              "dddddh.\n"
              "dssslh.\n"
              "ds..lh.\n"
              "dllllh.\n"
              "hhhhhh.\n"
              ".......\n");
}

TEST(SurfacePainter, AFlatEdgeAndAMonochromeOneThatWinsOverIt) {
    EXPECT_EQ(Edge(1 | 4, kAllSides | 0x4000),
              "ssssss.\n"
              "sffffs.\n"
              "sf..fs.\n"
              "sffffs.\n"
              "ssssss.\n"
              ".......\n");
    EXPECT_EQ(Edge(2 | 8, kAllSides | 0x4000 | 0x8000),
              "mmmmmm.\n"
              "mwwwwm.\n"
              "mw..wm.\n"
              "mwwwwm.\n"
              "mmmmmm.\n"
              ".......\n");
}

TEST(SurfacePainter, AnEdgeOfOneRingLiesOnTheOutside) {
    EXPECT_EQ(Edge(4, kAllSides),
              "hhhhhs.\n"
              "h....s.\n"
              "h....s.\n"
              "h....s.\n"
              "ssssss.\n"
              ".......\n");
}

TEST(SurfacePainter, BothBitsOfARingDrawNothing) {
    EXPECT_EQ(Edge(1 | 2, kAllSides), ".......\n.......\n.......\n.......\n.......\n.......\n");
}

TEST(SurfacePainter, OnlyTheNamedSidesOfAnEdgeAreDrawn) {
    EXPECT_EQ(Edge(1 | 4, 2),
              "llllll.\n"
              "hhhhhh.\n"
              ".......\n"
              ".......\n"
              ".......\n"
              ".......\n");
}

// --- Rounded frames ---

// Pixels in front of the first drawn one, row by row.
std::string Insets(const QImage& image, int width) {
    std::string insets;
    for (int y = 0; y < image.height(); ++y) {
        int x = 0;
        while (x < width && qRed(image.pixel(x, y)) == '.') ++x;
        insets += (insets.empty() ? "" : " ") + std::to_string(x);
    }
    return insets;
}

TEST(SurfacePainter, RoundedCornersOfDiameterSevenAndFifteen) {
    for (const auto& [diameter, expected] :
         {std::pair{7, "2 1 0 0 0 1 2"}, std::pair{15, "5 3 2 1 1 0 0 0 0 0 1 1 2 3 5"}}) {
        Surface surface;
        surface.SetForeColor(Letter('a'));
        surface.RoundRect({0, 0, 30, diameter}, diameter, diameter);
        EXPECT_EQ(Insets(Replay(surface, 30, diameter), 30), expected);
    }
}

TEST(SurfacePainter, ARoundedFrameIsOnePixelThickAndClosed) {
    Surface surface;
    surface.SetForeColor(Letter('a'));
    surface.RoundRect({0, 0, 9, 8}, 7, 7);
    EXPECT_EQ(Map(Replay(surface, 10, 9)),
              "..aaaaa...\n"
              ".a.....a..\n"
              "a.......a.\n"
              "a.......a.\n"
              "a.......a.\n"
              "a.......a.\n"
              ".a.....a..\n"
              "..aaaaa...\n"
              "..........\n");
}

TEST(SurfacePainter, ACornerIsCutToItsBox) {
    Surface surface;
    surface.SetForeColor(Letter('a'));
    surface.RoundRect({0, 0, 7, 7}, 100, 100);
    EXPECT_EQ(Insets(Replay(surface, 7, 7), 7), "2 1 0 0 0 1 2");
}

TEST(SurfacePainter, ACornerWithoutSizeIsSquare) {
    Surface surface;
    surface.SetForeColor(Letter('a'));
    surface.RoundRect({0, 0, 4, 3}, 0, 0);
    EXPECT_EQ(Map(Replay(surface, 5, 4)), "aaaa.\na..a.\naaaa.\n.....\n");
}

// --- Polygons ---

TEST(SurfacePainter, APolygonIsClosedAndItsCornersAreDrawn) {
    Surface surface;
    surface.SetForeColor(Letter('a'));
    surface.Polygon({{1, 1}, {5, 1}, {5, 4}, {1, 4}});
    EXPECT_EQ(Map(Replay(surface, 7, 6)),
              ".......\n"
              ".aaaaa.\n"
              ".a...a.\n"
              ".a...a.\n"
              ".aaaaa.\n"
              ".......\n");
}

TEST(SurfacePainter, APolygonIsFilledInsideItsOutline) {
    Surface surface;
    surface.SetForeColor(Letter('a'));
    surface.SetFillColor(Letter('b'));
    surface.SetFillStyle(0);
    surface.Polygon({{0, 0}, {6, 0}, {3, 3}});
    EXPECT_EQ(Map(Replay(surface, 8, 5)),
              "aaaaaaa.\n"
              ".abbba..\n"
              "..aba...\n"
              "...a....\n"
              "........\n");
}

// --- Texts and pictures ---

TEST(SurfacePainter, ATextStandsBelowAndRightOfItsPlaceInTheColourOfTheSurface) {
    Surface surface;
    surface.SetForeColor(0x0000FF00);
    surface.TextOutA(10, 5, "H");
    const QImage image = Replay(surface, 40, 30);
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qGreen(image.pixel(x, y)) > 64) ink |= QRect(x, y, 1, 1);
        }
    }
    ASSERT_FALSE(ink.isEmpty());
    EXPECT_GE(ink.left(), 10);
    EXPECT_LE(ink.left(), 13);
    EXPECT_GE(ink.top(), 5);
    EXPECT_LE(ink.bottom(), 5 + 14);
}

}  // namespace
}  // namespace vorlane
