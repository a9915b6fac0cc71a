// The sort of the library's own list: read, put in order, rewritten with its selection and keys. Beside it, in the same
// run, the plain sort that cuts both keys at each comparison, and a stable sort of ready keys alone.
#include "platform/memorylistbox.h"
#include "platform/trelmic6.h"
#include "sheet/itemtext.h"
#include "sheet/listsort.h"
#include "tests/sheet/plainsort.h"

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <limits>
#include <random>
#include <string>
#include <vector>

namespace {

using namespace vorlane;

constexpr std::string_view kData(&kSepSortWithData, 1);
constexpr std::string_view kArg(&kSepSortArg, 1);
constexpr size_t kPlainLimit = 100'000;  // the plain sort is not run beyond, unless asked for
constexpr int kRuns = 5;                 // of which the shortest counts

struct Sample {
    const char* Name;
    std::vector<const char*> Criteria;
    std::vector<std::string> Texts;
};

template <class... Values>
std::string Print(const char* format, Values... values) {
    char text[256];
    const int length = std::snprintf(text, sizeof text, format, values...);
    return {text, static_cast<size_t>(length)};
}

// Items as the sheet makes them of the files of a folder, in no order.
Sample FileKeys(size_t count) {
    Sample sample{"file keys, all different", {"name", "date", "second date", "size", "extension"}, {}};
    std::mt19937 random(1);
    const auto below = [&](unsigned n) { return static_cast<unsigned>(random() % n); };
    const auto date = [&] { return Print("%u%02u%02u", 2001 + below(24), 1 + below(12), 1 + below(28)); };
    for (size_t i = 0; i < count; ++i) {
        const char* extension = below(4) == 0 ? "png" : "jpg";
        const std::string name = Print("img_%07zu.%s", i, extension);
        const std::string size = Print("%010u", below(12'000'000));
        sample.Texts.push_back(name + '\v' + date() + name + '\v' + date() + name + '\v' + size + name + '\v' +
                               extension + name + "\t/home/anna/Images/2024/" + name);
    }
    std::shuffle(sample.Texts.begin(), sample.Texts.end(), random);
    return sample;
}

// Items with a host's own criteria, few of them different.
Sample HostKeys(size_t count) {
    Sample sample{"a host's keys, many equal", {"100 texts", "100 numbers", "2 texts", "numbers and texts"}, {}};
    std::mt19937 random(2);
    const auto below = [&](unsigned n) { return static_cast<unsigned>(random() % n); };
    for (size_t i = 0; i < count; ++i) {
        const std::string mixed = below(2) == 0 ? Print("%u", below(1000)) : Print("Groupe %u", below(1000));
        sample.Texts.push_back(Print("Rubrique %u\v%u\v%s\v", below(100), below(100), below(2) == 0 ? "oui" : "non") +
                               mixed + Print("\t/home/anna/Images/2024/img_%07zu.jpg", i));
    }
    return sample;
}

// Of processor time, so that other programs count little.
double Milliseconds(auto&& operation) {
    const std::clock_t start = std::clock();
    operation();
    return 1000.0 * static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

double Shortest(auto&& run) {
    double shortest = std::numeric_limits<double>::max();
    for (int i = 0; i < kRuns; ++i) shortest = std::min(shortest, run());
    return shortest;
}

double TimeSortList(const Sample& sample, uint8_t criterion) {
    MemoryListBox list(1);
    for (const std::string& text : sample.Texts) {
        list.AddItem(text);
        const int32_t index = list.NewIndex();
        list.SetItemData(index, index);
        list.SetSelected(index, index % 10 == 0);
    }
    int32_t anchor = 0;
    return Milliseconds([&] { SortList(list, true, criterion, kData, anchor); });
}

struct ReadyKey {
    std::string Key;
    int32_t Row;
};

std::vector<ReadyKey> ReadyKeys(const Sample& sample, uint8_t criterion) {
    std::vector<ReadyKey> keys;
    for (const std::string& text : sample.Texts) {
        const std::string key = Trelmic6::FieldAt(text.substr(0, text.find(kData)), criterion, kArg);
        keys.push_back({Trelmic6::LowerCase(key), static_cast<int32_t>(keys.size())});
    }
    return keys;
}

struct Plain {
    int64_t Comparisons = 0;
    double Time = 0;
};

Plain RunPlain(const Sample& sample, uint8_t criterion) {
    plain::Sort sort;
    for (const std::string& text : sample.Texts) sort.Rows.push_back({text});
    const double time = Milliseconds([&] { sort.Run(true, criterion, kData, kArg); });
    return {sort.Comparisons, time};
}

// --- Counts ---

void PrintCounts(const Sample& sample, const std::vector<Plain>& plain) {
    const size_t count = sample.Texts.size();
    std::printf("%zu items, %s: work\n", count, sample.Name);
    std::printf("%-20s %12s %18s %12s | %24s | %24s\n", "", "keys cut", "words ordered", "equal keys",
                "plain sort: keys cut", "stable sort: comparisons");
    for (size_t i = 0; i < sample.Criteria.size(); ++i) {
        const auto criterion = static_cast<uint8_t>(i + 1);
        ListKeys keys({criterion, kData, kArg}, count);
        for (const std::string& text : sample.Texts) keys.Add(text);
        const KeyOrder order = keys.Order();
        size_t equal = 0;
        for (const auto& [begin, end] : order.Ties) equal += end - begin;
        int64_t comparisons = 0;
        auto ready = ReadyKeys(sample, criterion);
        std::stable_sort(ready.begin(), ready.end(), [&](const ReadyKey& a, const ReadyKey& b) {
            ++comparisons;
            return a.Key < b.Key;
        });
        const std::string cut = plain.empty() ? "-" : std::to_string(2 * plain[i].Comparisons);
        std::printf("%-20s %12d %18lld %12zu | %24s | %24lld\n", sample.Criteria[i], keys.Rows(),
                    static_cast<long long>(order.WordsSorted), equal, cut.c_str(), static_cast<long long>(comparisons));
    }
}

// --- Times ---

void PrintTimes(const Sample& sample, const std::vector<Plain>& plain) {
    std::printf("%zu items, %s: milliseconds of processor time, the shortest of %d\n", sample.Texts.size(), sample.Name,
                kRuns);
    std::printf("%-20s %12s | %12s %8s | %14s %8s\n", "", "SortList", "plain sort", "ratio", "stable sort", "ratio");
    for (size_t i = 0; i < sample.Criteria.size(); ++i) {
        const auto criterion = static_cast<uint8_t>(i + 1);
        const double own = Shortest([&] { return TimeSortList(sample, criterion); });
        const auto ready = ReadyKeys(sample, criterion);
        const double stable = Shortest([&] {
            auto keys = ready;
            return Milliseconds([&] {
                std::stable_sort(keys.begin(), keys.end(),
                                 [](const ReadyKey& a, const ReadyKey& b) { return a.Key < b.Key; });
            });
        });
        const std::string plainTime = plain.empty() ? "-" : Print("%.0f", plain[i].Time);
        const std::string plainRatio = plain.empty() ? "-" : Print("%.1f", plain[i].Time / own);
        std::printf("%-20s %12.1f | %12s %8s | %14.1f %8.1f\n", sample.Criteria[i], own, plainTime.c_str(),
                    plainRatio.c_str(), stable, stable / own);
    }
    std::printf("\n");
}

void Report(const Sample& sample, size_t plainLimit) {
    std::vector<Plain> plain;
    for (size_t i = 1; i <= sample.Criteria.size() && sample.Texts.size() <= plainLimit; ++i) {
        plain.push_back(RunPlain(sample, static_cast<uint8_t>(i)));
    }
    PrintCounts(sample, plain);
    PrintTimes(sample, plain);
}

}  // namespace

// sort_bench [--whole]: runs the plain sort on the longest lists too, which takes minutes.
int main(int argc, char** argv) {
    const bool whole = argc > 1 && std::string_view(argv[1]) == "--whole";
    const size_t plainLimit = whole ? std::numeric_limits<size_t>::max() : kPlainLimit;
    for (const size_t count : {size_t{100'000}, size_t{1'000'000}}) {
        Report(FileKeys(count), plainLimit);
        Report(HostKeys(count), plainLimit);
    }
    return 0;
}
