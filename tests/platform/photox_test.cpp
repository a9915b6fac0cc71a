#include "platform/photox.h"

#include "platform/headless/desktop.h"

#include <gtest/gtest.h>
#include <string>

namespace vorlane {
namespace {

using headless::FakePictures;
using headless::NameOf;

// --- The picture view ---

class PictureView : public testing::Test {
protected:
    headless::Desktop desktop;
    TessalyLight view{desktop.Roles(), Ambient{}, nullptr};
};

TEST_F(PictureView, ShowsAPictureWholeInItsOwnProportions) {
    view.Move(0, 0, 100, 76);
    view.SetPicture(FakePictures::Make("wide", 400, 200));
    EXPECT_EQ(view.PictureBox(), (Box{0, 13, 100, 50}));
    view.SetPicture(FakePictures::Make("high", 100, 304));
    EXPECT_EQ(view.PictureBox(), (Box{37, 0, 25, 76}));
}

TEST_F(PictureView, EnlargesASmallPicture) {
    view.Move(0, 0, 300, 300);
    view.SetPicture(FakePictures::Make("small", 10, 10));
    EXPECT_EQ(view.PictureBox(), (Box{0, 0, 300, 300}));
}

TEST_F(PictureView, FollowsItsSize) {
    view.SetPicture(FakePictures::Make("square", 10, 10));
    view.Move(0, 0, 50, 60);
    EXPECT_EQ(view.PictureBox(), (Box{0, 5, 50, 50}));
    view.Move(0, 0, 0, 0);
    EXPECT_EQ(view.PictureBox(), Box{});
    view.Move(0, 0, -2, 10);
    EXPECT_EQ(view.PictureBox(), Box{});
}

TEST_F(PictureView, KeepsALineOfAVeryFlatPicture) {
    view.Move(0, 0, 100, 76);
    view.SetPicture(FakePictures::Make("line", 5000, 1));
    EXPECT_EQ(view.PictureBox(), (Box{0, 37, 100, 1}));
}

TEST_F(PictureView, ShowsNothingOfTheEmptyPicture) {
    view.Move(0, 0, 100, 76);
    view.SetPicture(FakePictures::Make("square", 10, 10));
    view.SetPicture({});
    EXPECT_EQ(view.PictureBox(), Box{});
    EXPECT_EQ(view.Picture(), Picture{});
}

// --- The viewer ---

class Viewer : public testing::Test {
protected:
    Viewer() {
        desktop.films.Add("still.jpg", 40, 30);
        desktop.films.AddMoving("moving.gif", 40, 30, 3, 100);
        viewer.Move(0, 0, 40, 30);
    }

    std::string Shown() const { return NameOf(viewer.Picture()); }

    headless::Desktop desktop;
    PhotoX viewer{desktop.Roles(), Ambient{}, nullptr};
};

TEST_F(Viewer, OpensWhatTheDesktopCanOpen) {
    EXPECT_TRUE(viewer.CanOpen("still.jpg"));
    EXPECT_FALSE(viewer.CanOpen("letter.odt"));
    EXPECT_FALSE(viewer.CanOpen(""));
}

TEST_F(Viewer, ShowsAStillFileWithoutATimer) {
    viewer.Display("still.jpg");
    EXPECT_EQ(Shown(), "still.jpg");
    EXPECT_EQ(desktop.clock.RunningTimers(), 0);
}

TEST_F(Viewer, PlaysAFileThatMovesOverAndOver) {
    viewer.Display("moving.gif");
    EXPECT_EQ(Shown(), "moving.gif#0");
    desktop.clock.Advance(99);
    EXPECT_EQ(Shown(), "moving.gif#0");
    desktop.clock.Advance(1);
    EXPECT_EQ(Shown(), "moving.gif#1");
    desktop.clock.Advance(100);
    EXPECT_EQ(Shown(), "moving.gif#2");
    desktop.clock.Advance(100);
    EXPECT_EQ(Shown(), "moving.gif#0");
}

TEST_F(Viewer, StopsAndGoesOnWhereItWas) {
    viewer.SetPlaying(false);
    viewer.Display("moving.gif");
    desktop.clock.Advance(1000);
    EXPECT_EQ(Shown(), "moving.gif#0");
    EXPECT_EQ(desktop.clock.RunningTimers(), 0);
    viewer.SetPlaying(true);
    desktop.clock.Advance(100);
    EXPECT_EQ(Shown(), "moving.gif#1");
}

TEST_F(Viewer, BeingToldToPlayAgainDoesNotHoldUpAFilm) {
    viewer.Display("moving.gif");
    desktop.clock.Advance(60);
    viewer.SetPlaying(true);
    desktop.clock.Advance(40);
    EXPECT_EQ(Shown(), "moving.gif#1");
}

TEST_F(Viewer, DoesNotPlayWhileItIsHidden) {
    viewer.Display("moving.gif");
    viewer.SetVisible(false);
    EXPECT_EQ(desktop.clock.RunningTimers(), 0);
    viewer.SetVisible(true);
    desktop.clock.Advance(100);
    EXPECT_EQ(Shown(), "moving.gif#1");
}

TEST_F(Viewer, AnotherFileEndsTheOneThatPlays) {
    viewer.Display("moving.gif");
    viewer.Display("still.jpg");
    desktop.clock.Advance(1000);
    EXPECT_EQ(Shown(), "still.jpg");
}

TEST_F(Viewer, IsEmptyBehindClearAndBehindAFileThatCantBeRead) {
    viewer.Display("moving.gif");
    viewer.Clear();
    EXPECT_EQ(viewer.Picture(), Picture{});
    EXPECT_EQ(desktop.clock.RunningTimers(), 0);
    viewer.Display("still.jpg");
    viewer.Display("missing.jpg");
    EXPECT_EQ(viewer.Picture(), Picture{});
}

TEST_F(Viewer, ShowsItsBackColourAroundThePicture) {
    viewer.SetBackColor(0x123456);
    EXPECT_EQ(viewer.BackColor(), 0x123456U);
    EXPECT_EQ(viewer.Surface().BackColor(), 0x123456U);
}

TEST(ViewersEnd, StopsTheFilmThatPlays) {
    headless::Desktop desktop;
    desktop.films.AddMoving("moving.gif", 4, 3, 2, 10);
    {
        PhotoX viewer(desktop.Roles(), Ambient{}, nullptr);
        viewer.Display("moving.gif");
        EXPECT_EQ(desktop.clock.RunningTimers(), 1);
    }
    EXPECT_EQ(desktop.clock.RunningTimers(), 0);
}

}  // namespace
}  // namespace vorlane
