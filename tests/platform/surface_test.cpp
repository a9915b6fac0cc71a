#include "platform/surface.h"

#include "expectfailure.h"

#include <clocale>
#include <cmath>
#include <limits>

namespace vorlane {
namespace {

class SurfaceTest : public testing::Test {
protected:
    // The lines of the dump behind the back colour.
    std::string Drawn() const {
        const std::string text = surface.dump();
        return text.substr(text.find('\n') + 1);
    }

    Surface surface;
};

TEST_F(SurfaceTest, StartsEmptyOnTheButtonFace) {
    EXPECT_EQ(surface.dump(), "BackColor sys15\n");
    EXPECT_TRUE(surface.Commands().empty());
}

TEST_F(SurfaceTest, PrintsLinesAndBoxesInTheOrderOfDrawing) {
    surface.Line(0, 0, 99, 0, FromSystem(SystemColor::ButtonShadow));
    surface.LineBox(0, 0, 99, 74, 0x8C021B);
    surface.LineFilledBox(1, 2, 3, 4, 0x6FB5FB);
    EXPECT_EQ(Drawn(),
              "Line 0,0 99,0 sys16\n"
              "Box 0,0 99,74 #8C021B\n"
              "FilledBox 1,2 3,4 #6FB5FB\n");
}

TEST_F(SurfaceTest, PrintsUpToThreeDecimalsWithoutIdleZeros) {
    surface.Line(0.5, 1.25, 10.0625, -3, 0);
    surface.Line(-0.0001, 100, 1.0 / 3, 20.9999, 0);
    EXPECT_EQ(Drawn(),
              "Line 0.5,1.25 10.062,-3 #000000\n"
              "Line 0,100 0.333,21 #000000\n");
}

TEST_F(SurfaceTest, PrintsTheSameInAnyLocale) {
    const std::string before = std::setlocale(LC_ALL, nullptr);
    std::setlocale(LC_ALL, "fr_FR.UTF-8");
    surface.Line(1000.5, 0, 0, 0, 0);
    EXPECT_EQ(Drawn(), "Line 1000.5,0 0,0 #000000\n");
    std::setlocale(LC_ALL, before.c_str());
}

TEST_F(SurfaceTest, KeepsColoursAsGivenAndPrintsTheirValue) {
    surface.SetPixel(3, 4, 0xFF0000);
    surface.SetPixel(-1, 0, 0x80000011);
    surface.SetPixel(0, 0, 0x01000001);
    EXPECT_EQ(Drawn(), "SetPixel 3,4 #FF0000\nSetPixel -1,0 sys17\nSetPixel 0,0 #000001\n");
}

TEST_F(SurfaceTest, TextTakesOverForeColorAndFont) {
    surface.SetForeColor(0x102030);
    surface.SetFont({"Vera", 9.5F, true, true, true, true});
    surface.TextOutA(5, -2, "0:05");
    surface.SetForeColor(0);
    surface.SetFont({});
    surface.TextOutA(0, 0, "");
    EXPECT_EQ(Drawn(),
              "Text 5,-2 \"0:05\" #102030 \"Vera\" 9.5 bold italic underline strikethrough\n"
              "Text 0,0 \"\" #000000 \"Sans Serif\" 8.25\n");
}

TEST_F(SurfaceTest, PrintsTextsEscaped) {
    surface.TextOutA(0, 0, "é \"a\\b\"\n\x7F");
    EXPECT_EQ(Drawn(), "Text 0,0 \"é \\\"a\\\\b\\\"\\x0A\\x7F\" #000000 \"Sans Serif\" 8.25\n");
}

TEST_F(SurfaceTest, PrintsEachRectangleOfAGradientByItsCorners) {
    surface.GradientFill({{0, 0, 0xFF00, 0, 0, 0},
                          {50, 20, 0xFF00, 0xFF00, 0xFF00, 0},
                          {50, 0, 0xFF00, 0xFF00, 0xFF00, 0},
                          {100, 20, 0xFF00, 0, 0, 0}},
                         {{0, 1}, {2, 3}}, 0);
    surface.GradientFill({{0, 0, 0, 0, 0x100, 0}, {1, 1, 0, 0, 0, 0}}, {{0, 1}}, 1);
    EXPECT_EQ(Drawn(),
              "GradientFill across [0,0 FF00/0000/0000 to 50,20 FF00/FF00/FF00]"
              " [50,0 FF00/FF00/FF00 to 100,20 FF00/0000/0000]\n"
              "GradientFill down [0,0 0000/0000/0100 to 1,1 0000/0000/0000]\n");
}

TEST_F(SurfaceTest, AGradientKeepsAnyNumberOfCorners) {
    surface.GradientFill({{0, 0, 0, 0, 0, 0},
                          {1, 1, 0, 0, 0, 0},
                          {2, 2, 0, 0, 0, 0},
                          {3, 3, 0, 0, 0, 0},
                          {4, 4, 0, 0, 0, 0},
                          {5, 5, 0xFF00, 0, 0, 0}},
                         {{0, 1}, {2, 3}, {4, 5}}, 0);
    const std::vector<draw::Command> copy = surface.Commands();
    const std::string drawn = Drawn();
    EXPECT_EQ(drawn,
              "GradientFill across [0,0 0000/0000/0000 to 1,1 0000/0000/0000]"
              " [2,2 0000/0000/0000 to 3,3 0000/0000/0000] [4,4 0000/0000/0000 to 5,5 FF00/0000/0000]\n");
    surface.Cls();
    surface.GradientFill({{0, 0, 0, 0, 0, 0}, {1, 1, 0, 0, 0, 0}}, {{0, 1}}, 0);
    EXPECT_FALSE(copy.at(0) == surface.Commands().at(0));
    EXPECT_TRUE(std::vector<draw::Command>(copy) == copy);
}

TEST_F(SurfaceTest, RefusesAGradientOverAMissingVertexOrOfAnUnknownMode) {
    EXPECT_FAILURE(surface.GradientFill({{}, {}}, {{0, 2}}, 0), SubscriptOutOfRange());
    EXPECT_FAILURE(surface.GradientFill({}, {{0, 0}}, 0), SubscriptOutOfRange());
    EXPECT_FAILURE(surface.GradientFill({{}, {}}, {{-1, 1}}, 0), SubscriptOutOfRange());
    EXPECT_FAILURE(surface.GradientFill({{}, {}}, {{0, 1}}, 2), InvalidCall());
    EXPECT_EQ(Drawn(), "");
}

TEST_F(SurfaceTest, PrintsEdgesWithTheirBits) {
    surface.DrawEdge({0, 0, 100, 75}, 5, 0x400F);
    surface.DrawEdge({1, 2, 3, 4}, 0xFFFFFFFF, 0xF);
    EXPECT_EQ(Drawn(),
              "DrawEdge 0,0 100,75 edge 05 flags 400F\n"
              "DrawEdge 1,2 3,4 edge FFFFFFFF flags 000F\n");
}

TEST_F(SurfaceTest, APolygonIsFilledOnlyWhenTheFillStyleIsSolid) {
    surface.SetFillColor(0xFF0000);
    surface.SetFillStyle(0);
    surface.Polygon({{5, 0}, {10, 5}, {15, 0}});
    surface.SetFillStyle(1);
    surface.Polygon({{0, 0}});
    EXPECT_EQ(Drawn(), "Polygon 5,0 10,5 15,0 #000000 fill #FF0000\nPolygon 0,0 #000000\n");
}

TEST_F(SurfaceTest, ARoundRectIsAnOutlineInForeColorWhateverTheFillStyle) {
    surface.SetForeColor(0xFFFFFF);
    surface.SetFillStyle(0);
    surface.RoundRect({0, 0, 99, 74}, 7, 15);
    EXPECT_EQ(Drawn(), "RoundRect 0,0 99,74 corner 7x15 #FFFFFF\n");
}

TEST_F(SurfaceTest, PrintsACopiedPictureByTypeAndPixels) {
    surface.BitBlt(1, 2, 30, 40, Picture(PictureType::Bitmap, 300, 150, nullptr), 5, 6);
    surface.BitBlt(0, 0, 0, 0, {}, 0, 0);
    EXPECT_EQ(Drawn(),
              "BitBlt 1,2 30x40 from 5,6 of picture type 1 300x150\n"
              "BitBlt 0,0 0x0 from 0,0 of picture type 0 0x0\n");
}

TEST_F(SurfaceTest, ClsLeavesTheBackColourAlone) {
    surface.SetBackColor(0xFFFFFF);
    surface.Line(0, 0, 1, 1, 0);
    surface.Cls();
    EXPECT_EQ(surface.dump(), "BackColor #FFFFFF\n");
}

TEST_F(SurfaceTest, ANewBackColourKeepsWhatIsDrawn) {
    surface.Line(0, 0, 1, 1, 0);
    surface.SetBackColor(0x123456);
    EXPECT_EQ(surface.dump(), "BackColor #123456\nLine 0,0 1,1 #000000\n");
}

TEST_F(SurfaceTest, TheRevisionMovesWithWhatAReplayWouldShowAndWithNothingElse) {
    int changes = 0;
    surface.Changed.connect([&] { ++changes; });
    const auto moves = [&](auto&& call) {
        const uint64_t before = surface.Revision();
        const int changesBefore = changes;
        call();
        EXPECT_EQ(surface.Revision() != before, changes != changesBefore);
        return changes - changesBefore;
    };
    EXPECT_EQ(moves([&] { surface.SetBackColor(0xFFFFFF); }), 1);
    EXPECT_EQ(moves([&] { surface.SetBackColor(0xFFFFFF); }), 0);
    EXPECT_EQ(moves([&] { surface.Cls(); }), 0);
    EXPECT_EQ(moves([&] { surface.SetForeColor(1); }), 0);
    EXPECT_EQ(moves([&] { surface.SetFillColor(1); }), 0);
    EXPECT_EQ(moves([&] { surface.SetFillStyle(0); }), 0);
    EXPECT_EQ(moves([&] { surface.SetFont({"Vera"}); }), 0);
    EXPECT_EQ(moves([&] { surface.Line(0, 0, 1, 1, 0); }), 1);
    EXPECT_EQ(moves([&] { surface.Line(0, 0, 1, 1, 0); }), 1);
    EXPECT_EQ(moves([&] { surface.Cls(); }), 1);
}

TEST_F(SurfaceTest, ARedrawIsToldAtOnceWithWhatItHasChanged) {
    int changes = 0;
    surface.Changed.connect([&] { ++changes; });
    const auto redraw = [&](int32_t x) {
        const uint64_t before = surface.Revision();
        surface.Redraw([&] {
            surface.Cls();
            surface.SetPixel(0, 0, 1);
            surface.Redraw([&] { surface.SetPixel(x, 7, 2); });
            surface.SetPixel(100, 100, 3);
            EXPECT_FALSE(std::exchange(changes, 0));
        });
        EXPECT_EQ(std::exchange(changes, 0), 1);
        ASSERT_TRUE(surface.LastRedraw());
        EXPECT_EQ(surface.LastRedraw()->Since, before);
    };
    redraw(10);
    redraw(30);
    const draw::Changes moved = surface.LastRedraw()->Changes;
    EXPECT_EQ(moved.Count, 2U) << "one gone, one come";
    EXPECT_GT(moved.Where.Left, 0);
    EXPECT_LE(moved.Where.Left, 10);
    EXPECT_LT(moved.Where.Bottom, 100);
    EXPECT_GE(moved.Where.Right, 31);
    redraw(30);
    EXPECT_EQ(surface.LastRedraw()->Changes.Count, 0U);
    EXPECT_TRUE(surface.LastRedraw()->Changes.Where.Empty());
    surface.Redraw([] {});
    EXPECT_EQ(changes, 0);
}

TEST_F(SurfaceTest, WhatElseHasChangedSinceARedrawIsNotKnown) {
    const auto draw = [&] { surface.SetPixel(1, 1, 1); };
    surface.Redraw(draw);
    EXPECT_TRUE(surface.LastRedraw());
    draw();
    EXPECT_FALSE(surface.LastRedraw());
    surface.Redraw(draw);
    surface.SetBackColor(0x123456);
    EXPECT_FALSE(surface.LastRedraw());
    surface.Redraw(draw);
    surface.Redraw([&] { EXPECT_FALSE(surface.LastRedraw()) << "what is half drawn"; });
    surface.Redraw([&] { surface.SetBackColor(0x654321); });
    EXPECT_FALSE(surface.LastRedraw()) << "the whole ground";
}

TEST_F(SurfaceTest, ARedrawThatFailsIsToldAsFarAsItCame) {
    int changes = 0;
    surface.Changed.connect([&] { ++changes; });
    EXPECT_FAILURE(surface.Redraw([&] {
        surface.SetPixel(1, 1, 1);
        throw failures::Overflow();
    }),
                   Overflow());
    EXPECT_EQ(changes, 1);
    surface.SetPixel(2, 2, 2);
    EXPECT_EQ(changes, 2);
}

TEST_F(SurfaceTest, EveryDrawingCallMovesTheRevisionOnce) {
    surface.LineBox(0, 0, 1, 1, 0);
    surface.LineFilledBox(0, 0, 1, 1, 0);
    surface.TextOutA(0, 0, "a");
    surface.GradientFill({{}, {}}, {{0, 1}}, 0);
    surface.DrawEdge({}, 0, 0);
    surface.Polygon({});
    surface.RoundRect({}, 0, 0);
    surface.SetPixel(0, 0, 0);
    surface.BitBlt(0, 0, 1, 1, {}, 0, 0);
    EXPECT_EQ(surface.Commands().size(), 9U);
    EXPECT_EQ(surface.Revision(), 9U);
}

TEST_F(SurfaceTest, RefusesACoordinateThatCannotBeRounded) {
    const double tooMuch = 2147483648.0;
    EXPECT_FAILURE(surface.Line(tooMuch, 0, 0, 0, 0), Overflow());
    EXPECT_FAILURE(surface.LineBox(0, -tooMuch * 2, 0, 0, 0), Overflow());
    EXPECT_FAILURE(surface.LineFilledBox(0, 0, std::nan(""), 0, 0), Overflow());
    EXPECT_FAILURE(surface.Line(0, 0, 0, std::numeric_limits<double>::infinity(), 0), Overflow());
    // As a Single this is 2147483648.
    EXPECT_FAILURE(surface.Line(2147483647.0, 0, 0, 0, 0), Overflow());
    EXPECT_EQ(surface.Revision(), 0U);
}

TEST(SurfaceRecording, ClsLeavesARecordingToItsHolders) {
    Surface surface;
    surface.Line(0, 0, 1, 1, 5);
    const auto held = surface.Recording();
    surface.SetPixel(3, 4, 5);
    EXPECT_EQ(held->size(), 2U) << "it grows";
    surface.Cls();
    surface.SetPixel(1, 1, 7);
    EXPECT_EQ(held->size(), 2U);
    EXPECT_EQ(surface.Commands().size(), 1U);
    EXPECT_NE(surface.Recording(), held);
    EXPECT_EQ(surface.Commands().front(), draw::Command(draw::SetPixel{1, 1, 7}));
    EXPECT_NE(surface.Commands().front(), held->back());
}

}  // namespace
}  // namespace vorlane
