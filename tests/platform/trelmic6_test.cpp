#include "platform/trelmic6.h"

#include "platform/failure.h"
#include "platform/headless/desktop.h"

#include <gtest/gtest.h>
#include <limits>
#include <map>

namespace vorlane {
namespace {

class Trelmic6Test : public testing::Test {
protected:
    headless::Desktop desktop;
    Trelmic6 trelmic{desktop.Roles()};
};

TEST_F(Trelmic6Test, AsksTheKeyboardForKeys) {
    EXPECT_FALSE(trelmic.KeyIsDown(17));
    desktop.keyboard.Set(17, true);
    EXPECT_TRUE(trelmic.KeyIsDown(17));
    EXPECT_FALSE(trelmic.KeyIsDown(16));
}

TEST_F(Trelmic6Test, CursorPosOnlyAsksWithTwoPlaceHolders) {
    desktop.screen.SetCursorPos({30, 40});
    EXPECT_EQ(trelmic.CursorPos(), (Point{30, 40}));
    EXPECT_EQ(trelmic.CursorPos(-99, -99), (Point{30, 40}));
}

TEST_F(Trelmic6Test, CursorPosPutsThePointerWhereItIsToldTo) {
    EXPECT_EQ(trelmic.CursorPos(5, 6), (Point{5, 6}));
    EXPECT_EQ(desktop.screen.CursorPos(), (Point{5, 6}));
    EXPECT_EQ(trelmic.CursorPos(-99, 7), (Point{-99, 7}));
}

TEST_F(Trelmic6Test, SplitsPlainColoursAndResolvesSystemColours) {
    EXPECT_EQ(trelmic.ColorToRgb(0x332211), (Rgb{0x11, 0x22, 0x33}));
    EXPECT_EQ(trelmic.SysColor(16), 0xA0A0A0U);
    EXPECT_EQ(trelmic.ColorToRgb(FromSystem(SystemColor::ButtonShadow)), (Rgb{0xA0, 0xA0, 0xA0}));
}

TEST_F(Trelmic6Test, ShiftsAColourWithinItsRange) {
    EXPECT_EQ(trelmic.ColorShift(0x332211, 1, 2, 3), 0x362412U);
    EXPECT_EQ(trelmic.ColorShift(0x332211, -100, 300, 0), 0x33FF00U);
    EXPECT_EQ(trelmic.ColorShift(0x332211, std::numeric_limits<int32_t>::max(), std::numeric_limits<int32_t>::min(), 0),
              0x3300FFU);
    EXPECT_EQ(trelmic.ColorShift(FromSystem(SystemColor::ButtonShadow), 1, 0, 0), 0xA0A0A1U);
}

TEST_F(Trelmic6Test, GivesTheTextsOfTheDesktopAndASignForUnknownOnes) {
    desktop.texts.Add("2017", "Patience");
    EXPECT_EQ(trelmic.ResText("2017"), "Patience");
    EXPECT_EQ(trelmic.ResText("2018"), Trelmic6::ResMissing());
}

TEST_F(Trelmic6Test, PicturesAndSoundsComeFromTheDesktop) {
    const Picture picture = desktop.pictures.Add("/a.jpg", 300, 150);
    EXPECT_EQ(trelmic.LoadImageFile("/a.jpg"), picture);
    EXPECT_EQ(trelmic.LoadImageFile("/b.jpg"), std::nullopt);
    EXPECT_EQ(headless::NameOf(trelmic.ResizePicture(picture, 100, 50)), "resized:/a.jpg");
}

TEST_F(Trelmic6Test, ASoundLastsWholeSeconds) {
    desktop.sounds.Add("/a.mp3", 12.5);
    desktop.sounds.Add("/c.mp3", 12.6);
    desktop.sounds.Add("/d.mp3", 3e9);
    EXPECT_EQ(trelmic.SoundSeconds("/a.mp3"), 12) << "a half goes to the even one";
    EXPECT_EQ(trelmic.SoundSeconds("/c.mp3"), 13);
    EXPECT_EQ(trelmic.SoundSeconds("/b.mp3"), 0);
    EXPECT_THROW(trelmic.SoundSeconds("/d.mp3"), Failure);
}

TEST_F(Trelmic6Test, TheSystemIsOfTheNewestKind) {
    EXPECT_GE(Trelmic6::SystemFamily(), 11);
}

// A list that only knows its keys.
class KeyList final : public ListBox {
public:
    explicit KeyList(std::vector<int32_t> keys) : keys_(std::move(keys)) {}

    int32_t FindItemData(int32_t data) const override {
        const auto found = std::find(keys_.begin(), keys_.end(), data);
        return found == keys_.end() ? -1 : static_cast<int32_t>(found - keys_.begin());
    }

    int32_t ListCount() const override { return static_cast<int32_t>(keys_.size()); }
    std::string List(int32_t) const override { return {}; }
    int32_t ListIndex() const override { return -1; }
    void SetListIndex(int32_t) override {}
    bool Selected(int32_t) const override { return false; }
    void SetSelected(int32_t, bool) override {}
    int32_t SelCount() const override { return 0; }
    bool SelItems(std::vector<int32_t>&) const override { return false; }
    int16_t MultiSelect() const override { return 2; }
    vorlane::Hwnd Hwnd() const override { return 1; }
    void AddItem(std::string_view) override {}
    void AddItem(std::string_view, int32_t) override {}
    void RemoveItem(int32_t) override {}
    void Clear() override {}
    void SetList(int32_t, std::string_view) override {}
    int32_t ItemData(int32_t index) const override { return keys_.at(static_cast<size_t>(index)); }
    void SetItemData(int32_t, int32_t) override {}
    int32_t NewIndex() const override { return -1; }
    bool Sorted() const override { return false; }

private:
    std::vector<int32_t> keys_;
};

TEST(FindListItem, GivesTheFirstIndexOfAKey) {
    const KeyList list({5, -1, 7, -1, std::numeric_limits<int32_t>::min()});
    EXPECT_EQ(Trelmic6::FindListItem(list, "7", "\t"), 2);
    EXPECT_EQ(Trelmic6::FindListItem(list, "-1", "\t"), 1);
    EXPECT_EQ(Trelmic6::FindListItem(list, "-2147483648", "\t"), 4);
    EXPECT_EQ(Trelmic6::FindListItem(list, "8", "\t"), -1);
    EXPECT_EQ(Trelmic6::FindListItem(KeyList({}), "0", "\t"), -1);
}

TEST(FindListItem, ATextThatSpellsNoKeyIsNowhere) {
    const KeyList list({0, 5});
    for (const char* text : {"", "x", "5x", " 5", "5.0", "99999999999"}) {
        EXPECT_EQ(Trelmic6::FindListItem(list, text, "\t"), -1) << text;
    }
}

}  // namespace
}  // namespace vorlane
