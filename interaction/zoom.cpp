// What the sheet does for its slides on the screen: their places, and the balloon of the info button.
#include "sheet/slidemember.h"
#include "sheet/vorlane.h"
#include "windows/clstooltip.h"

namespace vorlane {

namespace {

constexpr int32_t kBalloonStyle = TTS_BALLOON + TTS_ALWAYSTIP;
constexpr int32_t kBalloonStays = 30000;  // milliseconds

}  // namespace

void Vorlane::ConnectSlideZoom(const sheet::SlideMember& member) {
    eDiapoLight& slide = member.Slide;
    sheet::Hear(slide.Events.GetWindowsPos, member, [this, &slide](WinRect& rect, std::string& text) {
        Attempt([&] { rect = ScreenRectOf(slide); });
        text = captionWait_;
    });
    sheet::Hear(slide.Events.ZoomMouseDown, member, [this](int16_t, int16_t, float, float) { DropEdit(); });
    sheet::Hear(slide.Events.InfoMouseDown, member,
                [this, member](int16_t, int16_t, float, float) { OpenInfo(member.Index, member.Slide); });
    // The balloon goes with the button, also when the slide has left the sheet meanwhile.
    slide.Events.InfoMouseUp.connect([this](int16_t, int16_t, float, float) { CloseInfo(); });
}

// --- Places on the screen ---

WinRect Vorlane::ScreenRectOf(const eDiapoLight& slide) const {
    const WinRect sheet = Desktop().windows.GetWindowRect(Hwnd());
    const int32_t left = ToInt32(static_cast<double>(slide.Left()) + sheet.Left);
    const int32_t top = ToInt32(static_cast<double>(slide.Top()) + sheet.Top);
    return {left, top, ToInt32(static_cast<double>(slide.Width()) + left),
            ToInt32(static_cast<double>(slide.Height()) + top)};
}

// --- The balloon ---

void Vorlane::OpenInfo(int16_t index, const eDiapoLight& slide) {
    DropEdit();
    // NOLINTNEXTLINE(performance-unnecessary-copy-initialization): a handler may give the slide another file
    const std::string file = slide.ImageFullPath();
    std::string title;
    std::string text;
    int32_t icon = 0;
    Events.ToolTipInfos(index, file, title, text, icon);
    if (title.empty() && text.empty()) return;
    infoTip_ = std::make_unique<clsToolTip>(Desktop());
    infoTip_->Create(Hwnd(), text, kBalloonStyle, false, false, icon, title, FromSystem(SystemColor::ButtonText),
                     FromSystem(SystemColor::InfoBackground), 0, kBalloonStays);
    infoTip_->Activate(true);
}

void Vorlane::CloseInfo() {
    if (!infoTip_) return;
    infoTip_->Activate(false);
    infoTip_.reset();
}

}  // namespace vorlane
