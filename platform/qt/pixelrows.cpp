#include "platform/qt/pixelrows.h"

#include <algorithm>
#include <cstring>

#include <QImage>
#include <QPaintEngine>
#include <QPainter>
#include <QRegion>

namespace vorlane {

namespace {

bool Covers(const QPainter& painter) {
    return painter.deviceTransform().type() == QTransform::TxNone && painter.opacity() == 1 &&
           painter.compositionMode() == QPainter::CompositionMode_SourceOver;
}

}  // namespace

PixelRows::PixelRows(const QPainter& painter) {
    auto* image = dynamic_cast<QImage*>(painter.device());
    if (image == nullptr || !Covers(painter) || painter.paintEngine()->type() != QPaintEngine::Raster) return;
    const QImage::Format format = image->format();
    if (format != QImage::Format_RGB32 && format != QImage::Format_ARGB32_Premultiplied) return;
    const QRegion clip = painter.hasClipping() ? painter.clipRegion() : QRegion(image->rect());
    if (clip.rectCount() > 1) return;
    bits_ = image->bits();
    stride_ = image->bytesPerLine();
    clip_ = clip.boundingRect() & image->rect();
}

QRgb* PixelRows::At(int x, int y) const {
    return reinterpret_cast<QRgb*>(bits_ + y * stride_) + x;
}

void PixelRows::Fill(const QRect& part, QRgb color) const {
    for (int y = part.top(); y <= part.bottom(); ++y) std::fill_n(At(part.left(), y), part.width(), color);
}

void PixelRows::FillRows(const QRect& part, const QRgb* colors) const {
    const size_t bytes = static_cast<size_t>(part.width()) * sizeof(QRgb);
    for (int y = part.top(); y <= part.bottom(); ++y) std::memcpy(At(part.left(), y), colors, bytes);
}

}  // namespace vorlane
