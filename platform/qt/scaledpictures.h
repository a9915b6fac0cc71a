// ScaledPictures: pictures in the sizes in which they are painted, the ones painted last, up to a number of bytes.
#pragma once

#include "platform/picture.h"

#include <cstdint>

#include <QCache>
#include <QPixmap>
#include <QSize>

namespace vorlane {

class ScaledPictures {
public:
    explicit ScaledPictures(qsizetype bytes) { kept_.setMaxCost(bytes); }

    // The picture in exactly that many device pixels; a null pixmap for one that has none.
    QPixmap Get(const Picture& picture, QSize pixels);

    void Clear() { kept_.clear(); }
    qsizetype Bytes() const { return kept_.totalCost(); }
    // How often a picture had to be scaled.
    int64_t Renders() const { return renders_; }

private:
    struct Key {
        uint64_t serial;
        QSize pixels;
        bool operator==(const Key& other) const { return serial == other.serial && pixels == other.pixels; }
        friend size_t qHash(const Key& key, size_t seed) {
            return qHashMulti(seed, key.serial, key.pixels.width(), key.pixels.height());
        }
    };

    QCache<Key, QPixmap> kept_;
    int64_t renders_ = 0;
};

}  // namespace vorlane
