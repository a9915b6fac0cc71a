// The contact sheet's events. What a handler may answer is a reference.
#pragma once

#include "platform/dataobject.h"
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
    Event<int16_t, const std::string&> InvalidPicture;  // Index, FileName
    // The list has moved, or the thumb is being dragged: Value, AsValue: the value last acted on.
    Event<int32_t, int32_t&> Scroll;
    // The mouse on the bar: Button, Shift, X, Y on the bar, Value: a copy of the bar's.
    Event<int16_t, int16_t, float, float, int32_t&> ScrollMouseDown;
    Event<int16_t, int16_t, float, float, int32_t&> ScrollMouseUp;
    // The follow window is about to show a file; the host may name a thumbnail file in its place: FileName, ThumbName.
    Event<const std::string&, std::string&> GetThumbPath;
    Event<> TLClear;                             // the sheet has been cleared
    Event<int16_t, int32_t&> Removed;            // Index or -1, Key: an item is about to go
    Event<> TLRefresh;                           // items have gone
    Event<> Sorted;                              // Sort has come to its end
    Event<int32_t, int32_t> TraitementFeedBack;  // Value, Max: how far a long operation is
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

    // Drags. A drag from a slide is about to start, or one from outside comes in: NbObject, DisplayText (what the
    // insertion mark says), Cancel (keeps it off the sheet).
    Event<int32_t, std::string&, bool&> OLEBeforeStartDrag;
    Event<DataObject&, int32_t&> OLEStartDrag;  // Data, AllowedEffects: a sum of 1 copy, 2 move
    // A drag from outside is over a slide: Data, Effect, Button, Shift, x, Y, State (0 enter, 1 leave, 2 over).
    Event<DataObject&, int32_t&, int16_t, int16_t, float, float, int16_t> OLEDragOver;
    // A drop has been taken, or is none of the sheet's business: Data, Effect, Button, Shift, x, Y.
    Event<DataObject&, int32_t&, int16_t, int16_t, float, float> OLEDragDrop;
    Event<int32_t&, bool&> OLEGiveFeedback;                      // Effect, DefaultCursors
    Event<DataObject&, int16_t&> OLESetData;                     // Data, DataFormat
    Event<int32_t&> OLECompleteDrag;                             // Effect: a drag that started here has ended
    Event<int32_t, bool&> OLEBeforeDropStart;                    // NumberOfFilesRep, Cancel
    Event<const std::string&, int32_t&, bool&> OLENewFileAdded;  // FileName, Key, Cancel: a file comes in
    Event<> OLESortChanged;                                      // a file takes its place, no sort being in force
    Event<> OLEDragError;                                        // a drop on a list that takes none
    Event<int32_t> AfterDropAdd;                                 // NumberOfFilesAdded, by a drop from outside

    // A sound button was clicked; the host says what is to be heard: Index, SoundFileNameToPlay, Button, Canal, Play,
    // Alias. Without Play the host plays for itself.
    Event<int16_t, std::string&, int32_t&, int32_t, bool&, std::string&> ClickPlay;
    Event<int16_t, int32_t> ClickPlayChangeDiapo;  // Index, Button: of another slide than the one that plays
    Event<int16_t, int32_t, int32_t> ClickStop;    // Index, Button, Canal
    Event<int16_t> ClickText;                      // Index
    Event<int32_t> SoundEnded;                     // Canal

    Event<bool&, const std::string&> BeforeEdit;                    // Cancel, OldFileNamme
    Event<const std::string&, const std::string&, bool> AfterEdit;  // NewFileName, OldFileName, Canceled
    // A rename is refused: ErrorType (0: the target exists), NewFileName, OldFileName, ErrorMessage, CancelMessage.
    Event<int32_t, const std::string&, const std::string&, std::string&, bool&> RenameError;

    // The info button is pressed; the host says what the balloon shows: Index, FileName, Titre, Texte, Icone (0 to 3).
    Event<int16_t, const std::string&, std::string&, std::string&, int32_t&> ToolTipInfos;
    // Kept for hosts; nothing raises them.
    Event<int16_t, Picture&> BeforeZoom;  // Index, Picture
    Event<> BeforeZoomEndLoad;
    Event<> AfterZoom;

    // Number, Description, Source, LastDllError, Valeur: the log line
    Event<int32_t, const std::string&, const std::string&, int32_t, const std::string&> Error;
};

}  // namespace vorlane
