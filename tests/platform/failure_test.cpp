#include "platform/failure.h"

#include <gtest/gtest.h>
#include <stdexcept>
#include <vector>

namespace vorlane {
namespace {

class TrapTest : public testing::Test {
protected:
    // Traps operation, and notes what is reported.
    template <class Operation, class Result>
    Result Run(Operation operation, Result otherwise) {
        return Trap(
            pending, operation, [&](const Failure& failure) { reports.push_back(failure.Number); }, otherwise);
    }

    PendingError pending;
    std::vector<int32_t> reports;
};

TEST_F(TrapTest, GivesWhatTheOperationGives) {
    EXPECT_EQ(Run([] { return 5; }, -1), 5);
    EXPECT_EQ(pending.Number, 0);
    EXPECT_TRUE(reports.empty());
}

TEST_F(TrapTest, ReportsAFailureAndGivesTheOtherResult) {
    EXPECT_EQ(Run([]() -> int { throw failures::FileExists(17); }, -1), -1);
    EXPECT_EQ(reports, std::vector<int32_t>{58});
    EXPECT_EQ(pending.Number, 58);
    EXPECT_EQ(pending.Description, "Ce fichier existe déjà");
    EXPECT_EQ(pending.Source, "Vorlane");
    EXPECT_EQ(pending.LastDllError, 17);
}

TEST_F(TrapTest, AnOperationWithoutAResultIsTrappedToo) {
    const auto report = [&](const Failure& failure) { reports.push_back(failure.Number); };
    bool done = false;
    Trap(
        pending, [&] { done = true; }, report);
    EXPECT_TRUE(done);
    Trap(
        pending, [] { throw failures::Overflow(); }, report);
    EXPECT_EQ(reports, std::vector<int32_t>{6});
}

TEST_F(TrapTest, ClearsThePendingErrorBeforeTheOperation) {
    pending.Set(failures::Overflow());
    int32_t during = -1;
    Run([&] { return during = pending.Number; }, -1);
    EXPECT_EQ(during, 0);
    EXPECT_EQ(pending.Number, 0);
    EXPECT_EQ(pending.Description, "");
}

TEST_F(TrapTest, SetsThePendingErrorBeforeTheReport) {
    int32_t during = 0;
    Trap(
        pending, [] { throw failures::Overflow(); }, [&](const Failure&) { during = pending.Number; });
    EXPECT_EQ(during, 6);
}

TEST_F(TrapTest, AThrowingReportEndsThereAndIsThePendingError) {
    const auto report = [](const Failure&) { throw failures::TypeMismatch(); };
    EXPECT_EQ(Trap(
                  pending, []() -> int { throw failures::Overflow(); }, report, -1),
              -1);
    EXPECT_EQ(pending.Number, 13);
}

TEST_F(TrapTest, ForeignExceptionsAreFailures) {
    Run([]() -> int { throw std::bad_alloc(); }, 0);
    Run([]() -> int { throw std::runtime_error("broken"); }, 0);
    EXPECT_EQ(pending.Description, "broken");
    Run([]() -> int { throw 5; }, 0);
    EXPECT_EQ(pending.Description, "Erreur inconnue");
    EXPECT_EQ(reports, (std::vector<int32_t>{7, 51, 51}));
}

TEST_F(TrapTest, AnInnerTrapHidesItsFailureFromTheOuterOne) {
    EXPECT_EQ(Run([&] { return Run([]() -> int { throw failures::Overflow(); }, 1) + 1; }, -1), 2);
    EXPECT_EQ(reports, std::vector<int32_t>{6});
}

TEST(Attempt, TellsWhetherTheStatementSucceeded) {
    bool next = false;
    EXPECT_TRUE(Attempt([] {}));
    EXPECT_FALSE(Attempt([&] {
        throw failures::Overflow();
        next = true;
    }));
    EXPECT_FALSE(Attempt([] { throw 5; }));
    EXPECT_FALSE(next);
}

TEST(Failure, IsAStandardExceptionWithItsDescription) {
    try {
        throw failures::PathNotFound(2);
    } catch (const std::exception& exception) {
        EXPECT_STREQ(exception.what(), "Chemin d'accès introuvable");
    }
}

}  // namespace
}  // namespace vorlane
