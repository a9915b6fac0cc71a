#include "platform/trelmic6.h"

#include <gtest/gtest.h>
#include <limits>

namespace vorlane {
namespace {

TEST(FieldAt, GivesTheNthPieceFromOne) {
    EXPECT_EQ(Trelmic6::FieldAt("a|b|c", 1, "|"), "a");
    EXPECT_EQ(Trelmic6::FieldAt("a|b|c", 2, "|"), "b");
    EXPECT_EQ(Trelmic6::FieldAt("a|b|c", 3, "|"), "c");
}

TEST(FieldAt, IsEmptyOutsideThePieces) {
    EXPECT_EQ(Trelmic6::FieldAt("a|b", 3, "|"), "");
    EXPECT_EQ(Trelmic6::FieldAt("a|b", 0, "|"), "");
    EXPECT_EQ(Trelmic6::FieldAt("a|b", -1, "|"), "");
    EXPECT_EQ(Trelmic6::FieldAt("a|b", std::numeric_limits<int32_t>::max(), "|"), "");
    EXPECT_EQ(Trelmic6::FieldAt("", 1, "|"), "");
}

TEST(FieldAt, PiecesMayBeEmptyAndSeparatorsLong) {
    EXPECT_EQ(Trelmic6::FieldAt("||b", 1, "|"), "");
    EXPECT_EQ(Trelmic6::FieldAt("||b", 3, "|"), "b");
    EXPECT_EQ(Trelmic6::FieldAt("a::b", 2, "::"), "b");
    EXPECT_EQ(Trelmic6::FieldAt("a\vb\tc", 2, "\v"), "b\tc");
}

TEST(FieldAt, AnEmptySeparatorCutsNothing) {
    EXPECT_EQ(Trelmic6::FieldAt("abc", 1, ""), "abc");
    EXPECT_EQ(Trelmic6::FieldAt("abc", 2, ""), "");
}

TEST(FieldAt, ThePieceAlsoComesAsAPartOfTheText) {
    const std::string_view text = "a|bc|d";
    const std::string_view piece = Trelmic6::FieldViewAt(text, 2, "|");
    EXPECT_EQ(piece, "bc");
    EXPECT_EQ(piece.data(), text.data() + 2);
    EXPECT_EQ(Trelmic6::FieldViewAt(text, 4, "|"), "");
}

TEST(CountOf, CountsSeparatorsThatDoNotOverlap) {
    EXPECT_EQ(Trelmic6::CountOf("", "|"), 0);
    EXPECT_EQ(Trelmic6::CountOf("abc", "|"), 0);
    EXPECT_EQ(Trelmic6::CountOf("a|b||", "|"), 3);
    EXPECT_EQ(Trelmic6::CountOf("aaaaa", "aa"), 2);
    EXPECT_EQ(Trelmic6::CountOf("abc", ""), 0);
}

TEST(LowerCase, KnowsLatinGreekAndCyrillic) {
    EXPECT_EQ(Trelmic6::LowerCase("IMG_0001.JPG"), "img_0001.jpg");
    EXPECT_EQ(Trelmic6::LowerCase("ÀÂÇÉÈÊËÎÏÔÙÛÜÆŒÑØÞ"), "àâçéèêëîïôùûüæœñøþ");
    EXPECT_EQ(Trelmic6::LowerCase("ĀĎĞĶĹŁŇŊŠŴŶŸŹŻŽ"), "āďğķĺłňŋšŵŷÿźżž");
    EXPECT_EQ(Trelmic6::LowerCase("ΆΈΊΌΎΏΑΡΣΩΫ"), "άέίόύώαρσωϋ");
    EXPECT_EQ(Trelmic6::LowerCase("ЀЁЏАПРЯѠҀҊҾӀӁӐԮ"), "ѐёџапряѡҁҋҿӏӂӑԯ");
    EXPECT_EQ(Trelmic6::LowerCase("İ"), "i");
    EXPECT_EQ(Trelmic6::LowerCase("ȘȚǍǛǞǮǸȜȢȲ"), "șțǎǜǟǯǹȝȣȳ");
    EXPECT_EQ(Trelmic6::LowerCase("ḀẔẠẾỸ ＡＺ ԱՖ"), "ḁẕạếỹ ａｚ աֆ");
}

TEST(LowerCase, LeavesEverythingElse) {
    const std::string small = "àÿßĸŉſžāάςσяѐ×÷ª@[`{0 ǰƀɐẖẟ漢字＠［ａև😀";
    EXPECT_EQ(Trelmic6::LowerCase(small), small);
    EXPECT_EQ(Trelmic6::LowerCase(""), "");
}

TEST(LowerCase, NeverMakesACapitalOrAnotherLetterOfASmallOne) {
    for (char32_t letter = 0x80; letter < 0x800; ++letter) {
        const std::string text{static_cast<char>(0xC0U | letter >> 6), static_cast<char>(0x80U | (letter & 0x3FU))};
        const std::string lower = Trelmic6::LowerCase(text);
        EXPECT_EQ(Trelmic6::LowerCase(lower), lower) << static_cast<uint32_t>(letter);
    }
}

TEST(LowerCase, KeepsBytesThatAreNoUtf8) {
    EXPECT_EQ(Trelmic6::LowerCase("A\xC3"), "a\xC3");
    EXPECT_EQ(Trelmic6::LowerCase("\xC3"
                                  "A"),
              "\xC3"
              "a");
    EXPECT_EQ(Trelmic6::LowerCase("\x89\xFF\xC1\x81Z"), "\x89\xFF\xC1\x81z");
    EXPECT_EQ(Trelmic6::LowerCase("\xC9.JPG"), "\xC9.jpg");
}

TEST(SecondsToText, CountsMinutesAndSecondsAndHoursFromAnHourOn) {
    EXPECT_EQ(Trelmic6::SecondsToText(0, false), "0:00");
    EXPECT_EQ(Trelmic6::SecondsToText(9, false), "0:09");
    EXPECT_EQ(Trelmic6::SecondsToText(75, false), "1:15");
    EXPECT_EQ(Trelmic6::SecondsToText(3599, false), "59:59");
    EXPECT_EQ(Trelmic6::SecondsToText(3600, false), "1:00:00");
    EXPECT_EQ(Trelmic6::SecondsToText(7509, false), "2:05:09");
    EXPECT_EQ(Trelmic6::SecondsToText(360000, false), "100:00:00");
}

TEST(SecondsToText, NamesTheUnitsWithoutZerosInFront) {
    EXPECT_EQ(Trelmic6::SecondsToText(0, true), "0 s");
    EXPECT_EQ(Trelmic6::SecondsToText(9, true), "9 s");
    EXPECT_EQ(Trelmic6::SecondsToText(60, true), "1 min 00 s");
    EXPECT_EQ(Trelmic6::SecondsToText(309, true), "5 min 09 s");
    EXPECT_EQ(Trelmic6::SecondsToText(7509, true), "2 h 05 min 09 s");
    EXPECT_EQ(Trelmic6::SecondsToText(3600, true), "1 h 00 min 00 s");
}

TEST(SecondsToText, NegativeSecondsHaveASign) {
    EXPECT_EQ(Trelmic6::SecondsToText(-5, false), "-0:05");
    EXPECT_EQ(Trelmic6::SecondsToText(-7509, true), "-2 h 05 min 09 s");
    EXPECT_EQ(Trelmic6::SecondsToText(std::numeric_limits<int32_t>::min(), false), "-596523:14:08");
}

}  // namespace
}  // namespace vorlane
