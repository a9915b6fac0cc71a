#include "editor/languages.h"

#include "editor/filefilters.h"

#include <gtest/gtest.h>

#include <QDialogButtonBox>
#include <QKeySequence>
#include <QPushButton>

using vorlane::FileKind;
using vorlane::editor::FilterFor;
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

TEST(InstallLanguage, BringsTheTextsOfTheSystemsOwnDialogsAndKeysToo) {
    const QDialogButtonBox box(QDialogButtonBox::Cancel);
    EXPECT_EQ(box.button(QDialogButtonBox::Cancel)->text().remove(u'&'), "Annuler");
    EXPECT_EQ(QKeySequence(Qt::Key_Delete).toString(QKeySequence::NativeText), "Suppr");
}

TEST(FilterFor, OffersTheFilesOfAKindThenAll) {
    const QStringList sounds = FilterFor(FileKind::Sound).split(";;");
    ASSERT_EQ(sounds.size(), 2);
    EXPECT_TRUE(sounds[0].startsWith("Sons (*.aac "));
    EXPECT_TRUE(sounds[0].contains(" *.mp3 "));
    EXPECT_EQ(sounds[1], "Tous les fichiers (*)");
    EXPECT_TRUE(FilterFor(FileKind::Picture).contains(" *.jpg "));
    EXPECT_FALSE(FilterFor(FileKind::Picture).contains(" *.mp3 "));
}
