// Shows in files: opening, saving, what isn't saved yet, and what another run of the program left.
#include "editor/editorwindow.h"
#include "editor/navigator.h"
#include "editor/recoverypanel.h"
#include "editor/show.h"
#include "editor/showfile.h"
#include "editor/showkeeper.h"
#include "editor/strip.h"
#include "editor/stripmenu.h"
#include "editor/stripsounds.h"
#include "widgets/vorlanewidget.h"

#include <algorithm>
#include <utility>

#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>

namespace vorlane::editor {

namespace {

QString DialogFilter() {
    return EditorWindow::tr("Diaporamas Vorlane (*.%1)").arg(kShowExtension);
}

QString WithExtension(const QString& path) {
    return IsShowFile(path) ? path : path + u'.' + kShowExtension;
}

}  // namespace

void EditorWindow::MakeKeeper() {
    keeper_ = new ShowKeeper(
        *show_, [this] { return Present(); }, this);
    connect(keeper_, &ShowKeeper::modifiedChanged, this, [this] { setWindowModified(keeper_->isModified()); });
    connect(keeper_, &ShowKeeper::keepingFailed, this, &EditorWindow::Say);
}

void EditorWindow::setRecoveryFolder(const QString& folder) {
    keeper_->setRecoveryFolder(folder);
}

QString EditorWindow::showPath() const {
    return keeper_->path();
}

// --- The show at hand ---

// Nothing while it is being read or changed.
std::optional<SavedShow> EditorWindow::Present() const {
    if (!complete_ || show_->isBusy()) return std::nullopt;
    SavedShow show;
    show.order = show_->order();
    show.exposure = strip_->ExpositionTime();
    for (int i = 0; i < count(); ++i) show.pictures.push_back(sheet_->ImageFullPath(i));
    show.sounds = sounds_->saved();
    return show;
}

// --- Opening ---

void EditorWindow::open(const QString& path) {
    if (IsShowFile(path) && !QFileInfo(path).isDir()) {
        openShow(path);
    } else {
        openFolder(path);
    }
}

bool EditorWindow::openShow(const QString& path) {
    ShowReading reading = LoadShow(path);
    if (!reading.show) {
        if (!QFileInfo::exists(path)) recent_.remove(path);
        Say(reading.failure);
        Q_EMIT folderFailed(path);
        return false;
    }
    Load(std::move(*reading.show), QFileInfo(path).absoluteFilePath());
    return true;
}

void EditorWindow::Load(SavedShow show, const QString& path) {
    ForgetOpening();
    loading_ = Loading{path, std::move(show)};
    reader_.list(loading_->show.pictures);
}

// Before its first picture comes: the keys of the pictures are their indices in the file.
void EditorWindow::BeginShow() {
    Loading loading = *std::exchange(loading_, std::nullopt);
    const QString& path = loading.path;
    recovered_ = loading.recovered;
    show_->setOrder(loading.show.order);
    sounds_->begin(loading.show.sounds);
    strip_->SetExpositionTime(loading.show.exposure);
    keeper_->begin(path);
    if (!path.isEmpty()) recent_.add(path);
    folder_ = path.isEmpty() ? QString() : QFileInfo(path).path();
}

// --- Saving ---

bool EditorWindow::save() {
    return keeper_->path().isEmpty() ? saveAs() : SaveTo(keeper_->path());
}

bool EditorWindow::saveAs() {
    const QString present = keeper_->path().isEmpty() ? folder_ : keeper_->path();
    const QString chosen = QFileDialog::getSaveFileName(this, tr("Enregistrer le diaporama"), present, DialogFilter());
    if (chosen.isEmpty()) return false;
    const QString path = WithExtension(chosen);
    if (path == chosen || !QFileInfo::exists(path)) return SaveTo(path);
    Say(tr("« %1 » existe déjà : choisissez un autre nom").arg(QFileInfo(path).fileName()));  // the dialog didn't ask
    return false;
}

bool EditorWindow::SaveTo(const QString& path) {
    soundMenu_->endRecording();
    const QString failure = keeper_->save(path);
    if (failure.isEmpty()) {
        recent_.add(keeper_->path());
        ShowTitle();
    }
    Say(failure.isEmpty() ? tr("Diaporama enregistré") : failure);
    return failure.isEmpty();
}

void EditorWindow::chooseShow() {
    const QString chosen = QFileDialog::getOpenFileName(this, tr("Ouvrir un diaporama"), folder_, DialogFilter());
    if (!chosen.isEmpty()) Leave([this, chosen] { openShow(chosen); });
}

// --- What isn't saved ---

// Goes on once nothing is left that the user wants to keep; stays here when the user says so, or saving fails.
void EditorWindow::Leave(const std::function<void()>& goOn) {
    soundMenu_->endRecording();
    if (!keeper_->isModified()) return goOn();
    const QString question = tr("Enregistrer les modifications de « %1 » ?").arg(ShowName());
    auto* box = new QMessageBox(QMessageBox::Warning, tr("Vorlane"), question, QMessageBox::NoButton, this);
    box->setObjectName(QStringLiteral("unsaved"));
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setInformativeText(tr("Les fichiers des images ne sont pas touchés."));
    const auto* saves = box->addButton(tr("&Enregistrer"), QMessageBox::AcceptRole);
    const auto* leaves = box->addButton(tr("&Ne pas enregistrer"), QMessageBox::DestructiveRole);
    box->setEscapeButton(box->addButton(tr("&Annuler"), QMessageBox::RejectRole));
    connect(box, &QMessageBox::buttonClicked, this, [this, goOn, saves, leaves](const QAbstractButton* clicked) {
        if (clicked == leaves || (clicked == saves && save())) goOn();
    });
    box->open();
}

// --- What another run left ---

void EditorWindow::offerRecovery() {
    const std::vector<AbandonedShow> shows = keeper_->recovery().abandoned();
    if (shows.empty()) return;
    auto* panel = new RecoveryPanel(shows, this);
    panel->setAttribute(Qt::WA_DeleteOnClose);
    connect(panel, &RecoveryPanel::recoverAsked, this,
            [this](const QString& file) { Leave([this, file] { Recover(file); }); });
    connect(panel, &RecoveryPanel::dropAsked, this, [this](const QString& file) { keeper_->recovery().drop(file); });
    panel->open();
}

// The file goes once this run keeps the show itself.
void EditorWindow::Recover(const QString& file) {
    ShowReading reading = LoadShow(file);
    if (!reading.show) {
        Say(reading.failure);
        return offerRecovery();
    }
    const QString origin = std::exchange(reading.show->origin, {});
    Load(std::move(*reading.show), origin);
    loading_->recovered = file;
}

void EditorWindow::KeepRecovered() {
    if (!recovered_.isEmpty()) keeper_->takeUp(std::exchange(recovered_, {}));
}

}  // namespace vorlane::editor
