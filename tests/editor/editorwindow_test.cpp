#include "editor/editorwindow.h"

#include "editor/languages.h"
#include "editor/navigator.h"
#include "editor/show.h"
#include "editor/slidesize.h"
#include "tests/editor/windowfixture.h"
#include "tests/platform/qt/barhand.h"

#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QSlider>
#include <QTranslator>
#include <QWheelEvent>

using namespace vorlane;
using namespace vorlane::editor;
using test::WaitFor;

namespace {

class EditorWindowTest : public WindowFixture {
protected:
    QScrollBar& Bar() { return *window_->sheet().findChild<QScrollBar*>(); }
    // Files of a folder that is read no further than to its first handful, until GoOn().
    bool OpenFirstOf(int files) {
        for (int i = 0; i < files; ++i) pictures_.Write(QStringLiteral("p%1.jpg").arg(i), {});
        window_->slides().setOrder({SortBy::Hand, false});
        window_->setSliceTime(0);
        const auto hold = [this] { window_->slides().beginMove(); };
        QObject::connect(&window_->sheet(), &VorlaneWidget::OnDisplayStart, window_.get(), hold,
                         Qt::SingleShotConnection);
        window_->openFolder(Folder());
        return WaitFor([this] { return window_->count() > 0; }) && window_->count() < files;
    }
    void GoOn() { window_->slides().endMove(); }
};

}  // namespace

TEST_F(EditorWindowTest, InvitesToOpenAFolderAtFirst) {
    EXPECT_TRUE(Empty().isVisible());
    EXPECT_FALSE(window_->sheet().isVisible());
    EXPECT_EQ(Empty().title(), "Ouvrez un dossier d'images");
    EXPECT_EQ(window_->windowTitle(), "Vorlane[*]");
    EXPECT_EQ(Status(), "");
    EXPECT_FALSE(window_->findChild<QSlider*>("zoom")->isVisible());
    EXPECT_TRUE(window_->isSettled());
}

TEST_F(EditorWindowTest, ShowsThePicturesOfAFolder) {
    pictures_.WritePictures(58);
    pictures_.Write("notes.txt", "x");
    ASSERT_TRUE(Open(Folder()));
    EXPECT_TRUE(window_->sheet().isVisible());
    EXPECT_EQ(window_->count(), 58);
    EXPECT_EQ(window_->sheet().Count(), 58);
    EXPECT_EQ(Status(), "58 images");
    EXPECT_EQ(window_->windowTitle(), QFileInfo(Folder()).fileName() + QString::fromUtf8("[*] — Vorlane"));
    EXPECT_FALSE(window_->status().isProgressShown());
    EXPECT_EQ(Slide(0).ImageName(), "p000.jpg");
    EXPECT_EQ(Slide(5).ImageName(), "p005.jpg");
    EXPECT_EQ(Slide(5).ImageWidth(), 600);
}

TEST_F(EditorWindowTest, OnePictureIsSingular) {
    pictures_.WritePicture("a.jpg");
    ASSERT_TRUE(Open(Folder()));
    EXPECT_EQ(Status(), "1 image");
}

TEST_F(EditorWindowTest, NoPictureIsEverReadOnTheUsersThread) {
    pictures_.WritePictures(120);
    pictures_.Write("a-corrupt.jpg", "no picture");
    pictures_.Write("b-empty.jpg", {});
    pictures_.WritePicture("c-without");
    ASSERT_TRUE(Open(Folder()));
    for (const int width : {96, 320, 512, 176}) {
        window_->status().setSlideWidth(width);
        ASSERT_TRUE(Settle());
    }
    for (int place = 0; place < 120; place += 7) {
        window_->sheet().StartLecture({}, place);
        QCoreApplication::processEvents();
    }
    ASSERT_TRUE(Settle());
    window_->resize(1200, 900);
    ASSERT_TRUE(Settle());
    const int before = window_->sheet().Value(0);
    test::BarHand hand(Bar());
    hand.PressThumb();
    for (int move = 0; move < 20; ++move) {
        hand.Move({0, -20});
        QCoreApplication::processEvents();
    }
    hand.Release();
    ASSERT_TRUE(Settle());
    EXPECT_LT(window_->sheet().Value(0), before);
    EXPECT_GT(stage_.Begun().size(), static_cast<size_t>(window_->sheet().CountDiapo()));
    EXPECT_EQ(stage_.Threads().count(std::this_thread::get_id()), 0U);
    EXPECT_EQ(readOnThisThread_, 0);
}

TEST_F(EditorWindowTest, ACorruptPictureShowsTheSubstitute) {
    pictures_.Write("corrupt.jpg", "no picture");
    pictures_.WritePicture("fine.jpg");
    ASSERT_TRUE(Open(Folder()));
    EXPECT_EQ(invalid_, QStringList("corrupt.jpg"));
    EXPECT_EQ(Slide(0).Picture(), QtDesktop::Of(*qApp).pictures.Get(Artwork::FileSubstitute));
    EXPECT_EQ(Slide(1).ImageWidth(), 600);
    EXPECT_EQ(Status(), "2 images");
}

TEST_F(EditorWindowTest, TellsHowFarTheThumbnailsAre) {
    pictures_.WritePictures(10);
    stage_.Shut();
    window_->openFolder(Folder());
    ASSERT_TRUE(WaitFor([this] { return window_->count() == 10 && window_->status().isProgressShown(); }));
    EXPECT_FALSE(window_->isSettled());
    EXPECT_EQ(Status(), "10 images");
    stage_.Open();
    ASSERT_TRUE(Settle());
    EXPECT_FALSE(window_->status().isProgressShown());
}

TEST_F(EditorWindowTest, TellsHowManyAreSelected) {
    pictures_.WritePictures(5);
    ASSERT_TRUE(Open(Folder()));
    for (const int slide : {1, 3}) {
        const QPoint place = window_->sheet().DiapoRect(slide).center().toPoint();
        QTest::mouseClick(&window_->sheet(), Qt::LeftButton, Qt::ControlModifier, place);
    }
    QCoreApplication::processEvents();
    EXPECT_EQ(Status(), QString::fromUtf8("5 images — 2 sélectionnées"));
}

TEST_F(EditorWindowTest, AnEmptyFolderSaysSo) {
    pictures_.Write("notes.txt", "x");
    ASSERT_TRUE(Open(Folder()));
    EXPECT_TRUE(Empty().isVisible());
    EXPECT_EQ(Empty().title(), "Ce dossier ne contient aucune image");
    EXPECT_EQ(Status(), "0 image");
}

TEST_F(EditorWindowTest, AFolderThatCannotBeReadLeavesAllAsItIs) {
    pictures_.WritePictures(3);
    ASSERT_TRUE(Open(Folder()));
    const QString missing = pictures_.Path("missing");
    ASSERT_TRUE(Open(missing));
    EXPECT_EQ(Status(), QString::fromUtf8("Impossible de lire le dossier «\u00A0%1\u00A0»").arg(missing));
    EXPECT_EQ(window_->folder(), Folder());
    EXPECT_EQ(window_->sheet().Count(), 3);
    EXPECT_TRUE(window_->sheet().isVisible());
    Press(Qt::Key_Home);  // what was told gives way to what the user does
    EXPECT_EQ(Status(), QString::fromUtf8("3 images — 1 sélectionnée"));
    ASSERT_TRUE(Open(Folder()));
    EXPECT_EQ(Status(), "3 images");
}

TEST_F(EditorWindowTest, OpeningAnotherFolderReplacesTheFirst) {
    pictures_.WritePictures(30);
    test::PictureFolder other;
    other.WritePicture("blue.jpg", Qt::blue, {300, 300});
    ASSERT_TRUE(Open(Folder()));
    ASSERT_TRUE(Open(QFileInfo(other.Path("x")).path()));
    EXPECT_EQ(window_->sheet().Count(), 1);
    EXPECT_EQ(Status(), "1 image");
    EXPECT_EQ(Slide(0).ImageName(), "blue.jpg");
    EXPECT_EQ(Slide(0).ImageWidth(), 300);
}

TEST_F(EditorWindowTest, OpeningAnotherFolderEndsTheReadingOfTheFirst) {
    pictures_.WritePictures(300);
    test::PictureFolder other;
    other.WritePicture("blue.jpg");
    window_->openFolder(Folder());
    ASSERT_TRUE(WaitFor([this] { return window_->count() > 0; }));
    ASSERT_TRUE(Open(QFileInfo(other.Path("x")).path()));
    EXPECT_EQ(window_->sheet().Count(), 1);
}

TEST_F(EditorWindowTest, AFolderThatFailsEndsTheReadingOfTheFirst) {
    for (int i = 0; i < 3000; ++i) pictures_.Write(QStringLiteral("p%1.jpg").arg(i), {});
    window_->openFolder(Folder());
    ASSERT_TRUE(WaitFor([this] { return window_->count() > 0; }));
    ASSERT_TRUE(Open(pictures_.Path("missing")));
    Press(Qt::Key_Home);
    EXPECT_TRUE(Status().startsWith(QString("%L1 images").arg(window_->count()))) << Status().toStdString();
    EXPECT_FALSE(window_->status().isProgressShown());
}

TEST_F(EditorWindowTest, AManyFileFolderComesInSlicesAndCanBeScrolledMeanwhile) {
    ASSERT_TRUE(OpenFirstOf(5000));
    EXPECT_GT(window_->sheet().CountAffiche(), 1);
    window_->sheet().sheet().VScroll.SetValue(20);
    const std::string top = Slide(0).ImageName();
    GoOn();
    ASSERT_TRUE(Settle());
    EXPECT_EQ(window_->sheet().Count(), 5000);
    EXPECT_EQ(Slide(0).ImageName(), top);
    EXPECT_EQ(Status(), QString("%L1 images").arg(5000));
}

TEST_F(EditorWindowTest, TheThumbStaysInTheHandWhileAFolderIsRead) {
    ASSERT_TRUE(OpenFirstOf(5000));
    ASSERT_TRUE(WaitFor([this] { return Bar().isVisible() && Bar().maximum() > 0; }));
    test::BarHand hand(Bar());
    hand.PressThumb();
    hand.Move({0, 100});
    const int held = Bar().sliderPosition();
    const int longest = Bar().maximum();
    ASSERT_GT(held, 0);
    QSignalSpy asked(&window_->sheet(), &VorlaneWidget::OnGetThumbPath);
    GoOn();
    ASSERT_TRUE(Settle());
    ASSERT_GT(Bar().maximum(), longest);
    EXPECT_EQ(Bar().sliderPosition(), held);
    EXPECT_EQ(asked.count(), 0);
    hand.Release();
    EXPECT_NEAR(window_->sheet().Value(0), held, window_->sheet().CountDiapoX());
}

TEST_F(EditorWindowTest, TheZoomSliderSizesTheSlides) {
    pictures_.WritePictures(60);
    ASSERT_TRUE(Open(Folder()));
    auto* slider = window_->findChild<QSlider*>("zoom");
    for (const int width : {320, 96, 176}) {
        slider->setValue(width);
        EXPECT_EQ(QSize(window_->sheet().DiapoWidth(), window_->sheet().DiapoHeight()), slidesize::Of(width));
        EXPECT_EQ(Slide(1).Width(), width);
    }
    const int before = window_->sheet().CountDiapoX();
    slider->setValue(96);
    EXPECT_GT(window_->sheet().CountDiapoX(), before);
}

TEST_F(EditorWindowTest, TheMenusAndTheWheelZoomToo) {
    pictures_.WritePictures(3);
    ASSERT_TRUE(Open(Folder()));
    Action("Agrandir les diapositives").trigger();
    EXPECT_EQ(window_->sheet().DiapoWidth(), 192);
    Action("Réduire les diapositives").trigger();
    Action("Réduire les diapositives").trigger();
    EXPECT_EQ(window_->sheet().DiapoWidth(), 160);
    Action("Taille normale (100\u00A0%)").trigger();
    EXPECT_EQ(window_->sheet().DiapoWidth(), 176);
    QWheelEvent wheel({50, 50}, {50, 50}, {}, {0, -120}, {}, Qt::ControlModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&window_->sheet(), &wheel);
    EXPECT_EQ(window_->sheet().DiapoWidth(), 160);
}

TEST_F(EditorWindowTest, ADroppedFolderIsOpened) {
    pictures_.WritePictures(4);
    Drop({QUrl::fromLocalFile(Folder())});
    EXPECT_TRUE(accepted_);
    ASSERT_TRUE(Settle());
    EXPECT_EQ(Status(), "4 images");
}

TEST_F(EditorWindowTest, WhatIsNoLocalFileIsNotTaken) {
    Drop({QUrl("https://example.org/folder")});
    EXPECT_FALSE(accepted_);
    Drop({});
    EXPECT_FALSE(accepted_);
}

TEST_F(EditorWindowTest, RemembersFoldersSlideSizeAndWindow) {
    pictures_.WritePictures(2);
    ASSERT_TRUE(Open(Folder()));
    window_->status().setSlideWidth(256);
    window_->resize(700, 500);
    window_->close();
    Make(QSize());
    EXPECT_EQ(window_->status().slideWidth(), 256);
    EXPECT_EQ(window_->sheet().DiapoWidth(), 256);
    EXPECT_EQ(window_->size(), QSize(700, 500));
    EXPECT_EQ(Recents(settings_).list(), QStringList(Folder()));
}

TEST_F(EditorWindowTest, AWindowClosedAtFullScreenComesBackInItsFormerSize) {
    window_->resize(700, 500);
    window_->close();
    Make(QSize());
    Action("Plein écran").trigger();
    ASSERT_TRUE(window_->isFullScreen());
    window_->close();
    Make(QSize());
    EXPECT_FALSE(window_->isFullScreen());
    EXPECT_EQ(window_->size(), QSize(700, 500));
}

TEST_F(EditorWindowTest, TheRecentsAreInTheMenu) {
    pictures_.WritePictures(2);
    ASSERT_TRUE(Open(Folder()));
    Make();
    QMenu* recent = Action(QString::fromUtf8("Ouverts récemment")).menu();
    Q_EMIT recent->aboutToShow();
    ASSERT_EQ(recent->actions().value(0)->text(), Folder());
    recent->actions().value(0)->trigger();
    ASSERT_TRUE(Settle());
    EXPECT_EQ(window_->folder(), Folder());
    Action("Effacer la liste").trigger();
    Q_EMIT recent->aboutToShow();
    EXPECT_EQ(recent->actions().value(0)->text(), "Rien encore");
}

TEST_F(EditorWindowTest, AFolderThatIsGoneLeavesTheRecentOnes) {
    const QString gone = pictures_.Path("gone");
    Recents(settings_).add(gone);
    ASSERT_TRUE(Open(gone));
    EXPECT_TRUE(Recents(settings_).list().isEmpty());
}

TEST_F(EditorWindowTest, FollowsThePalette) {
    pictures_.WritePictures(60);
    ASSERT_TRUE(Open(Folder()));
    const QPalette light = QApplication::palette();
    const QPalette dark(QColor(40, 42, 46));
    QApplication::setPalette(dark);
    QCoreApplication::processEvents();
    EXPECT_EQ(window_->sheet().BackColor(), dark.color(QPalette::Window));
    EXPECT_EQ(window_->sheet().BackColorDiapo(), dark.color(QPalette::Base));
    EXPECT_GT(window_->sheet().ForeColor().lightness(), 150);
    EXPECT_LT(window_->sheet().BackColorSelected().lightness(), 150);
    EXPECT_TRUE(Slide(0).Visible());
    EXPECT_EQ(Slide(0).ImageName(), "p000.jpg");
    window_->sheet().StartLecture({}, 40);  // slides that are filled later are of the same look
    EXPECT_LT(window_->sheet().BackColorSelected().lightness(), 150);
    QApplication::setPalette(light);
    QCoreApplication::processEvents();
    EXPECT_EQ(window_->sheet().BackColor(), light.color(QPalette::Window));
}

TEST_F(EditorWindowTest, FullScreenComesAndGoes) {
    Action("Plein écran").trigger();
    EXPECT_TRUE(window_->isFullScreen());
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, {});
    QCoreApplication::sendEvent(window_.get(), &escape);
    EXPECT_FALSE(window_->isFullScreen());
    EXPECT_FALSE(Action("Plein écran").isChecked());
}

TEST_F(EditorWindowTest, SpeaksEnglishToo) {
    QApplication& application = *qApp;
    const auto before = application.findChildren<QTranslator*>();
    InstallLanguage(application, "en");
    QCoreApplication::processEvents();
    EXPECT_EQ(Empty().title(), "Open a folder of pictures");
    EXPECT_NO_THROW(Action("Open Folder…"));
    pictures_.WritePictures(2);
    EXPECT_TRUE(Open(Folder()));
    EXPECT_EQ(Status(), "2 pictures");
    for (QTranslator* translator : application.findChildren<QTranslator*>()) {
        if (!before.contains(translator)) delete translator;
    }
    QCoreApplication::processEvents();
    EXPECT_EQ(Status(), "2 images");
}

TEST_F(EditorWindowTest, AFolderThatVanishesWhileItIsReadShowsBrokenSlides) {
    pictures_.WritePictures(100);
    bool gone = false;
    window_->openFolder(Folder());
    ASSERT_TRUE(WaitFor([&] {
        if (!gone && window_->folder() == Folder()) gone = QDir(Folder()).removeRecursively();
        return gone;
    }));
    ASSERT_TRUE(Settle());
    EXPECT_EQ(window_->count(), 100);
    EXPECT_EQ(Status(), "100 images");
    Press(Qt::Key_End);
    EXPECT_TRUE(WaitFor([&] { return !invalid_.isEmpty(); }));
    EXPECT_EQ(window_->sheet().CaptionBottom(window_->navigator().slideOf(99)), "");
}

TEST_F(EditorWindowTest, RemembersTheOrderAndTheDirection) {
    pictures_.WritePictures(3);
    ASSERT_TRUE(Open(Folder()));
    Action("Taille").trigger();
    Action("Ordre décroissant").trigger();
    Action("Horizontal").trigger();
    window_->close();
    Make();
    EXPECT_TRUE(Action("Taille").isChecked());
    EXPECT_TRUE(Action("Ordre décroissant").isChecked());
    EXPECT_TRUE(Action("Horizontal").isChecked());
    EXPECT_EQ(window_->sheet().SortedSens(), ui::SortSens::ssDescending);
    EXPECT_EQ(window_->sheet().ScrollDirection(), ui::ScrollDirection::sdHorizontal);
}

TEST_F(EditorWindowTest, TheKeyboardOpensAFolderFromTheEmptyPage) {
    auto* button = window_->findChild<QPushButton*>("openFolder");
    window_->activateWindow();
    ASSERT_TRUE(WaitFor([&] { return button->hasFocus(); }));
    QSignalSpy asked(&Empty(), &EmptyPage::openRequested);
    Empty().disconnect(window_.get());  // opens no dialog here
    QTest::keyClick(button, Qt::Key_Return);
    EXPECT_EQ(asked.count(), 1);
}

TEST_F(EditorWindowTest, ItMayBeClosedWhileItReads) {
    pictures_.WritePictures(200);
    for (int i = 0; i < 10; ++i) {
        window_->openFolder(Folder());
        WaitFor([&] { return window_->count() >= i * 20; });
        Make();
    }
}
