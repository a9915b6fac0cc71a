// What assistive programs are told of a sheet, by the handler of Qt's updates.
#include "tests/widgets/assistive.h"
#include "tests/widgets/vorlanewidgettest.h"

#include <QAccessible>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

namespace vorlane {
namespace {

QStringList* announced = nullptr;

QString NameOf(QAccessible::Event type) {
    switch (type) {
        case QAccessible::ObjectReorder:
            return "list";
        case QAccessible::SelectionWithin:
            return "selection";
        case QAccessible::Focus:
            return "focus";
        case QAccessible::NameChanged:
            return "name";
        case QAccessible::DescriptionChanged:
            return "description";
        default:
            return {};
    }
}

// "focus 002.png", of whom the name; what says nothing of the sheet is left out.
void Note(QAccessibleEvent* event) {
    const QAccessibleInterface* told = event->accessibleInterface();
    const QString name = NameOf(event->type());
    const bool ofTheSheet =
        told != nullptr && (told->role() == QAccessible::List || told->role() == QAccessible::ListItem);
    if (announced != nullptr && ofTheSheet && !name.isEmpty()) *announced += name + ' ' + told->text(QAccessible::Name);
}

class Announcements : public test::VorlaneWidgetTest {
protected:
    Announcements() {
        AddPictures(30);
        widget.setAccessibleName("sheet");
        Show();
        widget.StartLecture();
        widget.activateWindow();
        widget.setFocus();
        QCoreApplication::processEvents();
        announced = &heard;
        QAccessible::installUpdateHandler(Note);
    }
    ~Announcements() override {
        QAccessible::installUpdateHandler(nullptr);
        announced = nullptr;
    }

    // What has been told since the last call.
    QStringList Heard() {
        QCoreApplication::processEvents();
        return std::exchange(heard, {});
    }
    // The same, what comes several times in a row once.
    QStringList HeardOnce() {
        QStringList lines;
        for (const QString& line : Heard()) {
            if (lines.isEmpty() || lines.back() != line) lines += line;
        }
        return lines;
    }
    QPoint InSlide(int index) const { return widget.DiapoRect(index).topLeft().toPoint() + QPoint(60, 10); }
    void Click(int index, Qt::KeyboardModifiers keys = {}) {
        QTest::mouseClick(widget.windowHandle(), Qt::LeftButton, keys, InSlide(index));
    }
    QAccessibleInterface& Slide(int i) { return *QAccessible::queryAccessibleInterface(&widget)->child(i); }
    void Do(int slide, const QString& action) { Slide(slide).actionInterface()->doAction(action); }

    QStringList heard;

private:
    test::AssistivePrograms listening_;
};

// --- Selection and focus ---

TEST_F(Announcements, AClickTellsTheSelectionThenTheSlideThatHasTheFocus) {
    Click(2);
    EXPECT_EQ(HeardOnce().mid(0, 2), QStringList({"selection sheet", "focus 002.png"}));
    Click(4, Qt::ControlModifier);
    EXPECT_EQ(HeardOnce().mid(0, 2), QStringList({"selection sheet", "focus 004.png"}));
    QTest::mouseClick(widget.windowHandle(), Qt::LeftButton, {}, {2, 2});
    EXPECT_EQ(HeardOnce(), QStringList({"selection sheet"})) << "no slide has the focus";
}

TEST_F(Announcements, ABandTellsTheSelectionWhenItIsLetGo) {
    QTest::mousePress(widget.windowHandle(), Qt::LeftButton, {}, {2, 2});
    QTest::mouseMove(widget.windowHandle(), InSlide(1));
    Heard();
    QTest::mouseRelease(widget.windowHandle(), Qt::LeftButton, {}, InSlide(1));
    EXPECT_EQ(HeardOnce(), QStringList({"selection sheet"}));
}

TEST_F(Announcements, WhatTheHostSelectsIsTold) {
    widget.SetSelected(3, true);
    EXPECT_EQ(Heard(), QStringList({"selection sheet", "focus 003.png"}));
    widget.SetCurrentDiapo(1);
    EXPECT_EQ(HeardOnce(), QStringList({"selection sheet", "focus 001.png"}));
    widget.SelectAll();
    EXPECT_EQ(Heard(), QStringList({"selection sheet"}));
    widget.SelectInvert();
    EXPECT_EQ(Heard(), QStringList({"selection sheet"}));
    widget.SelectedClear();
    EXPECT_EQ(Heard(), QStringList({"selection sheet"}));
}

TEST_F(Announcements, WhatAnAssistiveProgramSelectsIsTold) {
    Do(2, QAccessibleActionInterface::pressAction());
    EXPECT_EQ(Heard(), QStringList({"selection sheet", "focus 002.png"}));
    Do(4, QAccessibleActionInterface::toggleAction());
    EXPECT_EQ(Heard(), QStringList({"selection sheet", "focus 004.png"}));
    Do(4, QAccessibleActionInterface::toggleAction());
    EXPECT_EQ(Heard(), QStringList({"selection sheet"}));
    Do(4, "fly");
    EXPECT_FALSE(Heard().contains("focus 004.png"));
}

TEST_F(Announcements, AKeyThatMovesTheSelectionIsToldWhenItIsLetGo) {
    QObject::connect(&widget, &VorlaneWidget::OnKeyDown, &widget, [this](const int* code) {
        if (*code == 39) widget.sheet().SetSelected(5, true);
    });
    QTest::keyPress(widget.windowHandle(), Qt::Key_Right);
    QTest::keyRelease(widget.windowHandle(), Qt::Key_Right);
    EXPECT_EQ(Heard(), QStringList({"selection sheet", "focus 005.png"}));
}

TEST_F(Announcements, TheSheetThatGetsTheKeyboardTellsItsCurrentSlideLast) {
    widget.clearFocus();
    Heard();
    widget.SetSelected(3, true);
    EXPECT_EQ(Heard(), QStringList({"selection sheet"})) << "nothing in it has the focus";
    widget.setFocus();
    const QStringList told = Heard();
    EXPECT_EQ(told.value(told.size() - 1), "focus 003.png");
}

TEST_F(Announcements, ADragThatLeavesNothingSelectedIsTold) {
    widget.SetSelected(3, true);
    Heard();
    widget.sheet().Diapo.Item(3)->OLEDrag();
    EXPECT_EQ(widget.CountSelected(), 0);
    EXPECT_EQ(HeardOnce(), QStringList({"selection sheet"}));
}

// --- The list ---

TEST_F(Announcements, AnotherFillIsTold) {
    widget.StartLecture();
    EXPECT_EQ(HeardOnce(), QStringList({"list sheet"}));
}

TEST_F(Announcements, ScrollingIsTold) {
    widget.findChild<QScrollBar*>()->setValue(widget.CountDiapoX());
    EXPECT_EQ(HeardOnce(), QStringList({"list sheet"}));
    widget.findChild<QScrollBar*>()->setValue(widget.findChild<QScrollBar*>()->maximum());
    EXPECT_EQ(HeardOnce(), QStringList({"list sheet"}));
}

TEST_F(Announcements, RemovalsAreTold) {
    widget.Remove(1);
    EXPECT_TRUE(HeardOnce().contains("list sheet"));
    widget.SetSelected(0, true);
    widget.SetSelected(2, true);
    Heard();
    widget.RemoveAllSelected();
    EXPECT_TRUE(HeardOnce().contains("list sheet"));
    widget.Clear();
    EXPECT_TRUE(HeardOnce().contains("list sheet"));
}

TEST_F(Announcements, AnotherSizeOfTheSheetIsTold) {
    widget.resize(300, 300);
    EXPECT_TRUE(QTest::qWaitFor([this] { return heard.contains("list sheet"); }));
}

// --- Names ---

TEST_F(Announcements, AnotherNameOfASlideIsTold) {
    widget.StartEdit(2);
    widget.sheet().Txt.SetText("Venise");
    Heard();
    widget.EndEdit();
    EXPECT_TRUE(HeardOnce().contains("name Venise.png"));
    EXPECT_EQ(Slide(2).text(QAccessible::Name), "Venise.png");
    widget.StartEdit(2);
    widget.EndEdit(true);
    EXPECT_FALSE(Heard().contains("name Venise.png")) << "it has kept its name";
    widget.RenameDiapo(3, folder.filePath("003.png"), folder.filePath("Rome.png"));
    EXPECT_EQ(Heard(), QStringList({"name Rome.png"}));
}

TEST_F(Announcements, ARenamingThatFailsIsNotTold) {
    QSignalSpy failures(&widget, &VorlaneWidget::OnError);
    widget.RenameDiapo(3, folder.filePath("003.png"), folder.filePath("Rome.png"), 99);
    EXPECT_EQ(failures.size(), 1);
    EXPECT_EQ(Heard(), QStringList());
    widget.sheet().Terminate();
    widget.RenameDiapo(0, folder.filePath("000.png"), folder.filePath("Rome.png"));
    EXPECT_EQ(Heard(), QStringList());
}

TEST_F(Announcements, AnotherCaptionOfASlideIsTold) {
    widget.SetCaptionBottom(2, QStringLiteral("Été"));
    EXPECT_EQ(Heard(), QStringList({"description 002.png"}));
    widget.SetCaptionBottom(500, QStringLiteral("Été"));
    EXPECT_EQ(Heard(), QStringList());
}

}  // namespace
}  // namespace vorlane
