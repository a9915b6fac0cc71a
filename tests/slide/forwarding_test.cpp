// What the user does on a slide of 160 x 140, alone and inside another control, and what the slide reports of it.
#include "platform/failure.h"
#include "slidetest.h"
#include "tests/platform/headless/panel.h"

namespace vorlane::headless {
namespace {

class ForwardingTest : public SlideTest {
protected:
    ForwardingTest() {
        window.Host(slide);
        slide.SetBorderDouble(false);
        slide.SetShadowWidth(2);
        slide.Refresh();
        slide.SetPicture(Bitmap(300, 150));
        desktop.trace.Clear();
    }

    Window window{desktop, {1000, 500, 1160, 640}};
};

TEST_F(ForwardingTest, ASlideAloneReportsPixelsOfItsOwnCorner) {
    window.MouseTo(50, 60);   // Img, at 9, 16.5
    window.MouseTo(20, 105);  // LblTop
    window.MouseTo(20, 120);  // LblBottom
    window.MouseTo(4, 139);   // the ground
    EXPECT_EQ(Slide(),
              "slide MouseMove 0 0 50,60\nslide MouseMove 0 0 20,105\nslide MouseMove 0 0 20,120\n"
              "slide MouseMove 0 0 4,139\n");
}

TEST_F(ForwardingTest, AClickTellsTheButtonOfItsPress) {
    window.Click(50, 60);
    window.Click(20, 105, kRightButton, kCtrl);
    window.Click(4, 139, kMiddleButton);
    window.Click(20, 120);
    EXPECT_EQ(Slide(),
              "slide MouseDown 1 0 50,60\nslide MouseUp 1 0 50,60\nslide Click 1\n"
              "slide MouseDown 2 2 20,105\nslide MouseUp 2 2 20,105\nslide Click 2\n"
              "slide MouseDown 4 0 4,139\nslide MouseUp 4 0 4,139\nslide Click 4\n"
              "slide MouseDown 1 0 20,120\nslide MouseUp 1 0 20,120\nslide Click 1\n");
}

TEST_F(ForwardingTest, ADoubleClickTellsTheButtonOfItsFirstPress) {
    for (const Point place : {Point{50, 60}, Point{20, 105}, Point{20, 120}, Point{4, 139}}) {
        window.DoubleClick(static_cast<float>(place.X), static_cast<float>(place.Y), kRightButton);
        const std::string events = Slide();
        EXPECT_NE(events.find("slide Click 2\nslide DblClick 2\n"), std::string::npos) << events;
    }
}

TEST_F(ForwardingTest, KeysOfTheGroundAreForwardedAndCanBeAnswered) {
    window.Key(65, 'a', kShift);
    EXPECT_EQ(Slide(), "slide KeyDown 65 1\nslide KeyPress 97\nslide KeyUp 65 1\n");
    slide.Events.KeyPress.connect([](int16_t& ascii) { ascii = 0; });
    int16_t ascii = 'a';
    window.Router().KeyPress(ascii);
    EXPECT_EQ(ascii, 0);
}

// The release is told from the place that the button has gone back to.
TEST_F(ForwardingTest, AButtonReportsTheMouseAndItsOwnClick) {
    slide.SetShowDiapoTools(true);
    slide.SetBtPlayVisible(true);
    slide.SetBtCommentVisible(true);
    slide.SetBtTextVisible(true);
    slide.Refresh();
    window.Click(60, 130);
    window.Click(80, 130);
    window.Click(95, 130, kRightButton);
    EXPECT_EQ(Slide(),
              "slide MouseDown 1 0 60,130\nslide MouseUp 1 0 59,129\nslide Click 1\nslide ClickPlay false\n"
              "slide MouseDown 1 0 80,130\nslide MouseUp 1 0 79,129\nslide Click 1\nslide ClickPlay true\n"
              "slide MouseDown 2 0 95,130\nslide MouseUp 2 0 94,129\nslide Click 2\nslide ClickText\n");
}

TEST_F(ForwardingTest, APressedButtonIsShiftedByOnePixelUntilItsRelease) {
    slide.SetShowDiapoTools(true);
    slide.SetBtCommentVisible(true);
    slide.Refresh();
    window.Press(80, 130);
    EXPECT_EQ(Place(slide.BtComment), "73,124 16x16");
    window.MouseTo(81, 131);
    window.Release(81, 131);
    EXPECT_EQ(Place(slide.BtComment), "72,123 16x16");
    EXPECT_EQ(Slide(),
              "slide MouseDown 1 0 80,130\nslide MouseMove 1 0 81,131\nslide MouseUp 1 0 80,130\n"
              "slide Click 1\nslide ClickPlay true\n");
}

TEST_F(ForwardingTest, MovesOverTheButtonsAreMovesOverTheSlide) {
    slide.SetShowDiapoTools(true);
    slide.SetBtPlayVisible(true);
    slide.SetBtCommentVisible(true);
    slide.SetBtTextVisible(true);
    slide.Refresh();
    window.MouseTo(60, 130);
    window.MouseTo(80, 131);
    window.MouseTo(95, 132);
    EXPECT_EQ(Slide(), "slide MouseMove 0 0 60,130\nslide MouseMove 0 0 80,131\nslide MouseMove 0 0 95,132\n");
}

// The button stands in the picture's corner.
TEST_F(ForwardingTest, WithoutAToolsRowThePlayButtonIsPressedAndReleasedInItsPlace) {
    slide.SetBtPlayVisible(true);
    slide.Refresh();
    ASSERT_EQ(Place(slide.BtPlay), "139,72.5 16x16");
    window.Press(145, 80);
    EXPECT_EQ(Place(slide.BtPlay), "140,73.5 16x16");
    window.Release(145, 80);
    EXPECT_EQ(Place(slide.BtPlay), "139,72.5 16x16");
    EXPECT_EQ(Slide(), "slide MouseDown 1 0 145,80\nslide MouseUp 1 0 144,79\nslide Click 1\nslide ClickPlay false\n");
}

TEST_F(ForwardingTest, ALayoutWhileAButtonIsDownPutsItBackForGood) {
    slide.SetShowDiapoTools(true);
    slide.SetBtCommentVisible(true);
    slide.Refresh();
    window.Press(80, 130);
    slide.Refresh();
    EXPECT_EQ(Place(slide.BtComment), "72,123 16x16");
    window.Release(80, 130);
    EXPECT_EQ(Place(slide.BtComment), "72,123 16x16");
}

TEST_F(ForwardingTest, OnlyOneButtonIsDownAtATime) {
    slide.SetShowDiapoTools(true);
    slide.SetBtCommentVisible(true);
    slide.SetBtTextVisible(true);
    slide.Refresh();
    const std::string text = Place(slide.BtTexte);
    window.Press(75, 130);
    slide.BtTexte.Input.MouseDown(1, 0, 15, 15);
    EXPECT_EQ(Place(slide.BtTexte), text);
}

TEST_F(ForwardingTest, TheInfoButtonIsShiftedToTheRightWhileItIsDown) {
    window.Press(155, 5);
    EXPECT_EQ(Place(slide.ImgInfo), "152,0 9x9");
    window.Release(155, 5);
    EXPECT_EQ(Place(slide.ImgInfo), "151,0 9x9");
}

TEST_F(ForwardingTest, TheInfoButtonReportsItsPressesAsItsOwn) {
    window.MouseTo(155, 5);  // 4, 5 of the button
    window.Press(155, 5);
    window.Release(155, 5);
    EXPECT_EQ(Slide(),
              "slide InfoMouseMove 0 0 60,75\nslide MouseMove 0 0 155,5\nslide InfoMouseDown 1 0 60,75\n"
              "slide InfoMouseUp 1 0 45,75\n");
}

TEST_F(ForwardingTest, APressOnTheInfoButtonLeavesTheButtonOfTheLastClick) {
    window.Click(50, 60, kRightButton);
    window.Press(155, 5);
    window.Release(155, 5);
    Slide();
    slide.Input.Click();
    EXPECT_EQ(Slide(), "slide Click 2\n");
}

// Moves over the zoom corner go out in its twips, not converted.
TEST_F(ForwardingTest, TheZoomCornerReportsEveryPress) {
    window.Press(3, 4);
    window.Release(3, 4);
    window.Press(3, 4, kRightButton);
    window.Release(3, 4, kRightButton);
    window.MouseTo(3, 4);
    EXPECT_EQ(Slide(), "slide ZoomMouseDown 1 0 45,60\nslide ZoomMouseDown 2 0 45,60\nslide MouseMove 0 0 45,60\n");
}

// --- Drags ---

TEST_F(ForwardingTest, ADragOverAChildComesInTheSlidesPlaces) {
    slide.Events.OLEDragOver.connect(
        [&](DataObject&, int32_t& effect, int16_t button, int16_t shift, float x, float y, int16_t state) {
            effect = 2;
            if (state == 1) return;
            desktop.trace.Add("slide OLEDragOver " + std::to_string(button) + " " + std::to_string(shift) + " " +
                              Short(x) + "," + Short(y) + " " + std::to_string(state));
        });
    slide.SetOLEDropMode(1);
    for (const Point place : {Point{50, 60}, Point{20, 105}, Point{20, 120}}) {
        DataObject data;
        int32_t effect = 0;
        window.Router().DragOver(data, effect, 1, 2, static_cast<float>(place.X), static_cast<float>(place.Y));
        const std::string over =
            "slide OLEDragOver 1 2 " + std::to_string(place.X) + "," + std::to_string(place.Y) + " ";
        EXPECT_EQ(Slide(), over + "0\n" + over + "2\n");
        EXPECT_EQ(effect, 2);
    }
}

TEST_F(ForwardingTest, ADropOnAChildComesInTheSlidesPlacesWithTheCallersData) {
    slide.Events.OLEDragDrop.connect([&](DataObject& data, int32_t& effect, int16_t, int16_t, float x, float y) {
        effect = 1;
        desktop.trace.Add("slide OLEDragDrop " + data.Text() + " " + Short(x) + "," + Short(y));
    });
    slide.SetOLEDropMode(1);
    DataObject data;
    data.SetText("a.jpg");
    int32_t effect = 0;
    window.Router().DragDrop(data, effect, 1, 0, 20, 105);
    window.Router().DragDrop(data, effect, 1, 0, 20, 120);
    window.Router().DragDrop(data, effect, 1, 0, 4, 139);
    EXPECT_EQ(Slide(),
              "slide OLEDragDrop a.jpg 20,105\nslide OLEDragDrop a.jpg 20,120\nslide OLEDragDrop a.jpg 4,139\n");
    EXPECT_EQ(effect, 1);
}

TEST_F(ForwardingTest, TheStateOfADragPassesThroughUnchanged) {
    slide.Events.OLEStartDrag.connect([](DataObject& data, int32_t& effects) {
        data.SetText("started");
        effects = 3;
    });
    slide.Events.OLEGiveFeedback.connect([](int32_t&, bool& cursors) { cursors = false; });
    slide.Events.OLESetData.connect([](DataObject&, int16_t& format) { format = 15; });
    slide.Events.OLECompleteDrag.connect([](int32_t& effect) { effect = 7; });
    for (Control* source : std::initializer_list<Control*>{&slide.Img, &slide.LblTop, &slide.LblBottom, &slide}) {
        DataObject data;
        int32_t effects = 0;
        bool cursors = true;
        int16_t format = 1;
        int32_t completed = 0;
        source->Input.OLEStartDrag(data, effects);
        source->Input.OLEGiveFeedback(effects, cursors);
        source->Input.OLESetData(data, format);
        source->Input.OLECompleteDrag(completed);
        EXPECT_EQ(data.Text(), "started");
        EXPECT_EQ(effects, 3);
        EXPECT_FALSE(cursors);
        EXPECT_EQ(format, 15);
        EXPECT_EQ(completed, 7);
    }
}

// --- Inside another control ---

class InsideTest : public SlideTest {
protected:
    InsideTest() {
        window.Host(sheet);
        inner.Start();
        inner.Move(100, 50, 160, 140);
        inner.SetBorderDouble(false);
        inner.SetShadowWidth(2);
        inner.Refresh();
        inner.SetPicture(Bitmap(300, 150));
        Listen(desktop.trace, inner);
        desktop.trace.Clear();
    }

    Window window{desktop, {1000, 500, 1400, 800}};
    Panel sheet{desktop, window.Ambient()};
    eDiapoLight inner{desktop.Roles(), window.Ambient(ScaleMode::Twips), &sheet};
};

TEST_F(InsideTest, ASlideInAContainerOfTwipsReportsTwipsOfItsOwnCorner) {
    window.MouseTo(150, 110);
    window.MouseTo(104, 189);
    EXPECT_EQ(Slide(), "slide MouseMove 0 0 750,900\nslide MouseMove 0 0 60,2085\n");
}

TEST_F(InsideTest, ADragOverTheGroundComesInPixelsAndOverAChildInTheContainersScale) {
    inner.Events.OLEDragOver.connect([&](DataObject&, int32_t&, int16_t, int16_t, float x, float y, int16_t state) {
        if (state == 2) desktop.trace.Add("slide OLEDragOver " + Short(x) + "," + Short(y));
    });
    inner.SetOLEDropMode(1);
    DataObject data;
    int32_t effect = 0;
    window.Router().DragOver(data, effect, 1, 0, 150, 110);
    window.Router().DragOver(data, effect, 1, 0, 104, 189);
    EXPECT_EQ(Slide(), "slide OLEDragOver 750,900\nslide OLEDragOver 4,139\n");
}

TEST_F(InsideTest, AHostThatFailsInAMouseEventIsNoMatterOfTheSlide) {
    inner.Events.MouseDown.connect([](int16_t, int16_t, float, float) { throw failures::InvalidCall(); });
    EXPECT_NO_THROW(window.Click(150, 110));
    EXPECT_EQ(Slide(), "slide MouseDown 1 0 750,900\nslide MouseUp 1 0 750,900\nslide Click 1\n");
}

}  // namespace
}  // namespace vorlane::headless
