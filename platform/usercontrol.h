// UserControl: a control made of child controls on a drawing surface of its own, such as a slide or the sheet. It
// owns the surface, the list of its children and the life cycle that a container drives: Initialize is the
// constructor; then InitProperties (new) or ReadProperties (saved), Resize, Show.
#pragma once

#include "platform/ambient.h"
#include "platform/control.h"
#include "platform/desktop.h"
#include "platform/surface.h"

#include <string_view>
#include <vector>

namespace vorlane {

class PropertyBag;

class UserControl : public Control {
public:
    // container: nullptr for a root, whose host forwards input, Resize and Show.
    UserControl(const Desktop& desktop, const Ambient& ambient, UserControl* container);
    ~UserControl() override;

    // Runs the life cycle of a new or of a saved control up to its Show.
    void Start();
    void Start(const PropertyBag& saved);

    // Reads a control that has started already as a saved one anew, without its Show.
    void Restart(const PropertyBag& saved);

    virtual void InitProperties() = 0;
    virtual void ReadProperties(const PropertyBag& bag) = 0;
    virtual void WriteProperties(PropertyBag& bag) const = 0;
    // The control comes to the screen.
    virtual void Show() = 0;

    const vorlane::Desktop& Desktop() const { return desktop_; }
    const vorlane::Ambient& Ambient() const { return ambient_; }
    vorlane::Hwnd Hwnd() const { return ambient_.Window; }

    // Pixels that the frame of BorderStyle takes on each side. Children and surface lie inside of it.
    float FrameWidth() const;
    // Inner size in pixels: without the frame.
    float ScaleWidth() const;
    float ScaleHeight() const;
    // value, along either axis, from pixels to the container's scale.
    float ToContainer(double pixels) const;

    vorlane::Surface& Surface() { return surface_; }
    const vorlane::Surface& Surface() const { return surface_; }

    // Children, front to back.
    const std::vector<Control*>& Children() const { return children_; }

    // The frame around a control: 0 none, 1 single line.
    int32_t BorderStyle() const { return borderStyle_; }
    void SetBorderStyle(int32_t style);

    // A persisted property has changed; its property-bag key.
    Event<std::string_view> PropertyChanged;
    // On a root: part of it wants painting, in its pixels.
    Event<const Box&> Damaged;

protected:
    void OnResize() final;
    // The size has changed and aligned children follow it already.
    virtual void Resized() = 0;

private:
    friend class Control;

    void AddChild(Control& child);
    void RemoveChild(Control& child);
    // Gives whether the order has changed.
    bool Restack(Control& child, ZOrderPosition position);
    // The place of a child of that size that sticks to a side.
    Box Aligned(vorlane::Align align, const Box& box) const;
    void SurfaceChanged();
    void ChildChanged(const Box& part);

    vorlane::Desktop desktop_;
    vorlane::Ambient ambient_;
    vorlane::Surface surface_;
    std::vector<Control*> children_;
    int32_t borderStyle_ = 0;
};

}  // namespace vorlane
