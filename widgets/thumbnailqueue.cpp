#include "widgets/thumbnailqueue.h"

#include <algorithm>
#include <utility>

namespace vorlane {

ThumbnailQueue::Rank ThumbnailQueue::RankOf(const ThumbnailJob& job) {
    const auto place = wanted_.constFind(job.path);
    const bool unwanted = place == wanted_.constEnd();
    return {job.IsCheck(), unwanted, unwanted ? -++newest_ : *place};
}

bool ThumbnailQueue::IsUnderWay(const ThumbnailJob& job) const {
    const auto running = running_.constFind(job.path);
    if (running == running_.constEnd()) return false;
    return job.IsCheck() || (!running->IsCheck() && running->edge >= job.edge);
}

void ThumbnailQueue::Push(ThumbnailJob job) {
    if (IsUnderWay(job)) return;
    const auto rank = ranks_.constFind(job.path);
    if (rank != ranks_.constEnd()) {
        const ThumbnailJob& old = jobs_.at(*rank);
        job.edge = std::max(job.edge, old.edge);
        if (!old.IsCheck()) job.known.reset();
        jobs_.erase(*rank);
    }
    const Rank fresh = RankOf(job);
    ranks_.insert(job.path, fresh);
    jobs_.emplace(fresh, std::move(job));
}

void ThumbnailQueue::Renew(const QString& path) {
    const auto rank = ranks_.constFind(path);
    if (rank != ranks_.constEnd()) Push(ThumbnailJob(jobs_.at(*rank)));
}

QStringList ThumbnailQueue::SetWanted(const QStringList& paths) {
    wanted_.clear();
    for (const QString& path : paths) wanted_.insert(path, wanted_.size());
    std::map<Rank, ThumbnailJob> before;
    before.swap(jobs_);
    ranks_.clear();
    QStringList dropped;
    for (auto& [rank, job] : before) {
        if (wanted_.contains(job.path)) {
            Push(std::move(job));
        } else if (!job.IsCheck()) {
            dropped.push_back(job.path);
        }
    }
    return dropped;
}

std::optional<ThumbnailJob> ThumbnailQueue::Pop() {
    if (jobs_.empty()) return std::nullopt;
    ThumbnailJob job = std::move(jobs_.begin()->second);
    jobs_.erase(jobs_.begin());
    ranks_.remove(job.path);
    running_.insert(job.path, job);
    return job;
}

void ThumbnailQueue::Done(const QString& path) {
    running_.remove(path);
}

void ThumbnailQueue::Clear() {
    jobs_.clear();
    ranks_.clear();
}

}  // namespace vorlane
