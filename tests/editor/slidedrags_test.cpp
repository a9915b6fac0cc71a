// Drags over the editor's sheet: its own slides, by the user's real press and moves, and files of other programs.
#include "editor/slidedrags.h"

#include "editor/navigator.h"
#include "editor/show.h"
#include "editor/showfile.h"
#include "platform/qt/dragdata.h"
#include "tests/editor/windowfixture.h"
#include "widgets/droppedfiles.h"

#include <functional>
#include <memory>

#include <QDir>
#include <QDragEnterEvent>
#include <QDragMoveEvent>
#include <QWindow>

namespace vorlane::editor {
namespace {

class SlideDragsTest : public WindowFixture {
protected:
    bool ByHand(const QString& letters) {
        window_->slides().setOrder({SortBy::Hand, false});
        return OpenPictures(letters);
    }
    VorlaneWidget& Sheet() { return window_->sheet(); }
    // A place in a slide, from 0 to 1 of its width.
    QPoint In(int slide, double part) {
        const QRectF rect = Sheet().DiapoRect(slide);
        return QPointF(rect.left() + rect.width() * part, rect.center().y()).toPoint();
    }
    void Select(std::initializer_list<int> items) {
        VorlaneList list = Sheet().Liste();
        for (const int i : items) list.SetSelected(i, true);
        window_->slides().showAgain();
    }

    // Drags over a place of the sheet and drops there, if that is let.
    bool DropOnSheet(QMimeData& data, QPoint place, Qt::DropActions actions) {
        QDragEnterEvent enter(place, actions, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&Sheet(), &enter);
        if (!enter.isAccepted()) return false;
        QDragMoveEvent over(place, actions, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&Sheet(), &over);
        if (!over.isAccepted()) {
            QDragLeaveEvent leave;
            QCoreApplication::sendEvent(&Sheet(), &leave);
            return false;
        }
        QDropEvent drop(place, actions, &data, Qt::LeftButton, {});
        drop.setDropAction(over.dropAction());
        QCoreApplication::sendEvent(&Sheet(), &drop);
        return drop.isAccepted();
    }
    bool DropFiles(const QStringList& paths, QPoint place) {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString& path : paths) urls += QUrl::fromLocalFile(path);
        data.setUrls(urls);
        return DropOnSheet(data, place, Qt::CopyAction | Qt::MoveAction) && Settle();
    }
    // The user presses on a slide and draws it away; there is no drag on this platform, so it ends at once. meanwhile
    // is done as long as it runs, with what it carries.
    void Drag(int slide, const std::function<void(QMimeData&)>& meanwhile) {
        int started = 0;
        const auto connection =
            QObject::connect(&Sheet(), &VorlaneWidget::OnOLEStartDrag, [&](DataObject* dragged, const int* allowed) {
                ++started;
                allowed_ = *allowed;
                const auto data = MimeDataFrom(*dragged);
                if (meanwhile) meanwhile(*data);
            });
        QWindow* screen = window_->windowHandle();
        const QPoint from = Sheet().mapTo(window_.get(), In(slide, 0.5));
        QTest::mousePress(screen, Qt::LeftButton, {}, from);
        QTest::mouseMove(screen, from + QPoint(9, 9));
        QTest::mouseRelease(screen, Qt::LeftButton, {}, from + QPoint(9, 9));
        QObject::disconnect(connection);
        EXPECT_EQ(started, 1);
    }
    void DragTo(int slide, QPoint place) {
        Drag(slide, [&](QMimeData& data) { dropped_ = DropOnSheet(data, place, Qt::CopyAction | Qt::MoveAction); });
    }
    void Undo() { window_->slides().undo(); }
    void Redo() { window_->slides().redo(); }
    QStringList FilesInFolder() { return QDir(Folder()).entryList(QDir::Files); }

    bool dropped_ = false;
    int allowed_ = -1;
};

// --- Files of other programs ---

TEST_F(SlideDragsTest, AnAddressThatNamesThisComputerIsAFileOfIt) {
    ASSERT_TRUE(ByHand("ab"));
    const QString other = QFileInfo(Folder()).path() + "/c.png";
    ASSERT_TRUE(QFile::copy(window_->sheet().ImageFullPath(0), other));
    QMimeData data;
    data.setData("text/uri-list", "file://localhost" + other.toUtf8() + "\r\n");
    EXPECT_TRUE(DropOnSheet(data, In(1, 0.8), Qt::CopyAction) && Settle());
    EXPECT_EQ(Letters(), "abc");
    QFile::remove(other);
}

TEST_F(SlideDragsTest, AnAddressOfAnotherComputerIsRefused) {
    ASSERT_TRUE(ByHand("ab"));
    QMimeData data;
    data.setData("text/uri-list", "file://elsewhere.example" + window_->sheet().ImageFullPath(0).toUtf8() + "\r\n");
    EXPECT_FALSE(DropOnSheet(data, In(1, 0.8), Qt::CopyAction));
    EXPECT_EQ(Letters(), "ab");
}

// --- Slides of the sheet ---

TEST_F(SlideDragsTest, ADraggedSlideMovesWithAWayBack) {
    ASSERT_TRUE(ByHand("abcdef"));
    DragTo(0, In(2, 0.8));
    EXPECT_TRUE(dropped_);
    EXPECT_EQ(Letters(), "bcadef");
    EXPECT_EQ(SelectedLetters(), "a");
    EXPECT_EQ(window_->navigator().current(), 2);
    EXPECT_EQ(window_->slides().undoStack().undoText(), QString::fromUtf8("le déplacement"));
    Undo();
    EXPECT_EQ(Letters(), "abcdef");
    EXPECT_EQ(SelectedLetters(), "a");
    Redo();
    EXPECT_EQ(Letters(), "bcadef");
    EXPECT_EQ(FilesInFolder().size(), 6);
}

TEST_F(SlideDragsTest, AllSelectedSlidesMoveWithTheDraggedOne) {
    ASSERT_TRUE(ByHand("abcdef"));
    Select({0, 2, 5});
    DragTo(2, In(4, 0.2));
    EXPECT_EQ(Letters(), "bdacfe");
    EXPECT_EQ(SelectedLetters(), "acf");
    Undo();
    EXPECT_EQ(Letters(), "abcdef");
}

TEST_F(SlideDragsTest, AMoveToWhereTheSlideIsIsNone) {
    ASSERT_TRUE(ByHand("abcd"));
    DragTo(1, In(2, 0.2));
    EXPECT_EQ(Letters(), "abcd");
    EXPECT_FALSE(window_->slides().undoStack().canUndo());
    EXPECT_FALSE(window_->slides().isBusy());
}

TEST_F(SlideDragsTest, ASlideThatIsDroppedNowhereStays) {
    ASSERT_TRUE(ByHand("abcd"));
    Drag(1, {});
    EXPECT_EQ(Letters(), "abcd");
    EXPECT_FALSE(window_->slides().undoStack().canUndo());
    EXPECT_FALSE(window_->findChild<SlideDrags*>()->areDragged());
    DragTo(1, In(3, 0.8));
    EXPECT_EQ(Letters(), "acdb");
}

TEST_F(SlideDragsTest, ASortKeepsTheSlidesAndTheStatusLineTellsWhy) {
    ASSERT_TRUE(OpenPictures("abcd"));
    DragTo(0, In(2, 0.8));
    EXPECT_FALSE(dropped_);
    EXPECT_EQ(Letters(), "abcd");
    EXPECT_EQ(Status(), QString::fromUtf8("Les diapositives sont triées par nom\u00A0: choisissez «\u00A0Ordre "
                                          "manuel\u00A0» pour les déplacer"));
}

TEST_F(SlideDragsTest, OtherProgramsMayCopyTheFilesWhateverTheOrder) {
    ASSERT_TRUE(OpenPictures("abcd"));
    QStringList offered;
    Drag(2, [&](const QMimeData& data) { offered = DroppedFiles(data); });
    EXPECT_EQ(offered, QStringList{pictures_.Path("c.jpg")});
    EXPECT_EQ(allowed_ & 1, 1);
    EXPECT_EQ(Letters(), "abcd");
}

TEST_F(SlideDragsTest, ItsOwnSlidesHaveNoPlaceInTheRestOfTheWindow) {
    ASSERT_TRUE(ByHand("abcd"));
    Drag(2, [&](const QMimeData& data) {
        QDragEnterEvent enter({5, 2}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(window_.get(), &enter);
        accepted_ = enter.isAccepted();
    });
    EXPECT_FALSE(accepted_);
}

TEST_F(SlideDragsTest, WhatIsAddedDuringADragIsNotMovedByIt) {
    ASSERT_TRUE(ByHand("abcd"));
    const QString added = pictures_.WritePicture("x.jpg");
    Drag(0, [&](QMimeData& data) {
        window_->addFiles({added});
        EXPECT_TRUE(Settle());
        DropOnSheet(data, In(2, 0.8), Qt::CopyAction | Qt::MoveAction);
    });
    EXPECT_EQ(Letters(), "abcdx");
}

TEST_F(SlideDragsTest, NothingElseIsDoneInTheMiddleOfAMove) {
    ASSERT_TRUE(ByHand("abcd"));
    int asked = 0;
    QObject::connect(&Sheet(), &VorlaneWidget::OnOLESortChanged, [&] {
        ++asked;
        Undo();
        window_->removeSelected();
    });
    DragTo(0, In(2, 0.8));
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(Letters(), "bcad");
    Undo();
    EXPECT_EQ(Letters(), "abcd");
}

// --- Files of other programs ---

TEST_F(SlideDragsTest, DroppedFilesComeInAtTheMarkWithAWayBack) {
    ASSERT_TRUE(ByHand("abc"));
    EXPECT_TRUE(DropFiles({pictures_.WritePicture("x.jpg"), pictures_.WritePicture("y.jpg")}, In(1, 0.2)));
    EXPECT_EQ(Letters(), "axybc");
    EXPECT_EQ(SelectedLetters(), "xy");
    EXPECT_EQ(Status(), QString::fromUtf8("2 images ajoutées"));
    EXPECT_TRUE(DropFiles({pictures_.WritePicture("z.jpg")}, In(4, 0.8)));
    EXPECT_EQ(Letters(), "axybcz");
    Undo();
    Undo();
    EXPECT_EQ(Letters(), "abc");
    Redo();
    EXPECT_EQ(Letters(), "axybc");
}

TEST_F(SlideDragsTest, ADroppedFolderComesInWithAllItsPictures) {
    ASSERT_TRUE(ByHand("abc"));
    test::PictureFolder other;
    other.WritePicture("y.jpg");
    other.WritePicture("x.jpg");
    other.Write("notes.txt", "x");
    EXPECT_TRUE(DropFiles({QFileInfo(other.Path("x")).path()}, In(2, 0.2)));
    EXPECT_EQ(Letters(), "abxyc");
    EXPECT_EQ(window_->folder(), QDir::cleanPath(Folder()));
}

TEST_F(SlideDragsTest, ADroppedShowIsOpened) {
    ASSERT_TRUE(ByHand("abc"));
    const QTemporaryDir shows;
    const QString path = shows.filePath("x.vorlane");
    SavedShow show;
    show.pictures.push_back(pictures_.WritePicture("x.jpg"));
    ASSERT_EQ(SaveShow(path, show), "");
    EXPECT_TRUE(DropFiles({path}, In(1, 0.2)));
    EXPECT_EQ(window_->showPath(), path);
    EXPECT_EQ(Letters(), "x");
}

TEST_F(SlideDragsTest, UnderASortDroppedFilesTakeTheirPlace) {
    ASSERT_TRUE(OpenPictures("ace"));
    EXPECT_TRUE(DropFiles({pictures_.WritePicture("d.jpg")}, In(0, 0.2)));
    EXPECT_EQ(Letters(), "acde");
    Undo();
    EXPECT_EQ(Letters(), "ace");
}

TEST_F(SlideDragsTest, WhatNamesNoFileIsNotTaken) {
    ASSERT_TRUE(ByHand("abc"));
    QMimeData text;
    text.setText("Il était une fois");
    EXPECT_FALSE(DropOnSheet(text, In(1, 0.2), Qt::CopyAction));
    QMimeData address;
    address.setUrls({QUrl("https://example.org/a.jpg")});
    EXPECT_FALSE(DropOnSheet(address, In(1, 0.2), Qt::CopyAction));
    EXPECT_EQ(Letters(), "abc");
}

TEST_F(SlideDragsTest, SlidesOfAnotherWindowComeInAsTheirFiles) {
    ASSERT_TRUE(ByHand("abc"));
    DataObject slides;
    slides.SetFiles({pictures_.WritePicture("x.jpg").toStdString() + "|0"});
    const auto data = MimeDataFrom(slides);
    EXPECT_TRUE(DropOnSheet(*data, In(1, 0.2), Qt::CopyAction));
    ASSERT_TRUE(Settle());
    EXPECT_EQ(Letters(), "axbc");
    EXPECT_NE(Sheet().Key(1), Sheet().Key(0));
}

}  // namespace
}  // namespace vorlane::editor
