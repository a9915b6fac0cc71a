// Laying the slides out again. A resize that changes the shape of the pool is put off to a timer, so that the user who
// drags a window's edge does not wait for slides; a change of the gaps alone is done at once.
#include "platform/numbers.h"
#include "platform/trelmic6.h"
#include "sheet/vorlane.h"

namespace vorlane {

// --- Resizing ---

bool Vorlane::HasSlides() const {
    return Diapo.Count() >= 2 || First().Picture().Handle() != 0;
}

void Vorlane::Resize() {
    if (!layout_.Ready || items_.Liste == nullptr) return;
    ComputeArea();
    LstInterne.SetWidth(ScaleWidth());
    const int16_t columns = ComputeCountX();
    const int16_t rows = ComputeCountY();
    if (columns != grid_.CountDiapoX || rows != grid_.CountDiapoY) {
        grid_.CountDiapoX = columns;
        grid_.CountDiapoY = rows;
        layout_.Resizing = true;
        if ((HasSlides() && !layout_.NotShown) || !Ambient().UserMode) TimerResize.SetEnabled(true);
    } else if (HasSlides() && grid_.MargeDiapoAutoAdjust) {
        PlaceDiapos(CountDiapo(), FreshToken(), 0, 0);
    }
    InitVScroll(false);
    layout_.Resizing = false;
}

float Vorlane::FreshToken() {
    pass_.LectToken = random_.Next();
    return pass_.LectToken;
}

// A layout that was stopped starts again at the next tick. A tick inside a resize only stops what is running for
// another grid. A sheet without slides has nothing to lay out: either it has been cleared meanwhile, or its first fill
// was stopped.
void Vorlane::ResizeTick() {
    if (layout_.Resizing) {
        pass_.StopLect = ComputeCountX() != grid_.CountDiapoX || ComputeCountY() != grid_.CountDiapoY;
        return;
    }
    const bool blank = !HasSlides() && Ambient().UserMode;
    const int16_t wanted = CountDiapo();
    if (blank && pass_.Unfinished) FollowBar();
    if (!blank && !PlaceDiapos(wanted, FreshToken(), 0, 0)) return;
    if (wanted != CountDiapo()) return;  // another resize, at the very end of the layout
    TimerResize.SetEnabled(false);
    TimerUnload.SetEnabled(true);
}

void Vorlane::UnloadTick() {
    if (layout_.Resizing) return;
    TimerUnload.SetEnabled(false);  // first: a layout at the yield may want it again
    UnloadExtraDiapos();
}

void Vorlane::UnloadExtraDiapos() {
    UnloadSurplus();
    Desktop().clock.DoEvents();
}

void Vorlane::UnloadSurplus() {
    const int64_t first = Max(CountDiapo(), 1);
    for (int32_t k = Diapo.Count() - 1; k >= first; --k) UnloadDiapo(Diapo.UpperBound());
}

void Vorlane::DiapoSizeChange(bool dimAll, int16_t newWidth, int16_t newHeight) {
    ChangeSlideSize(dimAll, newWidth, newHeight);
}

// A size that makes no grid changes nothing. Gives whether the slides have the new one.
bool Vorlane::ChangeSlideSize(bool dimAll, int16_t newWidth, int16_t newHeight) {
    const auto change = [&] {
        RequireGrid(newWidth, newHeight);
        if (!First().Visible() || !dimAll) {
            First().Move(First().Left(), First().Top(), newWidth, newHeight);
            Resize();
            return true;
        }
        layout_.Resizing = true;
        First().SetWidth(newWidth);
        First().SetHeight(newHeight);
        grid_.CountDiapoX = ComputeCountX();
        grid_.CountDiapoY = ComputeCountY();
        if (CountDiapo() < Diapo.Count()) HideFrom(0);
        InitVScroll(false);
        if (PlaceDiapos(CountDiapo(), FreshToken(), newWidth, newHeight)) TimerUnload.SetEnabled(true);
        return true;
    };
    const bool changed = Guard(false, change, "DiapoSizeChange", dimAll, newWidth, newHeight);
    layout_.Resizing = false;
    return changed;
}

void Vorlane::HideFrom(int32_t first) {
    for (int32_t k = first; k <= Diapo.UpperBound(); ++k) {
        if (Diapo.Loaded(k)) Diapo.Item(k)->SetVisible(false);
    }
}

// --- The layout ---

// Lays out the first wanted slides and makes those that are missing. A failure behind the computing of the gaps ends
// it silently. Only a stop that comes while it runs stops it; the timer then lays out what is left of the slides,
// unless another layout has done so. Gives whether it ran to its end.
bool Vorlane::PlaceDiapos(int16_t wanted, float token, int16_t newWidth, int16_t newHeight) {
    const bool asIs = newWidth + newHeight == 0;
    Placement placement{};
    placement.Wanted = wanted;
    placement.Token = token;
    placement.Width = asIs ? First().Width() : newWidth;
    placement.Height = asIs ? First().Height() : newHeight;
    const grid::Spread spread = SpreadCells(placement.Width, placement.Height);
    placement.X = placement.RowStart = spread.FirstLeft;
    placement.Y = spread.FirstTop;
    bool complete = false;
    const bool stoppedBefore = std::exchange(pass_.StopLect, false);
    layout_.Stale = true;
    const bool failed = !Attempt([&] { complete = PlaceAll(placement); });
    First().SetNoResize(false);  // also when it was stopped
    pass_.StopLect = pass_.StopLect || stoppedBefore;
    const bool alive = items_.Liste != nullptr && HasSlides();
    const bool stopped = !complete && (!failed || placement.Token != pass_.LectToken);
    if (stopped && layout_.Stale && alive) TimerResize.SetEnabled(true);
    if (complete && (placement.AtEnd || pass_.Unfinished)) FollowBar();
    return complete;
}

bool Vorlane::PlaceAll(Placement& placement) {
    if (placement.Wanted > Diapo.Count() && Diapo.Count() < ListCount()) ShowGauge(true);
    Jauge.SetMax(ToInt32(Min(ListCount() - 1, placement.Wanted) + 1));
    Events.DisplayStart();
    if (!MayGoOn(placement)) return false;
    for (int16_t i = 0; i < placement.Wanted; ++i) {
        Jauge.SetValue(i);
        const Placed placed = PlaceSlot(i, placement);
        placement.AtEnd = placed == Placed::AtEnd;
        if (placement.AtEnd) break;
        if (placed == Placed::Yes && !MayGoOn(placement)) return false;
    }
    Jauge.SetValue(Jauge.Max());
    HideFrom(ToInt32(Max(CountDiapo(), 1)));
    ShowGauge(false);
    InitVScroll(false);
    layout_.Resizing = layout_.Stale = false;
    First().SetNoResize(false);
    Events.DisplayEnd();
    return true;
}

bool Vorlane::MayGoOn(const Placement& placement) const {
    return First().Width() == placement.Width && First().Height() == placement.Height &&
           placement.Token == pass_.LectToken && placement.Wanted == CountDiapo() && !pass_.StopLect;
}

sheet::Placed Vorlane::PlaceSlot(int16_t slot, Placement& placement) {
    std::string name;
    const bool missing = !Diapo.Loaded(slot);
    if (missing) {
        const Placed made = MakeMissing(slot, name);
        if (made != Placed::Yes) return made;
    } else {
        name = ItemShownBy(*Diapo.Item(slot)).value_or(Diapo.Item(slot)->ImageFullPath());
    }
    const auto slide = Diapo.Item(slot);
    slide->SetCol(placement.X);
    slide->SetLig(placement.Y);
    slide->Move(placement.X, placement.Y, placement.Width, placement.Height);
    if (!Ambient().UserMode) {
        slide->Refresh();
    } else if (slide->Picture().Handle() == 0) {
        if (!SetDiapoImage(slot, name, -1)) throw failures::ControlNotLoaded();
    }
    slide->SetVisible(true);
    if (missing) SweepByBand(*slide);
    placement.X += slide->Width() + grid_.MargeX;
    if ((slot + 1) % grid_.CountDiapoX == 0) {
        placement.Y += slide->Height() + grid_.MargeY;
        placement.X = placement.RowStart;
    }
    Events.Added(slot, name);
    RepaintSlide(*Diapo.Item(slot));
    return Placed::Yes;
}

// The file of a slide's item, as that spells it, where the slide shows it.
std::optional<std::string> Vorlane::ItemShownBy(const eDiapoLight& slide) const {
    const int32_t item = slide.Value();
    if (item < 0 || item >= ListCount()) return std::nullopt;
    const std::string name = ItemFullPath(item);
    return eDiapoLight::KnownPath(name) == slide.ImageFullPath() ? std::optional(name) : std::nullopt;
}

// Loads a slide for the item behind the last slide's, at run time; in a designer for nothing, if the host allows it.
sheet::Placed Vorlane::MakeMissing(int16_t slot, std::string& name) {
    First().SetNoResize(true);
    const bool running = Ambient().UserMode;
    std::optional<ListItem> item;
    if (running) {
        item = NextItem(Last()->Value());
        if (!item) {
            if (CountDiapo() - Diapo.Count() >= grid_.CountDiapoY) VScroll.SetValue(VScroll.Value() - 1);
            return Placed::AtEnd;
        }
        name = item->Name;
        if (Trelmic6::FileName(name).empty()) return Placed::Skipped;
    } else if (Refused(name)) {
        return Placed::AtEnd;
    }
    Diapo.Load(slot);
    ResetDiapo(slot);
    if (!running) return Placed::Yes;
    const auto slide = Diapo.Item(slot);
    if (item->ListIndex == selection_.CurrentListIndex) selection_.CurrentSlot = slot;
    slide->SetValue(item->ListIndex);
    slide->SetBackColorSelected(GroundOf(item->ListIndex));
    slide->SetSelected(Bound().Selected(item->ListIndex));
    return Placed::Yes;
}

}  // namespace vorlane
