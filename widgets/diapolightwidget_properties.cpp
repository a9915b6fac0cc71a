// The properties of the slide's widget.
#include "platform/numbers.h"
#include "platform/qt/colors.h"
#include "platform/qt/qtdesktop.h"
#include "platform/qt/qtpicturedata.h"
#include "slide/ediapolight.h"
#include "widgets/conversions.h"
#include "widgets/diapolightwidget.h"

namespace vorlane {

bool DiapoLightWidget::AlwaysFullSize() const {
    return slide_.AlwaysFullSize();
}

void DiapoLightWidget::SetAlwaysFullSize(bool on) {
    Do("SetAlwaysFullSize", [&] { slide_.SetAlwaysFullSize(on); });
}

bool DiapoLightWidget::AutoAdjust() const {
    return slide_.AutoAdjust();
}

void DiapoLightWidget::SetAutoAdjust(bool on) {
    Do("SetAutoAdjust", [&] { slide_.SetAutoAdjust(on); });
}

bool DiapoLightWidget::AutoCornerResize() const {
    return slide_.AutoCornerResize();
}

void DiapoLightWidget::SetAutoCornerResize(bool on) {
    Do("SetAutoCornerResize", [&] { slide_.SetAutoCornerResize(on); });
}

QColor DiapoLightWidget::BackColor() const {
    return ToQColor(slide_.BackColor(), Desktop().screen);
}

void DiapoLightWidget::SetBackColor(const QColor& color) {
    Do("SetBackColor", [&] { slide_.SetBackColor(FromQColor(color)); });
}

QColor DiapoLightWidget::BackColorSelected() const {
    return ToQColor(slide_.BackColorSelected(), Desktop().screen);
}

void DiapoLightWidget::SetBackColorSelected(const QColor& color) {
    Do("SetBackColorSelected", [&] { slide_.SetBackColorSelected(FromQColor(color)); });
}

QColor DiapoLightWidget::BorderColor() const {
    return ToQColor(slide_.BorderColor(), Desktop().screen);
}

void DiapoLightWidget::SetBorderColor(const QColor& color) {
    Do("SetBorderColor", [&] { slide_.SetBorderColor(FromQColor(color)); });
}

QColor DiapoLightWidget::BorderColorExt() const {
    return ToQColor(slide_.BorderColorExt(), Desktop().screen);
}

void DiapoLightWidget::SetBorderColorExt(const QColor& color) {
    Do("SetBorderColorExt", [&] { slide_.SetBorderColorExt(FromQColor(color)); });
}

bool DiapoLightWidget::BorderDouble() const {
    return slide_.BorderDouble();
}

void DiapoLightWidget::SetBorderDouble(bool on) {
    Do("SetBorderDouble", [&] { slide_.SetBorderDouble(on); });
}

int DiapoLightWidget::BorderSize() const {
    return slide_.BorderSize();
}

void DiapoLightWidget::SetBorderSize(int value) {
    Do("SetBorderSize", [&] { slide_.SetBorderSize(ToByte(value)); });
}

ui::BorderStyle DiapoLightWidget::BorderStyle() const {
    return static_cast<ui::BorderStyle>(slide_.BorderStyle());
}

void DiapoLightWidget::SetBorderStyle(ui::BorderStyle style) {
    Do("SetBorderStyle", [&] { slide_.SetBorderStyle(static_cast<DiapoBorderStyle>(style)); });
}

ui::BorderStyle DiapoLightWidget::BorderStyleExt() const {
    return static_cast<ui::BorderStyle>(slide_.BorderStyleExt());
}

void DiapoLightWidget::SetBorderStyleExt(ui::BorderStyle style) {
    Do("SetBorderStyleExt", [&] { slide_.SetBorderStyleExt(static_cast<DiapoBorderStyle>(style)); });
}

QString DiapoLightWidget::CaptionBottom() const {
    return FromText(slide_.CaptionBottom());
}

void DiapoLightWidget::SetCaptionBottom(const QString& text) {
    Do("SetCaptionBottom", [&] { slide_.SetCaptionBottom(ToText(text)); });
}

int DiapoLightWidget::CaptionBottomNbLig() const {
    return slide_.CaptionBottomNbLig();
}

void DiapoLightWidget::SetCaptionBottomNbLig(int value) {
    Do("SetCaptionBottomNbLig", [&] { slide_.SetCaptionBottomNbLig(ToInt16(value)); });
}

bool DiapoLightWidget::Enabled() const {
    return slide_.Enabled();
}

void DiapoLightWidget::SetEnabled(bool on) {
    Do("SetEnabled", [&] { slide_.SetEnabled(on); });
}

QFont DiapoLightWidget::FontBottom() const {
    return ToQFont(slide_.FontBottom());
}

void DiapoLightWidget::SetFontBottom(const QFont& font) {
    Do("SetFontBottom", [&] { slide_.SetFontBottom(FromQFont(font)); });
}

QFont DiapoLightWidget::FontImageName() const {
    return ToQFont(slide_.FontImageName());
}

void DiapoLightWidget::SetFontImageName(const QFont& font) {
    Do("SetFontImageName", [&] { slide_.SetFontImageName(FromQFont(font)); });
}

QColor DiapoLightWidget::ForeColor() const {
    return ToQColor(slide_.ForeColor(), Desktop().screen);
}

void DiapoLightWidget::SetForeColor(const QColor& color) {
    Do("SetForeColor", [&] { slide_.SetForeColor(FromQColor(color)); });
}

int DiapoLightWidget::ImageMarge() const {
    return slide_.ImageMarge();
}

void DiapoLightWidget::SetImageMarge(int value) {
    Do("SetImageMarge", [&] { slide_.SetImageMarge(ToByte(value)); });
}

QPixmap DiapoLightWidget::MouseIcon() const {
    return ToPixmap(slide_.MouseIcon(), devicePixelRatioF());
}

void DiapoLightWidget::SetMouseIcon(const QPixmap& icon) {
    Do("SetMouseIcon", [&] { slide_.SetMouseIcon(PictureFromImage(icon.toImage())); });
}

int DiapoLightWidget::MousePointer() const {
    return slide_.MousePointer();
}

void DiapoLightWidget::SetMousePointer(int value) {
    Do("SetMousePointer", [&] { slide_.SetMousePointer(ToInt16(value)); });
}

bool DiapoLightWidget::NoResize() const {
    return slide_.NoResize();
}

void DiapoLightWidget::SetNoResize(bool on) {
    Do("SetNoResize", [&] { slide_.SetNoResize(on); });
}

int DiapoLightWidget::OLEDragMode() const {
    return slide_.OLEDragMode();
}

void DiapoLightWidget::SetOLEDragMode(int value) {
    Do("SetOLEDragMode", [&] { slide_.SetOLEDragMode(ToInt16(value)); });
}

int DiapoLightWidget::OLEDropMode() const {
    return slide_.OLEDropMode();
}

void DiapoLightWidget::SetOLEDropMode(int value) {
    Do("SetOLEDropMode", [&] { slide_.SetOLEDropMode(ToInt16(value)); });
}

bool DiapoLightWidget::Selected() const {
    return slide_.Selected();
}

void DiapoLightWidget::SetSelected(bool on) {
    Do("SetSelected", [&] { slide_.SetSelected(on); });
}

QColor DiapoLightWidget::ShadowColor() const {
    return ToQColor(slide_.ShadowColor(), Desktop().screen);
}

void DiapoLightWidget::SetShadowColor(const QColor& color) {
    Do("SetShadowColor", [&] { slide_.SetShadowColor(FromQColor(color)); });
}

int DiapoLightWidget::ShadowWidth() const {
    return slide_.ShadowWidth();
}

void DiapoLightWidget::SetShadowWidth(int value) {
    Do("SetShadowWidth", [&] { slide_.SetShadowWidth(ToByte(value)); });
}

bool DiapoLightWidget::ShowDiapoTools() const {
    return slide_.ShowDiapoTools();
}

void DiapoLightWidget::SetShowDiapoTools(bool on) {
    Do("SetShowDiapoTools", [&] { slide_.SetShowDiapoTools(on); });
}

bool DiapoLightWidget::ShowFileName() const {
    return slide_.ShowFileName();
}

void DiapoLightWidget::SetShowFileName(bool on) {
    Do("SetShowFileName", [&] { slide_.SetShowFileName(on); });
}

bool DiapoLightWidget::ShowInfo() const {
    return slide_.ShowInfo();
}

void DiapoLightWidget::SetShowInfo(bool on) {
    Do("SetShowInfo", [&] { slide_.SetShowInfo(on); });
}

bool DiapoLightWidget::ShowJauge() const {
    return slide_.ShowJauge();
}

void DiapoLightWidget::SetShowJauge(bool on) {
    Do("SetShowJauge", [&] { slide_.SetShowJauge(on); });
}

bool DiapoLightWidget::ShowShadow() const {
    return slide_.ShowShadow();
}

void DiapoLightWidget::SetShowShadow(bool on) {
    Do("SetShowShadow", [&] { slide_.SetShowShadow(on); });
}

bool DiapoLightWidget::ShowZoom() const {
    return slide_.ShowZoom();
}

void DiapoLightWidget::SetShowZoom(bool on) {
    Do("SetShowZoom", [&] { slide_.SetShowZoom(on); });
}

bool DiapoLightWidget::Thumbnail() const {
    return slide_.Thumbnail();
}

void DiapoLightWidget::SetThumbnail(bool on) {
    Do("SetThumbnail", [&] { slide_.SetThumbnail(on); });
}

ui::ThumbResolution DiapoLightWidget::ThumbnailResolution() const {
    return static_cast<ui::ThumbResolution>(slide_.ThumbnailResolution());
}

void DiapoLightWidget::SetThumbnailResolution(ui::ThumbResolution style) {
    Do("SetThumbnailResolution", [&] { slide_.SetThumbnailResolution(static_cast<DiapoThumbResolution>(style)); });
}

int DiapoLightWidget::ThumbnailSizeHigh() const {
    return slide_.ThumbnailSizeHigh();
}

void DiapoLightWidget::SetThumbnailSizeHigh(int value) {
    Do("SetThumbnailSizeHigh", [&] { slide_.SetThumbnailSizeHigh(ToInt16(value)); });
}

int DiapoLightWidget::ThumbnailSizeNormal() const {
    return slide_.ThumbnailSizeNormal();
}

void DiapoLightWidget::SetThumbnailSizeNormal(int value) {
    Do("SetThumbnailSizeNormal", [&] { slide_.SetThumbnailSizeNormal(ToInt16(value)); });
}

QString DiapoLightWidget::ToolTipBtComment() const {
    return FromText(slide_.ToolTipBtComment());
}

void DiapoLightWidget::SetToolTipBtComment(const QString& text) {
    Do("SetToolTipBtComment", [&] { slide_.SetToolTipBtComment(ToText(text)); });
}

QString DiapoLightWidget::ToolTipBtPlay() const {
    return FromText(slide_.ToolTipBtPlay());
}

void DiapoLightWidget::SetToolTipBtPlay(const QString& text) {
    Do("SetToolTipBtPlay", [&] { slide_.SetToolTipBtPlay(ToText(text)); });
}

QString DiapoLightWidget::ToolTipBtText() const {
    return FromText(slide_.ToolTipBtText());
}

void DiapoLightWidget::SetToolTipBtText(const QString& text) {
    Do("SetToolTipBtText", [&] { slide_.SetToolTipBtText(ToText(text)); });
}

int DiapoLightWidget::Value() const {
    return slide_.Value();
}

void DiapoLightWidget::SetValue(int value) {
    Do("SetValue", [&] { slide_.SetValue(value); });
}

}  // namespace vorlane
