#include "sheet/vorlane.h"
#include "tests/widgets/mouse.h"
#include "widgets/accessiblesheet.h"
#include "widgets/vorlanewidget.h"

#include <gtest/gtest.h>
#include <memory>

#include <QAccessible>
#include <QCoreApplication>
#include <QScrollBar>

namespace vorlane {
namespace {

class AccessibilityTest : public testing::Test {
protected:
    AccessibilityTest() {
        widget.resize(500, 300);
        widget.SetShowJauge(false);
        widget.DiapoSizeChange(true, 120, 110);
        QObject::connect(
            &widget, &VorlaneWidget::OnBeforeSetPicture, &widget,
            [](int, const QString&, SlideContent* content) { content->Picture = test::Plain(60, 40, Qt::red); });
        widget.show();
        for (int i = 0; i < 30; ++i) widget.Add(QStringLiteral("/nowhere/%1.jpg").arg(i), {}, 1000 + i);
        widget.StartLecture();
        QCoreApplication::processEvents();
    }

    QAccessibleInterface& Sheet() { return *QAccessible::queryAccessibleInterface(&widget); }
    QAccessibleInterface& Slide(int i) { return *Sheet().child(i); }
    static QString Name(QAccessibleInterface& child) { return child.text(QAccessible::Name); }
    static void Do(QAccessibleInterface& child, const QString& action) { child.actionInterface()->doAction(action); }

    VorlaneWidget widget;
};

TEST_F(AccessibilityTest, TheSheetIsAListOfTheSlidesThatShowAnItem) {
    EXPECT_EQ(Sheet().role(), QAccessible::List);
    EXPECT_EQ(Name(Sheet()), "Planche de diapos");
    ASSERT_GT(Sheet().childCount(), widget.CountAffiche());
    for (int i = 0; i < widget.CountAffiche(); ++i) {
        EXPECT_EQ(Slide(i).role(), QAccessible::ListItem);
        EXPECT_EQ(Name(Slide(i)), QStringLiteral("%1.jpg").arg(i));
        EXPECT_EQ(Slide(i).text(QAccessible::Value), QStringLiteral("%1 / 30").arg(i + 1));
        EXPECT_EQ(Sheet().indexOfChild(&Slide(i)), i);
        EXPECT_EQ(Slide(i).parent(), &Sheet());
    }
    EXPECT_EQ(Sheet().child(-1), nullptr);
    EXPECT_EQ(Sheet().child(Sheet().childCount()), nullptr);
}

TEST_F(AccessibilityTest, TheScrollBarStandsBehindTheSlides) {
    auto* bar = QAccessible::queryAccessibleInterface(widget.findChild<QScrollBar*>());
    const int index = Sheet().indexOfChild(bar);
    EXPECT_GE(index, widget.CountAffiche());
    EXPECT_EQ(Sheet().child(index), bar);
}

TEST_F(AccessibilityTest, AnEmptySheetHasNoSlides) {
    widget.Clear();
    for (int i = 0; i < Sheet().childCount(); ++i) EXPECT_NE(Slide(i).role(), QAccessible::ListItem);
}

TEST_F(AccessibilityTest, ASlideTellsItsCaptionAndItsName) {
    widget.SetCaptionBottom(2, QStringLiteral("Été"));
    EXPECT_EQ(Slide(2).text(QAccessible::Description), QStringLiteral("Été"));
    widget.setAccessibleName("Mes photos");
    EXPECT_EQ(Name(Sheet()), "Mes photos");
}

TEST_F(AccessibilityTest, ASlideIsFoundWhereItStandsOnTheScreen) {
    const QRect place = Slide(1).rect();
    EXPECT_EQ(place.size(), QSize(120, 110));
    EXPECT_EQ(Sheet().childAt(place.center().x(), place.center().y()), &Slide(1));
    EXPECT_TRUE(widget.rect().translated(widget.mapToGlobal(QPoint())).contains(place));
}

TEST_F(AccessibilityTest, TheNamesFollowTheScrolledList) {
    widget.findChild<QScrollBar*>()->setValue(widget.CountDiapoX());
    EXPECT_EQ(Name(Slide(0)), QStringLiteral("%1.jpg").arg(widget.CountDiapoX()));
}

TEST_F(AccessibilityTest, SelectionAndFocusAreStates) {
    EXPECT_TRUE(Slide(1).state().selectable);
    EXPECT_TRUE(Slide(1).state().focusable);
    EXPECT_FALSE(Slide(1).state().selected);
    widget.activateWindow();
    widget.setFocus();
    widget.SetSelected(1, true);
    EXPECT_TRUE(Slide(1).state().selected);
    EXPECT_TRUE(Slide(1).state().focused);
    EXPECT_FALSE(Slide(0).state().selected);
    EXPECT_FALSE(Slide(0).state().focused);
    EXPECT_EQ(Sheet().focusChild(), &Slide(1));
}

TEST_F(AccessibilityTest, PressingASlideSelectsItAlone) {
    widget.SetSelected(0, true);
    Do(Slide(2), QAccessibleActionInterface::pressAction());
    EXPECT_FALSE(widget.Selected(0));
    EXPECT_TRUE(widget.Selected(2));
    EXPECT_EQ(widget.CurrentDiapo(), 2);
}

TEST_F(AccessibilityTest, TogglingASlideLeavesTheOthers) {
    widget.SetSelected(0, true);
    Do(Slide(2), QAccessibleActionInterface::toggleAction());
    EXPECT_EQ(widget.CountSelected(), 2);
    Do(Slide(2), QAccessibleActionInterface::toggleAction());
    EXPECT_EQ(widget.CountSelected(), 1);
    EXPECT_TRUE(widget.Selected(0));
}

TEST_F(AccessibilityTest, WhereOneSlideAtMostIsSelectedTogglingASlideLeavesNoOther) {
    widget.SetSelectionMultiple(false);
    widget.SetSelected(0, true);
    Do(Slide(2), QAccessibleActionInterface::toggleAction());
    EXPECT_EQ(widget.CountSelected(), 1);
    EXPECT_TRUE(widget.Selected(2));
    Do(Slide(2), QAccessibleActionInterface::toggleAction());
    EXPECT_EQ(widget.CountSelected(), 0);
}

TEST_F(AccessibilityTest, TheSlidesOfADisabledSheetDoNothing) {
    widget.setEnabled(false);
    Do(Slide(2), QAccessibleActionInterface::toggleAction());
    Do(Slide(2), QAccessibleActionInterface::pressAction());
    EXPECT_EQ(widget.CountSelected(), 0);
}

TEST_F(AccessibilityTest, FocusingASlideMakesItCurrent) {
    widget.activateWindow();
    Do(Slide(3), QAccessibleActionInterface::setFocusAction());
    EXPECT_TRUE(widget.hasFocus());
    EXPECT_EQ(widget.CurrentDiapo(), 3);
    EXPECT_TRUE(Slide(3).actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
}

TEST_F(AccessibilityTest, AnUnknownActionDoesNothing) {
    Do(Slide(3), "fly");
    EXPECT_EQ(widget.CountSelected(), 0);
}

TEST_F(AccessibilityTest, ASlideThatIsGoneIsInvalid) {
    QAccessibleInterface& slide = Slide(2);
    widget.Clear();
    EXPECT_FALSE(slide.isValid());
    EXPECT_TRUE(slide.state().invalid);
    EXPECT_EQ(slide.rect(), QRect());
    EXPECT_EQ(Name(slide), QString());
    Do(slide, QAccessibleActionInterface::pressAction());
    EXPECT_EQ(widget.CountSelected(), 0);
}

TEST_F(AccessibilityTest, TheInterfacesEndWithTheWidget) {
    auto other = std::make_unique<VorlaneWidget>();
    other->show();
    QAccessibleInterface* sheet = QAccessible::queryAccessibleInterface(other.get());
    const QAccessible::Id id = QAccessible::uniqueId(sheet);
    other.reset();
    EXPECT_EQ(QAccessible::accessibleInterface(id), nullptr);
}

}  // namespace
}  // namespace vorlane
