// The first paint of a window of 1,000 x 700 pixels full of slides, beside a QListView in icon mode with uniform items
// over the same items in the same run, at lists of 1,000, 100,000 and 1,000,000 items.
//
// A fill is timed with the laying out of its slides, since both are what the user waits for. All pictures are at hand,
// as thumbnails that the host gives. The items themselves are there before the clock starts.
#include "bench/beside.h"

#include <array>

#include <QApplication>

using namespace vorlane;
using namespace vorlane::bench;

namespace {

constexpr int kRounds = 9;
constexpr std::array kLengths = {1'000, 100'000, 1'000'000};

// The widget's own pixels, without those of a window around it.
void PaintOnto(QWidget& widget, QImage& target) {
    widget.render(&target);
}

void Measure(int length) {
    QImage target(kWindow, QImage::Format_RGB32);
    Times fill;
    Times paint;
    Times whole;
    Times view;
    int slides = 0;
    int reads = 0;
    VorlaneWidget warm;  // fonts and artwork
    Prepare(warm, slides);
    FillSheet(warm, 100);
    warm.StartLecture();
    PaintOnto(warm, target);
    for (int round = 0; round < kRounds; ++round) {
        VorlaneWidget widget;
        slides = 0;
        Prepare(widget, slides);
        FillSheet(widget, length);
        QCoreApplication::processEvents();
        const double filled = Milliseconds([&] { widget.StartLecture(); });
        const double painted = Milliseconds([&] { PaintOnto(widget, target); });
        fill.values.push_back(filled);
        paint.values.push_back(painted);
        whole.values.push_back(filled + painted);

        QListView list;
        Prepare(list);
        QCoreApplication::processEvents();
        Model model(length);
        view.values.push_back(Milliseconds([&] {
            list.setModel(&model);
            PaintOnto(list, target);
        }));
        reads = model.Reads;
    }
    std::printf("%d items\n", length);
    std::printf("  counts: sheet %d slides bound; list view %d item reads\n", slides, reads);
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
