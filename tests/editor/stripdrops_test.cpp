// Sound files that are dropped on the time line, on slides and beside them.
#include "tests/editor/stripfixture.h"

namespace vorlane::editor {
namespace {

class StripDropsTest : public StripFixture {
protected:
    // Drops files on a widget; whether it took them.
    bool DropOnStrip(const QStringList& files, QPoint place) { return DropOn(TheStrip(), files, place); }
    static bool DropOn(QWidget& target, const QStringList& files, QPoint place) {
        QList<QUrl> urls;
        for (const QString& file : files) urls.push_back(QUrl::fromLocalFile(file));
        QMimeData data;
        data.setUrls(urls);
        QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&target, &enter);
        if (!enter.isAccepted()) return false;
        QDragMoveEvent move(place, Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&target, &move);
        QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, {});
        drop.setDropAction(move.dropAction());
        QCoreApplication::sendEvent(&target, &drop);
        return drop.isAccepted();
    }
};

TEST_F(StripDropsTest, SoundsComeByDroppingThemOnTheStrip) {
    ASSERT_TRUE(OpenPictures("abcd"));
    Action("Horizontal").trigger();
    ASSERT_TRUE(Settle());
    const QString music = Sound("m.wav", 3);
    const QString comment = Sound("c.wav", 3);
    EXPECT_TRUE(DropOnStrip({music, pictures_.Path("a.jpg")}, {MiddleOf(2), 10}));
    EXPECT_TRUE(DropOnStrip({comment}, {MiddleOf(1), TheStrip().height() - 10}));
    EXPECT_EQ(Musics(), "c:m");
    EXPECT_EQ(Told(SoundKind::Comment), "b:c");
    EXPECT_EQ(Status(), QStringLiteral("1 commentaire ajouté"));
    EXPECT_EQ(Letters(), "abcd");
}

TEST_F(StripDropsTest, SoundsDroppedOnASlideAreItsMusicWithAWayBack) {
    ASSERT_TRUE(OpenPictures("abcdef"));
    const QPoint onC = window_->sheet().DiapoRect(2).center().toPoint();
    EXPECT_TRUE(DropOn(window_->sheet(), {Sound("m.wav", 11), Sound("n.wav", 3)}, onC));
    ASSERT_TRUE(Settle());
    EXPECT_EQ(Musics(), "c:m f:n");
    EXPECT_EQ(Status(), QStringLiteral("2 musiques ajoutées"));
    EXPECT_EQ(Letters(), "abcdef");
    Undo();
    EXPECT_EQ(Musics(), "");
    EXPECT_FALSE(window_->slides().undoStack().canUndo());
}

TEST_F(StripDropsTest, PicturesAndSoundsThatAreDroppedTogetherGoWhereEachKindBelongs) {
    ASSERT_TRUE(OpenPictures("abcd"));
    const QRectF b = window_->sheet().DiapoRect(1);
    const QPoint onB(static_cast<int>(b.left() + b.width() * 0.8), static_cast<int>(b.center().y()));
    EXPECT_TRUE(DropOn(window_->sheet(), {pictures_.WritePicture("x.jpg"), Sound("m.wav", 3)}, onB));
    ASSERT_TRUE(Settle());
    EXPECT_EQ(Letters(), "abxcd");
    EXPECT_EQ(Musics(), "b:m");
    EXPECT_EQ(Status(), QStringLiteral("1 musique ajoutée\u00A0; 1 image ajoutée"));
    Undo();
    EXPECT_EQ(Letters(), "abcd");
    EXPECT_EQ(Musics(), "b:m");
    Undo();
    EXPECT_EQ(Musics(), "");
}

TEST_F(StripDropsTest, SoundsDroppedOffTheSlidesGoBehindTheMarkOrToTheCurrentSlide) {
    ASSERT_TRUE(OpenPictures("abcd"));
    window_->navigator().setCurrent(1);
    const QString file = Sound("m.wav", 3);
    const QRectF b = window_->sheet().DiapoRect(1);
    const double between = (b.right() + window_->sheet().DiapoRect(2).left()) / 2;
    EXPECT_TRUE(DropOn(window_->sheet(), {file}, {static_cast<int>(between), static_cast<int>(b.center().y())}));
    EXPECT_EQ(Musics(), "c:m");
    const QPoint farBelow(window_->sheet().width() / 2, window_->sheet().height() - 2);
    EXPECT_TRUE(DropOn(window_->sheet(), {file}, farBelow));
    EXPECT_EQ(Musics(), "c:m d:m") << "behind the last one there is none";
    Drop({QUrl::fromLocalFile(file)});
    EXPECT_EQ(Musics(), "b:m c:m d:m") << "beside the sheet";
}

TEST_F(StripDropsTest, WithoutSlidesADroppedSoundHasNoPlace) {
    Drop({QUrl::fromLocalFile(Sound("m.wav", 3))});
    ASSERT_TRUE(Settle());
    EXPECT_EQ(Status(), QStringLiteral("Aucun son à ajouter"));
    EXPECT_EQ(Musics(), "");
}

TEST_F(StripDropsTest, SoundsWithoutAPlaceAreToldAlongWithThePicturesThatHaveOne) {
    const QUrl song = QUrl::fromLocalFile(Sound("m.wav", 3));
    Drop({song, QUrl::fromLocalFile(pictures_.WritePicture("a.jpg"))});
    ASSERT_TRUE(Settle());
    EXPECT_EQ(Letters(), "a");
    EXPECT_EQ(Status(), QStringLiteral("Aucun son à ajouter\u00A0; 1 image ajoutée"));
    const QString added = pictures_.WritePicture("b.jpg");
    window_->navigator().setCurrent(0);
    ASSERT_TRUE(window_->slides().beginMove());
    Drop({song, QUrl::fromLocalFile(added)});
    window_->slides().endMove();
    ASSERT_TRUE(Settle());
    EXPECT_EQ(Letters(), "ab");
    EXPECT_EQ(Status(), QStringLiteral("La planche est occupée\u00A0; 1 image ajoutée"));
}

TEST_F(StripDropsTest, TheDropIsShownWhereItWouldGo) {
    ASSERT_TRUE(OpenPictures("abcd"));
    Action("Horizontal").trigger();
    ASSERT_TRUE(Settle());
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(Sound("m.wav", 3))});
    const QImage before = TheStrip().grab().toImage();
    const QPoint place(MiddleOf(1), 10);
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&TheStrip(), &enter);
    const QImage during = TheStrip().grab().toImage();
    EXPECT_NE(during.pixel(place.x(), 26), before.pixel(place.x(), 26));
    EXPECT_EQ(during.pixel(MiddleOf(2), 26), before.pixel(MiddleOf(2), 26));
    QDragLeaveEvent leave;
    QCoreApplication::sendEvent(&TheStrip(), &leave);
    EXPECT_EQ(TheStrip().grab().toImage(), before);
}

}  // namespace
}  // namespace vorlane::editor
