// What the sheet's widget does and shows beside its persisted properties.
#include "platform/numbers.h"
#include "platform/qt/qtpicturedata.h"
#include "sheet/vorlane.h"
#include "widgets/accessiblesheet.h"
#include "widgets/conversions.h"
#include "widgets/vorlanewidget.h"

namespace vorlane {

// --- Other properties ---

QString VorlaneWidget::AliasMusic() const {
    return FromText(sheet_.AliasMusic());
}

void VorlaneWidget::SetAliasMusic(const QString& text) {
    Do("SetAliasMusic", [&] { sheet_.SetAliasMusic(ToText(text)); });
}

QString VorlaneWidget::AliasComment() const {
    return FromText(sheet_.AliasComment());
}

void VorlaneWidget::SetAliasComment(const QString& text) {
    Do("SetAliasComment", [&] { sheet_.SetAliasComment(ToText(text)); });
}

QString VorlaneWidget::Path() const {
    return FromText(sheet_.Path());
}

void VorlaneWidget::SetPath(const QString& text) {
    Do("SetPath", [&] { sheet_.SetPath(ToText(text)); });
}

QString VorlaneWidget::Pattern() const {
    return FromText(sheet_.Pattern());
}

void VorlaneWidget::SetPattern(const QString& text) {
    Do("SetPattern", [&] { sheet_.SetPattern(ToText(text)); });
}

bool VorlaneWidget::ShowDiapoJauge() const {
    return sheet_.ShowDiapoJauge();
}

void VorlaneWidget::SetShowDiapoJauge(bool on) {
    Do("SetShowDiapoJauge", [&] { sheet_.SetShowDiapoJauge(on); });
}

QString VorlaneWidget::ToolTipBtComment() const {
    return FromText(sheet_.ToolTipBtComment());
}

void VorlaneWidget::SetToolTipBtComment(const QString& text) {
    Do("SetToolTipBtComment", [&] { sheet_.SetToolTipBtComment(ToText(text)); });
}

QString VorlaneWidget::ToolTipBtPlay() const {
    return FromText(sheet_.ToolTipBtPlay());
}

void VorlaneWidget::SetToolTipBtPlay(const QString& text) {
    Do("SetToolTipBtPlay", [&] { sheet_.SetToolTipBtPlay(ToText(text)); });
}

QString VorlaneWidget::ToolTipBtText() const {
    return FromText(sheet_.ToolTipBtText());
}

void VorlaneWidget::SetToolTipBtText(const QString& text) {
    Do("SetToolTipBtText", [&] { sheet_.SetToolTipBtText(ToText(text)); });
}

void VorlaneWidget::SetFromInit(bool fromInit) {
    sheet_.SetFromInit(fromInit);
}

int VorlaneWidget::SortCurrent() const {
    return sheet_.SortCurrent();
}

void VorlaneWidget::SetSortCurrent(int criterion) {
    Do("SetSortCurrent", [&] { sheet_.SetSortCurrent(ToByte(criterion)); });
}

QString VorlaneWidget::SepSortArg() {
    return FromText(Vorlane::SepSortArg());
}

QString VorlaneWidget::SepSortWithData() {
    return FromText(Vorlane::SepSortWithData());
}

// --- State ---

int VorlaneWidget::Count() const {
    return Ask("Count", 0, [&] { return sheet_.Count(); });
}

int VorlaneWidget::CountDiapo() const {
    return Ask("CountDiapo", 0, [&] { return sheet_.CountDiapo(); });
}

int VorlaneWidget::CountDiapoX() const {
    return sheet_.CountDiapoX();
}

int VorlaneWidget::CountDiapoY() const {
    return sheet_.CountDiapoY();
}

int VorlaneWidget::CountAffiche() const {
    return Ask("CountAffiche", 0, [&] { return sheet_.CountAffiché(); });
}

int VorlaneWidget::BarThickness() {
    return ToInt32(ScrollbarPlus::kThickness);
}

QString VorlaneWidget::CaptionBottom(int index) const {
    return Ask("CaptionBottom", QString(), [&] { return FromText(sheet_.Diapo.Item(index)->CaptionBottom()); });
}

void VorlaneWidget::SetCaptionBottom(int index, const QString& text) {
    Do("SetCaptionBottom", [&] { sheet_.Diapo.Item(index)->SetCaptionBottom(ToText(text)); });
    AccessibleSheet::TellText(*this, index, QAccessible::DescriptionChanged);
}

int VorlaneWidget::Key(int listIndex) const {
    return Ask("Key", 0, [&] { return sheet_.Key(listIndex); });
}

QString VorlaneWidget::ImageFullPath(int listIndex) const {
    return Ask("ImageFullPath", QString(), [&] { return FromText(sheet_.ImageFullPath(listIndex)); });
}

int VorlaneWidget::Hwnd() const {
    return sheet_.Hwnd();
}

int VorlaneWidget::hDC() const {
    return sheet_.hDC();
}

int VorlaneWidget::Value(int index) const {
    return Ask("Value", -1, [&] { return sheet_.Diapo.Item(index)->Value(); });
}

QRectF VorlaneWidget::DiapoRect(int index) const {
    return Ask("DiapoRect", QRectF(), [&] {
        const auto slide = sheet_.Diapo.Item(index);
        return slide->Visible() ? QRectF(slide->Left(), slide->Top(), slide->Width(), slide->Height()) : QRectF();
    });
}

QRectF VorlaneWidget::NameRect(int index) const {
    return Ask("NameRect", QRectF(), [&] {
        const auto slide = sheet_.Diapo.Item(index);
        if (!slide->Visible() || !slide->LblTop.Visible()) return QRectF();
        const Box box = slide->LblTop.BoundsInRoot();
        return QRectF(box.Left, box.Top, box.Width, box.Height);
    });
}

// --- Items ---

VorlaneList VorlaneWidget::Liste() const {
    return VorlaneList(sheet_.Liste());
}

void VorlaneWidget::Remove(int index) {
    Do("Remove", [&] { sheet_.Remove(ToInt16(index)); });
}

void VorlaneWidget::RemoveAllSelected() {
    Do("RemoveAllSelected", [&] { sheet_.RemoveAllSelected(); });
}

int VorlaneWidget::Add(const QString& imageName, const QString& multipleDataSort, int key, int insertBefore) {
    return Ask("Add", 0, [&] { return sheet_.Add(ToText(imageName), ToText(multipleDataSort), key, insertBefore); });
}

void VorlaneWidget::Clear() {
    Do("Clear", [&] { sheet_.Clear(); });
}

void VorlaneWidget::Refresh() {
    Do("Refresh", [&] { sheet_.Refresh(); });
}

void VorlaneWidget::StartAgain() {
    Do("StartAgain", [&] {
        PropertyBag bag;
        sheet_.WriteDesign(bag);
        sheet_.ReadProperties(bag);
    });
}

void VorlaneWidget::Terminate() {
    Do("Terminate", [&] { sheet_.Terminate(); });
}

void VorlaneWidget::InitListe(ui::ListeMode mode, ListControl* newList, const QString& newPath,
                              const QString& newPattern, std::optional<int> stdSortArgs) {
    Do("InitListe", [&] {
        sheet_.InitListe(static_cast<ListeModeType>(mode), newList, ToText(newPath), ToText(newPattern), stdSortArgs);
    });
}

int VorlaneWidget::GetListIndexFromItemData(int key) {
    return Ask("GetListIndexFromItemData", -1, [&] { return sheet_.GetListIndexFromItemData(key); });
}

int VorlaneWidget::GetIndexFromKey(int key) const {
    return Ask("GetIndexFromKey", -1, [&] { return sheet_.GetIndexFromKey(key); });
}

void VorlaneWidget::Sort(int argIndice) {
    Do("Sort", [&] { sheet_.Sort(ToByte(argIndice)); });
}

// --- Display ---

int VorlaneWidget::StartLecture(const QString& startImageName, int diapoKey) {
    return Ask("StartLecture", 0, [&] { return sheet_.StartLecture(ToText(startImageName), diapoKey); });
}

int VorlaneWidget::GetDiapoFromCol(QPointF* place, bool* rightPart) {
    return Ask("GetDiapoFromCol", -1, [&] {
        auto x = static_cast<float>(place->x());
        auto y = static_cast<float>(place->y());
        bool right = false;
        const int16_t slot = sheet_.GetDiapoFromCol(x, y, right);
        *place = QPointF(x, y);
        if (rightPart != nullptr) *rightPart = right;
        return slot;
    });
}

void VorlaneWidget::DiapoSizeChange(bool dimAll, int newWidth, int newHeight) {
    Do("DiapoSizeChange", [&] { sheet_.DiapoSizeChange(dimAll, ToInt16(newWidth), ToInt16(newHeight)); });
}

QImage VorlaneWidget::Thumb(const QImage& picture, int resolution) const {
    return Ask("Thumb", QImage(), [&] {
        const auto thumb = sheet_.Thumb(PictureFromImage(picture), ToInt16(resolution));
        return thumb ? ToImage(*thumb, devicePixelRatioF()) : QImage();
    });
}

}  // namespace vorlane
