// The time line: what a paint asks and records, counted, then what it and the look-ups of sounds take of time.
#include "bench/countinglist.h"
#include "platform/headless/window.h"
#include "sheet/vorlane.h"
#include "timeline/etimeline.h"

#include <benchmark/benchmark.h>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <variant>

namespace {

using namespace vorlane;

constexpr int32_t kWidth = 1600;
constexpr int32_t kHeight = 60;

// A file that all sounds play.
class SoundFile {
public:
    SoundFile() { std::ofstream(path_).flush(); }
    ~SoundFile() { std::filesystem::remove(path_); }
    std::string Path() const { return path_.string(); }

private:
    std::filesystem::path path_ = std::filesystem::temp_directory_path() / "vorlane-bench.wav";
};

// A strip under a sheet of that many items, with a sound of each kind on each of them that is asked for. The sheet is
// attached once the sounds are there, so that they are added in order without a question.
struct Bench {
    Bench(int32_t items, float slideWidth, int32_t musics, int32_t comments) {
        const SoundFile file;
        desktop.sounds.Add(file.Path(), 4);
        for (int32_t n = 0; n < items; ++n) {
            list.AddItem("/p/" + std::to_string(n) + ".jpg");
            list.SetItemData(n, 1000 + n);
        }
        sheetWindow.Host(sheet, PropertyBag{});
        sheet.InitListe(ListeModeType::lmList, &list);
        for (int32_t n = 0; n < musics; ++n) line.Musiques()->Add(file.Path(), 1000 + n);
        for (int32_t n = 0; n < comments; ++n) line.Comments()->Add(file.Path(), 1000 + n);
        line.AttachVorlane(&sheet);
        window.Host(line, PropertyBag{});
        line.SetDiapoWidth(slideWidth);
    }

    headless::Desktop desktop;
    headless::Window sheetWindow{desktop, {0, 0, 345, 180}};
    headless::Window window{desktop, {0, 200, kWidth, 200 + kHeight}};
    CountingList list{12345};
    Vorlane sheet{desktop.Roles(), sheetWindow.Ambient()};
    eTimeLine line{desktop.Roles(), window.Ambient()};
};

constexpr int32_t kFullSlides = 100;  // a strip of 200 bars and 101 marks
constexpr float kFullWidth = 16;
constexpr int32_t kLongShow = 10000;  // sounds, of which 50 show
constexpr float kLongWidth = 32;

struct FullStrip : Bench {
    FullStrip() : Bench(kFullSlides, kFullWidth, kFullSlides, kFullSlides) {}
};
struct LongShow : Bench {
    explicit LongShow(int32_t sounds = kLongShow) : Bench(sounds, kLongWidth, sounds, 0) {
        line.SetStartPoint(sounds / 2);
    }
};

// --- Counts ---

// Each mark has one text.
size_t Marks(const eTimeLine& line) {
    size_t count = 0;
    for (const auto& command : line.Surface().Commands()) count += std::holds_alternative<draw::TextOutA>(command);
    return count;
}

void Print(const char* what, Bench& bench) {
    bench.line.Paint();
    const int64_t before = bench.list.lookUps;
    bench.line.Paint();
    const auto& line = bench.line;
    std::printf("%-34s bars %3zu+%3zu  marks %3zu  commands recorded %3zu  key look-ups %lld\n", what,
                line.MusicBars().size(), line.CommentBars().size(), Marks(line), line.Surface().Commands().size(),
                static_cast<long long>(bench.list.lookUps - before));
}

void PrintCounts() {
    FullStrip full;
    Print("a full strip", full);
    LongShow show;
    Print("10,000 sounds, 50 in sight", show);
    std::printf("\n");
}

// --- Times ---

void PaintFullStrip(benchmark::State& state) {
    FullStrip bench;
    for (auto _ : state) bench.line.Paint();
    state.counters["commands"] = static_cast<double>(bench.line.Surface().Commands().size());
}
BENCHMARK(PaintFullStrip)->Unit(benchmark::kMicrosecond);

void TickOfPlayback(benchmark::State& state) {
    FullStrip bench;
    int32_t second = 1;
    for (auto _ : state) bench.line.Lecture(second = 1 - second, 0);
}
BENCHMARK(TickOfPlayback)->Unit(benchmark::kMicrosecond);

// Shows of more and more sounds, of which 50 show.
void PaintLongShow(benchmark::State& state) {
    LongShow bench(static_cast<int32_t>(state.range(0)));
    for (auto _ : state) bench.line.Paint();
    state.counters["bars"] = static_cast<double>(bench.line.MusicBars().size());
}
BENCHMARK(PaintLongShow)->Arg(100)->Arg(kLongShow)->Arg(10 * kLongShow)->Unit(benchmark::kMicrosecond);

// The same with the sounds out of order, so that a paint walks over all of them.
void PaintLongShowByWalking(benchmark::State& state) {
    LongShow bench(static_cast<int32_t>(state.range(0)));
    const auto sounds = bench.line.Musiques();
    sounds->SetItem(1000 + sounds->Count() - 2, *sounds->Item(1000 + sounds->Count() - 2));
    for (auto _ : state) bench.line.Paint();
    state.counters["bars"] = static_cast<double>(bench.line.MusicBars().size());
}
BENCHMARK(PaintLongShowByWalking)->Arg(100)->Arg(kLongShow)->Unit(benchmark::kMicrosecond);

// Fills the show of an attached sheet, from its end to its beginning.
void AddSounds(benchmark::State& state) {
    const auto count = static_cast<int32_t>(state.range(0));
    const SoundFile file;
    Bench bench(count, kLongWidth, 0, 0);
    bench.desktop.sounds.Add(file.Path(), 4);
    for (auto _ : state) {
        for (int32_t n = count - 1; n >= 0; --n) bench.line.Musiques()->Add(file.Path(), 1000 + n);
        state.PauseTiming();
        bench.line.Musiques()->Clear();
        state.ResumeTiming();
    }
}
BENCHMARK(AddSounds)->Arg(100)->Arg(kLongShow)->Unit(benchmark::kMillisecond);

void SoundOfASlide(benchmark::State& state) {
    Bench bench(10, kLongWidth, static_cast<int32_t>(state.range(0)), 0);
    const auto sounds = bench.line.Musiques()->CollectItem();
    int32_t n = 0;
    for (auto _ : state) {
        n = (n + 7919) % sounds->Count();
        benchmark::DoNotOptimize(sounds->FindDiapoKey(1000 + n));
    }
}
BENCHMARK(SoundOfASlide)->Arg(100)->Arg(kLongShow);

// Takes the sounds of all slides away, the first ones first, as the slides would go.
void RemoveAllSounds(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        auto bench = std::make_unique<Bench>(10, kLongWidth, static_cast<int32_t>(state.range(0)), 0);
        state.ResumeTiming();
        for (int32_t n = 0; n < state.range(0); ++n) bench->line.Musiques()->Remove(1000 + n);
        state.PauseTiming();
        bench.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(RemoveAllSounds)->Arg(100)->Arg(kLongShow)->Unit(benchmark::kMillisecond)->Iterations(3);

void SortSounds(benchmark::State& state) {
    const auto count = static_cast<int32_t>(state.range(0));
    Bench bench(count, kLongWidth, count, 0);
    for (auto _ : state) bench.line.Musiques()->Sort();
}
BENCHMARK(SortSounds)->Arg(100)->Arg(kLongShow)->Unit(benchmark::kMillisecond);

// The same with a host that hears the questions: half the square of the sounds' count.
void SortSoundsHeard(benchmark::State& state) {
    const auto count = static_cast<int32_t>(state.range(0));
    Bench bench(count, kLongWidth, count, 0);
    int64_t questions = 0;
    bench.line.Musiques()->Events.csGetNumDiapo.connect([&](int32_t, int32_t&) { ++questions; });
    for (auto _ : state) bench.line.Musiques()->Sort();
    state.counters["questions"] = static_cast<double>(questions) / static_cast<double>(state.iterations());
}
BENCHMARK(SortSoundsHeard)->Arg(100)->Arg(1000)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    PrintCounts();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
