// What the user drags over the window, and out of it.
#include "editor/editorwindow.h"
#include "editor/emptypage.h"
#include "editor/showfile.h"
#include "editor/slidedrags.h"

#include <QDragEnterEvent>
#include <QFileInfo>
#include <QMimeData>

namespace vorlane::editor {

void EditorWindow::ConnectDrags() {
    setAcceptDrops(true);
    connect(drags_, &SlideDrags::dropped, this, &EditorWindow::Receive);
    connect(drags_, &SlideDrags::held, this, &EditorWindow::SayHeld);
    connect(drags_, &SlideDrags::ended, this, &EditorWindow::ShowStatus);
}

// The sheet takes what is dragged over it by itself; slides of its own have no other place here.
void EditorWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (drags_->areDragged() || SlideDrags::PathsOf(*event->mimeData()).isEmpty()) return;
    event->setDropAction(Qt::CopyAction);  // the files stay where they are
    event->accept();
    empty_->setDropping(true);
}

void EditorWindow::dragLeaveEvent(QDragLeaveEvent*) {
    empty_->setDropping(false);
}

void EditorWindow::dropEvent(QDropEvent* event) {
    empty_->setDropping(false);
    const QStringList paths = SlideDrags::PathsOf(*event->mimeData());
    if (paths.isEmpty()) return;
    event->setDropAction(Qt::CopyAction);
    event->accept();
    Receive(paths, -1);
}

// A show is opened, and a folder where there is nothing yet; everything else is added.
void EditorWindow::Receive(const QStringList& paths, int before) {
    const bool opens = count() == 0 && paths.size() == 1 && QFileInfo(paths.first()).isDir();
    const bool isShow = paths.size() == 1 && IsShowFile(paths.first());
    if (!opens && !isShow) return addFiles(paths, before);
    const auto leave = [this, path = paths.first()] { Leave([this, path] { open(path); }); };
    QMetaObject::invokeMethod(this, leave, Qt::QueuedConnection);  // the sheet is in the middle of the drop yet
}

}  // namespace vorlane::editor
