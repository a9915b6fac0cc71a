// TimeLineWidgetTest: a strip under a sheet of twelve slides, with sound files of known lengths.
//
// The strip is 600 by 60 pixels on plain white, and a slide is 150 pixels and 5 seconds: 30 pixels a second behind a
// border of one pixel. Item n of the sheet has key 100 + n.
#pragma once

#include "sheet/vorlane.h"
#include "tests/widgets/mouse.h"
#include "timeline/etimeline.h"
#include "widgets/timelinewidget.h"
#include "widgets/vorlanewidget.h"

#include <gtest/gtest.h>
#include <memory>

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QtEndian>

namespace vorlane::test {

class TimeLineWidgetTest : public testing::Test {
protected:
    static constexpr int kItems = 12;

    TimeLineWidgetTest() : sheet(std::make_unique<VorlaneWidget>()), strip(std::make_unique<TimeLineWidget>()) {
        sheet->resize(500, 300);
        sheet->SetShowJauge(false);
        sheet->DiapoSizeChange(true, 120, 110);
        QObject::connect(sheet.get(), &VorlaneWidget::OnBeforeSetPicture, sheet.get(),
                         [](int, const QString&, SlideContent* content) { content->Picture = Plain(60, 40, Qt::red); });
        sheet->show();
        for (int n = 0; n < kItems; ++n) sheet->Add(QStringLiteral("/nowhere/%1.jpg").arg(n), {}, 100 + n);
        sheet->StartLecture();
        QObject::connect(strip.get(), &TimeLineWidget::OnError, strip.get(),
                         [this](int, const QString& description, const QString&, int, const QString& log) {
                             errors += log + ": " + description + "\n";
                         });
        strip->resize(600, 60);
        strip->GradientColor(Qt::white, Qt::white, 1);
        strip->AttachVorlane(sheet.get());
        strip->show();
        strip->SetRedraw(true);
        QCoreApplication::processEvents();
    }

    // A silent wave file.
    QString Sound(const QString& name, int seconds) {
        constexpr quint32 kRate = 100;  // bytes a second
        const quint32 length = kRate * static_cast<quint32>(seconds);
        QByteArray wave("RIFF\0\0\0\0WAVEfmt \x10\0\0\0\1\0\1\0\0\0\0\0\0\0\0\0\1\0\x8\0data\0\0\0\0", 44);
        qToLittleEndian(36 + length, wave.data() + 4);
        qToLittleEndian(kRate, wave.data() + 24);
        qToLittleEndian(kRate, wave.data() + 28);
        qToLittleEndian(length, wave.data() + 40);
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(wave + QByteArray(static_cast<int>(length), '\x80'));
        return file.fileName();
    }
    // Adds a sound to the slide of item n.
    void Music(int n, int seconds, bool repeats = false) {
        EXPECT_TRUE(strip->Musiques().Add(Sound(QStringLiteral("m%1.wav").arg(n), seconds), 100 + n, -1, repeats));
    }
    void Comment(int n, int seconds) {
        EXPECT_TRUE(strip->Comments().Add(Sound(QStringLiteral("c%1.wav").arg(n), seconds), 100 + n));
    }
    // The strip as it is painted at a density.
    QImage Painted(double scale = 1) {
        QImage image((QSizeF(strip->size()) * scale).toSize(), QImage::Format_RGB32);
        image.setDevicePixelRatio(scale);
        strip->render(&image);
        return image;
    }
    QColor Pixel(int x, int y) { return Painted().pixelColor(x, y); }

    QTemporaryDir folder;
    QString errors;
    std::unique_ptr<VorlaneWidget> sheet;
    std::unique_ptr<TimeLineWidget> strip;
};

}  // namespace vorlane::test
