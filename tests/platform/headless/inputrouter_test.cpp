#include "platform/inputrouter.h"

#include "panel.h"
#include "platform/controlarray.h"
#include "platform/image.h"

#include <gtest/gtest.h>
#include <initializer_list>
#include <stdexcept>

namespace vorlane::headless {
namespace {

class InputRouterTest : public testing::Test {
protected:
    InputRouterTest() {
        image.Move(10, 20, 30, 40);
        inner.Move(100, 50, 60, 60);
        nested.Move(5, 5, 20, 20);
        window.Host(root);
        Listen(desktop, root, "root");
        Listen(desktop, image, "image");
        Listen(desktop, inner, "inner");
        Listen(desktop, nested, "nested");
        desktop.trace.Clear();
    }

    void TakeDrops() {
        for (Control* control : std::initializer_list<Control*>{&root, &image, &inner, &nested}) {
            control->SetOLEDropMode(1);
        }
    }

    std::string Inputs() { return desktop.trace.Take({"input"}); }

    Desktop desktop;
    Window window{desktop, {1000, 500, 1200, 650}};
    Panel root{desktop, window.Ambient()};
    Image image{&root};
    Panel inner{desktop, window.Ambient(ScaleMode::Twips), &root};
    Image nested{&inner};
};

TEST_F(InputRouterTest, HostingRunsTheLifeCycleInOrder) {
    Window other(desktop, {0, 0, 40, 30});
    Panel panel(desktop, other.Ambient());
    other.Host(panel);
    EXPECT_EQ(desktop.trace.Take({"life"}), "life Resize 40x30\nlife InitProperties\nlife Resize 40x30\nlife Show\n");
}

TEST_F(InputRouterTest, AChildHearsTwipsAndASurfacePixels) {
    window.MouseTo(12, 25);
    window.MouseTo(50, 60, kCtrl);
    EXPECT_EQ(Inputs(), "input image MouseMove 0 0 30,75\ninput root MouseMove 0 2 50,60\n");
}

TEST_F(InputRouterTest, ANestedChildIsFoundAndItsSurfaceElsewhere) {
    window.MouseTo(106, 57);
    window.MouseTo(150, 100);
    EXPECT_EQ(Inputs(), "input nested MouseMove 0 0 15,30\ninput inner MouseMove 0 0 50,50\n");
}

TEST_F(InputRouterTest, AClickFollowsTheReleaseOnTheSameControl) {
    window.Click(12, 25);
    EXPECT_EQ(Inputs(), "input image MouseDown 1 0 30,75\ninput image MouseUp 1 0 30,75\ninput image Click\n");
}

TEST_F(InputRouterTest, APressKeepsTheMouseUntilItsRelease) {
    window.Press(12, 25);
    window.MouseTo(5, 5);
    window.Release(5, 5);
    window.MouseTo(5, 5);
    EXPECT_EQ(Inputs(),
              "input image MouseDown 1 0 30,75\n"
              "input image MouseMove 1 0 -75,-225\n"
              "input image MouseUp 1 0 -75,-225\n"
              "input root MouseMove 0 0 5,5\n");
}

TEST_F(InputRouterTest, TheCaptureLastsWhileAnyButtonIsDown) {
    window.Press(12, 25);
    window.Press(12, 25, kRightButton);
    window.Release(12, 25);
    window.MouseTo(0, 0);
    window.Release(12, 25, kRightButton);
    EXPECT_EQ(Inputs(),
              "input image MouseDown 1 0 30,75\n"
              "input image MouseDown 2 0 30,75\n"
              "input image MouseUp 1 0 30,75\n"
              "input image Click\n"
              "input image MouseMove 2 0 -150,-300\n"
              "input image MouseUp 2 0 30,75\n"
              "input image Click\n");
}

TEST_F(InputRouterTest, ASecondPressSoonIsADoubleClickInPlaceOfThePress) {
    window.DoubleClick(12, 25);
    EXPECT_EQ(Inputs(),
              "input image MouseDown 1 0 30,75\n"
              "input image MouseUp 1 0 30,75\n"
              "input image Click\n"
              "input image DblClick\n"
              "input image MouseUp 1 0 30,75\n");
}

TEST_F(InputRouterTest, AThirdPressBeginsAnew) {
    window.DoubleClick(12, 25);
    desktop.trace.Clear();
    window.Press(12, 25);
    EXPECT_EQ(Inputs(), "input image MouseDown 1 0 30,75\n");
}

TEST_F(InputRouterTest, ADoubleClickOfOneButtonTakesNoClickFromAnother) {
    window.Click(12, 25, kRightButton);
    window.Press(12, 25);
    desktop.trace.Clear();
    window.Router().MouseDown(kRightButton, 0, 12, 25);
    window.Router().MouseUp(kRightButton, 0, 12, 25);
    window.Router().MouseDown(kRightButton, 0, 12, 25);
    window.Release(12, 25);
    window.Release(12, 25, kRightButton);
    EXPECT_EQ(Inputs(),
              "input image MouseDown 2 0 30,75\n"
              "input image MouseUp 2 0 30,75\n"
              "input image Click\n"
              "input image DblClick\n"
              "input image MouseUp 1 0 30,75\n"
              "input image Click\n"
              "input image MouseUp 2 0 30,75\n");
}

TEST_F(InputRouterTest, TwoPressesAreNoDoubleClickWhenTooLateTooFarOrWithAnotherButton) {
    const auto second = [&](int64_t wait, float x, int16_t button) {
        window.Click(15, 25);
        desktop.clock.Advance(wait);
        desktop.trace.Clear();
        window.Press(x, 25, button);
        const std::string inputs = Inputs();
        window.Release(x, 25, button);
        return inputs;
    };
    EXPECT_EQ(second(401, 15, kLeftButton), "input image MouseDown 1 0 75,75\n");
    EXPECT_EQ(second(0, 20, kLeftButton), "input image MouseDown 1 0 150,75\n");
    EXPECT_EQ(second(0, 15, kRightButton), "input image MouseDown 2 0 75,75\n");
    EXPECT_EQ(second(400, 19, kLeftButton), "input image DblClick\n");
}

TEST_F(InputRouterTest, ACaptureAskedForSendsAllToTheRootItself) {
    desktop.screen.SetCapture(window.Handle());
    window.MouseTo(12, 25);
    desktop.screen.ReleaseCapture();
    EXPECT_EQ(Inputs(), "input root MouseMove 0 0 12,25\n");
}

TEST_F(InputRouterTest, ACaptureOfAnotherWindowLeavesThisOneDeaf) {
    desktop.screen.SetCapture(window.Handle() + 1);
    window.MouseTo(12, 25);
    desktop.screen.ReleaseCapture();
    EXPECT_EQ(Inputs(), "");
}

TEST_F(InputRouterTest, WhatIsDisabledLetsItsContainerAnswer) {
    nested.SetEnabled(false);
    window.MouseTo(106, 57);
    inner.SetEnabled(false);
    window.MouseTo(106, 57);
    root.SetEnabled(false);
    window.MouseTo(106, 57);
    EXPECT_EQ(Inputs(), "input inner MouseMove 0 0 6,7\ninput root MouseMove 0 0 106,57\n");
}

TEST_F(InputRouterTest, WhatIsHiddenIsNotUnderThePointer) {
    image.SetVisible(false);
    window.MouseTo(12, 25);
    EXPECT_EQ(Inputs(), "input root MouseMove 0 0 12,25\n");
}

TEST_F(InputRouterTest, TheFrameOfTheRootShiftsItsChildren) {
    root.SetBorderStyle(1);
    window.MouseTo(11, 21);
    window.MouseTo(10, 21);
    EXPECT_EQ(Inputs(), "input image MouseMove 0 0 0,0\ninput root MouseMove 0 0 9,20\n");
}

TEST_F(InputRouterTest, KeysGoToTheRootAndToTheFocusedControl) {
    window.Key(65, 97);
    window.Router().SetFocus(&image);
    window.Key(66, 98, kShift);
    EXPECT_EQ(Inputs(),
              "input root KeyDown 65 0\ninput root KeyPress 97\ninput image KeyDown 66 1\ninput image KeyPress 98\n");
}

TEST_F(InputRouterTest, AFocusedControlThatIsHiddenOrDisabledLosesTheKeysToTheRoot) {
    const auto answers = [&](auto&& change) {
        window.Router().SetFocus(&nested);
        change();
        window.Key(65);
        return Inputs();
    };
    const char* const atTheRoot = "input root KeyDown 65 0\n";
    EXPECT_EQ(answers([] {}), "input nested KeyDown 65 0\n");
    EXPECT_EQ(answers([&] { nested.SetVisible(false); }), atTheRoot);
    EXPECT_EQ(window.Router().Focus(), nullptr);
    nested.SetVisible(true);
    window.Key(65);
    EXPECT_EQ(Inputs(), atTheRoot);
    EXPECT_EQ(answers([&] { inner.SetEnabled(false); }), atTheRoot);
    inner.SetEnabled(true);
    EXPECT_EQ(answers([&] { inner.SetVisible(false); }), atTheRoot);
    EXPECT_EQ(answers([&] { root.SetEnabled(false); }), "");
}

TEST_F(InputRouterTest, AFocusedElementThatIsUnloadedLosesTheKeysToTheRoot) {
    ControlArray<Image> images([&](int32_t) { return std::make_shared<Image>(&root); });
    images.Load(1);
    window.Router().SetFocus(images.Item(1).get());
    const std::weak_ptr<Image> watched = images.Item(1);
    images.Unload(1);
    window.Key(65);
    EXPECT_EQ(Inputs(), "input root KeyDown 65 0\n");
    EXPECT_TRUE(watched.expired());
}

TEST_F(InputRouterTest, AHandlerSwallowsACharacterByWritingZero) {
    root.Input.KeyPress.connect([](int16_t& ascii) { ascii = 0; });
    int16_t ascii = 33;
    window.Router().KeyPress(ascii);
    EXPECT_EQ(ascii, 0);
}

TEST_F(InputRouterTest, ADragEntersIsOverAndLeavesEachControl) {
    TakeDrops();
    DataObject data;
    data.SetText("text");
    int32_t effect = 1;
    window.Router().DragOver(data, effect, 1, 0, 12, 25);
    EXPECT_EQ(effect, 2);
    window.Router().DragOver(data, effect, 1, 0, 13, 25);
    window.Router().DragOver(data, effect, 1, 0, 60, 25);
    window.Router().DragLeave(data);
    window.Router().DragLeave(data);
    EXPECT_EQ(Inputs(),
              "input image OLEDragOver 30,75 0\n"
              "input image OLEDragOver 30,75 2\n"
              "input image OLEDragOver 45,75 2\n"
              "input image OLEDragOver 0,0 1\n"
              "input root OLEDragOver 60,25 0\n"
              "input root OLEDragOver 60,25 2\n"
              "input root OLEDragOver -1,-1 1\n");
}

TEST_F(InputRouterTest, ADropReachesTheControlAndLeavesNoDragBehind) {
    TakeDrops();
    DataObject data;
    data.SetText("text");
    int32_t effect = 1;
    window.Router().DragOver(data, effect, 1, 0, 12, 25);
    desktop.trace.Clear();
    window.Router().DragDrop(data, effect, 1, 0, 12, 25);
    window.Router().DragLeave(data);
    EXPECT_EQ(Inputs(), "input image OLEDragDrop 30,75 text\n");
}

TEST_F(InputRouterTest, AControlThatTakesNoDropsLetsItsContainerAnswer) {
    TakeDrops();
    image.SetOLEDropMode(0);
    nested.SetOLEDropMode(0);
    inner.SetOLEDropMode(0);
    DataObject data;
    data.SetText("text");
    int32_t effect = 0;
    window.Router().DragOver(data, effect, 1, 0, 12, 25);
    EXPECT_EQ(effect, 2);
    window.Router().DragOver(data, effect, 1, 0, 107, 57);
    window.Router().DragDrop(data, effect, 1, 0, 107, 57);
    EXPECT_EQ(Inputs(),
              "input root OLEDragOver 12,25 0\n"
              "input root OLEDragOver 12,25 2\n"
              "input root OLEDragOver 107,57 2\n"
              "input root OLEDragDrop 107,57 text\n");
}

TEST_F(InputRouterTest, WhereNothingTakesDropsADragHasNoEffectAndIsNotHeard) {
    DataObject data;
    int32_t effect = 3;
    window.Router().DragOver(data, effect, 1, 0, 12, 25);
    EXPECT_EQ(effect, 0);
    effect = 3;
    window.Router().DragDrop(data, effect, 1, 0, 12, 25);
    EXPECT_EQ(effect, 0);
    window.Router().DragLeave(data);
    EXPECT_EQ(Inputs(), "");
}

TEST_F(InputRouterTest, ADragThatLeavesTheWindowIsToldToTheRootToo) {
    TakeDrops();
    DataObject data;
    int32_t effect = 0;
    window.Router().DragOver(data, effect, 1, 0, 12, 25);
    desktop.trace.Clear();
    window.Router().DragLeave(data);
    EXPECT_EQ(Inputs(), "input image OLEDragOver 0,0 1\ninput root OLEDragOver -1,-1 1\n");
}

TEST_F(InputRouterTest, ButtonsThatADragHasReleasedAreUp) {
    window.Press(12, 25);
    window.Router().ForgetButtons();
    desktop.trace.Clear();
    window.MouseTo(60, 25);
    EXPECT_EQ(Inputs(), "input root MouseMove 0 0 60,25\n");
    window.Release(60, 25);
}

TEST_F(InputRouterTest, APressThatBecameADragIsNoHalfOfADoubleClick) {
    window.Press(12, 25);
    window.Router().ForgetButtons();
    desktop.trace.Clear();
    window.Press(12, 25);
    EXPECT_EQ(Inputs(), "input image MouseDown 1 0 30,75\n");
    window.Release(12, 25);
}

TEST_F(InputRouterTest, ADragOutsideTheRootHasNoEffect) {
    DataObject data;
    int32_t effect = 3;
    window.Router().DragOver(data, effect, 1, 0, 500, 25);
    EXPECT_EQ(effect, 0);
}

TEST_F(InputRouterTest, AHandlerThatThrowsDoesNotReachTheDesktop) {
    image.Input.MouseDown.connect([](int16_t, int16_t, float, float) { throw std::runtime_error("host"); });
    EXPECT_NO_THROW(window.Press(12, 25));
    window.Release(12, 25);
    EXPECT_EQ(Inputs(), "input image MouseDown 1 0 30,75\ninput image MouseUp 1 0 30,75\ninput image Click\n");
}

TEST_F(InputRouterTest, AWheelTurnGoesOutwardsUntilItIsUsed) {
    struct Reel final : Control {
        Reel(UserControl* container, bool uses) : Control(container, Layer::Windowless), uses_(uses) {}
        bool Wheel(double notches) override {
            turned += notches;
            return uses_;
        }
        void Accept(ControlVisitor&) const override {}
        double turned = 0;
        bool uses_;
    };
    Reel deaf(&root, false);
    deaf.Move(60, 100, 20, 20);
    window.Wheel(-1.5, 65, 105);
    EXPECT_EQ(deaf.turned, -1.5);
    EXPECT_EQ(root.turned, -1.5);
    Reel user(&root, true);
    user.Move(80, 100, 20, 20);
    window.Wheel(2, 85, 105);
    EXPECT_EQ(user.turned, 2);
    EXPECT_EQ(root.turned, -1.5);
}

TEST_F(InputRouterTest, AnElementUnloadedByItsOwnPressLivesUntilItsRelease) {
    ControlArray<Panel> panels([&](int32_t) { return std::make_shared<Panel>(desktop, window.Ambient(), &root); });
    panels.Load(1);
    panels.Item(1)->Move(50, 0, 20, 20);
    panels.Item(1)->ZOrder();
    const std::weak_ptr<Panel> watched = panels.Item(1);
    Listen(desktop, *panels.Item(1), "element");
    panels.Item(1)->Input.MouseDown.connect([&](int16_t, int16_t, float, float) { panels.Unload(1); });
    window.Press(55, 5);
    EXPECT_FALSE(watched.expired());
    window.Release(55, 5);
    EXPECT_TRUE(watched.expired());
    EXPECT_EQ(Inputs(), "input element MouseDown 1 0 5,5\ninput element MouseUp 1 0 5,5\n");
}

TEST(FakeClock, FiresTimersInTheOrderInWhichTheyFallDue) {
    Trace trace;
    FakeClock clock(trace);
    std::string order;
    const auto slow = clock.StartTimer(30, [&] { order += "s" + std::to_string(clock.Now()) + " "; });
    const auto fast = clock.StartTimer(20, [&] { order += "f" + std::to_string(clock.Now()) + " "; });
    clock.Advance(60);
    EXPECT_EQ(order, "f20 s30 f40 s60 f60 ");
    clock.StopTimer(slow);
    clock.StopTimer(fast);
    EXPECT_EQ(clock.RunningTimers(), 0);
}

TEST(FakeClock, ATimerIsNotCalledAgainInsideItsOwnTick) {
    Trace trace;
    FakeClock clock(trace);
    int ticks = 0;
    clock.StartTimer(1, [&] {
        ++ticks;
        clock.Sleep(5);
        clock.DoEvents();
    });
    clock.Advance(1);
    EXPECT_EQ(ticks, 1);
}

TEST(FakeClock, ATickThatThrowsIsIgnoredAndTheTimerGoesOn) {
    Trace trace;
    FakeClock clock(trace);
    int ticks = 0;
    clock.StartTimer(10, [&] {
        ++ticks;
        throw std::runtime_error("host");
    });
    EXPECT_NO_THROW(clock.Advance(25));
    EXPECT_EQ(ticks, 2);
}

TEST(FakeClock, RunsAnActionAtTheYieldItWasSetFor) {
    Trace trace;
    FakeClock clock(trace);
    clock.AtYield(2, [&] { trace.Add("action"); });
    clock.DoEvents();
    clock.DoEvents();
    EXPECT_EQ(trace.Text(), "yield\nyield\naction\n");
}

TEST(HeadlessDesktop, NamesWhatLeaks) {
    std::string leaks;
    {
        Desktop desktop;
        desktop.OnLeak = [&](const std::string& text) { leaks = text; };
        desktop.clock.StartTimer(10, [] {});
        desktop.windows.Open({0, 0, 10, 10});
        desktop.screen.SetCapture(7);
        desktop.clock.AtYield(2, [] {});
        desktop.clock.DoEvents();
    }
    EXPECT_EQ(leaks, "running timers: 1\nactions without a yield: 1\nopen windows: 1\ncaptured by window 7\n");
}

TEST(HeadlessDesktop, EndsQuietlyWhenAllIsReleased) {
    Desktop desktop;
    const auto timer = desktop.clock.StartTimer(10, [] {});
    desktop.clock.StopTimer(timer);
    EXPECT_EQ(desktop.Leaks(), "");
}

}  // namespace
}  // namespace vorlane::headless
