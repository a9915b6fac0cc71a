// The first paint of a window of 1,000 x 700 pixels full of slides, beside a QListView in icon mode with uniform items
// over the same items in the same run, at lists of 1,000, 100,000 and 1,000,000 items.
//
// A fill is timed with the laying out of its slides, since both are what the user waits for. All pictures are at hand,
// as thumbnails that the host gives. The items themselves are there before the clock starts.
#include "sheet/vorlane.h"
#include "widgets/vorlanewidget.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <functional>
#include <memory>
#include <vector>

#include <QAbstractListModel>
#include <QApplication>
#include <QElapsedTimer>
#include <QListView>
#include <QPainter>
#include <QPixmap>

using namespace vorlane;

namespace {

constexpr QSize kWindow(1000, 700);
constexpr QSize kSlide(150, 120);
constexpr int kRounds = 9;
constexpr std::array kLengths = {1'000, 100'000, 1'000'000};

QString Name(int index) {
    return QStringLiteral("/home/anna/Images/img_%1.jpg").arg(index, 7, 10, QLatin1Char('0'));
}

// A few pictures that take turns, of a usual thumbnail's size.
const std::vector<QImage>& Thumbs() {
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

struct Counts {
    int slides = 0;  // bound by the fill
    int reads = 0;   // items asked of the list view's model
};

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

double Milliseconds(const std::function<void()>& work) {
    QElapsedTimer timer;
    timer.start();
    work();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

struct Times {
    std::vector<double> values;
    void Print(const char* what) {
        std::sort(values.begin(), values.end());
        std::printf("  %-52s best %9.2f ms   median %9.2f ms\n", what, values.front(), values[values.size() / 2]);
    }
};

// The widget's own pixels, without those of a window around it.
void PaintOnto(QWidget& widget, QImage& target) {
    widget.render(&target);
}

void FillSheet(VorlaneWidget& widget, int length) {
    for (int i = 0; i < length; ++i) widget.Add(Name(i));
}

void Prepare(VorlaneWidget& widget, Counts& counts) {
    widget.SetShowJauge(false);  // a sheet that shows it repaints it at each slide, before anybody could read it
    widget.resize(kWindow);
    widget.DiapoSizeChange(true, kSlide.width(), kSlide.height());
    QObject::connect(&widget, &VorlaneWidget::OnBeforeSetPicture,
                     [&counts](int index, const QString&, SlideContent* content) {
                         ++counts.slides;
                         content->Picture = Thumbs()[static_cast<size_t>(index) % Thumbs().size()];
                     });
    widget.show();
}

void Measure(int length) {
    QImage target(kWindow, QImage::Format_RGB32);
    Times fill;
    Times paint;
    Times whole;
    Times view;
    Counts counts;
    VorlaneWidget warm;  // fonts and artwork
    Counts ignored;
    Prepare(warm, ignored);
    FillSheet(warm, 100);
    warm.StartLecture();
    PaintOnto(warm, target);
    for (int round = 0; round < kRounds; ++round) {
        VorlaneWidget widget;
        counts.slides = 0;
        Prepare(widget, counts);
        FillSheet(widget, length);
        QCoreApplication::processEvents();
        const double filled = Milliseconds([&] { widget.StartLecture(); });
        const double painted = Milliseconds([&] { PaintOnto(widget, target); });
        fill.values.push_back(filled);
        paint.values.push_back(painted);
        whole.values.push_back(filled + painted);

        QListView list;
        list.setViewMode(QListView::IconMode);
        list.setUniformItemSizes(true);
        list.setGridSize(kSlide);
        list.setIconSize({128, 85});
        list.resize(kWindow);
        list.show();
        QCoreApplication::processEvents();
        Model model(length);
        view.values.push_back(Milliseconds([&] {
            list.setModel(&model);
            PaintOnto(list, target);
        }));
        counts.reads = model.Reads;
    }
    std::printf("%d items\n", length);
    std::printf("  counts: sheet %d slides bound; list view %d item reads\n", counts.slides, counts.reads);
    whole.Print("sheet, filled and painted first");
    fill.Print("  of it the fill");
    paint.Print("  of it the paint");
    view.Print("list view, filled and painted first");
}

}  // namespace

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    for (const int length : kLengths) Measure(length);
    return 0;
}
