// The sheet's sounds, its renaming in place, its wait window and its balloon, in Qt's types.
#include "platform/numbers.h"
#include "platform/qt/qtdesktop.h"
#include "platform/qt/qtpicturedata.h"
#include "sheet/vorlane.h"
#include "widgets/accessiblesheet.h"
#include "widgets/conversions.h"
#include "widgets/vorlanewidget.h"

namespace vorlane {

// --- Sounds ---

void VorlaneWidget::BtState(int index, int typeBt, bool modePlayed) {
    Do("BtState", [&] { sheet_.BtState(ToInt16(index), typeBt, modePlayed); });
}

void VorlaneWidget::StopSound(int only) {
    Do("StopSound", [&] { sheet_.StopSound(only); });
}

bool VorlaneWidget::HaveSoundMusic(int index) const {
    return Ask("HaveSoundMusic", false, [&] { return sheet_.Diapo.Item(index)->HaveSoundMusic(); });
}

void VorlaneWidget::SetHaveSoundMusic(int index, bool have) {
    Do("SetHaveSoundMusic", [&] { sheet_.Diapo.Item(index)->SetHaveSoundMusic(have); });
}

bool VorlaneWidget::HaveInvalidMusic(int index) const {
    return Ask("HaveInvalidMusic", false, [&] { return sheet_.Diapo.Item(index)->HaveInvalidMusic(); });
}

void VorlaneWidget::SetHaveInvalidMusic(int index, bool invalid) {
    Do("SetHaveInvalidMusic", [&] { sheet_.Diapo.Item(index)->SetHaveInvalidMusic(invalid); });
}

bool VorlaneWidget::HaveSoundComment(int index) const {
    return Ask("HaveSoundComment", false, [&] { return sheet_.Diapo.Item(index)->HaveSoundComment(); });
}

void VorlaneWidget::SetHaveSoundComment(int index, bool have) {
    Do("SetHaveSoundComment", [&] { sheet_.Diapo.Item(index)->SetHaveSoundComment(have); });
}

bool VorlaneWidget::HaveInvalidComm(int index) const {
    return Ask("HaveInvalidComm", false, [&] { return sheet_.Diapo.Item(index)->HaveInvalidComm(); });
}

void VorlaneWidget::SetHaveInvalidComm(int index, bool invalid) {
    Do("SetHaveInvalidComm", [&] { sheet_.Diapo.Item(index)->SetHaveInvalidComm(invalid); });
}

void VorlaneWidget::ConnectSounds() {
    auto& events = sheet_.Events;
    events.ClickPlay.connect([this](int16_t index, std::string& soundFileNameToPlay, int32_t& button, int32_t canal,
                                    bool& play, std::string& alias) {
        QString file = FromText(soundFileNameToPlay);
        QString name = FromText(alias);
        Q_EMIT OnClickPlay(index, &file, &button, canal, &play, &name);
        soundFileNameToPlay = ToText(file);
        alias = ToText(name);
    });
    events.ClickPlayChangeDiapo.connect(
        [this](int16_t index, int32_t button) { Q_EMIT OnClickPlayChangeDiapo(index, button); });
    events.ClickStop.connect(
        [this](int16_t index, int32_t button, int32_t canal) { Q_EMIT OnClickStop(index, button, canal); });
    events.ClickText.connect([this](int16_t index) { Q_EMIT OnClickText(index); });
    events.SoundEnded.connect([this](int32_t canal) { Q_EMIT OnSoundEnded(canal); });
    connect(&Desktop().sounds, &QtSounds::Troubled, this, &VorlaneWidget::TellTrouble);
}

// The desktop plays for other sheets, too.
void VorlaneWidget::TellTrouble(const QString& alias, const QString& path, vorlane::SoundTrouble trouble) {
    const bool comment = alias == AliasComment();
    if (!comment && alias != AliasMusic()) return;
    const int canal = comment ? Desktop().sounds.CanalComment() : Desktop().sounds.CanalMusic();
    Q_EMIT OnSoundTrouble(canal, path, static_cast<ui::SoundTrouble>(trouble), SoundTroubleText(trouble, path));
}

// --- Rename in place ---

void VorlaneWidget::StartEdit(int index) {
    Do("StartEdit", [&] { sheet_.StartEdit(ToInt16(index)); });
}

bool VorlaneWidget::EndEdit(bool cancel, MsgBoxObject* msgBox) {
    Do("EndEdit", [&] { sheet_.EndEdit(cancel, msgBox); });
    return cancel;
}

void VorlaneWidget::RenameDiapo(int listIndex, const QString& oldName, const QString& newName, int diapoIndex) {
    Do("RenameDiapo", [&] {
        const bool renamed = sheet_.RenameDiapo(listIndex, ToText(oldName), ToText(newName), ToInt16(diapoIndex));
        const ListControl* list = sheet_.Liste();
        if (!renamed || list == nullptr || listIndex < 0 || listIndex >= list->ListCount()) return;
        AccessibleSheet::TellName(*this, ImageFullPath(listIndex));
    });
}

void VorlaneWidget::ConnectEdit() {
    auto& events = sheet_.Events;
    events.BeforeEdit.connect([this](bool& cancel, const std::string& oldFileNamme) {
        Q_EMIT OnBeforeEdit(&cancel, FromText(oldFileNamme));
    });
    events.AfterEdit.connect([this](const std::string& newFileName, const std::string& oldFileName, bool canceled) {
        Q_EMIT OnAfterEdit(FromText(newFileName), FromText(oldFileName), canceled);
    });
    events.RenameError.connect([this](int32_t errorType, const std::string& newFileName, const std::string& oldFileName,
                                      std::string& errorMessage, bool& cancelMessage) {
        QString message = FromText(errorMessage);
        Q_EMIT OnRenameError(errorType, FromText(newFileName), FromText(oldFileName), &message, &cancelMessage);
        errorMessage = ToText(message);
    });
}

// --- Wait window ---

void VorlaneWidget::WaitShow(const QString& newCaption, ui::WaitPlace fromWhere, bool withoutEffect) {
    Do("WaitShow", [&] { sheet_.WaitShow(ToText(newCaption), static_cast<WaitPlace>(fromWhere), withoutEffect); });
}

void VorlaneWidget::SetWaitCaption(const QString& caption) {
    Do("SetWaitCaption", [&] { sheet_.SetWaitCaption(ToText(caption)); });
}

void VorlaneWidget::WaitClose(bool withoutEffect) {
    Do("WaitClose", [&] { sheet_.WaitClose(withoutEffect); });
}

bool VorlaneWidget::IsWaitOpen() const {
    return sheet_.IsWaitOpen();
}

// --- Zoom and balloon ---

void VorlaneWidget::ConnectZoom() {
    auto& events = sheet_.Events;
    events.ToolTipInfos.connect(
        [this](int16_t index, const std::string& fileName, std::string& titre, std::string& texte, int32_t& icone) {
            QString title = FromText(titre);
            QString text = FromText(texte);
            Q_EMIT OnToolTipInfos(index, FromText(fileName), &title, &text, &icone);
            titre = ToText(title);
            texte = ToText(text);
        });
    events.BeforeZoom.connect([this](int16_t index, vorlane::Picture& picture) {
        const QImage given = ToImage(picture, devicePixelRatioF());
        QImage image = given;
        Q_EMIT OnBeforeZoom(index, &image);
        if (image != given) picture = PictureFromImage(image);
    });
    events.BeforeZoomEndLoad.connect([this] { Q_EMIT OnBeforeZoomEndLoad(); });
    events.AfterZoom.connect([this] { Q_EMIT OnAfterZoom(); });
}

}  // namespace vorlane
