// The sheet's widget under a real X server.
#include "platform/qt/formwidget.h"
#include "sheet/vorlane.h"
#include "tests/xvfb/user.h"
#include "widgets/vorlanewidget.h"

#include <QApplication>
#include <QScreen>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionSlider>

namespace vorlane {
namespace {

using test::User;

class SheetUnderX : public testing::Test {
protected:
    SheetUnderX() {
        widget.setGeometry(100, 100, 600, 400);
        widget.DiapoSizeChange(true, 120, 110);
        QObject::connect(&widget, &VorlaneWidget::OnBeforeSetPicture, &widget,
                         [](int, const QString&, SlideContent* content) {
                             content->Picture = QImage(60, 40, QImage::Format_RGB32);
                             content->Picture.fill(Qt::darkGreen);
                         });
        widget.show();
        for (int i = 0; i < 200; ++i) widget.Add(QStringLiteral("/nowhere/%1.jpg").arg(i), {}, 1000 + i);
        widget.StartLecture();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&widget));
        EXPECT_TRUE(User::Until([&] { return widget.pos() == QPoint(100, 100); }));
    }
    ~SheetUnderX() override { User::PointAt({2, 2}); }

    QPoint MiddleOf(int slide) {
        const Box box = widget.sheet().Diapo.Item(slide)->BoundsInRoot();
        return widget.mapToGlobal(QPointF(box.Left + box.Width / 2, box.Top + box.Height / 2).toPoint());
    }
    void Click(int slide) {
        User::PointAt(MiddleOf(slide));
        User::Click();
    }
    static const QWidget* FollowWindow() {
        for (const QWidget* window : QApplication::topLevelWidgets()) {
            if (window->isVisible() && dynamic_cast<const FormWidget*>(window) != nullptr) return window;
        }
        return nullptr;
    }
    QScrollBar& Bar() { return *widget.findChild<QScrollBar*>(); }
    QPoint Thumb() {
        QStyleOptionSlider option;
        option.initFrom(&Bar());
        option.orientation = Qt::Vertical;
        option.minimum = Bar().minimum();
        option.maximum = Bar().maximum();
        option.sliderPosition = Bar().sliderPosition();
        option.sliderValue = Bar().value();
        option.singleStep = Bar().singleStep();
        option.pageStep = Bar().pageStep();
        const QRect thumb =
            Bar().style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, &Bar());
        return Bar().mapToGlobal(thumb.center());
    }

    VorlaneWidget widget;
};

TEST_F(SheetUnderX, AClickSelectsTheSlideUnderThePointer) {
    Click(2);
    EXPECT_TRUE(User::Until([&] { return widget.Selected(2); }));
    EXPECT_EQ(widget.CurrentDiapo(), 2);
    EXPECT_EQ(widget.CountSelected(), 1);
    Click(1);
    EXPECT_TRUE(User::Until([&] { return widget.Selected(1) && !widget.Selected(2); }));
}

TEST_F(SheetUnderX, AClickWithCtrlAddsToTheSelection) {
    widget.SetSelectionMultiple(true);
    Click(0);
    EXPECT_TRUE(User::Until([&] { return widget.Selected(0); }));
    User::HoldKey("ctrl");
    Click(3);
    EXPECT_TRUE(User::Until([&] { return widget.Selected(3); }));
    User::LetKeyGo("ctrl");
    EXPECT_TRUE(widget.Selected(0));
    EXPECT_EQ(widget.CountSelected(), 2);
}

TEST_F(SheetUnderX, AClickOnTheGroundLeavesNoSelectionAndTheMouseFree) {
    widget.SetSelectionMultiple(true);
    Click(0);
    EXPECT_TRUE(User::Until([&] { return widget.Selected(0); }));
    int clicks = 0;
    QObject::connect(&widget, &VorlaneWidget::OnBackgroundClick, &widget, [&](int) { ++clicks; });
    User::PointAt(widget.mapToGlobal(QPoint(2, 2)));
    User::Click();
    EXPECT_TRUE(User::Until([&] { return clicks == 1; }));
    EXPECT_EQ(widget.CountSelected(), 0);
    EXPECT_EQ(QWidget::mouseGrabber(), nullptr);
    EXPECT_FALSE(widget.sheet().SelRect.Visible());
    Click(1);
    EXPECT_TRUE(User::Until([&] { return widget.Selected(1); }));
    EXPECT_EQ(widget.CountSelected(), 1);
}

TEST_F(SheetUnderX, AClickGivesTheSheetTheKeyboard) {
    widget.activateWindow();
    Click(0);
    EXPECT_TRUE(User::Until([&] { return widget.hasFocus(); }));
    int16_t heard = 0;
    widget.sheet().Events.KeyDown.connect([&](int16_t& code, int16_t) { heard = code; });
    User::Key("k");
    EXPECT_TRUE(User::Until([&] { return heard == 'K'; }));
}

TEST_F(SheetUnderX, TheWheelScrollsByARow) {
    User::PointAt(MiddleOf(1));
    User::Click(5);
    EXPECT_TRUE(User::Until([&] { return Bar().value() == Bar().singleStep(); }));
    EXPECT_EQ(widget.sheet().Diapo.Item(0)->Value(), Bar().singleStep());
    User::Click(4);
    EXPECT_TRUE(User::Until([&] { return Bar().value() == 0; }));
}

TEST_F(SheetUnderX, TheWheelOverTheBarScrollsByARowToo) {
    User::PointAt(Bar().mapToGlobal(Bar().rect().center()));
    User::Click(5);
    EXPECT_TRUE(User::Until([&] { return widget.sheet().VScroll.Value() == Bar().singleStep(); }));
}

TEST_F(SheetUnderX, ADraggedThumbShowsTheFollowWindowAndMovesTheListWhenItIsLetGo) {
    int passed = 0;
    widget.sheet().VScroll.Scroll.connect([&](int32_t value) { passed = value; });
    User::PointAt(Thumb());
    User::Press();
    User::MoveBy({0, 120});
    EXPECT_TRUE(User::Until([&] { return passed > 0; }));
    EXPECT_TRUE(User::Until([&] { return FollowWindow() != nullptr; }));
    EXPECT_EQ(widget.sheet().VScroll.Value(), 0);
    EXPECT_EQ(widget.sheet().Diapo.Item(0)->Value(), 0);
    User::Release();
    EXPECT_TRUE(User::Until([&] { return widget.sheet().VScroll.Value() > 0; }));
    EXPECT_EQ(widget.sheet().Diapo.Item(0)->Value(), widget.sheet().VScroll.Value());
    EXPECT_TRUE(User::Until([] { return FollowWindow() == nullptr; }));
}

TEST_F(SheetUnderX, ARowStepIsOnTheScreen) {
    User::PointAt(MiddleOf(1));
    User::Click(5);
    EXPECT_TRUE(User::Until([&] { return Bar().value() == Bar().singleStep(); }));
    const QPoint inside = widget.mapFromGlobal(MiddleOf(0)) - QPoint(30, 20);
    EXPECT_TRUE(User::Until([&] {
        const QImage seen = widget.screen()->grabWindow(widget.winId()).toImage();
        return seen.pixelColor(inside) == QColor(Qt::darkGreen);
    }));
}

}  // namespace
}  // namespace vorlane
