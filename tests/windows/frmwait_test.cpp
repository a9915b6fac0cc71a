#include "windows/frmwait.h"

#include "platform/failure.h"
#include "platform/headless/desktop.h"

#include <algorithm>
#include <cstdint>
#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <vector>

namespace vorlane {
namespace {

// In the headless font a character is 6 wide, so a wait window is 6 a character and 30 wide; it is 40 high.
constexpr WinRect kTarget{100, 200, 500, 600};

class WaitWindow : public testing::Test {
protected:
    // What happened to the window since the last call, without its number.
    std::vector<std::string> Steps() {
        std::vector<std::string> steps;
        std::istringstream text(desktop.trace.Take({"form", "yield", "sleep"}));
        for (std::string line; std::getline(text, line);) steps.push_back(WithoutNumber(line));
        return steps;
    }

    static std::string WithoutNumber(const std::string& line) {
        if (!line.starts_with("form ")) return line;
        return line.substr(line.find(' ', 5) + 1);
    }

    static std::string Joined(const std::vector<std::string>& steps, size_t from, size_t count) {
        std::string text;
        for (size_t i = from; i < from + count && i < steps.size(); ++i) text += steps[i] + "\n";
        return text;
    }
    static std::string Joined(const std::vector<std::string>& steps) { return Joined(steps, 0, steps.size()); }

    WinRect Place() { return desktop.windows.GetWindowRect(form.Hwnd()); }
    const headless::FakeForms::State& State() { return *desktop.forms.Find(form.Hwnd()); }
    void Open(WaitPlace place, bool withoutEffect = true) { form.ShowAnimatedFrom("", place, kTarget, withoutEffect); }

    headless::Desktop desktop;
    FrmWait form{desktop.Roles()};
};

// --- Load ---

TEST_F(WaitWindow, LoadsRoundedSeenThroughAndOnTop) {
    form.Load();
    EXPECT_EQ(Joined(Steps()),
              "open\n"
              "content\n"
              "move 0,0 240x40\n"
              "region round 0,0,240,40 15x15\n"
              "layered 165\n"
              "top\n");
    EXPECT_EQ(form.Fond().ForeColor(), FromSystem(SystemColor::ButtonText));
    EXPECT_EQ(form.Fond().CornerSize(), 15);
    EXPECT_EQ(form.Fond().Bounds(), (Box{0, 0, 240, 40}));
    EXPECT_FALSE(State().ColorKey.has_value());
}

TEST_F(WaitWindow, CanBeShownByHand) {
    form.Fond().SetCaption("Patientez");
    form.Move(1500, 1500);
    form.Show();
    form.Refresh();
    EXPECT_TRUE(form.Visible());
    EXPECT_EQ(Place(), (WinRect{100, 100, 340, 140}));
    EXPECT_EQ(desktop.trace.Take({"redraw"}), "redraw 1 0,0,240,40 257\n");
    form.Unload();
    EXPECT_FALSE(form.Visible());
}

// --- Opening ---

TEST_F(WaitWindow, IsAsWideAsItsCaptionAsksWithAMargin) {
    form.ShowAnimatedFrom("Chargement", WaitPlace::TopLeft, kTarget, true);
    EXPECT_EQ(form.ScaleWidth(), 90);
    EXPECT_EQ(form.ScaleHeight(), 40);
    EXPECT_EQ(form.Fond().Caption(), "Chargement");
    EXPECT_EQ(form.Fond().Bounds(), (Box{0, 0, 90, 40}));
}

TEST_F(WaitWindow, ACaptionLongerThanTheRectangleIsNotClipped) {
    form.ShowAnimatedFrom(std::string(100, 'x'), WaitPlace::Middle, {0, 0, 100, 100}, true);
    EXPECT_EQ(Place(), (WinRect{-265, 30, 365, 70}));
}

TEST_F(WaitWindow, MeasuresItsCaptionInThePanelsFont) {
    Font large;
    large.Size = 16.5F;
    form.Fond().SetFont(large);
    form.ShowAnimatedFrom("12345", WaitPlace::TopLeft, kTarget, true);
    EXPECT_EQ(form.ScaleWidth(), 90);
}

TEST_F(WaitWindow, WithoutEffectAppearsAtOnceAtItsPlace) {
    form.Load();
    Steps();
    Open(WaitPlace::BottomRight);
    EXPECT_EQ(Joined(Steps()),
              "move 0,0 30x40\n"
              "move 470,560 30x40\n"
              "show\n"
              "region round 0,0,30,40 15x15\n"
              "yield\n"
              "region round 0,0,30,40 15x15\n");
}

struct Standing {
    WaitPlace place;
    WinRect where;
};

// A place and where a window of 30 x 40 stands over the target.
const Standing kStandings[] = {{WaitPlace::TopLeft, {100, 200, 130, 240}},    {WaitPlace::Top, {285, 200, 315, 240}},
                               {WaitPlace::TopRight, {470, 200, 500, 240}},   {WaitPlace::Left, {100, 380, 130, 420}},
                               {WaitPlace::Middle, {285, 380, 315, 420}},     {WaitPlace::Right, {470, 380, 500, 420}},
                               {WaitPlace::BottomLeft, {100, 560, 130, 600}}, {WaitPlace::Bottom, {285, 560, 315, 600}},
                               {WaitPlace::BottomRight, {470, 560, 500, 600}}};

TEST_F(WaitWindow, StandsLikeTheKeysOfAKeypadOverItsRectangle) {
    for (const Standing& standing : kStandings) {
        Open(standing.place);
        EXPECT_EQ(Place(), standing.where) << static_cast<int>(standing.place);
        EXPECT_TRUE(form.Visible());
        form.CloseWindow(true);
    }
}

TEST_F(WaitWindow, StandsAtTheSamePlaceBehindItsEffect) {
    for (const Standing& standing : kStandings) {
        Open(standing.place, false);
        EXPECT_EQ(Place(), standing.where) << static_cast<int>(standing.place);
        EXPECT_TRUE(form.Visible());
        EXPECT_EQ(State().Region, Region::CreateRoundRectRgn(0, 0, 30, 40, 15, 15));
        form.CloseWindow(true);
    }
}

TEST_F(WaitWindow, AMiddleBetweenTwoPixelsIsRounded) {
    form.ShowAnimatedFrom("", WaitPlace::Middle, {0, 0, 101, 103}, true);
    EXPECT_EQ(Place(), (WinRect{36, 32, 66, 72}));
}

TEST_F(WaitWindow, TheMiddleHasNoEffectWhateverIsAskedFor) {
    form.Load();
    Steps();
    Open(WaitPlace::Middle, false);
    EXPECT_EQ(Joined(Steps()),
              "move 0,0 30x40\n"
              "move 285,380 30x40\n"
              "show\n"
              "region round 0,0,30,40 15x15\n"
              "yield\n"
              "region round 0,0,30,40 15x15\n");
    form.CloseWindow(false);
    EXPECT_EQ(Joined(Steps()), "hide\nregion rect 0,0,30,40\nclose\n");
}

TEST_F(WaitWindow, ANumberThatIsNoPlaceLeavesItWhereItStands) {
    form.Move(150, 150);
    Open(static_cast<WaitPlace>(10));
    EXPECT_EQ(Place(), (WinRect{10, 10, 40, 50}));
    EXPECT_TRUE(form.Visible());
}

TEST_F(WaitWindow, ANumberThatIsNoPlaceHasNoPassesEitherWay) {
    form.Load();
    Steps();
    Open(static_cast<WaitPlace>(10), false);
    EXPECT_EQ(Joined(Steps()), "move 0,0 30x40\nregion round 0,0,0,0 15x15\nshow\nregion round 0,0,30,40 15x15\n");
    form.CloseWindow(false);
    EXPECT_EQ(Joined(Steps()), "hide\nregion rect 0,0,30,40\nclose\n");
}

// --- Effects ---

struct Sliding {
    WaitPlace place;
    std::string start;            // where an opening starts
    int passes;                   // of an opening and of a closing
    std::string first, last;      // pass of the opening
    std::string closing, closed;  // first and last pass of the closing
};

// Every place with an effect, for a window of 30 x 40.
const std::vector<Sliding>& Slidings() {
    static const std::vector<Sliding> all = [] {
        std::vector<Sliding> slidings;
        const auto left = [&](WaitPlace place, const std::string& y) {
            slidings.push_back({place, "move 70," + y + " 30x40\n", 30,
                                "move 71," + y + " 30x40\nregion round 29,0,30,40 15x15\nyield\n",
                                "move 100," + y + " 30x40\nregion round 0,0,30,40 15x15\nyield\n",
                                "move 99," + y + " 30x40\nregion round 1,0,30,40 15x15\nyield\n",
                                "move 70," + y + " 30x40\nregion round 30,0,30,40 15x15\nyield\n"});
        };
        const auto right = [&](WaitPlace place, const std::string& y) {
            slidings.push_back({place, "move 500," + y + " 30x40\n", 30,
                                "move 499," + y + " 30x40\nregion round 0,0,1,40 15x15\nyield\n",
                                "move 470," + y + " 30x40\nregion round 0,0,30,40 15x15\nyield\n",
                                "move 471," + y + " 30x40\nregion round 0,0,29,40 15x15\nyield\n",
                                "move 500," + y + " 30x40\nregion round 0,0,0,40 15x15\nyield\n"});
        };
        left(WaitPlace::TopLeft, "200");
        left(WaitPlace::Left, "380");
        left(WaitPlace::BottomLeft, "560");
        right(WaitPlace::TopRight, "200");
        right(WaitPlace::Right, "380");
        right(WaitPlace::BottomRight, "560");
        slidings.push_back({WaitPlace::Top, "move 285,160 30x40\n", 40,
                            "region round 0,39,30,40 15x15\nmove 285,161 30x40\nsleep 1\nyield\n",
                            "region round 0,0,30,40 15x15\nmove 285,200 30x40\nsleep 1\nyield\n",
                            "region round 0,1,30,40 15x15\nmove 285,199 30x40\nsleep 1\nyield\n",
                            "region round 0,40,30,40 15x15\nmove 285,160 30x40\nsleep 1\nyield\n"});
        slidings.push_back({WaitPlace::Bottom, "move 285,600 30x40\n", 40,
                            "move 285,599 30x40\nregion round 0,0,30,1 15x15\nsleep 1\nyield\n",
                            "move 285,560 30x40\nregion round 0,0,30,40 15x15\nsleep 1\nyield\n",
                            "move 285,561 30x40\nregion round 0,0,30,39 15x15\nsleep 1\nyield\n",
                            "move 285,600 30x40\nregion round 0,0,30,0 15x15\nsleep 1\nyield\n"});
        return slidings;
    }();
    return all;
}

size_t LinesOf(const std::string& text) {
    return static_cast<size_t>(std::count(text.begin(), text.end(), '\n'));
}

TEST_F(WaitWindow, SlidesInPixelByPixelWhileItsRegionUncoversIt) {
    for (const Sliding& sliding : Slidings()) {
        SCOPED_TRACE(static_cast<int>(sliding.place));
        form.Load();
        Steps();
        Open(sliding.place, false);
        const auto steps = Steps();
        const size_t pass = LinesOf(sliding.first);
        const size_t passes = static_cast<size_t>(sliding.passes);
        ASSERT_EQ(steps.size(), 4 + pass * passes + 1);
        EXPECT_EQ(Joined(steps, 0, 4), "move 0,0 30x40\nregion round 0,0,0,0 15x15\nshow\n" + sliding.start);
        EXPECT_EQ(Joined(steps, 4, pass), sliding.first);
        EXPECT_EQ(Joined(steps, 4 + pass * (passes - 1), pass), sliding.last);
        EXPECT_EQ(steps.back(), "region round 0,0,30,40 15x15");
        form.Unload();
    }
}

TEST_F(WaitWindow, SlidesOutAsItCameInBackwards) {
    for (const Sliding& sliding : Slidings()) {
        SCOPED_TRACE(static_cast<int>(sliding.place));
        Open(sliding.place);
        Steps();
        form.CloseWindow(false);
        const auto steps = Steps();
        const size_t pass = LinesOf(sliding.closing);
        const size_t passes = static_cast<size_t>(sliding.passes);
        ASSERT_EQ(steps.size(), pass * passes + 3);
        EXPECT_EQ(Joined(steps, 0, pass), sliding.closing);
        EXPECT_EQ(Joined(steps, pass * (passes - 1), pass), sliding.closed);
        EXPECT_EQ(Joined(steps, pass * passes, 3), "hide\nregion rect 0,0,30,40\nclose\n");
        EXPECT_FALSE(form.Loaded());
    }
}

TEST_F(WaitWindow, EachPassIsOnePixel) {
    Open(WaitPlace::Right, false);
    int32_t expected = 499;
    for (const std::string& step : Steps()) {
        if (step.starts_with("move 4") && step.ends_with(",380 30x40")) {
            EXPECT_EQ(step, "move " + std::to_string(expected--) + ",380 30x40");
        }
    }
    EXPECT_EQ(expected, 469);
}

// --- MoveForm ---

TEST_F(WaitWindow, MovesWithItsRectangleAtOnce) {
    form.ShowAnimatedFrom("Chargement", WaitPlace::BottomRight, kTarget, true);
    Steps();
    form.MoveForm({0, 0, 1000, 800});
    EXPECT_EQ(Place(), (WinRect{910, 760, 1000, 800}));
    EXPECT_EQ(form.Fond().Caption(), "Chargement");
    EXPECT_EQ(Joined(Steps()), "move 410,560 90x40\nmove 910,760 90x40\n");
}

TEST_F(WaitWindow, MovesToTheWidthOfACaptionThatWasChanged) {
    Open(WaitPlace::TopRight);
    form.Fond().SetCaption("12345");
    form.MoveForm(kTarget);
    EXPECT_EQ(Place(), (WinRect{440, 200, 500, 240}));
    EXPECT_EQ(State().Region, Region::CreateRoundRectRgn(0, 0, 60, 40, 15, 15)) << "none of it is cut";
}

TEST_F(WaitWindow, AClosedWindowDoesNotMove) {
    form.MoveForm(kTarget);
    EXPECT_FALSE(form.Loaded());
    Open(WaitPlace::TopLeft);
    form.CloseWindow(true);
    form.MoveForm(kTarget);
    EXPECT_FALSE(form.Loaded());
}

// --- CloseWindow ---

TEST_F(WaitWindow, ClosesAtOnceWithoutEffect) {
    Open(WaitPlace::TopLeft);
    Steps();
    form.CloseWindow(true);
    EXPECT_EQ(Joined(Steps()), "hide\nregion rect 0,0,30,40\nclose\n");
    EXPECT_EQ(desktop.forms.OpenForms(), 0);
}

TEST_F(WaitWindow, ClosingWithoutAnOpenWindowDoesNothing) {
    form.CloseWindow(false);
    EXPECT_FALSE(form.Loaded());
    Open(WaitPlace::TopLeft);
    form.CloseWindow(true);
    Steps();
    form.CloseWindow(false);
    EXPECT_EQ(Joined(Steps()), "");
}

TEST_F(WaitWindow, TheNextOpeningLoadsItAgain) {
    Open(WaitPlace::TopLeft);
    form.CloseWindow(true);
    Steps();
    Open(WaitPlace::TopLeft);
    EXPECT_EQ(Joined(Steps(), 0, 6),
              "open\n"
              "content\n"
              "move 0,0 240x40\n"
              "region round 0,0,240,40 15x15\n"
              "layered 165\n"
              "top\n");
}

// --- While it slides ---

TEST_F(WaitWindow, ANewerOpeningEndsTheOneUnderWay) {
    desktop.clock.AtYield(5, [&] { form.ShowAnimatedFrom("12345", WaitPlace::BottomRight, kTarget, true); });
    Open(WaitPlace::TopLeft, false);
    EXPECT_EQ(Place(), (WinRect{440, 560, 500, 600}));
    EXPECT_EQ(form.Fond().Caption(), "12345");
    EXPECT_EQ(desktop.clock.Yields(), 6);
    form.MoveForm({0, 0, 100, 100});
    EXPECT_EQ(Place(), (WinRect{40, 60, 100, 100}));
}

TEST_F(WaitWindow, ClosingDuringAnOpeningEndsIt) {
    desktop.clock.AtYield(5, [&] { form.CloseWindow(false); });
    Open(WaitPlace::TopLeft, false);
    EXPECT_FALSE(form.Loaded());
    EXPECT_EQ(desktop.clock.Yields(), 5);
}

TEST_F(WaitWindow, UnloadingDuringAnOpeningEndsIt) {
    desktop.clock.AtYield(1, [&] { form.Unload(); });
    Open(WaitPlace::TopLeft);
    EXPECT_FALSE(form.Loaded());
    form.MoveForm(kTarget);
    EXPECT_FALSE(form.Loaded());
}

TEST_F(WaitWindow, ARectangleThatComesDuringAnOpeningIsTakenAtItsEnd) {
    desktop.clock.AtYield(5, [&] { form.MoveForm({0, 0, 300, 300}); });
    Open(WaitPlace::TopLeft, false);
    EXPECT_EQ(Place(), (WinRect{0, 0, 30, 40}));
    EXPECT_EQ(State().Region, Region::CreateRoundRectRgn(0, 0, 30, 40, 15, 15));
}

TEST_F(WaitWindow, AnOpeningDuringAClosingKeepsTheWindow) {
    Open(WaitPlace::TopLeft);
    desktop.clock.AtYield(5, [&] { Open(WaitPlace::BottomLeft); });
    form.CloseWindow(false);
    EXPECT_TRUE(form.Visible());
    EXPECT_EQ(Place(), (WinRect{100, 560, 130, 600}));
    EXPECT_EQ(State().Region, Region::CreateRoundRectRgn(0, 0, 30, 40, 15, 15));
}

TEST_F(WaitWindow, AMoveDuringAClosingDoesNotKeepTheWindow) {
    Open(WaitPlace::TopLeft);
    desktop.clock.AtYield(5, [&] { form.MoveForm({0, 0, 300, 300}); });
    form.CloseWindow(false);
    EXPECT_FALSE(form.Loaded());
}

TEST_F(WaitWindow, ClosingTwiceIsHarmless) {
    Open(WaitPlace::TopLeft);
    desktop.clock.AtYield(5, [&] { form.CloseWindow(true); });
    form.CloseWindow(false);
    EXPECT_FALSE(form.Loaded());
    EXPECT_EQ(desktop.forms.OpenForms(), 0);
}

TEST_F(WaitWindow, ARectangleBeyondAllNumbersFailsAndLeavesItUsable) {
    EXPECT_THROW(form.ShowAnimatedFrom("", WaitPlace::BottomRight, {0, 0, INT32_MIN, INT32_MIN}, true), Failure);
    Open(WaitPlace::TopLeft);
    form.MoveForm({0, 0, 300, 300});
    EXPECT_EQ(Place(), (WinRect{0, 0, 30, 40}));
}

}  // namespace
}  // namespace vorlane
