#include "platform/itemblocks.h"

#include "plainitems.h"

#include <numeric>

namespace vorlane {
namespace {

void ExpectSame(const ItemBlocks& blocks, const PlainItems& items) {
    ASSERT_EQ(blocks.Count(), static_cast<int32_t>(items.size()));
    for (size_t i = 0; i < items.size(); ++i) {
        const auto index = static_cast<int32_t>(i);
        ASSERT_EQ(blocks.Text(index), items[i].Text) << i;
        ASSERT_EQ(blocks.Key(index), items[i].Key) << i;
        ASSERT_EQ(blocks.Selected(index), items[i].Selected) << i;
    }
    const auto selected = SelectedIndices(items);
    ASSERT_EQ(blocks.SelectedItems(), selected);
    ASSERT_EQ(blocks.SelectedCount(), static_cast<int32_t>(selected.size()));
    size_t next = 0;
    size_t textBytes = 0;
    blocks.ForEachText([&](std::string_view text) {
        ASSERT_EQ(text, items[next++].Text);
        textBytes += text.size();
    });
    ASSERT_EQ(next, items.size());
    ASSERT_EQ(blocks.Storage().Text, textBytes);
}

// Does the same with a list of blocks and with a plain one, at random.
class Twins {
public:
    explicit Twins(uint32_t seed) : dice_(seed) {}

    ItemBlocks Blocks;
    PlainItems Items;

    int32_t Count() const { return static_cast<int32_t>(Items.size()); }
    int32_t Anywhere() { return dice_.Below(Count()); }
    Dice& Rolls() { return dice_; }

    void Insert(int32_t index) {
        const std::string text = dice_.Text();
        Blocks.Insert(index, text);
        Items.insert(Items.begin() + index, PlainItem{text});
    }
    void Remove(int32_t index) {
        Blocks.Remove(index);
        Items.erase(Items.begin() + index);
    }
    void SetKey(int32_t index, int32_t key) {
        Blocks.SetKey(index, key);
        Items[static_cast<size_t>(index)].Key = key;
    }
    void SetSelected(int32_t index, bool selected) {
        Blocks.SetSelected(index, selected);
        Items[static_cast<size_t>(index)].Selected = selected;
    }
    void SetText(int32_t index) {
        Items[static_cast<size_t>(index)].Text = dice_.Text();
        Blocks.SetText(index, Items[static_cast<size_t>(index)].Text);
    }
    void ExpectFinds(int32_t key) { ASSERT_EQ(Blocks.FindKey(key), FirstWithKey(Items, key)) << key; }

    // A key of a small range, which many items share, or of a large one, which few do, or 0.
    int32_t SomeKey() {
        if (dice_.OneIn(4)) return 0;
        return dice_.OneIn(2) ? dice_.Below(20) : dice_.Below(1'000'000) - 500'000;
    }
    int32_t KnownOrSomeKey() {
        if (Items.empty() || dice_.OneIn(3)) return SomeKey();
        return Items[static_cast<size_t>(Anywhere())].Key;
    }

    // Insertions for so many chances in 10, otherwise removals, at one place for some time and then at another.
    void ChangeCount(int32_t insertions) {
        if (dice_.OneIn(100)) place_ = dice_.Below(1'000'000);
        const bool scattered = dice_.OneIn(2);
        if (Items.empty() || dice_.Below(10) < insertions) {
            Insert((scattered ? dice_.Below(1'000'000) : place_) % (Count() + 1));
            if (dice_.OneIn(2)) SetKey(Anywhere(), SomeKey());
        } else {
            Remove((scattered ? dice_.Below(1'000'000) : place_) % Count());
        }
    }
    void ChangeOne() {
        if (Items.empty()) return;
        const int32_t index = Anywhere();
        switch (dice_.Below(3)) {
            case 0:
                SetKey(index, SomeKey());
                break;
            case 1:
                SetSelected(index, dice_.OneIn(2));
                break;
            default:
                SetText(index);
        }
    }
    void ChangeAll() {
        switch (dice_.Below(4)) {
            case 0:
                Blocks.SelectAll();
                for (PlainItem& item : Items) item.Selected = true;
                break;
            case 1:
                Blocks.ClearSelection();
                for (PlainItem& item : Items) item.Selected = false;
                break;
            case 2:
                Blocks.InvertSelection();
                for (PlainItem& item : Items) item.Selected = !item.Selected;
                break;
            default:
                Shuffle();
        }
    }
    void Shuffle() {
        std::vector<int32_t> order(Items.size());
        std::iota(order.begin(), order.end(), 0);
        std::shuffle(order.begin(), order.end(), dice_.Engine());
        Blocks.Reorder(order);
        PlainItems ordered;
        for (const int32_t index : order) ordered.push_back(Items[static_cast<size_t>(index)]);
        Items = std::move(ordered);
    }

private:
    Dice dice_;
    int32_t place_ = 0;
};

class ItemBlocksAtRandom : public testing::TestWithParam<uint32_t> {};

TEST_P(ItemBlocksAtRandom, DoAsAPlainListDoes) {
    Twins twins(GetParam());
    constexpr int32_t insertionsInTen[] = {10, 5, 7, 2, 6, 1, 0, 8};
    for (int32_t step = 0; step < 24'000; ++step) {
        twins.ChangeCount(insertionsInTen[step / 3000]);
        twins.ChangeOne();
        twins.ExpectFinds(twins.KnownOrSomeKey());
        if (step % 1000 == 999) twins.ChangeAll();
        if (step % 250 == 0) ExpectSame(twins.Blocks, twins.Items);
        if (testing::Test::HasFatalFailure()) FAIL() << "at step " << step;
    }
    ExpectSame(twins.Blocks, twins.Items);
    while (!twins.Items.empty()) twins.Remove(twins.Anywhere());
    ExpectSame(twins.Blocks, twins.Items);
    twins.Insert(0);
    ExpectSame(twins.Blocks, twins.Items);
}

INSTANTIATE_TEST_SUITE_P(Seeds, ItemBlocksAtRandom, testing::Values(1U, 2U, 3U));

TEST(ItemBlocks, FillAtTheEndTheFrontAndInTheMiddle) {
    Twins twins(4);
    for (int32_t i = 0; i < 1500; ++i) twins.Insert(twins.Count());
    for (int32_t i = 0; i < 1500; ++i) twins.Insert(0);
    for (int32_t i = 0; i < 1500; ++i) twins.Insert(1500 + i);
    ExpectSame(twins.Blocks, twins.Items);
    for (int32_t i = 0; i < 1400; ++i) twins.Remove(0);
    for (int32_t i = 0; i < 1400; ++i) twins.Remove(twins.Count() - 1);
    for (int32_t i = 0; i < 1400; ++i) twins.Remove(150);
    ExpectSame(twins.Blocks, twins.Items);
}

TEST(ItemBlocks, FindTheFirstOfManyItemsThatAllHaveOneKey) {
    Twins twins(6);
    for (int32_t i = 0; i < 2000; ++i) twins.Insert(i);
    twins.ExpectFinds(0);
    for (int32_t i = 0; i < 2000; i += 3) {
        twins.SetKey(i, i + 1);
        twins.ExpectFinds(0);
    }
    for (int32_t i = 0; i < 1990; ++i) {
        twins.Remove(0);
        twins.ExpectFinds(0);
    }
    for (int32_t i = 0; i < 10; ++i) twins.SetKey(i, -1);
    twins.ExpectFinds(0);
    twins.ExpectFinds(-1);
}

TEST(ItemBlocks, FindAKeyAgainWhoseFirstItemHasGone) {
    Twins twins(7);
    for (int32_t i = 0; i < 2000; ++i) twins.Insert(i);
    for (int32_t i = 0; i < 2000; ++i) twins.SetKey(i, i % 500);
    twins.ExpectFinds(123);
    for (int32_t round = 0; round < 4; ++round) {
        twins.Remove(FirstWithKey(twins.Items, 123));
        twins.ExpectFinds(123);
    }
    twins.Insert(1000);
    twins.SetKey(1000, 123);
    twins.ExpectFinds(123);
}

TEST(ItemBlocks, JoinBlocksThatHaveBecomeThin) {
    Dice dice(8);
    ItemBlocks blocks;
    for (int32_t i = 0; i < 20'000; ++i) blocks.Insert(i, "text");
    while (blocks.Count() > 2'000) blocks.Remove(dice.Below(blocks.Count()));
    EXPECT_LT(blocks.Storage().State, 2'000U * 45);
}

TEST(ItemBlocks, TakeMemoryForAnIndexOnlyWhenAsked) {
    ItemBlocks asked;
    ItemBlocks unasked;
    for (int32_t i = 0; i < 1000; ++i) {
        asked.Insert(i, "text");
        asked.SetKey(i, i);
        unasked.Insert(i, "text");
        unasked.SetKey(i, i);
    }
    EXPECT_EQ(asked.Storage().State, unasked.Storage().State);
    EXPECT_EQ(asked.FindKey(7), 7);
    EXPECT_GE(asked.Storage().State, unasked.Storage().State + 8000);
}

}  // namespace
}  // namespace vorlane
