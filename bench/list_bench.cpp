// The list at 1,000,000 items: what it takes of memory, then what its operations take of time.
#include "bench/running.h"
#include "platform/memorylistbox.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <malloc.h>
#include <numeric>
#include <random>
#include <string>
#include <vector>

namespace {

using vorlane::MemoryListBox;
using vorlane::Seconds;

constexpr int32_t kItems = 1'000'000;

// An item as the sheet stores one: four sort criteria, then the path.
std::string ItemText(int32_t number) {
    char text[160];
    const int length = std::snprintf(
        text, sizeof text, "img_%07d.jpg\v2024-05-%02d 12:30:05\v%d\vjpg\t/home/anna/Images/2024/img_%07d.jpg", number,
        number % 28 + 1, number * 7 % 9'000'000, number);
    return {text, static_cast<size_t>(length)};
}

void Fill(MemoryListBox& list) {
    for (int32_t i = 0; i < kItems; ++i) {
        list.AddItem(ItemText(i));
        list.SetItemData(i, i);
    }
}

// A filled list that benchmarks share, and leave as they found it but for the order of blocks.
MemoryListBox& SharedList() {
    static auto* list = [] {
        auto* made = new MemoryListBox(1);
        Fill(*made);
        made->FindItemData(0);
        return made;
    }();
    return *list;
}

std::vector<int32_t> Scattered(size_t count, int32_t below, uint32_t seed = 1) {
    std::mt19937 random(seed);
    std::vector<int32_t> all(static_cast<size_t>(below));
    std::iota(all.begin(), all.end(), 0);
    std::shuffle(all.begin(), all.end(), random);
    all.resize(count);
    return all;
}

// --- Counts ---

void PrintMemory(const char* what, const MemoryListBox& list, size_t heapBefore) {
    const auto storage = list.Storage();
    const double items = list.ListCount();
    const auto heap = static_cast<double>(mallinfo2().uordblks + mallinfo2().hblkhd - heapBefore);
    std::printf("%-56s text %6.2f  state %6.2f  heap in use %7.2f\n", what, static_cast<double>(storage.Text) / items,
                static_cast<double>(storage.State) / items, heap / items);
}

void PrintCounts() {
    std::printf("Bytes per item of 1,000,000\n");
    const size_t before = mallinfo2().uordblks + mallinfo2().hblkhd;
    MemoryListBox list(1);
    Fill(list);
    PrintMemory("added in order, never asked for a key", list, before);
    list.FindItemData(0);
    PrintMemory("after the first key look-up", list, before);
    list.SelectAll();
    for (int32_t i = 0; i < kItems; ++i) benchmark::DoNotOptimize(list.List(i));
    PrintMemory("all selected, all read", list, before);
    std::mt19937 random(7);
    for (int32_t i = 0; i < kItems / 10; ++i) {
        list.RemoveItem(static_cast<int32_t>(random() % static_cast<uint32_t>(list.ListCount())));
    }
    for (int32_t i = 0; i < kItems / 10; ++i) {
        const auto at = static_cast<int32_t>(random() % static_cast<uint32_t>(list.ListCount()));
        list.AddItem(ItemText(i), at);
        list.SetItemData(at, kItems + i);
    }
    PrintMemory("100,000 removed and 100,000 inserted at random", list, before);
    list.Clear();
    const size_t left = mallinfo2().uordblks + mallinfo2().hblkhd - before;
    std::printf("%-56s %zu bytes in all\n\n", "cleared", left);
}

// --- Filling ---

void AddInOrder(benchmark::State& state) {
    std::vector<std::string> texts;
    for (int32_t i = 0; i < kItems; ++i) texts.push_back(ItemText(i));
    for (auto _ : state) {
        MemoryListBox list(1);
        state.SetIterationTime(Seconds([&] {
            for (const std::string& text : texts) list.AddItem(text);
        }));
    }
}
BENCHMARK(AddInOrder)->Name("add 1,000,000")->UseManualTime()->Unit(benchmark::kMillisecond)->MinTime(1);

void AddWithKeys(benchmark::State& state) {
    std::vector<std::string> texts;
    for (int32_t i = 0; i < kItems; ++i) texts.push_back(ItemText(i));
    for (auto _ : state) {
        MemoryListBox list(1);
        list.FindItemData(0);
        state.SetIterationTime(Seconds([&] {
            for (const std::string& text : texts) {
                list.AddItem(text);
                list.SetItemData(list.NewIndex(), list.NewIndex());
            }
        }));
    }
}
BENCHMARK(AddWithKeys)
    ->Name("add 1,000,000 with keys, index in use")
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->MinTime(1);

void ClearAll(benchmark::State& state) {
    for (auto _ : state) {
        MemoryListBox list(1);
        Fill(list);
        list.FindItemData(0);
        state.SetIterationTime(Seconds([&] { list.Clear(); }));
    }
}
BENCHMARK(ClearAll)->Name("clear 1,000,000")->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(5);

// --- Reading ---

void ReadInOrder(benchmark::State& state) {
    const MemoryListBox& list = SharedList();
    int32_t index = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(list.List(index));
        if (++index == list.ListCount()) index = 0;
    }
}
BENCHMARK(ReadInOrder)->Name("List(i), in order");

void ReadScattered(benchmark::State& state) {
    const MemoryListBox& list = SharedList();
    const auto indices = Scattered(100'000, list.ListCount());
    size_t next = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(list.List(indices[next]));
        if (++next == indices.size()) next = 0;
    }
}
BENCHMARK(ReadScattered)->Name("List(i), anywhere");

// What the memory itself costs: the same with one string an item.
void ReadStrings(benchmark::State& state) {
    std::vector<std::string> strings;
    for (int32_t i = 0; i < kItems; ++i) strings.push_back(ItemText(i));
    const auto indices = Scattered(100'000, kItems);
    size_t next = 0;
    for (auto _ : state) {
        std::string text = strings[static_cast<size_t>(indices[next])];
        benchmark::DoNotOptimize(text);
        if (++next == indices.size()) next = 0;
    }
}
BENCHMARK(ReadStrings)->Name("  beside it: std::vector<std::string>, anywhere");

void ReadScreens(benchmark::State& state) {
    const MemoryListBox& list = SharedList();
    const auto indices = Scattered(100'000, list.ListCount() - 36);
    size_t next = 0;
    for (auto _ : state) {
        for (int32_t i = 0; i < 36; ++i) benchmark::DoNotOptimize(list.List(indices[next] + i));
        if (++next == indices.size()) next = 0;
    }
}
BENCHMARK(ReadScreens)->Name("List(i) to List(i + 35), anywhere");

void ReadAllTexts(benchmark::State& state) {
    const MemoryListBox& list = SharedList();
    for (auto _ : state) {
        size_t bytes = 0;
        list.ForEachText([&](std::string_view text) { bytes += text.size(); });
        benchmark::DoNotOptimize(bytes);
    }
}
BENCHMARK(ReadAllTexts)->Name("ForEachText")->Unit(benchmark::kMillisecond);

// --- Keys ---

void LookUp(benchmark::State& state, int32_t firstKey) {
    const MemoryListBox& list = SharedList();
    auto keys = Scattered(100'000, list.ListCount());
    for (int32_t& key : keys) key += firstKey;
    size_t next = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(list.FindItemData(keys[next]));
        if (++next == keys.size()) next = 0;
    }
}
BENCHMARK_CAPTURE(LookUp, hit, 0)->Name("key look-up, hit");
BENCHMARK_CAPTURE(LookUp, miss, kItems)->Name("key look-up, miss");

void LookUpAfterChanges(benchmark::State& state) {
    MemoryListBox list(1);
    Fill(list);
    list.FindItemData(0);
    std::mt19937 random(3);
    const auto anywhere = [&] { return static_cast<int32_t>(random() % static_cast<uint32_t>(list.ListCount())); };
    const auto keys = Scattered(100'000, kItems);
    size_t next = 0;
    for (auto _ : state) {
        state.PauseTiming();
        for (int i = 0; i < 50; ++i) {
            const int32_t at = anywhere();
            list.AddItem("text", at);
            list.SetItemData(at, kItems + i);
            list.RemoveItem(anywhere());
        }
        state.ResumeTiming();
        for (int i = 0; i < 100; ++i) {
            benchmark::DoNotOptimize(list.FindItemData(keys[next]));
            if (++next == keys.size()) next = 0;
        }
    }
    state.SetItemsProcessed(state.iterations() * 100);
}
BENCHMARK(LookUpAfterChanges)
    ->Name("100 key look-ups after 50 insertions and removals")
    ->Unit(benchmark::kMicrosecond)
    ->Iterations(3000);

enum class Keys { InOrder, Random, AllZero };

void FirstLookUp(benchmark::State& state, Keys keys) {
    std::mt19937 random(5);
    for (auto _ : state) {
        MemoryListBox list(1);
        Fill(list);
        for (int32_t i = 0; i < kItems && keys != Keys::InOrder; ++i) {
            list.SetItemData(i, keys == Keys::AllZero ? 0 : static_cast<int32_t>(random()));
        }
        state.SetIterationTime(Seconds([&] { benchmark::DoNotOptimize(list.FindItemData(0)); }));
    }
}
BENCHMARK_CAPTURE(FirstLookUp, inOrder, Keys::InOrder)
    ->Name("index rebuilt at a look-up, keys in order")
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(5);
BENCHMARK_CAPTURE(FirstLookUp, random, Keys::Random)
    ->Name("index rebuilt at a look-up, random keys")
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(5);
BENCHMARK_CAPTURE(FirstLookUp, allZero, Keys::AllZero)
    ->Name("index rebuilt at a look-up, all keys 0")
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(5);

void LookUpMovedDuplicate(benchmark::State& state) {
    MemoryListBox list(1);
    Fill(list);
    list.SetItemData(kItems - 1, 0);
    list.FindItemData(0);
    for (auto _ : state) {
        list.SetItemData(0, 0);
        list.SetItemData(0, -1);
        benchmark::DoNotOptimize(list.FindItemData(0));
    }
}
BENCHMARK(LookUpMovedDuplicate)
    ->Name("worst look-up: the first of two far items has lost the key")
    ->Unit(benchmark::kMicrosecond);

// --- Changes ---

void InsertAndRemove(benchmark::State& state) {
    MemoryListBox& list = SharedList();
    const std::string text = ItemText(42);
    std::mt19937 random(9);
    for (auto _ : state) {
        const auto at = static_cast<int32_t>(random() % kItems);
        list.AddItem(text, at);
        list.RemoveItem(at);
    }
}
BENCHMARK(InsertAndRemove)->Name("insert and remove one anywhere");

void InsertAnywhere(benchmark::State& state) {
    const std::string text = ItemText(42);
    const auto count = static_cast<int32_t>(state.range(0));
    MemoryListBox list(1);
    Fill(list);
    list.FindItemData(0);
    std::mt19937 random(9);
    for (auto _ : state) {
        state.SetIterationTime(Seconds([&] {
            for (int32_t i = 0; i < count; ++i) {
                list.AddItem(text, static_cast<int32_t>(random() % static_cast<uint32_t>(list.ListCount())));
            }
        }));
    }
}
BENCHMARK(InsertAnywhere)
    ->Name("insert scattered ones")
    ->Arg(1'000)
    ->Arg(10'000)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(5);

// As the sheet removes its selection: the selected indices, then from the last to the first with a look at each key.
void RemoveSelected(benchmark::State& state) {
    for (auto _ : state) {
        MemoryListBox list(1);
        Fill(list);
        list.FindItemData(0);
        for (const int32_t index : Scattered(static_cast<size_t>(state.range(0)), kItems)) {
            list.SetSelected(index, true);
        }
        state.SetIterationTime(Seconds([&] {
            std::vector<int32_t> indices;
            list.SelItems(indices);
            for (auto index = indices.rbegin(); index != indices.rend(); ++index) {
                benchmark::DoNotOptimize(list.ItemData(*index));
                list.RemoveItem(*index);
            }
        }));
    }
}
BENCHMARK(RemoveSelected)
    ->Name("remove scattered ones of 1,000,000")
    ->Arg(1'000)
    ->Arg(10'000)
    ->Arg(100'000)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(5);

void MoveToStart(benchmark::State& state) {
    MemoryListBox& list = SharedList();
    for (auto _ : state) {
        for (int32_t i = 0; i < 100; ++i) {
            const std::string text = list.List(kItems - 1);
            const int32_t key = list.ItemData(kItems - 1);
            list.RemoveItem(kItems - 1);
            list.AddItem(text, i);
            list.SetItemData(i, key);
        }
    }
}
BENCHMARK(MoveToStart)->Name("move 100 from the end to the start")->Unit(benchmark::kMicrosecond);

// --- The whole list ---

void Select(benchmark::State& state, void (MemoryListBox::*operation)()) {
    MemoryListBox& list = SharedList();
    for (auto _ : state) (list.*operation)();
    list.ClearSelection();
}
BENCHMARK_CAPTURE(Select, all, &MemoryListBox::SelectAll)->Name("SelectAll")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Select, invert, &MemoryListBox::InvertSelection)
    ->Name("InvertSelection")
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Select, clear, &MemoryListBox::ClearSelection)->Name("ClearSelection")->Unit(benchmark::kMicrosecond);

void ListSelected(benchmark::State& state) {
    MemoryListBox& list = SharedList();
    const auto count = static_cast<int32_t>(state.range(0));
    for (int32_t i = 0; i < count; ++i) list.SetSelected(i * (kItems / count), true);
    std::vector<int32_t> indices;
    for (auto _ : state) benchmark::DoNotOptimize(list.SelItems(indices));
    list.ClearSelection();
}
BENCHMARK(ListSelected)->Name("SelItems")->Arg(1'000)->Arg(kItems)->Unit(benchmark::kMicrosecond);

void ReorderAll(benchmark::State& state) {
    MemoryListBox list(1);
    Fill(list);
    const auto order = Scattered(kItems, kItems);
    for (auto _ : state) list.Reorder(order);
}
BENCHMARK(ReorderAll)->Name("Reorder 1,000,000 at random")->Unit(benchmark::kMillisecond)->Iterations(5);

}  // namespace

int main(int argc, char** argv) {
    return vorlane::RunBenchmarks(argc, argv, PrintCounts);
}
