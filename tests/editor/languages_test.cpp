#include "editor/languages.h"

#include <gtest/gtest.h>

using vorlane::editor::LanguageFor;

TEST(LanguageFor, TakesTheFirstThatItSpeaks) {
    EXPECT_EQ(LanguageFor({"fr-CA", "en-US"}), "fr");
    EXPECT_EQ(LanguageFor({"en-US", "fr-FR"}), "en");
    EXPECT_EQ(LanguageFor({"de-DE", "fr-FR", "en-US"}), "fr");
    EXPECT_EQ(LanguageFor({"en_GB"}), "en");
}

TEST(LanguageFor, ASpeakerOfAnotherLanguageGetsEnglish) {
    EXPECT_EQ(LanguageFor({"de-DE", "de"}), "en");
}

TEST(LanguageFor, WhoStatesNoneGetsFrench) {
    EXPECT_EQ(LanguageFor({}), "fr");
    EXPECT_EQ(LanguageFor({"C"}), "fr");
}
