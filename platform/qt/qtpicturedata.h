// QtPictureData: the pixels behind a Picture of the Qt desktop, and the ways to make such a Picture. What a picture
// keeps is bounded: of a large file it holds a reduction, and goes back to the file when more is wanted.
#pragma once

#include "platform/picture.h"

#include <cstdint>
#include <string>

#include <QByteArray>
#include <QImage>
#include <QSize>

namespace vorlane {

class QtPictureData : public PictureData {
public:
    // Different for any two pictures ever made, save for those made from copies of one image.
    virtual uint64_t Serial() const = 0;
    // The whole picture in exactly that many pixels, each side 1 or more. Never null, save for want of memory.
    virtual QImage Render(QSize pixels) const = 0;
};

// The longest side of what is kept of a picture file, in pixels. A JPEG of 24 megapixels decodes to it at an eighth of
// its size, in a third of the time of the whole.
inline constexpr int kKeptSide = 750;

// A picture of the image's logical size, which is its pixels through its device pixel ratio. Empty for a null image.
Picture PictureFromImage(const QImage& image);
// A picture of another logical size than the image tells.
Picture PictureFromImage(const QImage& image, double width, double height);
// The picture of a file; the empty picture when it can't be read whole.
Picture PictureFromFile(const std::string& path);
// A picture that is drawn sharp at any size; pixels. Fails with InvalidPicture() when svg is none.
Picture PictureFromSvg(const QByteArray& svg, double width, double height);

// Its serial number; 0 for the empty picture and for one of another desktop.
uint64_t SerialOf(const Picture& picture);
// The picture in exactly that many pixels. A null image for the empty picture and for one of another desktop.
QImage RenderPicture(const Picture& picture, QSize pixels);
// Its logical size in whole pixels.
QSize PixelSizeOf(const Picture& picture);

}  // namespace vorlane
