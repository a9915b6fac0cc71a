#pragma once

#include "widgets/vorlanewidget.h"

inline void AllowDrags(vorlane::VorlaneWidget& sheet) {
    using vorlane::VorlaneWidget;

    sheet.SetOLEDragMode(1);  // the user drags selected slides: within the sheet they move, outside they are files
    sheet.SetOLEDropMode(2);  // the sheet takes files, folders and texts, and opens a row where they would fall

    // Before a drop is read: how many files it brings.
    QObject::connect(&sheet, &VorlaneWidget::OnOLEBeforeDropStart,
                     [](int numberOfFiles, bool* cancel) { *cancel = numberOfFiles > 5000; });
    // Each file of it: what stays out, and the key of what comes in.
    QObject::connect(&sheet, &VorlaneWidget::OnOLENewFileAdded,
                     [nextKey = 1000](const QString& fileName, int* key, bool* cancel) mutable {
                         *cancel = fileName.endsWith(".tmp");
                         if (!*cancel) *key = nextKey++;
                     });
}
