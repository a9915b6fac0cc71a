#include "platform/itemblocks.h"

#include <algorithm>
#include <utility>

namespace vorlane {

namespace {

// Where block holds key first, its Count() for nowhere.
size_t FirstWithKey(const ItemBlock& block, int32_t key) {
    const auto keys = block.Keys();
    return static_cast<size_t>(std::find(keys.begin(), keys.end(), key) - keys.begin());
}

}  // namespace

void ItemBlocks::SetKey(int32_t index, int32_t key) {
    const Place place = PlaceOf(index);
    ItemBlock& block = BlockAt(place);
    const int32_t before = block.Key(place.Index);
    if (key == before) return;
    if (keys_) keys_->Reserve(1);
    block.SetKey(place.Index, key);
    if (!keys_) return;
    keys_->Removed(before, block.Id(), block.Keys());
    keys_->Added(key, block.Id(), places_);
}

int32_t ItemBlocks::FindKey(int32_t key) const {
    if (!keys_) IndexKeys();
    const KeyIndex::Found found = keys_->Find(key);
    if (found.Kind == KeyIndex::Answer::None) return -1;
    const auto ordinal = found.Kind == KeyIndex::Answer::Open ? SearchKey(key) : places_[found.Block];
    if (!ordinal) return -1;
    return counts_.Before(*ordinal) + static_cast<int32_t>(FirstWithKey(*blocks_[*ordinal], key));
}

void ItemBlocks::IndexKeys() const {
    KeyIndex index;
    index.Reserve(static_cast<size_t>(count_));
    for (const auto& block : blocks_) index.Added(block->Keys(), block->Id(), places_);
    index.Tighten();
    keys_ = std::move(index);
}

// The first block that holds key, whose place the index has left open.
std::optional<size_t> ItemBlocks::SearchKey(int32_t key) const {
    for (size_t ordinal = 0; ordinal < blocks_.size(); ++ordinal) {
        const ItemBlock& block = *blocks_[ordinal];
        if (FirstWithKey(block, key) == block.Count()) continue;
        keys_->Learn(key, block.Id());
        return ordinal;
    }
    keys_->Forget(key);
    return std::nullopt;
}

}  // namespace vorlane
