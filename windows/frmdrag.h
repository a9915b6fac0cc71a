// FrmDrag: the ghost that follows the pointer during a drag, a borderless window that its user paints. It owns how
// much of it is seen through, and the hole at the hot spot, by which what lies under the pointer stays under it. The
// fields are set before the form is loaded.
#pragma once

#include "platform/trelmic6.h"
#include "windows/form.h"

namespace vorlane {

class FrmDrag final : public Form {
public:
    // systemFamily: on the scale of Trelmic6; below 8 there are no layered windows.
    explicit FrmDrag(const Desktop& desktop, int32_t systemFamily = Trelmic6::SystemFamily());

    bool AlphaMode = false;  // seen through all over, without a hole of the colour key
    OLE_COLOR ColorKey = 0;  // what has this colour is a hole
    int32_t HotX = 0;        // where the pointer is in the ghost, pixels
    int32_t HotY = 0;
    bool StartRightPart = false;  // side of the insertion mark when the drag started

    // What is painted into the ghost.
    vorlane::Surface& Surface() { return Content().Surface(); }

private:
    std::unique_ptr<FormContent> MakeContent(const Ambient& ambient, std::function<void()> onResize) override;
    void OnLoad() override;
    void OnResize() override;
    std::optional<ClosingEffect> OnUnload() override { return std::nullopt; }
    void Reset() override;

    bool HasLayers() const;

    int32_t systemFamily_;
};

// The one of the desktop.
FrmDrag& SharedFrmDrag(const Desktop& desktop);

}  // namespace vorlane
