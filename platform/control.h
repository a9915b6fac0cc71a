// Control: a node of the control tree. It owns what every control has: its place in its container, visibility, tag,
// tooltip, stacking, and the raw input events that the InputRouter delivers to it. What a control shows and what its
// input means are its own class's business.
//
// Places and sizes are pixels of the container, as Singles. A size may be negative; it then paints and hits nothing.
// A control must not outlive its container.
#pragma once

#include "platform/event.h"
#include "platform/geometry.h"
#include "platform/picture.h"

#include <memory>
#include <string>
#include <utility>

namespace vorlane {

class ControlVisitor;
class DataObject;
class UserControl;

// What the platform tells a control of the user's mouse, keys and drags.
//   Button: 1 left, 2 right, 4 middle. Shift: sum of 1 Shift, 2 Ctrl, 4 Alt.
//   X, Y: twips of the control; on a UserControl itself, pixels of its surface.
//   KeyAscii set to 0 swallows the character. Effect: sum of 1 copy, 2 move. State: 0 enter, 1 leave, 2 over.
struct InputEvents {
    Event<int16_t, int16_t, float, float> MouseDown;  // Button, Shift, X, Y
    Event<int16_t, int16_t, float, float> MouseMove;
    Event<int16_t, int16_t, float, float> MouseUp;
    Event<> Click;
    Event<> DblClick;
    Event<int16_t&, int16_t> KeyDown;  // KeyCode, Shift
    Event<int16_t&> KeyPress;          // KeyAscii
    Event<int16_t&, int16_t> KeyUp;
    Event<DataObject&, int32_t&> OLEStartDrag;  // Data, AllowedEffects
    Event<DataObject&, int32_t&, int16_t, int16_t, float, float, int16_t> OLEDragOver;
    Event<DataObject&, int32_t&, int16_t, int16_t, float, float> OLEDragDrop;
    Event<int32_t&, bool&> OLEGiveFeedback;   // Effect, DefaultCursors
    Event<DataObject&, int16_t&> OLESetData;  // Data, DataFormat
    Event<int32_t&> OLECompleteDrag;          // Effect
};

enum class Align : int16_t { None = 0, Top = 1, Bottom = 2, Left = 3, Right = 4 };

enum class ZOrderPosition : int16_t { Front = 0, Back = 1 };

class Control {
public:
    // A windowed control stands above all windowless ones of its container, whatever their order.
    enum class Layer : uint8_t { Windowless, Windowed };

    // Joins container below its siblings of the same layer: what is declared first stands in front.
    Control(UserControl* container, Layer layer);
    virtual ~Control();
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    float Left() const { return box_.Left; }
    float Top() const { return box_.Top; }
    float Width() const { return box_.Width; }
    float Height() const { return box_.Height; }
    const Box& Bounds() const { return box_; }
    void SetLeft(double left);
    void SetTop(double top);
    void SetWidth(double width);
    void SetHeight(double height);
    void Move(double left, double top);
    void Move(double left, double top, double width, double height);

    // Sticks the control to a side of its container, whose size it follows with its own thickness kept. While it
    // sticks, only its thickness can be set.
    vorlane::Align Align() const { return align_; }
    void SetAlign(vorlane::Align align);

    bool Visible() const { return visible_; }
    void SetVisible(bool visible);
    bool Enabled() const { return enabled_; }
    void SetEnabled(bool enabled);

    const std::string& Tag() const { return tag_; }
    void SetTag(std::string tag) { tag_ = std::move(tag); }
    const std::string& ToolTipText() const { return toolTipText_; }
    void SetToolTipText(std::string text);

    int16_t MousePointer() const { return mousePointer_; }
    void SetMousePointer(int16_t shape);
    // The pointer's picture where MousePointer is 99.
    const Picture& MouseIcon() const { return mouseIcon_; }
    void SetMouseIcon(Picture icon);
    // The innermost control from here outwards that has a pointer of its own; nullptr for none.
    const Control* WithPointer() const;
    static constexpr int16_t kPointerIsIcon = 99;

    // 0 none, 1 manual, 2 automatic (for drops) as the platform counts them.
    int16_t OLEDragMode() const { return oleDragMode_; }
    void SetOLEDragMode(int16_t mode) { oleDragMode_ = mode; }
    int16_t OLEDropMode() const { return oleDropMode_; }
    void SetOLEDropMode(int16_t mode) { oleDropMode_ = mode; }

    // Lets the user drag from here: OLEStartDrag gives the data and what may be done with it (at first 1, copying),
    // then OLESetData what it has declared and not given, OLEGiveFeedback tells how it goes, and OLECompleteDrag how it
    // has ended. Returns behind that. Data of no format at all is not dragged. Where OLEGiveFeedback clears its
    // DefaultCursors, the drag's pointer is the picture that the control has for its own, if it has one.
    void OLEDrag();

    // Puts the control in front of, or behind, its siblings of the same layer.
    void ZOrder(ZOrderPosition position = ZOrderPosition::Front);

    UserControl* Container() const { return container_; }
    Layer StackingLayer() const { return layer_; }
    // The container that has none itself; this control when it has no container.
    Control& Root();
    // This control's rectangle in pixels of its root.
    Box BoundsInRoot() const;

    // Whether (x, y), in pixels of this control, belongs to it. The whole rectangle does, unless a class says less.
    virtual bool HitTest(float x, float y) const;
    // A turn of the wheel over this control, in notches, positive away from the user; whether it was used. The router
    // asks the control under the pointer, then its containers.
    virtual bool Wheel(double notches);
    virtual void Accept(ControlVisitor& visitor) const = 0;

    // Says that what the control shows has changed: its rectangle wants painting, a peer wants bringing up to date.
    void Invalidate();

    // Holds the control, by way of the array element that it is or belongs to, against unloading while the result
    // lives. Empty when nothing on the way can be unloaded.
    std::shared_ptr<const void> KeepAlive() const;

    InputEvents Input;
    Event<> Changed;  // behind every Invalidate; for peers

protected:
    // The size has changed.
    virtual void OnResize() {}
    virtual void OnVisibleChanged() {}
    // A part of the container, in its pixels, wants painting.
    void InvalidateOuter(const Box& part);
    // What the control covers at a place wants painting: the whole of it, unless a class shows less.
    virtual void InvalidatePlace(const Box& place) { InvalidateOuter(place); }

    // The body of a plain setter: stores value and invalidates when it differs. Returns whether it did.
    template <class T>
    bool Assign(T& field, T value) {
        if (field == value) return false;
        field = std::move(value);
        Invalidate();
        return true;
    }

private:
    template <class>
    friend class ControlArray;
    friend class UserControl;

    UserControl* container_;
    Layer layer_;
    Box box_;
    vorlane::Align align_ = vorlane::Align::None;
    bool visible_ = true;
    bool enabled_ = true;
    int16_t mousePointer_ = 0;
    Picture mouseIcon_;
    int16_t oleDragMode_ = 0;
    int16_t oleDropMode_ = 0;
    std::string tag_;
    std::string toolTipText_;
    std::weak_ptr<const void> element_;  // set by the ControlArray that owns this control
};

}  // namespace vorlane
