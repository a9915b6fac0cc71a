#include "editor/folderreader.h"

#include "tests/widgets/thumbnailsupport.h"

#include <gtest/gtest.h>

using namespace vorlane;
using namespace vorlane::editor;
using test::WaitFor;

namespace {

class FolderReaderTest : public testing::Test {
protected:
    FolderReaderTest() {
        QObject::connect(&reader_, &FolderReader::opened, [this](const QString&, int total) {
            trace_.push_back(QStringLiteral("opened %1").arg(total));
        });
        QObject::connect(&reader_, &FolderReader::failed, [this] { trace_.push_back("failed"); });
        QObject::connect(&reader_, &FolderReader::finished, [this] { trace_.push_back("finished"); });
    }
    bool Finish() {
        return WaitFor([this] { return trace_.contains("finished") || trace_.contains("failed"); });
    }
    QStringList Names() {
        QStringList names;
        for (const FolderItem& item : reader_.take(1000000)) names.push_back(QFileInfo(item.path).fileName());
        return names;
    }

    test::PictureFolder folder_;
    FolderReader reader_;
    QStringList trace_;
};

}  // namespace

TEST_F(FolderReaderTest, GivesThePicturesOrderedByName) {
    for (const char* name : {"b10.png", "b9.JPG", "A.webp", "notes.txt", "song.mp3", ".hidden.jpg"})
        folder_.Write(name, "x");
    QDir(folder_.Path(".")).mkdir("folder.jpg");
    reader_.start(folder_.Path("."));
    ASSERT_TRUE(Finish());
    EXPECT_EQ(trace_, QStringList({"opened 3", "finished"}));
    EXPECT_EQ(Names(), QStringList({"A.webp", "b9.JPG", "b10.png"}));
}

TEST_F(FolderReaderTest, AFileWithoutExtensionIsAPictureIfItHoldsOne) {
    folder_.WritePicture("cliche");
    folder_.Write("Makefile", "all:\n");
    reader_.start(folder_.Path("."));
    ASSERT_TRUE(Finish());
    EXPECT_EQ(Names(), QStringList("cliche"));
}

TEST_F(FolderReaderTest, OfAListEachComesAlsoWhatIsNotThere) {
    const QString there = folder_.Write("b.jpg", "12345");
    const QString gone = folder_.Path("gone.jpg");
    reader_.list({gone, there, there, folder_.Path(".")});
    ASSERT_TRUE(Finish());
    EXPECT_EQ(trace_, QStringList({"opened 4", "finished"}));
    const std::vector<FolderItem> items = reader_.take(10);
    ASSERT_EQ(items.size(), 4U);
    EXPECT_EQ(items[0].path, gone);
    EXPECT_TRUE(items[0].missing);
    EXPECT_EQ(items[1].path, there);
    EXPECT_FALSE(items[1].missing);
    EXPECT_EQ(items[2].path, there);
    EXPECT_TRUE(items[3].missing);
}

TEST_F(FolderReaderTest, ItemsComeWithPathAndSortData) {
    folder_.Write("b.jpg", "12345");
    const QString folder = QFileInfo(folder_.Path("b.jpg")).path();
    for (const QString& spelled : {folder, folder + "/"}) {
        reader_.start(spelled);
        ASSERT_TRUE(WaitFor([this] { return trace_.contains("finished"); }));
        const auto items = reader_.take(10);
        ASSERT_EQ(items.size(), 1U);
        EXPECT_EQ(items[0].path, folder + "/b.jpg");
        EXPECT_EQ(items[0].sortData.split(QChar(11)).value(3), "0000000005b.jpg");
        trace_.clear();
    }
}

TEST_F(FolderReaderTest, GivesNoMoreThanItsOwnerAsksFor) {
    for (int i = 0; i < 1500; ++i) folder_.Write(QStringLiteral("p%1.jpg").arg(i), {});
    reader_.start(folder_.Path("."));
    ASSERT_TRUE(Finish());
    EXPECT_EQ(reader_.take(1000).size(), 1000U);
    EXPECT_TRUE(reader_.isRunning());
    EXPECT_EQ(reader_.take(1000).size(), 500U);
    EXPECT_FALSE(reader_.isRunning());
    EXPECT_TRUE(reader_.take(1000).empty());
}

TEST_F(FolderReaderTest, AnEmptyFolderIsOpenedWithNothing) {
    reader_.start(folder_.Path("."));
    ASSERT_TRUE(Finish());
    EXPECT_EQ(trace_, QStringList({"opened 0", "finished"}));
}

TEST_F(FolderReaderTest, WhatIsNoFolderFails) {
    for (const QString& path : {folder_.Path("missing"), folder_.Write("file.jpg", "x")}) {
        trace_.clear();
        reader_.start(path);
        ASSERT_TRUE(Finish());
        EXPECT_EQ(trace_, QStringList("failed"));
        EXPECT_FALSE(reader_.isRunning());
    }
}

TEST_F(FolderReaderTest, OfAStoppedReadingNothingIsHeard) {
    for (int i = 0; i < 300; ++i) folder_.Write(QStringLiteral("p%1.jpg").arg(i), {});
    reader_.start(folder_.Path("."));
    reader_.stop();
    EXPECT_FALSE(reader_.isRunning());
    const test::PictureFolder other;
    reader_.start(other.Path("."));
    ASSERT_TRUE(Finish());
    EXPECT_EQ(trace_, QStringList({"opened 0", "finished"}));
}

TEST_F(FolderReaderTest, FilesThatVanishDuringReadingAreStillTold) {
    for (int i = 0; i < 1000; ++i) folder_.Write(QStringLiteral("p%1.jpg").arg(i), {});
    QObject::connect(&reader_, &FolderReader::opened, [this] { QDir(folder_.Path(".")).removeRecursively(); });
    reader_.start(folder_.Path("."));
    ASSERT_TRUE(Finish());
    EXPECT_EQ(Names().size(), 1000);
}

TEST_F(FolderReaderTest, ItEndsAtAnyMoment) {
    for (int i = 0; i < 300; ++i) folder_.Write(QStringLiteral("p%1.jpg").arg(i), {});
    for (int i = 0; i < 50; ++i) {
        FolderReader reader;
        for (int k = 0; k <= i % 3; ++k) reader.start(folder_.Path("."));
        if (i % 2) QCoreApplication::processEvents();
    }
}
