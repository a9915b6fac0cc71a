// How a folder comes onto the sheet.
#include "editor/editorwindow.h"
#include "editor/emptypage.h"
#include "editor/statuspanel.h"
#include "widgets/vorlanewidget.h"

#include <algorithm>

#include <QDir>
#include <QFileInfo>
#include <QStackedWidget>

namespace vorlane::editor {

namespace {

constexpr qint64 kSlice = 8;        // milliseconds that the window may be busy with adding at a time
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
    connect(sheet_, &VorlaneWidget::OnScroll, this, [this](int value) { position_ = value; });
    connect(provider_, &ThumbnailProvider::missingChanged, this, [this] {
        ShowStatus();
        CheckSettled();
    });
}

void EditorWindow::openFolder(const QString& folder) {
    opening_ = true;
    failed_.clear();
    reader_.start(QDir::cleanPath(QDir(folder).absolutePath()));
}

void EditorWindow::Opened(const QString& folder, int total) {
    opening_ = false;
    folder_ = QDir::cleanPath(folder);
    total_ = total;
    count_ = 0;
    position_ = 0;
    recent_.add(folder_);
    sheet_->Clear();
    sinceShown_.invalidate();
    setWindowFilePath(folder_);
    const QString name = QFileInfo(folder_).fileName();
    setWindowTitle(tr("%1 — Vorlane").arg(name.isEmpty() ? QDir::toNativeSeparators(folder_) : name));
    ShowEmptyTexts();
    ShowPage(total > 0);
    ShowStatus();
}

void EditorWindow::ShowPage(bool slides) {
    pages_->setCurrentWidget(slides ? static_cast<QWidget*>(sheet_) : empty_);
    status_->setZoomShown(slides);
    if (slides) sheet_->setFocus();
}

// What is shown stays as it is.
void EditorWindow::Failed(const QString& folder) {
    opening_ = false;
    failed_ = QDir::cleanPath(folder);
    if (!QFileInfo::exists(failed_)) recent_.remove(failed_);
    ShowStatus();
    Q_EMIT folderFailed(failed_);
    CheckSettled();
}

// The window stays free for the user between slices.
void EditorWindow::TakeSlice() {
    QElapsedTimer slice;
    slice.start();
    std::vector<FolderItem> items;
    do {
        items = reader_.take(kHandful);
        for (const FolderItem& item : items) sheet_->Add(item.path, item.sortData, count_++);
    } while (!items.empty() && slice.elapsed() < kSlice);
    const bool all = !reader_.isRunning();
    if (items.empty()) slices_.stop();
    if (all || !sinceShown_.isValid() || sinceShown_.elapsed() >= kShowAgain) ShowSheet();
    ShowStatus();
    if (all) CheckSettled();
}

// The first time from the top, then from where the user has scrolled to.
void EditorWindow::ShowSheet() {
    if (count_ == 0) return;
    if (sinceShown_.isValid()) {
        sheet_->StartLecture({}, std::clamp(position_, 0, count_ - 1));
    } else {
        sheet_->StartLecture();
    }
    sinceShown_.start();
}

void EditorWindow::ShowStatus() {
    const int missing = provider_->missing();
    waiting_ = missing == 0 ? 0 : std::max(waiting_, missing);
    if (!failed_.isEmpty()) {
        status_->setMessage(tr("Impossible de lire le dossier « %1 »").arg(QDir::toNativeSeparators(failed_)));
    } else if (folder_.isEmpty()) {
        status_->clear();
    } else if (count_ < total_) {
        status_->setMessage(tr("Lecture du dossier : %L1 sur %L2").arg(count_).arg(total_));
    } else {
        status_->setCounts(total_, sheet_->CountSelected());
    }
    if (count_ < total_) {
        status_->setProgress(count_, total_);
    } else {
        status_->setProgress(waiting_ - missing, waiting_);
    }
}

void EditorWindow::ShowEmptyTexts() {
    if (folder_.isEmpty()) {
        setWindowTitle(QStringLiteral("Vorlane"));
        empty_->setTexts(tr("Ouvrez un dossier d'images"), tr("ou déposez-le dans cette fenêtre"),
                         tr("Ouvrir un dossier…"));
    } else {
        empty_->setTexts(tr("Ce dossier ne contient aucune image"), QDir::toNativeSeparators(folder_),
                         tr("Ouvrir un autre dossier…"));
    }
}

bool EditorWindow::isSettled() const {
    return !opening_ && !reader_.isRunning() && count_ == total_ && provider_->missing() == 0;
}

// Behind what the sheet and the provider still have to do.
void EditorWindow::CheckSettled() {
    const auto check = [this] {
        if (isSettled()) Q_EMIT settled();
    };
    QMetaObject::invokeMethod(this, check, Qt::QueuedConnection);
}

}  // namespace vorlane::editor
