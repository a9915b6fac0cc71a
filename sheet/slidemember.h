// SlideMember: a slide as an element of the sheet's pool. Whoever works on a slide holds it, also when it has been
// unloaded and its index is gone or another slide's; then it is not heard any more.
#pragma once

#include "platform/controlarray.h"
#include "slide/ediapolight.h"

#include <cstdint>

namespace vorlane::sheet {

struct SlideMember {
    const ControlArray<eDiapoLight>& Pool;
    eDiapoLight& Slide;
    int16_t Index;

    bool Loaded() const { return Pool.Loaded(Index) && Pool.Item(Index).get() == &Slide; }
};

// Connects a handler that hears the slide for as long as it is in the pool.
template <class... Args, class Handler>
void Hear(Event<Args...>& event, const SlideMember& member, Handler handler) {
    event.connect([member, handler](Args... args) {
        if (member.Loaded()) handler(args...);
    });
}

}  // namespace vorlane::sheet
