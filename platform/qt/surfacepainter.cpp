#include "platform/qt/surfacepainter.h"

#include "platform/qt/colors.h"
#include "platform/qt/qtpicturedata.h"
#include "platform/qt/qttextmetrics.h"
#include "platform/qt/scaledpictures.h"

#include <algorithm>

#include <QPainter>
#include <QPen>
#include <QPolygonF>

namespace vorlane {

SurfacePainter::SurfacePainter(QPainter& painter, const PaintTools& tools, double scale)
    : painter_(painter), tools_(tools), grid_(scale), rows_(painter) {}

void SurfacePainter::Replay(const Surface& surface) {
    for (const draw::Command& command : surface.Commands()) std::visit(*this, command);
}

QColor SurfacePainter::Color(OLE_COLOR color) const {
    return ToQColor(color, tools_.screen);
}

QColor SurfacePainter::Color(SystemColor color) const {
    return Color(FromSystem(color));
}

void SurfacePainter::Fill(const QRect& area, const QColor& color) {
    rows_ ? rows_.Fill(rows_.Seen(area), color.rgb()) : painter_.fillRect(area, color);
}

void SurfacePainter::operator()(const draw::Line& line) {
    if (line.X1 != line.X2 && line.Y1 != line.Y2) return Slanted(line);
    Fill(grid_.Cells(line.X1, line.Y1, line.X2, line.Y2), Color(line.Color));
}

void SurfacePainter::Slanted(const draw::Line& line) {
    const double scale = grid_.Scale();
    const QColor color = Color(line.Color);
    if (scale == 1) {
        painter_.setPen(color);
        painter_.drawLine(grid_.Edge(line.X1), grid_.Edge(line.Y1), grid_.Edge(line.X2), grid_.Edge(line.Y2));
        return;
    }
    const auto middle = [&](float x, float y) { return QPointF(x + 0.5, y + 0.5) * scale; };
    painter_.save();
    painter_.setRenderHint(QPainter::Antialiasing);
    painter_.setPen(QPen(color, scale));
    painter_.drawLine(middle(line.X1, line.Y1), middle(line.X2, line.Y2));
    painter_.restore();
}

// The four sides are of one thickness, that of the widest; it grows inwards.
void SurfacePainter::operator()(const draw::OutlinedBox& box) {
    const QColor color = Color(box.Color);
    const QRect whole = grid_.Cells(box.X1, box.Y1, box.X2, box.Y2);
    if (box.X1 == box.X2 || box.Y1 == box.Y2) return Fill(whole, color);
    const QRect first = grid_.Cells(box.X1, box.Y1, box.X1, box.Y1);
    const QRect last = grid_.Cells(box.X2, box.Y2, box.X2, box.Y2);
    const int thickness = std::max({first.width(), first.height(), last.width(), last.height()});
    const QRect inside = whole.adjusted(thickness, thickness, -thickness, -thickness);
    if (!inside.isValid()) return Fill(whole, color);
    Fill(QRect(whole.topLeft(), QPoint(whole.right(), inside.top() - 1)), color);
    Fill(QRect(QPoint(whole.left(), inside.bottom() + 1), whole.bottomRight()), color);
    Fill(QRect(whole.left(), inside.top(), thickness, inside.height()), color);
    Fill(QRect(inside.right() + 1, inside.top(), thickness, inside.height()), color);
}

void SurfacePainter::operator()(const draw::FilledBox& box) {
    Fill(grid_.Cells(box.X1, box.Y1, box.X2, box.Y2), Color(box.Color));
}

void SurfacePainter::operator()(const draw::TextOutA& text) {
    const QtTextMetrics::Resolved& font = tools_.fonts.Resolve(text.Font);
    const QPointF place(grid_.Edge(text.X), grid_.Edge(text.Y));
    const double scale = grid_.Scale();
    painter_.setPen(Color(text.Color));
    if (scale == 1) return Write(text.Text, font, place);
    painter_.save();
    painter_.translate(place);
    painter_.scale(scale, scale);
    Write(text.Text, font, {});
    painter_.restore();
}

void SurfacePainter::Write(const std::string& text, const QtTextMetrics::Resolved& font, const QPointF& place) {
    const QPointF start = place + QPointF(0, font.metrics.ascent());
    if (const QList<QGlyphRun>* runs = tools_.fonts.Glyphs(font, text)) {
        for (const QGlyphRun& run : *runs) painter_.drawGlyphRun(start, run);
    } else {
        painter_.setFont(font.qfont);
        painter_.drawText(start, QString::fromStdString(text));
    }
}

void SurfacePainter::operator()(const draw::Polygon& polygon) {
    if (polygon.Points.empty()) return;
    const double scale = grid_.Scale();
    QPolygonF corners;
    for (const Point& point : polygon.Points) {
        corners << (scale == 1 ? QPointF(point.X, point.Y) : QPointF(point.X + 0.5, point.Y + 0.5) * scale);
    }
    painter_.save();
    painter_.setRenderHint(QPainter::Antialiasing, scale != 1);
    if (polygon.Fill) {
        painter_.setPen(Qt::NoPen);
        painter_.setBrush(Color(*polygon.Fill));
        painter_.drawPolygon(corners);
    }
    painter_.setPen(QPen(Color(polygon.Outline), scale));
    painter_.setBrush(Qt::NoBrush);
    painter_.drawPolygon(corners);
    painter_.restore();
}

void SurfacePainter::operator()(const draw::SetPixel& pixel) {
    Fill(grid_.Cells(pixel.X, pixel.Y, pixel.X, pixel.Y), Color(pixel.Color));
}

void SurfacePainter::operator()(const draw::BitBlt& copy) {
    const QSize logical = PixelSizeOf(copy.Source);
    const QSize dense(grid_.Length(logical.width()), grid_.Length(logical.height()));
    const QPixmap source = tools_.pictures.Get(copy.Source, dense);
    if (source.isNull() || copy.Width <= 0 || copy.Height <= 0) return;
    const QPoint target(grid_.Edge(copy.X), grid_.Edge(copy.Y));
    const QPoint first(grid_.Edge(copy.SourceX), grid_.Edge(copy.SourceY));
    const QSize size(grid_.Length(copy.Width), grid_.Length(copy.Height));
    const QRect part = QRect(first, size).intersected(source.rect());
    if (!part.isEmpty()) painter_.drawPixmap(target + part.topLeft() - first, source, part);
}

}  // namespace vorlane
