// The drags of the headless desktop. What the user does with a drag that a control starts is a script that a test has
// set before; without one the user lets go at once.
#pragma once

#include "platform/desktop.h"
#include "platform/event.h"
#include "platform/headless/trace.h"

#include <cstdint>
#include <functional>

namespace vorlane::headless {

class Desktop;
class UserDrag;

class FakeDrags final : public vorlane::Drags {
public:
    explicit FakeDrags(Desktop& desktop) : desktop_(desktop) {}

    // What the user does with every drag from now on; the drag is cancelled behind that where it has not ended.
    void Script(std::function<void(UserDrag&)> script) { script_ = std::move(script); }
    bool Running() const { return running_; }

    // Says "drag start <allowed> <number of files>" and "drag end <effect>" in the trace.
    int32_t DoDrag(Hwnd window, DataObject& data, int32_t allowed, const DragFeedback& feedback) override;

    Event<> Ended;  // the buttons are up

private:
    Desktop& desktop_;
    std::function<void(UserDrag&)> script_;
    bool running_ = false;
};

}  // namespace vorlane::headless
