#include "widgets/enums.h"

#include "platform/qt/soundtrouble.h"
#include "sheet/types.h"
#include "slide/diapotypes.h"
#include "timeline/etimeline.h"
#include "windows/waitplace.h"

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

static_assert(Same(ScrollDirection::sdHorizontal, ScrollDirectionType::sdHorizontal));
static_assert(Same(ScrollDirection::sdVertical, ScrollDirectionType::sdVertical));
static_assert(Same(SortSens::ssDescending, SortSensType::ssDescending));
static_assert(Same(ScrollWindowPos::swpInside, ScrollWindowPosType::swpInside));
static_assert(Same(ListeMode::lmList, ListeModeType::lmList));
static_assert(Same(TimeMarks::etltFollowDiapo, etlType::etltFollowDiapo));

static_assert(Same(WaitPlace::None, vorlane::WaitPlace::None));
static_assert(Same(WaitPlace::Middle, vorlane::WaitPlace::Middle));
static_assert(Same(WaitPlace::BottomRight, vorlane::WaitPlace::BottomRight));
static_assert(Same(SoundTrouble::Missing, vorlane::SoundTrouble::Missing));
static_assert(Same(SoundTrouble::Gone, vorlane::SoundTrouble::Gone));
static_assert(Same(SoundTrouble::NoDevice, vorlane::SoundTrouble::NoDevice));
static_assert(Same(SoundTrouble::Unreadable, vorlane::SoundTrouble::Unreadable));

}  // namespace

}  // namespace vorlane::ui
