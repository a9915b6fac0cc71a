// From a file or a picture to a picture on the slide.
#include "platform/numbers.h"
#include "platform/scale.h"
#include "platform/withinblock.h"
#include "slide/ediapolight.h"

namespace vorlane {

namespace {

constexpr int16_t kOwnSize = -1;

PictureSize PixelSize(const Picture& picture) {
    return {Rescale(picture.Width(), ScaleMode::HiMetric, ScaleMode::Pixels),
            Rescale(picture.Height(), ScaleMode::HiMetric, ScaleMode::Pixels)};
}

}  // namespace

// --- Files ---

std::string eDiapoLight::KnownPath(const std::string& path) {
    const bool unnamed = Trelmic6::FilePart(path, PathPart::FileName).empty() && !Trelmic6::FileName(path).empty();
    return unnamed ? path + '.' : path;
}

void eDiapoLight::PictureByString(const std::string& path, vorlane::Picture thumb, bool) {
    const std::string file = KnownPath(path);
    ++image_.Files;
    Trap(
        pending_,
        [&] {
            if (Trelmic6::FilePart(file, PathPart::FileName).empty()) {
                ShowNoFile();
            } else {
                ShowFile(file, thumb);
            }
        },
        [&](const Failure& failure) { Report(failure, "DpLight PictureByString " + file); });
}

void eDiapoLight::ShowNoFile() {
    Img.SetPicture({});
    Img.SetTag("");
    image_.IsSubstitute = false;
    LblTop.SetCaption("");
    if (!settings_.ShowDiapoTools) BtPlay.SetVisible(false);
}

// A handler that gives the slide another file has the last word.
void eDiapoLight::ShowFile(const std::string& path, const vorlane::Picture& thumb) {
    const auto newest = [this, number = image_.Files] { return number == image_.Files; };
    Img.SetTag(path);
    const WithinBlock given(image_.HasGivenThumb, thumb.Type() > 0);
    const bool toolsRow = Trelmic6::FileKind(path) == 0 && settings_.ShowDiapoTools;
    BtPlay.SetVisible(media_.SoundMusic);
    SetButtonPicture(BtPlay, toolsRow ? DiapoPictureIndex::PicBtPlay : DiapoPictureIndex::PicBtPlayPlain,
                     media_.InvalidMusic);
    BtComment.SetVisible(media_.SoundComment);
    SetButtonPicture(BtComment, DiapoPictureIndex::PicBtComment, media_.InvalidComm);
    BtTexte.SetVisible(media_.Texte);
    SetButtonPicture(BtTexte, DiapoPictureIndex::PicBtText, false);
    if (!newest()) return;
    const std::optional<vorlane::Picture> picture = LoadFilePicture(path, thumb);
    if (!newest()) return;
    if (picture) {
        SetPicture(*picture);
    } else {
        SetPicture(std::nullopt);
    }
    if (newest()) LblTop.SetCaption(Trelmic6::FilePart(path, PathPart::FileName));
}

// Nothing for a kind of file that the slide does not know.
std::optional<Picture> eDiapoLight::LoadFilePicture(const std::string& path, const vorlane::Picture& thumb) {
    switch (Trelmic6::FileKind(path)) {
        case 0:
            return LoadPictureFile(path, thumb);
        case 1:
            return SubstituteFor(DiapoPictureIndex::PicFileKind1, path);
        case 2:
            return SubstituteFor(DiapoPictureIndex::PicFileKind2, path);
        case 3:
            return SubstituteFor(DiapoPictureIndex::PicFileKind3, "");
        case 5:
            return SubstituteFor(DiapoPictureIndex::PicFileKind5, "");
        default:
            return std::nullopt;
    }
}

Picture eDiapoLight::LoadPictureFile(const std::string& path, const vorlane::Picture& thumb) {
    const std::optional<vorlane::Picture> loaded = thumb.Handle() == 0 ? utilities_.LoadImageFile(path) : thumb;
    if (loaded) {
        image_.IsSubstitute = false;
        return *loaded;
    }
    vorlane::Picture substitute = RequestPicture(DiapoPictureIndex::PicSubstitute, false);
    image_.IsSubstitute = true;
    LblTop.SetCaption(Trelmic6::FilePart(path, PathPart::FileName));
    if (!settings_.ShowDiapoTools) {
        BtPlay.SetVisible(false);
        BtComment.SetVisible(false);
    }
    Events.InvalidPicture(path);
    return substitute;
}

// The owner's picture for a file that is no picture; playable is what BtPlay plays.
Picture eDiapoLight::SubstituteFor(DiapoPictureIndex index, const std::string& playable) {
    vorlane::Picture substitute = RequestPicture(index, false);
    image_.IsSubstitute = true;
    BtPlay.SetTag(playable);
    return substitute;
}

// --- Assignment ---

// By value: the picture may be the slide's own, which handlers replace.
// NOLINTNEXTLINE(performance-unnecessary-value-param)
void eDiapoLight::SetPicture(vorlane::Picture picture) {
    try {
        AssignPicture(picture);
    } catch (...) {
        Attempt([&] { Img.SetVisible(true); });
        throw;
    }
}

void eDiapoLight::AssignPicture(const vorlane::Picture& picture) {
    const auto step = [this](auto&& statement) {
        if (!Attempt(statement)) ShowFailedAssignment();
    };
    if (picture.Type() <= 0) {
        step([&] { ClearPicture(); });
        step([&] { Img.SetVisible(true); });
        return;
    }
    const PictureSize pixels = PixelSize(picture);
    image_.Native = {static_cast<float>(Round(pixels.Width)), static_cast<float>(Round(pixels.Height))};
    step([&] { FitImage(picture); });
    step([&] { Img.SetVisible(false); });
    step([&] { PlaceAssigned(); });
    step([&] { ShowAssigned(picture); });
    if (settings_.AutoAdjust) Layout();
    step([&] { Img.SetVisible(true); });
}

void eDiapoLight::TakePicture(const eDiapoLight& from) {
    const PictureSize native = from.image_.Native;
    image_.IsSubstitute = from.image_.IsSubstitute;
    const WithinBlock given(image_.HasGivenThumb, true);
    SetPicture(from.Picture());
    image_.Native = native;
}

void eDiapoLight::ClearPicture() {
    Img.SetPicture({});
    Img.SetTag("");
    image_.IsSubstitute = false;
}

// Without AutoAdjust the place is computed from the area's far corner; the next layout puts it right.
void eDiapoLight::PlaceAssigned() {
    const PictureSize& fit = image_.Fit;
    if (settings_.AutoAdjust) {
        Img.SetWidth(Max(0.0F, fit.Width));
        Img.SetHeight(Max(0.0F, fit.Height));
        return;
    }
    const WinRect& area = image_.Area;
    Img.Move((static_cast<double>(area.Right) - fit.Width) / 2 + area.Left,
             (static_cast<double>(area.Bottom) - fit.Height) / 2 + area.Top, fit.Width, fit.Height);
}

void eDiapoLight::ShowAssigned(const vorlane::Picture& picture) {
    if (!ShowsThumbOf(picture)) return Img.SetPicture(picture);
    const std::optional<vorlane::Picture> thumb = Thumb(picture, kOwnSize);
    if (!thumb) throw failures::ObjectNotSet();
    Img.SetPicture(*thumb);
}

bool eDiapoLight::ShowsThumbOf(const vorlane::Picture& picture) const {
    if (!picture.IsBitmap() || !settings_.Thumbnail) return false;
    if (image_.IsSubstitute || image_.HasGivenThumb) return false;
    const PictureSize pixels = PixelSize(picture);
    const AreaSize area = PictureArea();
    return pixels.Width > static_cast<float>(area.Width) || pixels.Height > static_cast<float>(area.Height);
}

void eDiapoLight::ShowFailedAssignment() {
    Img.SetPicture(RequestPicture(DiapoPictureIndex::PicSubstitute, false));
    image_.IsSubstitute = true;
    Events.InvalidPicture("");
}

// --- Sizes ---

AreaSize eDiapoLight::PictureArea() const {
    const WinRect& area = image_.Area;
    return {int64_t{area.Right} - area.Left, int64_t{area.Bottom} - area.Top};
}

void eDiapoLight::FitImage(const vorlane::Picture& picture) {
    FitPicture(image_.Fit, PixelSize(picture), PictureArea(), {settings_.AlwaysFullSize, image_.IsSubstitute});
}

std::optional<Picture> eDiapoLight::Thumb(const vorlane::Picture& picture, int16_t resolution) {
    if (picture.Handle() == 0) return std::nullopt;
    if (!picture.IsBitmap()) return picture;
    return Trap(
        pending_,
        [&]() -> std::optional<vorlane::Picture> {
            const bool high = settings_.ThumbnailResolution != DiapoThumbResolution::ThumbResolutionNormal;
            const int16_t own = high ? settings_.ThumbnailSizeHigh : settings_.ThumbnailSizeNormal;
            const PictureSize size = FitThumbnail(PixelSize(picture), resolution == kOwnSize ? own : resolution);
            return utilities_.ResizePicture(picture, ToInt32(size.Width), ToInt32(size.Height));
        },
        [&](const Failure& failure) { Report(failure, "DpLight Thumb "); }, std::optional<vorlane::Picture>{});
}

}  // namespace vorlane
