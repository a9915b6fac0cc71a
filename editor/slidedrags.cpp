#include "editor/slidedrags.h"

#include "editor/navigator.h"
#include "editor/show.h"
#include "widgets/droppedfiles.h"
#include "widgets/vorlanewidget.h"

#include <QDragEnterEvent>
#include <QLocale>
#include <QMimeData>

namespace vorlane::editor {

namespace {

// As the sheet counts them.
constexpr int kStartsDrags = 1;
constexpr int kTakesDrops = 2;
constexpr int kCopy = 1;

}  // namespace

SlideDrags::SlideDrags(VorlaneWidget& sheet, Show& show, Navigator& navigator, QObject* parent)
    : QObject(parent), sheet_(sheet), show_(show), navigator_(navigator) {
    sheet.SetOLEDragMode(kStartsDrags);
    sheet.SetOLEDropMode(kTakesDrops);
    sheet.installEventFilter(this);
    connect(&sheet, &VorlaneWidget::OnOLEBeforeStartDrag, this,
            [](int count, QString* text) { *text = count > 1 ? QLocale().toString(count) : QString(); });
    connect(&sheet, &VorlaneWidget::OnOLEStartDrag, this, [this](DataObject*, int* allowedEffects) {
        *allowedEffects |= kCopy;
        dragged_ = true;
        keys_ = SelectedKeys();
        if (show_.order().Sorts()) Q_EMIT held();
    });
    connect(&sheet, &VorlaneWidget::OnOLEBeforeDropStart, this, [this](int, bool* cancel) { AnswerDrop(cancel); });
    connect(&sheet, &VorlaneWidget::OnOLEDragDrop, this, [this] { show_.endMove(); });
    connect(&sheet, &VorlaneWidget::OnOLECompleteDrag, this, [this] {
        show_.endMove();
        dragged_ = false;
        Q_EMIT ended();
    });
}

bool SlideDrags::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Drop) on_ = navigator_.itemAt(static_cast<QDropEvent*>(event)->position());
    if (event->type() == QEvent::DragEnter) return Refuses(static_cast<QDragEnterEvent&>(*event));
    return QObject::eventFilter(watched, event);
}

bool SlideDrags::Refuses(QDragEnterEvent& event) {
    paths_ = dragged_ ? QStringList() : DroppedFiles(*event.mimeData());
    if (dragged_ || !paths_.isEmpty()) return false;
    event.ignore();
    return true;
}

// What has become of the selection during the drag, by an addition that was under way for instance, is not what the
// user has dragged.
void SlideDrags::AnswerDrop(bool* cancel) {
    if (dragged_) {
        *cancel = SelectedKeys() != keys_ || !show_.beginMove();
    } else {
        *cancel = true;  // the show adds them
        Q_EMIT dropped(paths_, sheet_.DropPlace(), on_);
    }
}

QList<int> SlideDrags::SelectedKeys() const {
    QList<int> keys;
    for (const int item : sheet_.SelectedTableau()) keys.push_back(sheet_.Key(item));
    return keys;
}

}  // namespace vorlane::editor
