#include "platform/bagtext.h"

#include "platform/failure.h"

#include <gtest/gtest.h>
#include <limits>

namespace vorlane {
namespace {

PropertyBag One(BagValue value) {
    PropertyBag bag;
    bag.SetValue("key", std::move(value));
    return bag;
}

// What a text gives for its one key, read back from what was written.
BagValue Again(BagValue value) {
    return *BagFromText(BagToText(One(std::move(value)))).Value("key");
}

std::string Complaint(std::string_view text) {
    try {
        BagFromText(text);
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.Number, 321);
        return failure.Description.substr(failure.Description.find("ligne"));
    }
    return "none";
}

TEST(BagText, HasAMemberALineInTheOrderOfTheKeys) {
    PropertyBag bag;
    bag.SetValue("Width", int64_t{100});
    bag.SetValue("Auto", true);
    bag.SetValue("Name", std::string("été \"1\"\n"));
    bag.SetValue("Part", 2.0);
    EXPECT_EQ(BagToText(bag),
              "{\n  \"Auto\": true,\n  \"Name\": \"été \\\"1\\\"\\u000a\",\n  \"Part\": 2.0,\n  \"Width\": 100\n}\n");
    EXPECT_EQ(BagToText({}), "{}\n");
}

TEST(BagText, ReadsBackWhatWasWritten) {
    EXPECT_EQ(Again(true), BagValue(true));
    EXPECT_EQ(Again(false), BagValue(false));
    for (const int64_t number : {int64_t{0}, int64_t{-7}, int64_t{0x8000000F}, std::numeric_limits<int64_t>::min()}) {
        EXPECT_EQ(Again(number), BagValue(number));
    }
    for (const double number : {0.0, -2.0, 0.1, 1e300, 5e-324}) EXPECT_EQ(Again(number), BagValue(number));
    for (const char* text : {"", "\\ / \b\f\n\r\t \x01 \x7f", "Σ€😀", "{\"a\": 1}"}) {
        EXPECT_EQ(Again(std::string(text)), BagValue(std::string(text)));
    }
    EXPECT_EQ(Again(std::string("a\0b", 3)), BagValue(std::string("a\0b", 3)));
}

TEST(BagText, ARealNumberThatIsNoneIsTheTextThatSpellsIt) {
    const PropertyBag read = BagFromText(BagToText(One(std::numeric_limits<double>::infinity())));
    EXPECT_EQ(read.ReadSingle("key", 0), std::numeric_limits<float>::infinity());
}

TEST(BagText, AFontHasItsNameItsSizeAndItsStyles) {
    const Font plain{"DejaVu \"Sans\"", 8.25F};
    EXPECT_EQ(BagToText(One(plain)),
              "{\n  \"key\": {\"font\": {\"name\": \"DejaVu \\\"Sans\\\"\", \"size\": 8.25}}\n}\n");
    const Font all{"Vera", 12.1F, true, true, true, true};
    EXPECT_EQ(Again(plain), BagValue(plain));
    EXPECT_EQ(Again(all), BagValue(all));
}

TEST(BagText, AFontsSizeIsAnyNumber) {
    const auto size = [](const std::string& number) {
        return BagFromText("{\"key\": {\"font\": {\"size\": " + number + "}}}").ReadFont("key", {}).Size;
    };
    EXPECT_EQ(size("0"), 0);
    EXPECT_EQ(size("-12.5"), -12.5F);
    EXPECT_EQ(size("1e300"), std::numeric_limits<float>::infinity());
    EXPECT_EQ(size("-1e300"), -std::numeric_limits<float>::infinity());
    EXPECT_EQ(size("1e-300"), 0);
}

TEST(BagText, APictureIsATextOfTheHosts) {
    const Picture icon(PictureType::Bitmap, 8, 8, nullptr);
    const PictureTexts texts{[&](const Picture& picture) { return picture == icon ? "icon.png" : ""; },
                             [&](const std::string& text) { return text == "icon.png" ? icon : Picture(); }};
    const std::string text = BagToText(One(icon), texts);
    EXPECT_EQ(text, "{\n  \"key\": {\"picture\": \"icon.png\"}\n}\n");
    EXPECT_EQ(BagFromText(text, texts).ReadPicture("key"), icon);
    EXPECT_FALSE(BagFromText(text).Contains("key")) << "nobody understands it";
    EXPECT_EQ(BagToText(One(icon)), "{}\n") << "nobody makes a text of it";
    EXPECT_EQ(BagToText(One(Picture()), texts), "{}\n");
}

TEST(BagText, TakesAnySpellingOfJson) {
    const PropertyBag bag = BagFromText("\t{ \"a\" :1e2,\r\n\"b\":\"\\u00e9\\ud83d\\ude00\\/\" , \"c\":-0.5}  \n");
    EXPECT_EQ(bag.ReadInt32("a", 0), 100);
    EXPECT_EQ(bag.ReadText("b", ""), "é😀/");
    EXPECT_EQ(bag.ReadSingle("c", 0), -0.5F);
    EXPECT_TRUE(BagFromText("{}").Empty());
}

TEST(BagText, AWholeNumberThatNoBagHoldsIsAReal) {
    EXPECT_EQ(*BagFromText(R"({"key": 123456789012345678901})").Value("key"), BagValue(123456789012345678901.0));
}

TEST(BagText, DamageIsToldWithItsPlace) {
    EXPECT_EQ(Complaint(""), "ligne 1, colonne 1 : « { » attendu");
    EXPECT_EQ(Complaint("[1]"), "ligne 1, colonne 1 : « { » attendu");
    EXPECT_EQ(Complaint("{\n  \"a\": 1,\n  \"b\" 2\n}"), "ligne 3, colonne 7 : « : » attendu");
    EXPECT_EQ(Complaint("{\"a\": 1"), "ligne 1, colonne 8 : « } » attendu");
    EXPECT_EQ(Complaint("{\"a\": 1,}"), "ligne 1, colonne 9 : « \" » attendu");
    EXPECT_EQ(Complaint("{\"a\": 1} x"), "ligne 1, colonne 10 : fin du texte attendue");
    EXPECT_EQ(Complaint("{\"a\": \"x"), "ligne 1, colonne 9 : texte sans fin");
    EXPECT_EQ(Complaint("{\"a\": \"x\ny\"}"), "ligne 1, colonne 9 : caractère de contrôle dans un texte");
    EXPECT_EQ(Complaint("{\"a\": 1, \"a\": 2}"), "ligne 1, colonne 14 : clé en double");
}

TEST(BagText, ValuesThatNoBagHoldsAreFailures) {
    for (const char* value : {"null",
                              "[1]",
                              "{}",
                              "{\"color\": 1}",
                              "{\"font\": {}, \"picture\": \"a\"}",
                              "tru",
                              "nope",
                              "+1",
                              "01",
                              "1.",
                              ".5",
                              "1e",
                              "-",
                              "1e999",
                              "\"\\x\"",
                              "\"\\u12\"",
                              "\"\\u12g4\"",
                              "\"\\ud800\"",
                              "\"\\ud800\\u0041\"",
                              "\"\\udc00\"",
                              "{\"font\": {\"weight\": 1}}",
                              "{\"font\": {\"bold\": 1}}",
                              "{\"font\": 1}",
                              "{\"picture\": 1}",
                              ""}) {
        EXPECT_NE(Complaint("{\"a\": " + std::string(value) + "}"), "none") << value;
    }
}

TEST(BagText, EveryCutTextIsAFailure) {
    PropertyBag bag = One(std::string("é\n"));
    bag.SetValue("font", Font{"Vera", 9, true});
    bag.SetValue("number", -1.5);
    const std::string text = BagToText(bag);
    for (size_t length = 0; length + 2 < text.size(); ++length) {
        EXPECT_NE(Complaint(std::string_view(text).substr(0, length)), "none") << length;
    }
}

}  // namespace
}  // namespace vorlane
