#include "tests/widgets/assistive.h"
#include "tests/widgets/timelinewidgettest.h"

#include <utility>
#include <vector>

#include <QAccessible>

namespace vorlane {
namespace {

class AccessibleTimeLineTest : public test::TimeLineWidgetTest {
protected:
    AccessibleTimeLineTest() {
        Music(0, 10, true);
        Music(11, 65);
        Comment(1, 3);
    }
    QAccessibleInterface& Strip() { return *QAccessible::queryAccessibleInterface(strip.get()); }
    QAccessibleInterface& Sound(int i) { return *Strip().child(i); }
    QString Name(int i) { return Sound(i).text(QAccessible::Name); }
    QString Description(int i) { return Sound(i).text(QAccessible::Description); }
};

TEST_F(AccessibleTimeLineTest, TheStripIsAListOfTheSoundsByNameAndTime) {
    EXPECT_EQ(Strip().role(), QAccessible::List);
    EXPECT_EQ(Strip().text(QAccessible::Name), "Ligne de temps");
    ASSERT_EQ(Strip().childCount(), 3);
    EXPECT_EQ(Name(0), QStringLiteral("m0.wav, à 0:00"));
    EXPECT_EQ(Name(1), QStringLiteral("m11.wav, à 0:55"));
    EXPECT_EQ(Name(2), QStringLiteral("c1.wav, à 0:05"));
    EXPECT_EQ(Description(0), "Musique, 10 s, en boucle");
    EXPECT_EQ(Description(1), "Musique, 1 min 05 s");
    EXPECT_EQ(Description(2), "Commentaire, 3 s");
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(Strip().indexOfChild(&Sound(i)), i);
        EXPECT_EQ(Sound(i).parent(), &Strip());
        EXPECT_EQ(Sound(i).role(), QAccessible::ListItem);
    }
    EXPECT_EQ(Strip().child(3), nullptr);
    EXPECT_EQ(Strip().child(-1), nullptr);
}

TEST_F(AccessibleTimeLineTest, TheHostsNameForTheStripIsTold) {
    strip->setAccessibleName("Sons");
    EXPECT_EQ(Strip().text(QAccessible::Name), "Sons");
}

TEST_F(AccessibleTimeLineTest, ASoundInSightHasAPlaceOnTheScreen) {
    const QRect place = Sound(2).rect();
    EXPECT_EQ(place.topLeft(), strip->mapToGlobal(QPoint(151, 49)));
    EXPECT_EQ(place.size(), QSize(90, 8));
    EXPECT_EQ(Strip().childAt(place.center().x(), place.center().y()), &Sound(2));
    EXPECT_FALSE(Sound(2).state().offscreen);
    EXPECT_TRUE(Sound(1).state().offscreen);
    EXPECT_EQ(Sound(1).rect(), QRect());
    EXPECT_EQ(Strip().childAt(-5, -5), nullptr);
}

TEST_F(AccessibleTimeLineTest, ARepeatingSoundIsOneThing) {
    const QRect place = Sound(0).rect();
    EXPECT_EQ(place.left(), strip->mapToGlobal(QPoint(1, 0)).x());
    EXPECT_EQ(place.width(), 598);
    EXPECT_EQ(Strip().childAt(strip->mapToGlobal(QPoint(500, 7)).x(), strip->mapToGlobal(QPoint(0, 7)).y()), &Sound(0));
}

TEST_F(AccessibleTimeLineTest, PressingASoundSelectsItsSlide) {
    QAccessibleActionInterface* actions = Sound(1).actionInterface();
    ASSERT_EQ(actions->actionNames(), QStringList(QAccessibleActionInterface::pressAction()));
    actions->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(sheet->Value(sheet->CurrentDiapo()), 11);
    actions->doAction("fly");
    EXPECT_EQ(sheet->Value(sheet->CurrentDiapo()), 11);
}

TEST_F(AccessibleTimeLineTest, ASoundThatIsGoneIsInvalid) {
    QAccessibleInterface& comment = Sound(2);
    strip->Comments().Clear();
    EXPECT_FALSE(comment.isValid());
    EXPECT_TRUE(comment.state().invalid);
    EXPECT_EQ(comment.text(QAccessible::Name), "");
    EXPECT_EQ(comment.rect(), QRect());
    EXPECT_EQ(Strip().indexOfChild(&comment), -1);
    EXPECT_EQ(Strip().childCount(), 2);
}

TEST_F(AccessibleTimeLineTest, ASoundOfASlideThatHasLeftHasNoTime) {
    sheet->Liste().Clear();
    EXPECT_EQ(Name(1), "m11.wav");
}

TEST_F(AccessibleTimeLineTest, ASoundWhoseStartNoNumberHoldsHasNoTime) {
    sheet->Liste().Clear();
    ListBox& list = sheet->sheet().LstInterne;
    for (int n = 0; n < 70000; ++n) {
        list.AddItem("/nowhere/x.jpg");
        list.SetItemData(n, 100 + n);
    }
    strip->SetExpositionTime(32767);
    Music(69999, 2);
    ASSERT_EQ(Strip().childCount(), 4);
    EXPECT_EQ(Name(1), QStringLiteral("m11.wav, à 100:07:17"));
    EXPECT_EQ(Name(2), "m69999.wav");
}

TEST_F(AccessibleTimeLineTest, ADisabledStripIsNotPressed) {
    const auto press = [this] {
        Sound(1).actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        return sheet->CurrentDiapo() < 0 ? 0 : sheet->Value(sheet->CurrentDiapo());
    };
    EXPECT_FALSE(Sound(1).state().disabled);
    strip->setEnabled(false);
    EXPECT_TRUE(Sound(1).state().disabled);
    EXPECT_EQ(press(), 0);
    strip->setEnabled(true);
    strip->SetEnabled(false);
    EXPECT_TRUE(Sound(1).state().disabled);
    EXPECT_EQ(press(), 0);
    strip->SetEnabled(true);
    EXPECT_EQ(press(), 11);
}

TEST_F(AccessibleTimeLineTest, SoundsThatTheStripHasNoMoreAreHeardNoMore) {
    const auto former = strip->timeline().Musiques();
    EXPECT_TRUE(former->Events.csRepaint.connected());
    strip->SetMusiques(nullptr);
    EXPECT_FALSE(former->Events.csRepaint.connected());
    strip->SetMusiques(former);
    EXPECT_TRUE(former->Events.csRepaint.connected());
    strip.reset();
    EXPECT_FALSE(former->Events.csRepaint.connected());
}

TEST_F(AccessibleTimeLineTest, TheInterfacesOfSoundsThatAreGoneGoInTime) {
    strip->Musiques().Clear();
    const QAccessible::Id kept = QAccessible::uniqueId(&Sound(0));
    const QString file = test::TimeLineWidgetTest::Sound("m0.wav", 10);
    int alive = 0;
    std::vector<QAccessible::Id> ids;
    for (int key = 1000; key < 1500; ++key) {
        ASSERT_TRUE(strip->Musiques().Add(file, key, 0));
        ids.push_back(QAccessible::uniqueId(&Sound(0)));
        ASSERT_TRUE(strip->Musiques().Remove(key));
    }
    for (const QAccessible::Id id : ids) alive += QAccessible::accessibleInterface(id) == nullptr ? 0 : 1;
    EXPECT_LT(alive, 100);
    EXPECT_NE(QAccessible::accessibleInterface(kept), nullptr) << "the comment's";
}

int reordered = 0;  // how often the list was told to be another

TEST_F(AccessibleTimeLineTest, ChangesOfTheSoundsAreTold) {
    const test::AssistivePrograms listening;
    QAccessible::installUpdateHandler([](QAccessibleEvent* event) {
        const QAccessibleInterface* told = event->accessibleInterface();
        const bool ours = told != nullptr && told->text(QAccessible::Name) == QLatin1String("Ligne de temps");
        reordered += ours && event->type() == QAccessible::ObjectReorder;
    });
    const auto told = [] { return std::exchange(reordered, 0) > 0; };
    EXPECT_FALSE(told());
    Music(3, 2);
    EXPECT_TRUE(told());
    Comment(4, 2);
    EXPECT_TRUE(told());
    strip->Comments().Remove(104);
    EXPECT_TRUE(told());
    strip->Musiques().Clear();
    EXPECT_TRUE(told());
    QAccessible::installUpdateHandler(nullptr);
}

QStringList toldNames;  // of the sounds, as they were told last

TEST_F(AccessibleTimeLineTest, TheNewTimesOfTheSoundsAreToldWhenTheSlidesHaveOtherPlaces) {
    const test::AssistivePrograms listening;
    QAccessible::installUpdateHandler([](QAccessibleEvent* event) {
        QAccessibleInterface* list = event->accessibleInterface();
        if (list == nullptr || event->type() != QAccessible::ObjectReorder) return;
        if (list->text(QAccessible::Name) != QLatin1String("Ligne de temps")) return;
        toldNames.clear();
        for (int i = 0; i < list->childCount(); ++i) toldNames += list->child(i)->text(QAccessible::Name);
    });
    const auto told = [] { return std::exchange(toldNames, {}).join("; ").toStdString(); };
    const auto moveToFront = [this](int item) {
        const int key = sheet->Key(item);
        sheet->sheet().LstInterne.RemoveItem(item);
        sheet->sheet().LstInterne.AddItem("/nowhere/moved.jpg", 0);
        sheet->sheet().LstInterne.SetItemData(0, key);
    };
    VorlaneEvents& events = sheet->sheet().Events;
    moveToFront(11);
    events.Sorted();
    EXPECT_EQ(told(), "m11.wav, à 0:00; m0.wav, à 0:05; c1.wav, à 0:10");
    moveToFront(1);
    int32_t effect = 2;
    events.OLECompleteDrag(effect);
    EXPECT_EQ(told(), "m0.wav, à 0:00; m11.wav, à 0:05; c1.wav, à 0:10");
    sheet->sheet().LstInterne.AddItem("/nowhere/new.jpg", 1);
    events.AfterDropAdd(1);
    EXPECT_EQ(told(), "m0.wav, à 0:00; m11.wav, à 0:10; c1.wav, à 0:15");
    sheet->StartLecture();
    sheet->Remove(1);
    EXPECT_EQ(told(), "m0.wav, à 0:00; m11.wav, à 0:05; c1.wav, à 0:10");
    strip->SetExpositionTime(10);
    EXPECT_EQ(told(), "m0.wav, à 0:00; m11.wav, à 0:10; c1.wav, à 0:20");
    strip->AttachVorlane(nullptr);
    events.Sorted();
    EXPECT_EQ(told(), "");
    QAccessible::installUpdateHandler(nullptr);
}

TEST_F(AccessibleTimeLineTest, TheInterfacesEndWithTheWidget) {
    const QAccessible::Id id = QAccessible::uniqueId(&Sound(0));
    strip.reset();
    EXPECT_EQ(QAccessible::accessibleInterface(id), nullptr);
}

}  // namespace
}  // namespace vorlane
