// ThumbnailCache: the user's thumbnails on disk, shared with other programs after the freedesktop convention: a PNG a
// picture in a folder for each size, named by the digest of the file's address, that says which file in which state it
// stands for. What doesn't say so exactly is passed over. Entries are written whole or not at all, for the user alone.
//
// It has no state but its folder's name, and may be used from any thread and by several programs at once. Failures are
// silent: without a cache everything works, only slower.
#pragma once

#include "widgets/thumbnail.h"

#include <optional>

#include <QByteArray>
#include <QString>

namespace vorlane {

class ThumbnailCache {
public:
    // folder: the one named "thumbnails" in the user's cache folder. An empty name makes a cache that keeps nothing.
    explicit ThumbnailCache(QString folder = DefaultFolder());

    static QString DefaultFolder();

    // The thumbnail of the file in the state of stamp, in that size (one of kThumbnailEdges) or the next larger one
    // that is there. An entry without a word on the picture's size leaves pictureSize empty.
    std::optional<Thumbnail> Find(const QString& path, const FileStamp& stamp, int edge) const;
    // The file of that thumbnail, empty without one.
    QString FindFile(const QString& path, const FileStamp& stamp, int edge) const;
    // Whether this program could not read the file in that state.
    bool IsBroken(const QString& path, const FileStamp& stamp) const;

    // Keeps a thumbnail. Passed over: a picture that is no larger than its thumbnail, a file of this very cache, and
    // one modified in the last seconds, whose next change might leave its date as it is.
    void Store(const QString& path, const FileStamp& stamp, const Thumbnail& thumbnail, int edge) const;
    // Keeps that the file can't be read, unless it was modified in the last seconds.
    void StoreBroken(const QString& path, const FileStamp& stamp) const;

    // The file's address, as other programs of the user's spell it.
    static QByteArray Address(const QString& path);
    // Where the entry of that size lies; edge 0 names the one of a file that can't be read.
    QString EntryPath(const QString& path, int edge) const;

private:
    struct Entry {
        QString file;
        QImage image;
    };
    std::optional<Entry> FindEntry(const QString& path, const FileStamp& stamp, int edge) const;
    bool MayStore(const QString& path, const FileStamp& stamp) const;

    QString folder_;
};

}  // namespace vorlane
