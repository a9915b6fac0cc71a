// One slide: what its layout and its assignment do, counted, then what they take of time.
#include "bench/running.h"
#include "platform/headless/desktop.h"
#include "slide/ediapolight.h"

#include <benchmark/benchmark.h>
#include <cstdio>

namespace {

using namespace vorlane;

// A slide of the size of a contact sheet's, laid out, with a picture larger than its area.
struct Bench {
    Bench() {
        desktop.pictures.Add("/photos/a.jpg", 6000, 4000);
        slide.Start();
        slide.Move(0, 0, 160, 140);
        slide.SetCaptionBottom("Une légende");
        slide.PictureByString("/photos/a.jpg");
        slide.Refresh();
    }

    headless::Desktop desktop;
    eDiapoLight slide{desktop.Roles(), Ambient{}};
};

// --- Counts ---

struct Counts {
    size_t layouts = 0;
    size_t commands = 0;
    size_t invalidations = 0;
};

// A layout empties the recording exactly once.
template <class Action>
Counts CountsOf(Bench& bench, Action&& action) {
    Counts counts;
    auto& surface = bench.slide.Surface();
    size_t before = surface.Commands().size();
    const ScopedConnection drawn = surface.Changed.connect([&] {
        const size_t now = surface.Commands().size();
        if (now < before) ++counts.layouts;
        before = now;
    });
    const ScopedConnection damaged = bench.slide.Damaged.connect([&](const Box&) { ++counts.invalidations; });
    action();
    counts.commands = surface.Commands().size();
    return counts;
}

void Print(const char* what, const Counts& counts) {
    std::printf("%-44s layouts %zu  commands recorded %3zu  invalidations %3zu\n", what, counts.layouts,
                counts.commands, counts.invalidations);
}

void PrintCounts() {
    Bench bench;
    eDiapoLight& slide = bench.slide;
    Print("a layout", CountsOf(bench, [&] { slide.Refresh(); }));
    Print("a change of selection", CountsOf(bench, [&] { slide.SetSelected(true); }));
    slide.SetShadowWidth(20);
    Print("a layout with a shadow as wide as it gets", CountsOf(bench, [&] { slide.Refresh(); }));
    const int32_t loads = bench.desktop.pictures.Loads();
    Print("a file", CountsOf(bench, [&] { slide.PictureByString("/photos/a.jpg"); }));
    const int32_t decoded = bench.desktop.pictures.Loads();
    Print("a file with its thumbnail given", CountsOf(bench, [&] {
              slide.PictureByString("/photos/a.jpg", headless::FakePictures::Make("thumb", 150, 100));
          }));
    std::printf("decodes: %d, with the thumbnail given %d\n\n", decoded - loads,
                bench.desktop.pictures.Loads() - decoded);
}

// --- Times ---

void Layout(benchmark::State& state) {
    Bench bench;
    for (auto _ : state) bench.slide.Refresh();
    state.counters["commands"] = static_cast<double>(bench.slide.Surface().Commands().size());
}
BENCHMARK(Layout);

void ChangeOfSelection(benchmark::State& state) {
    Bench bench;
    for (auto _ : state) bench.slide.SetSelected(!bench.slide.Selected());
}
BENCHMARK(ChangeOfSelection);

// As a fill of the sheet binds a slide: held back, then laid out once.
void BindWithThumbnail(benchmark::State& state) {
    Bench bench;
    const Picture thumb = headless::FakePictures::Make("thumb", 150, 100);
    for (auto _ : state) {
        bench.slide.SetNoResize(true);
        bench.slide.PictureByString("/photos/a.jpg", thumb);
        bench.slide.Refresh();
    }
}
BENCHMARK(BindWithThumbnail);

void NewSlide(benchmark::State& state) {
    Bench bench;
    const vorlane::Desktop roles = bench.desktop.Roles();
    for (auto _ : state) {
        eDiapoLight slide(roles, Ambient{});
        slide.CopyDesign(bench.slide);
        benchmark::DoNotOptimize(&slide);
    }
}
BENCHMARK(NewSlide);

}  // namespace

int main(int argc, char** argv) {
    return vorlane::RunBenchmarks(argc, argv, PrintCounts);
}
