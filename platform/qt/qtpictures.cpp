#include "platform/qt/qtpictures.h"

#include "platform/failure.h"
#include "platform/numbers.h"
#include "platform/qt/picturefile.h"
#include "platform/qt/qtpicturedata.h"

#include <algorithm>

#include <QFile>
#include <QGuiApplication>
#include <QImageReader>

// Resources of a static library are linked in by name.
static void LinkArtwork() {
    Q_INIT_RESOURCE(artwork);
}

namespace vorlane {

namespace {

constexpr int kLimitMiB = static_cast<int>(picturefile::kLimit >> 20);

struct ArtworkFile {
    const char* name;
    int side;  // pixels
};

ArtworkFile FileOf(Artwork artwork) {
    switch (artwork) {
        case Artwork::ZoomCorner:
            return {"zoom-corner", 9};
        case Artwork::InfoButton:
            return {"info", 9};
        case Artwork::FileSubstitute:
            return {"file-broken", 48};
        case Artwork::FileSound:
            return {"file-sound", 48};
        case Artwork::FileVideo:
            return {"file-video", 48};
        case Artwork::FileDocument:
            return {"file-document", 48};
        case Artwork::FileOther:
            return {"file-other", 48};
        case Artwork::Play:
            return {"play", 16};
        case Artwork::Stop:
            return {"stop", 16};
        case Artwork::PlayMusic:
            return {"play-music", 16};
        case Artwork::PlayComment:
            return {"play-comment", 16};
        case Artwork::ShowText:
            return {"show-text", 16};
        case Artwork::SoundMissing:
            return {"sound-missing", 16};
    }
    throw failures::InvalidCall();
}

Picture ReadArtwork(Artwork artwork) {
    const ArtworkFile source = FileOf(artwork);
    QFile file(QStringLiteral(":/vorlane/artwork/%1.svg").arg(QLatin1String(source.name)));
    if (!file.open(QIODevice::ReadOnly)) throw failures::FileNotFound();
    return PictureFromSvg(file.readAll(), source.side, source.side);
}

// How many pixels there are to take from.
QSize Available(const Picture& picture) {
    return picture.IsBitmap() ? PixelSizeOf(picture) : QSize(INT32_MAX, INT32_MAX);
}

// How many pixels stand behind a side of that many logical ones, when the source has available of them.
int DenseSide(int32_t logical, int available) {
    const double dense = std::min(logical * qGuiApp->devicePixelRatio(), double{INT32_MAX});
    return std::max(logical, std::min(ToInt32(dense), available));
}

}  // namespace

QtPictures::QtPictures() {
    LinkArtwork();
    const int limit = QImageReader::allocationLimit();
    if (limit != 0 && limit < kLimitMiB) QImageReader::setAllocationLimit(kLimitMiB);
}

std::optional<Picture> QtPictures::LoadImageFile(const std::string& path) {
    const std::string file = picturefile::Found(path);
    bool broken = false;
    BeforeLoad(file, broken);
    if (broken) return std::nullopt;
    const Picture picture = PictureFromFile(file);
    return picture.Type() == 0 ? std::nullopt : std::optional(picture);
}

Picture QtPictures::ResizePicture(const Picture& picture, int32_t width, int32_t height) {
    if (picture.Type() == 0 || width < 1 || height < 1) throw failures::InvalidPicture();
    const QSize available = Available(picture);
    const QSize pixels(DenseSide(width, available.width()), DenseSide(height, available.height()));
    if (qint64{pixels.width()} * pixels.height() > picturefile::kLimit / 4) throw failures::InvalidPicture();
    const Picture resized = PictureFromImage(RenderPicture(picture, pixels), width, height);
    if (resized.Type() == 0) throw failures::InvalidPicture();
    return resized;
}

Picture QtPictures::Get(Artwork artwork) {
    Picture& picture = artwork_[artwork];
    if (picture.Type() == 0) picture = ReadArtwork(artwork);
    return picture;
}

}  // namespace vorlane
