// Where the layout puts the children, on a slide of 160 x 140 with two lines of shadow and single frames, in a font 13
// pixels high.
#include "slidetest.h"

namespace vorlane::headless {
namespace {

class LayoutTest : public LaidSlideTest {
protected:
    // One child a line: its place, and "hidden" if it is.
    std::string Children() const {
        std::string text = "\n";
        const auto add = [&text](const char* name, const Control& child) {
            text += std::string(name) + " " + Place(child) + (child.Visible() ? "\n" : " hidden\n");
        };
        add("BtTexte", slide.BtTexte);
        add("BtComment", slide.BtComment);
        add("BtPlay", slide.BtPlay);
        add("LblTop", slide.LblTop);
        add("LblBottom", slide.LblBottom);
        add("CornerResize", slide.CornerResize);
        add("ImgInfo", slide.ImgInfo);
        add("Img", slide.Img);
        add("Slider", slide.Slider);
        return text;
    }

    // The boxes drawn inside the outer frame, without their colours.
    std::string Frames() const {
        std::string text;
        for (const auto& command : slide.Surface().Commands()) {
            const auto& box = std::get<draw::OutlinedBox>(command);
            text += "Box " + Short(box.X1) + "," + Short(box.Y1) + " " + Short(box.X2) + "," + Short(box.Y2) + "\n";
        }
        return text.substr(text.find('\n') + 1);
    }

    // The first of them, which is the picture frame.
    std::string Frame() const {
        const std::string frames = Frames();
        return frames.substr(0, frames.find('\n'));
    }
};

Font Sized(float size) {
    Font font;
    font.Size = size;
    return font;
}

TEST_F(LayoutTest, ChildrenStandInTheirDeclaredOrderWithTheSliderInFront) {
    const std::vector<Control*> expected{&slide.Slider,       &slide.BtTexte, &slide.BtComment,
                                         &slide.BtPlay,       &slide.LblTop,  &slide.LblBottom,
                                         &slide.CornerResize, &slide.ImgInfo, &slide.Img};
    EXPECT_EQ(slide.Children(), expected);
}

TEST_F(LayoutTest, APictureStandsInTheMiddleOfItsAreaAndTheTextsUnderIt) {
    slide.SetPicture(Bitmap(300, 150));
    EXPECT_EQ(Children(), R"(
BtTexte 0,0 16x16 hidden
BtComment 0,0 16x16 hidden
BtPlay 0,0 16x16 hidden
LblTop 1,100 158x13
LblBottom 1,113 158x26
CornerResize 0,0 9x9
ImgInfo 151,0 9x9
Img 9,16.5 146x73
Slider -1,9 9x89
)");
    EXPECT_EQ(slide.Slider.Value(), 50);
}

TEST_F(LayoutTest, TheToolsRowStandsInsideTheCaption) {
    slide.SetShowDiapoTools(true);
    slide.SetBtPlayVisible(true);
    slide.SetBtCommentVisible(true);
    slide.SetBtTextVisible(true);
    slide.SetPicture(Bitmap(300, 150));
    slide.Refresh();
    EXPECT_EQ(Children(), R"(
BtTexte 90,123 16x16
BtComment 73,123 16x16
BtPlay 56,123 16x16
LblTop 1,83 158x13
LblBottom 1,96 158x43
CornerResize 0,0 9x9
ImgInfo 151,0 9x9
Img 13,10 138x69
Slider -1,9 9x72
)");
}

TEST_F(LayoutTest, TheToolsRowIsCentredOnItsVisibleButtons) {
    slide.SetShowDiapoTools(true);
    slide.SetBtCommentVisible(true);
    slide.SetBtTextVisible(true);
    slide.Refresh();
    EXPECT_EQ(Place(slide.BtComment), "64,123 16x16");
    EXPECT_EQ(Place(slide.BtTexte), "81,123 16x16");
    EXPECT_EQ(Place(slide.BtPlay), "0,0 16x16");
}

TEST_F(LayoutTest, NoVisibleButtonMovesNothing) {
    slide.SetShowDiapoTools(true);
    slide.PlaceButtons();
    EXPECT_EQ(Place(slide.BtPlay), "0,0 16x16");
    EXPECT_EQ(Place(slide.BtComment), "0,0 16x16");
    EXPECT_EQ(Place(slide.BtTexte), "0,0 16x16");
}

TEST_F(LayoutTest, WithoutAToolsRowPlaceButtonsMovesNothing) {
    slide.SetBtCommentVisible(true);
    slide.PlaceButtons();
    EXPECT_EQ(Place(slide.BtComment), "0,0 16x16");
}

TEST_F(LayoutTest, WithoutAToolsRowThePlayButtonStandsInThePicturesCorner) {
    slide.SetBtPlayVisible(true);
    slide.SetPicture(Bitmap(300, 150));
    EXPECT_EQ(Place(slide.BtPlay), "139,72.5 16x16");
}

TEST_F(LayoutTest, WithoutANameTheCaptionIsMeasuredInTheNamesFont) {
    slide.SetFontImageName(Sized(16.5F));
    slide.SetShowFileName(false);
    EXPECT_EQ(slide.LblTop.Height(), 0);
    EXPECT_EQ(slide.LblBottom.Height(), 52);
    EXPECT_EQ(slide.Surface().Font(), Sized(16.5F));
}

TEST_F(LayoutTest, ANameAndItsCaptionAreMeasuredEachInItsFont) {
    slide.SetFontImageName(Sized(16.5F));
    slide.Refresh();
    EXPECT_EQ(slide.LblTop.Height(), 26);
    EXPECT_EQ(slide.LblBottom.Height(), 26);
    EXPECT_EQ(slide.Surface().Font(), Font{});
}

TEST_F(LayoutTest, AFontAloneLaysNothingOut) {
    EXPECT_FALSE(LaysOut([&] { slide.SetFontImageName(Sized(16.5F)); }));
    EXPECT_FALSE(LaysOut([&] { slide.SetFontBottom(Sized(16.5F)); }));
}

// The height that the info button leaves free is the one that it had before this layout.
TEST_F(LayoutTest, TheRowOfTheInfoButtonGoesInTwoLayouts) {
    slide.SetNoResize(true);
    slide.SetShowInfo(false);
    slide.SetShowZoom(false);
    slide.Refresh();
    EXPECT_EQ(slide.ImgInfo.Height(), 0);
    EXPECT_EQ(Frame(), "Box 1,0 148,87");
    slide.Refresh();
    EXPECT_EQ(Frame(), "Box 1,0 148,96");
}

TEST_F(LayoutTest, TheInfoButtonsRowStaysForTheZoomCornerAlone) {
    slide.SetShowInfo(false);
    EXPECT_EQ(slide.ImgInfo.Height(), 9);
    EXPECT_FALSE(slide.ImgInfo.Visible());
    EXPECT_EQ(Frame(), "Box 1,9 148,96");
}

TEST_F(LayoutTest, WithoutAShadowTheMarginCountsOnBothSides) {
    slide.SetShowShadow(false);
    EXPECT_EQ(Frame(), "Box 1,9 147,98");
    slide.SetImageMarge(0);
    EXPECT_EQ(Frame(), "Box 1,9 157,98");
}

TEST_F(LayoutTest, ABorderSizeThatOverflowsAByteLeavesNoGap) {
    slide.SetBorderDouble(true);
    slide.SetShowShadow(false);
    slide.SetBorderSize(254);
    EXPECT_EQ(Frames(), "Box 1,9 147,98\nBox 256,264 -108,-157\n");
    slide.SetBorderSize(255);
    EXPECT_EQ(Frames(), "Box 1,9 147,98\nBox 1,9 147,98\n");
}

TEST_F(LayoutTest, AStatementThatFailsLeavesItsValueAndTheNextOnesRun) {
    slide.LblTop.SetFont(Sized(1e30F));
    slide.SetBorderStyle(DiapoBorderStyle::BorderNone);
    slide.SetBorderStyle(DiapoBorderStyle::FlatBackColor);
    EXPECT_EQ(Frame(), "Box 1,9 148,96");
    EXPECT_EQ(Place(slide.LblBottom), "1,113 158x26");
    slide.SetImageMarge(0);
    EXPECT_EQ(Frame(), "Box 1,9 153,96");
}

TEST_F(LayoutTest, ASlideSmallerThanItsFramesKeepsSizesAtZeroOrMore) {
    slide.SetPicture(Bitmap(300, 150));
    slide.Move(0, 0, 1, 1);
    EXPECT_EQ(Place(slide.LblBottom), "1,0 0x26");
    EXPECT_EQ(Place(slide.LblTop), "1,-13 0x13");
    EXPECT_EQ(slide.Img.Width(), 0);
    EXPECT_EQ(slide.Img.Height(), 0);
    EXPECT_LT(slide.Slider.Height(), 0);
}

// 158 pixels are 4180 whole units of a hundredth of a millimetre, 159 are 4207.
TEST_F(LayoutTest, APictureUpToTenPixelsLargerThanItsPlaceShowsNeitherCornerNorGauge) {
    slide.SetImageMarge(3);
    slide.SetPicture(Bitmap(158, 20));
    EXPECT_EQ(slide.Img.Width(), 148);
    EXPECT_FALSE(slide.CornerResize.Visible());
    EXPECT_FALSE(slide.Slider.Visible());
    slide.SetPicture(Bitmap(159, 20));
    EXPECT_EQ(slide.Img.Width(), 148);
    EXPECT_TRUE(slide.CornerResize.Visible());
    EXPECT_TRUE(slide.Slider.Visible());
}

TEST_F(LayoutTest, APictureReducedInHeightAloneShowsCornerAndGauge) {
    slide.SetPicture(Bitmap(20, 300));
    EXPECT_TRUE(slide.CornerResize.Visible());
    EXPECT_TRUE(slide.Slider.Visible());
}

TEST_F(LayoutTest, WithoutAutoCornerResizeTheCornerAlwaysShows) {
    slide.SetAutoCornerResize(false);
    slide.SetPicture(Bitmap(20, 20));
    EXPECT_TRUE(slide.CornerResize.Visible());
    slide.SetShowZoom(false);
    EXPECT_FALSE(slide.CornerResize.Visible());
}

TEST_F(LayoutTest, TheGaugeBeginsAtTheTopWithoutAZoomCorner) {
    slide.SetShowZoom(false);
    slide.SetPicture(Bitmap(300, 150));
    EXPECT_EQ(Place(slide.Slider), "-1,0 9x98");
}

TEST_F(LayoutTest, TheGaugeTellsThePercentageThatThePictureIsReduced) {
    slide.SetPicture(Bitmap(1470, 20));
    EXPECT_EQ(slide.Slider.Value(), 90);
}

TEST_F(LayoutTest, WithoutAPictureTheGaugeStandsAtItsEndUnseen) {
    slide.Slider.SetValue(7);
    slide.Slider.SetVisible(true);
    slide.Refresh();
    EXPECT_EQ(slide.Slider.Value(), 100);
    EXPECT_FALSE(slide.Slider.Visible());
    EXPECT_EQ(Place(slide.Slider), "-1,0 9x98");
}

TEST_F(LayoutTest, WithoutShowJaugeTheGaugeIsHidden) {
    slide.SetPicture(Bitmap(300, 150));
    ASSERT_TRUE(slide.Slider.Visible());
    slide.SetShowJauge(false);
    EXPECT_FALSE(slide.Slider.Visible());
}

TEST_F(LayoutTest, WithoutOuterFrameAndShadowCornerAndGaugeAreLeftAlone) {
    slide.SetPicture(Bitmap(300, 150));
    slide.SetBorderStyleExt(DiapoBorderStyle::BorderNone);
    slide.SetShowShadow(false);
    slide.SetPicture(Bitmap(20, 20));
    EXPECT_TRUE(slide.CornerResize.Visible());
    EXPECT_TRUE(slide.Slider.Visible());
    slide.SetShowJauge(false);
    EXPECT_TRUE(slide.Slider.Visible());
}

TEST_F(LayoutTest, AResizeLaysOut) {
    EXPECT_TRUE(LaysOut([&] { slide.SetWidth(170); }));
    EXPECT_FALSE(LaysOut([&] { slide.Move(20, 30); }));
}

TEST_F(LayoutTest, NoResizeHoldsTheLayoutBackUntilRefresh) {
    slide.SetNoResize(true);
    EXPECT_FALSE(LaysOut([&] { slide.SetWidth(170); }));
    EXPECT_FALSE(LaysOut([&] { slide.SetShowInfo(false); }));
    EXPECT_TRUE(LaysOut([&] { slide.Refresh(); }));
    EXPECT_FALSE(slide.NoResize());
}

TEST_F(LayoutTest, NoResizeHasNoEffectInDesignMode) {
    Ambient designer;
    designer.UserMode = false;
    eDiapoLight designed{desktop.Roles(), designer};
    designed.Start();
    EXPECT_TRUE(designed.NoResize());
    EXPECT_EQ(Place(designed.LblBottom), "1,48 98x26");
    EXPECT_FALSE(designed.Surface().Commands().empty());
}

TEST_F(LayoutTest, NothingIsLaidOutBeforeThePropertiesAreThere) {
    eDiapoLight fresh{desktop.Roles(), Ambient{}};
    fresh.Refresh();
    fresh.Move(0, 0, 160, 140);
    EXPECT_TRUE(fresh.Surface().Commands().empty());
    EXPECT_EQ(Place(fresh.LblBottom), "0,0 0x0");
}

}  // namespace
}  // namespace vorlane::headless
