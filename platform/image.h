// Image: a windowless control that shows a picture, stretched to the control's size.
#pragma once

#include "platform/control.h"
#include "platform/controlvisitor.h"
#include "platform/picture.h"

namespace vorlane {

class Image final : public Control {
public:
    explicit Image(UserControl* container) : Control(container, Layer::Windowless) {}

    const vorlane::Picture& Picture() const { return picture_; }
    void SetPicture(vorlane::Picture picture) { Assign(picture_, std::move(picture)); }

    void Accept(ControlVisitor& visitor) const override { visitor.Visit(*this); }

private:
    vorlane::Picture picture_;
};

}  // namespace vorlane
