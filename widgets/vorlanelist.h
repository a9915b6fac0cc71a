// VorlaneList: the list behind a sheet, in Qt's types, for hosts that work on items without a slide. What changes here
// comes to the slides with the next StartLecture. It is a view, good as long as its sheet has that list.
//
// An index outside the list gives an empty text, 0 or false, and changes nothing.
#pragma once

#include <vector>

#include <QString>

namespace vorlane {

class ListBox;
class ListControl;

class VorlaneList {
public:
    // list may be null: an empty one then.
    explicit VorlaneList(ListControl* list) : list_(list) {}

    int ListCount() const;
    // An item's whole text: sort data, SepSortWithData, full file name.
    QString List(int index) const;
    bool Selected(int index) const;
    void SetSelected(int index, bool selected);
    // Ascending.
    std::vector<int> SelItems() const;

    // --- Of lists that can be changed; without effect on a list of files ---
    // At the end, or in front of index. False when the list doesn't take it.
    bool AddItem(const QString& text, int key, int index = -1);
    // Key and selection stay.
    void SetList(int index, const QString& text);
    void RemoveItem(int index);
    void Clear();
    int ItemData(int index) const;

private:
    ListBox* Changeable() const;

    ListControl* list_;
};

}  // namespace vorlane
