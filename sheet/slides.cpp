// The slides of the pool: making, blanking and copying them, and answering what they ask.
#include "platform/numbers.h"
#include "sheet/slidemember.h"
#include "sheet/vorlane.h"

namespace vorlane {

using sheet::Hear;
using sheet::SlideMember;

// --- The pool ---

// Slide 0 takes its design from the sheet's properties; the others copy it as it is now. A slide that is loaded later
// starts unseen.
std::shared_ptr<eDiapoLight> Vorlane::MakeSlide(int32_t index) {
    vorlane::Ambient ambient = Ambient();
    ambient.ContainerScale = ScaleMode::Twips;
    ambient.Window = 0;
    auto slide = std::make_shared<eDiapoLight>(Desktop(), ambient, this);
    ConnectSlide(*slide, ToInt16(index));
    if (index == 0) {
        slide->Start(PropertyBag{});
    } else {
        slide->CopyDesign(First());
        slide->SetVisible(false);
    }
    slide->SetValue(-1);
    return slide;
}

int16_t Vorlane::SlotFromListIndex(int32_t listIndex) const {
    return FindSlide([=](const eDiapoLight& slide) { return slide.Value() == listIndex; });
}

// Slide 0 always stays: it goes blank and out of sight.
void Vorlane::UnloadDiapo(int32_t index) {
    if (index != 0) return Diapo.Unload(index);
    First().SetVisible(false);
    ResetDiapo(0);
}

void Vorlane::ResetDiapo(int32_t index) {
    const auto slide = Diapo.Item(index);
    slide->PictureByString("");
    slide->SetCaptionBottom("");
    slide->SetBackColorSelected(selection_.SelectedColor);
    slide->SetSelected(false);
    slide->SetSelectedTmp(false);
    slide->SetTag("");
    slide->SetToolTipText("");
    slide->SetValue(-1);
    slide->SetBtPlayVisible(false);
    slide->SetBtPlayPicture({});
    slide->SetHaveSoundMusic(false);
    slide->SetBtCommentVisible(false);
    slide->SetBtCommentPicture({});
    slide->SetHaveSoundComment(false);
    slide->SetBtTextVisible(false);
    slide->SetBtTextPicture({});
    slide->SetHaveTexte(false);
}

// Gives a slide the whole look of another, without its place and size, which belong to the cell. Decodes nothing.
void Vorlane::CopyDiapo(int16_t from, int16_t to) {
    const auto copy = [&] {
        const auto source = Diapo.Item(from);
        const auto target = Diapo.Item(to);
        target->SetImageFullPath(source->ImageFullPath());
        target->TakePicture(*source);
        target->SetCaptionBottom(source->CaptionBottom());
        Select(*target, GroundOf(source->Value()), source->Selected());
        target->SetSelectedTmp(source->SelectedTmp());
        target->SetTag(source->Tag());
        target->SetToolTipText(source->ToolTipText());
        target->SetValue(source->Value());
        target->SetBtPlayVisible(source->BtPlayVisible());
        target->SetHaveSoundMusic(source->HaveSoundMusic());
        target->SetBtPlayPicture(source->BtPlayPicture());
        target->SetBtCommentVisible(source->BtCommentVisible());
        target->SetHaveSoundComment(source->HaveSoundComment());
        target->SetBtCommentPicture(source->BtCommentPicture());
        target->SetBtTextVisible(source->BtTextVisible());
        target->SetHaveTexte(source->HaveTexte());
        target->SetBtTextPicture(source->BtTextPicture());
        target->PlaceButtons();
    };
    GuardVoid(copy, "CopyDiapo", from, to);
}

// --- What a slide asks and tells ---

void Vorlane::ConnectSlide(eDiapoLight& slide, int16_t index) {
    const SlideMember member{Diapo, slide, index};
    Hear(slide.Events.GetKey, member, [this, &slide](int32_t& key) {
        key = -1;
        Attempt([&] { key = KeyOf(slide).value_or(-1); });
    });
    // What is stored is no key, whatever the slide was given.
    Hear(slide.Events.SetKey, member, [this, &slide](int32_t) {
        Attempt([&] {
            if (ListBox* list = Bound().AsListBox()) list->SetItemData(slide.Value(), -1);
        });
    });
    Hear(slide.Events.GetWindowsPos, member, [this, &slide](WinRect& rect, std::string& text) {
        Attempt([&] { rect = ScreenRectOf(slide); });
        text = captionWait_;
    });
    Hear(slide.Events.SetPicture, member, [this](DiapoPictureIndex picture, vorlane::Picture& answer, bool invalid) {
        answer = PictureFor(picture, answer, invalid);
    });
    Hear(slide.Events.InvalidPicture, member,
         [this, index](const std::string& name) { Events.InvalidPicture(index, name); });
    Hear(slide.Events.Error, member,
         [this, index](int32_t number, const std::string& description, const std::string& source, int32_t lastDllError,
                       const std::string& valeur) {
             Events.Error(number, description, source, lastDllError, valeur + " - Index=" + std::to_string(index));
         });
    ConnectSlideMouse(member);
}

std::optional<int32_t> Vorlane::KeyOf(const eDiapoLight& slide) const {
    const ListBox* list = Bound().AsListBox();
    if (list == nullptr) return std::nullopt;
    return list->ItemData(slide.Value());
}

WinRect Vorlane::ScreenRectOf(const eDiapoLight& slide) const {
    const WinRect sheet = Desktop().windows.GetWindowRect(Hwnd());
    const int32_t left = ToInt32(static_cast<double>(slide.Left()) + sheet.Left);
    const int32_t top = ToInt32(static_cast<double>(slide.Top()) + sheet.Top);
    return {left, top, left + ToInt32(slide.Width()), top + ToInt32(slide.Height())};
}

vorlane::Picture Vorlane::PictureFor(DiapoPictureIndex index, const vorlane::Picture& present,
                                     bool invalidSound) const {
    switch (index) {
        case DiapoPictureIndex::PicSubstitute:
        case DiapoPictureIndex::PicFileKind1:
        case DiapoPictureIndex::PicFileKind2:
        case DiapoPictureIndex::PicFileKind3:
        case DiapoPictureIndex::PicFileKind5:
            return ImgLst.ListImage(static_cast<int32_t>(index) + 1);
        case DiapoPictureIndex::PicBtPlay:
            return ImgLstBtPlay.ListImage(invalidSound ? 6 : 3);
        case DiapoPictureIndex::PicBtComment:
            return ImgLstBtPlay.ListImage(invalidSound ? 6 : 4);
        case DiapoPictureIndex::PicBtText:
            return ImgLstBtPlay.ListImage(5);
        case DiapoPictureIndex::PicBtPlayPlain:
            return ImgLstBtPlay.ListImage(1);
    }
    return present;
}

}  // namespace vorlane
