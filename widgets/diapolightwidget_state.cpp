// What the slide's widget shows that is not persisted.
#include "platform/numbers.h"
#include "platform/qt/colors.h"
#include "platform/qt/qtpicturedata.h"
#include "slide/ediapolight.h"
#include "widgets/conversions.h"
#include "widgets/diapolightwidget.h"

namespace vorlane {

namespace {

vorlane::Picture FromPixmap(const QPixmap& pixmap) {
    return PictureFromImage(pixmap.toImage());
}

}  // namespace

// --- Picture and file ---

QImage DiapoLightWidget::Picture() const {
    return ToImage(slide_.Picture(), devicePixelRatioF());
}

void DiapoLightWidget::SetPicture(const QImage& picture) {
    Do("SetPicture", [&] { slide_.SetPicture(PictureFromImage(picture)); });
}

QString DiapoLightWidget::ImageFullPath() const {
    return FromText(slide_.ImageFullPath());
}

void DiapoLightWidget::SetImageFullPath(const QString& path) {
    Do("SetImageFullPath", [&] { slide_.SetImageFullPath(ToText(path)); });
}

QString DiapoLightWidget::ImageName() const {
    return FromText(slide_.ImageName());
}

double DiapoLightWidget::ImageWidth() const {
    return slide_.ImageWidth();
}

double DiapoLightWidget::ImageHeight() const {
    return slide_.ImageHeight();
}

// The slide's record keeps width and height where others keep right and bottom.
QRect DiapoLightWidget::ImageNameRect() const {
    return Ask("ImageNameRect", QRect(), [&] {
        const WinRect rect = slide_.ImageNameRect();
        return QRect(rect.Left, rect.Top, rect.Right, rect.Bottom);
    });
}

QImage DiapoLightWidget::Thumb(const QImage& picture, int resolution) {
    return Ask("Thumb", QImage(), [&] {
        const auto thumb = slide_.Thumb(PictureFromImage(picture), ToInt16(resolution));
        return thumb ? ToImage(*thumb, devicePixelRatioF()) : QImage();
    });
}

void DiapoLightWidget::PictureByString(const QString& path, const QImage& thumb) {
    Do("PictureByString", [&] { slide_.PictureByString(ToText(path), PictureFromImage(thumb)); });
}

void DiapoLightWidget::Refresh() {
    Do("Refresh", [&] { slide_.Refresh(); });
}

void DiapoLightWidget::PlaceButtons() {
    Do("PlaceButtons", [&] { slide_.PlaceButtons(); });
}

void DiapoLightWidget::OLEDrag() {
    Do("OLEDrag", [&] { slide_.OLEDrag(); });
}

// --- Key and selection ---

int DiapoLightWidget::Key() const {
    return Ask("Key", 0, [&] { return slide_.Key(); });
}

void DiapoLightWidget::SetKey(int key) {
    Do("SetKey", [&] { slide_.SetKey(key); });
}

void DiapoLightWidget::SetBackColorSelectedChange(const QColor& color) {
    Do("SetBackColorSelectedChange", [&] { slide_.SetBackColorSelectedChange(FromQColor(color)); });
}

bool DiapoLightWidget::SelectedTmp() const {
    return slide_.SelectedTmp();
}

void DiapoLightWidget::SetSelectedTmp(bool selected) {
    slide_.SetSelectedTmp(selected);
}

// --- Sounds, text and buttons ---

bool DiapoLightWidget::HaveSoundMusic() const {
    return slide_.HaveSoundMusic();
}

void DiapoLightWidget::SetHaveSoundMusic(bool have) {
    Do("SetHaveSoundMusic", [&] { slide_.SetHaveSoundMusic(have); });
}

bool DiapoLightWidget::HaveSoundComment() const {
    return slide_.HaveSoundComment();
}

void DiapoLightWidget::SetHaveSoundComment(bool have) {
    Do("SetHaveSoundComment", [&] { slide_.SetHaveSoundComment(have); });
}

bool DiapoLightWidget::HaveTexte() const {
    return slide_.HaveTexte();
}

void DiapoLightWidget::SetHaveTexte(bool have) {
    Do("SetHaveTexte", [&] { slide_.SetHaveTexte(have); });
}

bool DiapoLightWidget::HaveInvalidMusic() const {
    return slide_.HaveInvalidMusic();
}

void DiapoLightWidget::SetHaveInvalidMusic(bool invalid) {
    slide_.SetHaveInvalidMusic(invalid);
}

bool DiapoLightWidget::HaveInvalidComm() const {
    return slide_.HaveInvalidComm();
}

void DiapoLightWidget::SetHaveInvalidComm(bool invalid) {
    slide_.SetHaveInvalidComm(invalid);
}

void DiapoLightWidget::SetOnGetThumb(bool on) {
    slide_.SetOnGetThumb(on);
}

QPixmap DiapoLightWidget::BtPlayPicture() const {
    return ToPixmap(slide_.BtPlayPicture(), devicePixelRatioF());
}

void DiapoLightWidget::SetBtPlayPicture(const QPixmap& picture) {
    Do("SetBtPlayPicture", [&] { slide_.SetBtPlayPicture(FromPixmap(picture)); });
}

QPixmap DiapoLightWidget::BtCommentPicture() const {
    return ToPixmap(slide_.BtCommentPicture(), devicePixelRatioF());
}

void DiapoLightWidget::SetBtCommentPicture(const QPixmap& picture) {
    Do("SetBtCommentPicture", [&] { slide_.SetBtCommentPicture(FromPixmap(picture)); });
}

QPixmap DiapoLightWidget::BtTextPicture() const {
    return ToPixmap(slide_.BtTextPicture(), devicePixelRatioF());
}

void DiapoLightWidget::SetBtTextPicture(const QPixmap& picture) {
    Do("SetBtTextPicture", [&] { slide_.SetBtTextPicture(FromPixmap(picture)); });
}

bool DiapoLightWidget::BtPlayVisible() const {
    return slide_.BtPlayVisible();
}

void DiapoLightWidget::SetBtPlayVisible(bool visible) {
    Do("SetBtPlayVisible", [&] { slide_.SetBtPlayVisible(visible); });
}

bool DiapoLightWidget::BtCommentVisible() const {
    return slide_.BtCommentVisible();
}

void DiapoLightWidget::SetBtCommentVisible(bool visible) {
    Do("SetBtCommentVisible", [&] { slide_.SetBtCommentVisible(visible); });
}

bool DiapoLightWidget::BtTextVisible() const {
    return slide_.BtTextVisible();
}

void DiapoLightWidget::SetBtTextVisible(bool visible) {
    Do("SetBtTextVisible", [&] { slide_.SetBtTextVisible(visible); });
}

// --- What the owner keeps ---

double DiapoLightWidget::Col() const {
    return slide_.Col();
}

void DiapoLightWidget::SetCol(double col) {
    slide_.SetCol(col);
}

double DiapoLightWidget::Lig() const {
    return slide_.Lig();
}

void DiapoLightWidget::SetLig(double lig) {
    slide_.SetLig(lig);
}

QString DiapoLightWidget::DataSort() const {
    return FromText(slide_.DataSort());
}

void DiapoLightWidget::SetDataSort(const QString& sortData) {
    slide_.SetDataSort(ToText(sortData));
}

}  // namespace vorlane
