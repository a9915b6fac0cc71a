// QtKeyboard: what is held down now. Buttons and modifiers come from Qt; the other keys from the hosts, which tell
// what passes through them.
#pragma once

#include "platform/desktop.h"

#include <set>
#include <utility>

namespace vorlane {

class QtKeyboard final : public Keyboard {
public:
    bool KeyIsDown(int32_t virtualKey) const override;

    void Press(int32_t virtualKey) { down_.insert(virtualKey); }
    void Release(int32_t virtualKey) { down_.erase(virtualKey); }
    // The keyboard has gone elsewhere: what is released there is not told. Gives what was down.
    std::set<int32_t> ReleaseAll() { return std::exchange(down_, {}); }

private:
    std::set<int32_t> down_;
};

}  // namespace vorlane
