#include "tests/widgets/propertytable.h"
#include "tests/widgets/timelinewidgettest.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QTimer>
#include <QToolTip>

namespace vorlane {
namespace {

using test::Click;
using test::SendMouse;
using test::TimeLineWidgetTest;

constexpr QColor kMusicBorder(0xC0, 0xC0, 0x00);
constexpr QColor kCommentBorder(0x00, 0xC0, 0x00);
constexpr QColor kMark(0x41, 0x41, 0xF3);

// --- Properties ---

TEST_F(TimeLineWidgetTest, HasThePersistedPropertiesOfTheTimeLineAndNoOther) {
    EXPECT_EQ(test::OwnProperties(*strip), test::Keys(eTimeLine::PersistedProperties()));
}

TEST_F(TimeLineWidgetTest, EveryPropertyIsWrittenReadAndReported) {
    test::ExpectWritable(*strip, strip->timeline(), eTimeLine::PersistedProperties());
}

TEST_F(TimeLineWidgetTest, TheMarksHaveTheNamesOfTheirStyles) {
    EXPECT_TRUE(strip->setProperty("Style", "etltFree"));
    EXPECT_EQ(strip->Style(), ui::TimeMarks::etltFree);
    EXPECT_EQ(strip->timeline().Style(), etlType::etltFree);
}

TEST_F(TimeLineWidgetTest, AValueThatTheTimeLineCannotHoldIsReportedAndLeavesTheOldOne) {
    QSignalSpy failed(strip.get(), &TimeLineWidget::OnError);
    strip->SetBarreHeight(300);
    EXPECT_EQ(strip->BarreHeight(), 8);
    ASSERT_EQ(failed.count(), 1);
    EXPECT_EQ(failed.at(0).at(0).toInt(), 6);
    EXPECT_EQ(failed.at(0).at(4).toString(), "TimeLineWidget SetBarreHeight");
}

TEST_F(TimeLineWidgetTest, ASavedStripIsRestoredInAnotherWidget) {
    strip->SetExpositionTime(7);
    strip->SetBorderMusicColor(Qt::red);
    strip->SetFont(QFont("DejaVu Sans", 11, QFont::Bold));
    strip->SetStyle(ui::TimeMarks::etltFree);
    const QByteArray saved = strip->SaveProperties();
    TimeLineWidget other;
    EXPECT_TRUE(other.RestoreProperties(saved));
    EXPECT_EQ(other.SaveProperties(), saved);
    EXPECT_EQ(other.ExpositionTime(), 7);
    EXPECT_EQ(other.BorderMusicColor(), QColor(Qt::red));
    EXPECT_FALSE(other.RestoreProperties("{]"));
    EXPECT_EQ(other.ExpositionTime(), 7);
}

// --- Pixels ---

TEST_F(TimeLineWidgetTest, TheMarksStandUnderTheEdgesOfTheSlides) {
    const QImage image = Painted();
    for (const int x : {1, 151, 301, 451}) {
        for (int y = 54; y <= 58; ++y) EXPECT_EQ(image.pixelColor(x, y), kMark) << x << "," << y;
        EXPECT_EQ(image.pixelColor(x + 1, 57), QColor(Qt::white)) << x;
    }
}

TEST_F(TimeLineWidgetTest, MusicsAndCommentsHaveARowEach) {
    Music(0, 10);
    Comment(1, 3);
    const QImage image = Painted();
    EXPECT_EQ(image.pixelColor(1, 7), kMusicBorder);
    EXPECT_EQ(image.pixelColor(301, 7), kMusicBorder);
    EXPECT_EQ(image.pixelColor(302, 7), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(100, 3), kMusicBorder);
    EXPECT_EQ(image.pixelColor(100, 11), kMusicBorder);
    EXPECT_EQ(image.pixelColor(151, 53), kCommentBorder);
    EXPECT_EQ(image.pixelColor(241, 53), kCommentBorder);
    EXPECT_EQ(image.pixelColor(242, 53), QColor(Qt::white));
    EXPECT_EQ(errors, "");
}

TEST_F(TimeLineWidgetTest, AtTwiceTheDensityLinesAreWholeBlocksAndTextsAreDrawnAnew) {
    Music(0, 10);
    const QImage plain = Painted();
    const QImage dense = Painted(2);
    const QImage enlarged = plain.scaled(dense.size(), Qt::IgnoreAspectRatio, Qt::FastTransformation);
    const QRect border(0, 0, 1200, 2);
    const QRect bar(2, 6, 602, 2);
    const QRect tick(302, 108, 4, 10);
    for (const QRect& lines : {border, bar, tick}) EXPECT_EQ(dense.copy(lines), enlarged.copy(lines));
    const QRect labels(2, 80, 1196, 24);
    EXPECT_NE(dense.copy(labels), enlarged.copy(labels));
    EXPECT_NE(dense.copy(labels), QImage(dense.copy(labels)).mirrored()) << "no text at all";
}

TEST_F(TimeLineWidgetTest, ARoundStripIsCutAtItsCorners) {
    strip->SetRound(true);
    EXPECT_FALSE(strip->mask().contains(QPoint(0, 0)));
    EXPECT_TRUE(strip->mask().contains(QPoint(300, 0)));
    strip->SetRound(false);
    EXPECT_TRUE(strip->mask().isEmpty());
}

// What of a strip is asked to be painted.
class WatchedStrip : public TimeLineWidget {
public:
    using TimeLineWidget::TimeLineWidget;
    QRegion takePainted() {
        QCoreApplication::processEvents();
        return std::exchange(painted_, {});
    }

protected:
    void paintEvent(QPaintEvent* event) override {
        painted_ += event->region();
        TimeLineWidget::paintEvent(event);
    }

private:
    QRegion painted_;
};

TEST_F(TimeLineWidgetTest, OfATickOnlyTheTriangleIsPaintedAnew) {
    WatchedStrip watched;
    watched.resize(600, 60);
    watched.AttachVorlane(sheet.get());
    watched.show();
    watched.Lecture(2, 0);
    watched.takePainted();
    watched.Lecture(3);
    const QRect moved = watched.takePainted().boundingRect();
    EXPECT_TRUE(moved.contains(QRect(56, 0, 41, 6))) << "from where it was to where it is";
    EXPECT_LT(moved.width(), 60);
    EXPECT_LT(moved.height(), 20);
    watched.SetLectureIndicPos(kIndicBottom);
    EXPECT_TRUE(watched.takePainted().contains(QPoint(91, 56)));
    watched.Refresh();
    EXPECT_TRUE(watched.takePainted().isEmpty()) << "nothing has changed";
    watched.GradientColor(Qt::red, Qt::red, 1);
    EXPECT_EQ(watched.takePainted(), QRegion(watched.rect()));
    const QImage shown = watched.grab().toImage();
    watched.timeline().Surface().KeepImage(nullptr);
    EXPECT_EQ(watched.grab().toImage(), shown);
}

TEST_F(TimeLineWidgetTest, APlaybackMayLeadToAnySlideButBeginsOnOneThatANumberHolds) {
    strip->SetStartPoint(40000);
    strip->Lecture(200003, 0);
    EXPECT_EQ(Pixel(91, 2), QColor(Qt::blue));
    strip->LectureEnd();
    EXPECT_EQ(errors, "");
    strip->Lecture(3, 40000);
    EXPECT_EQ(Pixel(91, 2), QColor(Qt::white));
    strip->Record(3, 40000);
    EXPECT_EQ(Pixel(2, 30), QColor(Qt::white));
    EXPECT_EQ(errors.count("TimeLineWidget Lecture"), 1);
    EXPECT_EQ(errors.count("TimeLineWidget Record"), 1);
    strip->RecordEnd();
}

TEST_F(TimeLineWidgetTest, ASoundThatIsSetOnASlideWithoutOneLeavesItSoAndTheDisplayFollows) {
    Music(1, 5);
    int repaints = 0;
    const ScopedConnection heard = strip->timeline().Musiques()->Events.csRepaint.connect([&repaints] { ++repaints; });
    TimeLineSound sound = *strip->Musiques().Item(101);
    sound.DiapoKey = 105;
    EXPECT_FALSE(strip->Musiques().SetItem(105, sound));
    EXPECT_EQ(repaints, 1);
    EXPECT_EQ(strip->Musiques().Count(), 1);
    EXPECT_FALSE(strip->Musiques().Add(folder.filePath("gone.wav"), 101));
    EXPECT_EQ(repaints, 2) << "as for any file that is not there";
    EXPECT_FALSE(strip->Musiques().Add(sound.Nom, 101));
    EXPECT_EQ(repaints, 2);
}

TEST_F(TimeLineWidgetTest, APlaybackShowsATriangleAndARecordingABarInTheMiddle) {
    strip->Lecture(2, 0);
    EXPECT_EQ(Pixel(61, 2), QColor(Qt::blue));
    strip->Lecture(4);
    EXPECT_EQ(Pixel(61, 2), QColor(Qt::white));
    EXPECT_EQ(Pixel(121, 2), QColor(Qt::blue));
    strip->LectureEnd();
    EXPECT_EQ(Pixel(121, 2), QColor(Qt::white));
    strip->Record(3, 1);
    EXPECT_EQ(Pixel(151, 30), QColor(0xFA, 0xAD, 0x0E));
    EXPECT_EQ(Pixel(153, 30).red(), 0xEB);
    strip->RecordEnd();
    EXPECT_EQ(Pixel(153, 30), QColor(Qt::white));
}

TEST_F(TimeLineWidgetTest, TheGroundIsTheHosts) {
    strip->GradientColor(Qt::red, Qt::white, 3);
    EXPECT_EQ(Pixel(1, 30), QColor(255, 0, 0));
    EXPECT_GT(Pixel(590, 30).green(), 245);
    EXPECT_EQ(strip->GradientColorMedian(), QColor(Qt::red));
    strip->GradientTrace(Qt::blue, Qt::blue, 1, false, 200, 20, 10, 10);
    EXPECT_EQ(Pixel(205, 25), QColor(Qt::blue));
    strip->Refresh();
    EXPECT_NE(Pixel(205, 25), QColor(Qt::blue));
}

// --- Sounds ---

TEST_F(TimeLineWidgetTest, SoundsAreKeptInTheOrderOfTheirSlides) {
    Music(5, 4);
    Music(2, 3);
    TimeLineSounds musics = strip->Musiques();
    ASSERT_EQ(musics.Count(), 2);
    EXPECT_EQ(musics.ItemFromPos(1)->DiapoKey, 102);
    EXPECT_EQ(musics.ItemFromPos(2)->Duree, 4);
    EXPECT_EQ(musics.ItemFromPos(3), std::nullopt);
    EXPECT_EQ(musics.Item(105)->VolPendantComment, 25);
    EXPECT_FALSE(musics.Add(Sound("x.wav", 1), 105)) << "the slide has one";
    EXPECT_FALSE(musics.Add("/nowhere/x.wav", 106));
    EXPECT_FALSE(musics.Add(Sound("x.wav", 1), 106, -1, false, true, 300)) << "no volume";
    TimeLineSound sound = *musics.Item(102);
    sound.VolNormal = 40;
    sound.Repetition = true;
    EXPECT_TRUE(musics.SetItem(102, sound));
    EXPECT_EQ(*musics.Item(102), sound);
    EXPECT_FALSE(musics.SetItem(111, sound));
    EXPECT_TRUE(musics.Remove(105));
    EXPECT_FALSE(musics.Remove(105));
    strip->Clear();
    EXPECT_EQ(musics.Count(), 0);
}

TEST_F(TimeLineWidgetTest, ARemovedFileIsTold) {
    Comment(1, 3);
    QSignalSpy removed(strip.get(), &TimeLineWidget::OnRemovedSound);
    strip->Comments().RemoveFromName(folder.filePath("c1.wav").toUpper());
    ASSERT_EQ(removed.count(), 1);
    EXPECT_EQ(removed.at(0), QVariantList({1, 101, 1}));
}

TEST_F(TimeLineWidgetTest, AStripWithoutSoundsOfItsOwnTakesThemFromItsHost) {
    TimeLineWidget other;
    Music(1, 4);
    other.SetMusiques(strip->timeline().Musiques());
    EXPECT_EQ(other.Musiques().Count(), 1);
    other.SetMusiques(nullptr);
    EXPECT_EQ(other.Musiques().Count(), 0);
    EXPECT_FALSE(other.Musiques().Add(Sound("x.wav", 1), 105));
}

TEST_F(TimeLineWidgetTest, TheBarsGoWithTheirSlides) {
    Music(0, 4);
    EXPECT_EQ(Pixel(1, 7), kMusicBorder);
    sheet->SetSelected(0, true);
    sheet->Remove(0);
    EXPECT_EQ(strip->Musiques().Count(), 0);
    EXPECT_EQ(Pixel(1, 7), QColor(Qt::white));
}

TEST_F(TimeLineWidgetTest, AStripOutlivesItsSheetAndASheetItsStrip) {
    Music(0, 4);
    sheet.reset();
    strip->Refresh();
    EXPECT_EQ(Pixel(1, 7), QColor(Qt::white));
    EXPECT_EQ(errors, "");
    VorlaneWidget other;
    strip->AttachVorlane(&other);
    strip.reset();
    other.sheet().Events.Sorted();
}

// --- The user's hand ---

// Runs action on the popup as soon as it is open.
template <class Action>
void OnceOpen(Action action) {
    QTimer::singleShot(0, [action] {
        auto* popup = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(popup, nullptr);
        action(*popup);
        popup->close();
    });
}

QStringList Texts(const QMenu& menu) {
    QStringList texts;
    for (const QAction* action : menu.actions()) texts += action->isSeparator() ? "-" : action->text();
    return texts;
}

void Choose(QMenu& menu, int index) {
    menu.setActiveAction(menu.actions().at(index));
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QApplication::sendEvent(&menu, &enter);
}

TEST_F(TimeLineWidgetTest, ClicksAreTold) {
    QSignalSpy clicked(strip.get(), &TimeLineWidget::OnClick);
    QSignalSpy doubled(strip.get(), &TimeLineWidget::OnDblClick);
    Click(*strip, {200, 30});
    EXPECT_EQ(clicked.count(), 1);
    Click(*strip, {200, 30});
    EXPECT_EQ(doubled.count(), 1);
}

TEST_F(TimeLineWidgetTest, TheTooltipTellsTheSoundUnderThePointer) {
    Music(0, 10);
    const auto pointAt = [this](QPoint place) {
        SendMouse(*strip, QEvent::MouseMove, place, Qt::NoButton, false);
        QHelpEvent help(QEvent::ToolTip, place, strip->mapToGlobal(place));
        QCoreApplication::sendEvent(strip.get(), &help);
    };
    pointAt({100, 7});
    EXPECT_EQ(QToolTip::text(), folder.filePath("m0.wav") + " 10 s");
    EXPECT_EQ(strip->ToolTipAt(100, 7), QToolTip::text());
    pointAt({400, 7});
    EXPECT_EQ(strip->ToolTipAt(400, 7), "");
}

TEST_F(TimeLineWidgetTest, TheRightButtonShowsAPopupInFrenchThatLeadsToASound) {
    Music(4, 10);
    Comment(6, 3);
    QStringList texts;
    OnceOpen([&](QMenu& menu) {
        texts = Texts(menu);
        Choose(menu, 6);
    });
    Click(*strip, {200, 30}, Qt::RightButton);
    const QString music = "0:20 " + folder.filePath("m4.wav") + "\t(4.jpg)";
    const QString comment = "0:30 " + folder.filePath("c6.wav") + "\t(6.jpg)";
    EXPECT_EQ(
        texts,
        QStringList({QStringLiteral("Musique ou commentaire précédent\t(F2)"), "Musique ou commentaire suivant\t(F5)",
                     "-", QStringLiteral("Musique précédente\t(F3)"), "Musique suivante\t(F6)", "-", music, "-",
                     QStringLiteral("Commentaire précédent\t(F4)"), "Commentaire suivant\t(F7)", "-", comment}));
    EXPECT_EQ(sheet->Value(sheet->CurrentDiapo()), 4);
}

TEST_F(TimeLineWidgetTest, TheKeyForMenusShowsThePopupUnderTheStrip) {
    QPoint place;
    OnceOpen([&](QMenu& menu) { place = menu.pos(); });
    QContextMenuEvent key(QContextMenuEvent::Keyboard, {300, 30}, strip->mapToGlobal(QPoint(300, 30)));
    QCoreApplication::sendEvent(strip.get(), &key);
    EXPECT_TRUE(key.isAccepted());
    EXPECT_EQ(place, strip->mapToGlobal(QPoint(1, 60)));
}

TEST_F(TimeLineWidgetTest, MenuListsTheSoundsAlone) {
    Music(4, 10);
    Comment(6, 3);
    QStringList texts;
    OnceOpen([&](QMenu& menu) { texts = Texts(menu); });
    strip->Menu(1, 10, 10);
    EXPECT_EQ(texts, QStringList("0:30 " + folder.filePath("c6.wav") + "\t(6.jpg)"));
}

TEST_F(TimeLineWidgetTest, TheFunctionKeysJumpFromSoundToSoundOnTheSheetAndOnTheStrip) {
    Music(2, 4);
    Comment(7, 3);
    sheet->SetCurrentDiapo(0);
    const auto press = [](QWidget& widget, int key) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(&widget, &event);
        return event.isAccepted();
    };
    press(*sheet, Qt::Key_F6);
    EXPECT_EQ(sheet->Value(sheet->CurrentDiapo()), 2);
    EXPECT_TRUE(press(*strip, Qt::Key_F7));
    EXPECT_EQ(sheet->Value(sheet->CurrentDiapo()), 7);
    EXPECT_TRUE(press(*strip, Qt::Key_F3));
    EXPECT_EQ(sheet->Value(sheet->CurrentDiapo()), 2);
    EXPECT_FALSE(press(*strip, Qt::Key_F8));
    EXPECT_NE(strip->focusPolicy() & Qt::TabFocus, 0);
}

TEST_F(TimeLineWidgetTest, AStripThatIsNotEnabledLeavesTheKeysToOthers) {
    Music(2, 4);
    sheet->SetCurrentDiapo(0);
    strip->SetEnabled(false);
    bool opened = false;
    QTimer::singleShot(0, [&opened] {
        QWidget* popup = QApplication::activePopupWidget();
        opened = popup != nullptr;
        if (opened) popup->close();
    });
    QContextMenuEvent menu(QContextMenuEvent::Keyboard, {300, 30}, strip->mapToGlobal(QPoint(300, 30)));
    QCoreApplication::sendEvent(strip.get(), &menu);
    QCoreApplication::processEvents();
    EXPECT_FALSE(menu.isAccepted());
    EXPECT_FALSE(opened);
    const auto takes = [this](int key) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(strip.get(), &event);
        return event.isAccepted();
    };
    EXPECT_FALSE(takes(Qt::Key_F6));
    EXPECT_EQ(sheet->Value(sheet->CurrentDiapo()), 0);
    QKeyEvent onSheet(QEvent::KeyPress, Qt::Key_F6, Qt::NoModifier);
    QCoreApplication::sendEvent(sheet.get(), &onSheet);
    EXPECT_EQ(sheet->Value(sheet->CurrentDiapo()), 2);
    strip->SetEnabled(true);
    EXPECT_TRUE(takes(Qt::Key_F6));
}

TEST_F(TimeLineWidgetTest, SoundsAreSoughtByTheHost) {
    Music(2, 4);
    Comment(7, 3);
    EXPECT_EQ(strip->NextSound(100, 0).DiapoKey, 102);
    EXPECT_EQ(strip->NextSound(100, 2).DiapoKey, 107);
    EXPECT_EQ(strip->NextSound(107, 2).DiapoKey, -1);
    EXPECT_EQ(strip->PreviousSound(108, 1).Nom, folder.filePath("c7.wav"));
    EXPECT_EQ(strip->PreviousSound(103, 0).DiapoKey, 102);
    EXPECT_EQ(strip->GetMusicAt(301 + 60).Duree, 2);
    EXPECT_EQ(strip->GetCommentAt(301 + 60), TimeLineSound{});
    EXPECT_EQ(errors, "");
}

}  // namespace
}  // namespace vorlane
