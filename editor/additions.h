// Additions: reads what the user adds to a show, files and folders, one lot after the other, off the user's thread.
#pragma once

#include "editor/folderreader.h"

#include <deque>
#include <vector>

#include <QObject>
#include <QStringList>

namespace vorlane::editor {

class Additions : public QObject {
    Q_OBJECT

public:
    explicit Additions(QObject* parent = nullptr);

    // beforeKey: the item that they are to stand in front of, -1 for the end.
    void add(const QStringList& paths, int beforeKey);
    // Forgets all that isn't read.
    void clear();
    bool isRunning() const { return !waiting_.empty(); }

Q_SIGNALS:
    // Empty when there was no picture among them.
    void read(const std::vector<vorlane::editor::FolderItem>& items, int beforeKey);

private:
    struct Lot {
        QStringList paths;
        int beforeKey;
    };

    void Next();
    void Take();

    FolderReader reader_;
    std::deque<Lot> waiting_;  // the first one is being read
};

}  // namespace vorlane::editor
