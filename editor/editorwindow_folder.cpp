// How a folder comes onto the sheet.
#include "editor/editorwindow.h"
#include "editor/emptypage.h"
#include "editor/navigator.h"
#include "editor/notices.h"
#include "editor/show.h"
#include "editor/showkeeper.h"
#include "editor/statuspanel.h"
#include "editor/strip.h"
#include "editor/stripmenu.h"
#include "editor/stripsounds.h"
#include "widgets/vorlanewidget.h"

#include <algorithm>
#include <utility>

#include <QDir>
#include <QFileInfo>
#include <QStackedWidget>

namespace vorlane::editor {

namespace {

constexpr qint64 kShowAgain = 400;  // milliseconds after which the bar is given what came meanwhile
constexpr size_t kHandful = 64;

}  // namespace

void EditorWindow::ConnectReader() {
    connect(&reader_, &FolderReader::opened, this, &EditorWindow::Opened);
    connect(&reader_, &FolderReader::failed, this, &EditorWindow::Failed);
    connect(&reader_, &FolderReader::available, this, [this] { slices_.start(); });
    connect(&reader_, &FolderReader::finished, this, [this] { slices_.start(); });
    connect(&slices_, &QTimer::timeout, this, &EditorWindow::TakeSlice);
    connect(empty_, &EmptyPage::openRequested, this, &EditorWindow::chooseFolder);
    connect(provider_, &ThumbnailProvider::missingChanged, this, [this] {
        ShowStatus();
        CheckSettled();
    });
}

void EditorWindow::ForgetOpening() {
    complete_ = false;
    slices_.stop();
    opened_.reset();
    loading_.reset();
    failed_.clear();
}

void EditorWindow::openFolder(const QString& folder) {
    ForgetOpening();
    reader_.start(QDir::cleanPath(QDir(folder).absolutePath()));
}

// The first of its items, or its end, brings it onto the sheet.
void EditorWindow::Opened(const QString& folder, int total) {
    opened_ = Folder{QDir::cleanPath(folder), total};
}

void EditorWindow::Begin(const Folder& folder) {
    ++begun_;
    total_ = folder.total;
    read_ = missing_ = 0;
    additions_.clear();
    show_->clear();
    navigator_->mark(-1);
    sinceShown_.invalidate();
    loading_ ? BeginShow() : BeginFolder(folder.path);
    ShowTitle();
    soundMenu_->setFolder(folder_);
    ShowEmptyTexts();
    ShowPage();
    ShowStatus();
}

void EditorWindow::BeginFolder(const QString& path) {
    folder_ = path;
    recovered_.clear();
    keeper_->begin({});
    recent_.add(folder_);
}

QString EditorWindow::ShowName() const {
    const QString path = keeper_->path();
    const QString name = path.isEmpty() ? QFileInfo(folder_).fileName() : QFileInfo(path).completeBaseName();
    if (!name.isEmpty()) return name;
    return folder_.isEmpty() ? tr("Diaporama") : QDir::toNativeSeparators(folder_);
}

void EditorWindow::ShowTitle() {
    setWindowFilePath(keeper_->path().isEmpty() ? folder_ : keeper_->path());
    setWindowTitle(tr("%1[*] — Vorlane").arg(ShowName()));
}

void EditorWindow::ShowPage() {
    const bool slides = count() > 0 || read_ < total_;
    QWidget* page = slides ? sheetPage_ : empty_;
    if (pages_->currentWidget() == page) return;
    pages_->setCurrentWidget(page);
    (slides ? static_cast<QWidget*>(sheet_) : empty_)->setFocus();
}

QString EditorWindow::FailureText() const {
    return tr("Impossible de lire le dossier « %1 »").arg(QDir::toNativeSeparators(failed_));
}

// What is shown stays as it is. A show that was being read has lost its end, so it is no longer that of its file.
void EditorWindow::Failed(const QString& folder) {
    if (show_->isBusy()) {
        QTimer::singleShot(1, this, [this, folder] { Failed(folder); });
        return;
    }
    failed_ = QDir::cleanPath(folder);
    if (!QFileInfo::exists(failed_)) recent_.remove(failed_);
    if (read_ < total_) {
        keeper_->begin({});
        recovered_.clear();
        ShowTitle();
        ShowSheet();
    }
    total_ = read_;  // what was being read has ended
    Complete();
    Say(FailureText());
    Q_EMIT folderFailed(failed_);
}

// The window stays free for the user between slices. While the show is at work, the folder waits.
void EditorWindow::TakeSlice() {
    if (show_->isBusy()) return;
    if (opened_) Begin(*std::exchange(opened_, std::nullopt));
    QElapsedTimer slice;
    slice.start();
    std::vector<FolderItem> items;
    do {
        items = reader_.take(kHandful);
        for (const FolderItem& item : items) {
            show_->append(item);
            missing_ += item.missing ? 1 : 0;
        }
        read_ += static_cast<int>(items.size());
    } while (!items.empty() && slice.elapsed() < sliceTime_);
    const bool all = !reader_.isRunning();
    if (items.empty()) slices_.stop();
    if (all || !sinceShown_.isValid() || sinceShown_.elapsed() >= kShowAgain) ShowSheet();
    if (all) Complete();
    ShowStatus();
}

void EditorWindow::Complete() {
    show_->orderAppended();
    sounds_->follow();
    complete_ = true;
    TellMissing();
    KeepRecovered();
    ShowPage();
    CheckSettled();
}

void EditorWindow::TellMissing() {
    const int pictures = std::exchange(missing_, 0);
    const int sounds = sounds_->missing();
    const QString notice = Joined({pictures == 0 ? QString() : tr("%Ln image(s) introuvable(s)", nullptr, pictures),
                                   sounds == 0 ? QString() : tr("%Ln son(s) introuvable(s)", nullptr, sounds)});
    if (!notice.isEmpty()) Say(notice);
}

void EditorWindow::ShowSheet() {
    if (count() == 0) return;
    show_->showAgain();
    sinceShown_.start();
}

void EditorWindow::ShowStatus() {
    const int missing = provider_->missing();
    waiting_ = missing == 0 ? 0 : std::max(waiting_, missing);
    const bool reading = read_ < total_;
    if (!notice_.isEmpty()) {
        status_->setMessage(notice_);
    } else if (!failed_.isEmpty() && count() == 0) {
        status_->setMessage(FailureText());
    } else if (folder_.isEmpty() && count() == 0) {
        status_->clear();
    } else if (reading) {
        status_->setMessage(tr("Lecture du dossier : %L1 sur %L2").arg(read_).arg(total_));
    } else {
        status_->setCounts(count(), sheet_->CountSelected());
    }
    status_->setLength(strip_->showSeconds());
    status_->setZoomShown(count() > 0 || reading);
    if (reading) {
        status_->setProgress(read_, total_);
    } else {
        status_->setProgress(waiting_ - missing, waiting_);
    }
}

void EditorWindow::ShowEmptyTexts() {
    const bool isShow = !keeper_->path().isEmpty();
    if (folder_.isEmpty() && !isShow) {
        empty_->setTexts(tr("Ouvrez un dossier d'images"), tr("ou déposez-le dans cette fenêtre"),
                         tr("Ouvrir un dossier…"));
    } else if (total_ > 0 || isShow) {
        empty_->setTexts(tr("La planche est vide"), tr("Les fichiers retirés restent dans leur dossier."),
                         tr("Ouvrir un autre dossier…"));
    } else {
        empty_->setTexts(tr("Ce dossier ne contient aucune image"), QDir::toNativeSeparators(folder_),
                         tr("Ouvrir un autre dossier…"));
    }
}

bool EditorWindow::isSettled() const {
    const bool read = complete_ && !additions_.isRunning() && deferred_ == 0;
    return read && provider_->missing() == 0;
}

// Behind what the sheet and the provider still have to do.
void EditorWindow::CheckSettled() {
    const auto check = [this] {
        if (isSettled()) Q_EMIT settled();
    };
    QMetaObject::invokeMethod(this, check, Qt::QueuedConnection);
}

}  // namespace vorlane::editor
