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

void eDiapoLight::ClickSound(bool fromComment) {
    Events.Click(lastButton_);
    Events.ClickPlay(fromComment);
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

// Moves over the zoom corner take its twips for pixels.
void eDiapoLight::ConnectCorner() {
    CornerResize.Input.MouseDown.connect(
        [this](int16_t button, int16_t shift, float x, float y) { Events.ZoomMouseDown(button, shift, x, y); });
    CornerResize.Input.MouseMove.connect([this](int16_t button, int16_t shift, float x, float y) {
        Events.MouseMove(button, shift, ToContainer(CornerResize.Left() + x), ToContainer(CornerResize.Top() + y));
    });
}

}  // namespace vorlane
