#include "platform/itemblock.h"

#include "plainitems.h"

#include <numeric>

namespace vorlane {
namespace {

void ExpectSame(const ItemBlock& block, const PlainItems& items) {
    ASSERT_EQ(block.Count(), items.size());
    ASSERT_EQ(block.Full(), items.size() == ItemBlock::Capacity);
    size_t textBytes = 0;
    for (size_t i = 0; i < items.size(); ++i) {
        ASSERT_EQ(block.Text(i), items[i].Text) << i;
        ASSERT_EQ(block.Key(i), items[i].Key) << i;
        ASSERT_EQ(block.Selected(i), items[i].Selected) << i;
        textBytes += items[i].Text.size();
    }
    ASSERT_EQ(block.TextBytes(), textBytes);
    std::vector<int32_t> selected;
    block.ForEachSelected([&](size_t index) { selected.push_back(static_cast<int32_t>(index)); });
    ASSERT_EQ(selected, SelectedIndices(items));
}

TEST(ItemBlock, KeepsTextsOfEveryLength) {
    ItemBlock block(1);
    PlainItems items;
    for (const size_t length : {0U, 1U, 126U, 127U, 128U, 129U, 16'383U, 16'384U, 3'000'000U}) {
        items.push_back({std::string(length, 'x'), 0, false});
        block.Insert(block.Count(), items.back().Text);
        ExpectSame(block, items);
    }
}

TEST(ItemBlock, SelectsUpToItsLastItemAndNoFurther) {
    ItemBlock block(1);
    for (size_t i = 0; i < 100; ++i) block.Insert(i, "text");
    block.SelectAll();
    block.Remove(40);
    block.Insert(99, "new");
    EXPECT_FALSE(block.Selected(99));
    block.InvertSelection();
    EXPECT_EQ(SelectedIndices(PlainItems(99)).size(), 0U);
    size_t selected = 0;
    block.ForEachSelected([&](size_t index) { selected += index == 99 ? 1 : 1000; });
    EXPECT_EQ(selected, 1U);
}

TEST(ItemBlock, DoesAsAPlainListDoes) {
    Dice dice(17);
    ItemBlock block(1);
    PlainItems items;
    for (int step = 0; step < 20'000; ++step) {
        const auto count = static_cast<int32_t>(items.size());
        const bool grow = step % 2000 < 1000 ? !dice.OneIn(3) : dice.OneIn(3);
        const auto at = static_cast<size_t>(dice.Below(count + 1));
        const auto place = items.begin() + static_cast<std::ptrdiff_t>(at);
        if (grow && !block.Full()) {
            const std::string text = dice.Text();
            block.Insert(at, text);
            items.insert(place, PlainItem{text});
        } else if (place != items.end()) {
            block.Remove(at);
            items.erase(place);
        }
        if (items.empty()) continue;
        const auto other = static_cast<size_t>(dice.Below(static_cast<int32_t>(items.size())));
        items[other] = {dice.Text(), dice.Below(1000), dice.OneIn(2)};
        block.SetText(other, items[other].Text);
        block.SetKey(other, items[other].Key);
        block.SetSelected(other, items[other].Selected);
        if (step % 50 == 0) ExpectSame(block, items);
    }
}

TEST(ItemBlock, MovesItsTailBehindTheItemsOfAnother) {
    Dice dice(5);
    ItemBlock first(1);
    ItemBlock second(2);
    PlainItems left(150);
    PlainItems right(60);
    const auto fill = [&](ItemBlock& block, PlainItems& items) {
        for (size_t i = 0; i < items.size(); ++i) {
            items[i] = {dice.Text(), dice.Below(9), dice.OneIn(2)};
            block.Insert(i, items[i].Text);
            block.SetKey(i, items[i].Key);
            block.SetSelected(i, items[i].Selected);
        }
    };
    fill(first, left);
    fill(second, right);
    first.MoveTail(70, second);
    right.insert(right.end(), left.begin() + 70, left.end());
    left.resize(70);
    ExpectSame(first, left);
    ExpectSame(second, right);
    EXPECT_EQ(first.Id(), 1U);
    first.MoveTail(0, second);
    right.insert(right.end(), left.begin(), left.end());
    ExpectSame(first, {});
    ExpectSame(second, right);
}

TEST(ItemBlock, WastesLittleOnTextsThatAreGone) {
    ItemBlock block(1);
    for (size_t i = 0; i < 200; ++i) block.Insert(i, std::string(100, 'x'));
    for (int step = 0; step < 5'000; ++step) block.SetText(static_cast<size_t>(step % 200), std::string(100, 'y'));
    EXPECT_LT(block.StorageBytes(), sizeof(ItemBlock) + 200 * 101 * 5 / 4);
    while (block.Count() > 20) block.Remove(block.Count() / 2);
    EXPECT_LT(block.StorageBytes(), sizeof(ItemBlock) + 20 * 101 * 5 / 4);
}

}  // namespace
}  // namespace vorlane
