// PixelGrid: where the logical pixels of a control lie on a device of some density. Each of them is a cell of whole
// device pixels, and cells that touch stay in touch, so that nothing is blurred and no gap opens at any density. At a
// density that is no whole number cells differ in width by one device pixel.
#pragma once

#include "platform/geometry.h"

#include <QRect>

namespace vorlane {

class PixelGrid {
public:
    explicit PixelGrid(double scale) : scale_(scale) {}

    double Scale() const { return scale_; }
    // The device pixel at which a logical place begins, halves upwards.
    int Edge(double place) const;
    // The device rectangle of the cells from column x1 to x2 and row y1 to y2, both inside, in any order.
    QRect Cells(double x1, double y1, double x2, double y2) const;
    // The device rectangle of a box; empty for one of negative size.
    QRect Area(const Box& box) const;
    QRect Area(const WinRect& rect) const;
    // Device pixels of a length, at least 1.
    int Length(double pixels) const;

private:
    double scale_;
};

}  // namespace vorlane
