// MemoryListBox: the library's own list, built for a million items. See memorylistbox.cpp's rooms for its storage.
#pragma once

#include "platform/listbox.h"

#include <memory>

namespace vorlane {

class MemoryListBox final : public ListBox {
public:
    explicit MemoryListBox(vorlane::Hwnd handle);
    ~MemoryListBox() override;

    int32_t ListCount() const override;
    std::string List(int32_t index) const override;
    int32_t ListIndex() const override;
    void SetListIndex(int32_t index) override;
    bool Selected(int32_t index) const override;
    void SetSelected(int32_t index, bool selected) override;
    int32_t SelCount() const override;
    bool SelItems(std::vector<int32_t>& indices) const override;
    int16_t MultiSelect() const override { return 2; }
    vorlane::Hwnd Hwnd() const override;

    void AddItem(std::string_view text) override;
    void AddItem(std::string_view text, int32_t index) override;
    void RemoveItem(int32_t index) override;
    void Clear() override;
    void SetList(int32_t index, std::string_view text) override;
    int32_t ItemData(int32_t index) const override;
    void SetItemData(int32_t index, int32_t data) override;
    int32_t FindItemData(int32_t data) const override;
    int32_t NewIndex() const override;
    bool Sorted() const override { return false; }

    // The list's width as a control, in pixels; the list itself is never shown.
    float Width() const { return width_; }
    void SetWidth(double width) { width_ = static_cast<float>(width); }

private:
    struct Storage;
    std::unique_ptr<Storage> storage_;
    float width_ = 0;
};

}  // namespace vorlane
