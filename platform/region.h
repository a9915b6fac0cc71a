// Region: the part of a window that there is, in pixels of the window. It is made of simple shapes; what two of them
// share is left out, so that a hole is a shape inside another one.
#pragma once

#include "platform/geometry.h"

#include <cstdint>
#include <string>
#include <vector>

namespace vorlane {

class Region {
public:
    // Nothing at all.
    Region() = default;

    // Right and bottom outside.
    static Region CreateRectRgn(int32_t left, int32_t top, int32_t right, int32_t bottom);
    // Width and height of the ellipses that round the corners, cut to the box. A rounded region and an ellipse cover
    // one pixel less than a rectangle of the same numbers on the right and at the bottom.
    static Region CreateRoundRectRgn(int32_t left, int32_t top, int32_t right, int32_t bottom, int32_t cornerWidth,
                                     int32_t cornerHeight);
    static Region CreateEllipticRgn(int32_t left, int32_t top, int32_t right, int32_t bottom);
    // What lies in exactly one of the two.
    static Region ExclusiveOr(const Region& a, const Region& b);

    bool Contains(int32_t x, int32_t y) const;

    // The shapes, each as rectangles that do not overlap, top to bottom.
    std::vector<std::vector<WinRect>> Shapes() const;

    // "rect 0,0,100,76", "round 0,0,100,40 15x15", "ellipse 5,5,7,7"; more shapes behind " xor ", "nothing" for none.
    std::string dump() const;

    bool operator==(const Region&) const = default;

private:
    enum class Kind : uint8_t { Rectangle, RoundRectangle, Ellipse };
    struct Shape {
        Kind kind;
        WinRect box;
        int32_t cornerWidth = 0;
        int32_t cornerHeight = 0;
        bool operator==(const Shape&) const = default;
    };

    explicit Region(Shape shape) : shapes_{shape} {}
    static std::vector<WinRect> Rectangles(const Shape& shape);
    static std::string Spelled(const Shape& shape);

    std::vector<Shape> shapes_;
};

}  // namespace vorlane
