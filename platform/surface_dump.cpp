#include "platform/scale.h"
#include "platform/surface.h"

#include <charconv>
#include <string>

namespace vorlane {

namespace {

// At least that many digits.
std::string Hex(uint32_t value, size_t digits) {
    std::string text;
    for (; value != 0 || text.size() < digits; value >>= 4) text.insert(text.begin(), "0123456789ABCDEF"[value & 0xFU]);
    return text;
}

std::string Color(OLE_COLOR color) {
    if (IsSystemColor(color)) return "sys" + std::to_string(SystemColorNumber(color));
    return "#" + Hex(color & 0xFFFFFFU, 6);
}

// Up to three decimals, whatever the locale.
std::string Number(double value) {
    char buffer[64];
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed, 3).ptr;
    std::string text(buffer, end);
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.') text.pop_back();
    return text == "-0" ? "0" : text;
}

std::string At(double x, double y) {
    return Number(x) + "," + Number(y);
}

std::string Size(double width, double height) {
    return Number(width) + "x" + Number(height);
}

std::string Rectangle(const WinRect& rect) {
    return At(rect.Left, rect.Top) + " " + At(rect.Right, rect.Bottom);
}

std::string Quoted(std::string_view text) {
    std::string quoted = "\"";
    for (const char unit : text) {
        const auto code = static_cast<unsigned char>(unit);
        if (code < 0x20 || code == 0x7F) {
            quoted += "\\x" + Hex(code, 2);
        } else {
            if (unit == '"' || unit == '\\') quoted += '\\';
            quoted += unit;
        }
    }
    return quoted + "\"";
}

std::string Describe(const Font& font) {
    std::string text = Quoted(font.Name) + " " + Number(font.Size);
    if (font.Bold) text += " bold";
    if (font.Italic) text += " italic";
    if (font.Underline) text += " underline";
    if (font.Strikethrough) text += " strikethrough";
    return text;
}

std::string Describe(const Picture& picture) {
    const auto pixels = [](double size) { return Rescale(size, ScaleMode::HiMetric, ScaleMode::Pixels); };
    return "picture type " + std::to_string(picture.Type()) + " " +
           Size(pixels(picture.Width()), pixels(picture.Height()));
}

std::string Describe(const draw::TRIVERTEX& vertex) {
    const auto color = [](int16_t bits) { return Hex(draw::TRIVERTEX::Value(bits), 4); };
    return At(vertex.x, vertex.Y) + " " + color(vertex.Red) + "/" + color(vertex.Green) + "/" + color(vertex.Blue);
}

// One command as a line.
struct Printer {
    template <class Shape>
    std::string Corners(const char* name, const Shape& shape) const {
        return name + At(shape.X1, shape.Y1) + " " + At(shape.X2, shape.Y2) + " " + Color(shape.Color);
    }

    std::string operator()(const draw::Line& line) const { return Corners("Line ", line); }
    std::string operator()(const draw::OutlinedBox& box) const { return Corners("Box ", box); }
    std::string operator()(const draw::FilledBox& box) const { return Corners("FilledBox ", box); }

    std::string operator()(const draw::TextOutA& out) const {
        return "Text " + At(out.X, out.Y) + " " + Quoted(out.Text) + " " + Color(out.Color) + " " + Describe(out.Font);
    }

    std::string operator()(const draw::GradientFill& fill) const {
        std::string text = fill.Mode == 0 ? "GradientFill across" : "GradientFill down";
        for (const auto& rect : fill.Rects) {
            const auto vertex = [&](int32_t index) { return Describe(fill.Vertices[static_cast<size_t>(index)]); };
            text += " [" + vertex(rect.UpperLeft) + " to " + vertex(rect.LowerRight) + "]";
        }
        return text;
    }

    std::string operator()(const draw::DrawEdge& call) const {
        return "DrawEdge " + Rectangle(call.Rect) + " edge " + Hex(call.Edge, 2) + " flags " + Hex(call.Flags, 4);
    }

    std::string operator()(const draw::Polygon& polygon) const {
        std::string text = "Polygon";
        for (const Point& point : polygon.Points) text += " " + At(point.X, point.Y);
        text += " " + Color(polygon.Outline);
        return polygon.Fill ? text + " fill " + Color(*polygon.Fill) : text;
    }

    std::string operator()(const draw::RoundRect& rect) const {
        return "RoundRect " + Rectangle(rect.Rect) + " corner " + Size(rect.CornerWidth, rect.CornerHeight) + " " +
               Color(rect.Outline);
    }

    std::string operator()(const draw::SetPixel& pixel) const {
        return "SetPixel " + At(pixel.X, pixel.Y) + " " + Color(pixel.Color);
    }

    std::string operator()(const draw::BitBlt& blit) const {
        return "BitBlt " + At(blit.X, blit.Y) + " " + Size(blit.Width, blit.Height) + " from " +
               At(blit.SourceX, blit.SourceY) + " of " + Describe(blit.Source);
    }
};

}  // namespace

std::string Surface::dump() const {
    std::string text = "BackColor " + Color(backColor_) + "\n";
    for (const draw::Command& command : Commands()) text += std::visit(Printer{}, command) + "\n";
    return text;
}

}  // namespace vorlane
