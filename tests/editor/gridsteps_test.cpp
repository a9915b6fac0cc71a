#include "editor/gridsteps.h"

#include <gtest/gtest.h>

using namespace vorlane::editor;

namespace {

// Twenty-two items in lines of five, three of which are in sight.
GridView View(int top = 0) {
    return {22, top, 5, 3};
}

}  // namespace

TEST(Stepped, WalksByItemsLinesAndPages) {
    EXPECT_EQ(Stepped(Step::Back, 7, View()), 6);
    EXPECT_EQ(Stepped(Step::On, 7, View()), 8);
    EXPECT_EQ(Stepped(Step::LineBack, 7, View()), 2);
    EXPECT_EQ(Stepped(Step::LineOn, 7, View()), 12);
    EXPECT_EQ(Stepped(Step::PageBack, 20, View()), 5);
    EXPECT_EQ(Stepped(Step::PageOn, 3, View()), 18);
    EXPECT_EQ(Stepped(Step::First, 7, View()), 0);
    EXPECT_EQ(Stepped(Step::Last, 7, View()), 21);
}

TEST(Stepped, StaysWhereThereIsNoWayOn) {
    EXPECT_EQ(Stepped(Step::Back, 0, View()), 0);
    EXPECT_EQ(Stepped(Step::On, 21, View()), 21);
    EXPECT_EQ(Stepped(Step::LineBack, 3, View()), 3);
    EXPECT_EQ(Stepped(Step::LineOn, 20, View()), 20);
}

TEST(Stepped, AboveTheEndOfAShorterLastLineStepsDownToItsLastItem) {
    EXPECT_EQ(Stepped(Step::LineOn, 18, View()), 21);
    EXPECT_EQ(Stepped(Step::LineOn, 16, View()), 21);
    EXPECT_EQ(Stepped(Step::LineOn, 15, View()), 20);
}

TEST(Stepped, PagesEndAtTheEndsOfTheList) {
    EXPECT_EQ(Stepped(Step::PageBack, 4, View()), 0);
    EXPECT_EQ(Stepped(Step::PageOn, 12, View()), 21);
}

TEST(Stepped, BeginsWithTheFirstItemInSight) {
    EXPECT_EQ(Stepped(Step::On, -1, View(10)), 10);
    EXPECT_EQ(Stepped(Step::PageBack, -1, View(10)), 10);
    EXPECT_EQ(Stepped(Step::On, -1, {0, 0, 5, 3}), -1);
    EXPECT_EQ(Stepped(Step::Last, -1, {0, 0, 5, 3}), -1);
}

TEST(TopShowing, StaysWhereTheItemIsInSight) {
    for (const int item : {5, 12, 19}) EXPECT_EQ(TopShowing(item, View(5)), 5);
}

TEST(TopShowing, MovesByWholeLinesAndNoMoreThanItTakes) {
    EXPECT_EQ(TopShowing(20, View(5)), 10);
    EXPECT_EQ(TopShowing(4, View(5)), 0);
    EXPECT_EQ(TopShowing(0, View(17)), 0);
    EXPECT_EQ(TopShowing(3, View(7)), 2);
    EXPECT_EQ(TopShowing(1, View(3)), 0);
}
