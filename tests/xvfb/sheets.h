// Sheets of a few slides on a real screen.
#pragma once

#include "sheet/vorlane.h"
#include "widgets/vorlanewidget.h"

#include <QFileInfo>
#include <QImage>
#include <QStringList>

namespace vorlane::test {

inline constexpr int kFirstKey = 1000;

// Three slides a row. The first item has the key 1000, the others the following ones.
inline void SetUp(VorlaneWidget& sheet, const QRect& place, const QStringList& files) {
    sheet.setGeometry(place);
    sheet.DiapoSizeChange(true, 120, 110);
    sheet.SetShowJauge(false);
    sheet.SetSortedSens(ui::SortSens::ssNone);
    sheet.SetOLEDragMode(1);
    sheet.SetOLEDropMode(2);
    QObject::connect(&sheet, &VorlaneWidget::OnBeforeSetPicture, &sheet,
                     [](int, const QString&, SlideContent* content) {
                         content->Picture = QImage(60, 40, QImage::Format_RGB32);
                         content->Picture.fill(Qt::darkGreen);
                     });
    sheet.show();
    int key = kFirstKey;
    for (const QString& file : files) sheet.Add(file, {}, key++);
    sheet.StartLecture();
}

// "a 1000, b 1001"
inline QString ItemsOf(const VorlaneWidget& sheet) {
    QStringList items;
    for (int i = 0; i < sheet.Count(); ++i)
        items += QFileInfo(sheet.ImageFullPath(i)).completeBaseName() + ' ' + QString::number(sheet.Key(i));
    return items.join(", ");
}

}  // namespace vorlane::test
