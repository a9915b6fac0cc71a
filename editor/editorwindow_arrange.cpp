// The order of the slides and the way they scroll.
#include "editor/editorwindow.h"
#include "editor/navigator.h"
#include "editor/show.h"
#include "widgets/vorlanewidget.h"

#include <QAction>

namespace vorlane::editor {

void EditorWindow::Sort(SortBy by) {
    show_->sort({by, show_->order().descending});
}

void EditorWindow::SetDescending(bool descending) {
    show_->sort({show_->order().by, descending});
}

void EditorWindow::SetSideways(bool sideways) {
    const auto direction = sideways ? ui::ScrollDirection::sdHorizontal : ui::ScrollDirection::sdVertical;
    if (sheet_->ScrollDirection() != direction) {
        sheet_->SetScrollDirection(direction);
        show_->showAgain();
        show_->reveal(navigator_->current());
    }
    (sideways ? menus_.sideways : menus_.down)->setChecked(true);
}

void EditorWindow::ShowArrangement() {
    const SortOrder order = show_->order();
    menus_.sortBy.at(static_cast<size_t>(order.by))->setChecked(true);
    (order.descending ? menus_.descending : menus_.ascending)->setChecked(true);
    menus_.ascending->setEnabled(order.Sorts());
    menus_.descending->setEnabled(order.Sorts());
}

// As it stands within a sentence.
QString EditorWindow::SortName() const {
    switch (show_->order().by) {
        case SortBy::Name:
            return tr("nom");
        case SortBy::Modified:
            return tr("date de modification");
        case SortBy::Created:
            return tr("date de création");
        case SortBy::Length:
            return tr("taille");
        case SortBy::Extension:
            return tr("extension");
        case SortBy::Hand:
            break;
    }
    return {};
}

}  // namespace vorlane::editor
