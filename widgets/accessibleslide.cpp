#include "widgets/accessibleslide.h"

#include "platform/failure.h"
#include "platform/numbers.h"
#include "sheet/vorlane.h"
#include "widgets/accessiblesheet.h"
#include "widgets/conversions.h"
#include "widgets/vorlanewidget.h"

#include <QFileInfo>

namespace vorlane {

AccessibleSlide::AccessibleSlide(VorlaneWidget& widget, int slot) : widget_(&widget), slot_(slot) {}

bool AccessibleSlide::Shows(const VorlaneWidget& widget, int slot) {
    const auto& slides = widget.sheet().Diapo;
    if (!slides.Loaded(slot)) return false;
    const auto slide = slides.Item(slot);
    return slide->Visible() && slide->Value() >= 0;
}

bool AccessibleSlide::isValid() const {
    return widget_ && Shows(*widget_, slot_);
}

QAccessible::State AccessibleSlide::state() const {
    QAccessible::State state;
    state.invalid = !isValid();
    if (state.invalid) return state;
    const Vorlane& sheet = widget_->sheet();
    state.selectable = true;
    state.focusable = true;
    state.multiSelectable = sheet.SelectionMultiple();
    state.selected = sheet.Diapo.Item(slot_)->Selected();
    state.focused = widget_->hasFocus() && widget_->CurrentDiapo() == slot_;
    state.disabled = !widget_->isEnabled();
    state.offscreen = !widget_->isVisible() || !rect().intersects({widget_->mapToGlobal(QPoint()), widget_->size()});
    return state;
}

QRect AccessibleSlide::rect() const {
    if (!isValid()) return {};
    const Box box = widget_->sheet().Diapo.Item(slot_)->BoundsInRoot();
    const QRect inside = QRectF(box.Left, box.Top, box.Width, box.Height).toRect();
    return inside.translated(widget_->mapToGlobal(QPoint()));
}

QString AccessibleSlide::text(QAccessible::Text kind) const {
    if (!isValid()) return {};
    const auto slide = widget_->sheet().Diapo.Item(slot_);
    switch (kind) {
        case QAccessible::Name:
            return QFileInfo(widget_->ImageFullPath(slide->Value())).fileName();
        case QAccessible::Description:
            return FromText(slide->CaptionBottom());
        case QAccessible::Value: {
            const ListControl* list = widget_->sheet().Liste();
            return QStringLiteral("%1 / %2").arg(slide->Value() + 1).arg(list == nullptr ? 0 : list->ListCount());
        }
        case QAccessible::Help:
            return FromText(slide->ToolTipText());
        default:
            return {};
    }
}

QAccessibleInterface* AccessibleSlide::parent() const {
    return widget_ ? QAccessible::queryAccessibleInterface(widget_) : nullptr;
}

QStringList AccessibleSlide::actionNames() const {
    if (!isValid()) return {};
    return {pressAction(), toggleAction(), setFocusAction()};
}

void AccessibleSlide::doAction(const QString& name) {
    if (!actionNames().contains(name) || !widget_->isEnabled()) return;
    Vorlane& sheet = widget_->sheet();
    const int16_t slot = ToInt16(slot_);
    Attempt([&] {
        if (name == toggleAction()) {
            const bool selected = !sheet.Selected(slot);
            if (selected && !sheet.SelectionMultiple()) sheet.SelectedClear();
            return sheet.SetSelected(slot, selected);
        }
        if (name == setFocusAction()) widget_->setFocus(Qt::OtherFocusReason);
        sheet.SelectedClear();
        sheet.SetSelected(slot, true);
    });
    if (widget_) AccessibleSheet::TellSelection(*widget_);
    if (widget_) Q_EMIT widget_->OnAccessibleAction(slot_);
}

}  // namespace vorlane
