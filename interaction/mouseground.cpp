// The mouse on the sheet's bare ground, and the keyboard.
#include "platform/numbers.h"
#include "sheet/vorlane.h"

namespace vorlane {

namespace {

constexpr int16_t kLeft = 1;

constexpr int16_t kPageUp = 33;
constexpr int16_t kPageDown = 34;
constexpr int16_t kRowForward = '(';  // characters, not the keys that have these codes
constexpr int16_t kRowBack = '!';

}  // namespace

void Vorlane::ConnectGround() {
    Input.MouseDown.connect(
        [this](int16_t button, int16_t shift, float x, float y) { GroundMouseDown(button, shift, x, y); });
    Input.MouseMove.connect(
        [this](int16_t button, int16_t shift, float x, float y) { GroundMouseMove(button, shift, x, y); });
    Input.MouseUp.connect(
        [this](int16_t button, int16_t shift, float x, float y) { GroundMouseUp(button, shift, x, y); });
    Input.Click.connect([this] { Events.BackgroundClick(mouse_.LastButton); });
    Input.DblClick.connect([this] { Events.BackgroundDblClick(mouse_.LastButton); });
    Input.KeyDown.connect([this](int16_t& code, int16_t shift) { KeyDown(code, shift); });
    Input.KeyPress.connect([this](int16_t& ascii) { KeyPress(ascii); });
    Input.KeyUp.connect([this](int16_t& code, int16_t shift) { KeyUp(code, shift); });
}

void Vorlane::GroundMouseDown(int16_t button, int16_t shift, float x, float y) {
    const auto press = [&] {
        if (button == kLeft && Bound().SelCount() > 0 && !CtrlDown() && !ShiftDown()) SelectedClear();
        EndEdit();
        mouse_.LastButton = button;
        if (button == kLeft && selection_.SelectionMultiple) StartBand(x, y);
        Events.MouseDown(button, shift, ToContainer(x), ToContainer(y));
    };
    GuardVoid(press, "UserControl_MouseDown", button, shift, x, y);
}

void Vorlane::GroundMouseMove(int16_t button, int16_t shift, float x, float y) {
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
