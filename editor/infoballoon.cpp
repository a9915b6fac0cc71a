#include "editor/infoballoon.h"

#include "editor/cameradata.h"
#include "editor/caption.h"
#include "widgets/filekind.h"
#include "widgets/vorlanewidget.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFileInfo>
#include <QImageReader>
#include <QLocale>

namespace vorlane::editor {

namespace {

constexpr int kInformation = 1;  // icons of a balloon
constexpr int kWarning = 2;

// As it is shown: turned as the file says.
QSize PictureSize(const QString& path) {
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    const QSize size = reader.size();
    return reader.transformation().testFlag(QImageIOHandler::TransformationRotate90) ? size.transposed() : size;
}

QString ExposureText(double seconds, const QLocale& locale) {
    if (seconds >= 0.3) return locale.toString(seconds, 'g', 3) + QStringLiteral(" s");
    return QStringLiteral("1/%1 s").arg(locale.toString(qRound64(1 / seconds)));
}

// How the picture was exposed, in a line.
QString ExposureLine(const CameraData& data, const QLocale& locale) {
    QStringList parts;
    if (data.exposure > 0) parts += ExposureText(data.exposure, locale);
    if (data.aperture > 0) parts += QStringLiteral("f/") + locale.toString(data.aperture, 'g', 3);
    if (data.focalLength > 0) parts += locale.toString(data.focalLength, 'g', 4) + QStringLiteral(" mm");
    if (data.sensitivity > 0) parts += QStringLiteral("ISO %1").arg(data.sensitivity);
    return parts.join(QStringLiteral(" · "));
}

QStringList CameraLines(const CameraData& data, const QLocale& locale) {
    QStringList lines;
    if (data.taken.isValid())
        lines += QCoreApplication::translate("InfoBalloon", "Prise le %1")
                     .arg(locale.toString(data.taken, QLocale::ShortFormat));
    lines += {data.camera, ExposureLine(data, locale)};
    lines.removeAll(QString());
    return lines;
}

}  // namespace

QStringList InfoLines(const QString& path, const QLocale& locale) {
    const QFileInfo file(path);
    if (!file.isFile()) return {};
    QStringList lines;
    const bool isPicture = FileKindOf(path) == FileKind::Picture;
    if (isPicture) {
        const QSize size = PictureSize(path);
        lines += size.isValid() ? QCoreApplication::translate("InfoBalloon", "%1 × %2 pixels")
                                      .arg(locale.toString(size.width()), locale.toString(size.height()))
                                : QCoreApplication::translate("InfoBalloon", "Image illisible");
    }
    lines += FileSizeText(file.size(), locale);
    const QString modified = isPicture ? QCoreApplication::translate("InfoBalloon", "Modifiée le %1")
                                       : QCoreApplication::translate("InfoBalloon", "Modifié le %1");
    lines += modified.arg(locale.toString(file.lastModified(), QLocale::ShortFormat));
    return lines + CameraLines(CameraDataOf(path), locale);
}

void ShowInfoBalloons(VorlaneWidget& sheet) {
    sheet.SetShowInfo(true);
    // The item's own path: a slide knows a file without extension with a point behind.
    const auto tell = [&sheet](int slot, const QString&, QString* title, QString* text, int* icon) {
        const QString path = sheet.ImageFullPath(sheet.Value(slot));
        const QStringList lines = InfoLines(path, sheet.locale());
        *title = QFileInfo(path).fileName();
        *icon = lines.isEmpty() ? kWarning : kInformation;
        *text = lines.isEmpty() ? QCoreApplication::translate("InfoBalloon", "Fichier introuvable")
                                : lines.join(QLatin1Char('|'));
    };
    QObject::connect(&sheet, &VorlaneWidget::OnToolTipInfos, &sheet, tell);
}

}  // namespace vorlane::editor
