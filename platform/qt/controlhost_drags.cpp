// Drags over the widget, handed to the control's router.
#include "platform/qt/controlhost.h"
#include "platform/qt/dragdata.h"
#include "platform/qt/keys.h"

#include <utility>

#include <QDragEnterEvent>
#include <QDragLeaveEvent>
#include <QDragMoveEvent>
#include <QDropEvent>

namespace vorlane {

namespace {

float X(const QDropEvent& event) {
    return static_cast<float>(event.position().x());
}

float Y(const QDropEvent& event) {
    return static_cast<float>(event.position().y());
}

void Answer(QDropEvent& event, int32_t effect) {
    const int32_t done = effect & EffectsOf(event.possibleActions());
    if (done == 0) return event.ignore();
    event.setDropAction((done & 2) != 0 ? Qt::MoveAction : Qt::CopyAction);
    event.accept();
}

}  // namespace

void ControlHost::ForgetButtons() {
    if (router_) router_->ForgetButtons();
}

// Taking the entry asks for the moves to come, which say whether a drop would do anything.
void ControlHost::dragEnterEvent(QDragEnterEvent* event) {
    if (!router_ || control_->OLEDropMode() == 0) return event->ignore();
    dragged_ = std::make_shared<DataObject>(DataObjectFrom(*event->mimeData()));
    event->accept();
}

// The control may let the message loop run, in which anything can happen to the drag and to the widget.
void ControlHost::dragMoveEvent(QDragMoveEvent* event) {
    if (!router_ || !dragged_) return event->ignore();
    const auto carried = dragged_;
    int32_t effect = 0;
    router_->DragOver(*carried, effect, ButtonsOf(event->buttons()), ShiftOf(event->modifiers()), X(*event), Y(*event));
    Answer(*event, effect);
}

void ControlHost::dragLeaveEvent(QDragLeaveEvent*) {
    const auto carried = std::exchange(dragged_, nullptr);
    if (router_ && carried) router_->DragLeave(*carried);
}

void ControlHost::dropEvent(QDropEvent* event) {
    const auto carried = std::exchange(dragged_, nullptr);
    if (!router_ || !carried) return event->ignore();
    int32_t effect = EffectsOf(event->dropAction());
    router_->DragDrop(*carried, effect, ButtonsOf(event->buttons()), ShiftOf(event->modifiers()), X(*event), Y(*event));
    Answer(*event, effect);
}

}  // namespace vorlane
