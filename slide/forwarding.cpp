// What the user does on the slide's children, passed on as the slide's own events.
#include "platform/scale.h"
#include "slide/ediapolight.h"

#include <initializer_list>

namespace vorlane {

namespace {

float Pixels(float twips) {
    return Rescale(twips, ScaleMode::Twips, ScaleMode::Pixels);
}

}  // namespace

void eDiapoLight::ConnectInput() {
    for (Control* part : std::initializer_list<Control*>{&Img, &LblTop, &LblBottom}) {
        part->Input.Click.connect([this] { Events.Click(lastButton_); });
        part->Input.DblClick.connect([this] { Events.DblClick(lastButton_); });
        ForwardMouse(*part);
        ForwardDrag(*part);
    }
    ConnectButtons();
    ConnectInfo();
    ConnectCorner();
    ConnectGround();
}

float eDiapoLight::ForwardedX(const Control& child, float twips) const {
    return ToContainer(child.Left() + Pixels(twips));
}

float eDiapoLight::ForwardedY(const Control& child, float twips) const {
    return ToContainer(child.Top() + Pixels(twips));
}

void eDiapoLight::OLEDrag() {
    Attempt([this] { Img.OLEDrag(); });
}

void eDiapoLight::ForwardMouse(Control& child) {
    child.Input.MouseDown.connect([this, &child](int16_t button, int16_t shift, float x, float y) {
        lastButton_ = button;
        Events.MouseDown(button, shift, ForwardedX(child, x), ForwardedY(child, y));
    });
    child.Input.MouseMove.connect([this, &child](int16_t button, int16_t shift, float x, float y) {
        Events.MouseMove(button, shift, ForwardedX(child, x), ForwardedY(child, y));
    });
    child.Input.MouseUp.connect([this, &child](int16_t button, int16_t shift, float x, float y) {
        Events.MouseUp(button, shift, ForwardedX(child, x), ForwardedY(child, y));
    });
}

void eDiapoLight::ForwardDrag(Control& child) {
    child.Input.OLEDragOver.connect([this, &child](DataObject& data, int32_t& effect, int16_t button, int16_t shift,
                                                   float x, float y, int16_t state) {
        dragScale_ = Ambient().ContainerScale;
        Events.OLEDragOver(data, effect, button, shift, ForwardedX(child, x), ForwardedY(child, y), state);
    });
    child.Input.OLEDragDrop.connect(
        [this, &child](DataObject& data, int32_t& effect, int16_t button, int16_t shift, float x, float y) {
            dragScale_ = Ambient().ContainerScale;
            Events.OLEDragDrop(data, effect, button, shift, ForwardedX(child, x), ForwardedY(child, y));
        });
    ForwardDragState(child);
}

void eDiapoLight::ForwardDragState(Control& source) {
    source.Input.OLEStartDrag.connect(
        [this](DataObject& data, int32_t& effects) { Events.OLEStartDrag(data, effects); });
    source.Input.OLEGiveFeedback.connect(
        [this](int32_t& effect, bool& cursors) { Events.OLEGiveFeedback(effect, cursors); });
    source.Input.OLESetData.connect([this](DataObject& data, int16_t& format) { Events.OLESetData(data, format); });
    source.Input.OLECompleteDrag.connect([this](int32_t& effect) { Events.OLECompleteDrag(effect); });
}

// The ground's own input comes in pixels of the slide.
void eDiapoLight::ConnectGround() {
    Input.Click.connect([this] { Events.Click(lastButton_); });
    Input.DblClick.connect([this] { Events.DblClick(lastButton_); });
    Input.MouseDown.connect([this](int16_t button, int16_t shift, float x, float y) {
        lastButton_ = button;
        Events.MouseDown(button, shift, ToContainer(x), ToContainer(y));
    });
    Input.MouseMove.connect([this](int16_t button, int16_t shift, float x, float y) {
        Events.MouseMove(button, shift, ToContainer(x), ToContainer(y));
    });
    Input.MouseUp.connect([this](int16_t button, int16_t shift, float x, float y) {
        Events.MouseUp(button, shift, ToContainer(x), ToContainer(y));
    });
    Input.KeyDown.connect([this](int16_t& code, int16_t shift) { Events.KeyDown(code, shift); });
    Input.KeyPress.connect([this](int16_t& ascii) { Events.KeyPress(ascii); });
    Input.KeyUp.connect([this](int16_t& code, int16_t shift) { Events.KeyUp(code, shift); });
    Input.OLEDragOver.connect(
        [this](DataObject& data, int32_t& effect, int16_t button, int16_t shift, float x, float y, int16_t state) {
            dragScale_ = ScaleMode::Pixels;
            Events.OLEDragOver(data, effect, button, shift, x, y, state);
        });
    Input.OLEDragDrop.connect(
        [this](DataObject& data, int32_t& effect, int16_t button, int16_t shift, float x, float y) {
            dragScale_ = ScaleMode::Pixels;
            Events.OLEDragDrop(data, effect, button, shift, x, y);
        });
    ForwardDragState(*this);
}

}  // namespace vorlane
