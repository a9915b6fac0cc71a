// UserDrag: a drag in the hands of the scripted user, from another program or from a control, over the windows of the
// headless desktop, to its drop or away. Over a window it takes the road of the user: the window's input router.
#pragma once

#include "platform/dataobject.h"
#include "platform/headless/window.h"

#include <cstdint>
#include <functional>

namespace vorlane::headless {

class UserDrag {
public:
    // From another program, which allows these effects. The drag does not outlive the windows it is over.
    explicit UserDrag(Desktop& desktop, DataObject data, int32_t allowed = kDropCopies | kDropMoves);
    UserDrag(Desktop& desktop, DataObject& data, int32_t allowed, DragFeedback feedback);
    ~UserDrag();
    UserDrag(const UserDrag&) = delete;
    UserDrag& operator=(const UserDrag&) = delete;

    // To a place in window, in its pixels; a place outside of it is no window at all.
    void Over(Window& window, float x, float y, int16_t shift = 0);
    // The user lets go: a drop where the pointer is, if there is something to be done there. Ends the drag.
    void Drop();
    void Drop(Window& window, float x, float y, int16_t shift = 0);
    // Ends the drag by the Escape key.
    void Escape();

    bool Ended() const { return ended_; }
    // What a drop would do now; of a drag that has ended, what it did.
    int32_t Effect() const { return effect_; }
    // What its source shows for a pointer; empty for the system's own.
    const Picture& Pointer() const { return pointer_; }

private:
    void Leave();
    void Answer(int32_t effect);

    Desktop& desktop_;
    DataObject own_;
    DataObject& data_;
    int32_t allowed_;
    DragFeedback feedback_;
    Picture pointer_;
    Window* window_ = nullptr;  // the one that it is over
    float x_ = 0;
    float y_ = 0;
    int16_t shift_ = 0;
    int32_t effect_ = 0;
    bool ended_ = false;
};

}  // namespace vorlane::headless
