#include "windows/form.h"

#include "platform/failure.h"
#include "platform/numbers.h"

#include <algorithm>
#include <utility>

namespace vorlane {

Form::Form(const Desktop& desktop, int32_t designWidth, int32_t designHeight)
    : desktop_(desktop), design_{0, 0, designWidth, designHeight}, place_(design_) {}

Form::~Form() {
    if (Loaded()) TheForms().CloseForm(hwnd_);
}

void Form::Load() {
    if (Loaded()) return;
    const Ambient ambient = TheForms().OpenForm();
    hwnd_ = ambient.Window;
    content_ = MakeContent(ambient, [this] { OnResize(); });
    TheForms().SetContent(hwnd_, *content_);
    MoveTo(design_);
    OnLoad();
}

void Form::Unload() {
    if (Loaded()) {
        const auto effect = OnUnload();
        const vorlane::Hwnd window = std::exchange(hwnd_, 0);
        effect ? TheForms().CloseForm(window, *effect) : TheForms().CloseForm(window);
        content_.reset();
    }
    place_ = design_;
    Reset();
}

Hwnd Form::Hwnd() {
    Load();
    return hwnd_;
}

FormContent& Form::Content() {
    Load();
    return *content_;
}

float Form::Left() const {
    return static_cast<float>(place_.Left) * TwipsPerPixelX();
}

float Form::Top() const {
    return static_cast<float>(place_.Top) * TwipsPerPixelY();
}

float Form::Width() const {
    return static_cast<float>(ScaleWidth()) * TwipsPerPixelX();
}

float Form::Height() const {
    return static_cast<float>(ScaleHeight()) * TwipsPerPixelY();
}

void Form::Move(double left, double top) {
    Move(left, top, Width(), Height());
}

void Form::Move(double left, double top, double width, double height) {
    const int32_t x = ToInt32(left / TwipsPerPixelX());
    const int32_t y = ToInt32(top / TwipsPerPixelY());
    const int32_t right = ToInt32(static_cast<double>(x) + Max(0, Round(width / TwipsPerPixelX())));
    const int32_t bottom = ToInt32(static_cast<double>(y) + Max(0, Round(height / TwipsPerPixelY())));
    Load();
    MoveTo({x, y, right, bottom});
}

void Form::MoveTo(const WinRect& place) {
    place_ = place;
    TheForms().Move(hwnd_, place);
    content_->Move(0, 0, ScaleWidth(), ScaleHeight());
}

void Form::Show() {
    Load();
    TheForms().Show(hwnd_);
    OnVisibleChanged(true);
}

void Form::Hide() {
    if (!Loaded()) return;
    TheForms().Hide(hwnd_);
    OnVisibleChanged(false);
}

bool Form::Visible() const {
    return Loaded() && TheForms().Visible(hwnd_);
}

void Form::Refresh() {
    desktop_.windows.RedrawWindow(Hwnd(), {0, 0, ScaleWidth(), ScaleHeight()}, RDW_INVALIDATE | RDW_UPDATENOW);
}

OLE_COLOR Form::BackColor() {
    return Content().Surface().BackColor();
}

void Form::SetBackColor(OLE_COLOR color) {
    Content().Surface().SetBackColor(color);
}

void ShowForm(Form& form) {
    Attempt([&] { form.Show(); });
}

}  // namespace vorlane
