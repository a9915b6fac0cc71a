// What the benchmarks of the sheet's widget share: a window full of slides, and beside it a QListView in icon mode with
// uniform items over the same items. All pictures are at hand, as thumbnails that the host gives.
#pragma once

#include "widgets/vorlanewidget.h"

#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

#include <QAbstractListModel>
#include <QElapsedTimer>
#include <QListView>
#include <QPainter>
#include <QPixmap>

namespace vorlane::bench {

constexpr QSize kWindow(1000, 700);
constexpr QSize kSlide(150, 120);

inline QString Name(int index) {
    return QStringLiteral("/home/anna/Images/img_%1.jpg").arg(index, 7, 10, QLatin1Char('0'));
}

// A few pictures that take turns, of a usual thumbnail's size.
inline const std::vector<QImage>& Thumbs() {
    static const std::vector<QImage> thumbs = [] {
        std::vector<QImage> made;
        for (int i = 0; i < 12; ++i) {
            QImage image(128, 85, QImage::Format_RGB32);
            image.fill(QColor::fromHsv(i * 30, 160, 220));
            QPainter(&image).drawEllipse(20, 10, 80, 60);
            made.push_back(image);
        }
        return made;
    }();
    return thumbs;
}

class Model : public QAbstractListModel {
public:
    explicit Model(int length) : length_(length) {
        for (const QImage& thumb : Thumbs()) pixmaps_.push_back(QPixmap::fromImage(thumb));
    }
    int rowCount(const QModelIndex&) const override { return length_; }
    QVariant data(const QModelIndex& index, int role) const override {
        ++Reads;
        if (role == Qt::DisplayRole) return Name(index.row()).section(QLatin1Char('/'), -1);
        if (role == Qt::DecorationRole) return pixmaps_[static_cast<size_t>(index.row()) % pixmaps_.size()];
        return {};
    }
    mutable int Reads = 0;

private:
    int length_;
    std::vector<QPixmap> pixmaps_;
};

inline void Prepare(QListView& list) {
    list.setViewMode(QListView::IconMode);
    list.setUniformItemSizes(true);
    list.setGridSize(kSlide);
    list.setIconSize(Thumbs().front().size());
    list.setResizeMode(QListView::Adjust);
    list.resize(kWindow);
    list.show();
}

// Counts the slides that are filled in filled.
inline void Prepare(VorlaneWidget& widget, int& filled) {
    widget.SetShowJauge(false);  // a sheet that shows it repaints it at each slide, before anybody could read it
    widget.resize(kWindow);
    widget.DiapoSizeChange(true, kSlide.width(), kSlide.height());
    QObject::connect(&widget, &VorlaneWidget::OnBeforeSetPicture,
                     [&filled](int, const QString& name, SlideContent* content) {
                         ++filled;
                         const auto number = static_cast<size_t>(name.mid(name.size() - 11, 7).toInt());
                         content->Picture = Thumbs()[number % Thumbs().size()];
                     });
    widget.show();
}

inline void FillSheet(VorlaneWidget& widget, int length) {
    for (int i = 0; i < length; ++i) widget.Add(Name(i));
}

inline double Milliseconds(const std::function<void()>& work) {
    QElapsedTimer timer;
    timer.start();
    work();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

struct Times {
    std::vector<double> values;
    void Print(const char* what) {
        std::sort(values.begin(), values.end());
        std::printf("  %-52s best %9.3f ms   median %9.3f ms\n", what, values.front(), values[values.size() / 2]);
    }
};

}  // namespace vorlane::bench
