// The properties that the sheet hands on to its slides.
#include "platform/numbers.h"
#include "sheet/vorlane.h"

namespace vorlane {

template <class Get, class Set, class Value>
void Vorlane::Forward(std::string_view key, Get get, Set set, const Value& value) {
    if (std::invoke(get, First()) == value) return;
    SetOnSlides(set, value);
    PropertyChanged(key);
}

void Vorlane::SetAutoAdjust(bool adjust) {
    Forward("AutoAdjust", &eDiapoLight::AutoAdjust, &eDiapoLight::SetAutoAdjust, adjust);
}

void Vorlane::SetAutoCornerResize(bool automatic) {
    Forward("AutoCornerResize", &eDiapoLight::AutoCornerResize, &eDiapoLight::SetAutoCornerResize, automatic);
}

void Vorlane::SetBackColorDiapo(OLE_COLOR color) {
    Forward("BackColorDiapo", &eDiapoLight::BackColor, &eDiapoLight::SetBackColor, color);
}

void Vorlane::SetBackColorSelected(OLE_COLOR color) {
    Forward("BackColorSelected", &eDiapoLight::BackColorSelected, &eDiapoLight::SetBackColorSelected, color);
}

void Vorlane::SetBorderColorDiapo(OLE_COLOR color) {
    Forward("BorderColorDiapo", &eDiapoLight::BorderColor, &eDiapoLight::SetBorderColor, color);
}

void Vorlane::SetBorderColorDiapoExt(OLE_COLOR color) {
    Forward("BorderColorDiapoExt", &eDiapoLight::BorderColorExt, &eDiapoLight::SetBorderColorExt, color);
}

void Vorlane::SetBorderDouble(bool twice) {
    Forward("BorderDouble", &eDiapoLight::BorderDouble, &eDiapoLight::SetBorderDouble, twice);
}

void Vorlane::SetBorderSize(int16_t size) {
    Forward("BorderSize", &eDiapoLight::BorderSize, &eDiapoLight::SetBorderSize, ToByte(size));
}

void Vorlane::SetBorderStyleDiapo(DiapoBorderStyle style) {
    Forward("BorderStyleDiapo", &eDiapoLight::BorderStyle, &eDiapoLight::SetBorderStyle, style);
}

void Vorlane::SetBorderStyleDiapoExt(DiapoBorderStyle style) {
    Forward("BorderStyleDiapoExt", &eDiapoLight::BorderStyleExt, &eDiapoLight::SetBorderStyleExt, style);
}

void Vorlane::SetForeColor(OLE_COLOR color) {
    Forward("ForeColor", &eDiapoLight::ForeColor, &eDiapoLight::SetForeColor, color);
}

void Vorlane::SetFontImageName(const vorlane::Font& font) {
    Forward("FontImageName", &eDiapoLight::FontImageName, &eDiapoLight::SetFontImageName, font);
}

void Vorlane::SetImageMarge(uint8_t margin) {
    Forward("ImageMarge", &eDiapoLight::ImageMarge, &eDiapoLight::SetImageMarge, margin);
}

void Vorlane::SetLegendeFont(const vorlane::Font& font) {
    Forward("LegendeFont", &eDiapoLight::FontBottom, &eDiapoLight::SetFontBottom, font);
}

void Vorlane::SetLegendeNbLig(int16_t lines) {
    Forward("LegendeNbLig", &eDiapoLight::CaptionBottomNbLig, &eDiapoLight::SetCaptionBottomNbLig, lines);
}

void Vorlane::SetMouseIcon(const vorlane::Picture& icon) {
    Forward("MouseIcon", &eDiapoLight::MouseIcon, &eDiapoLight::SetMouseIcon, icon);
}

void Vorlane::SetMousePointer(int16_t shape) {
    Forward("MousePointer", &eDiapoLight::MousePointer, &eDiapoLight::SetMousePointer, shape);
}

void Vorlane::SetShadowColor(OLE_COLOR color) {
    Forward("ShadowColor", &eDiapoLight::ShadowColor, &eDiapoLight::SetShadowColor, color);
}

void Vorlane::SetShadowWidth(int16_t width) {
    Forward("ShadowWidth", &eDiapoLight::ShadowWidth, &eDiapoLight::SetShadowWidth, ToByte(width));
}

void Vorlane::SetShowDiapoTools(bool show) {
    Forward("ShowDiapoTools", &eDiapoLight::ShowDiapoTools, &eDiapoLight::SetShowDiapoTools, show);
}

void Vorlane::SetShowShadow(bool show) {
    Forward("ShowShadow", &eDiapoLight::ShowShadow, &eDiapoLight::SetShowShadow, show);
}

void Vorlane::SetShowFileName(bool show) {
    Forward("ShowFileName", &eDiapoLight::ShowFileName, &eDiapoLight::SetShowFileName, show);
}

void Vorlane::SetShowInfo(bool show) {
    Forward("ShowInfo", &eDiapoLight::ShowInfo, &eDiapoLight::SetShowInfo, show);
}

void Vorlane::SetShowDiapoJauge(bool show) {
    Forward("ShowDiapoJauge", &eDiapoLight::ShowJauge, &eDiapoLight::SetShowJauge, show);
}

void Vorlane::SetShowZoom(bool show) {
    Forward("ShowZoom", &eDiapoLight::ShowZoom, &eDiapoLight::SetShowZoom, show);
}

void Vorlane::SetThumbnail(bool thumbnail) {
    Forward("Thumbnail", &eDiapoLight::Thumbnail, &eDiapoLight::SetThumbnail, thumbnail);
}

void Vorlane::SetThumbnailResolution(DiapoThumbResolution resolution) {
    Forward("ThumbnailResolution", &eDiapoLight::ThumbnailResolution, &eDiapoLight::SetThumbnailResolution, resolution);
}

void Vorlane::SetThumbnailSizeHigh(int16_t size) {
    Forward("ThumbnailSizeHigh", &eDiapoLight::ThumbnailSizeHigh, &eDiapoLight::SetThumbnailSizeHigh, size);
}

void Vorlane::SetToolTipBtPlay(const std::string& text) {
    Forward("ToolTipBtPlay", &eDiapoLight::ToolTipBtPlay, &eDiapoLight::SetToolTipBtPlay, text);
}

void Vorlane::SetToolTipBtComment(const std::string& text) {
    Forward("ToolTipBtComment", &eDiapoLight::ToolTipBtComment, &eDiapoLight::SetToolTipBtComment, text);
}

void Vorlane::SetToolTipBtText(const std::string& text) {
    Forward("ToolTipBtText", &eDiapoLight::ToolTipBtText, &eDiapoLight::SetToolTipBtText, text);
}

// A property bag sets the control alone, so the two may differ.
void Vorlane::SetEnabled(bool enabled) {
    if (enabled == First().Enabled() && enabled == Enabled()) return;
    SetOnSlides(&eDiapoLight::SetEnabled, enabled);
    Control::SetEnabled(enabled);
    if (!enabled) mouse_.KeyHeld = false;  // a disabled sheet hears no key go up
    PropertyChanged("Enabled");
}

}  // namespace vorlane
