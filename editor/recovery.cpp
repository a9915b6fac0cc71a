#include "editor/recovery.h"

#include "editor/showfile.h"

#include <utility>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QUuid>

namespace vorlane::editor {

namespace {

QString LockOf(const QString& file) {
    return file + QStringLiteral(".lock");
}

// Held by a program that runs; one that has ended without letting go is found out.
std::unique_ptr<QLockFile> Lock(const QString& file) {
    auto lock = std::make_unique<QLockFile>(LockOf(file));
    lock->setStaleLockTime(0);  // however old, as long as its program runs
    return lock->tryLock(0) ? std::move(lock) : nullptr;
}

}  // namespace

Recovery::Recovery(QString folder) : folder_(std::move(folder)) {}

QString Recovery::UsualFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation) + QStringLiteral("/recovery");
}

QString Recovery::keep(const SavedShow& show) {
    if (folder_.isEmpty()) return {};
    if (file_.isEmpty()) {
        QDir().mkpath(folder_);
        file_ =
            QStringLiteral("%1/%2.%3").arg(folder_, QUuid::createUuid().toString(QUuid::WithoutBraces), kShowExtension);
        lock_ = Lock(file_);
    }
    return SaveShow(file_, show);
}

void Recovery::forget() {
    if (file_.isEmpty()) return;
    QFile::remove(file_);
    lock_.reset();
    file_.clear();
}

std::vector<AbandonedShow> Recovery::abandoned() const {
    if (folder_.isEmpty()) return {};
    std::vector<AbandonedShow> shows;
    const QDir folder(folder_, QStringLiteral("*.") + kShowExtension, QDir::Time, QDir::Files);
    for (const QFileInfo& entry : folder.entryInfoList()) {
        const QString file = entry.filePath();
        if (file == file_ || !Lock(file)) continue;
        const ShowReading reading = LoadShow(file);
        AbandonedShow show{file, entry.lastModified(), reading.failure};
        if (reading.show) {
            show.origin = reading.show->origin;
            show.pictures = static_cast<int>(reading.show->pictures.size());
        }
        shows.push_back(std::move(show));
    }
    return shows;
}

void Recovery::drop(const QString& file) const {
    if (const auto lock = Lock(file)) QFile::remove(file);
}

}  // namespace vorlane::editor
