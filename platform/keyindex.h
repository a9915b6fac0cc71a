// KeyIndex: where the first item with a key is, up to the block that holds it, in 8 bytes per key and some room. It
// knows no items: its owner reports every key that comes, goes or changes its block. What it knows is exact or left
// open: the owner then searches, and tells what it found.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace vorlane {

class KeyIndex {
public:
    // Block numbers are below this.
    static constexpr uint32_t BlockLimit = (1U << 24) - 1;

    enum class Answer { None, InBlock, Open };
    struct Found {
        Answer Kind = Answer::None;
        uint32_t Block = 0;  // the first one with the key, when Kind is InBlock
    };
    // Open: the key may be anywhere, or nowhere any more.
    Found Find(int32_t key) const;

    // An item with this key is now in block. places tells where each block stands among the blocks, by its number.
    // There is room: see Reserve.
    void Added(int32_t key, uint32_t block, std::span<const uint32_t> places);
    // The same for many keys of a block.
    void Added(std::span<const int32_t> keys, uint32_t block, std::span<const uint32_t> places);
    // An item with this key has gone from block; left are the keys of the block without it.
    void Removed(int32_t key, uint32_t block, std::span<const int32_t> left);
    // The items with these keys went from one block to a neighbour of it, the first block to hold them being now one of
    // these two; left are the keys that stayed.
    void Moved(std::span<const int32_t> keys, uint32_t from, uint32_t to, std::span<const int32_t> left);
    // Answers to an open question: the first block with the key; there is no such item.
    void Learn(int32_t key, uint32_t block);
    void Forget(int32_t key);

    // Room for so many more keys. Fails with bad_alloc.
    void Reserve(size_t more);
    // Gives back room that is far more than the keys need.
    void Tighten();

    size_t StorageBytes() const { return slots_.capacity() * sizeof(Slot); }

private:
    struct Slot {
        int32_t Key = 0;
        uint32_t Block : 24 = 0;
        uint32_t Items : 8 = 0;  // how many have the key: 0 for an empty slot, ManyItems for so many or more
    };
    static_assert(sizeof(Slot) == 8);
    static constexpr uint32_t OpenBlock = BlockLimit;
    static constexpr uint32_t ManyItems = 255;

    size_t Home(int32_t key) const;
    size_t Next(size_t slot) const { return slot + 1 == slots_.size() ? 0 : slot + 1; }
    size_t Distance(size_t from, size_t to) const { return to >= from ? to - from : to + slots_.size() - from; }
    // The slot of key, or the empty one where it belongs. There is at least one slot.
    size_t SlotOf(int32_t key) const;
    void Erase(size_t slot);
    void Resize(size_t slots);

    std::vector<Slot> slots_;
    size_t used_ = 0;
};

}  // namespace vorlane
