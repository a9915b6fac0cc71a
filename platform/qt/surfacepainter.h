// SurfacePainter: replays the recording of a surface through a QPainter whose unit is the device pixel, from (0, 0).
// At one device pixel a logical one it puts exactly the pixels that each command's contract tells; at other densities
// every logical pixel becomes a cell of PixelGrid, and slanted lines and text are drawn smooth.
#pragma once

#include "platform/qt/painttools.h"
#include "platform/qt/pixelgrid.h"
#include "platform/qt/pixelrows.h"
#include "platform/qt/qttextmetrics.h"
#include "platform/surface.h"

#include <string>

class QColor;
class QPainter;

namespace vorlane {

class SurfacePainter {
public:
    SurfacePainter(QPainter& painter, const PaintTools& tools, double scale);

    // Everything on the surface, without its ground.
    void Replay(const Surface& surface);

    void operator()(const draw::Line& line);
    void operator()(const draw::OutlinedBox& box);
    void operator()(const draw::FilledBox& box);
    void operator()(const draw::TextOutA& text);
    void operator()(const draw::GradientFill& fill);
    void operator()(const draw::DrawEdge& edge);
    void operator()(const draw::Polygon& polygon);
    void operator()(const draw::RoundRect& frame);
    void operator()(const draw::SetPixel& pixel);
    void operator()(const draw::BitBlt& copy);

private:
    QColor Color(OLE_COLOR color) const;
    QColor Color(SystemColor color) const;
    void Fill(const QRect& area, const QColor& color);
    void Write(const std::string& text, const QtTextMetrics::Resolved& font, const QPointF& place);
    void Fill(const draw::TRIVERTEX& first, const draw::TRIVERTEX& second, bool downwards);
    // A ring of one pixel inside rect, on the sides whose bits are set.
    void Ring(const WinRect& rect, uint32_t sides, SystemColor topLeft, SystemColor bottomRight);
    void Slanted(const draw::Line& line);

    QPainter& painter_;
    PaintTools tools_;
    PixelGrid grid_;
    PixelRows rows_;
};

}  // namespace vorlane
