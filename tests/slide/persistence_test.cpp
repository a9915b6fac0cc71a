#include "platform/failure.h"
#include "slidetest.h"

#include <cmath>
#include <limits>
#include <map>

namespace vorlane::headless {
namespace {

using Values = std::map<std::string, BagValue>;

class PersistenceTest : public SlideTest {
protected:
    // Every persisted property of a slide by its key.
    static Values Persisted(const eDiapoLight& slide) {
        Values values;
        for (const auto& property : eDiapoLight::PersistedProperties()) {
            values.emplace(property.Key, property.Value(slide));
        }
        return values;
    }

    // A bag with a value of its own under every key.
    static PropertyBag FullBag() {
        PropertyBag bag;
        for (const char* flag : {"NoResize", "AlwaysFullSize", "AutoAdjust", "AutoCornerResize", "BorderDouble",
                                 "Enabled", "ShowShadow", "ShowFileName", "ShowInfo", "ShowZoom", "ShowJauge"}) {
            bag.SetValue(flag, false);
        }
        for (const char* flag : {"Selected", "Thumbnail", "ShowDiapoTools"}) bag.SetValue(flag, true);
        int64_t number = 0x101;
        for (const char* color : {"BackColor", "BackColorSelected", "BorderColor", "BorderColorExt", "ForeColor",
                                  "ShadowColor", "ThumbnailSizeNormal", "ThumbnailSizeHigh", "Value"}) {
            bag.SetValue(color, number++);
        }
        number = 11;
        for (const char* small : {"BorderSize", "BorderStyle", "BorderStyleExt", "CaptionBottomNbLig", "ImageMarge",
                                  "MousePointer", "OLEDropMode", "OLEDragMode", "ShadowWidth", "ThumbnailResolution"}) {
            bag.SetValue(small, number++);
        }
        for (const char* text : {"CaptionBottom", "ToolTipBtPlay", "ToolTipBtComment", "ToolTipBtText"}) {
            bag.SetValue(text, std::string("de ") + text);
        }
        bag.SetValue("FontBottom", Font{"Serif", 12});
        bag.SetValue("FontImageName", Font{"Mono", 14});
        bag.SetValue("MouseIcon", Bitmap(32, 32));
        return bag;
    }

    static Values In(const PropertyBag& bag) { return {bag.Values().begin(), bag.Values().end()}; }
};

TEST_F(PersistenceTest, AFontOfAnImpossibleSizeIsPassedOver) {
    slide.SetFontImageName({"Mono", 14});
    for (const float size : {0.0F, -8.0F, 2161.0F, std::numeric_limits<float>::infinity(), std::nanf("")}) {
        PropertyBag bag = FullBag();
        bag.SetValue("FontImageName", Font{"Serif", size});
        slide.ReadProperties(bag);
        EXPECT_EQ(slide.FontImageName(), (Font{"Mono", 14})) << size;
        EXPECT_EQ(slide.FontBottom(), (Font{"Serif", 12})) << "the other keys are read";
        EXPECT_THROW(slide.SetFontBottom({"Mono", size}), Failure) << size;
        EXPECT_EQ(slide.FontBottom(), (Font{"Serif", 12}));
    }
    PropertyBag largest;
    largest.SetValue("FontBottom", Font{"Serif", 2160});
    slide.ReadProperties(largest);
    EXPECT_EQ(slide.FontBottom().Size, 2160);
}

TEST_F(PersistenceTest, TheKeysAreReadInTheirOrder) {
    std::string keys;
    for (const auto& property : eDiapoLight::PersistedProperties()) keys += property.Key + " ";
    EXPECT_EQ(keys,
              "NoResize AlwaysFullSize AutoAdjust AutoCornerResize BackColor BackColorSelected BorderColor "
              "BorderColorExt BorderDouble BorderSize BorderStyle BorderStyleExt CaptionBottom CaptionBottomNbLig "
              "Enabled FontBottom FontImageName ForeColor ImageMarge MouseIcon MousePointer OLEDropMode OLEDragMode "
              "Selected ShadowWidth ShowShadow ShadowColor Thumbnail ThumbnailResolution ThumbnailSizeNormal "
              "ThumbnailSizeHigh Value ToolTipBtPlay ToolTipBtComment ToolTipBtText ShowFileName ShowInfo ShowZoom "
              "ShowJauge ShowDiapoTools ");
}

TEST_F(PersistenceTest, AnEmptyBagReadsAsTheDefaults) {
    slide.ReadProperties({});
    const Font font;
    const Values expected{{"NoResize", true},
                          {"AlwaysFullSize", true},
                          {"AutoAdjust", true},
                          {"AutoCornerResize", true},
                          {"BackColor", int64_t{0xFFFFFF}},
                          {"BackColorSelected", int64_t{0x6FB5FB}},
                          {"BorderColor", int64_t{0xC0C0C0}},
                          {"BorderColorExt", int64_t{0x8C021B}},
                          {"BorderDouble", true},
                          {"BorderSize", int64_t{5}},
                          {"BorderStyle", int64_t{2}},
                          {"BorderStyleExt", int64_t{0}},
                          {"CaptionBottom", std::string()},
                          {"CaptionBottomNbLig", int64_t{2}},
                          {"Enabled", true},
                          {"FontBottom", font},
                          {"FontImageName", font},
                          {"ForeColor", int64_t{0}},
                          {"ImageMarge", int64_t{5}},
                          {"MouseIcon", Picture{}},
                          {"MousePointer", int64_t{0}},
                          {"OLEDropMode", int64_t{0}},
                          {"OLEDragMode", int64_t{0}},
                          {"Selected", false},
                          {"ShadowWidth", int64_t{5}},
                          {"ShowShadow", true},
                          {"ShadowColor", int64_t{0xB4B4B4}},
                          {"Thumbnail", false},
                          {"ThumbnailResolution", int64_t{0}},
                          {"ThumbnailSizeNormal", int64_t{150}},
                          {"ThumbnailSizeHigh", int64_t{500}},
                          {"Value", int64_t{0}},
                          {"ToolTipBtPlay", std::string()},
                          {"ToolTipBtComment", std::string()},
                          {"ToolTipBtText", std::string()},
                          {"ShowFileName", true},
                          {"ShowInfo", true},
                          {"ShowZoom", true},
                          {"ShowJauge", true},
                          {"ShowDiapoTools", false}};
    EXPECT_EQ(Persisted(slide), expected);
}

// A new slide differs from one read from an empty bag in its frames and its ground.
TEST_F(PersistenceTest, ANewSlideHasFlatFramesAndTheGroundOfItsContainer) {
    slide.InitProperties();
    eDiapoLight read{desktop.Roles(), Ambient{}};
    read.ReadProperties({});
    Values expected = Persisted(read);
    expected["BackColor"] = int64_t{0x8000000F};
    expected["BorderColorExt"] = int64_t{0xC0C0C0};
    expected["BorderStyle"] = int64_t{5};
    expected["BorderStyleExt"] = int64_t{5};
    EXPECT_EQ(Persisted(slide), expected);
}

TEST_F(PersistenceTest, ANewSlideIsNotLaidOutBeforeItsFirstShow) {
    Ambient designer;
    designer.UserMode = false;
    eDiapoLight designed{desktop.Roles(), designer};
    designed.InitProperties();
    EXPECT_TRUE(designed.Surface().Commands().empty());
    designed.Show();
    EXPECT_FALSE(designed.Surface().Commands().empty());
}

TEST_F(PersistenceTest, ANewSlideIsWhiteOnceItHasBeenSelected) {
    slide.InitProperties();
    slide.SetSelected(true);
    slide.SetSelected(false);
    EXPECT_EQ(slide.BackColor(), 0xFFFFFFU);
}

TEST_F(PersistenceTest, AHostThatFailsWhenItHearsOfAChangeLeavesANewSlideReady) {
    slide.PropertyChanged.connect([](std::string_view) { throw failures::InvalidCall(); });
    EXPECT_NO_THROW(slide.InitProperties());
    EXPECT_EQ(slide.BorderSize(), 5);
    EXPECT_TRUE(LaysOut([&] { slide.Refresh(); }));
}

TEST_F(PersistenceTest, EveryKeyIsReadAndWrittenBack) {
    const PropertyBag bag = FullBag();
    ASSERT_EQ(bag.Values().size(), eDiapoLight::PersistedProperties().size());
    slide.ReadProperties(bag);
    EXPECT_EQ(Persisted(slide), In(bag));
    PropertyBag written;
    slide.WriteProperties(written);
    EXPECT_EQ(In(written), In(bag));
}

TEST_F(PersistenceTest, AValueEqualToItsDefaultIsNotStored) {
    slide.ReadProperties({});
    PropertyBag written;
    slide.WriteProperties(written);
    EXPECT_TRUE(written.Empty());
}

TEST_F(PersistenceTest, FontsDefaultToTheContainersFont) {
    Ambient ambient;
    ambient.Font = {"Serif", 12};
    eDiapoLight read{desktop.Roles(), ambient};
    read.ReadProperties({});
    EXPECT_EQ(read.FontBottom(), ambient.Font);
    EXPECT_EQ(read.FontImageName(), ambient.Font);
    PropertyBag written;
    read.WriteProperties(written);
    EXPECT_TRUE(written.Empty());
}

TEST_F(PersistenceTest, AMissingForeColorLeavesTheOneThatStands) {
    slide.SetForeColor(0x123456);
    slide.ReadProperties({});
    EXPECT_EQ(slide.ForeColor(), 0x123456U);
    EXPECT_EQ(slide.LblBottom.ForeColor(), 0x123456U);
}

TEST_F(PersistenceTest, AMissingOuterBorderIsNone) {
    slide.ReadProperties({});
    EXPECT_EQ(slide.BorderStyleExt(), DiapoBorderStyle::BorderNone);
}

TEST_F(PersistenceTest, SelectedIsReadWithoutItsColour) {
    PropertyBag bag;
    bag.SetValue("Selected", true);
    slide.Start(bag);
    slide.Refresh();
    EXPECT_TRUE(slide.Selected());
    EXPECT_EQ(slide.BackColor(), 0xFFFFFFU);
    slide.SetSelected(true);
    EXPECT_EQ(slide.BackColor(), 0xFFFFFFU);
    slide.SetSelected(false);
    slide.SetSelected(true);
    EXPECT_EQ(slide.BackColor(), 0x6FB5FBU);
}

TEST_F(PersistenceTest, NoResizeKeepsASlideUndrawnPastItsFirstShow) {
    slide.Start(PropertyBag{});
    EXPECT_TRUE(slide.Surface().Commands().empty());
    slide.Show();
    EXPECT_TRUE(slide.Surface().Commands().empty());
    slide.Refresh();
    EXPECT_FALSE(slide.Surface().Commands().empty());
}

TEST_F(PersistenceTest, TheFirstShowAloneLaysOut) {
    PropertyBag bag;
    bag.SetValue("NoResize", false);
    slide.ReadProperties(bag);
    EXPECT_FALSE(LaysOut([] {}));
    EXPECT_TRUE(LaysOut([&] { slide.Show(); }));
    EXPECT_FALSE(LaysOut([&] { slide.Show(); }));
}

TEST_F(PersistenceTest, ReadingLaysNothingOut) {
    PropertyBag bag = FullBag();
    bag.SetValue("NoResize", false);
    EXPECT_FALSE(LaysOut([&] { slide.ReadProperties(bag); }));
    bag.SetValue("BackColor", int64_t{0x99});
    EXPECT_FALSE(LaysOut([&] { slide.ReadProperties(bag); })) << "once more, when the slide was ready";
}

TEST_F(PersistenceTest, OnlyWhatGoesThroughASetterIsReportedWhileReading) {
    slide.ReadProperties(FullBag());
    EXPECT_EQ(Changed(),
              "changed BackColor\nchanged ForeColor\nchanged MouseIcon\nchanged MousePointer\nchanged OLEDropMode\n"
              "changed OLEDragMode\nchanged ShowDiapoTools\n");
}

TEST_F(PersistenceTest, ABadValueLeavesItsPropertyAndTheOthersAreRead) {
    PropertyBag bag;
    bag.SetValue("BorderSize", int64_t{256});
    bag.SetValue("ShadowWidth", std::string("large"));
    bag.SetValue("MouseIcon", std::string("none"));
    bag.SetValue("ShowInfo", false);
    slide.SetBorderSize(17);
    slide.ReadProperties(bag);
    EXPECT_EQ(slide.BorderSize(), 17);
    EXPECT_EQ(slide.ShadowWidth(), 0);
    EXPECT_FALSE(slide.ShowInfo());
    EXPECT_TRUE(LaysOut([&] { slide.Refresh(); }));
}

// The ground that shows already never becomes the normal one.
TEST_F(PersistenceTest, AGroundReadAsItShowsLetsTheShadowFadeToBlack) {
    Ambient white;
    white.BackColor = 0xFFFFFF;
    PropertyBag bag;
    bag.SetValue("ShadowWidth", int64_t{2});
    bag.SetValue("BorderDouble", false);
    eDiapoLight read{desktop.Roles(), white};
    read.Start(bag);
    read.Refresh();
    EXPECT_NE(read.Surface().dump().find("#B4B4B4\n"), std::string::npos);
    EXPECT_NE(read.Surface().dump().find("#5A5A5A\n"), std::string::npos);
    read.SetBackColor(0xFEFEFE);
    EXPECT_EQ(read.Surface().dump().find("#5A5A5A\n"), std::string::npos);
}

TEST_F(PersistenceTest, ASelectedSlideStoresTheGroundThatShows) {
    slide.ReadProperties({});
    slide.SetSelected(true);
    PropertyBag written;
    slide.WriteProperties(written);
    EXPECT_EQ(written.Value("BackColor"), BagValue(int64_t{0x6FB5FB}));
}

// --- Copies of a design ---

class CopyTest : public PersistenceTest {
protected:
    eDiapoLight copy{desktop.Roles(), Ambient{}};
};

TEST_F(CopyTest, ACopyTakesOverTheSettingsAsTheyAreNow) {
    slide.ReadProperties(FullBag());
    slide.SetSelected(false);
    slide.SetImageMarge(3);
    slide.SetToolTipBtPlay("jouer");
    copy.CopyDesign(slide);
    Values expected = Persisted(slide);
    expected["Value"] = int64_t{0};
    EXPECT_EQ(Persisted(copy), expected);
}

TEST_F(CopyTest, ACopyOfASelectedSlideIsNeitherSelectedNorColoured) {
    slide.InitProperties();
    slide.SetBackColor(0x445566);
    slide.SetSelected(true);
    slide.SetValue(12);
    copy.CopyDesign(slide);
    EXPECT_FALSE(copy.Selected());
    EXPECT_EQ(copy.BackColor(), 0x445566U);
    EXPECT_EQ(copy.Value(), 0);
}

TEST_F(CopyTest, ACopyOfARecolouredSlideIsNotColouredEither) {
    slide.InitProperties();
    slide.SetBackColor(0x445566);
    slide.SetBackColorSelectedChange(0x7DE0FD);
    copy.CopyDesign(slide);
    EXPECT_EQ(copy.BackColor(), 0x445566U);
    EXPECT_EQ(copy.BackColorSelected(), 0x7DE0FDU);
}

TEST_F(CopyTest, ACopyShowsAndRemembersTheGroundsOfItsOriginal) {
    slide.InitProperties();
    copy.CopyDesign(slide);
    EXPECT_EQ(copy.BackColor(), slide.BackColor());
    copy.SetSelected(true);
    copy.SetSelected(false);
    EXPECT_EQ(copy.BackColor(), 0xFFFFFFU);
}

TEST_F(CopyTest, ACopyIsReadyAndLaysOutWhenReleased) {
    slide.InitProperties();
    copy.CopyDesign(slide);
    copy.Show();
    EXPECT_TRUE(copy.NoResize());
    EXPECT_TRUE(copy.Surface().Commands().empty());
    copy.Refresh();
    EXPECT_FALSE(copy.Surface().Commands().empty());
}

TEST_F(CopyTest, ACopyShowsNoPictureAndNoFile) {
    slide.InitProperties();
    slide.SetImageFullPath("/a.jpg");
    slide.SetPicture(Bitmap(20, 20));
    slide.SetHaveSoundMusic(true);
    copy.CopyDesign(slide);
    EXPECT_EQ(copy.Picture().Type(), 0);
    EXPECT_EQ(copy.ImageFullPath(), "");
    EXPECT_FALSE(copy.HaveSoundMusic());
    EXPECT_FALSE(copy.BtPlayVisible());
}

}  // namespace
}  // namespace vorlane::headless
