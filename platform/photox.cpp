#include "platform/photox.h"

#include <utility>

namespace vorlane {

PhotoX::PhotoX(const vorlane::Desktop& desktop, const vorlane::Ambient& ambient, UserControl* container)
    : CompositeControl(desktop, ambient, container), view_(desktop, ambient, this) {}

PhotoX::~PhotoX() {
    StopWaiting();
}

void PhotoX::Display(const std::string& path) {
    Clear();
    film_ = Desktop().films.Open(path);
    Advance();
}

void PhotoX::Clear() {
    StopWaiting();
    film_.reset();
    delay_ = 0;
    view_.SetPicture({});
}

void PhotoX::SetBackColor(OLE_COLOR color) {
    Surface().SetBackColor(color);
    view_.SetBackColor(color);
}

void PhotoX::SetPlaying(bool playing) {
    if (playing == playing_) return;
    playing_ = playing;
    Schedule();
}

void PhotoX::Advance() {
    delay_ = 0;
    if (!film_) return;
    if (const auto frame = film_->NextFrame()) {
        view_.SetPicture(frame->Picture);
        delay_ = frame->Delay;
    }
    Schedule();
}

void PhotoX::Schedule() {
    StopWaiting();
    if (delay_ < 1 || !playing_ || !Visible()) return;
    waiting_ = Desktop().clock.StartTimer(delay_, [this] {
        StopWaiting();
        Advance();
    });
}

void PhotoX::StopWaiting() {
    if (waiting_ != 0) Desktop().clock.StopTimer(std::exchange(waiting_, 0));
}

}  // namespace vorlane
