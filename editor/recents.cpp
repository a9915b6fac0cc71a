#include "editor/recents.h"

#include <QSettings>

namespace vorlane::editor {

namespace {

QString Key() {
    return QStringLiteral("recentFolders");
}

}  // namespace

QStringList Recents::list() const {
    return settings_.value(Key()).toStringList().mid(0, kMost);
}

void Recents::add(const QString& path) {
    QStringList paths = list();
    paths.removeAll(path);
    paths.prepend(path);
    settings_.setValue(Key(), paths.mid(0, kMost));
}

void Recents::remove(const QString& path) {
    QStringList paths = list();
    paths.removeAll(path);
    settings_.setValue(Key(), paths);
}

void Recents::clear() {
    settings_.remove(Key());
}

}  // namespace vorlane::editor
