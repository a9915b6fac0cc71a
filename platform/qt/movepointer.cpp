#include "platform/qt/movepointer.h"

#include <QPainter>
#include <QPolygonF>

namespace vorlane {

namespace {

constexpr int kReach = 20;  // logical pixels from the middle to each side
constexpr double kOutline = 1.2;

// From its tip.
QPolygonF Arrow() {
    return QPolygonF({{0, 0}, {0, 16}, {3.8, 12.6}, {6.4, 18.4}, {9, 17.2}, {6.5, 11.6}, {11.4, 11.4}});
}

}  // namespace

QPixmap MovePointer(double scale) {
    QPixmap pointer((QSizeF(2 * kReach, 2 * kReach) * scale).toSize());
    pointer.setDevicePixelRatio(scale);
    pointer.fill(Qt::transparent);
    QPainter painter(&pointer);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(kReach, kReach);
    painter.setPen(QPen(Qt::white, kOutline, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.setBrush(Qt::black);
    painter.drawPolygon(Arrow());
    return pointer;
}

}  // namespace vorlane
