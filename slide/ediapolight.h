// eDiapoLight: one slide, a framed picture with its name, a caption, three buttons, an info button, a zoom corner and a
// gauge. It owns its state and its child controls; it knows nothing of a list. What it can't know, such as its key, its
// button pictures and its place on the screen, it asks its owner for through events.
//
// Lengths are pixels of the slide. One layout computes and draws everything from the outer size; it waits while
// NoResize is set at run time and until the properties have been initialised or read. A setter of a persisted property
// reports PropertyChanged behind its work. A handler of the host that throws fails the operation that raised the event.
// It may unload the slide from the array that holds it, but must not destroy a slide that no array holds.
#pragma once

#include "platform/failure.h"
#include "platform/image.h"
#include "platform/label.h"
#include "platform/ombrel.h"
#include "platform/propertybag.h"
#include "platform/trelmic6.h"
#include "platform/usercontrol.h"
#include "slide/diapoevents.h"
#include "slide/diapotypes.h"
#include "slide/fit.h"
#include "slide/framing.h"
#include "slide/state.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vorlane {

class eDiapoLight final : public UserControl {
public:
    // One persisted property. How it is read, and set in a new slide, is the slide's own affair.
    class PersistedProperty {
    public:
        using Get = std::function<BagValue(const eDiapoLight&)>;

        std::string Key;
        Get Default;  // the value that a missing key stands for, and that is not stored
        Get Value;

    private:
        friend class eDiapoLight;
        using ReadFrom = std::function<void(eDiapoLight&, const PropertyBag&)>;
        using SetFresh = std::function<void(eDiapoLight&)>;

        PersistedProperty(std::string key, Get otherwise, Get value, ReadFrom read, SetFresh initialize = {});

        ReadFrom read_;
        SetFresh initialize_;  // empty where the slide's design has the value of a new slide already
    };
    // All of them, in the order of reading.
    static const std::vector<PersistedProperty>& PersistedProperties();

    eDiapoLight(const vorlane::Desktop& desktop, const vorlane::Ambient& ambient, UserControl* container = nullptr);
    ~eDiapoLight() override;

    // --- Life cycle ---
    void InitProperties() override;
    void ReadProperties(const PropertyBag& bag) override;
    void WriteProperties(PropertyBag& bag) const override;
    // What WriteProperties stores, with the normal ground for BackColor also while the slide shows a selection.
    void WriteDesign(PropertyBag& bag) const;
    void Show() override;
    // Makes this new slide ready as a copy of another: its persisted properties as they are now, NoResize included. The
    // ground is the one that from shows unselected; Selected, Value and the place are not taken over. No layout.
    void CopyDesign(const eDiapoLight& from);
    void Accept(ControlVisitor& visitor) const override { visitor.Visit(*this); }

    // --- Children, front to back; the slider stands in front of all ---
    Image BtTexte{this};
    Image BtComment{this};
    Image BtPlay{this};
    Label LblTop{this};     // the file name
    Label LblBottom{this};  // the caption
    Image CornerResize{this};
    Image ImgInfo{this};
    Image Img{this};            // the picture; Tag holds the file's full path
    OmbrelSlider Slider{this};  // how much the picture is reduced, in percent; named by its role, like Img

    // --- Operations ---
    // Shows a file: its picture, or the owner's substitute for other kinds and bad files, its name and its buttons. A
    // thumb that is not empty replaces the decoding of a picture file. Reports a failure through Error. onLect is
    // ignored.
    void PictureByString(const std::string& path, vorlane::Picture thumb = {}, bool onLect = false);
    // A reduced copy whose longest side is resolution pixels; -1 takes the slide's own thumbnail size. A picture that
    // is no bitmap comes back as it is. Nothing for an empty one, and after a failure, which Error reports.
    std::optional<vorlane::Picture> Thumb(const vorlane::Picture& picture, int16_t resolution = -1);
    // Lets the layout run again and runs it.
    void Refresh();
    // Places the tools row.
    void PlaceButtons();
    // Lets the user drag the picture; returns when that has ended. A failure is ignored.
    void OLEDrag();

    // --- Picture and file ---
    const vorlane::Picture& Picture() const { return Img.Picture(); }
    // The empty picture clears the slide. Every statement of the assignment that fails shows the owner's substitute and
    // raises InvalidPicture with an empty name, and the next one runs. A handler that fails in its answer to these two
    // ends the assignment, with the picture visible, and its failure reaches the caller.
    void SetPicture(vorlane::Picture picture);
    // Nothing at all is such a failure, and nothing further happens.
    void SetPicture(std::nullopt_t) { ShowFailedAssignment(); }
    // Shows the picture that another slide shows, with what that slide knows of it. Decodes and reduces nothing.
    void TakePicture(const eDiapoLight& from);
    // The full name by which a slide knows, and shows, a file: with a point behind a name that has no extension.
    static std::string KnownPath(const std::string& path);
    // Full name of the file. Setting it loads nothing.
    const std::string& ImageFullPath() const { return Img.Tag(); }
    void SetImageFullPath(const std::string& path);
    std::string ImageName() const { return Trelmic6::FilePart(Img.Tag(), PathPart::FileName); }
    // Native size in pixels of the last picture assigned.
    float ImageWidth() const { return image_.Native.Width; }
    float ImageHeight() const { return image_.Native.Height; }
    // Place and size of the name; Right and Bottom hold the width and the height.
    WinRect ImageNameRect() const;
    // The owner's key of this slide; 0 when no owner answers.
    int32_t Key() const;
    void SetKey(int32_t key);

    // --- Sounds, text and buttons ---
    bool HaveSoundMusic() const { return media_.SoundMusic; }
    void SetHaveSoundMusic(bool have);
    bool HaveSoundComment() const { return media_.SoundComment; }
    void SetHaveSoundComment(bool have);
    bool HaveTexte() const { return media_.Texte; }
    void SetHaveTexte(bool have);
    bool HaveInvalidMusic() const { return media_.InvalidMusic; }
    void SetHaveInvalidMusic(bool invalid) { media_.InvalidMusic = invalid; }
    bool HaveInvalidComm() const { return media_.InvalidComm; }
    void SetHaveInvalidComm(bool invalid) { media_.InvalidComm = invalid; }
    // While true, SetHaveSoundMusic, SetHaveSoundComment and SetHaveTexte only store.
    void SetOnGetThumb(bool on) { media_.OnGetThumb = on; }

    const vorlane::Picture& BtPlayPicture() const { return BtPlay.Picture(); }
    void SetBtPlayPicture(const vorlane::Picture& picture) { BtPlay.SetPicture(picture); }
    const vorlane::Picture& BtCommentPicture() const { return BtComment.Picture(); }
    void SetBtCommentPicture(const vorlane::Picture& picture) { BtComment.SetPicture(picture); }
    const vorlane::Picture& BtTextPicture() const { return BtTexte.Picture(); }
    void SetBtTextPicture(const vorlane::Picture& picture) { BtTexte.SetPicture(picture); }
    bool BtPlayVisible() const { return BtPlay.Visible(); }
    void SetBtPlayVisible(bool visible) { BtPlay.SetVisible(visible); }
    bool BtCommentVisible() const { return BtComment.Visible(); }
    void SetBtCommentVisible(bool visible) { BtComment.SetVisible(visible); }
    bool BtTextVisible() const { return BtTexte.Visible(); }
    void SetBtTextVisible(bool visible) { BtTexte.SetVisible(visible); }
    const std::string& ToolTipBtPlay() const { return BtPlay.ToolTipText(); }
    void SetToolTipBtPlay(const std::string& text);
    const std::string& ToolTipBtComment() const { return BtComment.ToolTipText(); }
    void SetToolTipBtComment(const std::string& text);
    const std::string& ToolTipBtText() const { return BtTexte.ToolTipText(); }
    void SetToolTipBtText(const std::string& text);

    // --- Colours and selection ---
    // The ground as it shows now, selected or not.
    OLE_COLOR BackColor() const { return Surface().BackColor(); }
    // What BackColor is while the slide shows no selection.
    OLE_COLOR NormalGround() const { return ground_.ShowsSelection ? ground_.Normal : BackColor(); }
    void SetBackColor(OLE_COLOR color);
    OLE_COLOR BackColorSelected() const { return settings_.BackColorSelected; }
    // Shows at the next change of Selected.
    void SetBackColorSelected(OLE_COLOR color);
    // Shows at once, whatever Selected is.
    void SetBackColorSelectedChange(OLE_COLOR color);
    bool Selected() const { return settings_.Selected; }
    void SetSelected(bool selected);
    bool SelectedTmp() const { return place_.SelectedTmp; }
    void SetSelectedTmp(bool selected) { place_.SelectedTmp = selected; }
    OLE_COLOR ForeColor() const { return LblTop.ForeColor(); }
    void SetForeColor(OLE_COLOR color);

    // --- Frames and shadow ---
    DiapoBorderStyle BorderStyle() const { return settings_.BorderStyle; }
    void SetBorderStyle(DiapoBorderStyle style);
    DiapoBorderStyle BorderStyleExt() const { return settings_.BorderStyleExt; }
    void SetBorderStyleExt(DiapoBorderStyle style);
    OLE_COLOR BorderColor() const { return settings_.BorderColor; }
    void SetBorderColor(OLE_COLOR color);
    OLE_COLOR BorderColorExt() const { return settings_.BorderColorExt; }
    void SetBorderColorExt(OLE_COLOR color);
    bool BorderDouble() const { return settings_.BorderDouble; }
    void SetBorderDouble(bool twice);
    uint8_t BorderSize() const { return settings_.BorderSize; }
    void SetBorderSize(uint8_t size);
    bool ShowShadow() const { return settings_.ShowShadow; }
    void SetShowShadow(bool show);
    uint8_t ShadowWidth() const { return settings_.ShadowWidth; }
    void SetShadowWidth(uint8_t width);
    OLE_COLOR ShadowColor() const { return settings_.ShadowColor; }
    void SetShadowColor(OLE_COLOR color);

    // --- Layout ---
    bool AlwaysFullSize() const { return settings_.AlwaysFullSize; }
    void SetAlwaysFullSize(bool always);
    bool AutoAdjust() const { return settings_.AutoAdjust; }
    void SetAutoAdjust(bool adjust);
    bool AutoCornerResize() const { return settings_.AutoCornerResize; }
    void SetAutoCornerResize(bool automatic);
    uint8_t ImageMarge() const { return settings_.ImageMarge; }
    void SetImageMarge(uint8_t margin);
    bool NoResize() const { return settings_.NoResize; }
    void SetNoResize(bool noResize);
    bool ShowDiapoTools() const { return settings_.ShowDiapoTools; }
    // Shows at the next layout.
    void SetShowDiapoTools(bool show);
    bool ShowFileName() const { return settings_.ShowFileName; }
    void SetShowFileName(bool show);
    bool ShowInfo() const { return settings_.ShowInfo; }
    void SetShowInfo(bool show);
    bool ShowJauge() const { return settings_.ShowJauge; }
    void SetShowJauge(bool show);
    bool ShowZoom() const { return settings_.ShowZoom; }
    void SetShowZoom(bool show);

    // --- Texts ---
    const std::string& CaptionBottom() const { return LblBottom.Caption(); }
    void SetCaptionBottom(const std::string& caption);
    int16_t CaptionBottomNbLig() const { return settings_.CaptionBottomNbLig; }
    void SetCaptionBottomNbLig(int16_t lines);
    const vorlane::Font& FontBottom() const { return LblBottom.Font(); }
    void SetFontBottom(const vorlane::Font& font);
    const vorlane::Font& FontImageName() const { return LblTop.Font(); }
    void SetFontImageName(const vorlane::Font& font);

    // --- Thumbnails ---
    bool Thumbnail() const { return settings_.Thumbnail; }
    void SetThumbnail(bool thumbnail);
    DiapoThumbResolution ThumbnailResolution() const { return settings_.ThumbnailResolution; }
    void SetThumbnailResolution(DiapoThumbResolution resolution);
    int16_t ThumbnailSizeNormal() const { return settings_.ThumbnailSizeNormal; }
    void SetThumbnailSizeNormal(int16_t size);
    int16_t ThumbnailSizeHigh() const { return settings_.ThumbnailSizeHigh; }
    void SetThumbnailSizeHigh(int16_t size);

    // --- The user's answers ---
    void SetEnabled(bool enabled);
    void SetMouseIcon(const vorlane::Picture& icon);
    void SetMousePointer(int16_t shape);
    // The picture's alone.
    int16_t OLEDragMode() const { return Img.OLEDragMode(); }
    void SetOLEDragMode(int16_t mode);
    // The picture's; the ground and the labels take 1 in place of 2.
    int16_t OLEDropMode() const { return Img.OLEDropMode(); }
    void SetOLEDropMode(int16_t mode);

    // --- What the owner keeps here ---
    float Col() const { return place_.Col; }
    void SetCol(double col) { place_.Col = static_cast<float>(col); }
    float Lig() const { return place_.Lig; }
    void SetLig(double lig) { place_.Lig = static_cast<float>(lig); }
    const std::string& DataSort() const { return place_.DataSort; }
    void SetDataSort(const std::string& data) { place_.DataSort = data; }
    int32_t Value() const { return settings_.Value; }
    void SetValue(int32_t value);

    // The unit of the position in the event of a drag that is being raised: a drag over the bare ground is told in
    // pixels, any other in the container's scale.
    ScaleMode DragScale() const { return dragScale_; }

    DiapoEvents Events;

private:
    using Settings = slide::Settings;
    struct Measures;

    // The side of the zoom corner and of the info button, pixels.
    static constexpr float kCornerSize = 9;

    // persistence.cpp
    static std::vector<PersistedProperty> MakePersistedProperties();

    void Resized() override { Layout(); }
    void Report(const Failure& failure, const std::string& text);

    // properties.cpp
    template <class T>
    void Store(T& field, T value, std::string_view key);
    template <class T>
    void Change(T& field, T value, std::string_view key);
    void ShowGround(OLE_COLOR color, bool selection);
    vorlane::Picture RequestPicture(DiapoPictureIndex index, bool invalidSound);
    void SetButtonPicture(Image& button, DiapoPictureIndex index, bool invalidSound);

    // layout.cpp
    void Layout();
    void MeasureTexts();
    void ComputeArea(Measures& measures);
    void PlaceChildren(const Measures& measures);
    void PlacePicture(const Measures& measures);
    void PlacePlayButton();
    void DrawFrames(Measures& measures);
    void ShowZoomCorner();
    void ShowGauge(const Measures& measures);
    // Whether the picture shows noticeably smaller than it is.
    bool Reduced() const;
    PictureSize NativeSize() const;

    // frame.cpp
    uint8_t DrawFrame(DiapoBorderStyle style, const FrameBox& box, OLE_COLOR color, bool withShadow);
    void DrawLines(DiapoBorderStyle style, const FrameBox& box);
    void DrawShadow(const FrameBox& box, bool frameless);

    // pictureassignment.cpp
    void ShowNoFile();
    void ShowFile(const std::string& path, const vorlane::Picture& thumb);
    std::optional<vorlane::Picture> LoadFilePicture(const std::string& path, const vorlane::Picture& thumb);
    vorlane::Picture LoadPictureFile(const std::string& path, const vorlane::Picture& thumb);
    vorlane::Picture SubstituteFor(DiapoPictureIndex index, const std::string& playable);
    void AssignPicture(const vorlane::Picture& picture);
    void ClearPicture();
    void PlaceAssigned();
    void ShowAssigned(const vorlane::Picture& picture);
    bool ShowsThumbOf(const vorlane::Picture& picture) const;
    void ShowFailedAssignment();
    AreaSize PictureArea() const;
    void FitImage(const vorlane::Picture& picture);

    // forwarding.cpp
    void ConnectInput();
    void ForwardMouse(Control& child);
    void ForwardDrag(Control& child);
    void ForwardDragState(Control& source);
    void ConnectGround();
    // A place on a child, in its twips, in the container's scale from the slide's corner.
    float ForwardedX(const Control& child, float twips) const;
    float ForwardedY(const Control& child, float twips) const;

    // buttons.cpp
    void ConnectButtons();
    void ConnectButton(Image& image);
    void ClickSound(bool fromComment);
    void ConnectInfo();

    // zoom.cpp
    void ConnectCorner();
    void PressCorner(int16_t button, int16_t shift, float x, float y);
    void OpenZoom();
    void TellToWait(const WinRect& picture, const std::string& text);
    void LoadZoom(const std::string& path);
    void ShowZoomWindow(const WinRect& place);
    void PullZoom();
    void EndZoom();

    Trelmic6 utilities_;
    slide::Settings settings_;
    slide::LifeCycle life_;
    slide::Ground ground_;
    slide::Media media_;
    slide::ImageState image_;
    slide::Place place_;
    slide::ButtonPress press_;
    slide::Zoom zoom_;
    ScaleMode dragScale_ = ScaleMode::Pixels;
    int16_t lastButton_ = 0;  // Button of the last press on the slide or a child, which Click and DblClick tell
    PendingError pending_;
};

}  // namespace vorlane
