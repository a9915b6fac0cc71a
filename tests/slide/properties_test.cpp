#include "platform/failure.h"
#include "slidetest.h"

#include <functional>

namespace vorlane::headless {
namespace {

class PropertiesTest : public LaidSlideTest {};

struct Setting {
    const char* key;
    std::function<void(eDiapoLight&)> change;
};

template <class T>
Setting Set(const char* key, void (eDiapoLight::*setter)(T), T value) {
    return {key, [=](eDiapoLight& slide) { (slide.*setter)(value); }};
}

const auto kNameOf = [](const auto& setting) { return std::string(setting.param.key); };

using S = eDiapoLight;

// --- Properties that lay out when they change ---

class LayingOutTest : public PropertiesTest, public testing::WithParamInterface<Setting> {};

TEST_P(LayingOutTest, AChangeLaysOutAndIsReportedBehindIt) {
    bool drawn = false;
    slide.PropertyChanged.connect(
        [&](std::string_view) { drawn = slide.Surface().dump().find("SetPixel") == std::string::npos; });
    EXPECT_TRUE(LaysOut([&] { GetParam().change(slide); }));
    EXPECT_TRUE(drawn);
    EXPECT_EQ(Changed(), "changed " + std::string(GetParam().key) + "\n");
}

TEST_P(LayingOutTest, TheSameValueAgainDoesNothing) {
    GetParam().change(slide);
    desktop.trace.Clear();
    EXPECT_FALSE(LaysOut([&] { GetParam().change(slide); }));
    EXPECT_EQ(Changed(), "");
}

INSTANTIATE_TEST_SUITE_P(
    Properties, LayingOutTest,
    testing::Values(Set("AlwaysFullSize", &S::SetAlwaysFullSize, false), Set("AutoAdjust", &S::SetAutoAdjust, false),
                    Set("AutoCornerResize", &S::SetAutoCornerResize, false),
                    Set("BackColor", &S::SetBackColor, OLE_COLOR{0x123456}),
                    Set("BorderColor", &S::SetBorderColor, OLE_COLOR{0x123456}),
                    Set("BorderColorExt", &S::SetBorderColorExt, OLE_COLOR{0x123456}),
                    Set("BorderDouble", &S::SetBorderDouble, true), Set("BorderSize", &S::SetBorderSize, uint8_t{9}),
                    Set("BorderStyle", &S::SetBorderStyle, DiapoBorderStyle::BorderRaised),
                    Set("BorderStyleExt", &S::SetBorderStyleExt, DiapoBorderStyle::BorderRaised),
                    Set("CaptionBottomNbLig", &S::SetCaptionBottomNbLig, int16_t{1}),
                    Set("ImageMarge", &S::SetImageMarge, uint8_t{1}), Set("Selected", &S::SetSelected, true),
                    Set("ShowShadow", &S::SetShowShadow, false), Set("ShadowWidth", &S::SetShadowWidth, uint8_t{1}),
                    Set("ShadowColor", &S::SetShadowColor, OLE_COLOR{0x123456}),
                    Set("ShowFileName", &S::SetShowFileName, false), Set("ShowInfo", &S::SetShowInfo, false),
                    Set("ShowJauge", &S::SetShowJauge, false), Set("ShowZoom", &S::SetShowZoom, false)),
    kNameOf);

// --- Properties that only store ---

class StoringTest : public PropertiesTest, public testing::WithParamInterface<Setting> {};

TEST_P(StoringTest, EverySettingIsReportedAndNothingLaidOut) {
    EXPECT_FALSE(LaysOut([&] { GetParam().change(slide); }));
    EXPECT_FALSE(LaysOut([&] { GetParam().change(slide); }));
    const std::string once = "changed " + std::string(GetParam().key) + "\n";
    EXPECT_EQ(Changed(), once + once);
}

using PictureSetter = void (S::*)(const Picture&);
using TextSetter = void (S::*)(const std::string&);

INSTANTIATE_TEST_SUITE_P(
    Properties, StoringTest,
    testing::Values(Set("BackColorSelected", &S::SetBackColorSelected, OLE_COLOR{1}),
                    Set<const std::string&>("CaptionBottom", &S::SetCaptionBottom, "text"),
                    Set("Enabled", &S::SetEnabled, false), Set<const Font&>("FontBottom", &S::SetFontBottom, Font{}),
                    Set<const Font&>("FontImageName", &S::SetFontImageName, Font{}),
                    Set("ForeColor", &S::SetForeColor, OLE_COLOR{1}),
                    Set<const Picture&>("MouseIcon", &S::SetMouseIcon, Picture{}),
                    Set("MousePointer", &S::SetMousePointer, int16_t{2}), Set("NoResize", &S::SetNoResize, false),
                    Set("OLEDragMode", &S::SetOLEDragMode, int16_t{1}),
                    Set("OLEDropMode", &S::SetOLEDropMode, int16_t{1}), Set("Thumbnail", &S::SetThumbnail, true),
                    Set("ThumbnailResolution", &S::SetThumbnailResolution, DiapoThumbResolution::ThumbResolutionHigh),
                    Set("ThumbnailSizeNormal", &S::SetThumbnailSizeNormal, int16_t{1}),
                    Set("ThumbnailSizeHigh", &S::SetThumbnailSizeHigh, int16_t{1}),
                    Set<const std::string&>("ToolTipBtPlay", &S::SetToolTipBtPlay, "text"),
                    Set<const std::string&>("ToolTipBtComment", &S::SetToolTipBtComment, "text"),
                    Set<const std::string&>("ToolTipBtText", &S::SetToolTipBtText, "text"),
                    Set("Value", &S::SetValue, 1)),
    kNameOf);

// --- Properties without a key ---

TEST_F(PropertiesTest, WhatHasNoKeyIsNotReported) {
    slide.SetBackColorSelectedChange(1);
    slide.SetBtPlayPicture(Bitmap(16, 16));
    slide.SetBtPlayVisible(true);
    slide.SetBtCommentPicture(Bitmap(16, 16));
    slide.SetBtCommentVisible(true);
    slide.SetBtTextPicture(Bitmap(16, 16));
    slide.SetBtTextVisible(true);
    slide.SetCol(1);
    slide.SetLig(2);
    slide.SetDataSort("a");
    slide.SetHaveInvalidMusic(true);
    slide.SetHaveInvalidComm(true);
    slide.SetHaveSoundMusic(true);
    slide.SetHaveSoundComment(true);
    slide.SetHaveTexte(true);
    slide.SetImageFullPath("/a.jpg");
    slide.SetKey(1);
    slide.SetOnGetThumb(true);
    slide.SetPicture(Bitmap(20, 20));
    slide.SetSelectedTmp(true);
    EXPECT_EQ(Changed(), "");
}

TEST_F(PropertiesTest, TheButtonsAreSeenThroughTheirOwnProperties) {
    slide.SetBtPlayPicture(Bitmap(16, 16));
    slide.SetBtTextVisible(true);
    EXPECT_EQ(slide.BtPlayPicture(), slide.BtPlay.Picture());
    EXPECT_TRUE(slide.BtTexte.Visible());
    EXPECT_FALSE(slide.BtCommentVisible());
    EXPECT_FALSE(slide.HaveTexte());
}

TEST_F(PropertiesTest, AButtonsVisibilityLaysNothingOut) {
    EXPECT_FALSE(LaysOut([&] { slide.SetBtPlayVisible(true); }));
}

TEST_F(PropertiesTest, AColumnIsRoundedToASingle) {
    slide.SetCol(0.1);
    EXPECT_EQ(slide.Col(), 0.1F);
}

// --- Selection ---

TEST_F(PropertiesTest, BackColorSelectedShowsAtTheNextChangeOfSelected) {
    slide.SetSelected(true);
    EXPECT_EQ(slide.BackColor(), 0x6FB5FBU);
    slide.SetBackColorSelected(0x112233);
    EXPECT_EQ(slide.BackColor(), 0x6FB5FBU);
    slide.SetSelected(false);
    slide.SetSelected(true);
    EXPECT_EQ(slide.BackColor(), 0x112233U);
}

TEST_F(PropertiesTest, BackColorSelectedChangeShowsAtOnceAndLaysOut) {
    slide.SetSelected(true);
    EXPECT_TRUE(LaysOut([&] { slide.SetBackColorSelectedChange(0x112233); }));
    EXPECT_EQ(slide.BackColor(), 0x112233U);
    EXPECT_EQ(slide.BackColorSelected(), 0x112233U);
    EXPECT_TRUE(slide.Selected());
}

TEST_F(PropertiesTest, BackColorSelectedChangeLaysOutForTheSameColourToo) {
    EXPECT_TRUE(LaysOut([&] { slide.SetBackColorSelectedChange(slide.BackColorSelected()); }));
}

TEST_F(PropertiesTest, AnUnselectedSlideGoesBackToTheColourThatItsOwnerSet) {
    slide.SetBackColor(0x445566);
    slide.SetSelected(true);
    slide.SetSelected(false);
    EXPECT_EQ(slide.BackColor(), 0x445566U);
}

TEST_F(PropertiesTest, BackColorOfASelectedSlideShowsAtOnce) {
    slide.SetSelected(true);
    slide.SetBackColor(0x445566);
    EXPECT_EQ(slide.BackColor(), 0x445566U);
    EXPECT_TRUE(slide.Selected());
}

TEST_F(PropertiesTest, SelectedTmpShowsNothing) {
    EXPECT_FALSE(LaysOut([&] { slide.SetSelectedTmp(true); }));
    EXPECT_TRUE(slide.SelectedTmp());
    EXPECT_FALSE(slide.Selected());
}

// --- What the children share ---

TEST_F(PropertiesTest, OLEDropModeTwoStaysWithThePictureAndIsOneElsewhere) {
    slide.SetOLEDropMode(2);
    EXPECT_EQ(slide.OLEDropMode(), 2);
    EXPECT_EQ(slide.Img.OLEDropMode(), 2);
    EXPECT_EQ(static_cast<Control&>(slide).OLEDropMode(), 1);
    EXPECT_EQ(slide.LblTop.OLEDropMode(), 1);
    EXPECT_EQ(slide.LblBottom.OLEDropMode(), 1);
}

TEST_F(PropertiesTest, OLEDragModeIsThePicturesAlone) {
    slide.SetOLEDragMode(1);
    EXPECT_EQ(slide.Img.OLEDragMode(), 1);
    EXPECT_EQ(static_cast<Control&>(slide).OLEDragMode(), 0);
    EXPECT_EQ(slide.LblTop.OLEDragMode(), 0);
}

TEST_F(PropertiesTest, ThePointerIsSharedByGroundPictureAndTexts) {
    const Picture icon = Bitmap(32, 32);
    slide.SetMousePointer(99);
    slide.SetMouseIcon(icon);
    for (Control* part : std::initializer_list<Control*>{&slide, &slide.Img, &slide.LblTop, &slide.LblBottom}) {
        EXPECT_EQ(part->MousePointer(), 99);
        EXPECT_EQ(part->MouseIcon(), icon);
    }
    EXPECT_EQ(slide.BtPlay.MousePointer(), 0);
}

TEST_F(PropertiesTest, ForeColorColoursBothTexts) {
    slide.SetForeColor(0x445566);
    EXPECT_EQ(slide.ForeColor(), 0x445566U);
    EXPECT_EQ(slide.LblTop.ForeColor(), 0x445566U);
    EXPECT_EQ(slide.LblBottom.ForeColor(), 0x445566U);
}

TEST_F(PropertiesTest, TooltipsAreTheButtonsOwn) {
    slide.SetToolTipBtPlay("jouer");
    slide.SetToolTipBtComment("commentaire");
    slide.SetToolTipBtText("texte");
    EXPECT_EQ(slide.BtPlay.ToolTipText(), "jouer");
    EXPECT_EQ(slide.BtComment.ToolTipText(), "commentaire");
    EXPECT_EQ(slide.BtTexte.ToolTipText(), "texte");
}

// --- File, name and key ---

TEST_F(PropertiesTest, ImageFullPathShowsTheNameAndLoadsNothing) {
    slide.SetImageFullPath("/photos/été.jpg");
    EXPECT_EQ(slide.ImageFullPath(), "/photos/été.jpg");
    EXPECT_EQ(slide.ImageName(), "été.jpg");
    EXPECT_EQ(slide.LblTop.Caption(), "été.jpg");
    EXPECT_EQ(slide.Picture().Type(), 0);
    EXPECT_EQ(desktop.pictures.Loads(), 0);
}

TEST_F(PropertiesTest, ImageNameRectGivesPlaceAndSizeRounded) {
    EXPECT_EQ(slide.ImageNameRect(), (WinRect{1, 100, 158, 13}));
    slide.LblTop.Move(0.5, 1.5, 2.5, 3.5);
    EXPECT_EQ(slide.ImageNameRect(), (WinRect{0, 2, 2, 4}));
}

TEST_F(PropertiesTest, ImageNameRectOfAHiddenNameHasNoHeight) {
    slide.SetShowFileName(false);
    EXPECT_EQ(slide.ImageNameRect(), (WinRect{1, 113, 158, 0}));
}

TEST_F(PropertiesTest, KeyWithoutAnOwnerIsZero) {
    EXPECT_EQ(slide.Key(), 0);
}

TEST_F(PropertiesTest, KeyIsTheOwners) {
    int32_t asked = -5;
    slide.Events.GetKey.connect([&](int32_t& key) {
        asked = key;
        key = 4711;
    });
    EXPECT_EQ(slide.Key(), 4711);
    EXPECT_EQ(asked, 0);
    slide.SetKey(12);
    EXPECT_EQ(Slide(), "slide SetKey 12\n");
    EXPECT_EQ(slide.Key(), 4711);
}

TEST_F(PropertiesTest, ShowDiapoToolsTakesEffectAtTheNextLayout) {
    EXPECT_FALSE(LaysOut([&] { slide.SetShowDiapoTools(true); }));
    EXPECT_EQ(Changed(), "changed ShowDiapoTools\n");
    EXPECT_EQ(slide.LblBottom.Height(), 26);
    slide.Refresh();
    EXPECT_EQ(slide.LblBottom.Height(), 43);
    slide.SetShowDiapoTools(true);
    EXPECT_EQ(Changed(), "");
}

TEST_F(PropertiesTest, TheWholeRectangleTakesTheMouse) {
    EXPECT_TRUE(slide.HitTest(0, 0));
    EXPECT_TRUE(slide.HitTest(159, 139));
}

TEST_F(PropertiesTest, AHostThatFailsInAReportFailsTheSetter) {
    slide.PropertyChanged.connect([](std::string_view) { throw failures::InvalidCall(); });
    EXPECT_THROW(slide.SetShowInfo(false), Failure);
    EXPECT_FALSE(slide.ShowInfo());
}

}  // namespace
}  // namespace vorlane::headless
