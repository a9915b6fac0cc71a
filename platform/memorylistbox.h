// MemoryListBox: the library's own list, built for a million items: little memory beside the texts, and no operation
// but those on the whole list costs a walk over it. ItemBlocks keeps the items.
#pragma once

#include "platform/itemblocks.h"
#include "platform/listbox.h"

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vorlane {

class MemoryListBox final : public ListBox {
public:
    explicit MemoryListBox(vorlane::Hwnd handle) : handle_(handle) {}
    MemoryListBox(const MemoryListBox&) = delete;
    MemoryListBox& operator=(const MemoryListBox&) = delete;

    int32_t ListCount() const override { return items_.Count(); }
    std::string List(int32_t index) const override;
    // The current item stays so while others come and go; it is none when it goes itself.
    int32_t ListIndex() const override { return listIndex_; }
    void SetListIndex(int32_t index) override;
    bool Selected(int32_t index) const override;
    void SetSelected(int32_t index, bool selected) override;
    int32_t SelCount() const override { return items_.SelectedCount(); }
    bool SelItems(std::vector<int32_t>& indices) const override;
    int16_t MultiSelect() const override { return 2; }
    vorlane::Hwnd Hwnd() const override { return handle_; }

    // A new item has ItemData 0 and is not selected.
    void AddItem(std::string_view text) override;
    void AddItem(std::string_view text, int32_t index) override;
    void RemoveItem(int32_t index) override;
    // Gives the memory back.
    void Clear() override;
    void SetList(int32_t index, std::string_view text) override;
    int32_t ItemData(int32_t index) const override;
    void SetItemData(int32_t index, int32_t data) override;
    // The first look-up of a list walks over it once, the following ones don't. One that follows the removal of the
    // first of several items with the same data walks too.
    int32_t FindItemData(int32_t data) const override;
    uint64_t DataState() const override { return state_; }
    // -1 also after a removal.
    int32_t NewIndex() const override { return newIndex_; }
    bool Sorted() const override { return false; }

    // --- The whole list at once ---
    void SelectAll() { items_.SelectAll(); }
    void ClearSelection() { items_.ClearSelection(); }
    void InvertSelection() { items_.InvertSelection(); }
    // Leaves what Clear leaves and then AddItem of each item, with its data and selection, in a new order: the item
    // that was at order[i] is at i. Fails with InvalidCall() when order is not every index once.
    void Reorder(std::span<const int32_t> order);
    // Calls visit with each text in order. A text is valid during its call; visit must not change the list.
    void ForEachText(const std::function<void(std::string_view text)>& visit) const { items_.ForEachText(visit); }
    // What the list takes of memory. Walks over it.
    ItemStorage Storage() const { return items_.Storage(); }

    // The list's width as a control, in pixels; the list itself is never shown.
    float Width() const { return width_; }
    void SetWidth(double width) { width_ = static_cast<float>(width); }

private:
    void CheckIndex(int32_t index) const;
    static uint64_t FirstState();

    vorlane::Hwnd handle_;
    ItemBlocks items_;
    int32_t listIndex_ = -1;
    int32_t newIndex_ = -1;
    uint64_t state_ = FirstState();
    float width_ = 0;
};

}  // namespace vorlane
