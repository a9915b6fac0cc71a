#include "platform/qt/surfacereplay.h"

#include "platform/qt/colors.h"
#include "platform/qt/surfacepainter.h"

#include <algorithm>
#include <limits>
#include <span>
#include <utility>

#include <QGuiApplication>
#include <QPainter>
#include <QPalette>

namespace vorlane {

namespace {

using Commands = std::span<const draw::Command>;

constexpr size_t kFew = 16;    // commands that are worth being drawn apart
constexpr float kMargin = 2;   // pixels that a command may touch beyond its corners
constexpr float kTallest = 4;  // height of a line of text by the points of its font

// Logical pixels; at first it holds nothing.
struct Extent {
    float Left = std::numeric_limits<float>::max();
    float Top = std::numeric_limits<float>::max();
    float Right = std::numeric_limits<float>::lowest();
    float Bottom = std::numeric_limits<float>::lowest();

    void Include(float x, float y) {
        Left = std::min(Left, x - kMargin);
        Top = std::min(Top, y - kMargin);
        Right = std::max(Right, x + kMargin);
        Bottom = std::max(Bottom, y + kMargin);
    }
    void Include(const Extent& other) {
        Left = std::min(Left, other.Left);
        Top = std::min(Top, other.Top);
        Right = std::max(Right, other.Right);
        Bottom = std::max(Bottom, other.Bottom);
    }
    bool Holds(const Extent& other) const {
        return Left <= other.Left && Top <= other.Top && Right >= other.Right && Bottom >= other.Bottom;
    }
    bool Touches(const Extent& other) const {
        return Left < other.Right && other.Left < Right && Top < other.Bottom && other.Top < Bottom;
    }
};

float Single(int32_t value) {
    return static_cast<float>(value);
}

// What a command can touch at most.
struct ExtentOf {
    static Extent Corners(float x1, float y1, float x2, float y2) {
        Extent extent;
        extent.Include(x1, y1);
        extent.Include(x2, y2);
        return extent;
    }
    static Extent Corners(const WinRect& rect) {
        return Corners(Single(rect.Left), Single(rect.Top), Single(rect.Right), Single(rect.Bottom));
    }

    Extent operator()(const draw::Line& line) const { return Corners(line.X1, line.Y1, line.X2, line.Y2); }
    Extent operator()(const draw::OutlinedBox& box) const { return Corners(box.X1, box.Y1, box.X2, box.Y2); }
    Extent operator()(const draw::FilledBox& box) const { return Corners(box.X1, box.Y1, box.X2, box.Y2); }
    // Its width is not known without measuring it.
    Extent operator()(const draw::TextOutA& text) const {
        const float height = kTallest * std::max(text.Font.Size, 1.0F);
        Extent extent =
            Corners(Single(text.X) - height, Single(text.Y) - height, Single(text.X), Single(text.Y) + height);
        extent.Right = std::numeric_limits<float>::max();
        return extent;
    }
    Extent operator()(const draw::GradientFill& fill) const {
        Extent extent;
        for (const draw::TRIVERTEX& vertex : fill.Vertices) extent.Include(Single(vertex.X), Single(vertex.Y));
        return extent;
    }
    Extent operator()(const draw::DrawEdge& edge) const { return Corners(edge.Rect); }
    Extent operator()(const draw::Polygon& polygon) const {
        Extent extent;
        for (const Point& point : polygon.Points) extent.Include(Single(point.X), Single(point.Y));
        return extent;
    }
    Extent operator()(const draw::RoundRect& frame) const { return Corners(frame.Rect); }
    Extent operator()(const draw::SetPixel& pixel) const {
        return Corners(Single(pixel.X), Single(pixel.Y), Single(pixel.X), Single(pixel.Y));
    }
    Extent operator()(const draw::BitBlt& copy) const {
        const float left = Single(copy.X);
        const float top = Single(copy.Y);
        return Corners(left, top, left + Single(copy.Width), top + Single(copy.Height));
    }
};

Extent Around(Commands commands) {
    Extent all;
    for (const draw::Command& command : commands) all.Include(std::visit(ExtentOf{}, command));
    return all;
}

// Whether a painter may make other pixels of a part of it than of the whole: what is slanted, and texts as outlines.
bool IsWhole(const draw::Command& command, double scale) {
    if (scale != 1 && std::holds_alternative<draw::TextOutA>(command)) return true;
    const auto* line = std::get_if<draw::Line>(&command);
    if (line == nullptr) return std::holds_alternative<draw::Polygon>(command);
    return line->X1 != line->X2 && line->Y1 != line->Y2;
}

// With the whole of what it touches and is to be drawn as a whole.
Extent Widened(Extent part, Commands commands, double scale) {
    bool grown = true;
    while (std::exchange(grown, false)) {
        for (const draw::Command& command : commands) {
            if (!IsWhole(command, scale)) continue;
            const Extent extent = std::visit(ExtentOf{}, command);
            if (!extent.Touches(part) || part.Holds(extent)) continue;
            part.Include(extent);
            grown = true;
        }
    }
    return part;
}

// The commands of two recordings without those that both begin and end with.
std::pair<Commands, Commands> Differences(Commands before, Commands after) {
    const size_t most = std::min(before.size(), after.size());
    size_t same = 0;
    while (same < most && before[same] == after[same]) ++same;
    before = before.subspan(same);
    after = after.subspan(same);
    while (!before.empty() && !after.empty() && before.back() == after.back()) {
        before = before.first(before.size() - 1);
        after = after.first(after.size() - 1);
    }
    return {before, after};
}

// The device pixels of an extent, as far as the image has them.
QRect OnDevice(const Extent& extent, double scale, const QImage& image) {
    const auto device = [scale](float place, int limit) {
        return std::clamp(place * scale, -1.0, static_cast<double>(limit) + 1);
    };
    const QPointF first(device(extent.Left, image.width()), device(extent.Top, image.height()));
    const QPointF last(device(extent.Right, image.width()), device(extent.Bottom, image.height()));
    return QRectF(first, last).toAlignedRect().intersected(image.rect());
}

}  // namespace

const QImage& SurfaceReplay::Of(const Surface& surface, QSize size, double scale, const PaintTools& tools) {
    const Look look{size, scale, QGuiApplication::palette().cacheKey(), surface.BackColor()};
    auto kept = std::static_pointer_cast<SurfaceReplay>(surface.Image());
    if (kept && kept->look_ == look && kept->revision_ == surface.Revision()) return kept->pixels_;
    if (!kept) {
        kept = std::make_shared<SurfaceReplay>();
        surface.KeepImage(kept);
    }
    const bool sameLook = std::exchange(kept->look_, look) == look;
    const Recording former = std::exchange(kept->recording_, surface.Recording());
    const size_t formerCount = std::exchange(kept->count_, surface.Commands().size());
    kept->revision_ = surface.Revision();
    if (!sameLook || !kept->DrawChanges(former, formerCount, tools)) kept->DrawAll(tools);
    return kept->pixels_;
}

void SurfaceReplay::DrawAll(const PaintTools& tools) {
    if (pixels_.size() != look_.size) pixels_ = QImage(look_.size, QImage::Format_RGB32);
    pixels_.fill(ToQColor(look_.ground, tools.screen));
    QPainter painter(&pixels_);
    SurfacePainter draw(painter, tools, look_.scale);
    for (const draw::Command& command : *recording_) std::visit(draw, command);
}

bool SurfaceReplay::DrawChanges(const Recording& former, size_t formerCount, const PaintTools& tools) {
    const auto [gone, come] = Differences(Commands(*former).first(formerCount), *recording_);
    if (gone.size() + come.size() > kFew) return false;
    if (gone.empty() && come.empty()) return true;
    Extent changed = Around(gone);
    changed.Include(Around(come));
    changed = Widened(changed, *recording_, look_.scale);
    const QRect part = OnDevice(changed, look_.scale, pixels_);
    if (part.isEmpty()) return true;  // all of it outside

    QPainter painter(&pixels_);
    painter.setClipRect(part);
    painter.fillRect(part, ToQColor(look_.ground, tools.screen));
    SurfacePainter draw(painter, tools, look_.scale);
    for (const draw::Command& command : *recording_) {
        if (std::visit(ExtentOf{}, command).Touches(changed)) std::visit(draw, command);
    }
    return true;
}

}  // namespace vorlane
