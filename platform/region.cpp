#include "platform/region.h"

#include "platform/numbers.h"

#include <algorithm>
#include <cmath>

namespace vorlane {

namespace {

// Pixels that an ellipse of that width and height leaves free at the left of its row.
int32_t RowInset(int32_t width, int32_t height, int32_t row) {
    const double y = (row + 0.5) * 2 / height - 1;
    return ToInt32(width / 2.0 * (1 - std::sqrt(std::max(0.0, 1 - y * y))));
}

bool Inside(const WinRect& rect, int32_t x, int32_t y) {
    return x >= rect.Left && x < rect.Right && y >= rect.Top && y < rect.Bottom;
}

std::string Numbers(const WinRect& rect) {
    return std::to_string(rect.Left) + "," + std::to_string(rect.Top) + "," + std::to_string(rect.Right) + "," +
           std::to_string(rect.Bottom);
}

}  // namespace

Region Region::CreateRectRgn(int32_t left, int32_t top, int32_t right, int32_t bottom) {
    return Region(Shape{Kind::Rectangle, {left, top, right, bottom}});
}

Region Region::CreateRoundRectRgn(int32_t left, int32_t top, int32_t right, int32_t bottom, int32_t cornerWidth,
                                  int32_t cornerHeight) {
    return Region(Shape{Kind::RoundRectangle, {left, top, right, bottom}, cornerWidth, cornerHeight});
}

Region Region::CreateEllipticRgn(int32_t left, int32_t top, int32_t right, int32_t bottom) {
    return Region(Shape{Kind::Ellipse, {left, top, right, bottom}, right - left, bottom - top});
}

Region Region::ExclusiveOr(const Region& a, const Region& b) {
    Region both = a;
    both.shapes_.insert(both.shapes_.end(), b.shapes_.begin(), b.shapes_.end());
    return both;
}

bool Region::Contains(int32_t x, int32_t y) const {
    bool inside = false;
    for (const auto& shape : Shapes()) {
        const auto covers = [&](const WinRect& rect) { return Inside(rect, x, y); };
        inside ^= std::any_of(shape.begin(), shape.end(), covers);
    }
    return inside;
}

std::vector<std::vector<WinRect>> Region::Shapes() const {
    std::vector<std::vector<WinRect>> shapes;
    for (const Shape& shape : shapes_) shapes.push_back(Rectangles(shape));
    return shapes;
}

std::vector<WinRect> Region::Rectangles(const Shape& shape) {
    WinRect box = shape.box;
    if (shape.kind != Kind::Rectangle) --box.Right, --box.Bottom;
    const int32_t width = box.Right - box.Left;
    const int32_t height = box.Bottom - box.Top;
    if (width < 1 || height < 1) return {};
    const int32_t cornerWidth = std::clamp(shape.cornerWidth, 0, width);
    const int32_t cornerHeight = std::clamp(shape.cornerHeight, 0, height);
    const int32_t above = cornerHeight / 2;
    const int32_t below = cornerHeight - above;  // the middle row of an odd corner counts here

    std::vector<WinRect> rows;
    const auto addRow = [&](int32_t y, int32_t cornerRow) {
        const int32_t inset = RowInset(cornerWidth, cornerHeight, cornerRow);
        if (2 * inset < width) rows.push_back({box.Left + inset, y, box.Right - inset, y + 1});
    };
    for (int32_t row = 0; row < above; ++row) addRow(box.Top + row, row);
    if (above + below < height) rows.push_back({box.Left, box.Top + above, box.Right, box.Bottom - below});
    for (int32_t row = above; row < cornerHeight; ++row) addRow(box.Bottom - cornerHeight + row, row);
    return rows;
}

std::string Region::Spelled(const Shape& shape) {
    switch (shape.kind) {
        case Kind::Rectangle:
            return "rect " + Numbers(shape.box);
        case Kind::RoundRectangle:
            return "round " + Numbers(shape.box) + " " + std::to_string(shape.cornerWidth) + "x" +
                   std::to_string(shape.cornerHeight);
        case Kind::Ellipse:
            return "ellipse " + Numbers(shape.box);
    }
    return {};
}

std::string Region::dump() const {
    std::string text;
    for (const Shape& shape : shapes_) text += (text.empty() ? "" : " xor ") + Spelled(shape);
    return text.empty() ? "nothing" : text;
}

}  // namespace vorlane
