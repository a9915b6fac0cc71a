// Every edge with every kind of colours, worked out by hand.
#include "tests/platform/qt/pixels.h"

#include <gtest/gtest.h>
#include <vector>

namespace vorlane {
namespace {

using test::Map;
using test::Replay;

constexpr uint32_t kAllSides = 0xF;
constexpr uint32_t kSoft = 0x1000;
constexpr uint32_t kFlat = 0x4000;
constexpr uint32_t kMono = 0x8000;

std::string Edge(uint32_t edge, uint32_t flags, int width = 7, int height = 6) {
    Surface surface;
    surface.DrawEdge({0, 0, width - 1, height - 1}, edge, flags);
    return Map(Replay(surface, width, height));
}

// --- The borders of the time line, pixel by pixel ---

TEST(BorderPixels, Kind1IsARingOfTheFace) {
    EXPECT_EQ(Edge(4, 0x400F),
              "ffffff.\n"
              "f....f.\n"
              "f....f.\n"
              "f....f.\n"
              "ffffff.\n"
              ".......\n");
}

TEST(BorderPixels, Kind2IsARingOfTheWindow) {
    EXPECT_EQ(Edge(4, 0xC00F),
              "wwwwww.\n"
              "w....w.\n"
              "w....w.\n"
              "w....w.\n"
              "wwwwww.\n"
              ".......\n");
}

TEST(BorderPixels, Kind3HasBothBitsOfItsRingAndDrawsNothing) {
    EXPECT_EQ(Edge(3, 0x400F), ".......\n.......\n.......\n.......\n.......\n.......\n");
}

TEST(BorderPixels, Kind4IsARingOfTheWindowFrame) {
    EXPECT_EQ(Edge(2, 0xC00F),
              "mmmmmm.\n"
              "m....m.\n"
              "m....m.\n"
              "m....m.\n"
              "mmmmmm.\n"
              ".......\n");
}

TEST(BorderPixels, Kind5IsSoftRaisedOutsideAndSunkenInside) {
    EXPECT_EQ(Edge(9, 0x100F),
              "hhhhhd.\n"
              "hsssld.\n"
              "hs..ld.\n"
              "hlllld.\n"
              "dddddd.\n"
              ".......\n");
}

TEST(BorderPixels, Kind6IsSunkenOutsideAndRaisedInside) {
    EXPECT_EQ(Edge(6, 0x000F),
              "sssssh.\n"
              "shhhsh.\n"
              "sh..sh.\n"
              "sssssh.\n"
              "hhhhhh.\n"
              ".......\n");
}

TEST(BorderPixels, Kind7IsFlat) {
    EXPECT_EQ(Edge(5, 0x400F),
              "ssssss.\n"
              "sffffs.\n"
              "sf..fs.\n"
              "sffffs.\n"
              "ssssss.\n"
              ".......\n");
}

TEST(BorderPixels, Kind8IsRaisedInsideAlone) {
    EXPECT_EQ(Edge(4, 0x000F),
              "hhhhhs.\n"
              "h....s.\n"
              "h....s.\n"
              "h....s.\n"
              "ssssss.\n"
              ".......\n");
}

TEST(BorderPixels, Kind9IsRaised) {
    EXPECT_EQ(Edge(5, 0x000F),
              "llllld.\n"
              "lhhhsd.\n"
              "lh..sd.\n"
              "lssssd.\n"
              "dddddd.\n"
              ".......\n");
}

TEST(BorderPixels, Kind10IsSunkenOutsideAlone) {
    EXPECT_EQ(Edge(2, 0x000F),
              "sssssh.\n"
              "s....h.\n"
              "s....h.\n"
              "s....h.\n"
              "hhhhhh.\n"
              ".......\n");
}

TEST(BorderPixels, Kind11IsSunken) {
    EXPECT_EQ(Edge(10, 0x000F),
              "sssssh.\n"
              "sdddlh.\n"
              "sd..lh.\n"
              "sllllh.\n"
              "hhhhhh.\n"
              ".......\n");
}

// --- Every ring in every kind of colours ---

struct Ring {
    uint32_t bit;
    const char* plain;  // top left, then bottom right
    const char* soft;
    const char* flat;
    const char* mono;
};

const Ring kRings[] = {
    {1, "ld", "hd", "ss", "mm"},
    {2, "sh", "dh", "ss", "mm"},
    {4, "hs", "ls", "ff", "ww"},
    {8, "dl", "sl", "ff", "ww"},
};

// Six rows of seven with a ring on all four sides at a distance from the outside.
void PutRing(std::vector<std::string>& rows, size_t away, const std::string& colors) {
    const size_t right = 5 - away;
    const size_t bottom = 4 - away;
    for (size_t x = away; x <= right; ++x) rows[away][x] = colors[0];
    for (size_t y = away; y <= bottom; ++y) rows[y][away] = colors[0];
    for (size_t y = away; y <= bottom; ++y) rows[y][right] = colors[1];
    for (size_t x = away; x <= right; ++x) rows[bottom][x] = colors[1];
}

const char* ColorsOf(const Ring& ring, uint32_t flags) {
    if ((flags & kMono) != 0) return ring.mono;
    if ((flags & kFlat) != 0) return ring.flat;
    return (flags & kSoft) != 0 ? ring.soft : ring.plain;
}

TEST(EdgePixels, EveryEdgeInEveryKindOfColours) {
    for (const uint32_t flags : {0U, kSoft, kFlat, kMono, kSoft | kFlat, kFlat | kMono, kSoft | kMono}) {
        for (uint32_t edge = 0; edge < 16; ++edge) {
            std::vector<std::string> rows(6, ".......");
            size_t away = 0;
            for (const uint32_t both : {3U, 12U}) {
                const uint32_t bits = edge & both;
                if (bits == 0) continue;
                for (const Ring& ring : kRings) {
                    if (ring.bit == bits) PutRing(rows, away, ColorsOf(ring, flags));
                }
                ++away;
            }
            std::string expected;
            for (const std::string& row : rows) expected += row + "\n";
            EXPECT_EQ(Edge(edge, kAllSides | flags), expected) << edge << " " << std::hex << flags;
        }
    }
}

TEST(EdgePixels, SidesThatAreNotNamedAreLeftOut) {
    EXPECT_EQ(Edge(5, 1),
              "lh.....\n"
              "lh.....\n"
              "lh.....\n"
              "lh.....\n"
              "lh.....\n"
              ".......\n");
    EXPECT_EQ(Edge(5, 4),
              "....sd.\n"
              "....sd.\n"
              "....sd.\n"
              "....sd.\n"
              "....sd.\n"
              ".......\n");
    EXPECT_EQ(Edge(5, 8),
              ".......\n"
              ".......\n"
              ".......\n"
              "ssssss.\n"
              "dddddd.\n"
              ".......\n");
    EXPECT_EQ(Edge(5, 3),
              "llllll.\n"
              "lhhhhh.\n"
              "lh.....\n"
              "lh.....\n"
              "lh.....\n"
              ".......\n");
}

TEST(EdgePixels, ASmallRectangleHasRoomForItsOutsideAlone) {
    EXPECT_EQ(Edge(5, kAllSides, 3, 3), "ld.\ndd.\n...\n");
    EXPECT_EQ(Edge(5, kAllSides, 2, 2), "d.\n..\n");
    EXPECT_EQ(Edge(5, kAllSides, 1, 4), ".\n.\n.\n.\n");
}

// --- Gradients ---

// Red, green and blue of each column, or row.
std::string Colors(const QImage& image, bool downwards) {
    std::string told;
    for (int i = 0; i < (downwards ? image.height() : image.width()); ++i) {
        const QRgb color = downwards ? image.pixel(0, i) : image.pixel(i, 0);
        told += (told.empty() ? "" : " ") + std::to_string(qRed(color)) + "," + std::to_string(qGreen(color)) + "," +
                std::to_string(qBlue(color));
    }
    return told;
}

TEST(GradientPixels, AMusicBarRunsFromYellowToNearlyWhite) {
    // Blue at p: 128 + 127 p / 5, cut off.
    Surface surface;
    surface.GradientFill({{0, 0, 0xFF00, 0xFF00, 0x8000, 0}, {5, 1, 0xFF00, 0xFF00, 0xFF00, 0}}, {{0, 1}}, 0);
    EXPECT_EQ(Colors(Replay(surface, 5, 1), false), "255,255,128 255,255,153 255,255,178 255,255,204 255,255,229");
}

TEST(GradientPixels, AFallingComponentIsCutOffAsWell) {
    // 200 - 100 p / 3 and 10 + 5 p / 3.
    Surface surface;
    surface.GradientFill({{0, 0, 200 * 256, 10 * 256, 0, 0}, {1, 3, 100 * 256, 15 * 256, 0, 0}}, {{0, 1}}, 1);
    EXPECT_EQ(Colors(Replay(surface, 1, 3), true), "200,10,0 166,11,0 133,13,0");
}

TEST(GradientPixels, AGradientThereAndBackTouchesItsSecondColourInTheMiddle) {
    // Across ten pixels: 0 to 100 over five, then 100 to 0.
    Surface surface;
    surface.GradientFill(
        {{0, 0, 0, 0, 0, 0}, {5, 1, 100 * 256, 0, 0, 0}, {5, 0, 100 * 256, 0, 0, 0}, {10, 1, 0, 0, 0, 0}},
        {{0, 1}, {2, 3}}, 0);
    EXPECT_EQ(Colors(Replay(surface, 10, 1), false),
              "0,0,0 20,0,0 40,0,0 60,0,0 80,0,0 100,0,0 80,0,0 60,0,0 40,0,0 20,0,0");
}

TEST(GradientPixels, ALongGradientIsExactAtEveryPixel) {
    Surface surface;
    surface.GradientFill({{0, 0, 0xFF00, 0x0100, 0x7F00, 0}, {1600, 1, 0x0300, 0xFE00, 0x8000, 0}}, {{0, 1}}, 0);
    const QImage image = Replay(surface, 1600, 1);
    for (int p = 0; p < 1600; ++p) {
        const auto part = [p](int first, int second) { return (first * (1600 - p) + second * p) / (256 * 1600); };
        ASSERT_EQ(image.pixel(p, 0), qRgb(part(0xFF00, 0x0300), part(0x0100, 0xFE00), part(0x7F00, 0x8000))) << p;
    }
}

// --- Round frames ---

TEST(RoundPixels, TheFrameOfARoundStripIsTheBorderOfItsRegion) {
    Surface surface;
    surface.SetForeColor(test::Letter('a'));
    surface.RoundRect({0, 0, 11, 9}, 7, 7);
    EXPECT_EQ(Map(Replay(surface, 12, 10)),
              "..aaaaaaa...\n"
              ".a.......a..\n"
              "a.........a.\n"
              "a.........a.\n"
              "a.........a.\n"
              "a.........a.\n"
              "a.........a.\n"
              ".a.......a..\n"
              "..aaaaaaa...\n"
              "............\n");
}

}  // namespace
}  // namespace vorlane
