// Removing items. The list loses them first; then the slides close up by copying looks, or are filled anew. A handler
// may work on the sheet at each event and at each yield of the shift: an item goes only while it stands where it was,
// and slides that were filled meanwhile are not shifted any further.
#include "platform/numbers.h"
#include "sheet/vorlane.h"

#include <algorithm>
#include <exception>
#include <functional>

namespace vorlane {

// An item that is about to go, and what tells whether it is still the one at its index.
struct Vorlane::Doomed {
    int32_t Index;
    size_t TextHash;

    static size_t HashAt(const ListBox& list, int32_t index) { return std::hash<std::string>{}(list.List(index)); }
    static Doomed At(const ListBox& list, int32_t index) { return {index, HashAt(list, index)}; }
};

// --- In the list ---

bool Vorlane::Stands(const ListBox& list, const Doomed& doomed) const {
    return items_.Liste == &list && doomed.Index < list.ListCount() &&
           Doomed::HashAt(list, doomed.Index) == doomed.TextHash;
}

// Slide 0 alone may be blank on a filled sheet, too, where a step back is to fill it.
bool Vorlane::ShowsItems() const {
    return First().Value() >= 0 || HasSlides();
}

// Whether slide 0 tells where the sheet stands, in the list as it is by now; else the bar does, as it was set.
bool Vorlane::SlidesLead() const {
    return pass_.Running == 0 && First().Value() >= 0;
}

// The list index that slide 0 shows, or is to show when the fill that is under way comes to its end.
int32_t Vorlane::TopItem() const {
    return SlidesLead() ? First().Value() : VScroll.Value();
}

// Announces an item, unless a drag only moves the selection, and takes it out. Gives whether it has gone.
bool Vorlane::TakeOut(ListBox& list, const Doomed& doomed, int16_t index) {
    if (!Stands(list, doomed)) return false;
    const bool moves = index < 0 && drag_.Moving;
    if (!moves) {
        int32_t key = list.ItemData(doomed.Index);
        Events.Removed(index, key);
        if (!Stands(list, doomed)) return false;
    }
    list.RemoveItem(doomed.Index);
    return true;
}

// From the last to the first, so that the indices stay right.
bool Vorlane::TakeOutAll(ListBox& list, const std::vector<int32_t>& items) {
    std::vector<Doomed> doomed;
    doomed.reserve(items.size());
    for (const int32_t item : items) doomed.push_back(Doomed::At(list, item));
    const auto total = static_cast<int32_t>(items.size());
    for (int32_t done = 1; done <= total; ++done) {
        const Doomed& next = doomed[static_cast<size_t>(total - done)];
        if (!TakeOut(list, next, -1)) return false;
        Renumber(next.Index, -1);
        Events.TraitementFeedBack(done, total);
    }
    return true;
}

// --- One slide's item ---

void Vorlane::Remove(int16_t index) {
    const auto remove = [&] {
        ListBox* list = Bound().AsListBox();
        if (list == nullptr || index >= Diapo.Count() || index >= list->ListCount()) return;
        const int32_t item = Diapo.Item(index)->Value();
        if (!TakeOut(*list, Doomed::At(*list, item), index)) return;
        UnloadSurplus();  // the last slide has to be one of the grid
        const bool closes = Diapo.Loaded(index) && Diapo.Item(index)->Value() == item;
        const int32_t next = Last()->Value() + 1;
        Renumber(item, item);
        if (closes && pass_.Running == 0 && CloseUp(index)) {
            RefillEnd(next);
        } else if (ShowsItems()) {
            FillFrom(ToInt32(Min(VScroll.Value(), ListCount() - 1)));
        }
        ShowSelection();  // a yield may have changed it
        Events.TLRefresh();
    };
    GuardVoid(remove, "Remove", index);
}

// The slides behind a removed item tell its new place at once, and its own slide another value, so that a handler finds
// none that names another item.
void Vorlane::Renumber(int32_t removed, int32_t ofItsSlide) {
    ForEachSlide([=](eDiapoLight& slide) {
        if (slide.Value() == removed) {
            slide.SetValue(ofItsSlide);
        } else if (slide.Value() > removed) {
            slide.SetValue(slide.Value() - 1);
        }
    });
}

// Moves the looks behind a slide up by one, with a yield after each; the last look then stands twice. Gives false when
// the slides or the number of items have changed at a yield.
bool Vorlane::CloseUp(int16_t index) {
    const int32_t slides = Diapo.Count();
    const int32_t items = ListCount();
    for (int16_t k = index; k < slides - 1; ++k) {
        const auto behind = ToInt16(k + 1);
        CopyDiapo(behind, k);
        const int32_t shown = Diapo.Item(k)->Value();
        Desktop().clock.DoEvents();
        const bool stands =
            Diapo.Count() == slides && Diapo.Item(k)->Value() == shown && Diapo.Item(behind)->Value() == shown;
        if (!stands || ListCount() != items) return false;
    }
    return true;
}

// The last slide takes the item at next, or the one before where the list ends there, or goes where there is none. A
// row that is free then is filled from before the first slide, and a list that fits the pool is shown whole.
void Vorlane::RefillEnd(int32_t next) {
    const int32_t slides = Diapo.Count();
    const int32_t items = ListCount();
    const bool fits = items <= CountDiapo();
    const bool lastRow = slides - 1 > (grid_.CountDiapoY - 1) * grid_.CountDiapoX;
    const bool blank = Last()->Value() < 0;
    if (lastRow && next <= items && !fits && !blank) {
        StartLect(ToInt32(Min(next, items - 1)), ToInt16(slides - 1), 1);
    } else if (slides > 1 || items == 0) {
        UnloadDiapo(slides - 1);
    }
    InitVScroll(false);
    if (slides == 1 && items > 0) return FillFrom(ToInt32(Max(First().Value() - RowLength(), 0)));
    if (!lastRow && items > slides) return PullRow();
    const bool hides = Last()->Value() < items - 1 || (First().Value() > 0 && !VScroll.Visible());
    if (fits && hides) FillFrom(First().Value());
}

// Where less than a row is left before the first slide, the sheet starts from the top.
void Vorlane::PullRow() {
    if (First().Value() < RowLength()) return FillFrom(0);
    if (Scroll(1)) AlignBar();
}

// Brings the bar to what slide 0 shows; the slides stand right already.
void Vorlane::AlignBar() {
    bar_.ScrollValue = ToInt32(Min(Max(First().Value(), VScroll.Min()), VScroll.Max()));
    VScroll.SetValue(bar_.ScrollValue);
}

// --- The selected items ---

int16_t Vorlane::FirstSelected() const {
    const int16_t slot = FindSlide([](const eDiapoLight& slide) { return slide.Selected(); });
    return slot < 0 ? int16_t{0} : slot;
}

void Vorlane::RemoveAllSelected() {
    const auto remove = [&] {
        ListBox* list = Bound().AsListBox();
        if (list == nullptr || list->SelCount() < 1) return;
        const int16_t slot = FirstSelected();
        const View before{TopItem(), slot, Diapo.Item(slot)->Value()};
        const bool filled = ShowsItems();
        std::vector<int32_t> items;
        if (!list->SelItems(items)) items.clear();
        const int32_t fills = pass_.Fills;
        const int64_t left = int64_t{list->ListCount()} - static_cast<int64_t>(items.size());
        bool complete = false;
        std::exception_ptr failed;
        try {
            complete = TakeOutAll(*list, items);
        } catch (...) {
            failed = std::current_exception();
        }
        if (!drag_.Moving) {  // else the drop shows the list
            InitVScroll(false);
            const bool cleared = filled && !ShowsItems();
            const bool undisturbed = complete && fills == pass_.Fills && ListCount() == left;
            if (!cleared) ShowRest(before, items, undisturbed);
        }
        if (failed) std::rethrow_exception(failed);
        if (!drag_.Moving) Events.TLRefresh();
    };
    GuardVoid(remove, "RemoveAllSelected");
}

// Fills from the first selected slide on where nothing has gone before it; else all slides, from the first item that
// has gone (start) where that is at slide 0 or nowhere to be seen, else from the item that slide 0 shows. Handlers that
// have changed the slides leave them where they then stand.
void Vorlane::ShowRest(const View& before, const std::vector<int32_t>& removed, bool undisturbed) {
    const int32_t start = removed.empty() ? 0 : removed.front();
    const int32_t lastFull = ListCount() - CountDiapo();
    const bool still = undisturbed && pass_.Running == 0;
    const bool inPlace = still && before.Slot > 0 && before.SlotItem == start && before.Top <= VScroll.Max();
    if (inPlace && lastFull > 0) {
        StartLect(start, before.Slot, -1);
        return;
    }
    int32_t wanted = TopItem();
    if (still && before.Slot == 0) {
        wanted = start;
    } else if (undisturbed && !SlidesLead()) {
        wanted -= static_cast<int32_t>(std::lower_bound(removed.begin(), removed.end(), wanted) - removed.begin());
    }
    if (StartLect(ToInt32(Max(Min(wanted, lastFull), 0)), -1, -1)) AlignBar();
}

}  // namespace vorlane
