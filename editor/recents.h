// Recents: the folders and show files opened last, kept in the user's settings.
#pragma once

#include <QStringList>

class QSettings;

namespace vorlane::editor {

class Recents {
public:
    static constexpr int kMost = 10;

    // settings outlives this.
    explicit Recents(QSettings& settings) : settings_(settings) {}

    // From the last one on.
    QStringList list() const;
    void add(const QString& path);
    void remove(const QString& path);
    void clear();

private:
    QSettings& settings_;
};

}  // namespace vorlane::editor
