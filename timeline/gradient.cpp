#include "timeline/gradient.h"

#include "platform/failure.h"
#include "platform/numbers.h"

#include <cmath>

namespace vorlane::gradient {

namespace {

TRIVERTEX Vertex(float x, float y, Rgb color) {
    return {ToInt32(x), ToInt32(y), color.Red << 8, color.Green << 8, color.Blue << 8, 0};
}

int32_t Sum(Rgb color) {
    return color.Red + color.Green + color.Blue;
}

}  // namespace

Mesh MeshOf(int32_t direction, Rgb a, Rgb b, float x, float y, float right, float bottom) {
    const uint32_t mode = Across(direction) ? 0 : 1;
    if (!Mirrored(direction)) return {{Vertex(x, y, a), Vertex(right, bottom, b)}, {{0, 1}}, mode};
    const bool across = Across(direction);
    const float turnRight = across ? right / 2 : right;  // where the first half ends
    const float turnBottom = across ? bottom : bottom / 2;
    const float backLeft = across ? right / 2 : x;  // where the second begins
    const float backTop = across ? y : bottom / 2;
    return {{Vertex(x, y, a), Vertex(turnRight, turnBottom, b), Vertex(backLeft, backTop, b), Vertex(right, bottom, a)},
            {{0, 1}, {2, 3}},
            mode};
}

Shift ShiftPerPixel(Rgb a, Rgb b, float span, bool mirrored) {
    if (span == 0) throw failures::DivisionByZero();
    const float times = mirrored ? 2 : 1;
    const auto step = [=](int32_t from, int32_t to) { return times * (static_cast<float>(to - from) / span); };
    return {step(a.Red, b.Red), step(a.Green, b.Green), step(a.Blue, b.Blue)};
}

float Steps(float i, float span, bool mirrored) {
    return mirrored && i > span / 2 ? span - i : i;
}

Median MedianOf(Rgb set0, Rgb set1, float size, int32_t mode) {
    if (size == 0) throw failures::DivisionByZero();
    float steps = 0;
    int set = 0;
    if (mode == 1 || mode == 2) {
        steps = mode == 1 ? size / 5 : size / 2;
        set = Sum(set0) <= Sum(set1) ? 1 : 0;
    } else if (mode == 3) {
        steps = size / 5;
        set = Sum(set0) >= Sum(set1) ? 1 : 0;
    }
    const auto amount = [=](int32_t from, int32_t to) {
        return -steps * std::abs(static_cast<float>(to - from) / size);
    };
    return {set, {amount(set0.Red, set1.Red), amount(set0.Green, set1.Green), amount(set0.Blue, set1.Blue)}};
}

}  // namespace vorlane::gradient
