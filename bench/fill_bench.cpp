// Filling the 6 x 6 pool of a sheet from lists of any length: what it reads, binds, lays out and decodes, then what it
// takes of time.
#include "bench/countinglist.h"
#include "bench/running.h"
#include "platform/headless/window.h"
#include "sheet/vorlane.h"

#include <benchmark/benchmark.h>
#include <cstdio>
#include <map>
#include <memory>
#include <string>

namespace {

using namespace vorlane;

constexpr int32_t kPictures = 97;  // names that the items take in turn; more than the pool has slides
constexpr int32_t kWidth = 670;
constexpr int32_t kHeight = 420;

std::string Name(int32_t item) {
    return "/photos/" + std::to_string(item % kPictures) + ".jpg";
}

// A sheet over a list of that many items, filled from the top.
struct Bench {
    explicit Bench(int32_t items, bool givenThumbs) {
        for (int32_t n = 0; n < kPictures; ++n) desktop.pictures.Add(Name(n), 60, 40);
        for (int32_t n = 0; n < items; ++n) {
            list.AddItem("sort data\t" + Name(n));
            list.SetItemData(n, n);
        }
        if (givenThumbs) {
            const Picture thumb = headless::FakePictures::Make("thumb", 90, 60);
            sheet.Events.BeforeSetPicture.connect([thumb](int16_t, const std::string&, Picture& picture, bool&, bool&,
                                                          bool&, bool&, bool&) { picture = thumb; });
        }
        window.Host(sheet, PropertyBag{});
        sheet.InitListe(ListeModeType::lmList, &list);
        sheet.StartLecture();
    }

    headless::Desktop desktop;
    headless::Window window{desktop, {0, 0, kWidth, kHeight}};
    CountingList list{12345};
    Vorlane sheet{desktop.Roles(), window.Ambient()};
};

// A sheet for all benchmarks of a length, since a million items take a while to add.
Bench& Shared(int32_t items, bool givenThumbs) {
    static std::map<std::pair<int32_t, bool>, std::unique_ptr<Bench>> benches;
    auto& bench = benches[{items, givenThumbs}];
    if (!bench) bench = std::make_unique<Bench>(items, givenThumbs);
    return *bench;
}

// --- Counts ---

// Counts what happens on the slides that are there. A layout empties a slide's recording exactly once.
class Counter {
public:
    explicit Counter(Bench& bench) : bench_(bench), reads_(bench.list.reads), loads_(bench.desktop.pictures.Loads()) {
        binding_ = bench.sheet.Events.Added.connect([this](int16_t, const std::string&) { ++binds_; });
        for (int32_t k = 0; k < bench.sheet.Diapo.Count(); ++k) {
            Surface& surface = bench.sheet.Diapo.Item(k)->Surface();
            drawing_.emplace_back(
                surface.Changed.connect([this, &surface, before = surface.Commands().size()]() mutable {
                    const size_t now = surface.Commands().size();
                    if (now < before) ++layouts_;
                    before = now;
                }));
        }
    }

    void Print(int32_t items, const char* what) const {
        std::printf("%9d items, %-30s item reads %3lld  binds %3d  layouts %3d  decodes %3d\n", items, what,
                    static_cast<long long>(bench_.list.reads - reads_), binds_, layouts_,
                    bench_.desktop.pictures.Loads() - loads_);
    }

private:
    Bench& bench_;
    int64_t reads_;
    int32_t loads_;
    int32_t binds_ = 0;
    int32_t layouts_ = 0;
    ScopedConnection binding_;
    std::vector<ScopedConnection> drawing_;
};

template <class Action>
void PrintCounts(int32_t items, const char* what, bool givenThumbs, Action&& action) {
    Bench& bench = Shared(items, givenThumbs);
    const Counter counter(bench);
    action(bench.sheet);
    counter.Print(items, what);
}

void PrintCounts() {
    const Bench& bench = Shared(1'000, false);
    std::printf("A pool of %d x %d slides\n", bench.sheet.CountDiapoX(), bench.sheet.CountDiapoY());
    for (const int32_t items : {1'000, 100'000, 1'000'000}) {
        PrintCounts(items, "jump to the middle", false, [&](Vorlane& sheet) { sheet.VScroll.SetValue(items / 2); });
        PrintCounts(items, "the same with thumbnails", true,
                    [&](Vorlane& sheet) { sheet.VScroll.SetValue(items / 2); });
        PrintCounts(items, "one row on", false,
                    [](Vorlane& sheet) { sheet.VScroll.SetValue(sheet.VScroll.Value() + 6); });
        PrintCounts(items, "the same items again, by key", false,
                    [](Vorlane& sheet) { sheet.StartLecture("", sheet.VScroll.Value()); });
        PrintCounts(items, "from the top", false, [](Vorlane& sheet) { sheet.StartLecture(); });
    }
    std::printf("\n");
}

// --- Times, with thumbnails given: the sheet's own share ---

void Jump(benchmark::State& state) {
    const auto items = static_cast<int32_t>(state.range(0));
    Bench& bench = Shared(items, true);
    int32_t place = 0;
    for (auto _ : state) {
        place = place == 100 ? items / 2 : 100;
        bench.sheet.VScroll.SetValue(place);
        bench.desktop.trace.Clear();
    }
}
BENCHMARK(Jump)->Arg(1'000)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMicrosecond);

void FillFromTheTop(benchmark::State& state) {
    Bench& bench = Shared(static_cast<int32_t>(state.range(0)), true);
    for (auto _ : state) {
        bench.sheet.VScroll.SetValue(200);
        bench.sheet.StartLecture();
        bench.desktop.trace.Clear();
    }
}
BENCHMARK(FillFromTheTop)->Arg(1'000)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMicrosecond);

void RowStep(benchmark::State& state) {
    Bench& bench = Shared(static_cast<int32_t>(state.range(0)), true);
    bench.sheet.VScroll.SetValue(120);
    bool forward = false;
    for (auto _ : state) {
        forward = !forward;
        bench.sheet.VScroll.SetValue(forward ? 126 : 120);
        bench.desktop.trace.Clear();
    }
}
BENCHMARK(RowStep)->Arg(1'000)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMicrosecond);

// The pool made, filled and unloaded again.
void NewPool(benchmark::State& state) {
    Bench& bench = Shared(static_cast<int32_t>(state.range(0)), true);
    for (auto _ : state) {
        bench.sheet.Refresh();
        bench.desktop.trace.Clear();
    }
}
BENCHMARK(NewPool)->Arg(1'000)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMicrosecond);

}  // namespace

int main(int argc, char** argv) {
    return vorlane::RunBenchmarks(argc, argv, PrintCounts);
}
