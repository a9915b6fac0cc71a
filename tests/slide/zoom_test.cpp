// The zoom of a slide of 160 x 140 at 1000, 500 of the screen: what its corner opens, what moves pull and what the
// release closes. Form 2 is the wait window, form 3 the zoom window.
#include "platform/failure.h"
#include "slide/zoomplace.h"
#include "slidetest.h"
#include "windows/frmscroll.h"
#include "windows/frmwait.h"

#include <functional>
#include <string>

namespace vorlane::headless {
namespace {

TEST(ZoomPlaceTest, TheWindowGrowsOnTheSidesTowardsThePointer) {
    const WinRect slide{100, 200, 160, 240};
    EXPECT_EQ(GrownTowards(slide, {110, 210}, {110, 210}), slide);
    EXPECT_EQ(GrownTowards(slide, {110, 210}, {130, 215}), (WinRect{100, 200, 180, 245}));
    EXPECT_EQ(GrownTowards(slide, {110, 210}, {100, 180}), (WinRect{90, 170, 160, 240}));
    EXPECT_EQ(GrownTowards(slide, {110, 210}, {90, 230}), (WinRect{80, 200, 160, 260}));
}

TEST(ZoomPlaceTest, APlaceThatNoScreenHasIsAFailure) {
    EXPECT_THROW(GrownTowards({0, 0, 2000000000, 1}, {0, 0}, {2000000000, 0}), Failure);
}

class ZoomTest : public SlideTest {
protected:
    ZoomTest() {
        desktop.texts.Add("2017", "Chargement");
        desktop.pictures.Add("/p/a.jpg", 300, 150);
        desktop.films.Add("/p/a.jpg", 300, 150);
        window.Host(slide);
        slide.SetBorderDouble(false);
        slide.SetShadowWidth(2);
        slide.Refresh();
        slide.Events.GetWindowsPos.connect([this](WinRect& place, std::string& text) {
            desktop.trace.Add("slide GetWindowsPos");
            if (onGetWindowsPos) onGetWindowsPos();
            place = {1000, 500, 1160, 640};
            text = "Patience";
        });
        slide.PictureByString("/p/a.jpg");
        desktop.trace.Clear();
    }

    void Press(int16_t button = kLeftButton) { window.Press(3, 4, button); }
    std::string Happened() { return desktop.trace.Take({"slide", "form", "pointer", "film", "yield", "redraw"}); }
    FrmScroll& Zoomed() { return SharedFrmScroll(desktop.Roles()); }
    FrmWait& Wait() { return SharedFrmWait(desktop.Roles()); }

    Window window{desktop, {1000, 500, 1160, 640}};
    std::function<void()> onGetWindowsPos;
};

// The picture stands at 9, 16.5 of the slide, 146 x 73: the wait window of 240 x 40 in its middle.
TEST_F(ZoomTest, APressTellsToWaitOverThePictureAndThenShowsTheFileOverTheSlide) {
    Press();
    EXPECT_EQ(Happened(),
              "slide ZoomMouseDown 1 0 45,60\nslide GetWindowsPos\n"
              "form 2 open\nform 2 content\nform 2 move 0,0 240x40\nform 2 region round 0,0,240,40 15x15\n"
              "form 2 layered 165\nform 2 top\nform 2 move 962,532 240x40\nform 2 show\n"
              "redraw 2 0,0,240,40 257\nyield\n"
              "pointer 11\nform 3 open\nform 3 content\nform 3 move 0,0 100x76\nform 3 top\nfilm /p/a.jpg\n"
              "pointer 0\nform 2 close\nslide GetWindowsPos\nform 3 move 1000,500 160x140\nform 3 show\n");
    EXPECT_TRUE(Zoomed().Visible());
    EXPECT_TRUE(Zoomed().ZoomMode);
    EXPECT_EQ(Zoomed().ZoomX, 15000);
    EXPECT_EQ(Zoomed().ZoomY, 7500);
    EXPECT_EQ(NameOf(Zoomed().Img().Picture()), "/p/a.jpg");
    EXPECT_EQ(Zoomed().BackColor(), 0xFFFFFFU);
    EXPECT_FALSE(Wait().Loaded());
    window.Release(3, 4);
}

TEST_F(ZoomTest, TheWaitWindowShowsItsOwnMessageWhateverTheOwnerSays) {
    std::string caption;
    desktop.clock.AtYield(1, [&] { caption = Wait().Fond().Caption(); });
    Press();
    EXPECT_EQ(caption, "Chargement");
    window.Release(3, 4);
}

TEST_F(ZoomTest, ARightPressOnTheCornerIsToldAndOpensNothing) {
    Press(kRightButton);
    window.Release(3, 4, kRightButton);
    EXPECT_EQ(Happened(), "slide ZoomMouseDown 2 0 45,60\n");
    EXPECT_EQ(desktop.forms.OpenForms(), 0);
}

TEST_F(ZoomTest, ASubstituteOpensNothingAndTheNextPressIsHeard) {
    slide.SetAutoCornerResize(false);  // the corner is there for small pictures too
    OwnAnswers();
    slide.PictureByString("/p/none.jpg");
    Happened();
    Press();
    window.Release(3, 4);
    EXPECT_EQ(Happened(), "slide ZoomMouseDown 1 0 45,60\n");
    slide.PictureByString("/p/a.jpg");
    desktop.clock.Advance(1000);
    Press();
    EXPECT_TRUE(Zoomed().Visible());
    window.Release(3, 4);
}

TEST_F(ZoomTest, APictureWithoutAFileOpensAWindowThatReadsNone) {
    slide.SetPicture(Bitmap(300, 150));
    slide.SetImageFullPath("");
    Happened();
    Press();
    EXPECT_TRUE(Zoomed().Visible());
    EXPECT_EQ(Happened().find("film"), std::string::npos);
    window.Release(3, 4);
}

TEST_F(ZoomTest, AFileThatIsNoPictureOpensNothingAndTheNextPressIsHeard) {
    slide.SetImageFullPath("/p/a.mp3");
    Press();
    window.Release(3, 4);
    EXPECT_EQ(Happened(), "slide ZoomMouseDown 1 0 45,60\n");
    desktop.clock.Advance(1000);
    Press();
    EXPECT_EQ(Happened(), "slide ZoomMouseDown 1 0 45,60\n");
    window.Release(3, 4);
}

TEST_F(ZoomTest, ADragUpAndLeftMovesTheWindowsLeftAndTop) {
    Press();
    Happened();
    window.MouseTo(-17, -26);
    EXPECT_EQ(Happened(), "form 3 show\nform 3 move 980,470 180x170\nslide MouseMove 1 0 -255,-390\n");
    window.Release(-17, -26);
}

TEST_F(ZoomTest, ADragDownAndRightMovesOnlyTheWindowsRightAndBottom) {
    Press();
    Happened();
    window.MouseTo(33, 14);
    EXPECT_EQ(Happened(), "form 3 show\nform 3 move 1000,500 190x150\nslide MouseMove 1 0 495,210\n");
    window.Release(33, 14);
}

TEST_F(ZoomTest, AMoveWithoutAZoomIsOnlyTold) {
    window.MouseTo(3, 4);
    EXPECT_EQ(Happened(), "slide MouseMove 0 0 45,60\n");
}

TEST_F(ZoomTest, AMoveWithAnotherButtonDownTooPullsNothing) {
    Press();
    Happened();
    window.Press(3, 4, kRightButton);
    window.MouseTo(33, 14);
    EXPECT_EQ(Happened(), "slide ZoomMouseDown 2 0 45,60\nslide MouseMove 3 0 495,210\n");
    window.Release(33, 14, kRightButton);
    window.Release(33, 14);
}

TEST_F(ZoomTest, TheReleaseClosesTheWindowTowardsWhereItHasGrownFrom) {
    Press();
    window.MouseTo(-17, 14);
    Happened();
    window.Release(-17, 14);
    EXPECT_EQ(Happened(), "form 3 close top-right 2\n");
    EXPECT_FALSE(Zoomed().Loaded());
    window.MouseTo(3, 4);
    EXPECT_EQ(Happened(), "slide MouseMove 0 0 45,60\n");
}

TEST_F(ZoomTest, ASecondPressWhileTheFileIsReadIsNotHeard) {
    desktop.clock.AtYield(1, [&] { slide.CornerResize.Input.MouseDown(1, 0, 45, 60); });
    Press();
    const std::string happened = Happened();
    EXPECT_EQ(happened.find("ZoomMouseDown"), happened.rfind("ZoomMouseDown"));
    window.Release(3, 4);
}

TEST_F(ZoomTest, AReleaseWhileTheFileIsReadLeavesNoWindowBehind) {
    desktop.clock.AtYield(1, [&] { window.Release(3, 4); });
    Press();
    EXPECT_EQ(desktop.forms.OpenForms(), 0);
    EXPECT_EQ(Happened().find("film"), std::string::npos);
}

TEST_F(ZoomTest, AReleaseWhenThePlaceIsAskedForAgainLeavesNoWindowBehind) {
    int32_t asked = 0;
    onGetWindowsPos = [&] {
        if (++asked == 2) window.Release(3, 4);
    };
    Press();
    EXPECT_EQ(asked, 2);
    EXPECT_EQ(desktop.forms.OpenForms(), 0);
}

TEST_F(ZoomTest, AMoveBeforeTheWindowShowsPullsItAndTheOpeningPutsItOverTheSlide) {
    int32_t asked = 0;
    onGetWindowsPos = [&] {
        if (++asked == 2) window.MouseTo(33, 14);
    };
    Press();
    const std::string happened = Happened();
    EXPECT_NE(happened.find("slide GetWindowsPos\nform 3 show\nform 3 move 1000,500 190x150\n"
                            "slide MouseMove 1 0 495,210\nform 3 move 1000,500 160x140\nform 3 show\n"),
              std::string::npos)
        << happened;
    window.Release(33, 14);
}

TEST_F(ZoomTest, AFailureIsReportedAndTheNextPressIsHeard) {
    int32_t asked = 0;
    onGetWindowsPos = [&] {
        if (++asked == 2) throw failures::InvalidCall();
    };
    Press();
    const std::string happened = Happened();
    EXPECT_NE(happened.find("slide Error 5 "), std::string::npos) << happened;
    EXPECT_NE(happened.find("[DpLight CornerResize_MouseDown ]"), std::string::npos) << happened;
    EXPECT_EQ(desktop.forms.OpenForms(), 0);
    EXPECT_EQ(desktop.screen.MousePointer(), 0);
    window.Release(3, 4);
    desktop.clock.Advance(1000);
    Press();
    EXPECT_TRUE(Zoomed().Visible());
    window.Release(3, 4);
}

TEST_F(ZoomTest, AFileThatTheViewerCannotOpenShowsAllTheSame) {
    desktop.pictures.Add("/p/b.jpg", 300, 150);
    slide.PictureByString("/p/b.jpg");
    Press();
    EXPECT_EQ(NameOf(Zoomed().Img2().Picture()), "/p/b.jpg");
    window.Release(3, 4);
}

TEST_F(ZoomTest, TheWindowGoesWithItsSlide) {
    {
        Window place(desktop, {0, 0, 160, 140});
        eDiapoLight other(desktop.Roles(), Ambient{});
        place.Host(other);
        other.Refresh();
        other.PictureByString("/p/a.jpg");
        place.Press(3, 4);
        EXPECT_TRUE(Zoomed().Visible());
    }
    EXPECT_EQ(desktop.forms.OpenForms(), 0);
}

// --- Sounds ---

TEST_F(ZoomTest, AClickOnASoundButtonStopsWhatPlays) {
    desktop.sounds.Add("/s/a.mp3", 2);
    const std::string alias = desktop.sounds.Play("/s/a.mp3", desktop.sounds.CanalMusic(), 100);
    slide.BtPlay.Input.Click();
    slide.BtComment.Input.Click();
    EXPECT_EQ(Slide(), "slide Click 0\nslide ClickStop false\nslide Click 0\nslide ClickStop true\n");
    desktop.clock.Advance(2000);
    slide.BtPlay.Input.Click();
    EXPECT_EQ(Slide(), "slide Click 0\nslide ClickPlay false\n");
}

TEST_F(ZoomTest, WhetherASoundRunsIsAskedBeforeTheClickIsTold) {
    desktop.sounds.Add("/s/a.mp3", 2);
    const std::string alias = desktop.sounds.Play("/s/a.mp3", desktop.sounds.CanalMusic(), 100);
    slide.Events.Click.connect([&](int16_t) { desktop.sounds.Stop(alias); });
    slide.BtPlay.Input.Click();
    EXPECT_EQ(Slide(), "slide Click 0\nslide ClickStop false\n");
}

}  // namespace
}  // namespace vorlane::headless
