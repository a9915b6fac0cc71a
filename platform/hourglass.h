// Hourglass: the program's pointer for as long as the user has to wait.
#pragma once

#include "platform/desktop.h"

namespace vorlane {

class Hourglass {
public:
    explicit Hourglass(Screen& screen) : screen_(screen) { screen_.SetMousePointer(11); }
    ~Hourglass() { screen_.SetMousePointer(0); }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;

private:
    Screen& screen_;
};

}  // namespace vorlane
