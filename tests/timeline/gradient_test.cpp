#include "timeline/gradient.h"

#include "tests/platform/expectfailure.h"

#include <gtest/gtest.h>

namespace vorlane::gradient {
namespace {

constexpr Rgb kRed{255, 0, 0};
constexpr Rgb kWhite{255, 255, 255};

// "x,y red/green/blue" of each vertex, then the rectangles and the mode.
std::string Told(const Mesh& mesh) {
    std::string text;
    for (const TRIVERTEX& vertex : mesh.Vertices) {
        text += std::to_string(vertex.x) + "," + std::to_string(vertex.Y) + " " + std::to_string(vertex.Red) + "/" +
                std::to_string(vertex.Green) + "/" + std::to_string(vertex.Blue) + "/" + std::to_string(vertex.Alpha) +
                "\n";
    }
    for (const GRADIENT_RECT& rect : mesh.Rects) {
        text += std::to_string(rect.UpperLeft) + "-" + std::to_string(rect.LowerRight) + " ";
    }
    return text + "mode " + std::to_string(mesh.Mode);
}

TEST(Gradient, FromLeftToRightFromRedToWhite) {
    EXPECT_EQ(Told(MeshOf(3, kRed, kWhite, 10, 20, 110, 60)),
              "10,20 -256/0/0/0\n"
              "110,60 -256/-256/-256/0\n"
              "0-1 mode 0");
}

TEST(Gradient, FromTopToBottomAndAnyOtherWay) {
    const std::string down =
        "0,0 -256/0/0/0\n"
        "100,40 -256/-256/-256/0\n"
        "0-1 mode 1";
    for (const int32_t direction : {1, 0, -1, 5, 99}) {
        EXPECT_EQ(Told(MeshOf(direction, kRed, kWhite, 0, 0, 100, 40)), down) << direction;
    }
}

TEST(Gradient, FromLeftToTheMiddleAndBackOnA100WideBackground) {
    EXPECT_EQ(Told(MeshOf(4, kRed, kWhite, 0, 0, 100, 40)),
              "0,0 -256/0/0/0\n"
              "50,40 -256/-256/-256/0\n"
              "50,0 -256/-256/-256/0\n"
              "100,40 -256/0/0/0\n"
              "0-1 2-3 mode 0");
}

TEST(Gradient, FromTopToTheMiddleAndBack) {
    EXPECT_EQ(Told(MeshOf(2, kRed, kWhite, 0, 0, 100, 40)),
              "0,0 -256/0/0/0\n"
              "100,20 -256/-256/-256/0\n"
              "0,20 -256/-256/-256/0\n"
              "100,40 -256/0/0/0\n"
              "0-1 2-3 mode 1");
}

TEST(Gradient, TheMiddleIsHalfOfTheEdgeAlsoWhereTheRectangleStartsElsewhere) {
    EXPECT_EQ(Told(MeshOf(4, kRed, kWhite, 40, 8, 101, 20)),
              "40,8 -256/0/0/0\n"
              "50,20 -256/-256/-256/0\n"
              "50,8 -256/-256/-256/0\n"
              "101,20 -256/0/0/0\n"
              "0-1 2-3 mode 0")
        << "50.5 rounds to the even neighbour";
}

TEST(Gradient, APlaceThatIsNoNumberFails) {
    EXPECT_FAILURE(MeshOf(3, kRed, kWhite, 0, 0, 1e20F, 10), Overflow());
}

TEST(Gradient, LinesAreShiftedByEvenStepsAndGoBackBehindTheMiddle) {
    const Shift plain = ShiftPerPixel({0, 100, 255}, {100, 0, 255}, 50, false);
    EXPECT_EQ(plain.Red, 2.0F);
    EXPECT_EQ(plain.Green, -2.0F);
    EXPECT_EQ(plain.Blue, 0.0F);
    EXPECT_EQ(ShiftPerPixel({0, 100, 255}, {100, 0, 255}, 50, true).Red, 4.0F);
    EXPECT_FAILURE(ShiftPerPixel(kRed, kWhite, 0, true), DivisionByZero());
    EXPECT_EQ(Steps(30, 50, false), 30.0F);
    EXPECT_EQ(Steps(25, 50, true), 25.0F);
    EXPECT_EQ(Steps(26, 50, true), 24.0F);
    EXPECT_EQ(Steps(50, 50, true), 0.0F);
}

TEST(Gradient, TheMedianIsTheFirstColourWhereNoModeIsSet) {
    const Median median = MedianOf(kRed, kWhite, 100, 0);
    EXPECT_EQ(median.Set, 0);
    EXPECT_EQ(median.Amount.Red, 0.0F);
    EXPECT_EQ(median.Amount.Green, 0.0F);
    EXPECT_FAILURE(MedianOf(kRed, kWhite, 0, 0), DivisionByZero());
}

TEST(Gradient, TheMediansOfTheOtherModes) {
    const Rgb dark{0, 50, 100};
    const Rgb light{100, 200, 100};
    EXPECT_EQ(MedianOf(dark, light, 100, 1).Set, 1);
    EXPECT_EQ(MedianOf(light, dark, 100, 1).Set, 0);
    EXPECT_EQ(MedianOf(dark, dark, 100, 2).Set, 1);
    EXPECT_EQ(MedianOf(dark, light, 100, 3).Set, 0);
    EXPECT_EQ(MedianOf(light, dark, 100, 3).Set, 1);
    const Median fifth = MedianOf(dark, light, 100, 1);
    EXPECT_FLOAT_EQ(fifth.Amount.Red, -20);
    EXPECT_FLOAT_EQ(fifth.Amount.Green, -30);
    EXPECT_FLOAT_EQ(fifth.Amount.Blue, 0);
    EXPECT_FLOAT_EQ(MedianOf(dark, light, 100, 2).Amount.Red, -50);
}

}  // namespace
}  // namespace vorlane::gradient
