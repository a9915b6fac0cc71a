// A sheet in a window: its artwork is there, and a signal that is named by its address arrives.
#include "widgets/diapolightwidget.h"
#include "widgets/vorlanewidget.h"

#include <QApplication>
#include <QTextStream>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    vorlane::VorlaneWidget sheet;
    int added = 0;
    QString invalid;
    QObject::connect(&sheet, &vorlane::VorlaneWidget::OnAdded, [&] { ++added; });
    QObject::connect(&sheet, &vorlane::VorlaneWidget::OnInvalidPicture,
                     [&](int, const QString& file) { invalid = file; });
    sheet.resize(640, 480);
    sheet.show();
    sheet.Add("missing.jpg");
    sheet.StartLecture();
    QTextStream(stdout) << "added " << added << ", invalid " << invalid << '\n';
    return added == 1 && invalid == "missing.jpg" && sheet.property("DiapoWidth").toInt() == 100 ? 0 : 1;
}
