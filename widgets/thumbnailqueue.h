// ThumbnailQueue: what is to be done next. A plain value that knows no thread; its owner locks it.
//
// The files that are wanted come first, in the order in which they are wanted; then the others, the newest first; last
// the mere checks whether a file is still in its known state, in the same order. A file stands in the queue once, and
// one that is being worked on isn't queued again for the same or less.
#pragma once

#include "widgets/thumbnail.h"

#include <compare>
#include <map>
#include <optional>

#include <QHash>
#include <QString>
#include <QStringList>

namespace vorlane {

struct ThumbnailJob {
    QString path;
    int edge = 0;                      // one of kThumbnailEdges
    std::optional<FileStamp> known{};  // a check: there is something to do only if the file is in another state

    bool IsCheck() const { return known.has_value(); }
};

class ThumbnailQueue {
public:
    // A job for a file that has one already is merged into it: the larger size, and a check only if both are.
    void Push(ThumbnailJob job);
    // Makes the job of a file the newest, if there is one.
    void Renew(const QString& path);
    // From now on these are wanted, in this order. Jobs of any other file are dropped; returns those files, but for
    // mere checks.
    QStringList SetWanted(const QStringList& paths);
    // The next job, which counts as being worked on until Done. Nothing when the queue is empty.
    std::optional<ThumbnailJob> Pop();
    void Done(const QString& path);
    void Clear();

    bool IsEmpty() const { return jobs_.empty(); }
    int Count() const { return static_cast<int>(jobs_.size()); }

private:
    struct Rank {
        bool check = false;
        bool unwanted = false;
        qint64 place = 0;  // among the wanted; otherwise the age, negative

        auto operator<=>(const Rank&) const = default;
    };

    Rank RankOf(const ThumbnailJob& job);
    bool IsUnderWay(const ThumbnailJob& job) const;

    std::map<Rank, ThumbnailJob> jobs_;
    QHash<QString, Rank> ranks_;
    QHash<QString, qint64> wanted_;
    QHash<QString, ThumbnailJob> running_;
    qint64 newest_ = 0;
};

}  // namespace vorlane
