#include "sheet/listsort.h"

#include "platform/failure.h"
#include "platform/memorylistbox.h"
#include "sheet/itemtext.h"
#include "sheet/shellpasses.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>

namespace vorlane {

namespace {

// The descending order, with rows of equal keys in ascending order again.
void Reverse(KeyOrder& keys) {
    const size_t count = keys.Rows.size();
    const auto at = [&](size_t i) { return keys.Rows.begin() + static_cast<std::ptrdiff_t>(i); };
    std::reverse(keys.Rows.begin(), keys.Rows.end());
    std::reverse(keys.Ties.begin(), keys.Ties.end());
    for (auto& [begin, end] : keys.Ties) {
        begin = std::exchange(end, count - begin);
        begin = count - begin;
        std::reverse(at(begin), at(end));
    }
}

std::vector<int32_t> Ranks(const KeyOrder& keys, size_t rows) {
    std::vector<int32_t> ranks(rows, kNoRank);
    auto tie = keys.Ties.begin();
    int32_t rank = -1;
    for (size_t i = 0; i < keys.Rows.size(); ++i) {
        while (tie != keys.Ties.end() && tie->End <= i) ++tie;
        const bool tied = tie != keys.Ties.end() && tie->Begin < i;
        if (!tied) ++rank;
        ranks[static_cast<size_t>(keys.Rows[i])] = rank;
    }
    return ranks;
}

KeyOrder OrderOfKeys(ListKeys& keys, bool ascending) {
    KeyOrder order = keys.Order();
    if (!ascending) Reverse(order);
    return order;
}

// With a row more, whose key is the empty text: the first comparison is made with that where a row has no key.
std::vector<int32_t> OrderWithKeylessRows(ListKeys& keys, bool ascending) {
    const auto count = static_cast<size_t>(keys.Rows());
    keys.AddKey({});
    const std::vector<int32_t> ranks = Ranks(OrderOfKeys(keys, ascending), count + 1);
    return ShellOrderOfRanks(std::span(ranks).first(count), ranks.back());
}

SortedOrder Order(ListKeys& keys, bool ascending, int32_t anchor) {
    SortedOrder order;
    order.Rows = keys.Keyless() > 0 ? OrderWithKeylessRows(keys, ascending) : ShellOrder(OrderOfKeys(keys, ascending));
    const auto place = std::find(order.Rows.begin(), order.Rows.end(), anchor);
    order.Anchor = place == order.Rows.end() ? anchor : static_cast<int32_t>(place - order.Rows.begin());
    return order;
}

struct Item {
    std::string Text;
    std::optional<bool> Selected;
    std::optional<int32_t> Data;
};

std::vector<Item> ReadItems(const ListBox& list, int32_t count) {
    std::vector<Item> items(static_cast<size_t>(count));
    for (int32_t i = 0; i < count; ++i) {
        Item& item = items[static_cast<size_t>(i)];
        Attempt([&] { item.Text = list.List(i); });
        Attempt([&] { item.Selected = list.Selected(i); });
        Attempt([&] { item.Data = list.ItemData(i); });
    }
    return items;
}

// The list tells by NewIndex where an item has come to.
void WriteItem(ListBox& list, const Item& item) {
    Attempt([&] { list.AddItem(item.Text); });
    if (item.Selected) Attempt([&] { list.SetSelected(list.NewIndex(), *item.Selected); });
    if (item.Data) Attempt([&] { list.SetItemData(list.NewIndex(), *item.Data); });
}

// A list that can't be emptied is left as it is.
int32_t SortAnyList(ListBox& list, int32_t count, bool ascending, const KeyPlace& place, int32_t anchor) {
    const std::vector<Item> items = ReadItems(list, count);
    ListKeys keys(place, items.size());
    for (const Item& item : items) keys.Add(item.Text);
    const SortedOrder order = Order(keys, ascending, anchor);
    Attempt([&] { list.Clear(); });
    bool refuses = false;
    Attempt([&] { refuses = list.ListCount() == count; });
    if (refuses) return anchor;
    for (const int32_t row : order.Rows) WriteItem(list, items[static_cast<size_t>(row)]);
    return order.Anchor;
}

// The library's own list moves its items without handing them out.
int32_t SortOwnList(MemoryListBox& list, bool ascending, const KeyPlace& place, int32_t anchor) {
    ListKeys keys(place, static_cast<size_t>(list.ListCount()));
    list.ForEachText([&](std::string_view text) { keys.Add(text); });
    const SortedOrder order = Order(keys, ascending, anchor);
    list.Reorder(order.Rows);
    return order.Anchor;
}

}  // namespace

SortedOrder SortOrder(std::span<const std::string_view> texts, bool ascending, const KeyPlace& place, int32_t anchor) {
    ListKeys keys(place, texts.size());
    for (const std::string_view text : texts) keys.Add(text);
    return Order(keys, ascending, anchor);
}

void SortList(ListBox& list, bool ascending, uint8_t criterion, std::string_view separator, int32_t& anchor) {
    Attempt([&] {
        const int32_t count = list.ListCount();
        if (count < 2) return;
        const KeyPlace place{criterion, separator, std::string_view(&kSepSortArg, 1)};
        auto* own = dynamic_cast<MemoryListBox*>(&list);
        anchor = own != nullptr ? SortOwnList(*own, ascending, place, anchor)
                                : SortAnyList(list, count, ascending, place, anchor);
    });
}

}  // namespace vorlane
