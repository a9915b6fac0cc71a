// Recovery: keeps what isn't saved yet of a show in a file of its own, for the case that the program breaks off. A kept
// show belongs to the program that wrote it for as long as that runs; afterwards anybody may take it up.
#pragma once

#include "editor/savedshow.h"

#include <memory>
#include <vector>

#include <QDateTime>
#include <QLockFile>
#include <QString>

namespace vorlane::editor {

// A show that a program left which runs no more.
struct AbandonedShow {
    QString file;
    QDateTime when;    // it was kept
    QString failure;   // a sentence for the user on why it can't be read; empty when it can
    QString origin{};  // the file that the show belongs to; empty: none
    int pictures = 0;
};

class Recovery {
public:
    // folder is made when something is kept. An empty one keeps nothing.
    explicit Recovery(QString folder);
    Recovery(const Recovery&) = delete;
    Recovery& operator=(const Recovery&) = delete;

    // Where the user's recovery files are.
    static QString UsualFolder();

    // Replaces what was kept before. Gives a sentence for the user when that fails, else an empty text.
    QString keep(const SavedShow& show);
    // There is nothing unsaved any more, or what there is is not wanted. Without this, what is kept stays for another
    // run.
    void forget();

    // The youngest first.
    std::vector<AbandonedShow> abandoned() const;
    // Removes an abandoned file; not one that is in use.
    void drop(const QString& file) const;

private:
    QString folder_;
    QString file_;                     // of this program; empty: none yet
    std::unique_ptr<QLockFile> lock_;  // held as long as file_ is ours
};

}  // namespace vorlane::editor
