// The rubber band: it inverts the slides that it touches, back again when it leaves them, and scrolls the sheet while
// the mouse is at a side. It scrolls one step for each move of the mouse.
#include "interaction/autoscroll.h"
#include "platform/numbers.h"
#include "platform/withinblock.h"
#include "sheet/vorlane.h"
#include "windows/frmdrag.h"

#include <algorithm>

namespace vorlane {

void Vorlane::StartBand(float x, float y) {
    band_.Active = true;
    band_.Before = SelectedTableau();
    SelRect.Move(x, y, 1, 1);
    band_.StartX = ToInt32(x);
    band_.StartY = ToInt32(y);
    SelRect.SetVisible(true);
    Desktop().screen.SetCapture(Hwnd());
}

void Vorlane::EndBand() {
    Desktop().screen.ReleaseCapture();
    band_.Active = false;
    band_.Before = {};
    SharedFrmDrag(Desktop()).Unload();
    SelRect.SetVisible(false);
    ForEachSlide([](eDiapoLight& slide) { slide.SetSelectedTmp(false); });
}

// Draws the band from its anchor to a point, and sweeps the slides unless the sheet is scrolling under it.
void Vorlane::UpdateBand(float x, float y, bool fromScroll) {
    if (!band_.Active) return;
    Attempt([&] {
        band_.Rect = BandBetween(band_.StartX, band_.StartY, x, y);
        SelRect.ZOrder();
        SelRect.Move(band_.Rect.Left, band_.Rect.Top, band_.Rect.Width, band_.Rect.Height);
        Desktop().clock.DoEvents();
        const bool over = !band_.Active;  // the button was let go meanwhile
        if (fromScroll || over || !First().Visible()) return;
        ForEachSlide([this](eDiapoLight& slide) { SweepSlide(slide); });
    });
}

void Vorlane::SweepSlide(eDiapoLight& slide) {
    if (slide.Value() < 0) return;
    const bool hit = grid::BandTouches(band_.Rect, {slide.Col(), slide.Lig(), slide.Width(), slide.Height()});
    if (hit == slide.SelectedTmp()) return;
    slide.SetSelectedTmp(hit);
    const bool before = std::binary_search(band_.Before.begin(), band_.Before.end(), slide.Value());
    Select(slide, GroundOf(slide.Value()), hit != before);
    SelectItem(slide.Value(), hit != before);
}

// --- Scrolling by the band ---

// Gives whether the sheet has scrolled.
bool Vorlane::ScrollByBand(float x, float y) {
    if (!VScroll.Visible() || band_.AutoScrolling || !band_.Active) return false;
    const BandZone zone{Desktop().windows.GetWindowRect(Hwnd()), grid_.Marges,
                        bar_.ScrollDirection == ScrollDirectionType::sdVertical, VScroll.Value() > VScroll.Min(),
                        VScroll.Value() < VScroll.Max()};
    const BandSide side = SideUnder(zone, Desktop().screen.CursorPos());
    if (side == BandSide::None) return false;
    const WithinBlock busy(band_.AutoScrolling);
    Attempt([&] { MoveAnchor(side); });
    UpdateBand(x, y, true);
    if (band_.Active) Attempt([&] { SelectAtSide(side); });
    if (!band_.Active) return true;
    const bool back = side == BandSide::Left || side == BandSide::Top;
    const int64_t step = back ? -VScroll.SmallChange() : VScroll.SmallChange();
    Attempt([&] { VScroll.SetValue(ToInt32(Min(VScroll.Max(), VScroll.Value() + step))); });
    return true;
}

// The band's anchor goes with the slides.
void Vorlane::MoveAnchor(BandSide side) {
    const float column = First().Width() + static_cast<float>(grid_.MargeX);
    const float row = First().Height() + static_cast<float>(grid_.MargeY);
    if (side == BandSide::Left) band_.StartX = ToInt32(static_cast<double>(band_.StartX) + column);
    if (side == BandSide::Right) band_.StartX = ToInt32(static_cast<double>(band_.StartX) - column);
    if (side == BandSide::Top) band_.StartY = ToInt32(static_cast<double>(band_.StartY) + row);
    if (side == BandSide::Bottom) band_.StartY = ToInt32(static_cast<double>(band_.StartY) - row);
}

// What the band does to the items at the side before the sheet scrolls there. It is measured by the insertion mark's
// place, not by the band's own.
void Vorlane::SelectAtSide(BandSide side) {
    const int32_t slides = Diapo.Count();
    const auto beyond = [&](int32_t cells) { return ToInt16(Min(Max(slides - 2, 0), cells - 1)); };
    if (side == BandSide::Left) {
        SelectItem(First().Value() - 1, First().Left() < ImgDrag.Left() + ImgDrag.Width());
    } else if (side == BandSide::Right) {
        const int16_t k = beyond(grid_.CountDiapoX);
        const auto slide = Diapo.Item(k);
        const bool passed = slide->Left() + slide->Width() <= ImgDrag.Left() && k < slides - 1;
        SweepAtSide(ToInt16(k + 1), !passed);
    } else if (side == BandSide::Top) {
        if (First().Top() < ImgDrag.Top() + ImgDrag.Height()) return;
        band_.Before.clear();
        SelectedClear();
    } else if (grid_.CountDiapoX == 1) {
        const int16_t k = beyond(CountDiapo());
        const auto slide = Diapo.Item(k);
        const bool passed = slide->Top() + slide->Height() <= ImgDrag.Top() && k < slides - 1;
        if (passed) SweepAtSide(ToInt16(k + 1), false);
    }
}

void Vorlane::SweepAtSide(int16_t index, bool swept) {
    const auto slide = Diapo.Item(index);
    if (slide->Value() < 0) return;
    SelectItem(slide->Value(), swept);
    Select(*slide, GroundOf(slide->Value()), swept);
    slide->SetSelectedTmp(swept);
}

}  // namespace vorlane
