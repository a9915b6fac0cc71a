#include "platform/qt/qtdrags.h"

#include "platform/failure.h"
#include "platform/qt/controlhost.h"
#include "platform/qt/dragdata.h"
#include "platform/qt/keys.h"
#include "platform/qt/qtwindows.h"

#include <utility>

#include <QDrag>
#include <QMimeData>
#include <QPointer>

namespace vorlane {

// The drag deletes itself: the receiving program may read the data behind the drag's end.
int32_t QtDrags::DoDrag(Hwnd window, DataObject& data, int32_t allowed,
                        const std::function<void(int32_t effect)>& feedback) {
    const QPointer<QWidget> widget = windows_.WidgetOf(window);
    if (widget.isNull() || std::exchange(running_, true)) return 0;
    auto* drag = new QDrag(widget.data());
    drag->setMimeData(MimeDataFrom(data).release());
    QObject::connect(drag, &QDrag::actionChanged, drag,
                     [&](Qt::DropAction action) { Attempt([&] { feedback(EffectsOf(action)); }); });
    const Qt::DropAction done = drag->exec(ActionsOf(allowed));
    running_ = false;
    if (auto* host = qobject_cast<ControlHost*>(widget.data())) host->ForgetButtons();
    return EffectsOf(done) & allowed;
}

}  // namespace vorlane
