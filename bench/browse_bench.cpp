// Browsing a window of 1,000 x 700 pixels full of slides, by row (also with the mouse over them), by page and by
// resizing it, beside a QListView in icon mode with uniform items over the same items in the same run, at lists of
// 1,000 and 1,000,000 items.
//
// Each time is that from the gesture until what it shows is painted in the window's own pixels.
#include "bench/beside.h"
#include "platform/qt/qtdesktop.h"
#include "sheet/vorlane.h"

#include <array>
#include <string>

#include <QApplication>
#include <QHoverEvent>
#include <QMouseEvent>
#include <QScrollBar>

using namespace vorlane;
using namespace vorlane::bench;

namespace {

constexpr int kRounds = 101;
constexpr std::array kLengths = {1'000, 1'000'000};

// Handles what has been posted, the repaint too.
void Settle() {
    QCoreApplication::processEvents();
}

Times Timed(int rounds, const std::function<void(int)>& gesture) {
    Times times;
    for (int round = 0; round < rounds; ++round) {
        times.values.push_back(Milliseconds([&] {
            gesture(round);
            Settle();
        }));
    }
    return times;
}

// The mouse over the middle of view, a pixel to and fro: a hand that turns the wheel is never quite still.
void Hover(QWidget& view, int round) {
    const QPointF place = QRectF(view.rect()).center() + QPointF(round % 2, 0);
    const QPointF before = place - QPointF(1, 0);
    QMouseEvent move(QEvent::MouseMove, place, view.mapToGlobal(place), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&view, &move);
    QHoverEvent hover(QEvent::HoverMove, place, view.mapToGlobal(place), before);
    QCoreApplication::sendEvent(&view, &hover);
}

struct Counted {
    int filled;
    int64_t drawn;
    int64_t scaled;
    qsizetype widgets;
};

class Sheet {
public:
    explicit Sheet(int length) {
        Prepare(widget_, filled_);
        FillSheet(widget_, length);
        widget_.StartLecture();
        Settle();
        bar_ = widget_.findChild<QScrollBar*>();
        row_ = bar_->singleStep();
        page_ = widget_.CountDiapo();
    }

    void Run() {
        Print("row step", Timed(kRounds, [&](int) { bar_->setValue(bar_->value() + row_); }));
        Print("row step back", Timed(kRounds, [&](int) { bar_->setValue(bar_->value() - row_); }));
        Hover(widget_, 0);
        Settle();
        Print("row step under the mouse", Timed(kRounds, [&](int i) {
                  Hover(widget_, i);
                  bar_->setValue(bar_->value() + row_);
                  Hover(widget_, i + 1);
              }));
        Print("page jump", Timed(kRounds, [&](int i) { bar_->setValue(i % 2 == 0 ? 13 * page_ : 7 * page_); }));
        Print("resize, the same grid", Timed(kRounds, [&](int i) { widget_.resize(i % 2 == 0 ? 990 : 1000, 700); }));
        Print("resize, another grid", Timed(kRounds, [&](int i) {
                  widget_.resize(i % 2 == 0 ? 840 : 1000, 700);
                  while (widget_.sheet().TimerResize.Enabled())
                      QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
              }));
    }

private:
    Counted Now() const {
        return {filled_, widget_.Desktop().looks.Drawn(), widget_.Desktop().scaled.Renders(),
                widget_.children().size()};
    }

    void Print(const char* what, Times times) {
        const Counted now = Now();
        std::printf("  (sheet, each: %.1f slides filled, %.1f looks drawn, %.1f pictures scaled, %lld widgets made)\n",
                    Each(now.filled - before_.filled), Each(now.drawn - before_.drawn),
                    Each(now.scaled - before_.scaled), static_cast<long long>(now.widgets - before_.widgets));
        before_ = Now();
        times.Print((std::string("sheet, ") + what).c_str());
    }
    static double Each(int64_t count) { return static_cast<double>(count) / kRounds; }

    VorlaneWidget widget_;
    int filled_ = 0;
    QScrollBar* bar_ = nullptr;
    int row_ = 0;
    int page_ = 0;
    Counted before_{};
};

void RunList(int length, int rounds) {
    QListView list;
    Prepare(list);
    Model model(length);
    list.setModel(&model);
    Settle();
    QScrollBar& bar = *list.verticalScrollBar();
    Timed(rounds, [&](int) { bar.setValue(bar.value() + kSlide.height()); }).Print("list view, row step");
    QWidget& viewport = *list.viewport();
    viewport.setAttribute(Qt::WA_Hover);  // as a style has it that lights up what is under the mouse
    bar.setValue(0);
    Hover(viewport, 0);
    Settle();
    Timed(rounds, [&](int i) {
        Hover(viewport, i);
        bar.setValue(bar.value() + kSlide.height());
        Hover(viewport, i + 1);
    }).Print("list view, row step under the mouse");
    Timed(rounds, [&](int i) { bar.setValue((i % 2 == 0 ? 13 : 7) * 700); }).Print("list view, page jump");
    // It would put off its layout for a tenth of a second.
    const auto resize = [&](int width) {
        list.resize(width, kWindow.height());
        list.doItemsLayout();
    };
    Timed(rounds, [&](int i) { resize(i % 2 == 0 ? 990 : 1000); }).Print("list view, resize, the same grid");
    Timed(rounds, [&](int i) { resize(i % 2 == 0 ? 840 : 1000); }).Print("list view, resize, another grid");
}

}  // namespace

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    for (const int length : kLengths) {
        std::printf("%d items\n", length);
        Sheet(length).Run();
        RunList(length, length > 100'000 ? 11 : kRounds);
    }
    return 0;
}
