// Selecting by the widget over 1,000,000 items, with nobody listening to progress: the operations on the whole list,
// and one move of a rubber band over a full view with its painting, beside a QListView in the same run.
#include "bench/beside.h"

#include <QApplication>
#include <QItemSelectionModel>
#include <QMouseEvent>

using namespace vorlane;
using namespace vorlane::bench;

namespace {

constexpr int kItems = 1'000'000;
constexpr int kRounds = 9;
constexpr int kSteps = 60;  // of a band, each way

using Work = std::function<void()>;

void Time(const char* what, const Work& prepare, const Work& work) {
    Times times;
    for (int round = 0; round < kRounds; ++round) {
        prepare();
        QCoreApplication::processEvents();
        times.values.push_back(Milliseconds(work));
    }
    times.Print(what);
}

void Send(QWidget& widget, QEvent::Type type, QPointF place, Qt::MouseButtons held) {
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, place, widget.mapToGlobal(place), button, held, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
}

// A band from the top left corner that swings over the view, each move painted before the next.
void TimeBand(const char* what, QWidget& widget) {
    Times times;
    Send(widget, QEvent::MouseButtonPress, {2, 2}, Qt::LeftButton);
    for (int step = 0; step < 2 * kSteps; ++step) {
        const int swing = step < kSteps ? step : 2 * kSteps - step;
        times.values.push_back(Milliseconds([&] {
            Send(widget, QEvent::MouseMove, QPointF(300 + swing * 10, 200 + swing * 7), Qt::LeftButton);
            QCoreApplication::processEvents();
        }));
    }
    Send(widget, QEvent::MouseButtonRelease, {2, 2}, Qt::NoButton);
    times.Print(what);
}

void RunSheet() {
    VorlaneWidget widget;
    int filled = 0;
    Prepare(widget, filled);
    FillSheet(widget, kItems);
    widget.StartLecture();
    QCoreApplication::processEvents();
    std::printf("sheet: %d slides, %d items\n", widget.CountAffiche(), kItems);
    const auto all = [&] { widget.SelectAll(); };
    const auto none = [&] { widget.SelectedClear(); };
    Time("sheet, SelectAll", none, all);
    Time("sheet, SelectInvert", none, [&] { widget.SelectInvert(); });
    Time("sheet, SelectedClear", all, none);
    Time("sheet, CountSelected of all", all, [&] { widget.CountSelected(); });
    Time("sheet, SelectedTableau of all", all, [&] { widget.SelectedTableau(); });
    none();
    QCoreApplication::processEvents();
    TimeBand("sheet, a band move", widget);
}

void RunList() {
    Model model(kItems);
    QListView list;
    list.setSelectionMode(QAbstractItemView::ExtendedSelection);
    list.setDragEnabled(false);
    list.setModel(&model);
    Prepare(list);
    QCoreApplication::processEvents();
    QItemSelectionModel& selection = *list.selectionModel();
    const auto all = [&] { list.selectAll(); };
    const auto none = [&] { selection.clearSelection(); };
    Time("list view, selectAll", none, all);
    Time("list view, clearSelection", all, none);
    Time("list view, selectedIndexes of all", all, [&] { selection.selectedIndexes(); });
    none();
    QCoreApplication::processEvents();
    TimeBand("list view, a band move", *list.viewport());
}

}  // namespace

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    RunSheet();
    RunList();
    return 0;
}
