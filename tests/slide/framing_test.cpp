#include "slide/framing.h"

#include "platform/failure.h"

#include <gtest/gtest.h>

namespace vorlane {
namespace {

using enum DiapoBorderStyle;

TEST(FrameThickness, EachStyleHasItsLines) {
    EXPECT_EQ(FrameThickness(BorderNone), 0);
    EXPECT_EQ(FrameThickness(BorderSunken), 1);
    EXPECT_EQ(FrameThickness(BorderRaised), 1);
    EXPECT_EQ(FrameThickness(BorderSunkenDouble), 2);
    EXPECT_EQ(FrameThickness(BorderRaisedDouble), 2);
    EXPECT_EQ(FrameThickness(FlatBackColor), 1);
    EXPECT_EQ(FrameThickness(static_cast<DiapoBorderStyle>(6)), 0);
}

TEST(InvertedStyle, SunkenAndRaisedChangePlacesAndOthersStay) {
    EXPECT_EQ(InvertedStyle(BorderSunken), BorderRaised);
    EXPECT_EQ(InvertedStyle(BorderRaised), BorderSunken);
    EXPECT_EQ(InvertedStyle(BorderSunkenDouble), BorderRaisedDouble);
    EXPECT_EQ(InvertedStyle(BorderRaisedDouble), BorderSunkenDouble);
    EXPECT_EQ(InvertedStyle(BorderNone), BorderNone);
    EXPECT_EQ(InvertedStyle(FlatBackColor), FlatBackColor);
}

TEST(ShadowLines, AreATenthOfTheShorterSideAtMostTheWidthAndAtLeastOne) {
    EXPECT_EQ(ShadowLines({0, 0, 100, 80}, 5), 5);
    EXPECT_EQ(ShadowLines({0, 0, 100, 30}, 5), 3);
    EXPECT_EQ(ShadowLines({0, 0, 100, 25}, 5), 2);  // 2.5
    EXPECT_EQ(ShadowLines({0, 0, 100, 4}, 5), 1);
    EXPECT_EQ(ShadowLines({0, 0, 100, 80}, 0), 1);
    EXPECT_EQ(ShadowLines({0, 0, 100, -4}, 5), 1);
}

TEST(ShadowLines, OverflowBeyondAByte) {
    EXPECT_THROW(ShadowLines({0, 0, 100, -6}, 5), Failure);
    EXPECT_EQ(ShadowLines({0, 0, 2554, 3000}, 255), 255);
    EXPECT_THROW(ShadowLines({0, 0, 2555, 3000}, 5), Failure);
    EXPECT_THROW(ShadowLines({0, 0, 3000, 2555}, 5), Failure);
}

TEST(ShadowFade, RunsFromTheShadowTowardsTheBackgroundInRoundedSteps) {
    ShadowFade fade({180, 180, 180}, {255, 100, 180}, 10);  // 7.5, -8, 0
    EXPECT_EQ(fade.Color(), RGB(180, 180, 180));
    fade.Advance();
    EXPECT_EQ(fade.Color(), RGB(188, 172, 180));
    fade.Advance();
    EXPECT_EQ(fade.Color(), RGB(196, 164, 180));
}

TEST(ShadowFade, AStepOfLessThanHalfStandsStill) {
    ShadowFade fade({180, 180, 180}, {255, 255, 255}, 200);  // 0.375
    fade.Advance();
    EXPECT_EQ(fade.Color(), RGB(180, 180, 180));
}

TEST(ShadowFade, AboveWhiteStaysWhiteAndBelowBlackFails) {
    ShadowFade light({255, 255, 250}, {255, 255, 255}, 9);  // 0.56 to 1
    for (int i = 0; i < 8; ++i) light.Advance();
    EXPECT_EQ(light.Color(), RGB(255, 255, 255));
    ShadowFade dark({5, 5, 5}, {0, 0, 0}, 9);
    for (int i = 0; i < 6; ++i) dark.Advance();
    EXPECT_THROW(dark.Color(), Failure);
}

}  // namespace
}  // namespace vorlane
