// ControlPainter: paints a tree of controls from their state: a control's surface, then its children back to front.
// What has a native peer (scroll bars, text boxes) is left to it. Only what touches the damaged region is painted.
#pragma once

#include "platform/controlvisitor.h"
#include "platform/qt/painttools.h"
#include "platform/qt/pixelgrid.h"

#include <QPoint>
#include <QRect>

class QPainter;

namespace vorlane {

class Control;
class Surface;

class ControlPainter final : public ControlVisitor {
public:
    // painter: its unit is the device pixel, scale of which make a logical one.
    ControlPainter(QPainter& painter, const PaintTools& tools, double scale);

    // root fills the painter's device from (0, 0). damaged: device pixels.
    void Paint(const UserControl& root, const QRect& damaged);

    void Visit(const UserControl& control) override;
    void Visit(const Image& image) override;
    void Visit(const Label& label) override;
    void Visit(const Shape& shape) override;
    void Visit(const TextBox&) override {}
    void Visit(const ScrollbarPlus&) override {}
    void Visit(const OmbrelProgressBar& gauge) override;
    void Visit(const OmbrelSlider& slider) override;
    void Visit(const OmbrelGradient& panel) override;

private:
    // The device rectangle of a control in the container that is being painted.
    QRect AreaOf(const Control& control) const;
    void PaintInside(const UserControl& control, const QRect& area);
    void PaintSurface(const UserControl& control, const QRect& area);

    QPainter& painter_;
    PaintTools tools_;
    PixelGrid grid_;
    QPoint origin_;  // of the container that is being painted
    QRect damaged_;  // what of it is to be painted
};

}  // namespace vorlane
