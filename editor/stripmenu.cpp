#include "editor/stripmenu.h"

#include "editor/filefilters.h"
#include "editor/navigator.h"
#include "editor/notices.h"
#include "editor/preferences.h"
#include "editor/stripsounds.h"
#include "editor/volumepanel.h"
#include "widgets/filekind.h"

#include <algorithm>

#include <QAction>
#include <QDir>
#include <QFileDialog>
#include <QInputDialog>
#include <QMenu>
#include <QMenuBar>
#include <QStandardPaths>

namespace vorlane::editor {

StripMenu::StripMenu(QMenuBar& bar, Strip& strip, StripSounds& sounds, Navigator& navigator)
    : QObject(&bar),
      strip_(strip),
      sounds_(sounds),
      navigator_(navigator),
      menu_(bar.addMenu(QString())),
      addMusic_(AddAction(QKeySequence(Qt::CTRL | Qt::Key_M))),
      addComment_(AddAction(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_M))),
      record_(AddAction(QKeySequence(Qt::CTRL | Qt::Key_R))),
      repeatMusic_(AddAction()),
      repeatComment_(AddAction()),
      volumes_(AddAction()),
      removeMusic_(AddAction()),
      removeComment_(AddAction()),
      exposition_(AddAction()),
      show_(AddAction()) {
    menu_->insertSeparator(repeatMusic_);
    menu_->insertSeparator(exposition_);
    repeatMusic_->setCheckable(true);
    repeatComment_->setCheckable(true);
    record_->setCheckable(true);
    show_->setCheckable(true);
    show_->setChecked(true);
    connect(addMusic_, &QAction::triggered, this, [this] { Choose(SoundKind::Music); });
    connect(addComment_, &QAction::triggered, this, [this] { Choose(SoundKind::Comment); });
    connect(repeatMusic_, &QAction::triggered, this,
            [this](bool on) { sounds_.setRepeated(SoundKind::Music, Current(), on); });
    connect(repeatComment_, &QAction::triggered, this,
            [this](bool on) { sounds_.setRepeated(SoundKind::Comment, Current(), on); });
    connect(removeMusic_, &QAction::triggered, this, [this] { Remove(SoundKind::Music); });
    connect(removeComment_, &QAction::triggered, this, [this] { Remove(SoundKind::Comment); });
    connect(exposition_, &QAction::triggered, this, &StripMenu::ChooseExposition);
    connect(volumes_, &QAction::triggered, this, &StripMenu::ChooseVolumes);
    connect(record_, &QAction::triggered, this, &StripMenu::Record);
    connect(&recorder_, &CommentRecorder::secondBegan, &strip, [&strip](int second) { strip.Record(second); });
    connect(&recorder_, &CommentRecorder::broken, this, &StripMenu::endRecording);
    connect(show_, &QAction::toggled, &strip, &QWidget::setVisible);
    connect(&strip, &Strip::soundsDropped, this, &StripMenu::AddTo);
    connect(&sounds, &StripSounds::changed, this, &StripMenu::ShowState);
    connect(&navigator, &Navigator::moved, this, &StripMenu::ShowState);
    ShowState();
}

QAction* StripMenu::AddAction(const QKeySequence& keys) {
    QAction* action = menu_->addAction(QString());
    action->setShortcut(keys);
    return action;
}

QWidget* StripMenu::Window() const {
    return strip_.window();
}

void StripMenu::retranslate() {
    menu_->setTitle(tr("&Sons"));
    addMusic_->setText(tr("Ajouter une &musique…"));
    addComment_->setText(tr("Ajouter un &commentaire…"));
    record_->setText(tr("&Enregistrer un commentaire"));
    volumes_->setText(tr("&Volumes…"));
    repeatMusic_->setText(tr("&Répéter la musique"));
    repeatComment_->setText(tr("Ré&péter le commentaire"));
    removeMusic_->setText(tr("Retirer &la musique"));
    removeComment_->setText(tr("Retirer le c&ommentaire"));
    exposition_->setText(tr("&Durée d'exposition…"));
    show_->setText(tr("&Afficher la ligne de temps"));
    strip_.setAccessibleName(tr("Ligne de temps"));
}

int StripMenu::Current() const {
    return navigator_.current();
}

// What can be done to the current slide's sounds.
void StripMenu::ShowState() {
    const int key = strip_.keyOf(Current());
    const auto music = sounds_.find(SoundKind::Music, key);
    const auto comment = sounds_.find(SoundKind::Comment, key);
    repeatMusic_->setEnabled(music.has_value());
    repeatMusic_->setChecked(music && music->Repetition);
    repeatComment_->setEnabled(comment.has_value());
    repeatComment_->setChecked(comment && comment->Repetition);
    removeMusic_->setEnabled(music.has_value());
    removeComment_->setEnabled(comment.has_value());
    volumes_->setEnabled(music || comment);
    const bool slides = strip_.showSeconds() > 0;
    addMusic_->setEnabled(slides);
    addComment_->setEnabled(slides);
    record_->setEnabled(slides || recorder_.isRunning());
}

// --- Adding ---

void StripMenu::Choose(SoundKind kind) {
    const QString title = kind == SoundKind::Music ? tr("Ajouter une musique") : tr("Ajouter un commentaire");
    addFiles(kind, QFileDialog::getOpenFileNames(Window(), title, folder_, FilterFor(FileKind::Sound)));
}

void StripMenu::addFiles(SoundKind kind, const QStringList& files) {
    if (!files.isEmpty()) AddTo(kind, files, -1);
}

void StripMenu::AddTo(SoundKind kind, const QStringList& files, int listIndex) {
    Q_EMIT said(added(kind, files, listIndex));
}

QString StripMenu::added(SoundKind kind, const QStringList& files, int listIndex) {
    QStringList sounds = files;
    sounds.removeIf([](const QString& file) { return FileKindOf(file) != FileKind::Sound; });
    if (!sounds.isEmpty() && sounds_.isBusy()) return tr("La planche est occupée");
    const int count = sounds_.add(kind, sounds, listIndex < 0 ? std::max(Current(), 0) : listIndex);
    return count == 0 ? tr("Aucun son à ajouter") : AddedText(kind, count, static_cast<int>(sounds.size()) - count);
}

QString StripMenu::AddedText(SoundKind kind, int count, int left) {
    const bool music = kind == SoundKind::Music;
    return Joined(
        {music ? tr("%Ln musique(s) ajoutée(s)", nullptr, count) : tr("%Ln commentaire(s) ajouté(s)", nullptr, count),
         left > 0 ? tr("%Ln de trop pour les diapositives", nullptr, left) : QString()});
}

void StripMenu::Remove(SoundKind kind) {
    if (!sounds_.remove(kind, Current())) return;
    Q_EMIT said(kind == SoundKind::Music ? tr("Musique retirée") : tr("Commentaire retiré"));
}

void StripMenu::ChooseExposition() {
    bool chosen = false;
    const int seconds = QInputDialog::getInt(Window(), tr("Durée d'exposition"), tr("Secondes par diapositive :"),
                                             strip_.ExpositionTime(), 1, kLongestExposition, 1, &chosen);
    if (chosen) strip_.SetExpositionTime(seconds);
}

void StripMenu::ChooseVolumes() {
    const int key = strip_.keyOf(Current());
    const auto music = sounds_.find(SoundKind::Music, key);
    const auto comment = sounds_.find(SoundKind::Comment, key);
    delete volumePanel_;
    auto* panel = new VolumePanel(Window());
    volumePanel_ = panel;
    panel->setAttribute(Qt::WA_DeleteOnClose);
    if (music) {
        panel->addVolume(tr("Musique"), music->VolNormal);
        panel->addVolume(tr("Musique pendant un commentaire"), music->VolPendantComment);
    }
    if (comment) panel->addVolume(tr("Commentaire"), comment->VolComment);
    connect(panel, &QDialog::accepted, this,
            [this, panel, key, hasMusic = music.has_value(), hasComment = comment.has_value()] {
                std::optional<MusicVolumes> musicVolumes;
                if (hasMusic) musicVolumes = {panel->volume(0), panel->volume(1)};
                std::optional<int> commentVolume;
                if (hasComment) commentVolume = panel->volume(hasMusic ? 2 : 0);
                sounds_.setVolumes(key, musicVolumes, commentVolume);
            });
    panel->open();
}

// --- Recording ---

void StripMenu::setFolder(const QString& folder) {
    endRecording();
    delete volumePanel_;  // the keys are those of other slides from now on
    folder_ = folder;
}

void StripMenu::Record(bool on) {
    if (!on) return endRecording();
    Q_EMIT recordAsked();
    const int item = std::max(Current(), 0);
    const QString music = QStandardPaths::writableLocation(QStandardPaths::MusicLocation);
    const QString path = CommentRecorder::freeName(folder_.isEmpty() ? music : folder_, tr("Commentaire"));
    const QString failure = recorder_.start(path);
    record_->setChecked(failure.isEmpty());
    if (!failure.isEmpty()) return Q_EMIT said(failure);
    recordedKey_ = strip_.keyOf(item);
    strip_.Record(0, item);
    Q_EMIT said(tr("Parlez : l'enregistrement est en cours"));
}

void StripMenu::endRecording() {
    if (!recorder_.isRunning()) return;
    const Recording recording = recorder_.stop();
    record_->setChecked(false);
    strip_.RecordEnd();
    const QString notice = Joined({recording.path.isEmpty() ? QString() : Kept(recording.path), recording.failure});
    if (!notice.isEmpty()) Q_EMIT said(notice);
}

// Puts it on the slide that it was spoken for, and tells where it is otherwise.
QString StripMenu::Kept(const QString& comment) {
    const int item = strip_.itemOf(recordedKey_);
    if (item >= 0 && sounds_.add(SoundKind::Comment, {comment}, item) == 1) return AddedText(SoundKind::Comment, 1, 0);
    const QString file = QDir::toNativeSeparators(comment);
    return (item < 0 ? tr("La diapositive n'est plus là ; le commentaire est dans « %1 »")
                     : tr("La planche est occupée ; le commentaire est dans « %1 »"))
        .arg(file);
}

}  // namespace vorlane::editor
