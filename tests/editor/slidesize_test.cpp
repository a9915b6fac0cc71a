#include "editor/slidesize.h"

#include <gtest/gtest.h>

using namespace vorlane::editor;

TEST(SlideSize, StaysWithinItsBounds) {
    EXPECT_EQ(slidesize::Of(0), slidesize::Of(slidesize::kLeast));
    EXPECT_EQ(slidesize::Of(100000), slidesize::Of(slidesize::kMost));
    EXPECT_EQ(slidesize::Of(slidesize::kUsual).width(), slidesize::kUsual);
}

TEST(SlideSize, StepsUpAndDownOnTheSamePlaces) {
    EXPECT_EQ(slidesize::Larger(176), 192);
    EXPECT_EQ(slidesize::Larger(177), 192);
    EXPECT_EQ(slidesize::Smaller(176), 160);
    EXPECT_EQ(slidesize::Smaller(177), 176);
    EXPECT_EQ(slidesize::Larger(slidesize::kMost), slidesize::kMost);
    EXPECT_EQ(slidesize::Smaller(slidesize::kLeast), slidesize::kLeast);
}

TEST(SlideSize, TheUsualOneIsAHundredPercent) {
    EXPECT_EQ(slidesize::Percent(slidesize::kUsual), 100);
    EXPECT_EQ(slidesize::Percent(2 * slidesize::kUsual), 200);
}
