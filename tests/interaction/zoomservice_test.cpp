// What the sheet does for its slides on the screen. The sheet stands at 100, 200 of it, 345 x 180.
#include "tests/sheet/sheetfixture.h"
#include "windows/frmwait.h"

namespace vorlane {
namespace {

class ZoomServiceTest : public SheetTest {
protected:
    ZoomServiceTest() { Show(2); }

    FrmWait& Wait() { return SharedFrmWait(desktop.Roles()); }
    WinRect WaitPlaceOnScreen() { return desktop.windows.GetWindowRect(Wait().Hwnd()); }
    std::string Tips() { return desktop.trace.Take({"tooltip"}); }
    // The host answers the info button.
    void Tell(const std::string& title, const std::string& text, int32_t icon = 1) {
        sheet->Events.ToolTipInfos.connect(
            [=, this](int16_t index, const std::string& file, std::string& t, std::string& x, int32_t& i) {
                desktop.trace.Add("host ToolTipInfos " + std::to_string(index) + " " + file + " [" + t + x + "] " +
                                  std::to_string(i));
                t = title;
                x = text;
                i = icon;
            });
    }
    void PressInfo(int16_t slot) {
        const auto slide = sheet->Diapo.Item(slot);
        window.Press(slide->Left() + slide->ImgInfo.Left() + 4, slide->Top() + slide->ImgInfo.Top() + 4);
    }
    void ReleaseInfo(int16_t slot) {
        const auto slide = sheet->Diapo.Item(slot);
        window.Release(slide->Left() + slide->ImgInfo.Left() + 4, slide->Top() + slide->ImgInfo.Top() + 4);
    }
};

// --- Places ---

TEST_F(ZoomServiceTest, ASlideIsToldItsPlaceOnTheScreenAndTheTextToWaitWith) {
    sheet->SetCaptionWait("Patience");
    const auto slide = sheet->Diapo.Item(1);
    WinRect place;
    std::string text;
    slide->Events.GetWindowsPos(place, text);
    EXPECT_EQ(place.Left, 100 + static_cast<int32_t>(slide->Left()));
    EXPECT_EQ(place.Top, 200 + static_cast<int32_t>(slide->Top()));
    EXPECT_EQ(place.Right - place.Left, 100);
    EXPECT_EQ(place.Bottom - place.Top, 75);
    EXPECT_EQ(text, "Patience");
}

TEST_F(ZoomServiceTest, ThePlaceFollowsTheSlideAlsoBetweenTwoPixels) {
    const auto slide = sheet->Diapo.Item(0);
    slide->Move(1.5, 2.25, 100.5, 75);
    WinRect place;
    std::string text;
    slide->Events.GetWindowsPos(place, text);
    EXPECT_EQ(place, (WinRect{102, 202, 202, 277}));
}

// --- The wait window ---

TEST_F(ZoomServiceTest, TheWaitWindowStandsInTheSheetsRectangle) {
    sheet->WaitShow("Patience", WaitPlace::TopLeft, true);
    EXPECT_TRUE(sheet->IsWaitOpen());
    EXPECT_EQ(Wait().Fond().Caption(), "Patience");
    EXPECT_EQ(WaitPlaceOnScreen().Left, 100);
    EXPECT_EQ(WaitPlaceOnScreen().Top, 200);
    sheet->WaitClose(true);
    EXPECT_FALSE(sheet->IsWaitOpen());
    EXPECT_FALSE(Wait().Loaded());
}

TEST_F(ZoomServiceTest, TheRectangleLeavesOutABarThatIsInSight) {
    sheet->VScroll.SetVisible(true);
    sheet->WaitShow("Patience", WaitPlace::BottomRight, true);
    EXPECT_EQ(WaitPlaceOnScreen().Right, 445 - static_cast<int32_t>(sheet->VScroll.Width()));
    EXPECT_EQ(WaitPlaceOnScreen().Bottom, 380);
    sheet->WaitClose(true);

    sheet->SetScrollDirection(ScrollDirectionType::sdHorizontal);
    sheet->VScroll.SetVisible(true);
    sheet->WaitShow("Patience", WaitPlace::BottomRight, true);
    EXPECT_EQ(WaitPlaceOnScreen().Right, 445);
    EXPECT_EQ(WaitPlaceOnScreen().Bottom, 380 - static_cast<int32_t>(sheet->VScroll.Height()));
    sheet->WaitClose(true);

    sheet->VScroll.SetVisible(false);
    sheet->WaitShow("Patience", WaitPlace::BottomRight, true);
    EXPECT_EQ(WaitPlaceOnScreen().Bottom, 380);
    sheet->WaitClose(true);
}

TEST_F(ZoomServiceTest, TheTextOfAnOpenWaitWindowIsPaintedAtOnce) {
    sheet->WaitShow("Patience", WaitPlace::Middle, true);
    desktop.trace.Clear();
    sheet->SetWaitCaption("Encore");
    EXPECT_EQ(Wait().Fond().Caption(), "Encore");
    EXPECT_NE(desktop.trace.Text({"redraw"}), "");
    sheet->WaitClose(true);
}

TEST_F(ZoomServiceTest, AZoomLeavesWhetherTheSheetsWaitWindowIsOpen) {
    desktop.films.Add(File(0), 60, 40);
    sheet->WaitShow("Patience", WaitPlace::Middle, true);
    const auto slide = sheet->Diapo.Item(0);
    slide->CornerResize.Input.MouseDown(1, 0, 0, 0);
    slide->CornerResize.Input.MouseUp(1, 0, 0, 0);
    EXPECT_TRUE(sheet->IsWaitOpen());
    sheet->WaitClose(true);
}

// --- The balloon ---

TEST_F(ZoomServiceTest, TheInfoButtonShowsWhatTheHostTellsForAsLongAsItIsHeld) {
    Tell("Photo", "60 x 40|JPEG");
    PressInfo(1);
    EXPECT_EQ(desktop.trace.Text({"host"}), "host ToolTipInfos 1 /p/001.jpg [] 0\n");
    const std::string shown = Tips();
    const auto tip = shown.find("1028");
    EXPECT_NE(tip, std::string::npos) << shown;
    EXPECT_NE(shown.find(" 1025 "), std::string::npos) << shown;
    ReleaseInfo(1);
    EXPECT_NE(Tips(), "");
    EXPECT_EQ(desktop.windows.OpenWindows(), 1);
}

// Black on the system's ground for infos, at once, for half a minute at most.
TEST_F(ZoomServiceTest, TheBalloonIsMadeWithItsValues) {
    Tell("Photo", "60 x 40|JPEG", 3);
    PressInfo(1);
    const std::string ground = std::to_string(desktop.screen.SysColor(24));
    EXPECT_EQ(
        Tips(),
        "tooltip init\n"
        "tooltip 2 create style=67 over 1\n"
        "tooltip 2 top\n"
        "tooltip 2 1028 0 {size=44 flags=16 window=1 id=0 rect=0,0,345,180 text=[60 x 40\\nJPEG\u00A0\u00A0\u00A0]}\n"
        "tooltip 2 1056 3 [Photo]\n"
        "tooltip 2 1044 0 0\n"
        "tooltip 2 1043 " +
            ground +
            " 0\n"
            "tooltip 2 1027 3 0\n"
            "tooltip 2 1027 2 30000\n"
            "tooltip 2 1025 -1 0\n");
    ReleaseInfo(1);
    EXPECT_THAT(Tips(), testing::StartsWith("tooltip 2 1025 0 0\n"));
}

TEST_F(ZoomServiceTest, AHostThatGivesNoTextGetsNoBalloon) {
    Tell("", "", 2);
    PressInfo(0);
    ReleaseInfo(0);
    EXPECT_EQ(Tips(), "");
}

TEST_F(ZoomServiceTest, ATitleAloneIsEnoughForABalloon) {
    Tell("Photo", "");
    PressInfo(0);
    EXPECT_NE(Tips(), "");
    ReleaseInfo(0);
}

TEST_F(ZoomServiceTest, ABalloonGoesWithTheButtonAlsoWhenItsSlideHasLeft) {
    Tell("Photo", "60 x 40");
    PressInfo(1);
    sheet->Clear();
    window.Release(1, 1);
    EXPECT_EQ(desktop.windows.OpenWindows(), 1);
}

TEST_F(ZoomServiceTest, NothingTellsOfTheZoomToTheHost) {
    int32_t told = 0;
    sheet->Events.BeforeZoom.connect([&](int16_t, Picture&) { ++told; });
    sheet->Events.BeforeZoomEndLoad.connect([&] { ++told; });
    sheet->Events.AfterZoom.connect([&] { ++told; });
    sheet->Diapo.Item(0)->CornerResize.Input.MouseDown(1, 0, 0, 0);
    EXPECT_GT(desktop.forms.OpenForms(), 0);
    sheet->Diapo.Item(0)->CornerResize.Input.MouseUp(1, 0, 0, 0);
    EXPECT_EQ(told, 0);
}

}  // namespace
}  // namespace vorlane
