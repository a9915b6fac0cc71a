// The sheet's properties and how they reach the slides.
#include "tests/sheet/sheetfixture.h"
#include "tests/sheet/vectorlistbox.h"

namespace vorlane {
namespace {

class PropertiesTest : public SheetTest {
protected:
    // Expects that set(value) stores value and tells its key once, and that a second call tells nothing.
    template <class Set, class Get, class Value>
    void ExpectStores(const std::string& key, Set set, Get get, Value value) {
        desktop.trace.Clear();
        (sheet.get()->*set)(value);
        EXPECT_EQ((sheet.get()->*get)(), value) << key;
        EXPECT_EQ(Heard(), "host PropertyChanged " + key + "\n");
        (sheet.get()->*set)(value);
        EXPECT_EQ(Heard(), "") << key << " set again";
    }

    // The same for a property of the slides: all three have it.
    template <class Set, class Get, class SlideGet, class Value>
    void ExpectForwards(const std::string& key, Set set, Get get, SlideGet slideGet, Value value) {
        ExpectStores(key, set, get, value);
        for (int32_t k = 0; k < 3; ++k) {
            EXPECT_EQ(std::invoke(slideGet, *sheet->Diapo.Item(k)), value) << key << " of slide " << k;
        }
    }
};

using S = eDiapoLight;
using V = Vorlane;

TEST_F(PropertiesTest, TheSheetsOwnPropertiesStoreAndTellTheirKey) {
    Start();
    ExpectStores("CaptionWait", &V::SetCaptionWait, &V::CaptionWait, std::string("Un instant"));
    ExpectStores("ListAutoFill", &V::SetListAutoFill, &V::ListAutoFill, false);
    ExpectStores("Marges", &V::SetMarges, &V::Marges, int16_t{9});
    ExpectStores("MargeDiapoMin", &V::SetMargeDiapoMin, &V::MargeDiapoMin, int16_t{8});
    ExpectStores("MargeDiapoAutoAdjust", &V::SetMargeDiapoAutoAdjust, &V::MargeDiapoAutoAdjust, false);
    ExpectStores("ScrollWindowPos", &V::SetScrollWindowPos, &V::ScrollWindowPos, ScrollWindowPosType::swpInside);
    ExpectStores("ScrollWindowWidth", &V::SetScrollWindowWidth, &V::ScrollWindowWidth, int16_t{200});
    ExpectStores("ScrollWindowBackColor", &V::SetScrollWindowBackColor, &V::ScrollWindowBackColor, OLE_COLOR{0x123456});
    ExpectStores("SelectionMultiple", &V::SetSelectionMultiple, &V::SelectionMultiple, false);
    ExpectStores("BackColorCurrent", &V::SetBackColorCurrent, &V::BackColorCurrent, OLE_COLOR{0x00FF00});
    ExpectStores("ShowJauge", &V::SetShowJauge, &V::ShowJauge, false);
    ExpectStores("JaugeAnimation", &V::SetJaugeAnimation, &V::JaugeAnimation, true);
    ExpectStores("Sorted", &V::SetSorted, &V::Sorted, false);
    ExpectStores("SortedSens", &V::SetSortedSens, &V::SortedSens, SortSensType::ssNone);
    ExpectStores("BackColor", &V::SetBackColor, &V::BackColor, OLE_COLOR{0xFF});
    ExpectStores("BorderStyle", &V::SetBorderStyle, &V::BorderStyle, int32_t{1});
    EXPECT_EQ(sheet->ScaleWidth(), kWidth - 2);
}

TEST_F(PropertiesTest, SomePropertiesTellNothing) {
    Start();
    sheet->SetAliasMusic("m");
    sheet->SetAliasComment("c");
    sheet->SetSortCurrent(3);
    sheet->SetFromInit(true);
    sheet->SetPattern("*.png");
    EXPECT_EQ(sheet->AliasMusic() + sheet->AliasComment() + sheet->Pattern(), "mc*.png");
    EXPECT_EQ(sheet->SortCurrent(), 3);
    EXPECT_EQ(Heard(), "");
}

TEST_F(PropertiesTest, TheSeparatorsAreOneCharacterEach) {
    EXPECT_EQ(Vorlane::SepSortArg(), "\x0B");
    EXPECT_EQ(Vorlane::SepSortWithData(), "\t");
}

TEST_F(PropertiesTest, PropertiesOfTheSlidesAreSetOnAllThatAreLoaded) {
    Show(3);
    ExpectForwards("AutoAdjust", &V::SetAutoAdjust, &V::AutoAdjust, &S::AutoAdjust, false);
    ExpectForwards("AutoCornerResize", &V::SetAutoCornerResize, &V::AutoCornerResize, &S::AutoCornerResize, false);
    ExpectForwards("BackColorDiapo", &V::SetBackColorDiapo, &V::BackColorDiapo, &S::BackColor, OLE_COLOR{0x111111});
    ExpectForwards("BackColorSelected", &V::SetBackColorSelected, &V::BackColorSelected, &S::BackColorSelected,
                   OLE_COLOR{0x222222});
    ExpectForwards("BorderColorDiapo", &V::SetBorderColorDiapo, &V::BorderColorDiapo, &S::BorderColor,
                   OLE_COLOR{0x333333});
    ExpectForwards("BorderColorDiapoExt", &V::SetBorderColorDiapoExt, &V::BorderColorDiapoExt, &S::BorderColorExt,
                   OLE_COLOR{0x444444});
    ExpectForwards("BorderDouble", &V::SetBorderDouble, &V::BorderDouble, &S::BorderDouble, true);
    ExpectForwards("BorderSize", &V::SetBorderSize, &V::BorderSize, &S::BorderSize, int16_t{7});
    ExpectForwards("BorderStyleDiapo", &V::SetBorderStyleDiapo, &V::BorderStyleDiapo, &S::BorderStyle,
                   DiapoBorderStyle::BorderRaised);
    ExpectForwards("BorderStyleDiapoExt", &V::SetBorderStyleDiapoExt, &V::BorderStyleDiapoExt, &S::BorderStyleExt,
                   DiapoBorderStyle::BorderNone);
    ExpectForwards("ForeColor", &V::SetForeColor, &V::ForeColor, &S::ForeColor, OLE_COLOR{0x555555});
    ExpectForwards("ImageMarge", &V::SetImageMarge, &V::ImageMarge, &S::ImageMarge, uint8_t{9});
    ExpectForwards("LegendeNbLig", &V::SetLegendeNbLig, &V::LegendeNbLig, &S::CaptionBottomNbLig, int16_t{1});
    ExpectForwards("MousePointer", &V::SetMousePointer, &V::MousePointer, &S::MousePointer, int16_t{2});
    ExpectForwards("ShadowColor", &V::SetShadowColor, &V::ShadowColor, &S::ShadowColor, OLE_COLOR{0x666666});
    ExpectForwards("ShadowWidth", &V::SetShadowWidth, &V::ShadowWidth, &S::ShadowWidth, int16_t{8});
    ExpectForwards("ShowDiapoTools", &V::SetShowDiapoTools, &V::ShowDiapoTools, &S::ShowDiapoTools, true);
    ExpectForwards("ShowShadow", &V::SetShowShadow, &V::ShowShadow, &S::ShowShadow, false);
    ExpectForwards("ShowFileName", &V::SetShowFileName, &V::ShowFileName, &S::ShowFileName, false);
    ExpectForwards("ShowInfo", &V::SetShowInfo, &V::ShowInfo, &S::ShowInfo, false);
    ExpectForwards("ShowDiapoJauge", &V::SetShowDiapoJauge, &V::ShowDiapoJauge, &S::ShowJauge, false);
    ExpectForwards("ShowZoom", &V::SetShowZoom, &V::ShowZoom, &S::ShowZoom, false);
    ExpectForwards("Thumbnail", &V::SetThumbnail, &V::Thumbnail, &S::Thumbnail, true);
    ExpectForwards("ThumbnailResolution", &V::SetThumbnailResolution, &V::ThumbnailResolution, &S::ThumbnailResolution,
                   DiapoThumbResolution::ThumbResolutionHigh);
    ExpectForwards("ThumbnailSizeHigh", &V::SetThumbnailSizeHigh, &V::ThumbnailSizeHigh, &S::ThumbnailSizeHigh,
                   int16_t{400});
    ExpectForwards("ThumbnailSizeNormal", &V::SetThumbnailSizeNormal, &V::ThumbnailSizeNormal, &S::ThumbnailSizeNormal,
                   int16_t{90});
    ExpectForwards("ToolTipBtPlay", &V::SetToolTipBtPlay, &V::ToolTipBtPlay, &S::ToolTipBtPlay, std::string("a"));
    ExpectForwards("ToolTipBtComment", &V::SetToolTipBtComment, &V::ToolTipBtComment, &S::ToolTipBtComment,
                   std::string("b"));
    ExpectForwards("ToolTipBtText", &V::SetToolTipBtText, &V::ToolTipBtText, &S::ToolTipBtText, std::string("c"));
    ExpectForwards("LegendeFont", &V::SetLegendeFont, &V::LegendeFont, &S::FontBottom, Font{"Serif", 12});
    ExpectForwards("FontImageName", &V::SetFontImageName, &V::FontImageName, &S::FontImageName, Font{"Serif", 11});
    ExpectForwards("MouseIcon", &V::SetMouseIcon, &V::MouseIcon, &S::MouseIcon,
                   headless::FakePictures::Make("icon", 16, 16));
}

TEST_F(PropertiesTest, TheValueThatSlideZeroHasAlreadyChangesNothingOnOtherSlides) {
    Show(3);
    sheet->Diapo.Item(1)->SetShowInfo(false);
    sheet->SetShowInfo(true);
    EXPECT_FALSE(sheet->Diapo.Item(1)->ShowInfo());
    EXPECT_EQ(Heard(), "");
}

TEST_F(PropertiesTest, ASizeThatIsNoByteFails) {
    Show(1);
    EXPECT_THROW(sheet->SetBorderSize(256), Failure);
    EXPECT_THROW(sheet->SetShadowWidth(-1), Failure);
    EXPECT_EQ(sheet->BorderSize(), 4);
    EXPECT_EQ(Heard(), "");
}

TEST_F(PropertiesTest, EnabledReachesTheControlAndItsSlides) {
    Show(2);
    sheet->SetEnabled(false);
    EXPECT_FALSE(static_cast<Control&>(*sheet).Enabled());
    EXPECT_FALSE(sheet->Diapo.Item(1)->Enabled());
    EXPECT_EQ(Heard(), "host PropertyChanged Enabled\n");
}

TEST_F(PropertiesTest, EnabledFromABagReachesTheControlAloneAndCanBeTakenBack) {
    PropertyBag bag;
    bag.SetValue("Enabled", false);
    Start(bag);
    EXPECT_FALSE(sheet->Enabled());
    EXPECT_TRUE(sheet->Diapo.Item(0)->Enabled());
    sheet->SetEnabled(true);
    EXPECT_TRUE(sheet->Enabled());
}

TEST_F(PropertiesTest, ANewSlideHasThePropertiesOfSlideZero) {
    Show(2);
    sheet->SetBorderSize(9);
    sheet->SetShowFileName(false);
    sheet->SetForeColor(0x10);
    AddItems(2, 2);
    sheet->StartLecture();
    const auto slide = sheet->Diapo.Item(2);
    EXPECT_EQ(slide->BorderSize(), 9);
    EXPECT_FALSE(slide->ShowFileName());
    EXPECT_EQ(slide->ForeColor(), 0x10U);
}

TEST_F(PropertiesTest, ANewSlideDoesNotTakeOverASelectionColour) {
    Show(2);
    sheet->SetSelected(0, true);
    AddItems(2, 2);
    sheet->StartLecture();
    EXPECT_EQ(sheet->Diapo.Item(2)->BackColor(), sheet->Diapo.Item(1)->BackColor());
    EXPECT_NE(sheet->Diapo.Item(2)->BackColor(), sheet->Diapo.Item(0)->BackColor());
}

TEST_F(PropertiesTest, ASlideThatIsNoLongerSelectedGetsTheGroundBackWhateverTheContainersColour) {
    for (const OLE_COLOR ground : {OLE_COLOR{0xFFFFFF}, OLE_COLOR{0x8000000F}, OLE_COLOR{0}}) {
        Ambient ambient = window.Ambient();
        ambient.BackColor = ground;
        Make(ambient);
        Show(2);
        for (int16_t k = 0; k < 2; ++k) {
            sheet->SetSelected(k, true);
            sheet->SetSelected(k, false);
            EXPECT_EQ(sheet->Diapo.Item(k)->BackColor(), ground);
        }
    }
}

// --- Selection colours ---

TEST_F(PropertiesTest, BackColorSelectedRecoloursTheSlidesAndBlankedOnesGetTheOldColourBack) {
    Show(3);
    sheet->SetBackColorSelected(0x123456);
    EXPECT_EQ(sheet->Diapo.Item(2)->BackColorSelected(), 0x123456U);
    sheet->Clear();
    EXPECT_EQ(sheet->Diapo.Item(0)->BackColorSelected(), 7321083U);
    AddItems(0, 1);
    sheet->StartLecture();
    EXPECT_EQ(sheet->Diapo.Item(1)->BackColorSelected(), 7321083U);
}

TEST_F(PropertiesTest, CurrentDiapoIsNoneWithoutASlideOfTheCurrentColour) {
    Show(3);
    EXPECT_EQ(sheet->CurrentDiapo(), -1);
    sheet->SetSelected(1, true);
    EXPECT_EQ(sheet->CurrentDiapo(), 1);
}

TEST_F(PropertiesTest, CurrentDiapoIsFoundByColourAlone) {
    Show(3);
    sheet->SetSelected(2, true);
    sheet->SetBackColorDiapo(sheet->BackColorCurrent());
    EXPECT_EQ(sheet->CurrentDiapo(), 0);
}

TEST_F(PropertiesTest, SelectedSetsSlideAndItem) {
    Show(3);
    sheet->SetSelected(1, true);
    EXPECT_TRUE(sheet->Selected(1));
    EXPECT_TRUE(sheet->LstInterne.Selected(1));
    EXPECT_EQ(sheet->Diapo.Item(1)->BackColor(), sheet->BackColorCurrent());
    EXPECT_EQ(sheet->CountSelected(), 1);
    sheet->SetSelected(1, false);
    EXPECT_FALSE(sheet->LstInterne.Selected(1));
    EXPECT_EQ(sheet->CountSelected(), 0);
    EXPECT_THROW(sheet->SetSelected(5, true), Failure);
}

// --- Drag and drop modes ---

TEST_F(PropertiesTest, SlidesDragByThemselvesOnlyInModeTwo) {
    Show(2);
    sheet->SetOLEDragMode(1);
    EXPECT_EQ(sheet->OLEDragMode(), 1);
    EXPECT_EQ(sheet->Diapo.Item(1)->OLEDragMode(), 0);
    sheet->SetOLEDragMode(2);
    EXPECT_EQ(sheet->Diapo.Item(1)->OLEDragMode(), 2);
    EXPECT_EQ(Heard(), "host PropertyChanged OLEDragMode\nhost PropertyChanged OLEDragMode\n");
}

TEST_F(PropertiesTest, InDropModeTwoAllTakeModeOne) {
    Show(2);
    sheet->SetOLEDropMode(2);
    EXPECT_EQ(sheet->OLEDropMode(), 2);
    EXPECT_EQ(sheet->Diapo.Item(1)->OLEDropMode(), 1);
    EXPECT_EQ(sheet->ImgDrag.OLEDropMode(), 1);
    EXPECT_EQ(static_cast<Control&>(*sheet).OLEDropMode(), 1);
    sheet->SetOLEDropMode(0);
    sheet->SetOLEDropMode(0);
    EXPECT_EQ(sheet->ImgDrag.OLEDropMode(), 0);
    EXPECT_EQ(Heard(), "host PropertyChanged OLEDropMode\nhost PropertyChanged OLEDropMode\n");
}

// --- Other answers ---

TEST_F(PropertiesTest, TheCountsOfAFreshSheet) {
    Start();
    EXPECT_EQ(sheet->Count(), 0);
    EXPECT_EQ(sheet->CountDiapoX(), 3);
    EXPECT_EQ(sheet->CountDiapoY(), 3);
    EXPECT_EQ(sheet->CountDiapo(), 9);
    EXPECT_EQ(sheet->CountAffiché(), 1);
    EXPECT_EQ(sheet->Hwnd(), window.Handle());
    EXPECT_EQ(sheet->hDC(), window.Handle());
    EXPECT_EQ(sheet->Liste(), &sheet->LstInterne);
}

TEST_F(PropertiesTest, TheWholeRectangleTakesTheMouse) {
    Start();
    EXPECT_TRUE(sheet->HitTest(0, 0));
    EXPECT_TRUE(sheet->HitTest(kWidth - 1, kHeight - 1));
    EXPECT_FALSE(sheet->HitTest(kWidth, 0));
}

TEST_F(PropertiesTest, DiaposGivesTheSlides) {
    Show(3);
    EXPECT_EQ(sheet->Diapos.Item(2), sheet->Diapo.Item(2));
    EXPECT_THROW(sheet->Diapos.Item(3), Failure);
    EXPECT_EQ(ClsDiapo().Item(0), nullptr) << "nobody answers";
}

TEST_F(PropertiesTest, ThumbIsThatOfSlideZero) {
    Start();
    const Picture large = headless::FakePictures::Make("large", 300, 150);
    const auto thumb = sheet->Thumb(large, 100);
    ASSERT_TRUE(thumb);
    EXPECT_EQ(headless::NameOf(*thumb), "resized:large");
    EXPECT_EQ(Heard({"resize"}), "resize large 100x50\n");
    EXPECT_FALSE(sheet->Thumb(Picture{}));
}

TEST_F(PropertiesTest, TheArtworkOfFilesAndButtonsIsThere) {
    EXPECT_EQ(sheet->ImgLst.Count(), 5);
    EXPECT_EQ(sheet->ImgLstBtPlay.Count(), 6);
    EXPECT_EQ(headless::NameOf(sheet->ImgLstBtPlay.ListImage(2)), "stop");
}

}  // namespace
}  // namespace vorlane
