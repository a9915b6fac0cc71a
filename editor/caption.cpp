#include "editor/caption.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFileInfo>
#include <QLocale>

namespace vorlane::editor {

namespace {

// The locale itself knows no singular for bytes.
QString SizeText(qint64 size, const QLocale& locale) {
    if (size < 1024) return QCoreApplication::translate("Caption", "%Ln octet(s)", nullptr, static_cast<int>(size));
    return locale.formattedDataSize(size, 1, QLocale::DataSizeTraditionalFormat);
}

}  // namespace

QString CaptionOf(const QString& path, const QLocale& locale) {
    const QFileInfo file(path);
    if (!file.isFile()) return {};
    const QString day = locale.toString(file.lastModified().date(), QLocale::ShortFormat);
    return SizeText(file.size(), locale) + QStringLiteral(" · ") + day;
}

}  // namespace vorlane::editor
