// Drags over the widget, handed to the control's router.
#include "platform/qt/controlhost.h"
#include "platform/qt/dragdata.h"
#include "platform/qt/keys.h"
#include "platform/qt/qtdesktop.h"

#include <utility>

#include <QDragEnterEvent>
#include <QDragLeaveEvent>
#include <QDragMoveEvent>
#include <QDropEvent>

namespace vorlane {

namespace {

constexpr int32_t kMove = 2;

float X(const QDropEvent& event) {
    return static_cast<float>(event.position().x());
}

float Y(const QDropEvent& event) {
    return static_cast<float>(event.position().y());
}

// A move that is possible inside the program alone passes for the copy that is offered.
void Answer(QDropEvent& event, QtDrags& drags, int32_t effect) {
    const int32_t done = effect & drags.Possible(event.possibleActions());
    drags.Answer(done);
    if (done == 0) return event.ignore();
    event.setDropAction((done & kMove) != 0 ? Qt::MoveAction : Qt::CopyAction);
    event.accept();
}

}  // namespace

void ControlHost::ForgetHeld() {
    if (router_) router_->ForgetButtons();
    ReleaseKeys();
}

// Taking the entry asks for the moves to come, which say whether a drop would do anything.
void ControlHost::dragEnterEvent(QDragEnterEvent* event) {
    if (!router_ || control_->OLEDropMode() == 0) return event->ignore();
    const DataObject* own = desktop_.drags.Carried();
    dragged_ = std::make_shared<DataObject>(own != nullptr ? *own : DataObjectFrom(*event->mimeData()));
    event->accept();
}

// The control may let the message loop run, in which anything can happen to the drag and to the widget.
void ControlHost::dragMoveEvent(QDragMoveEvent* event) {
    if (!router_ || !dragged_) return event->ignore();
    const Hosted hosted = Hold();
    const auto carried = dragged_;
    QtDrags& drags = desktop_.drags;
    int32_t effect = 0;
    hosted.Router->DragOver(*carried, effect, ButtonsOf(event->buttons()), ShiftOf(event->modifiers()), X(*event),
                            Y(*event));
    Answer(*event, drags, effect);
}

void ControlHost::dragLeaveEvent(QDragLeaveEvent*) {
    const Hosted hosted = Hold();
    const auto carried = std::exchange(dragged_, nullptr);
    desktop_.drags.Leave();
    if (hosted.Router && carried) hosted.Router->DragLeave(*carried);
}

void ControlHost::dropEvent(QDropEvent* event) {
    const Hosted hosted = Hold();
    const auto carried = std::exchange(dragged_, nullptr);
    if (!hosted.Router || !carried) return event->ignore();
    QtDrags& drags = desktop_.drags;
    int32_t effect = drags.Answered().value_or(EffectsOf(event->dropAction()));
    hosted.Router->DragDrop(*carried, effect, ButtonsOf(event->buttons()), ShiftOf(event->modifiers()), X(*event),
                            Y(*event));
    Answer(*event, drags, effect);
}

}  // namespace vorlane
