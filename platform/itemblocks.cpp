#include "platform/itemblocks.h"

#include "platform/failure.h"
#include "platform/reserveone.h"

#include <algorithm>
#include <new>
#include <utility>

namespace vorlane {

namespace {

// A block that shrinks to a quarter joins a neighbour, if the two leave room for some more.
constexpr size_t ThinBlock = ItemBlock::Capacity / 4;
constexpr size_t JoinedBlock = ItemBlock::Capacity * 3 / 4;

}  // namespace

std::string_view ItemBlocks::Text(int32_t index) const {
    const Place place = PlaceOf(index);
    return BlockAt(place).Text(place.Index);
}

int32_t ItemBlocks::Key(int32_t index) const {
    const Place place = PlaceOf(index);
    return BlockAt(place).Key(place.Index);
}

void ItemBlocks::Insert(int32_t index, std::string_view text) {
    if (keys_) keys_->Reserve(1);
    const Place place = PlaceToInsert(index);
    ItemBlock& block = BlockAt(place);
    block.Insert(place.Index, text);
    counts_.Add(place.Ordinal, 1);
    ++count_;
    if (keys_) keys_->Added(0, block.Id(), places_);
}

void ItemBlocks::Remove(int32_t index) {
    const Place place = PlaceOf(index);
    ItemBlock& block = BlockAt(place);
    const int32_t key = block.Key(place.Index);
    if (block.Selected(place.Index)) --selected_;
    block.Remove(place.Index);
    counts_.Add(place.Ordinal, -1);
    --count_;
    if (keys_) keys_->Removed(key, block.Id(), block.Keys());
    Thin(place.Ordinal);
}

void ItemBlocks::SetText(int32_t index, std::string_view text) {
    const Place place = PlaceOf(index);
    BlockAt(place).SetText(place.Index, text);
}

ItemBlocks::Place ItemBlocks::PlaceOf(int32_t index) const {
    const auto [ordinal, rest] = counts_.Find(index);
    return {ordinal, static_cast<size_t>(rest)};
}

ItemBlocks::Place ItemBlocks::PlaceToInsert(int32_t index) {
    if (index == count_) return PlaceAtEnd();
    const Place place = PlaceOf(index);
    return BlockAt(place).Full() ? MakeRoom(place) : place;
}

ItemBlocks::Place ItemBlocks::PlaceAtEnd() {
    const bool filled = blocks_.empty() || blocks_.back()->Count() >= FilledBlock;
    if (filled) {
        AddBlock(blocks_.size());
        if (blocks_.size() > 1) Attempt([&] { blocks_[blocks_.size() - 2]->Tighten(); });
    }
    return {blocks_.size() - 1, blocks_.back()->Count()};
}

// Where to insert instead of at a place in a full block. In front of the block nothing moves, so that a list which
// grows at one place gets full blocks.
ItemBlocks::Place ItemBlocks::MakeRoom(const Place& place) {
    const auto [ordinal, index] = place;
    if (index == 0) {
        const bool room = ordinal > 0 && !blocks_[ordinal - 1]->Full();
        if (room) return {ordinal - 1, blocks_[ordinal - 1]->Count()};
        AddBlock(ordinal);
        return {ordinal, 0};
    }
    AddBlock(ordinal + 1);
    const size_t half = ItemBlock::Capacity / 2;
    MoveTail(ordinal, half, ordinal + 1);
    return index <= half ? place : Place{ordinal + 1, index - half};
}

void ItemBlocks::AddBlock(size_t ordinal) {
    const auto fresh = static_cast<uint32_t>(places_.size());
    const uint32_t id = freeIds_.empty() ? fresh : freeIds_.back();
    if (id >= KeyIndex::BlockLimit) throw std::bad_alloc();
    auto block = std::make_unique<ItemBlock>(id);
    ReserveOne(blocks_);
    ReserveOne(places_);
    counts_.ReserveOne();
    freeIds_.reserve(places_.capacity());
    if (id == fresh) {
        places_.push_back(0);
    } else {
        freeIds_.pop_back();
    }
    blocks_.insert(blocks_.begin() + static_cast<std::ptrdiff_t>(ordinal), std::move(block));
    counts_.Insert(ordinal, 0);
    Renumber(ordinal);
}

void ItemBlocks::EraseBlock(size_t ordinal) {
    const uint32_t id = blocks_[ordinal]->Id();
    blocks_.erase(blocks_.begin() + static_cast<std::ptrdiff_t>(ordinal));
    counts_.Erase(ordinal);
    Renumber(ordinal);
    freeIds_.push_back(id);
}

void ItemBlocks::MoveTail(size_t from, size_t index, size_t to) {
    ItemBlock& source = *blocks_[from];
    ItemBlock& target = *blocks_[to];
    const size_t held = target.Count();
    source.MoveTail(index, target);
    const auto moved = target.Keys().subspan(held);
    counts_.Add(from, -static_cast<int32_t>(moved.size()));
    counts_.Add(to, static_cast<int32_t>(moved.size()));
    if (keys_) keys_->Moved(moved, source.Id(), target.Id(), source.Keys());
}

void ItemBlocks::Thin(size_t ordinal) {
    const size_t count = blocks_[ordinal]->Count();
    if (count > ThinBlock) return;
    const auto joins = [&](size_t left) {
        return left + 1 < blocks_.size() && blocks_[left]->Count() + blocks_[left + 1]->Count() <= JoinedBlock;
    };
    size_t emptied = ordinal;
    if (count > 0) {
        const bool before = ordinal > 0 && joins(ordinal - 1);
        if (!before && !joins(ordinal)) return;
        emptied = before ? ordinal : ordinal + 1;
        if (!Attempt([&] { MoveTail(emptied, 0, emptied - 1); })) return;
    }
    EraseBlock(emptied);
}

void ItemBlocks::Renumber(size_t first) {
    for (size_t ordinal = first; ordinal < blocks_.size(); ++ordinal) {
        places_[blocks_[ordinal]->Id()] = static_cast<uint32_t>(ordinal);
    }
}

}  // namespace vorlane
