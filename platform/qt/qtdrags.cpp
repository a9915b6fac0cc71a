#include "platform/qt/qtdrags.h"

#include "platform/failure.h"
#include "platform/qt/controlhost.h"
#include "platform/qt/dragdata.h"
#include "platform/qt/keys.h"
#include "platform/qt/pointers.h"
#include "platform/qt/qtwindows.h"

#include <utility>

#include <QDrag>
#include <QGuiApplication>
#include <QMimeData>
#include <QPointer>

namespace vorlane {

namespace {

constexpr int32_t kCopy = 1;
constexpr int32_t kMove = 2;

int32_t OfferedToOthers(int32_t allowed) {
    return (allowed & kCopy) != 0 ? kCopy : allowed;
}

// What Qt carries with the pointer where there is no picture: a dot beside it. This one is under its tip.
QPixmap Nothing() {
    QPixmap dot(1, 1);
    dot.fill(Qt::transparent);
    return dot;
}

}  // namespace

struct QtDrags::Run {
    QPointer<QDrag> Drag;
    const DataObject& Carried;
    int32_t Allowed;
    const DragFeedback& Feedback;
    int32_t Told = 0;
    std::optional<int32_t> Answered{};  // by a widget of the desktop that it is over
    QPixmap Own{};                      // the pointer of the drag's source; the system's where null
    QPixmap Mover = MovePointer(qApp->devicePixelRatio());

    void Tell(int32_t effect) {
        if (std::exchange(Told, effect) == effect) return;
        Picture pointer;
        Attempt([&] { pointer = Feedback(effect); });
        Own = DragPointer(pointer, qApp->devicePixelRatio());
    }
    void Point() {
        if (!Drag) return;
        const bool moves = Answered == kMove;  // over what takes the copy that is offered
        Drag->setDragCursor(Own.isNull() && moves ? Mover : Own, Qt::CopyAction);
        Drag->setDragCursor(Own, Qt::MoveAction);
        Drag->setDragCursor(Own, Qt::IgnoreAction);
    }
};

// The drag deletes itself: the receiving program may read the data behind the drag's end. The widget can go away in
// the middle of it.
int32_t QtDrags::DoDrag(Hwnd window, DataObject& data, int32_t allowed, const DragFeedback& feedback) {
    const QPointer<QWidget> widget = windows_.WidgetOf(window);
    if (widget.isNull() || Running()) return 0;
    auto* drag = new QDrag(widget.data());
    drag->setParent(nullptr);
    drag->setMimeData(MimeDataFrom(data).release());
    drag->setPixmap(Nothing());
    drag->setHotSpot({0, 0});
    Run run{drag, data, allowed, feedback};
    run_ = &run;
    QObject ears;
    QObject::connect(widget.data(), &QObject::destroyed, &ears, &QDrag::cancel);
    QObject::connect(drag, &QDrag::actionChanged, &ears, [&run](Qt::DropAction action) {
        if (run.Answered) return;
        run.Tell(EffectsOf(action));
        run.Point();
    });
    const Qt::DropAction done = drag->exec(ActionsOf(OfferedToOthers(allowed)));
    run_ = nullptr;
    if (auto* host = qobject_cast<ControlHost*>(widget.data())) host->ForgetHeld();
    return done == Qt::IgnoreAction ? 0 : run.Answered.value_or(EffectsOf(done)) & allowed;
}

const DataObject* QtDrags::Carried() const {
    return Running() ? &run_->Carried : nullptr;
}

int32_t QtDrags::Possible(Qt::DropActions offered) const {
    return Running() ? run_->Allowed : EffectsOf(offered);
}

std::optional<int32_t> QtDrags::Answered() const {
    return Running() ? run_->Answered : std::nullopt;
}

void QtDrags::Answer(int32_t effect) {
    if (!Running()) return;
    run_->Answered = effect;
    run_->Tell(effect);
    run_->Point();
}

void QtDrags::Leave() {
    if (!Running()) return;
    run_->Answered.reset();
    run_->Point();
}

}  // namespace vorlane
