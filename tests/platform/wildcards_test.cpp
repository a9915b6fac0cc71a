#include "platform/wildcards.h"

#include <gtest/gtest.h>

namespace vorlane {
namespace {

struct Row {
    const char* Pattern;
    std::vector<const char*> Matches;
    std::vector<const char*> Misses;
};

void PrintTo(const Row& row, std::ostream* out) {
    *out << '"' << row.Pattern << '"';
}

class WildcardTable : public testing::TestWithParam<Row> {};

TEST_P(WildcardTable, MatchesTheseNamesAndNoOthers) {
    const Wildcards wildcards(GetParam().Pattern);
    for (const char* name : GetParam().Matches) EXPECT_TRUE(wildcards.Match(name)) << name;
    for (const char* name : GetParam().Misses) EXPECT_FALSE(wildcards.Match(name)) << name;
}

const Row kRows[] = {
    {"", {}, {"", "a", "a.jpg"}},
    {" ; ;", {}, {"", "a", " "}},
    {"*", {"a", "a.jpg", "a.b.c"}, {}},
    {"*.*", {"a", "a.jpg", "a.b.c", "a."}, {}},
    {"*.jpg", {"a.jpg", "A.JPG", "a.b.jpg", ".jpg"}, {"jpg", "a.jpeg", "a.jpg ", "ajpg", "a.jpg.png"}},
    {"*.", {"a", "abc", "a."}, {"a.jpg", "a.b"}},
    {"a*.*", {"a", "abc", "a.jpg", "ab.jpg"}, {"b", "b.a"}},
    {"img.*", {"img", "img.jpg", "IMG.png"}, {"imgs", "imgs.jpg"}},
    {"img.", {"img", "img."}, {"img.jpg", "imgs"}},
    {"*.jpg;*.png", {"a.jpg", "a.png"}, {"a.gif", "a.jpg;*.gif"}},
    {" *.jpg ; *.png ", {"a.jpg", "a.png"}, {"a.gif"}},
    {"*.jp?g", {"a.jpeg", "a.jpèg"}, {"a.jpg", "a.jpeeg"}},
    {"?", {"a", "é", "漢", "😀", "\xFF", "*", "?"}, {"", "ab", "éa", "\xC3\xFF", "\xE6\xBC"}},
    {"*??", {"ab", "éa", "xyz"}, {"a", "é", "漢"}},
    {"É*.JPG", {"été.jpg", "É.jpg"}, {"ete.jpg"}},
    {"а*", {"АБВ"}, {"a"}},
    {"*a*b*c*", {"abc", "xaxbxcx", "aabbcc", "abcabc"}, {"acb", "ab", "cba"}},
    {"*ab*ab", {"abab", "xabxab", "ababab"}, {"ab", "aba", "abba"}},
    {"a**b", {"ab", "axb"}, {"a", "ba"}},
    {"[a]+(b).x", {"[a]+(b).x"}, {"a", "ab.x"}},
};

INSTANTIATE_TEST_SUITE_P(Rows, WildcardTable, testing::ValuesIn(kRows));

TEST(Wildcards, AnswerAHostilePatternSoon) {
    std::string pattern;
    for (int i = 0; i < 500; ++i) pattern += "*a";
    EXPECT_FALSE(Wildcards(pattern + "b").Match(std::string(2000, 'a')));
    EXPECT_TRUE(Wildcards(pattern).Match(std::string(2000, 'a')));
}

}  // namespace
}  // namespace vorlane
