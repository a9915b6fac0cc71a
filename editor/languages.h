// The editor's languages: French, which the source is written in, and English.
#pragma once

#include <QStringList>

class QCoreApplication;

namespace vorlane::editor {

// "fr" or "en": the first of the user's languages that is one of the two. A user of another language gets English; one
// who states none, French.
QString LanguageFor(const QStringList& userLanguages);

// Sets the application's texts to the language, and those of its standard dialogs where the system has them. Numbers
// and dates follow the user's own locale where it speaks that language. To be called before there is a window.
void InstallLanguage(QCoreApplication& application, const QString& language);

}  // namespace vorlane::editor
