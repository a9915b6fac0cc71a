#include "widgets/thumbnailservice.h"

#include "tests/platform/plainuser.h"
#include "tests/widgets/thumbnailsupport.h"

#include <atomic>
#include <gtest/gtest.h>
#include <stdexcept>
#include <thread>

#include <QThread>

using namespace vorlane;
using test::Encoded;
using test::Plain;
using test::WaitFor;
using State = ThumbnailService::State;

namespace {

class ThumbnailServiceTest : public testing::Test {
protected:
    ThumbnailOptions Options(int workers = 2) {
        ThumbnailOptions options;
        options.workers = workers;
        options.cacheFolder.clear();
        options.checkInterval = 0;
        options.decoder = stage_.Decoder();
        return options;
    }
    void Start(ThumbnailOptions options) {
        service_ = std::make_unique<ThumbnailService>(std::move(options));
        QObject::connect(service_.get(), &ThumbnailService::ready, [this](const QString& path, const Thumbnail&) {
            ready_.push_back(QFileInfo(path).fileName());
            threads_.insert(std::this_thread::get_id());
        });
        QObject::connect(service_.get(), &ThumbnailService::failed, [this](const QString& path) {
            failed_.push_back(QFileInfo(path).fileName());
            threads_.insert(std::this_thread::get_id());
        });
    }
    bool Settle() {
        return WaitFor([this] { return service_->pending() == 0; });
    }
    // Lets a check of a file that is at hand run to its end.
    void Check(const QString& path) {
        service_->request(path, 128);
        service_->waitForWorkers();
        QCoreApplication::processEvents();
    }
    // Keeps the one worker busy until the stage opens.
    void OccupyWorker() {
        stage_.Shut();
        service_->request(pictures_.WritePicture("busy.jpg"), 128);
        ASSERT_TRUE(WaitFor([this] { return stage_.Begun() == QStringList("busy.jpg"); }));
    }

    test::PictureFolder pictures_;
    test::StageDecoder stage_;
    QStringList ready_;
    QStringList failed_;
    std::set<std::thread::id> threads_;  // on which signals came
    std::unique_ptr<ThumbnailService> service_;
};

}  // namespace

TEST_F(ThumbnailServiceTest, AnswersLaterAtFirstAndAtOnceFromThenOn) {
    Start(Options());
    const QString path = pictures_.WritePicture("a.jpg");
    EXPECT_EQ(service_->request(path, 150).state, State::Pending);
    EXPECT_EQ(service_->pending(), 1);
    ASSERT_TRUE(Settle());
    EXPECT_EQ(ready_, QStringList("a.jpg"));
    const auto answer = service_->request(path, 150);
    EXPECT_EQ(answer.state, State::Ready);
    EXPECT_EQ(answer.thumbnail.image.size(), QSize(256, 170));
    EXPECT_EQ(answer.thumbnail.pictureSize, QSize(600, 400));
    EXPECT_EQ(service_->counts().decoded, 1);
}

TEST_F(ThumbnailServiceTest, NoDecodeEverRunsOnTheUsersThreadAndOneAtATimeOnAWorker) {
    Start(Options());
    const QStringList paths = pictures_.WritePictures(40);
    for (int round = 0; round < 3; ++round) {
        for (const QString& path : paths) service_->request(path, 100 * (round + 1));
        ASSERT_TRUE(Settle());
    }
    EXPECT_EQ(stage_.Begun().size(), 3 * 40);
    EXPECT_EQ(service_->counts().decoded, 3 * 40);
    EXPECT_EQ(stage_.Threads().count(std::this_thread::get_id()), 0U);
    EXPECT_LE(stage_.Threads().size(), 2U);
    EXPECT_LE(stage_.MostAtOnce(), 2);
    EXPECT_EQ(threads_, std::set{std::this_thread::get_id()});
}

TEST_F(ThumbnailServiceTest, ARequestMadeAgainIsDecodedOnce) {
    Start(Options(1));
    OccupyWorker();
    const QString path = pictures_.WritePicture("a.jpg");
    for (int i = 0; i < 5; ++i) service_->request(path, 128);
    EXPECT_EQ(service_->pending(), 2);
    stage_.Open();
    ASSERT_TRUE(Settle());
    EXPECT_EQ(stage_.Begun(), QStringList({"busy.jpg", "a.jpg"}));
}

TEST_F(ThumbnailServiceTest, WhatIsInSightComesFirstAndInItsOrder) {
    Start(Options(1));
    OccupyWorker();
    const QStringList paths = pictures_.WritePictures(4);
    service_->setWanted({paths[2], paths[1]});
    for (const QString& path : paths) service_->request(path, 128);
    stage_.Open();
    ASSERT_TRUE(Settle());
    EXPECT_EQ(stage_.Begun(), QStringList({"busy.jpg", "p002.jpg", "p001.jpg", "p003.jpg", "p000.jpg"}));
}

TEST_F(ThumbnailServiceTest, WhatScrolledAwayIsNeverDecoded) {
    Start(Options(1));
    OccupyWorker();
    const QStringList paths = pictures_.WritePictures(6);
    for (const QString& path : paths) service_->request(path, 128);
    service_->setWanted(paths.mid(4));
    EXPECT_EQ(service_->counts().dropped, 4);
    EXPECT_EQ(service_->pending(), 3);
    stage_.Open();
    ASSERT_TRUE(Settle());
    EXPECT_EQ(stage_.Begun(), QStringList({"busy.jpg", "p004.jpg", "p005.jpg"}));
    EXPECT_EQ(service_->request(paths[0], 128).state, State::Pending);  // and can be asked for again
    ASSERT_TRUE(Settle());
    EXPECT_TRUE(ready_.contains("p000.jpg"));
}

TEST_F(ThumbnailServiceTest, TellsHowManyArePending) {
    Start(Options(1));
    QList<int> counts;
    QObject::connect(service_.get(), &ThumbnailService::pendingChanged, [&](int count) { counts.push_back(count); });
    OccupyWorker();
    const QStringList paths = pictures_.WritePictures(3);
    for (const QString& path : paths) service_->request(path, 128);
    service_->setWanted({paths[0]});
    stage_.Open();
    ASSERT_TRUE(Settle());
    EXPECT_EQ(counts, QList<int>({1, 2, 3, 4, 2, 1, 0}));
}

TEST_F(ThumbnailServiceTest, ALargerSizeShowsTheSmallerOneMeanwhile) {
    Start(Options());
    const QString path = pictures_.WritePicture("a.jpg", Qt::red, {2000, 1000});
    service_->request(path, 128);
    ASSERT_TRUE(Settle());
    const auto answer = service_->request(path, 400);
    EXPECT_EQ(answer.state, State::Pending);
    EXPECT_EQ(answer.thumbnail.image.width(), 128);
    ASSERT_TRUE(Settle());
    EXPECT_EQ(service_->request(path, 400).thumbnail.image.width(), 512);
    EXPECT_EQ(service_->request(path, 100).thumbnail.image.width(), 512);
    EXPECT_EQ(service_->counts().decoded, 2);
}

TEST_F(ThumbnailServiceTest, ASmallPictureIsDecodedOnceForAllSizes) {
    Start(Options());
    const QString path = pictures_.WritePicture("a.jpg", Qt::red, {90, 60});
    service_->request(path, 128);
    ASSERT_TRUE(Settle());
    EXPECT_EQ(service_->request(path, 1024).state, State::Ready);
}

TEST_F(ThumbnailServiceTest, ASmallerSizeThatComesLateReplacesNothing) {
    Start(Options(2));
    const QString path = pictures_.WritePicture("a.jpg", Qt::red, {2000, 1000});
    stage_.Shut();
    service_->request(path, 128);
    ASSERT_TRUE(WaitFor([this] { return stage_.Begun().size() == 1; }));
    service_->request(path, 512);
    stage_.Open();
    ASSERT_TRUE(Settle());
    service_->waitForWorkers();
    QCoreApplication::processEvents();
    EXPECT_EQ(service_->request(path, 512).state, State::Ready);
    EXPECT_EQ(service_->counts().decoded, 2);
}

TEST_F(ThumbnailServiceTest, BrokenFilesFailOnceAndAreNotTriedAgain) {
    Start(Options());
    const QByteArray jpeg = Encoded(Plain(600, 400, Qt::red));
    const QStringList paths = {
        pictures_.Write("corrupt.jpg", QByteArray(5000, 'x')),
        pictures_.Write("truncated.jpg", jpeg.left(jpeg.size() / 2)),
        pictures_.Write("empty.jpg", {}),
        pictures_.Write("text.png", "This is no picture."),
        pictures_.Path("missing.jpg"),
        pictures_.Path("."),
    };
    for (const QString& path : paths) EXPECT_EQ(service_->request(path, 128).state, State::Pending);
    ASSERT_TRUE(Settle());
    EXPECT_EQ(failed_.size(), paths.size());
    EXPECT_TRUE(ready_.isEmpty());
    const int decoded = service_->counts().decoded;
    EXPECT_EQ(decoded, 4);  // what is no file isn't even opened
    for (const QString& path : paths) {
        EXPECT_EQ(service_->request(path, 128).state, State::Failed);
        EXPECT_TRUE(service_->isKnownBroken(path));
        Check(path);
    }
    EXPECT_EQ(service_->counts().decoded, decoded);
    EXPECT_EQ(failed_.size(), paths.size());
}

TEST_F(ThumbnailServiceTest, AnEnormousDeclaredPictureFailsAtLittleCost) {
    Start(Options());
    const QByteArray bytes = QByteArray("P5\n60000 60000\n255\n") + QByteArray(100, 'x');
    const QString path = pictures_.Write("huge.pgm", bytes);
    service_->request(path, 128);
    ASSERT_TRUE(Settle());
    EXPECT_EQ(failed_, QStringList("huge.pgm"));
}

TEST_F(ThumbnailServiceTest, AFileThatMayNotBeReadIsTriedAgainOnceItMay) {
    const PlainUser user;
    test::PictureFolder own;
    Start(Options());
    const QString path = own.WritePicture("a.jpg");
    ASSERT_TRUE(QFile::setPermissions(path, {}));
    service_->request(path, 128);
    EXPECT_TRUE(Settle());
    EXPECT_EQ(failed_, QStringList("a.jpg"));
    const FileStamp before = FileStamp::Of(path);
    ASSERT_TRUE(WaitFor([&] {  // file systems tell changes apart only after some milliseconds
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
        return FileStamp::Of(path) != before;
    }));
    service_->request(path, 128);
    EXPECT_TRUE(WaitFor([this] { return !ready_.isEmpty(); }));
}

TEST_F(ThumbnailServiceTest, ARepairedFileIsShown) {
    Start(Options());
    const QString path = pictures_.Write("a.jpg", "no picture");
    service_->request(path, 128);
    ASSERT_TRUE(Settle());
    EXPECT_EQ(service_->request(path, 128).state, State::Failed);
    pictures_.WritePicture("a.jpg");
    EXPECT_EQ(service_->request(path, 128).state, State::Failed);  // at once; the look at the file comes behind it
    ASSERT_TRUE(WaitFor([this] { return ready_ == QStringList("a.jpg"); }));
    EXPECT_EQ(service_->request(path, 128).state, State::Ready);
    EXPECT_FALSE(service_->isKnownBroken(path));
}

TEST_F(ThumbnailServiceTest, AChangedFileIsToldAgain) {
    Start(Options());
    const QString path = pictures_.WritePicture("a.jpg", Qt::red);
    service_->request(path, 128);
    ASSERT_TRUE(Settle());
    pictures_.WritePicture("a.jpg", Qt::blue);
    pictures_.SetAge("a.jpg", 10);
    EXPECT_EQ(service_->request(path, 128).state, State::Ready);
    ASSERT_TRUE(WaitFor([this] { return ready_.size() == 2; }));
    EXPECT_GT(qBlue(service_->request(path, 128).thumbnail.image.pixel(5, 5)), 200);
}

TEST_F(ThumbnailServiceTest, AFileThatVanishedFailsAtTheNextLook) {
    Start(Options());
    const QString path = pictures_.WritePicture("a.jpg");
    service_->request(path, 128);
    ASSERT_TRUE(Settle());
    ASSERT_TRUE(QFile::remove(path));
    EXPECT_EQ(service_->request(path, 128).state, State::Ready);
    ASSERT_TRUE(WaitFor([this] { return failed_ == QStringList("a.jpg"); }));
    EXPECT_EQ(service_->request(path, 128).state, State::Failed);
}

TEST_F(ThumbnailServiceTest, AnUnchangedFileIsOnlyLookedAt) {
    Start(Options());
    const QString path = pictures_.WritePicture("a.jpg");
    service_->request(path, 128);
    ASSERT_TRUE(Settle());
    Check(path);
    EXPECT_EQ(service_->counts().unchanged, 1);
    EXPECT_EQ(service_->counts().decoded, 1);
    EXPECT_EQ(ready_.size(), 1);
}

TEST_F(ThumbnailServiceTest, WithinTheCheckIntervalNobodyLooks) {
    ThumbnailOptions options = Options();
    options.checkInterval = 3600 * 1000;
    Start(std::move(options));
    const QString path = pictures_.WritePicture("a.jpg");
    service_->request(path, 128);
    ASSERT_TRUE(Settle());
    Check(path);
    EXPECT_EQ(service_->counts().unchanged, 0);
}

TEST_F(ThumbnailServiceTest, MemoryStaysWithinItsBudget) {
    ThumbnailOptions options = Options();
    options.memoryBudget = 5 * 128 * 85 * 4;
    Start(std::move(options));
    const QStringList paths = pictures_.WritePictures(20);
    for (const QString& path : paths) service_->request(path, 128);
    ASSERT_TRUE(Settle());
    EXPECT_LE(service_->memoryBytes(), 5 * 128 * 85 * 4);
    EXPECT_GT(service_->memoryBytes(), 3 * 128 * 85 * 4);
    EXPECT_EQ(ready_.size(), 20);
}

TEST_F(ThumbnailServiceTest, ASecondProgramFindsTheThumbnailsOnDisk) {
    const QTemporaryDir cache;
    ThumbnailOptions options = Options();
    options.cacheFolder = cache.filePath("thumbnails");
    Start(options);
    QStringList paths = pictures_.WritePictures(5);
    paths.push_back(pictures_.Write("broken.jpg", "no picture"));
    for (const QString& path : paths) service_->request(path, 128);
    ASSERT_TRUE(Settle());
    service_->waitForWorkers();

    Start(options);
    for (const QString& path : paths) service_->request(path, 128);
    ASSERT_TRUE(Settle());
    EXPECT_EQ(service_->counts().decoded, 0);
    EXPECT_EQ(service_->counts().fromDisk, 6);
    EXPECT_EQ(service_->request(paths[0], 128).thumbnail.pictureSize, QSize(600, 400));
    EXPECT_EQ(failed_, QStringList({"broken.jpg", "broken.jpg"}));
}

TEST_F(ThumbnailServiceTest, AnEntryThatDoesNotTellThePicturesSizeIsCompleted) {
    const QTemporaryDir folder;
    ThumbnailOptions options = Options();
    options.cacheFolder = folder.filePath("thumbnails");
    const QString path = pictures_.WritePicture("a.jpg");
    QImage image = Plain(128, 85, Qt::blue);
    image.setText("Thumb::URI", ThumbnailCache::Address(path));
    image.setText("Thumb::MTime", QString::number(FileStamp::Of(path).modified / 1000));
    const QString entry = ThumbnailCache(options.cacheFolder).EntryPath(path, 128);
    QDir().mkpath(QFileInfo(entry).path());
    ASSERT_TRUE(image.save(entry, "png"));
    Start(options);
    service_->request(path, 128);
    ASSERT_TRUE(Settle());
    EXPECT_EQ(service_->counts().decoded, 0);
    EXPECT_EQ(service_->request(path, 128).thumbnail.pictureSize, QSize(600, 400));
}

TEST_F(ThumbnailServiceTest, EntriesAreWrittenBehindAllRequests) {
    const QTemporaryDir cache;
    ThumbnailOptions options = Options(1);
    options.cacheFolder = cache.filePath("thumbnails");
    const QStringList paths = pictures_.WritePictures(20);
    int entriesAtTheLastDecode = -1;
    options.decoder = [&, real = options.decoder](const QString& path, int edge) {
        entriesAtTheLastDecode = static_cast<int>(QDir(cache.filePath("thumbnails/normal")).count());
        return real(path, edge);
    };
    Start(options);
    stage_.Shut();
    for (const QString& path : paths) service_->request(path, 128);
    stage_.Open();
    ASSERT_TRUE(Settle());
    service_->waitForWorkers();
    EXPECT_EQ(entriesAtTheLastDecode, 0);
    EXPECT_EQ(QDir(cache.filePath("thumbnails/normal")).entryList(QDir::Files).size(), 20);
}

TEST_F(ThumbnailServiceTest, ThatAFileCouldNotBeOpenedIsNotKeptOnDisk) {
    const QTemporaryDir cache;
    ThumbnailOptions options = Options();
    options.cacheFolder = cache.filePath("thumbnails");
    options.decoder = [](const QString&, int) { return ThumbnailDecoded{}; };
    Start(std::move(options));
    service_->request(pictures_.WritePicture("a.jpg"), 128);
    ASSERT_TRUE(Settle());
    service_->waitForWorkers();
    EXPECT_EQ(failed_, QStringList("a.jpg"));
    EXPECT_TRUE(QDir(cache.path()).isEmpty());
}

TEST_F(ThumbnailServiceTest, AnSvgFilesThumbnailIsABitmapLikeAnyOther) {
    Start(Options());
    const QString path = pictures_.Write("a.svg", R"(<svg xmlns="http://www.w3.org/2000/svg" width="400" height="200">
        <rect width="400" height="200" fill="#00f"/></svg>)");
    service_->request(path, 128);
    ASSERT_TRUE(Settle());
    const QImage image = service_->request(path, 128).thumbnail.image;
    EXPECT_EQ(image.size(), QSize(128, 64));
    EXPECT_EQ(image.pixelColor(60, 30), QColor(0, 0, 255));
}

TEST_F(ThumbnailServiceTest, ADecoderThatThrowsFailsTheFileAndNothingElse) {
    ThumbnailOptions options = Options();
    options.decoder = [](const QString&, int) -> ThumbnailDecoded { throw std::runtime_error("no memory"); };
    Start(std::move(options));
    service_->request(pictures_.WritePicture("a.jpg"), 128);
    ASSERT_TRUE(Settle());
    EXPECT_EQ(failed_, QStringList("a.jpg"));
}

TEST_F(ThumbnailServiceTest, ItMayEndInItsOwnSignal) {
    Start(Options());
    bool called = false;
    QObject::connect(service_.get(), &ThumbnailService::ready, [&] {
        called = true;
        service_.reset();
    });
    service_->request(pictures_.WritePicture("a.jpg"), 128);
    ASSERT_TRUE(WaitFor([&] { return called; }));
    EXPECT_EQ(service_, nullptr);
}

TEST_F(ThumbnailServiceTest, ItEndsAtAnyMomentWhileTheWorkersAreBusy) {
    const QTemporaryDir cache;
    const QStringList paths = pictures_.WritePictures(30);
    for (int moment = 0; moment < 60; ++moment) {
        ThumbnailOptions options = Options(1 + moment % 4);
        options.cacheFolder = moment % 2 ? cache.filePath(QString::number(moment)) : QString();
        Start(std::move(options));
        for (const QString& path : paths) service_->request(path, 128);
        WaitFor([&] { return ready_.size() >= moment % 30; });
        service_.reset();
        QCoreApplication::processEvents();
        const auto heard = ready_.size();
        QCoreApplication::processEvents();
        EXPECT_EQ(ready_.size(), heard);
        ready_.clear();
    }
    EXPECT_LE(stage_.MostAtOnce(), 4);
}
