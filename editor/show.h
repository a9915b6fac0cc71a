// Show: the items on a sheet's list and their order, with a way back for all that the user does to them. The list is
// the sheet's; this knows how it came about.
//
// An item's key is its own for as long as the show lasts, also while it is off the list. The sheet yields to the user
// while it works; what the user asks of a show that is at work already is passed over.
#pragma once

#include "editor/folderreader.h"
#include "editor/gridsteps.h"
#include "editor/preferences.h"

#include <optional>
#include <vector>

#include <QObject>
#include <QUndoStack>

namespace vorlane {
class VorlaneWidget;
}

namespace vorlane::editor {

// What is in sight on the sheet.
GridView ViewOf(const VorlaneWidget& sheet);

class Show : public QObject {
    Q_OBJECT

public:
    // sheet outlives the show.
    explicit Show(VorlaneWidget& sheet, QObject* parent = nullptr);

    int count() const;
    SortOrder order() const { return order_; }
    const QUndoStack& undoStack() const { return undo_; }
    bool isBusy() const { return busy_; }
    // Whether anything has been done since the show began or was saved; sorts alone don't count.
    bool isEdited() const;
    // As it is now, it is saved.
    void setSaved() { undo_.setClean(); }
    // Scrolls as little as it takes to have the item in sight. Gives whether it scrolled.
    bool reveal(int listIndex);
    // Fills the slides anew from where the sheet stands.
    void showAgain();

    // --- Without a way back: what was done before is for good; not for a show that is at work ---
    void clear();
    // At the end; comes to the slides with the next showAgain().
    void append(const FolderItem& item);
    // Orders what append brought, in the order of the names, as the order in force wants it.
    void orderAppended();
    // For what is to come; what is there stays.
    void setOrder(SortOrder order);

    // --- With a way back ---
    // How many have gone.
    int removeSelected();
    // Not for a show that is at work. In front of a list index, or at the end for -1; where a sort is in force, in its
    // order. They are selected then.
    void insert(const std::vector<FolderItem>& items, int before);
    // To in front of a list index. False when that changes nothing, or a sort forbids it.
    bool moveSelected(int before);
    // Between these two the sheet moves the selected items itself, and the show is at work. beginMove gives whether it
    // may; endMove is harmless without it.
    bool beginMove();
    void endMove();
    void sort(SortOrder order);
    // Does what else can be done to a show; passed over by a show that is at work. Takes the command over.
    void push(QUndoCommand* command);
    // A file was renamed, and the sheet knows it already: its items take their place in the order.
    void renamed(const QString& from, const QString& to);
    void undo();
    void redo();

Q_SIGNALS:
    // Items came, went or moved.
    void changed();
    void orderChanged();
    // Work that keeps the user waiting, with many items, begins; it has ended.
    void longWorkBegins();
    void longWorkEnds();
    // The way back, or on, from a rename: the file has its other name, or could not be given it. Then what was done
    // before is for good.
    void renamedAgain(const QString& from, const QString& to);
    void renameFailed(const QString& from, const QString& to);

private:
    struct Placed {
        int index;
        int key;
        QString text;
    };
    // Items that leave the list, by their indices before, and items that come, by those after. A move is both.
    struct Change {
        std::vector<Placed> out;
        std::vector<Placed> in;
    };
    class ChangeCommand;
    class SortCommand;
    class RenameCommand;
    class Busy;
    class LongWork;

    std::vector<Placed> Selected() const;
    void Unselect();
    void Apply(const Change& change);
    void Push(Change change, const QString& name);
    static bool IsMove(const Change& change);
    void Order(SortOrder order);
    void Restore(const std::vector<int>& keys, SortOrder order);
    std::vector<int> Keys() const;
    void SetOrderState(SortOrder order);
    void ForgetIfLost();
    void RenameBack(const QString& from, const QString& to);
    void FollowName(const QString& from, const QString& to);

    VorlaneWidget& sheet_;
    QUndoStack undo_;
    SortOrder order_;
    int nextKey_ = 0;
    bool busy_ = false;
    std::optional<std::vector<Placed>> moving_;  // what the sheet moves, as it was before
    bool lost_ = false;                          // a file is not where the way back wants it
};

}  // namespace vorlane::editor
