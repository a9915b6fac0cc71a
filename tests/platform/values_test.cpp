#include "expectfailure.h"
#include "platform/color.h"
#include "platform/dataobject.h"
#include "platform/frenchtexts.h"
#include "platform/geometry.h"
#include "platform/imagelist.h"
#include "platform/picture.h"
#include "platform/scale.h"

namespace vorlane {
namespace {

// --- Colours ---

TEST(Color, HoldsBlueGreenRedFromTheHighByteDown) {
    EXPECT_EQ(RGB(0x11, 0x22, 0x33), 0x332211U);
    EXPECT_EQ(Parts(0x332211), (Rgb{0x11, 0x22, 0x33}));
    EXPECT_EQ(Parts(0x7F332211), (Rgb{0x11, 0x22, 0x33}));
}

TEST(Color, APartAbove255CountsAs255AndANegativeOneFails) {
    EXPECT_EQ(RGB(256, 1000000, 255), 0xFFFFFFU);
    EXPECT_FAILURE(RGB(-1, 0, 0), InvalidCall());
    EXPECT_FAILURE(RGB(0, -1, 0), InvalidCall());
    EXPECT_FAILURE(RGB(0, 0, -1), InvalidCall());
}

TEST(Color, ASystemColourHasTheTopBitAndANumber) {
    EXPECT_EQ(FromSystem(SystemColor::GrayText), 0x80000011U);
    EXPECT_TRUE(IsSystemColor(0x80000011U));
    EXPECT_FALSE(IsSystemColor(0x7FFFFFFFU));
    EXPECT_EQ(SystemColorNumber(0x80000011U), 17);
}

// --- Scales ---

TEST(Rescale, ConvertsBetweenTheScalesOfASquarePixel) {
    EXPECT_EQ(Rescale(1, ScaleMode::Pixels, ScaleMode::Twips), 15.0F);
    EXPECT_EQ(Rescale(2540, ScaleMode::HiMetric, ScaleMode::Pixels), 96.0F);
    EXPECT_EQ(Rescale(-96, ScaleMode::Pixels, ScaleMode::HiMetric), -2540.0F);
    EXPECT_EQ(Rescale(1, ScaleMode::Inches, ScaleMode::Points), 72.0F);
    EXPECT_EQ(Rescale(1, ScaleMode::Inches, ScaleMode::Millimeters), 25.4F);
    EXPECT_EQ(Rescale(2.54, ScaleMode::Centimeters, ScaleMode::Inches), 1.0F);
    EXPECT_EQ(Rescale(0.1, ScaleMode::Pixels, ScaleMode::Pixels), 0.1F);
}

TEST(Rescale, FailsForAModeThatIsNotListed) {
    EXPECT_FAILURE(Rescale(1, static_cast<ScaleMode>(4), ScaleMode::Pixels), InvalidCall());
    EXPECT_FAILURE(Rescale(1, ScaleMode::Pixels, static_cast<ScaleMode>(0)), InvalidCall());
}

// --- Boxes ---

TEST(Box, HoldsItsLeftAndTopAndNotItsRightAndBottom) {
    const Box box{10, 20, 5, 5};
    EXPECT_TRUE(box.Contains(10, 20));
    EXPECT_TRUE(box.Contains(14.5F, 24.5F));
    EXPECT_FALSE(box.Contains(15, 20));
    EXPECT_FALSE(box.Contains(10, 25));
    EXPECT_FALSE(box.Contains(9.5F, 20));
}

TEST(Box, WithoutOrWithNegativeSizeIsEmptyAndHoldsNothing) {
    EXPECT_TRUE((Box{0, 0, 0, 5}).Empty());
    EXPECT_TRUE((Box{0, 0, 5, -1}).Empty());
    EXPECT_FALSE((Box{0, 0, -5, 5}).Contains(-2, 2));
    EXPECT_FALSE((Box{0, 0, 0.5F, 0.5F}).Empty());
}

// --- Pictures ---

TEST(Picture, StartsAsTheEmptyPicture) {
    const Picture picture;
    EXPECT_EQ(picture.Type(), 0);
    EXPECT_EQ(picture.Handle(), 0U);
    EXPECT_EQ(picture.Width(), 0);
    EXPECT_EQ(picture.Height(), 0);
    EXPECT_EQ(picture.Data(), nullptr);
    EXPECT_EQ(Picture(PictureType::None, 10, 10, nullptr), picture);
}

TEST(Picture, MeasuresItselfInHiMetric) {
    const Picture picture(PictureType::Metafile, 96, 48, nullptr);
    EXPECT_EQ(picture.Type(), 2);
    EXPECT_DOUBLE_EQ(picture.Width(), 2540);
    EXPECT_DOUBLE_EQ(picture.Height(), 1270);
    EXPECT_EQ(Rescale(Picture(PictureType::Bitmap, 6000, 1, nullptr).Width(), ScaleMode::HiMetric, ScaleMode::Pixels),
              6000.0F);
}

TEST(Picture, CopiesShareHandleAndData) {
    const auto data = std::make_shared<const PictureData>();
    const Picture picture(PictureType::Bitmap, 10, 10, data);
    const Picture copy = picture;
    EXPECT_EQ(copy, picture);
    EXPECT_EQ(copy.Handle(), picture.Handle());
    EXPECT_EQ(copy.Data(), data);
    EXPECT_EQ(data.use_count(), 2);
}

TEST(Picture, TwoPicturesOfTheSameDataDiffer) {
    const auto data = std::make_shared<const PictureData>();
    const Picture one(PictureType::Bitmap, 10, 10, data);
    const Picture other(PictureType::Bitmap, 10, 10, data);
    EXPECT_FALSE(one == other);
    EXPECT_NE(one.Handle(), other.Handle());
}

TEST(ImageList, CountsFromOne) {
    ImageList list({Picture(PictureType::Bitmap, 1, 1, nullptr)});
    const Picture second(PictureType::Icon, 2, 2, nullptr);
    list.Add(second);
    EXPECT_EQ(list.Count(), 2);
    EXPECT_EQ(list.ListImage(1).Type(), 1);
    EXPECT_EQ(list.ListImage(2), second);
    EXPECT_FAILURE(list.ListImage(0), SubscriptOutOfRange());
    EXPECT_FAILURE(list.ListImage(3), SubscriptOutOfRange());
    EXPECT_FAILURE(ImageList().ListImage(1), SubscriptOutOfRange());
}

// --- Drag data ---

TEST(DataObject, HasTheFormatsThatWereSet) {
    DataObject data;
    EXPECT_FALSE(data.GetFormat(kFormatText));
    EXPECT_FALSE(data.GetFormat(kFormatFiles));
    data.SetText("12");
    EXPECT_TRUE(data.GetFormat(kFormatText));
    EXPECT_FALSE(data.GetFormat(kFormatFiles));
    data.SetFiles({"/a", "/b"});
    EXPECT_TRUE(data.GetFormat(kFormatFiles));
    EXPECT_EQ(data.Text(), "12");
    EXPECT_EQ(data.Files(), (std::vector<std::string>{"/a", "/b"}));
}

TEST(DataObject, DeclaresAFormatWithoutContentAndKeepsContentThatIsThere) {
    DataObject data;
    data.SetData(kFormatText);
    EXPECT_TRUE(data.GetFormat(kFormatText));
    EXPECT_EQ(data.Text(), "");
    data.SetText("12");
    data.SetData(kFormatText);
    EXPECT_EQ(data.Text(), "12");
    data.SetData(2);
    EXPECT_FALSE(data.GetFormat(2));
}

TEST(DataObject, ClearForgetsEverything) {
    DataObject data;
    data.SetText("12");
    data.SetFiles({"/a"});
    data.Clear();
    EXPECT_FALSE(data.GetFormat(kFormatText));
    EXPECT_FALSE(data.GetFormat(kFormatFiles));
    EXPECT_EQ(data.Text(), "");
    EXPECT_TRUE(data.Files().empty());
}

// --- Texts ---

TEST(FrenchTexts, KnowsItsNumbersAndNoOthers) {
    const FrenchTexts texts;
    EXPECT_EQ(texts.Text("2017"), "Chargement de l'image en cours…");
    EXPECT_EQ(texts.Text("2057"), "Musique précédente");
    EXPECT_EQ(texts.Text("2062"), "Musique ou commentaire suivant");
    for (const char* number : {"", "2016", "02017", "2017 ", "x"}) EXPECT_EQ(texts.Text(number), std::nullopt);
}

}  // namespace
}  // namespace vorlane
