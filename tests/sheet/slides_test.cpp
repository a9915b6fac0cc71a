// What the slides of a sheet ask and tell.
#include "tests/sheet/sheetfixture.h"

namespace vorlane {
namespace {

class SlidesTest : public SheetTest {
protected:
    std::string Asked(int32_t index, bool invalidSound) {
        Picture picture = headless::FakePictures::Make("as it was", 1, 1);
        sheet->Diapo.Item(0)->Events.SetPicture(static_cast<DiapoPictureIndex>(index), picture, invalidSound);
        return headless::NameOf(picture);
    }
};

TEST_F(SlidesTest, ASlideGetsItsPicturesByNumber) {
    const char* const usual[] = {"file-substitute", "file-sound",   "file-video", "file-document", "file-other",
                                 "play-music",      "play-comment", "show-text",  "play"};
    for (int32_t index = 0; index < 9; ++index) EXPECT_EQ(Asked(index, false), usual[index]);
    EXPECT_EQ(Asked(5, true), "sound-missing");
    EXPECT_EQ(Asked(6, true), "sound-missing");
    EXPECT_EQ(Asked(7, true), "show-text");
    EXPECT_EQ(Asked(9, false), "as it was");
    EXPECT_EQ(Asked(100, true), "as it was");
}

TEST_F(SlidesTest, ASlideGetsItsPlaceOnTheScreenAndTheTextForWaiting) {
    Show(9);
    sheet->SetCaptionWait("Un instant");
    WinRect rect;
    std::string text;
    sheet->Diapo.Item(4)->Events.GetWindowsPos(rect, text);
    EXPECT_EQ(rect, (WinRect{100 + 111, 200 + 86, 100 + 211, 200 + 161}));
    EXPECT_EQ(text, "Un instant");
}

TEST_F(SlidesTest, APropertyReachesTheSlidesOnBothSidesOfAHole) {
    Show(9);
    sheet->Diapo.Unload(4);
    sheet->SetShadowWidth(2);
    EXPECT_EQ(sheet->Diapo.Item(8)->ShadowWidth(), 2);
    EXPECT_EQ(sheet->GetIndexFromKey(1008), 8);
}

TEST_F(SlidesTest, AnErrorOfASlideReachesTheHostWithItsIndex) {
    Show(3);
    desktop.pictures.FailResizing(true);
    sheet->Diapo.Item(2)->Thumb(headless::FakePictures::Make("x", 900, 900), 50);
    EXPECT_EQ(Heard(), "host Error 481 DpLight Thumb  - Index=2\n");
}

TEST_F(SlidesTest, AnInvalidPictureReachesTheHostWithItsIndex) {
    Show(3);
    sheet->Diapo.Item(1)->PictureByString("/p/broken.png");
    EXPECT_EQ(Heard(), "host InvalidPicture 1 broken.png\n");
}

TEST_F(SlidesTest, ABlankedSlideKeepsNothing) {
    Show(9);
    const auto slide = sheet->Diapo.Item(0);
    slide->SetCaptionBottom("caption");
    slide->SetTag("tag");
    slide->SetToolTipText("tip");
    slide->SetSelectedTmp(true);
    slide->SetSelected(true);
    slide->SetHaveSoundMusic(true);
    slide->SetHaveSoundComment(true);
    slide->SetHaveTexte(true);
    sheet->Clear();
    EXPECT_EQ(slide->ImageFullPath(), "");
    EXPECT_EQ(slide->LblTop.Caption(), "");
    EXPECT_EQ(slide->Picture().Handle(), 0U);
    EXPECT_EQ(slide->CaptionBottom() + slide->Tag() + slide->ToolTipText(), "");
    EXPECT_FALSE(slide->Selected() || slide->SelectedTmp());
    EXPECT_EQ(slide->Value(), -1);
    EXPECT_FALSE(slide->HaveSoundMusic() || slide->HaveSoundComment() || slide->HaveTexte());
    EXPECT_FALSE(slide->BtPlayVisible() || slide->BtCommentVisible() || slide->BtTextVisible());
    EXPECT_EQ(slide->BtPlayPicture().Handle() + slide->BtCommentPicture().Handle() + slide->BtTextPicture().Handle(),
              0U);
    EXPECT_FALSE(slide->Visible());
}

TEST_F(SlidesTest, ASlideThatIsUnloadedWhileAHandlerHoldsItLivesOnUntilThen) {
    Show(9);
    const auto slide = sheet->Diapo.Item(5);
    sheet->Clear();
    EXPECT_FALSE(slide->Visible());
    EXPECT_EQ(slide->ImageFullPath(), "/p/005.jpg");
}

TEST_F(SlidesTest, AnUnloadedSlideThatIsStillHeldIsHeardNoMore) {
    Show(9);
    const auto slide = sheet->Diapo.Item(5);
    sheet->Clear();
    Heard();
    EXPECT_EQ(slide->Key(), 0);
    slide->PictureByString("/p/broken.png");
    EXPECT_EQ(slide->Picture().Type(), 0);
    desktop.pictures.FailResizing(true);
    slide->Thumb(headless::FakePictures::Make("x", 900, 900), 50);
    WinRect rect{1, 2, 3, 4};
    std::string text = "as it was";
    slide->Events.GetWindowsPos(rect, text);
    EXPECT_EQ(rect, (WinRect{1, 2, 3, 4}));
    EXPECT_EQ(text, "as it was");
    EXPECT_EQ(Heard(), "");
}

TEST_F(SlidesTest, AnUnloadedSlideIsNotTakenForTheSlideThatHasItsIndexNow) {
    Show(9);
    const auto slide = sheet->Diapo.Item(5);
    sheet->Clear();
    AddItems(10, 18);
    sheet->StartLecture();
    Heard();
    ASSERT_EQ(sheet->Diapo.Item(5)->Key(), 1015);
    EXPECT_EQ(slide->Key(), 0);
    slide->SetKey(7);
    EXPECT_EQ(sheet->Diapo.Item(5)->Key(), 1015);
    slide->PictureByString("/p/broken.png");
    EXPECT_EQ(Heard(), "");
}

TEST_F(SlidesTest, ASlideTooFarOutForTheScreenGetsTheTextForWaitingAlone) {
    Show(1);
    sheet->SetCaptionWait("Un instant");
    const auto slide = sheet->Diapo.Item(0);
    slide->SetLeft(1e12);
    WinRect rect{1, 2, 3, 4};
    std::string text;
    slide->Events.GetWindowsPos(rect, text);
    EXPECT_EQ(rect, (WinRect{1, 2, 3, 4}));
    EXPECT_EQ(text, "Un instant");
}

}  // namespace
}  // namespace vorlane
