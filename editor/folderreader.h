// FolderReader: reads the pictures of a folder on a thread of its own and hands them over in the pieces that its owner
// asks for, ordered by name. It also gathers files and folders of any place, in their order. The user's thread never
// waits for the disk; folders of 100,000 files are usual to it.
//
// A picture is a file with the extension of one, or a file without extension that holds one. Hidden files and folders
// within the folder are passed over.
#pragma once

#include <memory>
#include <thread>
#include <vector>

#include <QObject>
#include <QString>
#include <QStringList>

namespace vorlane::editor {

struct FolderItem {
    QString path;
    QString sortData;
    bool missing = false;  // there is no such file
};

class FolderReader : public QObject {
    Q_OBJECT

public:
    explicit FolderReader(QObject* parent = nullptr);
    ~FolderReader() override;

    // Ends a reading that is under way, of which nothing is heard any more, and begins this one.
    void start(const QString& folder);
    // The same for files and folders; what isn't there or is no picture is passed over, so this doesn't fail.
    void gather(const QStringList& paths);
    // The same for the pictures of a show: each of them comes, also what isn't there and what can't be a picture.
    void list(const QStringList& files);
    void stop();
    // Whether there is something to read or to take yet.
    bool isRunning() const;

    // Up to so many of those that were read, in their order; fewer when there are no more yet.
    std::vector<FolderItem> take(size_t most);

Q_SIGNALS:
    // One of these two follows start(). folder: empty after gather() and list(). total: how many pictures there are.
    void opened(const QString& folder, int total);
    void failed(const QString& folder);
    // There is more to take.
    void available();
    // All was read; some of it may be still to be taken.
    void finished();

private:
    struct Reading;
    struct Worker {
        std::thread thread;
        std::shared_ptr<Reading> reading;
    };

    // Calls signal on the user's thread, as long as the reading isn't stopped.
    template <class Signal>
    static void Tell(const std::shared_ptr<Reading>& reading, Signal signal);
    void Begin(std::shared_ptr<Reading> reading);
    static void Run(const std::shared_ptr<Reading>& reading);
    void JoinEnded();

    std::shared_ptr<Reading> reading_;  // null when there is none
    std::vector<Worker> workers_;       // the present one, and stopped ones that haven't ended yet
};

}  // namespace vorlane::editor
