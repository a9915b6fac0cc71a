#include "windows/frmscroll.h"

#include "platform/numbers.h"
#include "platform/sharedobjects.h"
#include "platform/trelmic6.h"

#include <utility>

namespace vorlane {

namespace {

constexpr int32_t kDesignWidth = 100;
constexpr int32_t kDesignHeight = 76;
constexpr OLE_COLOR kFrameColor = 0xC0C0C0;
constexpr double kPixelsOfTenSteps = 108966;

}  // namespace

FrmScroll::View::View(const vorlane::Desktop& desktop, const vorlane::Ambient& ambient, std::function<void()> onResize)
    : FormContent(desktop, ambient, std::move(onResize)) {
    sh.SetBorderColor(kFrameColor);
    img.SetPlaying(false);
    img2.SetVisible(false);
}

FrmScroll::FrmScroll(const Desktop& desktop) : Form(desktop, kDesignWidth, kDesignHeight) {}

std::unique_ptr<FormContent> FrmScroll::MakeContent(const Ambient& ambient, std::function<void()> onResize) {
    return std::make_unique<View>(TheDesktop(), ambient, std::move(onResize));
}

void FrmScroll::OnLoad() {
    TheForms().KeepOnTop(Hwnd());
}

void FrmScroll::PictureLet(const std::string& fileName, OLE_COLOR backColor) {
    SetBackColor(backColor);
    Img().SetBackColor(backColor);
    Img2().SetBackColor(backColor);
    if (!fileName.empty()) {
        const bool opens = Img().CanOpen(fileName);
        Img().SetVisible(opens);
        Img2().SetVisible(!opens);
        if (opens) {
            Img().Display(fileName);
        } else {
            Img2().SetPicture(TheDesktop().pictures.LoadImageFile(fileName).value_or(Picture{}));
        }
    }
    Img2().Refresh();
    Img().Refresh();
}

void FrmScroll::OnResize() {
    const double border = Sh().BorderWidth();
    Sh().Move(0, 0, ScaleWidth(), ScaleHeight());
    const Rgb plain = Trelmic6(TheDesktop()).ColorToRgb(BackColor());
    const OLE_COLOR color = RGB(plain.Red, plain.Green, plain.Blue);
    Img().SetBackColor(color);
    Img2().SetBackColor(color);
    Img().Move(border, border, ScaleWidth() - 2 * border, ScaleHeight() - 2 * border);
    Img2().Move(border, border, ScaleWidth() - 2 * border, ScaleHeight() - 2 * border);
}

std::optional<ClosingEffect> FrmScroll::OnUnload() {
    const double area = static_cast<double>(ScaleHeight()) * ScaleWidth();
    const int32_t steps = ToInt32(area / kPixelsOfTenSteps * 10);
    Img2().SetPicture({});
    Img().Clear();
    const auto corner = CornerToClose();
    return corner ? std::optional(ClosingEffect{*corner, steps}) : std::nullopt;
}

std::optional<ClosingCorner> FrmScroll::CornerToClose() const {
    if (!ZoomMode && PlaceCode > 4) return std::nullopt;
    if (!ZoomMode && PlaceCode >= 1) return static_cast<ClosingCorner>(PlaceCode + 1);
    const bool rightward = Left() >= ZoomX;
    const bool downward = Top() >= ZoomY;
    if (rightward) return downward ? ClosingCorner::TopLeft : ClosingCorner::BottomLeft;
    return downward ? ClosingCorner::TopRight : ClosingCorner::BottomRight;
}

void FrmScroll::Reset() {
    ZoomMode = false;
    ZoomX = ZoomY = 0;
    PlaceCode = 0;
}

FrmScroll& SharedFrmScroll(const Desktop& desktop) {
    return desktop.shared.Get<FrmScroll>(desktop);
}

}  // namespace vorlane
