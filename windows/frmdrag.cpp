#include "windows/frmdrag.h"

#include "platform/sharedobjects.h"

#include <utility>

namespace vorlane {

namespace {

constexpr int32_t kDesignWidth = 100;
constexpr int32_t kDesignHeight = 75;
constexpr int32_t kFirstFamilyWithLayers = 8;
constexpr uint8_t kAlphaSeenThrough = 50;
constexpr uint8_t kAlphaDimmed = 100;

}  // namespace

FrmDrag::FrmDrag(const Desktop& desktop, int32_t systemFamily)
    : Form(desktop, kDesignWidth, kDesignHeight), systemFamily_(systemFamily) {}

std::unique_ptr<FormContent> FrmDrag::MakeContent(const Ambient& ambient, std::function<void()> onResize) {
    return std::make_unique<FormContent>(TheDesktop(), ambient, std::move(onResize));
}

bool FrmDrag::HasLayers() const {
    return systemFamily_ >= kFirstFamilyWithLayers;
}

void FrmDrag::OnLoad() {
    if (!HasLayers()) return;
    SetBackColor(ColorKey);
    if (AlphaMode) {
        TheForms().SetLayered(Hwnd(), kAlphaSeenThrough, std::nullopt);
    } else {
        TheForms().SetLayered(Hwnd(), kAlphaDimmed, ColorKey);
    }
}

// Without layers the hole is one of the window itself, which has to keep up with its size.
void FrmDrag::OnResize() {
    if (HasLayers()) return;
    const Region whole = Region::CreateRectRgn(0, 0, ScaleWidth(), ScaleHeight());
    const Region hole = Region::CreateEllipticRgn(HotX, HotY, HotX + 2, HotY + 2);
    SetWindowRgn(Region::ExclusiveOr(whole, hole));
}

void FrmDrag::Reset() {
    AlphaMode = false;
    ColorKey = 0;
    HotX = HotY = 0;
    StartRightPart = false;
}

FrmDrag& SharedFrmDrag(const Desktop& desktop) {
    return desktop.shared.Get<FrmDrag>(desktop);
}

}  // namespace vorlane
