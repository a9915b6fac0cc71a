#include "platform/qt/colors.h"

#include "platform/desktop.h"

#include <QFontInfo>

namespace vorlane {

QColor ToQColor(OLE_COLOR color, const Screen& screen) {
    const Rgb parts = Parts(IsSystemColor(color) ? screen.SysColor(SystemColorNumber(color)) : color);
    return {parts.Red, parts.Green, parts.Blue};
}

OLE_COLOR FromQColor(const QColor& color) {
    return RGB(color.red(), color.green(), color.blue());
}

QFont ToQFont(const Font& font) {
    QFont result(QString::fromStdString(font.Name));
    result.setPointSizeF(font.Size > 0 ? font.Size : 1);
    result.setBold(font.Bold);
    result.setItalic(font.Italic);
    result.setUnderline(font.Underline);
    result.setStrikeOut(font.Strikethrough);
    return result;
}

Font FromQFont(const QFont& font) {
    const double points = font.pointSizeF() > 0 ? font.pointSizeF() : QFontInfo(font).pointSizeF();
    return {font.family().toStdString(),
            static_cast<float>(points),
            font.bold(),
            font.italic(),
            font.underline(),
            font.strikeOut()};
}

}  // namespace vorlane
