#pragma once

#include "widgets/thumbnailprovider.h"
#include "widgets/thumbnailservice.h"
#include "widgets/vorlanewidget.h"

#include <QPainter>

// Worker threads decode the files, and thumbnails are kept in memory and in the user's cache.
inline void DecodeInBackground(vorlane::VorlaneWidget& sheet) {
    auto* const service = new vorlane::ThumbnailService({}, &sheet);
    new vorlane::ThumbnailProvider(sheet, *service);
}

// Pictures that the host has, or makes, by itself: the file is not read then.
inline void ShowPlaceholders(vorlane::VorlaneWidget& sheet) {
    const auto paint = [](int, const QString& fileName, vorlane::SlideContent* content) {
        if (!fileName.startsWith("/archive/")) return;
        content->Picture = QImage(160, 120, QImage::Format_RGB32);
        content->Picture.fill(Qt::darkGray);
        QPainter(&content->Picture).drawText(content->Picture.rect(), Qt::AlignCenter, "in the archive");
    };
    QObject::connect(&sheet, &vorlane::VorlaneWidget::OnBeforeSetPicture, paint);
}
