#include "sheet/log.h"

#include "sheet/random.h"

#include <gtest/gtest.h>
#include <set>

namespace vorlane {
namespace {

TEST(Log, AnOperationWithTheNumberOfSlides) {
    EXPECT_EQ(LogText("Scroll", 12), "Vorlane Scroll DpCnt=12");
}

TEST(Log, ArgumentsStandBehindDashes) {
    EXPECT_EQ(LogText("Lect", 3, int32_t{7}, int16_t{-1}, true, 2.5F, std::string("x y")),
              "Vorlane Lect DpCnt=3 - 7 - -1 - -1 - 2.5 - x y");
}

TEST(Log, ALiteralIsATextAndAFlagANumber) {
    EXPECT_EQ(LogText("Lect", 1, "x", false), "Vorlane Lect DpCnt=1 - x - 0");
}

TEST(Log, OperationsOnTheListAloneHaveNoNumberOfSlides) {
    EXPECT_EQ(ListLogText("Add", std::string("/p/a.jpg"), std::string(), int32_t{-1}, int32_t{4}),
              "Vorlane Add /p/a.jpg -  - -1 - 4");
}

TEST(RandomMarks, LieBetweenZeroAndOneAndDoNotComeBack) {
    RandomMarks marks(12345);
    std::set<float> seen;
    for (int n = 0; n < 100000; ++n) {
        const float mark = marks.Next();
        EXPECT_TRUE(mark >= 0 && mark < 1);
        EXPECT_TRUE(seen.insert(mark).second);
    }
}

TEST(RandomMarks, DifferBySeed) {
    EXPECT_NE(RandomMarks(1).Next(), RandomMarks(2).Next());
}

}  // namespace
}  // namespace vorlane
