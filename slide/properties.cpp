// The slide's property surface.
#include "platform/numbers.h"
#include "slide/ediapolight.h"
#include "slide/fontsize.h"

#include <utility>

namespace vorlane {

template <class T>
void eDiapoLight::Store(T& field, T value, std::string_view key) {
    field = std::move(value);
    PropertyChanged(key);
}

template <class T>
void eDiapoLight::Change(T& field, T value, std::string_view key) {
    if (field == value) return;
    field = std::move(value);
    Layout();
    PropertyChanged(key);
}

// --- Picture and file ---

void eDiapoLight::SetImageFullPath(const std::string& path) {
    Img.SetTag(path);
    LblTop.SetCaption(Trelmic6::FilePart(path, PathPart::FileName));
}

WinRect eDiapoLight::ImageNameRect() const {
    return {ToInt32(LblTop.Left()), ToInt32(LblTop.Top()), ToInt32(LblTop.Width()), ToInt32(LblTop.Height())};
}

int32_t eDiapoLight::Key() const {
    int32_t key = 0;
    Events.GetKey(key);
    return key;
}

void eDiapoLight::SetKey(int32_t key) {
    Events.SetKey(key);
}

// --- Sounds, text and buttons ---

vorlane::Picture eDiapoLight::RequestPicture(DiapoPictureIndex index, bool invalidSound) {
    vorlane::Picture picture;
    Events.SetPicture(index, picture, invalidSound);
    return picture;
}

void eDiapoLight::SetButtonPicture(Image& button, DiapoPictureIndex index, bool invalidSound) {
    button.SetPicture(button.Visible() ? RequestPicture(index, invalidSound) : vorlane::Picture{});
}

void eDiapoLight::SetHaveSoundMusic(bool have) {
    if (have == media_.SoundMusic) return;
    media_.SoundMusic = have;
    if (media_.OnGetThumb) return;
    BtPlay.SetVisible(have);
    Layout();
    SetButtonPicture(BtPlay, DiapoPictureIndex::PicBtPlay, media_.InvalidMusic);
}

void eDiapoLight::SetHaveSoundComment(bool have) {
    if (have == media_.SoundComment) return;
    media_.SoundComment = have;
    if (media_.OnGetThumb) return;
    BtComment.SetVisible(have);
    Layout();
    SetButtonPicture(BtComment, DiapoPictureIndex::PicBtComment, media_.InvalidComm);
}

// Unlike the two sounds, the text gets its picture first and its layout last.
void eDiapoLight::SetHaveTexte(bool have) {
    if (have == media_.Texte) return;
    media_.Texte = have;
    if (media_.OnGetThumb) return;
    BtTexte.SetVisible(have);
    SetButtonPicture(BtTexte, DiapoPictureIndex::PicBtText, false);
    Layout();
}

void eDiapoLight::SetToolTipBtPlay(const std::string& text) {
    BtPlay.SetToolTipText(text);
    PropertyChanged("ToolTipBtPlay");
}

void eDiapoLight::SetToolTipBtComment(const std::string& text) {
    BtComment.SetToolTipText(text);
    PropertyChanged("ToolTipBtComment");
}

void eDiapoLight::SetToolTipBtText(const std::string& text) {
    BtTexte.SetToolTipText(text);
    PropertyChanged("ToolTipBtText");
}

// --- Colours and selection ---

void eDiapoLight::ShowGround(OLE_COLOR color, bool selection) {
    Surface().SetBackColor(color);
    ground_.ShowsSelection = selection;
}

// The comparison is with what shows: a colour that shows already never becomes the normal one.
void eDiapoLight::SetBackColor(OLE_COLOR color) {
    if (color == BackColor()) return;
    ShowGround(color, false);
    ground_.Normal = color;
    Layout();
    PropertyChanged("BackColor");
}

void eDiapoLight::SetBackColorSelected(OLE_COLOR color) {
    Store(settings_.BackColorSelected, color, "BackColorSelected");
}

void eDiapoLight::SetBackColorSelectedChange(OLE_COLOR color) {
    settings_.BackColorSelected = color;
    ShowGround(color, true);
    Layout();
}

void eDiapoLight::SetSelected(bool selected) {
    if (selected == settings_.Selected) return;
    settings_.Selected = selected;
    ShowGround(selected ? settings_.BackColorSelected : ground_.Normal, selected);
    Layout();
    PropertyChanged("Selected");
}

void eDiapoLight::SetForeColor(OLE_COLOR color) {
    LblTop.SetForeColor(color);
    LblBottom.SetForeColor(color);
    PropertyChanged("ForeColor");
}

// --- Frames and shadow ---

void eDiapoLight::SetBorderStyle(DiapoBorderStyle style) {
    Change(settings_.BorderStyle, style, "BorderStyle");
}

void eDiapoLight::SetBorderStyleExt(DiapoBorderStyle style) {
    Change(settings_.BorderStyleExt, style, "BorderStyleExt");
}

void eDiapoLight::SetBorderColor(OLE_COLOR color) {
    Change(settings_.BorderColor, color, "BorderColor");
}

void eDiapoLight::SetBorderColorExt(OLE_COLOR color) {
    Change(settings_.BorderColorExt, color, "BorderColorExt");
}

void eDiapoLight::SetBorderDouble(bool twice) {
    Change(settings_.BorderDouble, twice, "BorderDouble");
}

void eDiapoLight::SetBorderSize(uint8_t size) {
    Change(settings_.BorderSize, size, "BorderSize");
}

void eDiapoLight::SetShowShadow(bool show) {
    Change(settings_.ShowShadow, show, "ShowShadow");
}

void eDiapoLight::SetShadowWidth(uint8_t width) {
    Change(settings_.ShadowWidth, width, "ShadowWidth");
}

void eDiapoLight::SetShadowColor(OLE_COLOR color) {
    Change(settings_.ShadowColor, color, "ShadowColor");
}

// --- Layout ---

void eDiapoLight::SetAlwaysFullSize(bool always) {
    Change(settings_.AlwaysFullSize, always, "AlwaysFullSize");
}

void eDiapoLight::SetAutoAdjust(bool adjust) {
    Change(settings_.AutoAdjust, adjust, "AutoAdjust");
}

void eDiapoLight::SetAutoCornerResize(bool automatic) {
    Change(settings_.AutoCornerResize, automatic, "AutoCornerResize");
}

void eDiapoLight::SetImageMarge(uint8_t margin) {
    Change(settings_.ImageMarge, margin, "ImageMarge");
}

void eDiapoLight::SetNoResize(bool noResize) {
    Store(settings_.NoResize, noResize, "NoResize");
}

void eDiapoLight::SetShowDiapoTools(bool show) {
    if (show == settings_.ShowDiapoTools) return;
    Store(settings_.ShowDiapoTools, show, "ShowDiapoTools");
}

void eDiapoLight::SetShowFileName(bool show) {
    Change(settings_.ShowFileName, show, "ShowFileName");
}

void eDiapoLight::SetShowInfo(bool show) {
    Change(settings_.ShowInfo, show, "ShowInfo");
}

void eDiapoLight::SetShowJauge(bool show) {
    Change(settings_.ShowJauge, show, "ShowJauge");
}

void eDiapoLight::SetShowZoom(bool show) {
    Change(settings_.ShowZoom, show, "ShowZoom");
}

// --- Texts ---

void eDiapoLight::SetCaptionBottom(const std::string& caption) {
    LblBottom.SetCaption(caption);
    PropertyChanged("CaptionBottom");
}

void eDiapoLight::SetCaptionBottomNbLig(int16_t lines) {
    Change(settings_.CaptionBottomNbLig, lines, "CaptionBottomNbLig");
}

void eDiapoLight::SetFontBottom(const vorlane::Font& font) {
    LblBottom.SetFont(WithUsableSize(font));
    PropertyChanged("FontBottom");
}

void eDiapoLight::SetFontImageName(const vorlane::Font& font) {
    LblTop.SetFont(WithUsableSize(font));
    PropertyChanged("FontImageName");
}

// --- Thumbnails ---

void eDiapoLight::SetThumbnail(bool thumbnail) {
    Store(settings_.Thumbnail, thumbnail, "Thumbnail");
}

void eDiapoLight::SetThumbnailResolution(DiapoThumbResolution resolution) {
    Store(settings_.ThumbnailResolution, resolution, "ThumbnailResolution");
}

void eDiapoLight::SetThumbnailSizeNormal(int16_t size) {
    Store(settings_.ThumbnailSizeNormal, size, "ThumbnailSizeNormal");
}

void eDiapoLight::SetThumbnailSizeHigh(int16_t size) {
    Store(settings_.ThumbnailSizeHigh, size, "ThumbnailSizeHigh");
}

// --- The user's answers ---

void eDiapoLight::SetEnabled(bool enabled) {
    Control::SetEnabled(enabled);
    PropertyChanged("Enabled");
}

void eDiapoLight::SetMouseIcon(const vorlane::Picture& icon) {
    Control::SetMouseIcon(icon);
    Img.SetMouseIcon(icon);
    LblTop.SetMouseIcon(icon);
    LblBottom.SetMouseIcon(icon);
    PropertyChanged("MouseIcon");
}

void eDiapoLight::SetMousePointer(int16_t shape) {
    Control::SetMousePointer(shape);
    Img.SetMousePointer(shape);
    LblTop.SetMousePointer(shape);
    LblBottom.SetMousePointer(shape);
    PropertyChanged("MousePointer");
}

void eDiapoLight::SetOLEDragMode(int16_t mode) {
    Img.SetOLEDragMode(mode);
    PropertyChanged("OLEDragMode");
}

void eDiapoLight::SetOLEDropMode(int16_t mode) {
    const int16_t manual = mode == 2 ? int16_t{1} : mode;
    Img.SetOLEDropMode(mode);
    Control::SetOLEDropMode(manual);
    LblTop.SetOLEDropMode(manual);
    LblBottom.SetOLEDropMode(manual);
    PropertyChanged("OLEDropMode");
}

void eDiapoLight::SetValue(int32_t value) {
    Store(settings_.Value, value, "Value");
}

}  // namespace vorlane
