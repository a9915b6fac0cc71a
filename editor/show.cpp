#include "editor/show.h"

#include "widgets/vorlanewidget.h"

#include <algorithm>

namespace vorlane::editor {

GridView ViewOf(const VorlaneWidget& sheet) {
    const bool sideways = sheet.ScrollDirection() == ui::ScrollDirection::sdHorizontal;
    const int across = sideways ? sheet.CountDiapoY() : sheet.CountDiapoX();
    const int along = sideways ? sheet.CountDiapoX() : sheet.CountDiapoY();
    // The pool has a line more than is in sight.
    return {sheet.Liste().ListCount(), std::max(sheet.Value(0), 0), std::max(across, 1), std::max(along - 1, 1)};
}

Show::Show(VorlaneWidget& sheet, QObject* parent) : QObject(parent), sheet_(sheet) {
    undo_.setUndoLimit(200);
    SetOrderState(order_);
}

int Show::count() const {
    return sheet_.Liste().ListCount();
}

bool Show::reveal(int listIndex) {
    if (listIndex < 0 || listIndex >= count()) return false;
    const GridView view = ViewOf(sheet_);
    const int top = TopShowing(listIndex, view);
    if (top == view.top) return false;
    sheet_.StartLecture({}, sheet_.Key(std::min(top, count() - 1)));
    return true;
}

void Show::showAgain() {
    const int top = std::min(sheet_.Value(0), count() - 1);
    if (top > 0) {
        sheet_.StartLecture({}, sheet_.Key(top));
    } else {
        sheet_.StartLecture();
    }
}

// --- Without a way back ---

void Show::clear() {
    undo_.clear();
    nextKey_ = 0;
    busy_ = true;  // the sheet yields while it clears
    sheet_.Clear();
    busy_ = false;
}

void Show::append(const FolderItem& item) {
    sheet_.Add(item.path, item.sortData, nextKey_++);
}

void Show::orderAppended() {
    const bool nothingElse = undo_.count() == 0;
    if (!order_.Sorts() || (order_ == SortOrder{} && nothingElse)) return;
    const bool edited = isEdited();
    undo_.clear();  // its indices would no longer be true
    if (edited) undo_.resetClean();
    Order(order_);
}

void Show::setOrder(SortOrder order) {
    SetOrderState(order);
}

// --- Changes ---

std::vector<Show::Placed> Show::Selected() const {
    const VorlaneList list = sheet_.Liste();
    std::vector<Placed> selected;
    for (const int index : list.SelItems()) selected.push_back({index, list.ItemData(index), list.List(index)});
    return selected;
}

// Without a yield, which would let the user's next key into a change that is under way.
void Show::Unselect() {
    VorlaneList list = sheet_.Liste();
    if (sheet_.Value(0) >= 0) sheet_.SetSelected(0, false);  // leaves no slide current
    for (const int index : list.SelItems()) list.SetSelected(index, false);
}

// What comes is selected and in sight then.
void Show::Apply(const Change& change) {
    VorlaneList list = sheet_.Liste();
    Unselect();
    for (auto placed = change.out.rbegin(); placed != change.out.rend(); ++placed) list.RemoveItem(placed->index);
    for (const Placed& placed : change.in) {
        list.AddItem(placed.text, placed.key, placed.index);
        list.SetSelected(placed.index, true);
    }
    showAgain();
    reveal(change.in.empty() ? std::min(change.out.front().index, count() - 1) : change.in.front().index);
}

}  // namespace vorlane::editor
