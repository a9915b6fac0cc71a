#include "interaction/filename.h"

#include <gtest/gtest.h>

namespace vorlane {
namespace {

TEST(FileNameTest, UsualNamesAreTaken) {
    for (const char* name : {"a", "Été à Nîmes", "a..b", ".profile", "a-b_c (2)", "console", "com10", "nulle"}) {
        EXPECT_TRUE(IsNameForFile(name)) << name;
    }
}

TEST(FileNameTest, ANameNeverLeavesItsFolder) {
    for (const char* name : {"", ".", "..", "../a", "a/b", "/a", "a\\b", "..\\a"}) {
        EXPECT_FALSE(IsNameForFile(name)) << name;
    }
}

TEST(FileNameTest, ANameThatEndsInABlankOrAPointIsRefused) {
    for (const char* name : {"a ", "a.", " ", "a. "}) EXPECT_FALSE(IsNameForFile(name)) << name;
}

TEST(FileNameTest, CharactersThatTheBoxRefusesAreRefusedInPastedTextToo) {
    for (const char* name : {"a:b", "a*", "a?", "a\"b", "<a>", "a|b", "a\tb", "a\nb",
                             "a\x0b"
                             "b",
                             "a\x7f"}) {
        EXPECT_FALSE(IsNameForFile(name)) << name;
    }
}

TEST(FileNameTest, NamesOfDevicesAreReserved) {
    for (const char* name :
         {"con", "NUL", "Com1", "lpt9", "aux.old", "aux .old", "PRN.a.b", "conin$", "CONOUT$.txt", "COM¹", "lpt³.x"}) {
        EXPECT_FALSE(IsNameForFile(name)) << name;
    }
}

TEST(FileNameTest, ANameHasAtMost255Bytes) {
    EXPECT_TRUE(IsShortEnough(std::string(255, 'a')));
    EXPECT_FALSE(IsShortEnough(std::string(256, 'a')));
}

TEST(FileNameTest, AFolderEndsInItsSeparator) {
    EXPECT_EQ(FolderOf("/p/q/a.jpg"), "/p/q/");
    EXPECT_EQ(FolderOf("a.jpg"), "");
    EXPECT_EQ(FolderOf("c:\\a.jpg"), "c:\\");
}

TEST(FileNameTest, EveryOccurrenceIsReplacedInTheRightCase) {
    EXPECT_EQ(ReplacedAll("/ab/ab Ab.jpg", "ab", "x"), "/x/x Ab.jpg");
    EXPECT_EQ(ReplacedAll("aaa", "a", "aa"), "aaaaaa");
    EXPECT_EQ(ReplacedAll("abc", "", "x"), "abc");
    EXPECT_EQ(ReplacedAll("abc", "d", "x"), "abc");
}

}  // namespace
}  // namespace vorlane
