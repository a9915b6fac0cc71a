#include "widgets/thumbnail.h"

#include <QDateTime>
#include <QFileInfo>

namespace vorlane {

FileStamp FileStamp::Of(const QString& path) {
    const QFileInfo file(path);
    if (!file.isFile()) return {};
    const QDateTime changed = file.metadataChangeTime();
    return {file.lastModified().toMSecsSinceEpoch(), changed.isValid() ? changed.toMSecsSinceEpoch() : -1, file.size()};
}

int ThumbnailEdge(int size) {
    for (const int edge : kThumbnailEdges) {
        if (size <= edge) return edge;
    }
    return kThumbnailEdges[3];
}

QSize UprightLike(QSize thumbnail, QSize size) {
    const bool square = thumbnail.width() == thumbnail.height();
    const bool lying = (thumbnail.width() > thumbnail.height()) != (size.width() > size.height());
    return lying && !square ? size.transposed() : size;
}

}  // namespace vorlane
