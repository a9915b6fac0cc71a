// What the user does on a sheet's widget, and what the widget tells of it.
#include "sheet/vorlane.h"
#include "widgets/vorlanewidget.h"

#include <gtest/gtest.h>

#include <QTest>

namespace vorlane {
namespace {

class UserInputTest : public testing::Test {
protected:
    UserInputTest() {
        widget.resize(500, 300);
        for (int i = 0; i < 40; ++i) widget.Add(QStringLiteral("/p%1.jpg").arg(i), {}, i);
        widget.show();
        widget.StartLecture();
        Connect();
    }
    void Connect() {
        using W = VorlaneWidget;
        const auto tell = [this](const QString& what) { trace.push_back(what); };
        QObject::connect(&widget, &W::OnMouseDown, [=](int button) { tell(QStringLiteral("down %1").arg(button)); });
        QObject::connect(&widget, &W::OnMouseUp, [=](int button) { tell(QStringLiteral("up %1").arg(button)); });
        QObject::connect(&widget, &W::OnMouseMove, [this](int, int, const QPointF& place) { last = place; });
        QObject::connect(&widget, &W::OnMouseEnter, [=](int i) { tell(QStringLiteral("enter %1").arg(i)); });
        QObject::connect(&widget, &W::OnMouseExit, [=](int i) { tell(QStringLiteral("exit %1").arg(i)); });
        QObject::connect(&widget, &W::OnClick,
                         [=](int i, const QString& file) { tell(QStringLiteral("click %1 %2").arg(i).arg(file)); });
        QObject::connect(&widget, &W::OnDblClick, [=](int i) { tell(QStringLiteral("double click %1").arg(i)); });
        QObject::connect(&widget, &W::OnBackgroundClick,
                         [=](int button) { tell(QStringLiteral("ground %1").arg(button)); });
        QObject::connect(&widget, &W::OnKeyDown, [=](int* code) { tell(QStringLiteral("key %1").arg(*code)); });
        QObject::connect(&widget, &W::OnKeyPress, [=](int* code) { tell(QStringLiteral("char %1").arg(*code)); });
        QObject::connect(&widget, &W::OnKeyUp, [=](int* code) { tell(QStringLiteral("key up %1").arg(*code)); });
    }
    QPoint Middle(int slide) const { return widget.DiapoRect(slide).center().toPoint(); }
    void Click(int slide, Qt::KeyboardModifiers keys = {}) {
        QTest::mouseClick(&widget, Qt::LeftButton, keys, Middle(slide));
    }

    VorlaneWidget widget;
    QStringList trace;
    QPointF last;
};

TEST_F(UserInputTest, AClickSelectsASlideAndIsTold) {
    Click(2);
    EXPECT_EQ(widget.SelectedTableau(), std::vector{2});
    EXPECT_EQ(widget.CurrentDiapo(), 2);
    EXPECT_EQ(trace, QStringList({"down 1", "up 1", "click 2 /p2.jpg"}));
}

TEST_F(UserInputTest, CtrlAddsAndShiftSelectsARange) {
    Click(1);
    Click(4, Qt::ControlModifier);
    EXPECT_EQ(widget.SelectedTableau(), (std::vector{1, 4}));
    Click(6, Qt::ShiftModifier);
    EXPECT_EQ(widget.SelectedTableau(), (std::vector{1, 4, 5, 6}));
    Click(0);
    EXPECT_EQ(widget.SelectedTableau(), std::vector{0});
}

TEST_F(UserInputTest, TheMouseIsToldWhereItIs) {
    QTest::mouseMove(&widget, Middle(0));
    QTest::mouseMove(&widget, Middle(1));
    EXPECT_EQ(trace, QStringList({"enter 0", "exit 0", "enter 1"}));
    EXPECT_NEAR(last.x(), Middle(1).x(), 1);
    EXPECT_NEAR(last.y(), Middle(1).y(), 1);
}

TEST_F(UserInputTest, AClickOnTheGroundClearsTheSelection) {
    widget.SelectAll();
    const int gap = static_cast<int>(widget.DiapoRect(0).left()) - 2;
    QTest::mouseClick(&widget, Qt::LeftButton, {}, {gap, Middle(0).y()});
    EXPECT_EQ(widget.CountSelected(), 0);
    EXPECT_TRUE(trace.contains("ground 1"));
}

TEST_F(UserInputTest, ADoubleClickIsTold) {
    Click(3);
    QTest::mouseDClick(&widget, Qt::LeftButton, {}, Middle(3));
    QTest::mouseRelease(&widget, Qt::LeftButton, {}, Middle(3));
    EXPECT_TRUE(trace.contains("double click 3")) << trace.join(", ").toStdString();
}

TEST_F(UserInputTest, KeysAreToldByTheSheetsCodes) {
    QTest::keyClick(&widget, Qt::Key_A);
    EXPECT_EQ(trace, QStringList({"key 65", "char 97", "key up 65"}));
}

TEST_F(UserInputTest, TheSelectionIsTheHostsToo) {
    widget.SelectAll();
    EXPECT_EQ(widget.CountSelected(), 40);
    widget.SelectedClear(3);
    EXPECT_EQ(widget.SelectedTableau(), std::vector{3});
    widget.SelectInvert();
    EXPECT_EQ(widget.CountSelected(), 39);
    widget.SetCurrentDiapo(5);
    EXPECT_EQ(widget.CurrentDiapo(), 5);
    widget.SelectedClear();
    EXPECT_TRUE(widget.SelectedTableau().empty());
}

TEST_F(UserInputTest, ProgressIsAskedForOnlyWhereSomebodyHearsIt) {
    EXPECT_FALSE(widget.sheet().Events.TraitementFeedBack.connected());
    int heard = 0;
    QObject::connect(&widget, &VorlaneWidget::OnTraitementFeedBack, [&] { ++heard; });
    QObject::connect(&widget, &VorlaneWidget::OnTraitementFeedBack, [] {});
    widget.SelectAll();
    EXPECT_EQ(heard, 40);
}

}  // namespace
}  // namespace vorlane
