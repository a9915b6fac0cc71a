#include "platform/surface.h"

#include "platform/failure.h"
#include "platform/numbers.h"

#include <algorithm>
#include <span>
#include <utility>

namespace vorlane {

namespace {

// A coordinate that a replay can round.
float Coordinate(double value) {
    const auto single = static_cast<float>(value);
    ToInt32(single);
    return single;
}

template <class Shape>
Shape FromCorners(double x1, double y1, double x2, double y2, OLE_COLOR color) {
    return {Coordinate(x1), Coordinate(y1), Coordinate(x2), Coordinate(y2), color};
}

}  // namespace

void Surface::SetBackColor(OLE_COLOR color) {
    if (color == backColor_) return;
    backColor_ = color;
    Touch();
}

void Surface::Redraw(const std::function<void()>& paint) {
    if (redrawing_) return paint();
    const auto before = commands_;
    const size_t count = before->size();
    const uint64_t since = revision_;
    const OLE_COLOR ground = backColor_;
    const auto tell = [&] {
        redrawing_ = false;
        if (revision_ == since) return;
        const std::span<const draw::Command> drawn(*before);
        if (backColor_ == ground) lastRedraw_ = {since, draw::ChangesBetween(drawn.first(count), *commands_)};
        Changed();
    };
    redrawing_ = true;
    lastRedraw_.reset();
    try {
        paint();
    } catch (...) {
        tell();
        throw;
    }
    tell();
}

void Surface::Cls() {
    if (commands_->empty()) return;
    if (commands_.use_count() == 1) {
        commands_->clear();
    } else {
        const size_t usual = commands_->size();
        commands_ = std::make_shared<std::vector<draw::Command>>();
        commands_->reserve(usual);
    }
    Touch();
}

void Surface::Line(double x1, double y1, double x2, double y2, OLE_COLOR color) {
    Append(FromCorners<draw::Line>(x1, y1, x2, y2, color));
}

void Surface::LineBox(double x1, double y1, double x2, double y2, OLE_COLOR color) {
    Append(FromCorners<draw::OutlinedBox>(x1, y1, x2, y2, color));
}

void Surface::LineFilledBox(double x1, double y1, double x2, double y2, OLE_COLOR color) {
    Append(FromCorners<draw::FilledBox>(x1, y1, x2, y2, color));
}

void Surface::TextOutA(int32_t x, int32_t y, std::string_view text) {
    Append(draw::TextOutA{x, y, std::string(text), foreColor_, font_});
}

void Surface::GradientFill(const draw::Vertices& vertices, const draw::GradientMesh& rects, uint32_t mode) {
    if (mode > 1) throw failures::InvalidCall();
    const auto given = [&](const draw::GRADIENT_RECT& rect) {
        const auto [first, last] = std::minmax(rect.UpperLeft, rect.LowerRight);
        return first >= 0 && static_cast<size_t>(last) < vertices.size();
    };
    if (!std::all_of(rects.begin(), rects.end(), given)) throw failures::SubscriptOutOfRange();
    Append(draw::GradientFill{vertices, rects, mode});
}

void Surface::DrawEdge(const WinRect& rect, uint32_t edge, uint32_t flags) {
    Append(draw::DrawEdge{rect, edge, flags});
}

void Surface::Polygon(std::vector<Point> points) {
    const bool solid = fillStyle_ == 0;
    Append(draw::Polygon{std::move(points), foreColor_, solid ? std::optional(fillColor_) : std::nullopt});
}

void Surface::RoundRect(const WinRect& rect, int32_t cornerWidth, int32_t cornerHeight) {
    Append(draw::RoundRect{rect, cornerWidth, cornerHeight, foreColor_});
}

void Surface::SetPixel(int32_t x, int32_t y, OLE_COLOR color) {
    Append(draw::SetPixel{x, y, color});
}

void Surface::BitBlt(int32_t x, int32_t y, int32_t width, int32_t height, Picture source, int32_t sourceX,
                     int32_t sourceY) {
    Append(draw::BitBlt{x, y, width, height, std::move(source), sourceX, sourceY});
}

void Surface::Append(draw::Command command) {
    commands_->push_back(std::move(command));
    Touch();
}

void Surface::Touch() {
    ++revision_;
    if (redrawing_) return;
    lastRedraw_.reset();
    Changed();
}

}  // namespace vorlane
