// A time line's widget that is deleted while it leads to a sound.
#include "tests/widgets/timelinewidgettest.h"

#include <QAccessible>
#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QTimer>

namespace vorlane {
namespace {

class TimeLineWidgetEndTest : public test::TimeLineWidgetTest {
protected:
    TimeLineWidgetEndTest() {
        Music(11, 4);
        sheet->SetCurrentDiapo(0);
        QObject::connect(sheet.get(), &VorlaneWidget::OnDisplayStart, sheet.get(), [this] { strip.reset(); });
    }
    ~TimeLineWidgetEndTest() override {
        EXPECT_EQ(strip, nullptr);
        EXPECT_EQ(sheet->Key(sheet->Value(ShownSlide())), 111) << "the sheet goes on";
    }
    int ShownSlide() const { return sheet->GetIndexFromKey(111); }
    static void Press(QWidget& widget, int key) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(&widget, &event);
    }
    // Runs action on the popup as soon as it is open.
    template <class Action>
    static void OnceOpen(Action action) {
        QTimer::singleShot(0, [action] { action(*qobject_cast<QMenu*>(QApplication::activePopupWidget())); });
    }
    static void ChooseLast(QMenu& menu) {
        menu.setActiveAction(menu.actions().back());
        Press(menu, Qt::Key_Return);
    }
};

TEST_F(TimeLineWidgetEndTest, ByAKeyOnTheStrip) {
    Press(*strip, Qt::Key_F6);
}

TEST_F(TimeLineWidgetEndTest, ByAKeyOnTheSheet) {
    Press(*sheet, Qt::Key_F6);
}

TEST_F(TimeLineWidgetEndTest, InAChoiceOfItsPopup) {
    OnceOpen(ChooseLast);
    strip->Menu(0, 10, 10);
}

TEST_F(TimeLineWidgetEndTest, InAChoiceOfThePopupOfTheKeyForMenus) {
    strip->Comments().Add(Sound("c.wav", 2), 111);
    OnceOpen(ChooseLast);
    QContextMenuEvent key(QContextMenuEvent::Keyboard, {300, 30}, strip->mapToGlobal(QPoint(300, 30)));
    QCoreApplication::sendEvent(strip.get(), &key);
}

TEST_F(TimeLineWidgetEndTest, InAChoiceOfThePopupOfTheRightButton) {
    strip->Comments().Add(Sound("c.wav", 2), 111);
    OnceOpen(ChooseLast);
    test::Click(*strip, {200, 30}, Qt::RightButton);
}

TEST_F(TimeLineWidgetEndTest, InThePressOfASoundByAnAssistiveProgram) {
    QAccessibleInterface* sound = QAccessible::queryAccessibleInterface(strip.get())->child(0);
    sound->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
}

}  // namespace
}  // namespace vorlane
