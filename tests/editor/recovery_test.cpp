#include "editor/recovery.h"

#include "editor/showfile.h"

#include <gtest/gtest.h>

#include <QDateTime>
#include <QDir>
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
    QString Leave(const SavedShow& show, const QString& name = "left", int minutesAgo = 0) {
        const QString left = Folder() + "/" + name + ".vorlane";
        EXPECT_TRUE(QDir().mkpath(Folder()));
        EXPECT_EQ(SaveShow(left, show), "");
        QFile lock(left + ".lock");
        EXPECT_TRUE(lock.open(QIODevice::WriteOnly));
        lock.write("2147483646\nvorlane-editor\n");
        lock.write(QSysInfo::machineHostName().toUtf8() + "\n");
        SetAge(left, minutesAgo);
        return left;
    }
    static void SetAge(const QString& path, int minutes) {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadWrite));
        const QDateTime when = QDateTime::currentDateTime().addSecs(-60 * minutes);
        EXPECT_TRUE(file.setFileTime(when, QFileDevice::FileModificationTime));
    }
    QStringList Kept() const { return QDir(Folder()).entryList({"*.vorlane"}); }
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
    EXPECT_TRUE(one.abandoned().empty());
    ASSERT_EQ(one.keep(Show("a.jpg")), "");
    const QString kept = Folder() + "/" + QDir(Folder()).entryList({"*.vorlane"}).value(0);
    EXPECT_TRUE(other.abandoned().empty());
    EXPECT_TRUE(one.abandoned().empty());
    other.drop(kept);
    EXPECT_TRUE(QFile::exists(kept));
}

TEST_F(RecoveryTest, WhatAnEndedProgramLeftIsAbandoned) {
    const QString left = Leave(Show("a.jpg"));
    Recovery recovery(Folder());
    const auto abandoned = recovery.abandoned();
    ASSERT_EQ(abandoned.size(), 1U);
    EXPECT_EQ(abandoned[0].file, left);
    EXPECT_EQ(abandoned[0].pictures, 1);
    EXPECT_EQ(abandoned[0].failure, "");
    recovery.drop(left);
    EXPECT_FALSE(QFile::exists(left));
    EXPECT_TRUE(recovery.abandoned().empty());
}

TEST_F(RecoveryTest, AProgramThatEndsWithoutTheUsersWordLeavesWhatItKept) {
    {
        Recovery recovery(Folder());
        ASSERT_EQ(recovery.keep(Show("a.jpg")), "");
    }
    ASSERT_EQ(Kept().size(), 1);
    EXPECT_EQ(Recovery(Folder()).abandoned().size(), 1U);
}

TEST_F(RecoveryTest, AllThatIsLeftIsToldTheYoungestFirstDamageIncluded) {
    SavedShow show = Show("a.jpg");
    show.origin = folder_.filePath("Vacances.vorlane");
    const QString oldest = Leave(show, "b", 30);
    const QString damaged = Leave(show, "c", 20);
    const QString youngest = Leave(Show("a.jpg"), "a", 10);
    QFile file(damaged);
    ASSERT_TRUE(file.resize(20));
    file.close();
    SetAge(damaged, 20);
    const auto abandoned = Recovery(Folder()).abandoned();
    ASSERT_EQ(abandoned.size(), 3U);
    EXPECT_EQ(abandoned[0].file, youngest);
    EXPECT_EQ(abandoned[0].origin, "");
    EXPECT_EQ(abandoned[1].file, damaged);
    EXPECT_NE(abandoned[1].failure, "");
    EXPECT_EQ(abandoned[2].file, oldest);
    EXPECT_EQ(abandoned[2].origin, show.origin);
    EXPECT_LT(abandoned[2].when, abandoned[1].when);
    EXPECT_EQ(Kept().size(), 3);
}

TEST_F(RecoveryTest, WithoutAFolderNothingIsKept) {
    Recovery recovery{QString()};
    EXPECT_EQ(recovery.keep(Show("a.jpg")), "");
    EXPECT_TRUE(recovery.abandoned().empty());
}

TEST_F(RecoveryTest, AFolderThatCannotBeMadeIsTold) {
    QFile file(folder_.filePath("file"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    Recovery recovery(folder_.filePath("file/within"));
    EXPECT_NE(recovery.keep(Show("a.jpg")), "");
}
