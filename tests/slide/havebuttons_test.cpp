// The buttons that show whether a slide has music, a comment, a text.
#include "slidetest.h"

namespace vorlane::headless {
namespace {

class HaveButtonsTest : public LaidSlideTest {};

TEST_F(HaveButtonsTest, TheToolsRowAsksForTheSoundsOwnPlayPicture) {
    OwnAnswers();
    slide.SetShowDiapoTools(true);
    slide.SetOnGetThumb(true);
    slide.SetHaveInvalidMusic(true);
    slide.SetHaveSoundMusic(true);
    slide.SetHaveInvalidComm(true);
    slide.SetHaveSoundComment(true);
    slide.SetHaveTexte(true);
    slide.SetOnGetThumb(false);
    slide.PictureByString("/a.jpg", Bitmap(20, 20));
    EXPECT_EQ(LoadsAndEvents(), "slide SetPicture 5 invalid\nslide SetPicture 6 invalid\nslide SetPicture 7\n");
    EXPECT_EQ(NameOf(slide.BtPlayPicture()), "owner5");
    EXPECT_EQ(NameOf(slide.BtCommentPicture()), "owner6");
    EXPECT_EQ(NameOf(slide.BtTextPicture()), "owner7");
    EXPECT_TRUE(slide.BtPlayVisible());
    EXPECT_TRUE(slide.BtCommentVisible());
    EXPECT_TRUE(slide.BtTextVisible());
}

TEST_F(HaveButtonsTest, OtherFilesInAToolsRowAskForThePlainPlayPicture) {
    slide.SetShowDiapoTools(true);
    slide.SetOnGetThumb(true);
    slide.SetHaveSoundMusic(true);
    slide.PictureByString("/a.mp3");
    EXPECT_EQ(LoadsAndEvents(), "slide SetPicture 8\nslide SetPicture 1\n");
}

TEST_F(HaveButtonsTest, AHiddenButtonLosesItsPicture) {
    slide.SetBtPlayPicture(Bitmap(16, 16));
    slide.SetBtCommentPicture(Bitmap(16, 16));
    slide.SetBtTextPicture(Bitmap(16, 16));
    slide.PictureByString("/a.jpg", Bitmap(20, 20));
    EXPECT_EQ(slide.BtPlayPicture().Type(), 0);
    EXPECT_EQ(slide.BtCommentPicture().Type(), 0);
    EXPECT_EQ(slide.BtTextPicture().Type(), 0);
}

TEST_F(HaveButtonsTest, MusicLaysOutBeforeItsPictureIsAsked) {
    bool laidOut = false;
    slide.Events.SetPicture.connect([&](DiapoPictureIndex, Picture&, bool) {
        laidOut = slide.Surface().dump().find("SetPixel") == std::string::npos;
    });
    EXPECT_TRUE(LaysOut([&] { slide.SetHaveSoundMusic(true); }));
    EXPECT_TRUE(laidOut);
    EXPECT_TRUE(LaysOut([&] { slide.SetHaveSoundComment(true); }));
    EXPECT_TRUE(laidOut);
    EXPECT_TRUE(LaysOut([&] { slide.SetHaveTexte(true); }));
    EXPECT_FALSE(laidOut);
}

TEST_F(HaveButtonsTest, MusicAlwaysAsksForPictureFive) {
    slide.SetHaveInvalidMusic(true);
    slide.SetHaveSoundMusic(true);
    EXPECT_EQ(LoadsAndEvents(), "slide SetPicture 5 invalid\n");
    slide.SetHaveSoundMusic(true);
    EXPECT_EQ(LoadsAndEvents(), "");
    slide.SetHaveSoundMusic(false);
    EXPECT_EQ(LoadsAndEvents(), "");
    EXPECT_FALSE(slide.BtPlayVisible());
}

TEST_F(HaveButtonsTest, CommentAndTextAskForTheirPictures) {
    slide.SetHaveInvalidComm(true);
    slide.SetHaveSoundComment(true);
    slide.SetHaveTexte(true);
    EXPECT_EQ(LoadsAndEvents(), "slide SetPicture 6 invalid\nslide SetPicture 7\n");
    EXPECT_TRUE(slide.BtCommentVisible());
    EXPECT_TRUE(slide.BtTextVisible());
}

TEST_F(HaveButtonsTest, WhatIsTakenAwayTakesItsPictureAlong) {
    OwnAnswers();
    slide.SetHaveSoundMusic(true);
    slide.SetHaveSoundComment(true);
    slide.SetHaveTexte(true);
    ASSERT_EQ(NameOf(slide.BtPlayPicture()) + NameOf(slide.BtCommentPicture()) + NameOf(slide.BtTextPicture()),
              "owner5owner6owner7");
    slide.SetHaveSoundMusic(false);
    slide.SetHaveSoundComment(false);
    slide.SetHaveTexte(false);
    EXPECT_EQ(slide.BtPlayPicture().Type(), 0);
    EXPECT_EQ(slide.BtCommentPicture().Type(), 0);
    EXPECT_EQ(slide.BtTextPicture().Type(), 0);
}

TEST_F(HaveButtonsTest, UnderOnGetThumbSoundsAndTextOnlyStore) {
    slide.SetOnGetThumb(true);
    EXPECT_FALSE(LaysOut([&] {
        slide.SetHaveSoundMusic(true);
        slide.SetHaveSoundComment(true);
        slide.SetHaveTexte(true);
    }));
    EXPECT_EQ(LoadsAndEvents(), "");
    EXPECT_TRUE(slide.HaveSoundMusic() && slide.HaveSoundComment() && slide.HaveTexte());
    EXPECT_FALSE(slide.BtPlayVisible() || slide.BtCommentVisible() || slide.BtTextVisible());
}

}  // namespace
}  // namespace vorlane::headless
