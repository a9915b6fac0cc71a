#include "platform/keyindex.h"

#include "platform/failure.h"
#include "platform/prefetch.h"

#include <algorithm>

namespace vorlane {

namespace {

// At most four fifths of the slots are taken: short ways, and 10 bytes a key at best.
constexpr size_t SlotsFor(size_t keys) {
    return keys + keys / 4 + 8;
}

// Spreads keys that lie in a row or in steps; two keys never become one.
constexpr uint32_t Mixed(int32_t key) {
    auto bits = static_cast<uint32_t>(key);
    bits = (bits ^ bits >> 16) * 0x9E3779B1U;
    bits = (bits ^ bits >> 15) * 0x85EBCA77U;
    return bits ^ bits >> 16;
}

bool Holds(std::span<const int32_t> keys, int32_t key) {
    return std::find(keys.begin(), keys.end(), key) != keys.end();
}

}  // namespace

KeyIndex::Found KeyIndex::Find(int32_t key) const {
    if (slots_.empty()) return {};
    const Slot& slot = slots_[SlotOf(key)];
    if (slot.Items == 0) return {};
    if (slot.Block == OpenBlock) return {Answer::Open, 0};
    return {Answer::InBlock, slot.Block};
}

void KeyIndex::Added(int32_t key, uint32_t block, std::span<const uint32_t> places) {
    Slot& slot = slots_[SlotOf(key)];
    if (slot.Items == 0) {
        slot = {key, block & BlockLimit, 1};
        ++used_;
        return;
    }
    if (slot.Items < ManyItems) ++slot.Items;
    if (slot.Block != OpenBlock && places[block] < places[slot.Block]) slot.Block = block & BlockLimit;
}

void KeyIndex::Added(std::span<const int32_t> keys, uint32_t block, std::span<const uint32_t> places) {
    for (const int32_t key : keys) Prefetch(&slots_[Home(key)]);
    for (const int32_t key : keys) Added(key, block, places);
}

void KeyIndex::Removed(int32_t key, uint32_t block, std::span<const int32_t> left) {
    const size_t at = SlotOf(key);
    Slot& slot = slots_[at];
    if (slot.Items == 1) {
        Erase(at);
        return;
    }
    if (slot.Items < ManyItems) --slot.Items;
    if (slot.Block == block && !Holds(left, key)) slot.Block = OpenBlock;
}

void KeyIndex::Moved(std::span<const int32_t> keys, uint32_t from, uint32_t to, std::span<const int32_t> left) {
    for (const int32_t key : keys) {
        Slot& slot = slots_[SlotOf(key)];
        if (slot.Block == from && (slot.Items == 1 || !Holds(left, key))) slot.Block = to & BlockLimit;
    }
}

void KeyIndex::Learn(int32_t key, uint32_t block) {
    slots_[SlotOf(key)].Block = block & BlockLimit;
}

void KeyIndex::Forget(int32_t key) {
    Erase(SlotOf(key));
}

void KeyIndex::Reserve(size_t more) {
    const size_t wanted = SlotsFor(used_ + more);
    if (wanted > slots_.size()) Resize(std::max(wanted, slots_.size() + slots_.size() / 4));
}

void KeyIndex::Tighten() {
    const size_t wanted = SlotsFor(used_);
    if (slots_.size() > wanted * 8) Resize(wanted);
}

size_t KeyIndex::Home(int32_t key) const {
    return static_cast<size_t>(uint64_t{Mixed(key)} * slots_.size() >> 32);
}

size_t KeyIndex::SlotOf(int32_t key) const {
    size_t slot = Home(key);
    while (slots_[slot].Items != 0 && slots_[slot].Key != key) slot = Next(slot);
    return slot;
}

// Closes the gap with those behind it that may stand nearer to their home.
void KeyIndex::Erase(size_t slot) {
    size_t gap = slot;
    for (size_t next = Next(gap); slots_[next].Items != 0; next = Next(next)) {
        const size_t home = Home(slots_[next].Key);
        if (Distance(home, next) < Distance(gap, next)) continue;
        slots_[gap] = slots_[next];
        gap = next;
    }
    slots_[gap] = {};
    --used_;
    Attempt([&] { Tighten(); });
}

void KeyIndex::Resize(size_t slots) {
    std::vector<Slot> old(slots);
    old.swap(slots_);
    for (const Slot& slot : old) {
        if (slot.Items != 0) slots_[SlotOf(slot.Key)] = slot;
    }
}

}  // namespace vorlane
