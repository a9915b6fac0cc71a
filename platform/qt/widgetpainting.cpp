#include "platform/qt/widgetpainting.h"

#include "platform/failure.h"
#include "platform/qt/colors.h"
#include "platform/qt/controlpainter.h"
#include "platform/usercontrol.h"

#include <cmath>

#include <QPainter>
#include <QRegion>
#include <QTransform>

namespace vorlane {

namespace {

// The device pixels of a rectangle.
QRect OnDevice(const QRect& rect, double scale) {
    return QRectF(rect.x() * scale, rect.y() * scale, rect.width() * scale, rect.height() * scale).toAlignedRect();
}

// Makes the device pixel the painter's unit, from a whole one on. Returns how many of them make a logical pixel.
double CountInDevicePixels(QPainter& painter) {
    const QTransform device = painter.deviceTransform();
    const bool upright = device.type() <= QTransform::TxScale && device.m11() > 0 && device.m11() == device.m22();
    if (!upright) return 1;
    painter.scale(1 / device.m11(), 1 / device.m11());
    painter.translate(std::round(device.dx()) - device.dx(), std::round(device.dy()) - device.dy());
    return device.m11();
}

}  // namespace

QRect TouchedBy(const Box& box) {
    return QRectF(box.Left, box.Top, box.Width, box.Height).toAlignedRect().adjusted(-1, -1, 1, 1);
}

void PaintOnWidget(QPainter& painter, const QRegion& part, const UserControl& root, const PaintTools& tools) {
    const double scale = CountInDevicePixels(painter);
    Attempt([&] {
        ControlPainter control(painter, tools, scale);
        for (const QRect& rect : part) {
            const QRect damaged = OnDevice(rect, scale);
            // At a density that is no whole number the widget's last pixel may reach beyond the control.
            if (scale != std::floor(scale)) {
                painter.setClipping(false);
                painter.fillRect(damaged, ToQColor(root.Surface().BackColor(), tools.screen));
            }
            control.Paint(root, damaged);
        }
    });
}

}  // namespace vorlane
