// A test's user for whom files can be closed.
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

namespace vorlane {

// Nobody in particular for a while, since the superuser may read everything.
class PlainUser {
public:
    PlainUser() { EXPECT_EQ(super_ ? seteuid(65534) : 0, 0); }
    ~PlainUser() { EXPECT_EQ(super_ ? seteuid(0) : 0, 0); }
    PlainUser(const PlainUser&) = delete;
    PlainUser& operator=(const PlainUser&) = delete;

private:
    const bool super_ = geteuid() == 0;
};

}  // namespace vorlane
