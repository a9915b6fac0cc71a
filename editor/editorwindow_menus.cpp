// The window's menus.
#include "editor/editorwindow.h"
#include "editor/slidesize.h"
#include "editor/statuspanel.h"

#include <QAction>
#include <QDir>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>

namespace vorlane::editor {

void EditorWindow::MakeMenus() {
    const auto add = [this](QMenu* menu, QKeySequence keys, auto act) {
        QAction* action = menu->addAction(QString());
        action->setShortcut(keys);
        connect(action, &QAction::triggered, this, act);
        return action;
    };
    menus_.file = menuBar()->addMenu(QString());
    menus_.open = add(menus_.file, QKeySequence::Open, &EditorWindow::chooseFolder);
    menus_.recent = menus_.file->addMenu(QString());
    menus_.file->addSeparator();
    menus_.quit = add(menus_.file, QKeySequence(Qt::CTRL | Qt::Key_Q), &EditorWindow::close);
    menus_.forget = new QAction(this);
    connect(menus_.forget, &QAction::triggered, this, [this] { recent_.clear(); });
    connect(menus_.recent, &QMenu::aboutToShow, this, &EditorWindow::FillRecentMenu);

    menus_.view = menuBar()->addMenu(QString());
    menus_.larger = add(menus_.view, QKeySequence::ZoomIn,
                        [this] { status_->setSlideWidth(slidesize::Larger(status_->slideWidth())); });
    menus_.larger->setShortcuts({QKeySequence(QKeySequence::ZoomIn), QKeySequence(Qt::CTRL | Qt::Key_Equal)});
    menus_.smaller = add(menus_.view, QKeySequence::ZoomOut,
                         [this] { status_->setSlideWidth(slidesize::Smaller(status_->slideWidth())); });
    menus_.usual =
        add(menus_.view, QKeySequence(Qt::CTRL | Qt::Key_0), [this] { status_->setSlideWidth(slidesize::kUsual); });
    menus_.view->addSeparator();
    menus_.fullScreen = add(menus_.view, QKeySequence(Qt::Key_F11), &EditorWindow::toggleFullScreen);
    menus_.fullScreen->setCheckable(true);
    menus_.quit->setMenuRole(QAction::QuitRole);
}

void EditorWindow::NameMenus() {
    menus_.file->setTitle(tr("&Fichier"));
    menus_.open->setText(tr("&Ouvrir un dossier…"));
    menus_.recent->setTitle(tr("&Dossiers récents"));
    menus_.forget->setText(tr("&Effacer la liste"));
    menus_.quit->setText(tr("&Quitter"));
    menus_.view->setTitle(tr("&Affichage"));
    menus_.larger->setText(tr("&Agrandir les diapositives"));
    menus_.smaller->setText(tr("&Réduire les diapositives"));
    menus_.usual->setText(tr("Taille &normale (100 %)"));
    menus_.fullScreen->setText(tr("&Plein écran"));
}

void EditorWindow::FillRecentMenu() {
    menus_.recent->clear();
    const QStringList folders = recent_.list();
    for (const QString& folder : folders) {
        QString name = QDir::toNativeSeparators(folder);
        name.replace(QLatin1Char('&'), QStringLiteral("&&"));
        QAction* action = menus_.recent->addAction(name);
        connect(action, &QAction::triggered, this, [this, folder] { openFolder(folder); });
    }
    if (folders.isEmpty()) menus_.recent->addAction(tr("Aucun dossier"))->setEnabled(false);
    menus_.recent->addSeparator();
    menus_.recent->addAction(menus_.forget);
    menus_.forget->setEnabled(!folders.isEmpty());
}

}  // namespace vorlane::editor
