// What the user does to the slides: sorting, taking some off, adding some, moving them, and the way back.
#include "editor/navigator.h"
#include "editor/show.h"
#include "tests/editor/windowfixture.h"

#include <optional>

#include <QDateTime>
#include <QFile>
#include <QMenu>

namespace vorlane::editor {
namespace {

class EditingTest : public WindowFixture {
protected:
    void Select(std::initializer_list<int> items) {
        VorlaneList list = window_->sheet().Liste();
        for (const int i : list.SelItems()) list.SetSelected(i, false);
        for (const int i : items) list.SetSelected(i, true);
        window_->slides().showAgain();
    }
    QAction& Beginning(const QString& text) {
        for (QAction* action : window_->findChildren<QAction*>()) {
            if (QString(action->text()).remove('&').startsWith(text)) return *action;
        }
        throw std::out_of_range(text.toStdString());
    }
    void Undo() { Beginning("Annuler").trigger(); }
    void Redo() { Beginning(QString::fromUtf8("Rétablir")).trigger(); }
    bool ByHand(const QString& letters) {
        window_->slides().setOrder({SortBy::Hand, false});
        return OpenPictures(letters);
    }
    bool Add(const QStringList& paths, int before = -1) {
        window_->addFiles(paths, before);
        return Settle();
    }
    void WriteOrders() {
        pictures_.Write("a.png", QByteArray(300, 'x'), 10);
        pictures_.Write("b.jpg", QByteArray(100, 'x'), 30);
        pictures_.Write("c.jpg", QByteArray(200, 'x'), 20);
    }
    // The second of a file's creation, by the clock of its file system; nothing where that keeps none.
    std::optional<qint64> Created(const QString& name) const {
        const QDateTime created = QFileInfo(pictures_.Path(name)).birthTime();
        return created.isValid() ? std::optional(created.toSecsSinceEpoch()) : std::nullopt;
    }
    // Three files whose criteria give different orders; "b" is created in an earlier second than the others.
    void WriteOrdersOfAll() {
        pictures_.Write("b.png", QByteArray(300, 'x'), 40);
        const auto write = [this] { pictures_.Write("a.jpg", QByteArray(100, 'x'), 20); };
        for (write(); Created("a.jpg") && Created("a.jpg") == Created("b.png"); write()) {
            QTest::qSleep(10);
            QFile::remove(pictures_.Path("a.jpg"));
        }
        pictures_.Write("c.bmp", QByteArray(200, 'x'), 30);
    }
    int Top() { return window_->sheet().Value(0); }
};

// --- Sorting ---

TEST_F(EditingTest, TheMenuSortsOnEachCriterionBothWays) {
    WriteOrdersOfAll();
    ASSERT_TRUE(Open(Folder()));
    // Where no creations are known, all of them are the same, and the names decide.
    const bool created = Created("b.png").has_value();
    const auto by = [this](const char* text) {
        Action(text).trigger();
        EXPECT_TRUE(Action(text).isChecked());
        return Letters();
    };
    EXPECT_EQ(Letters(), "abc");
    EXPECT_EQ(by("Date de modification"), "bca");
    EXPECT_EQ(by("Date de création"), created ? "bac" : "abc");
    EXPECT_EQ(by("Taille"), "acb");
    EXPECT_EQ(by("Extension"), "cab");
    EXPECT_EQ(by("Nom"), "abc");
    EXPECT_EQ(by("Ordre décroissant"), "cba");
    EXPECT_EQ(by("Date de modification"), "acb");
    EXPECT_EQ(by("Date de création"), created ? "cab" : "cba");
    EXPECT_EQ(by("Taille"), "bca");
    EXPECT_EQ(by("Extension"), "bac");
    EXPECT_EQ(by("Ordre croissant"), "cab");
}

TEST_F(EditingTest, ByHandTheOrderStaysAndHasNoDirection) {
    WriteOrders();
    ASSERT_TRUE(Open(Folder()));
    Action("Taille").trigger();
    Action("Ordre manuel").trigger();
    EXPECT_EQ(Letters(), "bca");
    EXPECT_FALSE(Action("Ordre croissant").isEnabled());
    Action("Nom").trigger();
    EXPECT_TRUE(Action("Ordre croissant").isEnabled());
    EXPECT_EQ(Letters(), "abc");
}

TEST_F(EditingTest, TheSelectedSlideStaysWhereItWas) {
    pictures_.WritePictures(120);
    ASSERT_TRUE(Open(Folder()));
    window_->navigator().setCurrent(60);
    const QString name = window_->sheet().ImageFullPath(60);
    const int slide = window_->navigator().slideOf(60);
    ASSERT_GE(slide, 0);
    Action("Ordre décroissant").trigger();
    EXPECT_EQ(window_->sheet().ImageFullPath(59), name);
    EXPECT_EQ(window_->navigator().slideOf(59), slide);
    EXPECT_EQ(window_->navigator().current(), 59);
    EXPECT_TRUE(window_->sheet().Selected(slide));
}

TEST_F(EditingTest, AFolderComesInTheOrderThatIsInForce) {
    WriteOrders();
    window_->slides().setOrder({SortBy::Length, true});
    ASSERT_TRUE(Open(Folder()));
    EXPECT_EQ(Letters(), "acb");
    EXPECT_TRUE(Action("Taille").isChecked());
}

TEST_F(EditingTest, ASortIsUndone) {
    WriteOrders();
    ASSERT_TRUE(Open(Folder()));
    Action("Taille").trigger();
    EXPECT_EQ(Beginning("Annuler").text(), "&Annuler le tri");
    Undo();
    EXPECT_EQ(Letters(), "abc");
    EXPECT_TRUE(Action("Nom").isChecked());
    Redo();
    EXPECT_EQ(Letters(), "bca");
    EXPECT_TRUE(Action("Taille").isChecked());
}

// --- Taking off ---

TEST_F(EditingTest, DeleteTakesTheSelectedSlidesOffAndLeavesTheFiles) {
    ASSERT_TRUE(OpenPictures("abcdef"));
    Select({1, 3, 4});
    Press(Qt::Key_Delete);
    EXPECT_EQ(Letters(), "acf");
    EXPECT_EQ(Status(), QString::fromUtf8("3 diapositives retirées de la planche\u00A0; les fichiers restent sur le "
                                          "disque"));
    for (const char* name : {"b.jpg", "d.jpg", "e.jpg"}) EXPECT_TRUE(QFile::exists(pictures_.Path(name)));
    EXPECT_EQ(window_->navigator().current(), 2);
    EXPECT_EQ(SelectedLetters(), "");
}

TEST_F(EditingTest, OneSlideIsSingular) {
    ASSERT_TRUE(OpenPictures("abc"));
    Select({2});
    Press(Qt::Key_Delete);
    EXPECT_TRUE(Status().startsWith(QString::fromUtf8("1 diapositive retirée"))) << Status().toStdString();
    EXPECT_EQ(window_->navigator().current(), 1);
}

TEST_F(EditingTest, WithoutASelectionDeleteSaysSo) {
    ASSERT_TRUE(OpenPictures("abc"));
    Press(Qt::Key_Delete);
    EXPECT_EQ(Letters(), "abc");
    EXPECT_EQ(Status(), QString::fromUtf8("Aucune diapositive n'est sélectionnée"));
    EXPECT_FALSE(window_->slides().undoStack().canUndo());
}

TEST_F(EditingTest, ARemovalIsUndoneAndDoneAgain) {
    ASSERT_TRUE(OpenPictures("abcdef"));
    Select({0, 3, 5});
    const int key = window_->sheet().Key(3);
    Press(Qt::Key_Delete);
    Undo();
    EXPECT_EQ(Letters(), "abcdef");
    EXPECT_EQ(SelectedLetters(), "adf");
    EXPECT_EQ(window_->sheet().Key(3), key);
    Redo();
    EXPECT_EQ(Letters(), "bce");
    Undo();
    EXPECT_EQ(Letters(), "abcdef");
}

TEST_F(EditingTest, TheWholeSheetTakenOffComesBack) {
    ASSERT_TRUE(OpenPictures("abc"));
    Press(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(SelectedLetters(), "abc");
    EXPECT_EQ(Status(), QString::fromUtf8("3 images — 3 sélectionnées"));
    Press(Qt::Key_Delete);
    EXPECT_TRUE(Empty().isVisible());
    EXPECT_EQ(Empty().title(), "La planche est vide");
    Undo();
    EXPECT_FALSE(Empty().isVisible());
    EXPECT_EQ(Letters(), "abc");
    EXPECT_EQ(Slide(2).ImageName(), "c.jpg");
}

TEST_F(EditingTest, AnUndoFindsItsWayThroughASort) {
    WriteOrders();
    ASSERT_TRUE(Open(Folder()));
    Select({0});
    Press(Qt::Key_Delete);
    Action("Taille").trigger();
    EXPECT_EQ(Letters(), "bc");
    Undo();
    Undo();
    EXPECT_EQ(Letters(), "abc");
    Redo();
    Redo();
    EXPECT_EQ(Letters(), "bc");
}

TEST_F(EditingTest, WhatIsAskedForWhileTheSheetIsAtWorkIsPassedOver) {
    WriteOrders();
    ASSERT_TRUE(Open(Folder()));
    Select({0});
    Press(Qt::Key_Delete);
    int asked = 0;
    QObject::connect(&window_->sheet(), &VorlaneWidget::OnDisplayEnd, window_.get(), [&] {
        if (asked++ == 0) Undo();  // as a key does that comes in between
    });
    Action("Taille").trigger();
    EXPECT_GT(asked, 0);
    EXPECT_EQ(Letters(), "bc");
    EXPECT_EQ(window_->slides().undoStack().index(), 2);
    Undo();
    Undo();
    EXPECT_EQ(Letters(), "abc");
}

TEST_F(EditingTest, AnotherFolderHasNoWayBackToTheFirst) {
    ASSERT_TRUE(OpenPictures("abc"));
    Select({0});
    Press(Qt::Key_Delete);
    test::PictureFolder other;
    other.WritePicture("z.jpg");
    ASSERT_TRUE(Open(QFileInfo(other.Path("x")).path()));
    EXPECT_FALSE(Beginning("Annuler").isEnabled());
    EXPECT_EQ(Letters(), "z");
}

// --- Adding ---

TEST_F(EditingTest, FilesAreAddedInFrontOfAnItemWhereNoSortIsInForce) {
    ASSERT_TRUE(ByHand("abc"));
    test::PictureFolder other;
    ASSERT_TRUE(Add({other.WritePicture("z.jpg"), other.WritePicture("y.jpg"), other.Write("x.txt", "x")}, 1));
    EXPECT_EQ(Letters(), "azybc");
    EXPECT_EQ(SelectedLetters(), "zy");
    EXPECT_EQ(Status(), QString::fromUtf8("2 images ajoutées"));
    Undo();
    EXPECT_EQ(Letters(), "abc");
    Redo();
    EXPECT_EQ(Letters(), "azybc");
}

TEST_F(EditingTest, WhereASortIsInForceTheyTakeTheirPlace) {
    ASSERT_TRUE(OpenPictures("ace"));
    test::PictureFolder other;
    ASSERT_TRUE(Add({other.WritePicture("d.jpg"), other.WritePicture("b.jpg")}, 0));
    EXPECT_EQ(Letters(), "abcde");
    Undo();
    EXPECT_EQ(Letters(), "ace");
    Redo();
    EXPECT_EQ(Letters(), "abcde");
}

TEST_F(EditingTest, WhatIsAddedWhileAFolderIsReadTakesItsPlaceToo) {
    for (int i = 0; i < 3000; ++i) pictures_.Write(QStringLiteral("p%1.jpg").arg(i), {});
    test::PictureFolder other;
    const QString added = other.Write("p1500b.jpg", {});
    window_->openFolder(Folder());
    ASSERT_TRUE(test::WaitFor([this] { return window_->count() > 0; }));
    ASSERT_TRUE(Add({added}));
    ASSERT_EQ(window_->count(), 3001);
    EXPECT_EQ(window_->sheet().ImageFullPath(1501), added);
}

TEST_F(EditingTest, WhatIsDroppedBesideTheSheetGoesToItsEnd) {
    ASSERT_TRUE(ByHand("abc"));
    Drop({QUrl::fromLocalFile(pictures_.WritePicture("x.jpg"))}, {5, 2});
    ASSERT_TRUE(Settle());
    EXPECT_EQ(Letters(), "abcx");
}

TEST_F(EditingTest, AFolderIsAddedWithAllItsPictures) {
    ASSERT_TRUE(ByHand("ab"));
    test::PictureFolder other;
    other.WritePicture("z.jpg");
    other.WritePicture("y.jpg");
    ASSERT_TRUE(Add({QFileInfo(other.Path("x")).path(), pictures_.Path("missing")}));
    EXPECT_EQ(Letters(), "abyz");
}

TEST_F(EditingTest, WhatIsNoPictureIsNotAdded) {
    ASSERT_TRUE(OpenPictures("ab"));
    ASSERT_TRUE(Add({pictures_.Write("notes.txt", "x")}));
    EXPECT_EQ(Letters(), "ab");
    EXPECT_EQ(Status(), QString::fromUtf8("Aucune image à ajouter"));
    EXPECT_FALSE(window_->slides().undoStack().canUndo());
}

TEST_F(EditingTest, OneLotIsAddedAfterTheOther) {
    ASSERT_TRUE(ByHand("ab"));
    window_->addFiles({pictures_.WritePicture("x.jpg")});
    window_->addFiles({pictures_.WritePicture("y.jpg")}, 0);
    window_->addFiles({pictures_.WritePicture("z.jpg")});
    ASSERT_TRUE(Settle());
    EXPECT_EQ(Letters(), "yabxz");
}

TEST_F(EditingTest, FilesDroppedOnAnEmptyWindowBeginASheet) {
    Drop({QUrl::fromLocalFile(pictures_.WritePicture("b.jpg")), QUrl::fromLocalFile(pictures_.WritePicture("a.jpg"))});
    EXPECT_TRUE(accepted_);
    ASSERT_TRUE(Settle());
    EXPECT_EQ(Letters(), "ab");
    EXPECT_TRUE(window_->sheet().isVisible());
    EXPECT_EQ(window_->windowTitle(), "Vorlane[*]");
}

// --- Moving ---

TEST_F(EditingTest, TheSelectedSlidesMoveAsABlock) {
    ASSERT_TRUE(ByHand("abcdef"));
    Select({1, 4});
    EXPECT_TRUE(window_->slides().moveSelected(3));
    EXPECT_EQ(Letters(), "acbedf");
    EXPECT_EQ(SelectedLetters(), "be");
    EXPECT_TRUE(window_->slides().moveSelected(6));
    EXPECT_EQ(Letters(), "acdfbe");
    Undo();
    Undo();
    EXPECT_EQ(Letters(), "abcdef");
    EXPECT_EQ(SelectedLetters(), "be");
    Redo();
    EXPECT_EQ(Letters(), "acbedf");
}

TEST_F(EditingTest, AMoveToWhereTheyAreIsNone) {
    ASSERT_TRUE(ByHand("abcd"));
    Select({1, 2});
    for (const int before : {1, 2, 3}) EXPECT_FALSE(window_->slides().moveSelected(before));
    EXPECT_FALSE(window_->slides().moveSelected(-1));
    EXPECT_FALSE(window_->slides().moveSelected(5));
    EXPECT_FALSE(window_->slides().undoStack().canUndo());
}

TEST_F(EditingTest, AltAndTheArrowsMoveTheSelectedSlides) {
    ASSERT_TRUE(ByHand("abcd"));
    Select({1});
    Press(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(Letters(), "acbd");
    Press(Qt::Key_Left, Qt::AltModifier);
    Press(Qt::Key_Left, Qt::AltModifier);
    Press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(Letters(), "bacd");
}

TEST_F(EditingTest, ASortForbidsMovingAndTheStatusLineTellsWhy) {
    ASSERT_TRUE(OpenPictures("abcd"));
    Select({1});
    Press(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(Letters(), "abcd");
    EXPECT_EQ(Status(), QString::fromUtf8("Les diapositives sont triées par nom\u00A0: choisissez «\u00A0Ordre "
                                          "manuel\u00A0» pour les déplacer"));
}

}  // namespace
}  // namespace vorlane::editor
