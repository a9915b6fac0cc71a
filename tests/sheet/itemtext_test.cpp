#include "sheet/itemtext.h"

#include <gtest/gtest.h>

namespace vorlane {
namespace {

TEST(ItemText, IsSortDataSeparatorAndName) {
    EXPECT_EQ(ItemText("a\x0B"
                       "b",
                       "/p/x.jpg"),
              "a\x0B"
              "b\t/p/x.jpg");
    EXPECT_EQ(ItemText("", "/p/x.jpg"), "\t/p/x.jpg");
}

TEST(ItemText, NameStandsBehindTheFirstSeparator) {
    EXPECT_EQ(ItemFileName("key\t/p/x.jpg"), "/p/x.jpg");
    EXPECT_EQ(ItemFileName("\t/p/x.jpg"), "/p/x.jpg");
    EXPECT_EQ(ItemFileName("key\t"), "");
}

TEST(ItemText, WithoutASeparatorAllOfItIsTheName) {
    EXPECT_EQ(ItemFileName("/p/x.jpg"), "/p/x.jpg");
    EXPECT_EQ(ItemFileName(""), "");
}

TEST(ItemText, ASecondSeparatorStaysInTheName) {
    EXPECT_EQ(ItemFileName("key\t/p/a\tb.jpg"), "/p/a\tb.jpg");
}

TEST(MatchesPattern, StarPointStarTakesEveryExtensionButNone) {
    EXPECT_TRUE(MatchesPattern("a.jpg", "*.*"));
    EXPECT_TRUE(MatchesPattern("a.JPG", "x;*.*"));
    EXPECT_FALSE(MatchesPattern("a", "*.*"));
    EXPECT_FALSE(MatchesPattern("a.", "*.*"));
}

TEST(MatchesPattern, ExtensionMayStandAnywhereInThePattern) {
    EXPECT_TRUE(MatchesPattern("a.JPG", "*.png;*.jpg"));
    EXPECT_TRUE(MatchesPattern("a.p", "*.jpg")) << "a piece of another extension";
    EXPECT_FALSE(MatchesPattern("a.gif", "*.png;*.jpg"));
    EXPECT_FALSE(MatchesPattern("a.jpg", "*.JPG")) << "only the name's extension is made small";
}

}  // namespace
}  // namespace vorlane
