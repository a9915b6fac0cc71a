// WordSort: puts entries in order of their 64-bit words, those of equal words in order of their rows. Many entries are
// dealt out byte by byte, and only by the bytes in which they differ; few are compared.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace vorlane {

// A key, or the rest of one: the word to order it by, where its words are kept, its row.
struct WordEntry {
    uint64_t Word;
    uint32_t Place;
    int32_t Row;
};

class WordSort {
public:
    // Entries of equal words come in ascending order of their rows.
    void Sort(std::span<WordEntry> entries);

private:
    std::vector<WordEntry> spare_;  // kept from sort to sort
};

}  // namespace vorlane
