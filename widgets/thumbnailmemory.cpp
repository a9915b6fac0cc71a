#include "widgets/thumbnailmemory.h"

#include <utility>

namespace vorlane {

namespace {

constexpr qint64 kOverhead = 256;  // about what an entry takes beside its pixels and its path

}  // namespace

bool ThumbnailMemory::Entry::Serves(int wanted) const {
    return thumbnail.IsNull() || edge >= wanted || thumbnail.image.size() == thumbnail.pictureSize;
}

qint64 ThumbnailMemory::Cost(const Node& node) {
    return node.entry.thumbnail.image.sizeInBytes() + node.path.size() * qint64{sizeof(QChar)} + kOverhead;
}

ThumbnailMemory::Entry* ThumbnailMemory::Find(const QString& path) {
    const auto place = places_.constFind(path);
    if (place == places_.constEnd()) return nullptr;
    nodes_.splice(nodes_.begin(), nodes_, *place);
    return &nodes_.front().entry;
}

const ThumbnailMemory::Entry* ThumbnailMemory::Peek(const QString& path) const {
    const auto place = places_.constFind(path);
    return place == places_.constEnd() ? nullptr : &(*place)->entry;
}

void ThumbnailMemory::Put(const QString& path, Entry entry) {
    Remove(path);
    nodes_.push_front({path, std::move(entry)});
    places_.insert(path, nodes_.begin());
    bytes_ += Cost(nodes_.front());
    while (bytes_ > budget_) Remove(QString(nodes_.back().path));
}

void ThumbnailMemory::Remove(const QString& path) {
    const auto place = places_.constFind(path);
    if (place == places_.constEnd()) return;
    const Nodes::iterator node = *place;
    bytes_ -= Cost(*node);
    places_.erase(place);
    nodes_.erase(node);
}

void ThumbnailMemory::Clear() {
    places_.clear();
    nodes_.clear();
    bytes_ = 0;
}

}  // namespace vorlane
