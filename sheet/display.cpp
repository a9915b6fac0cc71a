// The display pipeline: one synchronous pass puts a run of list items on slides. Whatever it calls may lead back into
// the sheet, so it looks at the slides and the list afresh behind every such call.
#include "platform/hourglass.h"
#include "platform/numbers.h"
#include "platform/trelmic6.h"
#include "sheet/vorlane.h"

namespace vorlane {

namespace {

// Lets slide 0 lay itself out again at the end of its block, however that ends.
class StillSlide {
public:
    explicit StillSlide(eDiapoLight& slide) : slide_(slide) {}
    ~StillSlide() {
        Attempt([this] { slide_.SetNoResize(false); });
    }
    StillSlide(const StillSlide&) = delete;
    StillSlide& operator=(const StillSlide&) = delete;

private:
    eDiapoLight& slide_;
};

// Counts what is under way while it lives.
class Counted {
public:
    explicit Counted(int32_t& count) : count_(count) { ++count_; }
    ~Counted() { --count_; }
    Counted(const Counted&) = delete;
    Counted& operator=(const Counted&) = delete;

private:
    int32_t& count_;
};

}  // namespace

// --- Where to start ---

int16_t Vorlane::StartLecture(const std::string& startImageName, int32_t diapoKey) {
    const auto start = [&]() -> int16_t {
        ComputeArea();
        if (diapoKey < 0 && diapoKey != -1 && startImageName.empty()) return 0;
        const std::optional<int32_t> wanted = WantedItem(startImageName, diapoKey);
        return wanted ? PositionOn(*wanted) : FillFromTop();
    };
    return Guard(int16_t{0}, start, "StartLecture", startImageName, diapoKey);
}

// The item of that key; without a key the first item of that name, in any case of letters.
std::optional<int32_t> Vorlane::WantedItem(const std::string& startImageName, int32_t diapoKey) {
    if (diapoKey >= 0) {
        const int32_t index = GetListIndexFromItemData(diapoKey);
        const bool found = index >= 0 && index < ListCount();
        return found ? std::optional(index) : std::nullopt;
    }
    if (startImageName.empty()) return std::nullopt;
    const std::string wanted = Trelmic6::LowerCase(startImageName);
    const int32_t count = ListCount();
    for (int32_t i = 0; i < count; ++i) {
        if (Trelmic6::LowerCase(ItemFullPath(i)) == wanted) return i;
    }
    return std::nullopt;
}

int16_t Vorlane::PositionOn(int32_t listIndex) {
    Bound().SetListIndex(listIndex);
    FillFrom(listIndex);
    bar_.ScrollValue = VScroll.Value();
    return SlotFromListIndex(listIndex);
}

// Moves the bar to the item and fills from where it then stands; a bar at its end can't follow any further. A fill is
// wanted in any case: the list may have changed, so that the looks of the slides are not worth a copy.
void Vorlane::FillFrom(int32_t listIndex) {
    InitVScroll(false);
    bar_.JumpNext = true;
    const int32_t fills = pass_.Fills;
    VScroll.SetValue(listIndex);
    const bool moved = fills != pass_.Fills;
    if (moved) return;
    const int32_t start = VScroll.Value();
    if (StartLect(start, -1, -1)) bar_.ScrollValue = start;
}

int16_t Vorlane::FillFromTop() {
    Bound().SetListIndex(ListCount() > 0 ? 0 : -1);
    InitVScroll(true);
    bar_.ScrollValue = VScroll.Value();
    StartLect(0, -1, -1);
    return 0;
}

// --- The pass ---

// Fills read the live token and are never stopped by it; layouts keep a copy and are. What a fill that was stopped or
// has failed leaves is nothing to copy looks from, until one of all slides comes to its end.
bool Vorlane::StartLect(int32_t start, int16_t slot, int16_t count) {
    const float token = FreshToken();
    const bool complete = Lect(start, slot, count);
    const bool newest = token == pass_.LectToken;
    if (newest) bar_.JumpNext = !complete || (bar_.JumpNext && count > -1);
    return complete;
}

bool Vorlane::Lect(int32_t start, int16_t slot, int16_t count) {
    const auto run = [&] {
        const int16_t pool = CountDiapo();
        if (ListCount() <= pool) slot = 0;
        pass_.StopLect = false;
        VScroll.SetVisible(ListCount() > pool - RowLength());
        pass_.FirstListIndex = start;
        pass_.FirstSlot = ToInt16(Max(slot, 0));
        const int32_t number = ++pass_.Fills;
        Fill fill{start, slot, count, pool, pass_.FirstSlot};
        const bool complete = RunFill(fill);
        if (number == pass_.Fills) pass_.Unfinished = !complete && pool != CountDiapo();
        if (pass_.Unfinished) TimerResize.SetEnabled(true);
        Events.DisplayEnd();
        return complete;
    };
    return Guard(false, run, "Lect", start, slot, count);
}

// A stopped pass leaves the gauge where it is: a newer pass owns it.
bool Vorlane::RunFill(Fill& fill) {
    const Hourglass hourglass(Desktop().screen);
    const Counted running(pass_.Running);
    ShowGauge(true);
    if (!MayGoOn(fill)) return false;
    const int32_t listEnd = ToInt32(Min(ListCount() - 1, int64_t{fill.Start} + fill.Pool - 1));
    Jauge.SetMax(fill.Count > -1 ? fill.Start + fill.Count - 1 : listEnd);
    Jauge.SetMin(fill.Start);
    Events.DisplayStart();
    return MayGoOn(fill) && FillSlots(fill);
}

bool Vorlane::MayGoOn(const Fill& fill) const {
    const bool newest = pass_.FirstListIndex == fill.Start && pass_.FirstSlot == Max(fill.Slot, 0);
    return fill.Pool == CountDiapo() && newest && !pass_.StopLect;
}

bool Vorlane::FillSlots(Fill& fill) {
    const int32_t last = CountDiapo() + fill.Start - 1;
    for (int32_t i = fill.Start; i <= last; ++i) {
        Jauge.SetValue(i);
        if (i > ListCount() - 1) break;
        const Filled filled = FillSlot(fill, i);
        if (filled == Filled::Lost) return false;
        if (filled == Filled::Refused) continue;
        ++fill.Cursor;
        if (fill.Count > -1 && fill.Cursor >= fill.Slot + fill.Count) {
            ShowGauge(false);
            return true;
        }
        if (gauge_.ShowJauge) Repaint();
        if (!MayGoOn(fill)) return false;
    }
    Jauge.SetValue(Jauge.Max());
    for (int32_t k = Diapo.Count() - 1; k >= fill.Cursor; --k) UnloadDiapo(k);
    ShowGauge(false);
    return true;
}

// A newer pass, or a layout, that ran meanwhile may have put another item on the slide, which then stays there.
sheet::Filled Vorlane::FillSlot(const Fill& fill, int32_t listIndex) {
    const std::string name = ItemFullPath(listIndex);
    const int16_t cursor = fill.Cursor;
    const float token = pass_.LectToken;
    const bool missing = (cursor == 0 && pass_.NoSlideYet) || cursor > Diapo.Count() - 1;
    if (!missing) {
        Rebind(cursor, name, listIndex);
    } else if (AddInterne(name, listIndex, false) == -1) {
        if (!MayGoOn(fill)) return Filled::Lost;
        const bool passedMeanwhile = pass_.LectToken != token;
        const bool shown = Diapo.Loaded(cursor) && Diapo.Item(cursor)->Value() == listIndex;
        return passedMeanwhile && shown ? Filled::Yes : Filled::Refused;
    }
    if (!Diapo.Loaded(cursor)) return Filled::Lost;
    const auto slide = Diapo.Item(cursor);
    const bool shows = slide->ImageFullPath() == eDiapoLight::KnownPath(name);
    if (shows && MayGoOn(fill)) slide->SetValue(listIndex);
    ShowPlaying(cursor, listIndex);
    SweepByBand(*slide);
    return Filled::Yes;
}

void Vorlane::Rebind(int16_t cursor, const std::string& name, int32_t listIndex) {
    const auto slide = Diapo.Item(cursor);
    if (listIndex == selection_.CurrentListIndex) selection_.CurrentSlot = cursor;
    Select(*slide, GroundOf(listIndex), Bound().Selected(listIndex));
    slide->SetNoResize(false);
    slide->SetVisible(true);
    slide->SetValue(listIndex);
    if (SetDiapoPicture(cursor, name)) Events.Added(cursor, name);
}

// A slide that takes an item while the rubber band runs is swept if the band touches it, and its item with it.
void Vorlane::SweepByBand(eDiapoLight& slide) {
    if (!band_.Active) return;
    const bool swept = grid::BandTouches(SelRect.Bounds(), {slide.Col(), slide.Lig(), slide.Width(), slide.Height()});
    slide.SetSelectedTmp(swept);
    if (!swept) return;
    Select(slide, GroundOf(slide.Value()), true);
    SelectItem(slide.Value(), true);
}

// --- One slide ---

// Whether slide 0 is free for an item: it shows none, or has not been made to its end yet.
bool Vorlane::Blank() const {
    const bool free = First().Value() == -1 || pass_.NoSlideYet;
    return Diapo.Count() == 1 && free && First().Picture().Handle() == 0;
}

// Makes the next slide of the grid for a file; a blank sheet uses slide 0. Gives its index, also when a handler has
// unloaded it meanwhile; -1 when the pool is full, when the host refuses the file, and when slides were made or
// unloaded while it was asked.
int16_t Vorlane::AddInterne(const std::string& imageName, int32_t listIndex, bool silent) {
    const auto add = [&]() -> int16_t {
        const bool blank = Blank();
        const int32_t loaded = Diapo.Count();
        const int32_t fills = pass_.Fills;
        const auto full = [&] { return !blank && loaded >= CountDiapo(); };
        if (full()) {
            InitVScroll(false);
            return -1;
        }
        std::string name = imageName;
        if (Refused(name) || pass_.Fills != fills || Diapo.Count() != loaded || full()) return -1;
        const NextCell cell = FindNextCell(blank);
        const StillSlide still(First());
        const int16_t index = LoadFor(listIndex, blank);
        const auto slide = Diapo.Item(index);
        slide->SetCol(cell.X);
        slide->SetLig(cell.Y);
        slide->Move(cell.X, cell.Y, First().Width(), First().Height());
        const bool made = SetDiapoImage(index, name, listIndex);
        pass_.NoSlideYet = false;
        if (made && !silent) {
            slide->SetVisible(true);
            Events.Added(index, name);
        }
        InitVScroll(false);
        return index;
    };
    return Guard(int16_t{-1}, add, "AddInterne", imageName, listIndex, silent);
}

// Makes a row of blank slides behind the last one, into which another can be pushed down. Gives false when they
// were filled or laid out meanwhile.
bool Vorlane::AddBlankRow() {
    const Counted running(pass_.Running);
    const auto undisturbed = [this, fills = pass_.Fills, token = pass_.LectToken] {
        return pass_.Fills == fills && pass_.LectToken == token;
    };
    for (int16_t n = RowLength(); n > 0 && undisturbed(); --n) AddInterne("", -1, true);
    return undisturbed();
}

// Whether the host refuses the file, whose name it may change.
bool Vorlane::Refused(std::string& imageName) {
    bool cancel = false;
    Events.BeforeAdd(imageName, Trelmic6::LowerCase(Trelmic6::FilePart(imageName, PathPart::Extension)), cancel);
    return cancel;
}

// The place behind the last slide. Without spreading, rows after the first start at the very left edge; the next
// layout of all slides puts them right.
sheet::NextCell Vorlane::FindNextCell(bool blank) {
    const auto last = Last();
    const grid::Area& area = grid_.Area;
    const grid::Spread spread = SpreadCells(First().Width(), First().Height());
    const bool spreads = grid_.MargeDiapoAutoAdjust;
    NextCell cell{last->Col(), last->Lig()};
    if (blank) {
        cell = spreads ? NextCell{static_cast<float>(spread.FirstLeft), static_cast<float>(spread.FirstTop)}
                       : NextCell{area.StartX, area.StartY};
    }
    const float rowStart = !spreads ? 0 : blank ? cell.X : First().Col();
    if (!blank) cell.X += First().Width() + static_cast<float>(grid_.MargeX);
    if (First().Width() + cell.X > area.AreaWidth + area.StartX) {
        cell = {rowStart, cell.Y + First().Height() + static_cast<float>(grid_.MargeY)};
    }
    return cell;
}

// Loads the next slide, or takes slide 0 of a blank sheet, blank but for the selection of its item, which is asked for
// first: a list that fails leaves no slide without a place behind. Slide 0 keeps still while another is loaded.
int16_t Vorlane::LoadFor(int32_t listIndex, bool blank) {
    const bool bound = listIndex > -1;
    const bool selected = bound && Bound().Selected(listIndex);
    const int16_t index = blank ? int16_t{0} : ToInt16(Diapo.Count());
    if (!blank) {
        First().SetNoResize(true);
        Diapo.Load(index);
        ResetDiapo(index);
    }
    const auto slide = Diapo.Item(index);
    const bool current = bound && listIndex == selection_.CurrentListIndex;
    slide->SetBackColorSelected(current ? selection_.BackColorCurrent : selection_.SelectedColor);
    if (bound) slide->SetSelected(selected);
    return index;
}

// Both give whether the slide is still there, and for the same item.
bool Vorlane::SetDiapoImage(int16_t slot, const std::string& imageName, int32_t listIndex) {
    const auto slide = Diapo.Item(slot);
    slide->SetNoResize(false);
    const double longest = Max(slide->Width(), slide->Height());
    slide->SetThumbnailSizeNormal(ToInt16(Max(longest, thumbnailSizeNormal_)));
    if (listIndex > -1) slide->SetValue(listIndex);
    return imageName.empty() || SetDiapoPicture(slot, imageName);
}

bool Vorlane::SetDiapoPicture(int16_t slot, const std::string& imageName) {
    if (Diapo.Item(slot)->ImageFullPath() == eDiapoLight::KnownPath(imageName)) return true;
    const Counted running(pass_.Running);  // a slide that waits for its picture is nothing to copy either
    const int32_t item = Diapo.Item(slot)->Value();
    const int32_t fills = pass_.Fills;
    vorlane::Picture picture;
    bool haveSound = false;
    bool haveComment = false;
    bool haveTexte = false;
    bool invalidMusic = false;
    bool invalidCom = false;
    Events.BeforeSetPicture(slot, imageName, picture, haveSound, haveComment, haveTexte, invalidMusic, invalidCom);
    if (!Diapo.Loaded(slot) || Diapo.Item(slot)->Value() != item) return false;
    if (fills != pass_.Fills && ItemShownBy(*Diapo.Item(slot))) return false;  // a newer fill's slide
    const auto slide = Diapo.Item(slot);
    slide->SetOnGetThumb(true);
    slide->SetHaveInvalidMusic(invalidMusic);
    slide->SetHaveSoundMusic(haveSound);
    slide->SetHaveInvalidComm(invalidCom);
    slide->SetHaveSoundComment(haveComment);
    slide->SetHaveTexte(haveTexte);
    slide->SetOnGetThumb(false);
    slide->PictureByString(imageName, picture, true);
    return Diapo.Loaded(slot);
}

}  // namespace vorlane
