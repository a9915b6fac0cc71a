// The window's menus.
#include "editor/editorwindow.h"
#include "editor/navigator.h"
#include "editor/show.h"
#include "editor/slidesize.h"
#include "editor/statuspanel.h"
#include "editor/stripmenu.h"

#include <QAction>
#include <QActionGroup>
#include <QDir>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>

namespace vorlane::editor {

QAction* EditorWindow::AddAction(QMenu* menu, const QKeySequence& keys) {
    QAction* action = menu->addAction(QString());
    action->setShortcut(keys);
    return action;
}

void EditorWindow::MakeMenus() {
    MakeFileMenu();
    MakeEditMenu();
    soundMenu_ = new StripMenu(*menuBar(), *strip_, *sounds_, *navigator_);
    MakeViewMenu();
    MakePlayMenu();
}

void EditorWindow::MakeFileMenu() {
    menus_.file = menuBar()->addMenu(QString());
    menus_.openShow = AddAction(menus_.file, QKeySequence::Open);
    menus_.open = AddAction(menus_.file, QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_O));
    menus_.recent = menus_.file->addMenu(QString());
    menus_.add = AddAction(menus_.file, QKeySequence(Qt::CTRL | Qt::Key_I));
    menus_.file->addSeparator();
    menus_.save = AddAction(menus_.file, QKeySequence::Save);
    menus_.saveAs = AddAction(menus_.file, QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S));
    menus_.file->addSeparator();
    menus_.quit = AddAction(menus_.file, QKeySequence(Qt::CTRL | Qt::Key_Q));
    menus_.quit->setMenuRole(QAction::QuitRole);
    menus_.forget = new QAction(this);
    connect(menus_.openShow, &QAction::triggered, this, &EditorWindow::chooseShow);
    connect(menus_.save, &QAction::triggered, this, &EditorWindow::save);
    connect(menus_.saveAs, &QAction::triggered, this, &EditorWindow::saveAs);
    connect(menus_.open, &QAction::triggered, this, &EditorWindow::chooseFolder);
    connect(menus_.add, &QAction::triggered, this, &EditorWindow::chooseFiles);
    connect(menus_.quit, &QAction::triggered, this, &EditorWindow::close);
    connect(menus_.forget, &QAction::triggered, this, [this] { recent_.clear(); });
    connect(menus_.recent, &QMenu::aboutToShow, this, &EditorWindow::FillRecentMenu);
}

void EditorWindow::MakeEditMenu() {
    menus_.edit = menuBar()->addMenu(QString());
    menus_.undo = AddAction(menus_.edit, QKeySequence::Undo);
    menus_.redo = AddAction(menus_.edit, QKeySequence::Redo);
    menus_.edit->addSeparator();
    menus_.selectAll = AddAction(menus_.edit, QKeySequence::SelectAll);
    menus_.edit->addSeparator();
    menus_.show = AddAction(menus_.edit, QKeySequence(Qt::Key_Return));
    menus_.show->setShortcutContext(Qt::WidgetShortcut);  // told here; the sheet's keys see to it
    menus_.rename = AddAction(menus_.edit, QKeySequence(Qt::Key_F2));
    menus_.rename->setShortcutContext(Qt::WidgetShortcut);  // as above: the strip has keys of its own
    menus_.remove = AddAction(menus_.edit, QKeySequence::Delete);
    menus_.edit->addSeparator();
    menus_.moveBack = AddAction(menus_.edit, QKeySequence(Qt::ALT | Qt::Key_Left));
    menus_.moveOn = AddAction(menus_.edit, QKeySequence(Qt::ALT | Qt::Key_Right));
    connect(menus_.undo, &QAction::triggered, show_, &Show::undo);
    connect(menus_.redo, &QAction::triggered, show_, &Show::redo);
    connect(menus_.selectAll, &QAction::triggered, this, &EditorWindow::selectAll);
    connect(menus_.show, &QAction::triggered, this, [this] { OpenItem(navigator_->current()); });
    connect(menus_.rename, &QAction::triggered, this, &EditorWindow::renameCurrent);
    connect(menus_.remove, &QAction::triggered, this, &EditorWindow::removeSelected);
    connect(menus_.moveBack, &QAction::triggered, this, [this] { MoveSelected(-1); });
    connect(menus_.moveOn, &QAction::triggered, this, [this] { MoveSelected(1); });
}

void EditorWindow::MakeViewMenu() {
    const auto resizes = [this](QAction* action, int (*next)(int)) {
        connect(action, &QAction::triggered, this,
                [this, next] { status_->setSlideWidth(next(status_->slideWidth())); });
    };
    menus_.view = menuBar()->addMenu(QString());
    MakeSortMenu();
    menus_.view->addSeparator();
    menus_.larger = AddAction(menus_.view, QKeySequence::ZoomIn);
    menus_.larger->setShortcuts({QKeySequence(QKeySequence::ZoomIn), QKeySequence(Qt::CTRL | Qt::Key_Equal)});
    menus_.smaller = AddAction(menus_.view, QKeySequence::ZoomOut);
    menus_.usual = AddAction(menus_.view, QKeySequence(Qt::CTRL | Qt::Key_0));
    menus_.view->addSeparator();
    menus_.fullScreen = AddAction(menus_.view, QKeySequence(Qt::Key_F11));
    menus_.fullScreen->setCheckable(true);
    resizes(menus_.larger, slidesize::Larger);
    resizes(menus_.smaller, slidesize::Smaller);
    resizes(menus_.usual, [](int) { return slidesize::kUsual; });
    connect(menus_.fullScreen, &QAction::triggered, this, &EditorWindow::toggleFullScreen);
}

void EditorWindow::MakeSortMenu() {
    const auto choice = [this](QMenu* menu, QActionGroup* group, auto act) {
        QAction* action = AddAction(menu, {});
        action->setCheckable(true);
        group->addAction(action);
        connect(action, &QAction::triggered, this, act);
        return action;
    };
    menus_.sort = menus_.view->addMenu(QString());
    auto* criteria = new QActionGroup(this);
    for (const SortBy by :
         {SortBy::Name, SortBy::Modified, SortBy::Created, SortBy::Length, SortBy::Extension, SortBy::Hand}) {
        menus_.sortBy.at(static_cast<size_t>(by)) = choice(menus_.sort, criteria, [this, by] { Sort(by); });
    }
    menus_.sort->addSeparator();
    auto* directions = new QActionGroup(this);
    menus_.ascending = choice(menus_.sort, directions, [this] { SetDescending(false); });
    menus_.descending = choice(menus_.sort, directions, [this] { SetDescending(true); });
    menus_.scroll = menus_.view->addMenu(QString());
    auto* ways = new QActionGroup(this);
    menus_.down = choice(menus_.scroll, ways, [this] { SetSideways(false); });
    menus_.sideways = choice(menus_.scroll, ways, [this] { SetSideways(true); });
}

void EditorWindow::NameMenus() {
    menus_.file->setTitle(tr("&Fichier"));
    menus_.openShow->setText(tr("&Ouvrir un diaporama…"));
    menus_.open->setText(tr("Ouvrir un &dossier…"));
    menus_.add->setText(tr("&Ajouter des images…"));
    menus_.save->setText(tr("&Enregistrer"));
    menus_.saveAs->setText(tr("Enregistrer &sous…"));
    menus_.recent->setTitle(tr("Ouverts &récemment"));
    menus_.forget->setText(tr("E&ffacer la liste"));
    menus_.quit->setText(tr("&Quitter"));
    menus_.edit->setTitle(tr("Éd&ition"));
    NameUndo();
    menus_.selectAll->setText(tr("&Tout sélectionner"));
    menus_.show->setText(tr("&Ouvrir l'image"));
    menus_.rename->setText(tr("Re&nommer le fichier"));
    menus_.remove->setText(tr("Retirer de &la planche"));
    menus_.moveBack->setText(tr("Déplacer vers le &début"));
    menus_.moveOn->setText(tr("Déplacer vers la &fin"));
    NameViewMenu();
    NamePlayMenu();
}

void EditorWindow::NameViewMenu() {
    menus_.view->setTitle(tr("&Affichage"));
    menus_.sort->setTitle(tr("&Trier par"));
    menus_.sortBy[static_cast<size_t>(SortBy::Name)]->setText(tr("&Nom"));
    menus_.sortBy[static_cast<size_t>(SortBy::Modified)]->setText(tr("Date de &modification"));
    menus_.sortBy[static_cast<size_t>(SortBy::Created)]->setText(tr("Date de &création"));
    menus_.sortBy[static_cast<size_t>(SortBy::Length)]->setText(tr("&Taille"));
    menus_.sortBy[static_cast<size_t>(SortBy::Extension)]->setText(tr("&Extension"));
    menus_.sortBy[static_cast<size_t>(SortBy::Hand)]->setText(tr("Ordre man&uel"));
    menus_.ascending->setText(tr("Ordre c&roissant"));
    menus_.descending->setText(tr("Ordre &décroissant"));
    menus_.scroll->setTitle(tr("&Défilement"));
    menus_.down->setText(tr("&Vertical"));
    menus_.sideways->setText(tr("&Horizontal"));
    menus_.larger->setText(tr("&Agrandir les diapositives"));
    menus_.smaller->setText(tr("&Réduire les diapositives"));
    menus_.usual->setText(tr("Taille &normale (100 %)"));
    menus_.fullScreen->setText(tr("&Plein écran"));
}

void EditorWindow::NameUndo() {
    const QUndoStack& stack = show_->undoStack();
    menus_.undo->setEnabled(stack.canUndo());
    menus_.redo->setEnabled(stack.canRedo());
    menus_.undo->setText(stack.canUndo() ? tr("&Annuler %1").arg(stack.undoText()) : tr("&Annuler"));
    menus_.redo->setText(stack.canRedo() ? tr("&Rétablir %1").arg(stack.redoText()) : tr("&Rétablir"));
}

void EditorWindow::FillRecentMenu() {
    menus_.recent->clear();
    const QStringList paths = recent_.list();
    for (const QString& path : paths) {
        QString name = QDir::toNativeSeparators(path);
        name.replace(QLatin1Char('&'), QStringLiteral("&&"));
        QAction* action = menus_.recent->addAction(name);
        connect(action, &QAction::triggered, this, [this, path] { Leave([this, path] { open(path); }); });
    }
    if (paths.isEmpty()) menus_.recent->addAction(tr("Rien encore"))->setEnabled(false);
    menus_.recent->addSeparator();
    menus_.recent->addAction(menus_.forget);
    menus_.forget->setEnabled(!paths.isEmpty());
}

}  // namespace vorlane::editor
