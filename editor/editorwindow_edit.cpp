// What the user does to the slides.
#include "editor/editorwindow.h"
#include "editor/navigator.h"
#include "editor/notices.h"
#include "editor/renamer.h"
#include "editor/show.h"
#include "editor/showkeeper.h"
#include "editor/soundbuttons.h"
#include "editor/statuspanel.h"
#include "editor/strip.h"
#include "editor/stripmenu.h"
#include "editor/stripsounds.h"
#include "widgets/vorlanewidget.h"

#include <algorithm>

#include <QAction>
#include <QContextMenuEvent>
#include <QFileInfo>
#include <QMenu>

namespace vorlane::editor {

namespace {

constexpr int kNoticeTime = 8000;  // milliseconds

QString NameOf(const QString& path) {
    return QFileInfo(path).fileName();
}

}  // namespace

void EditorWindow::ConnectShow() {
    connect(show_, &Show::changed, this, &EditorWindow::ItemsChanged);
    connect(show_, &Show::orderChanged, this, &EditorWindow::ShowArrangement);
    connect(&show_->undoStack(), &QUndoStack::indexChanged, this, &EditorWindow::NameUndo);
    connect(&additions_, &Additions::read, this, &EditorWindow::Added);
    connect(navigator_, &Navigator::moved, this, [this] { Say({}); });
    connect(navigator_, &Navigator::activated, this, &EditorWindow::OpenItem);
    connect(sheet_, &VorlaneWidget::OnDblClick, this, [this](int index, const QImage&, const QString&, int button) {
        if (button == 1) OpenItem(sheet_->Value(index));
    });
    connect(renamer_, &Renamer::renamed, this, &EditorWindow::TellName);
    connect(show_, &Show::renamedAgain, this, &EditorWindow::TellName);
    connect(show_, &Show::renameFailed, this, [this](const QString& from, const QString& to) {
        Say(tr("« %1 » n'a pas pu reprendre le nom « %2 »").arg(NameOf(from), NameOf(to)));
    });
    noticeEnd_.setSingleShot(true);
    connect(&noticeEnd_, &QTimer::timeout, this, [this] { Say({}); });
}

// The length of the show follows its slides and their time.
void EditorWindow::ConnectStrip() {
    connect(soundMenu_, &StripMenu::said, this, &EditorWindow::Say);
    connect(soundMenu_, &StripMenu::recordAsked, this, &EditorWindow::EndPlay);
    connect(strip_, &TimeLineWidget::PropertyChanged, this, [this](const QString& key) {
        if (key != QLatin1String("ExpositionTime")) return;
        if (!keeper_->path().isEmpty() || keeper_->isModified()) keeper_->touch();  // in a folder it's a preference
        ShowStatus();
    });
    connect(buttons_, &SoundButtons::said, this, &EditorWindow::Say);
    connect(sounds_, &StripSounds::changed, buttons_, &SoundButtons::refresh);
}

// What is heard on the slide of that key, empty for nothing.
QString EditorWindow::SoundOf(int key, bool comment) const {
    const auto sound = sounds_->find(comment ? SoundKind::Comment : SoundKind::Music, key);
    return sound ? sound->Nom : QString();
}

int EditorWindow::count() const {
    return show_->count();
}

void EditorWindow::ItemsChanged() {
    const QList<int> selected = sheet_->SelectedTableau();
    if (!selected.empty()) {
        navigator_->mark(selected.front());
    } else if (navigator_->current() < 0) {
        navigator_->mark(-1);
    }
    ShowEmptyTexts();
    ShowPage();
    ShowStatus();
}

// Tells what was done, for a moment or until the user does something else.
void EditorWindow::Say(const QString& notice) {
    notice_ = notice;
    noticeEnd_.start(kNoticeTime);
    ShowStatus();
}

// The item behind the last removed one becomes the current one, without being selected.
void EditorWindow::removeSelected() {
    const QList<int> selected = sheet_->SelectedTableau();
    const int removed = show_->removeSelected();
    if (removed == 0) return Say(tr("Aucune diapositive n'est sélectionnée"));
    const int behind = selected.back() + 1 - removed;
    navigator_->mark(std::min(behind, count() - 1));
    Say(tr("%Ln diapositive(s) retirée(s) de la planche ; les fichiers restent sur le disque", nullptr, removed));
}

void EditorWindow::renameCurrent() {
    if (navigator_->current() < 0) return Say(tr("Aucune diapositive n'est sélectionnée"));
    renamer_->start(navigator_->current());
}

void EditorWindow::TellName(const QString& from, const QString& to) {
    Say(tr("« %1 » s'appelle maintenant « %2 »").arg(NameOf(from), NameOf(to)));
}

void EditorWindow::selectAll() {
    sheet_->SelectAll();
    ShowStatus();
}

void EditorWindow::addFiles(const QStringList& paths, int before) {
    Add(paths, before, {});
}

void EditorWindow::Add(const QStringList& paths, int before, const QString& notice) {
    if (paths.isEmpty()) return;
    const bool inFront = before >= 0 && before < count();
    additions_.add({paths, inFront ? sheet_->Key(before) : -1, notice});
}

// What comes while a show is being read waits until all of it is there, for its sounds know the pictures by their
// places. What was meant for another show is dropped.
void EditorWindow::Added(const std::vector<FolderItem>& items, const Lot& lot) {
    const bool readsShow = !complete_ && (!keeper_->path().isEmpty() || !recovered_.isEmpty());
    if (show_->isBusy() || readsShow) {
        ++deferred_;
        QTimer::singleShot(1, this, [this, items, lot, begun = begun_] {
            --deferred_;
            if (begun == begun_) Added(items, lot);
        });
        return;
    }
    const auto added = static_cast<int>(items.size());
    show_->insert(items, lot.beforeKey < 0 ? -1 : sheet_->GetListIndexFromItemData(lot.beforeKey));
    Say(Joined(
        {lot.notice, added == 0 ? tr("Aucune image à ajouter") : tr("%Ln image(s) ajoutée(s)", nullptr, added)}));
    CheckSettled();
}

// By so many places, as a block.
void EditorWindow::MoveSelected(int places) {
    const QList<int> selected = sheet_->SelectedTableau();
    if (selected.empty()) return Say(tr("Aucune diapositive n'est sélectionnée"));
    if (show_->order().Sorts()) return SayHeld();
    show_->moveSelected(places < 0 ? selected.front() + places : selected.back() + 1 + places);
}

void EditorWindow::SayHeld() {
    Say(tr("Les diapositives sont triées par %1 : choisissez « Ordre manuel » pour les déplacer").arg(SortName()));
}

void EditorWindow::OpenItem(int listIndex) {
    const QString path = sheet_->ImageFullPath(listIndex);
    if (!path.isEmpty() && !opener_(path)) Say(tr("Aucun programme n'ouvre cette image"));
}

bool EditorWindow::ShowContextMenu(const QContextMenuEvent& event) {
    const bool byKey = event.reason() == QContextMenuEvent::Keyboard;
    const int item = byKey ? navigator_->current() : navigator_->itemAt(event.pos());
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (item >= 0) {
        if (!sheet_->Liste().Selected(item)) navigator_->setCurrent(item);
        navigator_->mark(item);
        menu->addActions({menus_.show, menus_.rename, menus_.remove});
        menu->addSeparator();
        menu->addActions({menus_.moveBack, menus_.moveOn});
        menu->addSeparator();
        menu->addAction(menus_.selectAll);
    } else {
        menu->addActions({menus_.add, menus_.selectAll});
        menu->addSeparator();
        menu->addMenu(menus_.sort);
        menu->addMenu(menus_.scroll);
    }
    const QRectF slide = sheet_->DiapoRect(std::max(navigator_->slideOf(item), 0));
    menu->popup(byKey ? sheet_->mapToGlobal(slide.center().toPoint()) : event.globalPos());
    return true;
}

}  // namespace vorlane::editor
