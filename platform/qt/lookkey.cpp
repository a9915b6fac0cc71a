#include "platform/qt/lookkey.h"

#include "platform/image.h"
#include "platform/label.h"
#include "platform/ombrel.h"
#include "platform/qt/qtpicturedata.h"
#include "platform/shape.h"
#include "platform/usercontrol.h"

#include <iterator>
#include <utility>

#include <QGuiApplication>
#include <QPalette>

namespace vorlane {

LookKey::LookKey(QSize pixels, double scale) {
    key_.reserve(kUsual);
    Put(pixels.width(), pixels.height(), scale, QGuiApplication::palette().cacheKey());
}

std::string LookKey::Of(const Control& control, QSize pixels, double scale) {
    LookKey key(pixels, scale);
    control.Accept(key);
    return std::move(key.key_);
}

std::string LookKey::Of(const Surface& surface, QSize pixels, double scale) {
    LookKey key(pixels, scale);
    key.PutSurface(surface);
    return std::move(key.key_);
}

void LookKey::PutText(const std::string& text) {
    Put(text.size());
    key_ += text;
}

void LookKey::PutFont(const Font& font) {
    PutText(font.Name);
    Put(font.Size, font.Bold, font.Italic, font.Underline, font.Strikethrough);
}

void LookKey::Begin(char kind, const Control& control) {
    const Box& box = control.Bounds();
    Put(kind, box.Width, box.Height);
    if (std::exchange(inside_, true)) Put(box.Left, box.Top);
}

void LookKey::PutSurface(const Surface& surface) {
    Put(surface.BackColor(), surface.Commands().size());
    for (const draw::Command& command : surface.Commands()) {
        Put(command.index());
        std::visit(*this, command);
    }
}

// --- Controls ---

void LookKey::Visit(const UserControl& control) {
    Begin('U', control);
    Put(control.BorderStyle());
    PutSurface(control.Surface());
    const auto& children = control.Children();
    for (auto child = std::rbegin(children); child != std::rend(children); ++child) {
        if ((*child)->Visible()) (*child)->Accept(*this);
    }
    Put('.');
}

void LookKey::Visit(const Image& image) {
    if (image.Picture().Type() == 0) return;
    Begin('I', image);
    Put(SerialOf(image.Picture()));
}

void LookKey::Visit(const Label& label) {
    if (label.Caption().empty()) return;
    Begin('L', label);
    PutText(label.Caption());
    PutFont(label.Font());
    Put(label.ForeColor(), label.Alignment(), label.WordWrap(), label.Enabled());
}

void LookKey::Visit(const Shape& shape) {
    Begin('S', shape);
    Put(shape.BorderColor(), shape.BorderWidth());
}

void LookKey::Visit(const OmbrelProgressBar& gauge) {
    Begin('G', gauge);
    Put(gauge.Min(), gauge.Max(), gauge.Value());
}

void LookKey::Visit(const OmbrelSlider& slider) {
    Begin('s', slider);
    Put(slider.Value());
}

void LookKey::Visit(const OmbrelGradient& panel) {
    Begin('P', panel);
    PutText(panel.Caption());
    PutFont(panel.Font());
    Put(panel.ForeColor(), panel.ColorStart(), panel.ColorEnd(), panel.CornerSize());
}

// --- Drawing ---

void LookKey::operator()(const draw::Line& line) {
    Put(line.X1, line.Y1, line.X2, line.Y2, line.Color);
}

void LookKey::operator()(const draw::OutlinedBox& box) {
    Put(box.X1, box.Y1, box.X2, box.Y2, box.Color);
}

void LookKey::operator()(const draw::FilledBox& box) {
    Put(box.X1, box.Y1, box.X2, box.Y2, box.Color);
}

void LookKey::operator()(const draw::TextOutA& text) {
    Put(text.X, text.Y, text.Color);
    PutText(text.Text);
    PutFont(text.Font);
}

void LookKey::operator()(const draw::GradientFill& fill) {
    Put(fill.Mode, fill.Vertices.size(), fill.Rects.size());
    for (const draw::TRIVERTEX& at : fill.Vertices) Put(at.x, at.Y, at.Red, at.Green, at.Blue);
    for (const draw::GRADIENT_RECT& rect : fill.Rects) Put(rect.UpperLeft, rect.LowerRight);
}

void LookKey::operator()(const draw::DrawEdge& edge) {
    Put(edge.Rect.Left, edge.Rect.Top, edge.Rect.Right, edge.Rect.Bottom, edge.Edge, edge.Flags);
}

void LookKey::operator()(const draw::Polygon& polygon) {
    Put(polygon.Outline, polygon.Fill.has_value(), polygon.Fill.value_or(0), polygon.Points.size());
    for (const Point& point : polygon.Points) Put(point.X, point.Y);
}

void LookKey::operator()(const draw::RoundRect& frame) {
    Put(frame.Rect.Left, frame.Rect.Top, frame.Rect.Right, frame.Rect.Bottom);
    Put(frame.CornerWidth, frame.CornerHeight, frame.Outline);
}

void LookKey::operator()(const draw::SetPixel& pixel) {
    Put(pixel.X, pixel.Y, pixel.Color);
}

void LookKey::operator()(const draw::BitBlt& copy) {
    const QSize size = PixelSizeOf(copy.Source);
    Put(copy.X, copy.Y, copy.Width, copy.Height, copy.SourceX, copy.SourceY);
    Put(SerialOf(copy.Source), size.width(), size.height());
}

}  // namespace vorlane
