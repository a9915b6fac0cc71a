#include "editor/recovery.h"

#include "editor/showfile.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

using namespace vorlane::editor;

namespace {

class RecoveryTest : public testing::Test {
protected:
    SavedShow Show(const QString& picture) {
        SavedShow show;
        show.pictures = {folder_.filePath(picture)};
        return show;
    }
    // What a program leaves that ended without letting go: its file, and the lock of a process that is no more.
    QString Leave(const SavedShow& show) {
        Recovery other(Folder());
        EXPECT_EQ(other.keep(show), "");
        const QString name = QDir(Folder()).entryList({"*.vorlane"}).value(0);
        const QString left = Folder() + "/left.vorlane";
        EXPECT_TRUE(QFile::copy(Folder() + "/" + name, left));
        QFile lock(left + ".lock");
        EXPECT_TRUE(lock.open(QIODevice::WriteOnly));
        lock.write("2147483646\nvorlane-editor\n");
        lock.write(QSysInfo::machineHostName().toUtf8() + "\n");
        return left;
    }
    QString Folder() const { return folder_.filePath("recovery"); }

    QTemporaryDir folder_;
};

}  // namespace

TEST_F(RecoveryTest, KeepsTheLastAndForgetsAll) {
    Recovery recovery(Folder());
    EXPECT_EQ(recovery.keep(Show("a.jpg")), "");
    EXPECT_EQ(recovery.keep(Show("b.jpg")), "");
    const QStringList files = QDir(Folder()).entryList({"*.vorlane"});
    ASSERT_EQ(files.size(), 1);
    EXPECT_EQ(LoadShow(Folder() + "/" + files.first()).show, Show("b.jpg"));
    recovery.forget();
    EXPECT_TRUE(QDir(Folder()).entryList({"*"}, QDir::Files).isEmpty());
}

TEST_F(RecoveryTest, WhatARunningProgramKeepsIsItsOwn) {
    Recovery one(Folder());
    Recovery other(Folder());
    EXPECT_TRUE(one.abandoned().isEmpty());
    ASSERT_EQ(one.keep(Show("a.jpg")), "");
    const QString kept = Folder() + "/" + QDir(Folder()).entryList({"*.vorlane"}).value(0);
    EXPECT_TRUE(other.abandoned().isEmpty());
    EXPECT_TRUE(one.abandoned().isEmpty());
    other.drop(kept);
    EXPECT_TRUE(QFile::exists(kept));
}

TEST_F(RecoveryTest, WhatAnEndedProgramLeftIsAbandoned) {
    const QString left = Leave(Show("a.jpg"));
    Recovery recovery(Folder());
    ASSERT_EQ(recovery.abandoned(), QStringList(left));
    EXPECT_EQ(LoadShow(left).show, Show("a.jpg"));
    recovery.drop(left);
    EXPECT_FALSE(QFile::exists(left));
    EXPECT_TRUE(recovery.abandoned().isEmpty());
}

TEST_F(RecoveryTest, WithoutAFolderNothingIsKept) {
    Recovery recovery{QString()};
    EXPECT_EQ(recovery.keep(Show("a.jpg")), "");
    EXPECT_TRUE(recovery.abandoned().isEmpty());
}

TEST_F(RecoveryTest, AFolderThatCannotBeMadeIsTold) {
    QFile file(folder_.filePath("file"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    Recovery recovery(folder_.filePath("file/within"));
    EXPECT_NE(recovery.keep(Show("a.jpg")), "");
}
