// Scrolling a sheet by its widget's wheel and native bar.
#include "platform/qt/formwidget.h"
#include "platform/qt/qtdesktop.h"
#include "tests/platform/qt/barhand.h"
#include "tests/widgets/vorlanewidgettest.h"
#include "windows/frmscroll.h"

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QPointer>
#include <QScrollBar>
#include <QSignalSpy>
#include <QWheelEvent>

namespace vorlane {
namespace {

using test::VorlaneWidgetTest;

class ScrollingTest : public VorlaneWidgetTest {
protected:
    ScrollingTest() {
        Show();
        AddPictures(40);
        widget.StartLecture();
    }
    ~ScrollingTest() override { Form().Unload(); }
    FrmScroll& Form() { return SharedFrmScroll(widget.Desktop().Roles()); }
    // The follow window on the screen, nullptr without one.
    FormWidget* FormOnScreen() { return Form().Visible() ? widget.Desktop().forms.WidgetOf(Form().Hwnd()) : nullptr; }
    QScrollBar& Bar() { return *widget.findChild<QScrollBar*>(); }
    QRgb Followed() { return FormOnScreen()->grab().toImage().pixel(50, 38); }

    test::BarHand hand{Bar()};
};

TEST_F(ScrollingTest, TheBarIsAtTheRightAndCoversTheWholeList) {
    EXPECT_TRUE(Bar().isVisible());
    EXPECT_EQ(Bar().geometry().right(), 499);
    EXPECT_EQ(Bar().height(), 300);
    EXPECT_EQ(Bar().singleStep(), widget.CountDiapoX());
}

TEST_F(ScrollingTest, TheWheelMovesByARow) {
    const int row = widget.CountDiapoX();
    const auto wheel = [&](int angle) {
        QWheelEvent event({50, 50}, widget.mapToGlobal(QPointF(50, 50)), {}, {0, angle}, Qt::NoButton, {},
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&widget, &event);
    };
    wheel(-120);
    EXPECT_EQ(Bar().value(), row);
    EXPECT_EQ(Shown(0), ColorOf(row));
    wheel(-60);
    EXPECT_EQ(Bar().value(), row);
    wheel(-60);
    EXPECT_EQ(Bar().value(), 2 * row);
    wheel(240);
    EXPECT_EQ(Bar().value(), 0);
    EXPECT_EQ(Shown(0), ColorOf(0));
}

TEST_F(ScrollingTest, TheNativeBarScrollsTheSheet) {
    const int row = widget.CountDiapoX();
    QSignalSpy scrolled(&widget, &VorlaneWidget::OnScroll);
    Bar().setValue(5 * row);
    EXPECT_EQ(widget.sheet().VScroll.Value(), 5 * row);
    EXPECT_EQ(Shown(0), ColorOf(5 * row));
    EXPECT_EQ(scrolled.count(), 1);
    Bar().triggerAction(QAbstractSlider::SliderSingleStepAdd);
    EXPECT_EQ(Shown(0), ColorOf(6 * row));
    EXPECT_EQ(errors, "");
}

TEST_F(ScrollingTest, ALargerWindowShowsMore) {
    const int before = widget.CountDiapo();
    widget.resize(700, 500);
    for (int i = 0; i < 20; ++i) {
        widget.Desktop().clock.Sleep(2);
        QCoreApplication::processEvents();
    }
    EXPECT_GT(widget.CountDiapo(), before);
    EXPECT_EQ(Shown(0), ColorOf(0));
    EXPECT_EQ(errors, "");
}

TEST_F(ScrollingTest, ADraggedThumbIsFollowedByAWindowAndScrollsWhenItIsLetGo) {
    QStringList asked;
    QStringList told;
    QObject::connect(&widget, &VorlaneWidget::OnGetThumbPath, &widget,
                     [&](const QString& fileName, QString*) { asked << fileName; });
    QObject::connect(
        &widget, &VorlaneWidget::OnScrollMouseDown, &widget,
        [&](int button, int, double, double, int* value) { told << QString("down %1 at %2").arg(button).arg(*value); });
    QObject::connect(
        &widget, &VorlaneWidget::OnScrollMouseUp, &widget,
        [&](int button, int, double, double, int* value) { told << QString("up %1 at %2").arg(button).arg(*value); });
    hand.PressThumb();
    EXPECT_EQ(FormOnScreen(), nullptr);
    hand.Move({0, 60});
    ASSERT_NE(FormOnScreen(), nullptr);
    ASSERT_EQ(asked.size(), 1);
    const int under = asked[0].right(7).left(3).toInt();
    EXPECT_GT(under, 0);
    EXPECT_EQ(FormOnScreen()->geometry().topLeft(), widget.mapToGlobal(QPoint(500, 0)));
    EXPECT_EQ(FormOnScreen()->size(), QSize(100, 76));
    EXPECT_EQ(Followed(), ColorOf(under));
    EXPECT_EQ(Shown(0), ColorOf(0)) << "the list stands still";

    hand.Release();
    EXPECT_EQ(FormOnScreen(), nullptr);
    EXPECT_EQ(Shown(0), ColorOf(under));
    EXPECT_EQ(told, QStringList({"down 1 at 0", QString("up 1 at %1").arg(under)}));
    EXPECT_EQ(errors, "");
}

// --- Where the user can't work on the sheet ---

TEST_F(ScrollingTest, TheBarOfADisabledSheetStandsStill) {
    QSignalSpy pressed(&widget, &VorlaneWidget::OnScrollMouseDown);
    widget.SetEnabled(false);
    hand.PressThumb();
    hand.Move({0, 60});
    EXPECT_EQ(FormOnScreen(), nullptr);
    hand.Release();
    EXPECT_EQ(Bar().value(), 0);
    EXPECT_EQ(pressed.count(), 0);
    widget.SetEnabled(true);
    hand.PressThumb();
    hand.Move({0, 60});
    hand.Release();
    EXPECT_GT(Bar().value(), 0);
    EXPECT_EQ(pressed.count(), 1);
}

TEST_F(ScrollingTest, TheBoxOverANameOfADisabledSheetTakesNoText) {
    widget.StartEdit(0);
    auto& box = *widget.findChild<QLineEdit*>();
    ASSERT_TRUE(box.isVisible());
    widget.SetEnabled(false);
    EXPECT_FALSE(box.isEnabled());
    widget.SetEnabled(true);
    EXPECT_TRUE(box.isEnabled());
}

class LetGoTest : public ScrollingTest {
protected:
    // The user drags the thumb, and something takes the bar out of the hand.
    template <class Take>
    void TakeAway(Take&& take) {
        QSignalSpy released(&widget, &VorlaneWidget::OnScrollMouseUp);
        hand.PressThumb();
        hand.Move({0, 60});
        ASSERT_NE(FormOnScreen(), nullptr);
        take();
        EXPECT_EQ(FormOnScreen(), nullptr);
        EXPECT_EQ(released.count(), 1);
        EXPECT_FALSE(Bar().isSliderDown());
        EXPECT_EQ(Bar().sliderPosition(), 0);
        EXPECT_EQ(Shown(0), ColorOf(0)) << "the list stands still";
    }
    void ExpectNothingInTheHand() {
        QSignalSpy released(&widget, &VorlaneWidget::OnScrollMouseUp);
        hand.Move({0, 10});
        hand.Release();
        EXPECT_EQ(FormOnScreen(), nullptr);
        EXPECT_EQ(Bar().sliderPosition(), 0);
        EXPECT_EQ(widget.sheet().VScroll.Value(), 0);
        EXPECT_EQ(released.count(), 0);
    }
};

TEST_F(LetGoTest, ADisabledWidgetLetsGoOfTheThumb) {
    TakeAway([&] { widget.setEnabled(false); });
    widget.setEnabled(true);
    ExpectNothingInTheHand();
}

TEST_F(LetGoTest, ADisabledSheetLetsGoOfTheThumb) {
    TakeAway([&] { widget.SetEnabled(false); });
    widget.SetEnabled(true);
    ExpectNothingInTheHand();
}

TEST_F(LetGoTest, ADialogThatBlocksTheWindowLetsGoOfTheThumb) {
    QDialog dialog(&widget);
    TakeAway([&] { dialog.open(); });
    dialog.close();
    ExpectNothingInTheHand();
}

TEST_F(LetGoTest, APressThatDisablesTheSheetHoldsNothing) {
    QObject::connect(&widget, &VorlaneWidget::OnScrollMouseDown, &widget, [&] { widget.setEnabled(false); });
    hand.PressThumb();
    EXPECT_FALSE(Bar().isSliderDown());
    widget.setEnabled(true);
    ExpectNothingInTheHand();
}

TEST_F(ScrollingTest, AReceiverMayNameAThumbnailForTheFollowWindow) {
    const QString thumb = Write("thumb.png", test::Plain(30, 20, Qt::black));
    QObject::connect(&widget, &VorlaneWidget::OnGetThumbPath, &widget,
                     [&](const QString&, QString* thumbName) { *thumbName = thumb; });
    hand.PressThumb();
    hand.Move({0, 60});
    ASSERT_NE(FormOnScreen(), nullptr);
    EXPECT_EQ(QColor(Followed()), QColor(Qt::black));
    hand.Release();
}

TEST_F(ScrollingTest, AWindowThatStillClosesIsNotInTheWayOfTheNextPress) {
    int under = -1;
    QObject::connect(&widget, &VorlaneWidget::OnGetThumbPath, &widget,
                     [&](const QString& fileName, QString*) { under = fileName.right(7).left(3).toInt(); });
    widget.SetScrollWindowWidth(400);  // large enough for an effect that lasts
    hand.PressThumb();
    hand.Move({0, 60});
    const QPointer<FormWidget> first = FormOnScreen();
    const int before = under;
    hand.Release();
    ASSERT_TRUE(first && first->isVisible());
    EXPECT_TRUE(first->windowFlags().testFlag(Qt::WindowTransparentForInput));

    hand.PressThumb();
    hand.Move({0, 40});
    ASSERT_NE(FormOnScreen(), nullptr);
    EXPECT_NE(FormOnScreen(), first);
    EXPECT_GT(under, before);
    EXPECT_TRUE(FormOnScreen()->mask().isEmpty());
    const auto shown = [&] { return FormOnScreen()->grab().toImage().pixel(200, 152); };
    EXPECT_EQ(shown(), ColorOf(under));
    for (int i = 0; first && i < 2000; ++i) {
        widget.Desktop().clock.Sleep(2);
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    EXPECT_EQ(first, nullptr);
    ASSERT_NE(FormOnScreen(), nullptr);
    EXPECT_EQ(shown(), ColorOf(under));
    hand.Release();
    EXPECT_EQ(errors, "");
}

}  // namespace
}  // namespace vorlane
