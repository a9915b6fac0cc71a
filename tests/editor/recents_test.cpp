#include "editor/recents.h"

#include <gtest/gtest.h>

#include <QSettings>
#include <QTemporaryDir>

using namespace vorlane::editor;

namespace {

class RecentsTest : public testing::Test {
protected:
    QTemporaryDir folder_;
    QSettings settings_{folder_.filePath("settings.ini"), QSettings::IniFormat};
    Recents recent_{settings_};
};

}  // namespace

TEST_F(RecentsTest, TheLastOneComesFirst) {
    for (const char* folder : {"/a", "/b", "/c", "/a"}) recent_.add(folder);
    EXPECT_EQ(recent_.list(), QStringList({"/a", "/c", "/b"}));
}

TEST_F(RecentsTest, KeepsSoManyAndNoMore) {
    for (int i = 0; i < 30; ++i) recent_.add(QStringLiteral("/%1").arg(i));
    ASSERT_EQ(recent_.list().size(), Recents::kMost);
    EXPECT_EQ(recent_.list().first(), "/29");
}

TEST_F(RecentsTest, ForgetsOneOrAll) {
    for (const char* folder : {"/a", "/b", "/c"}) recent_.add(folder);
    recent_.remove("/b");
    EXPECT_EQ(recent_.list(), QStringList({"/c", "/a"}));
    recent_.clear();
    EXPECT_TRUE(recent_.list().isEmpty());
}
