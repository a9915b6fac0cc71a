// What a container tells the control that it hosts.
#pragma once

#include "platform/color.h"
#include "platform/desktop.h"
#include "platform/font.h"
#include "platform/scale.h"

namespace vorlane {

struct Ambient {
    bool UserMode = true;  // run time; false in a form designer
    OLE_COLOR BackColor = FromSystem(SystemColor::ButtonFace);
    vorlane::Font Font;
    ScaleMode ContainerScale = ScaleMode::Pixels;  // the unit of coordinates in events to the container
    Hwnd Window = 0;                               // the window that the control fills; 0 for a windowless one
};

}  // namespace vorlane
