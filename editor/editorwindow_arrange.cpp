// The order of the slides and the way they scroll.
#include "editor/editorwindow.h"
#include "editor/navigator.h"
#include "editor/show.h"
#include "editor/statuspanel.h"
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
        FitRow();
        show_->showAgain();
        show_->reveal(navigator_->current());
    }
    (sideways ? menus_.sideways : menus_.down)->setChecked(true);
}

// Sideways there is one row: the sheet is no higher than that, and lies in the middle.
void EditorWindow::FitRow() {
    const bool sideways = sheet_->ScrollDirection() == ui::ScrollDirection::sdHorizontal;
    const int slide = slidesize::Of(status_->slideWidth()).height();
    const int row = slide + 2 * sheet_->Marges() + VorlaneWidget::BarThickness();
    sheet_->setMaximumHeight(sideways ? row : QWIDGETSIZE_MAX);
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
