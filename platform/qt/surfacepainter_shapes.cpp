#include "platform/numbers.h"
#include "platform/qt/colors.h"
#include "platform/qt/surfacepainter.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include <QPainter>

namespace vorlane {

namespace {

// --- Gradients ---

struct Span {
    int32_t first;
    int32_t behind;
    bool swapped;
};

Span SpanOf(int32_t a, int32_t b) {
    return a <= b ? Span{a, b, false} : Span{b, a, true};
}

// A component at each distance from the first vertex, cut off to eight bits: (first (length - p) + second p) / (256
// length), step by step without another division.
class Component {
public:
    // Of vertices, as their fields hold it.
    Component(int16_t firstBits, int16_t secondBits, int64_t start, int64_t length) : divisor_(256 * length) {
        const int64_t first = draw::TRIVERTEX::Value(firstBits);
        const int64_t second = draw::TRIVERTEX::Value(secondBits);
        rest_ = first * (length - start) + second * start;
        const int64_t step = second - first;
        wholeStep_ = step / divisor_ - (step % divisor_ < 0 ? 1 : 0);
        restStep_ = step - wholeStep_ * divisor_;
        Carry(rest_ / divisor_);
    }
    int Value() const { return static_cast<int>(whole_); }
    void Step() {
        whole_ += wholeStep_;
        rest_ += restStep_;
        if (rest_ >= divisor_) Carry(1);
    }

private:
    void Carry(int64_t wholes) {
        whole_ += wholes;
        rest_ -= wholes * divisor_;
    }

    int64_t divisor_;
    int64_t whole_ = 0;
    int64_t rest_ = 0;  // 0 to below the divisor
    int64_t wholeStep_ = 0;
    int64_t restStep_ = 0;
};

// The colours from a distance on.
std::vector<QRgb> GradientColors(const draw::TRIVERTEX& first, const draw::TRIVERTEX& second, int start, int count,
                                 int length) {
    Component red(first.Red, second.Red, start, length);
    Component green(first.Green, second.Green, start, length);
    Component blue(first.Blue, second.Blue, start, length);
    std::vector<QRgb> colors(static_cast<size_t>(count));
    for (QRgb& color : colors) {
        color = qRgb(red.Value(), green.Value(), blue.Value());
        red.Step();
        green.Step();
        blue.Step();
    }
    return colors;
}

// --- Edges ---

enum EdgeBits : uint32_t { kRaisedOuter = 1, kSunkenOuter = 2, kRaisedInner = 4, kSunkenInner = 8 };
enum EdgeFlags : uint32_t {
    kLeft = 1,
    kTop = 2,
    kRight = 4,
    kBottom = 8,
    kSoft = 0x1000,
    kFlat = 0x4000,
    kMono = 0x8000
};

struct RingColors {
    SystemColor topLeft;
    SystemColor bottomRight;
};

// bit: one of EdgeBits.
RingColors ColorsOf(uint32_t bit, uint32_t flags) {
    using enum SystemColor;
    const bool outer = bit == kRaisedOuter || bit == kSunkenOuter;
    if ((flags & kMono) != 0) return outer ? RingColors{WindowFrame, WindowFrame} : RingColors{Window, Window};
    if ((flags & kFlat) != 0) {
        return outer ? RingColors{ButtonShadow, ButtonShadow} : RingColors{ButtonFace, ButtonFace};
    }
    const bool soft = (flags & kSoft) != 0;
    switch (bit) {
        case kRaisedOuter:
            return {soft ? ButtonHighlight : Light, DarkShadow};
        case kSunkenOuter:
            return {soft ? DarkShadow : ButtonShadow, ButtonHighlight};
        case kRaisedInner:
            return {soft ? Light : ButtonHighlight, ButtonShadow};
        default:
            return {soft ? ButtonShadow : DarkShadow, Light};
    }
}

// rect without a ring of one pixel on the given sides.
WinRect Inside(const WinRect& rect, uint32_t sides) {
    const auto one = [&](uint32_t side) { return (sides & side) != 0 ? 1 : 0; };
    return {rect.Left + one(kLeft), rect.Top + one(kTop), rect.Right - one(kRight), rect.Bottom - one(kBottom)};
}

// --- Rounded frames ---

// How many pixels of row the corner of a rounded box cuts off at each end: those whose middle lies outside of the
// ellipse.
int CornerInset(int row, int height, double cornerWidth, double cornerHeight) {
    const double fromTop = std::min(row, height - 1 - row) + 0.5;
    const double a = cornerWidth / 2;
    const double b = cornerHeight / 2;
    if (a <= 0 || b <= 0 || fromTop >= b) return 0;
    const double y = (b - fromTop) / b;
    const double edge = a - a * std::sqrt(1 - y * y);
    return ToInt32(std::ceil(edge - 0.5));
}

struct RowSpan {
    int first;
    int behind;
};

// The pixels of a row of a rounded box; nothing in a row outside of it.
RowSpan RowOf(const QRect& box, QSizeF corner, int y) {
    if (y < box.top() || y > box.bottom()) return {0, 0};
    const int inset = CornerInset(y - box.top(), box.height(), corner.width(), corner.height());
    return {box.left() + inset, box.right() + 1 - inset};
}

}  // namespace

void SurfacePainter::operator()(const draw::GradientFill& fill) {
    for (const draw::GRADIENT_RECT& rect : fill.Rects) {
        const auto vertex = [&](int32_t index) { return fill.Vertices[static_cast<size_t>(index)]; };
        Fill(vertex(rect.UpperLeft), vertex(rect.LowerRight), fill.Mode == 1);
    }
}

void SurfacePainter::Fill(const draw::TRIVERTEX& first, const draw::TRIVERTEX& second, bool downwards) {
    const Span x = SpanOf(first.x, second.x);
    const Span y = SpanOf(first.Y, second.Y);
    const QRect area = grid_.Area(WinRect{x.first, y.first, x.behind, y.behind});
    if (area.isEmpty()) return;
    const bool swapped = downwards ? y.swapped : x.swapped;
    const draw::TRIVERTEX& from = swapped ? second : first;
    const draw::TRIVERTEX& to = swapped ? first : second;

    const QRect seen = rows_ ? rows_.Seen(area) : area.intersected(painter_.viewport());
    if (seen.isEmpty()) return;
    const int start = downwards ? seen.top() - area.top() : seen.left() - area.left();
    const int count = downwards ? seen.height() : seen.width();
    const int length = downwards ? area.height() : area.width();
    const std::vector<QRgb> colors = GradientColors(from, to, start, count, length);
    if (rows_ && !downwards) return rows_.FillRows(seen, colors.data());
    for (int i = 0; i < count; ++i) {
        const QRect line = downwards ? QRect(seen.left(), seen.top() + i, seen.width(), 1)
                                     : QRect(seen.left() + i, seen.top(), 1, seen.height());
        Fill(line, QColor::fromRgb(colors[static_cast<size_t>(i)]));
    }
}

void SurfacePainter::operator()(const draw::DrawEdge& edge) {
    const uint32_t sides = edge.Flags & 0xF;
    WinRect rect = edge.Rect;
    for (const uint32_t both : {kRaisedOuter | kSunkenOuter, kRaisedInner | kSunkenInner}) {
        const uint32_t bits = edge.Edge & both;
        if (bits == 0) continue;
        const RingColors colors = ColorsOf(bits, edge.Flags);
        if (bits != both) Ring(rect, sides, colors.topLeft, colors.bottomRight);
        rect = Inside(rect, sides);
    }
}

void SurfacePainter::Ring(const WinRect& rect, uint32_t sides, SystemColor topLeft, SystemColor bottomRight) {
    if (rect.Right <= rect.Left || rect.Bottom <= rect.Top) return;
    const int right = rect.Right - 1;
    const int bottom = rect.Bottom - 1;
    const auto side = [&](uint32_t bit, int x1, int y1, int x2, int y2, SystemColor color) {
        if ((sides & bit) != 0) Fill(grid_.Cells(x1, y1, x2, y2), Color(color));
    };
    side(kTop, rect.Left, rect.Top, right, rect.Top, topLeft);
    side(kLeft, rect.Left, rect.Top, rect.Left, bottom, topLeft);
    side(kRight, right, rect.Top, right, bottom, bottomRight);
    side(kBottom, rect.Left, bottom, right, bottom, bottomRight);
}

void SurfacePainter::operator()(const draw::RoundRect& frame) {
    const QRect outer = grid_.Area(frame.Rect);
    const int pen = grid_.Length(1);
    const QRect inner = outer.adjusted(pen, pen, -pen, -pen);
    const QSizeF asked = QSizeF(frame.CornerWidth, frame.CornerHeight) * grid_.Scale();
    const QSizeF corner = asked.expandedTo(QSizeF(0, 0)).boundedTo(outer.size());
    const QSizeF innerCorner = (corner - QSizeF(2 * pen, 2 * pen)).expandedTo(QSizeF(0, 0));
    const QColor color = Color(frame.Outline);
    for (int y = std::max(outer.top(), 0); y <= std::min(outer.bottom(), painter_.viewport().bottom()); ++y) {
        const RowSpan whole = RowOf(outer, corner, y);
        const RowSpan hole = inner.isValid() ? RowOf(inner, innerCorner, y) : RowSpan{0, 0};
        if (hole.behind <= hole.first) {
            Fill(QRect(whole.first, y, whole.behind - whole.first, 1), color);
            continue;
        }
        Fill(QRect(whole.first, y, hole.first - whole.first, 1), color);
        Fill(QRect(hole.behind, y, whole.behind - hole.behind, 1), color);
    }
}

}  // namespace vorlane
