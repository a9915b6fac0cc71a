// From files to pictures on a slide.
#include "platform/failure.h"
#include "slidetest.h"

namespace vorlane::headless {
namespace {

class PictureTest : public LaidSlideTest {};

// --- Files ---

TEST_F(PictureTest, APictureFileIsDecodedAndNamed) {
    desktop.pictures.Add("/photos/été.jpg", 300, 150);
    slide.PictureByString("/photos/été.jpg");
    EXPECT_EQ(LoadsAndEvents(), "load /photos/été.jpg\n");
    EXPECT_EQ(Shown(), "/photos/été.jpg");
    EXPECT_EQ(slide.ImageFullPath(), "/photos/été.jpg");
    EXPECT_EQ(slide.LblTop.Caption(), "été.jpg");
    EXPECT_EQ(slide.ImageWidth(), 300);
    EXPECT_EQ(slide.ImageHeight(), 150);
    EXPECT_EQ(Place(slide.Img), "9,16.5 146x73");
}

TEST_F(PictureTest, AGivenThumbSparesTheDecoding) {
    slide.PictureByString("/photos/a.jpg", Bitmap(150, 75));
    EXPECT_EQ(LoadsAndEvents(), "");
    EXPECT_EQ(Shown(), "bitmap");
    EXPECT_EQ(slide.LblTop.Caption(), "a.jpg");
}

TEST_F(PictureTest, AGivenThumbIsShownAsItIs) {
    slide.SetThumbnail(true);
    slide.PictureByString("/photos/a.jpg", Bitmap(400, 400));
    EXPECT_EQ(LoadsAndEvents(), "");
    EXPECT_EQ(Shown(), "bitmap");
    slide.SetPicture(Bitmap(400, 400));
    EXPECT_EQ(Shown(), "resized:bitmap");
}

TEST_F(PictureTest, AnEmptyNameClearsTheSlide) {
    OwnAnswers();
    slide.SetHaveSoundMusic(true);
    slide.SetHaveSoundComment(true);
    desktop.pictures.Add("/a.jpg", 300, 150);
    slide.PictureByString("/a.jpg");
    desktop.trace.Clear();
    slide.PictureByString("");
    EXPECT_EQ(LoadsAndEvents(), "");
    EXPECT_EQ(slide.Picture().Type(), 0);
    EXPECT_EQ(slide.ImageFullPath(), "");
    EXPECT_EQ(slide.LblTop.Caption(), "");
    EXPECT_FALSE(slide.BtPlayVisible());
    EXPECT_TRUE(slide.BtCommentVisible());
}

TEST_F(PictureTest, AnEmptyNameLeavesThePlayButtonOfAToolsRow) {
    slide.SetShowDiapoTools(true);
    slide.SetBtPlayVisible(true);
    slide.PictureByString("");
    EXPECT_TRUE(slide.BtPlayVisible());
}

TEST_F(PictureTest, AFileWithoutExtensionIsNamedWithATrailingPoint) {
    desktop.pictures.Add("/photos/vacances", 40, 30);
    slide.PictureByString("/photos/vacances");
    EXPECT_EQ(LoadsAndEvents(), "load /photos/vacances.\n");
    EXPECT_EQ(Shown(), "/photos/vacances");
    EXPECT_EQ(slide.LblTop.Caption(), "vacances.");
    EXPECT_EQ(slide.ImageFullPath(), "/photos/vacances.");
    EXPECT_EQ(slide.ImageName(), "vacances.");
}

TEST_F(PictureTest, AFileIsKnownByItsPathWithAPointBehindABareName) {
    EXPECT_EQ(eDiapoLight::KnownPath("/photos.d/vacances"), "/photos.d/vacances.");
    EXPECT_EQ(eDiapoLight::KnownPath("/photos/.cachée"), "/photos/.cachée.");
    for (const char* path : {"", "/photos/", "/photos/a.jpg", "/photos/vacances."}) {
        EXPECT_EQ(eDiapoLight::KnownPath(path), path);
    }
}

TEST_F(PictureTest, AFileWithoutExtensionIsShownWhateverPointsItsFolderHolds) {
    desktop.pictures.Add("/photos.d/vacances", 40, 30);
    slide.PictureByString("/photos.d/vacances");
    EXPECT_EQ(Shown(), "/photos.d/vacances");
    desktop.pictures.Add("/photos/.cachée", 40, 30);
    slide.PictureByString("/photos/.cachée");
    EXPECT_EQ(Shown(), "/photos/.cachée");
}

TEST_F(PictureTest, APathWithoutAFileNameClearsTheSlide) {
    slide.SetPicture(Bitmap(20, 20));
    for (const char* path : {"/photos.d/", "/photos/", "/photos/.."}) {
        slide.SetPicture(Bitmap(20, 20));
        slide.PictureByString(path);
        EXPECT_EQ(slide.Picture().Type(), 0) << path;
        EXPECT_EQ(slide.ImageFullPath(), "") << path;
    }
    EXPECT_EQ(LoadsAndEvents(), "");
}

// --- Kinds of files ---

TEST_F(PictureTest, EachKindOfFileHasItsSubstitute) {
    OwnAnswers();
    struct {
        const char* path;
        const char* index;
        const char* playable;
    } const kinds[] = {{"/a.mp3", "1", "/a.mp3"}, {"/a.avi", "2", "/a.avi"}, {"/a.pdf", "3", ""}, {"/a.zip", "4", ""}};
    for (const auto& kind : kinds) {
        slide.BtPlay.SetTag("before");
        slide.PictureByString(kind.path);
        EXPECT_EQ(LoadsAndEvents(), std::string("slide SetPicture ") + kind.index + "\n");
        EXPECT_EQ(Shown(), std::string("owner") + kind.index);
        EXPECT_EQ(slide.BtPlay.Tag(), kind.playable);
        EXPECT_EQ(slide.ImageFullPath(), kind.path);
    }
}

TEST_F(PictureTest, AGivenThumbOfASoundFileIsIgnored) {
    OwnAnswers();
    slide.PictureByString("/a.mp3", Bitmap(100, 100));
    EXPECT_EQ(Shown(), "owner1");
}

TEST_F(PictureTest, ASubstituteIsNeitherEnlargedNorReducedToAThumbnail) {
    OwnAnswers(32, 32);
    slide.SetThumbnail(true);
    slide.PictureByString("/a.mp3");
    EXPECT_TRUE(slide.AlwaysFullSize());
    EXPECT_EQ(Place(slide.Img), "66,37 32x32");
    slide.Events.SetPicture.connect(
        [](DiapoPictureIndex, Picture& picture, bool) { picture = FakePictures::Make("large", 500, 500); });
    slide.PictureByString("/b.mp3");
    EXPECT_EQ(Shown(), "large");
    EXPECT_EQ(Place(slide.Img), "39,10 86x86");
}

TEST_F(PictureTest, AGoodPictureAfterASubstituteIsEnlargedAgain) {
    OwnAnswers();
    slide.PictureByString("/a.mp3");
    desktop.pictures.Add("/a.jpg", 32, 32);
    slide.PictureByString("/a.jpg");
    EXPECT_EQ(Place(slide.Img), "39,10 86x86");
}

TEST_F(PictureTest, AnEmptyNameForgetsThatASubstituteWasShown) {
    OwnAnswers();
    slide.SetThumbnail(true);
    slide.PictureByString("/a.mp3");
    slide.PictureByString("");
    slide.SetPicture(Bitmap(400, 400));
    EXPECT_EQ(Shown(), "resized:bitmap");
}

TEST_F(PictureTest, WithoutAnOwnerASubstituteIsNoPicture) {
    slide.SetPicture(Bitmap(20, 20));
    slide.PictureByString("/a.mp3");
    EXPECT_EQ(slide.Picture().Type(), 0);
    EXPECT_EQ(slide.ImageFullPath(), "");
    EXPECT_EQ(slide.LblTop.Caption(), "a.mp3");
}

// --- Bad files ---

TEST_F(PictureTest, ABadFileShowsTheSubstituteAndIsReported) {
    OwnAnswers();
    slide.SetHaveSoundMusic(true);
    slide.SetHaveSoundComment(true);
    slide.SetHaveTexte(true);
    desktop.trace.Clear();
    slide.PictureByString("/bad.jpg");
    EXPECT_EQ(LoadsAndEvents(),
              "slide SetPicture 8\nslide SetPicture 6\nslide SetPicture 7\nload /bad.jpg\nslide SetPicture 0\n"
              "slide InvalidPicture [/bad.jpg]\n");
    EXPECT_EQ(Shown(), "owner0");
    EXPECT_EQ(slide.LblTop.Caption(), "bad.jpg");
    EXPECT_EQ(slide.ImageFullPath(), "/bad.jpg");
    EXPECT_FALSE(slide.BtPlayVisible());
    EXPECT_FALSE(slide.BtCommentVisible());
    EXPECT_TRUE(slide.BtTextVisible());
}

TEST_F(PictureTest, ABadFileLeavesTheButtonsOfAToolsRow) {
    OwnAnswers();
    slide.SetShowDiapoTools(true);
    slide.SetHaveSoundMusic(true);
    slide.SetHaveSoundComment(true);
    slide.PictureByString("/bad.jpg");
    EXPECT_TRUE(slide.BtPlayVisible());
    EXPECT_TRUE(slide.BtCommentVisible());
}

// --- Assignment ---

TEST_F(PictureTest, TheEmptyPictureClearsPictureAndFile) {
    desktop.pictures.Add("/a.jpg", 20, 20);
    slide.PictureByString("/a.jpg");
    EXPECT_FALSE(LaysOut([&] { slide.SetPicture(Picture{}); }));
    EXPECT_EQ(slide.Picture().Type(), 0);
    EXPECT_EQ(slide.ImageFullPath(), "");
    EXPECT_EQ(slide.LblTop.Caption(), "a.jpg");
    EXPECT_TRUE(slide.Img.Visible());
}

TEST_F(PictureTest, AnAssignedPictureKeepsTheFile) {
    desktop.pictures.Add("/a.jpg", 20, 20);
    slide.PictureByString("/a.jpg");
    slide.SetPicture(Bitmap(300, 150));
    EXPECT_EQ(slide.ImageFullPath(), "/a.jpg");
    EXPECT_EQ(slide.ImageWidth(), 300);
}

TEST_F(PictureTest, WithoutAutoAdjustTheAreasFarCornerSetsThePlaceUntilTheNextLayout) {
    slide.SetAutoAdjust(false);
    EXPECT_FALSE(LaysOut([&] { slide.SetPicture(Bitmap(300, 150)); }));
    EXPECT_EQ(Place(slide.Img), "3,21.5 146x73");  // (148 - 146) / 2 + 2, (96 - 73) / 2 + 10
    EXPECT_TRUE(slide.Img.Visible());
    slide.Refresh();
    EXPECT_EQ(Place(slide.Img), "9,16.5 146x73");
}

TEST_F(PictureTest, WithoutAutoAdjustASizeInAnAreaTurnedInsideOutStaysNegativeUntilTheNextLayout) {
    slide.SetAutoAdjust(false);
    slide.Move(0, 0, 1, 1);
    slide.SetPicture(Bitmap(300, 150));
    EXPECT_EQ(Place(slide.Img), "49.5,15 -106x-53");  // the area is -13 x -53, from 2, 10 to -11, -43
    slide.Refresh();
    EXPECT_EQ(slide.Img.Width(), 0);
    EXPECT_EQ(slide.Img.Height(), 0);
}

TEST_F(PictureTest, NothingAtAllShowsTheSubstituteAndIsReportedOnce) {
    OwnAnswers();
    slide.SetPicture(Bitmap(300, 150));
    EXPECT_FALSE(LaysOut([&] { slide.SetPicture(std::nullopt); }));
    EXPECT_EQ(LoadsAndEvents(), "slide SetPicture 0\nslide InvalidPicture []\n");
    EXPECT_EQ(Shown(), "owner0");
}

// The failed statement is the fitting; the later ones run and show the picture after all.
TEST_F(PictureTest, AFailureInTheAssignmentIsReportedAndTheNextStatementRuns) {
    OwnAnswers();
    EXPECT_TRUE(LaysOut([&] { slide.SetPicture(Bitmap(0, 50)); }));
    EXPECT_EQ(LoadsAndEvents(), "slide SetPicture 0\nslide InvalidPicture []\n");
    EXPECT_EQ(Shown(), "bitmap");
    EXPECT_TRUE(slide.Img.Visible());
}

TEST_F(PictureTest, AFailedThumbnailLeavesTheSubstitute) {
    OwnAnswers();
    slide.SetThumbnail(true);
    desktop.pictures.FailResizing(true);
    slide.SetPicture(Bitmap(300, 150));
    EXPECT_EQ(LoadsAndEvents(),
              "resize bitmap 150x75\nslide Error 481 [Image incorrecte] Vorlane 0 [DpLight Thumb ]\n"
              "slide SetPicture 0\nslide InvalidPicture []\n");
    EXPECT_EQ(Shown(), "owner0");
    EXPECT_EQ(slide.Img.Width(), 32);
    EXPECT_TRUE(slide.Img.Visible());
}

// --- Failures ---

TEST_F(PictureTest, AHostThatFailsInItsAnswerFailsPictureByString) {
    slide.SetHaveTexte(true);
    slide.Events.SetPicture.connect([](DiapoPictureIndex, Picture&, bool) { throw failures::InvalidCall(); });
    desktop.pictures.Add("/a", 20, 20);
    desktop.trace.Clear();
    slide.PictureByString("/a");
    EXPECT_EQ(LoadsAndEvents(),
              "slide SetPicture 7\nslide Error 5 [Argument ou appel de procédure incorrect] Vorlane 0 "
              "[DpLight PictureByString /a.]\n");
    EXPECT_EQ(slide.Picture().Type(), 0);
    EXPECT_EQ(slide.LblTop.Caption(), "");
}

TEST_F(PictureTest, AnotherFileGivenInTheReportOfABadOneStays) {
    OwnAnswers();
    desktop.pictures.Add("/good.jpg", 20, 20);
    slide.Events.InvalidPicture.connect([&](const std::string&) { slide.PictureByString("/good.jpg"); });
    slide.PictureByString("/bad.jpg");
    EXPECT_EQ(Shown(), "/good.jpg");
    EXPECT_EQ(slide.LblTop.Caption(), "good.jpg");
    EXPECT_EQ(slide.ImageFullPath(), "/good.jpg");
}

TEST_F(PictureTest, ASlideThatIsClearedInTheReportOfABadFileStaysClear) {
    OwnAnswers();
    slide.Events.InvalidPicture.connect([&](const std::string&) { slide.PictureByString(""); });
    slide.PictureByString("/bad.jpg");
    EXPECT_EQ(Shown(), "");
    EXPECT_EQ(slide.LblTop.Caption(), "");
}

TEST_F(PictureTest, AnotherFileGivenWhileAButtonAsksForItsPictureStays) {
    desktop.pictures.Add("/good.jpg", 20, 20);
    slide.SetHaveTexte(true);
    slide.Events.SetPicture.connect([&, asked = false](DiapoPictureIndex, Picture&, bool) mutable {
        if (!std::exchange(asked, true)) slide.PictureByString("/good.jpg");
    });
    desktop.trace.Clear();
    slide.PictureByString("/other.jpg");
    EXPECT_EQ(desktop.trace.Take({"load"}), "load /good.jpg\n");
    EXPECT_EQ(Shown(), "/good.jpg");
}

TEST_F(PictureTest, AnotherFileGivenWhenAnAssignmentHasFailedKeepsItsName) {
    desktop.pictures.Add("/good.jpg", 20, 20);
    desktop.pictures.Add("/flat.jpg", 0, 500);  // can't be fitted
    slide.Events.InvalidPicture.connect([&](const std::string&) { slide.PictureByString("/good.jpg"); });
    slide.PictureByString("/flat.jpg");
    EXPECT_EQ(slide.LblTop.Caption(), "good.jpg");
}

TEST_F(PictureTest, AHostThatFailsInTheReportOfABadFileFailsPictureByString) {
    slide.Events.InvalidPicture.connect([](const std::string&) { throw failures::InvalidCall(); });
    slide.PictureByString("/bad.jpg");
    EXPECT_EQ(desktop.trace.Take({"slide"}),
              "slide SetPicture 0\nslide InvalidPicture [/bad.jpg]\n"
              "slide Error 5 [Argument ou appel de procédure incorrect] Vorlane 0 "
              "[DpLight PictureByString /bad.jpg]\n");
}

TEST_F(PictureTest, AHostThatFailsInTheErrorReportIsForgotten) {
    slide.Events.InvalidPicture.connect([](const std::string&) { throw failures::InvalidCall(); });
    slide.Events.Error.connect([](int32_t, const std::string&, const std::string&, int32_t, const std::string&) {
        throw failures::InvalidCall();
    });
    EXPECT_NO_THROW(slide.PictureByString("/bad.jpg"));
}

TEST_F(PictureTest, AFillUnderNoResizeIsLaidOutOnceAtItsEnd) {
    desktop.pictures.Add("/a.jpg", 300, 150);
    slide.SetNoResize(true);
    EXPECT_FALSE(LaysOut([&] { slide.PictureByString("/a.jpg"); }));
    EXPECT_TRUE(LaysOut([&] { slide.Refresh(); }));
    EXPECT_EQ(Place(slide.Img), "9,16.5 146x73");
}

}  // namespace
}  // namespace vorlane::headless
