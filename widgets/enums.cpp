#include "widgets/enums.h"

#include "slide/diapotypes.h"

namespace vorlane::ui {

namespace {

template <class Mine, class Core>
constexpr bool Same(Mine mine, Core core) {
    return static_cast<int>(mine) == static_cast<int>(core);
}

static_assert(Same(BorderStyle::BorderRaisedDouble, DiapoBorderStyle::BorderRaisedDouble));
static_assert(Same(BorderStyle::FlatBackColor, DiapoBorderStyle::FlatBackColor));
static_assert(Same(ThumbResolution::ThumbResolutionHigh, DiapoThumbResolution::ThumbResolutionHigh));
static_assert(Same(PictureIndex::PicFileKind5, DiapoPictureIndex::PicFileKind5));
static_assert(Same(PictureIndex::PicBtPlayPlain, DiapoPictureIndex::PicBtPlayPlain));

}  // namespace

}  // namespace vorlane::ui
