#include "platform/controlarray.h"

#include "expectfailure.h"
#include "panel.h"
#include "platform/headless/window.h"
#include "platform/label.h"

#include <optional>

namespace vorlane {
namespace {

class ControlArrayTest : public testing::Test {
protected:
    ControlArray<Label> Labels() {
        return ControlArray<Label>([this](int32_t index) {
            made.push_back(index);
            return std::make_shared<Label>(&root);
        });
    }

    headless::Desktop desktop;
    Panel root{desktop, 200, 100};
    std::vector<int32_t> made;
};

TEST_F(ControlArrayTest, ElementZeroIsAlwaysThere) {
    auto labels = Labels();
    EXPECT_EQ(made, std::vector<int32_t>{0});
    EXPECT_EQ(labels.Count(), 1);
    EXPECT_EQ(labels.UpperBound(), 0);
    EXPECT_TRUE(labels.Loaded(0));
    EXPECT_FAILURE(labels.Unload(0), InvalidCall());
    EXPECT_EQ(labels.Count(), 1);
}

TEST_F(ControlArrayTest, LoadsAndUnloadsElements) {
    auto labels = Labels();
    labels.Load(1);
    labels.Load(2);
    EXPECT_EQ(labels.Count(), 3);
    EXPECT_EQ(root.Children().size(), 3U);
    EXPECT_EQ(root.Children()[2], labels.Item(2).get());
    labels.Unload(2);
    EXPECT_EQ(labels.Count(), 2);
    EXPECT_EQ(labels.UpperBound(), 1);
    EXPECT_EQ(root.Children().size(), 2U);
    labels.Load(2);
    EXPECT_EQ(made, (std::vector<int32_t>{0, 1, 2, 2}));
}

TEST_F(ControlArrayTest, ElementsNeedNotBeContiguous) {
    auto labels = Labels();
    labels.Load(5);
    EXPECT_EQ(labels.Count(), 2);
    EXPECT_EQ(labels.UpperBound(), 5);
    EXPECT_FALSE(labels.Loaded(3));
    EXPECT_FAILURE(labels.Item(3), ControlNotLoaded());
    labels.Load(3);
    labels.Unload(5);
    EXPECT_EQ(labels.Count(), 2);
    EXPECT_EQ(labels.UpperBound(), 3);
    labels.Unload(3);
    EXPECT_EQ(labels.UpperBound(), 0);
}

TEST_F(ControlArrayTest, RefusesWhatIsLoadedMissingOrNegative) {
    auto labels = Labels();
    EXPECT_FAILURE(labels.Load(0), ControlAlreadyLoaded());
    EXPECT_FAILURE(labels.Load(-1), SubscriptOutOfRange());
    EXPECT_FAILURE(labels.Unload(1), ControlNotLoaded());
    EXPECT_FAILURE(labels.Unload(-1), ControlNotLoaded());
    EXPECT_FAILURE(labels.Item(-1), ControlNotLoaded());
    EXPECT_FALSE(labels.Loaded(-1));
}

TEST_F(ControlArrayTest, AMakerThatFailsLeavesTheArrayAsItWas) {
    bool fail = false;
    ControlArray<Label> labels([&](int32_t) {
        if (fail) throw failures::OutOfMemory();
        return std::make_shared<Label>(&root);
    });
    fail = true;
    EXPECT_FAILURE(labels.Load(3), OutOfMemory());
    EXPECT_EQ(labels.Count(), 1);
    EXPECT_EQ(labels.UpperBound(), 0);
}

TEST_F(ControlArrayTest, AnElementThatIsLoadedWhileItIsMadeStays) {
    ControlArray<Label>* array = nullptr;
    bool again = false;
    ControlArray<Label> labels([&](int32_t index) {
        if (std::exchange(again, false)) array->Load(index);
        return std::make_shared<Label>(&root);
    });
    array = &labels;
    again = true;
    EXPECT_FAILURE(labels.Load(1), ControlAlreadyLoaded());
    EXPECT_EQ(labels.Count(), 2);
    EXPECT_EQ(root.Children().size(), 2U);
    EXPECT_EQ(root.Children()[1], labels.Item(1).get());
}

TEST_F(ControlArrayTest, AnUnloadedElementLeavesTheScreenAtOnceAndLivesWhileItIsHeld) {
    auto labels = Labels();
    labels.Load(1);
    auto held = labels.Item(1);
    held->Move(10, 20, 30, 40);
    const std::weak_ptr<Label> watch = held;
    root.TakeDamage();
    labels.Unload(1);
    EXPECT_EQ(root.TakeDamage(), (std::vector<Box>{{10, 20, 30, 40}}));
    EXPECT_FALSE(held->Visible());
    EXPECT_FALSE(watch.expired());
    held.reset();
    EXPECT_TRUE(watch.expired());
}

TEST_F(ControlArrayTest, AHandlerOfTheUnloadingFindsTheElementGone) {
    auto labels = Labels();
    labels.Load(1);
    int changes = 0;
    labels.Item(1)->Changed.connect([&] {
        ++changes;
        EXPECT_FALSE(labels.Loaded(1));
        EXPECT_EQ(labels.Count(), 1);
        EXPECT_FAILURE(labels.Unload(1), ControlNotLoaded());
    });
    labels.Unload(1);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(labels.Count(), 1);
}

TEST_F(ControlArrayTest, KeepAliveHoldsTheElementOfAControlThatIsInsideOfIt) {
    ControlArray<Panel> panels([&](int32_t) { return std::make_shared<Panel>(desktop, &root, Box{0, 0, 50, 50}); });
    panels.Load(1);
    const std::weak_ptr<Panel> watch = panels.Item(1);
    auto inner = std::make_unique<Label>(panels.Item(1).get());
    auto held = inner->KeepAlive();
    EXPECT_EQ(held, watch.lock());
    panels.Unload(1);
    EXPECT_FALSE(watch.expired());
    held.reset();
    EXPECT_TRUE(watch.expired());
    EXPECT_EQ(inner->Container(), nullptr);
}

TEST_F(ControlArrayTest, KeepAliveIsEmptyWhereNothingCanBeUnloaded) {
    const Label label(&root);
    EXPECT_EQ(label.KeepAlive(), nullptr);
    EXPECT_EQ(root.KeepAlive(), nullptr);
}

TEST_F(ControlArrayTest, AnElementUnloadedByItsOwnHandlerSurvivesUntilTheHandlerReturns) {
    headless::Window window(desktop, {0, 0, 200, 100});
    window.Host(root);
    auto labels = Labels();
    labels.Load(1);
    const std::weak_ptr<Label> watch = labels.Item(1);
    labels.Item(1)->Move(10, 10, 20, 20);
    std::string log;
    labels.Item(1)->Input.MouseDown.connect([&](int16_t, int16_t, float, float) {
        labels.Unload(1);
        log += watch.expired() ? "gone " : "alive ";
    });
    labels.Item(1)->Input.MouseDown.connect([&](int16_t, int16_t, float, float) { log += "next "; });
    window.Press(15, 15);
    EXPECT_EQ(log, "alive next ");
    window.Release(15, 15);
    window.MouseTo(100, 50);
    EXPECT_TRUE(watch.expired());
    EXPECT_EQ(labels.Count(), 1);
}

}  // namespace
}  // namespace vorlane
