// LookKey: all that the drawing of a control depends on, as a text of bytes: its surface, what its visible children
// hold, its size in device pixels, their density and the theme. Where the control stands is no part of it.
#pragma once

#include "platform/controlvisitor.h"
#include "platform/surface.h"

#include <cstring>
#include <string>
#include <type_traits>

#include <QSize>

namespace vorlane {

class Control;

class LookKey final : public ControlVisitor {
public:
    // Equal for two controls that look the same in that many device pixels, scale of which make a logical one.
    static std::string Of(const Control& control, QSize pixels, double scale);
    // The same for two surfaces.
    static std::string Of(const Surface& surface, QSize pixels, double scale);

    void Visit(const UserControl& control) override;
    void Visit(const Image& image) override;
    void Visit(const Label& label) override;
    void Visit(const Shape& shape) override;
    void Visit(const TextBox&) override {}
    void Visit(const ScrollbarPlus&) override {}
    void Visit(const OmbrelProgressBar& gauge) override;
    void Visit(const OmbrelSlider& slider) override;
    void Visit(const OmbrelGradient& panel) override;

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
    LookKey(QSize pixels, double scale);

    // Numbers, flags and enumerations.
    template <class... Values>
    void Put(Values... values) {
        static_assert(((std::is_arithmetic_v<Values> || std::is_enum_v<Values>)&&...));
        char bytes[(sizeof values + ...)];
        char* end = bytes;
        ((std::memcpy(end, &values, sizeof values), end += sizeof values), ...);
        key_.append(bytes, sizeof bytes);
    }
    void PutText(const std::string& text);
    void PutFont(const Font& font);
    // A control of that kind, and where it stands when it is inside of another one.
    void Begin(char kind, const Control& control);
    void PutSurface(const Surface& surface);

    static constexpr size_t kUsual = 2048;

    std::string key_;
    bool inside_ = false;
};

}  // namespace vorlane
