#include "widgets/vorlanewidget.h"

#include "platform/qt/qtdesktop.h"
#include "sheet/vorlane.h"
#include "tests/widgets/propertytable.h"
#include "tests/widgets/vorlanewidgettest.h"

#include <stdexcept>

#include <QApplication>
#include <QFile>

namespace vorlane {
namespace {

using test::Plain;
using test::VorlaneWidgetTest;

// --- Properties ---

TEST_F(VorlaneWidgetTest, HasThePersistedPropertiesOfTheSheetAndNoOther) {
    EXPECT_EQ(test::OwnProperties(widget), test::Keys(Vorlane::PersistedProperties()));
}

TEST_F(VorlaneWidgetTest, EveryPropertyIsWrittenReadAndReported) {
    test::ExpectWritable(widget, widget.sheet(), Vorlane::PersistedProperties());
}

TEST_F(VorlaneWidgetTest, AValueThatTheSheetCannotHoldIsReported) {
    widget.SetBorderSize(300);
    widget.SetMarges(100000);
    EXPECT_EQ(widget.BorderSize(), 4);
    EXPECT_EQ(widget.Marges(), 5);
    EXPECT_TRUE(errors.contains("VorlaneWidget SetBorderSize"));
    EXPECT_TRUE(errors.contains("VorlaneWidget SetMarges"));
}

TEST_F(VorlaneWidgetTest, ASavedSheetIsRestoredInAnotherWidget) {
    EXPECT_EQ(VorlaneWidget().SaveProperties(), "{\n  \"Thumbnail\": true,\n  \"ThumbnailSizeNormal\": 0\n}\n");
    QPixmap icon(8, 6);
    icon.fill(Qt::red);
    widget.SetMouseIcon(icon);
    widget.SetCaptionWait(QString::fromUtf8("déjà \"vu\""));
    widget.SetBackColor(QColor(1, 2, 3));
    widget.SetLegendeFont(QFont("DejaVu Sans", 11, QFont::Bold));
    widget.SetScrollDirection(ui::ScrollDirection::sdHorizontal);
    const QByteArray saved = widget.SaveProperties();
    VorlaneWidget other;
    EXPECT_TRUE(other.RestoreProperties(saved));
    EXPECT_EQ(other.SaveProperties(), saved);
    EXPECT_EQ(other.CaptionWait(), widget.CaptionWait());
    EXPECT_EQ(other.MouseIcon().toImage().pixelColor(7, 5), QColor(Qt::red));
    EXPECT_EQ(other.DiapoWidth(), 120);
}

TEST_F(VorlaneWidgetTest, WhatIsSelectedChangesNothingOfWhatIsSaved) {
    AddPictures(3);
    Show();
    widget.StartLecture();
    const QByteArray saved = widget.SaveProperties();
    widget.SetCurrentDiapo(0);
    ASSERT_EQ(widget.BackColorDiapo(), widget.BackColorCurrent());
    EXPECT_EQ(widget.SaveProperties(), saved);
}

TEST_F(VorlaneWidgetTest, AStartAnewUnderASelectionKeepsTheColours) {
    AddPictures(3);
    Show();
    widget.StartLecture();
    widget.SetCurrentDiapo(0);
    const QByteArray saved = widget.SaveProperties();
    widget.StartAgain();
    EXPECT_EQ(widget.SaveProperties(), saved);
}

TEST_F(VorlaneWidgetTest, ASizeOfSlidesThatMakesNoGridIsPassedOver) {
    EXPECT_TRUE(widget.RestoreProperties("{\"DiapoWidth\": -5, \"Marges\": 9}"));
    EXPECT_EQ(widget.Marges(), 9);
    EXPECT_EQ(widget.DiapoWidth(), 120);
    EXPECT_EQ(errors, "");
}

TEST_F(VorlaneWidgetTest, WhatASavedTextLeavesOutGetsItsDefault) {
    widget.SetMarges(33);
    EXPECT_TRUE(widget.RestoreProperties("{}"));
    EXPECT_EQ(widget.Marges(), 5);
    EXPECT_EQ(widget.DiapoWidth(), 100);
    EXPECT_EQ(widget.SaveProperties(), "{}\n");
}

TEST_F(VorlaneWidgetTest, ADamagedTextChangesNothingAndIsReported) {
    widget.SetMarges(33);
    EXPECT_FALSE(widget.RestoreProperties("{\"Marges\": 12,"));
    EXPECT_EQ(widget.Marges(), 33);
    EXPECT_TRUE(errors.contains("VorlaneWidget RestoreProperties"));
    EXPECT_TRUE(errors.contains("ligne 1, colonne 15"));
}

TEST_F(VorlaneWidgetTest, AValueThatTheSheetCannotHoldIsPassedOver) {
    EXPECT_TRUE(widget.RestoreProperties(R"({"BorderSize": 300, "Marges": "wide", "MargeDiapoMin": 9, "Unknown": 1})"));
    EXPECT_EQ(widget.BorderSize(), 4);
    EXPECT_EQ(widget.Marges(), 5);
    EXPECT_EQ(widget.MargeDiapoMin(), 9);
}

TEST_F(VorlaneWidgetTest, AFilledSheetShowsItsItemsInTheRestoredLooks) {
    Show();
    AddPictures(6);
    widget.StartLecture();
    EXPECT_TRUE(widget.RestoreProperties(R"({"DiapoWidth": 90, "DiapoHeight": 80, "BorderSize": 2})"));
    for (int i = 0; i < 20; ++i) {
        widget.Desktop().clock.Sleep(2);
        QCoreApplication::processEvents();
    }
    EXPECT_EQ(widget.CountAffiche(), 6);
    for (int i = 0; i < 6; ++i) {
        EXPECT_EQ(widget.sheet().Diapo.Item(i)->BorderSize(), 2);
        EXPECT_EQ(widget.sheet().Diapo.Item(i)->Width(), 90);
        EXPECT_EQ(Shown(i), ColorOf(i)) << i;
    }
}

// --- Filling ---

TEST_F(VorlaneWidgetTest, AFillShowsThePictures) {
    Show();
    AddPictures(6);
    EXPECT_EQ(widget.Count(), 6);
    EXPECT_EQ(widget.CountAffiche(), 1);
    widget.StartLecture();
    EXPECT_EQ(widget.CountAffiche(), 6);
    for (int i = 0; i < 6; ++i) EXPECT_EQ(Shown(i), ColorOf(i)) << i;
    EXPECT_EQ(errors, "");
}

TEST_F(VorlaneWidgetTest, NothingIsShownBeforeAFill) {
    Show();
    const QImage empty = widget.grab().toImage();
    AddPictures(3);
    EXPECT_EQ(widget.grab().toImage(), empty);
}

TEST_F(VorlaneWidgetTest, AFillIsPaintedWhileItRuns) {
    widget.SetShowJauge(true);
    Show();
    AddPictures(6);
    bool gauge = false;
    const int64_t before = widget.Desktop().looks.Drawn();
    QObject::connect(&widget, &VorlaneWidget::OnAdded, &widget, [&] {
        gauge = gauge || widget.sheet().Jauge.Visible();
        widget.Desktop().clock.Sleep(10);  // longer than a frame of the screen
    });
    widget.StartLecture();
    EXPECT_TRUE(gauge);
    EXPECT_GE(widget.Desktop().looks.Drawn() - before, 6);
    EXPECT_FALSE(widget.sheet().Jauge.Visible());
}

TEST_F(VorlaneWidgetTest, ABrokenPictureShowsTheLibrarysSubstitute) {
    QSignalSpy invalid(&widget, &VorlaneWidget::OnInvalidPicture);
    Show();
    QFile file(folder.filePath("broken.jpg"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("no picture");
    file.close();
    widget.Add(file.fileName());
    widget.StartLecture();
    ASSERT_EQ(invalid.count(), 1);
    EXPECT_EQ(invalid.at(0).at(0).toInt(), 0);
    EXPECT_EQ(invalid.at(0).at(1).toString(), file.fileName());
    EXPECT_EQ(widget.sheet().Diapo.Item(0)->Picture(), widget.Desktop().pictures.Get(Artwork::FileSubstitute));
    EXPECT_EQ(errors, "");
}

TEST_F(VorlaneWidgetTest, AHostHandsOverThumbnailsAndTheStateOfItsSounds) {
    QObject::connect(&widget, &VorlaneWidget::OnBeforeSetPicture, &widget,
                     [&](int index, const QString& fileName, SlideContent* content) {
                         if (!fileName.endsWith("a.jpg")) return;
                         EXPECT_EQ(index, 0);
                         content->Picture = Plain(60, 40, Qt::magenta);
                         content->HaveSound = true;
                         content->HaveTexte = true;
                     });
    Show();
    widget.Add("/nowhere/a.jpg");
    widget.Add("/nowhere/b.jpg");
    widget.StartLecture();
    EXPECT_EQ(Shown(0), QColor(Qt::magenta).rgb());
    EXPECT_TRUE(widget.sheet().Diapo.Item(0)->HaveSoundMusic());
    EXPECT_FALSE(widget.sheet().Diapo.Item(0)->HaveSoundComment());
    EXPECT_TRUE(widget.sheet().Diapo.Item(0)->HaveTexte());
    EXPECT_FALSE(widget.sheet().Diapo.Item(1)->HaveTexte());
}

TEST_F(VorlaneWidgetTest, AHostMayRefuseOrRenameAnItem) {
    QObject::connect(&widget, &VorlaneWidget::OnBeforeAdd, &widget,
                     [](QString*, const QString& extension, bool* cancel) { *cancel = extension == "bmp"; });
    Show();
    widget.Add("/nowhere/a.bmp");
    widget.Add("/nowhere/b.jpg");
    widget.StartLecture();
    EXPECT_EQ(widget.CountAffiche(), 1);
    EXPECT_TRUE(widget.sheet().Diapo.Item(0)->ImageFullPath().ends_with("b.jpg"));
}

TEST_F(VorlaneWidgetTest, AReceiverThatThrowsFailsTheFill) {
    QObject::connect(&widget, &VorlaneWidget::OnAdded, &widget, [] { throw std::runtime_error("receiver"); });
    Show();
    AddPictures(2);
    EXPECT_EQ(widget.StartLecture(), 0);
    EXPECT_TRUE(errors.contains("receiver")) << errors.toStdString();
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(VorlaneWidgetTest, ItemsAreFoundByTheirKeys) {
    Show();
    AddPictures(4);
    widget.StartLecture();
    EXPECT_EQ(widget.GetListIndexFromItemData(1002), 2);
    EXPECT_EQ(widget.GetIndexFromKey(1003), 3);
    EXPECT_EQ(widget.Key(1), 1001);
    EXPECT_TRUE(widget.ImageFullPath(1).endsWith("001.png"));
    EXPECT_EQ(widget.StartLecture({}, 1002), 2);
    QPointF place = QPointF(widget.sheet().Diapo.Item(1)->Left() + 3, 20);
    bool right = true;
    EXPECT_EQ(widget.GetDiapoFromCol(&place, &right), 1);
    EXPECT_FALSE(right);
}

TEST_F(VorlaneWidgetTest, SortingReordersTheSlides) {
    QSignalSpy sorted(&widget, &VorlaneWidget::OnSorted);
    Show();
    for (int i = 0; i < 3; ++i) {
        const QString name = QString("%1.png").arg(2 - i);
        widget.Add(Write(name, Plain(60, 40, ColorOf(2 - i))), QString::number(2 - i), 1000 + i);
    }
    widget.StartLecture();
    EXPECT_EQ(Shown(0), ColorOf(2));
    widget.SetSortedSens(ui::SortSens::ssAscending);
    widget.Sort(1);
    EXPECT_EQ(sorted.count(), 1);
    for (int i = 0; i < 3; ++i) EXPECT_EQ(Shown(i), ColorOf(i)) << i;
    widget.Sort(256);
    EXPECT_TRUE(errors.contains("VorlaneWidget Sort"));
}

TEST_F(VorlaneWidgetTest, SelectingASlideSelectsItsItem) {
    Show();
    AddPictures(3);
    widget.StartLecture();
    widget.SetSelected(1, true);
    EXPECT_TRUE(widget.Selected(1));
    EXPECT_EQ(widget.CurrentDiapo(), 1);
    EXPECT_EQ(widget.CountSelected(), 1);
    EXPECT_FALSE(widget.Selected(99));
    EXPECT_TRUE(errors.contains("VorlaneWidget Selected"));
}

TEST_F(VorlaneWidgetTest, ASlideTakesACaption) {
    Show();
    AddPictures(2);
    widget.StartLecture();
    widget.SetCaptionBottom(1, QStringLiteral("Été"));
    EXPECT_EQ(widget.CaptionBottom(1), QStringLiteral("Été"));
    EXPECT_EQ(widget.sheet().Diapo.Item(1)->CaptionBottom(), "Été");
    EXPECT_EQ(widget.CaptionBottom(99), QString());
    EXPECT_TRUE(errors.contains("VorlaneWidget CaptionBottom"));
}

TEST_F(VorlaneWidgetTest, AListOf40000ItemsOverflowsTheCountAlone) {
    Show();
    for (int i = 0; i < 40000; ++i) widget.Add("/nowhere/a.wav", {}, i);
    widget.StartLecture();
    EXPECT_GT(widget.CountAffiche(), 4);
    EXPECT_EQ(errors, "");
    EXPECT_EQ(widget.Count(), 0);
    EXPECT_TRUE(errors.contains("VorlaneWidget Count"));
}

// --- Looks ---

TEST_F(VorlaneWidgetTest, TheGroundFollowsTheTheme) {
    Show();
    const QPalette before = QApplication::palette();
    QApplication::setPalette(QPalette(QColor(40, 40, 40)));
    QCoreApplication::processEvents();
    EXPECT_EQ(widget.grab().toImage().pixelColor(3, 3), QColor(40, 40, 40));
    QApplication::setPalette(before);
    QCoreApplication::processEvents();
    EXPECT_EQ(widget.grab().toImage().pixelColor(3, 3), before.color(QPalette::Window));
}

TEST_F(VorlaneWidgetTest, AFilledSheetIsPaintedFromWhatItKeeps) {
    Show();
    AddPictures(6);
    widget.StartLecture();
    widget.grab();
    const int64_t scaled = widget.Desktop().scaled.Renders();
    widget.grab();
    EXPECT_EQ(widget.Desktop().scaled.Renders(), scaled);
}

}  // namespace
}  // namespace vorlane
