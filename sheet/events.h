// The contact sheet's events. What a handler may answer is a reference.
#pragma once

#include "platform/event.h"
#include "platform/picture.h"

#include <cstdint>
#include <string>

namespace vorlane {

struct VorlaneEvents {
    // A fill or a layout begins its work; it has ended, or was stopped. They need not pair up.
    Event<> DisplayStart;
    Event<> DisplayEnd;
    // A slide is about to be made for a file: FileName, Extension, Cancel.
    Event<std::string&, const std::string&, bool&> BeforeAdd;
    // A slide has its file: Index, FileName.
    Event<int16_t, const std::string&> Added;
    // A slide is about to take a file; the host may hand over a thumbnail and the state of its sounds:
    // Index, FileName, Picture, HaveSound, HaveComment, HaveTexte, InvalidMusic, InvalidCom.
    Event<int16_t, const std::string&, Picture&, bool&, bool&, bool&, bool&, bool&> BeforeSetPicture;
    Event<int16_t, const std::string&> InvalidPicture;           // Index, FileName
    Event<int32_t, int32_t&> Scroll;                             // Value, AsValue: the value last acted on
    Event<> TLClear;                                             // the sheet has been cleared
    Event<int16_t, int32_t&> Removed;                            // Index or -1, Key: an item is about to go
    Event<> TLRefresh;                                           // items have gone
    Event<> Sorted;                                              // Sort has come to its end
    Event<int32_t, int32_t> TraitementFeedBack;                  // Value, Max: how far a long operation is
    Event<const std::string&, int32_t&, bool&> OLENewFileAdded;  // FileName, Key, Cancel
    Event<int16_t> AfterDropAdd;                                 // NumberOfFilesAdded, by a drop from outside
    Event<int32_t&> OLECompleteDrag;                             // Effect: a drag that started here has ended

    // The user's mouse and keys. Positions are in the container's scale, measured from the sheet's corner.
    Event<int16_t, int16_t, float, float> MouseDown;  // Button, Shift, x, Y
    Event<int16_t, int16_t, float, float> MouseMove;
    Event<int16_t, int16_t, float, float> MouseUp;
    Event<int16_t> MouseEnter;  // Index of the slide that the mouse has come to, or leaves
    Event<int16_t> MouseExit;
    Event<int16_t, const Picture&, const std::string&, int16_t> Click;  // Index, Picture, FileName, Button
    Event<int16_t, const Picture&, const std::string&, int16_t> DblClick;
    Event<int16_t> BackgroundClick;  // Button
    Event<int16_t> BackgroundDblClick;
    Event<int16_t&, int16_t> KeyDown;  // KeyCode, Shift; once while a key is held
    Event<int16_t&> KeyPress;          // KeyAscii
    Event<int16_t&, int16_t> KeyUp;    // KeyCode, Shift

    // Number, Description, Source, LastDllError, Valeur: the log line
    Event<int32_t, const std::string&, const std::string&, int32_t, const std::string&> Error;
};

}  // namespace vorlane
