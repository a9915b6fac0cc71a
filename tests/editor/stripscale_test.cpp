#include "editor/stripscale.h"

#include <gtest/gtest.h>

using namespace vorlane::editor;

namespace {

constexpr SheetSight kRow{.sideways = true, .first = 7, .left = 12, .pitch = 188, .cells = 5, .width = 1000};
constexpr SheetSight kRows{.sideways = false, .first = 12, .left = 20, .pitch = 188, .cells = 24, .width = 1000};

}  // namespace

TEST(StripScale, ASecondStandsUnderItsSlideWhereThereIsOneRow) {
    EXPECT_EQ(ScaleOf(kRow), (StripScale{7, 12, 188, true}));
}

TEST(StripScale, AllSlidesInSightFitWhereThereAreSeveralRows) {
    EXPECT_EQ(ScaleOf(kRows), (StripScale{12, 20, 40, false}));
}

TEST(StripScale, ASlideIsNeverWithoutWidth) {
    SheetSight narrow = kRows;
    narrow.width = 30;
    EXPECT_EQ(ScaleOf(narrow).slideWidth, 1);
    narrow = kRow;
    narrow.pitch = 0;
    EXPECT_EQ(ScaleOf(narrow).slideWidth, 1);
    narrow = kRows;
    narrow.cells = 0;
    EXPECT_EQ(ScaleOf(narrow).slideWidth, 960);
}

TEST(StripScale, EachPlaceBelongsToTheSlideAboveIt) {
    const StripScale scale = ScaleOf(kRow);
    EXPECT_EQ(ItemAt(12, scale, 100), 7);
    EXPECT_EQ(ItemAt(199.5, scale, 100), 7);
    EXPECT_EQ(ItemAt(200, scale, 100), 8);
    EXPECT_EQ(ItemAt(0, scale, 100), 6) << "the one before";
}

TEST(StripScale, PlacesOutsideTheShowBelongToItsEnds) {
    EXPECT_EQ(ItemAt(5000, ScaleOf(kRow), 9), 8);
    EXPECT_EQ(ItemAt(-5000, ScaleOf(kRow), 9), 0);
    EXPECT_EQ(ItemAt(50, ScaleOf(kRow), 0), -1);
}

TEST(StripScale, ASoundGoesOnForAtLeastASlide) {
    EXPECT_EQ(SlidesOf(0, 5), 1);
    EXPECT_EQ(SlidesOf(5, 5), 1);
    EXPECT_EQ(SlidesOf(6, 5), 2);
    EXPECT_EQ(SlidesOf(60, 5), 12);
    EXPECT_EQ(SlidesOf(3, 0), 3);
}
