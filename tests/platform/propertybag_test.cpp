#include "platform/propertybag.h"

#include "expectfailure.h"

#include <limits>

namespace vorlane {
namespace {

using namespace std::string_literals;

class PropertyBagTest : public testing::Test {
protected:
    PropertyBag& With(BagValue value) {
        bag.SetValue("key", std::move(value));
        return bag;
    }

    PropertyBag bag;
};

TEST_F(PropertyBagTest, AMissingKeyReadsAsItsDefault) {
    const Font font{"Vera", 12};
    EXPECT_TRUE(bag.ReadFlag("key", true));
    EXPECT_EQ(bag.ReadByte("key", 5), 5);
    EXPECT_EQ(bag.ReadInt16("key", -2), -2);
    EXPECT_EQ(bag.ReadInt32("key", 70000), 70000);
    EXPECT_EQ(bag.ReadColor("key", 0x8000000FU), 0x8000000FU);
    EXPECT_EQ(bag.ReadSingle("key", 1.5F), 1.5F);
    EXPECT_EQ(bag.ReadText("key", "é"), "é");
    EXPECT_EQ(bag.ReadFont("key", font), font);
    EXPECT_EQ(bag.ReadPicture("key"), Picture());
    EXPECT_EQ(bag.Value("key"), std::nullopt);
    EXPECT_FALSE(bag.Contains("key"));
}

TEST_F(PropertyBagTest, ReadsBackWhatWasStored) {
    const Font font{"Vera", 12, true};
    const Picture picture(PictureType::Bitmap, 10, 10, nullptr);
    EXPECT_FALSE(With(false).ReadFlag("key", true));
    EXPECT_EQ(With(255).ReadByte("key", 0), 255);
    EXPECT_EQ(With(-32768).ReadInt16("key", 0), -32768);
    EXPECT_EQ(With(int64_t{2147483647}).ReadInt32("key", 0), 2147483647);
    EXPECT_EQ(With(0x8000000FU).ReadColor("key", 0), 0x8000000FU);
    EXPECT_EQ(With(0.1F).ReadSingle("key", 0), 0.1F);
    EXPECT_EQ(With("a"s).ReadText("key", ""), "a");
    EXPECT_EQ(With(font).ReadFont("key", {}), font);
    EXPECT_EQ(With(picture).ReadPicture("key"), picture);
    EXPECT_EQ(bag.Value("key"), BagValue(picture));
}

TEST_F(PropertyBagTest, WriteForgetsAKeyWhoseValueIsItsDefault) {
    bag.Write("NoResize", true, true);
    EXPECT_TRUE(bag.Empty());
    bag.Write("NoResize", false, true);
    EXPECT_TRUE(bag.Contains("NoResize"));
    EXPECT_FALSE(bag.ReadFlag("NoResize", true));
    bag.Write("NoResize", true, true);
    EXPECT_TRUE(bag.Empty());
}

TEST_F(PropertyBagTest, WriteComparesFontsPicturesAndTextsByValue) {
    const Picture picture(PictureType::Bitmap, 10, 10, nullptr);
    bag.Write("font", Font{"Vera"}, Font{"Vera"});
    bag.Write("picture", Picture(picture), picture);
    bag.Write("text", "a"s, "a"s);
    EXPECT_TRUE(bag.Empty());
    bag.Write("font", Font{"Vera", 12}, Font{"Vera"});
    bag.Write("picture", picture, Picture());
    bag.Write("text", "b"s, "a"s);
    EXPECT_EQ(bag.Values().size(), 3U);
}

TEST_F(PropertyBagTest, AFlagIsTheNumberMinusOneOrZero) {
    EXPECT_EQ(With(true).ReadInt16("key", 0), -1);
    EXPECT_EQ(With(false).ReadInt32("key", 5), 0);
    EXPECT_EQ(With(true).ReadSingle("key", 0), -1.0F);
    EXPECT_EQ(With(true).ReadText("key", ""), "-1");
    EXPECT_TRUE(With(-1).ReadFlag("key", false));
    EXPECT_TRUE(With(1).ReadFlag("key", false));
    EXPECT_FALSE(With(0.0).ReadFlag("key", true));
    EXPECT_TRUE(With("-1"s).ReadFlag("key", false));
    EXPECT_FAILURE(With(2).ReadFlag("key", false), TypeMismatch());
}

TEST_F(PropertyBagTest, ANumberThatDoesNotFitOverflows) {
    EXPECT_FAILURE(With(256).ReadByte("key", 0), Overflow());
    EXPECT_FAILURE(With(true).ReadByte("key", 0), Overflow());
    EXPECT_FAILURE(With(-1).ReadByte("key", 0), Overflow());
    EXPECT_FAILURE(With(32768).ReadInt16("key", 0), Overflow());
    EXPECT_FAILURE(With(int64_t{2147483648}).ReadInt32("key", 0), Overflow());
    EXPECT_FAILURE(With(1e300).ReadInt32("key", 0), Overflow());
    EXPECT_FAILURE(With(-1e300).ReadInt32("key", 0), Overflow());
    EXPECT_FAILURE(With(std::numeric_limits<double>::infinity()).ReadInt32("key", 0), Overflow());
    EXPECT_FAILURE(With(9223372036854775808.0).ReadColor("key", 0), Overflow());
    EXPECT_FAILURE(With("99999999999999999999"s).ReadInt32("key", 0), Overflow());
    EXPECT_FAILURE(With(1e300).ReadSingle("key", 0), Overflow());
}

TEST_F(PropertyBagTest, ARealNumberIsAWholeOneOnlyWithoutAFraction) {
    EXPECT_EQ(With(150.0).ReadInt16("key", 0), 150);
    EXPECT_FAILURE(With(150.5).ReadInt16("key", 0), TypeMismatch());
    EXPECT_FAILURE(With(std::numeric_limits<double>::quiet_NaN()).ReadInt16("key", 0), TypeMismatch());
    EXPECT_EQ(With(150).ReadSingle("key", 0), 150.0F);
}

TEST_F(PropertyBagTest, ATextIsTheNumberThatAllOfItSpells) {
    EXPECT_EQ(With("150"s).ReadInt16("key", 0), 150);
    EXPECT_EQ(With("-1.5"s).ReadSingle("key", 0), -1.5F);
    EXPECT_FAILURE(With("150 px"s).ReadInt16("key", 0), TypeMismatch());
    EXPECT_FAILURE(With(""s).ReadInt16("key", 0), TypeMismatch());
    EXPECT_FAILURE(With("1.5"s).ReadInt16("key", 0), TypeMismatch());
    EXPECT_FAILURE(With("True"s).ReadFlag("key", false), TypeMismatch());
}

TEST_F(PropertyBagTest, ANumberIsTheTextThatSpellsIt) {
    EXPECT_EQ(With(-7).ReadText("key", ""), "-7");
    EXPECT_EQ(With(0.1).ReadText("key", ""), "0.1");
}

TEST_F(PropertyBagTest, ANegative32BitNumberIsTheColourOfTheSameBits) {
    EXPECT_EQ(With(-2147483633).ReadColor("key", 0), 0x8000000FU);
    EXPECT_EQ(With(-1).ReadColor("key", 0), 0xFFFFFFFFU);
    EXPECT_FAILURE(With(int64_t{-2147483649}).ReadColor("key", 0), Overflow());
    EXPECT_FAILURE(With(int64_t{4294967296}).ReadColor("key", 0), Overflow());
}

TEST_F(PropertyBagTest, FontsAndPicturesAreOnlyThemselves) {
    EXPECT_FAILURE(With(Font{}).ReadText("key", ""), TypeMismatch());
    EXPECT_FAILURE(With(Font{}).ReadPicture("key"), TypeMismatch());
    EXPECT_FAILURE(With(Picture()).ReadSingle("key", 0), TypeMismatch());
    EXPECT_FAILURE(With(Picture()).ReadInt32("key", 0), TypeMismatch());
    EXPECT_FAILURE(With("Vera"s).ReadFont("key", {}), TypeMismatch());
}

}  // namespace
}  // namespace vorlane
