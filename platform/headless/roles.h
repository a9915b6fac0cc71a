// The roles of the headless desktop: fakes with behaviour. Each keeps what was asked of it, says so in the trace, and
// answers what a test prepared.
#pragma once

#include "platform/desktop.h"
#include "platform/headless/trace.h"

#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace vorlane::headless {

// A virtual clock: time stands still until a test advances it. A timer is not called again inside its own tick.
class FakeClock final : public vorlane::Clock {
public:
    explicit FakeClock(Trace& trace) : trace_(trace) {}

    // Lets that much time pass, firing timers in the order in which they fall due.
    void Advance(int64_t milliseconds);
    // Runs action inside the n-th coming DoEvents, counted from 1. Several actions of one yield run in order.
    void AtYield(int32_t n, std::function<void()> action);
    int32_t Yields() const { return yields_; }
    int32_t RunningTimers() const { return static_cast<int32_t>(timers_.size()); }

    int64_t Now() const override { return now_; }
    TimerId StartTimer(int32_t interval, std::function<void()> tick) override;
    void StopTimer(TimerId timer) override { timers_.erase(timer); }
    void DoEvents() override;
    // Moves the time on; what falls due meanwhile fires at the next DoEvents or Advance.
    void Sleep(int32_t milliseconds) override;

private:
    struct Running {
        int64_t due;
        int32_t interval;
        std::function<void()> tick;
        bool ticking = false;
    };

    // Fires the timer that is due first, at limit or before; false when there is none.
    bool FireNext(int64_t limit);

    Trace& trace_;
    int64_t now_ = 0;
    TimerId lastTimer_ = 0;
    std::map<TimerId, Running> timers_;
    int32_t yields_ = 0;
    std::multimap<int32_t, std::function<void()>> atYield_;
};

// Ninety-six dots an inch; a fixed theme of system colours.
class FakeScreen final : public vorlane::Screen {
public:
    explicit FakeScreen(Trace& trace) : trace_(trace) {}

    float TwipsPerPixelX() const override { return 15; }
    float TwipsPerPixelY() const override { return 15; }
    Point CursorPos() const override { return cursor_; }
    void SetCursorPos(Point place) override { cursor_ = place; }
    int16_t MousePointer() const override { return pointer_; }
    void SetMousePointer(int16_t shape) override;
    OLE_COLOR SysColor(int32_t number) const override;
    void SetCapture(Hwnd window) override;
    void ReleaseCapture() override;
    Hwnd Captured() const override { return captured_; }

private:
    Trace& trace_;
    Point cursor_;
    int16_t pointer_ = 0;
    Hwnd captured_ = 0;
};

class FakeKeyboard final : public vorlane::Keyboard {
public:
    void Set(int32_t virtualKey, bool down);
    bool KeyIsDown(int32_t virtualKey) const override { return down_.count(virtualKey) != 0; }

private:
    std::set<int32_t> down_;
};

// A fixed-width font: at 8.25 points every character is 6 wide and 13 high; other sizes in proportion, rounded.
class FakeTextMetrics final : public vorlane::TextMetrics {
public:
    float TextWidth(const Font& font, std::string_view text) const override;
    float TextHeight(const Font& font, std::string_view text) const override;
};

class FakeWindows final : public vorlane::Windows {
public:
    explicit FakeWindows(Trace& trace) : trace_(trace) {}

    Hwnd Open(const WinRect& place);
    void Place(Hwnd window, const WinRect& place) { windows_[window] = place; }
    void Close(Hwnd window) { windows_.erase(window); }
    int32_t OpenWindows() const { return static_cast<int32_t>(windows_.size()); }

    WinRect GetWindowRect(Hwnd window) const override;
    WinRect GetClientRect(Hwnd window) const override;
    Point ClientToScreen(Hwnd window, Point place) const override;
    // A picture by the name of "window 1 at 5,5,105,81".
    Picture Grab(Hwnd window, const WinRect& part) override;
    void RedrawWindow(Hwnd window, const WinRect& part, int32_t flags) override;
    // "region <window> <shape>", with " redraw" behind.
    void SetWindowRgn(Hwnd window, const Region& region, bool redraw) override;

private:
    Trace& trace_;
    Hwnd last_ = 0;
    std::map<Hwnd, WinRect> windows_;
};

// Every message is answered at once.
class FakeDialogs final : public vorlane::Dialogs {
public:
    explicit FakeDialogs(Trace& trace) : trace_(trace) {}
    void MsgBox(std::string_view text, int32_t style, std::string_view caption) override;

private:
    Trace& trace_;
};

// What a headless picture knows of itself.
struct PictureInfo final : PictureData {
    std::string Name;  // the file, or what it was made from: "resized:a.jpg"
};

// The name of a picture that the headless desktop made, "" for the empty picture.
std::string NameOf(const Picture& picture);

// Pictures by path, as a test declares them; a path that it did not declare can't be read.
class FakePictures final : public vorlane::Pictures {
public:
    explicit FakePictures(Trace& trace) : trace_(trace) {}

    // Declares a readable file and gives its picture; pixels.
    Picture Add(const std::string& path, int32_t width, int32_t height, PictureType type = PictureType::Bitmap);
    // A picture that no file holds.
    static Picture Make(std::string name, int32_t width, int32_t height, PictureType type = PictureType::Bitmap);
    // ResizePicture fails from now on, or no longer.
    void FailResizing(bool fail) { failResizing_ = fail; }
    int32_t Loads() const { return loads_; }
    int32_t Resizes() const { return resizes_; }

    std::optional<Picture> LoadImageFile(const std::string& path) override;
    Picture ResizePicture(const Picture& picture, int32_t width, int32_t height) override;
    // 9 x 9 for the corner and the info button, 32 x 32 for files, 16 x 16 for buttons.
    Picture Get(Artwork artwork) override;

private:
    Trace& trace_;
    std::map<std::string, Picture> files_;
    std::map<Artwork, Picture> artwork_;
    bool failResizing_ = false;
    int32_t loads_ = 0;
    int32_t resizes_ = 0;
};

class FakeSounds final : public vorlane::Sounds {
public:
    void Add(const std::string& path, double seconds) { seconds_[path] = seconds; }
    double SoundSeconds(const std::string& path) override;

private:
    std::map<std::string, double> seconds_;
};

class FakeTexts final : public vorlane::Texts {
public:
    void Add(std::string number, std::string text) { texts_[std::move(number)] = std::move(text); }
    std::optional<std::string> Text(std::string_view number) const override;

private:
    std::map<std::string, std::string, std::less<>> texts_;
};

}  // namespace vorlane::headless
