#include "widgets/conversions.h"

#include "platform/qt/qtpicturedata.h"

namespace vorlane {

std::string ToText(const QString& text) {
    return text.toStdString();
}

QString FromText(const std::string& text) {
    return QString::fromStdString(text);
}

QImage ToImage(const Picture& picture, double scale) {
    if (picture.Type() == 0) return {};
    QImage image = RenderPicture(picture, (QSizeF(PixelSizeOf(picture)) * scale).toSize());
    image.setDevicePixelRatio(scale);
    return image;
}

QPixmap ToPixmap(const Picture& picture, double scale) {
    return QPixmap::fromImage(ToImage(picture, scale));
}

QRect ToQRect(const WinRect& rect) {
    return {rect.Left, rect.Top, rect.Right - rect.Left, rect.Bottom - rect.Top};
}

WinRect FromQRect(const QRect& rect) {
    return {rect.left(), rect.top(), rect.left() + rect.width(), rect.top() + rect.height()};
}

}  // namespace vorlane
