// The pictures of the follow window, taken from the thumbnail service.
#include "platform/qt/formwidget.h"
#include "platform/qt/qtdesktop.h"
#include "sheet/vorlane.h"
#include "tests/platform/qt/barhand.h"
#include "tests/widgets/thumbnailsupport.h"
#include "widgets/thumbnailprovider.h"
#include "widgets/vorlanewidget.h"
#include "windows/frmscroll.h"

#include <gtest/gtest.h>
#include <memory>

namespace vorlane {
namespace {

using test::WaitFor;

constexpr int kPictures = 100;

class FollowedThumbTest : public testing::Test {
protected:
    FollowedThumbTest() {
        host_.resize(500, 300);
        host_.show();
    }
    ~FollowedThumbTest() override { Form().Unload(); }

    // One worker, which waits.
    void Start(const QString& cacheFolder = {}) {
        ThumbnailOptions options;
        options.workers = 1;
        options.cacheFolder = cacheFolder;
        options.decoder = stage_.Decoder();
        stage_.Shut();
        service_ = std::make_unique<ThumbnailService>(std::move(options));
        provider_ = std::make_unique<ThumbnailProvider>(host_, *service_);
        desktop_.pictures.BeforeLoad.connect([this](const std::string& path, bool& broken) {
            reads_ += !broken && path.starts_with(QFileInfo(pictures_.Path("x")).path().toStdString());
        });
    }
    void Fill(const QStringList& paths) {
        for (const QString& path : paths) host_.Add(path);
        host_.StartLecture();
        QCoreApplication::processEvents();
    }
    QStringList Pictures(QColor color) {
        QStringList paths;
        for (int i = 0; i < kPictures; ++i) paths.push_back(pictures_.WritePicture(QString("p%1.jpg").arg(i), color));
        return paths;
    }
    // Keeps the thumbnails on disk as an earlier run would have.
    static void Keep(const QStringList& paths, const QString& cacheFolder) {
        ThumbnailOptions options;
        options.cacheFolder = cacheFolder;
        ThumbnailService service(std::move(options));
        for (const QString& path : paths) service.request(path, 256);
        ASSERT_TRUE(WaitFor([&] { return service.pending() == 0; }));
        service.waitForWorkers();
    }
    void Drag() {
        hand_ = std::make_unique<test::BarHand>(*host_.findChild<QScrollBar*>());
        hand_->PressThumb();
        hand_->Move({0, 150});  // beyond what is made ahead
    }
    bool Settle() {
        QCoreApplication::processEvents();
        stage_.Open();
        return WaitFor([this] { return service_->pending() == 0; });
    }
    FrmScroll& Form() { return SharedFrmScroll(desktop_.Roles()); }
    QColor Shown() { return desktop_.forms.WidgetOf(Form().Hwnd())->grab().toImage().pixelColor(50, 38); }
    static bool Is(const QColor& color, const QColor& wanted) {
        return std::abs(color.red() - wanted.red()) + std::abs(color.green() - wanted.green()) +
                   std::abs(color.blue() - wanted.blue()) <
               12;
    }

    test::PictureFolder pictures_;
    test::StageDecoder stage_;
    QTemporaryDir cache_;
    QtDesktop desktop_;
    VorlaneWidget host_{desktop_};
    std::unique_ptr<ThumbnailService> service_;
    std::unique_ptr<ThumbnailProvider> provider_;
    std::unique_ptr<test::BarHand> hand_;
    int reads_ = 0;  // pictures read on this thread
};

TEST_F(FollowedThumbTest, AThumbnailOnDiskShowsAtOnce) {
    const QStringList paths = Pictures(Qt::red);
    Keep(paths, cache_.path());
    Start(cache_.path());
    Fill(paths);
    Drag();
    ASSERT_TRUE(Form().Visible());
    EXPECT_TRUE(Is(Shown(), Qt::red));
    EXPECT_EQ(reads_, 0);
    EXPECT_TRUE(stage_.Begun().isEmpty());
}

TEST_F(FollowedThumbTest, ATileShowsUntilTheThumbnailIsThere) {
    Start();
    Fill(Pictures(Qt::red));
    Drag();
    ASSERT_TRUE(Form().Visible());
    EXPECT_TRUE(Shown() != QColor(Qt::black) && !Is(Shown(), Qt::red));
    ASSERT_TRUE(Settle());
    EXPECT_TRUE(Is(Shown(), Qt::red));
    EXPECT_EQ(reads_, 0);
}

TEST_F(FollowedThumbTest, AThumbnailInMemoryShowsAtOnce) {
    Start();
    Fill(Pictures(Qt::red));
    Drag();
    ASSERT_TRUE(Settle());
    stage_.Shut();
    hand_->Move({0, -1});
    hand_->Move({0, 1});
    EXPECT_TRUE(Is(Shown(), Qt::red));
    EXPECT_EQ(reads_, 0);
}

TEST_F(FollowedThumbTest, AThumbnailOfAnOlderStateIsPassedOver) {
    Keep(Pictures(Qt::red), cache_.path());
    const QStringList paths = Pictures(Qt::blue);
    for (const QString& path : paths) pictures_.SetAge(QFileInfo(path).fileName(), 30);
    Start(cache_.path());
    Fill(paths);
    Drag();
    EXPECT_FALSE(Is(Shown(), Qt::red));
    ASSERT_TRUE(Settle());
    EXPECT_TRUE(Is(Shown(), Qt::blue));
    EXPECT_EQ(reads_, 0);
}

TEST_F(FollowedThumbTest, ABrokenFileLeavesTheWindowEmpty) {
    Start();
    QStringList paths;
    for (int i = 0; i < kPictures; ++i) paths.push_back(pictures_.Write(QString("b%1.jpg").arg(i), "no picture"));
    host_.SetScrollWindowBackColor(Qt::green);
    Fill(paths);
    Drag();
    EXPECT_NE(Shown(), QColor(Qt::green));
    ASSERT_TRUE(Settle());
    EXPECT_EQ(Shown(), QColor(Qt::green));
    std::string named;
    host_.sheet().Events.GetThumbPath.connect([&](const std::string&, std::string& thumb) { named = thumb; });
    hand_->Move({0, -30});
    hand_->Move({0, 30});
    EXPECT_EQ(Shown(), QColor(Qt::green));
    EXPECT_EQ(reads_, 0);
    EXPECT_TRUE(QFile::exists(QString::fromStdString(named))) << "the broken file is not even opened";
}

TEST_F(FollowedThumbTest, WhatTheHostNamesIsLeftAlone) {
    const QString own = pictures_.WritePicture("own.jpg", Qt::green);
    QObject::connect(&host_, &VorlaneWidget::OnGetThumbPath, &host_,
                     [&](const QString&, QString* thumb) { *thumb = own; });
    Start();
    Fill(Pictures(Qt::red));
    Drag();
    EXPECT_TRUE(Is(Shown(), Qt::green));
    ASSERT_TRUE(Settle());
    EXPECT_TRUE(Is(Shown(), Qt::green));
}

TEST_F(FollowedThumbTest, AThumbnailThatComesBehindTheReleaseShowsNothing) {
    Start();
    Fill(Pictures(Qt::red));
    Drag();
    hand_->Release();
    EXPECT_FALSE(Form().Visible());
    ASSERT_TRUE(Settle());
    EXPECT_FALSE(Form().Loaded());
}

TEST_F(FollowedThumbTest, WithoutTheServiceTheSheetReadsForItself) {
    Start();
    service_.reset();
    Fill(Pictures(Qt::red));
    reads_ = 0;
    Drag();
    EXPECT_TRUE(Is(Shown(), Qt::red));
    EXPECT_EQ(reads_, 1);
}

}  // namespace
}  // namespace vorlane
