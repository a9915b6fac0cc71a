#include "editor/notices.h"

#include <gtest/gtest.h>

using vorlane::editor::Joined;

TEST(Notices, AreJoinedToOneSentenceAsTheyStand) {
    EXPECT_EQ(Joined({}), "");
    EXPECT_EQ(Joined({"", "a", ""}), "a");
    EXPECT_EQ(Joined({"a%2", "", "b", "c"}), QStringLiteral("a%2\u00A0; b\u00A0; c"));
}
