#include "platform/qt/qtpicturedata.h"

#include "platform/failure.h"
#include "platform/numbers.h"
#include "platform/qt/picturefile.h"
#include "platform/scale.h"

#include <atomic>
#include <utility>

#include <QPainter>
#include <QSvgRenderer>

namespace vorlane {

namespace {

QImage Scaled(const QImage& image, QSize pixels) {
    return image.size() == pixels ? image : image.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

bool Holds(QSize outer, QSize inner) {
    return outer.width() >= inner.width() && outer.height() >= inner.height();
}

// Qt numbers its images; ours are counted beyond its numbers.
uint64_t NextSerial() {
    static std::atomic<uint64_t> last = uint64_t{1} << 63;
    return ++last;
}

class ImageData final : public QtPictureData {
public:
    explicit ImageData(QImage image) : image_(std::move(image)) {}
    uint64_t Serial() const override { return static_cast<uint64_t>(image_.cacheKey()); }
    QImage Render(QSize pixels) const override {
        QImage image = Scaled(image_, pixels);
        image.setDevicePixelRatio(1);
        return image;
    }

private:
    QImage image_;
};

class FileData final : public QtPictureData {
public:
    FileData(std::string path, picturefile::Decoded kept) : path_(std::move(path)), kept_(std::move(kept)) {}

    uint64_t Serial() const override { return serial_; }

    QImage Render(QSize pixels) const override {
        const bool enough = Holds(kept_.image.size(), pixels) || (!kept_.vector && kept_.image.size() == kept_.size);
        const QImage sharp = enough ? QImage() : FromFile(pixels);
        return sharp.isNull() ? Scaled(kept_.image, pixels) : sharp;
    }

private:
    // Null when the file is gone, or is no longer the same picture.
    QImage FromFile(QSize pixels) const {
        const auto bytes = picturefile::Read(path_);
        return bytes ? picturefile::DecodeTo(*bytes, pixels) : QImage();
    }

    uint64_t serial_ = NextSerial();
    std::string path_;
    picturefile::Decoded kept_;
};

class SvgData final : public QtPictureData {
public:
    explicit SvgData(const QByteArray& svg) {
        if (!renderer_.load(svg)) throw failures::InvalidPicture();
    }

    uint64_t Serial() const override { return serial_; }

    QImage Render(QSize pixels) const override {
        QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        renderer_.render(&painter);
        return image;
    }

private:
    uint64_t serial_ = NextSerial();
    mutable QSvgRenderer renderer_;
};

}  // namespace

Picture PictureFromImage(const QImage& image) {
    const QSizeF size = image.deviceIndependentSize();
    return PictureFromImage(image, size.width(), size.height());
}

Picture PictureFromImage(const QImage& image, double width, double height) {
    if (image.isNull()) return {};
    return {PictureType::Bitmap, width, height, std::make_shared<ImageData>(image)};
}

Picture PictureFromFile(const std::string& path) {
    const auto bytes = picturefile::Read(path);
    auto decoded = bytes ? picturefile::Decode(*bytes, QSize(kKeptSide, kKeptSide)) : std::nullopt;
    if (!decoded) return {};
    const PictureType type = decoded->vector ? PictureType::EnhancedMetafile : PictureType::Bitmap;
    const QSize size = decoded->size;
    return {type, static_cast<double>(size.width()), static_cast<double>(size.height()),
            std::make_shared<FileData>(path, std::move(*decoded))};
}

Picture PictureFromSvg(const QByteArray& svg, double width, double height) {
    return {PictureType::EnhancedMetafile, width, height, std::make_shared<SvgData>(svg)};
}

uint64_t SerialOf(const Picture& picture) {
    const auto* data = dynamic_cast<const QtPictureData*>(picture.Data().get());
    return data == nullptr ? 0 : data->Serial();
}

QImage RenderPicture(const Picture& picture, QSize pixels) {
    const auto* data = dynamic_cast<const QtPictureData*>(picture.Data().get());
    return data == nullptr || pixels.isEmpty() ? QImage() : data->Render(pixels);
}

QSize PixelSizeOf(const Picture& picture) {
    const auto pixels = [](double hiMetric) {
        return ToInt32(Rescale(hiMetric, ScaleMode::HiMetric, ScaleMode::Pixels));
    };
    return {pixels(picture.Width()), pixels(picture.Height())};
}

}  // namespace vorlane
