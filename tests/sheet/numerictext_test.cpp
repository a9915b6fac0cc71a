#include "sheet/numerictext.h"

#include "platform/failure.h"
#include "platform/numbers.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <random>
#include <string>

namespace vorlane {
namespace {

TEST(NumericText, DigitsWithSignBlanksPointAndExponentAreNumeric) {
    EXPECT_EQ(NumericValue("12"), 12);
    EXPECT_EQ(NumericValue("0000000120"), 120);
    EXPECT_EQ(NumericValue("  -3  "), -3);
    EXPECT_EQ(NumericValue("+7"), 7);
    EXPECT_EQ(NumericValue("3.25"), 3);
    EXPECT_EQ(NumericValue("1e3"), 1000);
    EXPECT_EQ(NumericValue("1E+3"), 1000);
    EXPECT_EQ(NumericValue("1250e-2"), 12);
    EXPECT_EQ(NumericValue("1.2345e2"), 123);
    EXPECT_EQ(NumericValue("-0"), 0);
}

TEST(NumericText, AnythingElseIsText) {
    for (const char* text :
         {"",   " ",    "+",    "-",   ".",   ".5",    "5.",  "5.e3", "1,5", "1 000", "- 3",   "--3", "1e", "1e+",
          "e3", "0x1F", "&H1F", "12a", "a12", "1.2.3", "\t1", "1\t",  "nan", "inf",   "1e3.5", "$3",  "(3)"}) {
        EXPECT_EQ(NumericValue(text), std::nullopt) << '"' << text << '"';
    }
    EXPECT_EQ(NumericValue(std::string_view("1\0", 2)), std::nullopt);
}

TEST(NumericText, HalvesGoToTheEvenNeighbour) {
    EXPECT_EQ(NumericValue("0.5"), 0);
    EXPECT_EQ(NumericValue("1.5"), 2);
    EXPECT_EQ(NumericValue("2.5"), 2);
    EXPECT_EQ(NumericValue("-2.5"), -2);
    EXPECT_EQ(NumericValue("-3.5"), -4);
    EXPECT_EQ(NumericValue("25e-1"), 2);
    EXPECT_EQ(NumericValue("0.05e1"), 0);
    EXPECT_EQ(NumericValue("5e-1"), 0);
    EXPECT_EQ(NumericValue("5e-2"), 0);
    EXPECT_EQ(NumericValue("9e-1"), 1);
}

TEST(NumericText, ADigitFarBehindTheHalfCounts) {
    EXPECT_EQ(NumericValue("2.5000000000000000000000000001"), 3);
    EXPECT_EQ(NumericValue("2.5000000000000000000000000000"), 2);
    EXPECT_EQ(NumericValue("2.4999999999999999999999999999"), 2);
}

TEST(NumericText, ANumberThatDoesNotFitStaysText) {
    EXPECT_EQ(NumericValue("2147483647"), 2147483647);
    EXPECT_EQ(NumericValue("2147483648"), std::nullopt);
    EXPECT_EQ(NumericValue("2147483647.5"), std::nullopt);
    EXPECT_EQ(NumericValue("2147483647.49"), 2147483647);
    EXPECT_EQ(NumericValue("-2147483648"), INT32_MIN);
    EXPECT_EQ(NumericValue("-2147483648.5"), INT32_MIN);
    EXPECT_EQ(NumericValue("-2147483649"), std::nullopt);
    EXPECT_EQ(NumericValue("99999999999999999999999"), std::nullopt);
    EXPECT_EQ(NumericValue("1e10"), std::nullopt);
}

TEST(NumericText, ExtremeExponentsAreNoTrouble) {
    EXPECT_EQ(NumericValue("1e999999999999999999999"), std::nullopt);
    EXPECT_EQ(NumericValue("0e999999999999999999999"), 0);
    EXPECT_EQ(NumericValue("1e-999999999999999999999"), 0);
    EXPECT_EQ(NumericValue("7" + std::string(400, '0') + "e-400"), 7);
    EXPECT_EQ(NumericValue("0." + std::string(400, '0') + "7e401"), 7);
}

TEST(NumericText, AgreesWithTheConversionOfRealNumbers) {
    std::mt19937 random(7);
    const auto upTo = [&](unsigned n) { return random() % (n + 1); };
    for (int i = 0; i < 20000; ++i) {
        std::string text = upTo(2) == 0 ? "-" : "";
        text += std::to_string(upTo(9999));
        if (upTo(1) == 0) text += "." + std::to_string(upTo(upTo(1) == 0 ? 9 : 999));
        if (upTo(2) == 0) text += "e" + std::to_string(static_cast<int>(upTo(12)) - 5);
        std::optional<int32_t> expected;
        Attempt([&] { expected = ToInt32(std::strtod(text.c_str(), nullptr)); });
        ASSERT_EQ(NumericValue(text), expected) << text;
    }
}

}  // namespace
}  // namespace vorlane
