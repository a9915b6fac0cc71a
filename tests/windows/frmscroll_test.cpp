#include "windows/frmscroll.h"

#include "platform/headless/desktop.h"

#include <gtest/gtest.h>
#include <string>

namespace vorlane {
namespace {

using headless::FakePictures;
using headless::NameOf;

class FollowWindow : public testing::Test {
protected:
    FollowWindow() {
        desktop.films.Add("a.jpg", 200, 100);
        desktop.films.AddMoving("moving.gif", 40, 30, 2, 100);
        desktop.pictures.Add("b.tga", 64, 64);
    }

    std::string FormLines() { return desktop.trace.Take({"form"}); }

    // Unloads a form of that place code and says how it closes.
    std::string ClosesFromCode(int16_t code) {
        form.PlaceCode = code;
        return Closes();
    }

    // Opens a zoom window at (1500, 1500) twips, brings it to (left, top) and says how it closes.
    std::string ZoomCloses(double left, double top) {
        form.ZoomMode = true;
        form.ZoomX = 1500;
        form.ZoomY = 1500;
        form.Move(left, top, 4500, 4500);
        return Closes();
    }

    std::string Closes() {
        if (!form.ZoomMode) form.Move(0, 0, 4500, 4500);
        form.Show();
        desktop.trace.Clear();
        form.Unload();
        std::string line = FormLines();
        return line.substr(line.find("close"));
    }

    headless::Desktop desktop;
    FrmScroll form{desktop.Roles()};
};

// --- Load ---

TEST_F(FollowWindow, LoadsOnItsFirstUseAndStaysOnTop) {
    EXPECT_FALSE(form.Loaded());
    form.PlaceCode = 3;
    EXPECT_FALSE(form.Visible());
    EXPECT_FALSE(form.Loaded());
    form.Load();
    EXPECT_TRUE(form.Loaded());
    EXPECT_TRUE(desktop.forms.Find(form.Hwnd())->OnTop);
    EXPECT_FALSE(form.Visible());
    EXPECT_EQ(FormLines(),
              "form 1 open\n"
              "form 1 content\n"
              "form 1 move 0,0 100x76\n"
              "form 1 top\n");
}

TEST_F(FollowWindow, HasAThinLightGreyFrame) {
    EXPECT_EQ(form.Sh().BorderWidth(), 1);
    EXPECT_EQ(form.Sh().BorderColor(), 0xC0C0C0U);
}

// --- PictureLet ---

TEST_F(FollowWindow, ShowsAFileOnAColour) {
    form.PictureLet("a.jpg", 0x00FF00);
    EXPECT_TRUE(form.Img().Visible());
    EXPECT_FALSE(form.Img2().Visible());
    EXPECT_EQ(NameOf(form.Img().Picture()), "a.jpg");
    EXPECT_EQ(form.BackColor(), 0x00FF00U);
    EXPECT_EQ(form.Img().BackColor(), 0x00FF00U);
    EXPECT_EQ(desktop.pictures.Loads(), 0);
}

TEST_F(FollowWindow, AFileThatTheViewerCantOpenStillShowsThroughTheSecondView) {
    form.PictureLet("a.jpg", 0);
    form.PictureLet("b.tga", 0x0000FF);
    EXPECT_FALSE(form.Img().Visible());
    EXPECT_TRUE(form.Img2().Visible());
    EXPECT_EQ(NameOf(form.Img2().Picture()), "b.tga");
    EXPECT_EQ(form.Img2().BackColor(), 0x0000FFU);
    EXPECT_EQ(form.BackColor(), 0x0000FFU);
}

TEST_F(FollowWindow, ComesBackToTheViewerForTheNextFile) {
    form.PictureLet("b.tga", 0);
    form.PictureLet("a.jpg", 0);
    EXPECT_TRUE(form.Img().Visible());
    EXPECT_FALSE(form.Img2().Visible());
}

TEST_F(FollowWindow, AFileThatNothingCanReadLeavesTheViewEmpty) {
    form.PictureLet("b.tga", 0);
    form.PictureLet("missing.jpg", 0);
    EXPECT_TRUE(form.Img2().Visible());
    EXPECT_EQ(form.Img2().Picture(), Picture{});
}

TEST_F(FollowWindow, AnEmptyFileNameLeavesTheViewAsItIsOnTheNewColour) {
    form.PictureLet("a.jpg", 0x111111);
    form.PictureLet("", 0x222222);
    EXPECT_TRUE(form.Img().Visible());
    EXPECT_EQ(NameOf(form.Img().Picture()), "a.jpg");
    EXPECT_EQ(form.Img().BackColor(), 0x222222U);

    form.PictureLet("b.tga", 0x111111);
    form.PictureLet("", 0x333333);
    EXPECT_TRUE(form.Img2().Visible());
    EXPECT_EQ(NameOf(form.Img2().Picture()), "b.tga");
    EXPECT_EQ(form.Img2().BackColor(), 0x333333U);
    EXPECT_EQ(form.BackColor(), 0x333333U);
}

TEST_F(FollowWindow, TakesAPictureWhileItIsNotOpened) {
    form.PictureLet("a.jpg", 0);
    EXPECT_TRUE(form.Loaded());
    EXPECT_FALSE(form.Visible());
}

TEST_F(FollowWindow, PlaysAFileThatMovesWhileItShows) {
    form.PictureLet("moving.gif", 0);
    EXPECT_EQ(desktop.clock.RunningTimers(), 0);
    form.Show();
    desktop.clock.Advance(100);
    EXPECT_EQ(NameOf(form.Img().Picture()), "moving.gif#1");
    form.PictureLet("b.tga", 0);
    EXPECT_EQ(desktop.clock.RunningTimers(), 0);
    form.PictureLet("moving.gif", 0);
    desktop.clock.Advance(100);
    EXPECT_EQ(NameOf(form.Img().Picture()), "moving.gif#1");
    form.Hide();
    EXPECT_EQ(desktop.clock.RunningTimers(), 0);
}

// --- Resize ---

TEST_F(FollowWindow, FrameFillsTheFormAndBothViewsLieInsideIt) {
    form.Move(150, 300, 3000, 2280);
    EXPECT_EQ(form.Sh().Bounds(), (Box{0, 0, 200, 152}));
    EXPECT_EQ(form.Img().Bounds(), (Box{1, 1, 198, 150}));
    EXPECT_EQ(form.Img2().Bounds(), (Box{1, 1, 198, 150}));
}

TEST_F(FollowWindow, ViewsKeepClearOfAThickerFrame) {
    form.Sh().SetBorderWidth(3);
    form.Move(0, 0, 1500, 1140);
    form.Move(0, 0, 1515, 1140);
    EXPECT_EQ(form.Img().Bounds(), (Box{3, 3, 95, 70}));
}

TEST_F(FollowWindow, ResizingResolvesASystemColour) {
    form.PictureLet("a.jpg", FromSystem(SystemColor::InfoBackground));
    EXPECT_EQ(form.Img().BackColor(), FromSystem(SystemColor::InfoBackground));
    form.Move(0, 0, 3000, 3000);
    EXPECT_EQ(form.Img().BackColor(), 0xE1FFFFU);
    EXPECT_EQ(form.BackColor(), FromSystem(SystemColor::InfoBackground));
}

TEST_F(FollowWindow, APictureKeepsItsProportionsInEverySize) {
    form.PictureLet("b.tga", 0);
    form.Move(0, 0, 102 * 15, 52 * 15);
    EXPECT_EQ(form.Img2().PictureBox(), (Box{25, 0, 50, 50}));
}

// --- Place ---

TEST_F(FollowWindow, IsPlacedInTwips) {
    form.Move(150, 300, 1500, 1140);
    EXPECT_EQ(desktop.windows.GetWindowRect(form.Hwnd()), (WinRect{10, 20, 110, 96}));
    EXPECT_EQ(form.Left(), 150);
    EXPECT_EQ(form.Top(), 300);
    EXPECT_EQ(form.Width(), 1500);
    EXPECT_EQ(form.Height(), 1140);
    EXPECT_EQ(form.ScaleWidth(), 100);
    EXPECT_EQ(form.ScaleHeight(), 76);
}

TEST_F(FollowWindow, APlaceBetweenTwoPixelsIsRounded) {
    form.Move(157.5, 172.5, 1504, 1137);
    EXPECT_EQ(desktop.windows.GetWindowRect(form.Hwnd()), (WinRect{10, 12, 110, 88}));
    EXPECT_EQ(form.Left(), 150);
}

TEST_F(FollowWindow, ANegativeSizeCountsAsNone) {
    form.Move(-150, -150, -15, -15);
    EXPECT_EQ(desktop.windows.GetWindowRect(form.Hwnd()), (WinRect{-10, -10, -10, -10}));
}

TEST_F(FollowWindow, ShowFormShowsIt) {
    ShowForm(form);
    EXPECT_TRUE(form.Visible());
    EXPECT_TRUE(desktop.forms.Find(form.Hwnd())->Visible);
}

// --- Unload ---

TEST_F(FollowWindow, ClosesIntoTheCornerOfItsPlaceCode) {
    EXPECT_EQ(ClosesFromCode(1), "close top-left 8\n");
    EXPECT_EQ(ClosesFromCode(2), "close top-right 8\n");
    EXPECT_EQ(ClosesFromCode(3), "close bottom-right 8\n");
    EXPECT_EQ(ClosesFromCode(4), "close bottom-left 8\n");
}

TEST_F(FollowWindow, APlaceCodeAboveFourJustGoes) {
    EXPECT_EQ(ClosesFromCode(5), "close\n");
    EXPECT_EQ(ClosesFromCode(32767), "close\n");
}

TEST_F(FollowWindow, WithoutAPlaceCodeItClosesLikeAZoomWindow) {
    EXPECT_EQ(ClosesFromCode(0), "close top-left 8\n");
}

TEST_F(FollowWindow, AZoomWindowClosesTowardsWhereItHasGrownFrom) {
    EXPECT_EQ(ZoomCloses(1500, 1500), "close top-left 8\n");
    EXPECT_EQ(ZoomCloses(1515, 1515), "close top-left 8\n");
    EXPECT_EQ(ZoomCloses(1500, 1485), "close bottom-left 8\n");
    EXPECT_EQ(ZoomCloses(1485, 1500), "close top-right 8\n");
    EXPECT_EQ(ZoomCloses(1485, 1485), "close bottom-right 8\n");
}

TEST_F(FollowWindow, AZoomWindowClosesSoWhateverItsPlaceCode) {
    form.PlaceCode = 5;
    EXPECT_EQ(ZoomCloses(1485, 1485), "close bottom-right 8\n");
    form.PlaceCode = 1;
    EXPECT_EQ(ZoomCloses(1485, 1485), "close bottom-right 8\n");
}

TEST_F(FollowWindow, ASmallWindowClosesInOneStep) {
    form.PlaceCode = 3;
    form.Move(0, 0, 1500, 1140);
    form.Show();
    FormLines();
    form.Unload();
    EXPECT_EQ(FormLines(), "form 1 close bottom-right 1\n");
}

TEST_F(FollowWindow, ALargeWindowClosesInMoreSteps) {
    form.PlaceCode = 3;
    form.Move(0, 0, 1920 * 15, 1080 * 15);
    FormLines();
    form.Unload();
    EXPECT_EQ(FormLines(), "form 1 close bottom-right 190\n");
}

TEST_F(FollowWindow, ForgetsEverythingWhenItIsUnloaded) {
    form.ZoomMode = true;
    form.ZoomX = 100;
    form.ZoomY = 200;
    form.PlaceCode = 3;
    form.PictureLet("moving.gif", 0x123456);
    form.Move(0, 0, 3000, 3000);
    form.Show();
    form.Unload();

    EXPECT_FALSE(form.Loaded());
    EXPECT_FALSE(form.Visible());
    EXPECT_EQ(desktop.forms.OpenForms(), 0);
    EXPECT_EQ(desktop.clock.RunningTimers(), 0);
    EXPECT_FALSE(form.ZoomMode);
    EXPECT_EQ(form.ZoomX, 0);
    EXPECT_EQ(form.ZoomY, 0);
    EXPECT_EQ(form.PlaceCode, 0);
    EXPECT_EQ(form.ScaleWidth(), 100);
    EXPECT_EQ(form.Img().Picture(), Picture{});
    EXPECT_NE(form.BackColor(), 0x123456U);
}

TEST_F(FollowWindow, UnloadingTwiceIsHarmless) {
    form.Show();
    form.Unload();
    FormLines();
    form.Unload();
    EXPECT_EQ(FormLines(), "");
}

TEST_F(FollowWindow, OpensAgainAfterItWasUnloaded) {
    form.Show();
    form.Unload();
    form.PictureLet("a.jpg", 0);
    form.Show();
    EXPECT_TRUE(form.Visible());
    EXPECT_EQ(desktop.forms.OpenForms(), 1);
}

TEST(FollowWindowsEnd, ClosesAnOpenWindow) {
    headless::Desktop desktop;
    {
        FrmScroll form(desktop.Roles());
        form.Show();
    }
    EXPECT_EQ(desktop.forms.OpenForms(), 0);
    EXPECT_EQ(desktop.Leaks(), "");
}

// --- The shared one ---

TEST(SharedFollowWindow, IsOneForAllControlsOfADesktop) {
    headless::Desktop desktop;
    headless::Desktop other;
    EXPECT_EQ(&SharedFrmScroll(desktop.Roles()), &SharedFrmScroll(desktop.Roles()));
    EXPECT_NE(&SharedFrmScroll(desktop.Roles()), &SharedFrmScroll(other.Roles()));
    EXPECT_EQ(desktop.forms.OpenForms(), 0);
}

TEST(SharedFollowWindow, GoesWithItsDesktopWhenItWasLeftHidden) {
    std::string leaks = "none";
    {
        headless::Desktop desktop;
        desktop.OnLeak = [&](const std::string& told) { leaks = told; };
        SharedFrmScroll(desktop.Roles()).Load();
    }
    EXPECT_EQ(leaks, "none");
}

TEST(SharedFollowWindow, LeftOnTheScreenIsALeak) {
    std::string leaks;
    {
        headless::Desktop desktop;
        desktop.OnLeak = [&](const std::string& told) { leaks = told; };
        SharedFrmScroll(desktop.Roles()).Show();
    }
    EXPECT_EQ(leaks, "shown forms: 1\n");
}

TEST(SharedFollowWindow, AFormThatNobodyClosesIsALeak) {
    std::string leaks;
    {
        headless::Desktop desktop;
        desktop.OnLeak = [&](const std::string& told) { leaks = told; };
        desktop.forms.OpenForm();
    }
    EXPECT_EQ(leaks, "open forms: 1\n");
}

}  // namespace
}  // namespace vorlane
