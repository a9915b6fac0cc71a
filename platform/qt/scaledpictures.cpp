#include "platform/qt/scaledpictures.h"

#include "platform/qt/qtpicturedata.h"

namespace vorlane {

QPixmap ScaledPictures::Get(const Picture& picture, QSize pixels) {
    const auto* data = dynamic_cast<const QtPictureData*>(picture.Data().get());
    if (data == nullptr || pixels.isEmpty()) return {};
    const Key key{data->Serial(), pixels};
    if (const QPixmap* kept = kept_.object(key)) return *kept;
    ++renders_;
    QPixmap made = QPixmap::fromImage(data->Render(pixels));
    kept_.insert(key, new QPixmap(made), qsizetype{pixels.width()} * pixels.height() * 4);
    return made;
}

}  // namespace vorlane
