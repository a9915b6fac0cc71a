// The user's hand on the bar, and the window that follows the thumb.
#include "sheet/followplace.h"
#include "tests/platform/temporaryfolder.h"
#include "tests/sheet/sheetfixture.h"
#include "windows/frmscroll.h"

namespace vorlane {
namespace {

class ThumbTest : public SheetTest {
protected:
    void ShowWith(const PropertyBag& bag) {
        Start(bag);
        AddItems(0, 39);
        sheet->StartLecture();
        desktop.trace.Clear();
    }
    FrmScroll& Form() { return SharedFrmScroll(desktop.Roles()); }
    // The picture that the follow window shows.
    std::string Followed() { return headless::NameOf(Form().Img2().Picture()); }
};

// --- The mouse on the bar ---

TEST_F(ThumbTest, ThePressAndTheReleaseOnTheBarAreTold) {
    Show(40);
    window.Press(335, 90, headless::kRightButton, headless::kShift);
    window.Release(337, 100, headless::kRightButton);
    EXPECT_EQ(Heard(),
              "host ScrollMouseDown 2 1 6,90 at 0\n"
              "host ScrollMouseUp 2 0 8,100 at 0\n");
}

TEST_F(ThumbTest, TheBarsMouseIsToldInTheContainersScale) {
    Make(window.Ambient(ScaleMode::Twips));
    Show(40);
    window.Press(335, 90);
    EXPECT_THAT(Heard(), testing::StartsWith("host ScrollMouseDown 1 0 90,1350 at 0\n"));
    window.Release(335, 90);
}

TEST_F(ThumbTest, WhatAHandlerWritesIntoTheBarsValueHasNoEffect) {
    Show(40);
    onBarMouse = [](int32_t& value) { value = 20; };
    window.Click(335, 90);
    EXPECT_EQ(sheet->VScroll.Value(), 0);
    EXPECT_EQ(Slides(), "0 1 2 3 4 5 6 7 8");
}

TEST_F(ThumbTest, AThrowOnTheBarsMouseLeavesTheBarAlive) {
    Show(40);
    onBarMouse = [](int32_t&) { throw std::runtime_error("no"); };
    window.HoldThumb(sheet->VScroll);
    window.DragThumb(sheet->VScroll, 20);
    EXPECT_TRUE(Form().Visible());
    window.ReleaseThumb(sheet->VScroll, 20);
    EXPECT_FALSE(Form().Visible());
    EXPECT_EQ(Slides(), "21 22 23 24 25 26 27 28 29");
}

// --- A drag of the thumb ---

TEST_F(ThumbTest, OfASidewaysSheetTheWindowStandsBelowItsLeftEnd) {
    PropertyBag bag;
    bag.SetValue("ScrollDirection", int64_t{1});
    ShowWith(bag);
    window.HoldThumb(sheet->VScroll);
    window.DragThumb(sheet->VScroll, 9);
    EXPECT_TRUE(Form().Visible());
    EXPECT_EQ(Followed(), File(9));
    EXPECT_EQ((Box{Form().Left(), Form().Top(), Form().Width(), Form().Height()}),
              (Box{100 * 15, (200 + kHeight) * 15, 100 * 15, 76 * 15}))
        << "twips of the screen";
    window.ReleaseThumb(sheet->VScroll, 9);
    EXPECT_EQ(sheet->Diapo.Item(0)->Value(), 9);
}

TEST_F(ThumbTest, ADragOpensTheWindowShowsTheItemUnderTheThumbAndScrollsAtItsEnd) {
    Show(40);
    window.HoldThumb(sheet->VScroll);
    EXPECT_FALSE(Form().Visible());
    window.DragThumb(sheet->VScroll, 9);
    EXPECT_TRUE(Form().Visible());
    EXPECT_EQ(Followed(), File(9));
    EXPECT_EQ(Slides(), "0 1 2 3 4 5 6 7 8") << "the list stands still";
    window.DragThumb(sheet->VScroll, 30);
    EXPECT_EQ(Followed(), File(30));
    EXPECT_EQ(Heard(),
              "host ScrollMouseDown 1 0 8,0 at 0\n"
              "host GetThumbPath 009.jpg\nhost Scroll 9 from 0\n"
              "host GetThumbPath 030.jpg\nhost Scroll 30 from 0\n");
    window.ReleaseThumb(sheet->VScroll, 30);
    EXPECT_FALSE(Form().Loaded());
    EXPECT_EQ(Slides(), "30 31 32 33 34 35 36 37 38");
    EXPECT_THAT(Heard(), testing::EndsWith("host Scroll 30 from 0\nhost ScrollMouseUp 1 0 8,158 at 30\n"));
}

TEST_F(ThumbTest, DuringAThumbDragWithoutAPressTheWindowStaysClosedButTheFileIsAskedForAndGiven) {
    Show(40);
    sheet->VScroll.DragThumb(9);
    EXPECT_FALSE(Form().Visible());
    EXPECT_EQ(Followed(), File(9));
    EXPECT_EQ(Heard(), "host GetThumbPath 009.jpg\nhost Scroll 9 from 0\n");
    EXPECT_EQ(desktop.forms.ShownForms(), 0);
}

TEST_F(ThumbTest, APressOfAnotherButtonOpensNoWindow) {
    Show(40);
    window.HoldThumb(sheet->VScroll, headless::kRightButton);
    sheet->VScroll.DragThumb(9);
    EXPECT_FALSE(Form().Visible());
    window.ReleaseThumb(sheet->VScroll, 9, headless::kRightButton);
}

TEST_F(ThumbTest, APressThatIsOverOpensNoWindow) {
    Show(40);
    window.Click(335, 90);
    sheet->VScroll.DragThumb(9);
    EXPECT_FALSE(Form().Visible());
}

TEST_F(ThumbTest, TheHostMayNameAThumbnailFileInPlaceOfThePicture) {
    const TemporaryFolder folder;
    const std::string thumb = folder.File("thumb.jpg");
    desktop.pictures.Add(thumb, 30, 20);
    Show(40);
    onGetThumbPath = [&](std::string& name) { name = thumb; };
    window.HoldThumb(sheet->VScroll);
    window.DragThumb(sheet->VScroll, 9);
    EXPECT_EQ(Followed(), thumb);
    window.ReleaseThumb(sheet->VScroll, 9);
}

TEST_F(ThumbTest, AThumbnailFileThatIsNotThereIsNotUsed) {
    const TemporaryFolder folder;
    Show(40);
    for (const std::string& wrong : {folder.At("gone.jpg"), folder.Path()}) {
        onGetThumbPath = [&](std::string& name) { name = wrong; };
        sheet->VScroll.DragThumb(9);
        EXPECT_EQ(Followed(), File(9));
    }
}

TEST_F(ThumbTest, TheWindowHasTheColourOfTheSheetsProperty) {
    PropertyBag bag;
    bag.SetValue("ScrollWindowBackColor", int64_t{0x112233});
    ShowWith(bag);
    window.HoldThumb(sheet->VScroll);
    window.DragThumb(sheet->VScroll, 9);
    EXPECT_EQ(Form().BackColor(), 0x112233U);
    window.ReleaseThumb(sheet->VScroll, 9);
}

TEST_F(ThumbTest, TheHostMayWriteTheOldPlaceDuringADrag) {
    Show(40);
    onScroll = [](int32_t& asValue) { asValue = 12; };
    sheet->VScroll.DragThumb(30);
    onScroll = {};
    desktop.trace.Clear();
    sheet->VScroll.SetValue(30);
    EXPECT_THAT(Heard(), testing::EndsWith("host Scroll 30 from 12\n"));
}

TEST_F(ThumbTest, ADragOfAFileListNamesItsFiles) {
    const TemporaryFolder folder;
    for (int32_t n = 10; n < 50; ++n) folder.File(std::to_string(n) + ".jpg");
    Start();
    sheet->InitListe(ListeModeType::lmFileList, nullptr, folder.Path());
    sheet->StartLecture();
    desktop.trace.Clear();
    sheet->VScroll.DragThumb(9);
    EXPECT_EQ(Heard(), "host GetThumbPath 19.jpg\nhost Scroll 9 from 0\n");
}

TEST_F(ThumbTest, AThrowInGetThumbPathIsReportedAndTheWindowStillCloses) {
    Show(40);
    onGetThumbPath = [](std::string&) { throw failures::TypeMismatch(); };
    window.HoldThumb(sheet->VScroll);
    window.DragThumb(sheet->VScroll, 9);
    EXPECT_THAT(Heard(), testing::EndsWith("host Error 13 Vorlane VScroll_Scroll DpCnt=9 - 9\n"));
    EXPECT_TRUE(Form().Visible());
    window.ReleaseThumb(sheet->VScroll, 9);
    EXPECT_FALSE(Form().Loaded());
}

TEST_F(ThumbTest, AListThatIsClearedDuringADragIsReportedOnceAndTheWindowStillCloses) {
    Show(40);
    onGetThumbPath = [this](std::string&) { sheet->Clear(); };
    window.HoldThumb(sheet->VScroll);
    window.DragThumb(sheet->VScroll, 9);
    EXPECT_THAT(Heard(), testing::HasSubstr("host Error 9 Vorlane VScroll_Scroll DpCnt=1 - 9\n"));
    window.ReleaseThumb(sheet->VScroll, 0);
    EXPECT_FALSE(Form().Loaded());
}

TEST_F(ThumbTest, AWindowThatCannotBeShownStopsNothing) {
    Show(40);
    desktop.forms.FailShowing(true);
    window.HoldThumb(sheet->VScroll);
    window.DragThumb(sheet->VScroll, 9);
    EXPECT_FALSE(Form().Visible());
    EXPECT_EQ(Followed(), File(9)) << "it has its picture all the same";
    EXPECT_EQ(Heard(),
              "host ScrollMouseDown 1 0 8,0 at 0\n"
              "host GetThumbPath 009.jpg\nhost Scroll 9 from 0\n");
    desktop.forms.FailShowing(false);
    window.DragThumb(sheet->VScroll, 30);
    EXPECT_TRUE(Form().Visible()) << "each move of the thumb tries anew";
    window.ReleaseThumb(sheet->VScroll, 30);
    EXPECT_FALSE(Form().Loaded());
    EXPECT_EQ(Slides(), "30 31 32 33 34 35 36 37 38");
}

TEST_F(ThumbTest, AWindowThatWasNeverShownIsUnloadedAtTheReleaseToo) {
    Show(40);
    desktop.forms.FailShowing(true);
    window.HoldThumb(sheet->VScroll);
    window.DragThumb(sheet->VScroll, 9);
    ASSERT_TRUE(Form().Loaded());
    window.ReleaseThumb(sheet->VScroll, 9);
    EXPECT_FALSE(Form().Loaded());
    EXPECT_THAT(Heard(), testing::Not(testing::HasSubstr("Error")));
}

TEST_F(ThumbTest, ASheetThatEndsDuringADragClosesItsWindow) {
    Show(40);
    window.HoldThumb(sheet->VScroll);
    window.DragThumb(sheet->VScroll, 9);
    ASSERT_TRUE(Form().Visible());
    sheet.reset();
    EXPECT_FALSE(Form().Loaded());
}

// --- Where the window stands ---

TEST_F(ThumbTest, TheWindowStandsOutsideAtTheTopRightAndClosesIntoItsLowerLeftCorner) {
    Show(40);
    window.HoldThumb(sheet->VScroll);
    window.DragThumb(sheet->VScroll, 9);
    EXPECT_THAT(Heard({"form"}), testing::HasSubstr("move 445,200 100x76\n"));
    window.ReleaseThumb(sheet->VScroll, 9);
    EXPECT_THAT(Heard({"form"}), testing::HasSubstr("close bottom-left"));
}

TEST_F(ThumbTest, InsideItStandsBesideTheBarAndClosesIntoItsLowerRightCorner) {
    PropertyBag bag;
    bag.SetValue("ScrollWindowPos", int64_t{1});
    bag.SetValue("ScrollWindowWidth", int64_t{75});
    ShowWith(bag);
    window.HoldThumb(sheet->VScroll);
    window.DragThumb(sheet->VScroll, 9);
    EXPECT_THAT(Heard({"form"}), testing::HasSubstr("move 352,200 75x57\n"));
    window.ReleaseThumb(sheet->VScroll, 9);
    EXPECT_THAT(Heard({"form"}), testing::HasSubstr("close bottom-right"));
}

TEST(FollowPlaceTest, ASidewaysSheetHasItBelowAtTheLeftOrAboveTheBar) {
    const WinRect sheet{10, 20, 310, 220};
    EXPECT_EQ(
        PlaceFollowWindow(ScrollDirectionType::sdHorizontal, ScrollWindowPosType::swpOutside, sheet, 100, 300, 16),
        (FollowPlace{2, {10, 220, 100, 76}}));
    EXPECT_EQ(PlaceFollowWindow(ScrollDirectionType::sdHorizontal, ScrollWindowPosType::swpInside, sheet, 100, 300, 16),
              (FollowPlace{3, {10, 220 - 16 - 76 - 2, 100, 76}}));
}

TEST(FollowPlaceTest, ItsHeightIsRounded) {
    const auto height = [](int16_t width) {
        return PlaceFollowWindow(ScrollDirectionType::sdVertical, ScrollWindowPosType::swpOutside, {}, width, 16, 100)
            .Pixels.Height;
    };
    EXPECT_EQ(height(50), 38);
    EXPECT_EQ(height(99), 75);
    EXPECT_EQ(height(0), 0);
}

}  // namespace
}  // namespace vorlane
