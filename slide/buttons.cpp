// The slide's buttons: their pressed look and their own events.
#include "slide/ediapolight.h"

namespace vorlane {

void eDiapoLight::ConnectButtons() {
    for (Image* button : {&BtPlay, &BtComment, &BtTexte}) ConnectButton(*button);
    BtPlay.Input.Click.connect([this] { ClickSound(false); });
    BtComment.Input.Click.connect([this] { ClickSound(true); });
    BtTexte.Input.Click.connect([this] {
        Events.Click(lastButton_);
        Events.ClickText();
    });
}

void eDiapoLight::ConnectButton(Image& image) {
    image.Input.MouseDown.connect([this, &image](int16_t button, int16_t shift, float x, float y) {
        lastButton_ = button;
        Events.MouseDown(button, shift, ForwardedX(image, x), ForwardedY(image, y));
        if (press_.Down) return;
        press_ = {true, image.Top()};
        image.Move(image.Left() + 1, image.Top() + 1);
    });
    image.Input.MouseMove.connect([this, &image](int16_t button, int16_t shift, float x, float y) {
        Events.MouseMove(button, shift, ForwardedX(image, x), ForwardedY(image, y));
    });
    image.Input.MouseUp.connect([this, &image](int16_t button, int16_t shift, float x, float y) {
        // A layout may have put the button back meanwhile.
        if (press_.Down && image.Top() != press_.Top) image.Move(image.Left() - 1, image.Top() - 1);
        press_.Down = false;
        Events.MouseUp(button, shift, ForwardedX(image, x), ForwardedY(image, y));
    });
}

// Whether a sound runs is asked before the click is told, for its handlers may start or stop one.
void eDiapoLight::ClickSound(bool fromComment) {
    const Sounds& player = utilities_.SoundPlayer();
    const SoundName current = player.Current();
    const bool byHandle = player.IsPlaying({"", current.Handle, ""});
    const bool byFile = player.IsPlaying({"", -1, current.File});
    Events.Click(lastButton_);
    if (byHandle || byFile) {
        Events.ClickStop(fromComment);
    } else {
        Events.ClickPlay(fromComment);
    }
}

// Presses of the info button are events of their own; only moves over it count as moves over the slide.
void eDiapoLight::ConnectInfo() {
    ImgInfo.Input.MouseDown.connect([this](int16_t button, int16_t shift, float x, float y) {
        if (!press_.Down) ImgInfo.SetLeft(ImgInfo.Left() + 1);
        press_.Down = true;
        Events.InfoMouseDown(button, shift, x, y);
    });
    ImgInfo.Input.MouseMove.connect([this](int16_t button, int16_t shift, float x, float y) {
        Events.InfoMouseMove(button, shift, x, y);
        Events.MouseMove(button, shift, ForwardedX(ImgInfo, x), ForwardedY(ImgInfo, y));
    });
    ImgInfo.Input.MouseUp.connect([this](int16_t button, int16_t shift, float x, float y) {
        if (press_.Down) ImgInfo.SetLeft(ImgInfo.Left() - 1);
        press_.Down = false;
        Events.InfoMouseUp(button, shift, x, y);
    });
}

}  // namespace vorlane
