#include "platform/itemblocks.h"

namespace vorlane {

bool ItemBlocks::Selected(int32_t index) const {
    const Place place = PlaceOf(index);
    return BlockAt(place).Selected(place.Index);
}

void ItemBlocks::SetSelected(int32_t index, bool selected) {
    const Place place = PlaceOf(index);
    ItemBlock& block = BlockAt(place);
    if (block.Selected(place.Index) == selected) return;
    block.SetSelected(place.Index, selected);
    selected_ += selected ? 1 : -1;
}

void ItemBlocks::SelectAll() {
    for (const auto& block : blocks_) block->SelectAll();
    selected_ = count_;
}

void ItemBlocks::ClearSelection() {
    for (const auto& block : blocks_) block->ClearSelection();
    selected_ = 0;
}

void ItemBlocks::InvertSelection() {
    for (const auto& block : blocks_) block->InvertSelection();
    selected_ = count_ - selected_;
}

std::vector<int32_t> ItemBlocks::SelectedItems() const {
    std::vector<int32_t> indices(static_cast<size_t>(selected_));
    auto next = indices.begin();
    int32_t first = 0;
    for (const auto& block : blocks_) {
        block->ForEachSelected([&](size_t index) { *next++ = first + static_cast<int32_t>(index); });
        first += static_cast<int32_t>(block->Count());
    }
    return indices;
}

ItemStorage ItemBlocks::Storage() const {
    size_t all = sizeof(ItemBlocks) + counts_.StorageBytes() + blocks_.capacity() * sizeof(blocks_[0]) +
                 (places_.capacity() + freeIds_.capacity()) * sizeof(uint32_t);
    if (keys_) all += keys_->StorageBytes();
    size_t text = 0;
    for (const auto& block : blocks_) {
        all += block->StorageBytes();
        text += block->TextBytes();
    }
    return {text, all - text};
}

}  // namespace vorlane
