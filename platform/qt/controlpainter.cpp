#include "platform/qt/controlpainter.h"

#include "platform/image.h"
#include "platform/qt/colors.h"
#include "platform/qt/scaledpictures.h"
#include "platform/qt/surfacepainter.h"
#include "platform/shape.h"
#include "platform/usercontrol.h"

#include <iterator>
#include <utility>

#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <QPixmap>

namespace vorlane {

namespace {

// A surface as it was replayed last.
struct Replayed final : SurfaceImage {
    uint64_t revision = 0;
    qint64 theme = 0;
    double scale = 0;
    QPixmap pixels;
};

const QPixmap& ReplayOf(const Surface& surface, QSize size, double scale, const PaintTools& tools) {
    const qint64 theme = QGuiApplication::palette().cacheKey();
    auto image = std::static_pointer_cast<Replayed>(surface.Image());
    if (image && image->revision == surface.Revision() && image->theme == theme && image->scale == scale &&
        image->pixels.size() == size) {
        return image->pixels;
    }
    if (!image) image = std::make_shared<Replayed>();
    surface.KeepImage(image);
    image->revision = surface.Revision();
    image->theme = theme;
    image->scale = scale;
    if (image->pixels.size() != size) image->pixels = QPixmap(size);
    image->pixels.fill(ToQColor(surface.BackColor(), tools.screen));
    QPainter painter(&image->pixels);
    SurfacePainter(painter, tools, scale).Replay(surface);
    return image->pixels;
}

}  // namespace

ControlPainter::ControlPainter(QPainter& painter, const PaintTools& tools, double scale)
    : painter_(painter), tools_(tools), grid_(scale) {}

void ControlPainter::Paint(const UserControl& root, const QRect& damaged) {
    const QRect area(0, 0, grid_.Edge(root.Width()), grid_.Edge(root.Height()));
    damaged_ = damaged.intersected(area);
    if (!damaged_.isEmpty()) PaintInside(root, area);
}

QRect ControlPainter::AreaOf(const Control& control) const {
    return grid_.Area(control.Bounds()).translated(origin_);
}

void ControlPainter::Visit(const UserControl& control) {
    PaintInside(control, AreaOf(control));
}

void ControlPainter::PaintInside(const UserControl& control, const QRect& area) {
    const int frame = control.FrameWidth() > 0 ? grid_.Length(control.FrameWidth()) : 0;
    if (frame > 0) painter_.fillRect(area, ToQColor(FromSystem(SystemColor::ButtonShadow), tools_.screen));
    const QRect inside = area.adjusted(frame, frame, -frame, -frame);
    const QRect damaged = damaged_.intersected(inside);
    if (damaged.isEmpty()) return;

    const QRect outerDamaged = std::exchange(damaged_, damaged);
    const QPoint outerOrigin = std::exchange(origin_, inside.topLeft());
    painter_.setClipRect(damaged_);
    PaintSurface(control, inside);
    const auto& children = control.Children();
    for (auto child = std::rbegin(children); child != std::rend(children); ++child) {
        if ((*child)->Visible() && damaged_.intersects(AreaOf(**child))) (*child)->Accept(*this);
    }
    damaged_ = outerDamaged;
    origin_ = outerOrigin;
    painter_.setClipRect(damaged_);
}

void ControlPainter::PaintSurface(const UserControl& control, const QRect& area) {
    const Surface& surface = control.Surface();
    if (surface.Commands().empty()) {
        surface.KeepImage(nullptr);
        painter_.fillRect(damaged_, ToQColor(surface.BackColor(), tools_.screen));
        return;
    }
    const QPixmap& pixels = ReplayOf(surface, area.size(), grid_.Scale(), tools_);
    painter_.drawPixmap(damaged_.topLeft(), pixels, damaged_.translated(-area.topLeft()));
}

void ControlPainter::Visit(const Image& image) {
    const QRect area = AreaOf(image);
    const QPixmap pixels = tools_.pictures.Get(image.Picture(), area.size());
    if (!pixels.isNull()) painter_.drawPixmap(area.topLeft(), pixels);
}

void ControlPainter::Visit(const Shape& shape) {
    const QRect area = AreaOf(shape);
    const int width = grid_.Length(shape.BorderWidth());
    const QColor color = ToQColor(shape.BorderColor(), tools_.screen);
    const QRect inside = area.adjusted(width, width, -width, -width);
    if (!inside.isValid()) return painter_.fillRect(area, color);
    painter_.fillRect(QRect(area.topLeft(), inside.topRight() + QPoint(width, -1)), color);
    painter_.fillRect(QRect(inside.bottomLeft() + QPoint(-width, 1), area.bottomRight()), color);
    painter_.fillRect(QRect(area.left(), inside.top(), width, inside.height()), color);
    painter_.fillRect(QRect(inside.right() + 1, inside.top(), width, inside.height()), color);
}

}  // namespace vorlane
