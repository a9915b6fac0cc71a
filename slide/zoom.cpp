// The zoom: pressed, the corner opens a window over the slide that shows the file at full quality; moves pull the
// window towards the pointer, and the release closes it. A wait window stands over the picture while the file is read.
#include "platform/hourglass.h"
#include "platform/withinblock.h"
#include "slide/ediapolight.h"
#include "slide/zoomplace.h"
#include "windows/frmscroll.h"
#include "windows/frmwait.h"

namespace vorlane {

namespace {

constexpr int16_t kLeftButton = 1;
constexpr std::string_view kLoading = "2017";

// Unloads a form at the end of its block, however that ends.
class UnloadedBehind {
public:
    explicit UnloadedBehind(Form& form) : form_(form) {}
    ~UnloadedBehind() {
        Attempt([this] { form_.Unload(); });
    }
    UnloadedBehind(const UnloadedBehind&) = delete;
    UnloadedBehind& operator=(const UnloadedBehind&) = delete;

private:
    Form& form_;
};

void MoveTo(Form& form, const WinRect& place) {
    const double x = form.TwipsPerPixelX();
    const double y = form.TwipsPerPixelY();
    form.Move(place.Left * x, place.Top * y, (static_cast<double>(place.Right) - place.Left) * x,
              (static_cast<double>(place.Bottom) - place.Top) * y);
}

}  // namespace

// Moves over the corner take its twips for pixels.
void eDiapoLight::ConnectCorner() {
    CornerResize.Input.MouseDown.connect(
        [this](int16_t button, int16_t shift, float x, float y) { PressCorner(button, shift, x, y); });
    CornerResize.Input.MouseMove.connect([this](int16_t button, int16_t shift, float x, float y) {
        if (button == kLeftButton && zoom_.Active) PullZoom();
        Events.MouseMove(button, shift, ToContainer(CornerResize.Left() + x), ToContainer(CornerResize.Top() + y));
    });
    CornerResize.Input.MouseUp.connect([this](int16_t button, int16_t, float, float) {
        if (button != kLeftButton) return;
        zoom_.Released = true;
        EndZoom();
    });
}

void eDiapoLight::PressCorner(int16_t button, int16_t shift, float x, float y) {
    if (zoom_.Busy) return;
    const auto press = [&] {
        zoom_.Released = false;
        Events.ZoomMouseDown(button, shift, x, y);
        if (button != kLeftButton || image_.IsSubstitute) return;
        const WithinBlock busy(zoom_.Busy);
        OpenZoom();
    };
    Trap(pending_, press, [&](const Failure& failure) {
        EndZoom();
        Report(failure, "DpLight CornerResize_MouseDown ");
    });
}

// Reading a file takes its time, and yields: a button that goes up meanwhile ends the zoom before it shows.
void eDiapoLight::OpenZoom() {
    const std::string path = Img.Tag();
    if (!path.empty() && Trelmic6::FileKind(path) != 0) return;
    WinRect place;
    std::string text;
    Events.GetWindowsPos(place, text);
    zoom_.Slide = place;
    place.Left = ToInt32(static_cast<double>(place.Left) + Img.Left());
    place.Top = ToInt32(static_cast<double>(place.Top) + Img.Top());
    place.Right = ToInt32(static_cast<double>(place.Left) + Img.Width());
    place.Bottom = ToInt32(static_cast<double>(place.Top) + Img.Height());
    {
        const UnloadedBehind wait(SharedFrmWait(Desktop()));
        TellToWait(place, text);
        if (zoom_.Released) return;
        zoom_.Active = true;
        if (!path.empty()) LoadZoom(path);
        zoom_.Anchor = utilities_.CursorPos();
    }
    Events.GetWindowsPos(place, text);
    if (zoom_.Active) ShowZoomWindow(place);
}

// The owner's text is overwritten before it shows.
void eDiapoLight::TellToWait(const WinRect& picture, const std::string& text) {
    FrmWait& wait = SharedFrmWait(Desktop());
    if (!text.empty()) wait.Fond().SetCaption(text);
    const auto middle = StandingPlace(WaitPlace::Middle, picture, {wait.ScaleWidth(), wait.ScaleHeight()});
    wait.Move(middle->Left * wait.TwipsPerPixelX(), middle->Top * wait.TwipsPerPixelY());
    wait.Fond().SetCaption(utilities_.ResText(kLoading));
    wait.Show();
    wait.Refresh();
    Desktop().clock.DoEvents();
}

// The pointer stays where it is, whatever the user does meanwhile.
void eDiapoLight::LoadZoom(const std::string& path) {
    const Point pointer = utilities_.CursorPos();
    const Hourglass hourglass(Desktop().screen);
    SharedFrmScroll(Desktop()).PictureLet(path, ground_.Normal);
    utilities_.CursorPos(pointer.X, pointer.Y);
}

void eDiapoLight::ShowZoomWindow(const WinRect& place) {
    FrmScroll& window = SharedFrmScroll(Desktop());
    MoveTo(window, place);
    window.ZoomMode = true;
    window.ZoomX = static_cast<float>(place.Left) * window.TwipsPerPixelX();
    window.ZoomY = static_cast<float>(place.Top) * window.TwipsPerPixelY();
    window.Show();
}

void eDiapoLight::PullZoom() {
    FrmScroll& window = SharedFrmScroll(Desktop());
    window.Show();
    MoveTo(window, GrownTowards(zoom_.Slide, zoom_.Anchor, utilities_.CursorPos()));
}

void eDiapoLight::EndZoom() {
    if (!zoom_.Active) return;
    Attempt([this] { SharedFrmScroll(Desktop()).Unload(); });
    zoom_.Active = false;
}

}  // namespace vorlane
