// The sheet from its making to its end.
#include "platform/boxing.h"
#include "platform/sounds.h"
#include "sheet/vorlane.h"

#include <vector>

namespace vorlane {

namespace {

constexpr int32_t kSoundInterval = 1000;  // milliseconds
constexpr int32_t kDragInterval = 10;
constexpr int32_t kResizeInterval = 1;
constexpr int32_t kUnloadInterval = 100;

constexpr std::string_view kCaption = "Vorlane";
constexpr int32_t kWarning = 48;

// A number for the n-th list of the sheet in that window, which no list of the host's should bear.
Hwnd ListHandle(Hwnd window, uint32_t n) {
    return static_cast<Hwnd>(0x80000000U | ((static_cast<uint32_t>(window) + n * 0x20000000U) & 0x7FFFFFFFU));
}

ImageList PicturesOf(const Desktop& desktop, std::initializer_list<Artwork> artworks) {
    ImageList list;
    for (const Artwork artwork : artworks) list.Add(desktop.pictures.Get(artwork));
    return list;
}

}  // namespace

Vorlane::Vorlane(const vorlane::Desktop& desktop, const vorlane::Ambient& ambient, UserControl* container)
    : UserControl(desktop, ambient, container),
      LstInterne(ListHandle(ambient.Window, 1)),
      FileInterne(ListHandle(ambient.Window, 2)),
      TmpFile(ListHandle(ambient.Window, 3)),
      ImgLst(PicturesOf(desktop, {Artwork::FileSubstitute, Artwork::FileSound, Artwork::FileVideo,
                                  Artwork::FileDocument, Artwork::FileOther})),
      ImgLstBtPlay(PicturesOf(desktop, {Artwork::Play, Artwork::Stop, Artwork::PlayMusic, Artwork::PlayComment,
                                        Artwork::ShowText, Artwork::SoundMissing})),
      TimerSon(desktop.clock, kSoundInterval),
      TimerDrag(desktop.clock, kDragInterval),
      TimerResize(desktop.clock, kResizeInterval),
      TimerUnload(desktop.clock, kUnloadInterval),
      random_(desktop.clock.Now()),
      Diapo([this](int32_t index) { return MakeSlide(index); }) {
    for (Control* child : std::initializer_list<Control*>{&Txt, &ImgDrag, &Jauge, &SelRect}) child->SetVisible(false);
    VScroll.SetOrientation(Orientation::Vertical);
    VScroll.SetAlign(vorlane::Align::Right);
    items_.Liste = &LstInterne;
    for (const PersistedProperty& property : PersistedProperties()) property.Read(*this, PropertyBag{});
    selection_.SelectedColor = First().BackColorSelected();

    Diapos.iItem.connect([this](int16_t index, std::shared_ptr<eDiapoLight>& slide) { slide = Diapo.Item(index); });
    ConnectGround();
    ConnectGroundDrags();
    ConnectBar();
    ConnectEdit();
    TimerSon.Tick.connect([this] { SoundTick(); });
    TimerResize.Tick.connect([this] { Attempt([this] { ResizeTick(); }); });
    TimerUnload.Tick.connect([this] { Attempt([this] { UnloadTick(); }); });
}

// Nobody lets the bar of a sheet go that is no more, or stops its sounds.
Vorlane::~Vorlane() {
    CloseFollowWindow();
    for (const bool comment : {false, true}) {
        Attempt([&] { Desktop().sounds.Stop(sound_.Of(comment).Alias); });
    }
    Terminate();
}

void Vorlane::Terminate() {
    Subclass(false);
    items_.Liste = nullptr;
    for (Timer* timer : {&TimerDrag, &TimerResize, &TimerSon, &TimerUnload}) timer->SetEnabled(false);
}

// A new sheet has the defaults of its properties, but shows thumbnails and leaves their least size open.
void Vorlane::InitProperties() {
    First().SetThumbnail(true);
    First().SetThumbnailResolution(DiapoThumbResolution::ThumbResolutionNormal);
    thumbnailSizeNormal_ = 0;
    Begin();
}

// A value that can't be read leaves its property as it was. Slides of an earlier start go: they have the old design; a
// sheet that showed some is laid out anew, and shows its selection in the new colours. One that has ended stays at
// rest.
void Vorlane::ReadProperties(const PropertyBag& bag) {
    const bool filled = ShowsItems();
    layout_.Ready = false;
    const OLE_COLOR selection = DesignOfSelection();
    Attempt([&] {
        First().SetSelected(false);
        First().SetBackColorSelected(selection);
    });
    for (int32_t k = Diapo.UpperBound(); k > 0; --k) {
        if (Diapo.Loaded(k)) Diapo.Unload(k);
    }
    const float width = First().Width();
    const float height = First().Height();
    const int16_t gap = grid_.MargeDiapoMin;
    for (const PersistedProperty& property : PersistedProperties()) {
        Attempt([&] { property.Read(*this, bag); });
    }
    if (!Attempt([&] { RequireGrid(First().Width(), First().Height()); })) {
        First().Move(First().Left(), First().Top(), width, height);
        grid_.MargeDiapoMin = gap;
    }
    Begin();
    if (!filled || items_.Liste == nullptr) return;
    Attempt([&] { ShowSelection(); });
    TimerResize.SetEnabled(true);
}

void Vorlane::Begin() {
    selection_.SelectedColor = First().BackColorSelected();
    if (Ambient().UserMode) {
        First().SetVisible(false);  // the template shows in a designer only
        if (items_.Liste != nullptr) Subclass(true);
    }
    layout_.Ready = true;
}

void Vorlane::WriteProperties(PropertyBag& bag) const {
    for (const PersistedProperty& property : PersistedProperties()) {
        Attempt([&] { bag.Write(property.Key, property.Value(*this), property.Default(*this)); });
    }
}

void Vorlane::WriteDesign(PropertyBag& bag) const {
    WriteProperties(bag);
    for (const PersistedProperty& property : PersistedProperties()) {
        const auto put = [&](OLE_COLOR color) { bag.Write(property.Key, Boxed(color), property.Default(*this)); };
        if (property.Key == "BackColorDiapo") put(First().NormalGround());
        if (property.Key == "BackColorSelected") put(DesignOfSelection());
    }
}

// The colour of selections without the mark, which slide 0 has for it while it is the current one. A host may have
// given it another one since, or another mark.
OLE_COLOR Vorlane::DesignOfSelection() const {
    const OLE_COLOR shown = First().BackColorSelected();
    const bool current = First().Selected() && First().Value() == selection_.CurrentListIndex;
    const bool mark = shown == selection_.BackColorCurrent || shown == First().BackColor();
    return current && mark ? selection_.SelectedColor : shown;
}

void Vorlane::Show() {
    layout_.NotShown = false;
}

void Vorlane::Report(const Failure& failure, const std::string& valeur) {
    Events.Error(failure.Number, failure.Description, failure.Source, failure.LastDllError, valeur);
}

void Vorlane::Warn(std::string_view text) const {
    Desktop().dialogs.MsgBox(text, kWarning, kCaption);
}

bool Vorlane::Wheel(double notches) {
    return VScroll.Wheel(notches);
}

}  // namespace vorlane
