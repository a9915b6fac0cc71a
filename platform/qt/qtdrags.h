// QtDrags: drags out of the widgets that hold controls. Other programs are offered a copy where the source allows one,
// whatever else it allows: a file manager that may choose moves the files. Inside the program all is possible that the
// source allows.
#pragma once

#include "platform/desktop.h"

#include <optional>

#include <Qt>

namespace vorlane {

class QtWindows;

class QtDrags final : public Drags {
public:
    explicit QtDrags(QtWindows& windows) : windows_(windows) {}

    // The drag ends with its window.
    int32_t DoDrag(Hwnd window, DataObject& data, int32_t allowed, const DragFeedback& feedback) override;
    bool Running() const { return run_ != nullptr; }
    // What the drag that runs from here carries, as its source gave it: no other program's form holds all of it.
    const DataObject* Carried() const;

    // --- For the widgets of the desktop over which a drag goes, from here or from elsewhere ---
    // What a drop may do. offered: what the drag's event says.
    int32_t Possible(Qt::DropActions offered) const;
    // What a drop would do here, and after a drop, what it has done; nothing behind a Leave.
    std::optional<int32_t> Answered() const;
    void Answer(int32_t effect);
    void Leave();

private:
    struct Run;

    QtWindows& windows_;
    Run* run_ = nullptr;  // the drag that runs from here
};

}  // namespace vorlane
