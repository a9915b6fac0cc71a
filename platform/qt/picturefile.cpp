#include "platform/qt/picturefile.h"

#include "platform/files.h"

#include <algorithm>
#include <fstream>
#include <ios>

#include <QBuffer>
#include <QColorSpace>
#include <QImageReader>

namespace vorlane::picturefile {

namespace {

constexpr qint64 kBytesPerPixel = 4;

bool Affordable(QSize size) {
    return qint64{size.width()} * size.height() * kBytesPerPixel <= kLimit;
}

bool Turned(QImageReader& reader) {
    return reader.transformation().testFlag(QImageIOHandler::TransformationRotate90);
}

bool IsVector(const QByteArray& format) {
    return format.startsWith("svg");
}

// In the screen's colours and in the layout that is fastest to paint.
QImage Finished(QImage image) {
    const QColorSpace colors = image.colorSpace();
    if (colors.isValid() && colors != QColorSpace(QColorSpace::SRgb)) image.convertToColorSpace(QColorSpace::SRgb);
    image.convertTo(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    return image;
}

// size reduced to fit into bound; never enlarged, never under one pixel.
QSize Fitted(QSize size, QSize bound) {
    if (size.width() <= bound.width() && size.height() <= bound.height()) return size;
    return size.scaled(bound, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
}

// Opens a reader on source, for a picture of a size that is known and affordable.
bool Open(QImageReader& reader, QBuffer& source) {
    if (!source.open(QIODevice::ReadOnly)) return false;
    reader.setDevice(&source);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    return reader.canRead() && !reader.size().isEmpty() && Affordable(reader.size());
}

}  // namespace

std::string Found(const std::string& path) {
    const bool pointed = !path.empty() && path.back() == '.';
    return pointed && !files::IsFile(path) ? path.substr(0, path.size() - 1) : path;
}

std::optional<QByteArray> Read(const std::string& path) {
    if (!files::IsFile(path)) return std::nullopt;  // a pipe would wait for ever
    std::ifstream file(files::ToPath(path), std::ios::binary | std::ios::ate);
    const auto length = static_cast<qint64>(file.tellg());
    if (!file || length <= 0 || length > kLimit) return std::nullopt;
    QByteArray bytes(static_cast<qsizetype>(length), Qt::Uninitialized);
    file.seekg(0);
    if (!file.read(bytes.data(), length)) return std::nullopt;
    return bytes;
}

std::optional<Decoded> Decode(const QByteArray& bytes, QSize bound) {
    QBuffer source;
    source.setData(bytes);
    QImageReader reader;
    if (!Open(reader, source) || !IsWhole(bytes)) return std::nullopt;

    const bool turned = Turned(reader);
    const QSize size = reader.size();
    const QSize wanted = Fitted(size, turned ? bound.transposed() : bound);
    if (wanted != size) reader.setScaledSize(wanted);
    const bool vector = IsVector(reader.format());
    QImage image;
    if (!reader.read(&image) || image.isNull()) return std::nullopt;
    return Decoded{Finished(std::move(image)), turned ? size.transposed() : size, vector};
}

QImage DecodeTo(const QByteArray& bytes, QSize pixels) {
    QBuffer source;
    source.setData(bytes);
    QImageReader reader;
    if (pixels.isEmpty() || !Affordable(pixels) || !Open(reader, source)) return {};
    reader.setScaledSize(Turned(reader) ? pixels.transposed() : pixels);
    QImage image;
    return reader.read(&image) ? Finished(std::move(image)) : QImage();
}

}  // namespace vorlane::picturefile
