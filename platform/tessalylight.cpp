#include "platform/tessalylight.h"

#include "platform/numbers.h"

namespace vorlane {

void TessalyLight::SetPicture(const vorlane::Picture& picture) {
    picture_.SetPicture(picture);
    Place();
}

Box TessalyLight::PictureBox() const {
    return picture_.Visible() ? picture_.Bounds() : Box{};
}

void TessalyLight::Place() {
    const double width = picture_.Picture().Width();
    const double height = picture_.Picture().Height();
    picture_.SetVisible(width > 0 && height > 0 && ScaleWidth() > 0 && ScaleHeight() > 0);
    if (!picture_.Visible()) return;
    const double scale = Min(ScaleWidth() / width, ScaleHeight() / height);
    const double shownWidth = Max(1, Round(width * scale));
    const double shownHeight = Max(1, Round(height * scale));
    picture_.Move(Int((ScaleWidth() - shownWidth) / 2), Int((ScaleHeight() - shownHeight) / 2), shownWidth,
                  shownHeight);
}

}  // namespace vorlane
