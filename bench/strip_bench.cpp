// Replaying a time line's recording, a strip of 1,600 by 60 pixels with 200 bars and 100 marks, into pixels: the whole
// of it, and what a tick of the playback moves; and beside that the same drawn straight through a painter. Times are
// the processor's.
#include "bench/running.h"
#include "platform/qt/qtdesktop.h"
#include "platform/qt/surfacereplay.h"

#include <cstdio>
#include <string>

#include <QGuiApplication>
#include <QLinearGradient>
#include <QPainter>

namespace {

using namespace vorlane;

constexpr int kWidth = 1600;
constexpr int kHeight = 60;
constexpr int kBars = 100;  // in each row
constexpr int kStep = kWidth / kBars;
constexpr int kBarHeight = 8;

// Of a bar: one of two colours, or one of its own.
QRgb ColorOf(int bar, bool twoPairs) {
    return twoPairs ? (bar % 2 == 0 ? qRgb(255, 255, 128) : qRgb(255, 192, 128)) : qRgb(255, 255 - bar, 128);
}

std::string LabelOf(int mark) {
    return std::to_string(mark * 5 / 60) + ":" + std::to_string(100 + mark * 5 % 60).substr(1);
}

void RecordBar(Surface& surface, int bar, int top, bool twoPairs) {
    const QRgb color = ColorOf(bar, twoPairs);
    const auto part = [](int value) { return static_cast<uint16_t>(value << 8); };
    const int left = bar * kStep;
    const int right = left + kStep - 2;
    surface.GradientFill({{left, top, part(qRed(color)), part(qGreen(color)), part(qBlue(color)), 0},
                          {right, top + kBarHeight, 0xFF00, 0xFF00, 0xFF00, 0}},
                         {{0, 1}}, 0);
    surface.LineBox(left, top, right, top + kBarHeight, 0xC0C000);
}

// second: where the triangle is.
void Draw(Surface& surface, bool twoPairs, int second) {
    surface.Cls();
    surface.SetFont(Font{"DejaVu Sans", 8});
    surface.GradientFill({{0, 0, 0xFF00, 0xFF00, 0xFF00, 0}, {kWidth, kHeight, 0xD000, 0xD000, 0xE000, 0}}, {{0, 1}},
                         1);
    surface.LineBox(0, 0, kWidth - 1, kHeight - 1, 0xE3CFC9);
    for (int bar = 0; bar < kBars; ++bar) {
        RecordBar(surface, bar, 3, twoPairs);
        RecordBar(surface, bar, kHeight - 3 - kBarHeight, twoPairs);
    }
    surface.SetFillColor(0xFF0000);
    surface.SetFillStyle(0);
    const int x = 1 + second * 3;
    surface.Polygon({{x - 5, 0}, {x, 5}, {x + 5, 0}});
    surface.SetForeColor(0xF34141);
    for (int mark = 0; mark < kBars; ++mark) {
        surface.Line(1 + mark * kStep, kHeight - 1, 1 + mark * kStep, kHeight - 6, 0xF34141);
        surface.TextOutA(1 + mark * kStep, kHeight - 20, LabelOf(mark));
    }
}

// As the time line does.
void Record(Surface& surface, bool twoPairs, int second) {
    surface.Redraw([&] { Draw(surface, twoPairs, second); });
}

void DrawStraight(QImage& image, bool twoPairs) {
    QPainter painter(&image);
    QLinearGradient ground(0, 0, 0, kHeight);
    ground.setColorAt(0, Qt::white);
    ground.setColorAt(1, QColor(0xD0, 0xD0, 0xE0));
    painter.fillRect(image.rect(), ground);
    for (int bar = 0; bar < kBars; ++bar) {
        for (const int top : {3, kHeight - 3 - kBarHeight}) {
            const QRect place(bar * kStep, top, kStep - 2, kBarHeight);
            QLinearGradient gradient(place.topLeft(), place.topRight());
            gradient.setColorAt(0, QColor::fromRgb(ColorOf(bar, twoPairs)));
            gradient.setColorAt(1, Qt::white);
            painter.fillRect(place, gradient);
            painter.setPen(QColor(0, 0xC0, 0xC0));
            painter.drawRect(place);
        }
    }
    painter.setFont(QFont(QStringLiteral("DejaVu Sans"), 8));
    painter.setPen(QColor(0x41, 0x41, 0xF3));
    for (int mark = 0; mark < kBars; ++mark) {
        painter.drawLine(1 + mark * kStep, kHeight - 1, 1 + mark * kStep, kHeight - 6);
        painter.drawText(1 + mark * kStep, kHeight - 8, QString::fromStdString(LabelOf(mark)));
    }
}

// --- Times ---

void ReplayAll(benchmark::State& state) {
    QtDesktop desktop;
    Surface surface;
    Record(surface, state.range(0) == 2, 0);
    for (auto _ : state) {
        surface.KeepImage(nullptr);
        benchmark::DoNotOptimize(SurfaceReplay::Of(surface, {kWidth, kHeight}, 1, desktop.Tools()));
    }
    state.counters["commands"] = static_cast<double>(surface.Commands().size());
}
BENCHMARK(ReplayAll)->Arg(2)->Arg(100)->ArgName("pairs")->Unit(benchmark::kMicrosecond);

void StraightThroughAPainter(benchmark::State& state) {
    for (auto _ : state) {
        QImage image(kWidth, kHeight, QImage::Format_RGB32);
        DrawStraight(image, state.range(0) == 2);
        benchmark::DoNotOptimize(image.constBits());
    }
}
BENCHMARK(StraightThroughAPainter)->Arg(2)->Arg(100)->ArgName("pairs")->Unit(benchmark::kMicrosecond);

// What a tick costs the window behind its recording: the strip brought up to date, and what has moved copied over, or
// all of it.
void Tick(benchmark::State& state, bool copiesAll) {
    QtDesktop desktop;
    Surface surface;
    QImage window(kWidth, kHeight, QImage::Format_RGB32);
    Record(surface, true, 0);
    SurfaceReplay::Of(surface, window.size(), 1, desktop.Tools());
    int second = 0;
    for (auto _ : state) {
        Record(surface, true, second = (second + 1) % 500);
        const draw::Extent& moved = surface.LastRedraw()->Changes.Where;
        const QRectF where(QPointF(moved.Left, moved.Top), QPointF(moved.Right, moved.Bottom));
        const QRect part = copiesAll ? window.rect() : where.toAlignedRect() & window.rect();
        state.SetIterationTime(Seconds([&] {
            QPainter painter(&window);
            painter.drawImage(part.topLeft(), SurfaceReplay::Of(surface, window.size(), 1, desktop.Tools()), part);
        }));
    }
}

void TickOfPlayback(benchmark::State& state) {
    Tick(state, false);
}
BENCHMARK(TickOfPlayback)->UseManualTime()->Unit(benchmark::kMicrosecond);

void TickThatCopiesAll(benchmark::State& state) {
    Tick(state, true);
}
BENCHMARK(TickThatCopiesAll)->UseManualTime()->Unit(benchmark::kMicrosecond);

void PrintCounts() {
    Surface surface;
    Record(surface, true, 0);
    std::printf("a strip of %d by %d: bars %d  marks %d  commands %zu\n\n", kWidth, kHeight, 2 * kBars, kBars,
                surface.Commands().size());
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    return RunBenchmarks(argc, argv, PrintCounts);
}
