// What the layout draws, against drawings worked out by hand: a slide of 160 x 140, two lines of shadow.
#include "slidetest.h"

#include <algorithm>
#include <map>
#include <string>

namespace vorlane::headless {
namespace {

class FramesTest : public LaidSlideTest {
protected:
    void ShowPicture() {
        slide.SetPicture(Bitmap(300, 150));
        ASSERT_EQ(slide.Picture().Type(), 1);
    }
};

// --- The pieces of the drawings around the area, as far as several of them share one ---

const std::string kOuterFrame = R"(
Box 0,0 159,139 #C0C0C0
)";

const std::string kAreaShadow = R"(Box 149,10 149,97 #B4B4B4
Box 2,97 149,97 #B4B4B4
Box 150,11 150,98 #DADADA
Box 3,98 150,98 #DADADA
)";

// Sunken lines, with room for a shadow and without.
const std::string kLines = R"(Line 1,9 149,9 sys16
Line 1,9 1,97 sys16
Line 148,9 148,97 sys20
Line 1,96 148,96 sys20
)";
const std::string kInnerLines = R"(Line 2,10 147,10 sys21
Line 2,10 2,95 sys21
Line 147,10 147,96 sys22
Line 2,95 147,95 sys22
)";
const std::string kWideLines = R"(Line 1,9 148,9 sys16
Line 1,9 1,99 sys16
Line 147,9 147,99 sys20
Line 1,98 147,98 sys20
)";
const std::string kWideInnerLines = R"(Line 2,10 146,10 sys21
Line 2,10 2,97 sys21
Line 146,10 146,98 sys22
Line 2,97 146,97 sys22
)";

// Sunken lines as raised ones: light and dark change places.
std::string Raised(std::string lines) {
    const std::map<std::string, std::string> others{{"16", "20"}, {"20", "16"}, {"21", "22"}, {"22", "21"}};
    for (size_t at = lines.find("sys"); at != std::string::npos; at = lines.find("sys", at + 1)) {
        lines.replace(at + 3, 2, others.at(lines.substr(at + 3, 2)));
    }
    return lines;
}

struct Golden {
    const char* name;
    DiapoBorderStyle style;
    std::string withShadow;  // behind the outer frame
    std::string without;
};

class AreaFramesTest : public FramesTest, public testing::WithParamInterface<Golden> {};

TEST_P(AreaFramesTest, AFrameWithoutAPictureFollowsTheArea) {
    slide.SetBorderStyle(GetParam().style);
    EXPECT_EQ(Drawn(), kOuterFrame + GetParam().withShadow);
    slide.SetShowShadow(false);
    EXPECT_EQ(Drawn(), kOuterFrame + GetParam().without);
}

INSTANTIATE_TEST_SUITE_P(
    Styles, AreaFramesTest,
    testing::Values(Golden{"BorderNone", DiapoBorderStyle::BorderNone, R"(Box 149,9 149,97 #B4B4B4
Box 1,97 149,97 #B4B4B4
Box 150,10 150,98 #DADADA
Box 2,98 150,98 #DADADA
)",
                           ""},
                    Golden{"BorderSunken", DiapoBorderStyle::BorderSunken, kLines + kAreaShadow, kWideLines},
                    Golden{"BorderRaised", DiapoBorderStyle::BorderRaised, Raised(kLines) + kAreaShadow,
                           Raised(kWideLines)},
                    Golden{"BorderSunkenDouble", DiapoBorderStyle::BorderSunkenDouble,
                           kLines + kInnerLines + kAreaShadow, kWideLines + kWideInnerLines},
                    Golden{"BorderRaisedDouble", DiapoBorderStyle::BorderRaisedDouble,
                           Raised(kLines + kInnerLines) + kAreaShadow, Raised(kWideLines + kWideInnerLines)},
                    Golden{"FlatBackColor", DiapoBorderStyle::FlatBackColor, "Box 1,9 148,96 #C0C0C0\n" + kAreaShadow,
                           "Box 1,9 147,98 #C0C0C0\n"}),
    [](const auto& golden) { return golden.param.name; });

TEST_F(FramesTest, FramesFollowThePictureWithAutoAdjust) {
    ShowPicture();
    EXPECT_EQ(Drawn(), R"(
Box 0,0 159,139 #C0C0C0
Box 8,15.5 155,88.5 #C0C0C0
Box 156,16.5 156,89.5 #B4B4B4
Box 9,89.5 156,89.5 #B4B4B4
Box 157,17.5 157,90.5 #DADADA
Box 10,90.5 157,90.5 #DADADA
)");
}

TEST_F(FramesTest, DoubleLinesFollowThePicture) {
    slide.SetBorderStyle(DiapoBorderStyle::BorderRaisedDouble);
    slide.SetShowShadow(false);
    slide.Refresh();
    ShowPicture();
    EXPECT_EQ(Drawn(), R"(
Box 0,0 159,139 #C0C0C0
Line 6,16 153,16 sys20
Line 6,16 6,91 sys20
Line 152,16 152,91 sys16
Line 6,90 152,90 sys16
Line 7,17 151,17 sys22
Line 7,17 7,89 sys22
Line 151,17 151,90 sys21
Line 7,89 151,89 sys21
)");
}

TEST_F(FramesTest, FramesFollowTheAreaWithoutAutoAdjust) {
    slide.SetAutoAdjust(false);
    ShowPicture();
    EXPECT_EQ(Drawn(), kOuterFrame + "Box 1,9 148,96 #C0C0C0\n" + kAreaShadow);
}

TEST_F(FramesTest, TheInnerFrameOfAnAreaIsInverted) {
    slide.SetBorderDouble(true);
    slide.SetBorderStyle(DiapoBorderStyle::BorderSunken);
    EXPECT_EQ(Drawn(), kOuterFrame + kLines + kAreaShadow + R"(Line 7,15 143,15 sys20
Line 7,15 7,91 sys20
Line 142,15 142,91 sys16
Line 7,90 142,90 sys16
)");
}

TEST_F(FramesTest, TheInnerFrameOfAnAreaIsInvertedInDoubleLines) {
    slide.SetBorderDouble(true);
    slide.SetShowShadow(false);
    slide.SetBorderStyle(DiapoBorderStyle::BorderRaisedDouble);
    EXPECT_EQ(Drawn(), kOuterFrame + Raised(kWideLines + kWideInnerLines) + R"(Line 8,16 141,16 sys16
Line 8,16 8,92 sys16
Line 140,16 140,92 sys20
Line 8,91 140,91 sys20
Line 9,17 139,17 sys21
Line 9,17 9,90 sys21
Line 139,17 139,91 sys22
Line 9,90 139,90 sys22
)");
}

TEST_F(FramesTest, TheInnerFrameOfAPictureKeepsItsStyleAndItsFullHeight) {
    slide.SetBorderDouble(true);
    slide.SetBorderStyle(DiapoBorderStyle::BorderSunkenDouble);
    slide.Refresh();
    ShowPicture();
    EXPECT_EQ(Drawn(), R"(
Box 0,0 159,139 #C0C0C0
Line 8,11.5 156,11.5 sys16
Line 8,11.5 8,93.5 sys16
Line 155,11.5 155,93.5 sys20
Line 8,92.5 155,92.5 sys20
Line 9,12.5 154,12.5 sys21
Line 9,12.5 9,91.5 sys21
Line 154,12.5 154,92.5 sys22
Line 9,91.5 154,91.5 sys22
Box 156,12.5 156,93.5 #B4B4B4
Box 9,93.5 156,93.5 #B4B4B4
Box 157,13.5 157,94.5 #DADADA
Box 10,94.5 157,94.5 #DADADA
Line 15,18.5 149,18.5 sys16
Line 15,18.5 15,87.5 sys16
Line 148,18.5 148,87.5 sys20
Line 15,86.5 148,86.5 sys20
Line 16,19.5 147,19.5 sys21
Line 16,19.5 16,85.5 sys21
Line 147,19.5 147,86.5 sys22
Line 16,85.5 147,85.5 sys22
)");
}

TEST_F(FramesTest, TheShadowOfASelectedSlideFadesIntoItsColour) {
    slide.SetBorderStyle(DiapoBorderStyle::BorderRaised);
    slide.SetSelected(true);
    EXPECT_EQ(Drawn(), kOuterFrame + Raised(kLines) + R"(Box 149,10 149,97 #B4B4B4
Box 2,97 149,97 #B4B4B4
Box 150,11 150,98 #92B4D8
Box 3,98 150,98 #92B4D8
)");
    EXPECT_EQ(slide.BackColor(), 0x6FB5FBU);
}

TEST_F(FramesTest, ASelectedSlideWithoutOuterFrameAndShadowIsAFilledBox) {
    slide.SetBorderStyle(DiapoBorderStyle::BorderRaised);
    slide.SetBorderStyleExt(DiapoBorderStyle::BorderNone);
    slide.SetShowShadow(false);
    slide.SetSelected(true);
    EXPECT_EQ(Drawn(), R"(
FilledBox 0,0 160,140 #6FB5FB
)");
}

TEST_F(FramesTest, ASlideWithoutOuterFrameAndShadowDrawsNoPictureFrame) {
    slide.SetBorderStyle(DiapoBorderStyle::BorderRaised);
    slide.SetBorderStyleExt(DiapoBorderStyle::BorderNone);
    slide.SetShowShadow(false);
    EXPECT_EQ(Drawn(), "\n");
}

TEST_F(FramesTest, AShadowNeedsNoFrame) {
    slide.SetBorderStyle(DiapoBorderStyle::BorderNone);
    slide.SetBorderStyleExt(DiapoBorderStyle::BorderNone);
    EXPECT_EQ(Drawn(), R"(
Box 151,9 151,99 #B4B4B4
Box 0,99 151,99 #B4B4B4
Box 152,10 152,100 #DADADA
Box 1,100 152,100 #DADADA
)");
}

TEST_F(FramesTest, AShadowWidthOfZeroDrawsOneLine) {
    slide.SetShadowWidth(0);
    EXPECT_EQ(Drawn(), R"(
Box 0,0 159,139 #C0C0C0
Box 1,9 152,98 #C0C0C0
Box 153,10 153,99 #B4B4B4
Box 2,99 153,99 #B4B4B4
)");
}

TEST_F(FramesTest, ASmallFrameHasAShadowOfATenthOfItsShorterSide) {
    slide.Move(0, 0, 100, 75);
    slide.SetShadowWidth(5);
    slide.SetBorderDouble(true);
    EXPECT_EQ(Drawn(), R"(
Box 0,0 99,74 #C0C0C0
Box 1,9 82,28 #C0C0C0
Box 83,10 83,29 #B4B4B4
Box 2,29 83,29 #B4B4B4
Box 84,11 84,30 #DADADA
Box 3,30 84,30 #DADADA
Box 7,15 76,22 #C0C0C0
)");
}

// Two hundred steps of -0.9, rounded to -1, pass below 0 behind the 181st line.
TEST_F(FramesTest, AShadowColourThatRunsBelowZeroEndsTheShadow) {
    slide.Move(0, 0, 2500, 2400);
    slide.SetShadowWidth(200);
    slide.SetBackColorSelected(0);
    slide.SetSelected(true);
    const std::string drawn = Drawn();
    EXPECT_NE(drawn.find("#010101\n"), std::string::npos);
    EXPECT_NE(drawn.find("#000000\n"), std::string::npos);
    EXPECT_EQ(std::count(drawn.begin(), drawn.end(), '\n'), 1 + 2 + 2 * 181);
}

TEST_F(FramesTest, AFrameTooLargeForAByteOfShadowHasNone) {
    slide.Move(0, 0, 3000, 3000);
    EXPECT_EQ(Drawn(), "\nBox 0,0 2999,2999 #C0C0C0\nBox 1,9 2988,2956 #C0C0C0\n");
}

TEST_F(FramesTest, AFrameTurnedInsideOutHasItsLinesAndNoShadow) {
    slide.Move(0, 0, 20, 20);
    slide.SetShadowWidth(5);
    EXPECT_EQ(Drawn(), "\nBox 0,0 19,19 #C0C0C0\nBox 1,9 2,-27 #C0C0C0\n");
}

TEST_F(FramesTest, AnUnknownStyleDrawsNothing) {
    slide.SetBorderStyle(static_cast<DiapoBorderStyle>(17));
    slide.SetBorderStyleExt(static_cast<DiapoBorderStyle>(-1));
    slide.SetShowShadow(false);
    EXPECT_EQ(Drawn(), "\n");
}

TEST_F(FramesTest, ASystemColourFadesFromItsThemeColour) {
    slide.SetShadowColor(FromSystem(SystemColor::ButtonShadow));
    EXPECT_NE(Drawn().find("149,97 #A0A0A0\n"), std::string::npos);
}

TEST_F(FramesTest, AChangeOfStyleRedrawsAtAnUnchangedSize) {
    slide.Refresh();
    const std::string before = slide.Surface().dump();
    slide.SetBorderStyle(DiapoBorderStyle::BorderRaised);
    EXPECT_NE(slide.Surface().dump(), before);
}

}  // namespace
}  // namespace vorlane::headless
