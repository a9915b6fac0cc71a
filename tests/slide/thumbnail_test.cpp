// Reduced copies, asked for and shown in place of large bitmaps.
#include "slidetest.h"

namespace vorlane::headless {
namespace {

class ThumbnailTest : public LaidSlideTest {};

TEST_F(ThumbnailTest, ALargeBitmapIsShownThroughAThumbnailWhenAsked) {
    slide.SetPicture(Bitmap(300, 150));
    EXPECT_EQ(Shown(), "bitmap");
    slide.SetThumbnail(true);
    slide.SetPicture(Bitmap(300, 150));
    EXPECT_EQ(LoadsAndEvents(), "resize bitmap 150x75\n");
    EXPECT_EQ(Shown(), "resized:bitmap");
    EXPECT_EQ(slide.ImageWidth(), 300);
    EXPECT_EQ(slide.Img.Width(), 146);
}

TEST_F(ThumbnailTest, ABitmapThatFitsIsNotReduced) {
    slide.SetThumbnail(true);
    slide.SetPicture(Bitmap(146, 86));
    EXPECT_EQ(Shown(), "bitmap");
    slide.SetPicture(Bitmap(20, 87));
    EXPECT_EQ(Shown(), "resized:bitmap");
}

TEST_F(ThumbnailTest, APictureThatIsNoBitmapIsNeverReduced) {
    slide.SetThumbnail(true);
    const Picture icon = FakePictures::Make("icon", 300, 300, PictureType::Icon);
    slide.SetPicture(icon);
    EXPECT_EQ(Shown(), "icon");
    EXPECT_EQ(slide.Thumb(icon), icon);
    EXPECT_EQ(LoadsAndEvents(), "");
}

TEST_F(ThumbnailTest, ThumbTakesTheSlidesOwnSizeOrTheOneGiven) {
    EXPECT_EQ(NameOf(*slide.Thumb(Bitmap(300, 150))), "resized:bitmap");
    slide.SetThumbnailResolution(DiapoThumbResolution::ThumbResolutionHigh);
    slide.Thumb(Bitmap(300, 150));
    slide.Thumb(Bitmap(300, 150), 100);
    slide.Thumb(Bitmap(150, 300), 100);
    EXPECT_EQ(LoadsAndEvents(),
              "resize bitmap 150x75\nresize bitmap 500x250\nresize bitmap 100x50\nresize bitmap 50x100\n");
}

TEST_F(ThumbnailTest, ThumbOfTheEmptyPictureIsNothing) {
    EXPECT_FALSE(slide.Thumb(Picture{}).has_value());
    EXPECT_EQ(LoadsAndEvents(), "");
}

TEST_F(ThumbnailTest, ThumbOfNoSizeFailsAndIsReported) {
    EXPECT_FALSE(slide.Thumb(Bitmap(300, 150), 0).has_value());
    EXPECT_EQ(LoadsAndEvents(), "resize bitmap 0x0\nslide Error 481 [Image incorrecte] Vorlane 0 [DpLight Thumb ]\n");
}

TEST_F(ThumbnailTest, ThumbOfANegativeSizeFailsAndIsReported) {
    EXPECT_FALSE(slide.Thumb(Bitmap(300, 150), -5).has_value());
    EXPECT_EQ(LoadsAndEvents(),
              "resize bitmap -10x-5\nslide Error 481 [Image incorrecte] Vorlane 0 [DpLight Thumb ]\n");
}

}  // namespace
}  // namespace vorlane::headless
