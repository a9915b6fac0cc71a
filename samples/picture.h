// A picture of the sample show, and the tables of them by topic.
#pragma once

#include "samples/canvas.h"

#include <functional>
#include <vector>

#include <QByteArray>
#include <QSize>

namespace samples {

// The format is that of the name's extension; JPEG without one.
struct Picture {
    const char* Name;
    QSize Size;  // as seen
    std::function<void(Canvas&)> Paint;
    int Orientation = 1;  // EXIF: 1 stored as seen; 6 stored lying on its left side, to be turned clockwise
};

std::vector<Picture> Mountains();
std::vector<Picture> Woods();
std::vector<Picture> Waters();
std::vector<Picture> Skies();
std::vector<Picture> Towns();
std::vector<Picture> Shapes();
std::vector<Picture> StillLifes();

// Paints the picture and encodes it, as the bytes of its file.
QByteArray Encode(const Picture& picture);

}  // namespace samples
