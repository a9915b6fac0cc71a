// ThumbnailWorkers: the threads of the thumbnail service. Each does one job at a time: it looks into the cache on disk,
// else decodes the file's picture, and hands over what came of it. Entries for the cache are written when there is
// nothing else to do.
#pragma once

#include "widgets/thumbnail.h"
#include "widgets/thumbnailcache.h"
#include "widgets/thumbnailqueue.h"

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

#include <QString>
#include <QStringList>

namespace vorlane {

// What came of decoding a file.
struct ThumbnailDecoded {
    enum class State { Fine, Broken, Unreadable };
    State state = State::Unreadable;
    Thumbnail thumbnail{};
};

// Decodes the picture of a file, reduced to edge; called on the workers' threads, several at once.
using ThumbnailDecoder = std::function<ThumbnailDecoded(const QString& path, int edge)>;

// The library's own decoder. Unreadable: the file is missing or may not be read; broken: its content is no picture.
ThumbnailDecoded DecodeThumbnail(const QString& path, int edge);

struct ThumbnailOutcome {
    enum class State { Fine, Failed, Unchanged };
    ThumbnailJob job;
    State state = State::Failed;
    FileStamp stamp{};      // taken before the file was read
    Thumbnail thumbnail{};  // of State::Fine
    bool decoded = false;   // else the cache on disk knew it
    bool broken = false;    // of State::Failed: the file can be read, but holds no picture
};

class ThumbnailWorkers {
public:
    // deliver is called on the workers' threads. count: 1 or more.
    ThumbnailWorkers(int count, ThumbnailCache cache, ThumbnailDecoder decoder,
                     std::function<void(ThumbnailOutcome)> deliver);
    // Lets go of all jobs and entries that aren't begun, and waits for those that are.
    ~ThumbnailWorkers();

    ThumbnailWorkers(const ThumbnailWorkers&) = delete;
    ThumbnailWorkers& operator=(const ThumbnailWorkers&) = delete;

    // As ThumbnailQueue has them.
    void Push(ThumbnailJob job);
    void Renew(const QString& path);
    QStringList SetWanted(const QStringList& paths);
    // Waits until all jobs are done and all entries written.
    void WaitUntilIdle();

private:
    struct Entry {
        QString path;
        FileStamp stamp;
        Thumbnail thumbnail;  // null for a broken file
        int edge;
    };

    void Run();
    void DoJob(std::unique_lock<std::mutex>& lock);
    void WriteEntry(std::unique_lock<std::mutex>& lock);
    ThumbnailOutcome Work(const ThumbnailJob& job) const;
    void Keep(const ThumbnailOutcome& outcome);
    bool HasWork() const { return !queue_.IsEmpty() || !entries_.empty(); }

    const ThumbnailCache cache_;
    const ThumbnailDecoder decoder_;
    const std::function<void(ThumbnailOutcome)> deliver_;

    std::mutex mutex_;  // of all that follows but the threads
    std::condition_variable work_;
    std::condition_variable idle_;
    ThumbnailQueue queue_;
    std::deque<Entry> entries_;
    int busy_ = 0;
    bool ending_ = false;
    std::vector<std::thread> threads_;
};

}  // namespace vorlane
