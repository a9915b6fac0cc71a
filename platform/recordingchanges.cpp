#include "platform/recordingchanges.h"

#include <algorithm>

namespace vorlane::draw {

namespace {

constexpr float kMargin = 2;  // pixels that a command may touch beyond its corners
// By the points of a text's font:
constexpr float kLargest = 4;  // height of a line of text, and width of one of its letters
constexpr float kFigure = 2;   // width of a figure or a sign of a time, which every font has narrow
constexpr float kUnmeasured = std::numeric_limits<float>::infinity();  // width of any other letter
constexpr float kBeyond = 1;  // what letters may reach over the text's left and top

float Single(int32_t value) {
    return static_cast<float>(value);
}

Extent Corners(float x1, float y1, float x2, float y2) {
    return {std::min(x1, x2) - kMargin, std::min(y1, y2) - kMargin, std::max(x1, x2) + kMargin,
            std::max(y1, y2) + kMargin};
}

Extent Corners(const WinRect& rect) {
    return Corners(Single(rect.Left), Single(rect.Top), Single(rect.Right), Single(rect.Bottom));
}

Extent At(int32_t x, int32_t y) {
    return Corners(Single(x), Single(y), Single(x), Single(y));
}

float WidthOf(char letter) {
    if (letter >= '-' && letter <= ':') return kFigure;
    return letter >= ' ' && letter <= '~' ? kLargest : kUnmeasured;
}

struct Measure {
    Extent operator()(const Line& line) const { return Corners(line.X1, line.Y1, line.X2, line.Y2); }
    Extent operator()(const OutlinedBox& box) const { return Corners(box.X1, box.Y1, box.X2, box.Y2); }
    Extent operator()(const FilledBox& box) const { return Corners(box.X1, box.Y1, box.X2, box.Y2); }
    // How wide other letters are is not known without measuring them.
    Extent operator()(const TextOutA& text) const {
        const float points = std::max(text.Font.Size, 1.0F);
        float width = 0;
        for (const char letter : text.Text) width += WidthOf(letter);
        return Corners(Single(text.X) - kBeyond * points, Single(text.Y) - kBeyond * points,
                       std::min(Single(text.X) + width * points, std::numeric_limits<float>::max()),
                       Single(text.Y) + kLargest * points);
    }
    Extent operator()(const GradientFill& fill) const {
        Extent extent;
        for (const TRIVERTEX& vertex : fill.Vertices) extent.Include(At(vertex.x, vertex.Y));
        return extent;
    }
    Extent operator()(const DrawEdge& edge) const { return Corners(edge.Rect); }
    Extent operator()(const Polygon& polygon) const {
        Extent extent;
        for (const Point& point : polygon.Points) extent.Include(At(point.X, point.Y));
        return extent;
    }
    Extent operator()(const RoundRect& frame) const { return Corners(frame.Rect); }
    Extent operator()(const SetPixel& pixel) const { return At(pixel.X, pixel.Y); }
    Extent operator()(const BitBlt& copy) const {
        const float left = Single(copy.X);
        const float top = Single(copy.Y);
        return Corners(left, top, left + Single(copy.Width), top + Single(copy.Height));
    }
};

}  // namespace

void Extent::Include(const Extent& other) {
    Left = std::min(Left, other.Left);
    Top = std::min(Top, other.Top);
    Right = std::max(Right, other.Right);
    Bottom = std::max(Bottom, other.Bottom);
}

bool Extent::Holds(const Extent& other) const {
    return Left <= other.Left && Top <= other.Top && Right >= other.Right && Bottom >= other.Bottom;
}

bool Extent::Touches(const Extent& other) const {
    return Left < other.Right && other.Left < Right && Top < other.Bottom && other.Top < Bottom;
}

Extent ExtentOf(const Command& command) {
    return std::visit(Measure{}, command);
}

Changes ChangesBetween(std::span<const Command> before, std::span<const Command> after) {
    const size_t most = std::min(before.size(), after.size());
    size_t same = 0;
    while (same < most && before[same] == after[same]) ++same;
    before = before.subspan(same);
    after = after.subspan(same);
    while (!before.empty() && !after.empty() && before.back() == after.back()) {
        before = before.first(before.size() - 1);
        after = after.first(after.size() - 1);
    }
    Changes changes{before.size() + after.size(), {}};
    for (const auto& commands : {before, after}) {
        for (const Command& command : commands) changes.Where.Include(ExtentOf(command));
    }
    return changes;
}

}  // namespace vorlane::draw
