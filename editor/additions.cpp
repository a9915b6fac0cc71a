#include "editor/additions.h"

#include <limits>
#include <utility>

namespace vorlane::editor {

Additions::Additions(QObject* parent) : QObject(parent) {
    connect(&reader_, &FolderReader::finished, this, &Additions::Take);
}

void Additions::add(const Lot& lot) {
    waiting_.push_back(lot);
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
    const Lot lot = std::move(waiting_.front());
    waiting_.pop_front();
    Next();
    Q_EMIT read(items, lot);
}

}  // namespace vorlane::editor
