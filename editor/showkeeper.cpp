#include "editor/showkeeper.h"

#include "editor/show.h"
#include "editor/showfile.h"

#include <utility>

#include <QFileInfo>

namespace vorlane::editor {

ShowKeeper::ShowKeeper(Show& show, Present present, QObject* parent)
    : QObject(parent), show_(show), present_(std::move(present)), recovery_(std::make_unique<Recovery>(QString())) {
    pause_.setSingleShot(true);
    connect(&pause_, &QTimer::timeout, this, [this] {
        const QString failure = keep();
        if (!failure.isEmpty()) Q_EMIT keepingFailed(failure);
    });
    connect(&show_.undoStack(), &QUndoStack::indexChanged, this, &ShowKeeper::Changed);
    connect(&show_.undoStack(), &QUndoStack::cleanChanged, this, &ShowKeeper::Changed);
}

void ShowKeeper::setRecoveryFolder(const QString& folder) {
    recovery_ = std::make_unique<Recovery>(folder);
}

bool ShowKeeper::isModified() const {
    if (abandoned_) return false;
    return touched_ || show_.isEdited() || (!path_.isEmpty() && !show_.undoStack().isClean());
}

void ShowKeeper::begin(const QString& path) {
    path_ = path;
    touched_ = abandoned_ = false;
    takenUp_.clear();
    Changed();
}

void ShowKeeper::touch() {
    touched_ = true;
    Changed();
}

QString ShowKeeper::save(const QString& path) {
    const std::optional<SavedShow> show = present_();
    if (!show) return tr("La planche est encore occupée : enregistrez dans un instant");
    const QString failure = SaveShow(path, *show);
    if (!failure.isEmpty()) return failure;
    path_ = QFileInfo(path).absoluteFilePath();
    touched_ = false;
    show_.setSaved();
    Changed();
    return {};
}

QString ShowKeeper::keep() {
    std::optional<SavedShow> show = present_();
    if (!show) {
        pause_.start(kRecoveryPause * 1000);
        return {};
    }
    show->origin = path_;
    const QString failure = recovery_->keep(*show);
    if (failure.isEmpty()) DropTakenUp();
    return failure;
}

void ShowKeeper::takeUp(const QString& file) {
    takenUp_ = file;
    touch();
    keep();
}

void ShowKeeper::DropTakenUp() {
    if (!takenUp_.isEmpty()) recovery_->drop(std::exchange(takenUp_, {}));
}

void ShowKeeper::abandon() {
    abandoned_ = true;
    Changed();
}

void ShowKeeper::Changed() {
    if (isModified()) {
        if (!pause_.isActive()) pause_.start(kRecoveryPause * 1000);
    } else {
        pause_.stop();
        recovery_->forget();
        DropTakenUp();
    }
    Q_EMIT modifiedChanged();
}

}  // namespace vorlane::editor
