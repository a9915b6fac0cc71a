#include "platform/itemblocks.h"

#include <algorithm>
#include <array>
#include <utility>

namespace vorlane {

namespace {

// All items in one table. Its entries are read in any order, so they hold all that is needed to go straight to a text.
std::vector<ItemView> AllItems(std::span<const std::unique_ptr<ItemBlock>> blocks, size_t count) {
    std::vector<ItemView> items;
    items.reserve(count);
    for (const auto& block : blocks) {
        for (size_t i = 0; i < block->Count(); ++i) items.push_back(block->Item(i));
    }
    return items;
}

}  // namespace

void ItemBlocks::Reorder(std::span<const int32_t> order) {
    const std::vector<ItemView> items = AllItems(blocks_, order.size());
    const auto itemAt = [&](int32_t index) { return items[static_cast<size_t>(index)]; };

    ItemBlocks ordered;
    std::array<ItemView, FilledBlock> batch;
    for (size_t done = 0; done < order.size(); done += FilledBlock) {
        const auto indices = order.subspan(done, std::min(FilledBlock, order.size() - done));
        const auto batchEnd = std::transform(indices.begin(), indices.end(), batch.begin(), itemAt);
        ordered.AddBlock(ordered.blocks_.size());
        ordered.blocks_.back()->AppendAll({batch.begin(), batchEnd});
        ordered.counts_.Add(ordered.blocks_.size() - 1, static_cast<int32_t>(indices.size()));
    }
    ordered.count_ = count_;
    ordered.selected_ = selected_;
    *this = std::move(ordered);
}

}  // namespace vorlane
