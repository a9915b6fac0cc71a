#include "platform/qt/pointers.h"

#include "platform/qt/qtpicturedata.h"

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

QPixmap Transparent(QSize pixels, double scale) {
    QPixmap empty(pixels);
    empty.setDevicePixelRatio(scale);
    empty.fill(Qt::transparent);
    return empty;
}

}  // namespace

QPixmap PointerFrom(const Picture& icon, double scale) {
    const QSize size = (QSizeF(PixelSizeOf(icon)) * scale).toSize();
    QPixmap pointer = QPixmap::fromImage(RenderPicture(icon, size));
    pointer.setDevicePixelRatio(scale);
    return pointer;
}

QPixmap DragPointer(const Picture& icon, double scale) {
    const QPixmap plain = PointerFrom(icon, scale);
    if (plain.isNull()) return {};
    QPixmap pointer = Transparent(plain.size() * 2, scale);
    QPainter(&pointer).drawPixmap(QPointF(plain.width(), plain.height()) / scale, plain);
    return pointer;
}

QPixmap MovePointer(double scale) {
    QPixmap pointer = Transparent((QSizeF(2 * kReach, 2 * kReach) * scale).toSize(), scale);
    QPainter painter(&pointer);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(kReach, kReach);
    painter.setPen(QPen(Qt::white, kOutline, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.setBrush(Qt::black);
    painter.drawPolygon(Arrow());
    return pointer;
}

}  // namespace vorlane
