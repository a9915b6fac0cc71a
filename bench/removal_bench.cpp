// Removing scattered selected items of 1,000,000: what it reads, announces and binds, then what it takes of time.
#include "bench/countinglist.h"
#include "bench/running.h"
#include "platform/headless/window.h"
#include "sheet/vorlane.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <numeric>
#include <random>
#include <string>
#include <vector>

namespace {

using namespace vorlane;

constexpr int32_t kItems = 1'000'000;
constexpr int32_t kPictures = 97;  // names that the items take in turn; more than the pool has slides

// An item as the sheet stores one: four sort criteria, then the path.
std::string Text(int32_t item) {
    char text[160];
    const int length = std::snprintf(
        text, sizeof text, "img_%07d.jpg\v2024-05-%02d 12:30:05\v%d\vjpg\t/home/anna/Images/2024/img_%02d.jpg", item,
        item % 28 + 1, item * 7 % 9'000'000, item % kPictures);
    return {text, static_cast<size_t>(length)};
}

// The same ones each time, ascending.
std::vector<int32_t> Scattered(size_t count) {
    std::mt19937 random(1);
    std::vector<int32_t> items(kItems);
    std::iota(items.begin(), items.end(), 0);
    std::shuffle(items.begin(), items.end(), random);
    items.resize(count);
    std::sort(items.begin(), items.end());
    return items;
}

// A sheet of 6 x 6 slides in the middle of the list.
template <class List>
struct Bench {
    Bench() {
        const Picture thumb = headless::FakePictures::Make("thumb", 90, 60);
        sheet.Events.BeforeSetPicture.connect([thumb](int16_t, const std::string&, Picture& picture, bool&, bool&,
                                                      bool&, bool&, bool&) { picture = thumb; });
        for (int32_t n = 0; n < kItems; ++n) {
            list.AddItem(Text(n));
            list.SetItemData(n, n);
        }
        window.Host(sheet, PropertyBag{});
        sheet.InitListe(ListeModeType::lmList, &list);
        sheet.StartLecture("", kItems / 2);
    }

    void Select(const std::vector<int32_t>& items) {
        for (const int32_t item : items) list.SetSelected(item, true);
    }
    void PutBack(const std::vector<int32_t>& items) {
        for (const int32_t item : items) {
            list.AddItem(Text(item), item);
            list.SetItemData(item, item);
        }
        sheet.StartLecture("", kItems / 2);
        desktop.trace.Clear();
    }

    headless::Desktop desktop;
    headless::Window window{desktop, {0, 0, 670, 420}};
    List list{12345};
    Vorlane sheet{desktop.Roles(), window.Ambient()};
};

Bench<MemoryListBox>& Shared() {
    static Bench<MemoryListBox> bench;
    return bench;
}

// --- Counts ---

void PrintCounts() {
    Bench<CountingList> bench;
    int32_t announced = 0;
    int32_t told = 0;
    int32_t binds = 0;
    bench.sheet.Events.Removed.connect([&](int16_t, int32_t&) { ++announced; });
    bench.sheet.Events.TraitementFeedBack.connect([&](int32_t, int32_t) { ++told; });
    bench.sheet.Events.Added.connect([&](int16_t, const std::string&) { ++binds; });
    std::printf("A pool of %d x %d slides, 1,000,000 items\n", bench.sheet.CountDiapoX(), bench.sheet.CountDiapoY());
    for (const size_t count : {size_t{1}, size_t{1'000}, size_t{10'000}}) {
        const auto items = Scattered(count);
        bench.Select(items);
        announced = told = binds = 0;
        bench.list.reads = bench.list.removals = 0;
        bench.sheet.RemoveAllSelected();
        std::printf("%6zu selected: item reads %6lld  Removed %6d  TraitementFeedBack %6d  removals %6lld  binds %3d\n",
                    count, static_cast<long long>(bench.list.reads), announced, told,
                    static_cast<long long>(bench.list.removals), binds);
        bench.PutBack(items);
    }
    bench.list.reads = bench.list.removals = 0;
    binds = 0;
    bench.sheet.Remove(3);
    std::printf("one by its slide: item reads %lld  removals %lld  binds %d\n\n",
                static_cast<long long>(bench.list.reads), static_cast<long long>(bench.list.removals), binds);
}

// --- Times, of the processor alone ---

void RemoveSelected(benchmark::State& state) {
    Bench<MemoryListBox>& bench = Shared();
    const auto items = Scattered(static_cast<size_t>(state.range(0)));
    for (auto _ : state) {
        bench.Select(items);
        state.SetIterationTime(Seconds([&] { bench.sheet.RemoveAllSelected(); }));
        bench.PutBack(items);
    }
}
BENCHMARK(RemoveSelected)
    ->Name("RemoveAllSelected")
    ->Arg(1'000)
    ->Arg(10'000)
    ->Arg(100'000)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(10);

void RemoveOne(benchmark::State& state) {
    Bench<MemoryListBox>& bench = Shared();
    for (auto _ : state) {
        const int32_t item = bench.sheet.Diapo.Item(3)->Value();
        state.SetIterationTime(Seconds([&] { bench.sheet.Remove(3); }));
        bench.PutBack({item});
    }
}
BENCHMARK(RemoveOne)->Name("Remove")->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(100);

}  // namespace

int main(int argc, char** argv) {
    return vorlane::RunBenchmarks(argc, argv, PrintCounts);
}
