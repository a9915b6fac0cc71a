#include "editor/notices.h"

#include <QCoreApplication>

namespace vorlane::editor {

QString Joined(const QStringList& notices) {
    QString joined;
    for (const QString& notice : notices) {
        if (notice.isEmpty()) continue;
        joined = joined.isEmpty() ? notice : QCoreApplication::translate("Notices", "%1 ; %2").arg(joined, notice);
    }
    return joined;
}

}  // namespace vorlane::editor
