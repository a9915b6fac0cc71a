#include "platform/sharedobjects.h"

#include <gtest/gtest.h>
#include <string>

namespace vorlane {
namespace {

struct First {
    First(std::string& written, int number) : log(written), value(number) {}
    ~First() { log += "first "; }
    std::string& log;
    int value;
};

struct Second {
    explicit Second(std::string& written) : log(written) {}
    ~Second() { log += "second "; }
    std::string& log;
};

TEST(SharedObjects, AreMadeOnceAKind) {
    std::string log;
    SharedObjects shared;
    First& first = shared.Get<First>(log, 1);
    Second& second = shared.Get<Second>(log);
    EXPECT_EQ(&shared.Get<First>(log, 2), &first);
    EXPECT_EQ(first.value, 1);
    EXPECT_EQ(&shared.Get<Second>(log), &second);
}

TEST(SharedObjects, EndWithTheirOwnerTheYoungestFirst) {
    std::string log;
    {
        SharedObjects shared;
        shared.Get<First>(log, 1);
        shared.Get<Second>(log);
    }
    EXPECT_EQ(log, "second first ");
}

struct Asking {
    Asking(SharedObjects& of, std::string& written) : shared(of), log(written) {}
    ~Asking() {
        log += "asking ";
        shared.Get<First>(log, 1);
    }
    SharedObjects& shared;
    std::string& log;
};

TEST(SharedObjects, MayAskForOthersAsTheyEnd) {
    std::string log;
    SharedObjects shared;
    shared.Get<Second>(log);
    shared.Get<Asking>(shared, log);
    shared.Clear();
    EXPECT_EQ(log, "asking first second ");
}

TEST(SharedObjects, AreMadeAnewBehindClear) {
    std::string log;
    SharedObjects shared;
    shared.Get<First>(log, 1);
    shared.Clear();
    EXPECT_EQ(log, "first ");
    EXPECT_EQ(shared.Get<First>(log, 2).value, 2);
}

}  // namespace
}  // namespace vorlane
