#include "slide/fit.h"

#include "platform/failure.h"
#include "platform/numbers.h"

namespace vorlane {

namespace {

// side, scaled as whole is to part.
double Scaled(double part, float whole, float side) {
    if (whole == 0) throw failures::DivisionByZero();
    return part / whole * side;
}

float Single(double value) {
    return static_cast<float>(value);
}

}  // namespace

void FitPicture(PictureSize& fit, const PictureSize& picture, const AreaSize& area, const FitRules& rules) {
    const double areaWidth = static_cast<double>(area.Width);
    const double areaHeight = static_cast<double>(area.Height);
    if (picture.Width <= areaWidth && picture.Height <= areaHeight && rules.Substitute) {
        fit = picture;
        return;
    }
    fit.Width = Single(rules.FillArea ? areaWidth : Min(picture.Width, areaWidth));
    fit.Height = Single(Scaled(fit.Width, picture.Width, picture.Height));
    if (fit.Height > areaHeight) {
        fit.Height = Single(rules.FillArea ? areaHeight : Min(picture.Height, areaHeight));
        fit.Width = Single(Scaled(fit.Height, picture.Height, picture.Width));
    }
    fit.Width = Single(Round(fit.Width));
    fit.Height = Single(Round(fit.Height));
}

PictureSize FitThumbnail(const PictureSize& picture, int16_t size) {
    PictureSize thumb;
    thumb.Width = size;
    thumb.Height = Single(Scaled(thumb.Width, picture.Width, picture.Height));
    if (thumb.Height > size) {
        thumb.Height = size;
        thumb.Width = Single(Scaled(thumb.Height, picture.Height, picture.Width));
    }
    if (thumb.Width > 0) thumb.Width = Max(1.0F, thumb.Width);
    if (thumb.Height > 0) thumb.Height = Max(1.0F, thumb.Height);
    return thumb;
}

}  // namespace vorlane
