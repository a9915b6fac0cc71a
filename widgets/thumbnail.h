// Thumbnail: a small copy of a file's picture, and what the thumbnail service knows a file by. Plain values.
#pragma once

#include <QImage>
#include <QMetaType>
#include <QSize>
#include <QString>

namespace vorlane {

struct Thumbnail {
    QImage image;
    QSize pictureSize;  // of the file's own picture in pixels, upright

    bool IsNull() const { return image.isNull(); }
};

// What tells one state of a file from another: equal stamps mean equal content. Milliseconds since 1970, and bytes.
struct FileStamp {
    qint64 modified = -1;
    qint64 changed = -1;  // the last change of anything about it, its permissions too
    qint64 size = -1;     // -1 for what is no file or can't be looked at

    static FileStamp Of(const QString& path);

    bool Exists() const { return size >= 0; }
    bool operator==(const FileStamp&) const = default;
};

// Thumbnails come in four sizes, told by their longest side in pixels.
constexpr int kThumbnailEdges[] = {128, 256, 512, 1024};

// The smallest of them that is size or more; the largest for a size beyond it.
int ThumbnailEdge(int size);

// size, turned a quarter where that is how it comes to lie like thumbnail. Files tell their picture's size as it lies
// in them; a thumbnail stands upright.
QSize UprightLike(QSize thumbnail, QSize size);

}  // namespace vorlane

Q_DECLARE_METATYPE(vorlane::Thumbnail)
