#include "platform/headless/userdrag.h"
#include "platform/image.h"
#include "tests/platform/headless/panel.h"

#include <gtest/gtest.h>
#include <stdexcept>
#include <string>

namespace vorlane::headless {
namespace {

// Two windows with a picture each, of which the first can be dragged.
class OLEDragTest : public testing::Test {
protected:
    OLEDragTest() {
        for (auto* picture : {&source, &target}) {
            picture->Move(10, 20, 30, 40);
            picture->SetOLEDropMode(1);
        }
        window.Host(root);
        other.Host(otherRoot);
        Listen(desktop, source, "source");
        Listen(desktop, target, "target");
        source.Input.OLEStartDrag.connect([this](DataObject& data, int32_t& effects) {
            Say("start allows " + std::to_string(effects));
            data.SetFiles({"/p/a.jpg|1", "/p/b.jpg|2"});
            effects |= 2;
        });
        source.Input.OLESetData.connect([this](DataObject& data, int16_t& format) {
            Say("content of " + std::to_string(format));
            data.SetText("late");
        });
        source.Input.OLEGiveFeedback.connect(
            [this](int32_t& effect, bool&) { Say("feedback " + std::to_string(effect)); });
        source.Input.OLECompleteDrag.connect([this](int32_t& effect) { Say("complete " + std::to_string(effect)); });
        desktop.trace.Clear();
    }

    void Say(const std::string& line) { desktop.trace.Add("input " + line); }
    std::string Heard() { return desktop.trace.Take({"input", "drag"}); }

    Desktop desktop;
    Window window{desktop, {0, 0, 200, 150}};
    Window other{desktop, {300, 0, 500, 150}};
    Panel root{desktop, window.Ambient()};
    Image source{&root};
    Panel otherRoot{desktop, other.Ambient()};
    Image target{&otherRoot};
};

TEST_F(OLEDragTest, ADragIsStartedFollowedAndCompleted) {
    desktop.drags.Script([&](UserDrag& drag) {
        drag.Over(window, 150, 100);
        drag.Over(other, 20, 30);
        EXPECT_EQ(drag.Effect(), 2);
        drag.Drop();
        EXPECT_TRUE(drag.Ended());
    });
    source.OLEDrag();
    EXPECT_EQ(Heard(),
              "input start allows 1\n"
              "drag start 3 2\n"
              "input target OLEDragOver 150,150 0\n"
              "input target OLEDragOver 150,150 2\n"
              "input feedback 2\n"
              "input target OLEDragDrop 150,150 \n"
              "drag end 2\n"
              "input complete 2\n");
}

TEST_F(OLEDragTest, ASourceThatDoesWithoutTheSystemsPointersShowsItsOwnPicture) {
    bool systems = false;
    source.Input.OLEGiveFeedback.connect([&](int32_t&, bool& cursors) { cursors = systems; });
    const Picture hand = FakePictures::Make("hand", 16, 16);
    root.SetMousePointer(Control::kPointerIsIcon);
    root.SetMouseIcon(hand);
    desktop.drags.Script([&](UserDrag& drag) {
        EXPECT_EQ(drag.Pointer().Type(), 0);
        drag.Over(other, 20, 30);
        EXPECT_EQ(drag.Pointer(), hand) << "that of its container";
        systems = true;
        drag.Over(window, 150, 100);
        EXPECT_EQ(drag.Pointer().Type(), 0);
        systems = false;
        source.SetMousePointer(2);
        drag.Over(other, 20, 30);
        EXPECT_EQ(drag.Pointer().Type(), 0) << "a shape is no picture";
    });
    source.OLEDrag();
}

TEST_F(OLEDragTest, WithoutADropItEndsWithNothingDone) {
    source.OLEDrag();
    EXPECT_EQ(Heard(), "input start allows 1\ndrag start 3 2\ndrag end 0\ninput complete 0\n");
}

TEST_F(OLEDragTest, ADropWhereNothingIsToBeDoneIsNotDelivered) {
    target.Input.OLEDragOver.connect(
        [](DataObject&, int32_t& effect, int16_t, int16_t, float, float, int16_t) { effect = 4; });
    desktop.drags.Script([&](UserDrag& drag) { drag.Drop(other, 20, 30); });
    source.OLEDrag();
    EXPECT_EQ(desktop.trace.Text().find("OLEDragDrop"), std::string::npos);
    EXPECT_NE(Heard().find("input target OLEDragOver 0,0 1\ndrag end 0\ninput complete 0\n"), std::string::npos);
}

TEST_F(OLEDragTest, EscapeEndsItAndIsDownMeanwhile) {
    target.Input.OLEDragOver.connect([&](DataObject&, int32_t&, int16_t, int16_t, float, float, int16_t state) {
        if (state == 1) Say(desktop.keyboard.KeyIsDown(27) ? "left by escape" : "left");
    });
    desktop.drags.Script([&](UserDrag& drag) {
        drag.Over(other, 20, 30);
        drag.Escape();
    });
    source.OLEDrag();
    EXPECT_NE(Heard().find("input left by escape\ninput feedback 0\ndrag end 0\ninput complete 0\n"),
              std::string::npos);
    EXPECT_FALSE(desktop.keyboard.KeyIsDown(27));
}

TEST_F(OLEDragTest, ADragThatAllowsNothingRunsAndCanBeDroppedNowhere) {
    source.Input.OLEStartDrag.connect([](DataObject&, int32_t& effects) { effects = 0; });
    desktop.drags.Script([&](UserDrag& drag) {
        drag.Over(other, 20, 30);
        EXPECT_EQ(drag.Effect(), 0);
        drag.Drop();
    });
    source.OLEDrag();
    EXPECT_EQ(desktop.trace.Text().find("OLEDragDrop"), std::string::npos);
    EXPECT_NE(Heard().find("drag start 0 2\n"), std::string::npos);
}

TEST_F(OLEDragTest, DataThatWasDeclaredAndNotGivenIsAskedFor) {
    source.Input.OLEStartDrag.connect([](DataObject& data, int32_t&) { data.SetData(kFormatText); });
    source.OLEDrag();
    EXPECT_EQ(Heard(), "input start allows 1\ninput content of 1\ndrag start 3 2\ndrag end 0\ninput complete 0\n");
}

TEST_F(OLEDragTest, DataOfNoFormatIsNotDragged) {
    source.Input.OLEStartDrag.connect([](DataObject& data, int32_t&) { data.Clear(); });
    source.OLEDrag();
    EXPECT_EQ(Heard(), "input start allows 1\ninput complete 0\n");
}

TEST_F(OLEDragTest, ADragThatBeginsInsideAPressLeavesNoButtonDown) {
    source.Input.MouseDown.connect([this](int16_t, int16_t, float, float) { source.OLEDrag(); });
    window.Press(12, 25);
    EXPECT_FALSE(desktop.keyboard.KeyIsDown(1));
    desktop.trace.Clear();
    window.MouseTo(20, 30);
    EXPECT_EQ(Heard(), "input source MouseMove 0 0 150,150\n");
}

TEST_F(OLEDragTest, ADragInsideADragEndsAtOnce) {
    desktop.drags.Script([&](UserDrag&) { source.OLEDrag(); });
    source.OLEDrag();
    EXPECT_EQ(Heard(),
              "input start allows 1\n"
              "drag start 3 2\n"
              "input start allows 1\n"
              "input complete 0\n"
              "drag end 0\n"
              "input complete 0\n");
}

TEST_F(OLEDragTest, AForeignDragCarriesItsOwnData) {
    DataObject data;
    data.SetText("from afar");
    UserDrag drag(desktop, data, kDropCopies);
    target.Input.OLEDragOver.connect(
        [](DataObject&, int32_t& effect, int16_t, int16_t, float, float, int16_t) { effect = 3; });
    drag.Over(other, 20, 30);
    EXPECT_EQ(drag.Effect(), 1);
    drag.Over(other, -5, 30);
    EXPECT_EQ(drag.Effect(), 0);
    drag.Drop(other, 21, 30);
    EXPECT_EQ(Heard(),
              "input target OLEDragOver 150,150 0\n"
              "input target OLEDragOver 150,150 2\n"
              "input target OLEDragOver 0,0 1\n"
              "input target OLEDragOver 165,150 0\n"
              "input target OLEDragOver 165,150 2\n"
              "input target OLEDragDrop 165,150 from afar\n");
    EXPECT_EQ(drag.Effect(), 1);
}

}  // namespace
}  // namespace vorlane::headless
