// TessalyLight: a picture view. It shows one picture whole, in its own proportions, as large as fits and in the middle;
// what is left of it has the back colour.
#pragma once

#include "platform/compositecontrol.h"
#include "platform/image.h"

namespace vorlane {

class TessalyLight final : public CompositeControl {
public:
    using CompositeControl::CompositeControl;

    const vorlane::Picture& Picture() const { return picture_.Picture(); }
    void SetPicture(const vorlane::Picture& picture);
    OLE_COLOR BackColor() const { return Surface().BackColor(); }
    void SetBackColor(OLE_COLOR color) { Surface().SetBackColor(color); }
    void Refresh() { Invalidate(); }

    // Where the picture stands, in pixels of the view; empty for the empty picture.
    Box PictureBox() const;

protected:
    void Resized() override { Place(); }

private:
    void Place();

    Image picture_{this};
};

}  // namespace vorlane
