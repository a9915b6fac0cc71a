// Drags that start on a slide, and what every drag has: the ghost, the timer, the end.
#include "interaction/droprow.h"
#include "platform/draggedfile.h"
#include "platform/numbers.h"
#include "platform/trelmic6.h"
#include "sheet/slidemember.h"
#include "sheet/vorlane.h"
#include "windows/frmdrag.h"

#include <utility>

namespace vorlane {

namespace {

constexpr int16_t kGroundCompletes = 2;  // of OLEDragMode

}  // namespace

// --- Connections ---

// Places of drags are told in pixels of the sheet from here on, whatever unit they came in.
void Vorlane::ConnectSlideDrags(const sheet::SlideMember& member) {
    DiapoEvents& events = member.Slide.Events;
    const auto inSheet = [member](float x, float y) {
        const ScaleMode scale = member.Slide.DragScale();
        return Box{member.Slide.Left() + Rescale(x, scale, ScaleMode::Pixels),
                   member.Slide.Top() + Rescale(y, scale, ScaleMode::Pixels), 0, 0};
    };
    sheet::Hear(events.OLEStartDrag, member, [this, index = member.Index](DataObject& data, int32_t& effects) {
        SlideStartDrag(index, data, effects);
    });
    sheet::Hear(events.OLEDragOver, member,
                [this, member, inSheet](DataObject& data, int32_t& effect, int16_t button, int16_t shift, float x,
                                        float y, int16_t state) {
                    const Box at = inSheet(x, y);
                    DragOverSlide(member.Index, {data, effect, button, shift, at.Left, at.Top, state});
                });
    sheet::Hear(events.OLEDragDrop, member,
                [this, inSheet](DataObject& data, int32_t& effect, int16_t button, int16_t shift, float x, float y) {
                    const Box at = inSheet(x, y);
                    DropOnSlide({data, effect, button, shift, at.Left, at.Top, 0});
                });
    sheet::Hear(events.OLEGiveFeedback, member,
                [this](int32_t& effect, bool& cursors) { Events.OLEGiveFeedback(effect, cursors); });
    sheet::Hear(events.OLESetData, member, [this](DataObject& data, int16_t& format) {
        if (!internalDrag_) Events.OLESetData(data, format);
    });
    // A drag ends for the sheet also when its slide has gone meanwhile.
    events.OLECompleteDrag.connect([this](int32_t& effect) { SlideCompleteDrag(effect); });
}

void Vorlane::ConnectGroundDrags() {
    for (Control* ground : {static_cast<Control*>(this), static_cast<Control*>(&ImgDrag)}) {
        ConnectDropsOn(*ground);
        ConnectDragsFrom(*ground);
    }
    TimerDrag.Tick.connect([this] { Attempt([this] { DragTick(); }); });
}

// A drag that starts on the mark is one from the ground, but counts for nothing while one from a slide runs.
void Vorlane::ConnectDragsFrom(Control& ground) {
    const auto counts = [this, isMark = &ground == &ImgDrag] { return !isMark || !internalDrag_; };
    ground.Input.OLEStartDrag.connect([this, counts](DataObject& data, int32_t& effects) {
        if (counts()) Events.OLEStartDrag(data, effects);
    });
    ground.Input.OLEGiveFeedback.connect([this, counts](int32_t& effect, bool& cursors) {
        if (counts()) Events.OLEGiveFeedback(effect, cursors);
    });
    ground.Input.OLESetData.connect([this](DataObject& data, int16_t& format) {
        if (!internalDrag_) Events.OLESetData(data, format);
    });
    ground.Input.OLECompleteDrag.connect([this, counts](int32_t& effect) {
        if (counts() && oleDragMode_ == kGroundCompletes) SlideCompleteDrag(effect);
        if (!internalDrag_) Events.OLECompleteDrag(effect);
    });
}

// The mark lies over the ground, and a drag over it is one over the ground behind it.
void Vorlane::ConnectDropsOn(Control& ground) {
    const bool isMark = &ground == &ImgDrag;
    const auto inSheet = [this, isMark](float x, float y) {
        if (!isMark) return Box{x, y, 0, 0};
        return Box{ImgDrag.Left() + Rescale(x, ScaleMode::Twips, ScaleMode::Pixels),
                   ImgDrag.Top() + Rescale(y, ScaleMode::Twips, ScaleMode::Pixels), 0, 0};
    };
    ground.Input.OLEDragOver.connect([this, isMark, inSheet](DataObject& data, int32_t& effect, int16_t button,
                                                             int16_t shift, float x, float y, int16_t state) {
        const Box at = inSheet(x, y);
        DragOverGround({data, effect, button, shift, at.Left, at.Top, isMark ? sheet::kDragOver : state});
    });
    ground.Input.OLEDragDrop.connect(
        [this, inSheet](DataObject& data, int32_t& effect, int16_t button, int16_t shift, float x, float y) {
            const Box at = inSheet(x, y);
            DropOnGround({data, effect, button, shift, at.Left, at.Top, 0});
        });
}

// --- Start ---

void Vorlane::SlideStartDrag(int16_t index, DataObject& data, int32_t& effects) {
    const auto start = [&] {
        drag_.Origin = Trelmic6(Desktop()).CursorPos();
        drag_.Own = true;
        drag_.Moved = false;
        data.Clear();
        PutSelectionInto(data);
        if (data.Files().empty()) {
            if (!data.GetFormat(kFormatFiles)) effects = 0;
            return Events.OLEStartDrag(data, effects);
        }
        effects |= kDropMoves;
        drag_.Cancel = false;
        Events.OLEBeforeStartDrag(ToInt32(data.Files().size()), drag_.DisplayText, drag_.Cancel);
        if (drag_.Cancel) return;
        ShowGhost(index);
        drag_.OpenRow = droprow::kNoRow;
        TimerDrag.SetEnabled(true);
        const bool sorts = sort_.SortedSens != SortSensType::ssNone;
        const bool rightPart = SharedFrmDrag(Desktop()).StartRightPart;
        if (sorts) effects = 0;
        if (!sorts && Bound().AsListBox() != nullptr) OpenRowAt(index, rightPart, false);
        Events.OLEStartDrag(data, effects);
    };
    GuardVoid(start, "Diapo_OLEStartDrag", index);
}

// The selected items, those of a list with their keys.
void Vorlane::PutSelectionInto(DataObject& data) const {
    const std::vector<int32_t> items = SelectedTableau();
    if (items.empty()) return;
    const ListBox* list = Bound().AsListBox();
    data.SetData(kFormatFiles);
    data.Files().reserve(items.size());
    for (const int32_t item : items) {
        const std::string path = ItemFullPath(item);
        data.Files().push_back(list != nullptr ? DraggedFileEntry(path, list->ItemData(item)) : DraggedFileEntry(path));
    }
}

// A copy of what the user sees of the slide, right over it, with a hole under the pointer.
void Vorlane::ShowGhost(int16_t index) {
    FrmDrag& ghost = SharedFrmDrag(Desktop());
    const auto slide = Diapo.Item(index);
    const int32_t left = ToInt32(slide->Col());
    const int32_t top = ToInt32(slide->Lig());
    const int32_t width = ToInt32(slide->Width());
    const int32_t height = ToInt32(slide->Height());
    const Point place = Desktop().windows.ClientToScreen(Hwnd(), {left, top});
    ghost.ColorKey = First().BackColorSelected();
    ghost.AlphaMode = false;
    ghost.Load();
    const double twipsX = ghost.TwipsPerPixelX();
    const double twipsY = ghost.TwipsPerPixelY();
    ghost.Move(ghost.Left(), ghost.Top(), width * twipsX, height * twipsY);
    const Picture seen = Desktop().windows.Grab(Hwnd(), {left, top, left + width, top + height});
    ghost.Surface().BitBlt(0, 0, width, height, seen, 0, 0);
    ghost.Move(place.X * twipsX, place.Y * twipsY);
    ShowForm(ghost);
    // Half a pixel from the slide's edge the place of the pointer rounds to one beyond it.
    ghost.Surface().SetPixel(ToInt32(Min(ghost.HotX, width - 1)), ToInt32(Min(ghost.HotY, height - 1)), ghost.ColorKey);
}

// --- While it runs ---

// Moves the ghost of a drag from here, and scrolls at the edges of the sheet.
void Vorlane::DragTick() {
    const Point pointer = Trelmic6(Desktop()).CursorPos();
    FrmDrag& ghost = SharedFrmDrag(Desktop());
    const bool ours = internalDrag_ || TimerDrag.Enabled();
    if (ours && ghost.Loaded()) {
        const double wayX = (pointer.X - drag_.Origin.X) * static_cast<double>(ghost.TwipsPerPixelX());
        const double wayY = (pointer.Y - drag_.Origin.Y) * static_cast<double>(ghost.TwipsPerPixelY());
        ghost.Move(ghost.Left() + wayX, ghost.Top() + wayY);
    }
    drag_.Origin = pointer;
    const int way = droprow::EdgeScroll(Desktop().windows.GetWindowRect(Hwnd()), pointer, grid_.Marges, First().Width(),
                                        First().Height(), bar_.ScrollDirection);
    if (way == 0) return;
    const int64_t wanted = int64_t{VScroll.Value()} + int64_t{way} * VScroll.SmallChange();
    VScroll.SetValue(ToInt32(Min(VScroll.Max(), wanted)));
}

// --- End ---

// What the user sees of a drag goes away.
void Vorlane::HideDrag() {
    TimerDrag.SetEnabled(false);
    SharedFrmDrag(Desktop()).Unload();
    CloseRow();
    drag_.DisplayText.clear();
}

void Vorlane::EndDrag() {
    HideDrag();
    internalDrag_ = false;
    mouse_.DragArmed = false;
    drag_.Cancel = false;
    drag_.DropSlot = 0;
    drag_.DropRightPart = false;
}

void Vorlane::OleResetDrag() {
    EndDrag();
    SelectedClear();
}

// Items that were moved inside the sheet stay selected; any other end of a drag leaves nothing selected.
void Vorlane::SlideCompleteDrag(int32_t& effect) {
    const bool moved = std::exchange(drag_.Moved, false);
    drag_.Own = false;
    moved ? EndDrag() : OleResetDrag();
    if (effect != 0) selection_.CurrentSlot = -1;
    if (!internalDrag_) Events.OLECompleteDrag(effect);
}

}  // namespace vorlane
