#include "platform/compositecontrol.h"
#include "platform/qt/formwidget.h"
#include "platform/qt/qtdesktop.h"
#include "windows/frmdrag.h"
#include "windows/frmscroll.h"
#include "windows/frmwait.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QImage>
#include <QTemporaryDir>

namespace vorlane {
namespace {

constexpr ClosingEffect kEffect{ClosingCorner::BottomRight, 3};

// Lets the message loop run until done says so; false when that takes too long.
template <class Done>
bool RunUntil(Done&& done) {
    QElapsedTimer waited;
    waited.start();
    while (!done() && waited.elapsed() < 5000) QApplication::processEvents(QEventLoop::AllEvents, 5);
    return done();
}

class QtForm : public testing::Test {
protected:
    QtForm() {
        ambient = desktop.forms.OpenForm();
        form = ambient.Window;
        desktop.forms.Move(form, {20, 30, 60, 50});
        content = std::make_unique<CompositeControlWithoutWork>(desktop.Roles(), ambient, nullptr);
        content->Move(0, 0, 40, 20);
        desktop.forms.SetContent(form, *content);
    }
    ~QtForm() override { desktop.forms.CloseForm(form); }

    struct CompositeControlWithoutWork final : CompositeControl {
        using CompositeControl::CompositeControl;
        void Resized() override {}
    };

    FormWidget& Widget() { return *desktop.forms.WidgetOf(form); }
    QColor Pixel(int x, int y) { return Widget().grab().toImage().pixelColor(x, y); }

    QtDesktop desktop;
    Ambient ambient;
    Hwnd form = 0;
    std::unique_ptr<CompositeControlWithoutWork> content;
};

// --- The window ---

TEST_F(QtForm, TakesNeitherFocusNorInputAndStaysOnTop) {
    const Qt::WindowFlags flags = Widget().windowFlags();
    EXPECT_TRUE(flags.testFlag(Qt::FramelessWindowHint));
    EXPECT_TRUE(flags.testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_TRUE(flags.testFlag(Qt::WindowDoesNotAcceptFocus));
    EXPECT_TRUE(flags.testFlag(Qt::WindowTransparentForInput));
    EXPECT_TRUE(Widget().testAttribute(Qt::WA_ShowWithoutActivating));
    EXPECT_TRUE(Widget().isWindow());
}

TEST_F(QtForm, ShowsAndHidesWithoutActivating) {
    EXPECT_FALSE(desktop.forms.Visible(form));
    desktop.forms.Show(form);
    EXPECT_TRUE(desktop.forms.Visible(form));
    EXPECT_TRUE(RunUntil([&] { return Widget().isVisible(); }));
    EXPECT_NE(QApplication::activeWindow(), &Widget());
    desktop.forms.Hide(form);
    EXPECT_FALSE(desktop.forms.Visible(form));
}

TEST_F(QtForm, IsPlacedInScreenPixels) {
    EXPECT_EQ(Widget().geometry(), QRect(20, 30, 40, 20));
    EXPECT_EQ(desktop.windows.GetWindowRect(form), (WinRect{20, 30, 60, 50}));
    desktop.forms.Move(form, {100, 100, 90, 90});
    EXPECT_TRUE(Widget().size().isEmpty());
}

TEST_F(QtForm, PaintsItsContent) {
    content->Surface().SetBackColor(0x0000FF);
    content->Surface().SetPixel(3, 4, 0x00FF00);
    EXPECT_EQ(Pixel(0, 0), QColor(255, 0, 0));
    EXPECT_EQ(Pixel(3, 4), QColor(0, 255, 0));
}

TEST_F(QtForm, ContentHasTheFontOfTheProgram) {
    EXPECT_EQ(ambient.Font.Name, QApplication::font().family().toStdString());
}

TEST_F(QtForm, WhatIsAskedOfAFormThatIsNotOpenIsHarmless) {
    desktop.forms.Move(0, {});
    desktop.forms.Show(-1);
    desktop.forms.Hide(99);
    desktop.forms.KeepOnTop(99);
    desktop.forms.SetWindowRgn(99, {});
    desktop.forms.SetLayered(99, 5, std::nullopt);
    desktop.forms.CloseForm(99);
    desktop.forms.CloseForm(99, kEffect);
    EXPECT_FALSE(desktop.forms.Visible(99));
    EXPECT_EQ(desktop.forms.ClosingForms(), 0);
}

// --- Its shape ---

TEST_F(QtForm, IsCutToItsRegion) {
    desktop.forms.SetWindowRgn(form, Region::CreateRoundRectRgn(0, 0, 40, 20, 7, 7));
    const QRegion mask = Widget().mask();
    EXPECT_EQ(mask.boundingRect(), QRect(0, 0, 39, 19));
    EXPECT_FALSE(mask.contains(QPoint(1, 0)));
    EXPECT_TRUE(mask.contains(QPoint(2, 0)));
    desktop.forms.Move(form, {0, 0, 40, 20});
    EXPECT_EQ(Widget().mask(), mask);
}

TEST_F(QtForm, IsWholeInARegionOfItsSize) {
    desktop.forms.SetWindowRgn(form, Region::CreateRectRgn(0, 0, 10, 10));
    desktop.forms.SetWindowRgn(form, Region::CreateRectRgn(0, 0, 40, 20));
    EXPECT_TRUE(Widget().mask().isEmpty());
}

TEST_F(QtForm, IsNowhereInAnEmptyRegion) {
    desktop.forms.SetWindowRgn(form, Region::CreateRoundRectRgn(0, 0, 0, 0, 15, 15));
    EXPECT_FALSE(Widget().mask().isEmpty());
    EXPECT_FALSE(Widget().mask().intersects(Widget().rect()));
}

TEST_F(QtForm, ARegionWithAHoleHasOne) {
    desktop.forms.SetWindowRgn(
        form, Region::ExclusiveOr(Region::CreateRectRgn(0, 0, 40, 20), Region::CreateEllipticRgn(5, 5, 7, 7)));
    EXPECT_FALSE(Widget().mask().contains(QPoint(5, 5)));
    EXPECT_TRUE(Widget().mask().contains(QPoint(6, 6)));
}

TEST_F(QtForm, IsAsOpaqueAsItsAlpha) {
    desktop.forms.SetLayered(form, 165, std::nullopt);
    EXPECT_NEAR(Widget().windowOpacity(), 165 / 255.0, 0.01);
}

TEST_F(QtForm, WhatHasTheColourKeyIsAHole) {
    desktop.forms.SetLayered(form, 100, 0xFF00FF);
    content->Surface().SetBackColor(0x123456);
    desktop.forms.Show(form);
    content->Surface().SetPixel(12, 7, 0xFF00FF);
    EXPECT_TRUE(RunUntil([&] { return !Widget().mask().isEmpty(); }));
    EXPECT_EQ(QRegion(Widget().rect()) - Widget().mask(), QRegion(12, 7, 1, 1));
}

TEST_F(QtForm, AFormThatIsAllHoleComesBackWithWhatIsPainted) {
    content->Surface().SetBackColor(0xFF00FF);
    desktop.forms.SetLayered(form, 100, 0xFF00FF);
    desktop.forms.Show(form);
    EXPECT_TRUE(RunUntil([&] { return !Widget().mask().isEmpty(); }));
    EXPECT_FALSE(Widget().mask().intersects(Widget().rect()));
    content->Surface().LineFilledBox(0, 0, 9, 9, 0);
    EXPECT_TRUE(RunUntil([&] { return Widget().mask() == QRegion(0, 0, 10, 10); }));
}

// --- Its end ---

TEST_F(QtForm, ClosesAtOnce) {
    desktop.forms.Show(form);
    const QPointer<QWidget> widget = &Widget();
    desktop.forms.CloseForm(form);
    EXPECT_TRUE(widget.isNull());
    EXPECT_EQ(desktop.windows.GetWindowRect(form), WinRect{});
}

TEST_F(QtForm, AClosingEffectWaitsForNothingAndNobodyWaitsForIt) {
    desktop.forms.Show(form);
    const QPointer<QWidget> widget = &Widget();
    desktop.forms.CloseForm(form, kEffect);
    content.reset();
    EXPECT_FALSE(desktop.forms.Visible(form));
    EXPECT_EQ(desktop.forms.WidgetOf(form), nullptr);
    EXPECT_EQ(desktop.forms.ClosingForms(), 1);
    EXPECT_TRUE(widget->isVisible());
    EXPECT_TRUE(RunUntil([&] { return widget.isNull() || !widget->isVisible(); }));
}

TEST_F(QtForm, ShrinksIntoItsCorner) {
    desktop.forms.Show(form);
    QPointer<QWidget> widget = &Widget();
    desktop.forms.CloseForm(form, {ClosingCorner::BottomRight, 10});
    QRect last = widget->rect();
    while (widget && widget->isVisible()) {
        QApplication::processEvents(QEventLoop::AllEvents, 5);
        if (!widget || widget->mask().isEmpty() || !widget->mask().intersects(widget->rect())) continue;
        const QRect left = widget->mask().boundingRect();
        EXPECT_EQ(left.bottomRight(), QPoint(39, 19));
        EXPECT_TRUE(last.contains(left));
        last = left;
    }
    EXPECT_LT(last.width(), 40);
}

TEST_F(QtForm, AHiddenFormAndAnEffectWithoutStepsCloseAtOnce) {
    desktop.forms.CloseForm(form, kEffect);
    EXPECT_EQ(desktop.forms.ClosingForms(), 0);
    const Ambient second = desktop.forms.OpenForm();
    desktop.forms.Show(second.Window);
    desktop.forms.CloseForm(second.Window, {ClosingCorner::TopLeft, 0});
    EXPECT_EQ(desktop.forms.ClosingForms(), 0);
}

TEST(QtFormsEnd, TakesWhatIsStillClosingWithIt) {
    QPointer<QWidget> widget;
    {
        QtDesktop desktop;
        const Hwnd form = desktop.forms.OpenForm().Window;
        desktop.forms.Move(form, {0, 0, 30, 30});
        desktop.forms.Show(form);
        widget = desktop.forms.WidgetOf(form);
        desktop.forms.CloseForm(form, kEffect);
        EXPECT_FALSE(widget.isNull());
    }
    EXPECT_TRUE(widget.isNull());
}

// --- The library's windows on this desktop ---

TEST(QtFollowWindow, ShowsAPictureWholeInsideItsFrame) {
    QTemporaryDir folder;
    const QString path = folder.filePath("red.png");
    QImage picture(80, 40, QImage::Format_RGB32);
    picture.fill(Qt::red);
    ASSERT_TRUE(picture.save(path));
    QtDesktop desktop;
    FrmScroll& form = SharedFrmScroll(desktop.Roles());
    form.Move(150, 150, 102 * 15, 82 * 15);
    form.PictureLet(path.toStdString(), 0xFFFFFF);
    ShowForm(form);
    const QImage seen = desktop.forms.WidgetOf(form.Hwnd())->grab().toImage();
    EXPECT_EQ(seen.size(), QSize(102, 82));
    EXPECT_EQ(seen.pixelColor(0, 40), QColor(0xC0, 0xC0, 0xC0));
    EXPECT_EQ(seen.pixelColor(1, 10), QColor(Qt::white));
    EXPECT_EQ(seen.pixelColor(1, 16), QColor(Qt::red));
    EXPECT_EQ(seen.pixelColor(100, 65), QColor(Qt::red));
    EXPECT_EQ(seen.pixelColor(100, 66), QColor(Qt::white));
}

TEST(QtWaitWindow, StandsRoundedAndSeenThroughOverItsRectangle) {
    QtDesktop desktop;
    FrmWait& form = SharedFrmWait(desktop.Roles());
    form.ShowAnimatedFrom("Chargement de l'image en cours", WaitPlace::Middle, {100, 100, 500, 400}, false);
    const FormWidget& widget = *desktop.forms.WidgetOf(form.Hwnd());
    EXPECT_EQ(widget.geometry().center().y(), 249);
    EXPECT_NEAR(widget.geometry().center().x(), 299, 1);
    EXPECT_EQ(widget.mask().boundingRect(), QRect(0, 0, widget.width() - 1, widget.height() - 1));
    EXPECT_FALSE(widget.mask().contains(QPoint(0, 0)));
    EXPECT_NEAR(widget.windowOpacity(), 165 / 255.0, 0.01);
    form.CloseWindow(false);
    EXPECT_FALSE(form.Loaded());
}

TEST(QtWaitWindow, SlidesInToItsPlace) {
    QtDesktop desktop;
    FrmWait& form = SharedFrmWait(desktop.Roles());
    form.ShowAnimatedFrom("", WaitPlace::Top, {100, 100, 500, 400}, false);
    const FormWidget& widget = *desktop.forms.WidgetOf(form.Hwnd());
    EXPECT_TRUE(widget.isVisible());
    EXPECT_EQ(widget.geometry().top(), 100);
    form.CloseWindow(true);
}

TEST(QtGhost, LeavesTheDropToTheWindowBeneath) {
    QtDesktop desktop;
    FrmDrag& ghost = SharedFrmDrag(desktop.Roles());
    ghost.ColorKey = 0xFF00FF;
    ghost.HotX = 10;
    ghost.HotY = 5;
    ghost.Move(0, 0, 30 * 15, 20 * 15);
    ghost.Surface().LineFilledBox(0, 0, 29, 19, 0x404040);
    ghost.Show();
    ghost.Surface().SetPixel(ghost.HotX, ghost.HotY, ghost.ColorKey);
    const FormWidget& widget = *desktop.forms.WidgetOf(ghost.Hwnd());
    EXPECT_TRUE(widget.windowFlags().testFlag(Qt::WindowTransparentForInput));
    EXPECT_TRUE(RunUntil([&] { return QRegion(widget.rect()) - widget.mask() == QRegion(10, 5, 1, 1); }));
    ghost.Unload();
}

TEST(QtGhost, HasItsHoleAtTheEdgeOfItsWindowToo) {
    QtDesktop desktop;
    FrmDrag& ghost = SharedFrmDrag(desktop.Roles());
    for (const QPoint hot : {QPoint(0, 0), QPoint(29, 0), QPoint(0, 19), QPoint(29, 19), QPoint(15, 19)}) {
        ghost.ColorKey = 0xFF00FF;
        ghost.HotX = hot.x();
        ghost.HotY = hot.y();
        ghost.Move(0, 0, 30 * 15, 20 * 15);
        ghost.Surface().LineFilledBox(0, 0, 29, 19, 0x404040);
        ghost.Show();
        ghost.Surface().SetPixel(ghost.HotX, ghost.HotY, ghost.ColorKey);
        const FormWidget& widget = *desktop.forms.WidgetOf(ghost.Hwnd());
        const QRegion hole(QRect(hot, QSize(1, 1)));
        EXPECT_TRUE(RunUntil([&] { return QRegion(widget.rect()) - widget.mask() == hole; }))
            << hot.x() << "," << hot.y();
        ghost.Unload();
    }
}

}  // namespace
}  // namespace vorlane
