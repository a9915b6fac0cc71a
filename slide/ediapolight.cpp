#include "slide/ediapolight.h"

namespace vorlane {

namespace {

constexpr float kButtonSize = 16;

}  // namespace

eDiapoLight::eDiapoLight(const vorlane::Desktop& desktop, const vorlane::Ambient& ambient, UserControl* container)
    : UserControl(desktop, ambient, container), utilities_(desktop) {
    for (Image* button : {&BtTexte, &BtComment, &BtPlay}) {
        button->Move(0, 0, kButtonSize, kButtonSize);
        button->SetVisible(false);
    }
    for (Image* corner : {&CornerResize, &ImgInfo}) corner->Move(0, 0, kCornerSize, kCornerSize);
    CornerResize.SetPicture(desktop.pictures.Get(Artwork::ZoomCorner));
    ImgInfo.SetPicture(desktop.pictures.Get(Artwork::InfoButton));
    LblBottom.SetWordWrap(true);
    Slider.SetVisible(false);
    ConnectInput();
    Move(0, 0, 100, 75);
}

eDiapoLight::~eDiapoLight() {
    EndZoom();
}

void eDiapoLight::Show() {
    if (!life_.PendingFirstLayout) return;
    life_.PendingFirstLayout = false;
    Layout();
}

void eDiapoLight::Refresh() {
    settings_.NoResize = false;
    Layout();
}

void eDiapoLight::Report(const Failure& failure, const std::string& text) {
    Events.Error(failure.Number, failure.Description, failure.Source, failure.LastDllError, text);
}

}  // namespace vorlane
