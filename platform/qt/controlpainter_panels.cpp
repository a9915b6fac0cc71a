#include "platform/label.h"
#include "platform/numbers.h"
#include "platform/ombrel.h"
#include "platform/qt/colors.h"
#include "platform/qt/controlpainter.h"
#include "platform/qt/qttextmetrics.h"
#include "platform/qt/textlines.h"

#include <algorithm>
#include <vector>

#include <QLinearGradient>
#include <QPainter>

namespace vorlane {

namespace {

double LineHeight(const QtTextMetrics::Resolved& font) {
    return Max(1, -Int(-font.metrics.height()));
}

// Where a line of that width begins in a box of another.
double Start(TextAlignment alignment, double box, double line) {
    if (alignment == TextAlignment::Left) return 0;
    return alignment == TextAlignment::Right ? box - line : (box - line) / 2;
}

std::vector<TextLine> LinesOf(const Label& label, const QtTextMetrics::Resolved& font) {
    const QString text = QString::fromStdString(label.Caption());
    const double width = label.Width();
    if (label.WordWrap()) {
        const int count = ToInt32(Max(1, Int(label.Height() / LineHeight(font))));
        return WrappedLines(text, font.qfont, font.metrics, width, count);
    }
    std::vector<TextLine> lines;
    lines.push_back(ElidedLine(text, font.qfont, font.metrics, width));
    return lines;
}

// A colour between two, part of the way from the first.
QColor Between(const QColor& first, const QColor& second, double part) {
    const auto mix = [&](int a, int b) { return ToInt32(a + (b - a) * part); };
    return {mix(first.red(), second.red()), mix(first.green(), second.green()), mix(first.blue(), second.blue())};
}

// A bar with round ends.
void Pill(QPainter& painter, const QRectF& box, const QColor& color) {
    const double radius = std::min(box.width(), box.height()) / 2;
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawRoundedRect(box, radius, radius);
}

// A panel with round corners and a thin rim. Like a rounded region it covers one pixel less on the right and below.
void RoundedPanel(QPainter& painter, const QRectF& area, double radius, const QLinearGradient& ground, double pixel) {
    const double half = pixel / 2;
    const QColor end = ground.stops().last().second;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(ground);
    painter.setPen(QPen(end.lightness() > 127 ? end.darker(150) : end.lighter(200), pixel));
    painter.drawRoundedRect(area.adjusted(half, half, -half - pixel, -half - pixel), radius, radius);
    painter.restore();
}

}  // namespace

void ControlPainter::Visit(const Label& label) {
    if (label.Caption().empty() || label.Bounds().Empty()) return;
    const QtTextMetrics::Resolved& font = tools_.fonts.Resolve(label.Font());
    const QRect area = AreaOf(label);
    painter_.save();
    painter_.setClipRect(area.intersected(damaged_));
    painter_.translate(area.topLeft());
    painter_.scale(grid_.Scale(), grid_.Scale());
    painter_.setPen(ToQColor(label.Enabled() ? label.ForeColor() : FromSystem(SystemColor::GrayText), tools_.screen));
    double baseline = font.metrics.ascent();
    for (const TextLine& line : LinesOf(label, font)) {
        line.Paint(painter_, {Int(Start(label.Alignment(), label.Width(), line.Width()) + 0.5), baseline});
        baseline += LineHeight(font);
    }
    painter_.restore();
}

void ControlPainter::Visit(const OmbrelProgressBar& gauge) {
    const QRectF area = AreaOf(gauge);
    const double pixel = grid_.Scale();
    const double range = static_cast<double>(gauge.Max()) - gauge.Min();
    const double done = range > 0 ? std::clamp((gauge.Value() - gauge.Min()) / range, 0.0, 1.0) : 1;
    const QColor face = ToQColor(FromSystem(SystemColor::ButtonFace), tools_.screen);
    const QColor text = ToQColor(FromSystem(SystemColor::ButtonText), tools_.screen);

    painter_.save();
    painter_.setRenderHint(QPainter::Antialiasing);
    Pill(painter_, area, Between(face, text, 0.25));
    Pill(painter_, area.adjusted(pixel, pixel, -pixel, -pixel), Between(face, text, 0.06));
    QRectF bar = area.adjusted(3 * pixel, 3 * pixel, -3 * pixel, -3 * pixel);
    bar.setWidth(std::max(bar.height(), bar.width() * done));
    if (done > 0) Pill(painter_, bar, ToQColor(FromSystem(SystemColor::Highlight), tools_.screen));
    painter_.restore();
}

QPixmap ControlPainter::Draw(const OmbrelSlider& slider, QSize pixels, const PaintTools& tools, double scale) {
    const QRectF area(QPointF(0, 0), pixels);
    const double part = std::clamp(slider.Value(), 0, 100) / 100.0;
    const double middle = area.width() / 2;
    const double radius = std::min(area.width() / 2 - scale, 3 * scale);
    const double rest = radius + scale / 2;  // of the knob beyond the end of its track
    const QRectF track(middle - scale, rest, 2 * scale, std::max(0.0, area.height() - 2 * rest));
    const QColor accent = ToQColor(FromSystem(SystemColor::Highlight), tools.screen);
    const QColor face = ToQColor(FromSystem(SystemColor::ButtonFace), tools.screen);
    const QColor text = ToQColor(FromSystem(SystemColor::ButtonText), tools.screen);
    const QPointF knob(middle, track.top() + track.height() * part);

    QPixmap look(pixels);
    look.fill(Qt::transparent);
    QPainter painter(&look);
    painter.setRenderHint(QPainter::Antialiasing);
    Pill(painter, track, Between(face, text, 0.35));
    Pill(painter, QRectF(track.topLeft(), QPointF(track.right(), knob.y())), accent);
    painter.setPen(QPen(Between(face, text, 0.1), scale / 2));
    painter.setBrush(accent);
    painter.drawEllipse(knob, radius, radius);
    return look;
}

void ControlPainter::Visit(const OmbrelGradient& panel) {
    const QRect area = AreaOf(panel);
    QLinearGradient ground(area.topLeft(), area.bottomLeft() + QPoint(0, 1));
    ground.setColorAt(0, ToQColor(panel.ColorStart(), tools_.screen));
    ground.setColorAt(1, ToQColor(panel.ColorEnd(), tools_.screen));
    if (panel.CornerSize() > 0) {
        RoundedPanel(painter_, area, panel.CornerSize() * grid_.Scale() / 2, ground, grid_.Scale());
    } else {
        painter_.fillRect(area, ground);
    }
    if (panel.Caption().empty()) return;

    const QtTextMetrics::Resolved& font = tools_.fonts.Resolve(panel.Font());
    painter_.save();
    painter_.setClipRect(area.intersected(damaged_));
    painter_.translate(area.topLeft());
    painter_.scale(grid_.Scale(), grid_.Scale());
    painter_.setFont(font.qfont);
    painter_.setPen(ToQColor(panel.ForeColor(), tools_.screen));
    const QRectF inside(0, 0, panel.Width(), panel.Height());
    painter_.drawText(inside, Qt::AlignCenter | Qt::TextWordWrap, QString::fromStdString(panel.Caption()));
    painter_.restore();
}

}  // namespace vorlane
