#include "editor/recentfolders.h"

#include <QSettings>

namespace vorlane::editor {

namespace {

QString Key() {
    return QStringLiteral("recentFolders");
}

}  // namespace

QStringList RecentFolders::list() const {
    return settings_.value(Key()).toStringList().mid(0, kMost);
}

void RecentFolders::add(const QString& folder) {
    QStringList folders = list();
    folders.removeAll(folder);
    folders.prepend(folder);
    settings_.setValue(Key(), folders.mid(0, kMost));
}

void RecentFolders::remove(const QString& folder) {
    QStringList folders = list();
    folders.removeAll(folder);
    settings_.setValue(Key(), folders);
}

void RecentFolders::clear() {
    settings_.remove(Key());
}

}  // namespace vorlane::editor
