#include "samples/picture.h"

#include <stdexcept>

#include <QBuffer>
#include <QFileInfo>
#include <QImageWriter>
#include <QTransform>

namespace samples {
namespace {

// Painting takes time by the pixel: a larger picture is painted at this many pixels and enlarged.
constexpr double kPaintedPixels = 9e5;

QSize PaintedSize(QSize size) {
    const double pixels = static_cast<double>(size.width()) * size.height();
    return pixels <= kPaintedPixels ? size : size * std::sqrt(kPaintedPixels / pixels);
}

// A JPEG file with an EXIF segment put in front, which holds the orientation alone.
QByteArray WithOrientation(const QByteArray& jpeg, int orientation) {
    QByteArray segment(
        "\xFF\xE1\x00\x22"            // APP1, 34 bytes
        "Exif\0\0"                    //
        "MM\x00\x2A\x00\x00\x00\x08"  // big-endian, first directory at 8
        "\x00\x01"                    // one entry: orientation, a short, one of them
        "\x01\x12\x00\x03\x00\x00\x00\x01\x00",
        29);
    segment.append(static_cast<char>(orientation)).append(QByteArray(6, '\0'));  // padding, no further directory
    return jpeg.left(2) + segment + jpeg.mid(2);
}

}  // namespace

QByteArray Encode(const Picture& picture) {
    const QSize painted = PaintedSize(picture.Size);
    Canvas canvas(painted.width(), painted.height());
    picture.Paint(canvas);

    QByteArray format = QFileInfo(picture.Name).suffix().toLatin1();
    if (format.isEmpty()) format = "jpg";
    QImage image = canvas.Finish(picture.Size, format == "png" ? 0 : 3);
    if (picture.Orientation == 6) image = image.transformed(QTransform().rotate(-90));

    QByteArray bytes;
    QBuffer buffer(&bytes);
    QImageWriter writer(&buffer, format);
    writer.setQuality(format == "png" ? 60 : 86);
    if (!writer.write(image)) throw std::runtime_error(writer.errorString().toStdString());
    return picture.Orientation == 1 ? bytes : WithOrientation(bytes, picture.Orientation);
}

}  // namespace samples
