// Gestures that take more than a click, on Qt's own road from the window system: the zoom corner, double clicks, the
// rubber band with keys and at the sides of the sheet.
#include "platform/qt/formwidget.h"
#include "platform/qt/qtdesktop.h"
#include "tests/widgets/vorlanewidgettest.h"
#include "windows/frmscroll.h"
#include "windows/frmwait.h"

#include <QApplication>
#include <QCursor>
#include <QTest>
#include <QWindow>

namespace vorlane {
namespace {

class LongGestures : public test::VorlaneWidgetTest {
protected:
    void ShowItems(int count, ui::ScrollDirection direction = ui::ScrollDirection::sdVertical) {
        widget.SetScrollDirection(direction);
        const QString picture = Write("big.png", test::Plain(600, 400, Qt::red));
        for (int i = 0; i < count; ++i) widget.Add(picture, {}, 1000 + i);
        Show();
        widget.StartLecture();
        QCoreApplication::processEvents();
    }

    QWindow* Window() { return widget.windowHandle(); }
    // The pointer itself, with the move that comes of it.
    void MoveTo(QPoint place) {
        QCursor::setPos(widget.mapToGlobal(place));
        QCoreApplication::processEvents();
    }
    void Press(QPoint place, Qt::KeyboardModifiers keys = {}, Qt::MouseButton button = Qt::LeftButton) {
        MoveTo(place);
        QTest::mousePress(Window(), button, keys, place);
    }
    void Release(QPoint place, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseRelease(Window(), button, {}, place);
    }
    QPoint InSlide(int index) const {
        const QRectF rect = widget.DiapoRect(index);
        return {qRound(rect.center().x()), qRound(rect.top()) + 20};
    }

    QList<int> Selected() const { return widget.SelectedTableau(); }
    int BarValue() const { return widget.sheet().VScroll.Value(); }
    const Box& Band() const { return widget.sheet().SelRect.Bounds(); }

    static constexpr QPoint kGround{2, 2};
};

// --- The zoom corner ---

class ZoomCorner : public LongGestures {
protected:
    ZoomCorner() { ShowItems(6); }
    QPoint Corner(int index) const {
        const Box box = widget.sheet().Diapo.Item(index)->CornerResize.BoundsInRoot();
        return QRectF(box.Left, box.Top, box.Width, box.Height).center().toPoint();
    }
    // What of the zoom is on the screen; an invalid rectangle for nothing.
    QRect Zoom() {
        const FrmScroll& form = SharedFrmScroll(widget.Desktop().Roles());
        if (!form.Loaded() || !form.Visible()) return {};
        return ZoomWidget().geometry();
    }
    FormWidget& ZoomWidget() {
        return *widget.Desktop().forms.WidgetOf(SharedFrmScroll(widget.Desktop().Roles()).Hwnd());
    }
    QRect OnScreen(int index) const {
        return widget.DiapoRect(index).toRect().translated(widget.mapToGlobal(QPoint()));
    }
};

TEST_F(ZoomCorner, PressedItOpensTheFileOverTheSlideGrowsTowardsThePointerAndClosesWhenLetGo) {
    ASSERT_TRUE(widget.sheet().Diapo.Item(1)->CornerResize.Visible());
    const QPoint corner = Corner(1);
    Press(corner);
    const QRect slide = OnScreen(1);
    EXPECT_EQ(Zoom(), slide);
    EXPECT_EQ(ZoomWidget().grab().toImage().pixelColor(slide.width() / 2, slide.height() / 2), QColor(Qt::red));
    EXPECT_FALSE(SharedFrmWait(widget.Desktop().Roles()).Loaded());
    MoveTo(corner + QPoint(60, 40));
    EXPECT_EQ(Zoom(), slide.adjusted(0, 0, 60, 40));
    MoveTo(corner + QPoint(-30, -20));
    EXPECT_EQ(Zoom(), slide.adjusted(-30, -20, 0, 0));
    Release(corner);
    EXPECT_FALSE(Zoom().isValid());
    EXPECT_EQ(Selected(), QList<int>());
}

TEST_F(ZoomCorner, UnderTheRightButtonItOpensNothing) {
    Press(Corner(1), {}, Qt::RightButton);
    EXPECT_FALSE(Zoom().isValid());
    Release(Corner(1), Qt::RightButton);
    Press(Corner(1));
    EXPECT_TRUE(Zoom().isValid());
    Release(Corner(1));
}

// --- Double clicks ---

class DoubleClicks : public ::testing::Test {
protected:
    DoubleClicks() { QApplication::setDoubleClickInterval(60000); }
    ~DoubleClicks() override { QApplication::setDoubleClickInterval(before_); }

private:
    int before_ = QApplication::doubleClickInterval();
};

TEST_F(DoubleClicks, AreToldInPlaceOfTheSecondPressWithTheirSlideAndButton) {
    VorlaneWidget widget;
    widget.resize(500, 300);
    widget.DiapoSizeChange(true, 120, 110);
    for (int i = 0; i < 6; ++i) widget.Add("/nowhere/x.jpg");
    widget.show();
    widget.StartLecture();
    QStringList heard;
    const auto tell = [&](const char* name, int button) { heard += name + QString::number(button); };
    QObject::connect(&widget, &VorlaneWidget::OnMouseDown,
                     [&](int button, int, double, double) { tell("down ", button); });
    QObject::connect(&widget, &VorlaneWidget::OnMouseUp, [&](int button, int, double, double) { tell("up ", button); });
    QObject::connect(&widget, &VorlaneWidget::OnClick, [&](int slide, const QImage&, const QString&, int button) {
        tell("click ", slide * 10 + button);
    });
    QObject::connect(&widget, &VorlaneWidget::OnDblClick, [&](int slide, const QImage&, const QString&, int button) {
        tell("double ", slide * 10 + button);
    });
    QObject::connect(&widget, &VorlaneWidget::OnBackgroundClick, [&](int button) { tell("ground ", button); });
    QObject::connect(&widget, &VorlaneWidget::OnBackgroundDblClick,
                     [&](int button) { tell("double ground ", button); });
    const QPoint place = widget.DiapoRect(1).center().toPoint();
    QTest::mouseDClick(widget.windowHandle(), Qt::LeftButton, {}, place);
    EXPECT_EQ(heard, QStringList({"down 1", "up 1", "click 11", "double 11", "up 1"}));
    EXPECT_EQ(widget.SelectedTableau(), QList<int>{1});
    heard.clear();
    QTest::mouseDClick(widget.windowHandle(), Qt::RightButton, {}, {2, 2});
    EXPECT_EQ(heard, QStringList({"down 2", "up 2", "ground 2", "double ground 2", "up 2"}));
}

// --- The rubber band ---

TEST_F(LongGestures, ABandWithCtrlTurnsWhatItSweepsAndBackAgain) {
    ShowItems(30);
    QTest::mouseClick(Window(), Qt::LeftButton, {}, InSlide(1));
    Press(kGround, Qt::ControlModifier);
    MoveTo(InSlide(2));
    EXPECT_EQ(Selected(), QList<int>({0, 2}));
    MoveTo(InSlide(0));
    EXPECT_EQ(Selected(), QList<int>({0, 1}));
    MoveTo(kGround + QPoint(1, 1));
    EXPECT_EQ(Selected(), QList<int>({1}));
    Release(kGround + QPoint(1, 1));
    EXPECT_EQ(Selected(), QList<int>({1}));
    EXPECT_FALSE(widget.sheet().SelRect.Visible());
}

TEST_F(LongGestures, ABandWithShiftLeavesWhatWasSelected) {
    ShowItems(30);
    QTest::mouseClick(Window(), Qt::LeftButton, {}, InSlide(4));
    Press(kGround, Qt::ShiftModifier);
    MoveTo(InSlide(1));
    EXPECT_EQ(Selected(), QList<int>({0, 1, 4}));
    Release(InSlide(1));
    EXPECT_EQ(Selected(), QList<int>({0, 1, 4}));
}

TEST_F(LongGestures, AtTheLowerAndTheUpperSideABandScrollsARowAMove) {
    ShowItems(60);
    const int row = widget.CountDiapoX();
    const float pitch = widget.sheet().Diapo.Item(row)->Lig() - widget.sheet().Diapo.Item(0)->Lig();
    const QPoint low(300, widget.height() - 2);
    Press(kGround);
    MoveTo(low - QPoint(0, 40));
    EXPECT_EQ(BarValue(), 0);
    for (int move = 1; move <= 3; ++move) {
        MoveTo(low + QPoint(move % 2, 0));
        EXPECT_EQ(BarValue(), move * row);
        EXPECT_EQ(Band().Top, 2 - static_cast<float>(move) * pitch) << "its start goes with the slides";
    }
    MoveTo(low - QPoint(0, 40));
    EXPECT_EQ(BarValue(), 3 * row);
    EXPECT_TRUE(Selected().contains(3 * row)) << "what has come under the band";
    MoveTo({300, 1});
    EXPECT_EQ(BarValue(), 2 * row);
    MoveTo({301, 1});
    MoveTo({300, 1});
    EXPECT_EQ(BarValue(), 0);
    EXPECT_EQ(Band().Top, 1);
    MoveTo({301, 1});
    EXPECT_EQ(BarValue(), 0) << "the bar is at its end";
    MoveTo({1, 100});
    MoveTo({widget.width() - 40, 100});
    EXPECT_EQ(BarValue(), 0) << "the other sides scroll nothing";
    Release({1, 100});
}

TEST_F(LongGestures, OnASidewaysSheetABandScrollsAtTheRightAndTheLeftSide) {
    ShowItems(60, ui::ScrollDirection::sdHorizontal);
    const int step = widget.sheet().VScroll.SmallChange();
    const float pitch = widget.sheet().Diapo.Item(1)->Col() - widget.sheet().Diapo.Item(0)->Col();
    const QPoint right(widget.width() - 2, 60);
    Press(kGround);
    MoveTo(right - QPoint(40, 0));
    EXPECT_EQ(BarValue(), 0);
    for (int move = 1; move <= 3; ++move) {
        MoveTo(right + QPoint(0, move % 2));
        EXPECT_EQ(BarValue(), move * step);
        EXPECT_EQ(Band().Left, 2 - static_cast<float>(move) * pitch);
    }
    MoveTo({1, 60});
    EXPECT_EQ(BarValue(), 2 * step);
    MoveTo({1, 61});
    MoveTo({1, 60});
    MoveTo({1, 61});
    EXPECT_EQ(BarValue(), 0);
    MoveTo({100, 1});
    EXPECT_EQ(BarValue(), 0) << "the other sides scroll nothing";
    Release({100, 1});
}

TEST_F(LongGestures, NoSideScrollsWithoutABand) {
    ShowItems(60);
    MoveTo({300, widget.height() - 2});
    EXPECT_EQ(BarValue(), 0);
    widget.SetSelectionMultiple(false);
    Press(kGround);
    MoveTo({300, widget.height() - 2});
    EXPECT_EQ(BarValue(), 0);
    Release(kGround);
}

}  // namespace
}  // namespace vorlane
