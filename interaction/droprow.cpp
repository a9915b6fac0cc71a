#include "interaction/droprow.h"

#include "platform/numbers.h"

#include <algorithm>

namespace vorlane::droprow {

namespace {

constexpr float kStep = 2;
constexpr float kGiveWayStep = 4;
constexpr int16_t kWidestGap = 35;

float RightOf(const Standing& slide) {
    return slide.Left + slide.Width;
}

}  // namespace

int16_t RowOf(int32_t slide, int16_t columns) {
    return ToInt16(slide / columns + 1);
}

Range SlidesOf(int16_t row, int16_t columns, int32_t slides) {
    const int32_t first = (row - 1) * columns;
    return {first, std::min(slides - 1, first + columns - 1)};
}

int16_t Gap(float areaWidth, float slideWidth, int16_t columns) {
    return ToInt16(Min(kWidestGap, areaWidth - slideWidth * static_cast<float>(columns)));
}

void StepApart(std::vector<Standing>& row, size_t count, float end) {
    for (size_t i = 0; i < count && i < row.size(); ++i) {
        const float wall = i == 0 ? 0 : RightOf(row[i - 1]);
        row[i].Left = std::min(row[i].Left, std::max(row[i].Left - kStep, wall));
    }
    for (size_t i = row.size(); i > count; --i) {
        Standing& slide = row[i - 1];
        const float wall = i == row.size() ? end : row[i].Left;
        slide.Left = std::max(slide.Left, std::min(slide.Left + kStep, wall - slide.Width));
    }
}

void StepHome(std::vector<Standing>& row) {
    for (Standing& slide : row) {
        if (slide.Col > slide.Left) {
            slide.Left = std::min(slide.Col, slide.Left + kStep);
        } else if (slide.Col < slide.Left) {
            slide.Left = std::max(slide.Col, slide.Left - kStep);
        }
    }
}

bool OpenElsewhere(const std::vector<Standing>& row, size_t index) {
    for (size_t i = 0; i < row.size(); ++i) {
        const bool wentRight = row[i].Col < row[i].Left;
        const bool wentLeft = row[i].Col > row[i].Left;
        if ((i < index && wentRight) || (i > index && wentLeft)) return true;
    }
    return false;
}

std::vector<float> GiveWayRight(const Standing& slide, float gap) {
    std::vector<float> places;
    if (slide.Col < slide.Left) return places;
    const float end = slide.Left + gap * (slide.Col > slide.Left ? 2.0F : 1.0F);
    for (float place = slide.Left; place <= end; place += kGiveWayStep) places.push_back(place);
    return places;
}

std::vector<float> GiveWayLeft(const Standing& slide, float gap, float markWidth) {
    std::vector<float> places;
    if (slide.Col > slide.Left) return places;
    const float end = slide.Left - gap * (slide.Col < slide.Left ? 2.0F : 1.0F);
    for (float place = slide.Left; place >= end; place -= kGiveWayStep) {
        places.push_back(place);
        if (place <= 0 || slide.Col - markWidth >= place) break;
    }
    return places;
}

float MarkLeft(const std::optional<Standing>& before, const std::optional<Standing>& after, float markWidth,
               float areaWidth) {
    const float start = before ? RightOf(*before) : 0;
    if (after) return start + std::max(0.0F, (after->Left - start - markWidth) / 2);
    if (!before) return 0;
    return std::min(start + std::max(0.0F, (areaWidth - start - markWidth) / 2), areaWidth - markWidth);
}

int EdgeScroll(const WinRect& sheet, Point pointer, int16_t margin, float slideWidth, float slideHeight,
               ScrollDirectionType direction) {
    const double left = sheet.Left + margin;
    const double top = sheet.Top + margin;
    const double right = sheet.Right - margin;
    const double bottom = sheet.Bottom - margin;
    const bool near = pointer.X >= left - static_cast<double>(slideWidth) / 2 &&
                      pointer.Y >= top - static_cast<double>(slideHeight) / 2 &&
                      pointer.X <= right + static_cast<double>(slideWidth) &&
                      pointer.Y <= bottom + static_cast<double>(slideHeight);
    if (!near) return 0;
    const bool vertical = direction == ScrollDirectionType::sdVertical;
    if (vertical ? pointer.Y < top : pointer.X < left) return -1;
    return (vertical ? pointer.Y > bottom : pointer.X > right) ? 1 : 0;
}

}  // namespace vorlane::droprow
