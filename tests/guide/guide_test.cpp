// What the pages of docs/guide show does what they say.
#include "tests/guide/album.h"
#include "tests/guide/drags.h"
#include "tests/guide/sounds.h"
#include "tests/guide/thumbnails.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

namespace vorlane {
namespace {

using ::testing::ElementsAre;

class Guide : public ::testing::Test {
protected:
    QTemporaryDir folder;
    VorlaneWidget sheet;

    Guide() {
        sheet.resize(640, 480);
        sheet.show();
    }

    QString PictureFile(const QString& name) const {
        QImage picture(60, 40, QImage::Format_RGB32);
        picture.fill(Qt::red);
        const QString path = folder.filePath(name);
        EXPECT_TRUE(picture.save(path));
        return path;
    }
};

TEST_F(Guide, AnAlbumIsWhatTheSheetShowsAndSelects) {
    Album album;
    for (int32_t key = 0; key < 3; ++key) {
        const QString file = PictureFile(QString::number(key) + ".png");
        album.Photos.push_back({file.toStdString(), 100 + key});
    }
    sheet.InitListe(ui::ListeMode::lmList, &album);
    sheet.StartLecture();
    EXPECT_EQ(sheet.Count(), 3);
    EXPECT_EQ(sheet.ImageFullPath(sheet.Value(1)).toStdString(), album.Photos[1].File);
    EXPECT_EQ(sheet.GetIndexFromKey(102), 2);

    sheet.SelectAll();
    EXPECT_THAT(sheet.SelectedTableau(), ElementsAre(0, 1, 2));
    sheet.SelectedClear();
    sheet.SetSelected(1, true);
    EXPECT_TRUE(album.Photos[1].Selected);
    sheet.Remove(0);
    ASSERT_EQ(album.Photos.size(), 2U);
    EXPECT_EQ(album.Photos[0].Key, 101);
}

TEST_F(Guide, WorkersDecodeThePictures) {
    DecodeInBackground(sheet);
    auto* const provider = sheet.findChild<ThumbnailProvider*>();
    ASSERT_NE(provider, nullptr);
    sheet.Add(PictureFile("red.png"));
    sheet.StartLecture();
    EXPECT_EQ(provider->missing(), 1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return provider->missing() == 0; }, 30000));
}

TEST_F(Guide, PlaceholdersStandForFilesThatAreNotRead) {
    ShowPlaceholders(sheet);
    QImage given;
    QObject::connect(&sheet, &VorlaneWidget::OnBeforeSetPicture,
                     [&](int, const QString&, SlideContent* content) { given = content->Picture; });
    QSignalSpy invalid(&sheet, &VorlaneWidget::OnInvalidPicture);
    sheet.Add("/archive/old.jpg");
    sheet.StartLecture();
    EXPECT_EQ(given.size(), QSize(160, 120));
    EXPECT_EQ(invalid.count(), 0);
}

TEST_F(Guide, MusicLiesBesideThePicture) {
    PlayMusic(sheet);
    bool haveSound = false;
    QObject::connect(&sheet, &VorlaneWidget::OnBeforeSetPicture,
                     [&](int, const QString&, SlideContent* content) { haveSound = content->HaveSound; });
    QFile music(folder.filePath("red.mp3"));
    ASSERT_TRUE(music.open(QIODevice::WriteOnly));
    sheet.Add(PictureFile("red.png"));
    sheet.StartLecture();
    EXPECT_TRUE(haveSound);

    QString file;
    QString alias;
    int button = 0;
    bool play = false;
    Q_EMIT sheet.OnClickPlay(0, &file, &button, 0, &play, &alias);
    EXPECT_EQ(file, music.fileName());
    EXPECT_TRUE(play);
}

TEST_F(Guide, DropsOfTooManyFilesAndTemporaryFilesStayOut) {
    AllowDrags(sheet);
    bool cancel = false;
    Q_EMIT sheet.OnOLEBeforeDropStart(5000, &cancel);
    EXPECT_FALSE(cancel);
    Q_EMIT sheet.OnOLEBeforeDropStart(5001, &cancel);
    EXPECT_TRUE(cancel);
    int key = -1;
    Q_EMIT sheet.OnOLENewFileAdded("a.tmp", &key, &cancel);
    EXPECT_TRUE(cancel);
    Q_EMIT sheet.OnOLENewFileAdded("a.jpg", &key, &cancel);
    EXPECT_FALSE(cancel);
    EXPECT_EQ(key, 1000);
}

}  // namespace
}  // namespace vorlane
