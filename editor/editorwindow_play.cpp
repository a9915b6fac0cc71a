// Playing the show.
#include "editor/editorwindow.h"
#include "editor/navigator.h"
#include "editor/showplayer.h"
#include "editor/strip.h"
#include "editor/stripmenu.h"
#include "widgets/vorlanewidget.h"

#include <algorithm>
#include <limits>

#include <QAction>
#include <QMenu>
#include <QMenuBar>

namespace vorlane::editor {

void EditorWindow::MakePlayMenu() {
    menus_.playing = menuBar()->addMenu(QString());
    menus_.play = AddAction(menus_.playing, QKeySequence(Qt::CTRL | Qt::Key_L));
    menus_.playFromStart = AddAction(menus_.playing, QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_L));
    connect(menus_.play, &QAction::triggered, this, &EditorWindow::play);
    connect(menus_.playFromStart, &QAction::triggered, this, &EditorWindow::playFromStart);
}

void EditorWindow::NamePlayMenu() {
    menus_.playing->setTitle(tr("&Diaporama"));
    menus_.play->setText(tr("&Lire à partir d'ici"));
    menus_.playFromStart->setText(tr("Lire depuis le &début"));
}

void EditorWindow::play() {
    const QList<int> selected = sheet_->SelectedTableau();
    PlayFrom(selected.empty() ? std::max(navigator_->current(), 0) : selected.front());
}

void EditorWindow::playFromStart() {
    PlayFrom(0);
}

void EditorWindow::PlayFrom(int first) {
    std::optional<SavedShow> show = Present();
    if (!show) return Say(tr("La planche est encore occupée"));
    if (show->pictures.isEmpty()) return Say(tr("Il n'y a aucune image à lire"));
    if (!player_) {
        player_ = std::make_unique<ShowPlayer>(DecodeThumbnail, makeChannel_);
        connect(player_.get(), &ShowPlayer::secondBegan, this, &EditorWindow::FollowPlaying);
        connect(player_.get(), &ShowPlayer::ended, this, [this](int picture) {
            strip_->LectureEnd();
            navigator_->setCurrent(picture);
        });
        connect(player_.get(), &ShowPlayer::troubled, this, &EditorWindow::Say);
    }
    soundMenu_->endRecording();
    sheet_->StopSound();
    player_->play(std::move(*show), first, this);
}

void EditorWindow::EndPlay() {
    if (player_) player_->stop();
}

// The strip counts from the first slide: it knows no farther one than 32,767 to count from. No slide that it can show
// starts beyond what its seconds hold.
void EditorWindow::FollowPlaying(qint64 second) {
    strip_->Lecture(static_cast<int>(std::min(second, qint64{std::numeric_limits<int>::max()})), 0);
}

}  // namespace vorlane::editor
