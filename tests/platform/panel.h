// A control made of children, as plain as can be, and what its container would notice of it.
#pragma once

#include "platform/controlvisitor.h"
#include "platform/headless/desktop.h"
#include "platform/propertybag.h"
#include "platform/usercontrol.h"

#include <string>
#include <vector>

namespace vorlane {

class Panel : public UserControl {
public:
    // A root.
    Panel(headless::Desktop& desktop, float width, float height, const vorlane::Ambient& ambient = {})
        : UserControl(desktop.Roles(), ambient, nullptr) {
        Move(0, 0, width, height);
        Damaged.connect([this](const Box& part) { damage.push_back(part); });
    }
    Panel(headless::Desktop& desktop, UserControl* container, const Box& place)
        : UserControl(desktop.Roles(), vorlane::Ambient{}, container) {
        Move(place.Left, place.Top, place.Width, place.Height);
    }

    // What was damaged since the last call.
    std::vector<Box> TakeDamage() { return std::exchange(damage, {}); }

    void InitProperties() override { life += "init "; }
    void ReadProperties(const PropertyBag& bag) override { life += "read:" + bag.ReadText("name", "") + " "; }
    void WriteProperties(PropertyBag&) const override {}
    void Show() override { life += "show "; }
    void Accept(ControlVisitor& visitor) const override { visitor.Visit(*this); }

    std::string life;  // the calls of the life cycle
    std::vector<Box> damage;

protected:
    void Resized() override { life += "resize "; }
};

}  // namespace vorlane
