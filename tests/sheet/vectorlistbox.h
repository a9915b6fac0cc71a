// VectorListBox: a list of a host's own, as plain as can be. It counts how many of its texts were read.
#pragma once

#include "platform/failure.h"
#include "platform/listbox.h"

#include <string>
#include <vector>

namespace vorlane {

class VectorListBox final : public ListBox {
public:
    explicit VectorListBox(vorlane::Hwnd handle, int16_t multiSelect = 2)
        : handle_(handle), multiSelect_(multiSelect) {}

    int32_t ListCount() const override { return static_cast<int32_t>(items_.size()); }
    std::string List(int32_t index) const override {
        ++reads;
        return At(index).text;
    }
    int32_t ListIndex() const override { return listIndex_; }
    void SetListIndex(int32_t index) override {
        if (index < -1 || index >= ListCount()) throw failures::InvalidProperty();
        listIndex_ = index;
    }
    bool Selected(int32_t index) const override { return At(index).selected; }
    void SetSelected(int32_t index, bool selected) override { At(index).selected = selected; }
    int32_t SelCount() const override {
        int32_t count = 0;
        for (const Item& item : items_) count += item.selected ? 1 : 0;
        return count;
    }
    bool SelItems(std::vector<int32_t>& indices) const override {
        indices.clear();
        if (mute) return false;
        for (int32_t i = 0; i < ListCount(); ++i) {
            if (At(i).selected) indices.push_back(i);
        }
        return true;
    }
    int16_t MultiSelect() const override { return multiSelect_; }
    vorlane::Hwnd Hwnd() const override { return handle_; }

    void AddItem(std::string_view text) override { AddItem(text, ListCount()); }
    void AddItem(std::string_view text, int32_t index) override {
        if (index < 0 || index > ListCount()) throw failures::SubscriptOutOfRange();
        items_.insert(items_.begin() + index, Item{std::string(text)});
        newIndex_ = index;
    }
    void RemoveItem(int32_t index) override {
        At(index);
        items_.erase(items_.begin() + index);
    }
    void Clear() override { items_.clear(); }
    void SetList(int32_t index, std::string_view text) override {
        At(index).text = text;
        if (failsBehindWrites) throw failures::InvalidCall();
    }
    int32_t ItemData(int32_t index) const override { return At(index).data; }
    void SetItemData(int32_t index, int32_t data) override { At(index).data = data; }
    int32_t FindItemData(int32_t data) const override {
        for (int32_t i = 0; i < ListCount(); ++i) {
            if (At(i).data == data) return i;
        }
        return -1;
    }
    int32_t NewIndex() const override { return newIndex_; }
    bool Sorted() const override {
        if (dead) throw failures::ObjectNotSet();
        return sorted;
    }

    mutable int32_t reads = 0;
    bool sorted = false;  // says that it keeps itself in order; it does not
    bool dead = false;    // can't tell whether it does
    bool mute = false;    // can't tell which items are selected
    bool failsBehindWrites = false;

private:
    struct Item {
        std::string text;
        int32_t data = 0;
        bool selected = false;
    };

    const Item& At(int32_t index) const {
        if (index < 0 || index >= ListCount()) throw failures::SubscriptOutOfRange();
        return items_[static_cast<size_t>(index)];
    }
    Item& At(int32_t index) {
        return const_cast<Item&>(static_cast<const VectorListBox*>(this)->At(index));  // NOLINT: the same look-up
    }

    vorlane::Hwnd handle_;
    int16_t multiSelect_;
    std::vector<Item> items_;
    int32_t listIndex_ = -1;
    int32_t newIndex_ = -1;
};

}  // namespace vorlane
