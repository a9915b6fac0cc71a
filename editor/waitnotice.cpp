#include "editor/waitnotice.h"

#include "editor/show.h"
#include "widgets/vorlanewidget.h"

#include <QCoreApplication>

namespace vorlane::editor {

void ShowWaitDuringLongWork(VorlaneWidget& sheet, Show& show) {
    QObject::connect(&show, &Show::longWorkBegins, &sheet, [&sheet] {
        const QString text = QCoreApplication::translate("WaitNotice", "Un instant…");
        if (sheet.isVisible()) sheet.WaitShow(text, ui::WaitPlace::Middle, true);
    });
    QObject::connect(&show, &Show::longWorkEnds, &sheet, [&sheet] {
        if (sheet.IsWaitOpen()) sheet.WaitClose(true);
    });
}

}  // namespace vorlane::editor
