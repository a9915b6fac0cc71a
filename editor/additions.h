// Additions: reads what the user adds to a show, files and folders, one lot after the other, off the user's thread.
#pragma once

#include "editor/folderreader.h"

#include <deque>
#include <vector>

#include <QObject>
#include <QStringList>

namespace vorlane::editor {

// What is added at once.
struct Lot {
    QStringList paths;
    int beforeKey;   // the item that they are to stand in front of, -1 for the end
    QString notice;  // what is to be said along with it
};

class Additions : public QObject {
    Q_OBJECT

public:
    explicit Additions(QObject* parent = nullptr);

    void add(const Lot& lot);
    // Forgets all that isn't read.
    void clear();
    bool isRunning() const { return !waiting_.empty(); }

Q_SIGNALS:
    // Empty when there was no picture among them.
    void read(const std::vector<vorlane::editor::FolderItem>& items, const vorlane::editor::Lot& lot);

private:
    void Next();
    void Take();

    FolderReader reader_;
    std::deque<Lot> waiting_;  // the first one is being read
};

}  // namespace vorlane::editor
