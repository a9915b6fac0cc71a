// FrmWait: a borderless window with one rounded panel that tells the user to wait. It stands at a place of a rectangle
// of its user's, where it can slide in and out; it takes no focus.
//
// Sliding yields at each pass. What comes meanwhile goes first: a newer opening ends the one under way, a closing ends
// it and the window, and a rectangle given by MoveForm is taken when the window has opened.
#pragma once

#include "platform/ombrel.h"
#include "windows/form.h"
#include "windows/waitplace.h"

#include <optional>
#include <string>

namespace vorlane {

class FrmWait final : public Form {
public:
    explicit FrmWait(const Desktop& desktop);

    // Opens the window over r, screen pixels. It is as wide as its caption asks. A place that is none leaves it where
    // it stands; in the middle it appears at once.
    void ShowAnimatedFrom(const std::string& newCaption, WaitPlace fromWhere, const WinRect& r, bool withoutEffect);
    // Brings an open window to its place of another rectangle at once.
    void MoveForm(const WinRect& r);
    // Slides the window out and unloads it. Nothing happens when none is open.
    void CloseWindow(bool withoutEffect);

    // The panel; its Caption is the message.
    OmbrelGradient& Fond() { return Inside().fond; }

private:
    struct View final : FormContent {
        View(const vorlane::Desktop& desktop, const vorlane::Ambient& ambient, std::function<void()> onResize);
        OmbrelGradient fond{this};
    };

    std::unique_ptr<FormContent> MakeContent(const Ambient& ambient, std::function<void()> onResize) override;
    void OnLoad() override;
    void OnResize() override { Fond().Move(0, 0, ScaleWidth(), ScaleHeight()); }
    std::optional<ClosingEffect> OnUnload() override { return std::nullopt; }
    void Reset() override;

    View& Inside() { return static_cast<View&>(Content()); }
    WindowSize Size() const { return {ScaleWidth(), ScaleHeight()}; }
    Region WholeRounded();
    void TakeCaption(const std::string& caption);
    // Stands the window at its place, or so many passes in front of it.
    void Stand(WaitPlace place, const WinRect& r, int32_t passesAway);
    // Both return whether the window is still theirs behind the yields.
    bool Slide(WaitPlace place, bool in);
    bool Appear();
    bool Yield();

    WaitPlace fromWhere_ = WaitPlace::None;  // of the open window
    bool animating_ = false;                 // ShowAnimatedFrom is under way
    std::optional<WinRect> moved_;           // the rectangle that came meanwhile
    uint32_t pass_ = 0;                      // counts openings, closings and unloadings
};

// The one of the desktop.
FrmWait& SharedFrmWait(const Desktop& desktop);

}  // namespace vorlane
