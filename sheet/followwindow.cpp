// The user's hand on the bar. While the thumb is dragged the list stands still, and a small window shows the picture of
// the item under the thumb; it goes when the bar is let go.
#include "platform/scale.h"
#include "platform/trelmic6.h"
#include "sheet/followplace.h"
#include "sheet/vorlane.h"
#include "windows/frmscroll.h"

namespace vorlane {

namespace {

constexpr int16_t kLeftButton = 1;

}  // namespace

void Vorlane::ConnectBar() {
    VScroll.Change.connect([this](int32_t value) { BarChanged(value); });
    VScroll.Scroll.connect([this](int32_t value) { ThumbDragged(value); });
    VScroll.Input.MouseDown.connect(
        [this](int16_t button, int16_t shift, float x, float y) { BarPressed(button, shift, x, y); });
    VScroll.Input.MouseUp.connect(
        [this](int16_t button, int16_t shift, float x, float y) { BarReleased(button, shift, x, y); });
}

void Vorlane::BarPressed(int16_t button, int16_t shift, float x, float y) {
    if (button == kLeftButton) bar_.ScrollBarDown = true;
    TellOfBar(Events.ScrollMouseDown, button, shift, x, y);
}

// The press is over in any case, also when the thumb was never dragged.
void Vorlane::BarReleased(int16_t button, int16_t shift, float x, float y) {
    if (std::exchange(bar_.ScrollBarDown, false)) CloseFollowWindow();
    TellOfBar(Events.ScrollMouseUp, button, shift, x, y);
}

// What a handler writes into the value has no effect: the bar is set through its list.
void Vorlane::TellOfBar(const Event<int16_t, int16_t, float, float, int32_t&>& told, int16_t button, int16_t shift,
                        float x, float y) const {
    int32_t value = VScroll.Value();
    told(button, shift, ToContainer(x / kTwipsPerPixel), ToContainer(y / kTwipsPerPixel), value);
}

void Vorlane::ThumbDragged(int32_t value) {
    const auto follow = [&] {
        FrmScroll& form = SharedFrmScroll(Desktop());
        if (!form.Visible() && bar_.ScrollBarDown) OpenFollowWindow(form);
        std::string thumb;
        Events.GetThumbPath(ItemFullPath(value), thumb);
        const bool given = Trelmic6::PathExists(thumb, PathKind::File);
        form.PictureLet(given ? thumb : ItemFullPath(value), bar_.ScrollWindowBackColor);
        Events.Scroll(value, bar_.ScrollValue);
    };
    GuardVoid(follow, "VScroll_Scroll", value);
}

void Vorlane::OpenFollowWindow(FrmScroll& form) {
    const WinRect screen = Desktop().windows.GetWindowRect(Hwnd());
    const FollowPlace place = PlaceFollowWindow(bar_.ScrollDirection, bar_.ScrollWindowPos, screen,
                                                bar_.ScrollWindowWidth, VScroll.Width(), VScroll.Height());
    const double x = form.TwipsPerPixelX();
    const double y = form.TwipsPerPixelY();
    form.PlaceCode = place.PlaceCode;
    form.Move(place.Pixels.Left * x, place.Pixels.Top * y, place.Pixels.Width * x, place.Pixels.Height * y);
    ShowForm(form);
    bar_.ScrollWindowOpen = true;
}

void Vorlane::CloseFollowWindow() {
    if (!std::exchange(bar_.ScrollWindowOpen, false)) return;
    Attempt([this] { SharedFrmScroll(Desktop()).Unload(); });
}

}  // namespace vorlane
