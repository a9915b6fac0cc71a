#include "editor/caption.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFileInfo>
#include <QLocale>

namespace vorlane::editor {

// The locale itself knows no singular for bytes.
QString FileSizeText(qint64 size, const QLocale& locale) {
    const auto bytes = static_cast<int>(size);
    if (size < 1024) return QCoreApplication::translate("Caption", "%Ln octet(s)", nullptr, bytes);
    return locale.formattedDataSize(size, 1, QLocale::DataSizeTraditionalFormat);
}

QString CaptionOf(const QString& path, const QLocale& locale) {
    const QFileInfo file(path);
    if (!file.isFile()) return {};
    const QString day = locale.toString(file.lastModified().date(), QLocale::ShortFormat);
    return FileSizeText(file.size(), locale) + QStringLiteral(" · ") + day;
}

}  // namespace vorlane::editor
