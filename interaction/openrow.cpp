// The row under a drag: it opens step by step, the hovered slide gives way, and all go home again. The insertion mark
// stands in the gap. Failures are ignored, statement by statement.
#include "interaction/droprow.h"
#include "platform/numbers.h"
#include "platform/withinblock.h"
#include "sheet/vorlane.h"

#include <algorithm>

namespace vorlane {

namespace {

constexpr float kLeastMarkHeight = 120;  // in a sheet of one row
constexpr int32_t kStep = 2;
constexpr int32_t kHomewards = 3;  // times the gap: as far as a slide can have gone

}  // namespace

// --- Reading the row ---

int16_t Vorlane::RowOf(int32_t slide) const {
    return droprow::RowOf(slide, std::max(grid_.CountDiapoX, int16_t{1}));
}

droprow::Range Vorlane::SlidesOfRow(int16_t row) const {
    return droprow::SlidesOf(row, grid_.CountDiapoX, Diapo.Count());
}

int16_t Vorlane::RowGap() const {
    return droprow::Gap(grid_.Area.AreaWidth, First().Width(), grid_.CountDiapoX);
}

droprow::Standing Vorlane::StandingOf(int32_t slide) const {
    const auto item = Diapo.Item(slide);
    return {item->Left(), item->Width(), item->Col()};
}

std::vector<droprow::Standing> Vorlane::StandingsOf(const droprow::Range& range) const {
    std::vector<droprow::Standing> row;
    for (int32_t k = range.First; k <= range.Last; ++k) row.push_back(StandingOf(k));
    return row;
}

void Vorlane::PlaceRow(const droprow::Range& range, const std::vector<droprow::Standing>& row) {
    for (size_t i = 0; i < row.size(); ++i) {
        const auto slide = Diapo.Item(range.First + static_cast<int32_t>(i));
        slide->Move(row[i].Left, slide->Top());
    }
}

bool Vorlane::IsOpenElsewhere(int16_t index) const {
    const droprow::Range range = SlidesOfRow(RowOf(index));
    return droprow::OpenElsewhere(StandingsOf(range), static_cast<size_t>(index - range.First));
}

// --- Opening and closing ---

// Opens the row of a slide beside it, and closes the one that was open. A row that is open already is opened anew only
// by force. One row opens at a time; it stops where it is closed meanwhile.
void Vorlane::OpenRowAt(int16_t index, bool rightPart, bool force) {
    if (drag_.BusyShifting) return;
    PlaceMark(index, rightPart);
    if (RowOf(index) == drag_.OpenRow && !force) return;
    DragRestoreLig(drag_.OpenRow);
    const auto slide = ToInt16(Min(Diapo.Count() - 1, index));
    drag_.OpenRow = RowOf(slide);
    const droprow::Range range = SlidesOfRow(drag_.OpenRow);
    if (range.First == range.Last) return;
    const WithinBlock busy(drag_.BusyShifting);
    const int32_t before = slide - range.First + (rightPart ? 1 : 0);
    if (Shift(range, static_cast<size_t>(before))) PlaceMark(slide, rightPart);
}

// Moves the first count slides of a row to the left and the others to the right. Whether the drag goes on.
bool Vorlane::Shift(const droprow::Range& range, size_t count) {
    const uint32_t ends = drag_.Ends;
    const float end = grid_.Area.AreaWidth - grid::BarTakesWidth(Frame());
    for (int32_t n = 1; static_cast<float>(n) <= ImgDrag.Width(); n += kStep) {
        Attempt([&] {
            auto row = StandingsOf(range);
            droprow::StepApart(row, count, end);
            PlaceRow(range, row);
        });
        Desktop().clock.DoEvents();
        if (drag_.Ends != ends) return false;
    }
    return true;
}

void Vorlane::DragRestoreLig(int16_t row) {
    const auto restore = [&] {
        if (row <= droprow::kNoRow || (Diapo.Count() == 1 && !First().Visible())) return;
        const droprow::Range range = SlidesOfRow(row);
        auto standings = StandingsOf(range);
        for (int32_t n = 1; n <= RowGap() * kHomewards; n += kStep) {
            droprow::StepHome(standings);
            PlaceRow(range, standings);
        }
        for (droprow::Standing& slide : standings) slide.Left = slide.Col;
        PlaceRow(range, standings);
    };
    GuardVoid(restore, "DragRestoreLig", row);
}

// The mark goes, and all slides of the open row go home, also where it is still opening, and where they are another
// row's by now.
void Vorlane::CloseRow() {
    ++drag_.Ends;
    drag_.Counted = -1;
    ImgDrag.SetVisible(false);
    DragRestoreLig(drag_.OpenRow);
    ForEachSlide([](eDiapoLight& slide) {
        if (slide.Left() != slide.Col()) slide.Move(slide.Col(), slide.Top());
    });
    drag_.OpenRow = droprow::kNoRow;
}

// The hovered slide makes room on the side of the pointer, and the mark goes there.
void Vorlane::GiveWay(int16_t index, bool rightPart) {
    const auto slide = Diapo.Item(index);
    if (slide->Visible()) {
        const droprow::Standing standing = StandingOf(index);
        const auto places = rightPart ? droprow::GiveWayLeft(standing, RowGap(), ImgDrag.Width())
                                      : droprow::GiveWayRight(standing, ImgDrag.Width());
        for (const float place : places) slide->Move(place, slide->Top());
    }
    PlaceMark(index, rightPart);
}

// --- The mark ---

// The slide beside another one on the same row.
std::optional<droprow::Standing> Vorlane::Neighbour(int16_t index, int32_t neighbour) const {
    if (!Diapo.Loaded(neighbour) || Diapo.Item(neighbour)->Lig() != Diapo.Item(index)->Lig()) return std::nullopt;
    return StandingOf(neighbour);
}

// As high as the slides; in a sheet of one row as high as that, within the sheet.
float Vorlane::MarkHeight() const {
    const float slide = First().Height();
    if (bar_.ScrollDirection == ScrollDirectionType::sdVertical) return slide;
    return std::min(grid::VisibleHeight(Frame()), std::max(slide, kLeastMarkHeight));
}

void Vorlane::PlaceMark(int16_t index, bool rightPart) {
    Attempt([&] {
        ImgDrag.SetCaption(drag_.DisplayText);
        ImgDrag.SetWidth(RowGap());
        const int32_t before = rightPart ? index : index - 1;
        const float left = droprow::MarkLeft(Neighbour(index, before), Neighbour(index, before + 1), ImgDrag.Width(),
                                             grid_.Area.AreaWidth);
        drag_.DropSlot = ToInt16(before + 1);
        const bool stands = Diapo.Count() >= 2 || First().Visible();
        const float top = stands ? Diapo.Item(index)->Top() : static_cast<float>(grid_.Marges);
        ImgDrag.Move(left, top, ImgDrag.Width(), MarkHeight());
        ImgDrag.SetVisible(true);
    });
}

}  // namespace vorlane
