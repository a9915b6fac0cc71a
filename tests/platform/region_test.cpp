#include "platform/region.h"

#include <gtest/gtest.h>
#include <string>

namespace vorlane {
namespace {

// The pixels from (0, 0), one line a row, "#" for one that belongs to the region.
std::string Drawn(const Region& region, int32_t width, int32_t height) {
    std::string text;
    for (int32_t y = 0; y < height; ++y) {
        for (int32_t x = 0; x < width; ++x) text += region.Contains(x, y) ? '#' : '.';
        text += '\n';
    }
    return text;
}

// Free pixels at the left of each row from the top.
std::string Insets(const Region& region, int32_t rows) {
    std::string text;
    for (int32_t y = 0; y < rows; ++y) {
        int32_t x = 0;
        while (x < 1000 && !region.Contains(x, y)) ++x;
        text += std::to_string(x) + " ";
    }
    return text;
}

TEST(Region, WithoutShapesHoldsNothing) {
    EXPECT_FALSE(Region().Contains(0, 0));
    EXPECT_TRUE(Region().Shapes().empty());
    EXPECT_EQ(Region().dump(), "nothing");
}

TEST(Region, ARectangleLeavesOutItsRightAndBottom) {
    const Region region = Region::CreateRectRgn(1, 1, 3, 2);
    EXPECT_EQ(Drawn(region, 4, 3),
              "....\n"
              ".##.\n"
              "....\n");
    EXPECT_EQ(region.dump(), "rect 1,1,3,2");
}

TEST(Region, ARoundedRectangleCoversOnePixelLessThanARectangle) {
    const Region region = Region::CreateRoundRectRgn(0, 0, 9, 8, 5, 5);
    EXPECT_EQ(Drawn(region, 9, 8),
              ".######..\n"
              "########.\n"
              "########.\n"
              "########.\n"
              "########.\n"
              "########.\n"
              ".######..\n"
              ".........\n");
    EXPECT_EQ(region.dump(), "round 0,0,9,8 5x5");
}

TEST(Region, CornersAreRoundedRowByRow) {
    EXPECT_EQ(Insets(Region::CreateRoundRectRgn(0, 0, 8, 8, 7, 7), 7), "2 1 0 0 0 1 2 ");
    EXPECT_EQ(Insets(Region::CreateRoundRectRgn(0, 0, 101, 16, 15, 15), 15), "5 3 2 1 1 0 0 0 0 0 1 1 2 3 5 ");
}

TEST(Region, CornersLargerThanTheBoxAreCutToIt) {
    EXPECT_EQ(Region::CreateRoundRectRgn(0, 0, 8, 8, 50, 50).Shapes(),
              Region::CreateRoundRectRgn(0, 0, 8, 8, 7, 7).Shapes());
}

TEST(Region, CornersOfNoSizeMakeARectangle) {
    EXPECT_EQ(Region::CreateRoundRectRgn(2, 3, 9, 9, 0, 0).Shapes(), Region::CreateRectRgn(2, 3, 8, 8).Shapes());
}

TEST(Region, AnEllipseOfTwoPixelsIsOnePixel) {
    EXPECT_EQ(Drawn(Region::CreateEllipticRgn(1, 1, 3, 3), 4, 4),
              "....\n"
              ".#..\n"
              "....\n"
              "....\n");
    EXPECT_EQ(Region::CreateEllipticRgn(1, 1, 3, 3).dump(), "ellipse 1,1,3,3");
}

TEST(Region, EmptyAndReversedBoxesHoldNothing) {
    EXPECT_EQ(Drawn(Region::CreateRectRgn(0, 0, 0, 5), 3, 1), "...\n");
    EXPECT_EQ(Drawn(Region::CreateRectRgn(2, 2, 0, 0), 3, 1), "...\n");
    EXPECT_EQ(Drawn(Region::CreateRoundRectRgn(0, 0, 0, 0, 15, 15), 3, 1), "...\n");
    EXPECT_EQ(Drawn(Region::CreateRoundRectRgn(0, 0, 1, 1, 15, 15), 3, 1), "...\n");
}

TEST(Region, AnExclusiveOrMakesAHole) {
    const Region region = Region::ExclusiveOr(Region::CreateRectRgn(0, 0, 4, 3), Region::CreateEllipticRgn(1, 1, 3, 3));
    EXPECT_EQ(Drawn(region, 4, 3),
              "####\n"
              "#.##\n"
              "####\n");
    EXPECT_EQ(region.dump(), "rect 0,0,4,3 xor ellipse 1,1,3,3");
}

TEST(Region, AnExclusiveOrTakesWhatStandsOutIn) {
    const Region region = Region::ExclusiveOr(Region::CreateRectRgn(0, 0, 2, 1), Region::CreateRectRgn(1, 0, 3, 1));
    EXPECT_EQ(Drawn(region, 4, 1), "#.#.\n");
}

TEST(Region, EqualRegionsHaveEqualShapes) {
    EXPECT_EQ(Region::CreateRectRgn(0, 0, 2, 1), Region::CreateRectRgn(0, 0, 2, 1));
    EXPECT_NE(Region::CreateRectRgn(0, 0, 2, 1), Region::CreateRectRgn(0, 0, 2, 2));
    EXPECT_NE(Region::CreateRectRgn(0, 0, 2, 2), Region::CreateEllipticRgn(0, 0, 2, 2));
}

}  // namespace
}  // namespace vorlane
