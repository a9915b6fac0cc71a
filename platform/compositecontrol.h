// CompositeControl: a control made of children that keeps nothing between two runs of the program.
#pragma once

#include "platform/controlvisitor.h"
#include "platform/usercontrol.h"

namespace vorlane {

class CompositeControl : public UserControl {
public:
    using UserControl::UserControl;

    void InitProperties() override {}
    void ReadProperties(const PropertyBag&) override {}
    void WriteProperties(PropertyBag&) const override {}
    void Show() override {}
    void Accept(ControlVisitor& visitor) const override { visitor.Visit(*this); }
};

}  // namespace vorlane
