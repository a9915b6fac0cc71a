#include "platform/headless/userdrag.h"

#include "platform/failure.h"

#include <utility>

namespace vorlane::headless {

namespace {

constexpr int32_t kEscapeKey = 27;

}  // namespace

// --- The role ---

int32_t FakeDrags::DoDrag(Hwnd, DataObject& data, int32_t allowed, const DragFeedback& feedback) {
    if (std::exchange(running_, true)) return 0;
    desktop_.trace.Add("drag start " + std::to_string(allowed) + " " + std::to_string(data.Files().size()));
    int32_t effect = 0;
    {
        UserDrag drag(desktop_, data, allowed, feedback);
        if (script_) Attempt([&] { script_(drag); });
        if (!drag.Ended()) drag.Escape();
        effect = drag.Effect();
    }
    running_ = false;
    desktop_.keyboard.Set(kLeftButton, false);
    desktop_.trace.Add("drag end " + std::to_string(effect));
    Ended();
    return effect;
}

// --- The drag ---

UserDrag::UserDrag(Desktop& desktop, DataObject data, int32_t allowed)
    : desktop_(desktop), own_(std::move(data)), data_(own_), allowed_(allowed) {}

UserDrag::UserDrag(Desktop& desktop, DataObject& data, int32_t allowed, DragFeedback feedback)
    : desktop_(desktop), data_(data), allowed_(allowed), feedback_(std::move(feedback)) {}

UserDrag::~UserDrag() {
    if (!ended_) Leave();
}

void UserDrag::Answer(int32_t effect) {
    if (effect_ == (effect & allowed_)) return;
    effect_ = effect & allowed_;
    if (feedback_) pointer_ = feedback_(effect_);
}

void UserDrag::Over(Window& window, float x, float y, int16_t shift) {
    if (ended_) return;
    const bool inside = window.PointAt(x, y, shift);
    if (window_ != nullptr && (window_ != &window || !inside)) Leave();
    if (!inside) return;
    window_ = &window;
    x_ = x;
    y_ = y;
    shift_ = shift;
    int32_t effect = 0;
    window.Router().DragOver(data_, effect, kLeftButton, shift, x, y);
    if (!ended_) Answer(effect);
}

void UserDrag::Leave() {
    if (Window* left = std::exchange(window_, nullptr)) left->Router().DragLeave(data_);
    Answer(0);
}

void UserDrag::Drop() {
    if (ended_) return;
    ended_ = true;
    const bool over = window_ != nullptr && window_->PointAt(x_, y_, shift_);  // the window may have shrunk meanwhile
    if (!over || effect_ == 0) return Leave();
    int32_t effect = effect_;
    std::exchange(window_, nullptr)->Router().DragDrop(data_, effect, 0, shift_, x_, y_);
    effect_ = effect & allowed_;
}

void UserDrag::Drop(Window& window, float x, float y, int16_t shift) {
    Over(window, x, y, shift);
    Drop();
}

void UserDrag::Escape() {
    if (ended_) return;
    ended_ = true;
    desktop_.keyboard.Set(kEscapeKey, true);
    Leave();
    desktop_.keyboard.Set(kEscapeKey, false);
}

}  // namespace vorlane::headless
