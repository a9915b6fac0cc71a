#include "platform/qt/controlpainter.h"

#include "platform/image.h"
#include "platform/ombrel.h"
#include "platform/qt/colors.h"
#include "platform/qt/lookkey.h"
#include "platform/qt/looks.h"
#include "platform/qt/scaledpictures.h"
#include "platform/qt/surfacepainter.h"
#include "platform/qt/surfacereplay.h"
#include "platform/shape.h"
#include "platform/usercontrol.h"

#include <iterator>
#include <memory>
#include <utility>
#include <vector>

#include <QPainter>
#include <QPixmap>
#include <QRegion>

namespace vorlane {

namespace {

// Of a control inside of another: many have the same frames.
QPixmap SharedReplayOf(const Surface& surface, QSize size, double scale, const PaintTools& tools) {
    return tools.replays.Get(LookKey::Of(surface, size, scale), [&] {
        QPixmap pixels(size);
        pixels.fill(ToQColor(surface.BackColor(), tools.screen));
        QPainter painter(&pixels);
        SurfacePainter(painter, tools, scale).Replay(surface);
        return pixels;
    });
}

// Where the controls on a surface leave it bare.
struct BareGround : SurfaceImage {
    BareGround(const QRect& area, std::vector<QRect> covered) : Area(area), Covered(std::move(covered)), Bare(area) {
        for (const QRect& rect : Covered) Bare -= rect;
    }

    QRect Area;
    std::vector<QRect> Covered;
    QRegion Bare;
};

}  // namespace

ControlPainter::ControlPainter(QPainter& painter, const PaintTools& tools, double scale)
    : painter_(painter), tools_(tools), grid_(scale) {}

void ControlPainter::Paint(const UserControl& root, const QRect& damaged) {
    const QRect area(0, 0, grid_.Edge(root.Width()), grid_.Edge(root.Height()));
    damaged_ = damaged.intersected(area);
    PaintAll(root, area, Replays::Own);
}

QRect ControlPainter::AreaOf(const Control& control) const {
    return grid_.Area(control.Bounds()).translated(origin_);
}

void ControlPainter::PaintAll(const UserControl& control, const QRect& area, Replays replays) {
    const int frame = control.FrameWidth() > 0 ? grid_.Length(control.FrameWidth()) : 0;
    if (frame > 0) painter_.fillRect(damaged_, ToQColor(FromSystem(SystemColor::ButtonShadow), tools_.screen));
    const QRect inside = area.adjusted(frame, frame, -frame, -frame);
    damaged_ &= inside;
    if (damaged_.isEmpty()) return;
    origin_ = inside.topLeft();
    painter_.setClipRect(damaged_);
    if (control.Surface().Commands().empty()) {
        PaintGround(control, inside);
    } else {
        PaintSurface(control.Surface(), inside.size(), replays);
    }
    const auto& children = control.Children();
    for (auto child = std::rbegin(children); child != std::rend(children); ++child) {
        if ((*child)->Visible() && damaged_.intersects(AreaOf(**child))) (*child)->Accept(*this);
    }
}

// Where no control covers it: the slides of a sheet cover nearly all of its ground, and mostly stay where they are.
void ControlPainter::PaintGround(const UserControl& control, const QRect& inside) {
    const Surface& surface = control.Surface();
    std::vector<QRect> covered;
    for (const Control* child : control.Children()) {
        if (child->Visible() && dynamic_cast<const UserControl*>(child) != nullptr) covered.push_back(AreaOf(*child));
    }
    auto ground = std::dynamic_pointer_cast<BareGround>(surface.Image());
    if (!ground || ground->Area != inside || ground->Covered != covered) {
        ground = std::make_shared<BareGround>(inside, std::move(covered));
        surface.KeepImage(ground);
    }
    const QColor color = ToQColor(surface.BackColor(), tools_.screen);
    for (const QRect& rect : ground->Bare.intersected(damaged_)) painter_.fillRect(rect, color);
}

void ControlPainter::PaintSurface(const Surface& surface, QSize size, Replays replays) {
    const double scale = grid_.Scale();
    const QRect part = damaged_.translated(-origin_);
    if (replays == Replays::Own) {
        // Of the control that fills a window: no other one looks like it, and its recording may be long.
        painter_.drawImage(damaged_.topLeft(), SurfaceReplay::Of(surface, size, scale, tools_), part);
    } else {
        painter_.drawPixmap(damaged_.topLeft(), SharedReplayOf(surface, size, scale, tools_), part);
    }
}

template <class Drawn>
void ControlPainter::Show(const Drawn& control) {
    const QRect area = AreaOf(control);
    const auto draw = [&] { return Draw(control, area.size(), tools_, grid_.Scale()); };
    painter_.drawPixmap(area.topLeft(), tools_.looks.Get(LookKey::Of(control, area.size(), grid_.Scale()), draw));
}

void ControlPainter::Visit(const UserControl& control) {
    Show(control);
}

void ControlPainter::Visit(const OmbrelSlider& slider) {
    Show(slider);
}

QPixmap ControlPainter::Draw(const UserControl& control, QSize pixels, const PaintTools& tools, double scale) {
    QPixmap look(pixels);
    QPainter painter(&look);
    ControlPainter inside(painter, tools, scale);
    inside.damaged_ = look.rect();
    inside.PaintAll(control, look.rect(), Replays::Shared);
    return look;
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
