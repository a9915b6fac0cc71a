// VorlaneWidgetTest: a sheet's widget with room for a few slides, a folder of pictures in plain colours, and what the
// widget reports as failures.
#pragma once

#include "sheet/vorlane.h"
#include "tests/widgets/mouse.h"
#include "widgets/vorlanewidget.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTemporaryDir>

namespace vorlane::test {

class VorlaneWidgetTest : public testing::Test {
protected:
    VorlaneWidgetTest() {
        widget.resize(500, 300);
        widget.SetShowJauge(false);
        widget.SetDiapoWidth(120);
        widget.SetDiapoHeight(110);
        QObject::connect(&widget, &VorlaneWidget::OnError, &widget,
                         [this](int, const QString& description, const QString&, int, const QString& log) {
                             errors += log + ": " + description + "\n";
                         });
    }

    void Show() {
        widget.show();
        QCoreApplication::processEvents();
    }

    QString Write(const QString& name, const QImage& image) {
        const QString path = folder.filePath(name);
        EXPECT_TRUE(image.save(path)) << name.toStdString();
        return path;
    }

    // Pictures of many colours, as many as asked for.
    void AddPictures(int count) {
        for (int i = 0; i < count; ++i) {
            const QString name = QString("%1.png").arg(i, 3, 10, QLatin1Char('0'));
            widget.Add(Write(name, Plain(60, 40, ColorOf(i))), {}, 1000 + i);
        }
    }
    static QRgb ColorOf(int i) { return QColor::fromHsv(i * 37 % 360, 255, 200).rgb(); }

    // The colour of a slide's picture, clear of the button in its corner.
    QRgb Shown(int slide) {
        const Box box = widget.sheet().Diapo.Item(slide)->Img.BoundsInRoot();
        const QPointF place(box.Left + box.Width / 4, box.Top + box.Height / 4);
        return widget.grab().toImage().pixel(place.toPoint());
    }

    QTemporaryDir folder;
    VorlaneWidget widget;
    QString errors;
};

}  // namespace vorlane::test
