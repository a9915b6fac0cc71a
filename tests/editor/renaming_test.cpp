// Renaming in place: the ways into the box, what a new name does to the order, and the way back.
#include "editor/navigator.h"
#include "editor/renamer.h"
#include "editor/show.h"
#include "tests/editor/windowfixture.h"

#include <QFile>
#include <QLineEdit>
#include <QMessageBox>
#include <QTimer>

namespace vorlane::editor {
namespace {

constexpr int kLimit = 30000;  // milliseconds that nothing here takes

class RenamingTest : public WindowFixture {
protected:
    RenamingTest() { window_->sheet().Router().DoubleClickTime = -1; }

    // Pictures whose names begin with these letters. The names are long, for one that stands in its folder's path, too,
    // can't be changed.
    bool OpenTrees(const QString& letters) {
        for (const QChar letter : letters) pictures_.WritePicture(Tree(letter));
        return Open(Folder());
    }
    static QString Tree(QChar letter) {
        const QStringList trees{"alder.jpg", "birch.jpg", "cedar.jpg"};
        return trees.at(letter.unicode() - u'a');
    }
    QLineEdit& Box() { return *window_->sheet().findChild<QLineEdit*>(); }
    void Type(const QString& name, Qt::Key end = Qt::Key_Return) {
        Box().selectAll();
        QTest::keyClicks(&Box(), name);
        QTest::keyClick(&Box(), end);
        QCoreApplication::processEvents();
    }
    void Rename(int item, const QString& name) {
        window_->navigator().setCurrent(item);
        Press(Qt::Key_F2);
        ASSERT_TRUE(Box().isVisible());
        Type(name);
    }
    bool Exists(const QString& name) const { return QFile::exists(pictures_.Path(name)); }
    void Undo() { window_->slides().undo(); }
    QPoint Name(int slide) const { return window_->sheet().NameRect(slide).center().toPoint(); }
    void ClickName(int slide) { QTest::mouseClick(&window_->sheet(), Qt::LeftButton, {}, Name(slide)); }
    // The box would have been opened by now if it was to be.
    void WaitForSecondClick() {
        bool over = false;
        QTimer::singleShot(QApplication::doubleClickInterval() + 100, [&] { over = true; });
        EXPECT_TRUE(QTest::qWaitFor([&] { return over; }, kLimit));
    }
};

// --- The ways in ---

TEST_F(RenamingTest, F2OpensTheBoxOnTheCurrentSlideAndEnterRenames) {
    ASSERT_TRUE(OpenTrees("abc"));
    Rename(1, "zelkova");
    EXPECT_FALSE(Box().isVisible());
    EXPECT_TRUE(Exists("zelkova.jpg"));
    EXPECT_FALSE(Exists("birch.jpg"));
    EXPECT_EQ(Letters(), "acz");
    EXPECT_EQ(SelectedLetters(), "z");
    EXPECT_EQ(Status(), "« birch.jpg » s'appelle maintenant « zelkova.jpg »");
    EXPECT_EQ(window_->focusWidget(), &window_->sheet());
}

TEST_F(RenamingTest, EscapeLeavesTheName) {
    ASSERT_TRUE(OpenTrees("abc"));
    window_->navigator().setCurrent(0);
    Press(Qt::Key_F2);
    Type("zelkova", Qt::Key_Escape);
    EXPECT_FALSE(Box().isVisible());
    EXPECT_TRUE(Exists("alder.jpg"));
    EXPECT_EQ(Letters(), "abc");
    EXPECT_FALSE(window_->slides().undoStack().canUndo());
}

TEST_F(RenamingTest, TheMenuRenamesTheCurrentSlide) {
    ASSERT_TRUE(OpenTrees("abc"));
    QAction& action = Action("Renommer le fichier");
    EXPECT_EQ(action.shortcut(), QKeySequence(Qt::Key_F2));
    action.trigger();
    EXPECT_EQ(Status(), "Aucune diapositive n'est sélectionnée");
    window_->navigator().setCurrent(2);
    action.trigger();
    EXPECT_TRUE(Box().isVisible());
    EXPECT_EQ(Box().text(), "cedar");
}

TEST_F(RenamingTest, ASecondClickOnTheNameOpensTheBoxSlowly) {
    ASSERT_TRUE(OpenTrees("abc"));
    window_->sheet().setFocus();
    ClickName(1);
    EXPECT_EQ(SelectedLetters(), "b");
    ClickName(1);
    EXPECT_FALSE(Box().isVisible());
    EXPECT_TRUE(QTest::qWaitFor([this] { return Box().isVisible(); }, kLimit));
    EXPECT_EQ(Box().text(), "birch");
}

TEST_F(RenamingTest, AFirstClickAndADoubleClickOpenNoBox) {
    ASSERT_TRUE(OpenTrees("abc"));
    window_->sheet().setFocus();
    ClickName(1);
    WaitForSecondClick();
    EXPECT_FALSE(Box().isVisible());
    ClickName(1);
    QTest::mouseDClick(&window_->sheet(), Qt::LeftButton, {}, Name(1));
    WaitForSecondClick();
    EXPECT_FALSE(Box().isVisible());
}

TEST_F(RenamingTest, NeitherAClickElsewhereNorAMoveNorAKeyOpensTheBox) {
    ASSERT_TRUE(OpenTrees("abc"));
    VorlaneWidget& sheet = window_->sheet();
    sheet.setFocus();
    window_->navigator().setCurrent(1);
    QTest::mouseClick(&sheet, Qt::LeftButton, {}, sheet.DiapoRect(1).center().toPoint());
    WaitForSecondClick();
    EXPECT_FALSE(Box().isVisible());
    QTest::mousePress(&sheet, Qt::LeftButton, {}, Name(1));
    QTest::mouseRelease(&sheet, Qt::LeftButton, {}, Name(1) + QPoint(60, 0));
    WaitForSecondClick();
    EXPECT_FALSE(Box().isVisible());
    window_->navigator().setCurrent(1);
    ClickName(1);
    Press(Qt::Key_Right);
    WaitForSecondClick();
    EXPECT_FALSE(Box().isVisible());
}

TEST_F(RenamingTest, WhatMovesTheSlidesClosesTheBox) {
    pictures_.WritePictures(80);
    ASSERT_TRUE(Open(Folder()));
    window_->navigator().setCurrent(0);
    Press(Qt::Key_F2);
    ASSERT_TRUE(Box().isVisible());
    window_->resize(800, 500);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !Box().isVisible(); }, kLimit));
    window_->navigator().setCurrent(0);
    Press(Qt::Key_F2);
    ASSERT_TRUE(Box().isVisible());
    window_->sheet().sheet().VScroll.SetValue(1);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !Box().isVisible(); }, kLimit));
}

// --- The order ---

TEST_F(RenamingTest, TheSlideTakesItsPlaceByItsNewName) {
    ASSERT_TRUE(OpenTrees("abc"));
    Rename(2, "Aspen");
    EXPECT_EQ(Letters(), "aAb");
    Rename(0, "Dogwood");
    EXPECT_EQ(Letters(), "AbD");
    Action("Ordre décroissant").trigger();
    EXPECT_EQ(Letters(), "DbA");
}

TEST_F(RenamingTest, InAnOrderByHandItStaysWhereItIs) {
    window_->slides().setOrder({SortBy::Hand, false});
    ASSERT_TRUE(OpenTrees("abc"));
    Rename(0, "zelkova");
    EXPECT_EQ(Letters(), "zbc");
}

TEST_F(RenamingTest, AFileThatIsThereTwiceIsRenamedInBothPlaces) {
    ASSERT_TRUE(OpenTrees("ab"));
    window_->addFiles({pictures_.Path("alder.jpg")});
    ASSERT_TRUE(Settle());
    ASSERT_EQ(Letters(), "aab");
    Rename(0, "zelkova");
    EXPECT_EQ(Letters(), "bzz");
    EXPECT_EQ(Slide(1).ImageName(), "zelkova.jpg");
    EXPECT_EQ(Slide(2).ImageName(), "zelkova.jpg");
}

// --- The way back ---

TEST_F(RenamingTest, UndoGivesTheFileItsNameBackAndRedoTakesItAgain) {
    ASSERT_TRUE(OpenTrees("abc"));
    Rename(1, "zelkova");
    EXPECT_EQ(window_->slides().undoStack().undoText(), "le changement de nom");
    Undo();
    EXPECT_TRUE(Exists("birch.jpg"));
    EXPECT_FALSE(Exists("zelkova.jpg"));
    EXPECT_EQ(Letters(), "abc");
    EXPECT_EQ(Slide(1).ImageName(), "birch.jpg");
    EXPECT_EQ(Status(), "« zelkova.jpg » s'appelle maintenant « birch.jpg »");
    window_->slides().redo();
    EXPECT_EQ(Letters(), "acz");
    EXPECT_TRUE(Exists("zelkova.jpg"));
}

TEST_F(RenamingTest, UndoReplacesNoFileAndThenNothingCanBeUndone) {
    ASSERT_TRUE(OpenTrees("abc"));
    Rename(1, "zelkova");
    pictures_.Write("birch.jpg", "another");
    Undo();
    EXPECT_TRUE(Exists("zelkova.jpg"));
    EXPECT_EQ(QFileInfo(pictures_.Path("birch.jpg")).size(), 7);
    EXPECT_EQ(Letters(), "acz");
    EXPECT_EQ(Status(), "« zelkova.jpg » n'a pas pu reprendre le nom « birch.jpg »");
    EXPECT_FALSE(window_->slides().undoStack().canUndo());
    EXPECT_TRUE(window_->slides().isEdited());
}

TEST_F(RenamingTest, UndoGivesALinkItsNameBackThatLeadsNowhereAnyMore) {
    test::PictureFolder other;
    const QString picture = other.WritePicture("picture.jpg");
    ASSERT_TRUE(QFile::link(picture, pictures_.Path("alder.jpg")));
    ASSERT_TRUE(Open(Folder()));
    Rename(0, "zelkova");
    ASSERT_TRUE(QFile::remove(picture));
    Undo();
    EXPECT_EQ(QFileInfo(pictures_.Path("alder.jpg")).symLinkTarget(), picture);
    EXPECT_FALSE(QFileInfo(pictures_.Path("zelkova.jpg")).isSymLink());
    EXPECT_EQ(Letters(), "a");
}

TEST_F(RenamingTest, UndoWritesThroughNoLinkThatHasTheOldName) {
    ASSERT_TRUE(OpenTrees("abc"));
    Rename(1, "zelkova");
    ASSERT_TRUE(QFile::link(pictures_.Path("nowhere"), pictures_.Path("birch.jpg")));
    Undo();
    EXPECT_TRUE(Exists("zelkova.jpg"));
    EXPECT_FALSE(Exists("nowhere"));
    EXPECT_TRUE(QFileInfo(pictures_.Path("birch.jpg")).isSymLink());
}

TEST_F(RenamingTest, WhatWasMovedBeforeComesBackUnderItsOldName) {
    window_->slides().setOrder({SortBy::Hand, false});
    ASSERT_TRUE(OpenTrees("abc"));
    window_->navigator().setCurrent(0);
    ASSERT_TRUE(window_->slides().moveSelected(3));
    ASSERT_EQ(Letters(), "bca");
    Rename(2, "zelkova");
    ASSERT_EQ(Letters(), "bcz");
    Undo();
    Undo();
    EXPECT_EQ(Letters(), "abc");
    EXPECT_TRUE(Exists("alder.jpg"));
}

// --- Refusals ---

TEST_F(RenamingTest, ATakenNameIsToldAndTheBoxStays) {
    ASSERT_TRUE(OpenTrees("abc"));
    QString said;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr) return;
        said = box->text();
        box->reject();
    });
    look.start(1);
    Rename(0, "birch");
    EXPECT_EQ(said, "Un autre fichier porte déjà le nom « birch.jpg ».");
    EXPECT_TRUE(Box().isVisible());
    EXPECT_EQ(Letters(), "abc");
    EXPECT_TRUE(Exists("alder.jpg"));
}

}  // namespace
}  // namespace vorlane::editor
