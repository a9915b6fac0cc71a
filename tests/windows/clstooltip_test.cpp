#include "windows/clstooltip.h"

#include "platform/headless/window.h"

#include <gtest/gtest.h>
#include <string>

namespace vorlane {
namespace {

constexpr OLE_COLOR kText = 0x112233;
constexpr OLE_COLOR kGround = 0x445566;

class ToolTip : public testing::Test {
protected:
    Hwnd Create(const std::string& text, const std::string& title, int32_t style = 65, int32_t icon = 2) {
        return tip.Create(window.Handle(), text, style, false, false, icon, title, kText, kGround, 500, 30000);
    }
    Hwnd Coloured(OLE_COLOR text, OLE_COLOR ground) {
        return tip.Create(window.Handle(), "text", 65, false, false, 0, "title", text, ground, 0, 0);
    }

    std::string Lines() { return desktop.trace.Take({"tooltip"}); }
    const headless::FakeTooltips::State& State(Hwnd tooltip) { return *desktop.tooltips.Find(tooltip); }

    headless::Desktop desktop;
    headless::Window window{desktop, {100, 100, 400, 300}};
    clsToolTip tip{desktop.Roles()};
};

// --- An object without a window ---

TEST_F(ToolTip, BeginsWithoutAWindow) {
    EXPECT_EQ(Lines(), "tooltip init\n");
    EXPECT_EQ(tip.Style(), -1);
    EXPECT_EQ(tip.Text(), "");
    EXPECT_EQ(tip.Title(), "");
    EXPECT_EQ(tip.InitialText(), "");
    EXPECT_EQ(tip.InitialTitle(), "");
    EXPECT_FALSE(tip.Centered());
}

TEST_F(ToolTip, WhatIsSentBeforeCreateIsLost) {
    Lines();
    tip.Activate(true);
    tip.SetTitle("title");
    tip.SetTrackPosition(1, 2);
    EXPECT_EQ(Lines(),
              "tooltip 0 1025 -1 0\n"
              "tooltip 0 1056 1 [title]\n"
              "tooltip 0 1042 0 131073\n");
    EXPECT_EQ(desktop.windows.OpenWindows(), 1);
}

// --- Create ---

TEST_F(ToolTip, IsMadeMessageByMessage) {
    Lines();
    EXPECT_EQ(tip.Create(window.Handle(), "a|b", 65, true, true, 2, "Titre", kText, kGround, 500, 30000), 2);
    EXPECT_EQ(Lines(),
              "tooltip 2 create style=67 over 1\n"
              "tooltip 2 top\n"
              "tooltip 2 1028 0 {size=44 flags=18 window=1 id=0 rect=0,0,300,200 text=[a\\nb]}\n"
              "tooltip 2 1056 2 [Titre]\n"
              "tooltip 2 1044 1122867 0\n"
              "tooltip 2 1043 4478310 0\n"
              "tooltip 2 1027 3 500\n"
              "tooltip 2 1027 2 30000\n"
              "tooltip 2 1041 -1 {size=44 flags=18 window=1 id=0 rect=0,0,300,200 text=[a\\nb]}\n");
    EXPECT_EQ(tip.Style(), 65);
    EXPECT_EQ(tip.Icon(), 2);
    EXPECT_EQ(tip.ForeCol(), kText);
    EXPECT_EQ(tip.BackColor(), kGround);
    EXPECT_EQ(tip.HoverTime(), 500);
    EXPECT_EQ(tip.PopupTime(), 30000);
    EXPECT_EQ(tip.Text(), "a\nb");
    EXPECT_EQ(tip.Title(), "Titre");
    EXPECT_TRUE(tip.Centered());
}

TEST_F(ToolTip, WithoutTrackingItIsNotShownBeforeTheMouseIsThere) {
    const Hwnd made = Create("text", "title");
    EXPECT_FALSE(State(made).Tracking);
    EXPECT_EQ(State(made).Tool->uFlags, 16);
    EXPECT_FALSE(tip.Centered());
}

TEST_F(ToolTip, FourStylesAreKnown) {
    for (const int32_t style : {0, 1, 64, 65}) {
        const Hwnd made = Create("text", "title", style);
        ASSERT_NE(made, 0);
        EXPECT_EQ(State(made).Style, style + 2);
    }
    for (const int32_t style : {-1, 2, 3, 63, 66, 67, 128, 256 + 64}) {
        EXPECT_EQ(Create("text", "title", style), 0) << style;
        EXPECT_EQ(tip.Style(), -1);
    }
}

TEST_F(ToolTip, FourIconsAreKnown) {
    for (const int32_t icon : {0, 1, 2, 3}) EXPECT_NE(Create("text", "title", 65, icon), 0) << icon;
    for (const int32_t icon : {-1, 4}) EXPECT_EQ(Create("text", "title", 65, icon), 0) << icon;
}

TEST_F(ToolTip, WithBadArgumentsAFormerTooltipIsAlreadyGone) {
    const Hwnd made = Create("text", "title");
    Lines();
    EXPECT_EQ(Create("other", "title", 2), 0);
    EXPECT_EQ(Lines(),
              "tooltip 2 1029 0 {size=44 flags=16 window=1 id=0 rect=0,0,300,200 text=[text]}\n"
              "tooltip 2 destroy\n");
    EXPECT_EQ(desktop.tooltips.Find(made), nullptr);

    Create("text", "title");
    EXPECT_EQ(Create("other", "title", 65, 4), 0);
    EXPECT_EQ(desktop.windows.OpenWindows(), 1);
    EXPECT_EQ(tip.Text(), "text");
}

TEST_F(ToolTip, IsMadeAnewByAnotherCreate) {
    const Hwnd first = Create("text", "title");
    const Hwnd second = Create("other", "heading", 0, 0);
    EXPECT_EQ(desktop.tooltips.Find(first), nullptr);
    EXPECT_EQ(State(second).Tool->lpszText, "other");
    EXPECT_EQ(tip.Title(), "heading");
    EXPECT_EQ(tip.Style(), 0);
}

TEST_F(ToolTip, RemembersTheTextAndTitleOfItsFirstCreate) {
    Create("one|two", "first");
    Create("other", "second");
    EXPECT_EQ(tip.InitialText(), "one\ntwo");
    EXPECT_EQ(tip.InitialTitle(), "first");
}

TEST_F(ToolTip, AnEmptyFirstTitleIsRememberedToo) {
    Create("one", "");
    Create("other", "second");
    EXPECT_EQ(tip.InitialTitle(), "");
}

TEST_F(ToolTip, AWindowThatCantBeMadeGives0) {
    desktop.tooltips.FailCreating(true);
    EXPECT_EQ(Create("text", "title"), 0);
    EXPECT_EQ(desktop.windows.OpenWindows(), 1);
}

// --- Texts ---

TEST_F(ToolTip, ShowsTwoLinesUnderATitle) {
    EXPECT_EQ(State(Create("Bonjour|monde", "Titre")).Tool->lpszText, "Bonjour\nmonde\xC2\xA0\xC2\xA0");
}

TEST_F(ToolTip, WithoutATitleIsOneLineWithABlankBetweenTheWords) {
    EXPECT_EQ(State(Create("Bonjour|monde", "")).Tool->lpszText, "Bonjour monde");
}

TEST_F(ToolTip, EvensItsLinesOutByCharacters) {
    EXPECT_EQ(State(Create("été|neige|", "Titre")).Tool->lpszText,
              "été\xC2\xA0\xC2\xA0\nneige\n\xC2\xA0\xC2\xA0\xC2\xA0\xC2\xA0\xC2\xA0");
}

TEST_F(ToolTip, ANewTextReplacesTheOldOne) {
    const Hwnd made = Create("text", "title");
    Lines();
    tip.SetText("un|deux");
    EXPECT_EQ(Lines(),
              "tooltip 2 1036 0 {size=44 flags=16 window=1 id=0 rect=0,0,300,200 text=[un\xC2\xA0\xC2\xA0\\ndeux]}\n");
    EXPECT_EQ(State(made).Tool->lpszText, "un\xC2\xA0\xC2\xA0\ndeux");
    EXPECT_EQ(tip.Text(), "un\xC2\xA0\xC2\xA0\ndeux");
    EXPECT_EQ(tip.InitialText(), "text");
}

TEST_F(ToolTip, ANewTitleIsShownInOneLineAndNotKept) {
    const Hwnd made = Create("text", "title");
    tip.SetTitle("a\r\nb\nc\rd");
    EXPECT_EQ(State(made).Title, "a b c d");
    EXPECT_EQ(tip.Title(), "title");
}

TEST_F(ToolTip, ANewTitleShowsTheInformationIconFromThenOn) {
    const Hwnd made = Create("text", "title", 65, 3);
    EXPECT_EQ(State(made).Icon, 3);
    tip.SetTitle("other");
    EXPECT_EQ(State(made).Icon, 1);
    EXPECT_EQ(tip.Icon(), 3);
}

// --- Colours ---

TEST_F(ToolTip, SystemColoursAreResolved) {
    const Hwnd made = Coloured(FromSystem(SystemColor::Highlight), FromSystem(SystemColor::InfoBackground));
    EXPECT_EQ(State(made).TextColor, 0xD77800U);
    EXPECT_EQ(State(made).BackColor, 0xE1FFFFU);
    EXPECT_EQ(tip.ForeCol(), 0xD77800U);
    EXPECT_EQ(tip.BackColor(), 0xE1FFFFU);
}

TEST_F(ToolTip, EqualColoursFallBackToTwoFixedSystemColours) {
    const Hwnd made = Coloured(0x123456, 0x123456);
    EXPECT_EQ(tip.ForeCol(), 0x80000012U);
    EXPECT_EQ(tip.BackColor(), 0x80000018U);
    EXPECT_EQ(State(made).TextColor, 0x80000012U);
    EXPECT_EQ(State(made).BackColor, 0x80000018U);
}

TEST_F(ToolTip, ColoursThatAreEqualOnceResolvedCountAsEqual) {
    Coloured(FromSystem(SystemColor::InfoBackground), 0xE1FFFF);
    EXPECT_EQ(tip.ForeCol(), 0x80000012U);
}

// --- The open window ---

TEST_F(ToolTip, CanBeActivatedAndDeactivated) {
    const Hwnd made = Create("text", "title");
    tip.Activate(false);
    EXPECT_FALSE(State(made).Active);
    tip.Activate(true);
    EXPECT_TRUE(State(made).Active);
}

TEST_F(ToolTip, CanBeTracked) {
    const Hwnd made = Create("text", "title");
    Lines();
    tip.SetTracking(true);
    tip.SetTrackPosition(70000, -2);
    EXPECT_EQ(Lines(),
              "tooltip 2 1041 -1 {size=44 flags=16 window=1 id=0 rect=0,0,300,200 text=[text]}\n"
              "tooltip 2 1042 0 " +
                  std::to_string(70000 % 65536 - 2 * 65536) + "\n");
    EXPECT_TRUE(State(made).Tracking);
    tip.SetTracking(false);
    EXPECT_FALSE(State(made).Tracking);
}

TEST_F(ToolTip, GoesWithItsObject) {
    {
        clsToolTip other(desktop.Roles());
        other.Create(window.Handle(), "text", 0, false, false, 0, "", 0, 1, 0, 0);
        EXPECT_EQ(desktop.windows.OpenWindows(), 2);
    }
    EXPECT_EQ(desktop.windows.OpenWindows(), 1);
}

}  // namespace
}  // namespace vorlane
