// The list interfaces that the sheet stands on. A host may bind a list of its own; the library's implementations are
// MemoryListBox and FileListBox. Indices count from 0. Where nothing else is said, an index outside the list fails
// with SubscriptOutOfRange().
#pragma once

#include "platform/desktop.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vorlane {

class ListBox;
class FileListBox;

// What every list has: texts, a current item and a selection.
class ListControl {
public:
    virtual ~ListControl() = default;

    virtual int32_t ListCount() const = 0;
    virtual std::string List(int32_t index) const = 0;
    // -1 for none. Setting an index outside -1 to ListCount() - 1 fails with InvalidProperty().
    virtual int32_t ListIndex() const = 0;
    virtual void SetListIndex(int32_t index) = 0;
    virtual bool Selected(int32_t index) const = 0;
    virtual void SetSelected(int32_t index, bool selected) = 0;
    // Number of selected items.
    virtual int32_t SelCount() const = 0;
    // Indices of the selected items, ascending; false when the list can't tell.
    virtual bool SelItems(std::vector<int32_t>& indices) const = 0;
    // 0 when only one item can be selected.
    virtual int16_t MultiSelect() const = 0;
    // Identifies the list: two lists are the same one when their handles are equal.
    virtual vorlane::Hwnd Hwnd() const = 0;

    // This list as the kind that it is; nullptr when it is the other.
    virtual ListBox* AsListBox() = 0;
    virtual FileListBox* AsFileListBox() = 0;
};

// A list of texts, each with a 32-bit number of the host's (its key).
class ListBox : public ListControl {
public:
    // Appends, or inserts in front of index (0 to ListCount()). A list with Sorted() finds the place itself.
    virtual void AddItem(std::string_view text) = 0;
    virtual void AddItem(std::string_view text, int32_t index) = 0;
    virtual void RemoveItem(int32_t index) = 0;
    virtual void Clear() = 0;
    virtual void SetList(int32_t index, std::string_view text) = 0;
    virtual int32_t ItemData(int32_t index) const = 0;
    virtual void SetItemData(int32_t index, int32_t data) = 0;
    // First index whose ItemData is data, -1 for none.
    virtual int32_t FindItemData(int32_t data) const = 0;
    // Names what ItemData gives for all the items in their order: as long as this stays the same number, that stays the
    // same, and no two lists have the same one. 0 from a list that doesn't tell.
    virtual uint64_t DataState() const { return 0; }
    // Index of the item added last, -1 when there is none.
    virtual int32_t NewIndex() const = 0;
    // The list keeps itself in text order.
    virtual bool Sorted() const = 0;

    ListBox* AsListBox() final { return this; }
    FileListBox* AsFileListBox() final { return nullptr; }
};

}  // namespace vorlane
