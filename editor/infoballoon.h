// What the balloon of a slide's info button says of the slide's file: the picture's size, the file's size and date, and
// what the camera wrote.
#pragma once

#include <QStringList>

class QLocale;

namespace vorlane {
class VorlaneWidget;
}

namespace vorlane::editor {

// A line a fact, as the locale writes numbers and dates. Empty when the file is not there.
QStringList InfoLines(const QString& path, const QLocale& locale);

// Shows the sheet's info buttons and answers for their balloons.
void ShowInfoBalloons(VorlaneWidget& sheet);

}  // namespace vorlane::editor
