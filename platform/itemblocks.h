// ItemBlocks: a long sequence of items, each with a text, a key and whether it is selected, in blocks of some hundreds.
// An insertion or removal moves one block's items at most; counts, places and the selection's size never cost a walk.
// Keys are looked up through an index that is made at the first look-up and kept from then on. Indices are right
// (0 to Count() - 1). What runs out of memory fails with bad_alloc and leaves the items as they were.
#pragma once

#include "platform/itemblock.h"
#include "platform/keyindex.h"
#include "platform/prefixsums.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace vorlane {

// Memory that items take: their texts' bytes, and all the rest, unused room included.
struct ItemStorage {
    size_t Text = 0;
    size_t State = 0;
};

class ItemBlocks {
public:
    static constexpr int32_t MaxCount = INT32_MAX;

    int32_t Count() const { return count_; }
    // Valid until the next change of an item.
    std::string_view Text(int32_t index) const;
    int32_t Key(int32_t index) const;
    bool Selected(int32_t index) const;

    // In front of index (0 to Count(), which is below MaxCount), with key 0, not selected.
    void Insert(int32_t index, std::string_view text);
    void Remove(int32_t index);
    void SetText(int32_t index, std::string_view text);
    void SetKey(int32_t index, int32_t key);

    // First index with the key, -1 for none.
    int32_t FindKey(int32_t key) const;

    void SetSelected(int32_t index, bool selected);
    void SelectAll();
    void ClearSelection();
    void InvertSelection();
    int32_t SelectedCount() const { return selected_; }
    // Indices of the selected items, ascending.
    std::vector<int32_t> SelectedItems() const;

    // Puts the item that was at order[i] at i. order holds every index once.
    void Reorder(std::span<const int32_t> order);
    // Calls visit with each text in order; it must not change the items.
    template <class Visit>
    void ForEachText(Visit&& visit) const;

    // Walks over all items.
    ItemStorage Storage() const;

private:
    // A list that grows at its end leaves an eighth of each block free, for the first insertions to come.
    static constexpr size_t FilledBlock = ItemBlock::Capacity * 7 / 8;

    struct Place {
        size_t Ordinal;  // of the block
        size_t Index;    // in the block
    };

    // Blocks (itemblocks.cpp)
    Place PlaceOf(int32_t index) const;
    ItemBlock& BlockAt(const Place& place) { return *blocks_[place.Ordinal]; }
    const ItemBlock& BlockAt(const Place& place) const { return *blocks_[place.Ordinal]; }
    Place PlaceToInsert(int32_t index);
    Place PlaceAtEnd();
    Place MakeRoom(const Place& place);
    void AddBlock(size_t ordinal);
    void EraseBlock(size_t ordinal);
    void MoveTail(size_t from, size_t index, size_t to);
    void Thin(size_t ordinal);
    void Renumber(size_t first);

    // Keys (itemblocks_keys.cpp)
    void IndexKeys() const;
    std::optional<size_t> SearchKey(int32_t key) const;

    std::vector<std::unique_ptr<ItemBlock>> blocks_;
    PrefixSums counts_;              // of the blocks' items
    std::vector<uint32_t> places_;   // ordinal of each block, by its Id()
    std::vector<uint32_t> freeIds_;  // of blocks that are no more
    int32_t count_ = 0;
    int32_t selected_ = 0;
    mutable std::optional<KeyIndex> keys_;  // none before the first look-up
};

template <class Visit>
void ItemBlocks::ForEachText(Visit&& visit) const {
    for (const auto& block : blocks_) {
        for (size_t i = 0; i < block->Count(); ++i) visit(block->Text(i));
    }
}

}  // namespace vorlane
