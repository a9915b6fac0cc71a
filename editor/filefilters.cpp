#include "editor/filefilters.h"

#include <QCoreApplication>

namespace vorlane::editor {

QString FilterFor(FileKind kind) {
    const QString kinds = kind == FileKind::Sound ? QCoreApplication::translate("FileFilters", "Sons (%1)")
                                                  : QCoreApplication::translate("FileFilters", "Images (%1)");
    const QString all = QCoreApplication::translate("FileFilters", "Tous les fichiers (*)");
    return kinds.arg(NamePatternsOf(kind)) + QStringLiteral(";;") + all;
}

}  // namespace vorlane::editor
