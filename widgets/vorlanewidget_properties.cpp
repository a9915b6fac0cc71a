// The persisted properties of the sheet's widget.
#include "platform/numbers.h"
#include "platform/qt/colors.h"
#include "platform/qt/qtdesktop.h"
#include "platform/qt/qtpicturedata.h"
#include "sheet/vorlane.h"
#include "widgets/conversions.h"
#include "widgets/vorlanewidget.h"

namespace vorlane {

bool VorlaneWidget::AutoAdjust() const {
    return sheet_.AutoAdjust();
}

void VorlaneWidget::SetAutoAdjust(bool on) {
    Do("SetAutoAdjust", [&] { sheet_.SetAutoAdjust(on); });
}

bool VorlaneWidget::AutoCornerResize() const {
    return sheet_.AutoCornerResize();
}

void VorlaneWidget::SetAutoCornerResize(bool on) {
    Do("SetAutoCornerResize", [&] { sheet_.SetAutoCornerResize(on); });
}

QColor VorlaneWidget::BackColor() const {
    return ToQColor(sheet_.BackColor(), Desktop().screen);
}

void VorlaneWidget::SetBackColor(const QColor& color) {
    Do("SetBackColor", [&] { sheet_.SetBackColor(FromQColor(color)); });
}

QColor VorlaneWidget::BackColorCurrent() const {
    return ToQColor(sheet_.BackColorCurrent(), Desktop().screen);
}

void VorlaneWidget::SetBackColorCurrent(const QColor& color) {
    Do("SetBackColorCurrent", [&] { sheet_.SetBackColorCurrent(FromQColor(color)); });
}

QColor VorlaneWidget::BackColorDiapo() const {
    return ToQColor(sheet_.BackColorDiapo(), Desktop().screen);
}

void VorlaneWidget::SetBackColorDiapo(const QColor& color) {
    Do("SetBackColorDiapo", [&] { sheet_.SetBackColorDiapo(FromQColor(color)); });
}

QColor VorlaneWidget::BackColorSelected() const {
    return ToQColor(sheet_.BackColorSelected(), Desktop().screen);
}

void VorlaneWidget::SetBackColorSelected(const QColor& color) {
    Do("SetBackColorSelected", [&] { sheet_.SetBackColorSelected(FromQColor(color)); });
}

QColor VorlaneWidget::BorderColorDiapo() const {
    return ToQColor(sheet_.BorderColorDiapo(), Desktop().screen);
}

void VorlaneWidget::SetBorderColorDiapo(const QColor& color) {
    Do("SetBorderColorDiapo", [&] { sheet_.SetBorderColorDiapo(FromQColor(color)); });
}

QColor VorlaneWidget::BorderColorDiapoExt() const {
    return ToQColor(sheet_.BorderColorDiapoExt(), Desktop().screen);
}

void VorlaneWidget::SetBorderColorDiapoExt(const QColor& color) {
    Do("SetBorderColorDiapoExt", [&] { sheet_.SetBorderColorDiapoExt(FromQColor(color)); });
}

bool VorlaneWidget::BorderDouble() const {
    return sheet_.BorderDouble();
}

void VorlaneWidget::SetBorderDouble(bool on) {
    Do("SetBorderDouble", [&] { sheet_.SetBorderDouble(on); });
}

int VorlaneWidget::BorderSize() const {
    return sheet_.BorderSize();
}

void VorlaneWidget::SetBorderSize(int value) {
    Do("SetBorderSize", [&] { sheet_.SetBorderSize(ToInt16(value)); });
}

int VorlaneWidget::BorderStyle() const {
    return sheet_.BorderStyle();
}

void VorlaneWidget::SetBorderStyle(int value) {
    Do("SetBorderStyle", [&] { sheet_.SetBorderStyle(value); });
}

ui::BorderStyle VorlaneWidget::BorderStyleDiapo() const {
    return static_cast<ui::BorderStyle>(sheet_.BorderStyleDiapo());
}

void VorlaneWidget::SetBorderStyleDiapo(ui::BorderStyle style) {
    Do("SetBorderStyleDiapo", [&] { sheet_.SetBorderStyleDiapo(static_cast<DiapoBorderStyle>(style)); });
}

ui::BorderStyle VorlaneWidget::BorderStyleDiapoExt() const {
    return static_cast<ui::BorderStyle>(sheet_.BorderStyleDiapoExt());
}

void VorlaneWidget::SetBorderStyleDiapoExt(ui::BorderStyle style) {
    Do("SetBorderStyleDiapoExt", [&] { sheet_.SetBorderStyleDiapoExt(static_cast<DiapoBorderStyle>(style)); });
}

QString VorlaneWidget::CaptionWait() const {
    return FromText(sheet_.CaptionWait());
}

void VorlaneWidget::SetCaptionWait(const QString& text) {
    Do("SetCaptionWait", [&] { sheet_.SetCaptionWait(ToText(text)); });
}

int VorlaneWidget::DiapoHeight() const {
    return Ask("DiapoHeight", 0, [&] { return sheet_.DiapoHeight(); });
}

void VorlaneWidget::SetDiapoHeight(int value) {
    Do("SetDiapoHeight", [&] { sheet_.SetDiapoHeight(ToInt16(value)); });
}

int VorlaneWidget::DiapoWidth() const {
    return Ask("DiapoWidth", 0, [&] { return sheet_.DiapoWidth(); });
}

void VorlaneWidget::SetDiapoWidth(int value) {
    Do("SetDiapoWidth", [&] { sheet_.SetDiapoWidth(ToInt16(value)); });
}

bool VorlaneWidget::Enabled() const {
    return sheet_.Enabled();
}

void VorlaneWidget::SetEnabled(bool on) {
    Do("SetEnabled", [&] { sheet_.SetEnabled(on); });
}

QFont VorlaneWidget::FontImageName() const {
    return ToQFont(sheet_.FontImageName());
}

void VorlaneWidget::SetFontImageName(const QFont& font) {
    Do("SetFontImageName", [&] { sheet_.SetFontImageName(FromQFont(font)); });
}

QColor VorlaneWidget::ForeColor() const {
    return ToQColor(sheet_.ForeColor(), Desktop().screen);
}

void VorlaneWidget::SetForeColor(const QColor& color) {
    Do("SetForeColor", [&] { sheet_.SetForeColor(FromQColor(color)); });
}

int VorlaneWidget::ImageMarge() const {
    return sheet_.ImageMarge();
}

void VorlaneWidget::SetImageMarge(int value) {
    Do("SetImageMarge", [&] { sheet_.SetImageMarge(ToByte(value)); });
}

bool VorlaneWidget::JaugeAnimation() const {
    return sheet_.JaugeAnimation();
}

void VorlaneWidget::SetJaugeAnimation(bool on) {
    Do("SetJaugeAnimation", [&] { sheet_.SetJaugeAnimation(on); });
}

QFont VorlaneWidget::LegendeFont() const {
    return ToQFont(sheet_.LegendeFont());
}

void VorlaneWidget::SetLegendeFont(const QFont& font) {
    Do("SetLegendeFont", [&] { sheet_.SetLegendeFont(FromQFont(font)); });
}

int VorlaneWidget::LegendeNbLig() const {
    return sheet_.LegendeNbLig();
}

void VorlaneWidget::SetLegendeNbLig(int value) {
    Do("SetLegendeNbLig", [&] { sheet_.SetLegendeNbLig(ToInt16(value)); });
}

bool VorlaneWidget::ListAutoFill() const {
    return sheet_.ListAutoFill();
}

void VorlaneWidget::SetListAutoFill(bool on) {
    Do("SetListAutoFill", [&] { sheet_.SetListAutoFill(on); });
}

bool VorlaneWidget::MargeDiapoAutoAdjust() const {
    return sheet_.MargeDiapoAutoAdjust();
}

void VorlaneWidget::SetMargeDiapoAutoAdjust(bool on) {
    Do("SetMargeDiapoAutoAdjust", [&] { sheet_.SetMargeDiapoAutoAdjust(on); });
}

int VorlaneWidget::MargeDiapoMin() const {
    return sheet_.MargeDiapoMin();
}

void VorlaneWidget::SetMargeDiapoMin(int value) {
    Do("SetMargeDiapoMin", [&] { sheet_.SetMargeDiapoMin(ToInt16(value)); });
}

int VorlaneWidget::Marges() const {
    return sheet_.Marges();
}

void VorlaneWidget::SetMarges(int value) {
    Do("SetMarges", [&] { sheet_.SetMarges(ToInt16(value)); });
}

QPixmap VorlaneWidget::MouseIcon() const {
    return ToPixmap(sheet_.MouseIcon(), devicePixelRatioF());
}

void VorlaneWidget::SetMouseIcon(const QPixmap& icon) {
    Do("SetMouseIcon", [&] { sheet_.SetMouseIcon(PictureFromImage(icon.toImage())); });
}

int VorlaneWidget::MousePointer() const {
    return sheet_.MousePointer();
}

void VorlaneWidget::SetMousePointer(int value) {
    Do("SetMousePointer", [&] { sheet_.SetMousePointer(ToInt16(value)); });
}

int VorlaneWidget::OLEDragMode() const {
    return sheet_.OLEDragMode();
}

void VorlaneWidget::SetOLEDragMode(int value) {
    Do("SetOLEDragMode", [&] { sheet_.SetOLEDragMode(ToInt16(value)); });
}

int VorlaneWidget::OLEDropMode() const {
    return sheet_.OLEDropMode();
}

void VorlaneWidget::SetOLEDropMode(int value) {
    Do("SetOLEDropMode", [&] { sheet_.SetOLEDropMode(ToInt16(value)); });
}

ui::ScrollDirection VorlaneWidget::ScrollDirection() const {
    return static_cast<ui::ScrollDirection>(sheet_.ScrollDirection());
}

void VorlaneWidget::SetScrollDirection(ui::ScrollDirection style) {
    Do("SetScrollDirection", [&] { sheet_.SetScrollDirection(static_cast<ScrollDirectionType>(style)); });
}

QColor VorlaneWidget::ScrollWindowBackColor() const {
    return ToQColor(sheet_.ScrollWindowBackColor(), Desktop().screen);
}

void VorlaneWidget::SetScrollWindowBackColor(const QColor& color) {
    Do("SetScrollWindowBackColor", [&] { sheet_.SetScrollWindowBackColor(FromQColor(color)); });
}

ui::ScrollWindowPos VorlaneWidget::ScrollWindowPos() const {
    return static_cast<ui::ScrollWindowPos>(sheet_.ScrollWindowPos());
}

void VorlaneWidget::SetScrollWindowPos(ui::ScrollWindowPos style) {
    Do("SetScrollWindowPos", [&] { sheet_.SetScrollWindowPos(static_cast<ScrollWindowPosType>(style)); });
}

int VorlaneWidget::ScrollWindowWidth() const {
    return sheet_.ScrollWindowWidth();
}

void VorlaneWidget::SetScrollWindowWidth(int value) {
    Do("SetScrollWindowWidth", [&] { sheet_.SetScrollWindowWidth(ToInt16(value)); });
}

bool VorlaneWidget::SelectionMultiple() const {
    return sheet_.SelectionMultiple();
}

void VorlaneWidget::SetSelectionMultiple(bool on) {
    Do("SetSelectionMultiple", [&] { sheet_.SetSelectionMultiple(on); });
}

QColor VorlaneWidget::ShadowColor() const {
    return ToQColor(sheet_.ShadowColor(), Desktop().screen);
}

void VorlaneWidget::SetShadowColor(const QColor& color) {
    Do("SetShadowColor", [&] { sheet_.SetShadowColor(FromQColor(color)); });
}

int VorlaneWidget::ShadowWidth() const {
    return sheet_.ShadowWidth();
}

void VorlaneWidget::SetShadowWidth(int value) {
    Do("SetShadowWidth", [&] { sheet_.SetShadowWidth(ToInt16(value)); });
}

bool VorlaneWidget::ShowDiapoTools() const {
    return sheet_.ShowDiapoTools();
}

void VorlaneWidget::SetShowDiapoTools(bool on) {
    Do("SetShowDiapoTools", [&] { sheet_.SetShowDiapoTools(on); });
}

bool VorlaneWidget::ShowFileName() const {
    return sheet_.ShowFileName();
}

void VorlaneWidget::SetShowFileName(bool on) {
    Do("SetShowFileName", [&] { sheet_.SetShowFileName(on); });
}

bool VorlaneWidget::ShowInfo() const {
    return sheet_.ShowInfo();
}

void VorlaneWidget::SetShowInfo(bool on) {
    Do("SetShowInfo", [&] { sheet_.SetShowInfo(on); });
}

bool VorlaneWidget::ShowJauge() const {
    return sheet_.ShowJauge();
}

void VorlaneWidget::SetShowJauge(bool on) {
    Do("SetShowJauge", [&] { sheet_.SetShowJauge(on); });
}

bool VorlaneWidget::ShowShadow() const {
    return sheet_.ShowShadow();
}

void VorlaneWidget::SetShowShadow(bool on) {
    Do("SetShowShadow", [&] { sheet_.SetShowShadow(on); });
}

bool VorlaneWidget::ShowZoom() const {
    return sheet_.ShowZoom();
}

void VorlaneWidget::SetShowZoom(bool on) {
    Do("SetShowZoom", [&] { sheet_.SetShowZoom(on); });
}

bool VorlaneWidget::Sorted() const {
    return sheet_.Sorted();
}

void VorlaneWidget::SetSorted(bool on) {
    Do("SetSorted", [&] { sheet_.SetSorted(on); });
}

ui::SortSens VorlaneWidget::SortedSens() const {
    return static_cast<ui::SortSens>(sheet_.SortedSens());
}

void VorlaneWidget::SetSortedSens(ui::SortSens style) {
    Do("SetSortedSens", [&] { sheet_.SetSortedSens(static_cast<SortSensType>(style)); });
}

bool VorlaneWidget::Thumbnail() const {
    return sheet_.Thumbnail();
}

void VorlaneWidget::SetThumbnail(bool on) {
    Do("SetThumbnail", [&] { sheet_.SetThumbnail(on); });
}

ui::ThumbResolution VorlaneWidget::ThumbnailResolution() const {
    return static_cast<ui::ThumbResolution>(sheet_.ThumbnailResolution());
}

void VorlaneWidget::SetThumbnailResolution(ui::ThumbResolution style) {
    Do("SetThumbnailResolution", [&] { sheet_.SetThumbnailResolution(static_cast<DiapoThumbResolution>(style)); });
}

int VorlaneWidget::ThumbnailSizeHigh() const {
    return sheet_.ThumbnailSizeHigh();
}

void VorlaneWidget::SetThumbnailSizeHigh(int value) {
    Do("SetThumbnailSizeHigh", [&] { sheet_.SetThumbnailSizeHigh(ToInt16(value)); });
}

int VorlaneWidget::ThumbnailSizeNormal() const {
    return sheet_.ThumbnailSizeNormal();
}

void VorlaneWidget::SetThumbnailSizeNormal(int value) {
    Do("SetThumbnailSizeNormal", [&] { sheet_.SetThumbnailSizeNormal(ToInt16(value)); });
}

}  // namespace vorlane
