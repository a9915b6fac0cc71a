// The mouse on a slide: what a press, a move and a release do to the selection and to the current slide, and when a
// drag starts. A failure leaves its part of the work undone, silently; the host's event is raised in any case.
#include "platform/numbers.h"
#include "platform/scale.h"
#include "platform/withinblock.h"
#include "sheet/slidemember.h"
#include "sheet/vorlane.h"
#include "windows/frmdrag.h"

#include <algorithm>
#include <cmath>

namespace vorlane {

namespace {

constexpr int16_t kLeft = 1;  // buttons, and their virtual codes
constexpr int16_t kRight = 2;
constexpr int32_t kShiftKey = 16;
constexpr int32_t kCtrlKey = 17;

constexpr float kDragWay = 50;  // twips on both axes together

}  // namespace

void Vorlane::ConnectSlideMouse(const sheet::SlideMember& member) {
    const auto hear = [&](auto& event, auto handle) {
        sheet::Hear(event, member,
                    [this, handle, index = member.Index](auto&... args) { (this->*handle)(index, args...); });
    };
    hear(member.Slide.Events.MouseDown, &Vorlane::SlideMouseDown);
    hear(member.Slide.Events.MouseMove, &Vorlane::SlideMouseMove);
    hear(member.Slide.Events.MouseUp, &Vorlane::SlideMouseUp);
    const auto forward = [&](auto& event, auto& raised) {
        sheet::Hear(event, member, [&raised, member](int16_t button) {
            raised(member.Index, member.Slide.Picture(), member.Slide.ImageFullPath(), button);
        });
    };
    forward(member.Slide.Events.Click, Events.Click);
    forward(member.Slide.Events.DblClick, Events.DblClick);
    sheet::Hear(member.Slide.Events.KeyDown, member, [this](int16_t& code, int16_t shift) { KeyDown(code, shift); });
    sheet::Hear(member.Slide.Events.KeyPress, member, [this](int16_t& ascii) { KeyPress(ascii); });
    sheet::Hear(member.Slide.Events.KeyUp, member, [this](int16_t& code, int16_t shift) { KeyUp(code, shift); });
}

bool Vorlane::CtrlDown() const {
    return Desktop().keyboard.KeyIsDown(kCtrlKey);
}

bool Vorlane::ShiftDown() const {
    return Desktop().keyboard.KeyIsDown(kShiftKey);
}

// Tells the host of the mouse at a point of a slide, in twips.
void Vorlane::RaiseFrom(const eDiapoLight& slide, const MouseEvent& event, int16_t button, int16_t shift, float x,
                        float y) {
    const float left = slide.Left() + Rescale(x, ScaleMode::Twips, ScaleMode::Pixels);
    const float top = slide.Top() + Rescale(y, ScaleMode::Twips, ScaleMode::Pixels);
    event(button, shift, ToContainer(left), ToContainer(top));
}

// --- Press ---

void Vorlane::SlideMouseDown(int16_t index, int16_t button, int16_t shift, float x, float y) {
    Attempt([&] { DropEdit(); });
    if (mouse_.InMouseDown) return;
    const WithinBlock busy(mouse_.InMouseDown);
    const auto slide = Diapo.Item(index);
    Attempt([&] { PressOn(index, button, x, y); });
    Desktop().clock.DoEvents();
    Attempt([&] { RaiseFrom(*slide, Events.MouseDown, button, shift, x, y); });
    DisarmUnlessHeld();
}

// A press on a selected slide without a key leaves the selection: with the right button altogether, with the left one
// that slide becomes current.
void Vorlane::PressOn(int16_t index, int16_t button, float x, float y) {
    const auto slide = Diapo.Item(index);
    mouse_.KeptSelection = false;
    if (slide->Value() < 0) return;  // no item to select
    const bool ranges = ShiftDown() && selection_.SelectionMultiple;
    const bool plain = slide->Selected() && !CtrlDown() && !ranges;
    if (plain && (button == kRight || (button == kLeft && !internalDrag_))) {
        mouse_.KeptSelection = true;
        if (button == kRight) return;
        TakeMarkFromOthers(index);
        Select(*slide, selection_.BackColorCurrent, true);
        SetCurrent(index);
        return Arm(x, y);
    }
    if (ranges) {
        SelectRange(index);
    } else {
        LeaveOthers(index);
        Toggle(index);
    }
    if (button == kLeft && Diapo.Item(index)->Selected()) Arm(x, y);
}

// From the item that was toggled last to that of the slide. What is selected outside the range stays so.
void Vorlane::SelectRange(int16_t index) {
    TakeMarkFromOthers(index);
    SetCurrent(index);
    const auto [first, last] = std::minmax(selection_.AnchorListIndex, selection_.CurrentListIndex);
    const int64_t end = Min(last, ListCount() - 1);
    for (int32_t i = first; i <= end; ++i) SelectItem(i, true);
    ForEachSlide([this, from = first, to = last](eDiapoLight& slide) {
        if (slide.Value() >= from && slide.Value() <= to) Select(slide, GroundOf(slide.Value()), true);
    });
}

// A plain press, or any where only one slide may be selected, starts from an empty selection.
void Vorlane::LeaveOthers(int16_t index) {
    const bool adds = CtrlDown() || Diapo.Item(index)->Selected();
    if (adds && selection_.SelectionMultiple) return;
    const int32_t count = SelectedItems();
    if (count > 1) {
        SelectedClear();
    } else if (count == 1) {
        LeaveOnlySelected(index);
    }
    if (count > 0) selection_.CurrentListIndex = -1;
}

// The one selected item goes, and the slide that shows it with it, unless that is the pressed one: it is toggled.
void Vorlane::LeaveOnlySelected(int16_t index) {
    const std::vector<int32_t> items = SelectedTableau();
    if (items.empty()) return;
    SelectItem(items.front(), false);
    const int16_t slot = SlotFromListIndex(items.front());
    if (slot > -1 && slot != index) Select(*Diapo.Item(slot), selection_.SelectedColor, false);
}

void Vorlane::Toggle(int16_t index) {
    const auto slide = Diapo.Item(index);
    if (slide->Value() < 0) return;  // its item has gone at a yield
    const bool selected = !slide->Selected();
    TakeMarkFromOthers(index);
    Select(*slide, selected ? selection_.BackColorCurrent : selection_.SelectedColor, selected);
    SetCurrent(selected ? index : int16_t{-1});
    SelectItem(slide->Value(), selected);
    selection_.AnchorListIndex = slide->Value();
}

// --- Move ---

void Vorlane::SlideMouseMove(int16_t index, int16_t button, int16_t shift, float x, float y) {
    if (mouse_.InMouseDown) return;
    const auto slide = Diapo.Item(index);
    DisarmUnlessHeld();
    Attempt([&] { HoverOn(index); });
    UpdateBand(slide->Left() + x, slide->Top() + y, false);  // the slide's twips, taken for pixels as they are
    if (StartsDrag(x, y)) Attempt([&] { StartDrag(*slide, x, y); });
    Attempt([&] { RaiseFrom(*slide, Events.MouseMove, button, shift, x, y); });
}

void Vorlane::HoverOn(int16_t index) {
    if (mouse_.HoverSlot == index) return;
    if (mouse_.HoverSlot != -1) Attempt([&] { Events.MouseExit(mouse_.HoverSlot); });
    Attempt([&] { Events.MouseEnter(index); });
    mouse_.HoverSlot = index;
}

void Vorlane::Arm(float x, float y) {
    if (oleDragMode_ != kAutomaticDrag || internalDrag_) return;
    mouse_.DragArmed = true;
    mouse_.DownX = ToInt32(x);
    mouse_.DownY = ToInt32(y);
}

// A release that came in while the press was being handled, or on a slide that has gone since, was not heard.
void Vorlane::DisarmUnlessHeld() {
    if (!Desktop().keyboard.KeyIsDown(kLeft)) mouse_.DragArmed = false;
}

bool Vorlane::StartsDrag(float x, float y) const {
    if (!mouse_.DragArmed || internalDrag_ || oleDragMode_ != kAutomaticDrag) return false;
    if (CtrlDown() || ShiftDown()) return false;
    const float way = std::abs(static_cast<float>(mouse_.DownX) - x) + std::abs(static_cast<float>(mouse_.DownY) - y);
    return way > kDragWay;
}

// The ghost wants to know where in the slide the pointer is, and on which side the insertion mark starts.
void Vorlane::StartDrag(eDiapoLight& slide, float x, float y) {
    FrmDrag& ghost = SharedFrmDrag(Desktop());
    ghost.StartRightPart = x <= static_cast<float>(mouse_.DownX);
    ghost.HotX = ToInt32(Rescale(x, ScaleMode::Twips, ScaleMode::Pixels));
    ghost.HotY = ToInt32(Rescale(y, ScaleMode::Twips, ScaleMode::Pixels));
    if (oleDropMode_ == kAutomaticDrop) internalDrag_ = true;
    slide.OLEDrag();
}

// --- Release ---

void Vorlane::SlideMouseUp(int16_t index, int16_t button, int16_t shift, float x, float y) {
    if (mouse_.InMouseDown) return;
    const auto slide = Diapo.Item(index);
    mouse_.DragArmed = false;
    internalDrag_ = false;
    Attempt([&] {
        mouse_.DownX = ToInt32(x);
        mouse_.DownY = ToInt32(y);
    });
    Attempt([&] { ReleaseOn(index); });
    Attempt([&] { RaiseFrom(*slide, Events.MouseUp, button, shift, x, y); });
}

// A release without Ctrl away from what the press selected drops that again. Where the press left the selection, so
// does the release.
void Vorlane::ReleaseOn(int16_t index) {
    if (CtrlDown()) return;
    const auto slide = Diapo.Item(index);
    const int16_t current = selection_.CurrentSlot;
    if (SelectedItems() != 1 || current < 0) {
        if (!slide->Selected()) SelectedClear();
        return;
    }
    const bool elsewhere = slide->Value() != selection_.AnchorListIndex && !mouse_.KeptSelection;
    if (slide->Selected() && !elsewhere) return;
    const auto dropped = Diapo.Item(current);
    dropped->SetSelected(false);
    SelectItem(dropped->Value(), false);
}

}  // namespace vorlane
