// Navigator: the keyboard on a sheet. It keeps the current item, also while that is out of sight, and leads it by the
// arrows, Home, End, the page keys and by typing a name; Space selects it and unselects it, Enter opens it.
#pragma once

#include "editor/typeahead.h"

#include <QObject>

class QKeyEvent;

namespace vorlane {
class VorlaneWidget;
}

namespace vorlane::editor {

class Show;

class Navigator : public QObject {
    Q_OBJECT

public:
    // Both outlive the navigator.
    Navigator(VorlaneWidget& sheet, Show& show, QObject* parent = nullptr);

    // List indices, -1 for none.
    int current() const;
    int itemAt(const QPointF& place) const;
    // The slide that shows an item, -1 for none.
    int slideOf(int listIndex) const;

    // Has the item in sight and clicks on its slide: it is selected alone, or with Shift held with all up to the last
    // one that was.
    void setCurrent(int listIndex);
    // Leaves the selection as it is.
    void mark(int listIndex);

Q_SIGNALS:
    void moved();
    void activated(int listIndex);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Bring(int listIndex);
    bool Key(const QKeyEvent& event);
    bool Type(const QString& text);
    void Toggle();
    void FollowMouse();

    VorlaneWidget& sheet_;
    Show& show_;
    TypeAhead typing_;
    int key_ = -1;  // of the current item
    bool bringing_ = false;
};

}  // namespace vorlane::editor
