// What the user drags over the window, and out of it.
#include "editor/editorwindow.h"
#include "editor/emptypage.h"
#include "editor/showfile.h"
#include "editor/slidedrags.h"
#include "editor/stripmenu.h"
#include "widgets/droppedfiles.h"
#include "widgets/filekind.h"

#include <algorithm>

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
    if (drags_->areDragged() || DroppedFiles(*event->mimeData()).isEmpty()) return;
    event->setDropAction(Qt::CopyAction);  // the files stay where they are
    event->accept();
    empty_->setDropping(true);
}

void EditorWindow::dragLeaveEvent(QDragLeaveEvent*) {
    empty_->setDropping(false);
}

void EditorWindow::dropEvent(QDropEvent* event) {
    empty_->setDropping(false);
    const QStringList paths = DroppedFiles(*event->mimeData());
    if (paths.isEmpty()) return;
    event->setDropAction(Qt::CopyAction);
    event->accept();
    Receive(paths, -1, -1);
}

// A show is opened, and a folder where there is nothing yet. Everything else is added: sounds as musics from the slide
// under the pointer on, or from the one behind the mark.
void EditorWindow::Receive(const QStringList& paths, int before, int on) {
    const bool opens = count() == 0 && paths.size() == 1 && QFileInfo(paths.first()).isDir();
    const bool isShow = paths.size() == 1 && IsShowFile(paths.first());
    if (!opens && !isShow) {
        QStringList sounds = paths;
        sounds.removeIf([](const QString& path) { return FileKindOf(path) != FileKind::Sound; });
        QStringList others = paths;
        others.removeIf([](const QString& path) { return FileKindOf(path) == FileKind::Sound; });
        const int from = std::min(on < 0 ? before : on, count() - 1);
        const QString notice = sounds.isEmpty() ? QString() : soundMenu_->added(SoundKind::Music, sounds, from);
        if (!notice.isEmpty()) Say(notice);
        return Add(others, before, notice);
    }
    const auto leave = [this, path = paths.first()] { Leave([this, path] { open(path); }); };
    QMetaObject::invokeMethod(this, leave, Qt::QueuedConnection);  // the sheet is in the middle of the drop yet
}

}  // namespace vorlane::editor
