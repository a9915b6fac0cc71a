#include "windows/frmwait.h"

#include "platform/sharedobjects.h"
#include "platform/withinblock.h"

#include <utility>

namespace vorlane {

namespace {

constexpr int32_t kDesignWidth = 240;  // enough for the message of a zoom in one line
constexpr int32_t kDesignHeight = 40;
constexpr int32_t kCorner = 15;
constexpr int32_t kMargin = 30;
constexpr uint8_t kAlpha = 165;

}  // namespace

FrmWait::View::View(const vorlane::Desktop& desktop, const vorlane::Ambient& ambient, std::function<void()> onResize)
    : FormContent(desktop, ambient, std::move(onResize)) {
    fond.SetFont(ambient.Font);
    fond.SetColorStart(FromSystem(SystemColor::Window));
    fond.SetColorEnd(FromSystem(SystemColor::ButtonFace));
    fond.SetCornerSize(kCorner);
}

FrmWait::FrmWait(const Desktop& desktop) : Form(desktop, kDesignWidth, kDesignHeight) {}

std::unique_ptr<FormContent> FrmWait::MakeContent(const Ambient& ambient, std::function<void()> onResize) {
    return std::make_unique<View>(TheDesktop(), ambient, std::move(onResize));
}

void FrmWait::OnLoad() {
    SetWindowRgn(WholeRounded());
    TheForms().SetLayered(Hwnd(), kAlpha, std::nullopt);
    Fond().SetForeColor(FromSystem(SystemColor::ButtonText));
    TheForms().KeepOnTop(Hwnd());
}

void FrmWait::Reset() {
    fromWhere_ = WaitPlace::None;
    moved_.reset();
    ++pass_;
}

Region FrmWait::WholeRounded() {
    const int32_t corner = Fond().CornerSize();
    return Region::CreateRoundRectRgn(0, 0, ScaleWidth(), ScaleHeight(), corner, corner);
}

// --- Opening ---

void FrmWait::ShowAnimatedFrom(const std::string& newCaption, WaitPlace fromWhere, const WinRect& r,
                               bool withoutEffect) {
    ++pass_;
    moved_.reset();
    {
        const WithinBlock animating(animating_);
        TakeCaption(newCaption);
        const bool atOnce = withoutEffect || fromWhere == WaitPlace::Middle;
        if (!atOnce) {
            SetWindowRgn(Region::CreateRoundRectRgn(0, 0, 0, 0, Fond().CornerSize(), Fond().CornerSize()));
            ShowForm(*this);
        }
        Stand(fromWhere, r, atOnce ? 0 : SlideInOf(fromWhere, Size()).Passes);
        if (atOnce ? !Appear() : !Slide(fromWhere, true)) return;
        SetWindowRgn(WholeRounded());
    }
    fromWhere_ = fromWhere;
    if (const auto moved = std::exchange(moved_, std::nullopt)) MoveForm(*moved);
}

void FrmWait::TakeCaption(const std::string& caption) {
    const Font& font = Fond().Font();
    Content().Surface().SetFont(font);
    const double width = static_cast<double>(TheDesktop().metrics.TextWidth(font, caption)) + kMargin;
    Move(Left(), Top(), width * TwipsPerPixelX(), Height());
    Fond().SetCaption(caption);
}

void FrmWait::Stand(WaitPlace place, const WinRect& r, int32_t passesAway) {
    const auto standing = StandingPlace(place, r, Size());
    if (!standing) return;
    const Point step = SlideInOf(place, Size()).Step;
    Move((standing->Left - step.X * passesAway) * TwipsPerPixelX(),
         (standing->Top - step.Y * passesAway) * TwipsPerPixelY());
}

bool FrmWait::Appear() {
    ShowForm(*this);
    SetWindowRgn(WholeRounded());
    return Yield();
}

bool FrmWait::Slide(WaitPlace place, bool in) {
    const WindowSize size = Size();
    const SlideIn slide = SlideInOf(place, size);
    const double direction = in ? 1 : -1;
    const double dx = direction * slide.Step.X * TwipsPerPixelX();
    const double dy = direction * slide.Step.Y * TwipsPerPixelY();
    const auto move = [&] { Move(Left() + dx, Top() + dy); };
    for (int32_t n = 1; n <= slide.Passes; ++n) {
        const int32_t shown = in ? n : slide.Passes - n;
        if (!slide.RegionFirst) move();
        SetWindowRgn(UncoveredPart(place, size, shown, Fond().CornerSize()));
        if (slide.RegionFirst) move();
        if (slide.Sleeps) TheDesktop().clock.Sleep(1);
        if (!Yield()) return false;
    }
    return true;
}

bool FrmWait::Yield() {
    const uint32_t pass = pass_;
    TheDesktop().clock.DoEvents();
    return pass == pass_;
}

// --- The open window ---

void FrmWait::MoveForm(const WinRect& r) {
    if (animating_) moved_ = r;
    if (animating_ || fromWhere_ == WaitPlace::None) return;
    const int32_t width = ScaleWidth();
    TakeCaption(std::string(Fond().Caption()));
    if (ScaleWidth() != width) SetWindowRgn(WholeRounded());  // another caption was set meanwhile
    Stand(fromWhere_, r, 0);
}

void FrmWait::CloseWindow(bool withoutEffect) {
    if (fromWhere_ == WaitPlace::None && !animating_) return;
    ++pass_;
    if (!withoutEffect && !Slide(fromWhere_, false)) return;
    Hide();
    fromWhere_ = WaitPlace::None;
    SetWindowRgn(Region::CreateRectRgn(0, 0, ScaleWidth(), ScaleHeight()));
    Unload();
}

FrmWait& SharedFrmWait(const Desktop& desktop) {
    return desktop.shared.Get<FrmWait>(desktop);
}

}  // namespace vorlane
