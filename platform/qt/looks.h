// Looks: what was drawn of controls, by what they held. A control that comes to hold what it, or another one, held
// before is shown from here and not drawn again. The looks shown last are kept, up to a number of bytes.
#pragma once

#include <cstdint>
#include <string_view>

#include <QByteArray>
#include <QCache>
#include <QPixmap>

namespace vorlane {

class Looks {
public:
    explicit Looks(qsizetype bytes) { kept_.setMaxCost(bytes); }

    // The look of that key; where there is none, draw makes it. draw: a QPixmap().
    template <class Draw>
    QPixmap Get(std::string_view key, Draw&& draw) {
        const auto size = static_cast<qsizetype>(key.size());
        if (const QPixmap* kept = kept_.object(QByteArray::fromRawData(key.data(), size))) return *kept;
        ++drawn_;
        QPixmap made = draw();
        kept_.insert(QByteArray(key.data(), size), new QPixmap(made), CostOf(size, made));
        return made;
    }

    void Clear() { kept_.clear(); }
    qsizetype Bytes() const { return kept_.totalCost(); }
    // How many looks had to be drawn.
    int64_t Drawn() const { return drawn_; }

private:
    static qsizetype CostOf(qsizetype key, const QPixmap& look) {
        return key + qsizetype{look.width()} * look.height() * 4;
    }

    QCache<QByteArray, QPixmap> kept_;
    int64_t drawn_ = 0;
};

}  // namespace vorlane
