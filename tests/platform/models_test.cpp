// The models with rules of their own: the bar, the edit box, the timer.
#include "expectfailure.h"
#include "panel.h"
#include "platform/scrollbarplus.h"
#include "platform/textbox.h"
#include "platform/timer.h"

#include <optional>

namespace vorlane {
namespace {

// --- ScrollbarPlus ---

class ScrollbarPlusTest : public testing::Test {
protected:
    ScrollbarPlusTest() {
        bar.Change.connect([this](int32_t value) { log += "change " + std::to_string(value) + " "; });
        bar.Scroll.connect([this](int32_t value) { log += "scroll " + std::to_string(value) + " "; });
    }

    headless::Desktop desktop;
    Panel root{desktop, 200, 100};
    ScrollbarPlus bar{&root};
    std::string log;
};

TEST_F(ScrollbarPlusTest, ClampsItsValue) {
    bar.SetMax(10);
    bar.SetValue(20);
    EXPECT_EQ(bar.Value(), 10);
    bar.SetValue(-5);
    EXPECT_EQ(bar.Value(), 0);
    EXPECT_EQ(log, "change 10 change 0 ");
}

TEST_F(ScrollbarPlusTest, RaisesChangeWhenCodeSetsIt) {
    bar.SetMax(10);
    EXPECT_EQ(log, "");
    bar.SetValue(3);
    EXPECT_EQ(log, "change 3 ");
}

TEST_F(ScrollbarPlusTest, RaisesNoChangeWhenItStandsThereAlreadyOrIsClamped) {
    bar.SetMax(10);
    bar.SetValue(10);
    log.clear();
    bar.SetValue(10);
    bar.SetValue(11);
    EXPECT_EQ(log, "");
}

TEST_F(ScrollbarPlusTest, ANewRangePullsTheValueIn) {
    bar.SetMax(100);
    bar.SetValue(50);
    log.clear();
    bar.SetMax(20);
    EXPECT_EQ(bar.Value(), 20);
    bar.SetMax(100);
    EXPECT_EQ(bar.Value(), 20);
    bar.SetMin(30);
    EXPECT_EQ(bar.Value(), 30);
    EXPECT_EQ(log, "change 20 change 30 ");
}

TEST_F(ScrollbarPlusTest, AMaxBelowMinCountsAsMin) {
    bar.SetMax(10);
    bar.SetMax(-1);
    EXPECT_EQ(bar.Max(), 0);
    bar.SetMin(5);
    EXPECT_EQ(bar.Max(), 5);
    EXPECT_EQ(bar.Value(), 5);
}

TEST_F(ScrollbarPlusTest, HoldsThe32BitRange) {
    bar.SetMax(2147483647);
    bar.SetMin(-2147483647 - 1);
    bar.SetValue(-2147483647 - 1);
    EXPECT_EQ(bar.Value(), -2147483647 - 1);
}

TEST_F(ScrollbarPlusTest, StepsAreAtLeastOne) {
    bar.SetSmallChange(0);
    bar.SetLargeChange(-5);
    EXPECT_EQ(bar.SmallChange(), 1);
    EXPECT_EQ(bar.LargeChange(), 1);
    bar.SetLargeChange(36);
    EXPECT_EQ(bar.LargeChange(), 36);
}

TEST_F(ScrollbarPlusTest, TurningKeepsItsThickness) {
    bar.Move(3, 4, 16, 90);
    bar.SetOrientation(Orientation::Horizontal);
    EXPECT_EQ(bar.Bounds(), (Box{3, 4, 90, 16}));
    bar.SetOrientation(Orientation::Horizontal);
    EXPECT_EQ(bar.Bounds(), (Box{3, 4, 90, 16}));
}

TEST_F(ScrollbarPlusTest, TheThumbScrollsWithinTheRangeAndChangesNothing) {
    bar.SetMax(10);
    bar.DragThumb(5);
    bar.DragThumb(50);
    EXPECT_EQ(log, "scroll 5 scroll 10 ");
    EXPECT_EQ(bar.Value(), 0);
}

TEST_F(ScrollbarPlusTest, TheThumbRestsOnWholeStepsAndOnTheEnd) {
    bar.SetMax(11);
    bar.SetSmallChange(4);
    for (const int32_t value : {1, 2, 3, 7, 9, 10, 11}) bar.DragThumb(value);
    EXPECT_EQ(log, "scroll 0 scroll 0 scroll 4 scroll 8 scroll 8 scroll 11 scroll 11 ");
    bar.DropThumb(7);
    EXPECT_EQ(bar.Value(), 8);
}

TEST_F(ScrollbarPlusTest, AHandlerOfChangeMaySetTheBarAgain) {
    bar.SetMax(10);
    bar.Change.connect([this](int32_t value) {
        if (value == 3) bar.SetValue(4);
    });
    bar.SetValue(3);
    EXPECT_EQ(bar.Value(), 4);
    EXPECT_EQ(log, "change 3 change 4 ");
}

TEST_F(ScrollbarPlusTest, AWheelTurnMovesItByWholeStepsWithinItsRange) {
    bar.SetMax(10);
    bar.SetSmallChange(3);
    EXPECT_TRUE(bar.Wheel(-1));
    EXPECT_TRUE(bar.Wheel(-1.5));
    EXPECT_EQ(bar.Value(), 6);
    EXPECT_TRUE(bar.Wheel(-0.5));
    EXPECT_TRUE(bar.Wheel(-1e12));
    EXPECT_TRUE(bar.Wheel(1));
    EXPECT_TRUE(bar.Wheel(1e12));
    EXPECT_EQ(log, "change 3 change 6 change 9 change 10 change 7 change 0 ");
}

TEST_F(ScrollbarPlusTest, AHiddenOrDisabledBarLeavesTheWheelToOthers) {
    bar.SetMax(10);
    bar.SetVisible(false);
    EXPECT_FALSE(bar.Wheel(-1));
    bar.SetVisible(true);
    bar.SetEnabled(false);
    EXPECT_FALSE(bar.Wheel(-1));
    EXPECT_EQ(log, "");
}

// --- TextBox ---

class TextBoxTest : public testing::Test {
protected:
    headless::Desktop desktop;
    Panel root{desktop, 200, 100};
    TextBox box{&root};
};

TEST_F(TextBoxTest, CountsItsSelectionInCharacters) {
    box.SetText("été");
    box.SetSelStart(0);
    box.SetSelLength(99);
    EXPECT_EQ(box.SelLength(), 3);
    box.SetSelStart(2);
    EXPECT_EQ(box.SelLength(), 1);
    box.SetSelStart(99);
    EXPECT_EQ(box.SelStart(), 3);
    EXPECT_EQ(box.SelLength(), 0);
}

TEST_F(TextBoxTest, ANewTextClearsTheSelectionAndTheSameTextKeepsIt) {
    box.SetText("abc");
    box.SetSelStart(1);
    box.SetSelLength(2);
    box.SetText("abc");
    EXPECT_EQ(box.SelStart(), 1);
    EXPECT_EQ(box.SelLength(), 2);
    box.SetText("abcd");
    EXPECT_EQ(box.SelStart(), 0);
    EXPECT_EQ(box.SelLength(), 0);
}

TEST_F(TextBoxTest, RefusesANegativeSelection) {
    EXPECT_FAILURE(box.SetSelStart(-1), InvalidProperty());
    EXPECT_FAILURE(box.SetSelLength(-1), InvalidProperty());
}

TEST_F(TextBoxTest, TellsANewTextAndAsksForTheKeyboard) {
    std::string log;
    box.TextChanged.connect([&] { log += "text:" + box.Text() + " "; });
    box.FocusRequested.connect([&] { log += "focus "; });
    box.SetText("a");
    box.SetText("a");
    box.SetFocus();
    EXPECT_EQ(log, "text:a focus ");
}

// --- Timer ---

class TimerTest : public testing::Test {
protected:
    headless::Desktop desktop;
    std::optional<Timer> timer{std::in_place, desktop.clock, 10};
    int ticks = 0;
    ScopedConnection counting = timer->Tick.connect([this] { ++ticks; });
};

TEST_F(TimerTest, StandsStillUntilItIsEnabled) {
    desktop.clock.Advance(100);
    EXPECT_EQ(ticks, 0);
    EXPECT_FALSE(timer->Enabled());
    EXPECT_EQ(timer->Interval(), 10);
}

TEST_F(TimerTest, TicksEveryIntervalUntilItIsDisabled) {
    timer->SetEnabled(true);
    desktop.clock.Advance(9);
    EXPECT_EQ(ticks, 0);
    desktop.clock.Advance(26);
    EXPECT_EQ(ticks, 3);
    timer->SetEnabled(false);
    desktop.clock.Advance(100);
    EXPECT_EQ(ticks, 3);
}

TEST_F(TimerTest, EnablingItAgainDoesNotStartTheIntervalAnew) {
    timer->SetEnabled(true);
    desktop.clock.Advance(9);
    timer->SetEnabled(true);
    desktop.clock.Advance(1);
    EXPECT_EQ(ticks, 1);
    EXPECT_EQ(desktop.clock.RunningTimers(), 1);
}

TEST_F(TimerTest, MayBeDisabledByItsTick) {
    timer->Tick.connect([this] { timer->SetEnabled(false); });
    timer->SetEnabled(true);
    desktop.clock.Advance(100);
    EXPECT_EQ(ticks, 1);
    EXPECT_EQ(desktop.clock.RunningTimers(), 0);
}

// A clock whose message loop brings a timer's next tick inside its own.
class NestingClock final : public Clock {
public:
    int64_t Now() const override { return 0; }
    TimerId StartTimer(int32_t, std::function<void()> tick) override {
        tick_ = std::move(tick);
        return 1;
    }
    void StopTimer(TimerId) override { tick_ = nullptr; }
    void DoEvents() override { tick_(); }
    void Sleep(int32_t) override {}

private:
    std::function<void()> tick_;
};

TEST(TimerAlone, DoesNotTickInsideItsOwnTick) {
    NestingClock clock;
    Timer timer(clock, 10);
    int ticks = 0;
    timer.Tick.connect([&] {
        ++ticks;
        clock.DoEvents();
    });
    timer.SetEnabled(true);
    clock.DoEvents();
    EXPECT_EQ(ticks, 1);
    clock.DoEvents();
    EXPECT_EQ(ticks, 2);
}

TEST_F(TimerTest, MayEndInItsTick) {
    timer->Tick.connect([this] { timer.reset(); });
    timer->SetEnabled(true);
    desktop.clock.Advance(100);
    EXPECT_EQ(ticks, 1);
    EXPECT_EQ(desktop.clock.RunningTimers(), 0);
}

TEST_F(TimerTest, StopsWithItsEnd) {
    timer->SetEnabled(true);
    timer.reset();
    EXPECT_EQ(desktop.clock.RunningTimers(), 0);
    desktop.clock.Advance(100);
    EXPECT_EQ(ticks, 0);
}

}  // namespace
}  // namespace vorlane
