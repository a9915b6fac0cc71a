// The slide's events. What a handler may answer is a reference.
#pragma once

#include "platform/dataobject.h"
#include "platform/event.h"
#include "platform/geometry.h"
#include "platform/picture.h"
#include "slide/diapotypes.h"

#include <cstdint>
#include <string>

namespace vorlane {

// Mouse positions are in the container's scale, measured from the slide's own corner; of moves over the zoom corner the
// corner's twips are taken for pixels. Info... and ZoomMouseDown give twips of the button; drags over the slide's bare
// ground give pixels.
struct DiapoEvents {
    Event<int16_t> Click;  // Button
    Event<int16_t> DblClick;
    Event<const std::string&> InvalidPicture;         // NomImage
    Event<int16_t&, int16_t> KeyDown;                 // KeyCode, Shift
    Event<int16_t&, int16_t> KeyUp;                   // KeyCode, Shift
    Event<int16_t&> KeyPress;                         // KeyAscii
    Event<int16_t, int16_t, float, float> MouseDown;  // Button, Shift, x, Y
    Event<int16_t, int16_t, float, float> MouseMove;
    Event<int16_t, int16_t, float, float> MouseUp;
    Event<int32_t&> OLECompleteDrag;                                           // Effect
    Event<DataObject&, int32_t&, int16_t, int16_t, float, float> OLEDragDrop;  // Data, Effect, Button, Shift, x, Y
    Event<DataObject&, int32_t&, int16_t, int16_t, float, float, int16_t> OLEDragOver;  // the same and State
    Event<int32_t&, bool&> OLEGiveFeedback;                                             // Effect, DefaultCursors
    Event<DataObject&, int16_t&> OLESetData;                                            // Data, DataFormat
    Event<DataObject&, int32_t&> OLEStartDrag;                                          // Data, AllowedEffects
    Event<int16_t, int16_t, float, float> ZoomMouseDown;
    Event<int16_t, int16_t, float, float> InfoMouseDown;
    Event<int16_t, int16_t, float, float> InfoMouseMove;
    Event<int16_t, int16_t, float, float> InfoMouseUp;
    Event<bool> ClickPlay;  // FromComment
    Event<bool> ClickStop;  // FromComment
    Event<> ClickText;
    Event<DiapoPictureIndex, Picture&, bool> SetPicture;  // PictureIndex, New_Picture, InvalidSound
    Event<int32_t&> GetKey;
    Event<int32_t> SetKey;
    Event<WinRect&, std::string&> GetWindowsPos;  // WinRect, Texte
    // Number, Description, Source, LastDllError, Valeur
    Event<int32_t, const std::string&, const std::string&, int32_t, const std::string&> Error;
};

}  // namespace vorlane
