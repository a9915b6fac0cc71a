#include "platform/compositecontrol.h"
#include "platform/qt/formwidget.h"
#include "platform/qt/qtdesktop.h"
#include "tests/platform/qt/movinggif.h"
#include "windows/frmdrag.h"
#include "windows/frmscroll.h"
#include "windows/frmwait.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QVariantAnimation>

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
    using Corner = QPoint (QRect::*)() const;
    const std::pair<ClosingCorner, Corner> corners[] = {{ClosingCorner::TopLeft, &QRect::topLeft},
                                                        {ClosingCorner::TopRight, &QRect::topRight},
                                                        {ClosingCorner::BottomRight, &QRect::bottomRight},
                                                        {ClosingCorner::BottomLeft, &QRect::bottomLeft}};
    for (const auto& [kind, corner] : corners) {
        const Hwnd closing = desktop.forms.OpenForm().Window;
        desktop.forms.Move(closing, {20, 30, 60, 50});
        desktop.forms.Show(closing);
        FormWidget* widget = desktop.forms.WidgetOf(closing);
        desktop.forms.CloseForm(closing, {kind, 10});
        auto& effect = *widget->findChild<QVariantAnimation*>();
        effect.pause();
        QRect last = widget->rect();
        for (const int moment : {80, 120, 155}) {
            effect.setCurrentTime(moment);
            const QRect left = widget->mask().boundingRect();
            EXPECT_EQ((left.*corner)(), (widget->rect().*corner)()) << static_cast<int>(kind) << " at " << moment;
            EXPECT_TRUE(last.contains(left) && left != last) << static_cast<int>(kind) << " at " << moment;
            last = left;
        }
    }
}

TEST_F(QtForm, LargeFormsCloseAsFastAsEachOther) {
    const auto duration = [this](int32_t steps) {
        const Hwnd closing = desktop.forms.OpenForm().Window;
        desktop.forms.Move(closing, {20, 30, 60, 50});
        desktop.forms.Show(closing);
        const FormWidget* widget = desktop.forms.WidgetOf(closing);
        desktop.forms.CloseForm(closing, {ClosingCorner::TopLeft, steps});
        return widget->findChild<QVariantAnimation*>()->duration();
    };
    EXPECT_EQ(duration(1), 16);
    EXPECT_EQ(duration(3), 48);
    EXPECT_EQ(duration(10), 160);
    EXPECT_EQ(duration(11), 160);
    EXPECT_EQ(duration(1'000'000), 160);
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

class QtFollowWindow : public testing::Test {
protected:
    std::string Red() {
        const QString path = folder.filePath("red.png");
        QImage picture(80, 40, QImage::Format_RGB32);
        picture.fill(Qt::red);
        EXPECT_TRUE(picture.save(path));
        return path.toStdString();
    }
    std::string Write(const QString& name, const QByteArray& bytes) {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return file.fileName().toStdString();
    }
    QImage Seen(FrmScroll& form) { return desktop.forms.WidgetOf(form.Hwnd())->grab().toImage(); }
    QColor Middle(FrmScroll& form) { return Seen(form).pixelColor(50, 38); }

    QTemporaryDir folder;
    QtDesktop desktop;
};

TEST_F(QtFollowWindow, ShowsAPictureWholeInsideItsFrame) {
    FrmScroll& form = SharedFrmScroll(desktop.Roles());
    form.Move(150, 150, 102 * 15, 82 * 15);
    form.PictureLet(Red(), 0xFFFFFF);
    ShowForm(form);
    const QImage seen = Seen(form);
    EXPECT_EQ(seen.size(), QSize(102, 82));
    EXPECT_EQ(seen.pixelColor(0, 40), QColor(0xC0, 0xC0, 0xC0));
    EXPECT_EQ(seen.pixelColor(1, 10), QColor(Qt::white));
    EXPECT_EQ(seen.pixelColor(1, 16), QColor(Qt::red));
    EXPECT_EQ(seen.pixelColor(100, 65), QColor(Qt::red));
    EXPECT_EQ(seen.pixelColor(100, 66), QColor(Qt::white));
}

TEST_F(QtFollowWindow, AFileThatTheViewerCantOpenShowsByTheSecondView) {
    class NoFilms final : public Films {
    public:
        bool CanOpen(const std::string&) const override { return false; }
        std::unique_ptr<Film> Open(const std::string&) override { return nullptr; }
    } films;
    const Desktop all = desktop.Roles();
    const Desktop roles{all.clock, all.screen,  all.keyboard, all.metrics, all.windows,
                        all.drags, all.dialogs, all.pictures, all.sounds,  all.texts,
                        all.forms, films,       all.tooltips, all.menus,   all.shared};
    FrmScroll form(roles);
    form.PictureLet(Red(), 0xFFFFFF);
    ShowForm(form);
    EXPECT_EQ(Seen(form).pixelColor(0, 38), QColor(0xC0, 0xC0, 0xC0));
    EXPECT_EQ(Seen(form).pixelColor(50, 2), QColor(Qt::white));
    EXPECT_EQ(Middle(form), QColor(Qt::red));
}

TEST_F(QtFollowWindow, AFileThatIsNoPictureLeavesItsColour) {
    FrmScroll form(desktop.Roles());
    form.PictureLet(Red(), 0xFFFFFF);
    ShowForm(form);
    form.PictureLet(Write("text.jpg", "no picture"), 0x00FF00);
    EXPECT_EQ(Middle(form), QColor(Qt::green));
    form.PictureLet(Red(), 0xFFFFFF);
    EXPECT_EQ(Middle(form), QColor(Qt::red));
}

TEST_F(QtFollowWindow, PlaysAnAnimation) {
    FrmScroll form(desktop.Roles());
    form.PictureLet(Write("moving.gif", test::RedThenBlue(0, 5)), 0xFFFFFF);
    ShowForm(form);
    EXPECT_EQ(Middle(form), QColor(Qt::red));
    EXPECT_TRUE(RunUntil([&] { return Middle(form) == QColor(Qt::blue); }));
    EXPECT_TRUE(RunUntil([&] { return Middle(form) == QColor(Qt::red); }));
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
