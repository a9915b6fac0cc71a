#include "sheet/wordsort.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

namespace vorlane {

namespace {

// Below so many entries comparing is faster than dealing.
constexpr size_t FewEntries = 64;

// Stable, by the byte at shift.
void Deal(std::span<const WordEntry> from, std::span<WordEntry> to, int shift) {
    const auto digit = [shift](const WordEntry& entry) { return static_cast<size_t>(entry.Word >> shift & 0xFFU); };
    std::array<uint32_t, 256> next{};
    for (const WordEntry& entry : from) ++next[digit(entry)];
    uint32_t sum = 0;
    for (uint32_t& count : next) sum += std::exchange(count, sum);
    for (const WordEntry& entry : from) to[next[digit(entry)]++] = entry;
}

// The bits in which words differ.
uint64_t Differences(std::span<const WordEntry> entries) {
    uint64_t bits = 0;
    for (const WordEntry& entry : entries) bits |= entry.Word ^ entries.front().Word;
    return bits;
}

}  // namespace

void WordSort::Sort(std::span<WordEntry> entries) {
    if (entries.size() < FewEntries) {
        std::sort(entries.begin(), entries.end(), [](const WordEntry& a, const WordEntry& b) {
            return a.Word != b.Word ? a.Word < b.Word : a.Row < b.Row;
        });
        return;
    }
    if (spare_.size() < entries.size()) spare_.resize(entries.size());
    std::span<WordEntry> from = entries;
    std::span<WordEntry> to = std::span(spare_).first(entries.size());
    const uint64_t differences = Differences(entries);
    for (int shift = 0; shift < 64; shift += 8) {
        if ((differences >> shift & 0xFFU) == 0) continue;
        Deal(from, to, shift);
        std::swap(from, to);
    }
    if (from.data() != entries.data()) std::copy(from.begin(), from.end(), entries.begin());
}

}  // namespace vorlane
