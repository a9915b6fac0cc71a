#include "interaction/droptext.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vorlane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(DropTextTest, PathsStandOneALine) {
    EXPECT_THAT(DroppedPaths("/p/a.jpg\r\n/p/b.jpg"), ElementsAre("/p/a.jpg", "/p/b.jpg"));
    EXPECT_THAT(DroppedPaths("/p/a.jpg\r\n"), ElementsAre("/p/a.jpg"));
    EXPECT_EQ(DroppedLines("/p/a.jpg\r\n/p/b.jpg"), 2);
    EXPECT_EQ(DroppedLines("/p/a.jpg"), 1);
}

TEST(DropTextTest, AnEmptyLineEndsTheList) {
    EXPECT_THAT(DroppedPaths("/p/a.jpg\r\n\r\n/p/b.jpg"), ElementsAre("/p/a.jpg"));
    EXPECT_THAT(DroppedPaths("\r\n/p/a.jpg"), IsEmpty());
    EXPECT_THAT(DroppedPaths(""), IsEmpty());
    EXPECT_EQ(DroppedLines("\r\n/p/a.jpg"), 2);
    EXPECT_EQ(DroppedLines(""), 1);
}

TEST(DropTextTest, ALoneLineFeedOrCarriageReturnEndsNoLine) {
    EXPECT_THAT(DroppedPaths("/p/a\n.jpg\r\n/p/b\r.jpg"), ElementsAre("/p/a\n.jpg", "/p/b\r.jpg"));
}

TEST(DropTextTest, ALongListIsReadInOneGo) {
    std::string text;
    for (int n = 0; n < 100'000; ++n) text += "/p/" + std::to_string(n) + ".jpg\r\n";
    EXPECT_EQ(DroppedPaths(text).size(), 100'000U);
    EXPECT_EQ(DroppedLines(text), 100'001);
}

}  // namespace
}  // namespace vorlane
