#include "widgets/thumbnailworker.h"

#include "platform/qt/picturefile.h"

#include <algorithm>
#include <utility>

#include <QFile>
#include <QImageReader>

namespace vorlane {

namespace {

// With so many entries unwritten, writing goes before reading on: each holds its pixels.
constexpr size_t kMostEntries = 256;

// A decoder that fails for want of memory, or whatever a host's own one throws, leaves the file for another time.
ThumbnailDecoded Decoded(const ThumbnailDecoder& decoder, const ThumbnailJob& job) {
    try {
        return decoder(job.path, job.edge);
    } catch (...) {
        return {};
    }
}

// From the header alone.
QSize SizeInFile(const QString& path, QSize thumbnail) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return thumbnail;
    QImageReader reader(&file);
    reader.setDecideFormatFromContent(true);
    const QSize size = UprightLike(thumbnail, reader.size());
    return size.isEmpty() ? thumbnail : size;
}

}  // namespace

ThumbnailDecoded DecodeThumbnail(const QString& path, int edge) {
    using State = ThumbnailDecoded::State;
    const auto bytes = picturefile::Read(QFile::encodeName(path).toStdString());
    if (!bytes) return {FileStamp::Of(path).size == 0 ? State::Broken : State::Unreadable};
    auto decoded = picturefile::Decode(*bytes, QSize(edge, edge));
    if (!decoded) return {State::Broken};
    return {State::Fine, {std::move(decoded->image), decoded->size}};
}

ThumbnailWorkers::ThumbnailWorkers(int count, ThumbnailCache cache, ThumbnailDecoder decoder,
                                   std::function<void(ThumbnailOutcome)> deliver)
    : cache_(std::move(cache)), decoder_(std::move(decoder)), deliver_(std::move(deliver)) {
    for (int i = 0; i < std::max(1, count); ++i) threads_.emplace_back([this] { Run(); });
}

ThumbnailWorkers::~ThumbnailWorkers() {
    {
        const std::lock_guard lock(mutex_);
        ending_ = true;
        queue_.Clear();
        entries_.clear();
    }
    work_.notify_all();
    for (std::thread& thread : threads_) thread.join();
}

void ThumbnailWorkers::Push(ThumbnailJob job) {
    {
        const std::lock_guard lock(mutex_);
        queue_.Push(std::move(job));
    }
    work_.notify_one();
}

void ThumbnailWorkers::Renew(const QString& path) {
    const std::lock_guard lock(mutex_);
    queue_.Renew(path);
}

QStringList ThumbnailWorkers::SetWanted(const QStringList& paths) {
    const std::lock_guard lock(mutex_);
    return queue_.SetWanted(paths);
}

void ThumbnailWorkers::WaitUntilIdle() {
    std::unique_lock lock(mutex_);
    idle_.wait(lock, [this] { return busy_ == 0 && !HasWork(); });
}

void ThumbnailWorkers::Run() {
    std::unique_lock lock(mutex_);
    while (true) {
        work_.wait(lock, [this] { return ending_ || HasWork(); });
        if (ending_) return;
        ++busy_;
        const bool writeFirst = queue_.IsEmpty() || entries_.size() >= kMostEntries;
        writeFirst ? WriteEntry(lock) : DoJob(lock);
        --busy_;
        if (busy_ == 0 && !HasWork()) idle_.notify_all();
    }
}

void ThumbnailWorkers::DoJob(std::unique_lock<std::mutex>& lock) {
    const ThumbnailJob job = *queue_.Pop();
    lock.unlock();
    ThumbnailOutcome outcome = Work(job);
    lock.lock();
    queue_.Done(job.path);
    if (ending_) return;
    Keep(outcome);
    lock.unlock();
    deliver_(std::move(outcome));
    lock.lock();
}

void ThumbnailWorkers::WriteEntry(std::unique_lock<std::mutex>& lock) {
    const Entry entry = std::move(entries_.front());
    entries_.pop_front();
    lock.unlock();
    if (entry.thumbnail.IsNull()) {
        cache_.StoreBroken(entry.path, entry.stamp);
    } else {
        cache_.Store(entry.path, entry.stamp, entry.thumbnail, entry.edge);
    }
    lock.lock();
}

ThumbnailOutcome ThumbnailWorkers::Work(const ThumbnailJob& job) const {
    using State = ThumbnailOutcome::State;
    ThumbnailOutcome outcome{job};
    outcome.stamp = FileStamp::Of(job.path);
    if (job.known == outcome.stamp) {
        outcome.state = State::Unchanged;
        return outcome;
    }
    if (!outcome.stamp.Exists()) return outcome;
    if (auto found = cache_.Find(job.path, outcome.stamp, job.edge)) {
        outcome.state = State::Fine;
        outcome.thumbnail = std::move(*found);
        if (outcome.thumbnail.pictureSize.isEmpty())
            outcome.thumbnail.pictureSize = SizeInFile(job.path, outcome.thumbnail.image.size());
        return outcome;
    }
    outcome.broken = cache_.IsBroken(job.path, outcome.stamp);
    if (outcome.broken) return outcome;

    ThumbnailDecoded decoded = Decoded(decoder_, job);
    outcome.decoded = true;
    outcome.broken = decoded.state == ThumbnailDecoded::State::Broken;
    outcome.state = decoded.state == ThumbnailDecoded::State::Fine ? State::Fine : State::Failed;
    outcome.thumbnail = std::move(decoded.thumbnail);
    return outcome;
}

// The stamp was taken before the reading, so that a file that changed meanwhile is found changed by whoever asks next.
void ThumbnailWorkers::Keep(const ThumbnailOutcome& outcome) {
    const bool fine = outcome.state == ThumbnailOutcome::State::Fine;
    if (!outcome.decoded || !(fine || outcome.broken)) return;
    entries_.push_back({outcome.job.path, outcome.stamp, outcome.thumbnail, outcome.job.edge});
}

}  // namespace vorlane
