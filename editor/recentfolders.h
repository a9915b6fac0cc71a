// RecentFolders: the folders opened last, kept in the user's settings.
#pragma once

#include <QStringList>

class QSettings;

namespace vorlane::editor {

class RecentFolders {
public:
    static constexpr int kMost = 10;

    // settings outlives this.
    explicit RecentFolders(QSettings& settings) : settings_(settings) {}

    // From the last one on.
    QStringList list() const;
    void add(const QString& folder);
    void remove(const QString& folder);
    void clear();

private:
    QSettings& settings_;
};

}  // namespace vorlane::editor
