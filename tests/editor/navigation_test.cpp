// The keyboard on the sheet, and the menu on its slides.
#include "editor/navigator.h"
#include "editor/show.h"
#include "tests/editor/windowfixture.h"

#include <cstdlib>

#include <QAccessible>
#include <QContextMenuEvent>
#include <QMenu>
#include <QScreen>
#include <QScrollBar>
#include <QWindow>

namespace vorlane::editor {
namespace {

class NavigationTest : public WindowFixture {
protected:
    bool OpenMany() {
        pictures_.WritePictures(100);
        const bool opened = Open(Folder());
        window_->activateWindow();
        window_->sheet().setFocus();
        return opened;
    }
    int Current() { return window_->navigator().current(); }
    bool IsInSight() { return window_->navigator().slideOf(Current()) >= 0; }
    std::vector<int> Selection() {
        const QList<int> items = window_->sheet().SelectedTableau();
        return {items.begin(), items.end()};
    }
    int Line() { return window_->sheet().CountDiapoX(); }
    int Lines() { return window_->sheet().CountDiapoY() - 1; }
    QMenu* ContextMenu(const QPoint& place, QContextMenuEvent::Reason reason = QContextMenuEvent::Mouse) {
        QContextMenuEvent event(reason, place, window_->sheet().mapToGlobal(place));
        QCoreApplication::sendEvent(&window_->sheet(), &event);
        return qobject_cast<QMenu*>(QApplication::activePopupWidget());
    }
    static QStringList Texts(const QMenu& menu) {
        QStringList texts;
        for (const QAction* action : menu.actions()) {
            if (!action->isSeparator()) texts.push_back(QString(action->text()).remove('&'));
        }
        return texts;
    }
};

TEST_F(NavigationTest, TheArrowsLeadTheCurrentSlide) {
    ASSERT_TRUE(OpenMany());
    Press(Qt::Key_Right);
    EXPECT_EQ(Current(), 0);
    Press(Qt::Key_Right);
    EXPECT_EQ(Current(), 1);
    Press(Qt::Key_Down);
    EXPECT_EQ(Current(), 1 + Line());
    Press(Qt::Key_Left);
    Press(Qt::Key_Up);
    EXPECT_EQ(Current(), 0);
    EXPECT_EQ(Selection(), std::vector{0});
    EXPECT_EQ(window_->sheet().CurrentDiapo(), 0);
}

TEST_F(NavigationTest, TheSheetScrollsByWholeRowsToTheCurrentSlide) {
    ASSERT_TRUE(OpenMany());
    Press(Qt::Key_Right);
    for (int i = 0; i < Lines() + 2; ++i) Press(Qt::Key_Down);
    EXPECT_EQ(Current(), (Lines() + 2) * Line());
    EXPECT_EQ(window_->sheet().Value(0), 3 * Line());
    EXPECT_TRUE(IsInSight());
    for (int i = 0; i < Lines() + 2; ++i) Press(Qt::Key_Up);
    EXPECT_EQ(window_->sheet().Value(0), 0);
}

TEST_F(NavigationTest, HomeEndAndThePageKeysLeadFar) {
    ASSERT_TRUE(OpenMany());
    Press(Qt::Key_End);
    EXPECT_EQ(Current(), 99);
    EXPECT_TRUE(IsInSight());
    EXPECT_EQ(Selection(), std::vector{99});
    Press(Qt::Key_Home);
    EXPECT_EQ(Current(), 0);
    EXPECT_EQ(window_->sheet().Value(0), 0);
    Press(Qt::Key_PageDown);
    EXPECT_EQ(Current(), Line() * Lines());
    EXPECT_TRUE(IsInSight());
    Press(Qt::Key_PageUp);
    EXPECT_EQ(Current(), 0);
}

TEST_F(NavigationTest, AHeldKeyRepeats) {
    ASSERT_TRUE(OpenMany());
    Press(Qt::Key_Home);
    for (int i = 0; i < 5; ++i) {
        QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Right, {}, {}, true);
        QCoreApplication::sendEvent(&window_->sheet(), &repeated);
    }
    EXPECT_EQ(Current(), 5);
}

TEST_F(NavigationTest, WithShiftTheSelectionGrowsAndShrinks) {
    ASSERT_TRUE(OpenMany());
    Press(Qt::Key_Home);
    Press(Qt::Key_Right);
    Press(Qt::Key_Right, Qt::ShiftModifier);
    Press(Qt::Key_Down, Qt::ShiftModifier);
    std::vector<int> range;
    for (int i = 1; i <= 2 + Line(); ++i) range.push_back(i);
    EXPECT_EQ(Selection(), range);
    EXPECT_EQ(Current(), 2 + Line());
    Press(Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_EQ(Selection(), (std::vector{1, 2}));
    Press(Qt::Key_End, Qt::ShiftModifier);
    EXPECT_EQ(Selection().size(), 99U);
    Press(Qt::Key_Home);
    EXPECT_EQ(Selection(), std::vector{0});
}

TEST_F(NavigationTest, TheKeysLeadOnFromWhereTheMouseClicked) {
    ASSERT_TRUE(OpenMany());
    QTest::mouseClick(&window_->sheet(), Qt::LeftButton, {}, window_->sheet().DiapoRect(3).center().toPoint());
    EXPECT_TRUE(window_->sheet().hasFocus());
    EXPECT_EQ(Status(), QString::fromUtf8("100 images — 1 sélectionnée"));
    Press(Qt::Key_Right);
    EXPECT_EQ(Current(), 4);
    EXPECT_EQ(Selection(), std::vector{4});
}

TEST_F(NavigationTest, AClickThatIsOverAtOnceIsFollowedToo) {
    ASSERT_TRUE(OpenPictures("abc"));
    const QPoint place = window_->sheet().mapTo(window_.get(), window_->sheet().DiapoRect(1).center().toPoint());
    QWindow* screen = window_->windowHandle();
    const auto release = [&] { QTest::mouseRelease(screen, Qt::LeftButton, {}, place); };
    QMetaObject::invokeMethod(window_.get(), release, Qt::QueuedConnection);  // while the press is at work
    QTest::mousePress(screen, Qt::LeftButton, {}, place);
    QCoreApplication::processEvents();
    EXPECT_EQ(window_->navigator().current(), 1);
    EXPECT_EQ(Status(), QString::fromUtf8("3 images — 1 sélectionnée"));
}

TEST_F(NavigationTest, ADoubleClickOpensThePicture) {
    ASSERT_TRUE(OpenMany());
    const QPoint place = window_->sheet().DiapoRect(3).center().toPoint();
    QTest::mouseClick(&window_->sheet(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(&window_->sheet(), Qt::LeftButton, {}, place);
    QTest::mouseRelease(&window_->sheet(), Qt::LeftButton, {}, place);
    EXPECT_EQ(opened_, QStringList("p003.jpg"));
}

TEST_F(NavigationTest, SidewaysTheArrowsAllLeadAlongTheRow) {
    ASSERT_TRUE(OpenMany());
    Action("Horizontal").trigger();
    Press(Qt::Key_Home);
    Press(Qt::Key_Down);
    Press(Qt::Key_Right);
    EXPECT_EQ(Current(), 2);
    for (int i = 0; i < 20; ++i) Press(Qt::Key_Right);
    EXPECT_TRUE(IsInSight());
    EXPECT_EQ(Slide(0).Top(), Slide(1).Top());
}

TEST_F(NavigationTest, SidewaysTheRowLiesInTheMiddleOfTheWindow) {
    ASSERT_TRUE(OpenMany());
    const int height = window_->sheet().height();
    Action("Horizontal").trigger();
    const auto offset = [&] { return std::abs(window_->sheet().geometry().center().y() - height / 2); };
    EXPECT_TRUE(test::WaitFor([&] { return offset() <= 2; }));
    EXPECT_LT(window_->sheet().height(), height);
    EXPECT_LE(window_->sheet().DiapoRect(0).bottom(), window_->sheet().height());
    const int bar = window_->sheet().findChild<QScrollBar*>()->height();
    const int margins = 2 * window_->sheet().Marges();
    EXPECT_EQ(window_->sheet().height(), window_->sheet().DiapoHeight() + margins + bar);
    window_->status().setSlideWidth(320);
    ASSERT_TRUE(Settle());
    EXPECT_LE(window_->sheet().DiapoRect(0).bottom(), window_->sheet().height());
    Action("Vertical").trigger();
    ASSERT_TRUE(test::WaitFor([&] { return window_->sheet().height() == height; }));
    EXPECT_GT(window_->sheet().CountDiapoY(), 1);
}

TEST_F(NavigationTest, TypingANameComesToIt) {
    for (const char* name : {"aube.jpg", "brume.jpg", "bruyere.jpg", "mer 2.jpg"}) pictures_.WritePicture(name);
    ASSERT_TRUE(Open(Folder()));
    QTest::keyClicks(&window_->sheet(), "bruy");
    EXPECT_EQ(Current(), 2);
    QTest::qWait(QApplication::keyboardInputInterval() * 2 + 50);
    QTest::keyClicks(&window_->sheet(), "mer 2");  // the space is part of it
    EXPECT_EQ(Current(), 3);
    EXPECT_EQ(Selection(), std::vector{3});
}

TEST_F(NavigationTest, SpaceTakesTheCurrentSlideIntoTheSelectionAndOut) {
    ASSERT_TRUE(OpenMany());
    Press(Qt::Key_Home);
    Press(Qt::Key_Space);
    EXPECT_TRUE(Selection().empty());
    EXPECT_EQ(Current(), 0);
    Press(Qt::Key_Space);
    EXPECT_EQ(Selection(), std::vector{0});
    EXPECT_TRUE(window_->sheet().Selected(0));
}

TEST_F(NavigationTest, TheKeysGoOnFromTheSlideThatAnAssistiveProgramHasPressed) {
    ASSERT_TRUE(OpenMany());
    Press(Qt::Key_Home);
    QAccessibleInterface* sheet = QAccessible::queryAccessibleInterface(&window_->sheet());
    ASSERT_NE(sheet, nullptr);
    for (const QString& action :
         {QAccessibleActionInterface::pressAction(), QAccessibleActionInterface::setFocusAction(),
          QAccessibleActionInterface::toggleAction()}) {
        const int slide = Current() + 2;
        sheet->child(slide)->actionInterface()->doAction(action);
        EXPECT_EQ(Current(), slide) << action.toStdString();
    }
    Press(Qt::Key_Return);
    EXPECT_EQ(opened_, QStringList({QFileInfo(window_->sheet().ImageFullPath(6)).fileName()}));
    Press(Qt::Key_Right);
    EXPECT_EQ(Current(), 7);
}

TEST_F(NavigationTest, EnterOpensThePicture) {
    ASSERT_TRUE(OpenMany());
    Press(Qt::Key_Return);  // there is no current one yet
    EXPECT_TRUE(opened_.isEmpty());
    Press(Qt::Key_Home);
    Press(Qt::Key_Return);
    EXPECT_EQ(opened_, QStringList("p000.jpg"));
}

TEST_F(NavigationTest, APictureThatNoProgramOpensIsTold) {
    ASSERT_TRUE(OpenMany());
    window_->setPictureOpener([](const QString&) { return false; });
    Press(Qt::Key_Home);
    Press(Qt::Key_Return);
    EXPECT_EQ(Status(), "Aucun programme n'ouvre cette image");
}

TEST_F(NavigationTest, AFocusedSheetShowsItsCurrentSlide) {
    ASSERT_TRUE(OpenMany());
    Press(Qt::Key_Home);
    Press(Qt::Key_Space);  // not selected, so that its ground says nothing
    ASSERT_TRUE(test::WaitFor([this] { return window_->sheet().hasFocus(); }));
    const auto ring = [this] {
        const QRectF slide = window_->sheet().DiapoRect(0);
        return window_->sheet().grab().toImage().pixelColor(QPointF(slide.center().x(), slide.top() - 2).toPoint());
    };
    EXPECT_EQ(ring(), window_->palette().color(QPalette::Highlight));
    window_->sheet().clearFocus();
    EXPECT_EQ(ring(), window_->palette().color(QPalette::Window));
}

TEST_F(NavigationTest, TheRingGoesAlongWithASlideThatMakesRoom) {
    ASSERT_TRUE(OpenMany());
    Press(Qt::Key_Home);
    ASSERT_TRUE(test::WaitFor([this] { return window_->sheet().hasFocus(); }));
    const QRectF home = window_->sheet().DiapoRect(0);
    const auto onScreen = [this](QPointF place) {
        const QPoint inWindow = window_->sheet().mapTo(window_.get(), place.toPoint());
        return window_->screen()->grabWindow(window_->winId()).toImage().pixelColor(inWindow);
    };
    const QColor ring = window_->palette().color(QPalette::Highlight);
    const QColor ground = window_->palette().color(QPalette::Window);
    const QPointF atFirst(home.left() + 5, home.top() - 2);
    const QPointF atLast(home.right() + 40, home.top() - 2);
    ASSERT_TRUE(test::WaitFor([&] { return onScreen(atFirst) == ring; }));
    Slide(0).Move(home.left() + 60, home.top());
    EXPECT_TRUE(test::WaitFor([&] { return onScreen(atLast) == ring; }));
    EXPECT_TRUE(test::WaitFor([&] { return onScreen(atFirst) == ground; }));
}

TEST_F(NavigationTest, ASlideHasAMenu) {
    ASSERT_TRUE(OpenMany());
    QMenu* menu = ContextMenu(window_->sheet().DiapoRect(2).center().toPoint());
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(Texts(*menu).first(), "Ouvrir l'image");
    EXPECT_TRUE(Texts(*menu).contains("Retirer de la planche"));
    EXPECT_EQ(Current(), 2);
    EXPECT_EQ(Selection(), std::vector{2});
    menu->close();
}

TEST_F(NavigationTest, TheMenuOfASelectedSlideLeavesTheSelection) {
    ASSERT_TRUE(OpenMany());
    Press(Qt::Key_A, Qt::ControlModifier);
    QMenu* menu = ContextMenu(window_->sheet().DiapoRect(2).center().toPoint());
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(Selection().size(), 100U);
    menu->close();
}

TEST_F(NavigationTest, TheBackgroundHasAMenuOfItsOwn) {
    ASSERT_TRUE(OpenPictures("ab"));
    QMenu* menu = ContextMenu(window_->sheet().rect().bottomRight() - QPoint(3, 3));
    ASSERT_NE(menu, nullptr);
    EXPECT_TRUE(Texts(*menu).contains("Trier par"));
    EXPECT_FALSE(Texts(*menu).contains("Retirer de la planche"));
    menu->close();
}

TEST_F(NavigationTest, TheMenuKeyOpensTheMenuOfTheCurrentSlide) {
    ASSERT_TRUE(OpenMany());
    Press(Qt::Key_Right);
    Press(Qt::Key_Right);
    QMenu* menu = ContextMenu({}, QContextMenuEvent::Keyboard);
    ASSERT_NE(menu, nullptr);
    EXPECT_TRUE(Texts(*menu).contains("Retirer de la planche"));
    EXPECT_EQ(Current(), 1);
    menu->close();
}

}  // namespace
}  // namespace vorlane::editor
