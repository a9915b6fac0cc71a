// CountingList: the sheet's own kind of list as a host binds one, counting what is read from it and what goes.
#pragma once

#include "platform/memorylistbox.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vorlane {

class CountingList final : public ListBox {
public:
    explicit CountingList(vorlane::Hwnd handle) : items_(handle) {}

    int32_t ListCount() const override { return items_.ListCount(); }
    std::string List(int32_t index) const override {
        ++reads;
        return items_.List(index);
    }
    int32_t ListIndex() const override { return items_.ListIndex(); }
    void SetListIndex(int32_t index) override { items_.SetListIndex(index); }
    bool Selected(int32_t index) const override { return items_.Selected(index); }
    void SetSelected(int32_t index, bool selected) override { items_.SetSelected(index, selected); }
    int32_t SelCount() const override { return items_.SelCount(); }
    bool SelItems(std::vector<int32_t>& indices) const override { return items_.SelItems(indices); }
    int16_t MultiSelect() const override { return items_.MultiSelect(); }
    vorlane::Hwnd Hwnd() const override { return items_.Hwnd(); }
    void AddItem(std::string_view text) override { items_.AddItem(text); }
    void AddItem(std::string_view text, int32_t index) override { items_.AddItem(text, index); }
    void RemoveItem(int32_t index) override {
        ++removals;
        items_.RemoveItem(index);
    }
    void Clear() override { items_.Clear(); }
    void SetList(int32_t index, std::string_view text) override { items_.SetList(index, text); }
    int32_t ItemData(int32_t index) const override { return items_.ItemData(index); }
    void SetItemData(int32_t index, int32_t data) override { items_.SetItemData(index, data); }
    int32_t FindItemData(int32_t data) const override {
        ++lookUps;
        return items_.FindItemData(data);
    }
    uint64_t DataState() const override { return items_.DataState(); }
    int32_t NewIndex() const override { return items_.NewIndex(); }
    bool Sorted() const override { return items_.Sorted(); }

    mutable int64_t reads = 0;    // of texts
    mutable int64_t lookUps = 0;  // of keys
    int64_t removals = 0;

private:
    MemoryListBox items_;
};

}  // namespace vorlane
