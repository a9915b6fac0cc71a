#include "platform/numbers.h"
#include "platform/qt/colors.h"
#include "platform/qt/surfacepainter.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include <QImage>
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

// A component at a distance from the first vertex, cut off to eight bits.
int Component(uint16_t first, uint16_t second, int64_t distance, int64_t length) {
    return static_cast<int>((first * (length - distance) + second * distance) / (256 * length));
}

QRgb GradientColor(const draw::TRIVERTEX& first, const draw::TRIVERTEX& second, int64_t distance, int64_t length) {
    return qRgb(Component(first.Red, second.Red, distance, length),
                Component(first.Green, second.Green, distance, length),
                Component(first.Blue, second.Blue, distance, length));
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
        Fill(fill.Vertices[rect.UpperLeft], fill.Vertices[rect.LowerRight], fill.Mode == 1);
    }
}

void SurfacePainter::Fill(const draw::TRIVERTEX& first, const draw::TRIVERTEX& second, bool downwards) {
    const Span x = SpanOf(first.X, second.X);
    const Span y = SpanOf(first.Y, second.Y);
    const QRect area = grid_.Area(WinRect{x.first, y.first, x.behind, y.behind});
    if (area.isEmpty()) return;
    const bool swapped = downwards ? y.swapped : x.swapped;
    const draw::TRIVERTEX& from = swapped ? second : first;
    const draw::TRIVERTEX& to = swapped ? first : second;

    const QRect seen = area.intersected(painter_.viewport());
    const int start = downwards ? seen.top() - area.top() : seen.left() - area.left();
    const int count = downwards ? seen.height() : seen.width();
    const int length = downwards ? area.height() : area.width();
    if (seen.isEmpty()) return;
    QImage row(downwards ? QSize(1, count) : QSize(count, 1), QImage::Format_RGB32);
    for (int i = 0; i < count; ++i) {
        row.setPixel(downwards ? 0 : i, downwards ? i : 0, GradientColor(from, to, start + i, length));
    }
    painter_.drawImage(seen, row);
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
        if ((sides & bit) != 0) painter_.fillRect(grid_.Cells(x1, y1, x2, y2), Color(color));
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
            painter_.fillRect(whole.first, y, whole.behind - whole.first, 1, color);
            continue;
        }
        painter_.fillRect(whole.first, y, hole.first - whole.first, 1, color);
        painter_.fillRect(hole.behind, y, whole.behind - hole.behind, 1, color);
    }
}

}  // namespace vorlane
