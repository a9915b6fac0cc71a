// Drops: where the items go, moves, files and folders from outside, and showing the list anew.
#include "interaction/droptext.h"
#include "platform/dataobject.h"
#include "platform/draggedfile.h"
#include "platform/numbers.h"
#include "platform/trelmic6.h"
#include "platform/withinblock.h"
#include "sheet/itemtext.h"
#include "sheet/vorlane.h"

#include <algorithm>
#include <exception>

namespace vorlane {

namespace {

std::vector<DraggedFile> FilesOf(const DataObject& data) {
    std::vector<DraggedFile> files;
    if (data.GetFormat(kFormatFiles)) {
        for (const std::string& entry : data.Files()) files.push_back(ReadDraggedFile(entry));
    } else {
        for (std::string& path : DroppedPaths(data.Text())) files.push_back({std::move(path), -1});
    }
    return files;
}

}  // namespace

using sheet::DragEvent;

// --- Where ---

void Vorlane::DropOnGround(const DragEvent& drop) {
    if (oleDropMode_ != kAutomaticDrop) {
        CloseRow();
        if (!internalDrag_) RaiseDrop(drop);
        return;
    }
    float x = drop.X;
    float y = drop.Y;
    drag_.DropRightPart = false;
    drag_.DropSlot = GetDiapoFromCol(x, y, drag_.DropRightPart);
    DropOnSlide(drop);
}

void Vorlane::RaiseDrop(const DragEvent& drop) {
    Events.OLEDragDrop(drop.Data, drop.Effect, drop.Button, drop.Shift, ToContainer(drop.X), ToContainer(drop.Y));
}

// The list index in front of which items go, by the slide at the mark.
int32_t Vorlane::DropPlace() const {
    const bool blank = Diapo.Count() == 1 && !First().Visible();
    const int32_t slot = blank ? 0 : drag_.DropSlot + (drag_.DropRightPart ? 1 : 0);
    if (slot < 0) return 0;
    const int32_t place = slot < Diapo.Count() ? Diapo.Item(slot)->Value() : Last()->Value() + 1;
    return ToInt32(Max(place, 0));
}

// --- The drop ---

void Vorlane::DropOnSlide(const DragEvent& drop) {
    GuardVoid([&] { TakeDrop(drop); }, "Diapo_OLEDragDrop", drop.Effect, drop.Button, drop.Shift, drop.X, drop.Y);
}

void Vorlane::TakeDrop(const DragEvent& drop) {
    HideDrag();
    const bool own = internalDrag_;
    if (oleDropMode_ != kAutomaticDrop && !(oleDropMode_ == kManualDrop && own)) {
        if (!own) RaiseDrop(drop);
        return;
    }
    if (Bound().AsListBox() == nullptr) return Events.OLEDragError();
    const int32_t place = DropPlace();  // before the host is told: it may scroll then
    const bool offersFiles = drop.Data.GetFormat(kFormatFiles);
    if (offersFiles || drop.Data.GetFormat(kFormatText)) {
        bool cancel = false;
        const int32_t offered = offersFiles ? ToInt32(drop.Data.Files().size()) : DroppedLines(drop.Data.Text());
        Events.OLEBeforeDropStart(offered, cancel);
        if (cancel) return;
        ListBox* list = Bound().AsListBox();
        if (list == nullptr) return Events.OLEDragError();
        const bool moves = own && offersFiles && sort_.SortedSens == SortSensType::ssNone;
        const std::vector<DraggedFile> files = FilesOf(drop.Data);
        const int32_t added = moves ? MoveFiles(*list, files, place) : AddFiles(*list, files, place);
        if (!own) Events.AfterDropAdd(added);
    } else if (!own) {
        Events.AfterDropAdd(0);
    }
    drag_.DropSlot = 0;
    drag_.DropRightPart = false;
    RaiseDrop(drop);
    internalDrag_ = false;
}

// --- Moves ---

// The selected items go to the mark, with their keys, and stay selected. All of them come back, whatever has become of
// their files, and also where a handler fails meanwhile; that failure is the drop's in the end.
int32_t Vorlane::MoveFiles(ListBox& list, const std::vector<DraggedFile>& files, int32_t place) {
    const std::vector<int32_t> items = SelectedTableau();
    const std::vector<std::string> texts = MovedTexts(list, items, files);
    const int32_t top = First().Value();
    const auto before = [&](int32_t index) {
        return static_cast<int32_t>(std::lower_bound(items.begin(), items.end(), index) - items.begin());
    };
    const int32_t count = list.ListCount();
    selection_.CurrentSlot = -1;
    drag_.Moved = true;
    {
        const WithinBlock moving(drag_.Moving);
        RemoveAllSelected();
    }
    const auto gone = static_cast<size_t>(count - list.ListCount());
    const size_t first = files.size() == items.size() ? files.size() - gone : 0;
    std::exception_ptr failed;
    int32_t next = ToInt32(Max(0, place - before(place)));
    for (size_t i = first; i < files.size(); ++i) {
        try {
            Events.OLESortChanged();
        } catch (...) {
            if (!failed) failed = std::current_exception();
        }
        next = PutItem(list, texts[i], files[i].Key, next);
        list.SetSelected(next++, true);
    }
    ShowMoved(before(top));
    if (failed) std::rethrow_exception(failed);
    return static_cast<int32_t>(files.size() - first);
}

// A moved item keeps its text, and with it the sort data that the host gave it. Only an entry that is another file by
// now has new data.
std::vector<std::string> Vorlane::MovedTexts(const ListBox& list, const std::vector<int32_t>& items,
                                             const std::vector<DraggedFile>& files) const {
    std::vector<std::string> texts;
    texts.reserve(files.size());
    for (size_t i = 0; i < files.size(); ++i) {
        const bool same = files.size() == items.size() && ItemFullPath(items[i]) == files[i].Path;
        texts.push_back(same ? list.List(items[i]) : TextOf(files[i]));
    }
    return texts;
}

std::string Vorlane::TextOf(const DraggedFile& file) const {
    return ItemText(SortKey(file.Path, items_.StdSortArgs), file.Path);
}

// Puts an item into the list, in front of index or, with -1, where the list takes it; a key of -1 becomes its index. In
// a list that a handler has shortened it goes to the end. Gives its index.
int32_t Vorlane::PutItem(ListBox& list, const std::string& text, int32_t key, int32_t index) {
    index >= 0 ? list.AddItem(text, std::min(index, list.ListCount())) : list.AddItem(text);
    const int32_t at = list.NewIndex();
    list.SetItemData(at, key == -1 ? at : key);
    return at;
}

// Slide 0 shows the same item as before, unless it has moved itself.
void Vorlane::ShowMoved(int32_t movedAbove) {
    bar_.InVScrollInit = true;
    VScroll.SetValue(VScroll.Value() - movedAbove);
    bar_.InVScrollInit = false;
    ShowDropped();
}

// --- Files from outside ---

int32_t Vorlane::AddFiles(ListBox& list, const std::vector<DraggedFile>& files, int32_t place) {
    const bool sorts = sort_.SortedSens != SortSensType::ssNone;
    if (sorts) place = -1;
    const int32_t before = list.ListCount();
    int32_t added = 0;
    std::exception_ptr failed;
    try {
        for (const DraggedFile& file : files) {
            const bool isFile = Trelmic6::PathExists(file.Path, PathKind::File);
            const int32_t more =
                isFile ? AddFile(list, file, place) : AddFolder(file.Path, std::min(place, list.ListCount()));
            if (place >= 0) place += more;
            added += more;
        }
    } catch (...) {
        failed = std::current_exception();
    }
    // What has come in before a failure shows as well.
    if (added > 0 || list.ListCount() != before) sorts ? ShowSorted() : ShowDropped();
    if (failed) std::rethrow_exception(failed);
    return added;
}

// How many items it has become: one, or none where it fits no pattern or the host refuses it.
int32_t Vorlane::AddFile(ListBox& list, DraggedFile file, int32_t place) {
    if (!MatchesPattern(file.Path, items_.Pattern)) return 0;
    bool cancel = false;
    if (!internalDrag_) Events.OLENewFileAdded(file.Path, file.Key, cancel);
    if (cancel) return 0;
    if (place >= 0) Events.OLESortChanged();
    PutItem(list, TextOf(file), file.Key, place);
    return 1;
}

// --- Showing the list ---

void Vorlane::ShowDropped() {
    selection_.CurrentSlot = -1;
    selection_.CurrentListIndex = -1;
    InitVScroll(false);
    bar_.ScrollValue = VScroll.Value();
    StartLect(VScroll.Value(), -1, -1);
}

void Vorlane::ShowSorted() {
    InitVScroll(false);
    int32_t anchor = -1;
    SortInt(static_cast<uint8_t>(Max(sort_.SortCurrent, 1)), anchor);
    if (First().Value() >= 0) {
        StartLect(First().Value(), -1, -1);
    } else {
        StartLecture();
    }
    Events.Sorted();
}

}  // namespace vorlane
