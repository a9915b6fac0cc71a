// ControlArray: control elements that load and unload at run time, element 0 always being there. An element that is
// unloaded while something still works on it, such as a handler that it called, lives on unseen until that is done:
// Item gives shared ownership, and so does Control::KeepAlive.
#pragma once

#include "platform/control.h"
#include "platform/failure.h"

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace vorlane {

template <class T>
class ControlArray {
public:
    // Makes the control for an index; it copies the design values of element 0 when there is one.
    using Maker = std::function<std::shared_ptr<T>(int32_t index)>;

    explicit ControlArray(Maker maker) : maker_(std::move(maker)) { Load(0); }

    // Number of loaded elements, which need not be contiguous.
    int32_t Count() const { return count_; }
    // Highest index that is loaded.
    int32_t UpperBound() const { return static_cast<int32_t>(elements_.size()) - 1; }
    bool Loaded(int32_t index) const { return index >= 0 && index <= UpperBound() && elements_[At(index)]; }

    // Fails with ControlNotLoaded().
    std::shared_ptr<T> Item(int32_t index) const {
        if (!Loaded(index)) throw failures::ControlNotLoaded();
        return elements_[At(index)];
    }

    // Fails with ControlAlreadyLoaded(), also when the making of the element has loaded another one there, or with
    // SubscriptOutOfRange() for a negative index.
    void Load(int32_t index) {
        if (index < 0) throw failures::SubscriptOutOfRange();
        if (Loaded(index)) throw failures::ControlAlreadyLoaded();
        std::shared_ptr<T> element = maker_(index);
        if (Loaded(index)) throw failures::ControlAlreadyLoaded();
        static_cast<Control&>(*element).element_ = element;
        if (index > UpperBound()) elements_.resize(At(index) + 1);
        elements_[At(index)] = std::move(element);
        ++count_;
    }

    // Takes the element off the screen and out of the array. Fails with ControlNotLoaded(), and with InvalidCall()
    // for element 0.
    void Unload(int32_t index) {
        if (index == 0) throw failures::InvalidCall();
        const std::shared_ptr<T> element = Item(index);
        elements_[At(index)].reset();
        while (!elements_.back()) elements_.pop_back();
        --count_;
        element->SetVisible(false);  // last, for it may call handlers
    }

private:
    static size_t At(int32_t index) { return static_cast<size_t>(index); }

    Maker maker_;
    std::vector<std::shared_ptr<T>> elements_;
    int32_t count_ = 0;
};

}  // namespace vorlane
