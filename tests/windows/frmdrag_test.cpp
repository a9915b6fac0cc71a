#include "windows/frmdrag.h"

#include "platform/headless/desktop.h"

#include <gtest/gtest.h>
#include <string>

namespace vorlane {
namespace {

constexpr int32_t kWithoutLayers = 7;

class Ghost : public testing::Test {
protected:
    const headless::FakeForms::State& State(FrmDrag& form) { return *desktop.forms.Find(form.Hwnd()); }

    headless::Desktop desktop;
    FrmDrag ghost{desktop.Roles()};
    FrmDrag old{desktop.Roles(), kWithoutLayers};
};

// --- With layered windows ---

TEST_F(Ghost, IsDimmedWithAHoleOfTheColourKey) {
    ghost.ColorKey = 0xFF00FF;
    ghost.Load();
    EXPECT_EQ(desktop.trace.Take({"form"}),
              "form 1 open\n"
              "form 1 content\n"
              "form 1 move 0,0 100x75\n"
              "form 1 layered 100 key #FF00FF\n");
    EXPECT_EQ(ghost.BackColor(), 0xFF00FFU);
}

TEST_F(Ghost, InAlphaModeIsSeenThroughWithoutAHole) {
    ghost.ColorKey = 0xFF00FF;
    ghost.AlphaMode = true;
    ghost.Load();
    EXPECT_EQ(State(ghost).Alpha, 50);
    EXPECT_FALSE(State(ghost).ColorKey.has_value());
    EXPECT_EQ(ghost.BackColor(), 0xFF00FFU);
}

TEST_F(Ghost, IsPaintedByItsUserAndHasTheColourKeyUnderTheHotSpot) {
    ghost.ColorKey = 0x112233;
    ghost.HotX = 12;
    ghost.HotY = 7;
    ghost.Load();
    ghost.Surface().BitBlt(0, 0, 100, 75, headless::FakePictures::Make("slide", 100, 75), 0, 0);
    ghost.Surface().SetPixel(ghost.HotX, ghost.HotY, ghost.ColorKey);
    EXPECT_NE(ghost.Surface().dump().find("SetPixel 12,7 #112233"), std::string::npos);
    EXPECT_FALSE(State(ghost).Region.has_value());
}

TEST_F(Ghost, FollowsThePointerByPixels) {
    ghost.Move(1500, 1500, 1500, 1125);
    ghost.Show();
    ghost.Move(ghost.Left() + 3 * 15, ghost.Top() - 2 * 15);
    EXPECT_EQ(desktop.windows.GetWindowRect(ghost.Hwnd()), (WinRect{103, 98, 203, 173}));
    EXPECT_TRUE(ghost.Visible());
}

// --- Without ---

TEST_F(Ghost, OnAnOldSystemTheWindowUnderTheHotSpotStaysTheDropTarget) {
    old.HotX = 12;
    old.HotY = 7;
    old.Load();
    const Region& region = *State(old).Region;
    EXPECT_EQ(region.dump(), "rect 0,0,100,75 xor ellipse 12,7,14,9");
    EXPECT_FALSE(region.Contains(12, 7));
    EXPECT_TRUE(region.Contains(11, 7));
    EXPECT_TRUE(region.Contains(13, 7));
    EXPECT_EQ(State(old).Alpha, 255);
}

TEST_F(Ghost, OnAnOldSystemTheWindowKeepsUpWithItsSize) {
    old.HotX = 150;
    old.HotY = 7;
    old.Move(0, 0, 200 * 15, 90 * 15);
    EXPECT_EQ(State(old).Region->dump(), "rect 0,0,200,90 xor ellipse 150,7,152,9");
    EXPECT_FALSE(State(old).Region->Contains(150, 7));
}

TEST_F(Ghost, AHotSpotOnTheGhostsEdgeStillMakesAHole) {
    for (const Point hot : {Point{0, 0}, Point{99, 0}, Point{0, 74}, Point{99, 74}, Point{50, 74}}) {
        old.HotX = hot.X;
        old.HotY = hot.Y;
        old.Load();
        EXPECT_FALSE(State(old).Region->Contains(hot.X, hot.Y)) << hot.X << "," << hot.Y;
        old.Unload();
    }
}

// --- Life ---

TEST_F(Ghost, ForgetsItsDragWhenItIsUnloaded) {
    ghost.AlphaMode = true;
    ghost.ColorKey = 5;
    ghost.HotX = 6;
    ghost.HotY = 7;
    ghost.StartRightPart = true;
    ghost.Show();
    ghost.Unload();
    EXPECT_FALSE(ghost.Loaded());
    EXPECT_FALSE(ghost.AlphaMode);
    EXPECT_EQ(ghost.ColorKey, 0U);
    EXPECT_EQ(ghost.HotX, 0);
    EXPECT_EQ(ghost.HotY, 0);
    EXPECT_FALSE(ghost.StartRightPart);
    EXPECT_EQ(desktop.forms.OpenForms(), 0);
}

TEST_F(Ghost, ForgetsWhatWasPaintedWhenItIsUnloaded) {
    ghost.Load();
    ghost.Surface().SetPixel(1, 1, 0);
    ghost.Unload();
    ghost.Load();
    EXPECT_TRUE(ghost.Surface().Commands().empty());
}

}  // namespace
}  // namespace vorlane
