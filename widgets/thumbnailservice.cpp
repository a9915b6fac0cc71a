#include "widgets/thumbnailservice.h"

#include <algorithm>
#include <utility>

#include <QMetaObject>
#include <QPointer>

namespace vorlane {

ThumbnailService::ThumbnailService(ThumbnailOptions options, QObject* parent)
    : QObject(parent),
      checkInterval_(options.checkInterval),
      cache_(options.cacheFolder),
      memory_(options.memoryBudget) {
    clock_.start();
    const auto deliver = [this](ThumbnailOutcome outcome) {
        const auto take = [this, taken = std::move(outcome)] { Take(taken); };
        QMetaObject::invokeMethod(this, take, Qt::QueuedConnection);
    };
    workers_ = std::make_unique<ThumbnailWorkers>(options.workers, cache_, std::move(options.decoder), deliver);
}

ThumbnailService::~ThumbnailService() = default;

ThumbnailService::Answer ThumbnailService::request(const QString& path, int size) {
    const int edge = ThumbnailEdge(size);
    ThumbnailMemory::Entry* entry = memory_.Find(path);
    if (!entry || !entry->Serves(edge)) {
        Ask(path, edge);
        return {State::Pending, entry ? entry->thumbnail : Thumbnail{}};
    }
    Check(path, *entry, edge);
    return {entry->thumbnail.IsNull() ? State::Failed : State::Ready, entry->thumbnail};
}

void ThumbnailService::Ask(const QString& path, int edge) {
    int& asked = pending_[path];
    if (asked >= edge) {
        workers_->Renew(path);
        return;
    }
    const bool fresh = asked == 0;
    asked = edge;
    workers_->Push({path, edge});
    if (fresh) Q_EMIT pendingChanged(pending());
}

void ThumbnailService::Check(const QString& path, ThumbnailMemory::Entry& entry, int edge) {
    const qint64 now = clock_.elapsed();
    if (now - entry.checked < checkInterval_) return;
    entry.checked = now;
    workers_->Push({path, std::max(edge, entry.edge), entry.stamp});
}

void ThumbnailService::setWanted(const QStringList& paths) {
    const QStringList dropped = workers_->SetWanted(paths);
    if (dropped.isEmpty()) return;
    for (const QString& path : dropped) pending_.remove(path);
    counts_.dropped += static_cast<int>(dropped.size());
    Q_EMIT pendingChanged(pending());
}

QString ThumbnailService::cachedFile(const QString& path, int size) const {
    return cache_.FindFile(path, FileStamp::Of(path), ThumbnailEdge(size));
}

bool ThumbnailService::isKnownBroken(const QString& path) const {
    const ThumbnailMemory::Entry* entry = memory_.Peek(path);
    return entry && entry->thumbnail.IsNull();
}

// What a slot does to this service, its end too, comes after all that is done here.
void ThumbnailService::Take(const ThumbnailOutcome& outcome) {
    Count(outcome);
    const ThumbnailJob& job = outcome.job;
    if (outcome.state == ThumbnailOutcome::State::Unchanged) return;
    if (IsOutdone(outcome)) return;
    memory_.Put(job.path, {outcome.thumbnail, job.edge, outcome.stamp, clock_.elapsed()});
    const bool settled = Settle(job);
    const QPointer<ThumbnailService> self(this);
    if (outcome.state == ThumbnailOutcome::State::Fine) {
        Q_EMIT ready(job.path, outcome.thumbnail);
    } else {
        Q_EMIT failed(job.path);
    }
    if (self && settled) Q_EMIT pendingChanged(pending());
}

void ThumbnailService::Count(const ThumbnailOutcome& outcome) {
    const bool fine = outcome.state == ThumbnailOutcome::State::Fine;
    const bool bad = outcome.state == ThumbnailOutcome::State::Failed;
    counts_.decoded += outcome.decoded;
    counts_.fromDisk += (fine || outcome.broken) && !outcome.decoded;
    counts_.failed += bad;
    counts_.unchanged += !fine && !bad;
}

// Two workers may have made two sizes of a file; the smaller one came last.
bool ThumbnailService::IsOutdone(const ThumbnailOutcome& outcome) const {
    const ThumbnailMemory::Entry* entry = memory_.Peek(outcome.job.path);
    return entry && entry->stamp == outcome.stamp && entry->edge > outcome.job.edge;
}

// Whether the job answers all that was asked of its file.
bool ThumbnailService::Settle(const ThumbnailJob& job) {
    const auto asked = pending_.constFind(job.path);
    if (asked == pending_.constEnd() || *asked > job.edge) return false;
    pending_.erase(asked);
    return true;
}

}  // namespace vorlane
