// ThumbnailMemory: the thumbnails at hand, and the files known to be broken, within a budget of bytes. What was used
// last stays longest. One thread.
#pragma once

#include "widgets/thumbnail.h"

#include <list>

#include <QHash>
#include <QString>

namespace vorlane {

class ThumbnailMemory {
public:
    struct Entry {
        Thumbnail thumbnail;  // null for a broken file
        int edge = 0;         // the size that it was made in
        FileStamp stamp;      // the state of the file that it was made from
        qint64 checked = 0;   // when the file was last known to be in that state

        bool Serves(int wanted) const;
    };

    explicit ThumbnailMemory(qint64 budget) : budget_(budget) {}

    // The entry counts as used. Null when there is none. It stays valid until the next Put or Remove.
    Entry* Find(const QString& path);
    // The same, but the entry doesn't count as used.
    const Entry* Peek(const QString& path) const;
    // Replaces an entry of that path and lets go of those longest unused. One that alone exceeds the budget isn't kept.
    void Put(const QString& path, Entry entry);
    void Remove(const QString& path);
    void Clear();

    qint64 Bytes() const { return bytes_; }
    int Count() const { return static_cast<int>(places_.size()); }

private:
    struct Node {
        QString path;
        Entry entry;
    };
    using Nodes = std::list<Node>;

    static qint64 Cost(const Node& node);

    qint64 budget_;
    qint64 bytes_ = 0;
    Nodes nodes_;  // from the last used one
    QHash<QString, Nodes::iterator> places_;
};

}  // namespace vorlane
