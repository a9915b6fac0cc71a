// ShowKeeper: knows which file the show at hand belongs to and whether it is saved there, saves it, and keeps what
// isn't saved for recovery.
//
// A folder that was opened to be looked at belongs to no file: sorting it alone leaves nothing to be saved.
#pragma once

#include "editor/recovery.h"

#include <functional>

#include <QObject>
#include <QTimer>

namespace vorlane::editor {

class Show;

class ShowKeeper : public QObject {
    Q_OBJECT

public:
    static constexpr int kRecoveryPause = 20;  // seconds from a change until it is kept

    // What the show is now; nothing while it is being read. show outlives this.
    using Present = std::function<std::optional<SavedShow>()>;
    ShowKeeper(Show& show, Present present, QObject* parent = nullptr);

    // Keeps nothing for recovery until it knows where.
    void setRecoveryFolder(const QString& folder);
    Recovery& recovery() { return *recovery_; }

    // The show's file; empty: none yet.
    const QString& path() const { return path_; }
    bool isModified() const;

    // Another show is at hand: that of a file, or one without.
    void begin(const QString& path);
    // It holds what its file doesn't.
    void touch();
    // Gives a sentence for the user when that fails; everything stays as it was then.
    QString save(const QString& path);
    // Keeps it for recovery at once, or later when it is being read. Gives a sentence for the user when that fails.
    QString keep();
    // It is what an abandoned file holds, and kept at once. The file goes as soon as that has succeeded, or what it
    // holds is saved or not wanted.
    void takeUp(const QString& file);
    // What isn't saved is not wanted.
    void abandon();

Q_SIGNALS:
    void modifiedChanged();
    void keepingFailed(const QString& why);

private:
    void Changed();
    void DropTakenUp();

    Show& show_;
    Present present_;
    std::unique_ptr<Recovery> recovery_;
    QString path_;
    bool touched_ = false;
    bool abandoned_ = false;
    QString takenUp_;  // an abandoned file that is still needed; empty: none
    QTimer pause_{this};
};

}  // namespace vorlane::editor
