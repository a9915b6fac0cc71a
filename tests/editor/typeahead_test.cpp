#include "editor/typeahead.h"

#include <gtest/gtest.h>

#include <QStringList>
#include <QTest>

using namespace vorlane::editor;

namespace {

const QStringList kNames{"Abeille", "\u00C9t\u00E9", "etang", "Foin", "foule", "mer"};

int Find(const QString& typed, int current) {
    return FindName(typed, current, static_cast<int>(kNames.size()), [](int i) { return kNames.at(i); });
}

}  // namespace

TEST(FindName, MakesNoDifferenceBetweenCasesOrAccents) {
    EXPECT_EQ(Find("ete", -1), 1);
    EXPECT_EQ(Find("\u00C9TA", -1), 2);
    EXPECT_EQ(Find("fou", -1), 4);
}

TEST(FindName, StaysOnAnItemThatStillFits) {
    EXPECT_EQ(Find("fo", 3), 3);
    EXPECT_EQ(Find("fo", 4), 4);
}

TEST(FindName, TheSameLetterAgainLeadsOn) {
    EXPECT_EQ(Find("f", -1), 3);
    EXPECT_EQ(Find("f", 3), 4);
    EXPECT_EQ(Find("ff", 4), 3);
    EXPECT_EQ(Find("e", 2), 1);
}

TEST(FindName, GoesRoundTheEndOfTheList) {
    EXPECT_EQ(Find("ab", 4), 0);
    EXPECT_EQ(Find("m", 5), 5);
}

TEST(FindName, TellsWhenThereIsNone) {
    EXPECT_EQ(Find("x", 2), -1);
    EXPECT_EQ(Find("", 2), -1);
    EXPECT_EQ(FindName("a", -1, 0, [](int) { return QString(); }), -1);
}

TEST(TypeAhead, WhatIsTypedWithinAMomentBelongsTogether) {
    TypeAhead typing(10000);
    EXPECT_FALSE(typing.isTyping());
    EXPECT_EQ(typing.type("a"), "a");
    EXPECT_TRUE(typing.isTyping());
    EXPECT_EQ(typing.type(" "), "a ");
}

TEST(TypeAhead, BeginsAnewAfterAPause) {
    TypeAhead typing(0);
    typing.type("a");
    QTest::qWait(2);
    EXPECT_FALSE(typing.isTyping());
    EXPECT_EQ(typing.type("b"), "b");
}
