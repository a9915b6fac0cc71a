// PlainList: a list of a host's own, which keeps its items in a vector and can be told to fail.
#pragma once

#include "plainsort.h"
#include "platform/failure.h"
#include "platform/listbox.h"

#include <cstdint>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace vorlane::plain {

class PlainList final : public ListBox {
public:
    std::vector<Row> Items;
    mutable int Reads = 0;  // of texts
    int Clears = 0;
    std::set<int32_t> Unreadable;    // items that tell nothing
    std::set<std::string> Unwanted;  // texts that can't be added
    bool AddsAtFront = false;
    enum class Clearing : uint8_t { Works, Fails, FailsHalfway };
    Clearing ClearsHow = Clearing::Works;
    bool Dead = false;  // not even the count is known

    int32_t ListCount() const override {
        if (Dead) throw failures::ObjectNotSet();
        return static_cast<int32_t>(Items.size());
    }
    std::string List(int32_t index) const override {
        ++Reads;
        return Readable(index).Text;
    }
    int32_t ListIndex() const override { return -1; }
    void SetListIndex(int32_t) override {}
    bool Selected(int32_t index) const override { return Readable(index).Selected; }
    void SetSelected(int32_t index, bool selected) override { At(index).Selected = selected; }
    int32_t SelCount() const override { return 0; }
    bool SelItems(std::vector<int32_t>&) const override { return false; }
    int16_t MultiSelect() const override { return 2; }
    vorlane::Hwnd Hwnd() const override { return 1; }

    void AddItem(std::string_view text) override { AddItem(text, AddsAtFront ? 0 : ListCount()); }
    void AddItem(std::string_view text, int32_t index) override {
        if (Unwanted.contains(std::string(text))) throw failures::OutOfMemory();
        Items.insert(Items.begin() + index, Row{std::string(text)});
        newIndex_ = index;
    }
    void RemoveItem(int32_t index) override { Items.erase(Items.begin() + index); }
    void Clear() override {
        ++Clears;
        if (ClearsHow == Clearing::FailsHalfway) Items.resize(Items.size() / 2);
        if (ClearsHow != Clearing::Works) throw failures::OutOfMemory();
        Items.clear();
        newIndex_ = -1;
    }
    void SetList(int32_t index, std::string_view text) override { At(index).Text = text; }
    int32_t ItemData(int32_t index) const override { return Readable(index).ItemData; }
    void SetItemData(int32_t index, int32_t data) override { At(index).ItemData = data; }
    int32_t FindItemData(int32_t) const override { return -1; }
    int32_t NewIndex() const override { return newIndex_; }
    bool Sorted() const override { return false; }

private:
    Row& At(int32_t index) {
        if (index < 0 || index >= static_cast<int32_t>(Items.size())) throw failures::SubscriptOutOfRange();
        return Items[static_cast<size_t>(index)];
    }
    const Row& Readable(int32_t index) const {
        if (Unreadable.contains(index)) throw failures::InvalidCall();
        return Items[static_cast<size_t>(index)];
    }

    int32_t newIndex_ = -1;
};

}  // namespace vorlane::plain
