#pragma once

#include "widgets/vorlanewidget.h"

#include <QFileInfo>

// The music of a picture lies beside it: photo.mp3 for photo.jpg.
inline QString MusicOf(const QString& picture) {
    const QFileInfo file(picture);
    return file.path() + "/" + file.completeBaseName() + ".mp3";
}

inline void PlayMusic(vorlane::VorlaneWidget& sheet) {
    // Which slides have a button.
    QObject::connect(&sheet, &vorlane::VorlaneWidget::OnBeforeSetPicture,
                     [](int, const QString& fileName, vorlane::SlideContent* content) {
                         content->HaveSound = QFileInfo::exists(MusicOf(fileName));
                     });
    // What is to be heard when it is clicked.
    QObject::connect(&sheet, &vorlane::VorlaneWidget::OnClickPlay,
                     [&sheet](int index, QString* soundFileName, int*, int, bool* play, QString*) {
                         *soundFileName = MusicOf(sheet.ImageFullPath(sheet.Value(index)));
                         *play = true;
                     });
    // What is wrong with it, in words for the user.
    QObject::connect(
        &sheet, &vorlane::VorlaneWidget::OnSoundTrouble,
        [](int, const QString&, vorlane::ui::SoundTrouble, const QString& text) { qWarning("%s", qPrintable(text)); });
}
