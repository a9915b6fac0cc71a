#include "platform/qt/surfacereplay.h"

#include "platform/qt/colors.h"
#include "platform/qt/surfacepainter.h"

#include <algorithm>
#include <utility>

#include <QGuiApplication>
#include <QPainter>
#include <QPalette>

namespace vorlane {

namespace {

using Commands = std::span<const draw::Command>;
using draw::Extent;

constexpr size_t kFew = 16;  // commands that are worth being drawn apart

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
            const Extent extent = draw::ExtentOf(command);
            if (!extent.Touches(part) || part.Holds(extent)) continue;
            part.Include(extent);
            grown = true;
        }
    }
    return part;
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
    auto kept = std::dynamic_pointer_cast<SurfaceReplay>(surface.Image());
    if (kept && kept->look_ == look && kept->revision_ == surface.Revision()) return kept->pixels_;
    if (!kept) {
        kept = std::make_shared<SurfaceReplay>();
        surface.KeepImage(kept);
    }
    if (std::exchange(kept->look_, look) == look) {
        kept->DrawChanges(kept->ChangesOf(surface), surface.Commands(), tools);
    } else {
        kept->DrawAll(surface.Commands(), tools);
    }
    kept->recording_ = surface.Recording();
    kept->count_ = surface.Commands().size();
    kept->revision_ = surface.Revision();
    return kept->pixels_;
}

draw::Changes SurfaceReplay::ChangesOf(const Surface& surface) const {
    const auto& redrawn = surface.LastRedraw();
    if (redrawn && redrawn->Since == revision_) return redrawn->Changes;
    return draw::ChangesBetween(Commands(*recording_).first(count_), surface.Commands());
}

void SurfaceReplay::DrawAll(Commands commands, const PaintTools& tools) {
    if (pixels_.size() != look_.size) pixels_ = QImage(look_.size, QImage::Format_RGB32);
    pixels_.fill(ToQColor(look_.ground, tools.screen));
    QPainter painter(&pixels_);
    SurfacePainter draw(painter, tools, look_.scale);
    for (const draw::Command& command : commands) std::visit(draw, command);
}

void SurfaceReplay::DrawChanges(const draw::Changes& changes, Commands commands, const PaintTools& tools) {
    if (changes.Count > kFew) return DrawAll(commands, tools);
    if (changes.Count == 0) return;
    const Extent changed = Widened(changes.Where, commands, look_.scale);
    const QRect part = OnDevice(changed, look_.scale, pixels_);
    if (part.isEmpty()) return;  // all of it outside

    QPainter painter(&pixels_);
    painter.setClipRect(part);
    painter.fillRect(part, ToQColor(look_.ground, tools.screen));
    SurfacePainter draw(painter, tools, look_.scale);
    for (const draw::Command& command : commands) {
        if (draw::ExtentOf(command).Touches(changed)) std::visit(draw, command);
    }
}

}  // namespace vorlane
