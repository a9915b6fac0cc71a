// The user in front of a widget.
#pragma once

#include <QCoreApplication>
#include <QImage>
#include <QMouseEvent>
#include <QWidget>

namespace vorlane::test {

inline void SendMouse(QWidget& widget, QEvent::Type type, QPointF place, Qt::MouseButton button, bool down) {
    const Qt::MouseButtons held = down ? Qt::MouseButtons(button) : Qt::NoButton;
    QMouseEvent event(type, place, widget.mapToGlobal(place), button, held, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
}

inline void Click(QWidget& widget, QPointF place, Qt::MouseButton button = Qt::LeftButton) {
    SendMouse(widget, QEvent::MouseButtonPress, place, button, true);
    SendMouse(widget, QEvent::MouseButtonRelease, place, button, false);
}

inline QImage Plain(int width, int height, const QColor& color) {
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

}  // namespace vorlane::test
