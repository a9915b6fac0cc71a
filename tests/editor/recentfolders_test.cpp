#include "editor/recentfolders.h"

#include <gtest/gtest.h>

#include <QSettings>
#include <QTemporaryDir>

using namespace vorlane::editor;

namespace {

class RecentFoldersTest : public testing::Test {
protected:
    QTemporaryDir folder_;
    QSettings settings_{folder_.filePath("settings.ini"), QSettings::IniFormat};
    RecentFolders recent_{settings_};
};

}  // namespace

TEST_F(RecentFoldersTest, TheLastOneComesFirst) {
    for (const char* folder : {"/a", "/b", "/c", "/a"}) recent_.add(folder);
    EXPECT_EQ(recent_.list(), QStringList({"/a", "/c", "/b"}));
}

TEST_F(RecentFoldersTest, KeepsSoManyAndNoMore) {
    for (int i = 0; i < 30; ++i) recent_.add(QStringLiteral("/%1").arg(i));
    ASSERT_EQ(recent_.list().size(), RecentFolders::kMost);
    EXPECT_EQ(recent_.list().first(), "/29");
}

TEST_F(RecentFoldersTest, ForgetsOneOrAll) {
    for (const char* folder : {"/a", "/b", "/c"}) recent_.add(folder);
    recent_.remove("/b");
    EXPECT_EQ(recent_.list(), QStringList({"/c", "/a"}));
    recent_.clear();
    EXPECT_TRUE(recent_.list().isEmpty());
}
