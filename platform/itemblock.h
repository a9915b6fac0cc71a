// ItemBlock: up to Capacity neighbouring items of a list, each with a text, a key and whether it is selected. Indices
// count within the block and are right; the blocks' order and what is known of all items is ItemBlocks' affair.
#pragma once

#include "platform/textarena.h"

#include <array>
#include <bit>
#include <bitset>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace vorlane {

// All of an item. The text is valid until its block changes.
struct ItemView {
    std::string_view Text;
    int32_t Key = 0;
    bool Selected = false;
};

class ItemBlock {
public:
    static constexpr size_t Capacity = 256;

    explicit ItemBlock(uint32_t id) : id_(id) {}

    // Names the block among the blocks of its list, wherever it stands.
    uint32_t Id() const { return id_; }

    size_t Count() const { return count_; }
    bool Full() const { return count_ == Capacity; }
    // Valid until the block changes.
    std::string_view Text(size_t index) const { return texts_.At(begins_[index]); }
    int32_t Key(size_t index) const { return keys_[index]; }
    std::span<const int32_t> Keys() const { return {keys_.data(), count_}; }
    bool Selected(size_t index) const { return selected_[index]; }
    size_t SelectedCount() const { return selected_.count(); }

    // With key 0, not selected. Fails with bad_alloc, as does SetText; the block is then as it was.
    void Insert(size_t index, std::string_view text);
    void Remove(size_t index);
    void SetText(size_t index, std::string_view text);
    void SetKey(size_t index, int32_t key) { keys_[index] = key; }
    void SetSelected(size_t index, bool selected) { selected_[index] = selected; }
    void SelectAll() { selected_ = FirstBits(count_); }
    void ClearSelection() { selected_.reset(); }
    void InvertSelection() { selected_ ^= FirstBits(count_); }
    // Calls visit with the index of each selected item, ascending.
    template <class Visit>
    void ForEachSelected(Visit&& visit) const;

    ItemView Item(size_t index) const { return {Text(index), keys_[index], selected_[index]}; }
    // Appends items of other blocks. There is place for them. Fails with bad_alloc; nothing is then appended.
    void AppendAll(std::span<const ItemView> items);
    // Moves the items from index on to the end of another block. Fails with bad_alloc; nothing is then moved.
    void MoveTail(size_t index, ItemBlock& to);
    // Gives back the memory that no text needs.
    void Tighten() { Repack(0); }

    size_t TextBytes() const;
    size_t StorageBytes() const { return sizeof(ItemBlock) + texts_.Capacity(); }

private:
    using Bits = std::bitset<Capacity>;

    static Bits FirstBits(size_t count) { return ~Bits{} >> (Capacity - count); }
    uint32_t Put(std::string_view text);
    void Append(const ItemView& item);
    size_t RecordBytes(size_t index) const { return TextArena::RecordBytes(Text(index).size()); }
    void Drop(size_t index) { waste_ += static_cast<uint32_t>(RecordBytes(index)); }
    void TrimWaste();
    void Repack(size_t room);

    TextArena texts_;
    uint32_t waste_ = 0;  // bytes of texts_ that belong to no item any more
    uint32_t id_;
    uint32_t count_ = 0;
    Bits selected_;                          // nothing beyond count_
    std::array<uint32_t, Capacity> begins_;  // of the texts, in texts_
    std::array<int32_t, Capacity> keys_;
};

template <class Visit>
void ItemBlock::ForEachSelected(Visit&& visit) const {
    constexpr size_t wordBits = 64;
    const Bits word(~uint64_t{0});
    for (size_t first = 0; first < Capacity; first += wordBits) {
        uint64_t bits = ((selected_ >> first) & word).to_ullong();
        for (; bits != 0; bits &= bits - 1) visit(first + static_cast<size_t>(std::countr_zero(bits)));
    }
}

}  // namespace vorlane
