// The actions of the window's menus, by name.
#pragma once

#include <array>

class QAction;
class QMenu;

namespace vorlane::editor {

struct Menus {
    QMenu* file;
    QMenu* recent;
    QAction* openShow;
    QAction* open;
    QAction* add;
    QAction* save;
    QAction* saveAs;
    QAction* forget;
    QAction* quit;

    QMenu* edit;
    QAction* undo;
    QAction* redo;
    QAction* selectAll;
    QAction* show;
    QAction* rename;
    QAction* remove;
    QAction* moveBack;
    QAction* moveOn;

    QMenu* view;
    QMenu* sort;
    std::array<QAction*, 6> sortBy;  // at the number of the criterion
    QAction* ascending;
    QAction* descending;
    QMenu* scroll;
    QAction* down;
    QAction* sideways;
    QAction* larger;
    QAction* smaller;
    QAction* usual;
    QAction* fullScreen;

    QMenu* playing;
    QAction* play;
    QAction* playFromStart;
};

}  // namespace vorlane::editor
