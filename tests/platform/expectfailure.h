// Expects that a statement fails with the failure of that kind, told by its number.
#pragma once

#include "platform/failure.h"

#include <gtest/gtest.h>

#define EXPECT_FAILURE(statement, expected)                                      \
    do {                                                                         \
        int32_t number = 0;                                                      \
        try {                                                                    \
            statement;                                                           \
        } catch (const ::vorlane::Failure& failure) {                            \
            number = failure.Number;                                             \
        }                                                                        \
        EXPECT_EQ(number, (::vorlane::failures::expected).Number) << #statement; \
    } while (false)
