#include "platform/numbers.h"

#include "expectfailure.h"

#include <cmath>
#include <limits>

namespace vorlane {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

TEST(Round, GoesToTheNearestWholeNumber) {
    EXPECT_EQ(Round(2.4), 2);
    EXPECT_EQ(Round(2.6), 3);
    EXPECT_EQ(Round(-2.4), -2);
    EXPECT_EQ(Round(-2.6), -3);
    EXPECT_EQ(Round(-1e-17), 0);
}

TEST(Round, TiesGoToTheEvenNeighbour) {
    EXPECT_EQ(Round(0.5), 0);
    EXPECT_EQ(Round(1.5), 2);
    EXPECT_EQ(Round(2.5), 2);
    EXPECT_EQ(Round(-0.5), 0);
    EXPECT_EQ(Round(-1.5), -2);
    EXPECT_EQ(Round(-2.5), -2);
}

TEST(Round, NeighboursOfATieAreNoTie) {
    EXPECT_EQ(Round(std::nextafter(0.5, 0)), 0);
    EXPECT_EQ(Round(std::nextafter(0.5, 1)), 1);
    EXPECT_EQ(Round(std::nextafter(2.5, 3)), 3);
    EXPECT_EQ(Round(std::nextafter(-0.5, 0)), 0);
    EXPECT_EQ(Round(std::nextafter(-1.5, 0)), -1);
}

TEST(Round, KeepsLargeAndInfiniteNumbers) {
    EXPECT_EQ(Round(1e300), 1e300);
    EXPECT_EQ(Round(4503599627370497.5), 4503599627370498.0);
    EXPECT_EQ(Round(kInfinity), kInfinity);
    EXPECT_EQ(Round(-kInfinity), -kInfinity);
    EXPECT_TRUE(std::isnan(Round(kNaN)));
}

TEST(Int, IsTheFloor) {
    EXPECT_EQ(Int(2.9), 2);
    EXPECT_EQ(Int(-2.1), -3);
    EXPECT_EQ(Int(-2), -2);
}

TEST(Conversions, RoundBeforeTheyLookAtTheRange) {
    EXPECT_EQ(ToInt16(32767.4), 32767);
    EXPECT_EQ(ToInt16(-32768.5), -32768);
    EXPECT_EQ(ToInt32(2147483647.25), 2147483647);
    EXPECT_EQ(ToInt32(-2147483648.5), std::numeric_limits<int32_t>::min());
    EXPECT_EQ(ToByte(255.25), 255);
    EXPECT_EQ(ToByte(-0.5), 0);
    EXPECT_EQ(ToByte(0.5), 0);
    EXPECT_EQ(ToByte(1.5), 2);
}

TEST(Conversions, OverflowOutsideTheRange) {
    EXPECT_FAILURE(ToInt16(32767.5), Overflow());
    EXPECT_FAILURE(ToInt16(-32768.6), Overflow());
    EXPECT_FAILURE(ToInt32(2147483647.5), Overflow());
    EXPECT_FAILURE(ToInt32(-2147483649.0), Overflow());
    EXPECT_FAILURE(ToByte(255.5), Overflow());
    EXPECT_FAILURE(ToByte(-0.51), Overflow());
}

TEST(Conversions, OverflowOnWhatIsNotFinite) {
    for (const double value : {kInfinity, -kInfinity, kNaN}) {
        EXPECT_FAILURE(ToInt16(value), Overflow());
        EXPECT_FAILURE(ToInt32(value), Overflow());
        EXPECT_FAILURE(ToByte(value), Overflow());
    }
}

TEST(MinAndMax, ComparesNumbersOfAnyTypes) {
    EXPECT_EQ(Min(2.5F, 2), 2.0F);
    EXPECT_EQ(Max(int16_t{3}, 3.25), 3.25);
    EXPECT_EQ(Min(uint8_t{200}, int16_t{-1}), -1);
    EXPECT_EQ(Max(uint8_t{200}, uint8_t{100}), 200);
    static_assert(std::is_same_v<decltype(Min(1.0F, 1)), float>);
    static_assert(std::is_same_v<decltype(Max(1.0F, 1.0)), double>);
    static_assert(std::is_same_v<decltype(Max(uint8_t{1}, int16_t{1})), int64_t>);
}

TEST(MinAndMax, LoseNoSignBetweenSignedAndUnsigned) {
    EXPECT_EQ(Max(-1, 1U), 1);
    EXPECT_EQ(Min(-1, 4000000000U), -1);
    EXPECT_EQ(Max(std::numeric_limits<int32_t>::min(), std::numeric_limits<uint32_t>::max()), 4294967295);
}

TEST(FlagNumber, IsMinusOneForTrue) {
    EXPECT_EQ(FlagNumber(true), -1);
    EXPECT_EQ(FlagNumber(false), 0);
}

}  // namespace
}  // namespace vorlane
