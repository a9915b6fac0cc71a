#include "editor/additions.h"

#include <limits>

namespace vorlane::editor {

Additions::Additions(QObject* parent) : QObject(parent) {
    connect(&reader_, &FolderReader::finished, this, &Additions::Take);
}

void Additions::add(const QStringList& paths, int beforeKey) {
    waiting_.push_back({paths, beforeKey});
    if (waiting_.size() == 1) Next();
}

void Additions::clear() {
    reader_.stop();
    waiting_.clear();
}

void Additions::Next() {
    if (!waiting_.empty()) reader_.gather(waiting_.front().paths);
}

void Additions::Take() {
    const std::vector<FolderItem> items = reader_.take(std::numeric_limits<size_t>::max());
    const int beforeKey = waiting_.front().beforeKey;
    waiting_.pop_front();
    Next();
    Q_EMIT read(items, beforeKey);
}

}  // namespace vorlane::editor
