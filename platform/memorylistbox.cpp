#include "platform/memorylistbox.h"

#include "platform/failure.h"

#include <atomic>

namespace vorlane {

namespace {

bool HoldsEveryIndexOnce(std::span<const int32_t> order, int32_t count) {
    const auto size = static_cast<size_t>(count);
    if (order.size() != size) return false;
    std::vector<bool> seen(size);
    for (const int32_t index : order) {
        const auto at = static_cast<size_t>(index);
        if (index < 0 || at >= size || seen[at]) return false;
        seen[at] = true;
    }
    return true;
}

}  // namespace

// Room for more changes than a list lives to see.
uint64_t MemoryListBox::FirstState() {
    constexpr uint64_t kChanges = uint64_t{1} << 40;
    static std::atomic<uint64_t> lists{0};
    return ++lists * kChanges;
}

std::string MemoryListBox::List(int32_t index) const {
    CheckIndex(index);
    return std::string(items_.Text(index));
}

void MemoryListBox::SetListIndex(int32_t index) {
    if (index < -1 || index >= ListCount()) throw failures::InvalidProperty();
    listIndex_ = index;
}

bool MemoryListBox::Selected(int32_t index) const {
    CheckIndex(index);
    return items_.Selected(index);
}

void MemoryListBox::SetSelected(int32_t index, bool selected) {
    CheckIndex(index);
    items_.SetSelected(index, selected);
}

bool MemoryListBox::SelItems(std::vector<int32_t>& indices) const {
    indices = items_.SelectedItems();
    return true;
}

void MemoryListBox::AddItem(std::string_view text) {
    AddItem(text, ListCount());
}

void MemoryListBox::AddItem(std::string_view text, int32_t index) {
    if (index < 0 || index > ListCount()) throw failures::SubscriptOutOfRange();
    if (ListCount() == ItemBlocks::MaxCount) throw failures::OutOfMemory();
    items_.Insert(index, text);
    ++state_;
    newIndex_ = index;
    if (listIndex_ >= index) ++listIndex_;
}

void MemoryListBox::RemoveItem(int32_t index) {
    CheckIndex(index);
    items_.Remove(index);
    ++state_;
    newIndex_ = -1;
    if (listIndex_ == index) {
        listIndex_ = -1;
    } else if (listIndex_ > index) {
        --listIndex_;
    }
}

void MemoryListBox::Clear() {
    items_ = ItemBlocks();
    ++state_;
    listIndex_ = -1;
    newIndex_ = -1;
}

void MemoryListBox::SetList(int32_t index, std::string_view text) {
    CheckIndex(index);
    items_.SetText(index, text);
}

int32_t MemoryListBox::ItemData(int32_t index) const {
    CheckIndex(index);
    return items_.Key(index);
}

void MemoryListBox::SetItemData(int32_t index, int32_t data) {
    CheckIndex(index);
    items_.SetKey(index, data);
    ++state_;
}

int32_t MemoryListBox::FindItemData(int32_t data) const {
    return items_.FindKey(data);
}

void MemoryListBox::Reorder(std::span<const int32_t> order) {
    if (!HoldsEveryIndexOnce(order, ListCount())) throw failures::InvalidCall();
    items_.Reorder(order);
    ++state_;
    listIndex_ = -1;
    newIndex_ = ListCount() - 1;
}

void MemoryListBox::CheckIndex(int32_t index) const {
    if (index < 0 || index >= ListCount()) throw failures::SubscriptOutOfRange();
}

}  // namespace vorlane
