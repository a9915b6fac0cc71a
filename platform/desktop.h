// The desktop: what the library asks of the system it runs on, as a set of small roles. A control gets the set in its
// constructor and keeps it; nothing here is global. All calls come from the one user-interface thread.
//
// Two desktops exist: the headless one (tests, servers) and the Qt one (real windows).
#pragma once

#include "platform/color.h"
#include "platform/font.h"
#include "platform/geometry.h"
#include "platform/picture.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace vorlane {

class DataObject;
class Region;

// Names a window of the desktop, 0 for none.
using Hwnd = int32_t;

// Time, timers and the message loop.
class Clock {
public:
    using TimerId = int32_t;
    virtual ~Clock() = default;

    // Milliseconds since some fixed moment; never goes back.
    virtual int64_t Now() const = 0;
    // Calls tick every interval milliseconds (1 or more) from the message loop until stopped; what it throws is
    // ignored. Never returns 0.
    virtual TimerId StartTimer(int32_t interval, std::function<void()> tick) = 0;
    // Harmless on a timer that is stopped already; the timer may stop itself from its tick.
    virtual void StopTimer(TimerId timer) = 0;
    // Lets everything that waits in the message loop run, then returns.
    virtual void DoEvents() = 0;
    // Blocks the thread; nothing of the message loop runs meanwhile.
    virtual void Sleep(int32_t milliseconds) = 0;
};

// The screen, the pointer on it and the mouse capture.
class Screen {
public:
    virtual ~Screen() = default;

    virtual float TwipsPerPixelX() const = 0;
    virtual float TwipsPerPixelY() const = 0;
    // The pointer, in screen pixels.
    virtual Point CursorPos() const = 0;
    virtual void SetCursorPos(Point place) = 0;
    // The pointer's shape for the whole program; 0 leaves it to the controls, 11 is the hourglass.
    virtual int16_t MousePointer() const = 0;
    virtual void SetMousePointer(int16_t shape) = 0;
    // A system colour by its number, as a plain colour in the present theme. An unknown number gives black.
    virtual OLE_COLOR SysColor(int32_t number) const = 0;
    // All mouse events go to window until ReleaseCapture.
    virtual void SetCapture(Hwnd window) = 0;
    virtual void ReleaseCapture() = 0;
    // The window that asked for the capture, 0 for none.
    virtual Hwnd Captured() const = 0;
};

class Keyboard {
public:
    virtual ~Keyboard() = default;

    // Whether the key or mouse button of that virtual code is down now: 1 left button, 2 right button, 16 Shift,
    // 17 Ctrl, 18 Alt, 27 Escape, ...
    virtual bool KeyIsDown(int32_t virtualKey) const = 0;
};

// Text sizes in pixels.
class TextMetrics {
public:
    virtual ~TextMetrics() = default;

    virtual float TextWidth(const Font& font, std::string_view text) const = 0;
    virtual float TextHeight(const Font& font, std::string_view text) const = 0;
};

class ISubclass;

// How a window is repainted: a sum.
enum RedrawFlags : int32_t {
    RDW_INVALIDATE = 1,   // the part counts as changed
    RDW_NOCHILDREN = 64,  // not its children
    RDW_UPDATENOW = 256,  // before the call returns
};

// The windows that hold controls.
class Windows {
public:
    virtual ~Windows() = default;

    // The window's whole rectangle, in screen pixels. Empty for a window that is not there.
    virtual WinRect GetWindowRect(Hwnd window) const = 0;
    // Its inside, from (0, 0).
    virtual WinRect GetClientRect(Hwnd window) const = 0;
    virtual Point ClientToScreen(Hwnd window, Point place) const = 0;
    // What is to be seen in part of the window, in its own pixels; what lies over the window is left out.
    virtual Picture Grab(Hwnd window, const WinRect& part) = 0;
    // Repaints part of the window, in its own pixels, as the flags say: a sum of RedrawFlags.
    virtual void RedrawWindow(Hwnd window, const WinRect& part, int32_t flags) = 0;
    // The part of the window that there is, in its pixels. It replaces the former one and stays through later moves.
    virtual void SetWindowRgn(Hwnd window, const Region& region, bool redraw) = 0;
    // client hears of a message of the window, see subclass.h, until it is detached from it. Harmless where it does, or
    // doesn't, hear of it already. client and window may end in either order, the client detached.
    virtual void AttachMessage(ISubclass& client, Hwnd window, int32_t message) = 0;
    virtual void DetachMessage(ISubclass& client, Hwnd window, int32_t message) = 0;
};

// Hears of every change of what the drop of a drag would do, and gives the pointer that shows it: a picture that points
// with its top left corner, or the empty one for the system's own pointers.
using DragFeedback = std::function<Picture(int32_t effect)>;

// Drags that start in the program.
class Drags {
public:
    virtual ~Drags() = default;

    // Lets the user drag data out of a window, and returns when that has ended: what was done with it, 1 copied,
    // 2 moved, 0 nothing. allowed: what may be done with it, a sum; with 0 the drag runs, and can be dropped nowhere.
    // One drag runs at a time; a second one ends at once.
    virtual int32_t DoDrag(Hwnd window, DataObject& data, int32_t allowed, const DragFeedback& feedback) = 0;
};

// Messages to the user.
class Dialogs {
public:
    virtual ~Dialogs() = default;

    // Shows text until the user answers. style: 0 plain, 16 error, 48 warning, 64 information.
    virtual void MsgBox(std::string_view text, int32_t style, std::string_view caption) = 0;
};

// The library's own artwork.
enum class Artwork : uint8_t {
    ZoomCorner,
    InfoButton,
    FileSubstitute,  // a file that can't be shown
    FileSound,
    FileVideo,
    FileDocument,
    FileOther,
    Play,
    Stop,
    PlayMusic,
    PlayComment,
    ShowText,
    SoundMissing,
};

// Decoding and scaling.
class Pictures {
public:
    virtual ~Pictures() = default;

    // The decoded picture of a file, turned as its orientation mark says; nothing when the file can't be read.
    virtual std::optional<Picture> LoadImageFile(const std::string& path) = 0;
    // picture at a new size in pixels, both 1 or more. Fails with InvalidPicture() when it can't.
    virtual Picture ResizePicture(const Picture& picture, int32_t width, int32_t height) = 0;
    virtual Picture Get(Artwork artwork) = 0;
};

// The texts of the user's language, by message number.
class Texts {
public:
    virtual ~Texts() = default;

    // Nothing for a number that is not known.
    virtual std::optional<std::string> Text(std::string_view number) const = 0;
};

class Films;          // picture files that may move, see film.h
class Forms;          // small windows of the library's own, see forms.h
class Menus;          // popup menus, see menus.h
class SharedObjects;  // what the controls of a desktop share, see sharedobjects.h
class Sounds;         // what plays and measures sounds, see sounds.h
class Tooltips;       // tooltip windows, see tooltips.h

// The roles together, as a control holds them. The desktop that gives them outlives its controls.
struct Desktop {
    Clock& clock;
    Screen& screen;
    Keyboard& keyboard;
    TextMetrics& metrics;
    Windows& windows;
    Drags& drags;
    Dialogs& dialogs;
    Pictures& pictures;
    Sounds& sounds;
    Texts& texts;
    Forms& forms;
    Films& films;
    Tooltips& tooltips;
    Menus& menus;
    SharedObjects& shared;
};

}  // namespace vorlane
