#include "platform/qt/pixelgrid.h"

#include "platform/numbers.h"

#include <algorithm>

namespace vorlane {

namespace {

// Far outside of any device, and small enough to be added to another such place.
constexpr double kFar = 1 << 28;

}  // namespace

int PixelGrid::Edge(double place) const {
    return ToInt32(Int(std::clamp(place * scale_ + 0.5, -kFar, kFar)));
}

QRect PixelGrid::Cells(double x1, double y1, double x2, double y2) const {
    const QPoint first(Edge(std::min(x1, x2)), Edge(std::min(y1, y2)));
    const QPoint behind(Edge(std::max(x1, x2) + 1), Edge(std::max(y1, y2) + 1));
    return {first, behind - QPoint(1, 1)};
}

QRect PixelGrid::Area(const Box& box) const {
    const QPoint first(Edge(box.Left), Edge(box.Top));
    const QPoint behind(Edge(box.Right()), Edge(box.Bottom()));
    return {first, behind - QPoint(1, 1)};
}

QRect PixelGrid::Area(const WinRect& rect) const {
    const QPoint first(Edge(rect.Left), Edge(rect.Top));
    const QPoint behind(Edge(rect.Right), Edge(rect.Bottom));
    return {first, behind - QPoint(1, 1)};
}

int PixelGrid::Length(double pixels) const {
    return std::max(1, Edge(pixels));
}

}  // namespace vorlane
