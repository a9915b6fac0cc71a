#include "slide/fit.h"

#include "platform/failure.h"

#include <gtest/gtest.h>

namespace vorlane {
namespace {

PictureSize Fitted(PictureSize picture, AreaSize area, FitRules rules = {}) {
    PictureSize fit;
    FitPicture(fit, picture, area, rules);
    return fit;
}

TEST(FitPicture, ALargePictureIsReducedToTheNarrowerSide) {
    EXPECT_EQ(Fitted({300, 150}, {146, 86}), (PictureSize{146, 73}));
    EXPECT_EQ(Fitted({150, 300}, {146, 86}), (PictureSize{43, 86}));
}

TEST(FitPicture, ASmallPictureKeepsItsSize) {
    EXPECT_EQ(Fitted({40, 30}, {146, 86}), (PictureSize{40, 30}));
}

TEST(FitPicture, ASmallPictureFillsTheAreaWhenAsked) {
    EXPECT_EQ(Fitted({40, 30}, {146, 86}, {true, false}), (PictureSize{115, 86}));
    EXPECT_EQ(Fitted({40, 10}, {146, 86}, {true, false}), (PictureSize{146, 36}));
}

TEST(FitPicture, HalvesRoundToTheEvenNeighbour) {
    EXPECT_EQ(Fitted({40, 10}, {146, 86}, {true, false}).Height, 36);  // 36.5
    EXPECT_EQ(Fitted({40, 10}, {150, 86}, {true, false}).Height, 38);  // 37.5
}

TEST(FitPicture, ASubstituteSmallerThanItsAreaKeepsItsNativeSize) {
    EXPECT_EQ(Fitted({32, 32}, {146, 86}, {true, true}), (PictureSize{32, 32}));
}

TEST(FitPicture, ASubstituteLargerThanItsAreaIsFittedLikeAPicture) {
    EXPECT_EQ(Fitted({320, 320}, {146, 86}, {true, true}), (PictureSize{86, 86}));
}

TEST(FitPicture, ASubstituteLargerThanItsAreaOnOneSideIsFittedLikeAPicture) {
    EXPECT_EQ(Fitted({200, 50}, {146, 86}, {true, true}), (PictureSize{146, 36}));  // 36.5
    EXPECT_EQ(Fitted({50, 200}, {146, 86}, {true, true}), (PictureSize{22, 86}));   // 21.5
    EXPECT_EQ(Fitted({50, 200}, {146, 86}, {false, true}), (PictureSize{22, 86}));
}

TEST(FitPicture, AnAreaTurnedInsideOutGivesANegativeSize) {
    EXPECT_EQ(Fitted({40, 30}, {-8, 86}), (PictureSize{-8, -6}));
}

TEST(FitPicture, APictureWithoutWidthFailsAndLeavesWhatIsComputed) {
    PictureSize fit{7, 9};
    EXPECT_THROW(FitPicture(fit, {0, 30}, {146, 86}, {true, false}), Failure);
    EXPECT_EQ(fit, (PictureSize{146, 9}));
}

TEST(FitPicture, APictureWithoutHeightFitsAsALine) {
    EXPECT_EQ(Fitted({40, 0}, {146, 86}), (PictureSize{40, 0}));
    EXPECT_EQ(Fitted({40, 0}, {146, 86}, {true, false}), (PictureSize{146, 0}));
}

TEST(FitPicture, APictureWithoutHeightFailsInAnAreaOfNegativeHeight) {
    PictureSize fit{7, 9};
    EXPECT_THROW(FitPicture(fit, {40, 0}, {146, -5}, {}), Failure);
    EXPECT_EQ(fit, (PictureSize{40, -5}));
}

TEST(FitThumbnail, TheLongestSideIsTheSize) {
    EXPECT_EQ(FitThumbnail({300, 150}, 100), (PictureSize{100, 50}));
    EXPECT_EQ(FitThumbnail({150, 300}, 100), (PictureSize{50, 100}));
}

TEST(FitThumbnail, APictureSmallerThanTheSizeIsEnlarged) {
    EXPECT_EQ(FitThumbnail({30, 15}, 100), (PictureSize{100, 50}));
}

TEST(FitThumbnail, APositiveSideIsAtLeastOnePixel) {
    EXPECT_EQ(FitThumbnail({5000, 2}, 100), (PictureSize{100, 1}));
    EXPECT_EQ(FitThumbnail({2, 5000}, 100), (PictureSize{1, 100}));
    EXPECT_EQ(FitThumbnail({300, 150}, 0), (PictureSize{0, 0}));
}

TEST(FitThumbnail, ANegativeSizeGivesNegativeSides) {
    EXPECT_EQ(FitThumbnail({300, 150}, -5), (PictureSize{-10, -5}));
}

TEST(FitThumbnail, APictureWithoutWidthFails) {
    EXPECT_THROW(FitThumbnail({0, 30}, 100), Failure);
}

}  // namespace
}  // namespace vorlane
