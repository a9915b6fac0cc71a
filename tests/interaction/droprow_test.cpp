#include "interaction/droprow.h"

#include <gtest/gtest.h>
#include <string>

namespace vorlane::droprow {
namespace {

using Row = std::vector<Standing>;

// Slides of 100 pixels at home.
Row Home(std::initializer_list<float> places) {
    Row row;
    for (const float place : places) row.push_back({place, 100, place});
    return row;
}

std::string Lefts(const Row& row) {
    std::string text;
    for (const Standing& slide : row) {
        text += (text.empty() ? "" : " ") + std::to_string(static_cast<int>(slide.Left));
    }
    return text;
}

TEST(DropRowTest, RowsCountFromOne) {
    EXPECT_EQ(RowOf(0, 3), 1);
    EXPECT_EQ(RowOf(2, 3), 1);
    EXPECT_EQ(RowOf(3, 3), 2);
    EXPECT_EQ(RowOf(5, 1), 6);
}

TEST(DropRowTest, TheLastRowEndsWithTheSlides) {
    EXPECT_EQ(SlidesOf(1, 3, 8), (Range{0, 2}));
    EXPECT_EQ(SlidesOf(3, 3, 8), (Range{6, 7}));
    EXPECT_EQ(SlidesOf(4, 3, 8), (Range{9, 7}));
}

TEST(DropRowTest, TheGapIsTheFreeRoomOfARowButAtMost35) {
    EXPECT_EQ(Gap(330, 100, 3), 30);
    EXPECT_EQ(Gap(400, 100, 3), 35);
    EXPECT_EQ(Gap(90, 100, 1), -10);
    EXPECT_EQ(Gap(330.5F, 100, 3), 30);
}

TEST(DropRowTest, TheMiddleOfASlideIsInItsLeftHalf) {
    EXPECT_FALSE(InRightHalf(50, 100));
    EXPECT_TRUE(InRightHalf(50.5F, 100));
}

TEST(DropRowTest, ARowOpensByTwoPixelsAStepOnBothSides) {
    Row row = Home({10, 120, 230});
    StepApart(row, 1, 345);
    EXPECT_EQ(Lefts(row), "8 122 232");
}

TEST(DropRowTest, SlidesStopAtTheEndsOfTheRowAndAtTheirNeighbours) {
    Row row = Home({3, 110, 230});
    for (int step = 0; step < 20; ++step) StepApart(row, 2, 335);
    EXPECT_EQ(Lefts(row), "0 100 235");
    row = Home({3, 110, 230});
    for (int step = 0; step < 20; ++step) StepApart(row, 0, 335);
    EXPECT_EQ(Lefts(row), "35 135 235");
}

TEST(DropRowTest, ARowClosesByTwoPixelsAStepAndNoFurther) {
    Row row = Home({10, 120, 230});
    row[0].Left = 7;
    row[2].Left = 233;
    StepHome(row);
    EXPECT_EQ(Lefts(row), "9 120 231");
    StepHome(row);
    StepHome(row);
    EXPECT_EQ(Lefts(row), "10 120 230");
}

TEST(DropRowTest, ARowIsOpenElsewhereWhereASlideHasGoneTheWrongWay) {
    Row row = Home({10, 120, 230});
    EXPECT_FALSE(OpenElsewhere(row, 1));
    row[0].Left = 0;
    row[2].Left = 240;
    EXPECT_FALSE(OpenElsewhere(row, 1));
    EXPECT_TRUE(OpenElsewhere({row[2], row[1]}, 1));
    EXPECT_TRUE(OpenElsewhere({row[1], row[0]}, 0));
}

TEST(DropRowTest, ASlideGivesWayInStepsOfFour) {
    const Standing home{50, 100, 50};
    const auto right = GiveWayRight(home, 30);
    EXPECT_EQ(right.front(), 50);
    EXPECT_EQ(right.size(), 8U);
    EXPECT_EQ(right.back(), 78);
    const auto left = GiveWayLeft(home, 30, 30);
    EXPECT_EQ(left.back(), 22);
}

TEST(DropRowTest, ASlideThatWentTheOtherWayGoesTwiceAsFar) {
    EXPECT_EQ(GiveWayRight({20, 100, 50}, 30).back(), 80);
    EXPECT_EQ(GiveWayLeft({80, 100, 50}, 30, 30).back(), 20);
}

TEST(DropRowTest, ASlideThatHasGivenWayStays) {
    EXPECT_TRUE(GiveWayRight({80, 100, 50}, 30).empty());
    EXPECT_TRUE(GiveWayLeft({20, 100, 50}, 30, 30).empty());
}

TEST(DropRowTest, ASlideThatGivesWayToTheLeftStopsAtTheEdge) {
    EXPECT_EQ(GiveWayLeft({10, 100, 10}, 30, 30).back(), -2);
    EXPECT_EQ(GiveWayLeft({0, 100, 0}, 30, 30).size(), 1U);
}

TEST(DropRowTest, TheMarkStandsInTheMiddleOfTheFreeRoom) {
    const Standing a{10, 100, 10};
    const Standing b{150, 100, 150};
    EXPECT_EQ(MarkLeft(a, b, 30, 345), 115);
    EXPECT_EQ(MarkLeft(std::nullopt, b, 30, 345), 60);
    EXPECT_EQ(MarkLeft(b, std::nullopt, 30, 345), 282.5F);
}

TEST(DropRowTest, TheMarkNeverStandsBeforeItsRoomNorBeyondTheArea) {
    const Standing a{10, 100, 10};
    const Standing close{120, 100, 120};
    EXPECT_EQ(MarkLeft(a, close, 30, 345), 110);
    EXPECT_EQ(MarkLeft(std::nullopt, a, 30, 345), 0);
    EXPECT_EQ(MarkLeft(Standing{230, 100, 230}, std::nullopt, 30, 345), 315);
    EXPECT_EQ(MarkLeft(std::nullopt, std::nullopt, 30, 345), 0);
}

// --- Scrolling at the edges ---

constexpr WinRect kSheet{100, 200, 500, 600};

int Vertical(int32_t x, int32_t y) {
    return EdgeScroll(kSheet, {x, y}, 5, 100, 76, ScrollDirectionType::sdVertical);
}
int Horizontal(int32_t x, int32_t y) {
    return EdgeScroll(kSheet, {x, y}, 5, 100, 76, ScrollDirectionType::sdHorizontal);
}

TEST(DropRowTest, TheSheetScrollsBeyondItsMarginAlongItsDirectionOnly) {
    EXPECT_EQ(Vertical(300, 205), 0);
    EXPECT_EQ(Vertical(300, 204), -1);
    EXPECT_EQ(Vertical(300, 595), 0);
    EXPECT_EQ(Vertical(300, 596), 1);
    EXPECT_EQ(Vertical(104, 400), 0);
    EXPECT_EQ(Horizontal(104, 400), -1);
    EXPECT_EQ(Horizontal(496, 400), 1);
    EXPECT_EQ(Horizontal(300, 204), 0);
}

TEST(DropRowTest, ItStopsScrollingHalfASlideOutAtTheTopLeftAndAWholeSlideAtTheBottomRight) {
    EXPECT_EQ(Vertical(300, 205 - 38), -1);
    EXPECT_EQ(Vertical(300, 205 - 39), 0);
    EXPECT_EQ(Vertical(300, 595 + 76), 1);
    EXPECT_EQ(Vertical(300, 595 + 77), 0);
    EXPECT_EQ(Horizontal(105 - 50, 400), -1);
    EXPECT_EQ(Horizontal(105 - 51, 400), 0);
    EXPECT_EQ(Horizontal(495 + 100, 400), 1);
    EXPECT_EQ(Horizontal(495 + 101, 400), 0);
}

}  // namespace
}  // namespace vorlane::droprow
