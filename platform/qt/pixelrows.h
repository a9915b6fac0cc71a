// PixelRows: the rows of an image, for filling parts of it faster than a painter does. Only where that makes the same
// pixels: on an image of 32 bits a pixel whose painter counts in these pixels and covers what lies below.
#pragma once

#include <cstddef>

#include <QRect>
#include <QRgb>

class QPainter;

namespace vorlane {

class PixelRows {
public:
    // The rows of what the painter draws on, as far as its clip lets it; false where filling them is not the same.
    // Good as long as the painter is not set otherwise.
    explicit PixelRows(const QPainter& painter);
    explicit operator bool() const { return bits_ != nullptr; }

    // What of an area can be filled.
    QRect Seen(const QRect& area) const { return area & clip_; }
    // part: seen.
    void Fill(const QRect& part, QRgb color) const;
    // Puts the same row of colours, one for each column, into all rows.
    void FillRows(const QRect& part, const QRgb* colors) const;

private:
    QRgb* At(int x, int y) const;

    uchar* bits_ = nullptr;
    qsizetype stride_ = 0;  // bytes
    QRect clip_;
};

}  // namespace vorlane
