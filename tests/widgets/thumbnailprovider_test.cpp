#include "widgets/thumbnailprovider.h"

#include "platform/qt/qtdesktop.h"
#include "platform/qt/qtpicturedata.h"
#include "sheet/vorlane.h"
#include "tests/widgets/thumbnailsupport.h"
#include "widgets/vorlanewidget.h"

#include <gtest/gtest.h>

using namespace vorlane;
using test::WaitFor;

namespace {

class ThumbnailProviderTest : public testing::Test {
protected:
    ThumbnailProviderTest() {
        sheet().Events.InvalidPicture.connect([this](int16_t, const std::string& name) {
            invalid_.push_back(QFileInfo(QString::fromStdString(name)).fileName());
        });
        sheet().Events.Error.connect([this](int32_t, const std::string& what, const std::string&, int32_t,
                                            const std::string&) { ADD_FAILURE() << what; });
        host_.resize(500, 300);
        host_.show();
    }
    // options: but for the decoder, which is the stage's.
    void Start(ThumbnailOptions options = {}) {
        options.cacheFolder.clear();
        options.decoder = stage_.Decoder();
        service_ = std::make_unique<ThumbnailService>(std::move(options));
        provider_ = std::make_unique<ThumbnailProvider>(host_, *service_);
        desktop_.pictures.BeforeLoad.connect([this](const std::string&, bool& broken) { loads_ += !broken; });
    }
    void Fill(const QStringList& paths) {
        for (const QString& path : paths) sheet().Add(path.toStdString(), {});
        sheet().StartLecture();
    }
    bool Settle() {
        QCoreApplication::processEvents();
        return WaitFor([this] { return service_->pending() == 0; });
    }
    Vorlane& sheet() { return host_.sheet(); }
    eDiapoLight& Slide(int32_t index) { return *sheet().Diapo.Item(index); }
    // The middle of what a slide shows of its picture.
    QColor Shown(int32_t index) { return RenderPicture(Slide(index).Picture(), {20, 20}).pixelColor(10, 10); }
    bool ShowsTile(int32_t index) { return Slide(index).ImageWidth() == 3000; }

    test::PictureFolder pictures_;
    test::StageDecoder stage_;
    QtDesktop desktop_;
    VorlaneWidget host_{desktop_};
    std::unique_ptr<ThumbnailService> service_;
    std::unique_ptr<ThumbnailProvider> provider_;
    QStringList invalid_;
    int loads_ = 0;  // files read on this thread
};

// Whether a colour is that one, but for what a jpeg makes of it.
bool Is(const QColor& color, const QColor& wanted) {
    return std::abs(color.red() - wanted.red()) + std::abs(color.green() - wanted.green()) +
               std::abs(color.blue() - wanted.blue()) <
           12;
}

}  // namespace

TEST_F(ThumbnailProviderTest, ASlideShowsATileFirstAndItsThumbnailWhenItArrives) {
    Start();
    stage_.Shut();
    Fill({pictures_.WritePicture("a.jpg", Qt::red)});
    EXPECT_TRUE(ShowsTile(0));
    EXPECT_EQ(provider_->missing(), 1);
    stage_.Open();
    ASSERT_TRUE(Settle());
    EXPECT_EQ(provider_->missing(), 0);
    EXPECT_TRUE(Is(Shown(0), Qt::red));
    EXPECT_TRUE(invalid_.isEmpty());
}

TEST_F(ThumbnailProviderTest, ThePictureHasTheSizeOfTheFilesOwn) {
    Start();
    Fill({pictures_.WritePicture("a.jpg", Qt::red, {1800, 1200})});
    ASSERT_TRUE(Settle());
    EXPECT_EQ(Slide(0).ImageWidth(), 1800);
    EXPECT_EQ(Slide(0).ImageHeight(), 1200);
}

TEST_F(ThumbnailProviderTest, ASlideShowsAtOnceWhatTheServiceHas) {
    Start();
    const QString path = pictures_.WritePicture("a.jpg", Qt::red);
    Fill({path});
    ASSERT_TRUE(Settle());
    sheet().Clear();
    Fill({path});
    EXPECT_EQ(provider_->missing(), 0);
    EXPECT_TRUE(Is(Shown(0), Qt::red));
}

TEST_F(ThumbnailProviderTest, NoFileIsEverReadOnTheUsersThread) {
    Start();
    QStringList paths = pictures_.WritePictures(60);
    paths.insert(3, pictures_.Write("broken.jpg", "no picture"));
    paths.insert(5, pictures_.Path("missing.jpg"));
    paths.insert(7, pictures_.WritePicture("without"));
    Fill(paths);
    for (int page = 0; page < 60; page += 8) {
        sheet().VScroll.SetValue(page);
        ASSERT_TRUE(page % 16 == 0 || Settle());
    }
    for (int back = 60; back >= 0; back -= 5) sheet().VScroll.SetValue(back);
    ASSERT_TRUE(Settle());
    EXPECT_EQ(loads_, 0);
    EXPECT_GT(stage_.Begun().size(), 30);
    EXPECT_EQ(stage_.Threads().count(std::this_thread::get_id()), 0U);
    EXPECT_LE(stage_.MostAtOnce(), 2);
}

TEST_F(ThumbnailProviderTest, ABrokenFileEndsAsTheSubstituteWithItsEvent) {
    Start();
    const QStringList paths = {pictures_.WritePicture("a.jpg"), pictures_.Write("broken.jpg", "no picture"),
                               pictures_.Path("missing.jpg")};
    Fill(paths);
    EXPECT_TRUE(invalid_.isEmpty());
    ASSERT_TRUE(Settle());
    invalid_.sort();
    EXPECT_EQ(invalid_, QStringList({"broken.jpg", "missing.jpg"}));
    EXPECT_EQ(Slide(1).Picture(), desktop_.pictures.Get(Artwork::FileSubstitute));
    EXPECT_EQ(provider_->missing(), 0);
    EXPECT_EQ(loads_, 0);
}

TEST_F(ThumbnailProviderTest, ABrokenFileShownAgainIsTheSubstituteAtOnce) {
    Start();
    const QString path = pictures_.Write("broken.jpg", "no picture");
    Fill({path});
    ASSERT_TRUE(Settle());
    sheet().Clear();
    Fill({path});
    EXPECT_EQ(invalid_, QStringList({"broken.jpg", "broken.jpg"}));
    EXPECT_EQ(loads_, 0);
}

TEST_F(ThumbnailProviderTest, ABrokenFileIsNotReadEvenIfTheServiceCanRememberNothing) {
    ThumbnailOptions options;
    options.memoryBudget = 0;
    Start(std::move(options));
    Fill({pictures_.Write("broken.jpg", "no picture"), pictures_.WritePicture("a.jpg", Qt::red)});
    ASSERT_TRUE(Settle());
    EXPECT_EQ(invalid_, QStringList("broken.jpg"));
    EXPECT_TRUE(Is(Shown(1), Qt::red));
    EXPECT_EQ(loads_, 0);
}

TEST_F(ThumbnailProviderTest, ABrokenFileThatIsRepairedIsShown) {
    ThumbnailOptions options;
    options.checkInterval = 0;
    Start(std::move(options));
    const QString path = pictures_.Write("a.jpg", "no picture");
    Fill({path});
    ASSERT_TRUE(Settle());
    pictures_.WritePicture("a.jpg", Qt::blue);
    sheet().Clear();
    Fill({path});
    ASSERT_TRUE(WaitFor([this] { return Is(Shown(0), Qt::blue); }));
}

TEST_F(ThumbnailProviderTest, AFileWithoutExtensionIsServedLikeAnyOther) {
    Start();
    Fill({pictures_.WritePicture("without", Qt::blue), pictures_.Write("Makefile", "all:\n")});
    ASSERT_TRUE(Settle());
    EXPECT_TRUE(Is(Shown(0), Qt::blue));
    EXPECT_EQ(invalid_, QStringList("Makefile."));
    EXPECT_EQ(loads_, 0);
}

TEST_F(ThumbnailProviderTest, FilesOfOtherKindsAreNotAskedFor) {
    Start();
    Fill({pictures_.Write("song.mp3", "x"), pictures_.Write("film.mp4", "x"), pictures_.Write("text.pdf", "x")});
    ASSERT_TRUE(Settle());
    EXPECT_TRUE(stage_.Begun().isEmpty());
    EXPECT_TRUE(invalid_.isEmpty());
    EXPECT_EQ(Slide(0).Picture(), desktop_.pictures.Get(Artwork::FileSound));
}

TEST_F(ThumbnailProviderTest, APictureThatAnotherHandlerGaveIsLeftAlone) {
    const Picture given = PictureFromImage(test::Plain(50, 50, Qt::green));
    sheet().Events.BeforeSetPicture.connect(
        [&](int16_t, const std::string&, Picture& picture, bool&, bool&, bool&, bool&, bool&) { picture = given; });
    Start();
    Fill({pictures_.WritePicture("a.jpg", Qt::red)});
    ASSERT_TRUE(Settle());
    EXPECT_EQ(Slide(0).Picture(), given);
    EXPECT_TRUE(stage_.Begun().isEmpty());
}

TEST_F(ThumbnailProviderTest, AThumbnailThatComesLateGoesToTheSlideThatShowsItsFileNow) {
    Start();
    QStringList paths;
    for (int i = 0; i < 40; ++i) paths.push_back(pictures_.WritePicture(QString("p%1.jpg").arg(i), Qt::red));
    paths[4] = pictures_.WritePicture("blue.jpg", Qt::blue);
    stage_.Shut();
    Fill(paths);
    QCoreApplication::processEvents();
    sheet().VScroll.SetValue(4);  // all looks move up
    stage_.Open();
    ASSERT_TRUE(Settle());
    for (int32_t k = 0; k < sheet().CountDiapo(); ++k) {
        const bool blue = Slide(k).ImageFullPath() == paths[4].toStdString();
        EXPECT_TRUE(Is(Shown(k), blue ? Qt::blue : Qt::red)) << k;
    }
}

TEST_F(ThumbnailProviderTest, WhatScrolledAwayIsDroppedAndAskedForAgainWhenItComesBack) {
    ThumbnailOptions options;
    options.workers = 1;
    Start(std::move(options));
    stage_.Shut();
    Fill(pictures_.WritePictures(100));
    QCoreApplication::processEvents();
    sheet().VScroll.SetValue(60);
    QCoreApplication::processEvents();
    EXPECT_GT(service_->counts().dropped, 0);
    sheet().VScroll.SetValue(0);
    QCoreApplication::processEvents();
    stage_.Open();
    ASSERT_TRUE(Settle());
    EXPECT_EQ(provider_->missing(), 0);
    for (int32_t k = 0; k < sheet().CountDiapo(); ++k) EXPECT_FALSE(ShowsTile(k)) << k;
}

TEST_F(ThumbnailProviderTest, SlidesInSightComeFirstAsOneReadsThemThenTheNextScreenful) {
    ThumbnailOptions options;
    options.workers = 1;
    Start(std::move(options));
    stage_.Shut();
    const QStringList paths = pictures_.WritePictures(100);
    Fill(paths);
    QCoreApplication::processEvents();
    stage_.Open();
    ASSERT_TRUE(Settle());
    const int pool = sheet().CountDiapo();
    const QStringList begun = stage_.Begun();
    ASSERT_EQ(begun.size(), 2 * pool);
    // The worker may have begun any one before the sheet told its order.
    QStringList inOrder;
    for (int i = 0; i < 2 * pool; ++i) inOrder.push_back(QFileInfo(paths[i]).fileName());
    inOrder.removeAll(begun.first());
    EXPECT_EQ(begun.mid(1), inOrder);
}

TEST_F(ThumbnailProviderTest, ASlideThatGrowsGetsMorePixels) {
    Start();
    Fill({pictures_.WritePicture("a.jpg", Qt::red, {2000, 1500})});
    ASSERT_TRUE(Settle());
    const int before = static_cast<int>(stage_.Begun().size());
    sheet().DiapoSizeChange(true, 400, 300);
    ASSERT_TRUE(Settle());
    EXPECT_EQ(stage_.Begun().size(), before + 1);
    EXPECT_EQ(service_->request(pictures_.Path("a.jpg"), 400).thumbnail.image.width(), 512);
    sheet().DiapoSizeChange(true, 100, 75);
    ASSERT_TRUE(Settle());
    EXPECT_EQ(stage_.Begun().size(), before + 1);
}

TEST_F(ThumbnailProviderTest, AFileThatIsOnTwoSlidesIsDecodedOnceAndShownOnBoth) {
    Start();
    const QString path = pictures_.WritePicture("a.jpg", Qt::blue);
    Fill({path, path});
    ASSERT_TRUE(Settle());
    EXPECT_TRUE(Is(Shown(0), Qt::blue));
    EXPECT_TRUE(Is(Shown(1), Qt::blue));
    EXPECT_EQ(stage_.Begun().size(), 1);
}

TEST_F(ThumbnailProviderTest, TellsHowManySlidesWait) {
    Start();
    QList<int> counts;
    QObject::connect(provider_.get(), &ThumbnailProvider::missingChanged, [&](int count) { counts.push_back(count); });
    Fill(pictures_.WritePictures(3));
    ASSERT_TRUE(Settle());
    EXPECT_EQ(counts, QList<int>({1, 2, 3, 2, 1, 0}));
}

TEST_F(ThumbnailProviderTest, WhenTheServiceIsGoneTheSheetReadsForItself) {
    Start();
    service_.reset();
    Fill({pictures_.WritePicture("a.jpg", Qt::blue)});
    EXPECT_TRUE(Is(Shown(0), Qt::blue));
    EXPECT_EQ(loads_, 1);
}

TEST_F(ThumbnailProviderTest, AHostThatClearsTheSheetInItsEventHarmsNothing) {
    Start();
    sheet().Events.InvalidPicture.connect([this](int16_t, const std::string&) { sheet().Clear(); });
    Fill({pictures_.Write("a.jpg", "x"), pictures_.Write("b.jpg", "x"), pictures_.WritePicture("c.jpg")});
    ASSERT_TRUE(Settle());
    EXPECT_EQ(sheet().Liste()->ListCount(), 0);
}
