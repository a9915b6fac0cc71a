// Panel: the smallest composite control, for tests of the floor. It records what its life cycle and its input tell.
#pragma once

#include "platform/controlvisitor.h"
#include "platform/headless/window.h"
#include "platform/usercontrol.h"

#include <string>

namespace vorlane::headless {

class Panel final : public UserControl {
public:
    Panel(headless::Desktop& desktop, const vorlane::Ambient& ambient, UserControl* container = nullptr)
        : UserControl(desktop.Roles(), ambient, container), trace_(desktop.trace) {}

    void InitProperties() override { trace_.Add("life InitProperties"); }
    void ReadProperties(const PropertyBag&) override { trace_.Add("life ReadProperties"); }
    void WriteProperties(PropertyBag&) const override {}
    void Show() override { trace_.Add("life Show"); }
    void Accept(ControlVisitor& visitor) const override { visitor.Visit(*this); }
    bool Wheel(double notches) override {
        turned += notches;
        return false;
    }

    double turned = 0;  // wheel notches so far

protected:
    void Resized() override {
        trace_.Add("life Resize " + std::to_string(static_cast<int>(Width())) + "x" +
                   std::to_string(static_cast<int>(Height())));
    }

private:
    Trace& trace_;
};

// Writes every mouse and key event of control to the trace, as "input <name> <event> ...".
inline void Listen(Desktop& desktop, Control& control, const std::string& name) {
    Trace& trace = desktop.trace;
    const auto number = [](double value) { return std::to_string(static_cast<int>(value)); };
    const auto mouse = [&trace, name, number](const char* event) {
        return [=, &trace](int16_t button, int16_t shift, float x, float y) {
            trace.Add("input " + name + " " + event + " " + number(button) + " " + number(shift) + " " + number(x) +
                      "," + number(y));
        };
    };
    control.Input.MouseDown.connect(mouse("MouseDown"));
    control.Input.MouseMove.connect(mouse("MouseMove"));
    control.Input.MouseUp.connect(mouse("MouseUp"));
    control.Input.Click.connect([&trace, name] { trace.Add("input " + name + " Click"); });
    control.Input.DblClick.connect([&trace, name] { trace.Add("input " + name + " DblClick"); });
    control.Input.KeyDown.connect([=, &trace](int16_t& code, int16_t shift) {
        trace.Add("input " + name + " KeyDown " + number(code) + " " + number(shift));
    });
    control.Input.KeyPress.connect(
        [=, &trace](int16_t& ascii) { trace.Add("input " + name + " KeyPress " + number(ascii)); });
    control.Input.OLEDragOver.connect(
        [=, &trace](DataObject&, int32_t& effect, int16_t, int16_t, float x, float y, int16_t state) {
            effect = 2;
            trace.Add("input " + name + " OLEDragOver " + number(x) + "," + number(y) + " " + number(state));
        });
    control.Input.OLEDragDrop.connect([=, &trace](DataObject& data, int32_t&, int16_t, int16_t, float x, float y) {
        trace.Add("input " + name + " OLEDragDrop " + number(x) + "," + number(y) + " " + data.Text());
    });
}

}  // namespace vorlane::headless
