#include "widgets/thumbnailcache.h"

#include "tests/widgets/thumbnailsupport.h"

#include <atomic>
#include <gtest/gtest.h>
#include <thread>
#include <vector>

#include <QCryptographicHash>
#include <QDirIterator>
#include <QFileInfo>

using namespace vorlane;
using test::Plain;

namespace {

class ThumbnailCacheTest : public testing::Test {
protected:
    QString folder_ = QString(cacheHome_.path() + "/thumbnails");
    ThumbnailCache Cache() const { return ThumbnailCache(folder_); }

    static Thumbnail SomeThumbnail() { return {Plain(256, 171, Qt::green), {3000, 2000}}; }
    // Puts an entry where the one of path belongs, as another program might.
    void WriteForeign(const QString& path, int edge, const QString& address, const QString& modified) {
        QImage image = Plain(edge, edge / 2, Qt::blue);
        if (!address.isNull()) image.setText("Thumb::URI", address);
        if (!modified.isNull()) image.setText("Thumb::MTime", modified);
        const QString entry = Cache().EntryPath(path, edge);
        QDir().mkpath(QFileInfo(entry).path());
        EXPECT_TRUE(image.save(entry, "png"));
    }
    QStringList Files() const {
        QStringList files;
        QDirIterator all(folder_, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (all.hasNext()) files.push_back(all.next());
        return files;
    }

    static inline QTemporaryDir cacheHome_;
    test::PictureFolder pictures_;

    void TearDown() override { QDir(folder_).removeRecursively(); }
};

QString Modified(const QString& path) {
    return QString::number(FileStamp::Of(path).modified / 1000);
}

}  // namespace

TEST_F(ThumbnailCacheTest, AddressesAreSpelledLikeEverybodys) {
    EXPECT_EQ(ThumbnailCache::Address("/home/a/Été à la mer (1).jpg"),
              "file:///home/a/%C3%89t%C3%A9%20%C3%A0%20la%20mer%20(1).jpg");
    EXPECT_EQ(ThumbnailCache::Address("/a/b;c#d?e%f[g]&h=i+j,k@l:m'n!o~p.png"),
              "file:///a/b%3Bc%23d%3Fe%25f%5Bg%5D&h=i+j,k@l:m'n!o~p.png");
    EXPECT_EQ(ThumbnailCache::Address("/a//b/../c.png"), "file:///a/c.png");
}

TEST_F(ThumbnailCacheTest, EntriesLieWhereEverybodyLooksForThem) {
    const QString digest = QCryptographicHash::hash("file:///a/b.png", QCryptographicHash::Md5).toHex();
    const ThumbnailCache cache("/x/thumbnails");
    EXPECT_EQ(cache.EntryPath("/a/b.png", 128), "/x/thumbnails/normal/" + digest + ".png");
    EXPECT_EQ(cache.EntryPath("/a/b.png", 256), "/x/thumbnails/large/" + digest + ".png");
    EXPECT_EQ(cache.EntryPath("/a/b.png", 512), "/x/thumbnails/x-large/" + digest + ".png");
    EXPECT_EQ(cache.EntryPath("/a/b.png", 1024), "/x/thumbnails/xx-large/" + digest + ".png");
    EXPECT_EQ(cache.EntryPath("/a/b.png", 0), "/x/thumbnails/fail/vorlane-1/" + digest + ".png");
}

TEST_F(ThumbnailCacheTest, GivesBackWhatItStored) {
    const QString path = pictures_.WritePicture("a.jpg");
    const FileStamp stamp = FileStamp::Of(path);
    Cache().Store(path, stamp, SomeThumbnail(), 256);
    const auto found = Cache().Find(path, stamp, 256);
    ASSERT_TRUE(found);
    EXPECT_EQ(found->image, SomeThumbnail().image);
    EXPECT_EQ(found->pictureSize, QSize(3000, 2000));
}

TEST_F(ThumbnailCacheTest, AnEntrySaysWhatItStandsFor) {
    const QString path = pictures_.WritePicture("a.jpg");
    Cache().Store(path, FileStamp::Of(path), SomeThumbnail(), 256);
    const QImage entry(Cache().EntryPath(path, 256));
    EXPECT_EQ(entry.text("Thumb::URI").toUtf8(), ThumbnailCache::Address(path));
    EXPECT_EQ(entry.text("Thumb::MTime"), Modified(path));
    EXPECT_EQ(entry.text("Thumb::Size").toLongLong(), QFileInfo(path).size());
    EXPECT_EQ(entry.text("Thumb::Image::Width"), "3000");
    EXPECT_EQ(entry.text("Thumb::Image::Height"), "2000");
    EXPECT_EQ(entry.text("Software"), "Vorlane");
}

TEST_F(ThumbnailCacheTest, EntriesAndFoldersAreTheUsersAlone) {
    const QString path = pictures_.WritePicture("a.jpg");
    Cache().Store(path, FileStamp::Of(path), SomeThumbnail(), 256);
    const auto owner = QFile::ReadOwner | QFile::WriteOwner;
    const auto all = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadGroup | QFile::WriteGroup |
                     QFile::ExeGroup | QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
    EXPECT_EQ(QFileInfo(Cache().EntryPath(path, 256)).permissions() & all, owner);
    EXPECT_EQ(QFileInfo(folder_).permissions() & all, owner | QFile::ExeOwner);
    EXPECT_EQ(QFileInfo(folder_ + "/large").permissions() & all, owner | QFile::ExeOwner);
}

TEST_F(ThumbnailCacheTest, NothingButTheEntryIsLeftBehind) {
    const QString path = pictures_.WritePicture("a.jpg");
    for (int i = 0; i < 3; ++i) Cache().Store(path, FileStamp::Of(path), SomeThumbnail(), 256);
    EXPECT_EQ(Files(), QStringList(Cache().EntryPath(path, 256)));
}

TEST_F(ThumbnailCacheTest, AReaderNeverSeesHalfAnEntry) {
    const QString path = pictures_.WritePicture("a.jpg");
    const FileStamp stamp = FileStamp::Of(path);
    const Thumbnail thumbnails[] = {SomeThumbnail(), {Plain(200, 256, Qt::yellow), {2000, 2560}}};
    Cache().Store(path, stamp, thumbnails[0], 256);
    std::atomic<bool> done = false;
    std::vector<std::thread> writers;
    for (const Thumbnail& thumbnail : thumbnails) {
        writers.emplace_back([&] {
            for (int i = 0; i < 50; ++i) Cache().Store(path, stamp, thumbnail, 256);
            done = true;
        });
    }
    int wrong = 0;
    while (!done) {
        const auto found = Cache().Find(path, stamp, 256);
        const bool known = found && (found->image == thumbnails[0].image || found->image == thumbnails[1].image);
        if (!known) ++wrong;
    }
    for (std::thread& writer : writers) writer.join();
    EXPECT_EQ(wrong, 0);
    EXPECT_EQ(Files().size(), 1);
}

TEST_F(ThumbnailCacheTest, ALargerEntryServesASmallerSizeButNotTheOtherWayRound) {
    const QString path = pictures_.WritePicture("a.jpg");
    const FileStamp stamp = FileStamp::Of(path);
    Cache().Store(path, stamp, SomeThumbnail(), 256);
    EXPECT_TRUE(Cache().Find(path, stamp, 128));
    EXPECT_FALSE(Cache().Find(path, stamp, 512));
}

TEST_F(ThumbnailCacheTest, AnEntryOfAnotherProgramIsTaken) {
    const QString path = pictures_.WritePicture("a.jpg");
    WriteForeign(path, 256, ThumbnailCache::Address(path), Modified(path));
    const auto found = Cache().Find(path, FileStamp::Of(path), 256);
    ASSERT_TRUE(found);
    EXPECT_TRUE(found->pictureSize.isEmpty());
    WriteForeign(path, 256, ThumbnailCache::Address(path), Modified(path) + ".75");
    EXPECT_TRUE(Cache().Find(path, FileStamp::Of(path), 256));
}

TEST_F(ThumbnailCacheTest, AnEntryWithAWrongAddressOrDateIsPassedOver) {
    const QString path = pictures_.WritePicture("a.jpg");
    const FileStamp stamp = FileStamp::Of(path);
    const QString address = ThumbnailCache::Address(path);
    WriteForeign(path, 256, address + "x", Modified(path));
    EXPECT_FALSE(Cache().Find(path, stamp, 256));
    WriteForeign(path, 256, address, QString::number(stamp.modified / 1000 + 1));
    EXPECT_FALSE(Cache().Find(path, stamp, 256));
    WriteForeign(path, 256, QString(), Modified(path));
    EXPECT_FALSE(Cache().Find(path, stamp, 256));
    WriteForeign(path, 256, address, QString());
    EXPECT_FALSE(Cache().Find(path, stamp, 256));
}

TEST_F(ThumbnailCacheTest, AnEntryThatIsTooLargeCutOrNoPictureIsPassedOver) {
    const QString path = pictures_.WritePicture("a.jpg");
    const FileStamp stamp = FileStamp::Of(path);
    WriteForeign(path, 1024, ThumbnailCache::Address(path), Modified(path));
    ASSERT_TRUE(QDir().mkpath(folder_ + "/large"));
    const QString entry = Cache().EntryPath(path, 256);
    ASSERT_TRUE(QFile::rename(Cache().EntryPath(path, 1024), entry));
    EXPECT_FALSE(Cache().Find(path, stamp, 256));

    WriteForeign(path, 256, ThumbnailCache::Address(path), Modified(path));
    ASSERT_TRUE(QFile::resize(entry, QFileInfo(entry).size() / 2));
    EXPECT_FALSE(Cache().Find(path, stamp, 256));
    ASSERT_TRUE(QFile::resize(entry, 0));
    EXPECT_FALSE(Cache().Find(path, stamp, 256));
}

TEST_F(ThumbnailCacheTest, AFileThatChangedHasNoEntry) {
    const QString path = pictures_.WritePicture("a.jpg");
    Cache().Store(path, FileStamp::Of(path), SomeThumbnail(), 256);
    pictures_.SetAge("a.jpg", 30);
    EXPECT_FALSE(Cache().Find(path, FileStamp::Of(path), 256));
}

TEST_F(ThumbnailCacheTest, AFileModifiedJustNowIsNotStored) {
    const QString path = pictures_.Write("a.jpg", "content", 0);
    Cache().Store(path, FileStamp::Of(path), SomeThumbnail(), 256);
    Cache().StoreBroken(path, FileStamp::Of(path));
    EXPECT_TRUE(Files().isEmpty());
}

TEST_F(ThumbnailCacheTest, APictureNoLargerThanItsThumbnailIsNotStored) {
    const QString path = pictures_.WritePicture("a.jpg");
    Cache().Store(path, FileStamp::Of(path), {Plain(100, 50, Qt::red), {100, 50}}, 256);
    EXPECT_TRUE(Files().isEmpty());
}

TEST_F(ThumbnailCacheTest, ThumbnailsOfThumbnailsAreNotStored) {
    const QString path = pictures_.WritePicture("a.jpg");
    Cache().Store(path, FileStamp::Of(path), SomeThumbnail(), 256);
    const QString entry = Files().value(0);
    FileStamp old = FileStamp::Of(entry);
    old.modified -= 100000;
    Cache().Store(entry, old, SomeThumbnail(), 128);
    EXPECT_EQ(Files().size(), 1);
}

TEST_F(ThumbnailCacheTest, RemembersBrokenFilesUntilTheyChange) {
    const QString path = pictures_.Write("a.jpg", "no picture");
    EXPECT_FALSE(Cache().IsBroken(path, FileStamp::Of(path)));
    Cache().StoreBroken(path, FileStamp::Of(path));
    EXPECT_TRUE(Cache().IsBroken(path, FileStamp::Of(path)));
    EXPECT_FALSE(Cache().Find(path, FileStamp::Of(path), 128));
    pictures_.SetAge("a.jpg", 30);
    EXPECT_FALSE(Cache().IsBroken(path, FileStamp::Of(path)));
}

TEST_F(ThumbnailCacheTest, TheSizeOfATurnedPictureIsUpright) {
    const QString path = pictures_.WritePicture("a.jpg");
    QImage image = Plain(128, 256, Qt::blue);
    image.setText("Thumb::URI", ThumbnailCache::Address(path));
    image.setText("Thumb::MTime", Modified(path));
    image.setText("Thumb::Image::Width", "4000");
    image.setText("Thumb::Image::Height", "2000");
    QDir().mkpath(folder_ + "/large");
    ASSERT_TRUE(image.save(Cache().EntryPath(path, 256), "png"));
    EXPECT_EQ(Cache().Find(path, FileStamp::Of(path), 256)->pictureSize, QSize(2000, 4000));
}

TEST_F(ThumbnailCacheTest, WithoutAFolderItKeepsNothing) {
    const QString path = pictures_.WritePicture("a.jpg");
    const ThumbnailCache none{QString()};
    none.Store(path, FileStamp::Of(path), SomeThumbnail(), 256);
    none.StoreBroken(path, FileStamp::Of(path));
    EXPECT_FALSE(none.Find(path, FileStamp::Of(path), 256));
    EXPECT_FALSE(none.IsBroken(path, FileStamp::Of(path)));
}

TEST_F(ThumbnailCacheTest, AFolderThatCannotBeMadeIsNoFailure) {
    const QString path = pictures_.WritePicture("a.jpg");
    const ThumbnailCache cache(path + "/thumbnails");  // beneath a file
    cache.Store(path, FileStamp::Of(path), SomeThumbnail(), 256);
    EXPECT_FALSE(cache.Find(path, FileStamp::Of(path), 256));
}
