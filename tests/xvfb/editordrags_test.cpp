// Real drags in the editor's window, and between it and a program that knows nothing of it.
#include "editor/editorwindow.h"
#include "editor/show.h"
#include "editor/statuspanel.h"
#include "tests/xvfb/gesture.h"
#include "tests/xvfb/program.h"
#include "widgets/vorlanewidget.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QSettings>
#include <QTemporaryDir>

namespace vorlane::editor {
namespace {

using test::Gesture;
using test::Program;
using test::User;

constexpr QRect kHere(40, 40, 760, 560);
constexpr QRect kThere(1000, 60, 400, 400);

class EditorDragUnderX : public testing::Test {
protected:
    EditorDragUnderX() {
        for (const QChar letter : QStringLiteral("abcdef")) Write(folder, letter);
        window.slides().setOrder({SortBy::Hand, false});
        window.setGeometry(kHere);
        window.show();
        window.openFolder(folder.path());
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
        EXPECT_TRUE(User::Until([&] { return window.isSettled() && window.count() == 6; }));
        EXPECT_TRUE(User::Until([&] { return window.pos() == kHere.topLeft(); }));
    }
    ~EditorDragUnderX() override { User::PointAt({2, 2}); }

    static QString Write(const QTemporaryDir& place, QChar letter) {
        const QString path = place.filePath(QString(letter) + ".png");
        QImage picture(60, 40, QImage::Format_RGB32);
        picture.fill(QColor::fromHsv(letter.unicode() * 40 % 360, 160, 200));
        EXPECT_TRUE(picture.save(path));
        return path;
    }
    static ThumbnailOptions NoCache() {
        ThumbnailOptions options;
        options.cacheFolder.clear();
        return options;
    }
    // What is on the sheet, by the names' first letters.
    QString Letters() const {
        QString letters;
        for (int i = 0; i < window.count(); ++i)
            letters += QFileInfo(window.sheet().ImageFullPath(i)).fileName().left(1);
        return letters;
    }
    QPoint In(int slide, double part) const {
        const QRectF rect = window.sheet().DiapoRect(slide);
        return window.sheet().mapToGlobal(QPointF(rect.left() + rect.width() * part, rect.center().y()).toPoint());
    }
    Gesture::Condition MarkBefore(int item) {
        return [this, item] { return window.sheet().DropPlace() == item; };
    }
    QStringList FilesInFolder() const { return QDir(folder.path()).entryList(QDir::Files); }

    QTemporaryDir folder;
    QTemporaryDir elsewhere;
    QTemporaryDir config;
    QSettings settings{config.filePath("settings.ini"), QSettings::IniFormat};
    EditorWindow window{settings, NoCache()};
};

TEST_F(EditorDragUnderX, ASlideMovesAndItsMoveIsUndone) {
    Gesture gesture;
    EXPECT_TRUE(gesture.PointAt(In(0, 0.5))
                    .Press()
                    .GoTo(In(2, 0.2))
                    .Until(MarkBefore(2), "the mark")
                    .Release()
                    .Until([&] { return Letters() == "bacdef"; }, "the move")
                    .Play());
    EXPECT_TRUE(User::Until([&] { return !window.slides().isBusy(); }));
    window.slides().undo();
    EXPECT_EQ(Letters(), "abcdef");
}

TEST_F(EditorDragUnderX, ASortKeepsASlideAndTheStatusLineTellsWhy) {
    window.slides().sort({SortBy::Name, false});
    Gesture gesture;
    EXPECT_TRUE(gesture.PointAt(In(0, 0.5))
                    .Press()
                    .GoTo(In(2, 0.2))
                    .Until([&] { return window.status().text().contains(QString::fromUtf8("triées")); }, "the reason")
                    .Release()
                    .Play());
    EXPECT_EQ(Letters(), "abcdef");
}

TEST_F(EditorDragUnderX, FilesAndFoldersOfAnotherProgramComeInAtTheMark) {
    QDir(elsewhere.path()).mkdir("album");
    const QString picture = Write(elsewhere, 'x');
    QFile::copy(picture, elsewhere.filePath("album/z.png"));
    QFile::copy(picture, elsewhere.filePath("album/y.png"));
    Program other(test::kForeignPart, kThere, {picture, elsewhere.filePath("album")});
    Gesture gesture;
    EXPECT_TRUE(gesture.PointAt(kThere.center())
                    .Press()
                    .GoTo(kThere.center() - QPoint(20, 0))
                    .Until([&] { return other.Told("drags"); }, "the drag")
                    .GoTo(In(1, 0.2))
                    .Until(MarkBefore(1), "the mark")
                    .Release()
                    .Until([&] { return other.Told("dragged copy"); }, "the end")
                    .Until([&] { return window.isSettled() && window.count() == 9; }, "the pictures")
                    .Play())
        << other.Lines().join('\n').toStdString();
    EXPECT_EQ(Letters(), "axyzbcdef");
    window.slides().undo();
    EXPECT_EQ(Letters(), "abcdef");
}

TEST_F(EditorDragUnderX, AnotherProgramGetsTheFilesOfTheSelectedSlides) {
    Program other(test::kForeignPart, kThere, {});
    window.selectAll();
    Gesture gesture;
    EXPECT_TRUE(gesture.PointAt(In(0, 0.5))
                    .Press()
                    .GoTo(kThere.center())
                    .Until([&] { return other.Told("over"); }, "the other program")
                    .Release()
                    .Until([&] { return other.Told("got copy a.png b.png c.png d.png e.png f.png"); }, "the files")
                    .Play())
        << other.Lines().join('\n').toStdString();
    EXPECT_TRUE(other.Told("offered copy"));
    EXPECT_EQ(Letters(), "abcdef");
    EXPECT_EQ(FilesInFolder().size(), 6);
}

}  // namespace
}  // namespace vorlane::editor
