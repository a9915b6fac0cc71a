// InputRouter: the one road of the user's input into a tree of controls. It takes window-level events in pixels of the
// root, finds the control under the point, keeps the capture (the one that a press implies and the one that a control
// asked for), makes clicks and double clicks, converts to each control's units and raises its Input events. Every
// desktop feeds it, so that a test's click takes the road of a user's click.
//
// No exception leaves it. A control that is unloaded under the pointer is kept alive until its gesture is over.
#pragma once

#include "platform/dataobject.h"
#include "platform/usercontrol.h"

#include <cstdint>
#include <functional>
#include <memory>

namespace vorlane {

class InputRouter {
public:
    // root outlives the router.
    explicit InputRouter(UserControl& root) : root_(root) {}

    // Button: the one that went down or up. Shift: see InputEvents. x, y: pixels of the root, also outside it.
    //
    // A press and a release on one control make a click, behind the release. A second press of the same button on the
    // same control, soon and near enough, comes as DblClick in place of MouseDown, and its release makes no click.
    void MouseDown(int16_t button, int16_t shift, float x, float y);
    void MouseUp(int16_t button, int16_t shift, float x, float y);
    void MouseMove(int16_t shift, float x, float y);
    // Notches, positive away from the user.
    void Wheel(double notches, float x, float y);

    // Keys go to the focused control, or to the root. The code comes back 0 when a handler swallowed it.
    void KeyDown(int16_t& keyCode, int16_t shift);
    void KeyPress(int16_t& keyAscii);
    void KeyUp(int16_t& keyCode, int16_t shift);
    // nullptr: the root.
    void SetFocus(Control* control);
    Control* Focus() const { return focus_.control; }

    // A drag over the root: the control under it hears of enter, over and leave. Of those that lie there, it is the
    // innermost one that takes drops, by its OLEDropMode. effect is the answer: 0 where nothing takes drops, and before
    // anything has answered. A drag that leaves the root is told to the root too.
    void DragOver(DataObject& data, int32_t& effect, int16_t button, int16_t shift, float x, float y);
    void DragLeave(DataObject& data);
    void DragDrop(DataObject& data, int32_t& effect, int16_t button, int16_t shift, float x, float y);

    // A drag has taken the release of the buttons that were down: nobody hears of it.
    void ForgetButtons();

    // The frontmost visible control at a point of the root; the root itself where it has no child, nullptr outside.
    Control* At(float x, float y) const;

    // What makes two presses a double click: milliseconds, and pixels on each axis.
    int32_t DoubleClickTime = 400;
    float DoubleClickDistance = 4;

private:
    struct Target {
        Control* control = nullptr;
        std::shared_ptr<const void> alive = nullptr;
        explicit operator bool() const { return control != nullptr; }
    };
    using MouseEvent = Event<int16_t, int16_t, float, float>;

    struct LastPress {
        const Control* control = nullptr;  // compared, never followed
        int16_t button = 0;
        int64_t time = 0;
        float x = 0;
        float y = 0;
    };

    Target Pin(Control* control) const;
    // The control that answers at a point: the innermost enabled one.
    Target Answering(float x, float y) const;
    Target MouseTarget(float x, float y) const;
    Target DropTarget(float x, float y) const;
    void Raise(const Target& target, MouseEvent InputEvents::*event, int16_t button, int16_t shift, float x, float y);
    bool IsDoubleClick(const Target& target, int16_t button, float x, float y) const;
    void LeaveDragged(DataObject& data);
    void DragTo(const Target& target, DataObject& data, int32_t& effect, int16_t button, int16_t shift, float x,
                float y, int16_t state);

    UserControl& root_;
    int16_t held_ = 0;  // buttons that are down
    Target pressed_;    // has the implied capture
    Target focus_;
    Target dragged_;  // the last one that a drag was over
    LastPress last_;
    bool doubled_ = false;  // the press under way made a double click
};

}  // namespace vorlane
