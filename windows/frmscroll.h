// FrmScroll: a borderless window that shows one picture, either beside the scroll bar while its thumb is dragged (the
// follow window) or over a slide that is enlarged (the zoom window). It owns its inside and how it goes; its place and
// size are its users' business.
#pragma once

#include "platform/image.h"
#include "platform/photox.h"
#include "platform/shape.h"
#include "platform/tessalylight.h"
#include "windows/form.h"

#include <string>

namespace vorlane {

class FrmScroll final : public Form {
public:
    explicit FrmScroll(const Desktop& desktop);

    bool ZoomMode = false;  // it is a zoom window
    float ZoomX = 0;        // where a zoom window opened, twips
    float ZoomY = 0;
    int16_t PlaceCode = 0;  // of a follow window, 2 to 4; it chooses the closing effect, none above 4

    // Shows a file on a colour: in Img when that can open it, else in Img2. Without a file name only the colour
    // changes.
    void PictureLet(const std::string& fileName, OLE_COLOR backColor);

    PhotoX& Img() { return Inside().img; }
    TessalyLight& Img2() { return Inside().img2; }
    Shape& Sh() { return Inside().sh; }

private:
    struct View final : FormContent {
        View(const vorlane::Desktop& desktop, const vorlane::Ambient& ambient, std::function<void()> onResize);
        PhotoX img{Desktop(), Ambient(), this};
        TessalyLight img2{Desktop(), Ambient(), this};
        Shape sh{this};  // the thin frame
    };

    std::unique_ptr<FormContent> MakeContent(const Ambient& ambient, std::function<void()> onResize) override;
    void OnLoad() override;
    void OnResize() override;
    void OnVisibleChanged(bool visible) override { Img().SetPlaying(visible); }
    std::optional<ClosingEffect> OnUnload() override;
    void Reset() override;

    View& Inside() { return static_cast<View&>(Content()); }
    std::optional<ClosingCorner> CornerToClose() const;
};

// The one of the desktop.
FrmScroll& SharedFrmScroll(const Desktop& desktop);

}  // namespace vorlane
