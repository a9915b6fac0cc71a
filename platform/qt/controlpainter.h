// ControlPainter: paints a tree of controls from their state: a control's surface, then its children back to front.
// What has a native peer (scroll bars, text boxes) is left to it. Only what touches the damaged region is painted, and
// a control inside of another is shown as it was drawn before, as long as it holds the same.
#pragma once

#include "platform/controlvisitor.h"
#include "platform/qt/painttools.h"
#include "platform/qt/pixelgrid.h"

#include <cstdint>

#include <QPixmap>
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
    // Whose the kept replay of a surface is.
    enum class Replays : uint8_t { Own, Shared };

    // What a control looks like in that many pixels, and a slider.
    static QPixmap Draw(const UserControl& control, QSize pixels, const PaintTools& tools, double scale);
    static QPixmap Draw(const OmbrelSlider& slider, QSize pixels, const PaintTools& tools, double scale);
    // Shows a control as it was drawn before, when it holds the same, and draws it otherwise.
    template <class Drawn>
    void Show(const Drawn& control);

    // The device rectangle of a control in the container that is being painted.
    QRect AreaOf(const Control& control) const;
    // Everything of a control that is damaged. area: that of the control in the painter's device.
    void PaintAll(const UserControl& control, const QRect& area, Replays replays);
    // Of a control whose surface has nothing on it. inside: within its frame.
    void PaintGround(const UserControl& control, const QRect& inside);
    void PaintSurface(const Surface& surface, QSize size, Replays replays);

    QPainter& painter_;
    PaintTools tools_;
    PixelGrid grid_;
    QPoint origin_;  // of the inside of what is being painted
    QRect damaged_;  // what of it is to be painted
};

}  // namespace vorlane
