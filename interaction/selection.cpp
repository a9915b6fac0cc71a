// The selection. The list holds that of all items, the slides show it, and the two are changed together: a slide that
// shows an item is selected when its item is. A selected slide stands on SelectedColor, the current one, of which there
// is one at most, on BackColorCurrent.
#include "platform/hourglass.h"
#include "platform/numbers.h"
#include "sheet/vorlane.h"

namespace vorlane {

// --- One slide, one item ---

// Gives a slide its selection and the ground to show it on.
void Vorlane::Select(eDiapoLight& slide, OLE_COLOR ground, bool selected) const {
    const bool recolours = selected && slide.Selected() && slide.BackColor() != ground;
    if (recolours) {
        slide.SetBackColorSelectedChange(ground);
    } else {
        slide.SetBackColorSelected(ground);
    }
    slide.SetSelected(selected);
}

// The ground of the slide that shows a selected item.
OLE_COLOR Vorlane::GroundOf(int32_t listIndex) const {
    const bool current = listIndex >= 0 && listIndex == selection_.CurrentListIndex;
    return current ? selection_.BackColorCurrent : selection_.SelectedColor;
}

void Vorlane::SelectItem(int32_t listIndex, bool selected) {
    Attempt([&] { Bound().SetSelected(listIndex, selected); });
}

// 0 where the list can't tell.
int32_t Vorlane::SelectedItems() const {
    int32_t count = 0;
    Attempt([&] { count = Bound().SelCount(); });
    return count;
}

// -1: none.
void Vorlane::SetCurrent(int16_t index) {
    selection_.CurrentSlot = index;
    selection_.CurrentListIndex = index < 0 ? -1 : Diapo.Item(index)->Value();
}

// Before a slide becomes current: whichever has the mark so far looks like any other selected slide.
void Vorlane::TakeMarkFromOthers(int16_t index) {
    for (int32_t k = 0; k < Diapo.Count(); ++k) {
        if (k == index || !Diapo.Loaded(k)) continue;
        const auto slide = Diapo.Item(k);
        const bool marked = k == selection_.CurrentSlot || slide->BackColor() == selection_.BackColorCurrent;
        if (slide->Selected() && marked) Select(*slide, selection_.SelectedColor, true);
    }
}

// --- All of them ---

// Sets the selection of each item to what wanted makes of it, and tells how far that is.
template <class Wanted>
void Vorlane::SelectItems(Wanted&& wanted) {
    for (int32_t i = 0; i < ListCount(); ++i) {
        const bool before = Bound().Selected(i);
        const bool after = wanted(before);
        if (after != before) Bound().SetSelected(i, after);
        Events.TraitementFeedBack(i + 1, ListCount());
    }
}

// The library's own list does in one go what nobody watches.
MemoryListBox* Vorlane::UnwatchedList() const {
    if (Events.TraitementFeedBack.connected()) return nullptr;
    return dynamic_cast<MemoryListBox*>(&Bound());
}

// What has come in at a yield may have left slides behind: they follow the list, and the mark follows the current item.
void Vorlane::ShowSelection() {
    ForEachSlide([this](eDiapoLight& slide) {
        if (slide.Value() < 0 || slide.Value() >= ListCount()) return;
        const bool selected = Bound().Selected(slide.Value());
        const bool marked = slide.BackColor() == selection_.BackColorCurrent;
        const bool current = slide.Value() == selection_.CurrentListIndex;
        const bool follows = slide.Selected() == selected && (!selected || marked == current);
        if (!follows) Select(slide, GroundOf(slide.Value()), selected);
    });
}

void Vorlane::SelectWhole(bool (*wanted)(bool selected), void (MemoryListBox::*atOnce)()) {
    ForEachSlide([&](eDiapoLight& slide) {
        Select(slide, selection_.SelectedColor, slide.Value() >= 0 && wanted(slide.Selected()));
    });
    SetCurrent(-1);
    Desktop().clock.DoEvents();
    const Hourglass hourglass(Desktop().screen);
    if (MemoryListBox* list = UnwatchedList()) {
        (list->*atOnce)();
    } else {
        SelectItems(wanted);
    }
    ShowSelection();
}

void Vorlane::SelectAll() {
    GuardVoid([&] { SelectWhole([](bool) { return true; }, &MemoryListBox::SelectAll); }, "SelectAll");
}

void Vorlane::SelectInvert() {
    const auto invert = [&] { SelectWhole([](bool selected) { return !selected; }, &MemoryListBox::InvertSelection); };
    GuardVoid(invert, "SelectInvert");
}

void Vorlane::SelectedClear(int16_t exceptedIndex) {
    const auto clear = [&] {
        for (int32_t k = 0; k < Diapo.Count(); ++k) {
            if (k == exceptedIndex) continue;
            const auto slide = Diapo.Item(k);
            if (exceptedIndex < 0) slide->SetBackColorSelected(selection_.SelectedColor);
            slide->SetSelected(false);
        }
        SetCurrent(-1);
        Desktop().clock.DoEvents();
        ClearItems(exceptedIndex);
        ShowSelection();
    };
    GuardVoid(clear, "SelectedClear", exceptedIndex);
}

// All items but that of the excepted slide.
void Vorlane::ClearItems(int16_t exceptedIndex) {
    const int32_t kept = Diapo.Loaded(exceptedIndex) ? Diapo.Item(exceptedIndex)->Value() : -1;
    if (MemoryListBox* list = UnwatchedList()) {
        const bool keeps = kept >= 0 && list->Selected(kept);
        list->ClearSelection();
        if (keeps) list->SetSelected(kept, true);
        return;
    }
    const std::vector<int32_t> items = SelectedTableau();
    const auto count = static_cast<int32_t>(items.size());
    for (int32_t j = 0; j < count; ++j) {
        const int32_t item = items[static_cast<size_t>(j)];
        if (item != kept) Bound().SetSelected(item, false);
        Events.TraitementFeedBack(j + 1, count);
    }
}

// --- What is selected ---

int32_t Vorlane::CountSelected() const {
    return Bound().SelCount();
}

std::vector<int32_t> Vorlane::SelectedTableau() const {
    std::vector<int32_t> items;
    if (Bound().SelCount() < 1 || !Bound().SelItems(items)) items.clear();
    return items;
}

int16_t Vorlane::CurrentDiapo() const {
    return FindSlide([this](const eDiapoLight& slide) { return slide.BackColor() == selection_.BackColorCurrent; });
}

void Vorlane::SetCurrentDiapo(int16_t index) {
    Attempt([&] {
        if (index < 0 || index >= Diapo.Count()) return;
        if (selection_.CurrentSlot > -1) SelectedClear();
        const auto slide = Diapo.Item(index);
        const float x = slide->Col() + 2;
        const float y = slide->Lig() + 2;
        SlideMouseDown(index, 1, 0, x, y);
        SlideMouseUp(index, 1, 0, x, y);
    });
}

void Vorlane::SetSelected(int16_t index, bool selected) {
    const auto slide = Diapo.Item(index);
    Bound().SetSelected(slide->Value(), selected);  // fails for a slide without an item, and nothing changes
    TakeMarkFromOthers(index);
    Select(*slide, selection_.BackColorCurrent, selected);
    SetCurrent(selected ? index : int16_t{-1});
}

}  // namespace vorlane
