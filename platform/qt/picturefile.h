// Reading picture files: what is there, whether it is whole, and its pixels at a wanted size. The kind of a file is
// told by its content, never by its name. Safe to use from any thread.
#pragma once

#include <optional>
#include <string>

#include <QByteArray>
#include <QImage>
#include <QSize>

namespace vorlane::picturefile {

// What a file or its decoded picture may take at most, in bytes: about 134 megapixels. Beyond it a picture counts as
// one that can't be read, and nothing is allocated for it.
inline constexpr qint64 kLimit = qint64{512} << 20;

struct Decoded {
    QImage image;         // upright, in 32 bits a pixel
    QSize size;           // the picture's own size, upright
    bool vector = false;  // it can be drawn sharp at any size
};

// The file that a path stands for: without the point that stands for a missing extension, when there is no file with
// it.
std::string Found(const std::string& path);

// All bytes of a regular file; nothing when it can't be read, is empty, or is larger than kLimit.
std::optional<QByteArray> Read(const std::string& path);

// The picture in bytes, turned as its orientation mark says and reduced to fit into bound, which spares most of the
// work with formats that decode at a fraction of their size. Nothing for whatever can't be decoded to its end.
std::optional<Decoded> Decode(const QByteArray& bytes, QSize bound);

// The picture in bytes in exactly that many pixels; a null image when it can't be decoded.
QImage DecodeTo(const QByteArray& bytes, QSize pixels);

// Whether the stream reaches its own end. Decoders paint the missing rest of a cut JPEG, GIF or BMP in some colour
// and call it a success; the others fail by themselves and count as whole here.
bool IsWhole(const QByteArray& bytes);

}  // namespace vorlane::picturefile
