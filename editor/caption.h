// The caption that the editor shows under a slide's name.
#pragma once

#include <QString>

class QLocale;

namespace vorlane::editor {

// "1,6 Mo"; bytes in the program's language.
QString FileSizeText(qint64 size, const QLocale& locale);

// The file's size, bytes in the program's language, and the day of its last change, as the locale writes them: "1,6 Mo
// · 14/03/2026". Empty when the file is not there.
QString CaptionOf(const QString& path, const QLocale& locale);

}  // namespace vorlane::editor
