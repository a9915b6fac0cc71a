// One operation over the concrete controls of the tree, such as painting one from its state.
#pragma once

namespace vorlane {

class Image;
class Label;
class OmbrelGradient;
class OmbrelProgressBar;
class OmbrelSlider;
class ScrollbarPlus;
class Shape;
class TextBox;
class UserControl;

class ControlVisitor {
public:
    virtual ~ControlVisitor() = default;

    virtual void Visit(const UserControl& control) = 0;
    virtual void Visit(const Image& image) = 0;
    virtual void Visit(const Label& label) = 0;
    virtual void Visit(const Shape& shape) = 0;
    virtual void Visit(const TextBox& box) = 0;
    virtual void Visit(const ScrollbarPlus& bar) = 0;
    virtual void Visit(const OmbrelProgressBar& gauge) = 0;
    virtual void Visit(const OmbrelSlider& slider) = 0;
    virtual void Visit(const OmbrelGradient& panel) = 0;
};

}  // namespace vorlane
