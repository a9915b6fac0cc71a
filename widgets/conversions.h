// Values between the core and the widgets' Qt types.
#pragma once

#include "platform/geometry.h"
#include "platform/picture.h"

#include <string>

#include <QImage>
#include <QPixmap>
#include <QRect>
#include <QString>

namespace vorlane {

std::string ToText(const QString& text);
QString FromText(const std::string& text);

// At scale device pixels a logical one; a null pixmap or image for the empty picture.
QPixmap ToPixmap(const Picture& picture, double scale);
QImage ToImage(const Picture& picture, double scale);

QRect ToQRect(const WinRect& rect);
WinRect FromQRect(const QRect& rect);

}  // namespace vorlane
