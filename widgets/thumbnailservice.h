// ThumbnailService: thumbnails of picture files for a host's user interface. It answers at once what it has at hand,
// lets worker threads see to the rest, and tells when that is there. The thread that uses it never decodes anything
// and touches no file, but for the state of one and its entry in the cache where it asks for that one's name.
//
// What the user sees comes first: tell it by setWanted() after each scroll, which also drops what was asked for and not
// begun. Thumbnails are kept in memory and in the user's thumbnail cache on disk; a file that changed since is noticed
// at the next request and told again.
#pragma once

#include "widgets/thumbnail.h"
#include "widgets/thumbnailmemory.h"
#include "widgets/thumbnailworker.h"

#include <memory>

#include <QElapsedTimer>
#include <QHash>
#include <QObject>
#include <QStringList>

namespace vorlane {

struct ThumbnailOptions {
    int workers = 2;
    qint64 memoryBudget = qint64{128} << 20;                // bytes
    QString cacheFolder = ThumbnailCache::DefaultFolder();  // empty: nothing is kept on disk
    int checkInterval = 1000;                               // milliseconds for which a file is taken for unchanged
    ThumbnailDecoder decoder = DecodeThumbnail;
};

class ThumbnailService : public QObject {
    Q_OBJECT

public:
    enum class State {
        Ready,
        Failed,   // the file can't be shown
        Pending,  // ready() or failed() follows, unless the job is dropped
    };
    struct Answer {
        State state = State::Pending;
        Thumbnail thumbnail{};  // also of a pending one, where a smaller or older one is at hand; else null
    };
    // What happened since the service was made.
    struct Counts {
        int decoded = 0;
        int fromDisk = 0;  // thumbnails, and files known to be broken
        int failed = 0;
        int unchanged = 0;  // checks that found nothing new
        int dropped = 0;
    };

    explicit ThumbnailService(ThumbnailOptions options = {}, QObject* parent = nullptr);
    // Waits for the decodes that are under way, one a worker at most.
    ~ThumbnailService() override;

    // The thumbnail whose longest side is size or the next larger of the four sizes, or all pixels of a smaller
    // picture.
    Answer request(const QString& path, int size);
    // These are in sight, in this order; requests for others that aren't begun are dropped.
    void setWanted(const QStringList& paths);

    // The file in the cache on disk that holds that thumbnail of the file as it is now; empty without one. Reads it.
    QString cachedFile(const QString& path, int size) const;

    // Whether the last that was heard of the file is that it can't be shown. Asks nobody.
    bool isKnownBroken(const QString& path) const;
    // How many requests are to be answered yet.
    int pending() const { return static_cast<int>(pending_.size()); }
    qint64 memoryBytes() const { return memory_.Bytes(); }
    const Counts& counts() const { return counts_; }
    // Blocks until the workers have nothing more to do, the cache on disk included.
    void waitForWorkers() { workers_->WaitUntilIdle(); }

Q_SIGNALS:
    void ready(const QString& path, const vorlane::Thumbnail& thumbnail);
    void failed(const QString& path);
    void pendingChanged(int count);

private:
    void Ask(const QString& path, int edge);
    void Check(const QString& path, ThumbnailMemory::Entry& entry, int edge);
    void Take(const ThumbnailOutcome& outcome);
    void Count(const ThumbnailOutcome& outcome);
    bool IsOutdone(const ThumbnailOutcome& outcome) const;
    bool Settle(const ThumbnailJob& job);

    const int checkInterval_;
    const ThumbnailCache cache_;
    ThumbnailMemory memory_;
    QHash<QString, int> pending_;  // sizes asked for
    Counts counts_;
    QElapsedTimer clock_;
    std::unique_ptr<ThumbnailWorkers> workers_;  // ends before all that it delivers to
};

}  // namespace vorlane
