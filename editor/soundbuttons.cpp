#include "editor/soundbuttons.h"

#include "editor/show.h"
#include "widgets/vorlanewidget.h"

#include <utility>

#include <QFileInfo>

namespace vorlane::editor {

namespace {

bool IsMissing(const QString& file) {
    return !file.isEmpty() && !QFileInfo::exists(file);
}

}  // namespace

SoundButtons::SoundButtons(VorlaneWidget& sheet, Show& show, Finder finder, QObject* parent)
    : QObject(parent), sheet_(sheet), finder_(std::move(finder)) {
    sheet.SetShowDiapoTools(true);  // the room for the buttons
    connect(&sheet, &VorlaneWidget::OnBeforeSetPicture, this,
            [this](int slide, const QString&, SlideContent* content) { Describe(slide, *content); });
    connect(&sheet, &VorlaneWidget::OnClickPlay, this,
            [this](int slide, QString* file, const int* button, int, bool* play) {
                *file = Play(slide, *button == 1);
                *play = true;
            });
    connect(&sheet, &VorlaneWidget::OnSoundTrouble, this,
            [this](int, const QString&, ui::SoundTrouble, const QString& text) { Q_EMIT said(text); });
    connect(&sheet, &VorlaneWidget::OnSoundEnded, this, &SoundButtons::refresh);
    // The sheet knows what plays by its place in the list.
    connect(&show, &Show::changed, this, [this] { sheet_.StopSound(); });
}

int SoundButtons::KeyOf(int slide) const {
    const int item = sheet_.Value(slide);
    return item < 0 ? -1 : sheet_.Key(item);
}

void SoundButtons::Describe(int slide, SlideContent& content) {
    const int key = KeyOf(slide);
    const QString music = finder_(key, false);
    const QString comment = finder_(key, true);
    content.HaveSound = !music.isEmpty();
    content.HaveComment = !comment.isEmpty();
    content.InvalidMusic = IsMissing(music);
    content.InvalidCom = IsMissing(comment);
    NoteMissing(key, false, content.InvalidMusic);
    NoteMissing(key, true, content.InvalidCom);
}

// Whether that is news of the slide. The slides themselves lose their marks while they are scrolled.
bool SoundButtons::NoteMissing(int key, bool comment, bool missing) {
    std::set<int>& noted = missing_.at(comment ? 1 : 0);
    return missing ? noted.insert(key).second : noted.erase(key) > 0;
}

QString SoundButtons::Play(int slide, bool comment) {
    const int key = KeyOf(slide);
    playing_.at(comment ? 1 : 0) = {key, finder_(key, comment)};
    return playing_.at(comment ? 1 : 0).file;
}

// --- Changes ---

void SoundButtons::refresh() {
    StopChanged();
    for (int slide = 0; slide < sheet_.CountAffiche(); ++slide) {
        ShowButton(slide, false);
        ShowButton(slide, true);
    }
}

// A button takes its picture when it comes, so one whose file has come back or is not there goes first.
void SoundButtons::ShowButton(int slide, bool comment) {
    const auto setHave = comment ? &VorlaneWidget::SetHaveSoundComment : &VorlaneWidget::SetHaveSoundMusic;
    const auto setInvalid = comment ? &VorlaneWidget::SetHaveInvalidComm : &VorlaneWidget::SetHaveInvalidMusic;
    const int key = KeyOf(slide);
    const QString file = key < 0 ? QString() : finder_(key, comment);
    const bool missing = IsMissing(file);
    if (NoteMissing(key, comment, missing) || missing) (sheet_.*setHave)(slide, false);
    (sheet_.*setInvalid)(slide, missing);
    (sheet_.*setHave)(slide, !file.isEmpty());
}

void SoundButtons::StopChanged() {
    for (const bool comment : {false, true}) {
        const Playing& playing = playing_.at(comment ? 1 : 0);
        if (playing.file != finder_(playing.key, comment)) sheet_.StopSound(comment ? 1 : 0);
    }
}

}  // namespace vorlane::editor
