#include "editor/caption.h"

#include <QDateTime>
#include <QFileInfo>
#include <QLocale>

namespace vorlane::editor {

QString CaptionOf(const QString& path, const QLocale& locale) {
    const QFileInfo file(path);
    if (!file.isFile()) return {};
    const QString size = locale.formattedDataSize(file.size(), 1, QLocale::DataSizeTraditionalFormat);
    const QString day = locale.toString(file.lastModified().date(), QLocale::ShortFormat);
    return size + QStringLiteral(" · ") + day;
}

}  // namespace vorlane::editor
