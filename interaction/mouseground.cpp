// The mouse on the sheet's bare ground, and the keyboard.
#include "platform/numbers.h"
#include "platform/withinblock.h"
#include "sheet/vorlane.h"

#include <utility>

namespace vorlane {

namespace {

constexpr int16_t kLeft = 1;

constexpr int16_t kPageUp = 33;
constexpr int16_t kPageDown = 34;
constexpr int16_t kRowForward = '(';  // characters, not the keys that have these codes
constexpr int16_t kRowBack = '!';

}  // namespace

void Vorlane::ConnectGround() {
    Input.MouseDown.connect([this](int16_t button, int16_t shift, float x, float y) {
        InTurn([=, this] { GroundMouseDown(button, shift, x, y); });
    });
    Input.MouseMove.connect(
        [this](int16_t button, int16_t shift, float x, float y) { GroundMouseMove(button, shift, x, y); });
    Input.MouseUp.connect([this](int16_t button, int16_t shift, float x, float y) {
        if (button == kLeft) mouse_.LetGo = true;
        InTurn([=, this] { GroundMouseUp(button, shift, x, y); });
    });
    Input.Click.connect([this] { InTurn([this] { Events.BackgroundClick(mouse_.LastButton); }); });
    Input.DblClick.connect([this] { InTurn([this] { Events.BackgroundDblClick(mouse_.LastButton); }); });
    Input.KeyDown.connect([this](int16_t& code, int16_t shift) { KeyDown(code, shift); });
    Input.KeyPress.connect([this](int16_t& ascii) { KeyPress(ascii); });
    Input.KeyUp.connect([this](int16_t& code, int16_t shift) { KeyUp(code, shift); });
}

// What comes in at the yields of a press waits until the host has heard of the press.
void Vorlane::InTurn(std::function<void()> act) {
    if (mouse_.InGroundDown) return mouse_.InTurn.push_back(std::move(act));
    act();
}

void Vorlane::GroundMouseDown(int16_t button, int16_t shift, float x, float y) {
    mouse_.LetGo = false;
    const auto press = [&] {
        {
            const WithinBlock busy(mouse_.InGroundDown);
            if (button == kLeft && Bound().SelCount() > 0 && !CtrlDown() && !ShiftDown()) SelectedClear();
            EndEdit();
        }
        mouse_.LastButton = button;
        if (button == kLeft && selection_.SelectionMultiple && !mouse_.LetGo) StartBand(x, y);
        Events.MouseDown(button, shift, ToContainer(x), ToContainer(y));
    };
    GuardVoid(press, "UserControl_MouseDown", button, shift, x, y);
    while (!mouse_.InTurn.empty()) {
        const auto next = std::move(mouse_.InTurn.front());
        mouse_.InTurn.pop_front();
        Attempt(next);
    }
}

void Vorlane::GroundMouseMove(int16_t button, int16_t shift, float x, float y) {
    if (mouse_.InGroundDown) return;
    if (mouse_.HoverSlot != -1) {
        Attempt([&] { Events.MouseExit(mouse_.HoverSlot); });
        mouse_.HoverSlot = -1;
    }
    const bool scrolls = ScrollByBand(x, y);
    if (!scrolls && button == kLeft && !band_.AutoScrolling) UpdateBand(x, y, false);
    Attempt([&] { Events.MouseMove(button, shift, ToContainer(x), ToContainer(y)); });
}

void Vorlane::GroundMouseUp(int16_t button, int16_t shift, float x, float y) {
    if (button == kLeft) Attempt([&] { EndBand(); });
    Attempt([&] { Events.MouseUp(button, shift, ToContainer(x), ToContainer(y)); });
}

// --- Keyboard ---

// A key that is held counts once.
void Vorlane::KeyDown(int16_t& code, int16_t shift) {
    if (mouse_.KeyHeld) return;
    mouse_.KeyHeld = true;
    Attempt([&] {
        const int64_t value = VScroll.Value();
        if (code == kPageDown) VScroll.SetValue(ToInt32(Min(VScroll.Max(), value + VScroll.LargeChange())));
        if (code == kPageUp) VScroll.SetValue(ToInt32(Max(VScroll.Min(), value - VScroll.LargeChange())));
    });
    Attempt([&] { Events.KeyDown(code, shift); });
}

void Vorlane::KeyPress(int16_t& ascii) {
    Attempt([&] {
        const int64_t value = VScroll.Value();
        if (ascii == kRowForward) VScroll.SetValue(ToInt32(Min(VScroll.Max(), value + VScroll.SmallChange())));
        if (ascii == kRowBack) VScroll.SetValue(ToInt32(Max(VScroll.Min(), value - VScroll.SmallChange())));
    });
    Attempt([&] { Events.KeyPress(ascii); });
}

void Vorlane::KeyUp(int16_t& code, int16_t shift) {
    mouse_.KeyHeld = false;
    Attempt([&] { Events.KeyUp(code, shift); });
}

}  // namespace vorlane
