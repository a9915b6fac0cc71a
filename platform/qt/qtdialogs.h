// QtDialogs: messages to the user, over the window that has the keyboard.
#pragma once

#include "platform/desktop.h"

namespace vorlane {

class QtDialogs final : public Dialogs {
public:
    void MsgBox(std::string_view text, int32_t style, std::string_view caption) override;
};

}  // namespace vorlane
