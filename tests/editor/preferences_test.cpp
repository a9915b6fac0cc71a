#include "editor/preferences.h"

#include <gtest/gtest.h>

#include <QSettings>
#include <QTemporaryDir>

using namespace vorlane::editor;

namespace {

class PreferencesTest : public testing::Test {
protected:
    QTemporaryDir folder_;
    QSettings settings_{folder_.filePath("settings.ini"), QSettings::IniFormat};
};

}  // namespace

TEST_F(PreferencesTest, AtFirstSlidesAreSortedByNameAndScrollDown) {
    const Preferences preferences = Preferences::Load(settings_);
    EXPECT_TRUE(preferences.geometry.isEmpty());
    EXPECT_EQ(preferences.slideWidth, slidesize::kUsual);
    EXPECT_EQ(preferences.sort, (SortOrder{SortBy::Name, false}));
    EXPECT_FALSE(preferences.horizontal);
}

TEST_F(PreferencesTest, ComeBackAsTheyWereSaved) {
    for (const SortBy by :
         {SortBy::Hand, SortBy::Name, SortBy::Modified, SortBy::Created, SortBy::Length, SortBy::Extension}) {
        const bool descending = by != SortBy::Created;
        Preferences{"place", 256, {by, descending}, descending}.Save(settings_);
        const Preferences loaded = Preferences::Load(settings_);
        EXPECT_EQ(loaded.geometry, "place");
        EXPECT_EQ(loaded.slideWidth, 256);
        EXPECT_EQ(loaded.sort, (SortOrder{by, descending}));
        EXPECT_EQ(loaded.horizontal, descending);
    }
}

TEST_F(PreferencesTest, AnEmptyGeometryLeavesTheOneThatWasSaved) {
    Preferences{"place", 256, {}, false}.Save(settings_);
    Preferences{{}, 96, {}, false}.Save(settings_);
    EXPECT_EQ(Preferences::Load(settings_).geometry, "place");
    EXPECT_EQ(Preferences::Load(settings_).slideWidth, 96);
}

TEST_F(PreferencesTest, WhatNobodyKnowsIsAsAtFirst) {
    settings_.setValue("slideWidth", "wide");
    settings_.setValue("sort/by", "beauty");
    EXPECT_EQ(Preferences::Load(settings_).slideWidth, slidesize::kUsual);
    EXPECT_EQ(Preferences::Load(settings_).sort.by, SortBy::Name);
    settings_.setValue("slideWidth", 100000);
    EXPECT_EQ(Preferences::Load(settings_).slideWidth, slidesize::kMost);
}
