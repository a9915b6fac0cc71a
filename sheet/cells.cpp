// The sheet's grid: what is computed from its present size and slides.
#include "platform/numbers.h"
#include "sheet/vorlane.h"

namespace vorlane {

namespace {

constexpr double kHeightByWidth = 0.76;  // of a slide

int16_t CountAcross(const grid::Area& area, const grid::Frame& frame, int16_t gap) {
    return grid::CountThatFit(area.AreaWidth, frame.SlideWidth, gap);
}

int16_t CountDown(const grid::Area& area, const grid::Frame& frame, int16_t gap) {
    if (frame.Direction == ScrollDirectionType::sdHorizontal) return 1;
    return grid::CountThatFit(area.AreaHeight, frame.SlideHeight, gap);
}

}  // namespace

grid::Frame Vorlane::Frame() const {
    return {ScaleWidth(),      ScaleHeight(),        VScroll.Width(), VScroll.Height(),
            VScroll.Visible(), bar_.ScrollDirection, First().Width(), First().Height()};
}

void Vorlane::ComputeArea() {
    grid_.Area = grid::ComputeArea(Frame(), grid_.Marges);
}

int16_t Vorlane::ComputeCountX() const {
    return CountAcross(grid_.Area, Frame(), grid_.MargeDiapoMin);
}

int16_t Vorlane::ComputeCountY() const {
    return CountDown(grid_.Area, Frame(), grid_.MargeDiapoMin);
}

// Fails where slides of that size make no grid.
void Vorlane::RequireGrid(double width, double height) const {
    grid::Frame frame = Frame();
    frame.SlideWidth = static_cast<float>(width);
    frame.SlideHeight = static_cast<float>(height);
    const grid::Area area = grid::ComputeArea(frame, grid_.Marges);
    grid::PoolSize(CountAcross(area, frame, grid_.MargeDiapoMin), CountDown(area, frame, grid_.MargeDiapoMin));
}

int16_t Vorlane::RowLength() const {
    return bar_.ScrollDirection == ScrollDirectionType::sdVertical ? grid_.CountDiapoX : grid_.CountDiapoY;
}

int16_t Vorlane::RowCount() const {
    return bar_.ScrollDirection == ScrollDirectionType::sdVertical ? grid_.CountDiapoY : grid_.CountDiapoX;
}

// Gives the gaps to the grid and the place of the first cell back.
grid::Spread Vorlane::SpreadCells(double slideWidth, double slideHeight) {
    const grid::Spread spread = grid::ComputeSpread(grid_.Area, grid_.CountDiapoX, grid_.CountDiapoY, slideWidth,
                                                    slideHeight, grid_.MargeDiapoMin, grid_.MargeDiapoAutoAdjust);
    grid_.MargeX = spread.MargeX;
    grid_.MargeY = spread.MargeY;
    return spread;
}

int16_t Vorlane::GetDiapoFromCol(float& x, float& y, bool& rightPart) {
    const auto find = [&] {
        const int16_t cell = grid::CellAt(Frame(), grid_.CountDiapoX, grid_.CountDiapoY, x, y);
        const int16_t index = ToInt16(Min(cell, Diapo.Count() - 1));
        const auto slide = Diapo.Item(index);
        if (First().Picture().Handle() != 0) rightPart = x - slide->Left() > First().Width() / 2;
        x -= Max(0.0F, slide->Left());
        y -= Max(0.0F, slide->Top());
        return index;
    };
    return Guard(int16_t{0}, find, "GetDiapoFromCol", x, y, rightPart);
}

int16_t Vorlane::DiapoWidth(bool withInterval) const {
    return ToInt16(First().Width() + (withInterval ? grid_.MargeX : 0));
}

int16_t Vorlane::DiapoHeight(bool withInterval) const {
    return ToInt16(First().Height() + (withInterval ? grid_.MargeY : 0));
}

void Vorlane::SetDiapoWidth(int16_t width) {
    if (width == First().Width()) return;
    if (ChangeSlideSize(true, width, ToInt16(width * kHeightByWidth))) PropertyChanged("DiapoWidth");
}

void Vorlane::SetDiapoHeight(int16_t height) {
    if (height == First().Height()) return;
    if (ChangeSlideSize(true, ToInt16(First().Width()), height)) PropertyChanged("DiapoHeight");
}

}  // namespace vorlane
