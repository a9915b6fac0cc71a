// contact-sheet FOLDER: shows the pictures of a folder.
#include "widgets/vorlanewidget.h"

#include <QApplication>
#include <QDir>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    vorlane::VorlaneWidget sheet;
    sheet.SetDiapoWidth(180);
    sheet.SetDiapoHeight(150);
    QObject::connect(&sheet, &vorlane::VorlaneWidget::OnInvalidPicture,
                     [](int, const QString& file) { qWarning("%s cannot be shown", qPrintable(file)); });

    const QDir folder(application.arguments().value(1, "."));
    for (const QFileInfo& file : folder.entryInfoList({"*.jpg", "*.png", "*.webp"}, QDir::Files)) {
        sheet.Add(file.filePath());
    }
    sheet.resize(1000, 700);
    sheet.show();
    sheet.StartLecture();
    return application.exec();
}
