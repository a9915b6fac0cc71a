#include "platform/memorylistbox.h"

#include "expectfailure.h"
#include "plainitems.h"

#include <numeric>
#include <utility>
#include <vector>

namespace vorlane {
namespace {

using Indices = std::vector<int32_t>;

class MemoryList : public testing::Test {
protected:
    MemoryListBox list{42};

    void Fill(int32_t count) {
        for (int32_t i = 0; i < count; ++i) list.AddItem("item " + std::to_string(i));
    }
    Indices Selection() const {
        Indices indices{99};
        EXPECT_TRUE(list.SelItems(indices));
        return indices;
    }
    std::string Texts() const {
        std::string texts;
        for (int32_t i = 0; i < list.ListCount(); ++i) texts += list.List(i);
        return texts;
    }
};

TEST_F(MemoryList, IsAListBoxOfManySelectedItemsAndNeverSorted) {
    EXPECT_EQ(list.AsListBox(), &list);
    EXPECT_EQ(list.AsFileListBox(), nullptr);
    EXPECT_EQ(list.Hwnd(), 42);
    EXPECT_NE(list.MultiSelect(), 0);
    EXPECT_FALSE(list.Sorted());
}

TEST_F(MemoryList, IsEmptyAtFirst) {
    EXPECT_EQ(list.ListCount(), 0);
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_EQ(list.NewIndex(), -1);
    EXPECT_EQ(list.SelCount(), 0);
    EXPECT_EQ(Selection(), Indices{});
    EXPECT_EQ(list.FindItemData(0), -1);
}

TEST_F(MemoryList, AddsAtTheEndOrInFront) {
    list.AddItem("b");
    list.AddItem("d");
    list.AddItem("a", 0);
    list.AddItem("c", 2);
    list.AddItem("e", 4);
    EXPECT_EQ(Texts(), "abcde");
}

TEST_F(MemoryList, GivesANewItemKeyZeroAndDoesNotSelectIt) {
    Fill(3);
    list.SelectAll();
    for (int32_t i = 0; i < 3; ++i) list.SetItemData(i, 5);
    list.AddItem("new", 1);
    EXPECT_EQ(list.ItemData(1), 0);
    EXPECT_FALSE(list.Selected(1));
    EXPECT_EQ(Selection(), (Indices{0, 2, 3}));
    EXPECT_EQ(list.FindItemData(0), 1);
}

TEST_F(MemoryList, TellsTheItemAddedLastUntilOneGoes) {
    Fill(3);
    EXPECT_EQ(list.NewIndex(), 2);
    list.AddItem("new", 1);
    EXPECT_EQ(list.NewIndex(), 1);
    list.RemoveItem(3);
    EXPECT_EQ(list.NewIndex(), -1);
    list.AddItem("new");
    EXPECT_EQ(list.NewIndex(), 3);
    list.Clear();
    EXPECT_EQ(list.NewIndex(), -1);
}

TEST_F(MemoryList, KeepsTheCurrentItemWhileOthersComeAndGo) {
    Fill(5);
    list.SetListIndex(2);
    list.AddItem("before", 0);
    EXPECT_EQ(list.ListIndex(), 3);
    list.AddItem("right before", 3);
    EXPECT_EQ(list.ListIndex(), 4);
    list.AddItem("behind", 5);
    EXPECT_EQ(list.ListIndex(), 4);
    list.RemoveItem(6);
    list.RemoveItem(0);
    EXPECT_EQ(list.List(list.ListIndex()), "item 2");
}

TEST_F(MemoryList, HasNoCurrentItemWhenThatOneGoes) {
    Fill(5);
    list.SetListIndex(2);
    list.RemoveItem(2);
    EXPECT_EQ(list.ListIndex(), -1);
    list.RemoveItem(0);
    EXPECT_EQ(list.ListIndex(), -1);
    list.SetListIndex(1);
    list.Clear();
    EXPECT_EQ(list.ListIndex(), -1);
}

TEST_F(MemoryList, RefusesACurrentItemOutsideTheList) {
    Fill(2);
    list.SetListIndex(1);
    EXPECT_FAILURE(list.SetListIndex(2), InvalidProperty());
    EXPECT_FAILURE(list.SetListIndex(-2), InvalidProperty());
    EXPECT_EQ(list.ListIndex(), 1);
    list.SetListIndex(-1);
    EXPECT_EQ(list.ListIndex(), -1);
}

TEST_F(MemoryList, RefusesIndicesOutsideTheList) {
    Fill(2);
    for (const int32_t index : {-1, 2, 1000, INT32_MAX, INT32_MIN}) {
        EXPECT_FAILURE(static_cast<void>(list.List(index)), SubscriptOutOfRange());
        EXPECT_FAILURE(static_cast<void>(list.Selected(index)), SubscriptOutOfRange());
        EXPECT_FAILURE(static_cast<void>(list.ItemData(index)), SubscriptOutOfRange());
        EXPECT_FAILURE(list.SetSelected(index, true), SubscriptOutOfRange());
        EXPECT_FAILURE(list.SetItemData(index, 1), SubscriptOutOfRange());
        EXPECT_FAILURE(list.SetList(index, "x"), SubscriptOutOfRange());
        EXPECT_FAILURE(list.RemoveItem(index), SubscriptOutOfRange());
        if (index != 2) EXPECT_FAILURE(list.AddItem("x", index), SubscriptOutOfRange());
    }
    EXPECT_EQ(Texts(), "item 0item 1");
    EXPECT_EQ(list.NewIndex(), 1);
}

TEST_F(MemoryList, KeepsTextsByteForByte) {
    const std::string text("\0\xFF\t\v été", 10);
    list.AddItem("");
    list.AddItem(text);
    EXPECT_EQ(list.List(0), "");
    EXPECT_EQ(list.List(1), text);
    list.SetList(1, "short");
    list.SetList(0, text);
    EXPECT_EQ(list.List(0), text);
    EXPECT_EQ(list.List(1), "short");
}

TEST_F(MemoryList, CountsItsSelectionThroughEveryChange) {
    Fill(1000);
    for (int32_t i = 0; i < 1000; i += 100) list.SetSelected(i, true);
    list.SetSelected(100, true);
    list.SetSelected(1, false);
    EXPECT_EQ(list.SelCount(), 10);
    EXPECT_EQ(Selection(), (Indices{0, 100, 200, 300, 400, 500, 600, 700, 800, 900}));
    list.RemoveItem(100);
    list.RemoveItem(50);
    list.AddItem("new", 250);
    EXPECT_EQ(Selection(), (Indices{0, 198, 299, 399, 499, 599, 699, 799, 899}));
    EXPECT_EQ(list.SelCount(), 9);
}

TEST_F(MemoryList, SelectsAllInvertsAndClearsAtOnce) {
    Fill(1000);
    list.SelectAll();
    EXPECT_EQ(list.SelCount(), 1000);
    list.SetSelected(500, false);
    list.InvertSelection();
    EXPECT_EQ(Selection(), Indices{500});
    EXPECT_EQ(list.SelCount(), 1);
    list.ClearSelection();
    EXPECT_EQ(Selection(), Indices{});
    EXPECT_EQ(list.SelCount(), 0);
}

TEST_F(MemoryList, ClearsAndGivesItsMemoryBack) {
    Fill(20'000);
    list.SelectAll();
    EXPECT_EQ(list.FindItemData(1), -1);
    EXPECT_GT(list.Storage().State, 100'000U);
    list.Clear();
    EXPECT_EQ(list.ListCount(), 0);
    EXPECT_EQ(list.SelCount(), 0);
    EXPECT_EQ(list.FindItemData(0), -1);
    EXPECT_EQ(list.Storage().Text, 0U);
    EXPECT_LT(list.Storage().State, 1'000U);
    Fill(3);
    EXPECT_EQ(Texts(), "item 0item 1item 2");
}

TEST_F(MemoryList, TakesAtMost24BytesAnItemBesideTheTextWithItsIndexInUse) {
    constexpr int32_t count = 100'000;
    Fill(count);
    for (int32_t i = 0; i < count; ++i) list.SetItemData(i, i);
    list.SelectAll();
    EXPECT_EQ(list.FindItemData(count - 1), count - 1);
    size_t text = 0;
    list.ForEachText([&](std::string_view each) { text += each.size(); });
    EXPECT_EQ(list.Storage().Text, text);
    EXPECT_LE(list.Storage().State, 24U * count);
}

TEST_F(MemoryList, FindsTheFirstItemWithAKeyThroughChanges) {
    Fill(1000);
    EXPECT_EQ(list.FindItemData(0), 0);
    EXPECT_EQ(list.FindItemData(7), -1);
    list.SetItemData(900, 7);
    EXPECT_EQ(list.FindItemData(7), 900);
    list.SetItemData(300, 7);
    EXPECT_EQ(list.FindItemData(7), 300);
    list.AddItem("new", 0);
    EXPECT_EQ(list.FindItemData(7), 301);
    list.RemoveItem(301);
    EXPECT_EQ(list.FindItemData(7), 900);
    list.SetItemData(900, -7);
    EXPECT_EQ(list.FindItemData(7), -1);
    EXPECT_EQ(list.FindItemData(-7), 900);
}

TEST_F(MemoryList, ReordersItsItemsWithTheirKeysAndSelection) {
    Fill(1000);
    for (int32_t i = 0; i < 1000; ++i) {
        list.SetItemData(i, i);
        list.SetSelected(i, i % 3 == 0);
    }
    EXPECT_EQ(list.FindItemData(0), 0);
    list.SetListIndex(5);
    Indices order(1000);
    std::iota(order.rbegin(), order.rend(), 0);
    list.Reorder(order);
    for (int32_t i = 0; i < 1000; ++i) {
        EXPECT_EQ(list.List(i), "item " + std::to_string(999 - i));
        EXPECT_EQ(list.ItemData(i), 999 - i);
        EXPECT_EQ(list.Selected(i), (999 - i) % 3 == 0);
        EXPECT_EQ(list.FindItemData(i), 999 - i);
    }
    EXPECT_EQ(list.SelCount(), 334);
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_EQ(list.NewIndex(), 999);
}

TEST_F(MemoryList, RefusesAnOrderThatIsNotEveryIndexOnce) {
    Fill(3);
    for (const Indices& order : {Indices{}, {0, 1}, {0, 1, 2, 3}, {0, 1, 1}, {0, 1, 3}, {-1, 0, 1}}) {
        EXPECT_FAILURE(list.Reorder(order), InvalidCall());
    }
    EXPECT_EQ(Texts(), "item 0item 1item 2");
    list.Clear();
    list.Reorder({});
    EXPECT_EQ(list.NewIndex(), -1);
}

// The rules of the current and of the newest item at random, beside a plain list.
TEST_F(MemoryList, DoesAsAPlainListDoes) {
    Dice dice(23);
    PlainItems items;
    int32_t current = -1;
    int32_t newest = -1;
    for (int32_t step = 0; step < 20'000; ++step) {
        const auto count = static_cast<int32_t>(items.size());
        if (count == 0 || dice.Below(10) < (step < 12'000 ? 6 : 4)) {
            newest = dice.OneIn(3) ? count : dice.Below(count + 1);
            const std::string text = std::to_string(step);
            list.AddItem(text, newest);
            items.insert(items.begin() + newest, PlainItem{text});
            if (current >= newest) ++current;
        } else {
            const int32_t index = dice.OneIn(50) && current >= 0 ? current : dice.Below(count);
            list.RemoveItem(index);
            items.erase(items.begin() + index);
            newest = -1;
            current = current == index ? -1 : current - (current > index ? 1 : 0);
        }
        if (!items.empty()) {
            const int32_t index = dice.Below(static_cast<int32_t>(items.size()));
            PlainItem& item = items[static_cast<size_t>(index)];
            item = {item.Text, dice.Below(300), dice.OneIn(2)};
            list.SetItemData(index, item.Key);
            list.SetSelected(index, item.Selected);
            if (dice.OneIn(20)) list.SetListIndex(current = index);
            ASSERT_EQ(list.List(index), item.Text);
        }
        const int32_t key = dice.Below(310);
        ASSERT_EQ(list.FindItemData(key), FirstWithKey(items, key));
        ASSERT_EQ(list.ListIndex(), current);
        ASSERT_EQ(list.NewIndex(), newest);
        ASSERT_EQ(list.ListCount(), static_cast<int32_t>(items.size()));
        if (step % 100 == 0) {
            ASSERT_EQ(Selection(), SelectedIndices(items));
        }
    }
}

TEST(MemoryListBoxDataState, MovesOnWithEveryChangeOfTheDataAndNothingElse) {
    MemoryListBox list(1);
    uint64_t state = list.DataState();
    const auto moves = [&](auto&& change) {
        change();
        return std::exchange(state, list.DataState()) != list.DataState();
    };
    EXPECT_NE(state, 0U);
    EXPECT_TRUE(moves([&] { list.AddItem("a"); }));
    EXPECT_TRUE(moves([&] { list.AddItem("b", 0); }));
    EXPECT_TRUE(moves([&] { list.SetItemData(0, 7); }));
    EXPECT_TRUE(moves([&] { list.Reorder(std::vector<int32_t>{1, 0}); }));
    EXPECT_TRUE(moves([&] { list.RemoveItem(0); }));
    EXPECT_TRUE(moves([&] { list.Clear(); }));
    list.AddItem("c");
    state = list.DataState();
    EXPECT_FALSE(moves([&] { list.SetList(0, "d"); }));
    EXPECT_FALSE(moves([&] { list.SetSelected(0, true); }));
    EXPECT_FALSE(moves([&] { list.FindItemData(0); }));
}

TEST(MemoryListBoxDataState, NoTwoListsHaveTheSame) {
    MemoryListBox first(1);
    MemoryListBox second(1);
    EXPECT_NE(first.DataState(), second.DataState());
    first.AddItem("a");
    second.AddItem("a");
    EXPECT_NE(first.DataState(), second.DataState());
}

}  // namespace
}  // namespace vorlane
