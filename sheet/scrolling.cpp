// Scrolling over the pool: one step copies the looks of the slides by a row and reads only the new row; a longer way
// binds all slides anew. A bar value is the list index that slide 0 should show.
#include "platform/hourglass.h"
#include "platform/numbers.h"
#include "sheet/vorlane.h"

#include <cstdlib>
#include <utility>

namespace vorlane {

namespace {

// Sets a flag while it lives.
class Within {
public:
    explicit Within(bool& flag) : flag_(flag), before_(std::exchange(flag, true)) {}
    ~Within() { flag_ = before_; }
    Within(const Within&) = delete;
    Within& operator=(const Within&) = delete;

private:
    bool& flag_;
    bool before_;
};

}  // namespace

// The last value shows the list's end in the rows that fit, with the extra row empty. After a failure the bar stays
// dead until this succeeds.
void Vorlane::InitVScroll(bool reset) {
    const auto init = [&] {
        bar_.InVScrollInit = true;
        if (reset) {
            VScroll.SetValue(0);
            bar_.ScrollValue = -1;
        }
        const int32_t row = RowLength();
        const int32_t count = ListCount();
        VScroll.SetSmallChange(row);
        VScroll.SetLargeChange(CountDiapo() - row);
        VScroll.SetMax(ToInt32(Max(VScroll.Min(), int64_t{row} + count - CountDiapo())));
        VScroll.SetVisible(count > CountDiapo() - row);
        bar_.InVScrollInit = false;
    };
    GuardVoid(init, "InitVScroll", reset);
}

void Vorlane::BarChanged(int32_t value) {
    const auto change = [&] {
        if (bar_.InVScrollInit) return;
        // Half a fill is nothing to copy looks from.
        const bool jump = std::exchange(bar_.JumpNext, false) || bar_.Changing || pass_.Running > 0;
        const Within changing(bar_.Changing);
        if (!jump && value == bar_.ScrollValue) return;
        const int64_t distance = int64_t{value} - bar_.ScrollValue;
        MoveCurrentSlot(distance);
        const bool step = !jump && std::abs(distance) <= VScroll.SmallChange();
        const bool back = distance <= 0;
        if (step) {
            UnloadSurplus();  // a step reads on behind the last slide, which has to be one of the grid
            if (back ? First().Value() == 0 : AtListEnd()) return;
        }
        const bool complete = step && IsWholeRow(distance) ? Scroll(back ? 1 : 0) : Jump(value);
        const float token = pass_.LectToken;
        bar_.JumpNext = true;  // should the host fail
        Events.Scroll(value, bar_.ScrollValue);
        const bool newest = token == pass_.LectToken;  // a handler has shown nothing else meanwhile
        if (!newest) return;
        bar_.JumpNext = !complete;
        if (complete) bar_.ScrollValue = value;
    };
    GuardVoid(change, "VScroll_Change", value);
}

// The current slide moves with the list; outside the pool it drops off, and where there is none, none comes.
void Vorlane::MoveCurrentSlot(int64_t distance) {
    const int16_t current = CurrentDiapo();
    const int64_t slot = current - distance;
    const bool stays = current >= 0 && slot >= 0 && slot < CountDiapo();
    selection_.CurrentSlot = stays ? ToInt16(slot) : int16_t{-1};
}

// Whether copied looks come to stand on the right slides: the slides stand where the bar stood, and move by one row. On
// the way forward none is missing either, as it is while a larger pool waits for its layout.
bool Vorlane::IsWholeRow(int64_t distance) const {
    const int32_t next = Last()->Value() + 1;
    const bool whole = next > 0 && (Diapo.UpperBound() + 1 >= CountDiapo() || next == ListCount());
    return std::abs(distance) == RowLength() && First().Value() == bar_.ScrollValue && (distance < 0 || whole);
}

// Shows what the bar stands for, where a layout has left the slides behind it.
void Vorlane::FollowBar() {
    const int32_t shown = First().Value();
    if (!pass_.Unfinished && (shown < 0 || shown == VScroll.Value())) return;
    if (StartLect(VScroll.Value(), -1, -1)) bar_.ScrollValue = VScroll.Value();
}

bool Vorlane::Jump(int32_t value) {
    const int16_t current = CurrentDiapo();
    if (current > -1) Diapo.Item(current)->SetBackColorSelectedChange(selection_.SelectedColor);
    return StartLect(value, -1, -1);
}

// Whether the last slide fits and stands for the place behind the list's last item.
bool Vorlane::AtListEnd() const {
    const auto last = Last();
    const bool fits = bar_.ScrollDirection == ScrollDirectionType::sdVertical
                          ? grid_.Area.AreaHeight - First().Height() >= last->Top() + last->Height()
                          : grid_.Area.AreaWidth - First().Width() >= last->Left() + last->Width();
    return fits && ListCount() == last->Value();
}

bool Vorlane::Scroll(int16_t up) {
    return Guard(
        false, [&] { return up == 0 ? ScrollForward() : ScrollBack(); }, "Scroll", up);
}

bool Vorlane::ScrollForward() {
    if (AtListEnd()) return false;
    const int16_t row = RowLength();
    const int32_t next = Last()->Value() + 1;
    if (RowCount() > 1) {
        const Hourglass hourglass(Desktop().screen);
        const auto copies = ToInt16(Max(Diapo.Count() - 1 - row, 0));
        for (int16_t k = 0; k <= copies; ++k) CopyDiapo(ToInt16(k + row), k);
        const int32_t end = Diapo.Count();
        const bool nothingLeft = ListCount() == next;
        for (int32_t k = end - row; k < end; ++k) nothingLeft ? UnloadDiapo(k) : ResetDiapo(k);
        if (nothingLeft) return true;
    }
    return StartLect(next, ToInt16((RowCount() - 1) * row), row);
}

bool Vorlane::ScrollBack() {
    const int16_t row = RowLength();
    const auto start = ToInt32(Max(First().Value() - row, 0));
    if (RowCount() >= 2) {
        const Hourglass hourglass(Desktop().screen);
        const int32_t fills = pass_.Fills;
        const bool stands = Diapo.Count() >= row * RowCount() || AddBlankRow();
        if (!stands) return fills == pass_.Fills && StartLect(start, -1, -1);
        for (auto k = ToInt16(Diapo.Count() - 1 - row); k >= 0; --k) {
            CopyDiapo(k, ToInt16(k + row));
            Diapo.Item(k + row)->SetVisible(true);
        }
        for (int32_t k = 0; k < row; ++k) ResetDiapo(k);
    }
    return StartLect(start, 0, row);
}

}  // namespace vorlane
