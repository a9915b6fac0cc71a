// What the user does to a show, and the way back.
#include "editor/show.h"
#include "editor/sortdata.h"
#include "widgets/filerename.h"
#include "widgets/vorlanewidget.h"

#include <algorithm>
#include <memory>
#include <unordered_map>
#include <utility>

#include <QFileInfo>
#include <QUndoCommand>

namespace vorlane::editor {

namespace {

QString ItemText(const FolderItem& item) {
    return item.sortData + VorlaneWidget::SepSortWithData() + item.path;
}

}  // namespace

class Show::Busy {
public:
    explicit Busy(Show& show) : show_(show) { show_.busy_ = true; }
    ~Busy() { show_.busy_ = false; }
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;

private:
    Show& show_;
};

class Show::LongWork {
public:
    explicit LongWork(Show& show) : show_(show) {
        if (show.count() >= kMany) Q_EMIT show_.longWorkBegins();
    }
    ~LongWork() { Q_EMIT show_.longWorkEnds(); }
    LongWork(const LongWork&) = delete;
    LongWork& operator=(const LongWork&) = delete;

private:
    static constexpr int kMany = 100000;  // items, a noticeable wait

    Show& show_;
};

// A change that is done already when it is pushed.
class Show::ChangeCommand : public QUndoCommand {
public:
    ChangeCommand(Show& show, Change change, const QString& name)
        : QUndoCommand(name), show_(show), change_(std::move(change)) {}

    void redo() override {
        if (std::exchange(done_, true)) Apply(change_);
    }
    void undo() override { Apply({change_.in, change_.out}); }

private:
    void Apply(const Change& change) {
        show_.Apply(change);
        Q_EMIT show_.changed();
    }

    Show& show_;
    Change change_;
    bool done_ = false;
};

// The order that was there before is kept key by key: a sort has no other way back.
class Show::SortCommand : public QUndoCommand {
public:
    SortCommand(Show& show, SortOrder order, const QString& name)
        : QUndoCommand(name), show_(show), order_(order), before_(show.order_), keys_(show.Keys()) {}

    void redo() override { show_.Order(order_); }
    void undo() override { show_.Restore(keys_, before_); }

private:
    Show& show_;
    SortOrder order_;
    SortOrder before_;
    std::vector<int> keys_;
};

// The file has its new name already when it is pushed.
class Show::RenameCommand : public QUndoCommand {
public:
    RenameCommand(Show& show, QString from, QString to)
        : QUndoCommand(tr("le changement de nom")), show_(show), from_(std::move(from)), to_(std::move(to)) {}

    void redo() override {
        if (std::exchange(done_, true)) show_.RenameBack(from_, to_);
    }
    void undo() override { show_.RenameBack(to_, from_); }

private:
    Show& show_;
    QString from_;
    QString to_;
    bool done_ = false;
};

void Show::Push(Change change, const QString& name) {
    undo_.push(new ChangeCommand(*this, std::move(change), name));
    Q_EMIT changed();
}

bool Show::isEdited() const {
    if (undo_.isClean()) return false;
    const int saved = undo_.cleanIndex();
    const int now = undo_.index();
    if (saved < 0) return true;  // the way back to what was saved is lost
    for (int i = std::min(saved, now); i < std::max(saved, now); ++i) {
        if (dynamic_cast<const SortCommand*>(undo_.command(i)) == nullptr) return true;
    }
    return false;
}

// --- With a way back ---

int Show::removeSelected() {
    if (busy_) return 0;
    const Busy busy(*this);
    Change change{Selected(), {}};
    const auto removed = static_cast<int>(change.out.size());
    if (removed == 0) return 0;
    const LongWork work(*this);
    sheet_.RemoveAllSelected();
    Push(std::move(change), tr("le retrait"));
    return removed;
}

void Show::insert(const std::vector<FolderItem>& items, int before) {
    if (items.empty() || busy_) return;
    const Busy busy(*this);
    const int end = count();
    int place = order_.Sorts() || before < 0 ? end : std::min(before, end);
    Change change;
    for (const FolderItem& item : items) change.in.push_back({place++, nextKey_++, ItemText(item)});
    Apply(change);
    if (order_.Sorts()) {
        Order(order_);
        for (Placed& placed : change.in) placed.index = sheet_.GetListIndexFromItemData(placed.key);
        std::sort(change.in.begin(), change.in.end(),
                  [](const Placed& a, const Placed& b) { return a.index < b.index; });
    }
    Push(std::move(change), tr("l'ajout"));
}

bool Show::moveSelected(int before) {
    if (busy_ || order_.Sorts() || before < 0 || before > count()) return false;
    const Busy busy(*this);
    Change change{Selected(), {}};
    const auto staysBehind = [before](const Placed& placed) { return placed.index >= before; };
    const auto above = std::find_if(change.out.begin(), change.out.end(), staysBehind) - change.out.begin();
    int place = before - static_cast<int>(above);
    for (const Placed& placed : change.out) change.in.push_back({place++, placed.key, placed.text});
    if (!IsMove(change)) return false;
    Apply(change);
    Push(std::move(change), tr("le déplacement"));
    return true;
}

bool Show::beginMove() {
    if (busy_ || order_.Sorts()) return false;
    busy_ = true;
    moving_ = Selected();
    return true;
}

void Show::endMove() {
    if (!moving_) return;
    Change change{*std::exchange(moving_, std::nullopt), Selected()};
    if (IsMove(change)) Push(std::move(change), tr("le déplacement"));
    busy_ = false;
}

// Whether it takes items to other places than they had.
bool Show::IsMove(const Change& change) {
    const auto sameIndex = [](const Placed& a, const Placed& b) { return a.index == b.index; };
    return !std::equal(change.out.begin(), change.out.end(), change.in.begin(), change.in.end(), sameIndex);
}

void Show::sort(SortOrder order) {
    if (busy_ || order == order_) return;
    const Busy busy(*this);
    undo_.push(new SortCommand(*this, order, tr("le tri")));
}

void Show::push(QUndoCommand* command) {
    std::unique_ptr<QUndoCommand> owned(command);
    if (busy_) return;
    const Busy busy(*this);
    undo_.push(owned.release());
}

void Show::undo() {
    if (busy_) return;
    const Busy busy(*this);
    undo_.undo();
    ForgetIfLost();
}

void Show::redo() {
    if (busy_) return;
    const Busy busy(*this);
    undo_.redo();
    ForgetIfLost();
}

// --- Renames ---

void Show::renamed(const QString& from, const QString& to) {
    const Busy busy(*this);
    FollowName(from, to);
    undo_.push(new RenameCommand(*this, from, to));
}

// Without a file's name the commands before would bring back what is not there.
void Show::ForgetIfLost() {
    if (!std::exchange(lost_, false)) return;
    undo_.clear();
    undo_.resetClean();
}

// Nothing is ever replaced.
void Show::RenameBack(const QString& from, const QString& to) {
    if (!RenameFile(from, to)) {
        lost_ = true;
        Q_EMIT renameFailed(from, to);
        return;
    }
    FollowName(from, to);
    Q_EMIT renamedAgain(from, to);
}

// All items of the file, which may be on the list more than once.
void Show::FollowName(const QString& from, const QString& to) {
    const QFileInfo file(to);
    const QString text = ItemText({to, SortData(FactsOf(file), SortName(file.fileName()))});
    VorlaneList list = sheet_.Liste();
    for (int i = 0; i < count(); ++i) {
        const QString path = sheet_.ImageFullPath(i);
        if (path == from) sheet_.RenameDiapo(i, from, to);
        if (path == from || path == to) list.SetList(i, text);
    }
    Order(order_);
    Q_EMIT changed();
}

// --- Orders ---

void Show::SetOrderState(SortOrder order) {
    const auto direction = order.descending ? ui::SortSens::ssDescending : ui::SortSens::ssAscending;
    sheet_.SetSortedSens(order.Sorts() ? direction : ui::SortSens::ssNone);
    if (std::exchange(order_, order) != order) Q_EMIT orderChanged();
}

void Show::Order(SortOrder order) {
    SetOrderState(order);
    if (!order.Sorts()) return;
    const LongWork work(*this);
    sheet_.Sort(static_cast<int>(order.by));
    Q_EMIT changed();
}

std::vector<int> Show::Keys() const {
    const VorlaneList list = sheet_.Liste();
    std::vector<int> keys(static_cast<size_t>(list.ListCount()));
    for (size_t i = 0; i < keys.size(); ++i) keys[i] = list.ItemData(static_cast<int>(i));
    return keys;
}

// The items that keys doesn't name, if any, follow those that it does.
void Show::Restore(const std::vector<int>& keys, SortOrder order) {
    struct Item {
        QString text;
        bool selected;
    };
    const LongWork work(*this);
    SetOrderState(order);
    VorlaneList list = sheet_.Liste();
    std::vector<int> present = Keys();
    std::unordered_map<int, Item> items;
    for (int i = 0; i < list.ListCount(); ++i) items[list.ItemData(i)] = {list.List(i), list.Selected(i)};
    const int top = sheet_.Value(0);
    list.Clear();
    const auto put = [&](int key) {
        const auto item = items.find(key);
        if (item == items.end()) return;
        list.AddItem(item->second.text, key);
        if (item->second.selected) list.SetSelected(list.ListCount() - 1, true);
        items.erase(item);
    };
    for (const int key : keys) put(key);
    for (const int key : present) put(key);
    if (top >= 0) showAgain();
    const std::vector<int> selected = list.SelItems();
    if (!selected.empty()) reveal(selected.front());
    Q_EMIT changed();
}

}  // namespace vorlane::editor
