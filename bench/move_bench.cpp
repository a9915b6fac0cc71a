// Moving selected items by a drag inside the sheet, from the end of 1,000,000 to their start: what it reads and binds,
// then what it takes of time, from the drop to its end. The row is open by then; its animation is not measured.
#include "bench/countinglist.h"
#include "bench/running.h"
#include "platform/headless/userdrag.h"
#include "sheet/vorlane.h"

#include <benchmark/benchmark.h>
#include <cstdio>
#include <string>

namespace {

using namespace vorlane;

constexpr int32_t kItems = 1'000'000;
constexpr int32_t kPictures = 97;  // names that the items take in turn; more than the pool has slides

std::string Text(int32_t item) {
    char text[160];
    const int length = std::snprintf(
        text, sizeof text, "img_%07d.jpg\v2024-05-%02d 12:30:05\v%d\vjpg\t/home/anna/Images/2024/img_%02d.jpg", item,
        item % 28 + 1, item * 7 % 9'000'000, item % kPictures);
    return {text, static_cast<size_t>(length)};
}

// A sheet of 6 x 6 slides, with no sort in force, at the list's start.
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
        sheet.SetOLEDragMode(1);
        sheet.SetOLEDropMode(2);
        sheet.SetSortedSens(SortSensType::ssNone);
        sheet.InitListe(ListeModeType::lmList, &list);
        sheet.StartLecture();
    }

    // Drags the last count items in front of the first one. Gives the seconds of the drop.
    double MoveToStart(int32_t count) {
        for (int32_t item = kItems - count; item < kItems; ++item) list.SetSelected(item, true);
        sheet.VScroll.SetValue(sheet.VScroll.Max());
        const auto dragged = sheet.Diapo.Item(sheet.CountDiapo() - sheet.CountDiapoX() - 1);
        const float x = dragged->Left() + dragged->Width() / 2;
        const float y = dragged->Top() + dragged->Height() / 2;
        double seconds = 0;
        desktop.drags.Script([&](headless::UserDrag& drag) {
            sheet.VScroll.SetValue(0);
            drag.Over(window, sheet.Diapo.Item(0)->Col() + 20, 40);
            Begin();
            seconds = Seconds([&] { drag.Drop(); });
        });
        desktop.clock.Advance(1000);
        window.Press(x, y);
        window.MouseTo(x + 5, y);
        desktop.trace.Clear();
        return seconds;
    }

    void Begin() {
        if constexpr (requires { list.reads; }) list.reads = list.removals = 0;
        binds = 0;
    }

    // How many of the first count items are those that were moved.
    int32_t Arrived(int32_t count) const {
        int32_t arrived = 0;
        for (int32_t n = 0; n < count; ++n) arrived += list.ItemData(n) == kItems - count + n ? 1 : 0;
        return arrived;
    }

    headless::Desktop desktop;
    headless::Window window{desktop, {0, 0, 670, 420}};
    List list{12345};
    Vorlane sheet{desktop.Roles(), window.Ambient()};
    int32_t binds = 0;
};

void PrintCounts() {
    Bench<CountingList> bench;
    bench.sheet.Events.Added.connect([&](int16_t, const std::string&) { ++bench.binds; });
    std::printf("A pool of %d x %d slides, 1,000,000 items\n", bench.sheet.CountDiapoX(), bench.sheet.CountDiapoY());
    const int32_t count = 100;
    bench.MoveToStart(count);
    std::printf("%d from the end to the start: arrived %d  item reads %lld  removals %lld  binds %d\n\n", count,
                bench.Arrived(count), static_cast<long long>(bench.list.reads),
                static_cast<long long>(bench.list.removals), bench.binds);
}

void Move(benchmark::State& state) {
    static Bench<MemoryListBox> bench;
    for (auto _ : state) {
        state.SetIterationTime(bench.MoveToStart(static_cast<int32_t>(state.range(0))));
        bench.sheet.SelectedClear();
    }
}
BENCHMARK(Move)->Arg(1)->Arg(100)->Arg(1'000)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(20);

}  // namespace

int main(int argc, char** argv) {
    return vorlane::RunBenchmarks(argc, argv, PrintCounts);
}
