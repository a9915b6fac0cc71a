// The sheet from its making to its end, and what it persists.
#include "tests/sheet/sheetfixture.h"

namespace vorlane {
namespace {

class LifecycleTest : public SheetTest {
protected:
    static const Vorlane::PersistedProperty& Property(const std::string& key) {
        for (const auto& property : Vorlane::PersistedProperties()) {
            if (property.Key == key) return property;
        }
        throw std::out_of_range(key);
    }
    // Another value of the same kind, that the property can hold.
    static BagValue Other(const std::string& key, const BagValue& value) {
        if (const bool* flag = std::get_if<bool>(&value)) return !*flag;
        if (key == "ScrollDirection") return int64_t{1};
        if (const int64_t* number = std::get_if<int64_t>(&value)) return *number == 1 ? int64_t{2} : int64_t{1};
        if (std::holds_alternative<std::string>(value)) return std::string("other");
        if (std::holds_alternative<Font>(value)) return Font{"Other", 9};
        return headless::FakePictures::Make("other", 4, 4);
    }
};

TEST_F(LifecycleTest, TheChildrenThatAGestureShowsStartUnseenAndTheTimersStopped) {
    EXPECT_FALSE(sheet->Txt.Visible() || sheet->Jauge.Visible() || sheet->ImgDrag.Visible() ||
                 sheet->SelRect.Visible());
    EXPECT_EQ(desktop.clock.RunningTimers(), 0);
    EXPECT_EQ(sheet->TimerSon.Interval(), 1000);
    EXPECT_EQ(sheet->TimerDrag.Interval(), 10);
    EXPECT_EQ(sheet->TimerResize.Interval(), 1);
    EXPECT_EQ(sheet->TimerUnload.Interval(), 100);
    EXPECT_EQ(sheet->Liste(), &sheet->LstInterne);
    EXPECT_EQ(sheet->Pattern(), "*.*");
}

TEST_F(LifecycleTest, TheSheetsOwnListsHaveHandlesOfTheirOwn) {
    EXPECT_NE(sheet->LstInterne.Hwnd(), 0);
    EXPECT_NE(sheet->LstInterne.Hwnd(), sheet->FileInterne.Hwnd());
    EXPECT_NE(sheet->FileInterne.Hwnd(), sheet->TmpFile.Hwnd());
    EXPECT_NE(sheet->LstInterne.Hwnd(), sheet->TmpFile.Hwnd());
}

TEST_F(LifecycleTest, AnyNumberButZeroLetsTheGaugeSlide) {
    for (const BagValue& number : {BagValue(int64_t{5}), BagValue(int64_t{3'000'000'000}), BagValue(0.5)}) {
        PropertyBag bag;
        bag.SetValue("JaugeAnimation", number);
        Make(window.Ambient());
        Start(bag);
        EXPECT_TRUE(sheet->JaugeAnimation());
    }
    PropertyBag bag;
    bag.SetValue("JaugeAnimation", int64_t{0});
    Make(window.Ambient());
    Start(bag);
    EXPECT_FALSE(sheet->JaugeAnimation());
}

TEST_F(LifecycleTest, ASheetPlacedNewShowsThumbnailsAndLeavesTheirSizeOpen) {
    window.Host(*sheet);
    EXPECT_FALSE(sheet->Diapo.Item(0)->Visible());
    EXPECT_TRUE(sheet->Thumbnail());
    EXPECT_EQ(sheet->ThumbnailSizeNormal(), 0);
    EXPECT_EQ(sheet->Marges(), 5);
    EXPECT_EQ(sheet->MargeDiapoMin(), 5);
    EXPECT_TRUE(sheet->MargeDiapoAutoAdjust() && sheet->ListAutoFill() && sheet->ShowJauge() &&
                sheet->SelectionMultiple() && sheet->Sorted());
    EXPECT_FALSE(sheet->JaugeAnimation());
    EXPECT_EQ(sheet->SortedSens(), SortSensType::ssAscending);
    EXPECT_EQ(sheet->ScrollDirection(), ScrollDirectionType::sdVertical);
    EXPECT_EQ(sheet->BackColorCurrent(), 8249597U);
    EXPECT_EQ(sheet->BackColorSelected(), 7321083U);
    AddItems(0, 0);
    sheet->StartLecture();
    EXPECT_EQ(sheet->Diapo.Item(0)->ThumbnailSizeNormal(), 100) << "the longer side of the slide";
}

TEST_F(LifecycleTest, AnEmptyBagGivesTheDefaults) {
    Start();
    EXPECT_FALSE(sheet->Thumbnail());
    EXPECT_EQ(sheet->ThumbnailSizeNormal(), 150);
    EXPECT_EQ(sheet->ThumbnailSizeHigh(), 500);
    EXPECT_EQ(sheet->DiapoWidth(), 100);
    EXPECT_EQ(sheet->DiapoHeight(), 75);
    EXPECT_EQ(sheet->BorderSize(), 4);
    EXPECT_EQ(sheet->BorderStyleDiapo(), DiapoBorderStyle::BorderSunken);
    EXPECT_EQ(sheet->BorderStyleDiapoExt(), DiapoBorderStyle::FlatBackColor);
    EXPECT_EQ(sheet->BorderColorDiapo(), 0x8C021BU);
    EXPECT_EQ(sheet->ShadowColor(), 0xB4B4B4U);
    EXPECT_EQ(sheet->BackColor(), 0x8000000FU);
    EXPECT_EQ(sheet->BackColorDiapo(), 0x8000000FU);
    EXPECT_EQ(sheet->ScrollWindowBackColor(), 0xFFFFFFU);
    EXPECT_FALSE(sheet->BorderDouble() || sheet->ShowDiapoTools());
}

TEST_F(LifecycleTest, TheTableHasAllKeysInTheOrderOfReading) {
    std::string keys;
    for (const auto& property : Vorlane::PersistedProperties()) keys += property.Key + " ";
    EXPECT_EQ(
        keys,
        "BackColor BorderStyle Enabled AutoAdjust AutoCornerResize BackColorDiapo BackColorSelected "
        "BorderColorDiapo BorderColorDiapoExt BorderDouble BorderSize BorderStyleDiapo BorderStyleDiapoExt "
        "CaptionWait ImageMarge ShadowColor ShadowWidth ShowShadow ShowDiapoTools ForeColor MouseIcon MousePointer "
        "LegendeFont LegendeNbLig FontImageName SortedSens Thumbnail ThumbnailResolution ThumbnailSizeNormal "
        "ThumbnailSizeHigh DiapoHeight DiapoWidth ShowFileName ShowInfo ShowZoom ListAutoFill Marges MargeDiapoMin "
        "MargeDiapoAutoAdjust ShowJauge ScrollDirection ScrollWindowPos ScrollWindowWidth ScrollWindowBackColor "
        "SelectionMultiple Sorted BackColorCurrent OLEDropMode OLEDragMode JaugeAnimation ");
}

TEST_F(LifecycleTest, AValueThatEqualsItsDefaultIsNotStored) {
    Start();
    PropertyBag bag;
    sheet->WriteProperties(bag);
    EXPECT_TRUE(bag.Empty());
}

TEST_F(LifecycleTest, EveryPersistedPropertyComesBackFromItsBag) {
    PropertyBag saved;
    for (const auto& property : Vorlane::PersistedProperties()) {
        saved.SetValue(property.Key, Other(property.Key, property.Default(*sheet)));
    }
    Start(saved);
    PropertyBag again;
    sheet->WriteProperties(again);
    for (const auto& [key, value] : saved.Values()) {
        const auto stored = again.Value(key);
        ASSERT_TRUE(stored) << key;
        EXPECT_EQ(*stored, value) << key;
    }
}

TEST_F(LifecycleTest, ABadValueLeavesTheDefaultAndTheNextKeysAreRead) {
    PropertyBag bag;
    bag.SetValue("Marges", std::string("wide"));
    bag.SetValue("BorderSize", int64_t{300});
    bag.SetValue("MargeDiapoMin", int64_t{12});
    Start(bag);
    EXPECT_EQ(sheet->Marges(), 5);
    EXPECT_EQ(sheet->BorderSize(), 4);
    EXPECT_EQ(sheet->MargeDiapoMin(), 12);
}

TEST_F(LifecycleTest, AFontOfNoSizeLeavesTheOneThatStandsOnAllSlides) {
    PropertyBag bag;
    bag.SetValue("LegendeFont", Font{"Serif", 0});
    bag.SetValue("FontImageName", Font{"Serif", 12});
    Start(bag);
    AddItems(0, 1);
    sheet->StartLecture();
    for (int32_t k = 0; k < 2; ++k) {
        EXPECT_EQ(sheet->Diapo.Item(k)->FontBottom(), window.Ambient().Font);
        EXPECT_EQ(sheet->Diapo.Item(k)->FontImageName(), (Font{"Serif", 12}));
    }
    EXPECT_THROW(sheet->SetLegendeFont({"Serif", -1}), Failure);
    EXPECT_EQ(sheet->LegendeFont(), window.Ambient().Font);
}

TEST_F(LifecycleTest, TheSelectionColourOfTheBagIsTheOneThatBlankSlidesGet) {
    PropertyBag bag;
    bag.SetValue("BackColorSelected", int64_t{0x101010});
    Start(bag);
    AddItems(0, 0);
    sheet->StartLecture();
    sheet->SetBackColorSelected(0x202020);
    sheet->Clear();
    EXPECT_EQ(sheet->Diapo.Item(0)->BackColorSelected(), 0x101010U);
}

TEST_F(LifecycleTest, ADesignSavedWhileTheFirstSlideIsSelectedHasTheColoursOfAnUnselectedOne) {
    Show(9);
    window.Click(50, 40);
    ASSERT_TRUE(sheet->Diapo.Item(0)->Selected());
    ASSERT_EQ(sheet->CurrentDiapo(), 0);
    PropertyBag design;
    sheet->WriteDesign(design);
    EXPECT_TRUE(design.Empty()) << design.Values().begin()->first;

    PropertyBag shown;
    sheet->WriteProperties(shown);
    EXPECT_EQ(shown.ReadColor("BackColorDiapo", 0), sheet->BackColorCurrent()) << "the getters give what shows";
}

TEST_F(LifecycleTest, ADesignKeepsAHostsColourThatEqualsTheMark) {
    Show(9);
    sheet->SetBackColorSelected(sheet->BackColorCurrent());
    PropertyBag design;
    sheet->WriteDesign(design);
    EXPECT_EQ(design.ReadColor("BackColorSelected", 0), sheet->BackColorCurrent());
}

TEST_F(LifecycleTest, ADesignKeepsAColourThatTheHostGaveWhileTheFirstSlideWasTheCurrentOne) {
    Show(9);
    window.Click(50, 40);
    sheet->SetBackColorSelected(0x101010);
    PropertyBag design;
    sheet->WriteDesign(design);
    EXPECT_EQ(design.ReadColor("BackColorSelected", 0), 0x101010U);
}

TEST_F(LifecycleTest, ADesignHasNoMarkThatTheHostHasChangedSince) {
    Show(9);
    window.Click(50, 40);
    sheet->SetBackColorCurrent(0x202020);
    PropertyBag design;
    sheet->WriteDesign(design);
    EXPECT_FALSE(design.Value("BackColorSelected"));
    sheet->SetBackColorCurrent(8249597);
    sheet->SetBackColorDiapo(0x303030);
    PropertyBag other;
    sheet->WriteDesign(other);
    EXPECT_FALSE(other.Value("BackColorSelected"));
}

TEST_F(LifecycleTest, ADesignSavedWhileTheFirstSlideIsTheCurrentOneHasTheLoadedColourOfSelections) {
    PropertyBag bag;
    bag.SetValue("BackColorSelected", int64_t{0x101010});
    Start(bag);
    AddItems(0, 8);
    sheet->StartLecture();
    window.Click(50, 40);
    PropertyBag design;
    sheet->WriteDesign(design);
    EXPECT_EQ(design.Values(), bag.Values());
}

TEST_F(LifecycleTest, NothingIsResizedWhileASheetIsReadOnceMore) {
    Show(9);
    const int16_t rows = sheet->CountDiapoY();
    PropertyBag bag;
    bag.SetValue("ScrollDirection", int64_t{1});
    sheet->ReadProperties(bag);
    EXPECT_EQ(sheet->CountDiapoY(), rows);
    sheet->Restart(bag);
    EXPECT_NE(sheet->CountDiapoY(), rows);
}

TEST_F(LifecycleTest, TheDragModesOfABagReachTheSlideTheMarkAndTheSheet) {
    PropertyBag bag;
    bag.SetValue("OLEDropMode", int64_t{2});
    bag.SetValue("OLEDragMode", int64_t{1});
    Start(bag);
    EXPECT_EQ(sheet->OLEDropMode(), 2);
    EXPECT_EQ(sheet->Diapo.Item(0)->OLEDropMode(), 1);
    EXPECT_EQ(sheet->ImgDrag.OLEDropMode(), 1);
    EXPECT_EQ(sheet->Control::OLEDropMode(), 1);
    EXPECT_EQ(sheet->OLEDragMode(), 1);
    EXPECT_EQ(sheet->Diapo.Item(0)->OLEDragMode(), 0);
}

TEST_F(LifecycleTest, ASheetReadOnceMoreShowsItsSelectionInTheNewColours) {
    Show(9);
    window.Click(50, 40);
    PropertyBag bag;
    bag.SetValue("BackColorSelected", int64_t{0x101010});
    bag.SetValue("BackColorCurrent", int64_t{0x202020});
    sheet->Restart(bag);
    desktop.clock.Advance(200);
    EXPECT_TRUE(sheet->Diapo.Item(0)->Selected());
    EXPECT_EQ(sheet->Diapo.Item(0)->BackColor(), 0x202020U);
    EXPECT_EQ(sheet->CurrentDiapo(), 0);
    EXPECT_EQ(sheet->Diapo.Item(0)->NormalGround(), sheet->Ambient().BackColor);
    ExpectSlidesAgreeWithList();

    sheet->SelectedClear(-1);
    sheet->Restart(bag);
    desktop.clock.Advance(200);
    EXPECT_EQ(sheet->Diapo.Item(0)->BackColor(), sheet->Ambient().BackColor);
    EXPECT_EQ(sheet->CurrentDiapo(), -1);
}

TEST_F(LifecycleTest, ABadColourOfSelectionsLeavesTheOldOneAlsoUnderTheMark) {
    PropertyBag bag;
    bag.SetValue("BackColorSelected", int64_t{0x101010});
    Start(bag);
    AddItems(0, 8);
    for (const int32_t item : {1, 2}) sheet->Liste()->SetSelected(item, true);
    sheet->StartLecture();
    sheet->SetSelected(0, true);
    ASSERT_EQ(sheet->CurrentDiapo(), 0);
    ASSERT_EQ(sheet->CountSelected(), 3);
    bag.SetValue("BackColorSelected", std::string("wide"));
    sheet->Restart(bag);
    desktop.clock.Advance(200);
    EXPECT_EQ(sheet->Diapo.Item(0)->BackColor(), sheet->BackColorCurrent());
    EXPECT_EQ(sheet->Diapo.Item(1)->BackColor(), 0x101010U);
}

TEST_F(LifecycleTest, ASizeOfSlidesThatMakesNoGridIsPassedOverWithItsGap) {
    Show(9);
    PropertyBag bag;
    bag.SetValue("DiapoWidth", int64_t{-7});
    bag.SetValue("MargeDiapoMin", int64_t{7});
    bag.SetValue("Marges", int64_t{9});
    sheet->Restart(bag);
    desktop.clock.Advance(200);
    EXPECT_EQ(sheet->DiapoWidth(), 100);
    EXPECT_EQ(sheet->DiapoHeight(), 75);
    EXPECT_EQ(sheet->MargeDiapoMin(), 5);
    EXPECT_EQ(sheet->Marges(), 9);
    EXPECT_EQ(Slides(), "0 1 2 3 4 5 6 7 8");
    bag.SetValue("DiapoWidth", int64_t{1});
    bag.SetValue("DiapoHeight", int64_t{1});
    bag.SetValue("MargeDiapoMin", int64_t{0});
    sheet->Restart(bag);
    EXPECT_EQ(sheet->DiapoWidth(), 100) << "of slides that small there would be too many";
}

TEST_F(LifecycleTest, ASheetReadOnceMoreIsLaidOutAnewAlsoWhereNothingElseAsksForIt) {
    Show(9);
    PropertyBag bag;
    bag.SetValue("MargeDiapoAutoAdjust", false);
    sheet->Restart(bag);
    desktop.clock.Advance(200);
    EXPECT_EQ(Slides(), "0 1 2 3 4 5 6 7 8");
}

TEST_F(LifecycleTest, AtRunTimeSlideZeroStartsHiddenAndInADesignerItShows) {
    Start();
    EXPECT_FALSE(sheet->Diapo.Item(0)->Visible());
    Ambient ambient = window.Ambient();
    ambient.UserMode = false;
    Make(ambient);
    Start();
    EXPECT_TRUE(sheet->Diapo.Item(0)->Visible());
}

TEST_F(LifecycleTest, NoResizeCountsBeforeTheStart) {
    sheet->Move(0, 0, 900, 700);
    EXPECT_EQ(sheet->CountDiapo(), 0);
    Start();
    EXPECT_EQ(sheet->CountDiapo(), 9);
}

TEST_F(LifecycleTest, EndingTwiceIsHarmless) {
    Show(3);
    sheet->TimerSon.SetEnabled(true);
    sheet->TimerDrag.SetEnabled(true);
    sheet->TimerResize.SetEnabled(true);
    sheet->TimerUnload.SetEnabled(true);
    sheet->Terminate();
    EXPECT_EQ(desktop.clock.RunningTimers(), 0);
    EXPECT_EQ(sheet->Liste(), nullptr);
    sheet->Terminate();
    sheet.reset();
}

TEST_F(LifecycleTest, ASheetReadOnceMoreBehindItsEndStaysAtRest) {
    Show(9);
    sheet->Terminate();
    PropertyBag bag;
    bag.SetValue("Marges", int64_t{9});
    sheet->Restart(bag);
    desktop.clock.Advance(50);
    EXPECT_EQ(sheet->Marges(), 9);
    EXPECT_EQ(desktop.clock.RunningTimers(), 0);
    EXPECT_EQ(desktop.windows.AttachedMessages(), 0);
    EXPECT_EQ(Heard(), "");
}

TEST_F(LifecycleTest, AnEndedSheetReportsThatItHasNoList) {
    Show(3);
    sheet->Terminate();
    EXPECT_EQ(sheet->Add("/p/a.jpg", ""), 0);
    EXPECT_EQ(sheet->StartLecture(), 0);
    EXPECT_EQ(Heard(),
              "host Error 91 Vorlane Add /p/a.jpg -  - -1 - -1\n"
              "host Error 91 Vorlane StartLecture DpCnt=3 -  - -1\n");
    EXPECT_THROW(sheet->Count(), Failure);
}

TEST_F(LifecycleTest, TheWheelTurnsTheBarByWholeRows) {
    Show(40);
    EXPECT_TRUE(sheet->Wheel(-1));
    EXPECT_EQ(sheet->VScroll.Value(), 3);
    sheet->Wheel(-0.5);
    EXPECT_EQ(sheet->VScroll.Value(), 3);
    sheet->Wheel(-0.5);
    EXPECT_EQ(sheet->VScroll.Value(), 6);
    sheet->Wheel(50);
    EXPECT_EQ(sheet->VScroll.Value(), 0);
    sheet->Wheel(-500);
    EXPECT_EQ(sheet->VScroll.Value(), sheet->VScroll.Max());
    ExpectSlidesAgreeWithList();
}

TEST_F(LifecycleTest, TheWheelIsNotUsedWithoutABar) {
    Show(3);
    EXPECT_FALSE(sheet->Wheel(-1));
}

}  // namespace
}  // namespace vorlane
