// QtDrags: drags out of the widgets that hold controls.
#pragma once

#include "platform/desktop.h"

namespace vorlane {

class QtWindows;

class QtDrags final : public Drags {
public:
    explicit QtDrags(QtWindows& windows) : windows_(windows) {}

    int32_t DoDrag(Hwnd window, DataObject& data, int32_t allowed,
                   const std::function<void(int32_t effect)>& feedback) override;
    bool Running() const { return running_; }

private:
    QtWindows& windows_;
    bool running_ = false;
};

}  // namespace vorlane
