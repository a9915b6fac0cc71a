// Drags over the sheet: what a drop would do, the row that opens, the mark. The message loop runs meanwhile, in which
// the drag may end; drag_.Ends tells.
#include "interaction/droprow.h"
#include "interaction/droptext.h"
#include "platform/dataobject.h"
#include "platform/draggedfile.h"
#include "platform/numbers.h"
#include "platform/trelmic6.h"
#include "sheet/vorlane.h"

namespace vorlane {

namespace {

constexpr int32_t kEscape = 27;

bool HoldsFiles(const DataObject& data) {
    return data.GetFormat(kFormatFiles) || data.GetFormat(kFormatText);
}

}  // namespace

using sheet::DragEvent;

// --- What a drop would do ---

// A drag from outside that the user ends by Escape; one from here is the platform's business.
bool Vorlane::EscapesDrag() {
    if (internalDrag_ || !Desktop().keyboard.KeyIsDown(kEscape)) return false;
    OleResetDrag();
    return true;
}

// Whether a drop goes to a place of the list. If not, the answer is given: a sort lets files from outside in, wherever
// they come to stand, and forbids moves.
bool Vorlane::HasPlaceFor(const DragEvent& drag) {
    const bool takes = HoldsFiles(drag.Data) && !drag_.Cancel && Bound().AsListBox() != nullptr;
    const bool sorts = sort_.SortedSens != SortSensType::ssNone;
    if (!takes || (sorts && internalDrag_)) {
        drag.Effect = 0;
    } else {
        drag.Effect |= internalDrag_ ? kDropMoves : kDropCopies;
    }
    if (takes && !sorts) return true;
    ImgDrag.SetVisible(false);
    return false;
}

// Scrolls for a drag from outside, which no timer does, and lets the message loop run. Whether the drag goes on.
bool Vorlane::StepForeignDrag() {
    if (internalDrag_) return true;
    const uint32_t ends = drag_.Ends;
    DragTick();
    Desktop().clock.DoEvents();
    return drag_.Ends == ends;
}

// --- Over a slide ---

void Vorlane::DragOverSlide(int16_t index, const DragEvent& drag) {
    if (EscapesDrag()) return;
    Attempt([&] { AnswerOverSlide(index, drag); });
    if (internalDrag_) return;
    Events.OLEDragOver(drag.Data, drag.Effect, drag.Button, drag.Shift, ToContainer(drag.X), ToContainer(drag.Y),
                       drag.State);
}

void Vorlane::AnswerOverSlide(int16_t index, const DragEvent& drag) {
    const auto slide = Diapo.Item(index);
    const bool rightPart = droprow::InRightHalf(drag.X - slide->Left(), slide->Width());
    if (!HasPlaceFor(drag) || !StepForeignDrag() || drag.State != sheet::kDragOver) return;
    const auto over = ToInt16(Min(index, Diapo.Count() - 1));
    drag_.DropRightPart = false;
    const uint32_t ends = drag_.Ends;
    OpenRowAt(over, rightPart, drag_.OpenRow == RowOf(over) && IsOpenElsewhere(over));
    if (drag_.Ends == ends && drag_.OpenRow == RowOf(over)) GiveWay(over, rightPart);
}

// --- Over the ground ---

void Vorlane::DragOverGround(const DragEvent& drag) {
    const auto over = [&] {
        if (EscapesDrag()) return;
        if (drag.State == sheet::kDragLeave) return LeaveGround(drag);
        const bool asks = drag.State == sheet::kDragEnter && !internalDrag_;
        if (asks && !drag_.Own) drag_.Cancel = false;
        if (!HasPlaceFor(drag)) return;
        if (asks) AskForForeignDrag(drag);
        if (drag.State == sheet::kDragOver && StepForeignDrag()) OpenUnder(drag);
    };
    GuardVoid(over, "UserControl_OLEDragOver", drag.Effect, drag.Button, drag.Shift, drag.X, drag.Y, drag.State);
}

void Vorlane::AskForForeignDrag(const DragEvent& drag) {
    if (drag_.Counted < 0) drag_.Counted = CountObject(&drag.Data);
    Events.OLEBeforeStartDrag(drag_.Counted, drag_.DisplayText, drag_.Cancel);
    if (drag_.Cancel) drag.Effect = 0;
}

// Opens the row beside the slide whose cell lies under the pointer.
void Vorlane::OpenUnder(const DragEvent& drag) {
    float x = drag.X;
    float y = drag.Y;
    bool rightPart = false;
    const int16_t slot = GetDiapoFromCol(x, y, rightPart);
    if (slot < 0) return ImgDrag.SetTag("-1");
    drag_.DropSlot = slot;
    const uint32_t ends = drag_.Ends;
    DragOverSlide(slot, drag);
    if (drag_.Ends != ends || drag_.Cancel || !Diapo.Loaded(slot)) return;
    OpenRowAt(slot, Diapo.Item(slot)->Visible() && rightPart, false);
}

// With the pointer outside the sheet, or over its bar, the row closes; so it does when the drag is told to be outside,
// which it is as well when it ends without a drop.
void Vorlane::LeaveGround(const DragEvent& drag) {
    const Point pointer = Trelmic6(Desktop()).CursorPos();
    const WinRect sheet = Desktop().windows.GetWindowRect(Hwnd());
    const double right = sheet.Right - double{grid::BarTakesWidth(Frame())};
    const bool inside =
        pointer.X >= sheet.Left && pointer.X < right && pointer.Y >= sheet.Top && pointer.Y < sheet.Bottom;
    if (inside && drag.X >= 0) return;
    CloseRow();
    drag_.DropSlot = 0;
    if (drag_.Own) return;
    drag_.Cancel = false;
    drag_.DisplayText.clear();
}

// --- Counting ---

int32_t Vorlane::CountFilesIn(const std::string& path) {
    if (Trelmic6::PathExists(path, PathKind::File)) return 1;
    if (!Trelmic6::PathExists(path, PathKind::Folder)) return 0;
    TmpFile.Read(Trelmic6::NormalizePath(path), items_.Pattern);
    return TmpFile.ListCount();
}

int32_t Vorlane::CountObject(const DataObject* data) {
    const auto count = [&] {
        int32_t sum = 0;
        if (data == nullptr) return sum;
        if (data->GetFormat(kFormatFiles)) {
            for (const std::string& entry : data->Files()) sum += CountFilesIn(ReadDraggedFile(entry).Path);
        } else if (data->GetFormat(kFormatText)) {
            for (const std::string& path : DroppedPaths(data->Text())) sum += CountFilesIn(path);
        }
        return sum;
    };
    return Guard(0, count, "CountObject");
}

}  // namespace vorlane
