// What a failure in the middle of an assignment leaves behind.
#include "platform/failure.h"
#include "slidetest.h"

#include <utility>

namespace vorlane::headless {
namespace {

class FailedAssignmentTest : public LaidSlideTest {
protected:
    // From now on a reduced copy fails, behind the statement that hides the picture.
    void FailToReduce() {
        slide.SetThumbnail(true);
        desktop.pictures.FailResizing(true);
    }
    void ThrowInInvalidPicture() {
        slide.Events.InvalidPicture.connect([](const std::string&) { throw failures::InvalidCall(); });
    }
};

TEST_F(FailedAssignmentTest, AHostThatFailsInTheReportFindsThePictureVisible) {
    ThrowInInvalidPicture();
    FailToReduce();
    EXPECT_THROW(slide.SetPicture(Bitmap(300, 150)), Failure);
    EXPECT_TRUE(slide.Img.Visible());
}

TEST_F(FailedAssignmentTest, AHostThatFailsToGiveASubstituteFindsThePictureVisible) {
    slide.Events.SetPicture.connect([](DiapoPictureIndex, Picture&, bool) { throw failures::InvalidCall(); });
    FailToReduce();
    EXPECT_THROW(slide.SetPicture(Bitmap(300, 150)), Failure);
    EXPECT_TRUE(slide.Img.Visible());
}

TEST_F(FailedAssignmentTest, AHostThatFailsInTheReportFailsPictureByString) {
    ThrowInInvalidPicture();
    FailToReduce();
    desktop.pictures.Add("/a.jpg", 300, 150);
    desktop.trace.Clear();
    slide.PictureByString("/a.jpg");
    EXPECT_EQ(Slide(),
              "slide Error 481 [Image incorrecte] Vorlane 0 [DpLight Thumb ]\n"
              "slide SetPicture 0\nslide InvalidPicture []\n"
              "slide Error 5 [Argument ou appel de procédure incorrect] Vorlane 0 "
              "[DpLight PictureByString /a.jpg]\n");
    EXPECT_TRUE(slide.Img.Visible());
}

TEST_F(FailedAssignmentTest, AGivenThumbIsForgottenWhenItsAssignmentFails) {
    slide.SetThumbnail(true);
    slide.SetHaveTexte(true);
    bool fails = true;
    slide.Events.SetPicture.connect([&](DiapoPictureIndex, Picture&, bool) {
        if (std::exchange(fails, false)) throw failures::InvalidCall();
    });
    slide.PictureByString("/a.jpg", Bitmap(400, 400));
    ASSERT_FALSE(fails);
    slide.SetPicture(Bitmap(400, 400));
    EXPECT_EQ(Shown(), "resized:bitmap");
}

TEST_F(FailedAssignmentTest, TheSlidesOwnPictureOutlivesTheSubstituteThatTakesItsPlace) {
    OwnAnswers();
    slide.SetPicture(Bitmap(0, 500));  // can't be fitted
    ASSERT_EQ(Shown(), "bitmap");
    slide.SetPicture(slide.Picture());
    EXPECT_EQ(Slide(), "slide SetPicture 0\nslide InvalidPicture []\nslide SetPicture 0\nslide InvalidPicture []\n");
    EXPECT_EQ(Shown(), "bitmap");
}

TEST_F(FailedAssignmentTest, TheSlidesOwnPictureCanBeItsThumb) {
    OwnAnswers();
    slide.SetHaveTexte(true);
    slide.SetPicture(Bitmap(20, 20));
    slide.Events.SetPicture.connect([&](DiapoPictureIndex, Picture&, bool) { slide.SetPicture(Picture{}); });
    slide.PictureByString("/a.jpg", slide.Picture());
    EXPECT_EQ(Shown(), "bitmap");
}

}  // namespace
}  // namespace vorlane::headless
