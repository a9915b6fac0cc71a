// Album: the photos of a host, as the list behind a sheet.
#pragma once

#include "platform/failure.h"
#include "platform/listbox.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

struct Photo {
    std::string File;
    int32_t Key = 0;
    bool Selected = false;
};

class Album final : public vorlane::ListBox {
public:
    std::vector<Photo> Photos;

    // An item's text: sort data, of which this album has none, a tabulator, the full name of the file.
    std::string List(int32_t index) const override { return "\t" + At(index).File; }
    void SetList(int32_t index, std::string_view text) override { At(index).File = FileOf(text); }
    int32_t ItemData(int32_t index) const override { return At(index).Key; }
    void SetItemData(int32_t index, int32_t key) override { At(index).Key = key; }
    int32_t FindItemData(int32_t key) const override {
        const auto found = std::find_if(Photos.begin(), Photos.end(), [=](const Photo& p) { return p.Key == key; });
        return found == Photos.end() ? -1 : static_cast<int32_t>(found - Photos.begin());
    }

    int32_t ListCount() const override { return static_cast<int32_t>(Photos.size()); }
    void AddItem(std::string_view text) override { AddItem(text, ListCount()); }
    void AddItem(std::string_view text, int32_t index) override {
        Photos.insert(Photos.begin() + index, Photo{FileOf(text)});
        newIndex_ = index;
    }
    void RemoveItem(int32_t index) override { Photos.erase(Photos.begin() + index); }
    void Clear() override { Photos.clear(); }
    int32_t NewIndex() const override { return newIndex_; }
    bool Sorted() const override { return false; }

    bool Selected(int32_t index) const override { return At(index).Selected; }
    void SetSelected(int32_t index, bool selected) override { At(index).Selected = selected; }
    int32_t SelCount() const override {
        return static_cast<int32_t>(std::count_if(Photos.begin(), Photos.end(), [](auto& p) { return p.Selected; }));
    }
    bool SelItems(std::vector<int32_t>& indices) const override {
        indices.clear();
        for (int32_t i = 0; i < ListCount(); ++i) {
            if (At(i).Selected) indices.push_back(i);
        }
        return true;
    }
    int16_t MultiSelect() const override { return 2; }
    int32_t ListIndex() const override { return listIndex_; }
    void SetListIndex(int32_t index) override { listIndex_ = index; }

    // Any number that no other list of the program has.
    vorlane::Hwnd Hwnd() const override { return -1; }

private:
    static std::string FileOf(std::string_view text) { return std::string(text.substr(text.find('\t') + 1)); }

    // The sheet counts on this failure for an index that is not there.
    const Photo& At(int32_t index) const {
        if (index < 0 || index >= ListCount()) throw vorlane::failures::SubscriptOutOfRange();
        return Photos[static_cast<size_t>(index)];
    }
    Photo& At(int32_t index) { return const_cast<Photo&>(std::as_const(*this).At(index)); }

    int32_t newIndex_ = -1;
    int32_t listIndex_ = -1;
};
