#include "platform/qt/damage.h"

#include <gtest/gtest.h>

namespace vorlane {
namespace {

TEST(DamageTest, APartIsAskedForOnce) {
    Damage damage;
    EXPECT_EQ(damage.Add({10, 10, 20, 20}), QRect(10, 10, 20, 20));
    EXPECT_EQ(damage.Add({10, 10, 20, 20}), std::nullopt);
    EXPECT_EQ(damage.Add({12, 15, 3, 3}), std::nullopt);
    EXPECT_EQ(damage.Add({12, 15, 30, 3}), QRect(12, 15, 30, 3));
}

TEST(DamageTest, ManyPartsAreAskedForTogether) {
    Damage damage;
    for (int i = 0; i < 4; ++i) EXPECT_EQ(damage.Add({10 * i, 0, 8, 5}), QRect(10 * i, 0, 8, 5));
    EXPECT_EQ(damage.Add({0, 5, 38, 5}), QRect(0, 0, 38, 10));
    EXPECT_EQ(damage.Add({20, 6, 5, 3}), std::nullopt);
    EXPECT_EQ(damage.Add({100, 50, 5, 5}), QRect(100, 50, 5, 5));
}

TEST(DamageTest, PartsThatLieFarApartStayParts) {
    Damage damage;
    for (int i = 0; i < 24; ++i) EXPECT_EQ(damage.Add({0, 10 * i, 100, 1}), QRect(0, 10 * i, 100, 1)) << i;
    EXPECT_EQ(damage.Add({0, 240, 100, 1}), QRect(0, 0, 100, 241)) << "unless they are too many";
}

TEST(DamageTest, WhatHasBeenPaintedIsAskedForAgain) {
    Damage damage;
    damage.Add({10, 10, 20, 20});
    damage.Clear();
    EXPECT_EQ(damage.Add({10, 10, 20, 20}), QRect(10, 10, 20, 20));
}

TEST(DamageTest, NothingIsNotAskedFor) {
    EXPECT_EQ(Damage().Add({10, 10, 0, 20}), std::nullopt);
}

}  // namespace
}  // namespace vorlane
