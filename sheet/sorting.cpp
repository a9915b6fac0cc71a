// Sorting the list, with the selected item kept on its slide.
#include "platform/numbers.h"
#include "sheet/listsort.h"
#include "sheet/vorlane.h"

namespace vorlane {

namespace {

constexpr std::string_view kListSorts = "La propriété de la liste ne doit pas être Sorted";

}  // namespace

void Vorlane::Sort(uint8_t argIndice) {
    const auto sort = [&] {
        if (!sort_.Sorted) return;
        const uint8_t wanted = argIndice != 0 ? argIndice : sort_.SortCurrent;
        sort_.SortCurrent = wanted != 0 ? wanted : uint8_t{1};
        int32_t anchor = -1;
        const int16_t slot = SortInt(sort_.SortCurrent, anchor);
        if (slot >= 0) {
            FillFrom(ToInt32(Max(anchor - slot, 0)));
        } else {
            StartLecture();
        }
        Events.Sorted();
    };
    GuardVoid(sort, "Sort", argIndice);
}

// Sorts the list alone. Gives the slide that shows the anchor, -1 for none; anchor is the list index of its item,
// before and after, unless it named an item already. Where nothing is to be sorted it gives 0.
int16_t Vorlane::SortInt(uint8_t criterion, int32_t& anchor) {
    const auto sort = [&]() -> int16_t {
        if (!sort_.Sorted) return 0;
        ListBox* list = Bound().AsListBox();
        if (list == nullptr) return 0;
        if (list != &LstInterne && list->Sorted()) {
            Warn(kListSorts);
            return 0;
        }
        if (sort_.SortedSens == SortSensType::ssNone) return 0;
        const int16_t slot = AnchorSlot();
        if (anchor < 0) anchor = slot < 0 ? -1 : Diapo.Item(slot)->Value();
        SortList(*list, sort_.SortedSens == SortSensType::ssAscending, criterion, SepSortWithData(), anchor);
        return slot;
    };
    return Guard(int16_t{0}, sort, "SortInt", criterion, anchor);
}

// The selected slide that stays where it is: the first one in a descending sort, else the last one; -1 for none.
int16_t Vorlane::AnchorSlot() const {
    const int16_t slides = ToInt16(Diapo.Count());
    const bool fromTop = sort_.SortedSens == SortSensType::ssDescending;
    for (int16_t n = 0; n < slides; ++n) {
        const int16_t slot = fromTop ? n : ToInt16(slides - 1 - n);
        if (Diapo.Item(slot)->Selected()) return slot;
    }
    return -1;
}

}  // namespace vorlane
