// The user's gestures by way of the widget's window, on Qt's own road from the window system.
#include "sheet/vorlane.h"
#include "tests/widgets/mouse.h"
#include "widgets/vorlanewidget.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QPaintEvent>
#include <QRegion>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QWindow>

namespace vorlane {
namespace {

class WidgetGestures : public testing::Test {
protected:
    WidgetGestures() {
        widget.resize(500, 300);
        widget.SetShowJauge(false);
        widget.SetDiapoWidth(120);
        widget.SetDiapoHeight(110);
        const QString picture = folder.filePath("one.png");
        EXPECT_TRUE(test::Plain(60, 40, Qt::red).save(picture));
        for (int i = 0; i < 60; ++i) widget.Add(picture, {}, 1000 + i);
        widget.show();
        widget.StartLecture();
        QCoreApplication::processEvents();
    }

    QWindow* Window() { return widget.windowHandle(); }

    QPoint InSlide(int index) {
        const QRectF rect = widget.DiapoRect(index);
        return {static_cast<int>(rect.center().x()), static_cast<int>(rect.top()) + 10};
    }
    void Click(int index, Qt::KeyboardModifiers keys = Qt::NoModifier, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseClick(Window(), button, keys, InSlide(index));
    }

    std::string Selected() {
        std::string text;
        for (const int item : widget.SelectedTableau()) text += (text.empty() ? "" : " ") + std::to_string(item);
        return text;
    }

    QTemporaryDir folder;
    VorlaneWidget widget;
};

TEST_F(WidgetGestures, AClickSelectsASlideAndIsTold) {
    QSignalSpy down(&widget, &VorlaneWidget::OnMouseDown);
    QSignalSpy up(&widget, &VorlaneWidget::OnMouseUp);
    QSignalSpy clicked(&widget, &VorlaneWidget::OnClick);
    Click(1);
    EXPECT_EQ(Selected(), "1");
    EXPECT_EQ(widget.CurrentDiapo(), 1);
    ASSERT_EQ(down.count(), 1);
    EXPECT_EQ(down.at(0).at(0).toInt(), 1);
    EXPECT_EQ(down.at(0).at(2).toDouble(), InSlide(1).x());
    EXPECT_EQ(up.count(), 1);
    ASSERT_EQ(clicked.count(), 1);
    EXPECT_EQ(clicked.at(0).at(0).toInt(), 1);
    EXPECT_EQ(clicked.at(0).at(1).value<QImage>().pixelColor(5, 5), QColor(Qt::red));
    EXPECT_EQ(clicked.at(0).at(2).toString(), folder.filePath("one.png"));
    EXPECT_EQ(clicked.at(0).at(3).toInt(), 1);
}

TEST_F(WidgetGestures, CtrlAddsAndShiftSelectsARange) {
    Click(1);
    Click(3, Qt::ControlModifier);
    EXPECT_EQ(Selected(), "1 3");
    Click(5, Qt::ShiftModifier);
    EXPECT_EQ(Selected(), "1 3 4 5");
    Click(0);
    EXPECT_EQ(Selected(), "0");
}

TEST_F(WidgetGestures, ARightClickOnASelectedSlideKeepsTheSelection) {
    Click(1);
    Click(3, Qt::ControlModifier);
    Click(1, Qt::NoModifier, Qt::RightButton);
    EXPECT_EQ(Selected(), "1 3");
}

TEST_F(WidgetGestures, ABandSelectsWhatItTouches) {
    QTest::mousePress(Window(), Qt::LeftButton, {}, {2, 2});
    QTest::mouseMove(Window(), InSlide(1));
    EXPECT_TRUE(widget.sheet().SelRect.Visible());
    EXPECT_EQ(Selected(), "0 1");
    QTest::mouseRelease(Window(), Qt::LeftButton, {}, InSlide(1));
    EXPECT_FALSE(widget.sheet().SelRect.Visible());
    EXPECT_EQ(Selected(), "0 1");
}

// Hears what is painted of a widget.
class Painted final : public QObject {
public:
    explicit Painted(QWidget& widget) { widget.installEventFilter(this); }
    QRegion region;

private:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) region |= static_cast<QPaintEvent*>(event)->region();
        return false;
    }
};

// With a pixel around for each.
QRegion EdgesOf(const QRect& band) {
    return QRegion(band.adjusted(-1, -1, 1, 1)) - QRegion(band.adjusted(2, 2, -2, -2));
}

TEST_F(WidgetGestures, AMoveOfTheBandPaintsItsEdgesAndTheSlidesThatChangeAlone) {
    QTest::mousePress(Window(), Qt::LeftButton, {}, {2, 2});
    const auto moveTo = [this](int x, int y) {
        Painted painted(widget);
        QTest::mouseMove(Window(), {x, y});
        QCoreApplication::processEvents();
        return painted.region;
    };
    moveTo(200, 110);
    EXPECT_EQ(moveTo(210, 112), EdgesOf({2, 2, 198, 108}) | EdgesOf({2, 2, 208, 110}));
    EXPECT_EQ(Selected(), "0 1");
    const QRect third = widget.DiapoRect(2).toAlignedRect().adjusted(-1, -1, 1, 1);
    EXPECT_EQ(moveTo(350, 112), EdgesOf({2, 2, 208, 110}) | EdgesOf({2, 2, 348, 110}) | third);
    EXPECT_EQ(Selected(), "0 1 2");
    QTest::mouseRelease(Window(), Qt::LeftButton, {}, {350, 112});
}

TEST_F(WidgetGestures, AClickOnTheGroundTakesTheSelectionAndIsTold) {
    Click(1);
    QSignalSpy ground(&widget, &VorlaneWidget::OnBackgroundClick);
    QTest::mouseClick(Window(), Qt::LeftButton, {}, {2, 2});
    EXPECT_EQ(Selected(), "");
    EXPECT_EQ(ground.count(), 1);
}

TEST_F(WidgetGestures, ComingToASlideAndLeavingItIsTold) {
    QSignalSpy entered(&widget, &VorlaneWidget::OnMouseEnter);
    QSignalSpy left(&widget, &VorlaneWidget::OnMouseExit);
    QTest::mouseMove(Window(), InSlide(0));
    QTest::mouseMove(Window(), InSlide(1));
    QTest::mouseMove(Window(), {2, 2});
    ASSERT_EQ(entered.count(), 2);
    EXPECT_EQ(entered.at(1).at(0).toInt(), 1);
    EXPECT_EQ(left.count(), 2);
}

TEST_F(WidgetGestures, APageIsTurnedOnceWhileItsKeyIsHeld) {
    QSignalSpy keys(&widget, &VorlaneWidget::OnKeyDown);
    QTest::keyPress(Window(), Qt::Key_PageDown);
    QTest::keyPress(Window(), Qt::Key_PageDown);
    const int page = widget.CountDiapo() - widget.CountDiapoX();
    EXPECT_EQ(widget.sheet().VScroll.Value(), page);
    QTest::keyRelease(Window(), Qt::Key_PageDown);
    EXPECT_EQ(keys.count(), 1);
    QTest::keyClick(Window(), Qt::Key_PageUp);
    EXPECT_EQ(widget.sheet().VScroll.Value(), 0);
}

TEST_F(WidgetGestures, AKeyThatIsLetGoElsewhereSwallowsNoOther) {
    QWidget window;
    window.resize(600, 400);
    QLineEdit elsewhere(&window);
    widget.setParent(&window);
    window.show();
    window.activateWindow();
    widget.show();
    widget.setFocus();
    QStringList heard;
    QObject::connect(&widget, &VorlaneWidget::OnKeyDown, &widget, [&](const int* code) {
        heard += "down " + QString::number(*code);
        if (*code == 'F') elsewhere.setFocus();
    });
    QObject::connect(&widget, &VorlaneWidget::OnKeyUp, &widget,
                     [&](const int* code) { heard += "up " + QString::number(*code); });
    QTest::keyPress(window.windowHandle(), Qt::Key_PageDown);
    elsewhere.setFocus();
    QTest::keyRelease(window.windowHandle(), Qt::Key_PageDown);
    widget.setFocus();
    EXPECT_EQ(heard, QStringList({"down 34", "up 34"}));
    heard.clear();
    QTest::keyPress(window.windowHandle(), Qt::Key_F);
    QTest::keyRelease(window.windowHandle(), Qt::Key_F);
    widget.setFocus();
    QTest::keyClick(window.windowHandle(), Qt::Key_Left);
    EXPECT_EQ(heard, QStringList({"down 70", "up 70", "down 37", "up 37"}));
    widget.setParent(nullptr);
}

TEST_F(WidgetGestures, AKeyThatOpensTheEditBoxAndOneThatADragTakesSwallowNoOther) {
    widget.activateWindow();
    widget.setFocus();
    QStringList heard;
    QObject::connect(&widget, &VorlaneWidget::OnKeyDown, &widget, [&](const int* code) {
        heard += QString::number(*code);
        if (*code == 113) widget.StartEdit(0);
        if (*code == 'D') widget.OLEDrag();
    });
    QObject::connect(&widget, &VorlaneWidget::OnOLEStartDrag, &widget,
                     [](DataObject* dragged, int*) { dragged->SetText("dragged"); });
    QTest::keyPress(Window(), Qt::Key_F2);
    ASSERT_TRUE(widget.sheet().Txt.Visible());
    QTest::keyRelease(Window(), Qt::Key_F2);
    QTest::keyClick(Window(), Qt::Key_Escape);
    ASSERT_FALSE(widget.sheet().Txt.Visible());
    QTest::keyPress(Window(), Qt::Key_D);  // its release is lost
    QTest::keyPress(Window(), Qt::Key_A);
    EXPECT_EQ(heard, QStringList({"113", "68", "65"}));
}

TEST_F(WidgetGestures, AReceiverMaySwallowACharacter) {
    QObject::connect(&widget, &VorlaneWidget::OnKeyPress, &widget, [](int* character) { *character = 0; });
    QKeyEvent key(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, "a");
    QCoreApplication::sendEvent(&widget, &key);
    EXPECT_TRUE(key.isAccepted());
}

TEST_F(WidgetGestures, TheWholeListIsSelectedWithAndWithoutAReceiverOfItsProgress) {
    widget.SelectAll();
    EXPECT_EQ(widget.CountSelected(), 60);
    widget.SelectedClear();
    EXPECT_EQ(widget.CountSelected(), 0);
    QSignalSpy progress(&widget, &VorlaneWidget::OnTraitementFeedBack);
    widget.SelectInvert();
    EXPECT_EQ(progress.count(), 60);
    EXPECT_EQ(progress.at(59).at(0).toInt(), 60);
    EXPECT_EQ(widget.CountSelected(), 60);
}

TEST_F(WidgetGestures, ProgressIsNoLongerToldOnceItsReceiverIsDisconnected) {
    const auto receiver = QObject::connect(&widget, &VorlaneWidget::OnTraitementFeedBack, &widget, [](int, int) {});
    EXPECT_TRUE(widget.sheet().Events.TraitementFeedBack.connected());
    QObject::disconnect(receiver);
    QCoreApplication::processEvents();
    EXPECT_FALSE(widget.sheet().Events.TraitementFeedBack.connected());
}

TEST_F(WidgetGestures, TheCurrentSlideCanBeSet) {
    widget.SetCurrentDiapo(3);
    EXPECT_EQ(widget.CurrentDiapo(), 3);
    EXPECT_EQ(Selected(), "3");
    widget.SetCurrentDiapo(100);
    EXPECT_EQ(widget.CurrentDiapo(), 3);
}

}  // namespace
}  // namespace vorlane
